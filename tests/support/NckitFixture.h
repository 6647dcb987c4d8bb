// SPDX-License-Identifier: MIT
// NckitTest: the base fixture of the nckit tests, which run the built nckit as a program.
//
//   class NckitInfo : public NckitTest {};
//   TEST_F(NckitInfo, ListsThePrograms) {
//     const ChildResult r = Run({"info", FanucSample()});
//     EXPECT_EQ(r.exitCode, 0);
//   }
//
// Header only: the path of nckit (NCKIT_EXE) is known to the test programs, not to the support library.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/ChildProcess.h"

class NckitTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!CanRunChildren())
      GTEST_SKIP() << "cannot run programs here";
  }

  /// Run nckit with `args` (the subcommand first) and wait at most `timeoutSeconds` for it.
  static ChildResult Run(const std::vector<std::string>& args, double timeoutSeconds = 60.0) {
    std::vector<std::string> argv = {NCKIT_EXE};
    argv.insert(argv.end(), args.begin(), args.end());
    return RunChild(argv, timeoutSeconds);
  }

  /// The bundled Fanuc sample: with the first block looked for (nckit's default) three main programs, the
  /// first of them O0001 (JOB), which calls M98 P8010 and ends with M99, and three sub-programs; without
  /// it two main programs and four sub-programs.
  static std::string FanucSample() { return std::string(NCAPPKIT_SOURCE_DIR) + "/samples/fanuc_programs.nc"; }
  /// The bundled Siemens sample.
  static std::string SiemensSample() {
    return std::string(NCAPPKIT_SOURCE_DIR) + "/samples/siemens_program.mpf";
  }
};

/// NckitTest for TEST_P: a test body run once per row of `Row`.
template <typename Row>
class NckitParamTest : public NckitTest, public ::testing::WithParamInterface<Row> {};

/// Test names from the rows' `name` member: INSTANTIATE_TEST_SUITE_P(Rows, Suite, Values(...),
/// NckitRowName());
struct NckitRowName {
  template <typename Row>
  std::string operator()(const ::testing::TestParamInfo<Row>& row) const {
    return row.param.name;
  }
};
