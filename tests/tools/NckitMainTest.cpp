// SPDX-License-Identifier: MIT
// nckit without a subcommand, or with the general options, run as a program.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/ChildProcess.h"

namespace {

class NckitMain : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!CanRunChildren())
      GTEST_SKIP() << "cannot run programs here";
  }
};

}  // namespace

TEST_F(NckitMain, HelpListsEveryCommand) {
  const ChildResult r = RunChild({NCKIT_EXE, "--help"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.rfind("usage: nckit <command> [arguments]\n", 0), 0u);
  for (const char* command : {"block", "calc", "check", "extract", "info", "remove", "split", "units"})
    EXPECT_NE(r.out.find(std::string("\n  ") + command + " "), std::string::npos) << command;
}

TEST_F(NckitMain, NoCommandIsAUsageError) {
  const ChildResult r = RunChild({NCKIT_EXE});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err.rfind("usage: nckit <command> [arguments]\n", 0), 0u);
}

TEST_F(NckitMain, UnknownCommandIsAUsageError) {
  const ChildResult r = RunChild({NCKIT_EXE, "merge", "a.nc"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit: unknown command 'merge' (try 'nckit --help')\n");
}

TEST_F(NckitMain, HelpWithACommandShowsThatCommandsHelp) {
  const ChildResult r = RunChild({NCKIT_EXE, "help", "split"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.rfind("usage: nckit split FILE -o DIR", 0), 0u) << r.out;
}

TEST_F(NckitMain, HelpWithAnUnknownCommandIsAUsageError) {
  const ChildResult r = RunChild({NCKIT_EXE, "help", "merge"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit: unknown command 'merge' (try 'nckit --help')\n");
}
