// SPDX-License-Identifier: MIT
// Degenerate input: zero-length lines, zero radius, coincident centres, points at the centre, NaN and
// infinite coordinates. Each case returns (no crash, no endless loop) with the result stated here.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "ncappkit/geometry/CMathAuxShapes.h"

using Arc = CMath2D::Cd2DArc;
using Line = CMath2D::Cd2DLine;
using Point = CMath2D::Cd2DPoint;

namespace {
const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();
}  // namespace

// ----- zero-length lines -----------------------------------------------------------------------------------

TEST(GeometryDegenerateInput, ZeroLengthLineHasLengthAndAngleZero) {
  const Line dot(2, 3, 2, 3);
  EXPECT_EQ(CMath2D::GetLength(dot), 0.0);
  EXPECT_EQ(CMath2D::GetAngleRad(dot), 0.0);
  EXPECT_TRUE(CMath2D::PointBelongsToLine(dot, 2, 3));
  EXPECT_FALSE(CMath2D::PointBelongsToLine(dot, 2, 3.1));
}

TEST(GeometryDegenerateInput, ZeroLengthLineCannotBeIntersected) {
  Point out(7, 7);
  // both differences are zero: it counts as vertical; against another vertical line nothing is found
  EXPECT_FALSE(CMath2D::GetIntersectPoint(Line(2, 3, 2, 3), Line(5, 0, 5, 1), out));
  // against a sloped line the vertical case gives the point on that line at x = 2
  EXPECT_TRUE(CMath2D::GetIntersectPoint(Line(2, 3, 2, 3), Line(0, 0, 1, 1), out));
  EXPECT_EQ(out.GetX(), 2.0);
  EXPECT_EQ(out.GetY(), 2.0);
}

TEST(GeometryDegenerateInput, ZeroLengthLineParallelsAreVerticalLines) {
  Line left, right, through;
  double angle = -1;
  EXPECT_TRUE(CMath2D::GetParallelLinesAtDist(Line(2, 3, 2, 3), 1, left, right, angle));
  EXPECT_EQ(angle, 90.0);
  EXPECT_EQ(left.GetStartX(), 1.0);
  EXPECT_TRUE(CMath2D::GetParallelLine(Line(2, 3, 2, 3), Point(5, 5), through, angle));
  EXPECT_EQ(through.GetStartX(), 5.0);
  EXPECT_EQ(through.GetStartY(), 3.0);
}

TEST(GeometryDegenerateInput, ZeroLengthLineAgainstACircleIsAHorizontalLine) {
  Point p1, p2;
  EXPECT_TRUE(CMath2D::GetIntersection(Arc(Arc::eArcCCW, 1, 0, 1, 0, 0, 0), Line(0, 0.5, 0, 0.5), p1, p2));
  EXPECT_NEAR(p1.GetX(), std::sqrt(0.75), 1e-15);
}

// ----- zero radius and coincident centres
// --------------------------------------------------------------------

TEST(GeometryDegenerateInput, ZeroRadiusArcIsAFullCircleOfLengthZero) {
  const Arc dot(Arc::eArcCW, 1, 1, 1, 1, 1, 1);
  EXPECT_TRUE(CMath2D::IsCircle(dot));
  EXPECT_EQ(CMath2D::GetArcRadius(dot), 0.0);
  EXPECT_EQ(CMath2D::GetArcAngleDeg(dot), 360.0);
  EXPECT_EQ(CMath2D::GetArcLength(dot), 0.0);
  double x = 0, y = 0;
  CMath2D::GetArcPointByOffset(dot, 0.5, x, y);
  EXPECT_EQ(x, 1.0);
  EXPECT_EQ(y, 1.0);
}

TEST(GeometryDegenerateInput, LineThroughAZeroRadiusCircleTouchesIt) {
  Point p1, p2;
  EXPECT_TRUE(CMath2D::GetHorLineIntersection(Arc(Arc::eArcCW, 1, 1, 1, 1, 1, 1), 1, p1, p2));
  EXPECT_EQ(p1.GetX(), 1.0);
  EXPECT_EQ(p2.GetY(), 1.0);
  EXPECT_FALSE(CMath2D::GetHorLineIntersection(Arc(Arc::eArcCW, 1, 1, 1, 1, 1, 1), 2, p1, p2));
}

TEST(GeometryDegenerateInput, TangentPointsOfAZeroRadiusCircleAreItsCentre) {
  Point t1, t2;
  EXPECT_TRUE(CMath2D::GetCircleTangentPoints(Arc(Arc::eArcCW, 1, 1, 1, 1, 1, 1), Point(4, 5), t1, t2));
  EXPECT_NEAR(t1.GetX(), 1.0, 1e-12);
  EXPECT_NEAR(t1.GetY(), 1.0, 1e-12);
  EXPECT_NEAR(t2.GetX(), 1.0, 1e-12);
}

TEST(GeometryDegenerateInput, ConcentricCirclesNeverIntersectEvenWhenEqual) {
  Point p1, p2;
  const Arc a(Arc::eArcCCW, 1, 0, 1, 0, 0, 0);
  EXPECT_FALSE(CMath2D::GetIntersection(a, a, p1, p2));
  EXPECT_FALSE(CMathAuxShapes::GetIntersection(CMathAuxShapes::CAuxCircleImpl(0, 0, 1),
                                               CMathAuxShapes::CAuxCircleImpl(0, 0, 1), p1, p2));
}

TEST(GeometryDegenerateInput, TwoZeroRadiusCirclesApartDoNotIntersect) {
  Point p1, p2;
  EXPECT_FALSE(CMath2D::GetIntersection(Arc(Arc::eArcCCW, 0, 0, 0, 0, 0, 0),
                                        Arc(Arc::eArcCCW, 1, 0, 1, 0, 1, 0), p1, p2));
}

// ----- points at the centre
// ----------------------------------------------------------------------------------

TEST(GeometryDegenerateInput, PointAtTheCentre) {
  const Arc arc(Arc::eArcCCW, 3, 1, 1, 3, 1, 1);
  const Point centre(1, 1);
  Point out(7, 7), t1, t2;
  EXPECT_EQ(CMath2D::CalcArcPointAngleRad(arc, 1, 1), 0.0);
  EXPECT_FALSE(CMath2D::ProjectedPointOnArcWc(arc, centre, out));
  EXPECT_FALSE(CMath2D::GetCircleTangentPoints(arc, centre, t1, t2));
  EXPECT_EQ(CMath2D::DistanceCenterOfArc2Point(arc, centre), 0.0);
  EXPECT_EQ(out.GetX(), 7.0);
  // angle 0 from the centre lies on this quarter arc (its start direction)
  EXPECT_TRUE(CMath2D::PointIsBetweenStartAndEndWc(arc, centre));
}

// ----- NaN and infinity ------------------------------------------------------------------------------------

TEST(GeometryDegenerateInput, LineWithANaNXDifferenceIsNeitherSlantedNorVerticalAndHasNoIntersection) {
  // |NaN| is neither above 1e-8 (slanted) nor at most 1e-8 (vertical): no case applies, the result is false
  Point out(7, 7);
  EXPECT_FALSE(CMath2D::GetIntersectPoint(Line(kNaN, 0, 1, 1), Line(0, 1, 1, 0), out));
  EXPECT_FALSE(CMath2D::GetIntersectPoint(Line(0, 0, kNaN, 1), Line(0, 1, 1, 0), out));
  EXPECT_FALSE(CMath2D::GetIntersectPoint(Line(0, 1, 1, 0), Line(0, 0, kNaN, 1), out));
  EXPECT_FALSE(CMath2D::GetIntersectPoint(Line(kNaN, 0, 1, 1), Line(2, 1, 2, 0), out));
  EXPECT_EQ(out.GetX(), 7.0);
  EXPECT_EQ(out.GetY(), 7.0);
}

TEST(GeometryDegenerateInput, NaNArcAcceptsOnlyItsEndDirection) {
  const Arc arc(Arc::eArcCCW, kNaN, 0, 0, 1, 0, 0);
  EXPECT_FALSE(CMath2D::IsCircle(arc));
  EXPECT_FALSE(CMath2D::AngleOnCCWArcSegment(arc, kNaN, 90, 45));
  EXPECT_TRUE(CMath2D::AngleOnCCWArcSegment(arc, kNaN, 90, 90));
  KC2DPointList points;
  CMath2D::GetArcAnchorPoints(arc, points);
  ASSERT_EQ(points.size(), 1u);               // the 90 degree flag (the end direction) picks the left point
  EXPECT_TRUE(std::isnan(points[0].GetX()));  // at the NaN radius
  KC2DArea area;
  CMath2D::GetRectangle(arc, area);
  EXPECT_FALSE(area.IsEmpty());  // the end point (0, 1) is a number; the NaN start is left out
  EXPECT_EQ(area.GetMinX(), 0.0);
  EXPECT_EQ(area.GetMaxY(), 1.0);
}

TEST(GeometryDegenerateInput, NaNPropagatesIntoMeasures) {
  const Arc arc(Arc::eArcCCW, kNaN, 0, 0, 1, 0, 0);
  EXPECT_TRUE(std::isnan(CMath2D::GetArcRadius(arc)));
  EXPECT_TRUE(std::isnan(CMath2D::GetArcAngleDeg(arc)));
  EXPECT_TRUE(std::isnan(CMath2D::GetArcLength(arc)));
  EXPECT_TRUE(std::isnan(CMath2D::GetDistance(Point(kNaN, 0), Point(0, 0))));
  EXPECT_TRUE(std::isnan(CMath2D::DistancePoint2Line(Line(0, 0, 1, 0), Point(kNaN, 0), true)));
}

TEST(GeometryDegenerateInput, NaNRadiusCircleGivesNaNPoints) {
  // No comparison rejects NaN, so the formula runs through and reports NaN points; callers check isnan.
  Point p1, p2;
  EXPECT_TRUE(CMath2D::GetHorLineIntersection(Arc(Arc::eArcCCW, kNaN, 0, 0, 0, 0, 0), 0.5, p1, p2));
  EXPECT_TRUE(std::isnan(p1.GetX()));
  EXPECT_FALSE(CMath2D::GetIntersection(Arc(Arc::eArcCCW, 1, 0, 1, 0, 0, 0),
                                        Arc(Arc::eArcCCW, 1, 0, 1, 0, kNaN, 0), p1, p2) &&
               !std::isnan(p1.GetX()));
}

TEST(GeometryDegenerateInput, InfiniteInputsFindNothingOrInfinity) {
  Point p1(7, 7), p2(7, 7);
  const Arc unit(Arc::eArcCCW, 1, 0, 1, 0, 0, 0);
  EXPECT_FALSE(CMath2D::GetHorLineIntersection(unit, kInf, p1, p2));
  EXPECT_FALSE(CMath2D::GetVerLineIntersection(unit, -kInf, p1, p2));
  EXPECT_FALSE(
      CMath2D::GetIntersection(unit, Arc(Arc::eArcCCW, kInf, 0, kInf, 0, 0, 0), p1, p2));  // concentric
  EXPECT_FALSE(CMath2D::GetIntersection(unit, Arc(Arc::eArcCCW, kInf, 0, kInf, 0, 5, 0), p1, p2));  // nested
  EXPECT_EQ(p1.GetX(), 7.0);
  // a centre at infinity has a NaN radius (inf - inf): no comparison rejects it and the points are NaN
  EXPECT_TRUE(CMath2D::GetIntersection(unit, Arc(Arc::eArcCCW, kInf, 0, kInf, 0, kInf, 0), p1, p2));
  EXPECT_TRUE(std::isnan(p1.GetX()));
  EXPECT_EQ(CMath2D::GetDistance(Point(kInf, 0), Point(0, 0)), kInf);
  EXPECT_EQ(CMathAuxShapes::DistanceFromPointToAuxShape(CMathAuxShapes::CAuxHorLine(0), 0.0, kInf), kInf);
}

TEST(GeometryDegenerateInput, InfiniteAndNaNAnglesAreNeitherHorizontalNorVertical) {
  EXPECT_FALSE(CMathAuxShapes::IsHorizontal(CMathAuxShapes::CAuxLine(0, 0, kInf)));
  EXPECT_FALSE(CMathAuxShapes::IsVertical(CMathAuxShapes::CAuxLine(0, 0, kInf)));
  EXPECT_FALSE(CMathAuxShapes::IsHorizontal(CMathAuxShapes::CAuxLine(0, 0, kNaN)));
  Point p;
  EXPECT_EQ(CMathAuxShapes::GetIntersection(Arc(Arc::eArcCCW, 1, 0, -1, 0, 0, 0),
                                            CMathAuxShapes::CAuxLine(0, 0, kNaN), p, p),
            0);
}

TEST(GeometryDegenerateInput, IntArcOffsetBeyondTheIntRangeSaturates) {
  const int big = 2147483647 - 5;
  // quarter arc of radius 10 around (big, 0); twice its sweep reaches x = big + 10, past INT_MAX
  const CMath2D::Ci2DArc arc(CMath2D::Ci2DArc::eArcCCW, big - 10, 0, big, -10, big, 0);
  int x = 0, y = 0;
  CMath2D::GetArcPointByOffset(arc, 2.0, x, y);
  EXPECT_EQ(x, 2147483647);
  EXPECT_EQ(y, 0);
  CMath2D::GetArcPointByOffset(arc, kNaN, x, y);
  EXPECT_EQ(x, 0);  // NaN coordinates become 0
  EXPECT_EQ(y, 0);
}

TEST(GeometryDegenerateInput, FoundationElementsSurviveNaNAndInfinity) {
  const KC2DArc arc(KC2DPoint(kInf, 0), KC2DPoint(0, 1), KC2DPoint(0, 0), true);
  KC2DPointList points;
  arc.AddAsPolygonMaxAngle(points, 0.1);
  EXPECT_EQ(points.size(), 17u);  // the sweep is still a quarter turn; the inner points are not finite
  EXPECT_FALSE(std::isfinite(points[1].GetX()));
  points.clear();
  arc.AddAsPolygonMaxAngle(points, kInf);
  EXPECT_EQ(points.size(), 2u);  // a step limit that is not finite: start and end only
  const KC2DArc nanArc(KC2DPoint(kNaN, 0), KC2DPoint(0, 1), KC2DPoint(0, 0), true);
  points.clear();
  nanArc.AddAsPolygon(points);
  EXPECT_EQ(points.size(), 2u);
  EXPECT_TRUE(std::isnan(nanArc.Len()));
  EXPECT_EQ(KC2DRectangle(0, 0, 1, 1).GetParametricPoint(kNaN), KC2DPoint(0, 0));
}
