// SPDX-License-Identifier: MIT
// nckit check, run as a program.
#include <gtest/gtest.h>

#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#include <share.h>
#endif

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "ncappkit/nc/KCC_NcFile.h"
#include "support/NckitFixture.h"
#include "support/TempDir.h"

namespace {

class NckitCheck : public NckitTest {};

}  // namespace

TEST_F(NckitCheck, CleanFilePasses) {
  const ChildResult r = Run({"check", FanucSample()});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, FanucSample() + ": ok, 3 main and 3 sub-programs\n");
  EXPECT_EQ(r.err, "");
}

TEST_F(NckitCheck, NoFirstBlockCountsTheCallingProgramAsASubProgram) {
  const ChildResult r = Run({"check", FanucSample(), "--no-first-block"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, FanucSample() + ": ok, 2 main and 4 sub-programs\n");
}

TEST_F(NckitCheck, EachDuplicateNumberIsOneLine) {
  TempDir dir;
  const std::string path = dir.WriteFile("dup.nc", "O5\nM30\nO5\nM99\nO7\nM99\nO0007\nM99\nO8\nM30\n");
  const ChildResult r = Run({"check", path});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "nckit check: " + path + ": program number 0005 occurs 2 times\n" +
                       "nckit check: " + path + ": program number 0007 occurs 2 times\n");
}

TEST_F(NckitCheck, ProgramsWithoutNumberAreNotDuplicates) {
  TempDir dir;
  const std::string path = dir.WriteFile("s.mpf", "G0 X0\nRET\nG1 X1\nRET\n");
  EXPECT_EQ(Run({"check", path}).exitCode, 0);
}

TEST_F(NckitCheck, TooLongLineIsNamed) {
  TempDir dir;
  const std::string path =
      dir.WriteFile("long.nc", "O1\n" + std::string(KCC_NcFile::kMaxLineLength + 1, 'X') + "\nM30\n");
  const ChildResult r = Run({"check", path});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_NE(r.err.find(": too many lines: line 2 is longer than the reader's "), std::string::npos) << r.err;
  EXPECT_NE(r.err.find("--no-line-limit"), std::string::npos);
}

TEST_F(NckitCheck, LineOfTheReadersLengthPasses) {
  TempDir dir;
  const std::string path =
      dir.WriteFile("ok.nc", "O1\n" + std::string(KCC_NcFile::kMaxLineLength, 'X') + "\nM30\n");
  EXPECT_EQ(Run({"check", path}).exitCode, 0);
}

TEST_F(NckitCheck, NoLineLimitPassesTheLongLine) {
  TempDir dir;
  const std::string path = dir.WriteFile("long.nc", "O1\n" + std::string(10000, 'X') + "\nM30\n");
  EXPECT_EQ(Run({"check", path, "--no-line-limit"}).exitCode, 0);
}

TEST_F(NckitCheck, AMillionLinesAreTooMany) {
  TempDir dir;
  std::string text;
  for (int i = 0; i < KCC_NcFile::kMaxLines + 2; ++i)
    text += "G1\n";
  const std::string path = dir.WriteFile("million.nc", text);
  const ChildResult r = Run({"check", path});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "nckit check: " + path + ": too many lines: more than " +
                       std::to_string(KCC_NcFile::kMaxLines) + " lines\n");
}

TEST_F(NckitCheck, EmptyFileHasNoNcStructure) {
  TempDir dir;
  const std::string path = dir.WriteFile("empty.nc", "");
  const ChildResult r = Run({"check", path});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_NE(r.err.find("no NC structure"), std::string::npos);
  EXPECT_EQ(Run({"check", path, "--keep-unfinished"}).exitCode, 0);
}

TEST_F(NckitCheck, NulBytesDoNotCrash) {
  TempDir dir;
  const std::string path = dir.WriteFile("nul-bytes.nc", std::string("O1\0\0\0\nM30\n", 10));
  const ChildResult r = Run({"check", path});
  EXPECT_EQ(r.exitCode, 0);
}

TEST_F(NckitCheck, MissingFileIsAUsageError) {
  const ChildResult r = Run({"check", "/no/such/file.nc"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit check: /no/such/file.nc: no such file\n");
}

TEST_F(NckitCheck, UnknownOptionIsAUsageError) {
  EXPECT_EQ(Run({"check", FanucSample(), "-x"}).exitCode, 2);
}

TEST_F(NckitCheck, HelpExitsZero) {
  const ChildResult r = Run({"check", "--help"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.rfind("usage: nckit check FILE", 0), 0u);
}

#ifndef _WIN32
TEST_F(NckitCheck, DeviceThatNeverEndsIsRefusedNotRead) {
  const ChildResult r = Run({"check", "/dev/zero"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit check: /dev/zero: not a regular file (a device, pipe or socket)\n");
}

TEST_F(NckitCheck, EmptyDeviceIsNotReportedAsAMissingFile) {
  const ChildResult r = Run({"check", "/dev/null"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit check: /dev/null: not a regular file (a device, pipe or socket)\n");
}
#endif

TEST_F(NckitCheck, LongLineAfterTheLineBudgetIsNotBlamed) {
  TempDir dir;
  std::string text = "O0001\n";
  for (int i = 1; i < KCC_NcFile::kMaxLines; ++i)
    text += "X1\n";
  text += "M30 (" + std::string(200, 'A') + ")\n";
  const std::string path = dir.WriteFile("budget.nc", text);
  const ChildResult r = Run({"check", path});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "nckit check: " + path + ": too many lines: more than " +
                       std::to_string(KCC_NcFile::kMaxLines) + " lines\n");
}

TEST_F(NckitCheck, WarnsThatLinesEndedByACarriageReturnAloneAreOneLine) {
  TempDir dir;
  const std::string path = dir.WriteFile("mac.nc", "%\rO0001\rG00 X0\rM30\r%\r");
  const ChildResult r = Run({"check", path});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.err,
            "nckit check: " + path +
                ": warning: line 1 has a carriage return inside it; lines ended by a carriage return alone "
                "are read as one line\n");
}

TEST_F(NckitCheck, CarriageReturnsBeforeOrAfterTheLineFeedGiveNoWarning) {
  TempDir dir;
  const std::string crlf = dir.WriteFile("crlf.nc", "%\r\nO0001\r\nG00 X0\r\nM30\r\n%\r\n");
  const std::string punched = dir.WriteFile("punched.nc", "%\n\r\rO0001\n\r\rG00 X0\n\r\rM30\n\r\r%\n");
  const ChildResult r1 = Run({"check", crlf});
  const ChildResult r2 = Run({"check", punched});
  EXPECT_EQ(r1.exitCode, 0);
  EXPECT_EQ(r1.err, "");
  EXPECT_EQ(r2.exitCode, 0);
  EXPECT_EQ(r2.err, "");
}

TEST_F(NckitCheck, UnreadableFileIsALoadErrorWithItsName) {
  TempDir dir;
  const std::string path = dir.WriteFile("locked.nc", "O1\nM30\n");
#if defined(_WIN32)
  // Windows: a handle that shares neither reading nor writing keeps every other open of the file out.
  const int lock = ::_sopen(path.c_str(), _O_RDONLY | _O_BINARY, _SH_DENYRW);
  ASSERT_NE(lock, -1);
  const ChildResult r = Run({"check", path});
  const ChildResult unlimited = Run({"check", path, "--no-line-limit"});
  ::_close(lock);
#else
  std::filesystem::permissions(path, std::filesystem::perms::none);
  if (std::ifstream(path).is_open()) {
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    GTEST_SKIP() << "file permissions do not stop this user from reading";
  }
  const ChildResult r = Run({"check", path});
  const ChildResult unlimited = Run({"check", path, "--no-line-limit"});
  std::filesystem::permissions(path, std::filesystem::perms::owner_all);
#endif
  const std::string expected =
      "nckit check: " + path + ": file cannot be opened: permission denied or not readable\n";
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, expected);
  EXPECT_EQ(unlimited.exitCode, 1);
  EXPECT_EQ(unlimited.err, expected);
}
