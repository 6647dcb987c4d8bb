// SPDX-License-Identifier: MIT
#include "support/RecordingCanvas.h"

#include <charconv>

namespace {

// The shortest text that reads back as `value`, locale-free.
std::string Num(double value) {
  char buffer[64];
  const std::to_chars_result result = std::to_chars(buffer, buffer + sizeof buffer, value);
  return std::string(buffer, result.ptr);
}

std::string Color(const KCColor& c) {
  return std::to_string(c.GetRed()) + "," + std::to_string(c.GetGreen()) + "," + std::to_string(c.GetBlue()) +
         "," + std::to_string(c.GetAlpha());
}

std::string Quoted(const KCString& text) {
  return "\"" + text.str() + "\"";
}

std::string Box(const KC2DRectangle& r) {
  return Num(r.GetMinX()) + "," + Num(r.GetMinY()) + "," + Num(r.GetMaxX()) + "," + Num(r.GetMaxY());
}

std::string Point(const KC2DPoint& p) {
  return Num(p.GetX()) + "," + Num(p.GetY());
}

std::string PenModeText(const KCPenMode& mode) {
  return mode.GetKind() == KCPenMode::Kind::NotXor ? "NotXor" : "Copy";
}

}  // namespace

bool operator==(const RecordingCanvas::Settings& a, const RecordingCanvas::Settings& b) {
  return a.penColor == b.penColor && a.brushColor == b.brushColor && a.fontColor == b.fontColor &&
         a.fontStyles == b.fontStyles && a.fontName == b.fontName && a.penStyle == b.penStyle &&
         a.penMode == b.penMode && a.brushStyle == b.brushStyle && a.fontSize == b.fontSize &&
         a.textAngle == b.textAngle && a.penWidth == b.penWidth;
}

void PrintTo(const RecordingCanvas::Settings& s, std::ostream* out) {
  *out << "pen " << Color(s.penColor) << " " << KCPenStyle::ToString(s.penStyle) << " width " << s.penWidth
       << " " << PenModeText(s.penMode) << "; brush " << Color(s.brushColor) << " "
       << KCBrushStyle::ToString(s.brushStyle) << "; font " << Quoted(s.fontName) << " " << s.fontSize << " "
       << Color(s.fontColor) << " [" << KCFontStyles::ToString(s.fontStyles) << "] angle "
       << Num(s.textAngle);
}

std::vector<std::string> RecordingCanvas::CallsWithoutGetters() const {
  std::vector<std::string> calls;
  for (const std::string& call : m_calls)
    if (call.rfind("Get", 0) != 0)
      calls.push_back(call);
  return calls;
}

void RecordingCanvas::SetMeasureResult(int width, int height) {
  m_fixedMeasure = true;
  m_measureWidth = width;
  m_measureHeight = height;
}

KCColor RecordingCanvas::GetPenColor() const {
  Log("GetPenColor()");
  return m_settings.penColor;
}
void RecordingCanvas::SetPenColor(const KCColor& color) {
  Log("SetPenColor(" + Color(color) + ")");
  m_settings.penColor = color;
}
KCColor RecordingCanvas::GetBrushColor() const {
  Log("GetBrushColor()");
  return m_settings.brushColor;
}
void RecordingCanvas::SetBrushColor(const KCColor& color) {
  Log("SetBrushColor(" + Color(color) + ")");
  m_settings.brushColor = color;
}
KCColor RecordingCanvas::GetFontColor() const {
  Log("GetFontColor()");
  return m_settings.fontColor;
}
void RecordingCanvas::SetFontColor(const KCColor& color) {
  Log("SetFontColor(" + Color(color) + ")");
  m_settings.fontColor = color;
}
KCFontStyles RecordingCanvas::GetFontStyles() const {
  Log("GetFontStyles()");
  return m_settings.fontStyles;
}
void RecordingCanvas::SetFontStyles(const KCFontStyles& styles) {
  Log("SetFontStyles(" + KCFontStyles::ToString(styles).str() + ")");
  m_settings.fontStyles = styles;
}
KCString RecordingCanvas::GetFontName() const {
  Log("GetFontName()");
  return m_settings.fontName;
}
void RecordingCanvas::SetFontName(const KCString& name) {
  Log("SetFontName(" + Quoted(name) + ")");
  m_settings.fontName = name;
}
KCPenStyle RecordingCanvas::GetPenStyle() const {
  Log("GetPenStyle()");
  return m_settings.penStyle;
}
void RecordingCanvas::SetPenStyle(const KCPenStyle& style) {
  Log("SetPenStyle(" + KCPenStyle::ToString(style).str() + ")");
  m_settings.penStyle = style;
}
KCPenMode RecordingCanvas::GetPenMode() const {
  Log("GetPenMode()");
  return m_settings.penMode;
}
void RecordingCanvas::SetPenMode(const KCPenMode& mode) {
  Log("SetPenMode(" + PenModeText(mode) + ")");
  m_settings.penMode = mode;
}
KCBrushStyle RecordingCanvas::GetBrushStyle() const {
  Log("GetBrushStyle()");
  return m_settings.brushStyle;
}
void RecordingCanvas::SetBrushStyle(const KCBrushStyle& style) {
  Log("SetBrushStyle(" + KCBrushStyle::ToString(style).str() + ")");
  m_settings.brushStyle = style;
}
int RecordingCanvas::GetFontSize() const {
  Log("GetFontSize()");
  return m_settings.fontSize;
}
void RecordingCanvas::SetFontSize(int size) {
  Log("SetFontSize(" + std::to_string(size) + ")");
  m_settings.fontSize = size;
}
double RecordingCanvas::GetTextAngle() const {
  Log("GetTextAngle()");
  return m_settings.textAngle;
}
void RecordingCanvas::SetTextAngle(double degrees) {
  Log("SetTextAngle(" + Num(degrees) + ")");
  m_settings.textAngle = degrees;
}
void RecordingCanvas::MeasureText(const KCString& text, int& width, int& height) const {
  Log("MeasureText(" + Quoted(text) + ")");
  width = m_fixedMeasure ? m_measureWidth : 8 * text.GetLength();
  height = m_fixedMeasure ? m_measureHeight : m_settings.fontSize;
}
int RecordingCanvas::GetPenWidth() const {
  Log("GetPenWidth()");
  return m_settings.penWidth;
}
void RecordingCanvas::SetPenWidth(int width) {
  Log("SetPenWidth(" + std::to_string(width) + ")");
  m_settings.penWidth = width;
}

void RecordingCanvas::FillCanvas() {
  Log("FillCanvas()");
}
void RecordingCanvas::Rectangle(const KC2DRectangle& rectangle) {
  Log("Rectangle(" + Box(rectangle) + ")");
}
void RecordingCanvas::FrameRectangle(const KC2DRectangle& rectangle) {
  Log("FrameRectangle(" + Box(rectangle) + ")");
}
void RecordingCanvas::Ellipse(const KC2DRectangle& bounds) {
  Log("Ellipse(" + Box(bounds) + ")");
}
void RecordingCanvas::EllipseMark(const KC2DRectangle& bounds) {
  Log("EllipseMark(" + Box(bounds) + ")");
}
void RecordingCanvas::TextOut(const KC2DPoint& origin, const KCString& text) {
  Log("TextOut(" + Point(origin) + "," + Quoted(text) + ")");
}
void RecordingCanvas::Polygon(const KC2DPointList& points) {
  std::string list;
  for (const KC2DPoint& p : points)
    list += (list.empty() ? "" : " ") + Point(p);
  Log("Polygon(" + list + ")");
}
void RecordingCanvas::MoveTo(const KC2DPoint& point) {
  Log("MoveTo(" + Point(point) + ")");
  m_current = point;
}
void RecordingCanvas::LineTo(const KC2DPoint& point) {
  Log("LineTo(" + Point(point) + ")");
  m_current = point;
}
