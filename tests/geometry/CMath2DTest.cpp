// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cmath>

#include "ncappkit/geometry/CMath2D.h"

using Arc = CMath2D::Cd2DArc;
using Line = CMath2D::Cd2DLine;
using Point = CMath2D::Cd2DPoint;

namespace {

constexpr double kPi = 3.141592653589793;

Arc UnitCircle() {
  return Arc(Arc::eArcCCW, 1, 0, 1, 0, 0, 0);
}
Arc QuarterArc(Arc::eArcType type) {
  return Arc(type, 1, 0, 0, 1, 0, 0);
}
// Arc on the unit circle from fromDeg to toDeg.
Arc UnitArc(Arc::eArcType type, double fromDeg, double toDeg) {
  const double a = fromDeg * kPi / 180;
  const double b = toDeg * kPi / 180;
  return Arc(type, std::cos(a), std::sin(a), std::cos(b), std::sin(b), 0, 0);
}

void ExpectPoint(const KCI_d2DPoint& p, double x, double y, double tolerance = 1e-12) {
  EXPECT_NEAR(p.GetX(), x, tolerance);
  EXPECT_NEAR(p.GetY(), y, tolerance);
}

}  // namespace

// ----- constants and basic measures
// -------------------------------------------------------------------------

TEST(CMath2D, ConstantsAndAngleConversions) {
  EXPECT_EQ(CMath2D::PI(), 3.141592653589793);
  EXPECT_EQ(CMath2D::HalfPI(), 1.5707963267948966);
  EXPECT_EQ(CMath2D::DoublePI(), 6.283185307179586);
  EXPECT_EQ(CMath2D::Deg2Rad(180), CMath2D::PI());
  EXPECT_EQ(CMath2D::Rad2Deg(CMath2D::PI()), 180.0);
  EXPECT_EQ(CMath2D::Deg2Rad(33), 33 * 3.141592653589793 / 180);
}

TEST(CMath2D, DistanceOfDoublePoints) {
  EXPECT_DOUBLE_EQ(CMath2D::GetDistance(Point(1, 1), Point(4, 5)), 5.0);
  EXPECT_DOUBLE_EQ(CMath2D::GetDistance(1.0, 1.0, 4.0, 5.0), 5.0);
  EXPECT_DOUBLE_EQ(CMath2D::GetDistanceSquare(Point(1, 1), Point(4, 5)), 25.0);
}

TEST(CMath2D, DistanceOfIntPointsIsRoundedToAWholeNumber) {
  EXPECT_EQ(CMath2D::GetDistance(CMath2D::Ci2DPoint(0, 0), CMath2D::Ci2DPoint(1, 1)), 1.0);
  EXPECT_EQ(CMath2D::GetDistance(CMath2D::Ci2DPoint(0, 0), CMath2D::Ci2DPoint(1, 2)), 2.0);
  EXPECT_EQ(CMath2D::GetDistance(0, 0, 2, 2), 3.0);  // 2.83 rounds up
  EXPECT_EQ(CMath2D::GetDistance(0, 0, 3, 4), 5.0);
}

TEST(CMath2D, DistanceOfFarApartIntPointsDoesNotOverflow) {
  const int lo = -2147483647 - 1;
  const int hi = 2147483647;
  EXPECT_EQ(CMath2D::GetDistance(lo, 0, hi, 0), 4294967295.0);
}

TEST(CMath2D, LengthMiddleAndCenter) {
  const Line line(0, 0, 6, 8);
  EXPECT_DOUBLE_EQ(CMath2D::GetLength(line), 10.0);
  Point mid;
  CMath2D::GetCenter(line, mid);
  ExpectPoint(mid, 3, 4);
  CMath2D::GetMiddle(Point(-1, 2), Point(3, 6), mid);
  ExpectPoint(mid, 1, 4);
}

TEST(CMath2D, HorizontalAndVerticalUseAStrictTolerance) {
  EXPECT_TRUE(CMath2D::IsHorizontal(Line(0, 0, 10, 5e-8)));
  EXPECT_FALSE(CMath2D::IsHorizontal(Line(0, 0, 10, 2e-7)));
  EXPECT_TRUE(CMath2D::IsVertical(Line(3, 0, 3 + 5e-8, 10)));
  EXPECT_FALSE(CMath2D::IsVertical(Line(3, 0, 3 + 2e-7, 10)));
  EXPECT_TRUE(CMath2D::IsHorizontal(Line(1, 1, 1, 1)));
  EXPECT_TRUE(CMath2D::IsVertical(Line(1, 1, 1, 1)));
}

TEST(CMath2D, LineAngleIsAtan2AndZeroForADegenerateLine) {
  EXPECT_DOUBLE_EQ(CMath2D::GetAngleRad(Line(0, 0, 0, 1)), kPi / 2);
  EXPECT_DOUBLE_EQ(CMath2D::GetAngleRad(Line(0, 0, -1, 0)), kPi);
  EXPECT_DOUBLE_EQ(CMath2D::GetAngleDeg(Line(0, 0, 1, 1)), 45.0);
  EXPECT_DOUBLE_EQ(CMath2D::GetAngleDeg(Line(0, 0, 1, -1)), -45.0);
  EXPECT_EQ(CMath2D::GetAngleRad(Line(5, 5, 5 + 9e-5, 5 - 9e-5)), 0.0);
  EXPECT_NE(CMath2D::GetAngleRad(Line(5, 5, 5, 5 + 2e-4)), 0.0);
}

// ----- arcs
// --------------------------------------------------------------------------------------------------

TEST(CMath2D, IsCircleWithin1e6) {
  EXPECT_TRUE(CMath2D::IsCircle(Arc(Arc::eArcCCW, 1, 0, 1 + 1e-6, -1e-6, 0, 0)));
  EXPECT_FALSE(CMath2D::IsCircle(Arc(Arc::eArcCCW, 1, 0, 1 + 2e-6, 0, 0, 0)));
}

TEST(CMath2D, ArcRadiusAndDistanceFromTheCentre) {
  const Arc arc(Arc::eArcCCW, 4, 5, 0, 0, 1, 1);
  EXPECT_DOUBLE_EQ(CMath2D::GetArcRadius(arc), 5.0);
  EXPECT_DOUBLE_EQ(CMath2D::DistanceCenterOfArc2Point(arc, Point(1, -2)), 3.0);
}

TEST(CMath2D, ArcPointAngleIsAtan2FromTheCentre) {
  const Arc arc(Arc::eArcCCW, 0, 0, 0, 0, 1, 1);
  EXPECT_DOUBLE_EQ(CMath2D::CalcArcPointAngleRad(arc, 1, 2), kPi / 2);
  EXPECT_DOUBLE_EQ(CMath2D::CalcArcPointAngleDeg(arc, 0, 1), 180.0);
  EXPECT_DOUBLE_EQ(CMath2D::CalcArcPointAngleDeg(arc, 0, 0), -135.0);
}

TEST(CMath2D, ArcPointAngleNearTheCentreIsZero) {
  const Arc arc(Arc::eArcCCW, 0, 0, 0, 0, 1, 1);
  EXPECT_EQ(CMath2D::CalcArcPointAngleRad(arc, 1 - 9e-5, 1 - 9e-5), 0.0);
  EXPECT_EQ(CMath2D::CalcArcPointAngleRad(arc, 1, 1), 0.0);
}

TEST(CMath2D, SweepOfQuarterArcIs90CounterClockwiseAnd270Clockwise) {
  EXPECT_DOUBLE_EQ(CMath2D::GetArcAngleDeg(QuarterArc(Arc::eArcCCW)), 90.0);
  EXPECT_DOUBLE_EQ(CMath2D::GetArcAngleDeg(QuarterArc(Arc::eArcCW)), 270.0);
}

TEST(CMath2D, SweepOfUndirectedArcIsZeroAndOfCircle360) {
  EXPECT_EQ(CMath2D::GetArcAngleDeg(QuarterArc(Arc::eArcTypeNone)), 0.0);
  EXPECT_EQ(CMath2D::GetArcAngleDeg(Arc(Arc::eArcTypeNone, 1, 0, 1, 0, 0, 0)), 360.0);
  EXPECT_EQ(CMath2D::GetArcAngleDeg(UnitCircle()), 360.0);
}

TEST(CMath2D, SweepAcrossTheNegativeXAxis) {
  EXPECT_NEAR(CMath2D::GetArcAngleDeg(UnitArc(Arc::eArcCCW, 170, -170)), 20.0, 1e-12);
  EXPECT_NEAR(CMath2D::GetArcAngleDeg(UnitArc(Arc::eArcCW, -170, 170)), 20.0, 1e-12);
}

TEST(CMath2D, ArcLengthOfFullCircleIsTwoPiAndOfUndirectedArcZero) {
  EXPECT_DOUBLE_EQ(CMath2D::GetArcLength(UnitCircle()), 2 * kPi);
  EXPECT_EQ(CMath2D::GetArcLength(QuarterArc(Arc::eArcTypeNone)), 0.0);
  EXPECT_DOUBLE_EQ(CMath2D::GetArcLength(Arc(Arc::eArcCCW, 2, 0, 0, 2, 0, 0)), kPi);
}

TEST(CMath2D, StartAngleIsTheDirectionOfTravel) {
  EXPECT_DOUBLE_EQ(CMath2D::GetStartAngleRad(QuarterArc(Arc::eArcCCW)), kPi / 2);
  EXPECT_DOUBLE_EQ(CMath2D::GetStartAngleRad(QuarterArc(Arc::eArcCW)), -kPi / 2);
  EXPECT_DOUBLE_EQ(CMath2D::GetStartAngleTangentRad(QuarterArc(Arc::eArcCCW)), kPi / 2);
  EXPECT_DOUBLE_EQ(CMath2D::GetStartAngleDeg(QuarterArc(Arc::eArcCW)), -90.0);
  EXPECT_DOUBLE_EQ(CMath2D::GetStartAngleTangentDeg(QuarterArc(Arc::eArcCW)), -90.0);
}

TEST(CMath2D, EndAngleIsNotNormalised) {
  EXPECT_DOUBLE_EQ(CMath2D::GetEndAngleRad(QuarterArc(Arc::eArcCCW)), kPi);
  EXPECT_DOUBLE_EQ(CMath2D::GetEndAngleTangentRad(QuarterArc(Arc::eArcCCW)), kPi);
  EXPECT_DOUBLE_EQ(CMath2D::GetEndAngleDeg(QuarterArc(Arc::eArcCW)), 0.0);
  EXPECT_DOUBLE_EQ(CMath2D::GetEndAngleTangentDeg(QuarterArc(Arc::eArcCW)), 0.0);
  // ending at 180 degrees counter-clockwise: 180 + 90 = 270, not -90
  EXPECT_DOUBLE_EQ(CMath2D::GetEndAngleDeg(Arc(Arc::eArcCCW, 1, 0, -1, 0, 0, 0)), 270.0);
}

TEST(CMath2D, StartAndEndAnglesOfUndirectedArcThrow) {
  const Arc arc = QuarterArc(Arc::eArcTypeNone);
  EXPECT_THROW(CMath2D::GetStartAngleRad(arc), CMath2D::IMath2DException);
  EXPECT_THROW(CMath2D::GetStartAngleDeg(arc), CMath2D::IMath2DException);
  EXPECT_THROW(CMath2D::GetStartAngleTangentRad(arc), CMath2D::IMath2DException);
  EXPECT_THROW(CMath2D::GetStartAngleTangentDeg(arc), CMath2D::IMath2DException);
  EXPECT_THROW(CMath2D::GetEndAngleRad(arc), CMath2D::IMath2DException);
  EXPECT_THROW(CMath2D::GetEndAngleDeg(arc), CMath2D::IMath2DException);
  EXPECT_THROW(CMath2D::GetEndAngleTangentRad(arc), CMath2D::IMath2DException);
  EXPECT_THROW(CMath2D::GetEndAngleTangentDeg(arc), CMath2D::IMath2DException);
  Arc odd = QuarterArc(Arc::eArcCCW);
  odd.SetArcType(static_cast<Arc::eArcType>(3));
  EXPECT_THROW(CMath2D::GetStartAngleRad(odd), CMath2D::IMath2DException);
}

TEST(CMath2D, AngleOnArcAcrossTheNegativeXAxisCounterClockwise) {
  const Arc arc = UnitArc(Arc::eArcCCW, 170, -170);
  EXPECT_TRUE(CMath2D::AngleOnCCWArcSegment(arc, 170, -170, 180));
  EXPECT_TRUE(CMath2D::AngleOnCCWArcSegment(arc, 170, -170, -175));
  EXPECT_FALSE(CMath2D::AngleOnCCWArcSegment(arc, 170, -170, 0));
}

TEST(CMath2D, AngleOnArcWorksForClockwiseArcsToo) {
  const Arc arc = UnitArc(Arc::eArcCW, 10, -10);
  EXPECT_TRUE(CMath2D::AngleOnCCWArcSegment(arc, 10, -10, 0));
  EXPECT_FALSE(CMath2D::AngleOnCCWArcSegment(arc, 10, -10, 90));
  const Arc across = UnitArc(Arc::eArcCW, -170, 170);
  EXPECT_TRUE(CMath2D::AngleOnCCWArcSegment(across, -170, 170, 180));
  EXPECT_FALSE(CMath2D::AngleOnCCWArcSegment(across, -170, 170, 0));
}

TEST(CMath2D, AngleOnArcMatchesTheEndsWithin1e6) {
  const Arc arc = UnitArc(Arc::eArcTypeNone, 10, 50);
  EXPECT_TRUE(CMath2D::AngleOnCCWArcSegment(arc, 10, 50, 10 + 5e-7));
  EXPECT_TRUE(CMath2D::AngleOnCCWArcSegment(arc, 10, 50, 50));
  // an undirected arc accepts only its ends
  EXPECT_FALSE(CMath2D::AngleOnCCWArcSegment(arc, 10, 50, 30));
}

TEST(CMath2D, AngleOnArcWithEqualEndsIsFalseEvenForAFullCircle) {
  // equal end angles end the test before the full-circle check; PointIsBetweenStartAndEndWc asks IsCircle
  // first
  EXPECT_FALSE(CMath2D::AngleOnCCWArcSegment(QuarterArc(Arc::eArcCCW), 30, 30, 40));
  EXPECT_FALSE(CMath2D::AngleOnCCWArcSegment(UnitCircle(), 30, 30, 40));
  EXPECT_TRUE(CMath2D::AngleOnCCWArcSegment(UnitCircle(), 30, 60, 100));
}

TEST(CMath2D, AngleOnArcRejectsDirectionsJustPastTheEnds) {
  const Arc arc = UnitArc(Arc::eArcCCW, 10, 50);
  EXPECT_TRUE(CMath2D::AngleOnCCWArcSegment(arc, 10, 50, 50 - 1e-9));
  EXPECT_FALSE(CMath2D::AngleOnCCWArcSegment(arc, 10, 50, 50 + 2e-6));
  EXPECT_FALSE(CMath2D::AngleOnCCWArcSegment(arc, 10, 50, 10 - 2e-6));
}

TEST(CMath2D, PointBetweenStartAndEnd) {
  const Arc arc = QuarterArc(Arc::eArcCCW);
  EXPECT_TRUE(CMath2D::PointIsBetweenStartAndEndWc(arc, Point(5, 5)));
  EXPECT_FALSE(CMath2D::PointIsBetweenStartAndEndWc(arc, Point(-1, -1)));
  EXPECT_TRUE(CMath2D::PointIsBetweenStartAndEndWc(QuarterArc(Arc::eArcCW), Point(-1, -1)));
  EXPECT_TRUE(CMath2D::PointIsBetweenStartAndEndWc(UnitCircle(), Point(-1, -1)));
}

TEST(CMath2D, ArcPointByOffsetRunsAlongTheSweep) {
  double x = 0, y = 0;
  CMath2D::GetArcPointByOffset(QuarterArc(Arc::eArcCCW), 0.5, x, y);
  EXPECT_NEAR(x, std::sqrt(0.5), 1e-15);
  EXPECT_NEAR(y, std::sqrt(0.5), 1e-15);
  Point p;
  CMath2D::GetArcPointByOffset(QuarterArc(Arc::eArcCW), 1.0 / 3, p);
  ExpectPoint(p, 0, -1, 1e-15);
}

TEST(CMath2D, ArcPointByOffsetIsNotClamped) {
  Point p;
  CMath2D::GetArcPointByOffset(QuarterArc(Arc::eArcCCW), 2, p);
  ExpectPoint(p, -1, 0, 1e-15);
  CMath2D::GetArcPointByOffset(QuarterArc(Arc::eArcCCW), -1, p);
  ExpectPoint(p, 0, -1, 1e-15);
}

TEST(CMath2D, ArcPointByOffsetOfUndirectedArcStaysAtTheStart) {
  Point p;
  CMath2D::GetArcPointByOffset(Arc(Arc::eArcTypeNone, 0, 2, 2, 0, 0, 0), 0.5, p);
  ExpectPoint(p, 0, 2, 1e-15);
}

TEST(CMath2D, IntArcPointByOffsetTruncatesTowardZero) {
  int x = 0, y = 0;
  CMath2D::GetArcPointByOffset(CMath2D::Ci2DArc(CMath2D::Ci2DArc::eArcCCW, 0, 10, -10, 0, 0, 0), 0.5, x, y);
  EXPECT_EQ(x, -7);  // -7.07 truncates to -7, not -8
  EXPECT_EQ(y, 7);
  CMath2D::Ci2DPoint p;
  CMath2D::GetArcPointByOffset(CMath2D::Ci2DArc(CMath2D::Ci2DArc::eArcCCW, 10, 0, 0, 10, 0, 0), 0.5, p);
  EXPECT_EQ(p.GetX(), 7);
  EXPECT_EQ(p.GetY(), 7);
}

TEST(CMath2D, IntArcWithoutDirectionIsTakenAsClockwise) {
  CMath2D::Ci2DPoint p;
  // as clockwise the arc from (10, 0) to (0, 10) sweeps 270 degrees; a third of that reaches (0, -10)
  CMath2D::GetArcPointByOffset(CMath2D::Ci2DArc(CMath2D::Ci2DArc::eArcTypeNone, 10, 0, 0, 10, 0, 0), 1.0 / 3,
                               p);
  EXPECT_EQ(p.GetX(), 0);  // 6e-16 truncates to 0
  EXPECT_EQ(p.GetY(), -10);
}

TEST(CMath2D, ProjectedPointOnArcIsTheRadialProjectionOnTheFullCircle) {
  const Arc arc(Arc::eArcCCW, 3, 1, 1, 3, 1, 1);  // radius 2 around (1, 1)
  Point out;
  EXPECT_TRUE(CMath2D::ProjectedPointOnArcWc(arc, Point(4, 5), out));
  ExpectPoint(out, 2.2, 2.6);
  EXPECT_TRUE(CMath2D::ProjectedPointOnArcWc(arc, Point(-2, 1), out));  // outside the sweep: still projected
  ExpectPoint(out, -1, 1);
}

TEST(CMath2D, ProjectedPointAtTheCentreFailsAndLeavesTheOutput) {
  const Arc arc(Arc::eArcCCW, 3, 1, 1, 3, 1, 1);
  Point out(7, 7);
  EXPECT_FALSE(CMath2D::ProjectedPointOnArcWc(arc, Point(1 + 5e-9, 1), out));
  ExpectPoint(out, 7, 7, 0);
}

TEST(CMath2D, AnchorPointsOfAFullCircleAreAllFourInOrder) {
  KC2DPointList points;
  CMath2D::GetArcAnchorPoints(Arc(Arc::eArcCW, 3, 1, 3, 1, 1, 1), points);
  ASSERT_EQ(points.size(), 4u);
  EXPECT_EQ(points[0], KC2DPoint(3, 1));
  EXPECT_EQ(points[1], KC2DPoint(1, 3));
  EXPECT_EQ(points[2], KC2DPoint(-1, 1));
  EXPECT_EQ(points[3], KC2DPoint(1, -1));
}

TEST(CMath2D, AnchorPointsTakeThe90DegreeFlagForTheLeftPoint) {
  KC2DPointList points;
  CMath2D::GetArcAnchorPoints(UnitArc(Arc::eArcCCW, 80, 100), points);
  ASSERT_EQ(points.size(), 1u);
  EXPECT_TRUE(points[0].IsAlmostEq(KC2DPoint(-1, 0), 1e-15));
}

TEST(CMath2D, AnchorPointsTakeThe180DegreeFlagForTheTopPoint) {
  KC2DPointList points;
  CMath2D::GetArcAnchorPoints(UnitArc(Arc::eArcCCW, 170, 190), points);
  ASSERT_EQ(points.size(), 1u);
  EXPECT_TRUE(points[0].IsAlmostEq(KC2DPoint(0, 1), 1e-15));
}

TEST(CMath2D, AnchorPointsAreAppended) {
  KC2DPointList points{KC2DPoint(9, 9)};
  CMath2D::GetArcAnchorPoints(UnitArc(Arc::eArcCW, 10, -10), points);
  ASSERT_EQ(points.size(), 2u);
  EXPECT_EQ(points[0], KC2DPoint(9, 9));
  EXPECT_TRUE(points[1].IsAlmostEq(KC2DPoint(1, 0), 1e-15));
}

TEST(CMath2D, RectangleOfAnArcIncludesTheQuadrantPointsOnIt) {
  KC2DArea area;
  area.ApplyPoint(100, 100);  // replaced, not grown
  CMath2D::GetRectangle(UnitArc(Arc::eArcCCW, 80, 100), area);
  EXPECT_NEAR(area.GetMinX(), std::cos(100 * kPi / 180), 1e-15);
  EXPECT_NEAR(area.GetMaxX(), std::cos(80 * kPi / 180), 1e-15);
  EXPECT_NEAR(area.GetMinY(), std::sin(80 * kPi / 180), 1e-15);
  EXPECT_DOUBLE_EQ(area.GetMaxY(), 1.0);
}

TEST(CMath2D, RectangleOfAFullCircleIsItsSquare) {
  KC2DArea area;
  CMath2D::GetRectangle(Arc(Arc::eArcTypeNone, 3, 1, 3, 1, 1, 1), area);
  EXPECT_DOUBLE_EQ(area.GetMinX(), -1.0);
  EXPECT_DOUBLE_EQ(area.GetMinY(), -1.0);
  EXPECT_DOUBLE_EQ(area.GetMaxX(), 3.0);
  EXPECT_DOUBLE_EQ(area.GetMaxY(), 3.0);
}

TEST(CMath2D, RectangleOfALineLeavesTheAreaUnchanged) {
  KC2DArea area;
  area.ApplyPoint(1, 2);
  CMath2D::GetRectangle(Line(-5, -5, 50, 50), area);
  EXPECT_DOUBLE_EQ(area.GetMinX(), 1.0);
  EXPECT_DOUBLE_EQ(area.GetMaxX(), 1.0);
  EXPECT_DOUBLE_EQ(area.GetMaxY(), 2.0);
  KC2DArea empty;
  CMath2D::GetRectangle(Line(-5, -5, 50, 50), empty);
  EXPECT_TRUE(empty.IsEmpty());
}

// ----- lines -----------------------------------------------------------------------------------------------

TEST(CMath2D, DistanceToSegmentUsesTheNearerEndBeyondIt) {
  const Line line(0, 0, 10, 0);
  EXPECT_DOUBLE_EQ(CMath2D::DistancePoint2Line(line, Point(15, 4), true), std::sqrt(41.0));
  EXPECT_DOUBLE_EQ(CMath2D::DistancePoint2Line(line, Point(-3, 4), true), 5.0);
  EXPECT_DOUBLE_EQ(CMath2D::DistancePoint2Line(line, Point(15, 4), false), 4.0);
  EXPECT_DOUBLE_EQ(CMath2D::DistancePoint2Line(line, Point(5, -3), true), 3.0);
  double d = 0;
  CMath2D::DistancePoint2Line(line, Point(15, 4), d, true);
  EXPECT_DOUBLE_EQ(d, std::sqrt(41.0));
}

TEST(CMath2D, DistanceToSegmentFarFromTheOriginIsThePerpendicularDistance) {
  // the foot (1e7 + 12/13, 1e7 + 18/13) lies inside the segment; rounding at this size puts it about 1e-9
  // off the line, which must not send the distance to the nearer end (2)
  const Line line(1e7, 1e7, 1e7 + 2, 1e7 + 3);
  EXPECT_NEAR(CMath2D::DistancePoint2Line(line, Point(1e7, 1e7 + 2), true), 4 / std::sqrt(13.0), 1e-8);
  EXPECT_NEAR(CMath2D::DistancePoint2Line(line, Point(1e7 + 2, 1e7 + 1), true), 4 / std::sqrt(13.0), 1e-8);
}

TEST(CMath2D, DistanceToAZeroLengthLineIsTheDistanceToItsPoint) {
  EXPECT_DOUBLE_EQ(CMath2D::DistancePoint2Line(Line(1, 1, 1, 1), Point(4, 5), true), 5.0);
  EXPECT_DOUBLE_EQ(CMath2D::DistancePoint2Line(Line(1, 1, 1, 1), Point(4, 5), false), 5.0);
}

TEST(CMath2D, PointBelongsToLineIsABoxTestWith1e5) {
  const Line line(0, 0, 10, 0);
  EXPECT_TRUE(CMath2D::PointBelongsToLine(line, 5, 1e-5));
  EXPECT_FALSE(CMath2D::PointBelongsToLine(line, 5, 2e-5));
  EXPECT_TRUE(CMath2D::PointBelongsToLine(line, 10 + 0.5e-5, 0));
  EXPECT_FALSE(CMath2D::PointBelongsToLine(line, -2e-5, 0));
  // collinearity is not checked
  EXPECT_TRUE(CMath2D::PointBelongsToLine(Line(0, 0, 10, 10), 9, 1));
  EXPECT_TRUE(CMath2D::ProjectPointBelongsToLine(Line(0, 0, 10, 10), Point(9, 1)));
  EXPECT_FALSE(CMath2D::ProjectPointBelongsToLine(Line(0, 0, 10, 10), Point(11, 1)));
}

TEST(CMath2D, ProjectPointOnVerticalHorizontalAndSlantedLines) {
  double x = 0, y = 0;
  EXPECT_TRUE(CMath2D::ProjectPoint(Line(2, 0, 2, 10), Point(5, 7), x, y));
  EXPECT_EQ(x, 2.0);
  EXPECT_EQ(y, 7.0);
  EXPECT_TRUE(CMath2D::ProjectPoint(Line(0, 3, 10, 3), Point(5, 7), x, y));
  EXPECT_EQ(x, 5.0);
  EXPECT_EQ(y, 3.0);
  Point foot;
  EXPECT_TRUE(CMath2D::ProjectPoint(Line(0, 0, 2, 2), Point(0, 2), foot));
  ExpectPoint(foot, 1, 1);
}

TEST(CMath2D, ProjectPointOnZeroLengthLineTakesTheVerticalCase) {
  double x = 0, y = 0;
  EXPECT_TRUE(CMath2D::ProjectPoint(Line(2, 3, 2, 3), Point(5, 7), x, y));
  EXPECT_EQ(x, 2.0);
  EXPECT_EQ(y, 7.0);
}

TEST(CMath2D, IntersectionOfXAxisAndVerticalLine) {
  Point out;
  EXPECT_TRUE(CMath2D::GetIntersectPoint(Line(0, 0, 10, 0), Line(3, -5, 3, 5), out));
  ExpectPoint(out, 3, 0, 0);
  EXPECT_TRUE(CMath2D::GetIntersectPoint(Line(3, -5, 3, 5), Line(0, 0, 10, 0), out));
  ExpectPoint(out, 3, 0, 0);
}

TEST(CMath2D, IntersectionOfTwoVerticalLinesFails) {
  Point out;
  EXPECT_FALSE(CMath2D::GetIntersectPoint(Line(1, 0, 1, 1), Line(2, 0, 2, 1), out));
}

TEST(CMath2D, IntersectionOfParallelOrCollinearLinesFails) {
  Point out(7, 7);
  EXPECT_FALSE(CMath2D::GetIntersectPoint(Line(0, 0, 1, 1), Line(0, 1, 1, 2), out));
  EXPECT_FALSE(CMath2D::GetIntersectPoint(Line(0, 0, 1, 1), Line(2, 2, 3, 3), out));
  ExpectPoint(out, 7, 7, 0);
}

TEST(CMath2D, IntersectionOfSlantedLines) {
  Point out;
  EXPECT_TRUE(CMath2D::GetIntersectPoint(Line(0, 0, 2, 2), Line(0, 2, 2, 0), out));
  ExpectPoint(out, 1, 1);
}

TEST(CMath2D, IntersectionOutsideASegmentFailsWithThePointWritten) {
  Point out;
  EXPECT_FALSE(CMath2D::GetIntersectPoint(Line(0, 0, 1, 0), Line(3, -1, 3, 1), out, true, false));
  ExpectPoint(out, 3, 0, 0);
  EXPECT_TRUE(CMath2D::GetIntersectPoint(Line(0, 0, 1, 0), Line(3, -1, 3, 1), out, false, true));
  EXPECT_FALSE(CMath2D::GetIntersectPoint(Line(0, 0, 10, 0), Line(3, 1, 3, 2), out, true, true));
  EXPECT_TRUE(CMath2D::GetIntersectPoint(Line(0, 0, 10, 0), Line(3, -1, 3, 2), out, true, true));
}

TEST(CMath2D, ParallelThroughAPointOfAHorizontalLine) {
  Line out;
  double angle = -1;
  EXPECT_TRUE(CMath2D::GetParallelLine(Line(0, 0, 10, 0), Point(5, 3), out, angle));
  EXPECT_EQ(angle, 0.0);
  EXPECT_EQ(out.GetStartX(), 0.0);
  EXPECT_EQ(out.GetStartY(), 3.0);
  EXPECT_EQ(out.GetEndX(), 10.0);
  EXPECT_EQ(out.GetEndY(), 3.0);
}

TEST(CMath2D, ParallelOfAVerticalLineReports90WhateverItsDirection) {
  Line out;
  double angle = -1;
  EXPECT_TRUE(CMath2D::GetParallelLine(Line(0, 10, 0, 0), Point(4, 5), out, angle));
  EXPECT_EQ(angle, 90.0);
  EXPECT_EQ(out.GetStartX(), 4.0);
  EXPECT_EQ(out.GetStartY(), 10.0);
  EXPECT_EQ(out.GetEndY(), 0.0);
  EXPECT_TRUE(CMath2D::GetParallelLine(Line(10, 0, 0, 0), Point(4, 5), out, angle));
  EXPECT_EQ(angle, 0.0);
}

TEST(CMath2D, ParallelOfASlantedLineHasTheFeetOfItsEnds) {
  Line out;
  double angle = 0;
  EXPECT_TRUE(CMath2D::GetParallelLine(Line(0, 0, 10, 10), Point(0, 2), out, angle));
  EXPECT_NEAR(angle, 45.0, 1e-12);
  EXPECT_NEAR(out.GetStartX(), -1, 1e-12);
  EXPECT_NEAR(out.GetStartY(), 1, 1e-12);
  EXPECT_NEAR(out.GetEndX(), 9, 1e-12);
  EXPECT_NEAR(out.GetEndY(), 11, 1e-12);
  Line same;
  EXPECT_TRUE(CMath2D::GetParallelLine(Line(0, 0, 10, 10), Point(0, 2), same));
  EXPECT_EQ(same.GetEndY(), out.GetEndY());
}

TEST(CMath2D, ParallelsAtDistanceOfAHorizontalLine) {
  Line left, right;
  double angle = -1;
  EXPECT_TRUE(CMath2D::GetParallelLinesAtDist(Line(0, 0, 10, 0), 1, left, right, angle));
  EXPECT_EQ(angle, 0.0);
  EXPECT_EQ(left.GetStartY(), 1.0);
  EXPECT_EQ(left.GetEndY(), 1.0);
  EXPECT_EQ(right.GetStartY(), -1.0);
  EXPECT_EQ(right.GetEndX(), 10.0);
}

TEST(CMath2D, ParallelsAtDistanceOfAVerticalLineLeftIsNegativeX) {
  Line left, right;
  double angle = -1;
  EXPECT_TRUE(CMath2D::GetParallelLinesAtDist(Line(0, 10, 0, 0), 1, left, right, angle));
  EXPECT_EQ(angle, 90.0);
  EXPECT_EQ(left.GetStartX(), -1.0);
  EXPECT_EQ(right.GetStartX(), 1.0);
  EXPECT_EQ(right.GetEndY(), 0.0);
}

TEST(CMath2D, ParallelsAtDistanceOfASlantedLine) {
  Line left, right;
  double angle = 0;
  EXPECT_TRUE(CMath2D::GetParallelLinesAtDist(Line(0, 0, 10, 10), std::sqrt(2.0), left, right, angle));
  EXPECT_NEAR(angle, 45.0, 1e-12);
  EXPECT_NEAR(left.GetStartX(), -1, 1e-12);
  EXPECT_NEAR(left.GetStartY(), 1, 1e-12);
  EXPECT_NEAR(right.GetEndX(), 11, 1e-12);
  EXPECT_NEAR(right.GetEndY(), 9, 1e-12);
  Line l2, r2;
  EXPECT_TRUE(CMath2D::GetParallelLinesAtDist(Line(0, 0, 10, 10), std::sqrt(2.0), l2, r2));
  EXPECT_EQ(l2.GetStartX(), left.GetStartX());
}

// ----- intersections with arcs
// -------------------------------------------------------------------------------

TEST(CMath2D, HorizontalLineJustAboveTheCircleTouchesIt) {
  Point p1, p2;
  EXPECT_TRUE(CMath2D::GetHorLineIntersection(UnitCircle(), 1.00005, p1, p2));
  ExpectPoint(p1, 0, 1.00005, 0);
  ExpectPoint(p2, 0, 1.00005, 0);
}

TEST(CMath2D, HorizontalLineThroughTheCircle) {
  Point p1, p2;
  EXPECT_TRUE(CMath2D::GetHorLineIntersection(UnitCircle(), 0.5, p1, p2));
  ExpectPoint(p1, std::sqrt(0.75), 0.5);
  ExpectPoint(p2, -std::sqrt(0.75), 0.5);
}

TEST(CMath2D, HorizontalLineBeyondTheCircleMisses) {
  Point p1(7, 7), p2(7, 7);
  EXPECT_FALSE(CMath2D::GetHorLineIntersection(UnitCircle(), 1.0002, p1, p2));
  EXPECT_FALSE(CMath2D::GetHorLineIntersection(UnitCircle(), -3, p1, p2));
  ExpectPoint(p1, 7, 7, 0);
}

TEST(CMath2D, HorizontalLineIgnoresTheSweep) {
  Point p1, p2;
  EXPECT_TRUE(CMath2D::GetHorLineIntersection(QuarterArc(Arc::eArcCCW), -0.5, p1, p2));
  ExpectPoint(p2, -std::sqrt(0.75), -0.5);
}

TEST(CMath2D, VerticalLineMirrorsTheHorizontalCase) {
  Point p1, p2;
  EXPECT_TRUE(CMath2D::GetVerLineIntersection(UnitCircle(), 0.5, p1, p2));
  ExpectPoint(p1, 0.5, std::sqrt(0.75));
  ExpectPoint(p2, 0.5, -std::sqrt(0.75));
  EXPECT_TRUE(CMath2D::GetVerLineIntersection(UnitCircle(), -0.99995, p1, p2));
  ExpectPoint(p1, -0.99995, 0, 0);
  ExpectPoint(p2, -0.99995, 0, 0);
  EXPECT_FALSE(CMath2D::GetVerLineIntersection(UnitCircle(), 2, p1, p2));
}

TEST(CMath2D, SlantedLineThroughTheUnitCircle) {
  Point p1, p2;
  EXPECT_TRUE(CMath2D::GetIntersection(UnitCircle(), Line(-2, -2, 2, 2), p1, p2));
  ExpectPoint(p1, std::sqrt(0.5), std::sqrt(0.5));
  ExpectPoint(p2, -std::sqrt(0.5), -std::sqrt(0.5));
}

TEST(CMath2D, AxisParallelLinesGoToTheAxisCases) {
  Point p1, p2;
  EXPECT_TRUE(CMath2D::GetIntersection(UnitCircle(), Line(-5, 0.5, 5, 0.5 + 5e-6), p1, p2));
  ExpectPoint(p1, std::sqrt(0.75), 0.5);
  EXPECT_TRUE(CMath2D::GetIntersection(UnitCircle(), Line(0.5, -5, 0.5, 5), p1, p2));
  ExpectPoint(p1, 0.5, std::sqrt(0.75));
}

TEST(CMath2D, NearlyHorizontalLineBeyondTheAxisTestFindsNothing) {
  Point p1, p2;
  // slope 1e-6: past the 1e-5 height test (the ends differ by 1 in y) but below the 1e-5 slope limit
  EXPECT_FALSE(CMath2D::GetIntersection(UnitCircle(), Line(-5e5, 0, 5e5, 1), p1, p2));
}

TEST(CMath2D, SlantedLineMissingTheCircle) {
  Point p1, p2;
  EXPECT_FALSE(CMath2D::GetIntersection(UnitCircle(), Line(0, 3, 3, 0), p1, p2));
}

TEST(CMath2D, SlantedTangentLineGivesOnePointTwice) {
  Point p1, p2;
  const double s = std::sqrt(2.0);
  EXPECT_TRUE(CMath2D::GetIntersection(UnitCircle(), Line(0, s, s, 0), p1, p2));
  ExpectPoint(p1, std::sqrt(0.5), std::sqrt(0.5), 1e-7);
  ExpectPoint(p2, std::sqrt(0.5), std::sqrt(0.5), 1e-7);
}

TEST(CMath2D, CirclesWithCentresOnAHorizontalLine) {
  Point p1, p2;
  EXPECT_TRUE(CMath2D::GetIntersection(Arc(Arc::eArcCCW, 5, 0, 5, 0, 0, 0),
                                       Arc(Arc::eArcCW, 13, 0, 13, 0, 8, 0), p1, p2));
  ExpectPoint(p1, 4, 3);
  ExpectPoint(p2, 4, -3);
}

TEST(CMath2D, CirclesWithCentresOnAVerticalLine) {
  Point p1, p2;
  EXPECT_TRUE(CMath2D::GetIntersection(Arc(Arc::eArcCCW, 5, 0, 5, 0, 0, 0),
                                       Arc(Arc::eArcCW, 5, 8, 5, 8, 0, 8), p1, p2));
  ExpectPoint(p1, 3, 4);
  ExpectPoint(p2, -3, 4);
}

TEST(CMath2D, TouchingCirclesGiveOnePointTwice) {
  Point p1, p2;
  EXPECT_TRUE(CMath2D::GetIntersection(Arc(Arc::eArcCCW, 5, 0, 5, 0, 0, 0),
                                       Arc(Arc::eArcCW, 11, 8, 11, 8, 6, 8), p1, p2));
  ExpectPoint(p1, 3, 4);
  ExpectPoint(p2, 3, 4);
}

TEST(CMath2D, CircleCircleUsesAtanSoACentreToTheLeftSwapsThePoints) {
  // p1 lies left of the direction from a's centre to b's when b's centre is to the right (dx > 0); atan
  // instead of atan2 turns that round when b's centre is to the left, exchanging p1 and p2.
  Point p1, p2;
  const Arc a(Arc::eArcCCW, 5, 0, 5, 0, 0, 0);
  const Arc right(Arc::eArcCCW, 8, 7, 8, 7, 3, 7);     // centre (3, 7), radius 5
  const Arc left(Arc::eArcCCW, 2, -7, 2, -7, -3, -7);  // centre (-3, -7), radius 5
  ASSERT_TRUE(CMath2D::GetIntersection(a, right, p1, p2));
  EXPECT_GT(3 * p1.GetY() - 7 * p1.GetX(), 0.0);  // cross((3, 7), p1) > 0: left
  ASSERT_TRUE(CMath2D::GetIntersection(a, left, p1, p2));
  EXPECT_LT(-3 * p1.GetY() + 7 * p1.GetX(), 0.0);  // cross((-3, -7), p1) < 0: right
  EXPECT_NEAR(std::hypot(p1.GetX(), p1.GetY()), 5, 1e-12);
  EXPECT_NEAR(std::hypot(p1.GetX() + 3, p1.GetY() + 7), 5, 1e-12);
}

TEST(CMath2D, ConcentricDistantAndNestedCirclesDoNotIntersect) {
  Point p1(7, 7), p2(7, 7);
  const Arc a(Arc::eArcCCW, 5, 0, 5, 0, 0, 0);
  EXPECT_FALSE(CMath2D::GetIntersection(a, Arc(Arc::eArcCCW, 5, 0, 5, 0, 5e-7, 0), p1, p2));
  EXPECT_FALSE(CMath2D::GetIntersection(a, Arc(Arc::eArcCCW, 12, 0, 12, 0, 11, 0), p1, p2));
  EXPECT_FALSE(CMath2D::GetIntersection(a, Arc(Arc::eArcCCW, 2, 0, 2, 0, 1, 0), p1, p2));
  ExpectPoint(p1, 7, 7, 0);
}

TEST(CMath2D, TangentPointsFromAPointOutside) {
  Point t1, t2;
  EXPECT_TRUE(CMath2D::GetCircleTangentPoints(Arc(Arc::eArcCCW, 3, 0, 3, 0, 0, 0), Point(5, 0), t1, t2));
  ExpectPoint(t1, 1.8, 2.4);
  ExpectPoint(t2, 1.8, -2.4);
}

TEST(CMath2D, NoTangentPointsFromInsideOnOrJustOutside) {
  Point t1(7, 7), t2;
  const Arc c(Arc::eArcCCW, 3, 0, 3, 0, 0, 0);
  EXPECT_FALSE(CMath2D::GetCircleTangentPoints(c, Point(1, 1), t1, t2));
  EXPECT_FALSE(CMath2D::GetCircleTangentPoints(c, Point(3, 0), t1, t2));
  EXPECT_FALSE(CMath2D::GetCircleTangentPoints(c, Point(3 + 5e-5, 0), t1, t2));
  EXPECT_TRUE(CMath2D::GetCircleTangentPoints(c, Point(3.01, 0), t1, t2));
}

TEST(CMath2D, ComputationsTakeTheRadiusFromTheStartPointOfAnInconsistentArc) {
  // start at radius 2, end at radius 1: GetRadius says 1, every computation works with 2
  const Arc arc(Arc::eArcCCW, 2, 0, 0, 1, 0, 0);
  ASSERT_DOUBLE_EQ(arc.GetRadius(), 1.0);
  Point p1, p2;
  EXPECT_TRUE(CMath2D::GetHorLineIntersection(arc, 0, p1, p2));
  ExpectPoint(p1, 2, 0);
  ExpectPoint(p2, -2, 0);
  EXPECT_TRUE(CMath2D::GetVerLineIntersection(arc, 2, p1, p2));  // touches the start-radius circle
  ExpectPoint(p1, 2, 0, 0);
  double x = 0, y = 0;
  CMath2D::GetArcPointByOffset(arc, 1.0, x, y);
  EXPECT_NEAR(x, 0, 1e-15);
  EXPECT_NEAR(y, 2, 1e-15);
  EXPECT_DOUBLE_EQ(CMath2D::GetArcLength(arc), kPi);
  KC2DPointList points;
  CMath2D::GetArcAnchorPoints(arc, points);
  ASSERT_EQ(points.size(), 2u);  // the 0 degree point, then the left point of the (crossed) 90 degree flag
  EXPECT_EQ(points[0], KC2DPoint(2, 0));
  EXPECT_EQ(points[1], KC2DPoint(-2, 0));
  Point out;
  EXPECT_TRUE(CMath2D::ProjectedPointOnArcWc(arc, Point(0, 5), out));
  ExpectPoint(out, 0, 2);
}
