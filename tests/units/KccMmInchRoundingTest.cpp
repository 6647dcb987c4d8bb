// SPDX-License-Identifier: MIT
// Rounding and formatting of the five quantities in the referenced unit.
#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <string>

#include "ncappkit/units/KCC_MmInch.h"
#include "support/TestData.h"

namespace {

// The digits behind the point of each quantity for one unit selection.
struct DigitsCase {
  const char* name;
  KCC_MmInch::eMmInchSel sel;
  int axis;
  int dimension;
  int thickness;
  int weight;
  int specificWeight;
};

const DigitsCase kDigitsCases[] = {
    {"mm", KCC_MmInch::eMmInchMm, 3, 1, 2, 1, 1},
    {"inch", KCC_MmInch::eMmInchInch, 4, 3, 4, 0, 3},
    {"undefined", KCC_MmInch::eMmInchUndef, 10, 10, 10, 10, 10},
};

class KccMmInchRoundingDigits : public ::testing::TestWithParam<DigitsCase> {};

}  // namespace

TEST_P(KccMmInchRoundingDigits, DigitsFollowTheTableForTheUnit) {
  const DigitsCase& c = GetParam();
  const KCC_MmInch unit(c.sel);
  const KCC_MmInch_Rounding round(unit);
  EXPECT_EQ(round.DigitsBehindAxis(), c.axis);
  EXPECT_EQ(round.DigitsBehindDimension(), c.dimension);
  EXPECT_EQ(round.DigitsBehindThickness(), c.thickness);
  EXPECT_EQ(round.DigitsBehindWeight(), c.weight);
  EXPECT_EQ(round.DigitsBehindSpecificWeight(), c.specificWeight);
}

INSTANTIATE_TEST_SUITE_P(Units, KccMmInchRoundingDigits, ::testing::ValuesIn(kDigitsCases), RowName());

TEST(KccMmInchRounding, AxisRoundsHalfAwayFromZeroForBothSigns) {
  const KCC_MmInch mm(KCC_MmInch::eMmInchMm);
  const KCC_MmInch_Rounding round(mm);
  EXPECT_DOUBLE_EQ(round.RoundAxis(1.23456), 1.235);
  EXPECT_DOUBLE_EQ(round.RoundAxis(-1.23456), -1.235);
  EXPECT_DOUBLE_EQ(round.RoundAxis(2.0625), 2.063);
  EXPECT_DOUBLE_EQ(round.RoundAxis(-2.0625), -2.063);
}

TEST(KccMmInchRounding, AxisInInchKeepsFourDecimals) {
  const KCC_MmInch inch(KCC_MmInch::eMmInchInch);
  const KCC_MmInch_Rounding round(inch);
  EXPECT_DOUBLE_EQ(round.RoundAxis(1.23456), 1.2346);
  EXPECT_DOUBLE_EQ(round.RoundAxis(-1.23454), -1.2345);
}

TEST(KccMmInchRounding, OtherQuantitiesUseTheirDigits) {
  const KCC_MmInch mm(KCC_MmInch::eMmInchMm);
  const KCC_MmInch inch(KCC_MmInch::eMmInchInch);
  const KCC_MmInch_Rounding roundMm(mm);
  const KCC_MmInch_Rounding roundInch(inch);
  EXPECT_DOUBLE_EQ(roundMm.RoundDimension(12.345), 12.3);
  EXPECT_DOUBLE_EQ(roundInch.RoundDimension(12.3456), 12.346);
  EXPECT_DOUBLE_EQ(roundMm.RoundThickness(1.005001), 1.01);
  EXPECT_DOUBLE_EQ(roundInch.RoundThickness(0.12344), 0.1234);
  EXPECT_DOUBLE_EQ(roundMm.RoundSpecificWeight(7.85), 7.9);
  EXPECT_DOUBLE_EQ(roundInch.RoundSpecificWeight(0.28361), 0.284);
}

TEST(KccMmInchRounding, RoundedValueIsTheStepCountDividedByTheScale) {
  // 9 steps of 0.001: 9 / 1000.0 is the double of "0.009", while 9 * 0.001 would be one bit above it.
  const KCC_MmInch mm(KCC_MmInch::eMmInchMm);
  const KCC_MmInch_Rounding round(mm);
  EXPECT_EQ(round.RoundAxis(0.0090004), 0.009);
  EXPECT_EQ(round.RoundAxis(-0.0090004), -0.009);
  EXPECT_EQ(round.RoundAxis(0.036), 0.036);
}

TEST(KccMmInchRounding, WeightInInchRoundsToWholeNumbers) {
  const KCC_MmInch inch(KCC_MmInch::eMmInchInch);
  const KCC_MmInch_Rounding round(inch);
  EXPECT_DOUBLE_EQ(round.RoundWeight(12.5), 13.0);
  EXPECT_DOUBLE_EQ(round.RoundWeight(12.49), 12.0);
  EXPECT_DOUBLE_EQ(round.RoundWeight(-12.5), -13.0);
}

TEST(KccMmInchRounding, WeightInMmKeepsOneDecimal) {
  const KCC_MmInch mm(KCC_MmInch::eMmInchMm);
  const KCC_MmInch_Rounding round(mm);
  EXPECT_DOUBLE_EQ(round.RoundWeight(12.34), 12.3);
}

TEST(KccMmInchRounding, UndefinedReturnsTheMagnitudeOfNegativeValues) {
  const KCC_MmInch undef;
  const KCC_MmInch_Rounding round(undef);
  EXPECT_DOUBLE_EQ(round.RoundAxis(-5.0), 5.0);
  EXPECT_DOUBLE_EQ(round.RoundWeight(-12.34), 12.34);
}

TEST(KccMmInchRounding, UndefinedKeepsTinyNegativeValues) {
  const KCC_MmInch undef;
  const KCC_MmInch_Rounding round(undef);
  EXPECT_DOUBLE_EQ(round.RoundAxis(-5e-8), -5e-8);
}

TEST(KccMmInchRounding, UndefinedAppliesNoDigits) {
  const KCC_MmInch undef;
  const KCC_MmInch_Rounding round(undef);
  EXPECT_DOUBLE_EQ(round.RoundAxis(1.23456789012345), 1.23456789012345);
}

TEST(KccMmInchRounding, TinyNegativeValuesCountAsPositive) {
  // -1e-7 itself is not below the threshold: it rounds as a positive value to 0.
  const KCC_MmInch mm(KCC_MmInch::eMmInchMm);
  const KCC_MmInch_Rounding round(mm);
  EXPECT_DOUBLE_EQ(round.RoundAxis(-1e-7), 0.0);
  EXPECT_FALSE(std::signbit(round.RoundAxis(-1e-7)));
}

TEST(KccMmInchRounding, FollowsALaterChangeOfTheSelection) {
  KCC_MmInch unit(KCC_MmInch::eMmInchMm);
  const KCC_MmInch_Rounding round(unit);
  EXPECT_DOUBLE_EQ(round.RoundAxis(1.23456), 1.235);
  unit.SetInchMode();
  EXPECT_DOUBLE_EQ(round.RoundAxis(1.23456), 1.2346);
  EXPECT_EQ(round.DigitsBehindAxis(), 4);
}

TEST(KccMmInchRounding, BeyondTheIntegerRangeRoundsAsAWiderIntegerWould) {
  // 2,147,483.6476 mm at 3 digits scales past 2^31 - 1.
  const KCC_MmInch mm(KCC_MmInch::eMmInchMm);
  const KCC_MmInch_Rounding round(mm);
  EXPECT_DOUBLE_EQ(round.RoundAxis(2147483.6476), 2147483.648);
  EXPECT_DOUBLE_EQ(round.RoundAxis(-3e6), -3e6);
}

TEST(KccMmInchRounding, PassesNanAndInfinityThrough) {
  const KCC_MmInch mm(KCC_MmInch::eMmInchMm);
  const KCC_MmInch_Rounding round(mm);
  EXPECT_TRUE(std::isnan(round.RoundAxis(std::numeric_limits<double>::quiet_NaN())));
  EXPECT_EQ(round.RoundAxis(std::numeric_limits<double>::infinity()),
            std::numeric_limits<double>::infinity());
  EXPECT_EQ(round.RoundAxis(-std::numeric_limits<double>::infinity()),
            -std::numeric_limits<double>::infinity());
}

TEST(KccMmInchFormat, MmAndInchWriteTheirDigits) {
  const KCC_MmInch mm(KCC_MmInch::eMmInchMm);
  const KCC_MmInch inch(KCC_MmInch::eMmInchInch);
  const KCC_MmInch_Format fmm(mm);
  const KCC_MmInch_Format finch(inch);
  EXPECT_EQ(fmm.FormatAxisPos(1.5), "1.500");
  EXPECT_EQ(finch.FormatAxisPos(1.5), "1.5000");
  EXPECT_EQ(fmm.FormatDimension(12.34), "12.3");
  EXPECT_EQ(finch.FormatDimension(0.5), "0.500");
  EXPECT_EQ(fmm.FormatThickness(2.0), "2.00");
  EXPECT_EQ(finch.FormatThickness(0.0625), "0.0625");
  EXPECT_EQ(fmm.FormatWeight(12.34), "12.3");
  EXPECT_EQ(fmm.FormatSpecWeight(7.85), "7.8");  // 7.85 is stored a little below 7.85
  EXPECT_EQ(finch.FormatSpecWeight(0.2836), "0.284");
  EXPECT_EQ(fmm.FormatAxisPos(-1.2345), "-1.234");  // -1.2345 is stored a little above -1.2345
}

TEST(KccMmInchFormat, WeightInInchTruncatesToAWholeNumber) {
  const KCC_MmInch inch(KCC_MmInch::eMmInchInch);
  const KCC_MmInch_Format format(inch);
  EXPECT_EQ(format.FormatWeight(12.9), "12");
  EXPECT_EQ(format.FormatWeight(-12.9), "-12");
  EXPECT_EQ(format.FormatWeight(0.4), "0");
}

TEST(KccMmInchFormat, UndefinedWritesSixDecimals) {
  const KCC_MmInch undef;
  const KCC_MmInch_Format format(undef);
  EXPECT_EQ(format.FormatAxisPos(1.5), "1.500000");
  EXPECT_EQ(format.FormatWeight(-12.9), "-12.900000");
  EXPECT_EQ(format.FormatDimension(1234567.1234567), "1234567.123457");
  EXPECT_EQ(format.FormatThickness(-2.5e-7), "-0.000000");
}

TEST(KccMmInchFormat, UndefinedKeepsAtMost49Characters) {
  const KCC_MmInch undef;
  const KCC_MmInch_Format format(undef);
  EXPECT_EQ(format.FormatSpecWeight(1e60), "9999999999999999493871352970740188669636450110134");
}

TEST(KccMmInchFormat, DoesNotRoundBeforeWriting) {
  // Rounding 0.05 would give 0.1 (half away from zero); the text is made from the stored value directly.
  const KCC_MmInch mm(KCC_MmInch::eMmInchMm);
  const KCC_MmInch_Format format(mm);
  const KCC_MmInch_Rounding round(mm);
  EXPECT_DOUBLE_EQ(round.RoundDimension(0.25), 0.3);
  EXPECT_EQ(format.FormatDimension(0.25), "0.2");
}

TEST(KccMmInchFormat, FollowsALaterChangeOfTheSelection) {
  KCC_MmInch unit;
  const KCC_MmInch_Format format(unit);
  EXPECT_EQ(format.FormatWeight(12.9), "12.900000");
  unit.SetInchMode();
  EXPECT_EQ(format.FormatWeight(12.9), "12");
  unit.SetMmMode();
  EXPECT_EQ(format.FormatWeight(12.9), "12.9");
}

TEST(KccMmInchFormat, TextDoesNotDependOnTheLocale) {
  const std::string old = std::setlocale(LC_ALL, nullptr);
  if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr && std::setlocale(LC_ALL, "de_DE") == nullptr)
    GTEST_SKIP() << "de_DE locale not installed";
  const KCC_MmInch undef;
  const KCC_MmInch mm(KCC_MmInch::eMmInchMm);
  const std::string undefText = KCC_MmInch_Format(undef).FormatAxisPos(1.5).str();
  const std::string mmText = KCC_MmInch_Format(mm).FormatAxisPos(1.5).str();
  const double read =
      KCC_MmInch::ConvertStringWithUnitAsDouble("12.7MM", KCC_MmInch(KCC_MmInch::eMmInchInch));
  std::setlocale(LC_ALL, old.c_str());
  EXPECT_EQ(undefText, "1.500000");
  EXPECT_EQ(mmText, "1.500");
  EXPECT_DOUBLE_EQ(read, 0.5);
}
