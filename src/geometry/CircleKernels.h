// SPDX-License-Identifier: MIT
// Circle–line and circle–circle kernels shared by CMath2D (arcs, radius from the start point) and
// CMathAuxShapes (auxiliary circles, radius from GetRadius). Private to the library.
#pragma once

#include <cmath>

#include "ncappkit/geometry/KCI_d2DPoint.h"

namespace ncappkit_geometry {

// A horizontal or vertical line closer than this to the top/bottom (left/right) of a circle touches it.
// Also the arc–axis line intersections of CMathAuxShapes.cpp use this and the next one.
constexpr double kAxisLineTangentTolerance = 1e-4;
// A horizontal or vertical line farther than r + this from the centre misses the circle.
constexpr double kAxisLineMissTolerance = 1e-5;
// Circle–circle: centres closer than this are concentric (no intersection).
constexpr double kConcentricTolerance = 1e-6;
// Circle–circle: h² below -this means no intersection; |h²| below this means the circles touch (h = 0).
constexpr double kCircleTouchTolerance = 1e-5;
// Circle–circle: a centre difference below this in x (or y) counts as exactly vertical (horizontal).
constexpr double kCircleAxisTolerance = 1e-6;

inline void SetPoint(KCI_d2DPoint& p, double x, double y) {
  p.SetX(x);
  p.SetY(y);
}

// The circle (cx, cy, r) and the line at height y.
inline bool HorLineCircle(double cx, double cy, double r, double y, KCI_d2DPoint& p1, KCI_d2DPoint& p2) {
  if (std::fabs(cy + r - y) < kAxisLineTangentTolerance ||
      std::fabs(cy - r - y) < kAxisLineTangentTolerance) {
    SetPoint(p1, cx, y);
    SetPoint(p2, cx, y);
    return true;
  }
  const double dy = y - cy;
  if (std::fabs(dy) > r + kAxisLineMissTolerance) {
    return false;
  }
  // For |dy| between r and r + 1e-5 the root of a small negative number gives NaN; that result stands.
  const double h = std::sqrt(r * r - dy * dy);
  SetPoint(p1, cx + h, y);
  SetPoint(p2, cx - h, y);
  return true;
}

// The circle (cx, cy, r) and the line at abscissa x.
inline bool VerLineCircle(double cx, double cy, double r, double x, KCI_d2DPoint& p1, KCI_d2DPoint& p2) {
  if (std::fabs(cx + r - x) < kAxisLineTangentTolerance ||
      std::fabs(cx - r - x) < kAxisLineTangentTolerance) {
    SetPoint(p1, x, cy);
    SetPoint(p2, x, cy);
    return true;
  }
  const double dx = x - cx;
  if (std::fabs(dx) > r + kAxisLineMissTolerance) {
    return false;
  }
  const double h = std::sqrt(r * r - dx * dx);
  SetPoint(p1, x, cy + h);
  SetPoint(p2, x, cy - h);
  return true;
}

// The circles (ax, ay, r1) and (bx, by, r2).
inline bool CircleCircle(double ax, double ay, double r1, double bx, double by, double r2, KCI_d2DPoint& p1,
                         KCI_d2DPoint& p2) {
  const double dx = bx - ax;
  const double dy = by - ay;
  const double d = std::sqrt(dx * dx + dy * dy);
  if (d < kConcentricTolerance || d > r1 + r2) {
    return false;
  }
  const double k = (r1 * r1 - r2 * r2 + d * d) / (2.0 * d);
  const double xa = k * dx / d;
  const double ya = k * dy / d;
  const double h2 = r1 * r1 - k * k;
  if (h2 < -kCircleTouchTolerance) {
    return false;
  }
  const double h = h2 < kCircleTouchTolerance ? 0.0 : std::sqrt(h2);
  if (std::fabs(dx) < kCircleAxisTolerance) {
    SetPoint(p1, ax + h, ay + ya);
    SetPoint(p2, ax - h, ay + ya);
  } else if (std::fabs(dy) < kCircleAxisTolerance) {
    SetPoint(p1, ax + xa, ay + h);
    SetPoint(p2, ax + xa, ay - h);
  } else {
    // atan, not atan2: for centres to the left the perpendicular flips, which only exchanges p1 and p2.
    const double theta = std::atan(dy / dx);
    const double s = std::sin(theta);
    const double c = std::cos(theta);
    SetPoint(p1, ax + xa - h * s, ay + ya + h * c);
    SetPoint(p2, ax + xa + h * s, ay + ya - h * c);
  }
  return true;
}

}  // namespace ncappkit_geometry
