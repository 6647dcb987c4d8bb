// SPDX-License-Identifier: MIT
// RecordingCanvas: a KCCanvas for tests that logs every call, getters included, as one readable line, and
// keeps every setting, so a test of the drawing API can compare exact call sequences and check that the
// settings are as they were afterwards.
//
//   RecordingCanvas canvas;
//   const RecordingCanvas::Settings before = canvas.GetSettings();
//   KCC_Draw(viewPort, canvas).DrawSelectLine(10, 20, 30, 40);
//   const std::vector<std::string> calls = canvas.CallsWithoutGetters();
//   EXPECT_NE(std::find(calls.begin(), calls.end(), "LineTo(30,40)"), calls.end());
//   EXPECT_EQ(canvas.GetSettings(), before);              // pen, brush and font as they were
//
// Line forms: "SetPenColor(255,0,0,255)" (r,g,b,a), "SetPenStyle(Dot)", "SetPenMode(NotXor)",
// "SetBrushStyle(Clear)", "SetFontStyles(Bold,Italic)", "SetFontName(\"Arial\")", "SetFontSize(12)",
// "SetTextAngle(30)", "SetPenWidth(2)", "MeasureText(\"Hg\")", "FillCanvas()", "Rectangle(1,2,3,4)" (smallest
// corner, largest corner; also FrameRectangle, Ellipse, EllipseMark), "TextOut(80,45,\"Hg\")",
// "Polygon(1,2 3,4 5,6)", "MoveTo(10,20)", "LineTo(10,20)", and "GetPenColor()" and so on for every getter.
// Numbers are the shortest text that reads back as the same double ("0.1", "-0", "1e+300").
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "ncappkit/draw/KCCanvas.h"

class RecordingCanvas : public KCCanvas {
 public:
  /// Every setting the canvas keeps; a new canvas has the values written here.
  struct Settings {
    KCColor penColor = KCColor(0, 0, 0);
    KCColor brushColor = KCColor(255, 255, 255);
    KCColor fontColor = KCColor(0, 0, 0);
    KCFontStyles fontStyles;
    KCString fontName = "Arial";
    KCPenStyle penStyle;
    KCPenMode penMode;
    KCBrushStyle brushStyle;
    int fontSize = 12;
    double textAngle = 0.0;
    int penWidth = 1;

    /// True when every setting is equal (the text angle exactly).
    friend bool operator==(const Settings& a, const Settings& b);
    /// Negation of ==.
    friend bool operator!=(const Settings& a, const Settings& b) { return !(a == b); }
    /// All settings in one line, for failure messages.
    friend void PrintTo(const Settings& s, std::ostream* out);
  };

  /// Every call so far, oldest first.
  const std::vector<std::string>& Calls() const noexcept { return m_calls; }
  /// The calls so far without the getters (lines starting with "Get").
  std::vector<std::string> CallsWithoutGetters() const;
  /// Forget the calls so far (the settings stay).
  void ClearCalls() { m_calls.clear(); }
  /// The current settings, without logging a call.
  const Settings& GetSettings() const noexcept { return m_settings; }
  /// Where the last MoveTo or LineTo went ((0, 0) at first), without logging a call.
  KC2DPoint GetCurrentPoint() const noexcept { return m_current; }

  /// From now on MeasureText answers `width` x `height` for every text. Until this is called it answers
  /// 8 pixels per byte of the text and the font size as the height.
  void SetMeasureResult(int width, int height);

  KCColor GetPenColor() const override;
  void SetPenColor(const KCColor& color) override;
  KCColor GetBrushColor() const override;
  void SetBrushColor(const KCColor& color) override;
  KCColor GetFontColor() const override;
  void SetFontColor(const KCColor& color) override;
  KCFontStyles GetFontStyles() const override;
  void SetFontStyles(const KCFontStyles& styles) override;
  KCString GetFontName() const override;
  void SetFontName(const KCString& name) override;
  KCPenStyle GetPenStyle() const override;
  void SetPenStyle(const KCPenStyle& style) override;
  KCPenMode GetPenMode() const override;
  void SetPenMode(const KCPenMode& mode) override;
  KCBrushStyle GetBrushStyle() const override;
  void SetBrushStyle(const KCBrushStyle& style) override;
  int GetFontSize() const override;
  void SetFontSize(int size) override;
  double GetTextAngle() const override;
  void SetTextAngle(double degrees) override;
  void MeasureText(const KCString& text, int& width, int& height) const override;
  int GetPenWidth() const override;
  void SetPenWidth(int width) override;

  void FillCanvas() override;
  void Rectangle(const KC2DRectangle& rectangle) override;
  void FrameRectangle(const KC2DRectangle& rectangle) override;
  void Ellipse(const KC2DRectangle& bounds) override;
  void EllipseMark(const KC2DRectangle& bounds) override;
  void TextOut(const KC2DPoint& origin, const KCString& text) override;
  void Polygon(const KC2DPointList& points) override;
  void MoveTo(const KC2DPoint& point) override;
  void LineTo(const KC2DPoint& point) override;

 private:
  void Log(std::string line) const { m_calls.push_back(std::move(line)); }

  Settings m_settings;
  KC2DPoint m_current;
  bool m_fixedMeasure = false;
  int m_measureWidth = 0;
  int m_measureHeight = 0;
  // The getters are const and log too.
  mutable std::vector<std::string> m_calls;
};
