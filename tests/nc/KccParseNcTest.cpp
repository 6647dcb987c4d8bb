// SPDX-License-Identifier: MIT
// Decoding NC blocks and the stand-alone line tests of KCC_ParseNc. The "block -> words" cases are the table
// tests/data/nc/decode_blocks.txt (one KccParseNcBlocks test per case); the tests below it are of other
// shapes: getters that leave values alone, the integer forms of real letters, copies, and the line tests.
#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "ncappkit/nc/KCC_ParseNc.h"
#include "support/NcBlockWords.h"
#include "support/TestData.h"

namespace {

// Opens the protected character test for the tests.
class ParseNcProbe : public KCC_ParseNc {
 public:
  using KCC_ParseNc::IsCharNumeric;
};

double X(const KCC_ParseNc& p) {
  double v = -999.0;
  EXPECT_TRUE(p.GetXCommand(v));
  return v;
}

// One case of tests/data/nc/decode_blocks.txt.
struct BlockCase {
  std::string name;
  std::string where;  // "PATH:LINE: " of its [name] line
  std::string block;
  bool complete = true;
  std::string words;  // in NcBlockWords' form
  std::string error;  // why the case could not be read
};

void PrintTo(const BlockCase& c, std::ostream* out) {
  *out << c.where << "block \"" << EscapeText(c.block) << "\"";
}

BlockCase ReadBlockCase(const std::filesystem::path& path, const TableSection& section) {
  BlockCase c;
  c.name = section.name;
  c.where = Where(path, section.number);
  int blockLines = 0, resultLines = 0;
  for (const TableLine& line : section.lines) {
    std::vector<std::string> words;
    std::string error;
    if (!SplitWords(line.text, words, error)) {
      c.error = Where(path, line.number) + error;
      return c;
    }
    if (words[0] == "block" && words.size() == 2) {
      c.block = words[1];
      ++blockLines;
    } else if ((words[0] == "complete" || words[0] == "malformed") && words.size() == 1) {
      c.complete = words[0] == "complete";
      ++resultLines;
    } else {
      c.words += line.text + "\n";
    }
  }
  if (blockLines != 1 || resultLines != 1)
    c.error = c.where + "a case needs one 'block \"TEXT\"' line and one 'complete' or 'malformed' line";
  return c;
}

std::vector<BlockCase> ReadBlockCases() {
  const std::filesystem::path path = TestDataPath("nc/decode_blocks.txt");
  std::vector<TableSection> sections;
  BlockCase failed;
  failed.name = "decode_blocks_txt";
  if (!ReadTableSections(path, sections, failed.error))
    return {failed};
  std::vector<BlockCase> cases;
  for (const TableSection& section : sections)
    cases.push_back(ReadBlockCase(path, section));
  if (cases.empty()) {
    failed.error = path.u8string() + ": no cases";
    cases.push_back(failed);
  }
  return cases;
}

// A block with a word for every address the parser decodes.
constexpr const char* kEveryAddress = "A1 B1 C1 D1 E1 F1 G1 G2 I1 J1 K1 L1 M1 M2 N1 P1 S1 R1 T1 V1 X1 Y1";

class KccParseNcBlocks : public ::testing::TestWithParam<BlockCase> {};

}  // namespace

TEST_P(KccParseNcBlocks, DecodesTheListedWords) {
  const BlockCase& c = GetParam();
  ASSERT_TRUE(c.error.empty()) << c.error;

  KCC_ParseNc fresh;
  EXPECT_EQ(fresh.DecodeISOLine(c.block), c.complete) << c.where;
  EXPECT_EQ(NcBlockWords(fresh, c.block), c.words) << c.where;

  KCC_ParseNc used;
  ASSERT_TRUE(used.DecodeISOLine(kEveryAddress));
  const std::string every = NcBlockWords(used, kEveryAddress);
  ASSERT_EQ(std::count(every.begin(), every.end(), '\n'), 22) << every;
  EXPECT_EQ(used.DecodeISOLine(c.block), c.complete) << c.where << "after a block with every address";
  EXPECT_EQ(NcBlockWords(used, c.block), c.words) << c.where << "after a block with every address";
}

INSTANTIATE_TEST_SUITE_P(Table, KccParseNcBlocks, ::testing::ValuesIn(ReadBlockCases()), RowName());

TEST(KccParseNc, GettersOfAbsentLettersReturnFalseAndLeaveTheValue) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("G00 X1"));
  int t = 77;
  double r = 7.5;
  EXPECT_FALSE(parser.GetTCommand(t));
  EXPECT_EQ(t, 77);
  EXPECT_FALSE(parser.GetRCommand(r));
  EXPECT_DOUBLE_EQ(r, 7.5);
}

TEST(KccParseNc, VGetterTestsXAndReturnsZeroWithoutV) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("X1"));
  double v = 9.0;
  EXPECT_TRUE(parser.GetVCommand(v));
  EXPECT_DOUBLE_EQ(v, 0.0);
}

TEST(KccParseNc, VGetterIsFalseWithVButNoX) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("V1"));
  double v = 9.0;
  EXPECT_FALSE(parser.GetVCommand(v));
  EXPECT_DOUBLE_EQ(v, 9.0);
}

// The table shows G, A and S with their real value; their integer getters give the integer part.
TEST(KccParseNc, FirstGCodeIsAlsoGivenAsAnInteger) {
  KCC_ParseNc parser;
  int g = 0;
  ASSERT_TRUE(parser.DecodeISOLine("N10 G01 X-12.5 Y0.25 F300 M03 (CUT) M08"));
  EXPECT_TRUE(parser.GetGprimCommand(g));
  EXPECT_EQ(g, 1);
  ASSERT_TRUE(parser.DecodeISOLine("G17 G90 G00"));
  EXPECT_TRUE(parser.GetGprimCommand(g));
  EXPECT_EQ(g, 17);
}

TEST(KccParseNc, RealLettersAlsoGiveTheirIntegerPart) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("A-1.5 B2 C3.25 S1200.5"));
  int a = 0, s = 0;
  EXPECT_TRUE(parser.GetACommand(a));
  EXPECT_EQ(a, -1);
  EXPECT_TRUE(parser.GetSCommand(s));
  EXPECT_EQ(s, 1200);
}

TEST(KccParseNc, CopyKeepsTheDecodedWords) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("X4.5"));
  KCC_ParseNc copy(parser);
  KCC_ParseNc assigned;
  assigned = parser;
  EXPECT_DOUBLE_EQ(X(copy), 4.5);
  EXPECT_DOUBLE_EQ(X(assigned), 4.5);
}

TEST(KccParseNc, NumericCharactersAreMinusPointAndDigits) {
  ParseNcProbe probe;
  EXPECT_TRUE(probe.IsCharNumeric('-'));
  EXPECT_TRUE(probe.IsCharNumeric('.'));
  EXPECT_TRUE(probe.IsCharNumeric('0'));
  EXPECT_TRUE(probe.IsCharNumeric('9'));
  EXPECT_FALSE(probe.IsCharNumeric('+'));
  EXPECT_FALSE(probe.IsCharNumeric(','));
  EXPECT_FALSE(probe.IsCharNumeric(' '));
  EXPECT_FALSE(probe.IsCharNumeric('E'));
}

// ---- program end ----

TEST(KccParseNc, M30EndsTheProgram) {
  KCC_ParseNc parser;
  EXPECT_TRUE(parser.Check_M30_Command("M30"));
}

TEST(KccParseNc, M300IsNoProgramEnd) {
  KCC_ParseNc parser;
  EXPECT_FALSE(parser.Check_M30_Command("M300"));
}

TEST(KccParseNc, M30InsideACommentIsNoProgramEnd) {
  KCC_ParseNc parser;
  EXPECT_FALSE(parser.Check_M30_Command("(M30)"));
}

TEST(KccParseNc, M30BeforeACommentEndsTheProgram) {
  KCC_ParseNc parser;
  EXPECT_TRUE(parser.Check_M30_Command("N5 M30 (END)"));
}

TEST(KccParseNc, ShortLineIsNoProgramEnd) {
  KCC_ParseNc parser;
  EXPECT_FALSE(parser.Check_M30_Command("M3"));
}

TEST(KccParseNc, M30GluedToTheBlockNumberCounts) {
  KCC_ParseNc parser;
  EXPECT_TRUE(parser.Check_M30_Command("N100M30"));
}

TEST(KccParseNc, LowerCaseM30DoesNotCount) {
  KCC_ParseNc parser;
  EXPECT_FALSE(parser.Check_M30_Command("m30"));
}

TEST(KccParseNc, MutableBufferFormOfTheEndTestWorksAlike) {
  KCC_ParseNc parser;
  char line[] = "N10 M30";
  EXPECT_TRUE(parser.Check_M30_Command(line));
}

TEST(KccParseNc, CombinedTestTellsM99) {
  KCC_ParseNc parser;
  bool m30 = true, m99 = false;
  EXPECT_TRUE(parser.Check_M30_M99_Command("N20 M99", m30, m99));
  EXPECT_FALSE(m30);
  EXPECT_TRUE(m99);
}

TEST(KccParseNc, CombinedTestTellsM30) {
  KCC_ParseNc parser;
  bool m30 = false, m99 = true;
  EXPECT_TRUE(parser.Check_M30_M99_Command("M30", m30, m99));
  EXPECT_TRUE(m30);
  EXPECT_FALSE(m99);
}

TEST(KccParseNc, CombinedTestClearsTheFlagsWhenNothingEnds) {
  KCC_ParseNc parser;
  bool m30 = true, m99 = true;
  EXPECT_FALSE(parser.Check_M30_M99_Command("M991 X1", m30, m99));
  EXPECT_FALSE(m30);
  EXPECT_FALSE(m99);
}

TEST(KccParseNc, CombinedTestKeepsTheFlagsWhenAllIsComment) {
  KCC_ParseNc parser;
  bool m30 = true, m99 = true;
  EXPECT_FALSE(parser.Check_M30_M99_Command("(M99 M30)", m30, m99));
  EXPECT_TRUE(m30);
  EXPECT_TRUE(m99);
}

// ---- program number ----

TEST(KccParseNc, ProgramNumberIgnoresLeadingZerosAndComment) {
  KCC_ParseNc parser;
  int number = 0;
  EXPECT_TRUE(parser.GetProgramNumber("O0012 (PART)", number));
  EXPECT_EQ(number, 12);
}

TEST(KccParseNc, ProgramNumberAcceptsColonAndColonO) {
  KCC_ParseNc parser;
  int a = 0, b = 0;
  EXPECT_TRUE(parser.GetProgramNumber(":1234", a));
  EXPECT_EQ(a, 1234);
  EXPECT_TRUE(parser.GetProgramNumber("  :O77", b));
  EXPECT_EQ(b, 77);
}

TEST(KccParseNc, ProgramNumberRejectsOColon) {
  KCC_ParseNc parser;
  int number = 5;
  EXPECT_FALSE(parser.GetProgramNumber("O:1234", number));
  EXPECT_EQ(number, 5);
}

TEST(KccParseNc, LoneOOrColonIsNoProgramNumber) {
  KCC_ParseNc parser;
  int number = 0;
  EXPECT_FALSE(parser.GetProgramNumber("O", number));
  EXPECT_FALSE(parser.GetProgramNumber(":", number));
  EXPECT_FALSE(parser.GetProgramNumber("OX", number));
  EXPECT_FALSE(parser.GetProgramNumber("N10 O12", number));
}

TEST(KccParseNc, ProgramNumberCommentIsAppendedInBrackets) {
  KCC_ParseNc parser;
  int number = 0;
  KCString comment("old");
  EXPECT_TRUE(parser.GetProgramNumberWithComment("O0012 (PART)", number, comment));
  EXPECT_EQ(number, 12);
  EXPECT_EQ(comment, "old(PART)");
}

TEST(KccParseNc, ProgramNumberWithoutCommentAppendsEmptyBrackets) {
  KCC_ParseNc parser;
  int number = 0;
  KCString comment;
  EXPECT_TRUE(parser.GetProgramNumberWithComment("O5", number, comment));
  EXPECT_EQ(comment, "()");
}

TEST(KccParseNc, ProgramNumberCommentTakesTheLastOpeningBracket) {
  KCC_ParseNc parser;
  int number = 0;
  KCString comment;
  EXPECT_TRUE(parser.GetProgramNumberWithComment("O5 (A (B) C)", number, comment));
  EXPECT_EQ(comment, "(B)");
}

TEST(KccParseNc, ClosingBracketBeforeOpeningGivesEmptyBrackets) {
  KCC_ParseNc parser;
  int number = 0;
  KCString comment;
  EXPECT_TRUE(parser.GetProgramNumberWithComment("O5 )X(", number, comment));
  EXPECT_EQ(comment, "()");
}

// ---- numbered parameters ----

TEST(KccParseNc, NumberedParameterGivesNumberValuesAndValueText) {
  KCC_ParseNc parser;
  int number = 0, iv = 0;
  double dv = 0.0;
  KCString text;
  bool error = true;
  EXPECT_TRUE(parser.GetNcParameter("#100 = 12.5 (FEED)", number, iv, dv, text, false, error));
  EXPECT_EQ(number, 100);
  EXPECT_EQ(iv, 12);
  EXPECT_DOUBLE_EQ(dv, 12.5);
  EXPECT_EQ(text, "12.5 ");
  EXPECT_FALSE(error);
}

TEST(KccParseNc, ShortParameterNumberLosesTheEqualsSign) {
  KCC_ParseNc parser;
  int number = 0, iv = 0;
  double dv = 0.0;
  EXPECT_FALSE(parser.GetNcParameter("#1 = 5", number, iv, dv));
  EXPECT_EQ(number, 1);
}

TEST(KccParseNc, PointWithoutFollowingDigitFailsWithoutError) {
  KCC_ParseNc parser;
  int number = 0, iv = 0;
  double dv = 0.0;
  KCString text;
  bool error = true;
  EXPECT_FALSE(parser.GetNcParameter("#100=5.X", number, iv, dv, text, true, error));
  EXPECT_FALSE(error);
}

TEST(KccParseNc, SecondPointSetsErrorAndGivesResultOnError) {
  KCC_ParseNc parser;
  int number = 0, iv = 0;
  double dv = 0.0;
  KCString text;
  bool error = false;
  EXPECT_TRUE(parser.GetNcParameter("#100=5.5.5", number, iv, dv, text, true, error));
  EXPECT_TRUE(error);
  error = false;
  EXPECT_FALSE(parser.GetNcParameter("#100=5.5.5", number, iv, dv, text, false, error));
  EXPECT_TRUE(error);
}

TEST(KccParseNc, NumberedParameterNegativeValue) {
  KCC_ParseNc parser;
  int number = 0, iv = 0;
  double dv = 0.0;
  EXPECT_TRUE(parser.GetNcParameter("#101=-3.25", number, iv, dv));
  EXPECT_EQ(iv, -3);
  EXPECT_DOUBLE_EQ(dv, -3.25);
}

TEST(KccParseNc, NumberedParameterNeedsHashAndSixCharacters) {
  KCC_ParseNc parser;
  int number = 0, iv = 0;
  double dv = 0.0;
  EXPECT_FALSE(parser.GetNcParameter("#100=", number, iv, dv));
  EXPECT_FALSE(parser.GetNcParameter("R100 = 5", number, iv, dv));
  EXPECT_FALSE(parser.GetNcParameter("#100 =   ", number, iv, dv));
}

TEST(KccParseNc, NonNumericValueIsAnErrorAnsweredByResultOnError) {
  KCC_ParseNc parser;
  int number = 0, iv = 0;
  double dv = 0.0;
  KCString text;
  bool error = false;
  EXPECT_TRUE(parser.GetNcParameter("#100 = ABC", number, iv, dv, text, true, error));
  EXPECT_TRUE(error);
  EXPECT_EQ(text, "ABC");
}

TEST(KccParseNc, MinusInsideTheValueIsAnError) {
  KCC_ParseNc parser;
  int number = 0, iv = 0;
  double dv = 0.0;
  KCString text;
  bool error = false;
  EXPECT_FALSE(parser.GetNcParameter("#100 = 5-2", number, iv, dv, text, false, error));
  EXPECT_TRUE(error);
}

TEST(KccParseNc, MinusNotFollowedByDigitOrPointIsAnError) {
  KCC_ParseNc parser;
  int number = 0, iv = 0;
  double dv = 0.0;
  KCString text;
  bool error = false;
  EXPECT_FALSE(parser.GetNcParameter("#100 = -X", number, iv, dv, text, false, error));
  EXPECT_TRUE(error);
}

// ---- named parameters ----

TEST(KccParseNc, NamedParameterWithSemicolonComment) {
  KCC_ParseNc parser;
  KCString name, text;
  int iv = 5;
  double dv = 0.0;
  bool error = true;
  EXPECT_TRUE(parser.GetNcTextParameter("R10 = -.5 ; X", name, iv, dv, text, false, error));
  EXPECT_EQ(name, "R10");
  EXPECT_EQ(iv, 0);
  EXPECT_DOUBLE_EQ(dv, -0.5);
  EXPECT_EQ(text, "-.5 ");
  EXPECT_FALSE(error);
}

TEST(KccParseNc, CommentLineIsNoNamedParameter) {
  KCC_ParseNc parser;
  KCString name;
  int iv = 0;
  double dv = 0.0;
  EXPECT_FALSE(parser.GetNcTextParameter("; R10 = 5", name, iv, dv));
}

TEST(KccParseNc, NamedParameterNeedsAnEqualsSign) {
  KCC_ParseNc parser;
  KCString name;
  int iv = 0;
  double dv = 0.0;
  EXPECT_FALSE(parser.GetNcTextParameter("G01 X10 Y5", name, iv, dv));
}

TEST(KccParseNc, NamedParameterIntegerValue) {
  KCC_ParseNc parser;
  KCString name;
  int iv = 0;
  double dv = 0.0;
  EXPECT_TRUE(parser.GetNcTextParameter("  DEPTH=42", name, iv, dv));
  EXPECT_EQ(name, "DEPTH");
  EXPECT_EQ(iv, 42);
  EXPECT_DOUBLE_EQ(dv, 42.0);
}

TEST(KccParseNc, NamedParameterWithEmptyValueFails) {
  KCC_ParseNc parser;
  KCString name;
  int iv = 0;
  double dv = 0.0;
  EXPECT_FALSE(parser.GetNcTextParameter("DEPTH =   ", name, iv, dv));
}
