// SPDX-License-Identifier: MIT
// nckit remove: all programs of an NC file except the chosen ones, written to a new file.
//
//   nckit remove samples/fanuc_programs.nc 8020 -o without_8020.nc
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "NckitCommand.h"
#include "NckitCommandLine.h"
#include "NckitLoad.h"
#include "NckitOutput.h"

namespace {

int RunRemove(const NckitArgs& args, std::ostream& out, std::ostream& err) {
  std::vector<std::string> operands;
  std::string target;
  NcLoadOptions load;
  NckitCommandLine cl(
      "remove", "nckit remove FILE NUMBER... -o OUT [options]",
      "Writes all programs of FILE except those with the given numbers (1000, O1000 or :1000) "
      "to OUT,\nmain programs first, framed by '%' lines. OUT may be FILE itself only when named "
      "so explicitly.\nA number that matches no program is an error and nothing is written. As "
      "info, check and split do,\nremove looks for the first block by default: its program is a "
      "main program and is written among\nthem (--no-first-block turns that off). A written line "
      "longer than the file reader takes gets a\nwarning: such a file reads back only with "
      "--no-line-limit.\n");
  cl.Operands("FILE NUMBER", operands);
  cl.Option("-o,--output", target, "OUT", "the file to write (required; replaced when it exists)");
  cl.LoadOptions(load);
  if (const auto stop = cl.Parse(args, out, err))
    return *stop;
  if (operands.size() < 2)
    return cl.UsageError("expects FILE and at least one NUMBER", err);
  if (target.empty())
    return cl.UsageError("needs -o OUT", err);
  std::set<int> unwanted;
  if (const auto stop = ParseProgramNumberArguments(
          cl, std::vector<std::string>(operands.begin() + 1, operands.end()), unwanted, err))
    return *stop;
  if (const auto stop = CheckOutputFileName(cl, target, err))
    return *stop;
  const std::string& path = operands[0];
  NcLoadResult loaded;
  if (const auto stop = LoadNcFileWithoutError(cl, path, load, loaded, err))
    return *stop;

  KCC_NcFile& file = *loaded.file;
  bool missing = false;
  int removed = 0;
  for (int number : unwanted) {
    int n = 0;
    while (file.RemoveProgramFromMainProgramList(number))
      ++n;
    while (file.RemoveProgramFromSubProgramList(number))
      ++n;
    if (n == 0) {
      err << cl.Program() << ": " << path << ": no program " << ProgramNumberText(number) << '\n';
      missing = true;
    }
    removed += n;
  }
  if (missing)
    return kNckitProblem;
  if (!file.SaveToFile(target)) {
    err << cl.Program() << ": cannot write " << target << '\n';
    return kNckitProblem;
  }
  std::vector<const KCC_NcFileProgram*> written;
  for (KCC_NcFileProgram* p : AllPrograms(file))
    written.push_back(p);
  WarnLinesTooLongToReadBack(cl, target, KCC_NcFile::GetProgramsText(written, KCString("\n")), err);
  out << "removed " << removed << " program" << (removed == 1 ? "" : "s") << ", wrote " << target << '\n';
  return kNckitOk;
}

}  // namespace

NCKIT_COMMAND(remove, "write an NC file without chosen programs", RunRemove);
