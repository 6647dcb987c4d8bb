// SPDX-License-Identifier: MIT
// nckit remove: all programs of an NC file except the chosen ones, written to a new file.
//
//   nckit remove samples/fanuc_programs.nc 8020 -o without_8020.nc
#include <ostream>
#include <set>
#include <string>

#include "NcLoadCommon.h"
#include "NckitCommand.h"

namespace {

constexpr const char* kCommand = "remove";

void PrintHelp(std::ostream& out) {
  out << "usage: nckit remove FILE NUMBER... -o OUT [--first-block] [--keep-unfinished] [--no-line-limit]\n"
         "Writes all programs of FILE except those with the given numbers (1000, O1000 or :1000) to OUT,\n"
         "main programs first, framed by '%' lines. OUT may be FILE itself only when named so explicitly.\n"
         "A number that matches no program is an error and nothing is written.\n\n"
         "options:\n"
         "  -o OUT             the file to write (required; replaced when it exists)\n"
      << kNcLoadOptionsHelp;
}

int RunRemove(const NckitArgs& args, std::ostream& out, std::ostream& err) {
  NcCommandLine cl;
  if (int rc = ParseNcCommandLine(kCommand, args, {}, {"-o"}, cl, err); rc >= 0)
    return rc;
  if (cl.help) {
    PrintHelp(out);
    return kNckitOk;
  }
  if (cl.positionals.size() < 2)
    return NcUsageError(kCommand, "expects FILE and at least one NUMBER", err);
  if (cl.values.count("-o") == 0 || cl.values["-o"].empty())
    return NcUsageError(kCommand, "needs -o OUT", err);
  std::set<int> unwanted;
  if (int rc = ParseProgramNumberArguments(kCommand, cl, unwanted, err); rc >= 0)
    return rc;
  if (int rc = CheckOutputFileName(kCommand, cl.values["-o"], err); rc >= 0)
    return rc;
  const std::string& path = cl.positionals[0];
  NcLoadResult loaded;
  if (int rc = LoadNcFileWithoutError(kCommand, path, cl.LoadOptions(), loaded, err); rc >= 0)
    return rc;

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
      err << "nckit remove: " << path << ": no program " << ProgramNumberText(number) << '\n';
      missing = true;
    }
    removed += n;
  }
  if (missing)
    return kNckitProblem;
  const std::string& target = cl.values["-o"];
  if (!file.SaveToFile(target)) {
    err << "nckit remove: cannot write " << target << '\n';
    return kNckitProblem;
  }
  out << "removed " << removed << " program" << (removed == 1 ? "" : "s") << ", wrote " << target << '\n';
  return kNckitOk;
}

}  // namespace

NCKIT_COMMAND(remove, "write an NC file without chosen programs", RunRemove);
