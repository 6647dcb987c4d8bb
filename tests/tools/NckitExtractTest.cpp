// SPDX-License-Identifier: MIT
// nckit extract, run as a program.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/NckitFixture.h"
#include "support/PlatformText.h"
#include "support/TempDir.h"

namespace {

class NckitExtract : public NckitTest {};

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
