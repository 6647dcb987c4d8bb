// SPDX-License-Identifier: MIT
#include "ncappkit/foundation/KCGeometry.h"

#include <algorithm>
#include <cmath>
#include <limits>

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
  // Everything is compared squared, so no root is taken: this runs inside every point–segment distance.
  constexpr double kTolerance2 = kOnLineTolerance * kOnLineTolerance;
  const KC2DPoint s = line.GetStartPoint();
  const KC2DPoint e = line.GetEndPoint();
  // A point computed on the line (a projected foot) is off it by a few units in the last place of its
  // coordinates; far from the origin that exceeds kOnLineTolerance, so the distance allowed from the line
  // grows with the size of the line's coordinates.
  const double magnitude =
      std::max({std::fabs(s.GetX()), std::fabs(s.GetY()), std::fabs(e.GetX()), std::fabs(e.GetY())});
  const double lineTolerance =
      std::max(kOnLineTolerance, kOnLineRoundingUnits * std::numeric_limits<double>::epsilon() * magnitude);
  const double lineTolerance2 = lineTolerance * lineTolerance;
  const double px = point.GetX() - s.GetX();
  const double py = point.GetY() - s.GetY();
  if (px * px + py * py <= kTolerance2) {
    return kAtStart;
  }
  const double qx = point.GetX() - e.GetX();
  const double qy = point.GetY() - e.GetY();
  if (qx * qx + qy * qy <= kTolerance2) {
    return kAtEnd;
  }
  const double dx = e.GetX() - s.GetX();
  const double dy = e.GetY() - s.GetY();
  const double len2 = dx * dx + dy * dy;
  if (!(len2 > 0.0)) {
    return kOff;  // zero length (or NaN): only its start point lies on it, handled above
  }
  const double cross = dx * py - dy * px;  // distance from the infinite line times the length
  const double dot = dx * px + dy * py;    // position along the line times the length
  if (cross * cross <= lineTolerance2 * len2 && dot >= 0.0 && dot <= len2) {
    return kInside;
  }
  return kOff;
}

// Definitions of the class's constants. With them the Windows DLL exports the constants, so that a program
// that takes one by reference or address (as EXPECT_EQ does) links against the DLL's copy.
constexpr int KCGeometry::kOff;
constexpr int KCGeometry::kAtStart;
constexpr int KCGeometry::kAtEnd;
constexpr int KCGeometry::kInside;
constexpr double KCGeometry::kOnLineTolerance;
constexpr double KCGeometry::kOnLineRoundingUnits;
