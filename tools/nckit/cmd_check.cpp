// SPDX-License-Identifier: MIT
// nckit check: exit 0 when an NC file loads without error and has no duplicate program numbers, 1 otherwise
// with one line per problem.
//
//   nckit check samples/fanuc_programs.nc && echo fine
#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "NckitCommand.h"
#include "NckitCommandLine.h"
#include "NckitLoad.h"

namespace {

int RunCheck(const NckitArgs& args, std::ostream& out, std::ostream& err) {
  std::vector<std::string> files;
  NcLoadOptions load;
  NckitCommandLine cl(
      "check", "nckit check FILE [options]",
      "Exit code 0 when FILE loads with no error and no program number occurs twice (programs "
      "without a\nnumber are not compared); 1 otherwise, with one line per problem on stderr.\n");
  cl.Operands("FILE", files);
  cl.LoadOptions(load);
  if (const auto stop = cl.Parse(args, out, err))
    return *stop;
  if (files.size() != 1)
    return cl.UsageError("expects exactly one FILE", err);
  const std::string& path = files[0];
  NcLoadResult loaded;
  if (const auto stop = LoadNcFileWithoutError(cl, path, load, loaded, err))
    return *stop;
  KCC_NcFile& file = *loaded.file;
  // Programs without a number (-1) are not compared: a Siemens file has none at all.
  std::map<int, int> count;
  for (KCC_NcFileProgram* p : AllPrograms(file))
    ++count[p->GetProgramNumber()];
  bool duplicates = false;
  for (const auto& [number, n] : count) {
    if (number < 0 || n < 2)
      continue;
    err << cl.Program() << ": " << path << ": program number " << ProgramNumberText(number) << " occurs " << n
        << " times\n";
    duplicates = true;
  }
  if (duplicates)
    return kNckitProblem;
  out << path << ": ok, " << file.GetNumberOfMainPrograms() << " main and " << file.GetNumberOfSubPrograms()
      << " sub-programs\n";
  return kNckitOk;
}

}  // namespace

NCKIT_COMMAND(check, "check that an NC file loads cleanly and has no duplicate program numbers", RunCheck);
