// SPDX-License-Identifier: MIT
// nckit pattern, run as a program.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/NckitFixture.h"

namespace {

struct PatternRow {
  std::string name;
  std::vector<std::string> args;
  std::string out;
};

class NckitPattern : public NckitTest {};

class NckitPatternPositions : public NckitParamTest<PatternRow> {};

std::vector<std::string> PatternArgs(const std::vector<std::string>& args) {
  std::vector<std::string> all = {"pattern"};
  all.insert(all.end(), args.begin(), args.end());
  return all;
}

}  // namespace

TEST_P(NckitPatternPositions, WritesOnePairALine) {
  const ChildResult r = Run(PatternArgs(GetParam().args));
  EXPECT_EQ(r.exitCode, 0) << r.err;
  EXPECT_EQ(r.out, GetParam().out);
  EXPECT_EQ(r.err, "");
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, NckitPatternPositions,
    ::testing::Values(
        PatternRow{"LinearRowAtNinetyDegrees",
                   {"linear", "--angle", "90", "--distance", "10", "--count", "3"},
                   "0 0\n0 10\n0 20\n"},
        PatternRow{"LinearAngleDefaultsToZero",
                   {"linear", "--distance", "2.5", "--count", "3"},
                   "0 0\n2.5 0\n5 0\n"},
        PatternRow{"LinearNegativeAngle",
                   {"linear", "--angle", "-90", "--distance", "4", "--count", "2"},
                   "0 0\n0 -4\n"},
        PatternRow{"LinearSingleCopy", {"linear", "--distance", "4", "--count", "1"}, "0 0\n"},
        PatternRow{"GridRowByRow",
                   {"grid", "--dx", "5", "--dy", "7", "--columns", "3", "--rows", "2"},
                   "0 0\n5 0\n10 0\n0 7\n5 7\n10 7\n"},
        PatternRow{"GridWithNoColumnsIsTheFirstCopyOnly",
                   {"grid", "--dx", "5", "--dy", "7", "--columns", "0", "--rows", "3"},
                   "0 0\n"},
        PatternRow{"CircularQuarterSteps",
                   {"circular", "--radius", "10", "--step", "90"},
                   "10 0\n0 10\n-10 0\n0 -10\n"},
        PatternRow{"CircularNegativeStepEndsOnTheFirstCopy",
                   {"circular", "--radius", "10", "--step", "-90"},
                   "10 0\n0 -10\n-10 0\n0 10\n10 0\n"},
        PatternRow{"CircularStartAngle",
                   {"circular", "--radius", "2", "--start", "90", "--step", "180"},
                   "0 2\n0 -2\n"},
        PatternRow{"OriginIsAdded",
                   {"linear", "--distance", "1", "--count", "2", "--origin", "100,-5"},
                   "100 -5\n101 -5\n"},
        PatternRow{"NegativeOriginAfterTheOptionName",
                   {"linear", "--distance", "1", "--count", "1", "--origin=-1.5,-2"},
                   "-1.5 -2\n"},
        PatternRow{"LimitStopsEarly",
                   {"grid", "--dx", "1", "--dy", "1", "--columns", "4", "--rows", "4", "--limit", "3"},
                   "0 0\n1 0\n2 0\n"},
        PatternRow{"DigitsRoundTheOutput",
                   {"linear", "--distance", "0.123456", "--count", "2", "--digits", "2"},
                   "0 0\n0.12 0\n"},
        PatternRow{"DigitsMinusOneWritesTheExactText",
                   {"circular", "--radius", "1", "--start", "30", "--step", "360", "--digits", "-1"},
                   "0.8660254037844387 0.49999999999999994\n"}),
    NckitRowName());

TEST_F(NckitPattern, WritesAJsonArrayOfPairs) {
  const ChildResult r = Run({"pattern", "linear", "--distance", "3", "--count", "3", "--json"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "[[0, 0],\n [3, 0],\n [6, 0]]\n");
}

TEST_F(NckitPattern, StreamsAHugeGridUpToTheLimit) {
  // 10,000 x 10,000 = 100,000,000 positions: only the first ones are made.
  const ChildResult r = Run({"pattern", "grid", "--dx", "1", "--dy", "2", "--columns", "10000", "--rows",
                             "10000", "--limit", "10001"});
  ASSERT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.substr(r.out.size() - 11), "9999 0\n0 2\n");
  EXPECT_EQ(std::count(r.out.begin(), r.out.end(), '\n'), 10001);
}

struct PatternErrorRow {
  std::string name;
  std::vector<std::string> args;
  int exitCode;
  std::string errContains;
};

class NckitPatternErrors : public NckitParamTest<PatternErrorRow> {};

TEST_P(NckitPatternErrors, GiveAClearMessageAndNoPositions) {
  const ChildResult r = Run(PatternArgs(GetParam().args), 20.0);
  EXPECT_FALSE(r.timedOut);
  EXPECT_EQ(r.exitCode, GetParam().exitCode);
  EXPECT_NE(r.err.find(GetParam().errContains), std::string::npos) << r.err;
  EXPECT_EQ(r.out, "");
}

INSTANTIATE_TEST_SUITE_P(
    Refusals, NckitPatternErrors,
    ::testing::Values(
        PatternErrorRow{"NegativeCount",
                        {"linear", "--distance", "1", "--count", "-3"},
                        2,
                        "nckit pattern linear: --count '-3' is not a whole number"},
        PatternErrorRow{"NegativeRows",
                        {"grid", "--dx", "1", "--dy", "1", "--columns", "2", "--rows", "-1"},
                        2,
                        "--rows '-1' is not a whole number"},
        PatternErrorRow{"NanDistance",
                        {"linear", "--distance", "nan", "--count", "3"},
                        2,
                        "--distance 'nan' is not a finite number"},
        PatternErrorRow{"InfiniteAngle",
                        {"linear", "--angle", "inf", "--distance", "1", "--count", "3"},
                        2,
                        "--angle 'inf' is not a finite number"},
        PatternErrorRow{"NanStep",
                        {"circular", "--radius", "1", "--step", "nan"},
                        2,
                        "--step 'nan' is not a finite number"},
        PatternErrorRow{"HugeStartAngle",
                        {"circular", "--radius", "1", "--start", "1e300", "--step", "1"},
                        2,
                        "--start '1e300' is beyond +/-1e9 degrees"},
        PatternErrorRow{"ZeroRadius",
                        {"circular", "--radius", "0", "--step", "10"},
                        1,
                        "nckit pattern circular: the pattern gives no position"},
        PatternErrorRow{"ZeroStep", {"circular", "--radius", "5", "--step", "0"}, 1, "gives no position"},
        PatternErrorRow{"ZeroCount", {"linear", "--distance", "5", "--count", "0"}, 1, "(a count of 0)"},
        PatternErrorRow{"EmptyGrid",
                        {"grid", "--dx", "1", "--dy", "1", "--columns", "0", "--rows", "0"},
                        1,
                        "gives no position"},
        PatternErrorRow{"MissingCount", {"linear", "--distance", "5"}, 2, "missing --count"},
        PatternErrorRow{"MissingRadius", {"circular", "--step", "5"}, 2, "missing --radius"},
        PatternErrorRow{"UnknownKind", {"spiral"}, 2, "unknown pattern kind 'spiral'"},
        PatternErrorRow{"BadOrigin",
                        {"linear", "--distance", "1", "--count", "1", "--origin", "1;2"},
                        2,
                        "--origin '1;2' is not two finite numbers X,Y"},
        PatternErrorRow{"OptionOfAnotherKind",
                        {"linear", "--distance", "1", "--count", "1", "--radius", "3"},
                        2,
                        "--radius"}),
    NckitRowName());

TEST_F(NckitPattern, OverflowWritesThePositionsBeforeIt) {
  const ChildResult r = Run({"pattern", "linear", "--distance", "1e308", "--count", "3", "--digits", "0"});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.out.substr(0, 2), "0 ");
  EXPECT_EQ(std::count(r.out.begin(), r.out.end(), '\n'), 2);
}

TEST_F(NckitPattern, HelpNamesTheThreeKinds) {
  const ChildResult r = Run({"pattern", "--help"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_NE(r.out.find("nckit pattern linear"), std::string::npos);
  EXPECT_NE(r.out.find("nckit pattern grid"), std::string::npos);
  EXPECT_NE(r.out.find("nckit pattern circular"), std::string::npos);
}
