// SPDX-License-Identifier: MIT
// KCC_Draw with bad input: NaN, infinite and huge coordinates, int limits, zero and negative sizes and
// radii, and empty texts give defined canvas calls and leave the settings as they were (run under the
// sanitizers: no int overflow, no out-of-range conversion).
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "draw/DrawCallPoints.h"
#include "ncappkit/draw/KCC_Draw.h"
#include "ncappkit/draw/KCC_FillAttributes.h"
#include "ncappkit/draw/KCC_FontAttributes.h"
#include "ncappkit/draw/KCC_LineAttributes.h"
#include "ncappkit/draw/KCC_ViewPortDraw.h"
#include "support/RecordingCanvas.h"

namespace {

using Calls = std::vector<std::string>;
using drawtest::CountOf;
using drawtest::PointsOf;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

KCC_LineAttributes Pen() {
  return KCC_LineAttributes(KCColor(200, 100, 50), KCPenStyleDash(), 3);
}

// ---- arcs ----

TEST(KccDrawBadInput, ArcAroundANaNCentreDrawsOnlyStartAndEnd) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArc(100.0, 0.0, 0.0, 100.0, kNaN, kNaN, false, false);

  EXPECT_EQ(canvas.Calls(), (Calls{"MoveTo(100,0)", "LineTo(0,100)"}));
}

TEST(KccDrawBadInput, ArcWithAnInfiniteRadiusDrawsOnlyStartAndEnd) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  // x1 - xc overflows to infinity: the step 5 / log10(inf) is 0 and the step count is not finite.
  draw.DrawArc(1e308, 0.0, -1e308, 1e308, -1e308, 0.0, false, true);

  EXPECT_EQ(canvas.Calls(), (Calls{"MoveTo(1e+308,0)", "LineTo(-1e+308,1e+308)"}));
}

TEST(KccDrawBadInput, ArcWithAHugeFiniteRadiusTakesFineSteps) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArc(1e300, 0.0, 0.0, 1e300, 0.0, 0.0, false, false);

  // 5 / log10(1e300) = 1/60 degree: 90 * 60 = 5400 intermediate points and the end.
  EXPECT_EQ(CountOf(canvas.Calls(), "LineTo"), 5401U);
}

TEST(KccDrawBadInput, FullCircleOfRadiusZeroDrawsItsPointsOnTheCentre) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArc(5, 5, 5, 5, 5, 5, false, true);

  // Radius 0 keeps the 5 degree step: 72 intermediate points and the end, all at (5, 5).
  const std::vector<KC2DPoint> targets = PointsOf(canvas.Calls(), "LineTo");
  EXPECT_EQ(targets, std::vector<KC2DPoint>(73, KC2DPoint(5, 5)));
}

TEST(KccDrawBadInput, ArrowArcOfRadiusZeroHasNoHead) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArrowArc_CCW(5, 5, 5, 5, 5, 5, true, 20, Pen());

  EXPECT_EQ(CountOf(canvas.Calls(), "Polygon"), 0U);
}

TEST(KccDrawBadInput, ArrowArcWithANaNCentreDrawsNoHeadAndRestoresThePen) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  const RecordingCanvas::Settings before = canvas.GetSettings();
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArrowArc_CW(100.0, 0.0, 0.0, 100.0, kNaN, 0.0, false, 20, Pen());

  EXPECT_EQ(CountOf(canvas.Calls(), "Polygon"), 0U);  // the arc length is NaN
  EXPECT_EQ(canvas.GetSettings(), before);
}

// ---- arrows, points, circles at the limits ----

TEST(KccDrawBadInput, ArrowLineWithNegativeSizeDrawsOnlyTheShaft) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArrowLine(0, 0, 100, 0, -20, Pen());

  EXPECT_EQ(CountOf(canvas.Calls(), "Polygon"), 0U);
  EXPECT_EQ(CountOf(canvas.Calls(), "LineTo"), 1U);
}

TEST(KccDrawBadInput, ArrowLineAcrossTheIntRangeComputesInDouble) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArrowLine(INT_MIN, 0, INT_MAX, 0, INT_MAX, Pen());

  // The line is 2^32 - 1 long, so the head is INT_MAX long, with half width INT_MAX / 4.
  const KC2DPointList head = drawtest::PolygonOf(canvas.Calls(), 0);
  ASSERT_EQ(head.size(), 3U);
  EXPECT_EQ(head[0], KC2DPoint(0, -536870911.75));
  EXPECT_EQ(head[2], KC2DPoint(2147483647, 0));
}

TEST(KccDrawBadInput, ArrowLineWithANaNStartPassesNaNToTheCanvas) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  const RecordingCanvas::Settings before = canvas.GetSettings();
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArrowLine(kNaN, 0.0, 100.0, 0.0, 20, Pen());

  const Calls calls = canvas.CallsWithoutGetters();
  EXPECT_EQ(calls[3], "MoveTo(nan,0)");
  EXPECT_EQ(calls[4], "LineTo(100,0)");
  EXPECT_EQ(canvas.GetSettings(), before);
}

TEST(KccDrawBadInput, PointSquareAtTheIntLimitsDoesNotOverflow) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawPointSquare(INT_MAX, INT_MIN, INT_MAX, Pen());

  EXPECT_EQ(PointsOf(canvas.Calls(), "MoveTo"), (std::vector<KC2DPoint>{KC2DPoint(0, -4294967295.0)}));
  EXPECT_EQ(PointsOf(canvas.Calls(), "LineTo"),
            (std::vector<KC2DPoint>{KC2DPoint(0, -1), KC2DPoint(4294967294.0, -1),
                                    KC2DPoint(4294967294.0, -4294967295.0), KC2DPoint(0, -4294967295.0)}));
}

TEST(KccDrawBadInput, PointSquareOfSizeZeroCollapsesOnThePoint) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawPointSquare(10, 20, 0, Pen());

  EXPECT_EQ(PointsOf(canvas.Calls(), "LineTo"), std::vector<KC2DPoint>(4, KC2DPoint(10, 20)));
}

TEST(KccDrawBadInput, PointDiamondAtTheIntLimitsDoesNotOverflow) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawPointDiamond(INT_MIN, INT_MAX, INT_MAX, Pen());

  EXPECT_EQ(PointsOf(canvas.Calls(), "MoveTo"), (std::vector<KC2DPoint>{KC2DPoint(-4294967295.0, INT_MAX)}));
}

TEST(KccDrawBadInput, CircleAtTheIntLimitsDoesNotOverflow) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawAttrCircle(INT_MAX, INT_MIN, INT_MAX, Pen());

  EXPECT_EQ(canvas.CallsWithoutGetters()[4], "Ellipse(0,-4294967295,4294967294,-1)");
}

TEST(KccDrawBadInput, CircleOfRadiusZeroIsAnEllipseInAnEmptyBox) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawAttrCircle(100, 50, 0, Pen(), KCC_FillAttributes(KCColor(10, 20, 30), true));

  EXPECT_EQ(CountOf(canvas.Calls(), "Ellipse"), 1U);
  const Calls calls = canvas.CallsWithoutGetters();
  EXPECT_EQ(calls[5], "Ellipse(100,50,100,50)");
}

TEST(KccDrawBadInput, SelectCircleWithANegativeRadiusMarksTheSameBox) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawSelectCircle(100, 50, -10);

  EXPECT_EQ(canvas.CallsWithoutGetters()[5], "EllipseMark(90,40,110,60)");
}

// ---- text ----

TEST(KccDrawBadInput, TextAtANaNPositionReachesTheCanvasAsNaN) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  canvas.SetMeasureResult(40, 10);
  const RecordingCanvas::Settings before = canvas.GetSettings();
  KCC_Draw draw(viewPort, canvas);

  draw.DisplayText("Hg", kNaN, kNaN, KCC_FillAttributes(), KCC_TextAttributes());

  EXPECT_EQ(canvas.CallsWithoutGetters()[7], "TextOut(nan,nan,\"Hg\")");
  EXPECT_EQ(canvas.GetSettings(), before);
}

TEST(KccDrawBadInput, TextAtAHugePositionIsNotForcedIntoAnInt) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  canvas.SetMeasureResult(40, 10);
  KCC_Draw draw(viewPort, canvas);

  draw.DisplayText("Hg", 1e300, -1e300, KCC_FillAttributes(), KCC_TextAttributes());

  EXPECT_EQ(canvas.CallsWithoutGetters()[7], "TextOut(1e+300,-1e+300,\"Hg\")");
}

TEST(KccDrawBadInput, TextAtAnInfiniteAngleReachesTheCanvasAsNaN) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  canvas.SetMeasureResult(40, 10);
  KCC_Draw draw(viewPort, canvas);
  KCC_TextAttributes font;
  font.SetAngleDeg(std::numeric_limits<double>::infinity());

  draw.DisplayText("Hg", 100.0, 50.0, KCC_FillAttributes(), font);

  const std::vector<KC2DPoint> origins = PointsOf(canvas.Calls(), "TextOut");
  ASSERT_EQ(origins.size(), 1U);
  EXPECT_TRUE(std::isnan(origins[0].GetX()));
}

TEST(KccDrawBadInput, TextBoxSpanningTheIntRangeCentresOnMinusAHalf) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  canvas.SetMeasureResult(40, 10);
  KCC_Draw draw(viewPort, canvas);

  draw.DisplayTextBox("Hg", INT_MIN, INT_MIN, INT_MAX, INT_MAX, KCC_FillAttributes(), KCC_TextAttributes());

  // Centre (-0.5, -0.5): -0.5 - 20 + 0.5 = -20 and -0.5 - 5 + 0.5 = -5.
  EXPECT_EQ(PointsOf(canvas.Calls(), "TextOut").at(0), KC2DPoint(-20, -5));
}

TEST(KccDrawBadInput, EmptyTextIsStillPassedToTheCanvas) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DisplayText("", 100, 50, KCC_FillAttributes(), KCC_TextAttributes());

  // The recording canvas measures 0 x 16 for it (8 pixels per byte, the font size as height).
  EXPECT_EQ(canvas.CallsWithoutGetters()[7], "TextOut(100,42,\"\")");
}

}  // namespace
