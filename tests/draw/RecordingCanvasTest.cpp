// SPDX-License-Identifier: MIT
// RecordingCanvas, the test canvas of the drawing-API tests: one line per call, and the settings kept.
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "support/RecordingCanvas.h"

namespace {

TEST(RecordingCanvas, LogsDrawingCallsWithTheirArguments) {
  RecordingCanvas canvas;
  canvas.MoveTo(KC2DPoint(10, 20.5));
  canvas.LineTo(KC2DPoint(-3, 0.1));
  canvas.FrameRectangle(KC2DRectangle(5, 6, 1, 2));
  canvas.Polygon({KC2DPoint(1, 2), KC2DPoint(3, 4), KC2DPoint(5, 6)});
  canvas.TextOut(KC2DPoint(80, 45), "Hg");
  canvas.FillCanvas();
  EXPECT_EQ(canvas.Calls(),
            (std::vector<std::string>{"MoveTo(10,20.5)", "LineTo(-3,0.1)", "FrameRectangle(1,2,5,6)",
                                      "Polygon(1,2 3,4 5,6)", "TextOut(80,45,\"Hg\")", "FillCanvas()"}));
}

TEST(RecordingCanvas, LogsSettersAndGettersInCallOrder) {
  RecordingCanvas canvas;
  const KCColor saved = canvas.GetPenColor();
  canvas.SetPenColor(KCColorRed(128));
  canvas.SetPenStyle(KCPenStyleDot());
  canvas.SetPenMode(KCPenModeNotXor());
  canvas.SetBrushStyle(KCBrushStyleClear());
  canvas.SetPenColor(saved);
  EXPECT_EQ(canvas.Calls(), (std::vector<std::string>{"GetPenColor()", "SetPenColor(255,0,0,128)",
                                                      "SetPenStyle(Dot)", "SetPenMode(NotXor)",
                                                      "SetBrushStyle(Clear)", "SetPenColor(0,0,0,255)"}));
}

TEST(RecordingCanvas, CallsWithoutGettersLeavesTheGettersOut) {
  RecordingCanvas canvas;
  const int width = canvas.GetPenWidth();
  canvas.SetPenWidth(3);
  canvas.SetPenWidth(width);
  EXPECT_EQ(canvas.CallsWithoutGetters(), (std::vector<std::string>{"SetPenWidth(3)", "SetPenWidth(1)"}));
}

TEST(RecordingCanvas, GettersGiveBackWhatWasSet) {
  RecordingCanvas canvas;
  KCFontStyles styles;
  styles.Add(KCFontStyleItalic());
  canvas.SetFontStyles(styles);
  canvas.SetFontName("Courier New");
  canvas.SetTextAngle(0.1 + 0.2);
  EXPECT_EQ(canvas.GetFontStyles(), styles);
  EXPECT_EQ(canvas.GetFontName(), "Courier New");
  EXPECT_EQ(canvas.GetTextAngle(), 0.1 + 0.2);
}

TEST(RecordingCanvas, SettingsCompareUnequalAfterAChangeAndEqualAfterRestoring) {
  RecordingCanvas canvas;
  const RecordingCanvas::Settings before = canvas.GetSettings();
  canvas.SetBrushColor(KCColorBlue(255));
  const RecordingCanvas::Settings changed = canvas.GetSettings();
  canvas.SetBrushColor(KCColor(255, 255, 255));
  EXPECT_NE(changed, before);
  EXPECT_EQ(canvas.GetSettings(), before);
}

TEST(RecordingCanvas, SettingsPrintInOneLine) {
  const RecordingCanvas canvas;
  std::ostringstream out;
  PrintTo(canvas.GetSettings(), &out);
  EXPECT_EQ(out.str(),
            "pen 0,0,0,255 Solid width 1 Copy; brush 255,255,255,255 Solid; font \"Arial\" 12 0,0,0,255 [] "
            "angle 0");
}

TEST(RecordingCanvas, MeasureTextAnswersTheSetResult) {
  RecordingCanvas canvas;
  canvas.SetMeasureResult(40, 10);
  int width = 0;
  int height = 0;
  canvas.MeasureText("anything", width, height);
  EXPECT_EQ(width, 40);
  EXPECT_EQ(height, 10);
}

TEST(RecordingCanvas, MeasureTextByDefaultTakesEightPixelsPerByteAndTheFontSize) {
  RecordingCanvas canvas;
  canvas.SetFontSize(20);
  int width = 0;
  int height = 0;
  canvas.MeasureText("abc", width, height);
  EXPECT_EQ(width, 24);
  EXPECT_EQ(height, 20);
}

TEST(RecordingCanvas, LineToMovesTheCurrentPoint) {
  RecordingCanvas canvas;
  canvas.LineTo(KC2DPoint(7, 8));
  EXPECT_EQ(canvas.GetCurrentPoint(), KC2DPoint(7, 8));
}

}  // namespace
