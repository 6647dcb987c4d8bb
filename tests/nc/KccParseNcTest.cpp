// SPDX-License-Identifier: MIT
// Decoding NC blocks and the stand-alone line tests of KCC_ParseNc.
#include <gtest/gtest.h>

#include <string>

#include "ncappkit/nc/KCC_ParseNc.h"

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

}  // namespace

TEST(KccParseNc, DecodesTheExampleBlockIntoItsWords) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("N10 G01 X-12.5 Y0.25 F300 M03 (CUT) M08"));
  int n = 0, g = 0, f = 0, m = 0, m2 = 0;
  double x = 0.0, y = 0.0;
  EXPECT_TRUE(parser.GetNCommand(n));
  EXPECT_EQ(n, 10);
  EXPECT_TRUE(parser.GetGprimCommand(g));
  EXPECT_EQ(g, 1);
  EXPECT_TRUE(parser.GetXCommand(x));
  EXPECT_DOUBLE_EQ(x, -12.5);
  EXPECT_TRUE(parser.GetYCommand(y));
  EXPECT_DOUBLE_EQ(y, 0.25);
  EXPECT_TRUE(parser.GetFCommand(f));
  EXPECT_EQ(f, 300);
  EXPECT_TRUE(parser.GetMprimCommand(m));
  EXPECT_EQ(m, 3);
  EXPECT_TRUE(parser.GetMsecCommand(m2));
  EXPECT_EQ(m2, 8);
}

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

TEST(KccParseNc, EmptyLineFailsAndClearsEverySlot) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("X5 Y6"));
  EXPECT_FALSE(parser.DecodeISOLine(""));
  double v = 0.0;
  EXPECT_FALSE(parser.GetXCommand(v));
  EXPECT_FALSE(parser.GetYCommand(v));
}

TEST(KccParseNc, OneCharacterLineFailsAndClearsEverySlot) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("X5"));
  EXPECT_FALSE(parser.DecodeISOLine("   X"));
  double v = 0.0;
  EXPECT_FALSE(parser.GetXCommand(v));
}

TEST(KccParseNc, NothingInsideACommentIsDecoded) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("X10 (X20) Y5"));
  double y = 0.0;
  EXPECT_DOUBLE_EQ(X(parser), 10.0);
  EXPECT_TRUE(parser.GetYCommand(y));
  EXPECT_DOUBLE_EQ(y, 5.0);
}

TEST(KccParseNc, UnclosedCommentHidesTheRestOfTheLine) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("X1 (NOTE Y2"));
  double y = 0.0;
  EXPECT_DOUBLE_EQ(X(parser), 1.0);
  EXPECT_FALSE(parser.GetYCommand(y));
}

TEST(KccParseNc, RepeatedLetterContinuesTheEarlierWord) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("X10 X20"));
  EXPECT_DOUBLE_EQ(X(parser), 1020.0);
}

TEST(KccParseNc, LaterGCodesAccumulateInTheSecondarySlot) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("G17 G90 G00"));
  int prim = 0;
  double sec = 0.0;
  EXPECT_TRUE(parser.GetGprimCommand(prim));
  EXPECT_EQ(prim, 17);
  EXPECT_TRUE(parser.GetGsecundCommand(sec));
  EXPECT_DOUBLE_EQ(sec, 9000.0);
}

TEST(KccParseNc, ThirdGCodeContinuesTheSecondary) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("G90 G01 G02"));
  double sec = 0.0;
  EXPECT_TRUE(parser.GetGsecundCommand(sec));
  EXPECT_DOUBLE_EQ(sec, 102.0);
}

TEST(KccParseNc, MinusInsideAWordNegatesAtTheNextDigit) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("X5-3"));
  EXPECT_DOUBLE_EQ(X(parser), -53.0);
}

TEST(KccParseNc, SecondMinusAfterAppliedSignFlipsBack) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("X-5-3"));
  EXPECT_DOUBLE_EQ(X(parser), 53.0);
}

TEST(KccParseNc, SignWaitsForTheFirstNonZeroDigit) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("X-0.5 Y-05"));
  double y = 0.0;
  EXPECT_DOUBLE_EQ(X(parser), -0.5);
  EXPECT_TRUE(parser.GetYCommand(y));
  EXPECT_DOUBLE_EQ(y, -5.0);
}

TEST(KccParseNc, DoubleMinusFailsAndKeepsEarlierWords) {
  KCC_ParseNc parser;
  EXPECT_FALSE(parser.DecodeISOLine("Y7 X--5"));
  double y = 0.0;
  EXPECT_TRUE(parser.GetYCommand(y));
  EXPECT_DOUBLE_EQ(y, 7.0);
}

TEST(KccParseNc, MinusAfterZeroBeforeSignAppliedFails) {
  KCC_ParseNc parser;
  EXPECT_FALSE(parser.DecodeISOLine("X-0-5"));
}

TEST(KccParseNc, SecondPointInAWordFails) {
  KCC_ParseNc parser;
  EXPECT_FALSE(parser.DecodeISOLine("X1.2.3"));
}

TEST(KccParseNc, BlankAfterTheLetterGivesNoWord) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("X 10"));
  double x = 0.0;
  EXPECT_FALSE(parser.GetXCommand(x));
}

TEST(KccParseNc, BareMinusMarksTheLetterPresentWithZero) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("X- Y1"));
  EXPECT_DOUBLE_EQ(X(parser), 0.0);
}

TEST(KccParseNc, PlusSignEndsTheWord) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("X+5 Y1"));
  double x = 0.0;
  EXPECT_FALSE(parser.GetXCommand(x));
}

TEST(KccParseNc, UndecodedLettersEndTheCurrentWord) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("X1Z2 Y3"));
  double y = 0.0;
  EXPECT_DOUBLE_EQ(X(parser), 1.0);
  EXPECT_TRUE(parser.GetYCommand(y));
  EXPECT_DOUBLE_EQ(y, 3.0);
}

TEST(KccParseNc, LowerCaseLettersAreNotDecoded) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("x10 y20"));
  double v = 0.0;
  EXPECT_FALSE(parser.GetXCommand(v));
  EXPECT_FALSE(parser.GetYCommand(v));
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

TEST(KccParseNc, VGetterGivesTheVValueWhenXIsPresent) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("X1 V2.5"));
  double v = 0.0;
  EXPECT_TRUE(parser.GetVCommand(v));
  EXPECT_DOUBLE_EQ(v, 2.5);
}

TEST(KccParseNc, IntegerOnlyLettersIgnoreTheFractionInTheirIntValue) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("F12.5 T3"));
  int f = 0, t = 0;
  EXPECT_TRUE(parser.GetFCommand(f));
  EXPECT_EQ(f, 12);
  EXPECT_TRUE(parser.GetTCommand(t));
  EXPECT_EQ(t, 3);
}

TEST(KccParseNc, DoubleLettersGiveBothForms) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("A-1.5 B2 C3.25 S1200.5"));
  int a = 0, s = 0;
  double ad = 0.0, c = 0.0, sd = 0.0;
  EXPECT_TRUE(parser.GetACommand(a));
  EXPECT_EQ(a, -1);
  EXPECT_TRUE(parser.GetACommand(ad));
  EXPECT_DOUBLE_EQ(ad, -1.5);
  EXPECT_TRUE(parser.GetCCommand(c));
  EXPECT_DOUBLE_EQ(c, 3.25);
  EXPECT_TRUE(parser.GetSCommand(s));
  EXPECT_EQ(s, 1200);
  EXPECT_TRUE(parser.GetSCommand(sd));
  EXPECT_DOUBLE_EQ(sd, 1200.5);
}

TEST(KccParseNc, ArcAndOtherWordsAreDecoded) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("G02 I1.5 J-2 K3 R4.5 D2.5 E7 L2 P8010 B9"));
  double i = 0.0, j = 0.0, r = 0.0, d = 0.0, b = 0.0;
  int k = 0, e = 0, l = 0, p = 0;
  EXPECT_TRUE(parser.GetICommand(i));
  EXPECT_DOUBLE_EQ(i, 1.5);
  EXPECT_TRUE(parser.GetJCommand(j));
  EXPECT_DOUBLE_EQ(j, -2.0);
  EXPECT_TRUE(parser.GetKCommand(k));
  EXPECT_EQ(k, 3);
  EXPECT_TRUE(parser.GetRCommand(r));
  EXPECT_DOUBLE_EQ(r, 4.5);
  EXPECT_TRUE(parser.GetDCommand(d));
  EXPECT_DOUBLE_EQ(d, 2.5);
  EXPECT_TRUE(parser.GetECommand(e));
  EXPECT_EQ(e, 7);
  EXPECT_TRUE(parser.GetLCommand(l));
  EXPECT_EQ(l, 2);
  EXPECT_TRUE(parser.GetPCommand(p));
  EXPECT_EQ(p, 8010);
  EXPECT_TRUE(parser.GetBCommand(b));
  EXPECT_DOUBLE_EQ(b, 9.0);
}

TEST(KccParseNc, LeadingBlanksAreSkipped) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("   \tX3"));
  EXPECT_DOUBLE_EQ(X(parser), 3.0);
}

TEST(KccParseNc, HugeIntegerWrapsWithoutFailing) {
  KCC_ParseNc parser;
  EXPECT_TRUE(parser.DecodeISOLine("N99999999999999999999"));
  int n = 0;
  EXPECT_TRUE(parser.GetNCommand(n));
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

TEST(KccParseNc, IntegerPartWrapsAt32Bits) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("N4294967297"));
  int n = 0;
  ASSERT_TRUE(parser.GetNCommand(n));
  EXPECT_EQ(n, 1);
}

TEST(KccParseNc, DigitsAfterAWrapToNegativeAreSubtracted) {
  // 2147483648 wraps to -2147483648; the next digit then goes the negative way: -21474836481 wraps to -1.
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("N21474836481"));
  int n = 0;
  ASSERT_TRUE(parser.GetNCommand(n));
  EXPECT_EQ(n, -1);
}

TEST(KccParseNc, TenthFractionDigitUsesTheWrappedDivisor) {
  // The divisor is a 32-bit integer: after nine fraction digits 10^10 wraps to 1410065408.
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("X0.0000000001"));
  double x = 0.0;
  ASSERT_TRUE(parser.GetXCommand(x));
  EXPECT_DOUBLE_EQ(x, 1.0 / 1410065408.0);
}

TEST(KccParseNc, FractionOfANegativeWordIsSubtracted) {
  KCC_ParseNc parser;
  ASSERT_TRUE(parser.DecodeISOLine("X-12.25"));
  double x = 0.0;
  ASSERT_TRUE(parser.GetXCommand(x));
  EXPECT_DOUBLE_EQ(x, -12.25);
}
