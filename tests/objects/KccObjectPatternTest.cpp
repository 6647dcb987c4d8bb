// SPDX-License-Identifier: MIT
// Placement patterns: the positions each kind hands out, the circular full-turn rule, texts, copies and
// clones, and the sequences' ends for NaN, infinite and very large values.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <typeinfo>
#include <utility>
#include <vector>

#include "ncappkit/objects/KCC_ObjectPattern.h"
#include "support/TestData.h"

namespace {

using Point = std::pair<double, double>;
using Positions = std::vector<Point>;

const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();

// Every position of the pattern through the first/next protocol. Stops after `limit` positions, so a
// sequence that does not end shows as too many positions instead of hanging the test.
Positions AllPositions(KCC_ObjectPattern& pattern, std::size_t limit = 1000) {
  Positions positions;
  double x = 0.0;
  double y = 0.0;
  for (bool more = pattern.GetFirstPosition(x, y); more && positions.size() < limit;
       more = pattern.GetNextPosition(x, y))
    positions.emplace_back(x, y);
  return positions;
}

void ExpectPositionsNear(const Positions& actual, const Positions& expected) {
  ASSERT_EQ(actual.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_NEAR(actual[i].first, expected[i].first, 1e-9) << "position " << i;
    EXPECT_NEAR(actual[i].second, expected[i].second, 1e-9) << "position " << i;
  }
}

struct SequenceCase {
  const char* name;
  std::function<std::unique_ptr<KCC_ObjectPattern>()> make;
  Positions expected;
};

template <typename Pattern, typename... Args>
std::function<std::unique_ptr<KCC_ObjectPattern>()> Make(Args... args) {
  return [=] { return std::unique_ptr<KCC_ObjectPattern>(new Pattern(args...)); };
}

class KccObjectPatternSequence : public ::testing::TestWithParam<SequenceCase> {};

const SequenceCase kSequenceCases[] = {
    {"SingletonGivesTheOrigin", Make<KCC_ObjectPattern_Singleton>(), {{0, 0}}},
    {"LinearAngleUpwardsGivesThreeCopies",
     Make<KCC_ObjectPattern_LinearAngle>(90.0, 10.0, 3),
     {{0, 0}, {0, 10}, {0, 20}}},
    {"LinearAngleAlongXGivesFourCopies",
     Make<KCC_ObjectPattern_LinearAngle>(0.0, 2.5, 4),
     {{0, 0}, {2.5, 0}, {5, 0}, {7.5, 0}}},
    {"LinearAngleDiagonal",
     Make<KCC_ObjectPattern_LinearAngle>(45.0, std::sqrt(2.0), 3),
     {{0, 0}, {1, 1}, {2, 2}}},
    {"LinearAngleWithOneShapeGivesTheOriginOnly",
     Make<KCC_ObjectPattern_LinearAngle>(30.0, 5.0, 1),
     {{0, 0}}},
    {"LinearAngleWithZeroShapesGivesNothing", Make<KCC_ObjectPattern_LinearAngle>(0.0, 5.0, 0), {}},
    {"LinearAngleWithNegativeShapesGivesNothing", Make<KCC_ObjectPattern_LinearAngle>(0.0, 5.0, -2), {}},
    {"GridThreeByTwoGoesRowByRow",
     Make<KCC_ObjectPattern_Grid>(5.0, 7.0, 3, 2),
     {{0, 0}, {5, 0}, {10, 0}, {0, 7}, {5, 7}, {10, 7}}},
    {"GridOneByThreeIsAColumn", Make<KCC_ObjectPattern_Grid>(5.0, 7.0, 1, 3), {{0, 0}, {0, 7}, {0, 14}}},
    {"GridOneByOneGivesTheOriginOnly", Make<KCC_ObjectPattern_Grid>(5.0, 7.0, 1, 1), {{0, 0}}},
    {"GridZeroByThreeGivesTheOriginOnly", Make<KCC_ObjectPattern_Grid>(5.0, 7.0, 0, 3), {{0, 0}}},
    {"GridZeroByZeroGivesNothing", Make<KCC_ObjectPattern_Grid>(5.0, 7.0, 0, 0), {}},
    {"GridNegativeByThreeGivesTheOriginOnly", Make<KCC_ObjectPattern_Grid>(5.0, 7.0, -1, 3), {{0, 0}}},
    {"CircularQuarterTurnsGiveFourPointsOnTheCircle",
     Make<KCC_ObjectPattern_Circular>(10.0, 0.0, 90.0),
     {{10, 0}, {0, 10}, {-10, 0}, {0, -10}}},
    {"CircularStartsAtTheStartAngle", Make<KCC_ObjectPattern_Circular>(2.0, 90.0, 180.0), {{0, 2}, {0, -2}}},
    {"CircularWithTinyRadiusGivesNothing", Make<KCC_ObjectPattern_Circular>(0.00005, 0.0, 90.0), {}},
    {"CircularWithRadiusAtTheLimitGivesNothing", Make<KCC_ObjectPattern_Circular>(0.0001, 0.0, 90.0), {}},
    {"CircularWithTinyIncrementGivesNothing", Make<KCC_ObjectPattern_Circular>(10.0, 0.0, -0.0001), {}},
    {"DefaultLinearAngleGivesTheOrigin", Make<KCC_ObjectPattern_LinearAngle>(), {{0, 0}}},
    {"DefaultGridGivesTheOrigin", Make<KCC_ObjectPattern_Grid>(), {{0, 0}}},
    {"DefaultCircularGivesNothing", Make<KCC_ObjectPattern_Circular>(), {}},
};

}  // namespace

TEST_P(KccObjectPatternSequence, GivesThePositionsInOrder) {
  std::unique_ptr<KCC_ObjectPattern> pattern = GetParam().make();

  const Positions positions = AllPositions(*pattern);

  ExpectPositionsNear(positions, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Table, KccObjectPatternSequence, ::testing::ValuesIn(kSequenceCases), RowName());

// --- circular full turn ---------------------------------------------------------------------------

namespace {

struct CircularCountCase {
  const char* name;
  double increment;
  std::size_t copies;
};

class KccObjectPatternCircularCount : public ::testing::TestWithParam<CircularCountCase> {};

const CircularCountCase kCircularCountCases[] = {
    {"Plus90GivesFour", 90.0, 4},    {"Plus100GivesFour", 100.0, 4}, {"Plus45GivesEight", 45.0, 8},
    {"Minus90GivesFive", -90.0, 5},  {"Plus360GivesOne", 360.0, 1},  {"Minus360GivesTwo", -360.0, 2},
    {"Plus120GivesThree", 120.0, 3}, {"Minus45GivesNine", -45.0, 9}, {"Plus400GivesOne", 400.0, 1},
    {"Minus400GivesOne", -400.0, 1},
};

}  // namespace

TEST_P(KccObjectPatternCircularCount, FullTurnGivesThisManyCopies) {
  KCC_ObjectPattern_Circular pattern(10.0, 0.0, GetParam().increment);

  const Positions positions = AllPositions(pattern);

  EXPECT_EQ(positions.size(), GetParam().copies);
}

INSTANTIATE_TEST_SUITE_P(Table, KccObjectPatternCircularCount, ::testing::ValuesIn(kCircularCountCases),
                         RowName());

TEST(KccObjectPatternCircular, FifthCopyOfMinus90LiesOnTheFirst) {
  KCC_ObjectPattern_Circular pattern(10.0, 30.0, -90.0);

  const Positions positions = AllPositions(pattern);

  ASSERT_EQ(positions.size(), 5u);
  EXPECT_NEAR(positions[4].first, positions[0].first, 1e-9);
  EXPECT_NEAR(positions[4].second, positions[0].second, 1e-9);
}

TEST(KccObjectPatternCircular, NegativeIncrementRunsClockwise) {
  KCC_ObjectPattern_Circular pattern(10.0, 0.0, -90.0);

  const Positions positions = AllPositions(pattern);

  ASSERT_GE(positions.size(), 2u);
  EXPECT_NEAR(positions[1].first, 0.0, 1e-9);
  EXPECT_NEAR(positions[1].second, -10.0, 1e-9);
}

TEST(KccObjectPatternCircular, NegativeRadiusMirrorsThroughTheCentre) {
  KCC_ObjectPattern_Circular pattern(-10.0, 0.0, 90.0);

  const Positions positions = AllPositions(pattern);

  ExpectPositionsNear(positions, {{-10, 0}, {0, -10}, {10, 0}, {0, 10}});
}

TEST(KccObjectPatternCircular, NaNIncrementGivesExactlyOnePosition) {
  KCC_ObjectPattern_Circular pattern(10.0, 90.0, kNaN);

  const Positions positions = AllPositions(pattern);

  ExpectPositionsNear(positions, {{0, 10}});
}

TEST(KccObjectPatternCircular, InfiniteIncrementGivesOnePosition) {
  KCC_ObjectPattern_Circular pattern(10.0, 0.0, -kInf);

  const Positions positions = AllPositions(pattern);

  ExpectPositionsNear(positions, {{10, 0}});
}

TEST(KccObjectPatternCircular, NaNStartAngleGivesOneNaNPosition) {
  KCC_ObjectPattern_Circular pattern(10.0, kNaN, 90.0);

  const Positions positions = AllPositions(pattern);

  ASSERT_EQ(positions.size(), 1u);
  EXPECT_TRUE(std::isnan(positions[0].first));
}

TEST(KccObjectPatternCircular, InfiniteStartAngleGivesOneNaNPosition) {
  KCC_ObjectPattern_Circular pattern(10.0, kInf, 90.0);

  const Positions positions = AllPositions(pattern);

  ASSERT_EQ(positions.size(), 1u);
  EXPECT_TRUE(std::isnan(positions[0].first));
}

TEST(KccObjectPatternCircular, NaNRadiusStillEndsAfterTheFullTurn) {
  KCC_ObjectPattern_Circular pattern(kNaN, 0.0, 90.0);

  const Positions positions = AllPositions(pattern);

  ASSERT_EQ(positions.size(), 4u);
  EXPECT_TRUE(std::isnan(positions[3].second));
}

TEST(KccObjectPatternCircular, ChangingTheRadiusBetweenCallsChangesTheFollowingPositions) {
  KCC_ObjectPattern_Circular pattern(10.0, 0.0, 90.0);
  double x = 0.0;
  double y = 0.0;
  pattern.GetFirstPosition(x, y);

  pattern.SetRadius(2.0);
  const bool more = pattern.GetNextPosition(x, y);

  EXPECT_TRUE(more);
  EXPECT_NEAR(x, 0.0, 1e-9);
  EXPECT_NEAR(y, 2.0, 1e-9);
}

// --- protocol -------------------------------------------------------------------------------------

TEST(KccObjectPattern, GetNextPositionBeforeGetFirstPositionOnADefaultRowGivesFalse) {
  KCC_ObjectPattern_LinearAngle pattern;
  double x = 0.0;
  double y = 0.0;

  EXPECT_FALSE(pattern.GetNextPosition(x, y));
}

TEST(KccObjectPattern, GetFirstPositionRestartsTheSequence) {
  KCC_ObjectPattern_Grid pattern(5.0, 7.0, 3, 2);
  AllPositions(pattern);

  const Positions again = AllPositions(pattern);

  EXPECT_EQ(again.size(), 6u);
}

TEST(KccObjectPattern, PositionsAreLeftUntouchedWhenTheSequenceIsOver) {
  KCC_ObjectPattern_Singleton pattern;
  double x = 3.0;
  double y = 4.0;

  const bool more = pattern.GetNextPosition(x, y);

  EXPECT_FALSE(more);
  EXPECT_EQ(x, 3.0);
  EXPECT_EQ(y, 4.0);
}

TEST(KccObjectPattern, CounterCountsTheHandedOutPositions) {
  KCC_ObjectPattern_LinearAngle pattern(0.0, 1.0, 5);
  double x = 0.0;
  double y = 0.0;
  const int before = pattern.GetPositionCounter();

  pattern.GetFirstPosition(x, y);
  pattern.GetNextPosition(x, y);

  EXPECT_EQ(before, 0);
  EXPECT_EQ(pattern.GetPositionCounter(), 2);
}

TEST(KccObjectPattern, ShrinkingTheRowAfterItsEndKeepsItOver) {
  KCC_ObjectPattern_LinearAngle pattern(0.0, 1.0, 5);
  AllPositions(pattern);
  double x = 0.0;
  double y = 0.0;

  pattern.SetNmbShapes(3);

  EXPECT_FALSE(pattern.GetNextPosition(x, y));
}

// --- very large counts ----------------------------------------------------------------------------

namespace {

// Patterns whose counter a test can put near its end, to reach INT_MAX without handing out 2^31 positions.
class GridAtCounter : public KCC_ObjectPattern_Grid {
 public:
  using KCC_ObjectPattern::SetPositionCounter;
  using KCC_ObjectPattern_Grid::KCC_ObjectPattern_Grid;
};
class RowAtCounter : public KCC_ObjectPattern_LinearAngle {
 public:
  using KCC_ObjectPattern::SetPositionCounter;
  using KCC_ObjectPattern_LinearAngle::KCC_ObjectPattern_LinearAngle;
};
class CircleAtCounter : public KCC_ObjectPattern_Circular {
 public:
  using KCC_ObjectPattern::SetPositionCounter;
  using KCC_ObjectPattern_Circular::KCC_ObjectPattern_Circular;
};

}  // namespace

TEST(KccObjectPatternLarge, GridWhoseProductExceedsAnIntStillGivesItsSecondPosition) {
  KCC_ObjectPattern_Grid pattern(1.0, 1.0, 65536, 65536);  // H x V = 2^32, 0 in 32 bits
  double x = 0.0;
  double y = 0.0;
  pattern.GetFirstPosition(x, y);

  const bool more = pattern.GetNextPosition(x, y);

  EXPECT_TRUE(more);
  EXPECT_EQ(x, 1.0);
  EXPECT_EQ(y, 0.0);
}

TEST(KccObjectPatternLarge, GridSequenceEndsWhenTheCounterReachesIntMax) {
  GridAtCounter pattern(1.0, 1.0, 65536, 65536);
  pattern.SetPositionCounter(INT_MAX - 1);
  double x = 0.0;
  double y = 0.0;

  const bool last = pattern.GetNextPosition(x, y);
  const bool beyond = pattern.GetNextPosition(x, y);

  EXPECT_TRUE(last);
  EXPECT_EQ(x, 65534.0);  // INT_MAX - 1 = 32767 * 65536 + 65534
  EXPECT_EQ(y, 32767.0);
  EXPECT_FALSE(beyond);
  EXPECT_EQ(pattern.GetPositionCounter(), INT_MAX);
}

TEST(KccObjectPatternLarge, RowOfIntMaxShapesEndsAtItsCount) {
  RowAtCounter pattern(0.0, 1.0, INT_MAX);
  pattern.SetPositionCounter(INT_MAX - 1);
  double x = 0.0;
  double y = 0.0;

  const bool last = pattern.GetNextPosition(x, y);
  const bool beyond = pattern.GetNextPosition(x, y);

  EXPECT_TRUE(last);
  EXPECT_EQ(x, static_cast<double>(INT_MAX - 1));
  EXPECT_FALSE(beyond);
}

TEST(KccObjectPatternLarge, CircleWithAHugeStartAngleEndsWhenTheCounterReachesIntMax) {
  CircleAtCounter pattern(1.0, 1e300, 1.0);  // adding the increment does not change the angle
  pattern.SetPositionCounter(INT_MAX - 1);
  double x = 0.0;
  double y = 0.0;

  const bool last = pattern.GetNextPosition(x, y);
  const bool beyond = pattern.GetNextPosition(x, y);

  EXPECT_TRUE(last);
  EXPECT_FALSE(beyond);
}

// --- names, texts, copies -------------------------------------------------------------------------

namespace {

struct TextCase {
  const char* name;
  std::function<std::unique_ptr<KCC_ObjectPattern>()> make;
  const char* text;
  const char* typeName;
};

class KccObjectPatternText : public ::testing::TestWithParam<TextCase> {};

const TextCase kTextCases[] = {
    {"Singleton", Make<KCC_ObjectPattern_Singleton>(), "KCC_ObjectPattern_Singleton", "Singleton"},
    {"LinearAngle", Make<KCC_ObjectPattern_LinearAngle>(90.0, 10.0, 3), "[Angle](90,10,3)", "LinearAngle"},
    {"LinearAngleWithFractions", Make<KCC_ObjectPattern_LinearAngle>(12.5, -0.25, 7), "[Angle](12.5,-0.25,7)",
     "LinearAngle"},
    {"LinearAngleDefault", Make<KCC_ObjectPattern_LinearAngle>(), "[Angle](0,0,1)", "LinearAngle"},
    {"Grid", Make<KCC_ObjectPattern_Grid>(5.0, 7.0, 3, 2), "[Grid](5,7,3,2)", "Grid"},
    {"GridWithFractions", Make<KCC_ObjectPattern_Grid>(0.1, 1234.5678, -1, 0), "[Grid](0.1,1234.5678,-1,0)",
     "Grid"},
    {"GridDefault", Make<KCC_ObjectPattern_Grid>(), "[Grid](0,0,1,1)", "Grid"},
    {"Circular", Make<KCC_ObjectPattern_Circular>(10.0, 0.0, 90.0), "[Circular](10,0,90)", "Circular"},
    {"CircularWithFractions", Make<KCC_ObjectPattern_Circular>(2.5, -45.0, 22.5), "[Circular](2.5,-45,22.5)",
     "Circular"},
    {"CircularDefault", Make<KCC_ObjectPattern_Circular>(), "[Circular](0,0,0)", "Circular"},
    {"NegativeZeroIsWrittenAsZero", Make<KCC_ObjectPattern_Circular>(-0.0, -0.0, 1.0), "[Circular](0,0,1)",
     "Circular"},
    {"NaNAndInfinity", Make<KCC_ObjectPattern_Circular>(kNaN, kInf, -kInf), "[Circular](nan,inf,-inf)",
     "Circular"},
};

}  // namespace

TEST_P(KccObjectPatternText, ToStringGivesTheText) {
  const std::unique_ptr<KCC_ObjectPattern> pattern = GetParam().make();

  EXPECT_EQ(pattern->ToString().str(), GetParam().text);
}

TEST_P(KccObjectPatternText, TypeNameAndClassNameAreSet) {
  const std::unique_ptr<KCC_ObjectPattern> pattern = GetParam().make();

  EXPECT_EQ(pattern->GetPatternTypeName().str(), GetParam().typeName);
  EXPECT_EQ(pattern->GetPatternClassName().str(), "ObjectPattern");
}

TEST_P(KccObjectPatternText, CloneHasTheSameClassAndValues) {
  const std::unique_ptr<KCC_ObjectPattern> pattern = GetParam().make();

  const std::unique_ptr<KCC_ObjectPattern> clone(pattern->Clone());

  ASSERT_NE(clone, nullptr);
  EXPECT_NE(clone.get(), pattern.get());
  EXPECT_EQ(typeid(*clone), typeid(*pattern));
  EXPECT_EQ(clone->ToString().str(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Table, KccObjectPatternText, ::testing::ValuesIn(kTextCases), RowName());

TEST(KccObjectPattern, CloneKeepsTheCounterAndContinuesTheSequence) {
  KCC_ObjectPattern_Grid pattern(5.0, 7.0, 3, 2);
  double x = 0.0;
  double y = 0.0;
  pattern.GetFirstPosition(x, y);
  pattern.GetNextPosition(x, y);  // (5, 0)

  const std::unique_ptr<KCC_ObjectPattern> clone(pattern.Clone());
  const bool more = clone->GetNextPosition(x, y);

  EXPECT_EQ(clone->GetPositionCounter(), 3);
  EXPECT_TRUE(more);
  EXPECT_EQ(x, 10.0);
  EXPECT_EQ(y, 0.0);
}

TEST(KccObjectPattern, CopyConstructorKeepsTheCounter) {
  KCC_ObjectPattern_LinearAngle pattern(0.0, 2.0, 4);
  double x = 0.0;
  double y = 0.0;
  pattern.GetFirstPosition(x, y);

  KCC_ObjectPattern_LinearAngle copy(pattern);
  copy.GetNextPosition(x, y);

  EXPECT_EQ(x, 2.0);
  EXPECT_EQ(copy.GetPositionCounter(), 2);
  EXPECT_EQ(pattern.GetPositionCounter(), 1);
}

TEST(KccObjectPattern, AssignmentCopiesValuesAndCounter) {
  KCC_ObjectPattern_Circular source(10.0, 0.0, 90.0);
  double x = 0.0;
  double y = 0.0;
  source.GetFirstPosition(x, y);
  KCC_ObjectPattern_Circular target;

  target = source;

  EXPECT_EQ(target.ToString().str(), "[Circular](10,0,90)");
  EXPECT_EQ(target.GetPositionCounter(), 1);
}

TEST(KccObjectPattern, SettersStoreWithoutChecking) {
  KCC_ObjectPattern_Grid grid;
  KCC_ObjectPattern_LinearAngle row;
  KCC_ObjectPattern_Circular circle;

  grid.SetHorDistance(-3.0);
  grid.SetVerDistance(kInf);
  grid.SetNmbHorShapes(-5);
  grid.SetNmbVerShapes(INT_MIN);
  row.SetAngle(720.0);
  row.SetDistance(-1.5);
  row.SetNmbShapes(0);
  circle.SetRadius(-2.0);
  circle.SetStartAngle(-725.0);
  circle.SetIncrementAngle(1e6);

  EXPECT_EQ(grid.GetHorDistance(), -3.0);
  EXPECT_EQ(grid.GetVerDistance(), kInf);
  EXPECT_EQ(grid.GetNmbHorShapes(), -5);
  EXPECT_EQ(grid.GetNmbVerShapes(), INT_MIN);
  EXPECT_EQ(row.GetAngle(), 720.0);
  EXPECT_EQ(row.GetDistance(), -1.5);
  EXPECT_EQ(row.GetNmbShapes(), 0);
  EXPECT_EQ(circle.GetRadius(), -2.0);
  EXPECT_EQ(circle.GetStartAngle(), -725.0);
  EXPECT_EQ(circle.GetIncrementAngle(), 1e6);
}
