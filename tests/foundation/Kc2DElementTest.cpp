// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "ncappkit/foundation/KC2DElement.h"
#include "ncappkit/foundation/KCParagraph.h"
#include "support/TestData.h"

namespace {

constexpr double kPi = 3.141592653589793;

void ExpectPointNear(const KC2DPoint& actual, double x, double y, double tolerance = 1e-12) {
  EXPECT_NEAR(actual.GetX(), x, tolerance);
  EXPECT_NEAR(actual.GetY(), y, tolerance);
}

// Quarter circle of radius 1 around the origin from (1, 0) to (0, 1).
KC2DArc QuarterArc(bool ccw) {
  return KC2DArc(KC2DPoint(1, 0), KC2DPoint(0, 1), KC2DPoint(0, 0), ccw);
}

class KindName : public KC2DElementVisitor {
 public:
  bool Visit(KC2DPoint&) override { return Set("point"); }
  bool Visit(KC2DLine&) override { return Set("line"); }
  bool Visit(KC2DArc&) override { return Set("arc"); }
  bool Visit(KC2DRectangle&) override { return Set("rectangle"); }
  std::string name;

 private:
  bool Set(const char* n) {
    name = n;
    return true;
  }
};

}  // namespace

// ----- points ------------------------------------------------------------------------------------------

TEST(Kc2DPoint, ComparesExactlyAndOrdersByXThenY) {
  EXPECT_EQ(KC2DPoint(1, 2), KC2DPoint(1, 2));
  EXPECT_NE(KC2DPoint(1, 2), KC2DPoint(1, 2 + 1e-15));
  EXPECT_LT(KC2DPoint(1, 9), KC2DPoint(2, 0));
  EXPECT_LT(KC2DPoint(1, 2), KC2DPoint(1, 3));
  EXPECT_GT(KC2DPoint(1, 3), KC2DPoint(1, 2));
  EXPECT_LE(KC2DPoint(1, 2), KC2DPoint(1, 2));
  EXPECT_GE(KC2DPoint(1, 2), KC2DPoint(1, 2));
  EXPECT_FALSE(KC2DPoint(1, 2) < KC2DPoint(1, 2));
}

TEST(Kc2DPoint, AddsAndSubtractsTheXYPartOfAVector) {
  const KCVector v(KC3DPoint(0, 0, 0), KC3DPoint(3, -4, 7));
  EXPECT_EQ(KC2DPoint(1, 1) + v, KC2DPoint(4, -3));
  EXPECT_EQ(KC2DPoint(1, 1) - v, KC2DPoint(-2, 5));
  KC2DPoint p(0, 0);
  p += v;
  p -= v;
  EXPECT_EQ(p, KC2DPoint(0, 0));
}

TEST(Kc2DPoint, IsItsOwnStartEndAndParametricPoint) {
  const KC2DPoint p(2, 3);
  EXPECT_EQ(p.GetStartPoint(), p);
  EXPECT_EQ(p.GetEndPoint(), p);
  EXPECT_EQ(p.GetParametricPoint(0.7), p);
  EXPECT_DOUBLE_EQ(p.Len(), 0.0);
  EXPECT_DOUBLE_EQ(p.GetMinX(), 2.0);
  EXPECT_DOUBLE_EQ(p.GetMaxY(), 3.0);
}

TEST(Kc2DPoint, TransformsAboutTheOrigin) {
  KC2DPoint p(2, 3);
  p.MirrorX();
  EXPECT_EQ(p, KC2DPoint(2, -3));
  p.MirrorY();
  EXPECT_EQ(p, KC2DPoint(-2, -3));
  p.Scale(2);
  EXPECT_EQ(p, KC2DPoint(-4, -6));
  p.ScaleX(0.5);
  p.ScaleY(-1);
  EXPECT_EQ(p, KC2DPoint(-2, 6));
  p.Translate(2, -6);
  EXPECT_EQ(p, KC2DPoint(0, 0));
}

TEST(Kc2DPoint, RotateAxisTurnsThePointTheOtherWay) {
  // Axes turned by +90 degrees: the point on the old x axis now lies on the new negative y axis.
  KC2DPoint p(1, 0);
  p.RotateAxis(kPi / 2);
  ExpectPointNear(p, 0, -1);
}

TEST(Kc2DPoint, IsAlmostEqUsesTheToleranceAndTheKind) {
  EXPECT_TRUE(KC2DPoint(1, 1).IsAlmostEq(KC2DPoint(1.05, 0.95), 0.1));
  EXPECT_FALSE(KC2DPoint(1, 1).IsAlmostEq(KC2DPoint(1.2, 1), 0.1));
  EXPECT_FALSE(KC2DPoint(0, 0).IsAlmostEq(KC2DLine(0, 0, 0, 0), 1.0));
}

TEST(Kc2DPoint, AddAsPolygonAppendsThePointOnce) {
  KC2DPointList points{KC2DPoint(9, 9)};
  KC2DPoint(1, 2).AddAsPolygon(points);
  ASSERT_EQ(points.size(), 2u);
  EXPECT_EQ(points[1], KC2DPoint(1, 2));
}

// ----- lines -------------------------------------------------------------------------------------------

TEST(Kc2DLine, LengthAndSquareLength) {
  const KC2DLine line(1, 1, 4, 5);
  EXPECT_DOUBLE_EQ(line.Len(), 5.0);
  EXPECT_DOUBLE_EQ(line.SquareLen(), 25.0);
}

TEST(Kc2DLine, ParametricPointRunsFromStartToEndAndExtrapolates) {
  const KC2DLine line(0, 0, 10, 20);
  EXPECT_EQ(line.GetParametricPoint(0), KC2DPoint(0, 0));
  EXPECT_EQ(line.GetParametricPoint(1), KC2DPoint(10, 20));
  EXPECT_EQ(line.GetParametricPoint(0.5), KC2DPoint(5, 10));
  EXPECT_EQ(line.GetParametricPoint(-1), KC2DPoint(-10, -20));
}

TEST(Kc2DLine, BoundingBoxIgnoresDirection) {
  const KC2DLine line(5, -1, -2, 3);
  EXPECT_DOUBLE_EQ(line.GetMinX(), -2.0);
  EXPECT_DOUBLE_EQ(line.GetMaxX(), 5.0);
  EXPECT_DOUBLE_EQ(line.GetMinY(), -1.0);
  EXPECT_DOUBLE_EQ(line.GetMaxY(), 3.0);
}

TEST(Kc2DLine, ReverseExchangesTheEnds) {
  KC2DLine line(1, 2, 3, 4);
  line.Reverse();
  EXPECT_EQ(line.GetStartPoint(), KC2DPoint(3, 4));
  EXPECT_EQ(line.GetEndPoint(), KC2DPoint(1, 2));
}

TEST(Kc2DLine, TransformationsMoveBothEnds) {
  KC2DLine line(1, 2, 3, 4);
  line.Translate(1, 1);
  line.Scale(2);
  line.MirrorY();
  EXPECT_TRUE(line.IsAlmostEq(KC2DLine(-4, 6, -8, 10), 0.0));
  line.ScaleX(-0.5);
  line.ScaleY(0.5);
  line.MirrorX();
  EXPECT_TRUE(line.IsAlmostEq(KC2DLine(2, -3, 4, -5), 0.0));
}

TEST(Kc2DLine, RotateAxisByAQuarterTurn) {
  KC2DLine line(1, 0, 2, 0);
  line.RotateAxis(kPi / 2);
  EXPECT_TRUE(line.IsAlmostEq(KC2DLine(0, -1, 0, -2), 1e-12));
}

TEST(Kc2DLine, AddAsPolygonAppendsStartAndEnd) {
  KC2DPointList points;
  KC2DLine(1, 2, 3, 4).AddAsPolygon(points);
  ASSERT_EQ(points.size(), 2u);
  EXPECT_EQ(points[0], KC2DPoint(1, 2));
  EXPECT_EQ(points[1], KC2DPoint(3, 4));
}

TEST(Kc2DLine, IsAlmostEqComparesBothEndsInOrder) {
  EXPECT_TRUE(KC2DLine(0, 0, 1, 1).IsAlmostEq(KC2DLine(0.01, 0, 1, 1.01), 0.02));
  EXPECT_FALSE(KC2DLine(0, 0, 1, 1).IsAlmostEq(KC2DLine(1, 1, 0, 0), 0.02));
}

// ----- arcs --------------------------------------------------------------------------------------------

TEST(Kc2DArc, RadiusIsMeasuredToTheStartPoint) {
  const KC2DArc arc(KC2DPoint(10, 0), KC2DPoint(0, 5), KC2DPoint(0, 0), true);
  EXPECT_DOUBLE_EQ(arc.Radius(), 10.0);
}

TEST(Kc2DArc, DirectionPredicatesAgree) {
  KC2DArc arc = QuarterArc(true);
  EXPECT_TRUE(arc.IsCCW());
  EXPECT_TRUE(arc.IsCounterClockwise());
  EXPECT_FALSE(arc.IsCW());
  EXPECT_FALSE(arc.IsClockwise());
  arc.SetClockWise();
  EXPECT_TRUE(arc.IsCW());
  EXPECT_TRUE(arc.IsClockwise());
  arc.SetCounterClockWise();
  EXPECT_TRUE(arc.IsCCW());
}

TEST(Kc2DArc, LengthOfQuarterArcInBothSenses) {
  EXPECT_NEAR(QuarterArc(true).Len(), kPi / 2, 1e-15);
  EXPECT_NEAR(QuarterArc(false).Len(), 3 * kPi / 2, 1e-14);
}

TEST(Kc2DArc, CoincidentEndsMakeAFullCircle) {
  const KC2DArc circle(KC2DPoint(2, 0), KC2DPoint(2, 0), KC2DPoint(0, 0), false);
  EXPECT_TRUE(circle.IsCircle());
  EXPECT_NEAR(circle.Len(), 4 * kPi, 1e-14);
  EXPECT_FALSE(QuarterArc(true).IsCircle());
}

TEST(Kc2DArc, ParametricPointFollowsTheTurningSense) {
  const KC2DArc ccw = QuarterArc(true);
  ExpectPointNear(ccw.GetParametricPoint(0.5), std::sqrt(0.5), std::sqrt(0.5));
  const KC2DArc cw = QuarterArc(false);  // the long way round through (0, -1) and (-1, 0)
  ExpectPointNear(cw.GetParametricPoint(1.0 / 3), 0, -1);
  ExpectPointNear(cw.GetParametricPoint(2.0 / 3), -1, 0);
  EXPECT_EQ(cw.GetParametricPoint(0), KC2DPoint(1, 0));
  EXPECT_EQ(cw.GetParametricPoint(1), KC2DPoint(0, 1));
}

TEST(Kc2DArc, BoundingBoxIncludesTheQuadrantPointsOnTheSweep) {
  const KC2DArc ccw = QuarterArc(true);
  EXPECT_DOUBLE_EQ(ccw.GetMinX(), 0.0);
  EXPECT_DOUBLE_EQ(ccw.GetMinY(), 0.0);
  EXPECT_DOUBLE_EQ(ccw.GetMaxX(), 1.0);
  EXPECT_DOUBLE_EQ(ccw.GetMaxY(), 1.0);
  const KC2DArc cw = QuarterArc(false);
  EXPECT_DOUBLE_EQ(cw.GetMinX(), -1.0);
  EXPECT_DOUBLE_EQ(cw.GetMinY(), -1.0);
  EXPECT_DOUBLE_EQ(cw.GetMaxX(), 1.0);
  EXPECT_DOUBLE_EQ(cw.GetMaxY(), 1.0);
}

TEST(Kc2DArc, SwapPointsKeepsTheSenseAndTakesTheOtherPartOfTheCircle) {
  KC2DArc arc = QuarterArc(true);
  arc.SwapPoints();
  EXPECT_EQ(arc.GetStartPoint(), KC2DPoint(0, 1));
  EXPECT_TRUE(arc.IsCCW());
  EXPECT_NEAR(arc.Len(), 3 * kPi / 2, 1e-14);
}

TEST(Kc2DArc, SwapPointsWithReverseKeepsThePath) {
  KC2DArc arc = QuarterArc(true);
  arc.SwapPointsWithReverse();
  EXPECT_EQ(arc.GetStartPoint(), KC2DPoint(0, 1));
  EXPECT_TRUE(arc.IsCW());
  EXPECT_NEAR(arc.Len(), kPi / 2, 1e-15);
  KC2DArc reversed = QuarterArc(true);
  reversed.Reverse();
  EXPECT_TRUE(reversed.IsAlmostEq(arc, 0.0));
}

TEST(Kc2DArc, NormalizeMakesAClockwiseArcCounterClockwiseOverTheSamePoints) {
  KC2DArc arc(KC2DPoint(0, 1), KC2DPoint(1, 0), KC2DPoint(0, 0), false);  // short clockwise quarter
  arc.Normalize();
  EXPECT_TRUE(arc.IsCCW());
  EXPECT_EQ(arc.GetStartPoint(), KC2DPoint(1, 0));
  EXPECT_NEAR(arc.Len(), kPi / 2, 1e-15);
  KC2DArc ccw = QuarterArc(true);
  ccw.Normalize();
  EXPECT_TRUE(ccw.IsAlmostEq(QuarterArc(true), 0.0));
}

TEST(Kc2DArc, MirrorReversesTheTurningSense) {
  KC2DArc arc = QuarterArc(true);
  arc.MirrorX();
  EXPECT_TRUE(arc.IsCW());
  EXPECT_EQ(arc.GetEndPoint(), KC2DPoint(0, -1));
  EXPECT_NEAR(arc.Len(), kPi / 2, 1e-15);
  arc.MirrorY();
  EXPECT_TRUE(arc.IsCCW());
  EXPECT_EQ(arc.GetStartPoint(), KC2DPoint(-1, 0));
}

TEST(Kc2DArc, NegativeScaleXReversesButNegativeScaleKeepsTheSense) {
  KC2DArc a = QuarterArc(true);
  a.ScaleX(-1);
  EXPECT_TRUE(a.IsCW());
  EXPECT_NEAR(a.Len(), kPi / 2, 1e-15);
  KC2DArc b = QuarterArc(true);
  b.Scale(-2);
  EXPECT_TRUE(b.IsCCW());
  EXPECT_NEAR(b.Len(), kPi, 1e-14);
  KC2DArc c = QuarterArc(true);
  c.ScaleY(-1);
  EXPECT_TRUE(c.IsCW());
}

TEST(Kc2DArc, TranslateAndRotateAxisMoveTheCentreToo) {
  KC2DArc arc = QuarterArc(true);
  arc.Translate(5, 5);
  EXPECT_EQ(arc.GetCenterPoint(), KC2DPoint(5, 5));
  arc.RotateAxis(kPi);
  ExpectPointNear(arc.GetCenterPoint(), -5, -5);
  ExpectPointNear(arc.GetStartPoint(), -6, -5);
  EXPECT_TRUE(arc.IsCCW());
}

TEST(Kc2DArc, PolygonStepsStayBelowTheMaximumAngle) {
  KC2DPointList points;
  QuarterArc(true).AddAsPolygonMaxAngle(points, 0.1);  // 90 degrees in steps of at most 0.1 rad: 16 steps
  ASSERT_EQ(points.size(), 17u);
  EXPECT_EQ(points.front(), KC2DPoint(1, 0));
  EXPECT_EQ(points.back(), KC2DPoint(0, 1));
  for (const KC2DPoint& p : points) {
    EXPECT_NEAR(std::hypot(p.GetX(), p.GetY()), 1.0, 1e-12);
  }
}

TEST(Kc2DArc, PolygonWithUnusableStepGivesStartAndEnd) {
  KC2DPointList points;
  QuarterArc(true).AddAsPolygonMaxAngle(points, 0.0);
  QuarterArc(true).AddAsPolygonMaxAngle(points, std::nan(""));
  QuarterArc(true).AddAsPolygonMaxAngle(points, -1.0);
  EXPECT_EQ(points.size(), 6u);
}

TEST(Kc2DArc, PolygonOfATinyStepIsCapped) {
  KC2DPointList points;
  QuarterArc(true).AddAsPolygonMaxAngle(points, 1e-300);
  EXPECT_EQ(points.size(), 65537u);
}

TEST(Kc2DArc, AddAsPolygonUsesFiveDegreeSteps) {
  KC2DPointList points;
  QuarterArc(true).AddAsPolygon(points);
  EXPECT_EQ(points.size(), 19u);  // 90 / 5 = 18 steps
}

TEST(Kc2DArc, ZeroRadiusArcHasZeroLength) {
  const KC2DArc dot(KC2DPoint(1, 1), KC2DPoint(1, 1), KC2DPoint(1, 1), true);
  EXPECT_DOUBLE_EQ(dot.Len(), 0.0);
  EXPECT_DOUBLE_EQ(dot.GetMaxX(), 1.0);
}

// ----- rectangles --------------------------------------------------------------------------------------

TEST(Kc2DRectangle, CornersInAnyOrderGiveTheSameRectangle) {
  const KC2DRectangle a(4, 3, 1, 1);
  EXPECT_DOUBLE_EQ(a.GetMinX(), 1.0);
  EXPECT_DOUBLE_EQ(a.GetMaxY(), 3.0);
  EXPECT_TRUE(a.IsAlmostEq(KC2DRectangle(KC2DPoint(1, 3), KC2DPoint(4, 1)), 0.0));
}

TEST(Kc2DRectangle, AreaWidthHeightAndPerimeter) {
  const KC2DRectangle r(0, 0, 4, 3);
  EXPECT_DOUBLE_EQ(r.GetWidth(), 4.0);
  EXPECT_DOUBLE_EQ(r.GetHeight(), 3.0);
  EXPECT_DOUBLE_EQ(r.GetArea(), 12.0);
  EXPECT_DOUBLE_EQ(r.Len(), 14.0);
}

TEST(Kc2DRectangle, OutlineRunsCounterClockwiseFromTheSmallestCorner) {
  const KC2DRectangle r(0, 0, 4, 3);
  EXPECT_EQ(r.GetStartPoint(), KC2DPoint(0, 0));
  EXPECT_EQ(r.GetEndPoint(), KC2DPoint(0, 0));
  EXPECT_EQ(r.GetParametricPoint(2.0 / 14), KC2DPoint(2, 0));
  EXPECT_EQ(r.GetParametricPoint(5.0 / 14), KC2DPoint(4, 1));
  EXPECT_EQ(r.GetParametricPoint(0.5), KC2DPoint(4, 3));
  EXPECT_EQ(r.GetParametricPoint(12.0 / 14), KC2DPoint(0, 2));
  EXPECT_EQ(r.GetParametricPoint(7), KC2DPoint(0, 0));
  EXPECT_EQ(r.GetParametricPoint(-1), KC2DPoint(0, 0));
}

TEST(Kc2DRectangle, PolygonIsClosed) {
  KC2DPointList points;
  KC2DRectangle(0, 0, 2, 1).AddAsPolygon(points);
  ASSERT_EQ(points.size(), 5u);
  EXPECT_EQ(points[1], KC2DPoint(2, 0));
  EXPECT_EQ(points[2], KC2DPoint(2, 1));
  EXPECT_EQ(points[3], KC2DPoint(0, 1));
  EXPECT_EQ(points[4], points[0]);
}

TEST(Kc2DRectangle, TransformationsKeepItAxisParallel) {
  KC2DRectangle r(1, 1, 3, 2);
  r.MirrorX();
  EXPECT_TRUE(r.IsAlmostEq(KC2DRectangle(1, -2, 3, -1), 0.0));
  r.MirrorY();
  EXPECT_TRUE(r.IsAlmostEq(KC2DRectangle(-3, -2, -1, -1), 0.0));
  r.Scale(-1);
  EXPECT_TRUE(r.IsAlmostEq(KC2DRectangle(1, 1, 3, 2), 0.0));
  r.RotateAxis(kPi / 2);  // a quarter turn clockwise of the rectangle
  EXPECT_TRUE(r.IsAlmostEq(KC2DRectangle(1, -1, 2, -3), 1e-12));
  r.Translate(-1, 3);
  r.ScaleX(2);
  r.ScaleY(3);
  EXPECT_TRUE(r.IsAlmostEq(KC2DRectangle(0, 0, 2, 6), 1e-12));
}

// ----- shared behaviour ----------------------------------------------------------------------------------

TEST(Kc2DElement, CloneMakesAnEqualIndependentCopy) {
  const KC2DArc arc = QuarterArc(false);
  std::unique_ptr<KC2DElement> copy(arc.Clone());
  EXPECT_TRUE(copy->IsAlmostEq(arc, 0.0));
  copy->Translate(1, 0);
  EXPECT_FALSE(copy->IsAlmostEq(arc, 0.5));
}

// One kind of element: its visitor name and how to make one.
struct KindRow {
  const char* name;
  std::unique_ptr<KC2DElement> (*make)();
};

const KindRow kKinds[] = {
    {"point", [] { return std::unique_ptr<KC2DElement>(new KC2DPoint()); }},
    {"line", [] { return std::unique_ptr<KC2DElement>(new KC2DLine()); }},
    {"arc", [] { return std::unique_ptr<KC2DElement>(new KC2DArc()); }},
    {"rectangle", [] { return std::unique_ptr<KC2DElement>(new KC2DRectangle()); }},
};

class Kc2DElementKinds : public ::testing::TestWithParam<KindRow> {};

TEST_P(Kc2DElementKinds, AcceptCallsTheVisitOfTheKind) {
  const std::unique_ptr<KC2DElement> element = GetParam().make();
  KindName v;
  EXPECT_TRUE(element->Accept(v));
  EXPECT_EQ(v.name, GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(Kinds, Kc2DElementKinds, ::testing::ValuesIn(kKinds), RowName());

TEST(Kc2DElement, WriteThenReadGivesTheSameElement) {
  KCParagraph root("Root");
  const KC2DPoint p(1.5, -2.25);
  const KC2DLine l(0.1, 0.2, 0.3, 1e6);
  const KC2DArc a(KC2DPoint(1, 0), KC2DPoint(0, 1), KC2DPoint(0, 0), false);
  const KC2DRectangle r(-1, -2, 3, 4);
  ASSERT_TRUE(p.Write("P", &root, -1));
  ASSERT_TRUE(l.Write("L", &root, -1));
  ASSERT_TRUE(a.Write("A", &root, -1));
  ASSERT_TRUE(r.Write("R", &root, -1));
  KC2DPoint p2;
  KC2DLine l2;
  KC2DArc a2;
  KC2DRectangle r2;
  ASSERT_TRUE(p2.Read("P", &root, -1));
  ASSERT_TRUE(l2.Read("L", &root, -1));
  ASSERT_TRUE(a2.Read("A", &root, -1));
  ASSERT_TRUE(r2.Read("R", &root, -1));
  EXPECT_TRUE(p2.IsAlmostEq(p, 0.0));
  EXPECT_TRUE(l2.IsAlmostEq(l, 0.0));
  EXPECT_TRUE(a2.IsAlmostEq(a, 0.0));
  EXPECT_TRUE(r2.IsAlmostEq(r, 0.0));
}

TEST(Kc2DElement, WriteStoresTheTypeAndTheCoordinatesAsKeys) {
  KCParagraph root("Root");
  KC2DArc(KC2DPoint(1, 0), KC2DPoint(0, 1), KC2DPoint(0, 0), true).Write("Arc1", &root, 2);
  const KCParagraph* section = root.FindParagraph("Arc1");
  ASSERT_NE(section, nullptr);
  EXPECT_EQ(section->GetValue("Type"), KCString("Arc"));
  EXPECT_EQ(section->GetValue("Direction"), KCString("CCW"));
  EXPECT_DOUBLE_EQ(section->ReadDouble("StartX", 0), 1.0);
  EXPECT_DOUBLE_EQ(section->ReadDouble("EndY", 0), 1.0);
}

TEST(Kc2DElement, EmptyNameWritesIntoTheParagraphItself) {
  KCParagraph section("Point");
  KC2DPoint(3, 4).Write("", &section, -1);
  EXPECT_DOUBLE_EQ(section.ReadDouble("X", 0), 3.0);
  KC2DPoint back;
  EXPECT_TRUE(back.Read("", &section, -1));
  EXPECT_EQ(back, KC2DPoint(3, 4));
}

TEST(Kc2DElement, ReadRoundsToTheGivenDecimals) {
  KCParagraph root("Root");
  KC2DPoint(1.23456, -7.891).Write("P", &root, -1);
  KC2DPoint p;
  ASSERT_TRUE(p.Read("P", &root, 2));
  EXPECT_DOUBLE_EQ(p.GetX(), 1.23);
  EXPECT_DOUBLE_EQ(p.GetY(), -7.89);
}

TEST(Kc2DElement, ReadFailsAndKeepsTheElementForMissingOrWrongData) {
  KCParagraph root("Root");
  KC2DLine(1, 2, 3, 4).Write("L", &root, -1);
  KC2DPoint p(7, 7);
  EXPECT_FALSE(p.Read("L", &root, -1));        // wrong type
  EXPECT_FALSE(p.Read("Missing", &root, -1));  // no such section
  EXPECT_FALSE(p.Read("L", nullptr, -1));      // no paragraph
  KCParagraph* bad = root.AddParagraph("Bad");
  bad->WriteString("Type", "Point");
  bad->WriteString("X", "1");
  bad->WriteString("Y", "abc");
  EXPECT_FALSE(p.Read("Bad", &root, -1));  // not a number
  EXPECT_EQ(p, KC2DPoint(7, 7));
  EXPECT_FALSE(KC2DPoint().Write("P", nullptr, -1));
}
