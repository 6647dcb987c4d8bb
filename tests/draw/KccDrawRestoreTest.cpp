// SPDX-License-Identifier: MIT
// KCC_Draw leaves the canvas as it found it: after every drawing operation each canvas setting (pen colour,
// width, style and mode, brush style and colour, font name, colour, size, styles and text angle) equals
// what it was before. Each operation runs from two starting states that differ in every setting, so that a
// value the operation sets always differs from at least one of them and a missing restore shows.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <ostream>
#include <string>
#include <tuple>

#include "ncappkit/draw/KCC_Draw.h"
#include "ncappkit/draw/KCC_FillAttributes.h"
#include "ncappkit/draw/KCC_FontAttributes.h"
#include "ncappkit/draw/KCC_LineAttributes.h"
#include "ncappkit/draw/KCC_ViewPortDraw.h"
#include "ncappkit/foundation/KC2DElmList.h"
#include "support/RecordingCanvas.h"

namespace {

// One drawing operation, called with attributes that differ from both starting states.
struct DrawOperation {
  const char* name;
  std::function<void(KCC_Draw&)> draw;
};

void PrintTo(const DrawOperation& operation, std::ostream* out) {
  *out << operation.name;
}

// A canvas state to start from.
struct StartState {
  const char* name;
  RecordingCanvas::Settings settings;
};

void PrintTo(const StartState& state, std::ostream* out) {
  *out << state.name;
}

KCC_LineAttributes Pen() {
  return KCC_LineAttributes(KCColor(200, 100, 50), KCPenStyleDash(), 3);
}

KCC_FillAttributes Filled() {
  return KCC_FillAttributes(KCColor(10, 20, 30), true);
}

KCC_FillAttributes Hollow() {
  return KCC_FillAttributes(KCColor(10, 20, 30), false);
}

KCC_TextAttributes Font() {
  KCC_TextAttributes font("Courier New");
  font.SetFontSize(20);
  font.EnableBold();
  font.EnableItalic();
  font.SetFontColor(KCColor(60, 70, 80));
  font.SetAngleDeg(30.0);
  return font;
}

KC2DElmList Outline() {
  KC2DElmList list;
  list.Add(new KC2DLine(0.0, 0.0, 100.0, 0.0));
  list.Add(new KC2DArc(KC2DPoint(100.0, 0.0), KC2DPoint(0.0, 100.0), KC2DPoint(0.0, 0.0), true));
  list.Add(new KC2DLine(0.0, 100.0, 0.0, 0.0));
  list.Add(new KC2DRectangle(10.0, 10.0, 20.0, 20.0));
  list.Add(new KC2DPoint(5.0, 5.0));
  return list;
}

StartState StateA() {
  StartState state{"StateA", {}};
  RecordingCanvas::Settings& s = state.settings;
  s.penColor = KCColor(1, 2, 3);
  s.brushColor = KCColor(4, 5, 6);
  s.fontColor = KCColor(7, 8, 9);
  s.fontStyles.Add(KCFontStyleStrikeOut());
  s.fontName = "Georgia";
  s.penStyle = KCPenStyleDashDotDot();
  s.penMode = KCPenMode();
  s.brushStyle = KCBrushStyleClear();
  s.fontSize = 31;
  s.textAngle = -12.5;
  s.penWidth = 7;
  return state;
}

StartState StateB() {
  StartState state{"StateB", {}};
  RecordingCanvas::Settings& s = state.settings;
  s.penColor = KCColor(250, 251, 252, 128);
  s.brushColor = KCColor(11, 12, 13, 200);
  s.fontColor = KCColor(90, 91, 92);
  s.fontName = "Verdana";
  s.penStyle = KCPenStyleSolid();
  s.penMode = KCPenModeNotXor();
  s.brushStyle = KCBrushStyleSolid();
  s.fontSize = 9;
  s.textAngle = 0.0;
  s.penWidth = 1;
  return state;
}

// Brings a canvas into `settings` through its setters, then forgets those calls.
void Apply(RecordingCanvas& canvas, const RecordingCanvas::Settings& settings) {
  canvas.SetPenColor(settings.penColor);
  canvas.SetBrushColor(settings.brushColor);
  canvas.SetFontColor(settings.fontColor);
  canvas.SetFontStyles(settings.fontStyles);
  canvas.SetFontName(settings.fontName);
  canvas.SetPenStyle(settings.penStyle);
  canvas.SetPenMode(settings.penMode);
  canvas.SetBrushStyle(settings.brushStyle);
  canvas.SetFontSize(settings.fontSize);
  canvas.SetTextAngle(settings.textAngle);
  canvas.SetPenWidth(settings.penWidth);
  canvas.ClearCalls();
}

// True when a call drew something (not a getter, setter or measurement).
bool IsDrawingCall(const std::string& call) {
  return call.rfind("Get", 0) != 0 && call.rfind("Set", 0) != 0 && call.rfind("MeasureText", 0) != 0;
}

class KccDrawRestore : public ::testing::TestWithParam<std::tuple<DrawOperation, StartState>> {};

TEST_P(KccDrawRestore, EverySettingIsAsBeforeAfterDrawing) {
  const DrawOperation& operation = std::get<0>(GetParam());
  const StartState& start = std::get<1>(GetParam());
  KCC_ViewPortDraw viewPort(800, 600);
  viewPort.SetWorldCoord(0.0, 0.0, 100.0, 50.0);
  RecordingCanvas canvas;
  Apply(canvas, start.settings);
  ASSERT_EQ(canvas.GetSettings(), start.settings);
  KCC_Draw draw(viewPort, canvas);

  operation.draw(draw);

  EXPECT_EQ(canvas.GetSettings(), start.settings);
  const auto& calls = canvas.Calls();
  EXPECT_TRUE(std::any_of(calls.begin(), calls.end(), IsDrawingCall)) << "the operation drew nothing";
}

INSTANTIATE_TEST_SUITE_P(
    AllDrawingOperations, KccDrawRestore,
    ::testing::Combine(
        ::testing::Values(
            DrawOperation{"DrawPointSquare", [](KCC_Draw& d) { d.DrawPointSquare(10, 20, 3, Pen()); }},
            DrawOperation{"DrawPointDiamond", [](KCC_Draw& d) { d.DrawPointDiamond(10, 20, 3, Pen()); }},
            DrawOperation{"DrawLineDouble", [](KCC_Draw& d) { d.DrawLine(1.5, 2.0, 30.0, 40.0); }},
            DrawOperation{"DrawLineInt", [](KCC_Draw& d) { d.DrawLine(1, 2, 30, 40); }},
            DrawOperation{"DrawAttrLineDouble",
                          [](KCC_Draw& d) {
                            d.DrawAttrLine(1.5, 2.0, 30.0, 40.0, Pen());
                          }},
            DrawOperation{"DrawAttrLineInt", [](KCC_Draw& d) { d.DrawAttrLine(1, 2, 30, 40, Pen()); }},
            DrawOperation{"DrawArrowLineDouble",
                          [](KCC_Draw& d) { d.DrawArrowLine(0.0, 0.0, 100.0, 0.0, 20, Pen()); }},
            DrawOperation{"DrawArrowLineInt", [](KCC_Draw& d) { d.DrawArrowLine(0, 0, 100, 0, 20, Pen()); }},
            DrawOperation{"DrawDoubleArrowLine",
                          [](KCC_Draw& d) { d.DrawDoubleArrowLine(0, 0, 100, 0, 20, Pen()); }},
            DrawOperation{"DrawArcDouble",
                          [](KCC_Draw& d) { d.DrawArc(100.0, 0.0, 0.0, 100.0, 0.0, 0.0, false, false); }},
            DrawOperation{"DrawArcInt", [](KCC_Draw& d) { d.DrawArc(100, 0, 0, 100, 0, 0, true, false); }},
            DrawOperation{"DrawAttrCircleFilled",
                          [](KCC_Draw& d) { d.DrawAttrCircle(100, 50, 10, Pen(), Filled()); }},
            DrawOperation{"DrawAttrCircleHollowFill",
                          [](KCC_Draw& d) { d.DrawAttrCircle(100, 50, 10, Pen(), Hollow()); }},
            DrawOperation{"DrawAttrCircle", [](KCC_Draw& d) { d.DrawAttrCircle(100, 50, 10, Pen()); }},
            DrawOperation{"DrawAttrArcCw",
                          [](KCC_Draw& d) { d.DrawAttrArc(100, 0, 0, 100, 0, 0, true, false, Pen()); }},
            DrawOperation{"DrawAttrArcCcw",
                          [](KCC_Draw& d) { d.DrawAttrArc(100, 0, 0, 100, 0, 0, false, true, Pen()); }},
            DrawOperation{"DrawArrowArcCwDouble",
                          [](KCC_Draw& d) {
                            d.DrawArrowArc_CW(0.0, 100.0, 100.0, 0.0, 0.0, 0.0, false, 20, Pen());
                          }},
            DrawOperation{"DrawArrowArcCwInt",
                          [](KCC_Draw& d) { d.DrawArrowArc_CW(0, 100, 100, 0, 0, 0, false, 20, Pen()); }},
            DrawOperation{"DrawArrowArcCcwDouble",
                          [](KCC_Draw& d) {
                            d.DrawArrowArc_CCW(100.0, 0.0, 0.0, 100.0, 0.0, 0.0, false, 20, Pen());
                          }},
            DrawOperation{"DrawArrowArcCcwInt",
                          [](KCC_Draw& d) { d.DrawArrowArc_CCW(100, 0, 0, 100, 0, 0, true, 20, Pen()); }},
            DrawOperation{"DrawRectangle", [](KCC_Draw& d) { d.DrawRectangle(10, 20, 30, 40); }},
            DrawOperation{"DrawHollowRectangleDouble",
                          [](KCC_Draw& d) { d.DrawHollowRectangle(10.0, 20.0, 30.0, 40.0, Pen()); }},
            DrawOperation{"DrawHollowRectangleInt",
                          [](KCC_Draw& d) { d.DrawHollowRectangle(10, 20, 30, 40, Pen()); }},
            DrawOperation{"DrawFilledRectangleDouble",
                          [](KCC_Draw& d) {
                            d.DrawFilledRectangle(10.0, 20.0, 30.0, 40.0, Pen(), Filled());
                          }},
            DrawOperation{"DrawFilledRectangleInt",
                          [](KCC_Draw& d) { d.DrawFilledRectangle(10, 20, 30, 40, Pen(), Filled()); }},
            DrawOperation{"DrawFilledRectangleHollowFill",
                          [](KCC_Draw& d) { d.DrawFilledRectangle(10, 20, 30, 40, Pen(), Hollow()); }},
            DrawOperation{"DisplayTextDouble",
                          [](KCC_Draw& d) { d.DisplayText("Hg", 100.0, 50.0, Filled(), Font()); }},
            DrawOperation{"DisplayTextInt",
                          [](KCC_Draw& d) {
                            d.DisplayText("Hg", 100, 50, Hollow(), Font());
                          }},
            DrawOperation{"DisplayTextBox",
                          [](KCC_Draw& d) { d.DisplayTextBox("Hg", 50, 30, 150, 70, Filled(), Font()); }},
            DrawOperation{"DrawSelectHollowRectangle",
                          [](KCC_Draw& d) { d.DrawSelectHollowRectangle(10, 20, 30, 40); }},
            DrawOperation{"DrawSelectLine", [](KCC_Draw& d) { d.DrawSelectLine(10, 20, 30, 40); }},
            DrawOperation{"DrawSelectCircle", [](KCC_Draw& d) { d.DrawSelectCircle(100, 50, 10); }},
            DrawOperation{"PaintBackGround",
                          [](KCC_Draw& d) {
                            KCColor paper(33, 66, 99);
                            d.PaintBackGround(paper);
                          }},
            DrawOperation{"DrawFilledElmList",
                          [](KCC_Draw& d) {
                            KC2DElmList list = Outline();
                            d.DrawFilledElmList(list, Pen(), Filled());
                          }},
            DrawOperation{"DrawFilledElmListHollowFill",
                          [](KCC_Draw& d) {
                            KC2DElmList list = Outline();
                            d.DrawFilledElmList(list, Pen(), Hollow());
                          }},
            DrawOperation{"DrawHollowElmList",
                          [](KCC_Draw& d) {
                            KC2DElmList list = Outline();
                            d.DrawHollowElmList(list, Pen());
                          }}),
        ::testing::Values(StateA(), StateB())),
    [](const ::testing::TestParamInfo<std::tuple<DrawOperation, StartState>>& param) {
      return std::string(std::get<0>(param.param).name) + std::get<1>(param.param).name;
    });

}  // namespace
