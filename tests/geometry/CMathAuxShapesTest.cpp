// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cmath>
#include <type_traits>

#include "ncappkit/geometry/CMathAuxShapes.h"

using Aux = CMathAuxShapes;
using Arc = CMath2D::Cd2DArc;
using Line = CMath2D::Cd2DLine;
using Point = CMath2D::Cd2DPoint;

namespace {

constexpr double kPi = 3.141592653589793;

void ExpectPoint(const Point& p, double x, double y, double tolerance = 1e-12) {
  EXPECT_NEAR(p.GetX(), x, tolerance);
  EXPECT_NEAR(p.GetY(), y, tolerance);
}

Aux::CAuxLine LineAt(double angleDeg) {
  return Aux::CAuxLine(0, 0, angleDeg);
}

// An aux line whose radian angle does not match its degrees: a client mistake the distance survives.
class FlatRadianLine : public KCI_AuxLine {
 public:
  double GetXPos() const override { return 0; }
  void SetXPos(double) override {}
  double GetYPos() const override { return 0; }
  void SetYPos(double) override {}
  double GetAngleDeg() const override { return 45; }
  double GetAngleRad() const override { return 0; }
  void SetAngleDeg(double) override {}
  void SetAngleRad(double) override {}
};

}  // namespace

// ----- shapes ----------------------------------------------------------------------------------------------

TEST(CMathAuxShapes, AuxLineConvertsRadiansThroughAtanOfOne) {
  Aux::CAuxLine line(0, 0, 90);
  EXPECT_NEAR(line.GetAngleRad(), kPi / 2, 1e-15);
  EXPECT_EQ(line.GetAngleRad(), std::atan(1.0) * 90 / 45);
  line.SetAngleRad(kPi);
  EXPECT_NEAR(line.GetAngleDeg(), 180.0, 1e-12);
  EXPECT_EQ(line.GetAngleDeg(), kPi * 45 / std::atan(1.0));
}

TEST(CMathAuxShapes, AuxLineKeepsItsAngleAsGiven) {
  Aux::CAuxLine line(1, 2, 725);
  EXPECT_EQ(line.GetAngleDeg(), 725.0);
  EXPECT_EQ(line.GetXPos(), 1.0);
  EXPECT_EQ(line.GetYPos(), 2.0);
}

TEST(CMathAuxShapes, DefaultShapesAreZero) {
  EXPECT_EQ(Aux::CAuxHorLine().GetPos(), 0.0);
  EXPECT_EQ(Aux::CAuxVerLine().GetPos(), 0.0);
  EXPECT_EQ(Aux::CAuxLine().GetAngleDeg(), 0.0);
  EXPECT_EQ(Aux::CAuxCircleImpl().GetRadius(), 0.0);
  EXPECT_EQ(Aux::CAuxCircleImpl().GetCenterX(), 0.0);
}

TEST(CMathAuxShapes, AuxCircleIsAbstractAndTheImplIsNot) {
  EXPECT_TRUE(std::is_abstract<Aux::CAuxCircle>::value);
  EXPECT_FALSE(std::is_abstract<Aux::CAuxCircleImpl>::value);
  EXPECT_TRUE((std::is_base_of<Aux::CAuxCircle, Aux::CAuxCircleImpl>::value));
}

TEST(CMathAuxShapes, CircleImplCentreOperationsAreThePositionFields) {
  Aux::CAuxCircleImpl circle(1, 2, 3);
  KCI_AuxCircle& shape = circle;
  EXPECT_EQ(shape.GetCenterX(), 1.0);
  EXPECT_EQ(shape.GetCenterY(), 2.0);
  EXPECT_EQ(shape.GetRadius(), 3.0);
  shape.SetCenterX(5);
  shape.SetCenterY(6);
  shape.SetRadius(7);
  EXPECT_EQ(circle.GetXPos(), 5.0);
  EXPECT_EQ(circle.GetYPos(), 6.0);
  EXPECT_EQ(circle.GetRadius(), 7.0);
}

// ----- predicates ------------------------------------------------------------------------------------------

TEST(CMathAuxShapes, HorizontalForWholeMultiplesOf180) {
  EXPECT_TRUE(Aux::IsHorizontal(LineAt(0)));
  EXPECT_TRUE(Aux::IsHorizontal(LineAt(180)));
  EXPECT_TRUE(Aux::IsHorizontal(LineAt(-180)));
  EXPECT_TRUE(Aux::IsHorizontal(LineAt(360)));
  EXPECT_FALSE(Aux::IsHorizontal(LineAt(90)));
}

TEST(CMathAuxShapes, HorizontalToleranceLooksOnlyAtOrJustAboveTheNearestMultiple) {
  EXPECT_TRUE(Aux::IsHorizontal(LineAt(179.9999)));   // just below 180: trunc(q + 1e-6) reaches 1
  EXPECT_FALSE(Aux::IsHorizontal(LineAt(180.0002)));  // 1.1e-6 of a half turn above: too far
  EXPECT_TRUE(Aux::IsHorizontal(LineAt(180.0001)));
  EXPECT_TRUE(Aux::IsHorizontal(LineAt(-0.0001)));
}

TEST(CMathAuxShapes, VerticalFor90Plus180Multiples) {
  EXPECT_TRUE(Aux::IsVertical(LineAt(90)));
  EXPECT_TRUE(Aux::IsVertical(LineAt(-90)));
  EXPECT_TRUE(Aux::IsVertical(LineAt(270)));
  EXPECT_TRUE(Aux::IsVertical(LineAt(-270)));
  EXPECT_FALSE(Aux::IsVertical(LineAt(0)));
  EXPECT_FALSE(Aux::IsVertical(LineAt(45)));
  EXPECT_FALSE(Aux::IsVertical(LineAt(180)));
}

// ----- distances -------------------------------------------------------------------------------------------

TEST(CMathAuxShapes, DistanceToCircleAndNearestPoint) {
  const Aux::CAuxCircleImpl circle(0, 0, 2);
  Point foot;
  EXPECT_DOUBLE_EQ(Aux::DistanceFromPointToAuxShape(circle, Point(3, 4), foot), 3.0);
  ExpectPoint(foot, 1.2, 1.6);
  EXPECT_DOUBLE_EQ(Aux::DistanceFromPointToAuxShape(circle, Point(3, 4)), 3.0);
  EXPECT_DOUBLE_EQ(Aux::DistanceFromPointToAuxShape(circle, 3.0, 4.0), 3.0);
  Point foot2;
  EXPECT_DOUBLE_EQ(Aux::DistanceFromPointToAuxShape(circle, 0.3, 0.4, foot2), 1.5);
  ExpectPoint(foot2, 1.2, 1.6);
}

TEST(CMathAuxShapes, DistanceFromTheCircleCentreIsTheRadiusWithoutAFoot) {
  Point foot;
  EXPECT_DOUBLE_EQ(Aux::DistanceFromPointToAuxShape(Aux::CAuxCircleImpl(1, 1, 2), Point(1, 1), foot), 2.0);
  EXPECT_TRUE(std::isnan(foot.GetX()));
}

TEST(CMathAuxShapes, DistanceToHorizontalAndVerticalLines) {
  Point foot;
  EXPECT_DOUBLE_EQ(Aux::DistanceFromPointToAuxShape(Aux::CAuxHorLine(2), Point(5, -1), foot), 3.0);
  ExpectPoint(foot, 5, 2, 0);
  EXPECT_DOUBLE_EQ(Aux::DistanceFromPointToAuxShape(Aux::CAuxHorLine(2), 5.0, -1.0), 3.0);
  EXPECT_DOUBLE_EQ(Aux::DistanceFromPointToAuxShape(Aux::CAuxVerLine(-1), Point(5, -1), foot), 6.0);
  ExpectPoint(foot, -1, -1, 0);
  EXPECT_DOUBLE_EQ(Aux::DistanceFromPointToAuxShape(Aux::CAuxVerLine(-1), Point(5, -1)), 6.0);
  EXPECT_DOUBLE_EQ(Aux::DistanceFromPointToAuxShape(Aux::CAuxVerLine(-1), 5.0, -1.0, foot), 6.0);
}

TEST(CMathAuxShapes, DistanceToASlantedLine) {
  Point foot;
  EXPECT_NEAR(Aux::DistanceFromPointToAuxShape(Aux::CAuxLine(0, 0, 45), Point(0, 2), foot), std::sqrt(2.0),
              1e-12);
  ExpectPoint(foot, 1, 1);
  EXPECT_NEAR(Aux::DistanceFromPointToAuxShape(Aux::CAuxLine(0, 0, 45), 0.0, 2.0), std::sqrt(2.0), 1e-12);
}

TEST(CMathAuxShapes, DistanceToAxisAlignedAuxLines) {
  Point foot;
  EXPECT_DOUBLE_EQ(Aux::DistanceFromPointToAuxShape(Aux::CAuxLine(7, 3, 180), Point(5, 1), foot), 2.0);
  ExpectPoint(foot, 5, 3, 0);
  EXPECT_DOUBLE_EQ(Aux::DistanceFromPointToAuxShape(Aux::CAuxLine(7, 3, -90), Point(5, 1), foot), 2.0);
  ExpectPoint(foot, 7, 1, 0);
}

TEST(CMathAuxShapes, DistanceWithoutASlopeGivesTheSentinelAndLeavesTheFoot) {
  Point foot(7, 7);
  EXPECT_EQ(Aux::DistanceFromPointToAuxShape(FlatRadianLine(), Point(1, 2), foot), 99999999.9);
  ExpectPoint(foot, 7, 7, 0);
}

// ----- line intersections ----------------------------------------------------------------------------------

TEST(CMathAuxShapes, HorizontalLineAndHorizontalAuxLineNeverIntersect) {
  Point p(7, 7);
  EXPECT_FALSE(Aux::GetIntersection(Line(0, 3, 10, 3), Aux::CAuxHorLine(3), p));
  EXPECT_FALSE(Aux::GetIntersection(Line(0, 3, 10, 3), Aux::CAuxHorLine(5), p));
  ExpectPoint(p, 7, 7, 0);
}

TEST(CMathAuxShapes, LineAndHorizontalAuxLine) {
  Point p;
  EXPECT_TRUE(Aux::GetIntersection(Line(0, 0, 10, 10), Aux::CAuxHorLine(3), p));
  ExpectPoint(p, 3, 3);
  EXPECT_TRUE(Aux::GetIntersection(Line(2, 0, 2, 10), Aux::CAuxHorLine(5), p));
  ExpectPoint(p, 2, 5);
}

TEST(CMathAuxShapes, LineAndVerticalAuxLine) {
  Point p;
  EXPECT_TRUE(Aux::GetIntersection(Line(0, 0, 10, 10), Aux::CAuxVerLine(4), p));
  ExpectPoint(p, 4, 4);
  EXPECT_FALSE(Aux::GetIntersection(Line(2, 0, 2, 10), Aux::CAuxVerLine(4), p));
}

TEST(CMathAuxShapes, LineAndAuxLine) {
  Point p;
  EXPECT_TRUE(Aux::GetIntersection(Line(0, 2, 10, 2), Aux::CAuxLine(5, 0, 90), p));
  ExpectPoint(p, 5, 2, 0);
  EXPECT_TRUE(Aux::GetIntersection(Line(3, 0, 3, 10), Aux::CAuxLine(0, 4, 0), p));
  ExpectPoint(p, 3, 4, 0);
  EXPECT_TRUE(Aux::GetIntersection(Line(0, 0, 10, 10), Aux::CAuxLine(0, 2, 0), p));
  ExpectPoint(p, 2, 2);
  EXPECT_TRUE(Aux::GetIntersection(Line(0, 0, 10, 10), Aux::CAuxLine(0, 2, -45), p));
  ExpectPoint(p, 1, 1);
  EXPECT_FALSE(Aux::GetIntersection(Line(0, 0, 1, 1), Aux::CAuxLine(0, 5, 45), p));
}

TEST(CMathAuxShapes, AuxLineAndAxisLines) {
  Point p;
  EXPECT_TRUE(Aux::GetIntersection(Aux::CAuxLine(0, 0, 45), Aux::CAuxHorLine(3), p));
  ExpectPoint(p, 3, 3);
  EXPECT_FALSE(Aux::GetIntersection(Aux::CAuxLine(0, 0, 180), Aux::CAuxHorLine(3), p));
  EXPECT_TRUE(Aux::GetIntersection(Aux::CAuxLine(0, 0, 45), Aux::CAuxVerLine(2), p));
  ExpectPoint(p, 2, 2);
  EXPECT_FALSE(Aux::GetIntersection(Aux::CAuxLine(0, 0, 270), Aux::CAuxVerLine(2), p));
}

TEST(CMathAuxShapes, TwoAuxLines) {
  Point p;
  EXPECT_TRUE(Aux::GetIntersection(Aux::CAuxLine(0, 3, 0), Aux::CAuxLine(5, 0, 90), p));
  ExpectPoint(p, 5, 3, 0);
  EXPECT_TRUE(Aux::GetIntersection(Aux::CAuxLine(5, 0, 90), Aux::CAuxLine(0, 3, 180), p));
  ExpectPoint(p, 5, 3, 0);
  EXPECT_TRUE(Aux::GetIntersection(Aux::CAuxLine(0, 0, 45), Aux::CAuxLine(0, 2, -45), p));
  ExpectPoint(p, 1, 1);
  EXPECT_FALSE(Aux::GetIntersection(Aux::CAuxLine(0, 0, 30), Aux::CAuxLine(1, 0, 210), p));
}

// ----- circle intersections --------------------------------------------------------------------------------

TEST(CMathAuxShapes, CircleAndHorizontalLine) {
  const Aux::CAuxCircleImpl circle(0, 0, 2);
  Point p1, p2;
  EXPECT_TRUE(Aux::GetIntersection(circle, Aux::CAuxHorLine(1), p1, p2));
  ExpectPoint(p1, std::sqrt(3.0), 1);
  ExpectPoint(p2, -std::sqrt(3.0), 1);
  EXPECT_TRUE(Aux::GetIntersection(circle, Aux::CAuxHorLine(2.00005), p1, p2));
  ExpectPoint(p1, 0, 2.00005, 0);
  ExpectPoint(p2, 0, 2.00005, 0);
  EXPECT_FALSE(Aux::GetIntersection(circle, Aux::CAuxHorLine(3), p1, p2));
}

TEST(CMathAuxShapes, CircleAndVerticalLine) {
  const Aux::CAuxCircleImpl circle(0, 0, 2);
  Point p1, p2;
  EXPECT_TRUE(Aux::GetIntersection(circle, Aux::CAuxVerLine(1), p1, p2));
  ExpectPoint(p1, 1, std::sqrt(3.0));
  ExpectPoint(p2, 1, -std::sqrt(3.0));
  EXPECT_TRUE(Aux::GetIntersection(circle, Aux::CAuxVerLine(-2), p1, p2));
  ExpectPoint(p1, -2, 0, 0);
  EXPECT_FALSE(Aux::GetIntersection(circle, Aux::CAuxVerLine(-3), p1, p2));
}

TEST(CMathAuxShapes, CircleAndAuxLine) {
  const Aux::CAuxCircleImpl circle(0, 0, 1);
  Point p1, p2;
  EXPECT_TRUE(Aux::GetIntersection(circle, Aux::CAuxLine(0, 0, 45), p1, p2));
  ExpectPoint(p1, std::sqrt(0.5), std::sqrt(0.5));
  ExpectPoint(p2, -std::sqrt(0.5), -std::sqrt(0.5));
  EXPECT_FALSE(Aux::GetIntersection(circle, Aux::CAuxLine(0, 3, 45), p1, p2));
  EXPECT_TRUE(Aux::GetIntersection(circle, Aux::CAuxLine(9, 0.5, 180), p1, p2));
  ExpectPoint(p1, std::sqrt(0.75), 0.5);
  EXPECT_TRUE(Aux::GetIntersection(circle, Aux::CAuxLine(0.5, 9, 90), p1, p2));
  ExpectPoint(p2, 0.5, -std::sqrt(0.75));
}

TEST(CMathAuxShapes, TwoCircles) {
  Point p1, p2;
  EXPECT_TRUE(Aux::GetIntersection(Aux::CAuxCircleImpl(0, 0, 5), Aux::CAuxCircleImpl(8, 0, 5), p1, p2));
  ExpectPoint(p1, 4, 3);
  ExpectPoint(p2, 4, -3);
  EXPECT_FALSE(Aux::GetIntersection(Aux::CAuxCircleImpl(0, 0, 5), Aux::CAuxCircleImpl(0, 0, 3), p1, p2));
}

// ----- arc intersections -----------------------------------------------------------------------------------

namespace {
// Counter-clockwise upper half of the unit circle, from (1, 0) to (-1, 0).
Arc UpperHalf() {
  return Arc(Arc::eArcCCW, 1, 0, -1, 0, 0, 0);
}
}  // namespace

TEST(CMathAuxShapes, UpperHalfArcAndLineAtHalfHeight) {
  Point p1, p2;
  EXPECT_EQ(Aux::GetIntersection(UpperHalf(), Aux::CAuxHorLine(0.5), p1, p2), 2);
  ExpectPoint(p1, std::sqrt(0.75), 0.5);
  ExpectPoint(p2, -std::sqrt(0.75), 0.5);
  EXPECT_EQ(Aux::GetIntersection(UpperHalf(), Aux::CAuxHorLine(-0.5), p1, p2), 0);
}

TEST(CMathAuxShapes, UpperHalfArcAndDiagonalAuxLineGiveNothing) {
  Point p1(7, 7), p2(7, 7);
  EXPECT_EQ(Aux::GetIntersection(UpperHalf(), Aux::CAuxLine(0, 0, 45), p1, p2), 0);
  ExpectPoint(p1, 7, 7, 0);
}

TEST(CMathAuxShapes, ArcAndAxisAlignedAuxLines) {
  Point p1, p2;
  EXPECT_EQ(Aux::GetIntersection(UpperHalf(), Aux::CAuxLine(3, 0.5, 0), p1, p2), 2);
  ExpectPoint(p2, -std::sqrt(0.75), 0.5);
  EXPECT_EQ(Aux::GetIntersection(UpperHalf(), Aux::CAuxLine(0.5, 3, 90), p1, p2), 1);
  ExpectPoint(p1, 0.5, std::sqrt(0.75));
}

TEST(CMathAuxShapes, TopTouchWritesOnlyTheFirstPoint) {
  Point p1, p2(7, 7);
  EXPECT_EQ(Aux::GetIntersection(UpperHalf(), Aux::CAuxHorLine(1.00005), p1, p2), 1);
  ExpectPoint(p1, 0, 1.00005, 0);
  ExpectPoint(p2, 7, 7, 0);
}

TEST(CMathAuxShapes, BottomTouchWritesBothPoints) {
  const Arc lowerHalf(Arc::eArcCCW, -1, 0, 1, 0, 0, 0);
  Point p1, p2(7, 7);
  EXPECT_EQ(Aux::GetIntersection(lowerHalf, Aux::CAuxHorLine(-1), p1, p2), 1);
  ExpectPoint(p1, 0, -1, 0);
  ExpectPoint(p2, 0, -1, 0);
}

TEST(CMathAuxShapes, TouchOutsideTheSweepGivesNothing) {
  Point p1, p2;
  EXPECT_EQ(Aux::GetIntersection(UpperHalf(), Aux::CAuxHorLine(-1), p1, p2), 0);
  EXPECT_EQ(Aux::GetIntersection(Arc(Arc::eArcCCW, -1, 0, 1, 0, 0, 0), Aux::CAuxHorLine(1), p1, p2), 0);
}

TEST(CMathAuxShapes, OnlyOneCandidateOnTheArcGoesToTheFirstPoint) {
  Point p1, p2(7, 7);
  EXPECT_EQ(Aux::GetIntersection(Arc(Arc::eArcCCW, 1, 0, 0, 1, 0, 0), Aux::CAuxHorLine(0.5), p1, p2), 1);
  ExpectPoint(p1, std::sqrt(0.75), 0.5);
  EXPECT_EQ(Aux::GetIntersection(Arc(Arc::eArcCCW, 0, 1, -1, 0, 0, 0), Aux::CAuxHorLine(0.5), p1, p2), 1);
  ExpectPoint(p1, -std::sqrt(0.75), 0.5);
  ExpectPoint(p2, 7, 7, 0);
}

TEST(CMathAuxShapes, ArcAndVerticalLineMirrorTheHorizontalCase) {
  const Arc rightHalf(Arc::eArcCCW, 0, -1, 0, 1, 0, 0);
  const Arc leftHalf(Arc::eArcCCW, 0, 1, 0, -1, 0, 0);
  Point p1, p2(7, 7);
  EXPECT_EQ(Aux::GetIntersection(rightHalf, Aux::CAuxVerLine(0.5), p1, p2), 2);
  ExpectPoint(p1, 0.5, std::sqrt(0.75));
  ExpectPoint(p2, 0.5, -std::sqrt(0.75));
  p2 = Point(7, 7);
  EXPECT_EQ(Aux::GetIntersection(rightHalf, Aux::CAuxVerLine(1), p1, p2), 1);  // right touch: p1 only
  ExpectPoint(p1, 1, 0, 0);
  ExpectPoint(p2, 7, 7, 0);
  EXPECT_EQ(Aux::GetIntersection(leftHalf, Aux::CAuxVerLine(-1), p1, p2), 1);  // left touch: both
  ExpectPoint(p2, -1, 0, 0);
  EXPECT_EQ(Aux::GetIntersection(leftHalf, Aux::CAuxVerLine(0.5), p1, p2), 0);
  EXPECT_EQ(Aux::GetIntersection(leftHalf, Aux::CAuxVerLine(2), p1, p2), 0);
}

TEST(CMathAuxShapes, ToolboxIsCopyableAndPolymorphic) {
  EXPECT_TRUE(std::is_copy_constructible<CMathAuxShapes>::value);
  EXPECT_TRUE(std::has_virtual_destructor<CMathAuxShapes>::value);
}

TEST(CMathAuxShapes, ArcIntersectionTakesTheRadiusFromTheStartPoint) {
  // start at radius 2, end at radius 1 (a quarter turn counter-clockwise from 0 to 90 degrees)
  const Arc arc(Arc::eArcCCW, 2, 0, 0, 1, 0, 0);
  Point p1, p2(7, 7);
  EXPECT_EQ(Aux::GetIntersection(arc, Aux::CAuxHorLine(1), p1, p2), 1);
  ExpectPoint(p1, std::sqrt(3.0), 1);  // (-sqrt 3, 1) lies at 150 degrees, off the sweep
  ExpectPoint(p2, 7, 7, 0);
  EXPECT_EQ(Aux::GetIntersection(arc, Aux::CAuxVerLine(1.5), p1, p2), 1);
  ExpectPoint(p1, 1.5, std::sqrt(1.75));
}

TEST(CMathAuxShapes, CircleAndAuxLineJustMissingKeepTheNegativeDiscriminant) {
  // y = x + b with b^2 = 2 + 1.25e-7 misses the unit circle by a hair: the discriminant is about -5e-7
  const double b = std::sqrt(2 + 1.25e-7);
  Point p1, p2;
  // the aux circle operation does not snap it to 0: it reports true with NaN points
  EXPECT_TRUE(Aux::GetIntersection(Aux::CAuxCircleImpl(0, 0, 1), Aux::CAuxLine(0, b, 45), p1, p2));
  EXPECT_TRUE(std::isnan(p1.GetX()));
  EXPECT_TRUE(std::isnan(p2.GetX()));
  // the arc-line intersection of CMath2D snaps it and reports the touching point twice
  EXPECT_TRUE(CMath2D::GetIntersection(Arc(Arc::eArcCCW, 1, 0, 1, 0, 0, 0), Line(0, b, 1, b + 1), p1, p2));
  ExpectPoint(p1, -b / 2, b / 2);
  ExpectPoint(p2, -b / 2, b / 2);
}
