// SPDX-License-Identifier: MIT
// nckit units, run as a program.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/ChildProcess.h"

namespace {

ChildResult Units(const std::vector<std::string>& args) {
  std::vector<std::string> argv = {NCKIT_EXE, "units"};
  argv.insert(argv.end(), args.begin(), args.end());
  return RunChild(argv);
}

class NckitUnits : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!CanRunChildren())
      GTEST_SKIP() << "cannot run programs here";
  }
};

}  // namespace

TEST_F(NckitUnits, ConvertsMmToInchAsAnAxisPosition) {
  const ChildResult r = Units({"25.4", "--from", "mm", "--to", "inch"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "1.0000\n");
  EXPECT_EQ(r.err, "");
}

TEST_F(NckitUnits, ConvertsInchToMm) {
  EXPECT_EQ(Units({"1", "--from", "inch", "--to", "mm"}).out, "25.400\n");
  EXPECT_EQ(Units({"2", "--from", "inch", "--to", "mm", "--quantity", "dimension"}).out, "50.8\n");
}

TEST_F(NckitUnits, RoundsHalfAwayFromZero) {
  EXPECT_EQ(Units({"1.23456", "--from", "mm", "--to", "mm"}).out, "1.235\n");
  EXPECT_EQ(Units({"-1.23456", "--from", "mm", "--to", "mm"}).out, "-1.235\n");
}

TEST_F(NckitUnits, NegativeMmToInchKeepsTheLibrarysTruncation) {
  EXPECT_EQ(Units({"-25.4", "--from", "mm", "--to", "inch"}).out, "-0.9999\n");
}

TEST_F(NckitUnits, QuantitiesUseTheirDigits) {
  EXPECT_EQ(Units({"1.23456", "--from", "mm", "--to", "mm", "--quantity", "thickness"}).out, "1.23\n");
  EXPECT_EQ(Units({"1.23456", "--from", "inch", "--to", "inch", "--quantity", "thickness"}).out, "1.2346\n");
  EXPECT_EQ(Units({"7.85", "--from", "mm", "--to", "mm", "--quantity", "specweight"}).out, "7.9\n");
}

TEST_F(NckitUnits, WeightsAreNotConvertedButRounded) {
  EXPECT_EQ(Units({"12.5", "--from", "mm", "--to", "inch", "--quantity", "weight"}).out, "13\n");
  EXPECT_EQ(Units({"12.34", "--from", "inch", "--to", "mm", "--quantity=weight"}).out, "12.3\n");
}

TEST_F(NckitUnits, OptionsTakeTheEqualsForm) {
  EXPECT_EQ(Units({"--from=mm", "--to=inch", "50.8"}).out, "2.0000\n");
}

TEST_F(NckitUnits, BadInputIsAUsageError) {
  const std::vector<std::vector<std::string>> cases = {
      {"abc", "--from", "mm", "--to", "inch"},
      {"1", "--from", "cm", "--to", "inch"},
      {"1", "--from", "mm", "--to", "inch", "--quantity", "volume"},
      {"1", "--from", "mm"},
      {"--from", "mm", "--to", "mm"},
      {"1", "2", "--from", "mm", "--to", "mm"},
      {"1", "--from", "mm", "--to"},
      {"1", "--from", "mm", "--to", "mm", "--speed", "3"},
  };
  for (const auto& args : cases) {
    SCOPED_TRACE(args.front());
    const ChildResult r = Units(args);
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_EQ(r.out, "");
    EXPECT_EQ(r.err.rfind("nckit units: ", 0), 0u) << r.err;
  }
}

TEST_F(NckitUnits, UnknownOptionIsNamedAsSuch) {
  const ChildResult r = Units({"--precision"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit units: unknown option '--precision' (try 'nckit units --help')\n");
}

TEST_F(NckitUnits, ShortHelpOptionShowsTheHelp) {
  const ChildResult r = Units({"-h"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.rfind("usage: nckit units", 0), 0u);
  EXPECT_EQ(r.err, "");
}

TEST_F(NckitUnits, NegativeValueAfterDoubleDash) {
  const ChildResult r = Units({"--from", "mm", "--to", "inch", "--", "-25.4"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "-0.9999\n");
}

TEST_F(NckitUnits, ValueBeyondTheDoubleRangeIsRefused) {
  const ChildResult r = Units({"1e400", "--from", "mm", "--to", "mm"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, "nckit units: value '1e400' is out of range\n");
}

TEST_F(NckitUnits, ValueThatOverflowsInTheConversionIsRefused) {
  const ChildResult r = Units({"1e308", "--from", "inch", "--to", "mm"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, "nckit units: value '1e308' is out of range: at most 2147483.647 mm after conversion\n");
}

TEST_F(NckitUnits, LargestAxisPositionInMmIsConverted) {
  const ChildResult r = Units({"-2147483.647", "--from", "mm", "--to", "mm"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "-2147483.647\n");
}

TEST_F(NckitUnits, ValueBeyondTheRoundingRangeIsRefused) {
  const ChildResult r = Units({"1e305", "--from", "mm", "--to", "mm"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, "nckit units: value '1e305' is out of range: at most 2147483.647 mm after conversion\n");
}

TEST_F(NckitUnits, RangeOfAnInchDimensionFollowsTheConversionSteps) {
  const ChildResult r = Units({"6000000", "--from", "mm", "--to", "inch", "--quantity", "dimension"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err,
            "nckit units: value '6000000' is out of range: at most 214748.3647 inch after conversion\n");
}
