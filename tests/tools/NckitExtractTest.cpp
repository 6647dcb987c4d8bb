// SPDX-License-Identifier: MIT
// nckit extract, run as a program.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ncappkit/nc/KCC_NcFile.h"
#include "support/NckitFixture.h"
#include "support/PlatformText.h"
#include "support/TempDir.h"

namespace {

class NckitExtract : public NckitTest {};

// O1 calls the first block and ends with M99, after the sub-program O9.
const char* const kFirstBlockAfterASubProgram = "O9\nM99\nO1\nM98 P8010\nM99\nO8010\nM99\n";

const char* const kSetupAndPocket =
    "%\nO8010 (SETUP)\nN10 G21 G90 G17 G54\nN20 G28 G91 Z0\nN30 M99\n"
    "O8020 (POCKET)\nN10 G91 G01 Z-2. F150\nN20 G90 X40. Y0\nN30 X40. Y20.\nN40 X0 Y20.\nN50 X0 Y0\nN60 "
    "M99\n%\n";

}  // namespace

TEST_F(NckitExtract, WritesTheChosenProgramsToStandardOutput) {
  const ChildResult r = Run({"extract", FanucSample(), "8020", "O8010"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.err, "");
  EXPECT_EQ(r.out, kSetupAndPocket);
}

TEST_F(NckitExtract, WritesTheSameTextToAFile) {
  TempDir dir;
  const ChildResult r = Run({"extract", FanucSample(), "8010", "8020", "-o", dir.Path("subs.nc")});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(dir.ReadFile("subs.nc"), PlatformText(kSetupAndPocket));
}

TEST_F(NckitExtract, MainProgramsComeFirst) {
  const ChildResult r = Run({"extract", FanucSample(), "8030", "2000"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.rfind("%\nO2000 (FLANGE)\n", 0), 0u);
  EXPECT_NE(r.out.find("N60 M30\nO8030 (DRILL CYCLE)\n"), std::string::npos);
}

TEST_F(NckitExtract, UnknownNumberIsAProblemAndNothingIsWritten) {
  TempDir dir;
  const ChildResult r = Run({"extract", FanucSample(), "8010", "4242", "-o", dir.Path("x.nc")});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "nckit extract: " + FanucSample() + ": no program 4242\n");
  EXPECT_FALSE(dir.Exists("x.nc"));
}

TEST_F(NckitExtract, BadNumberIsAUsageError) {
  const ChildResult r = Run({"extract", FanucSample(), "P12"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit extract: 'P12' is no program number (try 'nckit extract --help')\n");
}

TEST_F(NckitExtract, MissingNumberIsAUsageError) {
  EXPECT_EQ(Run({"extract", FanucSample()}).exitCode, 2);
}

TEST_F(NckitExtract, MissingFileIsAUsageError) {
  EXPECT_EQ(Run({"extract", "/no/such.nc", "1"}).exitCode, 2);
}

TEST_F(NckitExtract, HelpExitsZero) {
  const ChildResult r = Run({"extract", "-h"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.rfind("usage: nckit extract FILE NUMBER...", 0), 0u);
}

TEST_F(NckitExtract, EmptyOutputNameIsAUsageError) {
  const ChildResult r = Run({"extract", FanucSample(), "1000", "-o", ""});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, "nckit extract: -o needs a file name (try 'nckit extract --help')\n");
}

TEST_F(NckitExtract, DirectoryAsOutputIsAUsageError) {
  TempDir dir;
  const ChildResult r = Run({"extract", FanucSample(), "1000", "-o", dir.Path()});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit extract: " + dir.Path() + ": is a directory; -o names the file to write\n");
}

TEST_F(NckitExtract, OutputOptionTakesTheEqualsForm) {
  TempDir dir;
  const ChildResult r = Run({"extract", FanucSample(), "8010", "8020", "--output=" + dir.Path("subs.nc")});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(dir.ReadFile("subs.nc"), PlatformText(kSetupAndPocket));
}

TEST_F(NckitExtract, ShortOutputOptionTakesTheEqualsForm) {
  TempDir dir;
  const ChildResult r = Run({"extract", FanucSample(), "8010", "8020", "-o=" + dir.Path("subs.nc")});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(dir.ReadFile("subs.nc"), PlatformText(kSetupAndPocket));
}

TEST_F(NckitExtract, OutputOptionWithoutItsValueIsNamed) {
  const ChildResult r = Run({"extract", FanucSample(), "1000", "-o"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit extract: option '-o' needs a value (try 'nckit extract --help')\n");
}

TEST_F(NckitExtract, OptionsMayComeBeforeTheFile) {
  const ChildResult r = Run({"extract", "--first-block", FanucSample(), "8010", "8020"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, kSetupAndPocket);
}

struct OrderRow {
  const char* name;
  std::vector<std::string> options;
  const char* out;
};

class NckitExtractOrder : public NckitParamTest<OrderRow> {};

TEST_P(NckitExtractOrder, WritesTheFirstBlocksProgramAsAMainProgram) {
  TempDir dir;
  const std::string input = dir.WriteFile("in.nc", kFirstBlockAfterASubProgram);
  std::vector<std::string> args = {"extract", input, "9", "1"};
  args.insert(args.end(), GetParam().options.begin(), GetParam().options.end());
  const ChildResult r = Run(args);
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, GetParam().out);
}

INSTANTIATE_TEST_SUITE_P(Options, NckitExtractOrder,
                         ::testing::Values(OrderRow{"ByDefault", {}, "%\nO1\nM98 P8010\nM99\nO9\nM99\n%\n"},
                                           OrderRow{"NotWithNoFirstBlock",
                                                    {"--no-first-block"},
                                                    "%\nO9\nM99\nO1\nM98 P8010\nM99\n%\n"}),
                         NckitRowName());

struct LongLineRow {
  const char* name;
  bool toFile;
};

class NckitExtractLongLine : public NckitParamTest<LongLineRow> {};

TEST_P(NckitExtractLongLine, WarnsThatTheTextReadsBackOnlyWithoutTheLineLimit) {
  TempDir dir;
  const std::string longLine = std::string(KCC_NcFile::kMaxLineLength + 1, 'X');
  const std::string input = dir.WriteFile("in.nc", "O1\n" + longLine + "\nM30\n");
  const std::string target = GetParam().toFile ? dir.Path("out.nc") : "standard output";
  std::vector<std::string> args = {"extract", input, "1", "--no-line-limit"};
  if (GetParam().toFile) {
    args.push_back("-o");
    args.push_back(target);
  }
  const ChildResult r = Run(args);
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.err, "nckit extract: " + target + ": warning: line 3 has " + std::to_string(longLine.size()) +
                       " characters, more than the reader's " + std::to_string(KCC_NcFile::kMaxLineLength) +
                       "; read the file back with --no-line-limit\n");
}

INSTANTIATE_TEST_SUITE_P(Targets, NckitExtractLongLine,
                         ::testing::Values(LongLineRow{"ToStandardOutput", false},
                                           LongLineRow{"ToAFile", true}),
                         NckitRowName());

TEST_F(NckitExtract, LinesOfTheReadersLengthGiveNoWarning) {
  TempDir dir;
  const std::string input =
      dir.WriteFile("in.nc", "O1\n" + std::string(KCC_NcFile::kMaxLineLength, 'X') + "\nM30\n");
  const ChildResult r = Run({"extract", input, "1", "-o", dir.Path("out.nc")});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.err, "");
}

TEST_F(NckitExtract, HelpSaysTheFirstBlockIsLookedFor) {
  const ChildResult r = Run({"extract", "--help"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_NE(r.out.find("looks for the first block by default"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("--no-first-block"), std::string::npos);
}
