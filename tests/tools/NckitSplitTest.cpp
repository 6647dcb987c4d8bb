// SPDX-License-Identifier: MIT
// nckit split, run as a program.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "ncappkit/nc/KCC_NcFile.h"
#include "support/NckitFixture.h"
#include "support/PlatformText.h"
#include "support/TempDir.h"

namespace {

class NckitSplit : public NckitTest {};

}  // namespace

TEST_F(NckitSplit, WritesOneFilePerProgramWithPercentLines) {
  TempDir dir;
  const ChildResult r = Run({"split", FanucSample(), "-o", dir.Path("parts")});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.err, "");
  std::set<std::string> written;
  for (const auto& entry : std::filesystem::directory_iterator(dir.Path("parts")))
    written.insert(entry.path().filename().string());
  EXPECT_EQ(written,
            (std::set<std::string>{"O0001.nc", "O1000.nc", "O2000.nc", "O8010.nc", "O8020.nc", "O8030.nc"}));
  EXPECT_EQ(dir.ReadFile("parts/O8010.nc"),
            PlatformText("%\nO8010 (SETUP)\nN10 G21 G90 G17 G54\nN20 G28 G91 Z0\nN30 M99\n%\n"));
}

TEST_F(NckitSplit, RefusesToOverwriteWithoutForce) {
  TempDir dir;
  dir.WriteFile("parts/O8010.nc", "mine");
  const ChildResult r = Run({"split", FanucSample(), "-o", dir.Path("parts")});
  EXPECT_EQ(r.exitCode, 1);
  const std::string target = (std::filesystem::path(dir.Path("parts")) / "O8010.nc").string();
  EXPECT_EQ(r.err, "nckit split: " + target + " exists; use --force to replace it\n");
  EXPECT_EQ(dir.ReadFile("parts/O8010.nc"), "mine");
  EXPECT_FALSE(dir.Exists("parts/O1000.nc"));
}

TEST_F(NckitSplit, ForceReplacesExistingFiles) {
  TempDir dir;
  dir.WriteFile("parts/O8010.nc", "mine");
  EXPECT_EQ(Run({"split", FanucSample(), "-o", dir.Path("parts"), "--force"}).exitCode, 0);
  EXPECT_EQ(dir.ReadFile("parts/O8010.nc").rfind(PlatformText("%\nO8010 (SETUP)\n"), 0), 0u);
}

TEST_F(NckitSplit, NeverWritesOverTheInputFile) {
  TempDir dir;
  const std::string input = dir.WriteFile("O0005.nc", "O5\nG0 X1\nM30\nO6\nM30\n");
  const ChildResult r = Run({"split", input, "-o", dir.Path(), "--force"});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_NE(r.err.find("is the input file"), std::string::npos);
  EXPECT_EQ(dir.ReadFile("O0005.nc"), "O5\nG0 X1\nM30\nO6\nM30\n");
}

TEST_F(NckitSplit, DuplicateAndMissingNumbersGetTheirOwnNames) {
  TempDir dir;
  const std::string input = dir.WriteFile("in.nc", "O5\nM30\nO5\nM30\nG0 X0\nM30\n");
  EXPECT_EQ(Run({"split", input, "-o", dir.Path("out")}).exitCode, 0);
  EXPECT_EQ(dir.ReadFile("out/O0005.nc"), PlatformText("%\nO5\nM30\n%\n"));
  EXPECT_TRUE(dir.Exists("out/O0005_2.nc"));
  EXPECT_EQ(dir.ReadFile("out/unnumbered_1.nc"), PlatformText("%\nG0 X0\nM30\n%\n"));
}

TEST_F(NckitSplit, OutputThatIsAFileIsAUsageError) {
  TempDir dir;
  const std::string file = dir.WriteFile("plain", "x");
  EXPECT_EQ(Run({"split", FanucSample(), "-o", file}).exitCode, 2);
}

TEST_F(NckitSplit, MissingOutputOptionIsAUsageError) {
  const ChildResult r = Run({"split", FanucSample()});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit split: needs -o DIR (try 'nckit split --help')\n");
}

TEST_F(NckitSplit, MissingInputIsAUsageError) {
  TempDir dir;
  EXPECT_EQ(Run({"split", dir.Path("none.nc"), "-o", dir.Path("out")}).exitCode, 2);
  EXPECT_FALSE(dir.Exists("out"));
}

TEST_F(NckitSplit, LoadErrorWritesNothing) {
  TempDir dir;
  const std::string input = dir.WriteFile("x.nc", "no end here\n");
  const ChildResult r = Run({"split", input, "-o", dir.Path("out")});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_NE(r.err.find("no NC structure"), std::string::npos);
  EXPECT_FALSE(dir.Exists("out"));
}

TEST_F(NckitSplit, HelpExitsZero) {
  const ChildResult r = Run({"split", "--help"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.rfind("usage: nckit split FILE -o DIR", 0), 0u);
}

TEST_F(NckitSplit, TargetThatIsADirectoryStopsTheSplitBeforeAnyWrite) {
  TempDir dir;
  dir.WriteFile("parts/O2000.nc/keep.txt", "mine");
  const ChildResult r = Run({"split", FanucSample(), "-o", dir.Path("parts"), "--force"});
  EXPECT_EQ(r.exitCode, 1);
  const std::string target = (std::filesystem::path(dir.Path("parts")) / "O2000.nc").string();
  EXPECT_EQ(r.err, "nckit split: " + target + " is a directory; remove it or choose another directory\n");
  EXPECT_EQ(r.out, "");
  EXPECT_FALSE(dir.Exists("parts/O1000.nc"));
}

TEST_F(NckitSplit, ListsTheProgramThatCallsTheFirstBlockFirst) {
  TempDir dir;
  const ChildResult r = Run({"split", FanucSample(), "-o", dir.Path("parts")});
  EXPECT_EQ(r.exitCode, 0);
  const std::string first = (std::filesystem::path(dir.Path("parts")) / "O0001.nc").string();
  EXPECT_EQ(r.out.rfind(first + "\n", 0), 0u) << r.out;
}

struct EmptyProgramRow {
  const char* name;
  const char* text;
  std::vector<std::string> options;
};

class NckitSplitEmptyProgram : public NckitParamTest<EmptyProgramRow> {};

TEST_P(NckitSplitEmptyProgram, GetsNoFileAndAWarning) {
  TempDir dir;
  const std::string input = dir.WriteFile("in.nc", GetParam().text);
  std::vector<std::string> args = {"split", input, "-o", dir.Path("out")};
  args.insert(args.end(), GetParam().options.begin(), GetParam().options.end());
  const ChildResult r = Run(args);
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.err, "nckit split: " + input +
                       ": warning: a program without number has no lines; no file "
                       "written for it\n");
  EXPECT_FALSE(dir.Exists("out/unnumbered_1.nc"));
  EXPECT_TRUE(dir.Exists("out/O0001.nc"));
}

INSTANTIATE_TEST_SUITE_P(
    Files, NckitSplitEmptyProgram,
    ::testing::Values(EmptyProgramRow{"KeptUnfinishedAfterTheLastEnd", "O1\nM30\n", {"--keep-unfinished"}},
                      EmptyProgramRow{"LeftPendingAfterASubProgramMetM30", "O1\nM99\nM30\nO2\nM30\n", {}}),
    NckitRowName());

TEST_F(NckitSplit, EmptyProgramTakesNoUnnumberedName) {
  TempDir dir;
  // Sub-programs: the empty one filed at O2, then G1 / M99.
  const std::string input = dir.WriteFile("in.nc", "O1\nM99\nM30\nO2\nM30\nG1\nM99\n");
  const ChildResult r = Run({"split", input, "-o", dir.Path("out")});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(dir.ReadFile("out/unnumbered_1.nc"), PlatformText("%\nG1\nM99\n%\n"));
  EXPECT_FALSE(dir.Exists("out/unnumbered_2.nc"));
}

TEST_F(NckitSplit, WarnsAboutLinesTooLongToReadBack) {
  TempDir dir;
  const std::string longLine = "(" + std::string(KCC_NcFile::kMaxLineLength, 'C') + ")";
  const std::string input = dir.WriteFile("in.nc", "O1\nM30\nO2\n" + longLine + "\n" + longLine + "\nM30\n");
  const ChildResult r = Run({"split", input, "-o", dir.Path("out"), "--no-line-limit"});
  EXPECT_EQ(r.exitCode, 0);
  const std::string target = (std::filesystem::path(dir.Path("out")) / "O0002.nc").string();
  EXPECT_EQ(r.err, "nckit split: " + target + ": warning: line 3 has " + std::to_string(longLine.size()) +
                       " characters, more than the reader's " + std::to_string(KCC_NcFile::kMaxLineLength) +
                       " (1 more such line); read the file back with --no-line-limit\n");
  EXPECT_EQ(dir.ReadFile("out/O0002.nc"),
            PlatformText("%\nO2\n" + longLine + "\n" + longLine + "\nM30\n%\n"));
}

TEST_F(NckitSplit, LinesOfTheReadersLengthGiveNoWarning) {
  TempDir dir;
  const std::string input =
      dir.WriteFile("in.nc", "O1\n" + std::string(KCC_NcFile::kMaxLineLength, 'X') + "\nM30\n");
  const ChildResult r = Run({"split", input, "-o", dir.Path("out")});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.err, "");
}
