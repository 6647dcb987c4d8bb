// SPDX-License-Identifier: MIT
// nckit block, run as a program.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/NckitFixture.h"

namespace {

class NckitBlock : public NckitTest {};

}  // namespace

TEST_F(NckitBlock, WritesOneWordPerLine) {
  const ChildResult r = Run({"block", "N10 G01 X-12.5 Y0.25 F300 M03"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "F 300\nG 1\nM 3\nN 10\nX -12.5\nY 0.25\n");
  EXPECT_EQ(r.err, "");
}

TEST_F(NckitBlock, LaterGCodesAccumulate) {
  EXPECT_EQ(Run({"block", "G17 G90 G00"}).out, "G 17\nG(2nd) 9000\n");
}

TEST_F(NckitBlock, JsonForm) {
  const ChildResult r = Run({"block", "M03 S1200.5", "--json"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(
      r.out,
      "{\"block\": \"M03 S1200.5\", \"complete\": true, \"words\": [{\"address\": \"M\", \"value\": 3}, "
      "{\"address\": \"S\", \"value\": 1200.5}]}\n");
}

TEST_F(NckitBlock, SeveralArgumentsAreOneBlock) {
  EXPECT_EQ(Run({"block", "X1", "Y2"}).out, "X 1\nY 2\n");
}

TEST_F(NckitBlock, MalformedBlockShowsTheWordsBeforeTheFault) {
  const ChildResult r = Run({"block", "Y7 X--5"});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.out, "X 0\nY 7\n");
  EXPECT_NE(r.err.find("malformed block"), std::string::npos);
}

TEST_F(NckitBlock, OverlongFractionHasNoJsonNumber) {
  const ChildResult r = Run({"block", "X1." + std::string(40, '1'), "--json"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_NE(r.out.find("\"value\": null"), std::string::npos) << r.out;
}

TEST_F(NckitBlock, MissingBlockIsAUsageError) {
  const ChildResult r = Run({"block"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit block: expects a BLOCK (try 'nckit block --help')\n");
}

TEST_F(NckitBlock, UnknownOptionIsAUsageError) {
  EXPECT_EQ(Run({"block", "X1", "--xml"}).exitCode, 2);
}

TEST_F(NckitBlock, NegativeNumberArgumentIsPartOfTheBlock) {
  const ChildResult r = Run({"block", "X", "-5"});
  EXPECT_EQ(r.out, "");
  EXPECT_NE(r.err.find("no address words found"), std::string::npos) << r.err;
}

TEST_F(NckitBlock, HelpExitsZero) {
  const ChildResult r = Run({"block", "--help"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.rfind("usage: nckit block", 0), 0u);
}

TEST_F(NckitBlock, BlockWithoutAddressWordsExitsOne) {
  const ChildResult r = Run({"block", "G 01 (X1)"});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err,
            "nckit block: no address words found (addresses are the letters A B C D E F G I J K L M N P R S "
            "T V X Y, each followed directly by its number)\n");
}

TEST_F(NckitBlock, BlockOfUnreadLettersOnlyWarnsAndExitsOne) {
  const ChildResult r = Run({"block", "x10 Z5 H1"});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err,
            "nckit block: warning: lower-case letters are not decoded: x (each ends the word before it, and "
            "its number is skipped)\n"
            "nckit block: warning: letters the decoder does not read: Z, H (each ends the word before it, "
            "and its number is skipped)\n"
            "nckit block: no address words found (addresses are the letters A B C D E F G I J K L M N P R S "
            "T V X Y, each followed directly by its number)\n");
}

TEST_F(NckitBlock, AddressLettersGiveNoWarning) {
  const ChildResult r = Run({"block", "A1 B2 C3 D4 E5 F6 G7 I8 J9 K1 L2 M3 N4 P5 R6 S7 T8 V9 X1 Y2"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.err, "");
}

TEST_F(NckitBlock, WarningsLeaveTheJsonOnStandardOutput) {
  const ChildResult r = Run({"block", "X5 ; X99", "--json"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out,
            "{\"block\": \"X5 ; X99\", \"complete\": true, \"words\": [{\"address\": \"X\", \"value\": "
            "599}]}\n");
  EXPECT_NE(r.err.find("warning: ';' does not end the block"), std::string::npos) << r.err;
}

TEST_F(NckitBlock, FileLoadingOptionIsUnknownHere) {
  const ChildResult r = Run({"block", "--no-line-limit", "X1"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, "nckit block: unknown option '--no-line-limit' (try 'nckit block --help')\n");
}

struct VWordRow {
  const char* name;
  const char* block;
  const char* out;
};

class NckitBlockVWord : public NckitParamTest<VWordRow> {};

TEST_P(NckitBlockVWord, IsShownOnlyWhenTheBlockHoldsXAndAVWord) {
  const ChildResult r = Run({"block", GetParam().block});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, GetParam().out);
}

INSTANTIATE_TEST_SUITE_P(Blocks, NckitBlockVWord,
                         ::testing::Values(VWordRow{"WithX", "X1 V2", "V 2\nX 1\n"},
                                           VWordRow{"WithoutX", "V2 Y1", "Y 1\n"},
                                           VWordRow{"InAComment", "X1 (V2)", "X 1\n"},
                                           VWordRow{"WithoutANumber", "X1 V 2", "X 1\n"},
                                           VWordRow{"AfterAComment", "X1 (A) V-3.5", "V -3.5\nX 1\n"}),
                         NckitRowName());

struct MisreadRow {
  const char* name;
  const char* block;
  const char* out;  // the words, as without the warning
  const char* err;
};

class NckitBlockWarning : public NckitParamTest<MisreadRow> {};

TEST_P(NckitBlockWarning, NamesTextThatChangesHowTheWordsAreRead) {
  const ChildResult r = Run({"block", GetParam().block});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, GetParam().out);
  EXPECT_EQ(r.err, GetParam().err);
}

INSTANTIATE_TEST_SUITE_P(
    Blocks, NckitBlockWarning,
    ::testing::Values(
        MisreadRow{"SemicolonDoesNotEndTheBlock", "X5 ; X99", "X 599\n",
                   "nckit block: warning: ';' does not end the block: the decoder reads on past it, and a "
                   "letter repeated after it continues its word (X5 ; X99 reads as X 599); put comments in "
                   "round brackets\n"},
        MisreadRow{
            "LowerCaseLetter", "X5 y2", "X 5\n",
            "nckit block: warning: lower-case letters are not decoded: y (each ends the word before it, "
            "and its number is skipped)\n"},
        MisreadRow{
            "UnreadLetter", "G01 Z-5", "G 1\n",
            "nckit block: warning: letters the decoder does not read: Z (each ends the word before it, "
            "and its number is skipped)\n"},
        MisreadRow{"EachLetterOnceInTheOrderFound", "X1 Q2 H3 Q4", "X 1\n",
                   "nckit block: warning: letters the decoder does not read: Q, H (each ends the word before "
                   "it, and its number is skipped)\n"},
        MisreadRow{
            "EveryKindOnItsOwnLine", "X1 z2 ; W3", "X 1\n",
            "nckit block: warning: ';' does not end the block: the decoder reads on past it, and a "
            "letter repeated after it continues its word (X5 ; X99 reads as X 599); put comments in "
            "round brackets\n"
            "nckit block: warning: lower-case letters are not decoded: z (each ends the word before it, "
            "and its number is skipped)\n"
            "nckit block: warning: letters the decoder does not read: W (each ends the word before it, "
            "and its number is skipped)\n"},
        MisreadRow{"TextInRoundBracketsIsSkipped", "X1 (drill; Z-5) Y2", "X 1\nY 2\n", ""},
        MisreadRow{"CommentRunningToTheEndIsSkipped", "X1 (Hole; z", "X 1\n", ""}),
    NckitRowName());

struct UnreadLetterRow {
  const char* name;  // the letter
};

class NckitBlockUnreadLetter : public NckitParamTest<UnreadLetterRow> {};

TEST_P(NckitBlockUnreadLetter, IsNamedInAWarning) {
  const std::string letter = GetParam().name;
  const ChildResult r = Run({"block", "X1 " + letter + "2"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "X 1\n");
  EXPECT_EQ(r.err, "nckit block: warning: letters the decoder does not read: " + letter +
                       " (each ends the word before it, and its number is skipped)\n");
}

// The letters KCC_ParseNc's header names as not decoded.
INSTANTIATE_TEST_SUITE_P(Letters, NckitBlockUnreadLetter,
                         ::testing::Values(UnreadLetterRow{"H"}, UnreadLetterRow{"O"}, UnreadLetterRow{"Q"},
                                           UnreadLetterRow{"U"}, UnreadLetterRow{"W"}, UnreadLetterRow{"Z"}),
                         NckitRowName());
