// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>
#include <stdexcept>
#include <string>

#include "ncappkit/foundation/KCString.h"
#include "support/TestData.h"

TEST(KcString, TrimLeftOfCharRemovesEveryLeadingOccurrence) {
  KCString s("==5");
  s.TrimLeft('=');
  EXPECT_EQ(s, "5");
}

TEST(KcString, TrimLeftColonThenLetterOLeavesProgramNumber) {
  KCString s(":O12");
  s.TrimLeft(':');
  s.TrimLeft('O');
  EXPECT_EQ(s, "12");
}

TEST(KcString, TrimLeftOfCharRemovesOnlyThatChar) {
  KCString s("== 5");
  s.TrimLeft('=');
  EXPECT_EQ(s, " 5");
}

TEST(KcString, TrimLeftRemovesSpacesAndTabs) {
  KCString s(" \t N10");
  s.TrimLeft();
  EXPECT_EQ(s, "N10");
}

TEST(KcString, TrimLeftKeepsCarriageReturn) {
  KCString s("\r N10");
  s.TrimLeft();
  EXPECT_EQ(s, "\r N10");
}

TEST(KcString, TrimRightRemovesTrailingBlanks) {
  KCString s("M30 \t ");
  s.TrimRight();
  EXPECT_EQ(s, "M30");
}

TEST(KcString, TrimOfOnlyBlanksGivesEmpty) {
  KCString s(" \t  ");
  s.Trim();
  EXPECT_TRUE(s.IsEmpty());
}

TEST(KcString, FindOfMissingTextGivesNpos) {
  KCString s("G01 X10");
  EXPECT_EQ(s.Find(KCString("M30")), KCString::npos);
}

TEST(KcString, NposHasAllBitsSet) {
  EXPECT_EQ(KCString::npos, 0xFFFFFFFFFFFFFFFFull);
}

TEST(KcString, FindReturnsFirstOccurrenceAtOrAfterStart) {
  KCString s("X1 X2 X3");
  EXPECT_EQ(s.Find(KCString("X"), 1), 3u);
}

TEST(KcString, FindFromPastTheEndGivesNpos) {
  KCString s("abc");
  EXPECT_EQ(s.Find(KCString("a"), 10), KCString::npos);
}

TEST(KcString, FindCharGivesPositionOrNpos) {
  KCString s("N10(COMMENT)");
  EXPECT_EQ(s.Find('('), 3u);
  EXPECT_EQ(s.Find('#'), KCString::npos);
}

TEST(KcString, GetAtPastTheEndGivesNul) {
  KCString s("X1");
  EXPECT_EQ(s.GetAt(2), '\0');
  EXPECT_EQ(s.GetAt(1000), '\0');
}

TEST(KcString, GetAtNegativeIndexGivesNul) {
  KCString s("X1");
  EXPECT_EQ(s.GetAt(-1), '\0');
}

TEST(KcString, IndexOperatorPastTheEndGivesNul) {
  const KCString s("X1");
  EXPECT_EQ(s[2u], '\0');
  EXPECT_EQ(s[-3], '\0');
  EXPECT_EQ(s[std::size_t{99}], '\0');
}

TEST(KcString, MutableIndexOverwritesCharacterInPlace) {
  KCString s("G01");
  s[0] = 'M';
  EXPECT_EQ(s, "M01");
}

TEST(KcString, MutableIndexOutsideStringDiscardsWrite) {
  KCString s("G01");
  s[10] = 'M';
  s[-1] = 'M';
  EXPECT_EQ(s, "G01");
  EXPECT_EQ(s[10], '\0');
}

TEST(KcString, LeftRightMidClipToTheString) {
  KCString s("O1234");
  EXPECT_EQ(s.Left(1), "O");
  EXPECT_EQ(s.Left(99), "O1234");
  EXPECT_EQ(s.Left(-1), "");
  EXPECT_EQ(s.Right(4), "1234");
  EXPECT_EQ(s.Right(99), "O1234");
  EXPECT_EQ(s.Mid(1, 2), "12");
  EXPECT_EQ(s.Mid(3, 99), "34");
  EXPECT_EQ(s.Mid(9, 2), "");
  EXPECT_EQ(s.Mid(-1, 2), "");
  EXPECT_EQ(s.Mid(2), "234");
}

TEST(KcString, SubstrWithHugeCountTakesTheRest) {
  KCString s("12MM");
  EXPECT_EQ(s.substr(0, 0xFFFFFFFFu), "12MM");
  EXPECT_EQ(s.substr(0, 2), "12");
  EXPECT_EQ(s.substr(7, 2), "");
}

TEST(KcString, UpperCaseChangesOnlyAsciiLetters) {
  KCString s("sqrt(16)+cos[0]");
  EXPECT_EQ(s.UpperCase(), "SQRT(16)+COS[0]");
  EXPECT_EQ(s, "sqrt(16)+cos[0]");
}

TEST(KcString, EqualsNoCaseIgnoresAsciiCase) {
  EXPECT_TRUE(KCString("Units").EqualsNoCase("UNITS"));
  EXPECT_FALSE(KCString("Unit").EqualsNoCase("UNITS"));
}

TEST(KcString, IntegerConstructorWritesPlainDecimal) {
  EXPECT_EQ(KCString(12, false), "12");
  EXPECT_EQ(KCString(-3, false), "-3");
  EXPECT_EQ(KCString(0, false), "0");
  EXPECT_EQ(KCString(std::numeric_limits<int>::min(), false), "-2147483648");
}

TEST(KcString, IntegerConstructorWithForcedSignWritesPlusForPositive) {
  EXPECT_EQ(KCString(12, true), "+12");
  EXPECT_EQ(KCString(-12, true), "-12");
  EXPECT_EQ(KCString(0, true), "0");
}

TEST(KcString, DoubleWithMinusOneDigitsGivesShortestExactText) {
  EXPECT_EQ(KCString(2.5, -1, false), "2.5");
  EXPECT_EQ(KCString(10.0, -1, false), "10");
  EXPECT_EQ(KCString(0.1, -1, false), "0.1");
  EXPECT_EQ(KCString(-12.75, -1, false), "-12.75");
}

TEST(KcString, DoubleWithMinusOneDigitsNeverUsesExponent) {
  EXPECT_EQ(KCString(0.0001, -1, false), "0.0001");
  EXPECT_EQ(KCString(1e6, -1, false), "1000000");
}

struct ShortestTextValue {
  const char* name;
  double value;
};

const ShortestTextValue kShortestTextValues[] = {
    {"one_third", 1.0 / 3.0},
    {"millimetres_per_inch", 25.4},
    {"sum_of_a_tenth_and_a_fifth", 0.30000000000000004},
    {"nine_digits", 123456.789},
    {"small_negative", -1e-9},
};

class KcStringShortestText : public ::testing::TestWithParam<ShortestTextValue> {};

TEST_P(KcStringShortestText, DoubleShortestTextReadsBackToSameValue) {
  const double v = GetParam().value;
  EXPECT_EQ(KCString(v, -1, false).AsDouble(0.0), v) << KCString(v, -1, false).str();
}

INSTANTIATE_TEST_SUITE_P(Values, KcStringShortestText, ::testing::ValuesIn(kShortestTextValues), RowName());

TEST(KcString, DoubleWithDigitsGivesFixedDecimals) {
  EXPECT_EQ(KCString(2.5, 3, false), "2.500");
  EXPECT_EQ(KCString(2.0, 0, false), "2");
  EXPECT_EQ(KCString(-0.125, 2, false), "-0.12");
  EXPECT_EQ(KCString(1.0 / 3.0, 4, false), "0.3333");
}

TEST(KcString, DoubleWithForcedSignWritesPlus) {
  EXPECT_EQ(KCString(2.5, 1, true), "+2.5");
}

TEST(KcString, DoubleNotANumberAndInfinityHaveNames) {
  EXPECT_EQ(KCString(std::numeric_limits<double>::quiet_NaN(), -1, false), "nan");
  EXPECT_EQ(KCString(std::numeric_limits<double>::infinity(), 2, false), "inf");
  EXPECT_EQ(KCString(-std::numeric_limits<double>::infinity(), 2, false), "-inf");
}

TEST(KcString, DoubleTextOfHugeValueIsComplete) {
  const KCString s(1e300, 2, false);
  EXPECT_EQ(s.Right(3), ".00");
  EXPECT_EQ(s.GetLength(), 301 + 3);
}

TEST(KcString, DoubleWithManyDigitsWritesExactlyThatManyDecimals) {
  const KCString s(1.0, 400, false);

  EXPECT_EQ(s, "1." + std::string(400, '0'));
}

TEST(KcString, DoubleWithMoreDigitsThanAnyDoubleHasWritesItsWholeExactExpansion) {
  // The smallest positive double, 2^-1074, has exactly 1074 decimals, ending in ...3447265625.
  const KCString s(std::numeric_limits<double>::denorm_min(), 5000, false);

  EXPECT_EQ(s.GetLength(), 2 + 1074);
  EXPECT_EQ(s.Left(2 + 323), "0." + std::string(323, '0'));
  EXPECT_EQ(s.Mid(2 + 323, 10), "4940656458");
  EXPECT_EQ(s.Right(10), "3447265625");
}

TEST(KcString, CleanDoubleStringDropsTrailingZerosAndPoint) {
  EXPECT_EQ(KCString("12.500").CleanDoubleString(), "12.5");
  EXPECT_EQ(KCString("3.000").CleanDoubleString(), "3");
  EXPECT_EQ(KCString("3.").CleanDoubleString(), "3");
  EXPECT_EQ(KCString("100").CleanDoubleString(), "100");
  EXPECT_EQ(KCString("0.0").CleanDoubleString(), "0");
}

TEST(KcString, CleanDoubleStringTurnsNegativeZeroIntoZero) {
  EXPECT_EQ(KCString("-0").CleanDoubleString(), "0");
  EXPECT_EQ(KCString("-0.000").CleanDoubleString(), "0");
  EXPECT_EQ(KCString(-0.0, 2, false).CleanDoubleString(), "0");
}

TEST(KcString, AsIntReadsLeadingInteger) {
  EXPECT_EQ(KCString("42").AsInt(-1), 42);
  EXPECT_EQ(KCString("  -7").AsInt(-1), -7);
  EXPECT_EQ(KCString("+8").AsInt(-1), 8);
  EXPECT_EQ(KCString("12.7").AsInt(-1), 12);
  EXPECT_EQ(KCString("254MM").AsInt(-1), 254);
}

TEST(KcString, AsIntGivesDefaultWithoutNumber) {
  EXPECT_EQ(KCString("").AsInt(-1), -1);
  EXPECT_EQ(KCString("On").AsInt(-1), -1);
  EXPECT_EQ(KCString("-").AsInt(5), 5);
  EXPECT_EQ(KCString("+-3").AsInt(5), 5);
}

TEST(KcString, AsIntGivesDefaultOnOverflow) {
  EXPECT_EQ(KCString("99999999999").AsInt(-1), -1);
}

TEST(KcString, AsIntWholeTextRejectsTrailingCharacters) {
  EXPECT_EQ(KCString("12.7").AsInt(-1, true), -1);
  EXPECT_EQ(KCString(" 12  ").AsInt(-1, true), 12);
}

TEST(KcString, AsDoubleReadsLeadingRealNumber) {
  EXPECT_DOUBLE_EQ(KCString("12.5").AsDouble(0.0), 12.5);
  EXPECT_DOUBLE_EQ(KCString(" -.5").AsDouble(0.0), -0.5);
  EXPECT_DOUBLE_EQ(KCString("+3.").AsDouble(0.0), 3.0);
  EXPECT_DOUBLE_EQ(KCString("1e3").AsDouble(0.0), 1000.0);
  EXPECT_DOUBLE_EQ(KCString("10INCH").AsDouble(0.0), 10.0);
  EXPECT_DOUBLE_EQ(KCString("2E").AsDouble(0.0), 2.0);
}

TEST(KcString, AsDoubleGivesDefaultWithoutNumber) {
  EXPECT_DOUBLE_EQ(KCString("").AsDouble(-1.0), -1.0);
  EXPECT_DOUBLE_EQ(KCString(".").AsDouble(-1.0), -1.0);
  EXPECT_DOUBLE_EQ(KCString("nan").AsDouble(-1.0), -1.0);
  EXPECT_DOUBLE_EQ(KCString("inf").AsDouble(-1.0), -1.0);
  EXPECT_DOUBLE_EQ(KCString("X12").AsDouble(-1.0), -1.0);
}

TEST(KcString, AsDoubleSaturatesOutOfRangeValues) {
  EXPECT_TRUE(std::isinf(KCString("1e999").AsDouble(0.0)));
  EXPECT_LT(KCString("-1e999").AsDouble(0.0), 0.0);
  EXPECT_EQ(KCString("1e-999").AsDouble(5.0), 0.0);
  EXPECT_EQ(
      KCString("0.0000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000"
               "000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000"
               "000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000"
               "0000000000000000000000000000000000000000000000000000000000000000000000000000000000000000001")
          .AsDouble(5.0),
      0.0);
}

TEST(KcString, AsDoubleSaturatesByTheWholeExponentEvenWithMillionsOfDigits) {
  // 10^-1000000 written with two million mantissa digits, and 10^999999 with two million leading zeros.
  const KCString tiny("1" + std::string(2000000, '0') + "e-3000000");
  const KCString huge("0." + std::string(2000000, '0') + "1e3000000");

  EXPECT_EQ(tiny.AsDouble(5.0), 0.0);
  EXPECT_EQ(huge.AsDouble(5.0), std::numeric_limits<double>::infinity());
}

TEST(KcString, AsDoubleStrictRejectsTrailingText) {
  EXPECT_DOUBLE_EQ(KCString("2.5").AsDoubleStrict(-1.0), 2.5);
  EXPECT_DOUBLE_EQ(KCString(" 2.5 ").AsDoubleStrict(-1.0), 2.5);
  EXPECT_DOUBLE_EQ(KCString("2.5mm").AsDoubleStrict(-1.0), -1.0);
}

TEST(KcString, NumberTextDoesNotDependOnProcessLocale) {
  const char* previous = std::setlocale(LC_ALL, nullptr);
  const std::string saved = previous ? previous : "C";
  const bool haveGerman =
      std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr || std::setlocale(LC_ALL, "de_DE") != nullptr;
  const KCString written(2.5, 2, false);
  const double read = KCString("2.5").AsDouble(0.0);
  std::setlocale(LC_ALL, saved.c_str());
  EXPECT_EQ(written, "2.50");
  EXPECT_DOUBLE_EQ(read, 2.5);
  if (!haveGerman)
    GTEST_SKIP() << "de_DE locale not installed; checked in the C locale only";
}

TEST(KcString, NumberTextDoesNotDependOnTheGlobalCppLocale) {
  std::locale german;
  try {
    german = std::locale("de_DE.UTF-8");
  } catch (const std::runtime_error&) {
    GTEST_SKIP() << "de_DE.UTF-8 locale not installed";
  }
  const std::locale saved = std::locale::global(german);
  const KCString fixed(1234567.5, 2, false);
  const KCString shortest(-0.125, -1, false);
  const KCString integer(1234567, false);
  const double read = KCString("1234.5").AsDouble(0.0);
  const double readComma = KCString("1,5").AsDouble(-1.0);
  const int readInt = KCString("1.234").AsInt(-1);
  std::ostringstream streamed;
  streamed << KCString(2.5, -1, false);
  std::locale::global(saved);

  EXPECT_EQ(fixed, "1234567.50");
  EXPECT_EQ(shortest, "-0.125");
  EXPECT_EQ(integer, "1234567");
  EXPECT_DOUBLE_EQ(read, 1234.5);
  EXPECT_DOUBLE_EQ(readComma, 1.0);
  EXPECT_EQ(readInt, 1);
  EXPECT_EQ(streamed.str(), "2.5");
}

TEST(KcString, PathJoinUsesExactlyOneSeparator) {
#if defined(_WIN32)
  const std::string sep = "\\";
#else
  const std::string sep = "/";
#endif
  EXPECT_EQ((KCString("out") & KCString("O1000.nc")).str(), "out" + sep + "O1000.nc");
  EXPECT_EQ((KCString("out/") & KCString("O1000.nc")).str(), "out" + sep + "O1000.nc");
  EXPECT_EQ((KCString("out\\\\") & KCString("/O1000.nc")).str(), "out" + sep + "O1000.nc");
}

TEST(KcString, PathJoinWithEmptySideGivesTheOther) {
  EXPECT_EQ(KCString("") & KCString("a.nc"), "a.nc");
  EXPECT_EQ(KCString("dir") & KCString(""), "dir");
}

TEST(KcString, ConcatenationAndComparisonAreCaseSensitive) {
  KCString a("G");
  a += KCString("01");
  a += ' ';
  EXPECT_EQ(a + KCString("X1"), "G01 X1");
  EXPECT_NE(KCString("m30"), KCString("M30"));
  EXPECT_TRUE(KCString("A") < KCString("B"));
}

TEST(KcString, CharConstructorGivesOneCharacter) {
  KCString s('(');
  EXPECT_EQ(s.GetLength(), 1);
  EXPECT_EQ(s, "(");
}

TEST(KcString, NullPointerConstructsEmptyString) {
  const char* none = nullptr;
  EXPECT_TRUE(KCString(none).empty());
}

TEST(KcString, LengthsAgree) {
  KCString s("N10");
  EXPECT_EQ(s.GetLength(), 3);
  EXPECT_EQ(s.size(), 3u);
  EXPECT_EQ(s.length(), 3u);
  EXPECT_FALSE(s.empty());
}

TEST(KcString, StreamsItsText) {
  std::ostringstream out;
  out << KCString("O1000");
  EXPECT_EQ(out.str(), "O1000");
}
