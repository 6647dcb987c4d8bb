// SPDX-License-Identifier: MIT
// ChildProcess: run a program with arguments (no shell), capture its standard output and error and its exit
// code, and stop it when it runs too long, so that tests of command-line tools can never hang.
//
//   ChildResult r = RunChild({NCKIT_EXE, "calc", "2+3"});
//   EXPECT_EQ(r.exitCode, 0);
//   EXPECT_EQ(r.out, "5\n");
#pragma once

#include <string>
#include <vector>

struct ChildResult {
  /// Exit code of the program; -1 when it did not exit normally (killed, crashed, not started).
  int exitCode = -1;
  /// True when the program was stopped because it exceeded the time limit.
  bool timedOut = false;
  /// Everything it wrote to standard output.
  std::string out;
  /// Everything it wrote to standard error.
  std::string err;
};

/// Run argv[0] with the arguments argv[1..] and wait at most `timeoutSeconds` for it to end.
/// On Windows the "\r\n" line ends of the program's text output come back as "\n". On other systems without
/// POSIX processes the result has exitCode -1 and err says that running programs is not supported.
ChildResult RunChild(const std::vector<std::string>& argv, double timeoutSeconds = 30.0);

/// True when RunChild can run programs on this system.
bool CanRunChildren();

/// The full path of the program `name` found in the folders of the PATH environment variable (on Windows
/// also with ".exe" appended), or "" when none of them holds it. RunChild needs a full path.
std::string FindProgramOnPath(const std::string& name);
