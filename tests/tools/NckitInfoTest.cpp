// SPDX-License-Identifier: MIT
// nckit info, run as a program.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/ChildProcess.h"
#include "support/TempDir.h"

namespace {

const std::string kFanucSample = std::string(NCAPPKIT_SOURCE_DIR) + "/samples/fanuc_programs.nc";
const std::string kSiemensSample = std::string(NCAPPKIT_SOURCE_DIR) + "/samples/siemens_program.mpf";

ChildResult Info(const std::vector<std::string>& args) {
  std::vector<std::string> argv = {NCKIT_EXE, "info"};
  argv.insert(argv.end(), args.begin(), args.end());
  return RunChild(argv);
}

class NckitInfo : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!CanRunChildren())
      GTEST_SKIP() << "cannot run programs here";
  }
};

}  // namespace

TEST_F(NckitInfo, ListsTheProgramsOfTheFanucSample) {
  const ChildResult r = Info({kFanucSample});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.err, "");
  EXPECT_NE(r.out.find("structure:  Fanuc\n"), std::string::npos);
  EXPECT_NE(r.out.find("load:       no error\n"), std::string::npos);
  EXPECT_NE(r.out.find("programs:   2 main, 4 sub\n"), std::string::npos);
  EXPECT_NE(r.out.find("main  1000    PLATE 200X100  8        115\n"), std::string::npos);
  EXPECT_NE(r.out.find("sub   8030    DRILL CYCLE    8        130\n"), std::string::npos);
}

TEST_F(NckitInfo, FirstBlockMakesTheCallingProgramAMainProgram) {
  const ChildResult r = Info({kFanucSample, "--first-block"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_NE(r.out.find("programs:   3 main, 3 sub\n"), std::string::npos);
  EXPECT_NE(r.out.find("main  0001    JOB"), std::string::npos);
}

TEST_F(NckitInfo, RecognisesTheSiemensStructure) {
  const ChildResult r = Info({kSiemensSample, "--first-block"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_NE(r.out.find("structure:  Siemens\n"), std::string::npos);
  EXPECT_NE(r.out.find("programs:   1 main, 1 sub\n"), std::string::npos);
}

TEST_F(NckitInfo, JsonHoldsEveryProgram) {
  const ChildResult r = Info({kSiemensSample, "--first-block", "--json"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "{\"file\": \"" + kSiemensSample +
                       "\", \"structure\": \"Siemens\", \"error\": 0, \"result\": \"no error\", "
                       "\"duplicateNumbers\": false, \"programs\": ["
                       "{\"list\": \"main\", \"number\": -1, \"ref\": \"\", \"lines\": 8, \"size\": 116, "
                       "\"duplicate\": false}, "
                       "{\"list\": \"sub\", \"number\": -1, \"ref\": \"\", \"lines\": 7, \"size\": 89, "
                       "\"duplicate\": false}]}\n");
}

TEST_F(NckitInfo, KeepUnfinishedShowsTheRestAsSubProgram) {
  TempDir dir;
  const std::string path = dir.WriteFile("p.nc", "O1\nM30\nG0 X0\n");
  EXPECT_NE(Info({path}).out.find("programs:   1 main, 0 sub\n"), std::string::npos);
  EXPECT_NE(Info({path, "--keep-unfinished"}).out.find("programs:   1 main, 1 sub\n"), std::string::npos);
}

TEST_F(NckitInfo, FlagsDuplicateNumbers) {
  TempDir dir;
  const std::string path = dir.WriteFile("dup.nc", "O5\nM30\nO5\nM99\n");
  const ChildResult r = Info({path});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_NE(r.out.find("main  0005         2        5  duplicate number\n"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("duplicate program numbers: yes\n"), std::string::npos);
}

TEST_F(NckitInfo, TooLongLineIsNamedWithTheHint) {
  TempDir dir;
  const std::string path = dir.WriteFile("long.nc", "O1\nG0 X0\n(" + std::string(198, 'C') + ")\nM30\n");
  const ChildResult r = Info({path});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, "nckit info: " + path +
                       ": too many lines: line 3 has 200 characters, more than the reader's 127; use "
                       "--no-line-limit to read long lines\n");
}

TEST_F(NckitInfo, NoLineLimitLoadsLongLines) {
  TempDir dir;
  const std::string path = dir.WriteFile("long.nc", "O1\r\n(" + std::string(198, 'C') + ")\r\nM30\r\n");
  const ChildResult r = Info({path, "--no-line-limit"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_NE(r.out.find("main  0001         3        205\n"), std::string::npos) << r.out;
}

TEST_F(NckitInfo, FileWithoutProgramEndHasNoNcStructure) {
  TempDir dir;
  const std::string path = dir.WriteFile("x.txt", "hello\nworld\n");
  const ChildResult r = Info({path});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "nckit info: " + path + ": no NC structure: no program ends with M30, M99 or RET\n");
}

TEST_F(NckitInfo, MissingFileIsAUsageError) {
  TempDir dir;
  const ChildResult r = Info({dir.Path("none.nc")});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit info: " + dir.Path("none.nc") + ": no such file\n");
}

TEST_F(NckitInfo, DirectoryIsAUsageError) {
  TempDir dir;
  const ChildResult r = Info({dir.Path()});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit info: " + dir.Path() + ": is a directory, not an NC file\n");
}

TEST_F(NckitInfo, UnknownOptionIsAUsageError) {
  const ChildResult r = Info({kFanucSample, "--fast"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit info: unknown option '--fast' (try 'nckit info --help')\n");
}

TEST_F(NckitInfo, MissingFileArgumentIsAUsageError) {
  const ChildResult r = Info({});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit info: expects exactly one FILE (try 'nckit info --help')\n");
}

TEST_F(NckitInfo, HelpDescribesTheOptions) {
  const ChildResult r = Info({"--help"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.rfind("usage: nckit info FILE", 0), 0u);
  EXPECT_NE(r.out.find("--no-line-limit"), std::string::npos);
  EXPECT_NE(r.out.find("--json"), std::string::npos);
}

TEST_F(NckitInfo, BinaryGarbageGivesALoadErrorNotACrash) {
  TempDir dir;
  std::string bytes;
  for (int i = 0; i < 5000; ++i)
    bytes += static_cast<char>((i * 7919) & 0xFF);
  const std::string path = dir.WriteFile("garbage.bin", bytes);
  const ChildResult r = Info({path});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_NE(r.err.find("too many lines"), std::string::npos);
}

TEST_F(NckitInfo, JsonKeepsUtf8CharactersOfAReference) {
  TempDir dir;
  const std::string path = dir.WriteFile("utf8.nc", "O0001 (CAF\xC3\x89 \xF0\x9F\x98\x80)\nM30\n");
  const ChildResult r = Info({path, "--json"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_NE(r.out.find("\"ref\": \"CAF\\u00c9 \\ud83d\\ude00\""), std::string::npos) << r.out;
}

TEST_F(NckitInfo, JsonTakesBytesThatAreNoUtf8AsLatin1) {
  TempDir dir;
  const std::string path = dir.WriteFile("latin1.nc", "O0001 (CAF\xC9)\nM30\n");
  const ChildResult r = Info({path, "--json"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_NE(r.out.find("\"ref\": \"CAF\\u00c9\""), std::string::npos) << r.out;
}

TEST_F(NckitInfo, NoLineLimitEndsALineAtItsFirstNulLikeTheReader) {
  TempDir dir;
  // Not "nul.nc": that name is the null device on Windows.
  const std::string path = dir.WriteFile("zero-byte.nc", std::string("O0001\nG00 X0\0Y1\r\nM30\n", 21));
  const ChildResult limited = Info({path});
  const ChildResult unlimited = Info({path, "--no-line-limit"});
  EXPECT_EQ(limited.exitCode, 0);
  EXPECT_NE(limited.out.find("main  0001         3        14\n"), std::string::npos) << limited.out;
  EXPECT_EQ(unlimited.exitCode, 0);
  EXPECT_EQ(unlimited.out, limited.out);
}
