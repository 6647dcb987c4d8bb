// SPDX-License-Identifier: MIT
// KCC_SvgCanvas: shapes are kept as small records (kind, geometry, the index of a settings snapshot, a range
// of one shared point array) and turned into SVG text only by ToSvg, so the precision set last applies to
// the whole image. ToSvg appends straight into the one output string; numbers take an integer path that
// gives the same text as std::to_chars (see AppendNumber).
#include "ncappkit/draw/KCC_SvgCanvas.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <exception>
#include <limits>
#include <system_error>
#include <thread>

#include "foundation/KCPlatformDetail.h"
#include "foundation/KCXmlChars.h"
#include "ncappkit/foundation/KCFileMan.h"

namespace {

// Decimals written for coordinates and sizes unless SetPrecision says otherwise: a hundredth of a pixel is
// finer than any screen shows.
constexpr int kDefaultPrecision = 2;
// SetPrecision clamps to 0..kMaxPrecision; more decimals than this only write the noise of the doubles.
constexpr int kMaxPrecision = 10;
// Powers of ten up to kMaxPrecision, each exact in a double.
constexpr double kPow10[kMaxPrecision + 1] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10};
// AppendNumber: a value whose scaled form (value * 10^decimals) is below this in magnitude takes the integer
// path; the scaling's rounding error is then below 1.2e-7 of a unit of the last decimal.
constexpr double kFastNumberLimit = 1e9;
// AppendNumber: the integer path is taken only when the scaled value's fraction lies further than this from
// one half, far beyond the scaling error, so its rounding always agrees with the exact rounding of to_chars.
constexpr double kTieGuard = 1e-6;
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

// FormatNumber(value, decimals) written at `p`, with the common case done on integers: the value scaled by
// 10^decimals is rounded to the nearest integer unless it lies near a tie, and its digits are written with
// the decimal point put in. Returns the end of the text, or nullptr (nothing written) for a tie, a large or
// a non-finite value, which FormatNumber must write. `p` needs room for kFastNumberRoom characters.
constexpr std::size_t kFastNumberRoom = 24;
// Room reserved per path point when writing: about 16 bytes ("L123.45 678.9 "), with some to spare.
constexpr std::size_t kBytesPerPoint = 18;
// "00" .. "99": the integer part of a number is written two digits at a time.
struct DigitPairs {
  char text[200];
  constexpr DigitPairs() : text() {
    for (int i = 0; i < 100; ++i) {
      text[2 * i] = static_cast<char>('0' + i / 10);
      text[2 * i + 1] = static_cast<char>('0' + i % 10);
    }
  }
};
constexpr DigitPairs kDigitPairs;
char* WriteFastNumber(char* p, double value, int decimals) {
  const double scaled = value * kPow10[decimals];
  if (!(std::fabs(scaled) < kFastNumberLimit))
    return nullptr;
  const double whole = std::trunc(scaled);
  const double fraction = std::fabs(scaled - whole);
  if (!(std::fabs(fraction - 0.5) > kTieGuard))
    return nullptr;
  std::int64_t units = static_cast<std::int64_t>(whole);
  if (fraction > 0.5)
    units += scaled < 0.0 ? -1 : 1;
  // Below kFastNumberLimit * 10^0 < 2^32 the digits fit 32 bits, whose division is the cheaper one.
  auto digits = static_cast<std::uint32_t>(units < 0 ? -units : units);
  int d = decimals;
  while (d > 0 && digits % 10 == 0) {  // trailing zeros of the decimals are dropped
    digits /= 10;
    --d;
  }
  // The digits are put together backwards in the first half of `buffer` and then copied as one block of
  // kFastNumberRoom characters, a fixed-size copy without a call; what follows the number in the block is
  // overwritten by whatever the caller writes next.
  char buffer[2 * kFastNumberRoom];
  char* const end = buffer + kFastNumberRoom;
  char* q = end;
  for (; d > 0; --d) {
    *--q = static_cast<char>('0' + digits % 10);
    digits /= 10;
  }
  if (q != end)
    *--q = '.';
  while (digits >= 100) {  // the integer digits two at a time
    q -= 2;
    std::memcpy(q, kDigitPairs.text + 2 * (digits % 100), 2);
    digits /= 100;
  }
  if (digits >= 10) {
    q -= 2;
    std::memcpy(q, kDigitPairs.text + 2 * digits, 2);
  } else {
    *--q = static_cast<char>('0' + digits);
  }
  if (units < 0)
    *--q = '-';
  std::memcpy(p, q, kFastNumberRoom);
  return p + (end - q);
}

// FormatNumber(value, decimals) appended to `out`.
void AppendNumber(std::string& out, double value, int decimals) {
  char buffer[kFastNumberRoom];
  const char* end = WriteFastNumber(buffer, value, decimals);
  if (end != nullptr)
    out.append(buffer, static_cast<std::size_t>(end - buffer));
  else
    out += FormatNumber(value, decimals);
}

// Path steps are put together in a small buffer and appended at once: one append per step instead of one
// per character.
class StepWriter {
 public:
  StepWriter(std::string& out, int precision) : m_out(out), m_precision(precision) {}
  void Char(char c) {
    Room(1);
    *m_p++ = c;
  }
  void Text(const char* text, std::size_t length) {
    Room(length);
    std::memcpy(m_p, text, length);
    m_p += length;
  }
  void Number(double value) {
    Room(kFastNumberRoom);
    char* end = WriteFastNumber(m_p, value, m_precision);
    if (end != nullptr) {
      m_p = end;
      return;
    }
    Flush();
    m_out += FormatNumber(value, m_precision);
  }
  void Flush() {
    m_out.append(m_buffer, static_cast<std::size_t>(m_p - m_buffer));
    m_p = m_buffer;
  }

 private:
  void Room(std::size_t length) {
    if (static_cast<std::size_t>(m_buffer + sizeof m_buffer - m_p) < length)
      Flush();
  }
  std::string& m_out;
  int m_precision;
  char m_buffer[256];
  char* m_p = m_buffer;
};

bool IsFinite(const KC2DPoint& p) {
  return std::isfinite(p.GetX()) && std::isfinite(p.GetY());
}

// The next character of `text` from byte `i` on, `i` moved past it. A byte that does not start a valid UTF-8
// sequence (overlong forms, surrogates and values above U+10FFFF included) is the Latin-1 character of
// that value.
char32_t NextChar(const std::string& text, std::size_t& i) {
  std::uint32_t cp = 0;
  if (ncappkit_detail::DecodeUtf8(text, i, cp))
    return cp;
  return static_cast<unsigned char>(text[i++]);
}

// `text` appended as XML character data, fit for element content and quoted attribute values alike. In
// `content` mode line breaks and tabs stay as they are (element content keeps them); otherwise they are
// written as references, which survive the white-space normalisation of attribute values. A carriage
// return is always a reference, since a reader would turn it into a line feed.
void AppendEscaped(std::string& out, const std::string& text, bool content = false) {
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
      case '\t':
        out += content ? "\t" : "&#9;";
        break;
      case '\n':
        out += content ? "\n" : "&#10;";
        break;
      case '\r':
        out += "&#13;";
        break;
      default:
        ncappkit_detail::AppendUtf8(out, ncappkit_detail::IsXmlChar(cp) ? cp : kReplacementChar);
    }
  }
}

void AppendHexColor(std::string& out, const KCColor& color) {
  static const char kDigits[] = "0123456789abcdef";
  out += '#';
  for (const int channel : {color.GetRed(), color.GetGreen(), color.GetBlue()}) {
    out += kDigits[channel / 16];
    out += kDigits[channel % 16];
  }
}

KCColor Complement(const KCColor& color) {
  return KCColor(255 - color.GetRed(), 255 - color.GetGreen(), 255 - color.GetBlue(), color.GetAlpha());
}

// ` name="#rrggbb"`, followed by ` name-opacity="..."` when the colour is not opaque.
void AppendColorAttributes(std::string& out, const char* name, const KCColor& color) {
  out += ' ';
  out += name;
  out += "=\"";
  AppendHexColor(out, color);
  out += '"';
  if (color.GetAlpha() < 255) {
    out += ' ';
    out += name;
    out += "-opacity=\"";
    AppendNumber(out, color.GetAlpha() / 255.0, kOpacityDecimals);
    out += '"';
  }
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

constexpr int KCC_SvgCanvas::kMaxWriteThreads;
constexpr std::size_t KCC_SvgCanvas::kPointsPerWriteThread;

void KCC_SvgCanvas::SetWriteThreads(int threads) noexcept {
  m_writeThreads = std::clamp(threads, 1, kMaxWriteThreads);
}

void KCC_SvgCanvas::SetPrecision(int decimals) noexcept {
  m_precision = std::clamp(decimals, 0, kMaxPrecision);
}

KCColor KCC_SvgCanvas::GetPenColor() const {
  return m_settings.penColor;
}
void KCC_SvgCanvas::SetPenColor(const KCColor& color) {
  m_settings.penColor = color;
  m_settingsChanged = true;
}
KCColor KCC_SvgCanvas::GetBrushColor() const {
  return m_settings.brushColor;
}
void KCC_SvgCanvas::SetBrushColor(const KCColor& color) {
  m_settings.brushColor = color;
  m_settingsChanged = true;
}
KCColor KCC_SvgCanvas::GetFontColor() const {
  return m_settings.fontColor;
}
void KCC_SvgCanvas::SetFontColor(const KCColor& color) {
  m_settings.fontColor = color;
  m_settingsChanged = true;
}
KCFontStyles KCC_SvgCanvas::GetFontStyles() const {
  return m_settings.fontStyles;
}
void KCC_SvgCanvas::SetFontStyles(const KCFontStyles& styles) {
  m_settings.fontStyles = styles;
  m_settingsChanged = true;
}
KCString KCC_SvgCanvas::GetFontName() const {
  return m_settings.fontName;
}
void KCC_SvgCanvas::SetFontName(const KCString& name) {
  m_settings.fontName = name;
  m_settingsChanged = true;
}
KCPenStyle KCC_SvgCanvas::GetPenStyle() const {
  return m_settings.penStyle;
}
void KCC_SvgCanvas::SetPenStyle(const KCPenStyle& style) {
  m_settings.penStyle = style;
  m_settingsChanged = true;
}
KCPenMode KCC_SvgCanvas::GetPenMode() const {
  return m_settings.penMode;
}
void KCC_SvgCanvas::SetPenMode(const KCPenMode& mode) {
  m_settings.penMode = mode;
  m_settingsChanged = true;
}
KCBrushStyle KCC_SvgCanvas::GetBrushStyle() const {
  return m_settings.brushStyle;
}
void KCC_SvgCanvas::SetBrushStyle(const KCBrushStyle& style) {
  m_settings.brushStyle = style;
  m_settingsChanged = true;
}
int KCC_SvgCanvas::GetFontSize() const {
  return m_settings.fontSize;
}
void KCC_SvgCanvas::SetFontSize(int size) {
  m_settings.fontSize = size;
  m_settingsChanged = true;
}
double KCC_SvgCanvas::GetTextAngle() const {
  return m_settings.textAngle;
}
void KCC_SvgCanvas::SetTextAngle(double degrees) {
  m_settings.textAngle = degrees;
  m_settingsChanged = true;
}
int KCC_SvgCanvas::GetPenWidth() const {
  return m_settings.penWidth;
}
void KCC_SvgCanvas::SetPenWidth(int width) {
  m_settings.penWidth = width;
  m_settingsChanged = true;
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

std::uint32_t KCC_SvgCanvas::CurrentStyle() {
  if (m_settingsChanged) {
    m_styles.push_back(m_settings);
    m_settingsChanged = false;
  }
  return static_cast<std::uint32_t>(m_styles.size() - 1);
}

void KCC_SvgCanvas::AddShape(Shape shape) {
  shape.style = CurrentStyle();
  m_shapes.push_back(shape);
}

void KCC_SvgCanvas::AddBox(ShapeKind kind, const KC2DRectangle& box) {
  m_pathOpen = false;
  if (!IsFinite(KC2DPoint(box.GetMinX(), box.GetMinY())) ||
      !IsFinite(KC2DPoint(box.GetMaxX(), box.GetMaxY())))
    return;
  Shape shape;
  shape.kind = kind;
  shape.x1 = box.GetMinX();
  shape.y1 = box.GetMinY();
  shape.x2 = box.GetMaxX();
  shape.y2 = box.GetMaxY();
  AddShape(shape);
}

void KCC_SvgCanvas::TextOut(const KC2DPoint& origin, const KCString& text) {
  m_pathOpen = false;
  if (text.str().empty() || !IsFinite(origin))
    return;
  Shape shape;
  shape.kind = ShapeKind::Text;
  shape.x1 = origin.GetX();
  shape.y1 = origin.GetY();
  shape.first = m_texts.size();
  m_texts.push_back(text.str());
  MeasureText(text, shape.textWidth, shape.textHeight);
  AddShape(shape);
}

void KCC_SvgCanvas::Polygon(const KC2DPointList& points) {
  m_pathOpen = false;
  if (points.size() < 2 || !std::all_of(points.begin(), points.end(), IsFinite))
    return;
  Shape shape;
  shape.kind = ShapeKind::Polygon;
  shape.first = m_points.size();
  shape.count = points.size();
  for (const KC2DPoint& p : points)
    m_points.push_back({p.GetX(), p.GetY()});
  AddShape(shape);
}

void KCC_SvgCanvas::MoveTo(const KC2DPoint& point) {
  m_current = point;
}

bool KCC_SvgCanvas::SamePenAsOpenPath() const {
  const std::uint32_t style = m_shapes.back().style;
  if (!m_settingsChanged && style + 1 == m_styles.size())
    return true;  // no setter was called since the path's settings were taken
  const Settings& pen = m_styles[style];
  return pen.penColor == m_settings.penColor && pen.penStyle == m_settings.penStyle &&
         pen.penMode == m_settings.penMode &&
         DrawnPenWidth(pen.penWidth) == DrawnPenWidth(m_settings.penWidth);
}

KCC_SvgCanvas::Shape* KCC_SvgCanvas::JoinOpenPath(double x, double y) {
  if (!m_pathOpen || !SamePenAsOpenPath())
    return nullptr;
  Shape& path = m_shapes.back();
  const Point& last = m_points.back();
  if (last.x != x || last.y != y) {
    m_points.push_back({std::numeric_limits<double>::quiet_NaN(), 0.0});
    m_points.push_back({x, y});
    path.count += 2;
  }
  return &path;
}

KCC_SvgCanvas::Shape& KCC_SvgCanvas::StartPath(double x, double y) {
  Shape shape;
  shape.kind = ShapeKind::Path;
  shape.first = m_points.size();
  shape.count = 1;
  m_points.push_back({x, y});
  AddShape(shape);
  m_pathOpen = true;
  return m_shapes.back();
}

KCC_SvgCanvas::Shape* KCC_SvgCanvas::BeginStep(const KC2DPoint& to, bool drawable) {
  const KC2DPoint from = m_current;
  m_current = to;
  if (!drawable || !IsFinite(from) || !IsFinite(to))
    return nullptr;
  Shape* path = JoinOpenPath(from.GetX(), from.GetY());
  return path != nullptr ? path : &StartPath(from.GetX(), from.GetY());
}

void KCC_SvgCanvas::LineTo(const KC2DPoint& point) {
  if (Shape* path = BeginStep(point, true)) {
    m_points.push_back({point.GetX(), point.GetY()});
    path->count += 1;
  }
}

void KCC_SvgCanvas::ArcTo(const KC2DPoint& end, double radius, bool largeArc, bool clockwise) {
  if (Shape* path = BeginStep(end, std::isfinite(radius) && end != m_current)) {
    const double mark = 1.0 + (largeArc ? 1.0 : 0.0) + (clockwise ? 2.0 : 0.0);
    const double r = std::fabs(radius);
    m_points.push_back({std::numeric_limits<double>::quiet_NaN(), mark});
    m_points.push_back({r, r});
    m_points.push_back({end.GetX(), end.GetY()});
    path->count += 3;
  }
}

void KCC_SvgCanvas::ReservePoints(std::size_t count) {
  if (count <= std::numeric_limits<std::size_t>::max() / sizeof(Point) - m_points.size()) {
    m_points.reserve(m_points.size() + count);
    ncappkit_detail::AdviseLargePages(m_points.data(), m_points.capacity() * sizeof(Point));
  }
}

void KCC_SvgCanvas::BeginGroup(const KCString& id, const KCString& label) {
  m_pathOpen = false;
  Shape shape;
  shape.kind = ShapeKind::GroupBegin;
  shape.first = m_texts.size();
  m_texts.push_back(id.str());
  m_texts.push_back(label.str());
  ++m_openGroups;
  AddShape(shape);
}

void KCC_SvgCanvas::EndGroup() {
  if (m_openGroups == 0)
    return;
  m_pathOpen = false;
  Shape shape;
  shape.kind = ShapeKind::GroupEnd;
  --m_openGroups;
  AddShape(shape);
}

void KCC_SvgCanvas::SetTitle(const KCString& title) {
  m_title = title;
}
KCString KCC_SvgCanvas::GetTitle() const {
  return m_title;
}
void KCC_SvgCanvas::SetDescription(const KCString& description) {
  m_description = description;
}
KCString KCC_SvgCanvas::GetDescription() const {
  return m_description;
}

namespace {

// The shape writers' helpers: ` name="number"` and the pen and brush attributes of one settings snapshot.
struct AttributeWriter {
  std::string& out;
  int precision;

  void Number(double value) const { AppendNumber(out, value, precision); }
  void Attribute(const char* name, double value) const {
    out += ' ';
    out += name;
    out += "=\"";
    AppendNumber(out, value, precision);
    out += '"';
  }
  void Box(double x1, double y1, double x2, double y2) const {
    Attribute("x", x1);
    Attribute("y", y1);
    Attribute("width", x2 - x1);
    Attribute("height", y2 - y1);
  }
  void Ellipse(double x1, double y1, double x2, double y2) const {
    Attribute("cx", (x1 + x2) / 2);
    Attribute("cy", (y1 + y2) / 2);
    Attribute("rx", (x2 - x1) / 2);
    Attribute("ry", (y2 - y1) / 2);
  }
};

}  // namespace

void KCC_SvgCanvas::WriteShape(std::string& out, const Shape& shape, std::size_t indent) const {
  out.append(indent, ' ');
  const Settings& s = m_styles[shape.style];
  const bool notXor = s.penMode.GetKind() == KCPenMode::Kind::NotXor;
  const AttributeWriter w{out, m_precision};
  // Pen and brush attributes of the shapes that have an outline.
  const auto stroke = [&]() {
    const int width = DrawnPenWidth(s.penWidth);
    AppendColorAttributes(out, "stroke", notXor ? Complement(s.penColor) : s.penColor);
    w.Attribute("stroke-width", width);
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
      out += " stroke-dasharray=\"";
      for (std::size_t k = 0; k < count; ++k) {
        if (k)
          out += ',';
        w.Number(pattern[k] * width);
      }
      out += '"';
    }
    if (notXor)
      out += " style=\"mix-blend-mode:difference\"";
  };
  const auto fill = [&]() {
    if (s.brushStyle.GetKind() == KCBrushStyle::Kind::Clear)
      out += " fill=\"none\"";
    else
      AppendColorAttributes(out, "fill", notXor ? Complement(s.brushColor) : s.brushColor);
  };

  switch (shape.kind) {
    case ShapeKind::Fill:
      out += "<rect";
      w.Box(shape.x1, shape.y1, shape.x2, shape.y2);
      AppendColorAttributes(out, "fill", s.brushColor);
      out += "/>\n";
      break;
    case ShapeKind::Rectangle:
      out += "<rect";
      w.Box(shape.x1, shape.y1, shape.x2, shape.y2);
      fill();
      stroke();
      out += "/>\n";
      break;
    case ShapeKind::Frame:
      out += "<rect";
      w.Box(shape.x1, shape.y1, shape.x2, shape.y2);
      out += " fill=\"none\"";
      stroke();
      out += "/>\n";
      break;
    case ShapeKind::Ellipse:
      out += "<ellipse";
      w.Ellipse(shape.x1, shape.y1, shape.x2, shape.y2);
      fill();
      stroke();
      out += "/>\n";
      break;
    case ShapeKind::EllipseMark:
      out += "<ellipse";
      w.Ellipse(shape.x1, shape.y1, shape.x2, shape.y2);
      out += " fill=\"none\"";
      stroke();
      out += "/>\n";
      break;
    case ShapeKind::Polygon: {
      out += "<polygon points=\"";
      for (std::size_t k = 0; k < shape.count; ++k) {
        const Point& p = m_points[shape.first + k];
        if (k)
          out += ' ';
        w.Number(p.x);
        out += ',';
        w.Number(p.y);
      }
      out += '"';
      fill();
      stroke();
      out += "/>\n";
      break;
    }
    case ShapeKind::Path: {
      out += "<path d=\"";
      WritePathData(out, shape);
      out += "\" fill=\"none\"";
      stroke();
      out += "/>\n";
      break;
    }
    case ShapeKind::Text: {
      const int size = DrawnFontSize(s.fontSize);
      const bool turned = std::isfinite(s.textAngle) && s.textAngle != 0.0;
      // SVG turns clockwise for positive angles, since y grows downwards.
      const auto turn = [&]() {
        if (!turned)
          return;
        out += " transform=\"rotate(";
        w.Number(-s.textAngle);
        out += ' ';
        w.Number(shape.x1);
        out += ' ';
        w.Number(shape.y1);
        out += ")\"";
      };
      if (s.brushStyle.GetKind() != KCBrushStyle::Kind::Clear) {
        out += "<rect";
        w.Attribute("x", shape.x1);
        w.Attribute("y", shape.y1);
        w.Attribute("width", shape.textWidth);
        w.Attribute("height", shape.textHeight);
        AppendColorAttributes(out, "fill", s.brushColor);
        turn();
        out += "/>\n";
        out.append(indent, ' ');
      }
      out += "<text";
      w.Attribute("x", shape.x1);
      w.Attribute("y", shape.y1 + kBaselineFactor * size);
      if (!s.fontName.str().empty()) {
        out += " font-family=\"";
        AppendEscaped(out, s.fontName.str());
        out += '"';
      }
      w.Attribute("font-size", size);
      if (s.fontStyles.Has(KCFontStyleBold()))
        out += " font-weight=\"bold\"";
      if (s.fontStyles.Has(KCFontStyleItalic()))
        out += " font-style=\"italic\"";
      const bool underline = s.fontStyles.Has(KCFontStyleUnderline());
      const bool strike = s.fontStyles.Has(KCFontStyleStrikeOut());
      if (underline || strike) {
        out += " text-decoration=\"";
        out += underline ? "underline" : "";
        out += underline && strike ? " " : "";
        out += strike ? "line-through" : "";
        out += '"';
      }
      AppendColorAttributes(out, "fill", s.fontColor);
      turn();
      out += " xml:space=\"preserve\">";
      // The characters stand in an attribute-free <tspan>, so that a reader mapping every element with
      // attributes to a record of attributes (KCDocument does) finds no loose text beside them.
      out += "<tspan>";
      AppendEscaped(out, m_texts[shape.first]);
      out += "</tspan></text>\n";
      break;
    }
    case ShapeKind::GroupBegin: {
      out += "<g";
      const std::string& id = m_texts[shape.first];
      const std::string& label = m_texts[shape.first + 1];
      if (!id.empty()) {
        out += " id=\"";
        AppendEscaped(out, id);
        out += '"';
      }
      if (!label.empty()) {
        out += " inkscape:groupmode=\"layer\" inkscape:label=\"";
        AppendEscaped(out, label);
        out += '"';
      }
      out += ">\n";
      break;
    }
    case ShapeKind::GroupEnd:
      out += "</g>\n";
      break;
  }
}

void KCC_SvgCanvas::WritePathSteps(std::string& out, const Shape& shape, std::size_t from,
                                   std::size_t to) const {
  StepWriter steps(out, m_precision);
  // The first point of a part is a move when it starts the path or follows a move mark.
  char step = 'M';
  if (from > 0) {
    const Point& before = m_points[shape.first + from - 1];
    step = std::isnan(before.x) && before.y == 0.0 ? 'M' : 'L';
  }
  for (std::size_t k = from; k < to; ++k) {
    const Point& p = m_points[shape.first + k];
    if (std::isnan(p.x)) {
      if (p.y == 0.0) {
        step = 'M';
        continue;
      }
      // An arc: "A rx ry rotation large-arc sweep x y"; SVG's sweep 1 turns clockwise on a y-down canvas.
      const int flags = static_cast<int>(p.y) - 1;
      const Point& radius = m_points[shape.first + k + 1];
      const Point& end = m_points[shape.first + k + 2];
      steps.Text(" A", 2);
      steps.Number(radius.x);
      steps.Char(' ');
      steps.Number(radius.y);
      steps.Text((flags & 1) != 0 ? " 0 1 " : " 0 0 ", 5);
      steps.Text((flags & 2) != 0 ? "1 " : "0 ", 2);
      steps.Number(end.x);
      steps.Char(' ');
      steps.Number(end.y);
      k += 2;
      step = 'L';
      continue;
    }
    if (k)
      steps.Char(' ');
    steps.Char(step);
    steps.Number(p.x);
    steps.Char(' ');
    steps.Number(p.y);
    step = 'L';
  }
  steps.Flush();
}

void KCC_SvgCanvas::WritePathData(std::string& out, const Shape& shape) const {
  const std::size_t parts =
      std::min<std::size_t>(static_cast<std::size_t>(m_writeThreads), shape.count / kPointsPerWriteThread);
  if (parts <= 1) {
    WritePathSteps(out, shape, 0, shape.count);
    return;
  }
  // Part boundaries at equal shares of the points, moved forward past an arc's radius and end.
  std::vector<std::size_t> bounds{0};
  for (std::size_t i = 1; i < parts; ++i) {
    std::size_t at = std::max(bounds.back(), shape.count * i / parts);
    const auto insideArc = [&](std::size_t k) {
      for (std::size_t back = 1; back <= 2 && back <= k; ++back) {
        const Point& mark = m_points[shape.first + k - back];
        if (std::isnan(mark.x) && mark.y != 0.0)
          return true;
      }
      return false;
    };
    while (at < shape.count && insideArc(at))
      ++at;
    bounds.push_back(at);
  }
  bounds.push_back(shape.count);
  // The other parts are written into texts of their own while this thread writes the first into `out`.
  std::vector<std::string> texts(parts - 1);
  std::vector<std::exception_ptr> errors(parts - 1);
  const auto writePart = [&](std::size_t i) {
    try {
      texts[i - 1].reserve((bounds[i + 1] - bounds[i]) * kBytesPerPoint);
      ncappkit_detail::AdviseLargePages(texts[i - 1].data(), texts[i - 1].capacity());
      WritePathSteps(texts[i - 1], shape, bounds[i], bounds[i + 1]);
    } catch (...) {
      errors[i - 1] = std::current_exception();
    }
  };
  {
    // Every started thread is joined at the end of this block, also when writing the first part throws.
    struct Joined {
      std::vector<std::thread> threads;
      ~Joined() {
        for (std::thread& thread : threads)
          thread.join();
      }
    } started;
    for (std::size_t i = 1; i < parts; ++i) {
      try {
        started.threads.emplace_back(writePart, i);
      } catch (const std::system_error&) {
        writePart(i);  // no thread to be had: written here, after the first part's turn would have been
      }
    }
    WritePathSteps(out, shape, bounds[0], bounds[1]);
  }
  for (std::size_t i = 1; i < parts; ++i) {
    if (errors[i - 1])
      std::rethrow_exception(errors[i - 1]);
    out += texts[i - 1];
  }
}

std::string KCC_SvgCanvas::ToSvg() const {
  const std::string width = std::to_string(m_width);
  const std::string height = std::to_string(m_height);
  std::string out;
  // About 16 bytes per point ("L123.45 678.9 "), kBytesPerPoint to be safe, and a hundred per other shape:
  // one allocation for most pictures.
  out.reserve(256 + m_points.size() * kBytesPerPoint + m_shapes.size() * 100);
  ncappkit_detail::AdviseLargePages(out.data(), out.capacity());
  out += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  out += "<svg xmlns=\"http://www.w3.org/2000/svg\"";
  // The layer namespace is declared only when a group is a layer (has a label, the second of its texts).
  const bool hasLayers = std::any_of(m_shapes.begin(), m_shapes.end(), [this](const Shape& shape) {
    return shape.kind == ShapeKind::GroupBegin && !m_texts[shape.first + 1].empty();
  });
  if (hasLayers)
    out += " xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\"";
  out += " version=\"1.1\" width=\"" + width + "\" height=\"" + height + "\" viewBox=\"0 0 " + width + " " +
         height + "\">\n";
  if (!m_title.str().empty()) {
    out += "  <title>";
    AppendEscaped(out, m_title.str(), true);
    out += "</title>\n";
  }
  if (!m_description.str().empty()) {
    out += "  <desc>";
    AppendEscaped(out, m_description.str(), true);
    out += "</desc>\n";
  }
  std::size_t depth = 0;  // groups open while writing
  for (const Shape& shape : m_shapes) {
    if (shape.kind == ShapeKind::GroupEnd)
      --depth;
    WriteShape(out, shape, 2 + 2 * depth);
    if (shape.kind == ShapeKind::GroupBegin)
      ++depth;
  }
  for (; depth > 0; --depth) {
    out.append(2 * depth, ' ');
    out += "</g>\n";
  }
  out += "</svg>\n";
  return out;
}

bool KCC_SvgCanvas::SaveToFile(const KCString& path) const {
  return KCFileMan::ReplaceFileContents(path, ToSvg());
}
