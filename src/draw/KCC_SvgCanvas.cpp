// SPDX-License-Identifier: MIT
// KCC_SvgCanvas: shapes are kept as records (kind, geometry and a copy of the settings) and turned into SVG
// text only by ToSvg, so the precision set last applies to the whole image.
#include "ncappkit/draw/KCC_SvgCanvas.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "ncappkit/foundation/KCFileMan.h"

namespace {

// Decimals written for coordinates and sizes unless SetPrecision says otherwise: a hundredth of a pixel is
// finer than any screen shows.
constexpr int kDefaultPrecision = 2;
// SetPrecision clamps to 0..kMaxPrecision; more decimals than this only write the noise of the doubles.
constexpr int kMaxPrecision = 10;
// Decimals of fill-opacity and stroke-opacity (alpha / 255), independent of the coordinate precision.
constexpr int kOpacityDecimals = 3;
// The baseline of a text lies this fraction of the font size below the top of its box; typical sans-serif
// fonts have an ascent of about 0.8 of their line height.
constexpr double kBaselineFactor = 0.8;
// Bold text is estimated this many percent as wide as regular text (the average ratio of Arial Bold to
// Arial over letters and digits).
constexpr std::int64_t kBoldWidthPercent = 107;
// Advance width of every character of a monospace family, in thousandths of the font size.
constexpr std::int64_t kMonospaceWidth = 600;
// Advance width of a character outside printable ASCII (accented letters and the like), in thousandths of
// the font size: that of a digit, close to the average of lower-case letters.
constexpr std::int64_t kOtherCharWidth = 556;
// Advance widths of the printable ASCII characters ' ' .. '~' in a typical sans-serif font (Arial,
// Helvetica), in thousandths of the font size.
constexpr int kAsciiWidths[95] = {
    278,  278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333, 278, 278,  // ' ' .. '/'
    556,  556, 556, 556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556,  // '0' .. '?'
    1015, 667, 667, 722, 722, 667, 611, 778, 722, 278, 500, 667, 556, 833, 722, 778,  // '@' .. 'O'
    667,  778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 278, 278, 278, 469, 556,  // 'P' .. '_'
    333,  556, 556, 500, 556, 556, 278, 556, 556, 222, 222, 500, 222, 833, 556, 556,  // '`' .. 'o'
    556,  556, 333, 500, 278, 556, 500, 722, 500, 500, 500, 334, 260, 334, 584};      // 'p' .. '~'
// Dash patterns of the pen styles in multiples of the drawn pen width (dash, gap, ...).
constexpr double kDashPattern[] = {6, 3};
constexpr double kDotPattern[] = {2, 2};
constexpr double kDashDotPattern[] = {6, 3, 2, 3};
constexpr double kDashDotDotPattern[] = {6, 3, 2, 3, 2, 3};
// The character written for a character that XML does not allow in a document.
constexpr char32_t kReplacementChar = 0xFFFD;

// `value` with at most `decimals` decimals, locale-free, trailing zeros and a lone '.' dropped, "-0" as "0".
std::string FormatNumber(double value, int decimals) {
  char buffer[400];  // a double in fixed notation has at most 309 integer digits
  const std::to_chars_result result =
      std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
  std::string text(buffer, result.ec == std::errc() ? result.ptr : buffer);
  if (text.find('.') != std::string::npos) {
    while (!text.empty() && text.back() == '0')
      text.pop_back();
    if (!text.empty() && text.back() == '.')
      text.pop_back();
  }
  if (text == "-0")
    text = "0";
  return text;
}

bool IsFinite(const KC2DPoint& p) {
  return std::isfinite(p.GetX()) && std::isfinite(p.GetY());
}

// The next character of `text` from byte `i` on, `i` moved past it. A byte that does not start a valid UTF-8
// sequence (overlong forms, surrogates and values above U+10FFFF included) is the Latin-1 character of
// that value.
char32_t NextChar(const std::string& text, std::size_t& i) {
  const auto byte = [&text](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  const unsigned char lead = byte(i);
  std::size_t length = 0;
  char32_t cp = 0;
  char32_t minimum = 0;
  if (lead < 0x80) {
    ++i;
    return lead;
  } else if ((lead & 0xE0) == 0xC0) {
    length = 2, cp = lead & 0x1Fu, minimum = 0x80;
  } else if ((lead & 0xF0) == 0xE0) {
    length = 3, cp = lead & 0x0Fu, minimum = 0x800;
  } else if ((lead & 0xF8) == 0xF0) {
    length = 4, cp = lead & 0x07u, minimum = 0x10000;
  }
  bool valid = length > 0 && i + length <= text.size();
  for (std::size_t k = 1; valid && k < length; ++k) {
    valid = (byte(i + k) & 0xC0) == 0x80;
    cp = (cp << 6) | (byte(i + k) & 0x3Fu);
  }
  valid = valid && cp >= minimum && cp <= 0x10FFFF && !(cp >= 0xD800 && cp <= 0xDFFF);
  if (!valid) {
    ++i;
    return lead;
  }
  i += length;
  return cp;
}

void AppendUtf8(std::string& out, char32_t cp) {
  const auto put = [&out](char32_t bits) { out.push_back(static_cast<char>(bits)); };
  if (cp < 0x80) {
    put(cp);
  } else if (cp < 0x800) {
    put(0xC0 | (cp >> 6));
    put(0x80 | (cp & 0x3F));
  } else if (cp < 0x10000) {
    put(0xE0 | (cp >> 12));
    put(0x80 | ((cp >> 6) & 0x3F));
    put(0x80 | (cp & 0x3F));
  } else {
    put(0xF0 | (cp >> 18));
    put(0x80 | ((cp >> 12) & 0x3F));
    put(0x80 | ((cp >> 6) & 0x3F));
    put(0x80 | (cp & 0x3F));
  }
}

// `text` as XML character data, fit for element content and quoted attribute values alike.
std::string EscapeXml(const std::string& text) {
  std::string out;
  for (std::size_t i = 0; i < text.size();) {
    const char32_t cp = NextChar(text, i);
    switch (cp) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '"':
        out += "&quot;";
        break;
      case '\'':
        out += "&apos;";
        break;
      // As references they survive the white-space normalisation of attribute values.
      case '\t':
        out += "&#9;";
        break;
      case '\n':
        out += "&#10;";
        break;
      case '\r':
        out += "&#13;";
        break;
      default:
        AppendUtf8(out, (cp < 0x20 || cp == 0xFFFE || cp == 0xFFFF) ? kReplacementChar : cp);
    }
  }
  return out;
}

std::string HexColor(const KCColor& color) {
  static const char kDigits[] = "0123456789abcdef";
  std::string text = "#";
  for (const int channel : {color.GetRed(), color.GetGreen(), color.GetBlue()}) {
    text += kDigits[channel / 16];
    text += kDigits[channel % 16];
  }
  return text;
}

KCColor Complement(const KCColor& color) {
  return KCColor(255 - color.GetRed(), 255 - color.GetGreen(), 255 - color.GetBlue(), color.GetAlpha());
}

// ` name="#rrggbb"`, followed by ` name-opacity="..."` when the colour is not opaque.
std::string ColorAttributes(const char* name, const KCColor& color) {
  std::string text = std::string(" ") + name + "=\"" + HexColor(color) + "\"";
  if (color.GetAlpha() < 255)
    text += std::string(" ") + name + "-opacity=\"" +
            FormatNumber(color.GetAlpha() / 255.0, kOpacityDecimals) + "\"";
  return text;
}

bool IsMonospaceFamily(const KCString& name) {
  std::string lower = name.str();
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; });
  for (const char* part : {"courier", "mono", "consolas", "lucida console", "fixedsys", "terminal"})
    if (lower.find(part) != std::string::npos)
      return true;
  return false;
}

int DrawnPenWidth(int width) {
  return std::max(width, 1);
}

int DrawnFontSize(int size) {
  return std::max(size, 0);
}

}  // namespace

KCC_SvgCanvas::KCC_SvgCanvas(int width, int height)
    : m_width(std::max(width, 0)), m_height(std::max(height, 0)), m_precision(kDefaultPrecision) {}

KCC_SvgCanvas::KCC_SvgCanvas(const KCC_SvgCanvas& other) = default;
KCC_SvgCanvas& KCC_SvgCanvas::operator=(const KCC_SvgCanvas& other) = default;
KCC_SvgCanvas::~KCC_SvgCanvas() = default;

void KCC_SvgCanvas::SetPrecision(int decimals) noexcept {
  m_precision = std::clamp(decimals, 0, kMaxPrecision);
}

KCColor KCC_SvgCanvas::GetPenColor() const {
  return m_settings.penColor;
}
void KCC_SvgCanvas::SetPenColor(const KCColor& color) {
  m_settings.penColor = color;
}
KCColor KCC_SvgCanvas::GetBrushColor() const {
  return m_settings.brushColor;
}
void KCC_SvgCanvas::SetBrushColor(const KCColor& color) {
  m_settings.brushColor = color;
}
KCColor KCC_SvgCanvas::GetFontColor() const {
  return m_settings.fontColor;
}
void KCC_SvgCanvas::SetFontColor(const KCColor& color) {
  m_settings.fontColor = color;
}
KCFontStyles KCC_SvgCanvas::GetFontStyles() const {
  return m_settings.fontStyles;
}
void KCC_SvgCanvas::SetFontStyles(const KCFontStyles& styles) {
  m_settings.fontStyles = styles;
}
KCString KCC_SvgCanvas::GetFontName() const {
  return m_settings.fontName;
}
void KCC_SvgCanvas::SetFontName(const KCString& name) {
  m_settings.fontName = name;
}
KCPenStyle KCC_SvgCanvas::GetPenStyle() const {
  return m_settings.penStyle;
}
void KCC_SvgCanvas::SetPenStyle(const KCPenStyle& style) {
  m_settings.penStyle = style;
}
KCPenMode KCC_SvgCanvas::GetPenMode() const {
  return m_settings.penMode;
}
void KCC_SvgCanvas::SetPenMode(const KCPenMode& mode) {
  m_settings.penMode = mode;
}
KCBrushStyle KCC_SvgCanvas::GetBrushStyle() const {
  return m_settings.brushStyle;
}
void KCC_SvgCanvas::SetBrushStyle(const KCBrushStyle& style) {
  m_settings.brushStyle = style;
}
int KCC_SvgCanvas::GetFontSize() const {
  return m_settings.fontSize;
}
void KCC_SvgCanvas::SetFontSize(int size) {
  m_settings.fontSize = size;
}
double KCC_SvgCanvas::GetTextAngle() const {
  return m_settings.textAngle;
}
void KCC_SvgCanvas::SetTextAngle(double degrees) {
  m_settings.textAngle = degrees;
}
int KCC_SvgCanvas::GetPenWidth() const {
  return m_settings.penWidth;
}
void KCC_SvgCanvas::SetPenWidth(int width) {
  m_settings.penWidth = width;
}

void KCC_SvgCanvas::MeasureText(const KCString& text, int& width, int& height) const {
  const std::int64_t size = DrawnFontSize(m_settings.fontSize);
  const bool monospace = IsMonospaceFamily(m_settings.fontName);
  std::int64_t thousandths = 0;  // sum of advance widths in thousandths of the font size
  const std::string& bytes = text.str();
  for (std::size_t i = 0; i < bytes.size();) {
    const char32_t cp = NextChar(bytes, i);
    if (cp < 0x20)
      continue;  // control characters take no room
    if (monospace)
      thousandths += kMonospaceWidth;
    else if (cp <= 0x7E)
      thousandths += kAsciiWidths[cp - 0x20];
    else
      thousandths += kOtherCharWidth;
  }
  std::int64_t numerator = thousandths * size;
  std::int64_t denominator = 1000;
  if (!monospace && m_settings.fontStyles.Has(KCFontStyleBold())) {
    numerator *= kBoldWidthPercent;
    denominator *= 100;
  }
  width = static_cast<int>((numerator + denominator - 1) / denominator);  // rounded up
  height = static_cast<int>(size);
}

void KCC_SvgCanvas::FillCanvas() {
  m_pathOpen = false;
  if (m_settings.brushStyle.GetKind() == KCBrushStyle::Kind::Clear)
    return;
  AddBox(ShapeKind::Fill, KC2DRectangle(0, 0, m_width, m_height));
}

void KCC_SvgCanvas::Rectangle(const KC2DRectangle& rectangle) {
  AddBox(ShapeKind::Rectangle, rectangle);
}

void KCC_SvgCanvas::FrameRectangle(const KC2DRectangle& rectangle) {
  AddBox(ShapeKind::Frame, rectangle);
}

void KCC_SvgCanvas::Ellipse(const KC2DRectangle& bounds) {
  AddBox(ShapeKind::Ellipse, bounds);
}

void KCC_SvgCanvas::EllipseMark(const KC2DRectangle& bounds) {
  AddBox(ShapeKind::EllipseMark, bounds);
}

void KCC_SvgCanvas::AddBox(ShapeKind kind, const KC2DRectangle& box) {
  m_pathOpen = false;
  if (!IsFinite(KC2DPoint(box.GetMinX(), box.GetMinY())) ||
      !IsFinite(KC2DPoint(box.GetMaxX(), box.GetMaxY())))
    return;
  Shape shape;
  shape.kind = kind;
  shape.settings = m_settings;
  shape.x1 = box.GetMinX();
  shape.y1 = box.GetMinY();
  shape.x2 = box.GetMaxX();
  shape.y2 = box.GetMaxY();
  m_shapes.push_back(std::move(shape));
}

void KCC_SvgCanvas::TextOut(const KC2DPoint& origin, const KCString& text) {
  m_pathOpen = false;
  if (text.str().empty() || !IsFinite(origin))
    return;
  Shape shape;
  shape.kind = ShapeKind::Text;
  shape.settings = m_settings;
  shape.x1 = origin.GetX();
  shape.y1 = origin.GetY();
  shape.text = text;
  MeasureText(text, shape.textWidth, shape.textHeight);
  m_shapes.push_back(std::move(shape));
}

void KCC_SvgCanvas::Polygon(const KC2DPointList& points) {
  m_pathOpen = false;
  if (points.size() < 2 || !std::all_of(points.begin(), points.end(), IsFinite))
    return;
  Shape shape;
  shape.kind = ShapeKind::Polygon;
  shape.settings = m_settings;
  for (const KC2DPoint& p : points)
    shape.steps.push_back({false, p});
  m_shapes.push_back(std::move(shape));
}

void KCC_SvgCanvas::MoveTo(const KC2DPoint& point) {
  m_current = point;
}

void KCC_SvgCanvas::LineTo(const KC2DPoint& point) {
  const KC2DPoint from = m_current;
  m_current = point;
  if (!IsFinite(from) || !IsFinite(point))
    return;
  if (m_pathOpen) {
    const Settings& pen = m_shapes.back().settings;
    const bool samePen = pen.penColor == m_settings.penColor && pen.penStyle == m_settings.penStyle &&
                         pen.penMode == m_settings.penMode &&
                         DrawnPenWidth(pen.penWidth) == DrawnPenWidth(m_settings.penWidth);
    if (samePen) {
      std::vector<PathStep>& steps = m_shapes.back().steps;
      if (steps.back().point != from)
        steps.push_back({true, from});
      steps.push_back({false, point});
      return;
    }
  }
  Shape shape;
  shape.kind = ShapeKind::Path;
  shape.settings = m_settings;
  shape.steps.push_back({true, from});
  shape.steps.push_back({false, point});
  m_shapes.push_back(std::move(shape));
  m_pathOpen = true;
}

std::string KCC_SvgCanvas::Number(double value) const {
  return FormatNumber(value, m_precision);
}

void KCC_SvgCanvas::WriteShape(std::string& out, const Shape& shape) const {
  const Settings& s = shape.settings;
  const bool notXor = s.penMode.GetKind() == KCPenMode::Kind::NotXor;
  const auto attribute = [this](const char* name, double value) {
    return std::string(" ") + name + "=\"" + Number(value) + "\"";
  };
  // Pen and brush attributes of the shapes that have an outline.
  const auto stroke = [&]() {
    const int width = DrawnPenWidth(s.penWidth);
    std::string text = ColorAttributes("stroke", notXor ? Complement(s.penColor) : s.penColor);
    text += attribute("stroke-width", width);
    const double* pattern = nullptr;
    std::size_t count = 0;
    switch (s.penStyle.GetKind()) {
      case KCPenStyle::Kind::Solid:
        break;
      case KCPenStyle::Kind::Dash:
        pattern = kDashPattern, count = std::size(kDashPattern);
        break;
      case KCPenStyle::Kind::Dot:
        pattern = kDotPattern, count = std::size(kDotPattern);
        break;
      case KCPenStyle::Kind::DashDot:
        pattern = kDashDotPattern, count = std::size(kDashDotPattern);
        break;
      case KCPenStyle::Kind::DashDotDot:
        pattern = kDashDotDotPattern, count = std::size(kDashDotDotPattern);
        break;
    }
    if (pattern) {
      text += " stroke-dasharray=\"";
      for (std::size_t k = 0; k < count; ++k)
        text += (k ? "," : "") + Number(pattern[k] * width);
      text += "\"";
    }
    if (notXor)
      text += " style=\"mix-blend-mode:difference\"";
    return text;
  };
  const auto fill = [&]() {
    if (s.brushStyle.GetKind() == KCBrushStyle::Kind::Clear)
      return std::string(" fill=\"none\"");
    return ColorAttributes("fill", notXor ? Complement(s.brushColor) : s.brushColor);
  };
  const auto box = [&]() {
    return attribute("x", shape.x1) + attribute("y", shape.y1) + attribute("width", shape.x2 - shape.x1) +
           attribute("height", shape.y2 - shape.y1);
  };
  const auto ellipse = [&]() {
    return attribute("cx", (shape.x1 + shape.x2) / 2) + attribute("cy", (shape.y1 + shape.y2) / 2) +
           attribute("rx", (shape.x2 - shape.x1) / 2) + attribute("ry", (shape.y2 - shape.y1) / 2);
  };

  switch (shape.kind) {
    case ShapeKind::Fill:
      out += "  <rect" + box() + ColorAttributes("fill", s.brushColor) + "/>\n";
      break;
    case ShapeKind::Rectangle:
      out += "  <rect" + box() + fill() + stroke() + "/>\n";
      break;
    case ShapeKind::Frame:
      out += "  <rect" + box() + " fill=\"none\"" + stroke() + "/>\n";
      break;
    case ShapeKind::Ellipse:
      out += "  <ellipse" + ellipse() + fill() + stroke() + "/>\n";
      break;
    case ShapeKind::EllipseMark:
      out += "  <ellipse" + ellipse() + " fill=\"none\"" + stroke() + "/>\n";
      break;
    case ShapeKind::Polygon: {
      std::string points;
      for (const PathStep& step : shape.steps)
        points += (points.empty() ? "" : " ") + Number(step.point.GetX()) + "," + Number(step.point.GetY());
      out += "  <polygon points=\"" + points + "\"" + fill() + stroke() + "/>\n";
      break;
    }
    case ShapeKind::Path: {
      std::string data;
      for (const PathStep& step : shape.steps)
        data += std::string(data.empty() ? "" : " ") + (step.move ? "M" : "L") + Number(step.point.GetX()) +
                " " + Number(step.point.GetY());
      out += "  <path d=\"" + data + "\" fill=\"none\"" + stroke() + "/>\n";
      break;
    }
    case ShapeKind::Text: {
      const int size = DrawnFontSize(s.fontSize);
      std::string turn;
      if (std::isfinite(s.textAngle) && s.textAngle != 0.0) {
        // SVG turns clockwise for positive angles, since y grows downwards.
        turn = " transform=\"rotate(" + Number(-s.textAngle) + " " + Number(shape.x1) + " " +
               Number(shape.y1) + ")\"";
      }
      if (s.brushStyle.GetKind() != KCBrushStyle::Kind::Clear) {
        out += "  <rect" + attribute("x", shape.x1) + attribute("y", shape.y1) +
               attribute("width", shape.textWidth) + attribute("height", shape.textHeight) +
               ColorAttributes("fill", s.brushColor) + turn + "/>\n";
      }
      out += "  <text" + attribute("x", shape.x1) + attribute("y", shape.y1 + kBaselineFactor * size);
      if (!s.fontName.str().empty())
        out += " font-family=\"" + EscapeXml(s.fontName.str()) + "\"";
      out += attribute("font-size", size);
      if (s.fontStyles.Has(KCFontStyleBold()))
        out += " font-weight=\"bold\"";
      if (s.fontStyles.Has(KCFontStyleItalic()))
        out += " font-style=\"italic\"";
      const bool underline = s.fontStyles.Has(KCFontStyleUnderline());
      const bool strike = s.fontStyles.Has(KCFontStyleStrikeOut());
      if (underline || strike) {
        out += std::string(" text-decoration=\"") + (underline ? "underline" : "") +
               (underline && strike ? " " : "") + (strike ? "line-through" : "") + "\"";
      }
      out += ColorAttributes("fill", s.fontColor) + turn + " xml:space=\"preserve\">";
      // The characters stand in an attribute-free <tspan>, so that a reader mapping every element with
      // attributes to a record of attributes (KCDocument does) finds no loose text beside them.
      out += "<tspan>" + EscapeXml(shape.text.str()) + "</tspan></text>\n";
      break;
    }
  }
}

std::string KCC_SvgCanvas::ToSvg() const {
  const std::string width = std::to_string(m_width);
  const std::string height = std::to_string(m_height);
  std::string out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  out += "<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" width=\"" + width + "\" height=\"" +
         height + "\" viewBox=\"0 0 " + width + " " + height + "\">\n";
  for (const Shape& shape : m_shapes)
    WriteShape(out, shape);
  out += "</svg>\n";
  return out;
}

bool KCC_SvgCanvas::SaveToFile(const KCString& path) const {
  return KCFileMan::ReplaceFileContents(path, ToSvg());
}
