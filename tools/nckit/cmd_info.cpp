// SPDX-License-Identifier: MIT
// nckit info: what an NC file holds: its structure, how the load went and a table of its programs.
//
//   nckit info samples/fanuc_programs.nc                    # JOB calls M98 P8010: a main program
//   nckit info samples/fanuc_programs.nc --no-first-block   # JOB ends with M99: a sub-program
//   nckit info part.mpf --json
#include <algorithm>
#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "NckitCommand.h"
#include "NckitCommandLine.h"
#include "NckitJson.h"
#include "NckitLoad.h"
#include "NckitUtf8.h"

namespace {

struct Row {
  const char* list;
  KCC_NcFileProgram* program;
};

// `text` followed by blanks up to `width` characters as a terminal shows them: a UTF-8 character is one.
std::string Pad(std::string text, std::size_t width) {
  const std::size_t shown = DisplayedLength(text);
  if (shown < width)
    text.append(width - shown, ' ');
  return text;
}

int RunInfo(const NckitArgs& args, std::ostream& out, std::ostream& err) {
  std::vector<std::string> files;
  bool json = false;
  NcLoadOptions load;
  NckitCommandLine cl(
      "info", "nckit info FILE [options]",
      "Loads FILE and shows its structure (Fanuc / Siemens), the load result and a table of its "
      "programs:\nlist (main/sub), number, reference text, lines and size (characters without "
      "line ends). Programs\nwhose number occurs more than once are flagged (programs without a "
      "number are not compared).\n");
  cl.Operands("FILE", files);
  cl.LoadOptions(load);
  cl.Flag("--json", json, "write the result as one JSON object");
  if (const auto stop = cl.Parse(args, out, err))
    return *stop;
  if (files.size() != 1)
    return cl.UsageError("expects exactly one FILE", err);
  const std::string& path = files[0];
  NcLoadResult loaded;
  if (const auto stop = LoadNcFile(cl, path, load, loaded, err))
    return *stop;
  if (loaded.errorCode != KCC_NcFile::kNoError) {
    ReportLoadError(cl, path, loaded, err);
    if (json) {
      out << "{\"file\": " << JsonString(path) << ", \"error\": " << loaded.errorCode
          << ", \"result\": " << JsonString(KCC_NcFile::GetErrorName(loaded.errorCode).str());
      if (loaded.longLine > 0)
        out << ", \"longLine\": " << loaded.longLine;
      out << "}\n";
    }
    return kNckitProblem;
  }

  KCC_NcFile& file = *loaded.file;
  std::vector<Row> rows;
  for (int i = 0; i < file.GetNumberOfMainPrograms(); ++i) {
    if (KCC_NcFileProgram* p = file.GetMainProgList().GetProgram(i))
      rows.push_back({"main", p});
  }
  for (int i = 0; i < file.GetNumberOfSubPrograms(); ++i) {
    if (KCC_NcFileProgram* p = file.GetSubProgList().GetProgram(i))
      rows.push_back({"sub", p});
  }
  std::map<int, int> count;
  for (const Row& r : rows)
    ++count[r.program->GetProgramNumber()];
  const char* structure = file.IsSiemensNcFileStructure() ? "Siemens" : "Fanuc";
  // Programs without a number (-1) are not compared: a Siemens file has none at all.
  bool duplicates = false;
  for (const auto& [number, n] : count)
    duplicates = duplicates || (number >= 0 && n > 1);
  auto isDuplicate = [&](const KCC_NcFileProgram* p) {
    return p->GetProgramNumber() >= 0 && count[p->GetProgramNumber()] > 1;
  };

  if (json) {
    out << "{\"file\": " << JsonString(path) << ", \"structure\": " << JsonString(structure)
        << ", \"error\": " << KCC_NcFile::kNoError
        << ", \"result\": " << JsonString(KCC_NcFile::GetErrorName(KCC_NcFile::kNoError).str())
        << ", \"duplicateNumbers\": " << (duplicates ? "true" : "false") << ", \"programs\": [";
    for (std::size_t i = 0; i < rows.size(); ++i) {
      KCC_NcFileProgram* p = rows[i].program;
      out << (i == 0 ? "" : ", ") << "{\"list\": \"" << rows[i].list
          << "\", \"number\": " << p->GetProgramNumber()
          << ", \"ref\": " << JsonString(p->GetProgramRef().str())
          << ", \"lines\": " << p->GetStringList().size() << ", \"size\": " << p->CalculateProgramSize()
          << ", \"duplicate\": " << (isDuplicate(p) ? "true" : "false") << "}";
    }
    out << "]}\n";
    return kNckitOk;
  }

  out << "file:       " << path << '\n'
      << "structure:  " << structure << '\n'
      << "load:       " << KCC_NcFile::GetErrorName(KCC_NcFile::kNoError) << '\n'
      << "programs:   " << file.GetNumberOfMainPrograms() << " main, " << file.GetNumberOfSubPrograms()
      << " sub\n\n";
  std::size_t refWidth = 3;
  for (const Row& r : rows)
    refWidth = std::max(refWidth, DisplayedLength(r.program->GetProgramRef().str()));
  out << Pad("list", 6) << Pad("number", 8) << Pad("ref", refWidth + 2) << Pad("lines", 9) << "size\n";
  for (const Row& r : rows) {
    KCC_NcFileProgram* p = r.program;
    out << Pad(r.list, 6) << Pad(ProgramNumberText(p->GetProgramNumber()), 8)
        << Pad(p->GetProgramRef().str(), refWidth + 2) << Pad(std::to_string(p->GetStringList().size()), 9)
        << p->CalculateProgramSize();
    if (isDuplicate(p))
      out << "  duplicate number";
    out << '\n';
  }
  if (duplicates)
    out << "\nduplicate program numbers: yes\n";
  return kNckitOk;
}

}  // namespace

NCKIT_COMMAND(info, "show the structure and the programs of an NC file", RunInfo);
