// SPDX-License-Identifier: MIT
// The unit selection: text forms, distance units, conversions and numbers with a unit suffix.
#include <gtest/gtest.h>

#include "ncappkit/units/KCC_MmInch.h"

namespace {

KCC_MmInch Mm() {
  return KCC_MmInch(KCC_MmInch::eMmInchMm);
}
KCC_MmInch Inch() {
  return KCC_MmInch(KCC_MmInch::eMmInchInch);
}
KCC_MmInch Undef() {
  return KCC_MmInch();
}

}  // namespace

TEST(KccMmInch, StartsUndefined) {
  const KCC_MmInch unit;
  EXPECT_TRUE(unit.IsUndef());
  EXPECT_FALSE(unit.IsMmMode());
  EXPECT_FALSE(unit.IsInchMode());
  EXPECT_EQ(unit.GetMmInchMode(), KCC_MmInch::eMmInchUndef);
}

TEST(KccMmInch, SettersSelectEachUnit) {
  KCC_MmInch unit;
  unit.SetMmMode();
  EXPECT_TRUE(unit.IsMmMode());
  unit.SetInchMode();
  EXPECT_TRUE(unit.IsInchMode());
  unit.SetUndef();
  EXPECT_TRUE(unit.IsUndef());
}

TEST(KccMmInch, CopiesAndComparesTheSelection) {
  KCC_MmInch a = Inch();
  KCC_MmInch b;
  EXPECT_NE(a, b);
  b = a;
  EXPECT_EQ(a, b);
  EXPECT_TRUE(b.IsInchMode());
}

TEST(KccMmInch, ReadFromStringRefusesTheLongInchForm) {
  KCC_MmInch unit = Mm();
  EXPECT_FALSE(unit.ReadFromString("INCH"));
  EXPECT_TRUE(unit.IsUndef());
}

TEST(KccMmInch, ReadFromStringAcceptsTheShortInchForm) {
  KCC_MmInch unit;
  EXPECT_TRUE(unit.ReadFromString("IN"));
  EXPECT_TRUE(unit.IsInchMode());
}

TEST(KccMmInch, ReadFromStringAcceptsUpperCaseMm) {
  KCC_MmInch unit;
  EXPECT_TRUE(unit.ReadFromString("MM"));
  EXPECT_TRUE(unit.IsMmMode());
}

TEST(KccMmInch, ReadFromStringIsCaseSensitive) {
  KCC_MmInch unit = Inch();
  EXPECT_FALSE(unit.ReadFromString("mm"));
  EXPECT_TRUE(unit.IsUndef());
  EXPECT_FALSE(unit.ReadFromString("in"));
  EXPECT_FALSE(unit.ReadFromString(""));
  EXPECT_FALSE(unit.ReadFromString(" MM"));
}

TEST(KccMmInch, WriteToStringGivesLongOrShortInch) {
  EXPECT_EQ(Mm().WriteToString(true), "MM");
  EXPECT_EQ(Mm().WriteToString(false), "MM");
  EXPECT_EQ(Inch().WriteToString(true), "INCH");
  EXPECT_EQ(Inch().WriteToString(false), "IN");
  EXPECT_EQ(Undef().WriteToString(true), "");
  EXPECT_EQ(Undef().WriteToString(false), "");
}

TEST(KccMmInch, ShortFormRoundTripsButLongFormDoesNot) {
  KCC_MmInch unit;
  EXPECT_TRUE(unit.ReadFromString(Inch().WriteToString(false)));
  EXPECT_TRUE(unit.IsInchMode());
  EXPECT_FALSE(unit.ReadFromString(Inch().WriteToString(true)));
  EXPECT_TRUE(unit.IsUndef());
}

TEST(KccMmInch, SetModeMapsDistanceUnits) {
  KCC_MmInch unit;
  unit.SetMode(KCUnitMan::evDistMM);
  EXPECT_TRUE(unit.IsMmMode());
  unit.SetMode(KCUnitMan::evDistInch);
  EXPECT_TRUE(unit.IsInchMode());
  unit.SetMmMode();
  unit.SetMode(KCUnitMan::evDistMil);
  EXPECT_TRUE(unit.IsInchMode());
}

TEST(KccMmInch, SetModeIgnoresUnknownUnits) {
  KCC_MmInch unit = Inch();
  unit.SetMode(static_cast<KCUnitMan::tevDistUnit>(3));
  EXPECT_TRUE(unit.IsInchMode());
  unit.SetMmMode();
  unit.SetMode(static_cast<KCUnitMan::tevDistUnit>(3));
  EXPECT_TRUE(unit.IsMmMode());
}

TEST(KccMmInch, ConstructorFromDistanceUnitUsesSetMode) {
  EXPECT_TRUE(KCC_MmInch(KCUnitMan::evDistMM).IsMmMode());
  EXPECT_TRUE(KCC_MmInch(KCUnitMan::evDistInch).IsInchMode());
  EXPECT_TRUE(KCC_MmInch(KCUnitMan::evDistMil).IsInchMode());
}

TEST(KccMmInch, ConstructorFromUnknownDistanceUnitIsUndefined) {
  EXPECT_TRUE(KCC_MmInch(static_cast<KCUnitMan::tevDistUnit>(3)).IsUndef());
}

TEST(KccMmInch, GetAsUnitIsInchOnlyForInch) {
  EXPECT_EQ(Inch().GetAsUnit(), KCUnitMan::evDistInch);
  EXPECT_EQ(Mm().GetAsUnit(), KCUnitMan::evDistMM);
  EXPECT_EQ(Undef().GetAsUnit(), KCUnitMan::evDistMM);
  EXPECT_EQ(static_cast<int>(Undef().GetAsUnit()), 0);
}

TEST(KccMmInch, InchToMmMultipliesWithoutRounding) {
  EXPECT_DOUBLE_EQ(Inch().Dim_InchMmConvert(1.0), 25.4);
  EXPECT_DOUBLE_EQ(Inch().Dim_InchMmConvert(0.12345), 0.12345 * 25.4);
  EXPECT_DOUBLE_EQ(Inch().Dim_InchMmConvert(-2.0), -50.8);
}

TEST(KccMmInch, InchToMmLeavesMmAndUndefinedAlone) {
  EXPECT_DOUBLE_EQ(Mm().Dim_InchMmConvert(1.23456), 1.23456);
  EXPECT_DOUBLE_EQ(Undef().Dim_InchMmConvert(-7.5), -7.5);
}

TEST(KccMmInch, MmToInchKeepsFourDecimals) {
  EXPECT_DOUBLE_EQ(Inch().Dim_MmInchConvert(25.4), 1.0);
  EXPECT_DOUBLE_EQ(Inch().Dim_MmInchConvert(10.0), 0.3937);
  EXPECT_DOUBLE_EQ(Inch().Dim_MmInchConvert(1.0), 0.0394);
}

TEST(KccMmInch, MmToInchMovesNegativeValuesTowardZero) {
  EXPECT_DOUBLE_EQ(Inch().Dim_MmInchConvert(-25.4), -0.9999);
  // -3937.00787 + 0.5 truncates to -3936, where +10 mm gives 0.3937.
  EXPECT_DOUBLE_EQ(Inch().Dim_MmInchConvert(-10.0), -0.3936);
}

TEST(KccMmInch, MmToInchLeavesMmAndUndefinedAlone) {
  EXPECT_DOUBLE_EQ(Mm().Dim_MmInchConvert(25.4), 25.4);
  EXPECT_DOUBLE_EQ(Mm().Dim_MmInchConvert(-25.4), -25.4);
  EXPECT_DOUBLE_EQ(Undef().Dim_MmInchConvert(-25.4), -25.4);
}

TEST(KccMmInch, MmToInchBeyondTheIntegerRangeStillKeepsFourDecimals) {
  // 1e6 mm is 39370.0787... inch: times 10000 it no longer fits 32 bits.
  EXPECT_DOUBLE_EQ(Inch().Dim_MmInchConvert(1e6), 39370.0787);
}

TEST(KccMmInch, CreateStringWithUnitAppendsTheLongSuffix) {
  EXPECT_EQ(KCC_MmInch::CreateStringWithUnit(12, Mm()), "12MM");
  EXPECT_EQ(KCC_MmInch::CreateStringWithUnit(12, Inch()), "12INCH");
  EXPECT_EQ(KCC_MmInch::CreateStringWithUnit(12, Undef()), "12");
  EXPECT_EQ(KCC_MmInch::CreateStringWithUnit(-3, Mm()), "-3MM");
}

TEST(KccMmInch, CreateStringWithUnitWritesRealDigits) {
  EXPECT_EQ(KCC_MmInch::CreateStringWithUnit(1.5, 2, Mm()), "1.50MM");
  EXPECT_EQ(KCC_MmInch::CreateStringWithUnit(0.25, 3, Inch()), "0.250INCH");
  EXPECT_EQ(KCC_MmInch::CreateStringWithUnit(2.0, 0, Undef()), "2");
}

TEST(KccMmInch, IntReaderConvertsMmToInch) {
  EXPECT_EQ(KCC_MmInch::ConvertStringWithUnitAsInt("254MM", Inch()), 10);
}

TEST(KccMmInch, IntReaderConvertsInchToMm) {
  EXPECT_EQ(KCC_MmInch::ConvertStringWithUnitAsInt("10INCH", Mm()), 254);
}

TEST(KccMmInch, IntReaderKeepsTheNumberWhenTheUnitsAgree) {
  EXPECT_EQ(KCC_MmInch::ConvertStringWithUnitAsInt("254MM", Mm()), 254);
  EXPECT_EQ(KCC_MmInch::ConvertStringWithUnitAsInt("10INCH", Inch()), 10);
  EXPECT_EQ(KCC_MmInch::ConvertStringWithUnitAsInt("254MM", Undef()), 254);
}

TEST(KccMmInch, IntReaderTruncatesTheConvertedValue) {
  EXPECT_EQ(KCC_MmInch::ConvertStringWithUnitAsInt("50MM", Inch()), 1);    // 1.97
  EXPECT_EQ(KCC_MmInch::ConvertStringWithUnitAsInt("-50MM", Inch()), -1);  // -1.97
  EXPECT_EQ(KCC_MmInch::ConvertStringWithUnitAsInt("3INCH", Mm()), 76);    // 76.2
}

TEST(KccMmInch, IntReaderReadsTextWithoutSuffixWholeWithDefaultMinusOne) {
  EXPECT_EQ(KCC_MmInch::ConvertStringWithUnitAsInt("42", Inch()), 42);
  EXPECT_EQ(KCC_MmInch::ConvertStringWithUnitAsInt("abc", Mm()), -1);
  EXPECT_EQ(KCC_MmInch::ConvertStringWithUnitAsInt("", Mm()), -1);
}

TEST(KccMmInch, IntReaderDoesNotTakeShortInchAsSuffix) {
  EXPECT_EQ(KCC_MmInch::ConvertStringWithUnitAsInt("10IN", Mm()), 10);
}

TEST(KccMmInch, IntReaderGivesZeroForNoNumberBeforeSuffix) {
  EXPECT_EQ(KCC_MmInch::ConvertStringWithUnitAsInt("MM", Inch()), 0);
  EXPECT_EQ(KCC_MmInch::ConvertStringWithUnitAsInt("xINCH", Mm()), 0);
}

TEST(KccMmInch, IntReaderTakesMmWhenBothSuffixesOccur) {
  // "INCH" is ignored once "MM" is found: the text before "MM" is "10INCH", read as 10.
  EXPECT_EQ(KCC_MmInch::ConvertStringWithUnitAsInt("10INCHMM", Mm()), 10);
  EXPECT_EQ(KCC_MmInch::ConvertStringWithUnitAsInt("254MM1INCH", Inch()), 10);
}

TEST(KccMmInch, IntReaderSaturatesAtTheIntRange) {
  EXPECT_EQ(KCC_MmInch::ConvertStringWithUnitAsInt("2000000000INCH", Mm()), 2147483647);
  EXPECT_EQ(KCC_MmInch::ConvertStringWithUnitAsInt("-2000000000INCH", Mm()), -2147483647 - 1);
}

TEST(KccMmInch, DoubleReaderConvertsMmToInch) {
  EXPECT_DOUBLE_EQ(KCC_MmInch::ConvertStringWithUnitAsDouble("254MM", Inch()), 10.0);
  EXPECT_DOUBLE_EQ(KCC_MmInch::ConvertStringWithUnitAsDouble("12.7MM", Inch()), 0.5);
}

TEST(KccMmInch, DoubleReaderDoesNotConvertInchToMm) {
  EXPECT_DOUBLE_EQ(KCC_MmInch::ConvertStringWithUnitAsDouble("10INCH", Mm()), 10.0);
}

TEST(KccMmInch, DoubleReaderDividesTextWithoutSuffixForInch) {
  EXPECT_DOUBLE_EQ(KCC_MmInch::ConvertStringWithUnitAsDouble("25.4", Inch()), 1.0);
  EXPECT_DOUBLE_EQ(KCC_MmInch::ConvertStringWithUnitAsDouble("25.4", Mm()), 25.4);
}

TEST(KccMmInch, DoubleReaderGivesZeroNotMinusOneForNoNumber) {
  EXPECT_DOUBLE_EQ(KCC_MmInch::ConvertStringWithUnitAsDouble("abc", Mm()), 0.0);
  EXPECT_DOUBLE_EQ(KCC_MmInch::ConvertStringWithUnitAsDouble("", Inch()), 0.0);
  EXPECT_DOUBLE_EQ(KCC_MmInch::ConvertStringWithUnitAsDouble("MM", Inch()), 0.0);
}
