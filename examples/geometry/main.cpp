// SPDX-License-Identifier: MIT
// example_geometry: intersect lines with lines, lines with arcs and arcs with arcs.
//
//   example_geometry
//
// Every computation takes its geometry through interfaces (KCI_d2DLine, KCI_d2DArc, ...) and writes results
// through them, so a CAM program's own classes can take part; here the library's value types are used.
// Intersections with an arc are with its full circle: whether a point lies on the arc's sweep is a second
// question, answered by PointIsBetweenStartAndEndWc.
#include <iostream>

#include "ncappkit/geometry/CMath2D.h"

namespace {

void Print(const char* what, const CMath2D::Cd2DPoint& p) {
  std::cout << "  " << what << " (" << p.GetX() << ", " << p.GetY() << ")\n";
}

}  // namespace

int main() {
  // Two segments: the infinite lines meet at (3, 0); with onA/onB the point must lie within both segments.
  const CMath2D::Cd2DLine a(0, 0, 10, 0);
  const CMath2D::Cd2DLine b(3, -5, 3, 5);
  CMath2D::Cd2DPoint hit;
  std::cout << "line and line:\n";
  if (CMath2D::GetIntersectPoint(a, b, hit, true, true))
    Print("meet at", hit);

  // A quarter arc of radius 5 about the origin, counter-clockwise from (5, 0) to (0, 5), and a slanted line.
  const CMath2D::Cd2DArc arc(CMath2D::Cd2DArc::eArcCCW, 5, 0, 0, 5, 0, 0);
  const CMath2D::Cd2DLine slanted(-10, -10, 10, 10);
  CMath2D::Cd2DPoint p1;
  CMath2D::Cd2DPoint p2;
  std::cout << "arc and line:\n";
  if (CMath2D::GetIntersection(arc, slanted, p1, p2)) {
    for (const CMath2D::Cd2DPoint* p : {&p1, &p2}) {
      const bool onSweep = CMath2D::PointIsBetweenStartAndEndWc(arc, *p);
      Print(onSweep ? "on the arc at" : "on the circle only at", *p);
    }
  }

  // Two circles of radius 5 whose centres are 6 apart cross at two points.
  const CMath2D::Cd2DArc other(CMath2D::Cd2DArc::eArcCCW, 11, 0, 11, 0, 6, 0);
  std::cout << "arc and arc:\n";
  if (CMath2D::GetIntersection(arc, other, p1, p2)) {
    Print("first", p1);
    Print("second", p2);
  }
  return 0;
}
