// SPDX-License-Identifier: MIT
// nckit info, run as a program.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ncappkit/nc/KCC_NcFile.h"
#include "support/NckitFixture.h"
#include "support/TempDir.h"

namespace {

class NckitInfo : public NckitTest {};

}  // namespace

TEST_F(NckitInfo, ListsTheProgramsOfTheFanucSample) {
  const ChildResult r = Run({"info", FanucSample()});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.err, "");
  EXPECT_NE(r.out.find("structure:  Fanuc\n"), std::string::npos);
  EXPECT_NE(r.out.find("load:       no error\n"), std::string::npos);
  EXPECT_NE(r.out.find("programs:   3 main, 3 sub\n"), std::string::npos);
  EXPECT_NE(r.out.find("main  0001    JOB            5        "), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("main  1000    PLATE 200X100  8        115\n"), std::string::npos);
  EXPECT_NE(r.out.find("sub   8030    DRILL CYCLE    8        130\n"), std::string::npos);
}

struct FirstBlockRow {
  const char* name;
  std::vector<std::string> options;
  const char* programs;  // the "programs:" line for the Fanuc sample
  const char* job;       // the start of the JOB program's row
};

class NckitInfoFirstBlock : public NckitParamTest<FirstBlockRow> {};

TEST_P(NckitInfoFirstBlock, DecidesWhetherTheCallingProgramIsAMainProgram) {
  std::vector<std::string> args = {"info", FanucSample()};
  args.insert(args.end(), GetParam().options.begin(), GetParam().options.end());
  const ChildResult r = Run(args);
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_NE(r.out.find(GetParam().programs), std::string::npos) << r.out;
  EXPECT_NE(r.out.find(GetParam().job), std::string::npos) << r.out;
}

INSTANTIATE_TEST_SUITE_P(Options, NckitInfoFirstBlock,
                         ::testing::Values(FirstBlockRow{"LookedForByDefault",
                                                         {},
                                                         "programs:   3 main, 3 sub\n",
                                                         "main  0001    JOB"},
                                           FirstBlockRow{"FirstBlockOptionIsTheDefault",
                                                         {"--first-block"},
                                                         "programs:   3 main, 3 sub\n",
                                                         "main  0001    JOB"},
                                           FirstBlockRow{"NoFirstBlockTurnsItOff",
                                                         {"--no-first-block"},
                                                         "programs:   2 main, 4 sub\n",
                                                         "sub   0001    JOB"},
                                           FirstBlockRow{"NoFirstBlockWinsWhenGivenFirst",
                                                         {"--no-first-block", "--first-block"},
                                                         "programs:   2 main, 4 sub\n",
                                                         "sub   0001    JOB"},
                                           FirstBlockRow{"NoFirstBlockWinsWhenGivenLast",
                                                         {"--first-block", "--no-first-block"},
                                                         "programs:   2 main, 4 sub\n",
                                                         "sub   0001    JOB"}),
                         NckitRowName());

TEST_F(NckitInfo, RecognisesTheSiemensStructure) {
  const ChildResult r = Run({"info", SiemensSample()});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_NE(r.out.find("structure:  Siemens\n"), std::string::npos);
  EXPECT_NE(r.out.find("programs:   1 main, 1 sub\n"), std::string::npos);
}

TEST_F(NckitInfo, JsonHoldsEveryProgram) {
  const ChildResult r = Run({"info", SiemensSample(), "--first-block", "--json"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "{\"file\": \"" + SiemensSample() +
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
  EXPECT_NE(Run({"info", path}).out.find("programs:   1 main, 0 sub\n"), std::string::npos);
  EXPECT_NE(Run({"info", path, "--keep-unfinished"}).out.find("programs:   1 main, 1 sub\n"),
            std::string::npos);
}

TEST_F(NckitInfo, FlagsDuplicateNumbers) {
  TempDir dir;
  const std::string path = dir.WriteFile("dup.nc", "O5\nM30\nO5\nM99\n");
  const ChildResult r = Run({"info", path});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_NE(r.out.find("main  0005         2        5  duplicate number\n"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("duplicate program numbers: yes\n"), std::string::npos);
}

TEST_F(NckitInfo, TooLongLineIsNamedWithTheHint) {
  TempDir dir;
  const std::string path = dir.WriteFile("long.nc", "O1\nG0 X0\n(" + std::string(198, 'C') + ")\nM30\n");
  const ChildResult r = Run({"info", path});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, "nckit info: " + path + ": too many lines: line 3 is longer than the reader's " +
                       std::to_string(KCC_NcFile::kMaxLineLength) +
                       " characters; use --no-line-limit to read long lines\n");
}

TEST_F(NckitInfo, NoLineLimitLoadsLongLines) {
  TempDir dir;
  const std::string path = dir.WriteFile("long.nc", "O1\r\n(" + std::string(198, 'C') + ")\r\nM30\r\n");
  const ChildResult r = Run({"info", path, "--no-line-limit"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_NE(r.out.find("main  0001         3        205\n"), std::string::npos) << r.out;
}

TEST_F(NckitInfo, FileWithoutProgramEndHasNoNcStructure) {
  TempDir dir;
  const std::string path = dir.WriteFile("x.txt", "hello\nworld\n");
  const ChildResult r = Run({"info", path});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err,
            "nckit info: " + path +
                ": no NC structure: no program ends with M30, M99 or RET; --keep-unfinished loads the text "
                "as a sub-program\n");
}

TEST_F(NckitInfo, FileWithoutProgramEndNamesTheEndWordsItHas) {
  TempDir dir;
  const std::string path = dir.WriteFile("ends.nc", "O1\nG0 X0\nM02\nO2 (M99)\nM17\nm30\nM02\nM300\n");
  const ChildResult r = Run({"info", path});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err,
            "nckit info: " + path +
                ": no NC structure: no program ends with M30, M99 or RET; the file has M02 (line 3), M17 "
                "(line 5) and m30 (line 6), which the loader does not take for a program end; "
                "--keep-unfinished loads the text as a sub-program\n");
}

TEST_F(NckitInfo, KeepUnfinishedLoadsAFileWithoutProgramEnd) {
  TempDir dir;
  const std::string path = dir.WriteFile("ends.nc", "O1\nG0 X0\nM02\n");
  const ChildResult r = Run({"info", path, "--keep-unfinished"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_NE(r.out.find("programs:   0 main, 1 sub\n"), std::string::npos) << r.out;
}

struct ReferenceRow {
  const char* name;
  const char* reference;
  const char* paddedReference;  // as the table shows it: padded to the width of "LONGER" and two blanks
};

class NckitInfoTable : public NckitParamTest<ReferenceRow> {};

TEST_P(NckitInfoTable, ReferenceColumnIsPaddedByDisplayedCharacters) {
  TempDir dir;
  const std::string path = dir.WriteFile(
      "refs.nc", std::string("O0001 (") + GetParam().reference + ")\nM30\nO0002 (LONGER)\nM30\n");
  const ChildResult r = Run({"info", path});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_NE(r.out.find(std::string("main  0001    ") + GetParam().paddedReference + "2        "),
            std::string::npos)
      << r.out;
  EXPECT_NE(r.out.find("main  0002    LONGER  2        "), std::string::npos) << r.out;
}

INSTANTIATE_TEST_SUITE_P(References, NckitInfoTable,
                         ::testing::Values(ReferenceRow{"Ascii", "CAFE", "CAFE    "},
                                           ReferenceRow{"TwoByteUtf8", "CAF\xC3\x89", "CAF\xC3\x89    "},
                                           ReferenceRow{"FourByteUtf8", "\xF0\x9F\x98\x80 OK",
                                                        "\xF0\x9F\x98\x80 OK    "},
                                           ReferenceRow{"Latin1ByteCountsAsOne", "CAF\xC9", "CAF\xC9    "}),
                         NckitRowName());

TEST_F(NckitInfo, MissingFileIsAUsageError) {
  TempDir dir;
  const ChildResult r = Run({"info", dir.Path("none.nc")});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit info: " + dir.Path("none.nc") + ": no such file\n");
}

TEST_F(NckitInfo, DirectoryIsAUsageError) {
  TempDir dir;
  const ChildResult r = Run({"info", dir.Path()});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit info: " + dir.Path() + ": is a directory, not an NC file\n");
}

TEST_F(NckitInfo, UnknownOptionIsAUsageError) {
  const ChildResult r = Run({"info", FanucSample(), "--fast"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit info: unknown option '--fast' (try 'nckit info --help')\n");
}

TEST_F(NckitInfo, MissingFileArgumentIsAUsageError) {
  const ChildResult r = Run({"info"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit info: expects exactly one FILE (try 'nckit info --help')\n");
}

TEST_F(NckitInfo, HelpDescribesTheOptions) {
  const ChildResult r = Run({"info", "--help"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.rfind("usage: nckit info FILE", 0), 0u);
  EXPECT_NE(r.out.find("--no-line-limit"), std::string::npos);
  EXPECT_NE(r.out.find("--json"), std::string::npos);
}

TEST_F(NckitInfo, HelpSaysTheFirstBlockOptionIsTheDefault) {
  const ChildResult r = Run({"info", "--help"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_NE(r.out.find("  --no-first-block   do not look for the first block"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("  --first-block      look for the first block: the default, so this does nothing"),
            std::string::npos)
      << r.out;
}

TEST_F(NckitInfo, BinaryGarbageGivesALoadErrorNotACrash) {
  TempDir dir;
  std::string bytes;
  for (int i = 0; i < 5000; ++i)
    bytes += static_cast<char>((i * 7919) & 0xFF);
  const std::string path = dir.WriteFile("garbage.bin", bytes);
  const ChildResult r = Run({"info", path});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_NE(r.err.find("too many lines"), std::string::npos);
}

TEST_F(NckitInfo, JsonKeepsUtf8CharactersOfAReference) {
  TempDir dir;
  const std::string path = dir.WriteFile("utf8.nc", "O0001 (CAF\xC3\x89 \xF0\x9F\x98\x80)\nM30\n");
  const ChildResult r = Run({"info", path, "--json"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_NE(r.out.find("\"ref\": \"CAF\\u00c9 \\ud83d\\ude00\""), std::string::npos) << r.out;
}

TEST_F(NckitInfo, JsonTakesBytesThatAreNoUtf8AsLatin1) {
  TempDir dir;
  const std::string path = dir.WriteFile("latin1.nc", "O0001 (CAF\xC9)\nM30\n");
  const ChildResult r = Run({"info", path, "--json"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_NE(r.out.find("\"ref\": \"CAF\\u00c9\""), std::string::npos) << r.out;
}

TEST_F(NckitInfo, NoLineLimitEndsALineAtItsFirstNulLikeTheReader) {
  TempDir dir;
  // Not "nul.nc": that name is the null device on Windows.
  const std::string path = dir.WriteFile("zero-byte.nc", std::string("O0001\nG00 X0\0Y1\r\nM30\n", 21));
  const ChildResult limited = Run({"info", path});
  const ChildResult unlimited = Run({"info", path, "--no-line-limit"});
  EXPECT_EQ(limited.exitCode, 0);
  EXPECT_NE(limited.out.find("main  0001         3        14\n"), std::string::npos) << limited.out;
  EXPECT_EQ(unlimited.exitCode, 0);
  EXPECT_EQ(unlimited.out, limited.out);
}
