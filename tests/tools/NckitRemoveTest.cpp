// SPDX-License-Identifier: MIT
// nckit remove, run as a program.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ncappkit/nc/KCC_NcFile.h"
#include "support/NckitFixture.h"
#include "support/PlatformText.h"
#include "support/TempDir.h"

namespace {

class NckitRemove : public NckitTest {};

const char* const kThree = "%\nO1\nM30\nO8000\nM99\nO2\nM30\n%\n";

}  // namespace

TEST_F(NckitRemove, WritesAllButTheChosenPrograms) {
  TempDir dir;
  const std::string input = dir.WriteFile("in.nc", kThree);
  const ChildResult r = Run({"remove", input, "8000", "-o", dir.Path("out.nc")});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "removed 1 program, wrote " + dir.Path("out.nc") + "\n");
  EXPECT_EQ(dir.ReadFile("out.nc"), PlatformText("%\nO1\nM30\nO2\nM30\n%\n"));
  EXPECT_EQ(dir.ReadFile("in.nc"), kThree);
}

TEST_F(NckitRemove, RemovesEveryProgramWithTheNumber) {
  TempDir dir;
  const std::string input = dir.WriteFile("in.nc", "O1\nM30\nO1\nM99\nO2\nM30\n");
  EXPECT_EQ(Run({"remove", input, "O1", "-o", dir.Path("out.nc")}).exitCode, 0);
  EXPECT_EQ(dir.ReadFile("out.nc"), PlatformText("%\nO2\nM30\n%\n"));
}

TEST_F(NckitRemove, InputIsReplacedOnlyWhenNamedAsOutput) {
  TempDir dir;
  const std::string input = dir.WriteFile("in.nc", kThree);
  EXPECT_EQ(Run({"remove", input, "1", "-o", input}).exitCode, 0);
  EXPECT_EQ(dir.ReadFile("in.nc"), PlatformText("%\nO2\nM30\nO8000\nM99\n%\n"));
}

TEST_F(NckitRemove, OutputIsRequired) {
  TempDir dir;
  const std::string input = dir.WriteFile("in.nc", kThree);
  const ChildResult r = Run({"remove", input, "1"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit remove: needs -o OUT (try 'nckit remove --help')\n");
  EXPECT_EQ(dir.ReadFile("in.nc"), kThree);
}

TEST_F(NckitRemove, UnknownNumberIsAProblemAndNothingIsWritten) {
  TempDir dir;
  const std::string input = dir.WriteFile("in.nc", kThree);
  const ChildResult r = Run({"remove", input, "9", "-o", dir.Path("out.nc")});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "nckit remove: " + input + ": no program 0009\n");
  EXPECT_FALSE(dir.Exists("out.nc"));
}

TEST_F(NckitRemove, UnwritableOutputIsAProblem) {
  TempDir dir;
  const std::string input = dir.WriteFile("in.nc", kThree);
  const ChildResult r = Run({"remove", input, "1", "-o", dir.Path("no/such/dir/out.nc")});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_NE(r.err.find("cannot write"), std::string::npos);
}

TEST_F(NckitRemove, UnknownOptionIsAUsageError) {
  EXPECT_EQ(Run({"remove", "in.nc", "1", "--dry-run"}).exitCode, 2);
}

TEST_F(NckitRemove, HelpExitsZero) {
  const ChildResult r = Run({"remove", "--help"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.rfind("usage: nckit remove FILE NUMBER... -o OUT", 0), 0u);
}

TEST_F(NckitRemove, DirectoryAsOutputIsAUsageError) {
  TempDir dir;
  const std::string input = dir.WriteFile("in.nc", "O1\nM30\nO2\nM30\n");
  const ChildResult r = Run({"remove", input, "1", "-o", dir.Path()});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit remove: " + dir.Path() + ": is a directory; -o names the file to write\n");
}

struct OrderRow {
  const char* name;
  std::vector<std::string> options;
  const char* written;
};

class NckitRemoveOrder : public NckitParamTest<OrderRow> {};

TEST_P(NckitRemoveOrder, WritesTheFirstBlocksProgramAsAMainProgram) {
  TempDir dir;
  // O1 calls the first block and ends with M99, after the sub-program O9.
  const std::string input = dir.WriteFile("in.nc", "O9\nM99\nO1\nM98 P8010\nM99\nO8010\nM99\n");
  std::vector<std::string> args = {"remove", input, "8010", "-o", dir.Path("out.nc")};
  args.insert(args.end(), GetParam().options.begin(), GetParam().options.end());
  const ChildResult r = Run(args);
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(dir.ReadFile("out.nc"), PlatformText(GetParam().written));
}

INSTANTIATE_TEST_SUITE_P(Options, NckitRemoveOrder,
                         ::testing::Values(OrderRow{"ByDefault", {}, "%\nO1\nM98 P8010\nM99\nO9\nM99\n%\n"},
                                           OrderRow{"NotWithNoFirstBlock",
                                                    {"--no-first-block"},
                                                    "%\nO9\nM99\nO1\nM98 P8010\nM99\n%\n"}),
                         NckitRowName());

TEST_F(NckitRemove, WarnsAboutLinesTooLongToReadBack) {
  TempDir dir;
  const std::string longLine = std::string(KCC_NcFile::kMaxLineLength + 1, 'X');
  const std::string input = dir.WriteFile("in.nc", "O1\n" + longLine + "\nM30\nO2\nM30\n");
  const ChildResult r = Run({"remove", input, "2", "-o", dir.Path("out.nc"), "--no-line-limit"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.err, "nckit remove: " + dir.Path("out.nc") + ": warning: line 3 has " +
                       std::to_string(longLine.size()) + " characters, more than the reader's " +
                       std::to_string(KCC_NcFile::kMaxLineLength) +
                       "; read the file back with --no-line-limit\n");
}
