// SPDX-License-Identifier: MIT
// nckit extract: the chosen programs of an NC file, framed by '%' lines, on standard output or in a file.
//
//   nckit extract samples/fanuc_programs.nc 1000 8010
//   nckit extract samples/fanuc_programs.nc O8010 -o sub.nc
//   nckit extract long.nc 1 --no-line-limit -o long1.nc   # warns: lines over the reader's limit
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "NckitCommand.h"
#include "NckitCommandLine.h"
#include "NckitLoad.h"
#include "NckitOutput.h"

namespace {

int RunExtract(const NckitArgs& args, std::ostream& out, std::ostream& err) {
  std::vector<std::string> operands;
  std::string target;
  NcLoadOptions load;
  NckitCommandLine cl(
      "extract", "nckit extract FILE NUMBER... [-o OUT] [options]",
      "Writes the programs with the given numbers (1000, O1000 or :1000), every one that has "
      "such a number,\nin file order with main programs first, framed by '%' lines, to "
      "standard output or to OUT.\nA number that matches no program is an error and nothing is "
      "written. As info, check and split do, extract\nlooks for the first block by default: "
      "its program is a main program and comes first\n(--no-first-block turns that off). A written "
      "line longer than the file reader takes gets a\nwarning: such a file reads back only with "
      "--no-line-limit.\n");
  cl.Operands("FILE NUMBER", operands);
  cl.Option("-o,--output", target, "OUT", "write to OUT instead of standard output (OUT is replaced)");
  cl.LoadOptions(load);
  if (const auto stop = cl.Parse(args, out, err))
    return *stop;
  if (operands.size() < 2)
    return cl.UsageError("expects FILE and at least one NUMBER", err);
  std::set<int> wanted;
  if (const auto stop = ParseProgramNumberArguments(
          cl, std::vector<std::string>(operands.begin() + 1, operands.end()), wanted, err))
    return *stop;
  const bool toFile = cl.Given("-o");
  if (toFile) {
    if (const auto stop = CheckOutputFileName(cl, target, err))
      return *stop;
  }
  const std::string& path = operands[0];
  NcLoadResult loaded;
  if (const auto stop = LoadNcFileWithoutError(cl, path, load, loaded, err))
    return *stop;

  std::vector<const KCC_NcFileProgram*> programs;
  std::set<int> found;
  for (const KCC_NcFileProgram* p : AllPrograms(*loaded.file)) {
    if (wanted.count(p->GetProgramNumber()) == 0)
      continue;
    found.insert(p->GetProgramNumber());
    programs.push_back(p);
  }
  bool missing = false;
  for (int number : wanted) {
    if (found.count(number) == 0) {
      err << cl.Program() << ": " << path << ": no program " << ProgramNumberText(number) << '\n';
      missing = true;
    }
  }
  if (missing)
    return kNckitProblem;

  // The text as "\n"-ended lines: what goes to the standard output, and the lines SaveProgramsToFile
  // writes, whose length decides whether the loader can read them back.
  const std::string text = KCC_NcFile::GetProgramsText(programs, KCString("\n"));
  if (!toFile) {
    // The standard output is a text stream: on Windows it turns each "\n" into the platform's line end.
    out << text;
    WarnLinesTooLongToReadBack(cl, "standard output", text, err);
    return kNckitOk;
  }
  if (!KCC_NcFile::SaveProgramsToFile(target, programs)) {
    err << cl.Program() << ": cannot write " << target << '\n';
    return kNckitProblem;
  }
  WarnLinesTooLongToReadBack(cl, target, text, err);
  return kNckitOk;
}

}  // namespace

NCKIT_COMMAND(extract, "write chosen programs of an NC file", RunExtract);
