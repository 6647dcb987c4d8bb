// SPDX-License-Identifier: MIT
#include "ncappkit/foundation/KC2DElement.h"

#include <algorithm>
#include <cmath>

#include "ncappkit/foundation/KCMath.h"
#include "ncappkit/foundation/KCParagraph.h"

namespace {

// A full turn; doubling KCMath::Pi is exact.
constexpr double kTwoPi = 2.0 * KCMath::Pi;
// Start and end of an arc closer than this in each coordinate make a full circle.
constexpr double kArcCircleTolerance = 1e-9;
// AddAsPolygon of an arc: largest angle swept by one polygon edge (5 degrees).
constexpr double kArcPolygonStep = kTwoPi / 72.0;
// AddAsPolygonMaxAngle never appends more edges than this, however small the step.
constexpr double kArcPolygonMaxSteps = 65536.0;
// AddAsPolygonMaxAngle: a step count this close above a whole number is rounded down.
constexpr double kArcPolygonStepSlack = 1e-9;
// Read rounds to at most this many decimals (more would exceed what a double holds).
constexpr int kMaxReadDigits = 15;

// Angle reduced to [0, 2 pi); NaN and infinities give NaN.
double NormalizeAngle(double a) noexcept {
  double r = std::fmod(a, kTwoPi);
  if (r < 0.0) {
    r += kTwoPi;
  }
  if (r >= kTwoPi) {  // -tiny + 2 pi rounds up to 2 pi
    r = 0.0;
  }
  return r;
}

// Turning the axes counter-clockwise by `angle` turns the point clockwise by it about the origin.
KC2DPoint RotatedAxisPoint(const KC2DPoint& p, double angle) noexcept {
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  return KC2DPoint(p.GetX() * c + p.GetY() * s, -p.GetX() * s + p.GetY() * c);
}

bool Near(const KC2DPoint& a, const KC2DPoint& b, double tolerance) noexcept {
  return std::fabs(a.GetX() - b.GetX()) <= tolerance && std::fabs(a.GetY() - b.GetY()) <= tolerance;
}

KCParagraph* SectionForWrite(const KCString& name, KCParagraph* paragraph, const char* type) {
  if (paragraph == nullptr) {
    return nullptr;
  }
  KCParagraph* section = paragraph->AddParagraph(name);
  section->WriteString("Type", type);
  return section;
}

const KCParagraph* SectionForRead(const KCString& name, const KCParagraph* paragraph, const char* type) {
  if (paragraph == nullptr) {
    return nullptr;
  }
  const KCParagraph* section = paragraph->FindParagraph(name);
  if (section == nullptr || section->GetValue("Type") != KCString(type)) {
    return nullptr;
  }
  return section;
}

// Reads the numbers under `keys` into `values`; false when any is missing or not wholly a number.
template <std::size_t N>
bool ReadValues(const KCParagraph& section, const char* const (&keys)[N], double (&values)[N], int digits) {
  for (std::size_t i = 0; i < N; ++i) {
    if (!section.HasKey(keys[i])) {
      return false;
    }
    const double v = section.ReadDoubleStrict(keys[i], std::nan(""));
    if (std::isnan(v)) {
      return false;
    }
    if (digits >= 0) {
      const double scale = std::pow(10.0, std::min(digits, kMaxReadDigits));
      const double rounded = std::round(v * scale) / scale;
      values[i] = std::isfinite(rounded) ? rounded : v;  // huge values keep their text value
    } else {
      values[i] = v;
    }
  }
  return true;
}

template <std::size_t N>
void WriteValues(KCParagraph& section, const char* const (&keys)[N], const double (&values)[N], int digits) {
  for (std::size_t i = 0; i < N; ++i) {
    section.WriteDouble(keys[i], values[i], digits);
  }
}

const char* const kPointKeys[] = {"X", "Y"};
const char* const kLineKeys[] = {"StartX", "StartY", "EndX", "EndY"};
const char* const kArcKeys[] = {"StartX", "StartY", "EndX", "EndY", "CenterX", "CenterY"};
const char* const kRectangleKeys[] = {"MinX", "MinY", "MaxX", "MaxY"};

}  // namespace

KC2DElementVisitor::~KC2DElementVisitor() = default;

// ---------------------------------------------------------------------------------------------------------
// KC2DPoint

double KC2DPoint::DistanceTo(const KC2DPoint& other) const noexcept {
  const double dx = other.m_x - m_x;
  const double dy = other.m_y - m_y;
  return std::sqrt(dx * dx + dy * dy);
}

KC2DElement* KC2DPoint::Clone() const {
  return new KC2DPoint(*this);
}

bool KC2DPoint::Accept(KC2DElementVisitor& visitor) {
  return visitor.Visit(*this);
}

KC2DPoint KC2DPoint::GetParametricPoint(double /*t*/) const {
  return *this;
}

bool KC2DPoint::IsAlmostEq(const KC2DElement& other, double tolerance) const {
  const auto* p = dynamic_cast<const KC2DPoint*>(&other);
  return p != nullptr && Near(*this, *p, tolerance);
}

void KC2DPoint::RotateAxis(double angleRad) {
  *this = RotatedAxisPoint(*this, angleRad);
}

void KC2DPoint::Scale(double factor) {
  m_x *= factor;
  m_y *= factor;
}

void KC2DPoint::Translate(double dx, double dy) {
  m_x += dx;
  m_y += dy;
}

void KC2DPoint::AddAsPolygon(KC2DPointList& points) const {
  points.push_back(*this);
}

bool KC2DPoint::Read(const KCString& name, KCParagraph* paragraph, int digits) {
  const KCParagraph* section = SectionForRead(name, paragraph, "Point");
  double v[2];
  if (section == nullptr || !ReadValues(*section, kPointKeys, v, digits)) {
    return false;
  }
  Set(v[0], v[1]);
  return true;
}

bool KC2DPoint::Write(const KCString& name, KCParagraph* paragraph, int digits) const {
  KCParagraph* section = SectionForWrite(name, paragraph, "Point");
  if (section == nullptr) {
    return false;
  }
  const double v[2] = {m_x, m_y};
  WriteValues(*section, kPointKeys, v, digits);
  return true;
}

KC2DPoint& KC2DPoint::operator+=(const KCVector& v) noexcept {
  m_x += v.GetX();
  m_y += v.GetY();
  return *this;
}

KC2DPoint& KC2DPoint::operator-=(const KCVector& v) noexcept {
  m_x -= v.GetX();
  m_y -= v.GetY();
  return *this;
}

// ---------------------------------------------------------------------------------------------------------
// KC2DLine

double KC2DLine::SquareLen() const noexcept {
  const double dx = m_end.GetX() - m_start.GetX();
  const double dy = m_end.GetY() - m_start.GetY();
  return dx * dx + dy * dy;
}

KC2DElement* KC2DLine::Clone() const {
  return new KC2DLine(*this);
}

bool KC2DLine::Accept(KC2DElementVisitor& visitor) {
  return visitor.Visit(*this);
}

KC2DPoint KC2DLine::GetParametricPoint(double t) const {
  return KC2DPoint(m_start.GetX() + t * (m_end.GetX() - m_start.GetX()),
                   m_start.GetY() + t * (m_end.GetY() - m_start.GetY()));
}

double KC2DLine::GetMinX() const {
  return std::min(m_start.GetX(), m_end.GetX());
}
double KC2DLine::GetMinY() const {
  return std::min(m_start.GetY(), m_end.GetY());
}
double KC2DLine::GetMaxX() const {
  return std::max(m_start.GetX(), m_end.GetX());
}
double KC2DLine::GetMaxY() const {
  return std::max(m_start.GetY(), m_end.GetY());
}

double KC2DLine::Len() const {
  return std::sqrt(SquareLen());
}

bool KC2DLine::IsAlmostEq(const KC2DElement& other, double tolerance) const {
  const auto* l = dynamic_cast<const KC2DLine*>(&other);
  return l != nullptr && Near(m_start, l->m_start, tolerance) && Near(m_end, l->m_end, tolerance);
}

void KC2DLine::MirrorX() {
  m_start.MirrorX();
  m_end.MirrorX();
}

void KC2DLine::MirrorY() {
  m_start.MirrorY();
  m_end.MirrorY();
}

void KC2DLine::Reverse() {
  std::swap(m_start, m_end);
}

void KC2DLine::RotateAxis(double angleRad) {
  m_start.RotateAxis(angleRad);
  m_end.RotateAxis(angleRad);
}

void KC2DLine::Scale(double factor) {
  m_start.Scale(factor);
  m_end.Scale(factor);
}

void KC2DLine::ScaleX(double factor) {
  m_start.ScaleX(factor);
  m_end.ScaleX(factor);
}

void KC2DLine::ScaleY(double factor) {
  m_start.ScaleY(factor);
  m_end.ScaleY(factor);
}

void KC2DLine::Translate(double dx, double dy) {
  m_start.Translate(dx, dy);
  m_end.Translate(dx, dy);
}

void KC2DLine::AddAsPolygon(KC2DPointList& points) const {
  points.push_back(m_start);
  points.push_back(m_end);
}

bool KC2DLine::Read(const KCString& name, KCParagraph* paragraph, int digits) {
  const KCParagraph* section = SectionForRead(name, paragraph, "Line");
  double v[4];
  if (section == nullptr || !ReadValues(*section, kLineKeys, v, digits)) {
    return false;
  }
  m_start.Set(v[0], v[1]);
  m_end.Set(v[2], v[3]);
  return true;
}

bool KC2DLine::Write(const KCString& name, KCParagraph* paragraph, int digits) const {
  KCParagraph* section = SectionForWrite(name, paragraph, "Line");
  if (section == nullptr) {
    return false;
  }
  const double v[4] = {m_start.GetX(), m_start.GetY(), m_end.GetX(), m_end.GetY()};
  WriteValues(*section, kLineKeys, v, digits);
  return true;
}

// ---------------------------------------------------------------------------------------------------------
// KC2DArc

double KC2DArc::Radius() const noexcept {
  return m_center.DistanceTo(m_start);
}

bool KC2DArc::IsCircle() const noexcept {
  return Near(m_start, m_end, kArcCircleTolerance);
}

void KC2DArc::Normalize() noexcept {
  if (!m_ccw) {
    std::swap(m_start, m_end);
    m_ccw = true;
  }
}

void KC2DArc::SwapPoints() noexcept {
  std::swap(m_start, m_end);
}

void KC2DArc::SwapPointsWithReverse() noexcept {
  std::swap(m_start, m_end);
  m_ccw = !m_ccw;
}

double KC2DArc::GetSweepAngle() const noexcept {
  if (IsCircle()) {
    return kTwoPi;
  }
  const double a0 = std::atan2(m_start.GetY() - m_center.GetY(), m_start.GetX() - m_center.GetX());
  const double a1 = std::atan2(m_end.GetY() - m_center.GetY(), m_end.GetX() - m_center.GetX());
  return m_ccw ? NormalizeAngle(a1 - a0) : NormalizeAngle(a0 - a1);
}

void KC2DArc::AddAsPolygonMaxAngle(KC2DPointList& points, double maxAngleRad) const {
  const double sweep = GetSweepAngle();
  double steps = 1.0;
  if (maxAngleRad > 0.0 && std::isfinite(maxAngleRad) && std::isfinite(sweep)) {
    // The slack keeps a sweep that is a whole number of steps (90 degrees in 5 degree steps) from gaining
    // an extra step through rounding.
    steps =
        std::min(std::max(std::ceil(sweep / maxAngleRad - kArcPolygonStepSlack), 1.0), kArcPolygonMaxSteps);
  }
  const int n = static_cast<int>(steps);
  points.push_back(m_start);
  for (int i = 1; i < n; ++i) {
    points.push_back(GetParametricPoint(static_cast<double>(i) / n));
  }
  points.push_back(m_end);
}

KC2DElement* KC2DArc::Clone() const {
  return new KC2DArc(*this);
}

bool KC2DArc::Accept(KC2DElementVisitor& visitor) {
  return visitor.Visit(*this);
}

KC2DPoint KC2DArc::GetParametricPoint(double t) const {
  // The stored ends are returned as they are, so that an arc whose end lies off the start radius still
  // begins and ends where it says.
  if (t == 0.0) {
    return m_start;
  }
  if (t == 1.0) {
    return m_end;
  }
  const double r = Radius();
  const double a0 = std::atan2(m_start.GetY() - m_center.GetY(), m_start.GetX() - m_center.GetX());
  const double a = m_ccw ? a0 + t * GetSweepAngle() : a0 - t * GetSweepAngle();
  return KC2DPoint(m_center.GetX() + r * std::cos(a), m_center.GetY() + r * std::sin(a));
}

void KC2DArc::Box(double& minX, double& minY, double& maxX, double& maxY) const noexcept {
  minX = std::min(m_start.GetX(), m_end.GetX());
  maxX = std::max(m_start.GetX(), m_end.GetX());
  minY = std::min(m_start.GetY(), m_end.GetY());
  maxY = std::max(m_start.GetY(), m_end.GetY());
  const double r = Radius();
  const double cx = m_center.GetX();
  const double cy = m_center.GetY();
  const double sweep = GetSweepAngle();
  const double a0 = std::atan2(m_start.GetY() - cy, m_start.GetX() - cx);
  const double quadrant[4][3] = {
      {0.0, cx + r, cy}, {kTwoPi / 4, cx, cy + r}, {kTwoPi / 2, cx - r, cy}, {3 * kTwoPi / 4, cx, cy - r}};
  for (const auto& q : quadrant) {
    const double offset = m_ccw ? NormalizeAngle(q[0] - a0) : NormalizeAngle(a0 - q[0]);
    if (offset <= sweep) {
      minX = std::min(minX, q[1]);
      maxX = std::max(maxX, q[1]);
      minY = std::min(minY, q[2]);
      maxY = std::max(maxY, q[2]);
    }
  }
}

double KC2DArc::GetMinX() const {
  double minX, minY, maxX, maxY;
  Box(minX, minY, maxX, maxY);
  return minX;
}

double KC2DArc::GetMinY() const {
  double minX, minY, maxX, maxY;
  Box(minX, minY, maxX, maxY);
  return minY;
}

double KC2DArc::GetMaxX() const {
  double minX, minY, maxX, maxY;
  Box(minX, minY, maxX, maxY);
  return maxX;
}

double KC2DArc::GetMaxY() const {
  double minX, minY, maxX, maxY;
  Box(minX, minY, maxX, maxY);
  return maxY;
}

double KC2DArc::Len() const {
  return Radius() * GetSweepAngle();
}

bool KC2DArc::IsAlmostEq(const KC2DElement& other, double tolerance) const {
  const auto* a = dynamic_cast<const KC2DArc*>(&other);
  return a != nullptr && a->m_ccw == m_ccw && Near(m_start, a->m_start, tolerance) &&
         Near(m_end, a->m_end, tolerance) && Near(m_center, a->m_center, tolerance);
}

void KC2DArc::MirrorX() {
  m_start.MirrorX();
  m_end.MirrorX();
  m_center.MirrorX();
  m_ccw = !m_ccw;
}

void KC2DArc::MirrorY() {
  m_start.MirrorY();
  m_end.MirrorY();
  m_center.MirrorY();
  m_ccw = !m_ccw;
}

void KC2DArc::RotateAxis(double angleRad) {
  m_start.RotateAxis(angleRad);
  m_end.RotateAxis(angleRad);
  m_center.RotateAxis(angleRad);
}

void KC2DArc::Scale(double factor) {
  m_start.Scale(factor);
  m_end.Scale(factor);
  m_center.Scale(factor);
}

void KC2DArc::ScaleX(double factor) {
  m_start.ScaleX(factor);
  m_end.ScaleX(factor);
  m_center.ScaleX(factor);
  if (factor < 0.0) {
    m_ccw = !m_ccw;
  }
}

void KC2DArc::ScaleY(double factor) {
  m_start.ScaleY(factor);
  m_end.ScaleY(factor);
  m_center.ScaleY(factor);
  if (factor < 0.0) {
    m_ccw = !m_ccw;
  }
}

void KC2DArc::Translate(double dx, double dy) {
  m_start.Translate(dx, dy);
  m_end.Translate(dx, dy);
  m_center.Translate(dx, dy);
}

void KC2DArc::AddAsPolygon(KC2DPointList& points) const {
  AddAsPolygonMaxAngle(points, kArcPolygonStep);
}

bool KC2DArc::Read(const KCString& name, KCParagraph* paragraph, int digits) {
  const KCParagraph* section = SectionForRead(name, paragraph, "Arc");
  double v[6];
  if (section == nullptr || !ReadValues(*section, kArcKeys, v, digits)) {
    return false;
  }
  const KCString direction = section->GetValue("Direction");
  if (direction != KCString("CCW") && direction != KCString("CW")) {
    return false;
  }
  m_start.Set(v[0], v[1]);
  m_end.Set(v[2], v[3]);
  m_center.Set(v[4], v[5]);
  m_ccw = direction == KCString("CCW");
  return true;
}

bool KC2DArc::Write(const KCString& name, KCParagraph* paragraph, int digits) const {
  KCParagraph* section = SectionForWrite(name, paragraph, "Arc");
  if (section == nullptr) {
    return false;
  }
  const double v[6] = {m_start.GetX(), m_start.GetY(),  m_end.GetX(),
                       m_end.GetY(),   m_center.GetX(), m_center.GetY()};
  WriteValues(*section, kArcKeys, v, digits);
  section->WriteString("Direction", m_ccw ? "CCW" : "CW");
  return true;
}

// ---------------------------------------------------------------------------------------------------------
// KC2DRectangle

KC2DRectangle::KC2DRectangle(double x1, double y1, double x2, double y2) noexcept {
  SetCorners(x1, y1, x2, y2);
}

KC2DRectangle::KC2DRectangle(const KC2DPoint& a, const KC2DPoint& b) noexcept {
  SetCorners(a.GetX(), a.GetY(), b.GetX(), b.GetY());
}

void KC2DRectangle::SetCorners(double x1, double y1, double x2, double y2) noexcept {
  m_minX = std::min(x1, x2);
  m_maxX = std::max(x1, x2);
  m_minY = std::min(y1, y2);
  m_maxY = std::max(y1, y2);
}

KC2DElement* KC2DRectangle::Clone() const {
  return new KC2DRectangle(*this);
}

bool KC2DRectangle::Accept(KC2DElementVisitor& visitor) {
  return visitor.Visit(*this);
}

KC2DPoint KC2DRectangle::GetParametricPoint(double t) const {
  if (!(t > 0.0)) {
    t = 0.0;  // also NaN
  }
  if (t > 1.0) {
    t = 1.0;
  }
  const double w = GetWidth();
  const double h = GetHeight();
  double d = t * Len();
  if (d <= w) {
    return KC2DPoint(m_minX + d, m_minY);
  }
  d -= w;
  if (d <= h) {
    return KC2DPoint(m_maxX, m_minY + d);
  }
  d -= h;
  if (d <= w) {
    return KC2DPoint(m_maxX - d, m_maxY);
  }
  d -= w;
  return KC2DPoint(m_minX, m_maxY - std::min(d, h));
}

double KC2DRectangle::Len() const {
  return 2.0 * (GetWidth() + GetHeight());
}

bool KC2DRectangle::IsAlmostEq(const KC2DElement& other, double tolerance) const {
  const auto* r = dynamic_cast<const KC2DRectangle*>(&other);
  return r != nullptr && std::fabs(m_minX - r->m_minX) <= tolerance &&
         std::fabs(m_minY - r->m_minY) <= tolerance && std::fabs(m_maxX - r->m_maxX) <= tolerance &&
         std::fabs(m_maxY - r->m_maxY) <= tolerance;
}

void KC2DRectangle::MirrorX() {
  SetCorners(m_minX, -m_minY, m_maxX, -m_maxY);
}

void KC2DRectangle::MirrorY() {
  SetCorners(-m_minX, m_minY, -m_maxX, m_maxY);
}

void KC2DRectangle::RotateAxis(double angleRad) {
  const KC2DPoint corners[4] = {KC2DPoint(m_minX, m_minY), KC2DPoint(m_maxX, m_minY),
                                KC2DPoint(m_maxX, m_maxY), KC2DPoint(m_minX, m_maxY)};
  KC2DPoint p = RotatedAxisPoint(corners[0], angleRad);
  double minX = p.GetX(), maxX = p.GetX(), minY = p.GetY(), maxY = p.GetY();
  for (int i = 1; i < 4; ++i) {
    p = RotatedAxisPoint(corners[i], angleRad);
    minX = std::min(minX, p.GetX());
    maxX = std::max(maxX, p.GetX());
    minY = std::min(minY, p.GetY());
    maxY = std::max(maxY, p.GetY());
  }
  SetCorners(minX, minY, maxX, maxY);
}

void KC2DRectangle::Scale(double factor) {
  SetCorners(m_minX * factor, m_minY * factor, m_maxX * factor, m_maxY * factor);
}

void KC2DRectangle::ScaleX(double factor) {
  SetCorners(m_minX * factor, m_minY, m_maxX * factor, m_maxY);
}

void KC2DRectangle::ScaleY(double factor) {
  SetCorners(m_minX, m_minY * factor, m_maxX, m_maxY * factor);
}

void KC2DRectangle::Translate(double dx, double dy) {
  m_minX += dx;
  m_maxX += dx;
  m_minY += dy;
  m_maxY += dy;
}

void KC2DRectangle::AddAsPolygon(KC2DPointList& points) const {
  points.emplace_back(m_minX, m_minY);
  points.emplace_back(m_maxX, m_minY);
  points.emplace_back(m_maxX, m_maxY);
  points.emplace_back(m_minX, m_maxY);
  points.emplace_back(m_minX, m_minY);
}

bool KC2DRectangle::Read(const KCString& name, KCParagraph* paragraph, int digits) {
  const KCParagraph* section = SectionForRead(name, paragraph, "Rectangle");
  double v[4];
  if (section == nullptr || !ReadValues(*section, kRectangleKeys, v, digits)) {
    return false;
  }
  SetCorners(v[0], v[1], v[2], v[3]);
  return true;
}

bool KC2DRectangle::Write(const KCString& name, KCParagraph* paragraph, int digits) const {
  KCParagraph* section = SectionForWrite(name, paragraph, "Rectangle");
  if (section == nullptr) {
    return false;
  }
  const double v[4] = {m_minX, m_minY, m_maxX, m_maxY};
  WriteValues(*section, kRectangleKeys, v, digits);
  return true;
}
