// SPDX-License-Identifier: MIT
#include "ncappkit/draw/KCC_Draw.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "ncappkit/draw/KCC_FillAttributes.h"
#include "ncappkit/draw/KCC_FontAttributes.h"
#include "ncappkit/draw/KCC_LineAttributes.h"
#include "ncappkit/foundation/KC2DElmList.h"

namespace {

// DrawArc: a start or end point closer than this to the centre's x gets the angle +-90 degrees.
constexpr double kArcAxisTolerance = 1e-4;
// DrawArc: the angular step of the polyline in degrees, before the refinement for large radii.
constexpr double kArcStepDeg = 5.0;
// DrawArc: above this radius the step is divided by log10(radius).
constexpr double kArcFineStepMinRadius = 10.0;
// DrawArrowLine, DrawDoubleArrowLine: no head when both coordinate differences are below this. The arrow
// arcs use it for the arc length.
constexpr double kArrowZeroLength = 1e-4;
// Arrow heads: the half width of the head is the arrow size times this (a quarter of the size).
constexpr double kArrowHalfWidthShare = 0.5 * 0.5;

// Degrees to radians with the library's factor atan(1) / 45.
double DegToRad(double degrees) {
  return degrees * std::atan(1.0) / 45.0;
}

// The pen settings that line attributes change, as read from the canvas.
struct SavedPen {
  KCColor color;
  int width = 1;
  KCPenStyle style;
};

// Reads pen colour, width and style, in that order.
SavedPen ReadPen(const KCCanvas& canvas) {
  SavedPen pen;
  pen.color = canvas.GetPenColor();
  pen.width = canvas.GetPenWidth();
  pen.style = canvas.GetPenStyle();
  return pen;
}

// Line attributes are applied as colour, pen style, width.
void ApplyPen(KCCanvas& canvas, const KCC_LineAttributes& line) {
  canvas.SetPenColor(line.GetLineColor());
  canvas.SetPenStyle(line.GetLineStyle());
  canvas.SetPenWidth(line.GetLineWidth());
}

// Sets back what ReadPen read, in the order it read it.
void RestorePen(KCCanvas& canvas, const SavedPen& pen) {
  canvas.SetPenColor(pen.color);
  canvas.SetPenWidth(pen.width);
  canvas.SetPenStyle(pen.style);
}

// A filled shape gets a solid brush in the fill colour, a hollow one a clear brush (its colour untouched).
void ApplyFill(KCCanvas& canvas, const KCC_FillAttributes& fill) {
  if (fill.IsFilledShape()) {
    canvas.SetBrushStyle(KCBrushStyleSolid());
    canvas.SetBrushColor(fill.GetFillColor());
  } else {
    canvas.SetBrushStyle(KCBrushStyleClear());
  }
}

// The angle of (x, y) seen from the centre for DrawArc: atan2 unless x lies within kArcAxisTolerance of the
// centre's x, then -90 degrees for a point below the centre (smaller y) and +90 degrees otherwise.
double ArcAngle(double x, double y, double xc, double yc) {
  if (std::fabs(x - xc) > kArcAxisTolerance)
    return std::atan2(y - yc, x - xc);
  return yc - y > 0.0 ? 2.0 * std::atan(-1.0) : 2.0 * std::atan(1.0);
}

// The polyline DrawArc draws, and what an arrow head at its end needs.
struct ArcPath {
  KC2DPointList points;   // start, the intermediate points, end
  double radius = 0.0;    // distance from the centre to the start point
  double endAngle = 0.0;  // angle of the end point seen from the centre
  double sweep = 0.0;     // angle the polyline turns through (2 pi for a whole turn)
};

// Builds the polyline of an arc: steps of kArcStepDeg, divided by log10(r) above kArcFineStepMinRadius; the
// first intermediate point is at the start angle itself. A step count that is not a finite number (NaN or
// infinite input) gives no intermediate points. The sweep is at most 2 pi, so a finite count is at most
// 72 * log10(DBL_MAX), about 22200, and fits an int.
ArcPath BuildArc(double x1, double y1, double x2, double y2, double xc, double yc, bool clockwise,
                 bool fullCircle) {
  const double twoPi = 8.0 * std::atan(1.0);
  ArcPath path;
  path.radius = std::hypot(x1 - xc, y1 - yc);
  double a1 = ArcAngle(x1, y1, xc, yc);
  const double a2 = ArcAngle(x2, y2, xc, yc);
  path.endAngle = a2;

  double d = DegToRad(kArcStepDeg);
  if (path.radius > kArcFineStepMinRadius)
    d = d / std::log10(path.radius);
  if (clockwise) {
    if (a2 > a1)
      a1 = a1 + twoPi;
    d = -d;
  } else if (a1 > a2) {
    a1 = a1 - twoPi;
  }

  path.sweep = std::fabs(a2 - a1);
  int n = 0;
  const double count = std::fabs((a2 - a1) / d);
  if (std::isfinite(count))
    n = static_cast<int>(std::trunc(count));
  if (n == 0) {
    if (fullCircle) {
      // Start equal to end: a whole turn.
      const double turn = std::fabs(twoPi / d);
      n = std::isfinite(turn) ? static_cast<int>(std::trunc(turn)) : 0;
      path.sweep = twoPi;
    } else if (std::isfinite(path.sweep)) {
      // Integer division: almost always 0, so a very short arc becomes a straight segment.
      n = static_cast<int>(std::trunc(path.sweep)) / 10;
    }
  }

  path.points.reserve(static_cast<std::size_t>(n) + 2U);
  path.points.emplace_back(x1, y1);
  double a = a1;
  for (int i = 0; i < n; ++i) {
    path.points.emplace_back(xc + path.radius * std::cos(a), yc + path.radius * std::sin(a));
    a += d;
  }
  path.points.emplace_back(x2, y2);
  return path;
}

// An arrow head: the triangle (wing 1, wing 2, tip) with the wings a quarter of `size` to either side of
// `base`, across the direction theta.
KC2DPointList ArrowHead(const KC2DPoint& base, const KC2DPoint& tip, double theta, int size) {
  const double w = size * kArrowHalfWidthShare;
  const double s = std::sin(theta);
  const double c = std::cos(theta);
  return KC2DPointList{KC2DPoint(base.GetX() + w * s, base.GetY() - w * c),
                       KC2DPoint(base.GetX() - w * s, base.GetY() + w * c), tip};
}

// Maps elements to pixels with a view port; the built element is taken by the caller.
class ScreenMapper : public KC2DElementVisitor {
 public:
  explicit ScreenMapper(const KCC_ViewPortDraw& viewPort) : m_viewPort(viewPort) {}

  KC2DElement* Take() { return std::exchange(m_result, nullptr); }

  bool Visit(KC2DPoint& point) override {
    m_result = new KC2DPoint(Map(point));
    return true;
  }
  bool Visit(KC2DLine& line) override {
    m_result = new KC2DLine(Map(line.GetStartPoint()), Map(line.GetEndPoint()));
    return true;
  }
  bool Visit(KC2DArc& arc) override {
    // Every reference corner mirrors (pixel y grows downwards), so the turning sense flips.
    m_result = new KC2DArc(Map(arc.GetStartPoint()), Map(arc.GetEndPoint()), Map(arc.GetCenterPoint()),
                           !arc.IsCCW());
    return true;
  }
  bool Visit(KC2DRectangle& rectangle) override {
    m_result = new KC2DRectangle(Map(KC2DPoint(rectangle.GetMinX(), rectangle.GetMinY())),
                                 Map(KC2DPoint(rectangle.GetMaxX(), rectangle.GetMaxY())));
    return true;
  }

 private:
  KC2DPoint Map(const KC2DPoint& p) const {
    double px = 0.0;
    double py = 0.0;
    m_viewPort.World2ScreenPoint(p.GetX(), p.GetY(), px, py);
    return KC2DPoint(px, py);
  }

  const KCC_ViewPortDraw& m_viewPort;
  KC2DElement* m_result = nullptr;
};

// Draws each element of a list on its own with the drawing object's operations and the current pen.
class OutlineDrawer : public KC2DElementVisitor {
 public:
  OutlineDrawer(KCC_Draw& draw, KCCanvas& canvas) : m_draw(draw), m_canvas(canvas) {}

  bool Visit(KC2DPoint& point) override {
    m_canvas.MoveTo(point);
    m_canvas.LineTo(point);
    return true;
  }
  bool Visit(KC2DLine& line) override {
    m_canvas.MoveTo(line.GetStartPoint());
    m_canvas.LineTo(line.GetEndPoint());
    return true;
  }
  bool Visit(KC2DArc& arc) override {
    const KC2DPoint s = arc.GetStartPoint();
    const KC2DPoint e = arc.GetEndPoint();
    const KC2DPoint c = arc.GetCenterPoint();
    m_draw.DrawArc(s.GetX(), s.GetY(), e.GetX(), e.GetY(), c.GetX(), c.GetY(), arc.IsCW(), arc.IsCircle());
    return true;
  }
  bool Visit(KC2DRectangle& rectangle) override {
    KC2DPointList outline;
    rectangle.AddAsPolygon(outline);
    m_canvas.MoveTo(outline.front());
    for (std::size_t i = 1; i < outline.size(); ++i)
      m_canvas.LineTo(outline[i]);
    return true;
  }

 private:
  KCC_Draw& m_draw;
  KCCanvas& m_canvas;
};

// Collects the points of a list's elements into one polygon, leaving out a point equal to the one before.
class PolygonCollector : public KC2DElementVisitor {
 public:
  const KC2DPointList& Points() const noexcept { return m_points; }

  bool Visit(KC2DPoint& point) override {
    Add(point);
    return true;
  }
  bool Visit(KC2DLine& line) override {
    Add(line.GetStartPoint());
    Add(line.GetEndPoint());
    return true;
  }
  bool Visit(KC2DArc& arc) override {
    const KC2DPoint s = arc.GetStartPoint();
    const KC2DPoint e = arc.GetEndPoint();
    const KC2DPoint c = arc.GetCenterPoint();
    const ArcPath path =
        BuildArc(s.GetX(), s.GetY(), e.GetX(), e.GetY(), c.GetX(), c.GetY(), arc.IsCW(), arc.IsCircle());
    for (const KC2DPoint& p : path.points)
      Add(p);
    return true;
  }
  bool Visit(KC2DRectangle& rectangle) override {
    KC2DPointList outline;
    rectangle.AddAsPolygon(outline);
    for (const KC2DPoint& p : outline)
      Add(p);
    return true;
  }

 private:
  void Add(const KC2DPoint& p) {
    if (m_points.empty() || m_points.back() != p)
      m_points.push_back(p);
  }

  KC2DPointList m_points;
};

}  // namespace

KCC_Draw::KCC_Draw(KCC_ViewPortDraw& viewPort, KCCanvas& canvas) : m_viewPort(&viewPort), m_canvas(&canvas) {}

KCC_Draw::KCC_Draw(const KCC_Draw& other)
    : KCI_Draw(other), m_viewPort(other.m_viewPort), m_canvas(other.m_canvas) {}

KCC_Draw& KCC_Draw::operator=(const KCC_Draw& other) {
  KCI_Draw::operator=(other);
  m_viewPort = other.m_viewPort;
  m_canvas = other.m_canvas;
  return *this;
}

KCC_Draw::~KCC_Draw() = default;

double KCC_Draw::GetWorld2PixelRatioX() const {
  return m_viewPort->GetWorld2PixelRatioX();
}

double KCC_Draw::GetWorld2PixelRatioY() const {
  return m_viewPort->GetWorld2PixelRatioY();
}

bool KCC_Draw::SetWorldCoord(double xMin, double yMin, double xMax, double yMax) {
  // The view port's answer is not passed on: callers that need the refusal ask the view port itself.
  static_cast<void>(m_viewPort->SetWorldCoord(xMin, yMin, xMax, yMax));
  return true;
}

void KCC_Draw::Screen2WorldPoint(int px, int py, double& x, double& y) const {
  m_viewPort->Screen2WorldPoint(px, py, x, y);
}

void KCC_Draw::World2ScreenPoint(double x, double y, double& px, double& py) const {
  m_viewPort->World2ScreenPoint(x, y, px, py);
}

void KCC_Draw::World2ScreenPoint(double x, double y, int& px, int& py) const {
  m_viewPort->World2ScreenPoint(x, y, px, py);
}

void KCC_Draw::World2Screen(const KC2DElmList& world, KC2DElmList& screen) const {
  // Built aside first, so that `world` and `screen` may be the same list.
  KC2DElmList mapped;
  ScreenMapper mapper(*m_viewPort);
  for (KC2DElement* element : world) {
    if (element == nullptr) {
      mapped.Add(nullptr);
      continue;
    }
    element->Accept(mapper);
    mapped.Add(mapper.Take());
  }
  screen = std::move(mapped);
}

void KCC_Draw::DrawPointSquare(int x, int y, int size, const KCC_LineAttributes& line) {
  const double cx = x;
  const double cy = y;
  const double s = size;
  const SavedPen saved = ReadPen(*m_canvas);
  ApplyPen(*m_canvas, line);
  m_canvas->MoveTo(KC2DPoint(cx - s, cy - s));
  m_canvas->LineTo(KC2DPoint(cx - s, cy + s));
  m_canvas->LineTo(KC2DPoint(cx + s, cy + s));
  m_canvas->LineTo(KC2DPoint(cx + s, cy - s));
  m_canvas->LineTo(KC2DPoint(cx - s, cy - s));
  RestorePen(*m_canvas, saved);
}

void KCC_Draw::DrawPointDiamond(int x, int y, int size, const KCC_LineAttributes& line) {
  const double cx = x;
  const double cy = y;
  const double s = size;
  const SavedPen saved = ReadPen(*m_canvas);
  ApplyPen(*m_canvas, line);
  m_canvas->MoveTo(KC2DPoint(cx - s, cy));
  m_canvas->LineTo(KC2DPoint(cx, cy + s));
  m_canvas->LineTo(KC2DPoint(cx + s, cy));
  m_canvas->LineTo(KC2DPoint(cx, cy - s));
  m_canvas->LineTo(KC2DPoint(cx - s, cy));
  RestorePen(*m_canvas, saved);
}

void KCC_Draw::DrawLine(double x1, double y1, double x2, double y2) {
  m_canvas->MoveTo(KC2DPoint(x1, y1));
  m_canvas->LineTo(KC2DPoint(x2, y2));
}

void KCC_Draw::DrawLine(int x1, int y1, int x2, int y2) {
  DrawLine(static_cast<double>(x1), static_cast<double>(y1), static_cast<double>(x2),
           static_cast<double>(y2));
}

void KCC_Draw::DrawAttrLine(double x1, double y1, double x2, double y2, const KCC_LineAttributes& line) {
  const SavedPen saved = ReadPen(*m_canvas);
  ApplyPen(*m_canvas, line);
  DrawLine(x1, y1, x2, y2);
  RestorePen(*m_canvas, saved);
}

void KCC_Draw::DrawAttrLine(int x1, int y1, int x2, int y2, const KCC_LineAttributes& line) {
  DrawAttrLine(static_cast<double>(x1), static_cast<double>(y1), static_cast<double>(x2),
               static_cast<double>(y2), line);
}

namespace {

// The heads of an arrow line: at (x2, y2), and also at (x1, y1) when `both`; empty when there is no head.
std::vector<KC2DPointList> LineHeads(double x1, double y1, double x2, double y2, int size, bool both) {
  std::vector<KC2DPointList> heads;
  if (size <= 0 || (std::fabs(y2 - y1) < kArrowZeroLength && std::fabs(x2 - x1) < kArrowZeroLength))
    return heads;
  const double length = std::hypot(x2 - x1, y2 - y1);
  const double h = std::min(static_cast<double>(size), length);
  const double theta = std::atan2(y2 - y1, x2 - x1);
  const double c = std::cos(theta);
  const double s = std::sin(theta);
  heads.push_back(ArrowHead(KC2DPoint(x2 - h * c, y2 - h * s), KC2DPoint(x2, y2), theta, size));
  if (both)
    heads.push_back(ArrowHead(KC2DPoint(x1 + h * c, y1 + h * s), KC2DPoint(x1, y1), theta, size));
  return heads;
}

// The head of an arrow arc at its end point, along the direction the arc runs there; empty when there is
// no head (size <= 0, or an arc shorter than kArrowZeroLength).
std::vector<KC2DPointList> ArcHead(const ArcPath& path, double x2, double y2, bool clockwise, int size) {
  std::vector<KC2DPointList> heads;
  const double length = path.radius * path.sweep;
  if (size <= 0 || !(length >= kArrowZeroLength))
    return heads;
  const double quarterTurn = 2.0 * std::atan(1.0);
  const double theta = clockwise ? path.endAngle - quarterTurn : path.endAngle + quarterTurn;
  const double h = std::min(static_cast<double>(size), length);
  heads.push_back(ArrowHead(KC2DPoint(x2 - h * std::cos(theta), y2 - h * std::sin(theta)), KC2DPoint(x2, y2),
                            theta, size));
  return heads;
}

}  // namespace

void KCC_Draw::DrawArrowLine(double x1, double y1, double x2, double y2, int size,
                             const KCC_LineAttributes& line) {
  const SavedPen saved = ReadPen(*m_canvas);
  const KCColor savedBrush = m_canvas->GetBrushColor();
  ApplyPen(*m_canvas, line);
  DrawLine(x1, y1, x2, y2);
  const std::vector<KC2DPointList> heads = LineHeads(x1, y1, x2, y2, size, false);
  if (!heads.empty()) {
    m_canvas->SetBrushColor(line.GetLineColor());
    m_canvas->Polygon(heads.front());
  }
  RestorePen(*m_canvas, saved);
  m_canvas->SetBrushColor(savedBrush);
}

void KCC_Draw::DrawArrowLine(int x1, int y1, int x2, int y2, int size, const KCC_LineAttributes& line) {
  DrawArrowLine(static_cast<double>(x1), static_cast<double>(y1), static_cast<double>(x2),
                static_cast<double>(y2), size, line);
}

void KCC_Draw::DrawDoubleArrowLine(int x1, int y1, int x2, int y2, int size, const KCC_LineAttributes& line) {
  const double dx1 = x1;
  const double dy1 = y1;
  const double dx2 = x2;
  const double dy2 = y2;
  const SavedPen saved = ReadPen(*m_canvas);
  const KCColor savedBrush = m_canvas->GetBrushColor();
  ApplyPen(*m_canvas, line);
  DrawLine(dx1, dy1, dx2, dy2);
  const std::vector<KC2DPointList> heads = LineHeads(dx1, dy1, dx2, dy2, size, true);
  if (!heads.empty()) {
    m_canvas->SetBrushColor(line.GetLineColor());
    for (const KC2DPointList& head : heads)
      m_canvas->Polygon(head);
  }
  RestorePen(*m_canvas, saved);
  m_canvas->SetBrushColor(savedBrush);
}

void KCC_Draw::DrawArc(double x1, double y1, double x2, double y2, double xc, double yc, bool clockwise,
                       bool fullCircle) {
  const ArcPath path = BuildArc(x1, y1, x2, y2, xc, yc, clockwise, fullCircle);
  m_canvas->MoveTo(path.points.front());
  for (std::size_t i = 1; i < path.points.size(); ++i)
    m_canvas->LineTo(path.points[i]);
}

void KCC_Draw::DrawArc(int x1, int y1, int x2, int y2, int xc, int yc, bool clockwise, bool fullCircle) {
  DrawArc(static_cast<double>(x1), static_cast<double>(y1), static_cast<double>(x2), static_cast<double>(y2),
          static_cast<double>(xc), static_cast<double>(yc), clockwise, fullCircle);
}

void KCC_Draw::DrawAttrCircle(int x, int y, int radius, const KCC_LineAttributes& line,
                              const KCC_FillAttributes& fill) {
  const double r = radius;
  const KCPenStyle savedStyle = m_canvas->GetPenStyle();
  const int savedWidth = m_canvas->GetPenWidth();
  const KCColor savedColor = m_canvas->GetPenColor();
  const KCBrushStyle savedBrushStyle = m_canvas->GetBrushStyle();
  const KCColor savedBrushColor = m_canvas->GetBrushColor();
  m_canvas->SetPenStyle(line.GetLineStyle());
  m_canvas->SetPenWidth(line.GetLineWidth());
  m_canvas->SetPenColor(line.GetLineColor());
  ApplyFill(*m_canvas, fill);
  m_canvas->Ellipse(KC2DRectangle(x - r, y - r, x + r, y + r));
  m_canvas->SetPenStyle(savedStyle);
  m_canvas->SetPenWidth(savedWidth);
  m_canvas->SetPenColor(savedColor);
  m_canvas->SetBrushStyle(savedBrushStyle);
  m_canvas->SetBrushColor(savedBrushColor);
}

void KCC_Draw::DrawAttrCircle(int x, int y, int radius, const KCC_LineAttributes& line) {
  const double r = radius;
  const KCPenStyle savedStyle = m_canvas->GetPenStyle();
  const int savedWidth = m_canvas->GetPenWidth();
  const KCColor savedColor = m_canvas->GetPenColor();
  const KCBrushStyle savedBrushStyle = m_canvas->GetBrushStyle();
  m_canvas->SetPenStyle(line.GetLineStyle());
  m_canvas->SetPenWidth(line.GetLineWidth());
  m_canvas->SetPenColor(line.GetLineColor());
  m_canvas->SetBrushStyle(KCBrushStyleClear());
  m_canvas->Ellipse(KC2DRectangle(x - r, y - r, x + r, y + r));
  m_canvas->SetPenStyle(savedStyle);
  m_canvas->SetPenWidth(savedWidth);
  m_canvas->SetPenColor(savedColor);
  m_canvas->SetBrushStyle(savedBrushStyle);
}

void KCC_Draw::DrawAttrArc(int x1, int y1, int x2, int y2, int xc, int yc, bool clockwise, bool fullCircle,
                           const KCC_LineAttributes& line) {
  if (clockwise)
    DrawArrowArc_CW(x1, y1, x2, y2, xc, yc, fullCircle, 0, line);
  else
    DrawArrowArc_CCW(x1, y1, x2, y2, xc, yc, fullCircle, 0, line);
}

namespace {

// The arrow arcs' common body: the arc with the pen of the line attributes, then the head.
void DrawArrowArc(KCC_Draw& draw, KCCanvas& canvas, double x1, double y1, double x2, double y2, double xc,
                  double yc, bool clockwise, bool fullCircle, int size, const KCC_LineAttributes& line) {
  const SavedPen saved = ReadPen(canvas);
  const KCColor savedBrush = canvas.GetBrushColor();
  ApplyPen(canvas, line);
  draw.DrawArc(x1, y1, x2, y2, xc, yc, clockwise, fullCircle);
  const ArcPath path = BuildArc(x1, y1, x2, y2, xc, yc, clockwise, fullCircle);
  const std::vector<KC2DPointList> heads = ArcHead(path, x2, y2, clockwise, size);
  if (!heads.empty()) {
    canvas.SetBrushColor(line.GetLineColor());
    canvas.Polygon(heads.front());
  }
  RestorePen(canvas, saved);
  canvas.SetBrushColor(savedBrush);
}

}  // namespace

void KCC_Draw::DrawArrowArc_CW(double x1, double y1, double x2, double y2, double xc, double yc,
                               bool fullCircle, int size, const KCC_LineAttributes& line) {
  DrawArrowArc(*this, *m_canvas, x1, y1, x2, y2, xc, yc, true, fullCircle, size, line);
}

void KCC_Draw::DrawArrowArc_CW(int x1, int y1, int x2, int y2, int xc, int yc, bool fullCircle, int size,
                               const KCC_LineAttributes& line) {
  DrawArrowArc_CW(static_cast<double>(x1), static_cast<double>(y1), static_cast<double>(x2),
                  static_cast<double>(y2), static_cast<double>(xc), static_cast<double>(yc), fullCircle, size,
                  line);
}

void KCC_Draw::DrawArrowArc_CCW(double x1, double y1, double x2, double y2, double xc, double yc,
                                bool fullCircle, int size, const KCC_LineAttributes& line) {
  DrawArrowArc(*this, *m_canvas, x1, y1, x2, y2, xc, yc, false, fullCircle, size, line);
}

void KCC_Draw::DrawArrowArc_CCW(int x1, int y1, int x2, int y2, int xc, int yc, bool fullCircle, int size,
                                const KCC_LineAttributes& line) {
  DrawArrowArc_CCW(static_cast<double>(x1), static_cast<double>(y1), static_cast<double>(x2),
                   static_cast<double>(y2), static_cast<double>(xc), static_cast<double>(yc), fullCircle,
                   size, line);
}

void KCC_Draw::DrawRectangle(int x1, int y1, int x2, int y2) {
  const KCPenStyle savedStyle = m_canvas->GetPenStyle();
  const int savedWidth = m_canvas->GetPenWidth();
  const KCColor savedColor = m_canvas->GetPenColor();
  const KCBrushStyle savedBrushStyle = m_canvas->GetBrushStyle();
  m_canvas->SetPenStyle(KCPenStyleDot());
  m_canvas->SetPenWidth(1);
  m_canvas->SetPenColor(KCColorBlack(255));
  m_canvas->SetBrushStyle(KCBrushStyleClear());
  m_canvas->Rectangle(KC2DRectangle(x1, y1, x2, y2));
  m_canvas->SetPenStyle(savedStyle);
  m_canvas->SetPenWidth(savedWidth);
  m_canvas->SetPenColor(savedColor);
  m_canvas->SetBrushStyle(savedBrushStyle);
}

void KCC_Draw::DrawHollowRectangle(double x1, double y1, double x2, double y2,
                                   const KCC_LineAttributes& line) {
  const SavedPen saved = ReadPen(*m_canvas);
  const KCBrushStyle savedBrushStyle = m_canvas->GetBrushStyle();
  ApplyPen(*m_canvas, line);
  m_canvas->SetBrushStyle(KCBrushStyleClear());
  m_canvas->Rectangle(KC2DRectangle(x1, y1, x2, y2));
  RestorePen(*m_canvas, saved);
  m_canvas->SetBrushStyle(savedBrushStyle);
}

void KCC_Draw::DrawHollowRectangle(int x1, int y1, int x2, int y2, const KCC_LineAttributes& line) {
  DrawHollowRectangle(static_cast<double>(x1), static_cast<double>(y1), static_cast<double>(x2),
                      static_cast<double>(y2), line);
}

void KCC_Draw::DrawFilledRectangle(double x1, double y1, double x2, double y2, const KCC_LineAttributes& line,
                                   const KCC_FillAttributes& fill) {
  const SavedPen saved = ReadPen(*m_canvas);
  const KCBrushStyle savedBrushStyle = m_canvas->GetBrushStyle();
  const KCColor savedBrushColor = m_canvas->GetBrushColor();
  ApplyPen(*m_canvas, line);
  ApplyFill(*m_canvas, fill);
  m_canvas->Rectangle(KC2DRectangle(x1, y1, x2, y2));
  RestorePen(*m_canvas, saved);
  m_canvas->SetBrushStyle(savedBrushStyle);
  m_canvas->SetBrushColor(savedBrushColor);
}

void KCC_Draw::DrawFilledRectangle(int x1, int y1, int x2, int y2, const KCC_LineAttributes& line,
                                   const KCC_FillAttributes& fill) {
  DrawFilledRectangle(static_cast<double>(x1), static_cast<double>(y1), static_cast<double>(x2),
                      static_cast<double>(y2), line, fill);
}

void KCC_Draw::DisplayText(const KCString& text, double x, double y, const KCC_FillAttributes& fill,
                           const KCC_TextAttributes& font) {
  const KCString savedName = m_canvas->GetFontName();
  const KCColor savedColor = m_canvas->GetFontColor();
  const int savedSize = m_canvas->GetFontSize();
  const KCFontStyles savedStyles = m_canvas->GetFontStyles();
  const double savedAngle = m_canvas->GetTextAngle();
  const KCBrushStyle savedBrushStyle = m_canvas->GetBrushStyle();
  const KCColor savedBrushColor = m_canvas->GetBrushColor();

  KCFontStyles styles;
  if (font.IsBold())
    styles.Add(KCFontStyleBold());
  if (font.IsItalic())
    styles.Add(KCFontStyleItalic());
  if (font.IsStrike())
    styles.Add(KCFontStyleStrikeOut());
  if (font.IsUnderline())
    styles.Add(KCFontStyleUnderline());
  m_canvas->SetFontName(font.GetFontName());
  m_canvas->SetFontColor(font.GetFontColor());
  m_canvas->SetFontSize(font.GetFontSize());
  m_canvas->SetFontStyles(styles);
  m_canvas->SetTextAngle(font.GetAngleDeg());

  int w = 0;
  int h = 0;
  m_canvas->MeasureText(text, w, h);
  // Centre the unturned box on (x, y), turn it about that point, and round by adding 0.5 and truncating.
  // The origin stays a double: a NaN or huge position reaches the canvas as it is instead of being forced
  // into an int.
  const double a = DegToRad(font.GetAngleDeg());
  const double halfW = w / 2.0;
  const double halfH = h / 2.0;
  const double ox = std::trunc(x - halfW * std::cos(a) - halfH * std::sin(a) + 0.5);
  const double oy = std::trunc(y + halfW * std::sin(a) - halfH * std::cos(a) + 0.5);

  ApplyFill(*m_canvas, fill);
  m_canvas->TextOut(KC2DPoint(ox, oy), text);

  m_canvas->SetBrushStyle(savedBrushStyle);
  m_canvas->SetBrushColor(savedBrushColor);
  m_canvas->SetFontName(savedName);
  m_canvas->SetFontColor(savedColor);
  m_canvas->SetFontSize(savedSize);
  m_canvas->SetFontStyles(savedStyles);
  m_canvas->SetTextAngle(savedAngle);
}

void KCC_Draw::DisplayText(const KCString& text, int x, int y, const KCC_FillAttributes& fill,
                           const KCC_TextAttributes& font) {
  DisplayText(text, static_cast<double>(x), static_cast<double>(y), fill, font);
}

void KCC_Draw::DisplayTextBox(const KCString& text, int x1, int y1, int x2, int y2,
                              const KCC_FillAttributes& fill, const KCC_TextAttributes& font) {
  const double cx = (static_cast<double>(x1) + static_cast<double>(x2)) / 2.0;
  const double cy = (static_cast<double>(y1) + static_cast<double>(y2)) / 2.0;
  DisplayText(text, cx, cy, fill, font);
}

namespace {

// The select marks' settings: read pen colour, width, style, pen mode and brush style; set a black dotted
// pen of width 1 in NotXor mode and a clear brush; `draw` draws; everything is set back in the read order.
template <typename Draw>
void DrawSelectMark(KCCanvas& canvas, Draw draw) {
  const KCColor savedColor = canvas.GetPenColor();
  const int savedWidth = canvas.GetPenWidth();
  const KCPenStyle savedStyle = canvas.GetPenStyle();
  const KCPenMode savedMode = canvas.GetPenMode();
  const KCBrushStyle savedBrushStyle = canvas.GetBrushStyle();
  canvas.SetPenStyle(KCPenStyleDot());
  canvas.SetPenWidth(1);
  canvas.SetPenColor(KCColorBlack(255));
  canvas.SetPenMode(KCPenModeNotXor());
  canvas.SetBrushStyle(KCBrushStyleClear());
  draw();
  canvas.SetPenColor(savedColor);
  canvas.SetPenWidth(savedWidth);
  canvas.SetPenStyle(savedStyle);
  canvas.SetPenMode(savedMode);
  canvas.SetBrushStyle(savedBrushStyle);
}

}  // namespace

void KCC_Draw::DrawSelectHollowRectangle(int x1, int y1, int x2, int y2) {
  KCCanvas& canvas = *m_canvas;
  DrawSelectMark(canvas, [&] { canvas.FrameRectangle(KC2DRectangle(x1, y1, x2, y2)); });
}

void KCC_Draw::DrawSelectLine(int x1, int y1, int x2, int y2) {
  KCCanvas& canvas = *m_canvas;
  DrawSelectMark(canvas, [&] {
    canvas.MoveTo(KC2DPoint(x1, y1));
    canvas.LineTo(KC2DPoint(x2, y2));
  });
}

void KCC_Draw::DrawSelectCircle(int x, int y, int radius) {
  KCCanvas& canvas = *m_canvas;
  const double cx = x;
  const double cy = y;
  const double r = radius;
  DrawSelectMark(canvas, [&] { canvas.EllipseMark(KC2DRectangle(cx - r, cy - r, cx + r, cy + r)); });
}

void KCC_Draw::PaintBackGround(KCColor& colour) {
  const KCPenStyle savedStyle = m_canvas->GetPenStyle();
  const int savedWidth = m_canvas->GetPenWidth();
  const KCColor savedColor = m_canvas->GetPenColor();
  const KCBrushStyle savedBrushStyle = m_canvas->GetBrushStyle();
  const KCColor savedBrushColor = m_canvas->GetBrushColor();
  m_canvas->SetPenStyle(KCPenStyleSolid());
  m_canvas->SetPenWidth(1);
  m_canvas->SetPenColor(colour);
  m_canvas->SetBrushStyle(KCBrushStyleSolid());
  m_canvas->SetBrushColor(colour);
  m_canvas->FillCanvas();
  m_canvas->SetPenStyle(savedStyle);
  m_canvas->SetPenWidth(savedWidth);
  m_canvas->SetPenColor(savedColor);
  m_canvas->SetBrushStyle(savedBrushStyle);
  m_canvas->SetBrushColor(savedBrushColor);
}

void KCC_Draw::DrawFilledElmList(KC2DElmList& elements, const KCC_LineAttributes& line,
                                 const KCC_FillAttributes& fill) {
  PolygonCollector collector;
  elements.Accept(collector);
  if (collector.Points().empty())
    return;
  const SavedPen saved = ReadPen(*m_canvas);
  const KCBrushStyle savedBrushStyle = m_canvas->GetBrushStyle();
  const KCColor savedBrushColor = m_canvas->GetBrushColor();
  ApplyPen(*m_canvas, line);
  ApplyFill(*m_canvas, fill);
  m_canvas->Polygon(collector.Points());
  RestorePen(*m_canvas, saved);
  m_canvas->SetBrushStyle(savedBrushStyle);
  m_canvas->SetBrushColor(savedBrushColor);
}

void KCC_Draw::DrawHollowElmList(KC2DElmList& elements, const KCC_LineAttributes& line) {
  const bool anyElement =
      std::any_of(elements.begin(), elements.end(), [](const KC2DElement* e) { return e != nullptr; });
  if (!anyElement)
    return;
  const SavedPen saved = ReadPen(*m_canvas);
  ApplyPen(*m_canvas, line);
  OutlineDrawer drawer(*this, *m_canvas);
  elements.Accept(drawer);
  RestorePen(*m_canvas, saved);
}
