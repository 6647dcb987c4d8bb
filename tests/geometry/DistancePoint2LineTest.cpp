// SPDX-License-Identifier: MIT
// CMath2D::DistancePoint2Line against the route through KCGeometry that it computes directly (project the
// point, test the foot with Point2DOnClosedLine, then the perpendicular distance or the nearer end): over
// seeded random segments and points, including feet near the ends, zero-length lines, huge coordinates and
// NaN, both give the same value.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "ncappkit/foundation/KC2DElement.h"
#include "ncappkit/foundation/KCGeometry.h"
#include "ncappkit/geometry/CMath2D.h"

namespace {

constexpr int kRuns = 50000;

using Line = CMath2D::Cd2DLine;
using Point = CMath2D::Cd2DPoint;

// The distance composed of KCGeometry's operations on the foundation's line and point types.
double ThroughKCGeometry(const Line& line, const Point& p, bool segment) {
  const KC2DLine kline(line.GetStartX(), line.GetStartY(), line.GetEndX(), line.GetEndY());
  const KC2DPoint kp(p.GetX(), p.GetY());
  bool perpendicular = true;
  if (segment) {
    KC2DPoint foot;
    KCGeometry::ProjectPointOnLine(foot, kline, kp);
    perpendicular = KCGeometry::Point2DOnClosedLine(kline, foot) > 0;
  }
  if (perpendicular) {
    double distance = 0.0;
    KCGeometry::GetDistanceLinePoint(kline, kp, distance);
    return distance;
  }
  const double toStart = KC2DLine(kp, kline.GetStartPoint()).Len();
  const double toEnd = KC2DLine(kp, kline.GetEndPoint()).Len();
  return toEnd < toStart ? toEnd : toStart;
}

// Same value, NaN equal to NaN.
void ExpectSame(double direct, double composed, const Line& l, const Point& p, bool segment) {
  if (std::isnan(composed)) {
    EXPECT_TRUE(std::isnan(direct));
    return;
  }
  EXPECT_DOUBLE_EQ(direct, composed) << "line (" << l.GetStartX() << ", " << l.GetStartY() << ") - ("
                                     << l.GetEndX() << ", " << l.GetEndY() << "), point (" << p.GetX() << ", "
                                     << p.GetY() << "), segment " << segment;
}

TEST(DistancePoint2Line, MatchesTheKCGeometryRouteOnRandomSegments) {
  std::mt19937 engine(2026);
  std::uniform_real_distribution<double> coord(-100.0, 100.0);
  std::uniform_real_distribution<double> along(-0.5, 1.5);
  std::uniform_int_distribution<int> shape(0, 5);
  for (int run = 0; run < kRuns; ++run) {
    const double scale = run % 7 == 0 ? 1e7 : 1.0;
    const Line line(coord(engine) * scale, coord(engine) * scale, coord(engine) * scale,
                    coord(engine) * scale);
    Point p(coord(engine) * scale, coord(engine) * scale);
    const int kind = shape(engine);
    if (kind == 0) {
      // A point on the line through the segment, before, inside or after it.
      const double t = along(engine);
      p = Point(line.GetStartX() + t * (line.GetEndX() - line.GetStartX()),
                line.GetStartY() + t * (line.GetEndY() - line.GetStartY()));
    } else if (kind == 1) {
      p = Point(line.GetStartX() + 1e-10, line.GetStartY());  // within the end tolerance of the start
    } else if (kind == 2) {
      p = Point(line.GetEndX(), line.GetEndY() - 1e-10);
    }
    for (const bool segment : {true, false})
      ExpectSame(CMath2D::DistancePoint2Line(line, p, segment), ThroughKCGeometry(line, p, segment), line, p,
                 segment);
  }
}

TEST(DistancePoint2Line, MatchesTheKCGeometryRouteOnDegenerateInput) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double inf = std::numeric_limits<double>::infinity();
  std::mt19937 engine(7);
  std::uniform_real_distribution<double> coord(-10.0, 10.0);
  for (int run = 0; run < kRuns / 10; ++run) {
    const double a = coord(engine), b = coord(engine), c = coord(engine), d = coord(engine);
    const double specials[] = {nan, inf, -inf, 0.0};
    const double s = specials[run % 4];
    // A zero-length line, or a special value in the line or in the point, drawn at random.
    const int lineKind = (run / 4) % 3;
    const Line line = lineKind == 0 ? Line(a, b, a, b) : lineKind == 1 ? Line(s, b, c, d) : Line(a, b, c, s);
    const int pointKind = (run / 12) % 3;
    const Point p = pointKind == 0 ? Point(c, d) : pointKind == 1 ? Point(s, d) : Point(a, b);
    const bool segment = run % 2 == 0;
    ExpectSame(CMath2D::DistancePoint2Line(line, p, segment), ThroughKCGeometry(line, p, segment), line, p,
               segment);
  }
}

}  // namespace
