// SPDX-License-Identifier: MIT
// KCC_Draw: mapping through the view port, and the exact canvas calls of lines, points, arrows, rectangles,
// circles, selection marks, the background and texts.
#include <gtest/gtest.h>

#include <algorithm>
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

// A pen that differs from the recording canvas's defaults in every part.
KCC_LineAttributes OrangeDashWidth3() {
  return KCC_LineAttributes(KCColor(200, 100, 50), KCPenStyleDash(), 3);
}

// ---- mapping ----

TEST(KccDraw, RatiosComeFromTheViewPort) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.SetWorldCoord(0.0, 0.0, 100.0, 50.0);

  EXPECT_EQ(draw.GetWorld2PixelRatioX(), 0.125);
  EXPECT_EQ(draw.GetWorld2PixelRatioY(), 0.125);
}

TEST(KccDraw, IntWorld2ScreenPointMapsLikeTheViewPort) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);
  draw.SetWorldCoord(0.0, 0.0, 100.0, 50.0);
  int px = -1;
  int py = -1;

  draw.World2ScreenPoint(0.0, 0.0, px, py);

  EXPECT_EQ(px, 0);
  EXPECT_EQ(py, 500);
}

TEST(KccDraw, DoubleWorld2ScreenPointDoesNotRound) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);
  draw.SetWorldCoord(0.0, 0.0, 100.0, 50.0);
  double px = -1.0;
  double py = -1.0;

  draw.World2ScreenPoint(0.0625, 0.0, px, py);

  EXPECT_EQ(px, 0.5);
  EXPECT_EQ(py, 500.0);
}

TEST(KccDraw, Screen2WorldPointMapsBack) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);
  draw.SetWorldCoord(0.0, 0.0, 100.0, 50.0);
  double x = -1.0;
  double y = -1.0;

  draw.Screen2WorldPoint(800, 100, x, y);

  EXPECT_EQ(x, 100.0);
  EXPECT_EQ(y, 50.0);
}

TEST(KccDraw, SetWorldCoordAnswersTrueWhenTheViewPortRefuses) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  const bool answer = draw.SetWorldCoord(10.0, 0.0, 10.0, 50.0);  // xMin == xMax

  EXPECT_TRUE(answer);
  EXPECT_FALSE(viewPort.SetWorldCoord(10.0, 0.0, 10.0, 50.0));
}

TEST(KccDraw, SetWorldCoordThatIsRefusedKeepsTheOldRatio) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);
  draw.SetWorldCoord(0.0, 0.0, 100.0, 50.0);

  draw.SetWorldCoord(10.0, 0.0, 10.0, 50.0);

  EXPECT_EQ(draw.GetWorld2PixelRatioX(), 0.125);
}

// ---- holding view port and canvas ----

TEST(KccDraw, GetViewPortGivesTheHeldViewPort) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  const KCC_Draw draw(viewPort, canvas);

  EXPECT_EQ(&draw.GetViewPort(), &viewPort);
}

TEST(KccDraw, CopyDrawsOnTheSameCanvas) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  KCC_Draw copy(draw);
  copy.DrawLine(1, 2, 3, 4);

  EXPECT_EQ(&copy.GetViewPort(), &viewPort);
  EXPECT_EQ(canvas.Calls(), (Calls{"MoveTo(1,2)", "LineTo(3,4)"}));
}

TEST(KccDraw, AssignmentRebindsToTheOtherViewPortAndCanvas) {
  KCC_ViewPortDraw firstPort(800, 600);
  RecordingCanvas firstCanvas;
  KCC_ViewPortDraw secondPort(100, 100);
  RecordingCanvas secondCanvas;
  const KCC_Draw first(firstPort, firstCanvas);
  KCC_Draw second(secondPort, secondCanvas);

  second = first;
  second.DrawLine(1, 2, 3, 4);

  EXPECT_EQ(&second.GetViewPort(), &firstPort);
  EXPECT_EQ(firstCanvas.Calls(), (Calls{"MoveTo(1,2)", "LineTo(3,4)"}));
  EXPECT_TRUE(secondCanvas.Calls().empty());
}

// ---- lines and points ----

TEST(KccDraw, DrawLineUsesTheCurrentPenAndChangesNothing) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawLine(1.5, 2.0, 30.25, 40.0);

  EXPECT_EQ(canvas.Calls(), (Calls{"MoveTo(1.5,2)", "LineTo(30.25,40)"}));
}

TEST(KccDraw, DrawLinePassesCoordinatesWithoutMapping) {
  KCC_ViewPortDraw viewPort(800, 600);
  viewPort.SetWorldCoord(0.0, 0.0, 100.0, 50.0);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawLine(0, 0, 100, 50);

  EXPECT_EQ(canvas.Calls(), (Calls{"MoveTo(0,0)", "LineTo(100,50)"}));
}

TEST(KccDraw, DrawAttrLineSetsThePenAsColourStyleWidthAndRestoresIt) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawAttrLine(0, 0, 10, 20, OrangeDashWidth3());

  EXPECT_EQ(canvas.Calls(),
            (Calls{"GetPenColor()", "GetPenWidth()", "GetPenStyle()", "SetPenColor(200,100,50,255)",
                   "SetPenStyle(Dash)", "SetPenWidth(3)", "MoveTo(0,0)", "LineTo(10,20)",
                   "SetPenColor(0,0,0,255)", "SetPenWidth(1)", "SetPenStyle(Solid)"}));
}

TEST(KccDraw, DrawPointSquareDrawsTheOutlineWithTheLineAttributes) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawPointSquare(10, 20, 3, OrangeDashWidth3());

  EXPECT_EQ(canvas.Calls(),
            (Calls{"GetPenColor()", "GetPenWidth()", "GetPenStyle()", "SetPenColor(200,100,50,255)",
                   "SetPenStyle(Dash)", "SetPenWidth(3)", "MoveTo(7,17)", "LineTo(7,23)", "LineTo(13,23)",
                   "LineTo(13,17)", "LineTo(7,17)", "SetPenColor(0,0,0,255)", "SetPenWidth(1)",
                   "SetPenStyle(Solid)"}));
}

TEST(KccDraw, DrawPointDiamondDrawsTheOutlineWithTheLineAttributes) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawPointDiamond(10, 20, 3, OrangeDashWidth3());

  EXPECT_EQ(canvas.CallsWithoutGetters(),
            (Calls{"SetPenColor(200,100,50,255)", "SetPenStyle(Dash)", "SetPenWidth(3)", "MoveTo(7,20)",
                   "LineTo(10,23)", "LineTo(13,20)", "LineTo(10,17)", "LineTo(7,20)",
                   "SetPenColor(0,0,0,255)", "SetPenWidth(1)", "SetPenStyle(Solid)"}));
}

// ---- arrows ----

TEST(KccDraw, DrawArrowLineDrawsShaftThenHeadFilledWithTheLineColour) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArrowLine(0, 0, 100, 0, 20, OrangeDashWidth3());

  EXPECT_EQ(canvas.Calls(), (Calls{"GetPenColor()", "GetPenWidth()", "GetPenStyle()", "GetBrushColor()",
                                   "SetPenColor(200,100,50,255)", "SetPenStyle(Dash)", "SetPenWidth(3)",
                                   "MoveTo(0,0)", "LineTo(100,0)", "SetBrushColor(200,100,50,255)",
                                   "Polygon(80,-5 80,5 100,0)", "SetPenColor(0,0,0,255)", "SetPenWidth(1)",
                                   "SetPenStyle(Solid)", "SetBrushColor(255,255,255,255)"}));
}

TEST(KccDraw, ArrowHeadHalfWidthIsAQuarterOfTheSize) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArrowLine(0.0, 0.0, 100.0, 0.0, 40, OrangeDashWidth3());

  EXPECT_EQ(canvas.CallsWithoutGetters()[6], "Polygon(60,-10 60,10 100,0)");
}

TEST(KccDraw, DiagonalArrowHeadLiesAlongTheLine) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArrowLine(0, 0, 30, 40, 10, OrangeDashWidth3());  // length 50, direction (0.6, 0.8)

  // base = tip - 10 * (0.6, 0.8) = (24, 32); wings 2.5 across: +-(2.5 * 0.8, -2.5 * 0.6) = +-(2, -1.5).
  const KC2DPointList head = drawtest::PolygonOf(canvas.Calls(), 0);
  ASSERT_EQ(head.size(), 3U);
  EXPECT_NEAR(head[0].GetX(), 26.0, 1e-12);
  EXPECT_NEAR(head[0].GetY(), 30.5, 1e-12);
  EXPECT_NEAR(head[1].GetX(), 22.0, 1e-12);
  EXPECT_NEAR(head[1].GetY(), 33.5, 1e-12);
  EXPECT_EQ(head[2], KC2DPoint(30, 40));
}

TEST(KccDraw, ArrowLineWithSizeZeroDrawsOnlyTheShaft) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArrowLine(0, 0, 100, 0, 0, OrangeDashWidth3());

  EXPECT_EQ(canvas.CallsWithoutGetters(),
            (Calls{"SetPenColor(200,100,50,255)", "SetPenStyle(Dash)", "SetPenWidth(3)", "MoveTo(0,0)",
                   "LineTo(100,0)", "SetPenColor(0,0,0,255)", "SetPenWidth(1)", "SetPenStyle(Solid)",
                   "SetBrushColor(255,255,255,255)"}));
}

TEST(KccDraw, ArrowLineOfZeroLengthDrawsOnlyTheShaft) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArrowLine(5.0, 5.0, 5.00005, 4.99995, 20, OrangeDashWidth3());  // both differences below 1e-4

  EXPECT_EQ(drawtest::CountOf(canvas.Calls(), "Polygon"), 0U);
  EXPECT_EQ(drawtest::CountOf(canvas.Calls(), "LineTo"), 1U);
}

TEST(KccDraw, ArrowLineLongerThanTheToleranceInOneAxisGetsAHead) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArrowLine(5.0, 5.0, 5.0, 5.0002, 20, OrangeDashWidth3());

  EXPECT_EQ(drawtest::CountOf(canvas.Calls(), "Polygon"), 1U);
}

TEST(KccDraw, ArrowLargerThanTheLineGetsAHeadAsLongAsTheLine) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawArrowLine(0, 0, 10, 0, 40, OrangeDashWidth3());

  EXPECT_EQ(canvas.CallsWithoutGetters()[6], "Polygon(0,-10 0,10 10,0)");  // base at the start point
}

TEST(KccDraw, DoubleArrowLineDrawsTheEndHeadThenTheMirroredStartHead) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawDoubleArrowLine(0, 0, 100, 0, 20, OrangeDashWidth3());

  EXPECT_EQ(canvas.CallsWithoutGetters(),
            (Calls{"SetPenColor(200,100,50,255)", "SetPenStyle(Dash)", "SetPenWidth(3)", "MoveTo(0,0)",
                   "LineTo(100,0)", "SetBrushColor(200,100,50,255)", "Polygon(80,-5 80,5 100,0)",
                   "Polygon(20,-5 20,5 0,0)", "SetPenColor(0,0,0,255)", "SetPenWidth(1)",
                   "SetPenStyle(Solid)", "SetBrushColor(255,255,255,255)"}));
}

TEST(KccDraw, DoubleArrowLineWithSizeZeroDrawsOnlyTheShaft) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawDoubleArrowLine(0, 0, 100, 0, 0, OrangeDashWidth3());

  EXPECT_EQ(drawtest::CountOf(canvas.Calls(), "Polygon"), 0U);
  EXPECT_EQ(drawtest::CountOf(canvas.Calls(), "LineTo"), 1U);
}

// ---- rectangles, circles, background ----

TEST(KccDraw, DrawRectangleIsABlackDottedRubberBandWithAClearBrush) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawRectangle(30, 40, 10, 20);

  EXPECT_EQ(canvas.Calls(), (Calls{"GetPenStyle()", "GetPenWidth()", "GetPenColor()", "GetBrushStyle()",
                                   "SetPenStyle(Dot)", "SetPenWidth(1)", "SetPenColor(0,0,0,255)",
                                   "SetBrushStyle(Clear)", "Rectangle(10,20,30,40)", "SetPenStyle(Solid)",
                                   "SetPenWidth(1)", "SetPenColor(0,0,0,255)", "SetBrushStyle(Solid)"}));
}

TEST(KccDraw, DrawHollowRectangleUsesThePenOfTheLineAndAClearBrush) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawHollowRectangle(10, 20, 30, 40, OrangeDashWidth3());

  EXPECT_EQ(canvas.Calls(), (Calls{"GetPenColor()", "GetPenWidth()", "GetPenStyle()", "GetBrushStyle()",
                                   "SetPenColor(200,100,50,255)", "SetPenStyle(Dash)", "SetPenWidth(3)",
                                   "SetBrushStyle(Clear)", "Rectangle(10,20,30,40)", "SetPenColor(0,0,0,255)",
                                   "SetPenWidth(1)", "SetPenStyle(Solid)", "SetBrushStyle(Solid)"}));
}

TEST(KccDraw, DrawFilledRectangleFillsWithTheFillColour) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);
  const KCC_FillAttributes fill(KCColor(10, 20, 30), true);

  draw.DrawFilledRectangle(10.5, 20.0, 30.0, 40.0, OrangeDashWidth3(), fill);

  EXPECT_EQ(canvas.Calls(),
            (Calls{"GetPenColor()", "GetPenWidth()", "GetPenStyle()", "GetBrushStyle()", "GetBrushColor()",
                   "SetPenColor(200,100,50,255)", "SetPenStyle(Dash)", "SetPenWidth(3)",
                   "SetBrushStyle(Solid)", "SetBrushColor(10,20,30,255)", "Rectangle(10.5,20,30,40)",
                   "SetPenColor(0,0,0,255)", "SetPenWidth(1)", "SetPenStyle(Solid)", "SetBrushStyle(Solid)",
                   "SetBrushColor(255,255,255,255)"}));
}

TEST(KccDraw, DrawFilledRectangleWithHollowFillUsesAClearBrush) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);
  const KCC_FillAttributes hollow(KCColor(10, 20, 30), false);

  draw.DrawFilledRectangle(10, 20, 30, 40, OrangeDashWidth3(), hollow);

  const Calls calls = canvas.CallsWithoutGetters();
  EXPECT_EQ(calls[3], "SetBrushStyle(Clear)");
  EXPECT_EQ(calls[4], "Rectangle(10,20,30,40)");
}

TEST(KccDraw, DrawAttrCircleSavesPenStyleWidthColourAndBrushStyle) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawAttrCircle(100, 50, 10, OrangeDashWidth3());

  EXPECT_EQ(canvas.Calls(), (Calls{"GetPenStyle()", "GetPenWidth()", "GetPenColor()", "GetBrushStyle()",
                                   "SetPenStyle(Dash)", "SetPenWidth(3)", "SetPenColor(200,100,50,255)",
                                   "SetBrushStyle(Clear)", "Ellipse(90,40,110,60)", "SetPenStyle(Solid)",
                                   "SetPenWidth(1)", "SetPenColor(0,0,0,255)", "SetBrushStyle(Solid)"}));
}

TEST(KccDraw, DrawAttrCircleWithFilledFillPaintsTheInside) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);
  const KCC_FillAttributes fill(KCColor(10, 20, 30), true);

  draw.DrawAttrCircle(100, 50, 10, OrangeDashWidth3(), fill);

  EXPECT_EQ(
      canvas.Calls(),
      (Calls{"GetPenStyle()", "GetPenWidth()", "GetPenColor()", "GetBrushStyle()", "GetBrushColor()",
             "SetPenStyle(Dash)", "SetPenWidth(3)", "SetPenColor(200,100,50,255)", "SetBrushStyle(Solid)",
             "SetBrushColor(10,20,30,255)", "Ellipse(90,40,110,60)", "SetPenStyle(Solid)", "SetPenWidth(1)",
             "SetPenColor(0,0,0,255)", "SetBrushStyle(Solid)", "SetBrushColor(255,255,255,255)"}));
}

TEST(KccDraw, DrawAttrCircleWithHollowFillLeavesTheInsideClear) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);
  const KCC_FillAttributes hollow(KCColor(10, 20, 30), false);

  draw.DrawAttrCircle(100, 50, 10, OrangeDashWidth3(), hollow);

  const Calls calls = canvas.CallsWithoutGetters();
  EXPECT_EQ(calls[3], "SetBrushStyle(Clear)");
  EXPECT_EQ(calls[4], "Ellipse(90,40,110,60)");
}

TEST(KccDraw, PaintBackGroundFillsWithASolidBrushAndPenInTheColour) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);
  KCColor paper(250, 240, 230);

  draw.PaintBackGround(paper);

  EXPECT_EQ(
      canvas.CallsWithoutGetters(),
      (Calls{"SetPenStyle(Solid)", "SetPenWidth(1)", "SetPenColor(250,240,230,255)", "SetBrushStyle(Solid)",
             "SetBrushColor(250,240,230,255)", "FillCanvas()", "SetPenStyle(Solid)", "SetPenWidth(1)",
             "SetPenColor(0,0,0,255)", "SetBrushStyle(Solid)", "SetBrushColor(255,255,255,255)"}));
}

// ---- selection marks ----

TEST(KccDraw, DrawSelectLineDrawsBlackDottedInNotXorMode) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawSelectLine(10, 20, 30, 40);

  EXPECT_EQ(canvas.Calls(),
            (Calls{"GetPenColor()", "GetPenWidth()", "GetPenStyle()", "GetPenMode()", "GetBrushStyle()",
                   "SetPenStyle(Dot)", "SetPenWidth(1)", "SetPenColor(0,0,0,255)", "SetPenMode(NotXor)",
                   "SetBrushStyle(Clear)", "MoveTo(10,20)", "LineTo(30,40)", "SetPenColor(0,0,0,255)",
                   "SetPenWidth(1)", "SetPenStyle(Solid)", "SetPenMode(Copy)", "SetBrushStyle(Solid)"}));
}

TEST(KccDraw, SelectLineDrawnTwiceLeavesTheCanvasAsBefore) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);
  const RecordingCanvas::Settings before = canvas.GetSettings();

  draw.DrawSelectLine(10, 20, 30, 40);
  const Calls first = canvas.Calls();
  canvas.ClearCalls();
  draw.DrawSelectLine(10, 20, 30, 40);

  // NotXor: the second, identical line in the same mode erases the first; the settings are as before.
  EXPECT_EQ(canvas.Calls(), first);
  EXPECT_EQ(first[8], "SetPenMode(NotXor)");
  EXPECT_EQ(canvas.GetSettings(), before);
}

TEST(KccDraw, DrawSelectCircleMarksTheEllipseAroundTheCentre) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawSelectCircle(100, 50, 10);

  const Calls calls = canvas.CallsWithoutGetters();
  ASSERT_EQ(calls.size(), 11U);
  EXPECT_EQ(calls[3], "SetPenMode(NotXor)");
  EXPECT_EQ(calls[5], "EllipseMark(90,40,110,60)");
}

TEST(KccDraw, DrawSelectHollowRectangleFramesTheRectangle) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DrawSelectHollowRectangle(10, 20, 30, 40);

  const Calls calls = canvas.CallsWithoutGetters();
  ASSERT_EQ(calls.size(), 11U);
  EXPECT_EQ(calls[3], "SetPenMode(NotXor)");
  EXPECT_EQ(calls[5], "FrameRectangle(10,20,30,40)");
}

// ---- text ----

TEST(KccDraw, DisplayTextAtAngleZeroCentresTheTextOnThePoint) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  canvas.SetMeasureResult(40, 10);
  KCC_Draw draw(viewPort, canvas);

  draw.DisplayText("Hg", 100.0, 50.0, KCC_FillAttributes(), KCC_TextAttributes());

  EXPECT_EQ(drawtest::PointsOf(canvas.Calls(), "TextOut").at(0), KC2DPoint(80, 45));
}

TEST(KccDraw, DisplayTextSetsTheFontSavesAndRestoresEverything) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  canvas.SetMeasureResult(40, 10);
  KCC_Draw draw(viewPort, canvas);
  KCC_TextAttributes font;
  font.SetFontCourierNew();
  font.SetFontSize(20);
  font.EnableBold();
  font.EnableUnderline();
  font.SetFontColor(KCColor(9, 8, 7));
  const KCC_FillAttributes fill(KCColor(10, 20, 30), true);

  draw.DisplayText("Hg", 100, 50, fill, font);

  EXPECT_EQ(canvas.Calls(), (Calls{"GetFontName()",
                                   "GetFontColor()",
                                   "GetFontSize()",
                                   "GetFontStyles()",
                                   "GetTextAngle()",
                                   "GetBrushStyle()",
                                   "GetBrushColor()",
                                   "SetFontName(\"Courier New\")",
                                   "SetFontColor(9,8,7,255)",
                                   "SetFontSize(20)",
                                   "SetFontStyles(Bold,Underline)",
                                   "SetTextAngle(0)",
                                   "MeasureText(\"Hg\")",
                                   "SetBrushStyle(Solid)",
                                   "SetBrushColor(10,20,30,255)",
                                   "TextOut(80,45,\"Hg\")",
                                   "SetBrushStyle(Solid)",
                                   "SetBrushColor(255,255,255,255)",
                                   "SetFontName(\"Arial\")",
                                   "SetFontColor(0,0,0,255)",
                                   "SetFontSize(12)",
                                   "SetFontStyles()",
                                   "SetTextAngle(0)"}));
}

TEST(KccDraw, DisplayTextWithHollowFillUsesAClearBrush) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  KCC_Draw draw(viewPort, canvas);

  draw.DisplayText("Hg", 100, 50, KCC_FillAttributes(), KCC_TextAttributes());

  const Calls calls = canvas.CallsWithoutGetters();
  EXPECT_EQ(calls[6], "SetBrushStyle(Clear)");
  EXPECT_EQ(calls[7].rfind("TextOut(", 0), 0U);
}

TEST(KccDraw, DisplayTextTurnedBy90DegreesTurnsTheOrigin) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  canvas.SetMeasureResult(40, 10);
  KCC_Draw draw(viewPort, canvas);
  KCC_TextAttributes font;
  font.SetAngleDeg(90.0);

  draw.DisplayText("Hg", 100.0, 50.0, KCC_FillAttributes(), font);

  // x: 100 - 20 * cos 90 - 5 * sin 90 + 0.5 = 95.5 -> 95
  // y: 50 + 20 * sin 90 - 5 * cos 90 + 0.5 = 70.5 -> 70
  EXPECT_EQ(drawtest::PointsOf(canvas.Calls(), "TextOut").at(0), KC2DPoint(95, 70));
  EXPECT_NE(std::find(canvas.Calls().begin(), canvas.Calls().end(), "SetTextAngle(90)"),
            canvas.Calls().end());
}

TEST(KccDraw, DisplayTextTruncatesTheOriginTowardsZero) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  canvas.SetMeasureResult(40, 10);
  KCC_Draw draw(viewPort, canvas);

  draw.DisplayText("Hg", 10.0, 2.0, KCC_FillAttributes(), KCC_TextAttributes());

  // 10 - 20 + 0.5 = -9.5 and 2 - 5 + 0.5 = -2.5 truncate to -9 and -2 (not -10 and -3).
  EXPECT_EQ(drawtest::PointsOf(canvas.Calls(), "TextOut").at(0), KC2DPoint(-9, -2));
}

TEST(KccDraw, DisplayTextAddsAHalfBeforeTruncating) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  canvas.SetMeasureResult(41, 11);
  KCC_Draw draw(viewPort, canvas);

  draw.DisplayText("Hg", 100.0, 50.0, KCC_FillAttributes(), KCC_TextAttributes());

  // 100 - 20.5 + 0.5 = 80 and 50 - 5.5 + 0.5 = 45.
  EXPECT_EQ(drawtest::PointsOf(canvas.Calls(), "TextOut").at(0), KC2DPoint(80, 45));
}

TEST(KccDraw, DisplayTextBoxCentresTheTextInTheBox) {
  KCC_ViewPortDraw viewPort(800, 600);
  RecordingCanvas canvas;
  canvas.SetMeasureResult(40, 10);
  KCC_Draw draw(viewPort, canvas);

  draw.DisplayTextBox("Hg", 50, 30, 150, 70, KCC_FillAttributes(), KCC_TextAttributes());  // centre (100, 50)

  EXPECT_EQ(drawtest::PointsOf(canvas.Calls(), "TextOut").at(0), KC2DPoint(80, 45));
  EXPECT_EQ(drawtest::CountOf(canvas.Calls(), "Rectangle"), 0U);
}

}  // namespace
