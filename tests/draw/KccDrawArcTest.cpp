// SPDX-License-Identifier: MIT
// KCC_Draw arcs: the polyline of DrawArc (step rule, intermediate points, full circles), DrawAttrArc and the
// arrow arcs with their heads.
#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

#include "draw/DrawCallPoints.h"
#include "ncappkit/draw/KCC_Draw.h"
#include "ncappkit/draw/KCC_LineAttributes.h"
#include "ncappkit/draw/KCC_ViewPortDraw.h"
#include "support/RecordingCanvas.h"

namespace {

using Calls = std::vector<std::string>;
using drawtest::CountOf;
using drawtest::PointsOf;
using drawtest::PolygonOf;

KCC_LineAttributes OrangeDashWidth3() {
  return KCC_LineAttributes(KCColor(200, 100, 50), KCPenStyleDash(), 3);
}

// ---- DrawArc ----

TEST(KccDrawArc, QuarterOfRadius100Has36IntermediatePointsThenTheEnd) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArc(100.0, 0.0, 0.0, 100.0, 0.0, 0.0, false, false);  // counter-clockwise around (0, 0)

  // Step 5 degrees / log10(100) = 2.5 degrees: 90 / 2.5 = 36 intermediate points, then the end point.
  const std::vector<KC2DPoint> targets = PointsOf(canvas.Calls(), "LineTo");
  EXPECT_EQ(canvas.Calls().front(), "MoveTo(100,0)");
  ASSERT_EQ(targets.size(), 37U);
  EXPECT_EQ(targets[0], KC2DPoint(100, 0));  // the first intermediate point is the start point again
  EXPECT_NEAR(targets[18].GetX(), 70.710678118654752, 1e-9);  // 45 degrees
  EXPECT_NEAR(targets[18].GetY(), 70.710678118654752, 1e-9);
  EXPECT_NEAR(targets[35].GetX(), 4.3619387365336, 1e-9);  // 87.5 degrees
  EXPECT_NEAR(targets[35].GetY(), 99.904822158185776, 1e-9);
  EXPECT_EQ(targets[36], KC2DPoint(0, 100));
}

TEST(KccDrawArc, EveryIntermediatePointLiesOnTheCircleInStepsOf2Point5Degrees) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArc(100.0, 0.0, 0.0, 100.0, 0.0, 0.0, false, false);

  const std::vector<KC2DPoint> targets = PointsOf(canvas.Calls(), "LineTo");
  ASSERT_EQ(targets.size(), 37U);
  const double stepRad = 2.5 * std::atan(1.0) / 45.0;
  for (std::size_t k = 0; k < 36; ++k) {
    EXPECT_NEAR(targets[k].GetX(), 100.0 * std::cos(static_cast<double>(k) * stepRad), 1e-9) << k;
    EXPECT_NEAR(targets[k].GetY(), 100.0 * std::sin(static_cast<double>(k) * stepRad), 1e-9) << k;
  }
}

TEST(KccDrawArc, DrawArcUsesTheCurrentPenAndChangesNoSetting) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArc(100, 0, 0, 100, 0, 0, false, false);

  EXPECT_EQ(canvas.Calls().size(), 38U);  // MoveTo and 37 LineTo, no getter or setter
  EXPECT_EQ(CountOf(canvas.Calls(), "MoveTo") + CountOf(canvas.Calls(), "LineTo"), 38U);
}

TEST(KccDrawArc, ClockwiseArcRunsTheOtherWayRound) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArc(0.0, 100.0, 100.0, 0.0, 0.0, 0.0, true, false);

  const std::vector<KC2DPoint> targets = PointsOf(canvas.Calls(), "LineTo");
  ASSERT_EQ(targets.size(), 37U);
  EXPECT_NEAR(targets[0].GetX(), 0.0, 1e-9);  // start again
  EXPECT_NEAR(targets[0].GetY(), 100.0, 1e-9);
  EXPECT_NEAR(targets[1].GetX(), 4.3619387365336, 1e-9);  // 87.5 degrees: the angle falls
  EXPECT_NEAR(targets[1].GetY(), 99.904822158185776, 1e-9);
  EXPECT_EQ(targets[36], KC2DPoint(100, 0));
}

TEST(KccDrawArc, ClockwiseFromZeroToNinetyDegreesGoesThreeQuartersRound) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArc(100.0, 0.0, 0.0, 100.0, 0.0, 0.0, true, false);

  // 270 degrees in steps of 2.5: 108 intermediate points; the one at 180 degrees after 36 steps.
  const std::vector<KC2DPoint> targets = PointsOf(canvas.Calls(), "LineTo");
  ASSERT_EQ(targets.size(), 109U);
  EXPECT_NEAR(targets[36].GetX(), 0.0, 1e-9);
  EXPECT_NEAR(targets[36].GetY(), -100.0, 1e-9);
}

TEST(KccDrawArc, RadiusTenKeepsTheFiveDegreeStep) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArc(10.0, 0.0, 0.0, 10.0, 0.0, 0.0, false, false);

  EXPECT_EQ(CountOf(canvas.Calls(), "LineTo"), 19U);  // 90 / 5 = 18 intermediate points and the end
}

TEST(KccDrawArc, RadiusAThousandTakesStepsOfAThirdOfFiveDegrees) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArc(1000.0, 0.0, 0.0, 1000.0, 0.0, 0.0, false, false);

  // 5 / log10(1000) = 5/3 degrees: 90 / (5/3) = 54 intermediate points and the end.
  EXPECT_EQ(CountOf(canvas.Calls(), "LineTo"), 55U);
}

TEST(KccDrawArc, StartEqualToEndWithFullCircleDrawsAWholeCircle) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArc(100.0, 0.0, 100.0, 0.0, 0.0, 0.0, false, true);

  // 360 / 2.5 = 144 intermediate points, then the end point, which is the start point.
  const std::vector<KC2DPoint> targets = PointsOf(canvas.Calls(), "LineTo");
  ASSERT_EQ(targets.size(), 145U);
  EXPECT_NEAR(targets[72].GetX(), -100.0, 1e-9);  // 180 degrees
  EXPECT_NEAR(targets[72].GetY(), 0.0, 1e-9);
  EXPECT_EQ(targets[144], KC2DPoint(100, 0));
}

TEST(KccDrawArc, StartEqualToEndWithoutFullCircleDrawsAZeroLengthSegment) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArc(100, 0, 100, 0, 0, 0, false, false);

  EXPECT_EQ(canvas.Calls(), (Calls{"MoveTo(100,0)", "LineTo(100,0)"}));
}

TEST(KccDrawArc, VeryShortArcBecomesAStraightSegment) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArc(100.0, 0.0, 99.99, 1.0, 0.0, 0.0, false, false);  // about 0.57 degrees, under one step

  EXPECT_EQ(canvas.Calls(), (Calls{"MoveTo(100,0)", "LineTo(99.99,1)"}));
}

TEST(KccDrawArc, PointNearTheCentresXGetsExactlyMinus90Degrees) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  // x differs from the centre's by 5e-5 (< 1e-4) and the point lies below: its angle is taken as -90.
  draw.DrawArc(0.00005, -100.0, 100.0, 0.0, 0.0, 0.0, false, false);

  const std::vector<KC2DPoint> targets = PointsOf(canvas.Calls(), "LineTo");
  ASSERT_EQ(targets.size(), 37U);
  EXPECT_NEAR(targets[0].GetX(), 0.0, 1e-9);  // from the snapped angle, not 0.00005
  EXPECT_NEAR(targets[0].GetY(), -100.0, 1e-9);
}

TEST(KccDrawArc, IntDrawArcDrawsLikeTheDoubleForm) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas intCanvas;
  RecordingCanvas doubleCanvas;
  KCC_Draw intDraw(viewPort, intCanvas);
  KCC_Draw doubleDraw(viewPort, doubleCanvas);

  intDraw.DrawArc(100, 0, 0, 100, 0, 0, false, false);
  doubleDraw.DrawArc(100.0, 0.0, 0.0, 100.0, 0.0, 0.0, false, false);

  EXPECT_EQ(intCanvas.Calls().size(), 38U);
  EXPECT_EQ(intCanvas.Calls(), doubleCanvas.Calls());
}

// ---- DrawAttrArc and the arrow arcs ----

TEST(KccDrawArc, DrawAttrArcIsTheArrowArcWithoutAHead) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas attrCanvas;
  RecordingCanvas arrowCanvas;
  KCC_Draw attrDraw(viewPort, attrCanvas);
  KCC_Draw arrowDraw(viewPort, arrowCanvas);

  attrDraw.DrawAttrArc(100, 0, 0, 100, 0, 0, false, false, OrangeDashWidth3());
  arrowDraw.DrawArrowArc_CCW(100, 0, 0, 100, 0, 0, false, 0, OrangeDashWidth3());

  EXPECT_EQ(attrCanvas.Calls(), arrowCanvas.Calls());
  EXPECT_EQ(CountOf(attrCanvas.Calls(), "Polygon"), 0U);
  EXPECT_EQ(CountOf(attrCanvas.Calls(), "LineTo"), 37U);
}

TEST(KccDrawArc, DrawAttrArcClockwiseTakesTheClockwiseArrowArc) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas attrCanvas;
  RecordingCanvas arrowCanvas;
  KCC_Draw attrDraw(viewPort, attrCanvas);
  KCC_Draw arrowDraw(viewPort, arrowCanvas);

  attrDraw.DrawAttrArc(100, 0, 0, 100, 0, 0, true, false, OrangeDashWidth3());
  arrowDraw.DrawArrowArc_CW(100, 0, 0, 100, 0, 0, false, 0, OrangeDashWidth3());

  EXPECT_EQ(attrCanvas.Calls(), arrowCanvas.Calls());
  EXPECT_EQ(CountOf(attrCanvas.Calls(), "LineTo"), 109U);  // three quarters
}

TEST(KccDrawArc, ArrowArcSetsThePenDrawsTheArcThenTheHead) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArrowArc_CCW(100, 0, 0, 100, 0, 0, false, 20, OrangeDashWidth3());

  const Calls calls = canvas.CallsWithoutGetters();
  ASSERT_EQ(calls.size(), 3U + 38U + 2U + 4U);
  EXPECT_EQ(calls[0], "SetPenColor(200,100,50,255)");
  EXPECT_EQ(calls[1], "SetPenStyle(Dash)");
  EXPECT_EQ(calls[2], "SetPenWidth(3)");
  EXPECT_EQ(calls[3], "MoveTo(100,0)");
  EXPECT_EQ(calls[40], "LineTo(0,100)");
  EXPECT_EQ(calls[41], "SetBrushColor(200,100,50,255)");
  EXPECT_EQ(calls[42].rfind("Polygon(", 0), 0U);
  EXPECT_EQ(calls[43], "SetPenColor(0,0,0,255)");
  EXPECT_EQ(calls[46], "SetBrushColor(255,255,255,255)");
}

TEST(KccDrawArc, CounterClockwiseArrowHeadPointsAlongTheArcAtItsEnd) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArrowArc_CCW(100.0, 0.0, 0.0, 100.0, 0.0, 0.0, false, 20, OrangeDashWidth3());

  // At (0, 100) the arc runs towards -x: the head's base lies 20 back, at (20, 100), wings 5 to either side.
  const KC2DPointList head = PolygonOf(canvas.Calls(), 0);
  ASSERT_EQ(head.size(), 3U);
  EXPECT_NEAR(head[0].GetX(), 20.0, 1e-9);
  EXPECT_NEAR(head[0].GetY(), 105.0, 1e-9);
  EXPECT_NEAR(head[1].GetX(), 20.0, 1e-9);
  EXPECT_NEAR(head[1].GetY(), 95.0, 1e-9);
  EXPECT_EQ(head[2], KC2DPoint(0, 100));
}

TEST(KccDrawArc, ClockwiseArrowHeadPointsAlongTheArcAtItsEnd) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArrowArc_CW(0.0, 100.0, 100.0, 0.0, 0.0, 0.0, false, 20, OrangeDashWidth3());

  // At (100, 0) the clockwise arc runs towards -y: base (100, 20), wings at x 95 and 105.
  const KC2DPointList head = PolygonOf(canvas.Calls(), 0);
  ASSERT_EQ(head.size(), 3U);
  EXPECT_NEAR(head[0].GetX(), 95.0, 1e-9);
  EXPECT_NEAR(head[0].GetY(), 20.0, 1e-9);
  EXPECT_NEAR(head[1].GetX(), 105.0, 1e-9);
  EXPECT_NEAR(head[1].GetY(), 20.0, 1e-9);
  EXPECT_EQ(head[2], KC2DPoint(100, 0));
}

TEST(KccDrawArc, ArrowArcHeadIsNoLongerThanTheArc) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  // Radius 100, 0.005 rad (about 0.29 degrees): arc length 0.5, arrow size 20.
  draw.DrawArrowArc_CCW(100.0, 0.0, 100.0 * std::cos(0.005), 100.0 * std::sin(0.005), 0.0, 0.0, false, 20,
                        OrangeDashWidth3());

  const KC2DPointList head = PolygonOf(canvas.Calls(), 0);
  ASSERT_EQ(head.size(), 3U);
  const KC2DPoint base((head[0].GetX() + head[1].GetX()) / 2.0, (head[0].GetY() + head[1].GetY()) / 2.0);
  EXPECT_NEAR(base.DistanceTo(head[2]), 0.5, 1e-9);
}

TEST(KccDrawArc, ArrowArcWithSizeZeroDrawsOnlyTheArc) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArrowArc_CW(100.0, 0.0, 0.0, 100.0, 0.0, 0.0, false, 0, OrangeDashWidth3());

  EXPECT_EQ(CountOf(canvas.Calls(), "Polygon"), 0U);
  EXPECT_EQ(CountOf(canvas.Calls(), "SetBrushColor"), 1U);  // only the restore
}

TEST(KccDrawArc, FullCircleArrowArcGetsAHeadAtTheStartPoint) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArrowArc_CCW(100, 0, 100, 0, 0, 0, true, 20, OrangeDashWidth3());

  // At (100, 0) a counter-clockwise circle runs towards +y: base (100, -20).
  const KC2DPointList head = PolygonOf(canvas.Calls(), 0);
  ASSERT_EQ(head.size(), 3U);
  EXPECT_NEAR(head[0].GetX(), 105.0, 1e-9);
  EXPECT_NEAR(head[0].GetY(), -20.0, 1e-9);
  EXPECT_EQ(head[2], KC2DPoint(100, 0));
  EXPECT_EQ(CountOf(canvas.Calls(), "LineTo"), 145U);
}

}  // namespace
