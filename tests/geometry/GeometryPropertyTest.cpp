// SPDX-License-Identifier: MIT
// Property tests over many seeded random inputs. Each test states its tolerance; the seeds are fixed so a
// failure reproduces.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "GeometryClients.h"

using Arc = CMath2D::Cd2DArc;
using Line = CMath2D::Cd2DLine;
using Point = CMath2D::Cd2DPoint;
using geometry_test::ClientArc;
using geometry_test::ClientAuxCircle;
using geometry_test::ClientAuxHorLine;
using geometry_test::ClientAuxLine;
using geometry_test::ClientAuxVerLine;
using geometry_test::ClientIntArc;
using geometry_test::ClientIntPoint;
using geometry_test::ClientLine;
using geometry_test::ClientPoint;

namespace {

constexpr int kRuns = 20000;
constexpr double kPi = 3.141592653589793;

class Random {
 public:
  explicit Random(unsigned seed) : m_engine(seed) {}
  double Uniform(double lo, double hi) { return std::uniform_real_distribution<double>(lo, hi)(m_engine); }
  int Int(int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(m_engine); }
  Point RandomPoint(double range) { return Point(Uniform(-range, range), Uniform(-range, range)); }
  // A consistent arc: start and end on the same circle, end at least 1 degree from the start.
  Arc RandomArc(Arc::eArcType type) {
    const double cx = Uniform(-100, 100), cy = Uniform(-100, 100), r = Uniform(0.01, 100);
    const double a = Uniform(-kPi, kPi);
    const double b = a + Uniform(0.02, 2 * kPi - 0.02);
    return Arc(type, cx + r * std::cos(a), cy + r * std::sin(a), cx + r * std::cos(b), cy + r * std::sin(b),
               cx, cy);
  }

 private:
  std::mt19937 m_engine;
};

double LineDistance(const Line& line, const KCI_d2DPoint& p) {
  const double dx = line.GetEndX() - line.GetStartX(), dy = line.GetEndY() - line.GetStartY();
  return std::fabs(dx * (p.GetY() - line.GetStartY()) - dy * (p.GetX() - line.GetStartX())) /
         std::hypot(dx, dy);
}

double Scale(const Point& p) {
  return 1.0 + std::fabs(p.GetX()) + std::fabs(p.GetY());
}

ClientArc AsClient(const Arc& a) {
  return ClientArc(a.GetArcType(), a.GetStartX(), a.GetStartY(), a.GetEndX(), a.GetEndY(), a.GetCenterX(),
                   a.GetCenterY());
}

}  // namespace

TEST(GeometryProperties, LineIntersectionLiesOnBothLines) {
  // Lines crossing at 1 degree or more: the point is within 1e-9 relative of both infinite lines.
  Random rnd(11);
  int checked = 0;
  for (int i = 0; i < kRuns; ++i) {
    const Line a(rnd.Uniform(-100, 100), rnd.Uniform(-100, 100), rnd.Uniform(-100, 100),
                 rnd.Uniform(-100, 100));
    const Line b(rnd.Uniform(-100, 100), rnd.Uniform(-100, 100), rnd.Uniform(-100, 100),
                 rnd.Uniform(-100, 100));
    const double crossing = std::fabs(std::sin(CMath2D::GetAngleRad(a) - CMath2D::GetAngleRad(b)));
    Point p;
    const bool hit = CMath2D::GetIntersectPoint(a, b, p);
    if (crossing < std::sin(kPi / 180)) {
      continue;
    }
    ASSERT_TRUE(hit) << i;
    // slope form loses accuracy with the slope: scale the tolerance by it
    const double steep = 1.0 +
                         std::fabs(CMath2D::GetAngleRad(a) == 0 ? 0 : std::tan(CMath2D::GetAngleRad(a))) +
                         std::fabs(std::tan(CMath2D::GetAngleRad(b)));
    EXPECT_LE(LineDistance(a, p), 1e-9 * Scale(p) * steep) << i;
    EXPECT_LE(LineDistance(b, p), 1e-9 * Scale(p) * steep) << i;
    ++checked;
  }
  EXPECT_GT(checked, kRuns / 2);
}

TEST(GeometryProperties, ArcLineIntersectionLiesOnCircleAndLine) {
  // Clear crossings (line at least 1e-3 inside the circle): points within 1e-8 relative of both shapes.
  Random rnd(12);
  int checked = 0;
  for (int i = 0; i < kRuns; ++i) {
    const Arc arc = rnd.RandomArc(Arc::eArcCCW);
    const double r = CMath2D::GetArcRadius(arc);
    const Line line(rnd.Uniform(-150, 150), rnd.Uniform(-150, 150), rnd.Uniform(-150, 150),
                    rnd.Uniform(-150, 150));
    const double slope = std::fabs(std::tan(CMath2D::GetAngleRad(line)));
    const double gap = r - LineDistance(line, Point(arc.GetCenterX(), arc.GetCenterY()));
    Point p1, p2;
    const bool hit = CMath2D::GetIntersection(arc, line, p1, p2);
    if (gap < 1e-3 || slope < 1e-4) {
      continue;  // near tangents and near-horizontal slopes behave as their tolerances say, tested elsewhere
    }
    ASSERT_TRUE(hit) << i;
    const double tolerance = 1e-8 * (1.0 + r + 100.0) * (1.0 + slope);
    for (const Point* p : {&p1, &p2}) {
      EXPECT_NEAR(CMath2D::DistanceCenterOfArc2Point(arc, *p), r, tolerance) << i;
      EXPECT_LE(LineDistance(line, *p), tolerance) << i;
    }
    ++checked;
  }
  EXPECT_GT(checked, kRuns / 4);
}

TEST(GeometryProperties, CircleCircleIntersectionLiesOnBothCircles) {
  // Clear crossings (1e-3 away from touching or nesting): points within 1e-9 relative of both circles.
  Random rnd(13);
  int checked = 0;
  for (int i = 0; i < kRuns; ++i) {
    const Arc a = rnd.RandomArc(Arc::eArcCW);
    const Arc b = rnd.RandomArc(Arc::eArcCCW);
    const double r1 = CMath2D::GetArcRadius(a), r2 = CMath2D::GetArcRadius(b);
    const double d = CMath2D::GetDistance(a.GetCenterX(), a.GetCenterY(), b.GetCenterX(), b.GetCenterY());
    Point p1, p2;
    const bool hit = CMath2D::GetIntersection(a, b, p1, p2);
    if (d > r1 + r2 + 1e-3) {
      EXPECT_FALSE(hit) << i;
      continue;
    }
    if (d > r1 + r2 - 1e-3 || d < std::fabs(r1 - r2) + 1e-3) {
      continue;
    }
    ASSERT_TRUE(hit) << i;
    const double tolerance = 1e-9 * (1.0 + r1 + r2 + d) * 100.0;
    for (const Point* p : {&p1, &p2}) {
      EXPECT_NEAR(CMath2D::DistanceCenterOfArc2Point(a, *p), r1, tolerance) << i;
      EXPECT_NEAR(CMath2D::DistanceCenterOfArc2Point(b, *p), r2, tolerance) << i;
    }
    ++checked;
  }
  EXPECT_GT(checked, kRuns / 10);
}

TEST(GeometryProperties, ProjectionIsPerpendicularAndOnTheLine) {
  // Foot F of p on a line of length 1..: (p - F) . direction / (|p - F| |direction|) below 1e-7, F within
  // 1e-9 relative of the line.
  Random rnd(14);
  for (int i = 0; i < kRuns; ++i) {
    const Line line(rnd.Uniform(-100, 100), rnd.Uniform(-100, 100), rnd.Uniform(-100, 100),
                    rnd.Uniform(-100, 100));
    const double dx = line.GetEndX() - line.GetStartX(), dy = line.GetEndY() - line.GetStartY();
    if (std::hypot(dx, dy) < 1) {
      continue;
    }
    const Point p = rnd.RandomPoint(100);
    Point foot;
    ASSERT_TRUE(CMath2D::ProjectPoint(line, p, foot));
    const double vx = p.GetX() - foot.GetX(), vy = p.GetY() - foot.GetY();
    const double len = std::hypot(vx, vy);
    if (len > 1e-6) {
      EXPECT_LE(std::fabs(vx * dx + vy * dy) / (len * std::hypot(dx, dy)), 1e-7) << i;
    }
    const double steep = 1.0 + std::min(std::fabs(dy / dx), std::fabs(dx / dy));
    EXPECT_LE(LineDistance(line, foot), 1e-9 * Scale(foot) * steep * 100) << i;
  }
}

TEST(GeometryProperties, SegmentDistanceMatchesClampedProjection) {
  // Independent formula: distance to start + clamp(t, 0, 1) * (end - start); agreement within 1e-9 relative.
  Random rnd(15);
  for (int i = 0; i < kRuns; ++i) {
    const Line line(rnd.Uniform(-100, 100), rnd.Uniform(-100, 100), rnd.Uniform(-100, 100),
                    rnd.Uniform(-100, 100));
    const Point p = rnd.RandomPoint(150);
    const double dx = line.GetEndX() - line.GetStartX(), dy = line.GetEndY() - line.GetStartY();
    const double t = std::clamp(
        ((p.GetX() - line.GetStartX()) * dx + (p.GetY() - line.GetStartY()) * dy) / (dx * dx + dy * dy), 0.0,
        1.0);
    const double expected =
        std::hypot(p.GetX() - (line.GetStartX() + t * dx), p.GetY() - (line.GetStartY() + t * dy));
    EXPECT_NEAR(CMath2D::DistancePoint2Line(line, p, true), expected, 1e-9 * (1.0 + expected)) << i;
    EXPECT_NEAR(CMath2D::DistancePoint2Line(line, p, false), LineDistance(line, p), 1e-9 * (1.0 + expected))
        << i;
  }
}

TEST(GeometryProperties, ArcPointByOffsetStartsAtTheStartAndEndsAtTheEnd) {
  // Consistent arcs: fraction 0 gives the start, 1 the end, within 1e-9 relative; 0.5 lies on the circle.
  Random rnd(16);
  for (int i = 0; i < kRuns; ++i) {
    const Arc arc = rnd.RandomArc(i % 2 ? Arc::eArcCCW : Arc::eArcCW);
    const double tolerance = 1e-9 * (1.0 + 200.0);
    double x = 0, y = 0;
    CMath2D::GetArcPointByOffset(arc, 0, x, y);
    EXPECT_NEAR(x, arc.GetStartX(), tolerance) << i;
    EXPECT_NEAR(y, arc.GetStartY(), tolerance) << i;
    CMath2D::GetArcPointByOffset(arc, 1, x, y);
    EXPECT_NEAR(x, arc.GetEndX(), tolerance) << i;
    EXPECT_NEAR(y, arc.GetEndY(), tolerance) << i;
    Point mid;
    CMath2D::GetArcPointByOffset(arc, 0.5, mid);
    EXPECT_NEAR(CMath2D::DistanceCenterOfArc2Point(arc, mid), CMath2D::GetArcRadius(arc), tolerance) << i;
    EXPECT_TRUE(CMath2D::PointIsBetweenStartAndEndWc(arc, mid)) << i;
  }
}

TEST(GeometryProperties, TangentPointDistanceIsRootOfDSquaredMinusRSquared) {
  // From p outside the circle (by 0.01 or more): |t - p| = sqrt(d² - r²), |t - c| = r and the radius is
  // perpendicular to the tangent, all within 1e-8 relative.
  Random rnd(17);
  for (int i = 0; i < kRuns; ++i) {
    const Arc arc = rnd.RandomArc(Arc::eArcCCW);
    const double r = CMath2D::GetArcRadius(arc);
    const double angle = rnd.Uniform(-kPi, kPi);
    const double d = r + rnd.Uniform(0.01, 100);
    const Point p(arc.GetCenterX() + d * std::cos(angle), arc.GetCenterY() + d * std::sin(angle));
    Point t1, t2;
    ASSERT_TRUE(CMath2D::GetCircleTangentPoints(arc, p, t1, t2)) << i;
    const double l = std::sqrt(d * d - r * r);
    const double tolerance = 1e-8 * (1.0 + d + 100.0);
    for (const Point* t : {&t1, &t2}) {
      EXPECT_NEAR(CMath2D::GetDistance(*t, p), l, tolerance) << i;
      EXPECT_NEAR(CMath2D::DistanceCenterOfArc2Point(arc, *t), r, tolerance) << i;
      const double dot = (t->GetX() - arc.GetCenterX()) * (t->GetX() - p.GetX()) +
                         (t->GetY() - arc.GetCenterY()) * (t->GetY() - p.GetY());
      EXPECT_LE(std::fabs(dot) / (r * l), 1e-6) << i;
    }
  }
}

TEST(GeometryProperties, AngleOnArcMatchesModularArithmetic) {
  // Away from the ends (by 1e-3 degrees), a direction is on a CCW arc exactly when (a - s) mod 360 is below
  // (e - s) mod 360, and on a CW arc when (s - a) mod 360 is below (s - e) mod 360.
  Random rnd(18);
  const Arc ccw(Arc::eArcCCW, 1, 0, 0, 1, 0, 0);
  const Arc cw(Arc::eArcCW, 1, 0, 0, 1, 0, 0);
  auto mod = [](double v) { return v - 360.0 * std::floor(v / 360.0); };
  for (int i = 0; i < kRuns; ++i) {
    const double s = rnd.Uniform(-180, 180), e = rnd.Uniform(-180, 180), a = rnd.Uniform(-180, 180);
    if (std::fabs(mod(a - s)) < 1e-3 || std::fabs(mod(a - e)) < 1e-3 || std::fabs(mod(e - s)) < 1e-3 ||
        360 - mod(a - s) < 1e-3 || 360 - mod(a - e) < 1e-3) {
      continue;
    }
    EXPECT_EQ(CMath2D::AngleOnCCWArcSegment(ccw, s, e, a), mod(a - s) < mod(e - s))
        << s << " " << e << " " << a;
    EXPECT_EQ(CMath2D::AngleOnCCWArcSegment(cw, s, e, a), mod(s - a) < mod(s - e))
        << s << " " << e << " " << a;
  }
}

TEST(GeometryProperties, ArcRectangleBoundsDenseSamplesTightly) {
  // Every one of 200 points along the arc lies in the box (1e-9 slack), and the box is no larger than the
  // samples' box by more than the sampling sag r(1 - cos(step / 2)).
  Random rnd(19);
  for (int i = 0; i < 2000; ++i) {
    const Arc arc = rnd.RandomArc(i % 2 ? Arc::eArcCCW : Arc::eArcCW);
    KC2DArea box;
    CMath2D::GetRectangle(arc, box);
    KC2DArea samples;
    for (int k = 0; k <= 200; ++k) {
      double x = 0, y = 0;
      CMath2D::GetArcPointByOffset(arc, k / 200.0, x, y);
      samples.ApplyPoint(x, y);
      EXPECT_GE(x, box.GetMinX() - 1e-9) << i;
      EXPECT_LE(x, box.GetMaxX() + 1e-9) << i;
      EXPECT_GE(y, box.GetMinY() - 1e-9) << i;
      EXPECT_LE(y, box.GetMaxY() + 1e-9) << i;
    }
    const double r = CMath2D::GetArcRadius(arc);
    const double sag = r * (1 - std::cos(2 * kPi / 200 / 2)) + 1e-9;
    EXPECT_LE(samples.GetMinX() - box.GetMinX(), sag) << i;
    EXPECT_LE(box.GetMaxX() - samples.GetMaxX(), sag) << i;
    EXPECT_LE(samples.GetMinY() - box.GetMinY(), sag) << i;
    EXPECT_LE(box.GetMaxY() - samples.GetMaxY(), sag) << i;
  }
}

TEST(GeometryProperties, FoundationArcBoxAndLengthAgreeWithTheComputations) {
  // KC2DArc's box equals CMath2D::GetRectangle's and its length GetArcLength's, within 1e-9 relative.
  Random rnd(20);
  for (int i = 0; i < 5000; ++i) {
    const Arc arc = rnd.RandomArc(i % 2 ? Arc::eArcCCW : Arc::eArcCW);
    const KC2DArc element(KC2DPoint(arc.GetStartX(), arc.GetStartY()),
                          KC2DPoint(arc.GetEndX(), arc.GetEndY()),
                          KC2DPoint(arc.GetCenterX(), arc.GetCenterY()), arc.IsArcCCW());
    KC2DArea box;
    CMath2D::GetRectangle(arc, box);
    const double tolerance = 1e-9 * 300;
    EXPECT_NEAR(element.GetMinX(), box.GetMinX(), tolerance) << i;
    EXPECT_NEAR(element.GetMaxX(), box.GetMaxX(), tolerance) << i;
    EXPECT_NEAR(element.GetMinY(), box.GetMinY(), tolerance) << i;
    EXPECT_NEAR(element.GetMaxY(), box.GetMaxY(), tolerance) << i;
    EXPECT_NEAR(element.Len(), CMath2D::GetArcLength(arc), tolerance) << i;
  }
}

TEST(GeometryProperties, ClientImplementationsReceiveTheSameResultsAsTheValueTypes) {
  // Every computation, run once on the library's value types and once on client classes with the same
  // coordinates, writes bit-identical results.
  Random rnd(21);
  for (int i = 0; i < 2000; ++i) {
    const Arc arc = rnd.RandomArc(i % 3 == 0 ? Arc::eArcCW : Arc::eArcCCW);
    const Arc other = rnd.RandomArc(Arc::eArcCCW);
    const ClientArc carc = AsClient(arc), cother = AsClient(other);
    const Line line(rnd.Uniform(-150, 150), rnd.Uniform(-150, 150), rnd.Uniform(-150, 150),
                    rnd.Uniform(-150, 150));
    const ClientLine cline(line.GetStartX(), line.GetStartY(), line.GetEndX(), line.GetEndY());
    const Line line2(rnd.Uniform(-150, 150), rnd.Uniform(-150, 150), rnd.Uniform(-150, 150),
                     rnd.Uniform(-150, 150));
    const ClientLine cline2(line2.GetStartX(), line2.GetStartY(), line2.GetEndX(), line2.GetEndY());
    const Point p = rnd.RandomPoint(300);
    const ClientPoint cp(p.GetX(), p.GetY());

    Point a1, a2;
    ClientPoint b1, b2;
    auto same = [&](const char* what) {
      EXPECT_EQ(a1.GetX(), b1.GetX()) << what << " " << i;
      EXPECT_EQ(a1.GetY(), b1.GetY()) << what << " " << i;
      EXPECT_EQ(a2.GetX(), b2.GetX()) << what << " " << i;
      EXPECT_EQ(a2.GetY(), b2.GetY()) << what << " " << i;
    };
    EXPECT_EQ(CMath2D::GetIntersection(arc, line, a1, a2), CMath2D::GetIntersection(carc, cline, b1, b2));
    same("arc-line");
    EXPECT_EQ(CMath2D::GetIntersection(arc, other, a1, a2), CMath2D::GetIntersection(carc, cother, b1, b2));
    same("arc-arc");
    EXPECT_EQ(CMath2D::GetCircleTangentPoints(arc, p, a1, a2),
              CMath2D::GetCircleTangentPoints(carc, cp, b1, b2));
    same("tangents");
    EXPECT_EQ(CMath2D::GetHorLineIntersection(arc, p.GetY(), a1, a2),
              CMath2D::GetHorLineIntersection(carc, p.GetY(), b1, b2));
    same("horizontal");
    EXPECT_EQ(CMath2D::GetVerLineIntersection(arc, p.GetX(), a1, a2),
              CMath2D::GetVerLineIntersection(carc, p.GetX(), b1, b2));
    same("vertical");
    EXPECT_EQ(CMath2D::GetIntersectPoint(line, line2, a1, true, false),
              CMath2D::GetIntersectPoint(cline, cline2, b1, true, false));
    EXPECT_EQ(CMath2D::ProjectPoint(line, p, a2), CMath2D::ProjectPoint(cline, cp, b2));
    same("line-line and projection");
    EXPECT_EQ(CMath2D::ProjectedPointOnArcWc(arc, p, a1), CMath2D::ProjectedPointOnArcWc(carc, cp, b1));
    CMath2D::GetArcPointByOffset(arc, 0.3, a2);
    CMath2D::GetArcPointByOffset(carc, 0.3, b2);
    same("arc projection and offset");
    CMath2D::GetMiddle(p, a2, a1);
    CMath2D::GetMiddle(cp, b2, b1);
    CMath2D::GetCenter(line, a2);
    CMath2D::GetCenter(cline, b2);
    same("middle and centre");
    EXPECT_EQ(CMath2D::DistancePoint2Line(line, p, true), CMath2D::DistancePoint2Line(cline, cp, true));
    EXPECT_EQ(CMath2D::GetArcLength(arc), CMath2D::GetArcLength(carc));
    EXPECT_EQ(CMath2D::GetStartAngleRad(arc), CMath2D::GetStartAngleRad(carc));
    EXPECT_EQ(CMath2D::GetEndAngleDeg(arc), CMath2D::GetEndAngleDeg(carc));
    EXPECT_EQ(CMath2D::PointIsBetweenStartAndEndWc(arc, p), CMath2D::PointIsBetweenStartAndEndWc(carc, cp));

    Line l1, r1;
    ClientLine l2, r2;
    double angle1 = 0, angle2 = 0;
    CMath2D::GetParallelLinesAtDist(line, 3.5, l1, r1, angle1);
    CMath2D::GetParallelLinesAtDist(cline, 3.5, l2, r2, angle2);
    EXPECT_EQ(angle1, angle2);
    EXPECT_EQ(l1.GetStartX(), l2.GetStartX());
    EXPECT_EQ(r1.GetEndY(), r2.GetEndY());
    CMath2D::GetParallelLine(line, p, l1, angle1);
    CMath2D::GetParallelLine(cline, cp, l2, angle2);
    EXPECT_EQ(l1.GetStartY(), l2.GetStartY());
    EXPECT_EQ(l1.GetEndX(), l2.GetEndX());

    KC2DPointList anchors1, anchors2;
    CMath2D::GetArcAnchorPoints(arc, anchors1);
    CMath2D::GetArcAnchorPoints(carc, anchors2);
    EXPECT_EQ(anchors1, anchors2);
  }
}

TEST(GeometryProperties, AuxShapeClientsReceiveTheSameResultsAsTheLibraryShapes) {
  Random rnd(22);
  for (int i = 0; i < 2000; ++i) {
    const double cx = rnd.Uniform(-50, 50), cy = rnd.Uniform(-50, 50), r = rnd.Uniform(0.1, 50);
    const CMathAuxShapes::CAuxCircleImpl circle(cx, cy, r);
    const ClientAuxCircle ccircle(cx, cy, r);
    const CMathAuxShapes::CAuxCircleImpl circle2(cx + rnd.Uniform(-50, 50), cy, rnd.Uniform(0.1, 50));
    const ClientAuxCircle ccircle2(circle2.GetXPos(), circle2.GetYPos(), circle2.GetRadius());
    const double x = rnd.Uniform(-60, 60), y = rnd.Uniform(-60, 60), deg = rnd.Uniform(-360, 360);
    const CMathAuxShapes::CAuxLine line(x, y, deg);
    const ClientAuxLine cline(x, y, deg);
    const Point p = rnd.RandomPoint(60);
    Point a1, a2, b1, b2;
    EXPECT_EQ(CMathAuxShapes::GetIntersection(circle, line, a1, a2),
              CMathAuxShapes::GetIntersection(ccircle, cline, b1, b2));
    EXPECT_EQ(CMathAuxShapes::GetIntersection(circle, circle2, a1, a2),
              CMathAuxShapes::GetIntersection(ccircle, ccircle2, b1, b2));
    EXPECT_EQ(CMathAuxShapes::GetIntersection(circle, CMathAuxShapes::CAuxHorLine(y), a1, a2),
              CMathAuxShapes::GetIntersection(ccircle, ClientAuxHorLine(y), b1, b2));
    EXPECT_EQ(CMathAuxShapes::GetIntersection(line, CMathAuxShapes::CAuxVerLine(x + 1), a1),
              CMathAuxShapes::GetIntersection(cline, ClientAuxVerLine(x + 1), b1));
    EXPECT_EQ(CMathAuxShapes::DistanceFromPointToAuxShape(line, p, a2),
              CMathAuxShapes::DistanceFromPointToAuxShape(cline, p, b2));
    EXPECT_EQ(CMathAuxShapes::DistanceFromPointToAuxShape(circle, p),
              CMathAuxShapes::DistanceFromPointToAuxShape(ccircle, p));
    EXPECT_EQ(a1.GetX(), b1.GetX());
    EXPECT_EQ(a1.GetY(), b1.GetY());
    EXPECT_EQ(a2.GetX(), b2.GetX());
    EXPECT_EQ(a2.GetY(), b2.GetY());
  }
}

TEST(GeometryProperties, IntArcClientsReceiveTheSameResultsAsTheValueTypes) {
  Random rnd(23);
  for (int i = 0; i < 2000; ++i) {
    const int cx = rnd.Int(-1000, 1000), cy = rnd.Int(-1000, 1000);
    const CMath2D::Ci2DArc arc(static_cast<KCI_i2DArc::eArcType>(rnd.Int(0, 2)), cx + rnd.Int(-500, 500),
                               cy + rnd.Int(-500, 500), cx + rnd.Int(-500, 500), cy + rnd.Int(-500, 500), cx,
                               cy);
    const ClientIntArc carc(arc.GetArcType(), arc.GetStartX(), arc.GetStartY(), arc.GetEndX(), arc.GetEndY(),
                            cx, cy);
    const double f = rnd.Uniform(-0.5, 1.5);
    CMath2D::Ci2DPoint a;
    ClientIntPoint b;
    CMath2D::GetArcPointByOffset(arc, f, a);
    CMath2D::GetArcPointByOffset(carc, f, b);
    EXPECT_EQ(a.GetX(), b.GetX());
    EXPECT_EQ(a.GetY(), b.GetY());
  }
}

TEST(GeometryProperties, ElementPolygonVerticesLieOnTheArc) {
  // AddAsPolygon vertices are on the circle within 1e-9 relative, and the polygon is no longer than the arc.
  Random rnd(24);
  for (int i = 0; i < 2000; ++i) {
    const Arc arc = rnd.RandomArc(i % 2 ? Arc::eArcCCW : Arc::eArcCW);
    const KC2DArc element(KC2DPoint(arc.GetStartX(), arc.GetStartY()),
                          KC2DPoint(arc.GetEndX(), arc.GetEndY()),
                          KC2DPoint(arc.GetCenterX(), arc.GetCenterY()), arc.IsArcCCW());
    KC2DPointList points;
    element.AddAsPolygon(points);
    double length = 0;
    for (std::size_t k = 0; k < points.size(); ++k) {
      EXPECT_NEAR(points[k].DistanceTo(element.GetCenterPoint()), element.Radius(), 1e-9 * 300) << i;
      if (k > 0) {
        length += points[k].DistanceTo(points[k - 1]);
      }
    }
    EXPECT_LE(length, element.Len() + 1e-9 * 300) << i;
    EXPECT_GE(length, element.Len() * std::cos(2 * kPi / 144)) << i;  // chord of a 5 degree step
  }
}

TEST(GeometryProperties, AuxIntersectionsLieOnBothShapes) {
  // Aux line (not within 1 degree of an axis or of each other) against an aux line, a circle and a segment's
  // infinite line: every point found lies on both shapes within 1e-8 relative.
  Random rnd(25);
  auto auxLineDistance = [](const KCI_AuxLine& l, const Point& p) {
    const double a = l.GetAngleRad();
    return std::fabs(std::cos(a) * (p.GetY() - l.GetYPos()) - std::sin(a) * (p.GetX() - l.GetXPos()));
  };
  int circleHits = 0;
  for (int i = 0; i < kRuns; ++i) {
    const double deg1 = rnd.Uniform(-179, 179), deg2 = rnd.Uniform(-179, 179);
    if (std::fabs(std::remainder(deg1, 90.0)) < 1 || std::fabs(std::remainder(deg2, 90.0)) < 1 ||
        std::fabs(std::remainder(deg1 - deg2, 180.0)) < 1) {
      continue;
    }
    const CMathAuxShapes::CAuxLine a(rnd.Uniform(-50, 50), rnd.Uniform(-50, 50), deg1);
    const CMathAuxShapes::CAuxLine b(rnd.Uniform(-50, 50), rnd.Uniform(-50, 50), deg2);
    const double steep = 1 + std::fabs(std::tan(a.GetAngleRad())) + std::fabs(std::tan(b.GetAngleRad()));
    Point p;
    ASSERT_TRUE(CMathAuxShapes::GetIntersection(a, b, p)) << i;
    EXPECT_LE(auxLineDistance(a, p), 1e-8 * Scale(p) * steep) << i;
    EXPECT_LE(auxLineDistance(b, p), 1e-8 * Scale(p) * steep) << i;

    const Line segment(b.GetXPos(), b.GetYPos(), b.GetXPos() + 10 * std::cos(b.GetAngleRad()),
                       b.GetYPos() + 10 * std::sin(b.GetAngleRad()));
    ASSERT_TRUE(CMathAuxShapes::GetIntersection(segment, a, p)) << i;
    EXPECT_LE(auxLineDistance(a, p), 1e-8 * Scale(p) * steep) << i;
    EXPECT_LE(LineDistance(segment, p), 1e-8 * Scale(p) * steep) << i;

    const CMathAuxShapes::CAuxCircleImpl circle(rnd.Uniform(-50, 50), rnd.Uniform(-50, 50),
                                                rnd.Uniform(1, 50));
    const Point centre(circle.GetCenterX(), circle.GetCenterY());
    Point p1, p2;
    const bool hit = CMathAuxShapes::GetIntersection(circle, a, p1, p2);
    const double gap = circle.GetRadius() - auxLineDistance(a, centre);
    if (gap > 1e-3) {
      ASSERT_TRUE(hit) << i;
      for (const Point* q : {&p1, &p2}) {
        EXPECT_NEAR(CMath2D::GetDistance(*q, centre), circle.GetRadius(), 1e-8 * (100 + Scale(*q)) * steep)
            << i;
        EXPECT_LE(auxLineDistance(a, *q), 1e-8 * Scale(*q) * steep) << i;
      }
      ++circleHits;
    } else if (gap < -1e-3) {
      EXPECT_FALSE(hit) << i;
    }
  }
  EXPECT_GT(circleHits, 1000);
}
