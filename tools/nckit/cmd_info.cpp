// SPDX-License-Identifier: MIT
// nckit info: what an NC file holds: its structure, how the load went and a table of its programs.
//
//   nckit info samples/fanuc_programs.nc --first-block
//   nckit info part.mpf --json
#include <algorithm>
#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "NcLoadCommon.h"
#include "NckitCommand.h"

namespace {

constexpr const char* kCommand = "info";

void PrintHelp(std::ostream& out) {
  out << "usage: nckit info FILE [--first-block] [--keep-unfinished] [--no-line-limit] [--json]\n"
         "Loads FILE and shows its structure (Fanuc / Siemens), the load result and a table of its "
         "programs:\n"
         "list (main/sub), number, reference text, lines and size (characters without line ends). Programs\n"
         "whose number occurs more than once are flagged (programs without a number are not compared).\n\n"
         "options:\n"
      << kNcLoadOptionsHelp << "  --json             write the result as one JSON object\n";
}

struct Row {
  const char* list;
  KCC_NcFileProgram* program;
};

int RunInfo(const NckitArgs& args, std::ostream& out, std::ostream& err) {
  NcCommandLine cl;
  if (int rc = ParseNcCommandLine(kCommand, args, {"--json"}, {}, cl, err); rc >= 0)
    return rc;
  if (cl.help) {
    PrintHelp(out);
    return kNckitOk;
  }
  if (cl.positionals.size() != 1)
    return NcUsageError(kCommand, "expects exactly one FILE", err);
  const std::string& path = cl.positionals[0];
  NcLoadResult loaded;
  if (int rc = LoadNcFile(kCommand, path, cl.LoadOptions(), loaded, err); rc >= 0)
    return rc;
  if (loaded.errorCode != 0) {
    ReportLoadError(kCommand, path, loaded, err);
    if (cl.Has("--json")) {
      out << "{\"file\": " << JsonString(path) << ", \"error\": " << loaded.errorCode
          << ", \"result\": " << JsonString(NcLoadErrorName(loaded.errorCode));
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

  if (cl.Has("--json")) {
    out << "{\"file\": " << JsonString(path) << ", \"structure\": " << JsonString(structure)
        << ", \"error\": 0, \"result\": " << JsonString(NcLoadErrorName(0))
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
      << "load:       " << NcLoadErrorName(0) << '\n'
      << "programs:   " << file.GetNumberOfMainPrograms() << " main, " << file.GetNumberOfSubPrograms()
      << " sub\n\n";
  std::size_t refWidth = 3;
  for (const Row& r : rows)
    refWidth = std::max(refWidth, r.program->GetProgramRef().size());
  auto pad = [](std::string s, std::size_t w) {
    if (s.size() < w)
      s.append(w - s.size(), ' ');
    return s;
  };
  out << pad("list", 6) << pad("number", 8) << pad("ref", refWidth + 2) << pad("lines", 9) << "size\n";
  for (const Row& r : rows) {
    KCC_NcFileProgram* p = r.program;
    out << pad(r.list, 6) << pad(ProgramNumberText(p->GetProgramNumber()), 8)
        << pad(p->GetProgramRef().str(), refWidth + 2) << pad(std::to_string(p->GetStringList().size()), 9)
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
