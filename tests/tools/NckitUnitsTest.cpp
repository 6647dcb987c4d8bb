// SPDX-License-Identifier: MIT
// nckit units, run as a program.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/NckitFixture.h"

namespace {

class NckitUnits : public NckitTest {};

}  // namespace

TEST_F(NckitUnits, ConvertsMmToInchAsAnAxisPosition) {
  const ChildResult r = Run({"units", "25.4", "--from", "mm", "--to", "inch"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "1.0000\n");
  EXPECT_EQ(r.err, "");
}

struct ConversionRow {
  const char* name;
  std::vector<std::string> args;
  const char* out;
};

class NckitUnitsConversion : public NckitParamTest<ConversionRow> {};

TEST_P(NckitUnitsConversion, WritesTheRoundedValue) {
  std::vector<std::string> args = {"units"};
  args.insert(args.end(), GetParam().args.begin(), GetParam().args.end());
  const ChildResult r = Run(args);
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, std::string(GetParam().out) + "\n");
  EXPECT_EQ(r.err, "");
}

INSTANTIATE_TEST_SUITE_P(
    Values, NckitUnitsConversion,
    ::testing::Values(
        ConversionRow{"InchToMmAxis", {"1", "--from", "inch", "--to", "mm"}, "25.400"},
        ConversionRow{
            "InchToMmDimension", {"2", "--from", "inch", "--to", "mm", "--quantity", "dimension"}, "50.8"},
        ConversionRow{"RoundsHalfAwayFromZero", {"1.23456", "--from", "mm", "--to", "mm"}, "1.235"},
        ConversionRow{"RoundsNegativeHalfAwayFromZero", {"-1.23456", "--from", "mm", "--to", "mm"}, "-1.235"},
        ConversionRow{"NegativeMmToInchKeepsTheLibrarysTruncation",
                      {"-25.4", "--from", "mm", "--to", "inch"},
                      "-0.9999"},
        ConversionRow{"MmThicknessDigits",
                      {"1.23456", "--from", "mm", "--to", "mm", "--quantity", "thickness"},
                      "1.23"},
        ConversionRow{"InchThicknessDigits",
                      {"1.23456", "--from", "inch", "--to", "inch", "--quantity", "thickness"},
                      "1.2346"},
        ConversionRow{"SpecificWeightDigits",
                      {"7.85", "--from", "mm", "--to", "mm", "--quantity", "specweight"},
                      "7.9"},
        ConversionRow{"WeightIsNotConvertedToInch",
                      {"12.5", "--from", "mm", "--to", "inch", "--quantity", "weight"},
                      "13"},
        ConversionRow{"WeightIsNotConvertedToMm",
                      {"12.34", "--from", "inch", "--to", "mm", "--quantity=weight"},
                      "12.3"}),
    NckitRowName());

TEST_F(NckitUnits, OptionsTakeTheEqualsForm) {
  EXPECT_EQ(Run({"units", "--from=mm", "--to=inch", "50.8"}).out, "2.0000\n");
}

struct BadInputRow {
  const char* name;
  std::vector<std::string> args;
  const char* err;
};

class NckitUnitsBadInput : public NckitParamTest<BadInputRow> {};

TEST_P(NckitUnitsBadInput, IsAUsageErrorThatSaysWhy) {
  std::vector<std::string> args = {"units"};
  args.insert(args.end(), GetParam().args.begin(), GetParam().args.end());
  const ChildResult r = Run(args);
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, std::string("nckit units: ") + GetParam().err + " (try 'nckit units --help')\n");
}

INSTANTIATE_TEST_SUITE_P(
    CommandLines, NckitUnitsBadInput,
    ::testing::Values(
        BadInputRow{"NotANumber", {"abc", "--from", "mm", "--to", "inch"}, "not a number: 'abc'"},
        BadInputRow{"UnknownUnit", {"1", "--from", "cm", "--to", "inch"}, "unknown unit 'cm' (mm or inch)"},
        BadInputRow{"UnknownQuantity",
                    {"1", "--from", "mm", "--to", "inch", "--quantity", "volume"},
                    "unknown quantity 'volume'"},
        BadInputRow{"MissingTo", {"1", "--from", "mm"}, "missing --to"},
        BadInputRow{"MissingValue", {"--from", "mm", "--to", "mm"}, "missing value"},
        BadInputRow{"TwoValues", {"1", "2", "--from", "mm", "--to", "mm"}, "more than one value: '2'"},
        BadInputRow{"OptionWithoutItsValue", {"1", "--from", "mm", "--to"}, "option '--to' needs a value"},
        BadInputRow{"UnknownOptionWithAValue",
                    {"1", "--from", "mm", "--to", "mm", "--speed", "3"},
                    "unknown option '--speed'"}),
    NckitRowName());

TEST_F(NckitUnits, UnknownOptionIsNamedAsSuch) {
  const ChildResult r = Run({"units", "--precision"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit units: unknown option '--precision' (try 'nckit units --help')\n");
}

TEST_F(NckitUnits, ShortHelpOptionShowsTheHelp) {
  const ChildResult r = Run({"units", "-h"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.rfind("usage: nckit units", 0), 0u);
  EXPECT_EQ(r.err, "");
}

TEST_F(NckitUnits, NegativeValueAfterDoubleDash) {
  const ChildResult r = Run({"units", "--from", "mm", "--to", "inch", "--", "-25.4"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "-0.9999\n");
}

TEST_F(NckitUnits, ValueBeyondTheDoubleRangeIsRefused) {
  const ChildResult r = Run({"units", "1e400", "--from", "mm", "--to", "mm"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, "nckit units: value '1e400' is out of range\n");
}

TEST_F(NckitUnits, ValueThatOverflowsInTheConversionIsRefused) {
  const ChildResult r = Run({"units", "1e308", "--from", "inch", "--to", "mm"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, "nckit units: value '1e308' is out of range: at most 2147483.647 mm after conversion\n");
}

TEST_F(NckitUnits, LargestAxisPositionInMmIsConverted) {
  const ChildResult r = Run({"units", "-2147483.647", "--from", "mm", "--to", "mm"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "-2147483.647\n");
}

TEST_F(NckitUnits, ValueBeyondTheRoundingRangeIsRefused) {
  const ChildResult r = Run({"units", "1e305", "--from", "mm", "--to", "mm"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, "nckit units: value '1e305' is out of range: at most 2147483.647 mm after conversion\n");
}

TEST_F(NckitUnits, RangeOfAnInchDimensionFollowsTheConversionSteps) {
  const ChildResult r = Run({"units", "6000000", "--from", "mm", "--to", "inch", "--quantity", "dimension"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err,
            "nckit units: value '6000000' is out of range: at most 214748.3647 inch after conversion\n");
}

TEST_F(NckitUnits, NegativeValueBeforeTheOptions) {
  const ChildResult r = Run({"units", "-5", "--from", "mm", "--to", "inch"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "-0.1968\n");
}

TEST_F(NckitUnits, NegativeValueStartingWithAPoint) {
  const ChildResult r = Run({"units", "-.5", "--from", "inch", "--to", "mm"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "-12.700\n");
}

TEST_F(NckitUnits, ValueThatRoundsToZeroHasNoMinus) {
  const ChildResult r = Run({"units", "-0.0001", "--from", "mm", "--to", "mm"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "0.000\n");
}

TEST_F(NckitUnits, ConvertedValueThatRoundsToZeroHasNoMinus) {
  const ChildResult r = Run({"units", "-0.00001", "--from", "inch", "--to", "mm", "--quantity", "dimension"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.find('-'), std::string::npos) << r.out;
}

TEST_F(NckitUnits, LaterOptionReplacesAnEarlierOne) {
  EXPECT_EQ(Run({"units", "1", "--from", "mm", "--from", "inch", "--to", "mm"}).out, "25.400\n");
}
