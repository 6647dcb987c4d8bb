// SPDX-License-Identifier: MIT
// CMath2D::DistancePoint2Line against the route through KCGeometry that it computes directly (project the
// point, test the foot with Point2DOnClosedLine, then the perpendicular distance or the nearer end): over
// seeded random segments and points, including feet near the ends, zero-length lines, huge coordinates and
// NaN, both give the same value.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include "GeometryClients.h"
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

// CMath2D::DistancePoint2Line answers feet well inside or well outside a segment without computing the foot.
// The samples below aim at the edges of those shortcuts: feet at the shares of the length where the shortcuts
// start, segments near the shortest length they take, coordinates far from the origin with short segments,
// points far away. Each must give exactly the value of the KCGeometry route (bit for bit where the compiler
// does not fuse multiply-adds, as on x86-64; within 4 units in the last place elsewhere).
std::string Describe(const Line& l, const Point& p) {
  char text[256];
  std::snprintf(text, sizeof text, "line (%.17g, %.17g) - (%.17g, %.17g), point (%.17g, %.17g)",
                l.GetStartX(), l.GetStartY(), l.GetEndX(), l.GetEndY(), p.GetX(), p.GetY());
  return text;
}

void ExpectIdentical(const Line& line, const Point& p) {
  const double direct = CMath2D::DistancePoint2Line(line, p, true);
  const double composed = ThroughKCGeometry(line, p, true);
  if (std::isnan(composed)) {
    EXPECT_TRUE(std::isnan(direct)) << Describe(line, p);
    return;
  }
#if defined(__x86_64__) || defined(_M_X64)
  EXPECT_EQ(std::memcmp(&direct, &composed, sizeof direct), 0)
      << Describe(line, p) << ": " << direct << " vs " << composed;
#else
  EXPECT_DOUBLE_EQ(direct, composed) << Describe(line, p);
#endif
}

// A point at parameter t along the segment, moved off the line by `offset` times the length.
Point AtShare(const Line& line, double t, double offset) {
  const double dx = line.GetEndX() - line.GetStartX();
  const double dy = line.GetEndY() - line.GetStartY();
  return Point(line.GetStartX() + t * dx - offset * dy, line.GetStartY() + t * dy + offset * dx);
}

TEST(DistancePoint2LineClearCases, FeetAtTheSharesWhereTheShortcutsStartGiveTheExactValue) {
  std::mt19937 engine(7);
  std::uniform_real_distribution<double> coord(-100.0, 100.0);
  std::uniform_real_distribution<double> jitter(-2e-6, 2e-6);
  std::uniform_real_distribution<double> offset(-2.0, 2.0);
  const double shares[] = {-1e-3, 1e-3, 1.0 - 1e-3, 1.0 + 1e-3, 0.0, 1.0};
  for (int run = 0; run < 20000; ++run) {
    const Line line(coord(engine), coord(engine), coord(engine), coord(engine));
    const double t = shares[run % 6] + jitter(engine);
    ExpectIdentical(line, AtShare(line, t, run % 3 == 0 ? 0.0 : offset(engine)));
  }
}

TEST(DistancePoint2LineClearCases, SegmentsNearTheShortestLengthGiveTheExactValue) {
  std::mt19937 engine(11);
  std::uniform_real_distribution<double> coord(-1000.0, 1000.0);
  std::uniform_real_distribution<double> exponent(-7.0, -3.0);
  std::uniform_real_distribution<double> angle(0.0, 6.283185307179586);
  std::uniform_real_distribution<double> t(-0.5, 1.5);
  for (int run = 0; run < 20000; ++run) {
    const double sx = coord(engine);
    const double sy = coord(engine);
    const double length = std::pow(10.0, exponent(engine));
    const double a = angle(engine);
    const Line line(sx, sy, sx + length * std::cos(a), sy + length * std::sin(a));
    ExpectIdentical(line, AtShare(line, t(engine), t(engine) - 0.5));
  }
}

TEST(DistancePoint2LineClearCases, ShortSegmentsFarFromTheOriginGiveTheExactValue) {
  std::mt19937 engine(13);
  std::uniform_real_distribution<double> magnitudeExponent(3.0, 14.0);
  std::uniform_real_distribution<double> lengthShare(-13.0, -5.0);
  std::uniform_real_distribution<double> angle(0.0, 6.283185307179586);
  std::uniform_real_distribution<double> t(-0.01, 1.01);
  for (int run = 0; run < 20000; ++run) {
    const double m = std::pow(10.0, magnitudeExponent(engine));
    const double length = m * std::pow(10.0, lengthShare(engine));
    const double a = angle(engine);
    const double sx = run % 2 == 0 ? m : -m / 3.0;
    const double sy = run % 3 == 0 ? -m : m / 7.0;
    const Line line(sx, sy, sx + length * std::cos(a), sy + length * std::sin(a));
    ExpectIdentical(line, AtShare(line, t(engine), 0.25 * (t(engine) - 0.5)));
  }
}

TEST(DistancePoint2LineClearCases, FarPointsAndHugeCoordinatesGiveTheExactValue) {
  std::mt19937 engine(17);
  std::uniform_real_distribution<double> coord(-100.0, 100.0);
  std::uniform_real_distribution<double> exponent(0.0, 200.0);
  for (int run = 0; run < 20000; ++run) {
    const double far = std::pow(10.0, exponent(engine));
    if (run % 2 == 0) {
      const Line line(coord(engine), coord(engine), coord(engine), coord(engine));
      ExpectIdentical(line, Point(coord(engine) * far, coord(engine) * far));
    } else {
      const Line line(coord(engine) * far, coord(engine) * far, coord(engine) * far, coord(engine) * far);
      ExpectIdentical(line, Point(coord(engine) * far, coord(engine)));
    }
  }
}

TEST(DistancePoint2LineClients, ClientGeometryGivesTheSameDistanceAsTheLibraryTypes) {
  std::mt19937 engine(19);
  std::uniform_real_distribution<double> coord(-100.0, 100.0);
  for (int run = 0; run < 5000; ++run) {
    const double sx = coord(engine), sy = coord(engine), ex = coord(engine), ey = coord(engine);
    const double px = coord(engine), py = coord(engine);
    const geometry_test::ClientLine clientLine(sx, sy, ex, ey);
    const geometry_test::ClientPoint clientPoint(px, py);
    const bool segment = run % 2 == 0;

    const double viaInterfaces = CMath2D::DistancePoint2Line(clientLine, clientPoint, segment);
    const double viaLibraryTypes = CMath2D::DistancePoint2Line(Line(sx, sy, ex, ey), Point(px, py), segment);

    ASSERT_EQ(std::memcmp(&viaInterfaces, &viaLibraryTypes, sizeof viaInterfaces), 0)
        << Describe(Line(sx, sy, ex, ey), Point(px, py));
  }
}

TEST(DistancePoint2LineClients, MixedClientAndLibraryTypesWork) {
  const geometry_test::ClientLine line(0, 0, 10, 0);

  EXPECT_EQ(CMath2D::DistancePoint2Line(line, Point(5, 3), true), 3.0);
  EXPECT_EQ(CMath2D::DistancePoint2Line(Line(0, 0, 10, 0), geometry_test::ClientPoint(-3, 4), true), 5.0);
}

}  // namespace
