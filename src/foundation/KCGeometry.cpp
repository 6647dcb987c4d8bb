#include "ncappkit/foundation/KCGeometry.h"

#include <cmath>

KCGeometry::~KCGeometry() = default;

bool KCGeometry::GetDistanceLinePoint(const KC2DLine& line, const KC2DPoint& point,
                                      double& distance) noexcept {
  const KC2DPoint s = line.GetStartPoint();
  const KC2DPoint e = line.GetEndPoint();
  const double dx = e.GetX() - s.GetX();
  const double dy = e.GetY() - s.GetY();
  const double len = std::sqrt(dx * dx + dy * dy);
  if (len == 0.0) {
    distance = s.DistanceTo(point);
    return false;
  }
  // |cross(e - s, p - s)| / |e - s|
  distance = std::fabs(dx * (point.GetY() - s.GetY()) - dy * (point.GetX() - s.GetX())) / len;
  return true;
}

bool KCGeometry::ProjectPointOnLine(KC2DPoint& result, const KC2DLine& line,
                                    const KC2DPoint& point) noexcept {
  const KC2DPoint s = line.GetStartPoint();
  const KC2DPoint e = line.GetEndPoint();
  const double dx = e.GetX() - s.GetX();
  const double dy = e.GetY() - s.GetY();
  const double len2 = dx * dx + dy * dy;
  if (len2 == 0.0) {
    result = s;
    return false;
  }
  const double t = (dx * (point.GetX() - s.GetX()) + dy * (point.GetY() - s.GetY())) / len2;
  result.Set(s.GetX() + t * dx, s.GetY() + t * dy);
  return true;
}

int KCGeometry::Point2DOnClosedLine(const KC2DLine& line, const KC2DPoint& point) noexcept {
  const KC2DPoint s = line.GetStartPoint();
  const KC2DPoint e = line.GetEndPoint();
  if (s.DistanceTo(point) <= kOnLineTolerance) {
    return kAtStart;
  }
  if (e.DistanceTo(point) <= kOnLineTolerance) {
    return kAtEnd;
  }
  const double dx = e.GetX() - s.GetX();
  const double dy = e.GetY() - s.GetY();
  const double len = std::sqrt(dx * dx + dy * dy);
  if (!(len > 0.0)) {
    return kOff;  // zero length (or NaN): only its start point lies on it, handled above
  }
  const double px = point.GetX() - s.GetX();
  const double py = point.GetY() - s.GetY();
  const double across = std::fabs(dx * py - dy * px) / len;  // distance from the infinite line
  const double along = (dx * px + dy * py) / len;            // position along the line from the start
  if (across <= kOnLineTolerance && along >= 0.0 && along <= len) {
    return kInside;
  }
  return kOff;
}

// Definitions of the class's constants. With them the Windows DLL exports the constants, so that a program
// that takes one by reference or address links against the DLL's copy.
constexpr int KCGeometry::kOff;
constexpr int KCGeometry::kAtStart;
constexpr int KCGeometry::kAtEnd;
constexpr int KCGeometry::kInside;
constexpr double KCGeometry::kOnLineTolerance;
