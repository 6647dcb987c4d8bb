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

#include "NckitCommand.h"
#include "NckitCommandLine.h"
#include "NckitLoad.h"
#include "NckitOutput.h"

namespace fs = std::filesystem;

namespace {

int RunSplit(const NckitArgs& args, std::ostream& out, std::ostream& err) {
  std::vector<std::string> files;
  std::string directory;
  bool force = false;
  NcLoadOptions load;
  NckitCommandLine cl(
      "split", "nckit split FILE -o DIR [--force] [options]",
      "Writes every program of FILE (main programs first, then sub-programs) to its own file in "
      "DIR,\nframed by '%' lines. A program numbered 12 goes to O0012.nc; a second program with "
      "the same number\nto O0012_2.nc; a program without a number to unnumbered_1.nc, "
      "unnumbered_2.nc, ... DIR is created\nwhen missing. Existing files are not replaced unless "
      "--force is given; FILE itself never is.\nA program without lines (such as the empty "
      "program --keep-unfinished may keep after the last\nprogram end) gets no file, and a "
      "warning says so; so does a written line longer than the file\nreader takes, since such a "
      "file reads back only with --no-line-limit. The first block is looked\nfor unless "
      "--no-first-block is given.\n");
  cl.Operands("FILE", files);
  cl.Option("-o,--output", directory, "DIR", "the directory to write into (required)");
  cl.Flag("--force", force, "replace existing files");
  cl.LoadOptions(load);
  if (const auto stop = cl.Parse(args, out, err))
    return *stop;
  if (files.size() != 1)
    return cl.UsageError("expects exactly one FILE", err);
  if (directory.empty())
    return cl.UsageError("needs -o DIR", err);
  const std::string& path = files[0];
  const fs::path dir(directory);

  std::error_code ec;
  if (fs::exists(dir, ec) && !fs::is_directory(dir, ec)) {
    err << cl.Program() << ": " << dir.string() << ": exists and is not a directory\n";
    return kNckitUsage;
  }
  NcLoadResult loaded;
  if (const auto stop = LoadNcFileWithoutError(cl, path, load, loaded, err))
    return *stop;

  // Decide every name first, so that nothing is written when one target may not be replaced.
  std::vector<std::pair<const KCC_NcFileProgram*, fs::path>> targets;
  std::map<int, int> seen;
  int unnumbered = 0;
  for (KCC_NcFileProgram* p : AllPrograms(*loaded.file)) {
    const int number = p->GetProgramNumber();
    if (p->GetStringList().size() == 0) {
      // Its file would hold the two '%' lines alone, which load as no program at all.
      err << cl.Program() << ": " << path << ": warning: "
          << (number < 0 ? std::string("a program without number") : "program " + ProgramNumberText(number))
          << " has no lines; no file written for it\n";
      continue;
    }
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
      err << cl.Program() << ": " << target.string() << " is the input file; choose another directory\n";
      return kNckitProblem;
    }
    if (fs::is_directory(target, ec)) {
      err << cl.Program() << ": " << target.string()
          << " is a directory; remove it or choose another directory\n";
      return kNckitProblem;
    }
    if (!force && fs::exists(target, ec)) {
      err << cl.Program() << ": " << target.string() << " exists; use --force to replace it\n";
      return kNckitProblem;
    }
  }
  fs::create_directories(dir, ec);
  if (ec) {
    err << cl.Program() << ": cannot create " << dir.string() << ": " << ec.message() << '\n';
    return kNckitProblem;
  }
  for (const auto& [program, target] : targets) {
    if (!KCC_NcFile::SaveProgramsToFile(target.string(), {program})) {
      err << cl.Program() << ": cannot write " << target.string() << '\n';
      return kNckitProblem;
    }
    out << target.string() << '\n';
    WarnLinesTooLongToReadBack(cl, target.string(), KCC_NcFile::GetProgramsText({program}, KCString("\n")),
                               err);
  }
  return kNckitOk;
}

}  // namespace

NCKIT_COMMAND(split, "write each program of an NC file to its own file", RunSplit);
