// SPDX-License-Identifier: MIT
// nckit split: one file per program, named O<number>.nc, each framed by '%' lines.
//
//   nckit split samples/fanuc_programs.nc -o parts/
//   nckit split big.nc -o parts/ --force        # replace files left from an earlier split
#include <filesystem>
#include <map>
#include <ostream>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "NcLoadCommon.h"
#include "NckitCommand.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* kCommand = "split";

void PrintHelp(std::ostream& out) {
  out << "usage: nckit split FILE -o DIR [--force] [--first-block] [--keep-unfinished] [--no-line-limit]\n"
         "Writes every program of FILE (main programs first, then sub-programs) to its own file in DIR,\n"
         "framed by '%' lines. A program numbered 12 goes to O0012.nc; a second program with the same "
         "number\n"
         "to O0012_2.nc; a program without a number to unnumbered_1.nc, unnumbered_2.nc, ... DIR is created\n"
         "when missing. Existing files are not replaced unless --force is given; FILE itself never is.\n\n"
         "options:\n"
         "  -o DIR             the directory to write into (required)\n"
         "  --force            replace existing files\n"
      << kNcLoadOptionsHelp;
}

int RunSplit(const NckitArgs& args, std::ostream& out, std::ostream& err) {
  NcCommandLine cl;
  if (int rc = ParseNcCommandLine(kCommand, args, {"--force"}, {"-o"}, cl, err); rc >= 0)
    return rc;
  if (cl.help) {
    PrintHelp(out);
    return kNckitOk;
  }
  if (cl.positionals.size() != 1)
    return NcUsageError(kCommand, "expects exactly one FILE", err);
  if (cl.values.count("-o") == 0 || cl.values["-o"].empty())
    return NcUsageError(kCommand, "needs -o DIR", err);
  const std::string& path = cl.positionals[0];
  const fs::path dir(cl.values["-o"]);

  std::error_code ec;
  if (fs::exists(dir, ec) && !fs::is_directory(dir, ec)) {
    err << "nckit split: " << dir.string() << ": exists and is not a directory\n";
    return kNckitUsage;
  }
  NcLoadResult loaded;
  if (int rc = LoadNcFileWithoutError(kCommand, path, cl.LoadOptions(), loaded, err); rc >= 0)
    return rc;

  // Decide every name first, so that nothing is written when one target may not be replaced.
  std::vector<std::pair<KCC_NcFileProgram*, fs::path>> targets;
  std::map<int, int> seen;
  int unnumbered = 0;
  for (KCC_NcFileProgram* p : AllPrograms(*loaded.file)) {
    const int number = p->GetProgramNumber();
    std::string name;
    if (number < 0) {
      name = "unnumbered_" + std::to_string(++unnumbered) + ".nc";
    } else {
      const int n = ++seen[number];
      name = "O" + ProgramNumberText(number) + (n > 1 ? "_" + std::to_string(n) : "") + ".nc";
    }
    targets.emplace_back(p, dir / name);
  }
  for (const auto& [program, target] : targets) {
    if (SameFile(target.string(), path)) {
      err << "nckit split: " << target.string() << " is the input file; choose another directory\n";
      return kNckitProblem;
    }
    if (fs::is_directory(target, ec)) {
      err << "nckit split: " << target.string() << " is a directory; remove it or choose another directory\n";
      return kNckitProblem;
    }
    if (!cl.Has("--force") && fs::exists(target, ec)) {
      err << "nckit split: " << target.string() << " exists; use --force to replace it\n";
      return kNckitProblem;
    }
  }
  fs::create_directories(dir, ec);
  if (ec) {
    err << "nckit split: cannot create " << dir.string() << ": " << ec.message() << '\n';
    return kNckitProblem;
  }
  for (const auto& [program, target] : targets) {
    KCC_NcFile single;
    single.GetMainProgList().AddProgram(new KCC_NcFileProgram(*program));
    if (!single.SaveToFile(target.string())) {
      err << "nckit split: cannot write " << target.string() << '\n';
      return kNckitProblem;
    }
    out << target.string() << '\n';
  }
  return kNckitOk;
}

}  // namespace

NCKIT_COMMAND(split, "write each program of an NC file to its own file", RunSplit);
