// SPDX-License-Identifier: MIT
// nckit check: exit 0 when an NC file loads without error and has no duplicate program numbers, 1 otherwise
// with one line per problem.
//
//   nckit check samples/fanuc_programs.nc && echo fine
#include <map>
#include <ostream>
#include <string>

#include "NcLoadCommon.h"
#include "NckitCommand.h"

namespace {

constexpr const char* kCommand = "check";

void PrintHelp(std::ostream& out) {
  out << "usage: nckit check FILE [--first-block] [--keep-unfinished] [--no-line-limit]\n"
         "Exit code 0 when FILE loads with no error and no program number occurs twice (programs without a\n"
         "number are not compared); 1 otherwise, with one line per problem on stderr.\n\n"
         "options:\n"
      << kNcLoadOptionsHelp;
}

int RunCheck(const NckitArgs& args, std::ostream& out, std::ostream& err) {
  NcCommandLine cl;
  if (int rc = ParseNcCommandLine(kCommand, args, {}, {}, cl, err); rc >= 0)
    return rc;
  if (cl.help) {
    PrintHelp(out);
    return kNckitOk;
  }
  if (cl.positionals.size() != 1)
    return NcUsageError(kCommand, "expects exactly one FILE", err);
  const std::string& path = cl.positionals[0];
  NcLoadResult loaded;
  if (int rc = LoadNcFileWithoutError(kCommand, path, cl.LoadOptions(), loaded, err); rc >= 0)
    return rc;
  KCC_NcFile& file = *loaded.file;
  // Programs without a number (-1) are not compared: a Siemens file has none at all.
  std::map<int, int> count;
  for (KCC_NcFileProgram* p : AllPrograms(file))
    ++count[p->GetProgramNumber()];
  bool duplicates = false;
  for (const auto& [number, n] : count) {
    if (number < 0 || n < 2)
      continue;
    err << "nckit check: " << path << ": program number " << ProgramNumberText(number) << " occurs " << n
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
