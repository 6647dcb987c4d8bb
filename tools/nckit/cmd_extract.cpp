// SPDX-License-Identifier: MIT
// nckit extract: the chosen programs of an NC file, framed by '%' lines, on standard output or in a file.
//
//   nckit extract samples/fanuc_programs.nc 1000 8010
//   nckit extract samples/fanuc_programs.nc O8010 -o sub.nc
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "NcLoadCommon.h"
#include "NckitCommand.h"

namespace {

constexpr const char* kCommand = "extract";

void PrintHelp(std::ostream& out) {
  out << "usage: nckit extract FILE NUMBER... [-o OUT] [--first-block] [--keep-unfinished] "
         "[--no-line-limit]\n"
         "Writes the programs with the given numbers (1000, O1000 or :1000), every one that has such a "
         "number,\n"
         "in file order with main programs first, framed by '%' lines, to standard output or to OUT.\n"
         "A number that matches no program is an error and nothing is written.\n\n"
         "options:\n"
         "  -o OUT             write to OUT instead of standard output (OUT is replaced)\n"
      << kNcLoadOptionsHelp;
}

int RunExtract(const NckitArgs& args, std::ostream& out, std::ostream& err) {
  NcCommandLine cl;
  if (int rc = ParseNcCommandLine(kCommand, args, {}, {"-o"}, cl, err); rc >= 0)
    return rc;
  if (cl.help) {
    PrintHelp(out);
    return kNckitOk;
  }
  if (cl.positionals.size() < 2)
    return NcUsageError(kCommand, "expects FILE and at least one NUMBER", err);
  std::set<int> wanted;
  if (int rc = ParseProgramNumberArguments(kCommand, cl, wanted, err); rc >= 0)
    return rc;
  if (cl.values.count("-o") != 0) {
    if (int rc = CheckOutputFileName(kCommand, cl.values["-o"], err); rc >= 0)
      return rc;
  }
  const std::string& path = cl.positionals[0];
  NcLoadResult loaded;
  if (int rc = LoadNcFileWithoutError(kCommand, path, cl.LoadOptions(), loaded, err); rc >= 0)
    return rc;

  KCC_NcFile chosen;
  std::vector<const KCC_NcFileProgram*> programs;
  std::set<int> found;
  KCC_NcFile& file = *loaded.file;
  for (int which = 0; which < 2; ++which) {
    KCC_NcFileProgramList& from = which == 0 ? file.GetMainProgList() : file.GetSubProgList();
    KCC_NcFileProgramList& to = which == 0 ? chosen.GetMainProgList() : chosen.GetSubProgList();
    for (int i = 0; i < from.GetNumberOfPrograms(); ++i) {
      KCC_NcFileProgram* p = from.GetProgram(i);
      if (p == nullptr || wanted.count(p->GetProgramNumber()) == 0)
        continue;
      found.insert(p->GetProgramNumber());
      to.AddProgram(new KCC_NcFileProgram(*p));
      programs.push_back(p);
    }
  }
  bool missing = false;
  for (int number : wanted) {
    if (found.count(number) == 0) {
      err << "nckit extract: " << path << ": no program " << ProgramNumberText(number) << '\n';
      missing = true;
    }
  }
  if (missing)
    return kNckitProblem;

  if (cl.values.count("-o") == 0) {
    out << ProgramsText(programs);
    return kNckitOk;
  }
  const std::string& target = cl.values["-o"];
  if (!chosen.SaveToFile(target)) {
    err << "nckit extract: cannot write " << target << '\n';
    return kNckitProblem;
  }
  return kNckitOk;
}

}  // namespace

NCKIT_COMMAND(extract, "write chosen programs of an NC file", RunExtract);
