// SPDX-License-Identifier: MIT
// nckit without a subcommand, or with the general options, run as a program.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/NckitFixture.h"

namespace {

class NckitMain : public NckitTest {};

}  // namespace

TEST_F(NckitMain, HelpStartsWithTheUsage) {
  const ChildResult r = Run({"--help"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.rfind("usage: nckit <command> [arguments]\n", 0), 0u);
}

TEST_F(NckitMain, VersionOptionPrintsTheVersion) {
  const ChildResult r = Run({"--version"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.rfind("nckit ", 0), 0u) << r.out;
  EXPECT_EQ(r.err, "");
}

TEST_F(NckitMain, UnknownOptionIsNamed) {
  const ChildResult r = Run({"--bogus", "info"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit: unknown option '--bogus' (try 'nckit --help')\n");
}

TEST_F(NckitMain, OptionsAfterTheCommandBelongToTheCommand) {
  const ChildResult r = Run({"calc", "--version"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit calc: unknown option '--version' (try 'nckit calc --help')\n");
}

// Every subcommand, for the behaviours all of them share through the one command-line parser.
class NckitEveryCommand : public NckitParamTest<const char*> {};

TEST_P(NckitEveryCommand, IsListedInTheHelp) {
  const ChildResult r = Run({"--help"});
  EXPECT_NE(r.out.find(std::string("\n  ") + GetParam() + " "), std::string::npos) << r.out;
}

TEST_P(NckitEveryCommand, ShortHelpOptionShowsTheUsageAndTheOptions) {
  const ChildResult r = Run({GetParam(), "-h"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.err, "");
  EXPECT_EQ(r.out.rfind(std::string("usage: nckit ") + GetParam() + " ", 0), 0u) << r.out;
  EXPECT_NE(r.out.find("\noptions:\n  -h, --help         show this help\n"), std::string::npos) << r.out;
}

TEST_P(NckitEveryCommand, UnknownOptionIsNamedWithTheHelpHint) {
  const ChildResult r = Run({GetParam(), "--bogus"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, std::string("nckit ") + GetParam() + ": unknown option '--bogus' (try 'nckit " +
                       GetParam() + " --help')\n");
}

INSTANTIATE_TEST_SUITE_P(Commands, NckitEveryCommand,
                         ::testing::Values("block", "calc", "check", "extract", "info", "remove", "split",
                                           "units"),
                         [](const ::testing::TestParamInfo<const char*>& row) {
                           return std::string(row.param);
                         });

TEST_F(NckitMain, NoCommandIsAUsageError) {
  const ChildResult r = Run({});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err.rfind("usage: nckit <command> [arguments]\n", 0), 0u);
}

TEST_F(NckitMain, UnknownCommandIsAUsageError) {
  const ChildResult r = Run({"merge", "a.nc"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit: unknown command 'merge' (try 'nckit --help')\n");
}

TEST_F(NckitMain, HelpWithACommandShowsThatCommandsHelp) {
  const ChildResult r = Run({"help", "split"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.rfind("usage: nckit split FILE -o DIR", 0), 0u) << r.out;
}

TEST_F(NckitMain, HelpWithAnUnknownCommandIsAUsageError) {
  const ChildResult r = Run({"help", "merge"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit: unknown command 'merge' (try 'nckit --help')\n");
}
