// SPDX-License-Identifier: MIT
#include "ncappkit/geometry/CMath2D.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <typeinfo>

#include "geometry/CircleKernels.h"
#include "ncappkit/foundation/KCGeometry.h"

using ncappkit_geometry::CircleCircle;
using ncappkit_geometry::HorLineCircle;
using ncappkit_geometry::SetPoint;
using ncappkit_geometry::VerLineCircle;

// Keeps a rarely taken part of a hot function out of its body.
#if defined(__GNUC__)
#define NCAPPKIT_NOINLINE __attribute__((noinline))
#else
#define NCAPPKIT_NOINLINE
#endif

namespace {

// Cd2DPoint ==: coordinates differing by at most this are equal.
constexpr double kPointEqualTolerance = 1e-7;
// IsHorizontal / IsVertical of a line: a coordinate difference strictly below this.
constexpr double kLineAxisTolerance = 1e-7;
// GetAngleRad: a line shorter than this in both x and y has angle 0.
constexpr double kLineAngleDegenerateTolerance = 1e-4;
// IsCircle: start and end within this in each coordinate.
constexpr double kArcClosedTolerance = 1e-6;
// CalcArcPointAngleRad: a point within this of the centre in both coordinates has angle 0.
constexpr double kArcPointAngleDegenerateTolerance = 1e-4;
// AngleOnCCWArcSegment: angles (degrees) this close to an end match it; also start == end and +-180 snapping.
constexpr double kAngleEndTolerance = 1e-6;
// AngleOnCCWArcSegment: the inside of the sweep is widened by this many degrees on both sides.
constexpr double kAngleInsideTolerance = 1e-7;
// ProjectedPointOnArcWc: a point closer than this to the centre has no radial direction.
constexpr double kProjectCentreTolerance = 1e-8;
// PointBelongsToLine: the segment's box is widened by this on every side.
constexpr double kBelongsBoxTolerance = 1e-5;
// ProjectPoint: a difference below this makes the line vertical (dx) or horizontal (dy).
constexpr double kProjectAxisTolerance = 1e-7;
// GetIntersectPoint: below this a difference counts as zero (vertical line) and slopes as equal.
constexpr double kLineLineTolerance = 1e-8;
// GetParallelLine / GetParallelLinesAtDist: below this a line is treated as vertical (dx) or horizontal (dy).
constexpr double kParallelAxisTolerance = 0.001;
// GetIntersection arc–line: below this the line is horizontal/vertical, and a smaller slope finds nothing.
constexpr double kArcLineAxisTolerance = 1e-5;
// GetIntersection arc–line: discriminants below -this miss; within this of zero they are zero.
constexpr double kArcLineDiscriminantTolerance = 1e-6;
// DistancePoint2Line on a segment decides between the perpendicular distance and the nearer end by the foot
// of the perpendicular: on the segment within KCGeometry::kOnLineTolerance, or kOnLineRoundingUnits (8) units
// in the last place of the line's largest coordinate M. Computing the foot rounds it by at most 5 units in
// the last place of M per coordinate, so a foot whose parameter t lies in [share, 1 - share] passes that test
// for certain, and one with t below -share or above 1 + share fails it for certain, when the segment is long
// enough for the share of its length to dwarf those errors: at least the root of kDistanceClearMinLength2
// and kDistanceClearMinUlps units in the last place of M. Such clear cases skip the foot. The share carries a
// margin for the rounding of t itself; coordinates above kDistanceClearMaxMagnitude (squares near overflow,
// infinities) always take the exact test.
constexpr double kDistanceClearShare = 1.001e-3;
constexpr double kDistanceClearMinLength2 = 1e-10;  // (1e-5)^2: 1e-3 of it is ten times kOnLineTolerance
constexpr double kDistanceClearMinUlps = 1e5;
constexpr double kDistanceClearMaxMagnitude = 1e150;
// GetCircleTangentPoints: the point must lie farther than r + this from the centre.
constexpr double kTangentOutsideTolerance = 1e-4;

// Distance from (px, py) to the nearer of the two ends, the start on a tie. The squares are compared and
// one root is taken: the root is monotonic, so this is the smaller of the two roots (equal roots are the same
// value), and a NaN square loses to the other as a NaN root would.
inline double NearerEndDistance(double sx, double sy, double ex, double ey, double px, double py) noexcept {
  const double toStart2 = (sx - px) * (sx - px) + (sy - py) * (sy - py);
  const double toEnd2 = (ex - px) * (ex - px) + (ey - py) * (ey - py);
  return std::sqrt(toEnd2 < toStart2 ? toEnd2 : toStart2);
}

double ArcPointAngleRad(double cx, double cy, double x, double y) {
  const double dx = x - cx;
  const double dy = y - cy;
  if (std::fabs(dx) < kArcPointAngleDegenerateTolerance &&
      std::fabs(dy) < kArcPointAngleDegenerateTolerance) {
    return 0.0;
  }
  return std::atan2(dy, dx);
}

// Direction of travel at (x, y) of an arc; the arc type decides the quarter turn.
double TravelAngleRad(const KCI_d2DArc& arc, double x, double y) {
  const double a = std::atan2(y - arc.GetCenterY(), x - arc.GetCenterX());
  if (arc.IsArcCCW()) {
    return a + CMath2D::HalfPI();
  }
  if (arc.IsArcCW()) {
    return a - CMath2D::HalfPI();
  }
  throw CMath2D::IMath2DException();
}

// Truncation toward zero that stays defined for every double: beyond the int range it saturates, NaN gives 0.
int TruncateToInt(double v) {
  if (std::isnan(v)) {
    return 0;
  }
  if (v >= static_cast<double>(std::numeric_limits<int>::max())) {
    return std::numeric_limits<int>::max();
  }
  if (v <= static_cast<double>(std::numeric_limits<int>::min())) {
    return std::numeric_limits<int>::min();
  }
  return static_cast<int>(v);
}

bool InBox(double a, double b, double v) {
  return std::min(a, b) <= v && std::max(a, b) >= v;
}

}  // namespace

// ---------------------------------------------------------------------------------------------------------
// value types

CMath2D::Ci2DPoint::~Ci2DPoint() = default;
CMath2D::Cd2DPoint::~Cd2DPoint() = default;
CMath2D::Ci2DLine::~Ci2DLine() = default;
CMath2D::Cd2DLine::~Cd2DLine() = default;
CMath2D::Ci2DArc::~Ci2DArc() = default;
CMath2D::Cd2DArc::~Cd2DArc() = default;
CMath2D::~CMath2D() = default;

bool CMath2D::Cd2DPoint::operator==(const Cd2DPoint& other) const {
  // Written as "not within" so that a NaN coordinate makes the points unequal.
  if (!(std::fabs(m_x - other.GetX()) <= kPointEqualTolerance)) {
    return false;
  }
  return std::fabs(m_y - other.GetY()) <= kPointEqualTolerance;
}

bool CMath2D::Cd2DPoint::operator!=(const Cd2DPoint& other) const {
  return !(*this == other);
}

CMath2D::Cd2DPoint CMath2D::Cd2DPoint::operator+(const Cd2DPoint& other) const {
  return Cd2DPoint(m_x + other.GetX(), m_y + other.GetY());
}

CMath2D::Cd2DPoint CMath2D::Cd2DPoint::operator-(const Cd2DPoint& other) const {
  return Cd2DPoint(m_x - other.GetX(), m_y - other.GetY());
}

CMath2D::Cd2DLine::Cd2DLine(const KCI_d2DPoint& start, const KCI_d2DPoint& end)
    : m_startX(start.GetX()), m_startY(start.GetY()), m_endX(end.GetX()), m_endY(end.GetY()) {}

CMath2D::Cd2DArc::Cd2DArc(const Ci2DArc& arc)
    : m_arcType(static_cast<eArcType>(arc.GetArcType())),
      m_startX(arc.GetStartX()),
      m_startY(arc.GetStartY()),
      m_endX(arc.GetEndX()),
      m_endY(arc.GetEndY()),
      m_centerX(arc.GetCenterX()),
      m_centerY(arc.GetCenterY()) {}

double CMath2D::Cd2DArc::GetRadius() const {
  const double dx = m_endX - m_centerX;
  const double dy = m_endY - m_centerY;
  return std::sqrt(dy * dy + dx * dx);
}

// ---------------------------------------------------------------------------------------------------------
// basic measures

double CMath2D::GetDistance(const KCI_d2DPoint& a, const KCI_d2DPoint& b) {
  return GetDistance(a.GetX(), a.GetY(), b.GetX(), b.GetY());
}

double CMath2D::GetDistance(double x1, double y1, double x2, double y2) noexcept {
  const double dx = x2 - x1;
  const double dy = y2 - y1;
  return std::sqrt(dx * dx + dy * dy);
}

double CMath2D::GetDistance(const KCI_i2DPoint& a, const KCI_i2DPoint& b) {
  return GetDistance(a.GetX(), a.GetY(), b.GetX(), b.GetY());
}

double CMath2D::GetDistance(int x1, int y1, int x2, int y2) noexcept {
  // Differences in double: int differences of far-apart points would overflow.
  const double d = GetDistance(static_cast<double>(x1), static_cast<double>(y1), static_cast<double>(x2),
                               static_cast<double>(y2));
  return std::trunc(d + 0.5);  // same as an int truncation, without its range limit
}

double CMath2D::GetDistanceSquare(const KCI_d2DPoint& a, const KCI_d2DPoint& b) {
  const double dx = b.GetX() - a.GetX();
  const double dy = b.GetY() - a.GetY();
  return dx * dx + dy * dy;
}

double CMath2D::GetLength(const KCI_d2DLine& line) {
  return GetDistance(line.GetStartX(), line.GetStartY(), line.GetEndX(), line.GetEndY());
}

void CMath2D::GetMiddle(const KCI_d2DPoint& a, const KCI_d2DPoint& b, KCI_d2DPoint& out) {
  SetPoint(out, (a.GetX() + b.GetX()) * 0.5, (a.GetY() + b.GetY()) * 0.5);
}

void CMath2D::GetCenter(const KCI_d2DLine& line, KCI_d2DPoint& out) {
  SetPoint(out, (line.GetStartX() + line.GetEndX()) * 0.5, (line.GetStartY() + line.GetEndY()) * 0.5);
}

bool CMath2D::IsHorizontal(const KCI_d2DLine& line) {
  return std::fabs(line.GetEndY() - line.GetStartY()) < kLineAxisTolerance;
}

bool CMath2D::IsVertical(const KCI_d2DLine& line) {
  return std::fabs(line.GetEndX() - line.GetStartX()) < kLineAxisTolerance;
}

double CMath2D::GetAngleRad(const KCI_d2DLine& line) {
  const double dx = line.GetEndX() - line.GetStartX();
  const double dy = line.GetEndY() - line.GetStartY();
  if (std::fabs(dx) < kLineAngleDegenerateTolerance && std::fabs(dy) < kLineAngleDegenerateTolerance) {
    return 0.0;
  }
  return std::atan2(dy, dx);
}

double CMath2D::GetAngleDeg(const KCI_d2DLine& line) {
  return Rad2Deg(GetAngleRad(line));
}

// ---------------------------------------------------------------------------------------------------------
// arcs

bool CMath2D::IsCircle(const KCI_d2DArc& arc) {
  return std::fabs(arc.GetStartX() - arc.GetEndX()) <= kArcClosedTolerance &&
         std::fabs(arc.GetStartY() - arc.GetEndY()) <= kArcClosedTolerance;
}

double CMath2D::GetArcRadius(const KCI_d2DArc& arc) {
  const double dx = arc.GetStartX() - arc.GetCenterX();
  const double dy = arc.GetStartY() - arc.GetCenterY();
  return std::sqrt(dx * dx + dy * dy);
}

double CMath2D::DistanceCenterOfArc2Point(const KCI_d2DArc& arc, const KCI_d2DPoint& p) {
  return GetDistance(arc.GetCenterX(), arc.GetCenterY(), p.GetX(), p.GetY());
}

double CMath2D::CalcArcPointAngleRad(const KCI_d2DArc& arc, double x, double y) {
  return ArcPointAngleRad(arc.GetCenterX(), arc.GetCenterY(), x, y);
}

double CMath2D::CalcArcPointAngleDeg(const KCI_d2DArc& arc, double x, double y) {
  return Rad2Deg(CalcArcPointAngleRad(arc, x, y));
}

double CMath2D::GetArcAngleDeg(const KCI_d2DArc& arc) {
  if (IsCircle(arc)) {
    return 360.0;
  }
  double a = CalcArcPointAngleDeg(arc, arc.GetStartX(), arc.GetStartY());
  double b = CalcArcPointAngleDeg(arc, arc.GetEndX(), arc.GetEndY());
  switch (arc.GetArcType()) {
    case KCI_d2DArc::eArcCW:
      if (b > a) {
        a += 360.0;
      }
      return a - b;
    case KCI_d2DArc::eArcCCW:
      if (a > b) {
        b += 360.0;
      }
      return b - a;
    default:
      return 0.0;
  }
}

double CMath2D::GetArcLength(const KCI_d2DArc& arc) {
  return (GetArcAngleDeg(arc) / 360.0) * GetArcRadius(arc) * DoublePI();
}

double CMath2D::GetStartAngleRad(const KCI_d2DArc& arc) {
  return TravelAngleRad(arc, arc.GetStartX(), arc.GetStartY());
}

double CMath2D::GetStartAngleDeg(const KCI_d2DArc& arc) {
  return Rad2Deg(GetStartAngleRad(arc));
}

double CMath2D::GetStartAngleTangentRad(const KCI_d2DArc& arc) {
  return TravelAngleRad(arc, arc.GetStartX(), arc.GetStartY());
}

double CMath2D::GetStartAngleTangentDeg(const KCI_d2DArc& arc) {
  return Rad2Deg(GetStartAngleTangentRad(arc));
}

double CMath2D::GetEndAngleRad(const KCI_d2DArc& arc) {
  return TravelAngleRad(arc, arc.GetEndX(), arc.GetEndY());
}

double CMath2D::GetEndAngleDeg(const KCI_d2DArc& arc) {
  return Rad2Deg(GetEndAngleRad(arc));
}

double CMath2D::GetEndAngleTangentRad(const KCI_d2DArc& arc) {
  return TravelAngleRad(arc, arc.GetEndX(), arc.GetEndY());
}

double CMath2D::GetEndAngleTangentDeg(const KCI_d2DArc& arc) {
  return Rad2Deg(GetEndAngleTangentRad(arc));
}

bool CMath2D::AngleOnCCWArcSegment(const KCI_d2DArc& arc, double s, double e, double a) {
  if (std::fabs(a - s) < kAngleEndTolerance || std::fabs(a - e) < kAngleEndTolerance) {
    return true;
  }
  if (std::fabs(s - e) < kAngleEndTolerance) {
    return false;
  }
  bool result = false;
  const int type = arc.GetArcType();
  if (type == KCI_d2DArc::eArcCCW) {
    if (std::fabs(s - 180.0) < kAngleEndTolerance) {
      s = -180.0;
    }
    if (std::fabs(e - (-180.0)) < kAngleEndTolerance) {
      e = 180.0;
    }
    if (s > e) {
      e += 360.0;
    }
    if (s > a) {
      a += 360.0;
    }
    result = s - kAngleInsideTolerance <= a && a <= e + kAngleInsideTolerance;
  }
  if (type == KCI_d2DArc::eArcCW) {
    if (std::fabs(s - (-180.0)) < kAngleEndTolerance) {
      s = 180.0;
    }
    if (std::fabs(e - 180.0) < kAngleEndTolerance) {
      e = -180.0;
    }
    if (e > s) {
      s += 360.0;
    }
    if (e > a) {
      a += 360.0;
    }
    result = e - kAngleInsideTolerance <= a && a <= s + kAngleInsideTolerance;
  }
  return IsCircle(arc) ? true : result;
}

bool CMath2D::PointIsBetweenStartAndEndWc(const KCI_d2DArc& arc, const KCI_d2DPoint& p) {
  if (IsCircle(arc)) {
    return true;
  }
  const double s = Rad2Deg(CalcArcPointAngleRad(arc, arc.GetStartX(), arc.GetStartY()));
  const double e = Rad2Deg(CalcArcPointAngleRad(arc, arc.GetEndX(), arc.GetEndY()));
  const double a = Rad2Deg(CalcArcPointAngleRad(arc, p.GetX(), p.GetY()));
  return AngleOnCCWArcSegment(arc, s, e, a);
}

void CMath2D::GetArcPointByOffset(const KCI_d2DArc& arc, double fraction, double& x, double& y) {
  double a = CalcArcPointAngleDeg(arc, arc.GetStartX(), arc.GetStartY());
  const double s = GetArcAngleDeg(arc) * fraction;
  if (arc.IsArcCCW()) {
    a += s;
  } else if (arc.IsArcCW()) {
    a -= s;
  }
  const double rad = Deg2Rad(a);
  const double r = GetArcRadius(arc);
  x = arc.GetCenterX() + std::cos(rad) * r;
  y = arc.GetCenterY() + std::sin(rad) * r;
}

void CMath2D::GetArcPointByOffset(const KCI_d2DArc& arc, double fraction, KCI_d2DPoint& out) {
  double x = 0.0;
  double y = 0.0;
  GetArcPointByOffset(arc, fraction, x, y);
  SetPoint(out, x, y);
}

void CMath2D::GetArcPointByOffset(const KCI_i2DArc& arc, double fraction, int& x, int& y) {
  // Only counter-clockwise survives as such; anything else (type 0 included) is taken as clockwise.
  const Cd2DArc d(arc.IsArcCCW() ? Cd2DArc::eArcCCW : Cd2DArc::eArcCW, arc.GetStartX(), arc.GetStartY(),
                  arc.GetEndX(), arc.GetEndY(), arc.GetCenterX(), arc.GetCenterY());
  double dx = 0.0;
  double dy = 0.0;
  GetArcPointByOffset(d, fraction, dx, dy);
  x = TruncateToInt(dx);
  y = TruncateToInt(dy);
}

void CMath2D::GetArcPointByOffset(const KCI_i2DArc& arc, double fraction, KCI_i2DPoint& out) {
  int x = 0;
  int y = 0;
  GetArcPointByOffset(arc, fraction, x, y);
  out.SetX(x);
  out.SetY(y);
}

bool CMath2D::ProjectedPointOnArcWc(const KCI_d2DArc& arc, const KCI_d2DPoint& p, KCI_d2DPoint& out) {
  const double d = DistanceCenterOfArc2Point(arc, p);
  if (std::fabs(d) < kProjectCentreTolerance) {
    return false;
  }
  const double k = GetArcRadius(arc) / d;
  const double cx = arc.GetCenterX();
  const double cy = arc.GetCenterY();
  SetPoint(out, cx + (p.GetX() - cx) * k, cy + (p.GetY() - cy) * k);
  return true;
}

void CMath2D::GetArcAnchorPoints(const KCI_d2DArc& arc, KC2DPointList& points) {
  const double r = GetArcRadius(arc);
  const double cx = arc.GetCenterX();
  const double cy = arc.GetCenterY();
  if (IsCircle(arc)) {
    points.emplace_back(cx + r, cy);
    points.emplace_back(cx, cy + r);
    points.emplace_back(cx - r, cy);
    points.emplace_back(cx, cy - r);
    return;
  }
  const double s = CalcArcPointAngleDeg(arc, arc.GetStartX(), arc.GetStartY());
  const double e = CalcArcPointAngleDeg(arc, arc.GetEndX(), arc.GetEndY());
  const bool at0 = AngleOnCCWArcSegment(arc, s, e, 0.0);
  const bool at90 = AngleOnCCWArcSegment(arc, s, e, 90.0);
  const bool at180 = AngleOnCCWArcSegment(arc, s, e, 180.0);
  const bool atMinus90 = AngleOnCCWArcSegment(arc, s, e, -90.0);
  // The 90 and 180 degree flags choose each other's points; drawing code built on this pairing.
  if (at0) {
    points.emplace_back(cx + r, cy);
  }
  if (at180) {
    points.emplace_back(cx, cy + r);
  }
  if (at90) {
    points.emplace_back(cx - r, cy);
  }
  if (atMinus90) {
    points.emplace_back(cx, cy - r);
  }
}

void CMath2D::GetRectangle(const KCI_d2DArc& arc, KC2DArea& area) {
  KC2DArea box;
  box.ApplyPoint(arc.GetStartX(), arc.GetStartY());
  box.ApplyPoint(arc.GetEndX(), arc.GetEndY());
  const double r = GetArcRadius(arc);
  const double cx = arc.GetCenterX();
  const double cy = arc.GetCenterY();
  const double s = CalcArcPointAngleDeg(arc, arc.GetStartX(), arc.GetStartY());
  const double e = CalcArcPointAngleDeg(arc, arc.GetEndX(), arc.GetEndY());
  const bool circle = IsCircle(arc);
  if (circle || AngleOnCCWArcSegment(arc, s, e, 0.0)) {
    box.ApplyPoint(cx + r, cy);
  }
  if (circle || AngleOnCCWArcSegment(arc, s, e, 90.0)) {
    box.ApplyPoint(cx, cy + r);
  }
  if (circle || AngleOnCCWArcSegment(arc, s, e, 180.0)) {
    box.ApplyPoint(cx - r, cy);
  }
  if (circle || AngleOnCCWArcSegment(arc, s, e, -90.0)) {
    box.ApplyPoint(cx, cy - r);
  }
  area = box;
}

void CMath2D::GetRectangle(const KCI_d2DLine& line, KC2DArea& area) {
  // The box is built and dropped: callers pass their area through unchanged and depend on that.
  KC2DArea box;
  box.ApplyPoint(line.GetStartX(), line.GetStartY());
  box.ApplyPoint(line.GetEndX(), line.GetEndY());
  static_cast<void>(area);
}

// ---------------------------------------------------------------------------------------------------------
// lines

// The distance is computed on plain coordinates, with the very operations of the KCGeometry route (project
// the point on the line, test the foot with Point2DOnClosedLine, then the perpendicular distance or the
// nearer end), so every result, the degenerate ones included, is the same bit for bit. Clear cases skip the
// foot (see the kDistanceClear... block above); the exact test is a function of its own that works from the
// coordinates alone, since handing it the values the clear cases computed kept more of them alive across the
// call and made the common path slower (measured).
namespace {

// DistancePoint2Line's exact test of the foot, for the cases the clear ones leave. Kept out of line, so that
// the clear cases make a short function.
NCAPPKIT_NOINLINE double ExactPointSegmentDistance(double sx, double sy, double ex, double ey, double px,
                                                   double py, bool segment) {
  const double dx = ex - sx;
  const double dy = ey - sy;
  const double len2 = dx * dx + dy * dy;

  // The foot only decides between the perpendicular and the nearer end, so the infinite line skips it.
  bool perpendicular = true;
  if (segment) {
    const double along = dx * (px - sx) + dy * (py - sy);  // the foot's parameter times len2
    const double magnitude = std::max({std::fabs(sx), std::fabs(sy), std::fabs(ex), std::fabs(ey)});
    // KCGeometry::ProjectPointOnLine: a zero-length line projects everything on its start point.
    double fx = sx;
    double fy = sy;
    if (len2 != 0.0) {
      const double t = along / len2;
      fx = sx + t * dx;
      fy = sy + t * dy;
    }
    // KCGeometry::Point2DOnClosedLine(line, foot) > 0: at the start, at the end, or inside within a
    // tolerance that grows with the line's coordinates (kOnLineRoundingUnits units in the last place of the
    // largest).
    constexpr double kTolerance = KCGeometry::kOnLineTolerance;
    constexpr double kTolerance2 = kTolerance * kTolerance;
    const double lineTolerance = std::max(
        kTolerance, KCGeometry::kOnLineRoundingUnits * std::numeric_limits<double>::epsilon() * magnitude);
    const double fsx = fx - sx;
    const double fsy = fy - sy;
    const double fex = fx - ex;
    const double fey = fy - ey;
    if (fsx * fsx + fsy * fsy <= kTolerance2 || fex * fex + fey * fey <= kTolerance2) {
      perpendicular = true;
    } else if (!(len2 > 0.0)) {
      perpendicular = false;
    } else {
      const double cross = dx * fsy - dy * fsx;
      const double dot = dx * fsx + dy * fsy;
      perpendicular = cross * cross <= lineTolerance * lineTolerance * len2 && dot >= 0.0 && dot <= len2;
    }
  }
  if (perpendicular) {
    // KCGeometry::GetDistanceLinePoint: |cross(e - s, p - s)| / |e - s|, or the distance to the start
    // point of a zero-length line.
    const double len = std::sqrt(len2);
    if (len == 0.0)
      return std::sqrt((px - sx) * (px - sx) + (py - sy) * (py - sy));
    return std::fabs(dx * (py - sy) - dy * (px - sx)) / len;
  }
  return NearerEndDistance(sx, sy, ex, ey, px, py);
}

}  // namespace

double CMath2D::DistancePoint2Line(const KCI_d2DLine& line, const KCI_d2DPoint& p, bool segment) {
  double sx = 0.0;
  double sy = 0.0;
  double ex = 0.0;
  double ey = 0.0;
  double px = 0.0;
  double py = 0.0;
  // The library's own value types (the common case) are read without six virtual calls: the identity of
  // their type information is enough to know them. Anything else goes through the interfaces.
  if (&typeid(line) == &typeid(Cd2DLine) && &typeid(p) == &typeid(Cd2DPoint)) {
    const auto& l = static_cast<const Cd2DLine&>(line);
    const auto& q = static_cast<const Cd2DPoint&>(p);
    sx = l.Cd2DLine::GetStartX();
    sy = l.Cd2DLine::GetStartY();
    ex = l.Cd2DLine::GetEndX();
    ey = l.Cd2DLine::GetEndY();
    px = q.Cd2DPoint::GetX();
    py = q.Cd2DPoint::GetY();
  } else {
    sx = line.GetStartX();
    sy = line.GetStartY();
    ex = line.GetEndX();
    ey = line.GetEndY();
    px = p.GetX();
    py = p.GetY();
  }
  if (segment) {
    // Clear cases first (see the kDistanceClear... block above): a foot well inside the segment or well
    // outside it gets the answer the exact test would give, without computing the foot.
    const double dx = ex - sx;
    const double dy = ey - sy;
    const double len2 = dx * dx + dy * dy;
    const double along = dx * (px - sx) + dy * (py - sy);  // the foot's parameter times len2
    const double magnitude = std::max({std::fabs(sx), std::fabs(sy), std::fabs(ex), std::fabs(ey)});
    const double minLength = kDistanceClearMinUlps * std::numeric_limits<double>::epsilon() * magnitude;
    if (magnitude <= kDistanceClearMaxMagnitude && len2 >= kDistanceClearMinLength2 &&
        len2 >= minLength * minLength) {
      if (along >= kDistanceClearShare * len2 && along <= (1.0 - kDistanceClearShare) * len2)
        return std::fabs(dx * (py - sy) - dy * (px - sx)) / std::sqrt(len2);
      if (along <= -kDistanceClearShare * len2 || along >= (1.0 + kDistanceClearShare) * len2)
        return NearerEndDistance(sx, sy, ex, ey, px, py);
    }
  }
  return ExactPointSegmentDistance(sx, sy, ex, ey, px, py, segment);
}

void CMath2D::DistancePoint2Line(const KCI_d2DLine& line, const KCI_d2DPoint& p, double& dist, bool segment) {
  dist = DistancePoint2Line(line, p, segment);
}

bool CMath2D::PointBelongsToLine(const KCI_d2DLine& line, double x, double y) {
  const double sx = line.GetStartX();
  const double sy = line.GetStartY();
  const double ex = line.GetEndX();
  const double ey = line.GetEndY();
  return std::min(sx, ex) <= x + kBelongsBoxTolerance && std::max(sx, ex) >= x - kBelongsBoxTolerance &&
         std::min(sy, ey) <= y + kBelongsBoxTolerance && std::max(sy, ey) >= y - kBelongsBoxTolerance;
}

bool CMath2D::ProjectPointBelongsToLine(const KCI_d2DLine& line, const KCI_d2DPoint& p) {
  return PointBelongsToLine(line, p.GetX(), p.GetY());
}

bool CMath2D::ProjectPoint(const KCI_d2DLine& line, const KCI_d2DPoint& p, double& x, double& y) {
  const double sx = line.GetStartX();
  const double sy = line.GetStartY();
  const double dx = line.GetEndX() - sx;
  const double dy = line.GetEndY() - sy;
  const double px = p.GetX();
  const double py = p.GetY();
  if (std::fabs(dx) < kProjectAxisTolerance) {
    x = sx;
    y = py;
  } else if (std::fabs(dy) < kProjectAxisTolerance) {
    x = px;
    y = sy;
  } else {
    const double m = dy / dx;
    const double n = -dx / dy;
    const double b = sy - m * sx;
    const double c = py - n * px;
    x = (c - b) / (m - n);
    y = x * n + c;
  }
  return true;
}

bool CMath2D::ProjectPoint(const KCI_d2DLine& line, const KCI_d2DPoint& p, KCI_d2DPoint& out) {
  double x = 0.0;
  double y = 0.0;
  ProjectPoint(line, p, x, y);
  SetPoint(out, x, y);
  return true;
}

bool CMath2D::GetIntersectPoint(const KCI_d2DLine& a, const KCI_d2DLine& b, KCI_d2DPoint& out) {
  const double asx = a.GetStartX();
  const double asy = a.GetStartY();
  const double bsx = b.GetStartX();
  const double bsy = b.GetStartY();
  const double dxa = a.GetEndX() - asx;
  const double dya = a.GetEndY() - asy;
  const double dxb = b.GetEndX() - bsx;
  const double dyb = b.GetEndY() - bsy;
  // Each case is tested as stated, so a NaN difference (neither above nor at most the tolerance) matches
  // none.
  const bool aSloped = std::fabs(dxa) > kLineLineTolerance;
  const bool bSloped = std::fabs(dxb) > kLineLineTolerance;
  const bool aVertical = std::fabs(dxa) <= kLineLineTolerance;
  const bool bVertical = std::fabs(dxb) <= kLineLineTolerance;
  if (aSloped && bSloped) {
    const double ma = dya / dxa;
    const double mb = dyb / dxb;
    if (std::fabs(ma - mb) <= kLineLineTolerance) {
      return false;  // parallel, collinear included
    }
    const double ba = asy - asx * ma;
    const double bb = bsy - bsx * mb;
    out.SetX((bb - ba) / (ma - mb));
    out.SetY(out.GetX() * ma + ba);
    return true;
  }
  if (aVertical && bSloped) {
    const double mb = dyb / dxb;
    const double bb = bsy - bsx * mb;
    out.SetX(asx);
    out.SetY(out.GetX() * mb + bb);
    return true;
  }
  if (aSloped && bVertical) {
    const double ma = dya / dxa;
    const double ba = asy - asx * ma;
    out.SetX(bsx);
    out.SetY(out.GetX() * ma + ba);
    return true;
  }
  return false;  // both vertical (or a NaN difference)
}

bool CMath2D::GetIntersectPoint(const KCI_d2DLine& a, const KCI_d2DLine& b, KCI_d2DPoint& out, bool onA,
                                bool onB) {
  if (!GetIntersectPoint(a, b, out)) {
    return false;
  }
  const double x = out.GetX();
  const double y = out.GetY();
  if (onA && !(InBox(a.GetStartX(), a.GetEndX(), x) && InBox(a.GetStartY(), a.GetEndY(), y))) {
    return false;
  }
  if (onB && !(InBox(b.GetStartX(), b.GetEndX(), x) && InBox(b.GetStartY(), b.GetEndY(), y))) {
    return false;
  }
  return true;
}

bool CMath2D::GetParallelLine(const KCI_d2DLine& line, const KCI_d2DPoint& p, KCI_d2DLine& out,
                              double& angleDeg) {
  const double sx = line.GetStartX();
  const double sy = line.GetStartY();
  const double ex = line.GetEndX();
  const double ey = line.GetEndY();
  const double dx = ex - sx;
  const double dy = ey - sy;
  const double px = p.GetX();
  const double py = p.GetY();
  if (std::fabs(dx) < kParallelAxisTolerance) {
    out.SetStartX(px);
    out.SetStartY(sy);
    out.SetEndX(px);
    out.SetEndY(ey);
    angleDeg = 90.0;
  } else if (std::fabs(dy) < kParallelAxisTolerance) {
    out.SetStartX(sx);
    out.SetStartY(py);
    out.SetEndX(ex);
    out.SetEndY(py);
    angleDeg = 0.0;
  } else {
    const double m = dy / dx;
    const double n = -dx / dy;
    const double x1 = (m * px + (sy - py) - n * sx) / (m - n);
    const double y1 = py + (x1 - px) * m;
    const double x2 = (m * px + (ey - py) - n * ex) / (m - n);
    const double y2 = py + (x2 - px) * m;
    out.SetStartX(x1);
    out.SetStartY(y1);
    out.SetEndX(x2);
    out.SetEndY(y2);
    angleDeg = Rad2Deg(std::atan2(dy, dx));
  }
  return true;
}

bool CMath2D::GetParallelLine(const KCI_d2DLine& line, const KCI_d2DPoint& p, KCI_d2DLine& out) {
  double angleDeg = 0.0;
  return GetParallelLine(line, p, out, angleDeg);
}

namespace {
void SetMovedLine(KCI_d2DLine& out, double sx, double sy, double ex, double ey, double mx, double my) {
  out.SetStartX(sx + mx);
  out.SetStartY(sy + my);
  out.SetEndX(ex + mx);
  out.SetEndY(ey + my);
}
}  // namespace

bool CMath2D::GetParallelLinesAtDist(const KCI_d2DLine& line, double dist, KCI_d2DLine& left,
                                     KCI_d2DLine& right, double& angleDeg) {
  const double sx = line.GetStartX();
  const double sy = line.GetStartY();
  const double ex = line.GetEndX();
  const double ey = line.GetEndY();
  const double dx = ex - sx;
  const double dy = ey - sy;
  if (std::fabs(dx) < kParallelAxisTolerance) {
    SetMovedLine(left, sx, sy, ex, ey, -dist, 0.0);
    SetMovedLine(right, sx, sy, ex, ey, dist, 0.0);
    angleDeg = 90.0;
  } else if (std::fabs(dy) < kParallelAxisTolerance) {
    SetMovedLine(left, sx, sy, ex, ey, 0.0, dist);
    SetMovedLine(right, sx, sy, ex, ey, 0.0, -dist);
    angleDeg = 0.0;
  } else {
    const double theta = std::atan2(dy, dx);
    const double c = std::cos(theta) * dist;
    const double s = std::sin(theta) * dist;
    SetMovedLine(left, sx, sy, ex, ey, -s, c);
    SetMovedLine(right, sx, sy, ex, ey, s, -c);
    angleDeg = Rad2Deg(theta);
  }
  return true;
}

bool CMath2D::GetParallelLinesAtDist(const KCI_d2DLine& line, double dist, KCI_d2DLine& left,
                                     KCI_d2DLine& right) {
  double angleDeg = 0.0;
  return GetParallelLinesAtDist(line, dist, left, right, angleDeg);
}

// ---------------------------------------------------------------------------------------------------------
// intersections with arcs

bool CMath2D::GetHorLineIntersection(const KCI_d2DArc& arc, double y, KCI_d2DPoint& p1, KCI_d2DPoint& p2) {
  return HorLineCircle(arc.GetCenterX(), arc.GetCenterY(), GetArcRadius(arc), y, p1, p2);
}

bool CMath2D::GetVerLineIntersection(const KCI_d2DArc& arc, double x, KCI_d2DPoint& p1, KCI_d2DPoint& p2) {
  return VerLineCircle(arc.GetCenterX(), arc.GetCenterY(), GetArcRadius(arc), x, p1, p2);
}

bool CMath2D::GetIntersection(const KCI_d2DArc& arc, const KCI_d2DHorLine& h, KCI_d2DPoint& p1,
                              KCI_d2DPoint& p2) {
  return GetHorLineIntersection(arc, h.GetPosY(), p1, p2);
}

bool CMath2D::GetIntersection(const KCI_d2DArc& arc, const KCI_d2DVerLine& v, KCI_d2DPoint& p1,
                              KCI_d2DPoint& p2) {
  return GetVerLineIntersection(arc, v.GetPosX(), p1, p2);
}

bool CMath2D::GetIntersection(const KCI_d2DArc& arc, const KCI_d2DLine& line, KCI_d2DPoint& p1,
                              KCI_d2DPoint& p2) {
  const double sx = line.GetStartX();
  const double sy = line.GetStartY();
  const double ex = line.GetEndX();
  const double ey = line.GetEndY();
  if (std::fabs(sy - ey) < kArcLineAxisTolerance) {
    return GetHorLineIntersection(arc, sy, p1, p2);
  }
  if (std::fabs(sx - ex) < kArcLineAxisTolerance) {
    return GetVerLineIntersection(arc, sx, p1, p2);
  }
  const double m = (sy - ey) / (sx - ex);
  if (std::fabs(m) < kArcLineAxisTolerance) {
    return false;  // nearly horizontal but past the first test: treated as no intersection
  }
  const double cx = arc.GetCenterX();
  const double cy = arc.GetCenterY();
  const double r = GetArcRadius(arc);
  const double b = sy - sx * m;
  const double qa = 1.0 + m * m;
  const double qb = 2.0 * m * (b - cy) - 2.0 * cx;
  const double qc = (b - cy) * (b - cy) + cx * cx - r * r;
  double d = qb * qb - 4.0 * qa * qc;
  if (d < -kArcLineDiscriminantTolerance) {
    return false;
  }
  if (std::fabs(d) < kArcLineDiscriminantTolerance) {
    d = 0.0;
  }
  const double root = std::sqrt(d);
  p1.SetX((-qb + root) / (2.0 * qa));
  p1.SetY(p1.GetX() * m + b);
  p2.SetX((-qb - root) / (2.0 * qa));
  p2.SetY(p2.GetX() * m + b);
  return true;
}

bool CMath2D::GetIntersection(const KCI_d2DArc& a, const KCI_d2DArc& b, KCI_d2DPoint& p1, KCI_d2DPoint& p2) {
  return CircleCircle(a.GetCenterX(), a.GetCenterY(), GetArcRadius(a), b.GetCenterX(), b.GetCenterY(),
                      GetArcRadius(b), p1, p2);
}

bool CMath2D::GetCircleTangentPoints(const KCI_d2DArc& arc, const KCI_d2DPoint& p, KCI_d2DPoint& t1,
                                     KCI_d2DPoint& t2) {
  const double px = p.GetX();
  const double py = p.GetY();
  const double d = GetDistance(px, py, arc.GetCenterX(), arc.GetCenterY());
  const double r = GetArcRadius(arc);
  if (r + kTangentOutsideTolerance > d) {
    return false;
  }
  const double l = std::sqrt(d * d - r * r);
  // The tangent points are where the circle of radius l around p cuts the arc's circle.
  const Cd2DArc around(Cd2DArc::eArcTypeNone, px + l, py, px + l, py, px, py);
  return GetIntersection(arc, around, t1, t2);
}
