// SPDX-License-Identifier: MIT
// Hot 2D computations in ns per call: line–line, arc–line and circle–circle intersection, point–segment
// distance and the arc sweep test, each cycling through 1024 seeded random inputs so that nothing folds to a
// constant. Where Boost.Geometry has an equivalent (segment–segment intersection, point–segment distance) it
// is timed on the same inputs when the build found Boost.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstddef>
#include <random>
#include <vector>

#include "ncappkit/geometry/CMath2D.h"

#if defined(NCAPPKIT_BENCH_HAVE_BOOST_GEOMETRY)
#include <boost/geometry.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/geometries/segment.hpp>
#endif

namespace {

constexpr std::size_t kInputs = 1024;  // a power of two: the index wraps with a mask

struct Inputs {
  std::vector<CMath2D::Cd2DLine> lines1, lines2;
  std::vector<CMath2D::Cd2DArc> arcs1, arcs2;
  std::vector<CMath2D::Cd2DPoint> points;
  std::vector<double> angles;

  Inputs() {
    std::mt19937 engine(2024);
    std::uniform_real_distribution<double> coord(-100, 100), radius(1, 60), turn(-180, 180);
    for (std::size_t i = 0; i < kInputs; ++i) {
      lines1.emplace_back(coord(engine), coord(engine), coord(engine), coord(engine));
      lines2.emplace_back(coord(engine), coord(engine), coord(engine), coord(engine));
      const double cx = coord(engine) * 0.3, cy = coord(engine) * 0.3, r = radius(engine);
      const double a = CMath2D::Deg2Rad(turn(engine)), b = CMath2D::Deg2Rad(turn(engine));
      arcs1.emplace_back(i % 2 ? CMath2D::Cd2DArc::eArcCCW : CMath2D::Cd2DArc::eArcCW, cx + r * std::cos(a),
                         cy + r * std::sin(a), cx + r * std::cos(b), cy + r * std::sin(b), cx, cy);
      const double cx2 = coord(engine) * 0.3, cy2 = coord(engine) * 0.3, r2 = radius(engine);
      arcs2.emplace_back(CMath2D::Cd2DArc::eArcCCW, cx2 + r2, cy2, cx2 + r2, cy2, cx2, cy2);
      points.emplace_back(coord(engine), coord(engine));
      angles.push_back(turn(engine));
    }
  }
};

const Inputs& TheInputs() {
  static const Inputs inputs;
  return inputs;
}

void BM_LineLineIntersection(benchmark::State& state) {
  const Inputs& in = TheInputs();
  CMath2D::Cd2DPoint out;
  std::size_t i = 0;
  for (auto _ : state) {
    const std::size_t k = i++ & (kInputs - 1);
    benchmark::DoNotOptimize(CMath2D::GetIntersectPoint(in.lines1[k], in.lines2[k], out));
    benchmark::DoNotOptimize(out);
  }
}
BENCHMARK(BM_LineLineIntersection);

void BM_SegmentSegmentIntersectionInBoxes(benchmark::State& state) {
  const Inputs& in = TheInputs();
  CMath2D::Cd2DPoint out;
  std::size_t i = 0;
  for (auto _ : state) {
    const std::size_t k = i++ & (kInputs - 1);
    benchmark::DoNotOptimize(CMath2D::GetIntersectPoint(in.lines1[k], in.lines2[k], out, true, true));
    benchmark::DoNotOptimize(out);
  }
}
BENCHMARK(BM_SegmentSegmentIntersectionInBoxes);

void BM_ArcLineIntersection(benchmark::State& state) {
  const Inputs& in = TheInputs();
  CMath2D::Cd2DPoint p1, p2;
  std::size_t i = 0;
  for (auto _ : state) {
    const std::size_t k = i++ & (kInputs - 1);
    benchmark::DoNotOptimize(CMath2D::GetIntersection(in.arcs1[k], in.lines1[k], p1, p2));
    benchmark::DoNotOptimize(p1);
    benchmark::DoNotOptimize(p2);
  }
}
BENCHMARK(BM_ArcLineIntersection);

void BM_CircleCircleIntersection(benchmark::State& state) {
  const Inputs& in = TheInputs();
  CMath2D::Cd2DPoint p1, p2;
  std::size_t i = 0;
  for (auto _ : state) {
    const std::size_t k = i++ & (kInputs - 1);
    benchmark::DoNotOptimize(CMath2D::GetIntersection(in.arcs1[k], in.arcs2[k], p1, p2));
    benchmark::DoNotOptimize(p1);
    benchmark::DoNotOptimize(p2);
  }
}
BENCHMARK(BM_CircleCircleIntersection);

void BM_PointSegmentDistance(benchmark::State& state) {
  const Inputs& in = TheInputs();
  std::size_t i = 0;
  for (auto _ : state) {
    const std::size_t k = i++ & (kInputs - 1);
    benchmark::DoNotOptimize(CMath2D::DistancePoint2Line(in.lines1[k], in.points[k], true));
  }
}
BENCHMARK(BM_PointSegmentDistance);

void BM_AngleOnCCWArcSegment(benchmark::State& state) {
  const Inputs& in = TheInputs();
  std::size_t i = 0;
  for (auto _ : state) {
    const std::size_t k = i++ & (kInputs - 1);
    const std::size_t j = (k + 1) & (kInputs - 1);
    const std::size_t m = (k + 2) & (kInputs - 1);
    benchmark::DoNotOptimize(
        CMath2D::AngleOnCCWArcSegment(in.arcs1[k], in.angles[k], in.angles[j], in.angles[m]));
  }
}
BENCHMARK(BM_AngleOnCCWArcSegment);

#if defined(NCAPPKIT_BENCH_HAVE_BOOST_GEOMETRY)
namespace bg = boost::geometry;
using BoostPoint = bg::model::d2::point_xy<double>;
using BoostSegment = bg::model::segment<BoostPoint>;

BoostSegment AsBoost(const CMath2D::Cd2DLine& l) {
  return BoostSegment(BoostPoint(l.GetStartX(), l.GetStartY()), BoostPoint(l.GetEndX(), l.GetEndY()));
}

void BM_Boost_SegmentSegmentIntersection(benchmark::State& state) {
  const Inputs& in = TheInputs();
  std::vector<BoostSegment> a, b;
  for (std::size_t k = 0; k < kInputs; ++k) {
    a.push_back(AsBoost(in.lines1[k]));
    b.push_back(AsBoost(in.lines2[k]));
  }
  std::vector<BoostPoint> out;
  out.reserve(4);  // reused: the timing is the computation, not the allocation
  std::size_t i = 0;
  for (auto _ : state) {
    const std::size_t k = i++ & (kInputs - 1);
    out.clear();
    bg::intersection(a[k], b[k], out);
    benchmark::DoNotOptimize(out.data());
  }
}
BENCHMARK(BM_Boost_SegmentSegmentIntersection);

void BM_Boost_SegmentsIntersect(benchmark::State& state) {
  const Inputs& in = TheInputs();
  std::vector<BoostSegment> a, b;
  for (std::size_t k = 0; k < kInputs; ++k) {
    a.push_back(AsBoost(in.lines1[k]));
    b.push_back(AsBoost(in.lines2[k]));
  }
  std::size_t i = 0;
  for (auto _ : state) {
    const std::size_t k = i++ & (kInputs - 1);
    benchmark::DoNotOptimize(bg::intersects(a[k], b[k]));
  }
}
BENCHMARK(BM_Boost_SegmentsIntersect);

void BM_Boost_PointSegmentDistance(benchmark::State& state) {
  const Inputs& in = TheInputs();
  std::vector<BoostSegment> segments;
  std::vector<BoostPoint> points;
  for (std::size_t k = 0; k < kInputs; ++k) {
    segments.push_back(AsBoost(in.lines1[k]));
    points.emplace_back(in.points[k].GetX(), in.points[k].GetY());
  }
  std::size_t i = 0;
  for (auto _ : state) {
    const std::size_t k = i++ & (kInputs - 1);
    benchmark::DoNotOptimize(bg::distance(points[k], segments[k]));
  }
}
BENCHMARK(BM_Boost_PointSegmentDistance);
#endif

}  // namespace

BENCHMARK_MAIN();
