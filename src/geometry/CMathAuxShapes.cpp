// SPDX-License-Identifier: MIT
#include "ncappkit/geometry/CMathAuxShapes.h"

#include <cmath>

#include "geometry/CircleKernels.h"

using ncappkit_geometry::CircleCircle;
using ncappkit_geometry::HorLineCircle;
using ncappkit_geometry::kAxisLineMissTolerance;
using ncappkit_geometry::kAxisLineTangentTolerance;
using ncappkit_geometry::SetPoint;
using ncappkit_geometry::VerLineCircle;

namespace {

// IsHorizontal / IsVertical of an aux line: tolerance in half turns (1e-6 of 180 degrees).
constexpr double kAuxAxisTolerance = 1e-6;
// Distance to a general aux line: a tangent below this gives the no-distance value.
constexpr double kAuxDistanceSlopeTolerance = 1e-7;
// The distance returned when none could be computed.
constexpr double kNoDistance = 99999999.9;
// Line–line intersections: tangents closer than this are parallel.
constexpr double kAuxParallelTolerance = 1e-5;
// Circle–aux line: a tangent below this finds no intersection.
constexpr double kAuxCircleSlopeTolerance = 1e-5;
// Circle–aux line: discriminants below -this miss (no snapping of small negatives to 0 here).
constexpr double kAuxCircleDiscriminantTolerance = 1e-6;
// Arc–axis line: the touch and miss tolerances are those of the circle–axis line kernels
// (kAxisLineTangentTolerance, kAxisLineMissTolerance in geometry/CircleKernels.h), so an arc and its full
// circle find the same candidate points on a horizontal or vertical line.

// Nearest whole multiple check shared by the two predicates: |q - trunc(q + tol)| < tol.
bool IsWholeMultiple(double q) {
  return std::fabs(q - std::trunc(q + kAuxAxisTolerance)) < kAuxAxisTolerance;
}

// Intersection of two lines given by a point and a tangent each; false when the tangents are nearly equal.
bool SlopeIntersection(double t1, double x1, double y1, double t2, double x2, double y2,
                       CMath2D::Cd2DPoint& p) {
  if (std::fabs(t1 - t2) < kAuxParallelTolerance) {
    return false;
  }
  const double x = (t1 * x1 - t2 * x2 + (y2 - y1)) / (t1 - t2);
  SetPoint(p, x, (x - x1) * t1 + y1);
  return true;
}

}  // namespace

CMathAuxShapes::CAuxHorLine::~CAuxHorLine() = default;
CMathAuxShapes::CAuxVerLine::~CAuxVerLine() = default;
CMathAuxShapes::CAuxLine::~CAuxLine() = default;
CMathAuxShapes::CAuxCircle::~CAuxCircle() = default;
CMathAuxShapes::CAuxCircleImpl::~CAuxCircleImpl() = default;
CMathAuxShapes::~CMathAuxShapes() = default;

double CMathAuxShapes::CAuxLine::GetAngleRad() const {
  return std::atan(1.0) * m_angleDeg / 45.0;
}

void CMathAuxShapes::CAuxLine::SetAngleRad(double angleRad) {
  m_angleDeg = angleRad * 45.0 / std::atan(1.0);
}

// ---------------------------------------------------------------------------------------------------------
// predicates

bool CMathAuxShapes::IsHorizontal(const KCI_AuxLine& line) {
  return IsWholeMultiple(std::fabs(line.GetAngleDeg() / 180.0));
}

bool CMathAuxShapes::IsVertical(const KCI_AuxLine& line) {
  return IsWholeMultiple((std::fabs(line.GetAngleDeg()) - 90.0) / 180.0);
}

// ---------------------------------------------------------------------------------------------------------
// distances

double CMathAuxShapes::DistanceFromPointToAuxShape(const KCI_AuxHorLine& shape, const CMath2D::Cd2DPoint& p) {
  CMath2D::Cd2DPoint foot;
  return DistanceFromPointToAuxShape(shape, p, foot);
}

double CMathAuxShapes::DistanceFromPointToAuxShape(const KCI_AuxHorLine& shape, const CMath2D::Cd2DPoint& p,
                                                   CMath2D::Cd2DPoint& foot) {
  const double pos = shape.GetPos();
  SetPoint(foot, p.GetX(), pos);
  return std::fabs(pos - p.GetY());
}

double CMathAuxShapes::DistanceFromPointToAuxShape(const KCI_AuxHorLine& shape, double x, double y) {
  CMath2D::Cd2DPoint foot;
  return DistanceFromPointToAuxShape(shape, CMath2D::Cd2DPoint(x, y), foot);
}

double CMathAuxShapes::DistanceFromPointToAuxShape(const KCI_AuxHorLine& shape, double x, double y,
                                                   CMath2D::Cd2DPoint& foot) {
  return DistanceFromPointToAuxShape(shape, CMath2D::Cd2DPoint(x, y), foot);
}

double CMathAuxShapes::DistanceFromPointToAuxShape(const KCI_AuxVerLine& shape, const CMath2D::Cd2DPoint& p) {
  CMath2D::Cd2DPoint foot;
  return DistanceFromPointToAuxShape(shape, p, foot);
}

double CMathAuxShapes::DistanceFromPointToAuxShape(const KCI_AuxVerLine& shape, const CMath2D::Cd2DPoint& p,
                                                   CMath2D::Cd2DPoint& foot) {
  const double pos = shape.GetPos();
  SetPoint(foot, pos, p.GetY());
  return std::fabs(p.GetX() - pos);
}

double CMathAuxShapes::DistanceFromPointToAuxShape(const KCI_AuxVerLine& shape, double x, double y) {
  CMath2D::Cd2DPoint foot;
  return DistanceFromPointToAuxShape(shape, CMath2D::Cd2DPoint(x, y), foot);
}

double CMathAuxShapes::DistanceFromPointToAuxShape(const KCI_AuxVerLine& shape, double x, double y,
                                                   CMath2D::Cd2DPoint& foot) {
  return DistanceFromPointToAuxShape(shape, CMath2D::Cd2DPoint(x, y), foot);
}

double CMathAuxShapes::DistanceFromPointToAuxShape(const KCI_AuxCircle& shape, const CMath2D::Cd2DPoint& p) {
  CMath2D::Cd2DPoint foot;
  return DistanceFromPointToAuxShape(shape, p, foot);
}

double CMathAuxShapes::DistanceFromPointToAuxShape(const KCI_AuxCircle& shape, const CMath2D::Cd2DPoint& p,
                                                   CMath2D::Cd2DPoint& foot) {
  const double cx = shape.GetCenterX();
  const double cy = shape.GetCenterY();
  const double r = shape.GetRadius();
  const double dx = p.GetX() - cx;
  const double dy = p.GetY() - cy;
  const double d = std::sqrt(dx * dx + dy * dy);
  const double k = r / d;  // a point at the centre gives infinity here and a NaN foot; that result stands
  SetPoint(foot, cx + k * dx, cy + k * dy);
  return std::fabs(d - r);
}

double CMathAuxShapes::DistanceFromPointToAuxShape(const KCI_AuxCircle& shape, double x, double y) {
  CMath2D::Cd2DPoint foot;
  return DistanceFromPointToAuxShape(shape, CMath2D::Cd2DPoint(x, y), foot);
}

double CMathAuxShapes::DistanceFromPointToAuxShape(const KCI_AuxCircle& shape, double x, double y,
                                                   CMath2D::Cd2DPoint& foot) {
  return DistanceFromPointToAuxShape(shape, CMath2D::Cd2DPoint(x, y), foot);
}

double CMathAuxShapes::DistanceFromPointToAuxShape(const KCI_AuxLine& shape, const CMath2D::Cd2DPoint& p) {
  CMath2D::Cd2DPoint foot;
  return DistanceFromPointToAuxShape(shape, p, foot);
}

double CMathAuxShapes::DistanceFromPointToAuxShape(const KCI_AuxLine& shape, const CMath2D::Cd2DPoint& p,
                                                   CMath2D::Cd2DPoint& foot) {
  const double x0 = shape.GetXPos();
  const double y0 = shape.GetYPos();
  if (IsHorizontal(shape)) {
    return DistanceFromPointToAuxShape(CAuxHorLine(y0), p, foot);
  }
  if (IsVertical(shape)) {
    return DistanceFromPointToAuxShape(CAuxVerLine(x0), p, foot);
  }
  const double t = std::tan(shape.GetAngleRad());
  if (std::fabs(t) < kAuxDistanceSlopeTolerance) {
    return kNoDistance;
  }
  const double px = p.GetX();
  const double py = p.GetY();
  const double fx = (px / t + x0 * t + py - y0) / (t + 1.0 / t);
  const double fy = y0 + (fx - x0) * t;
  SetPoint(foot, fx, fy);
  return CMath2D::GetDistance(px, py, fx, fy);
}

double CMathAuxShapes::DistanceFromPointToAuxShape(const KCI_AuxLine& shape, double x, double y) {
  CMath2D::Cd2DPoint foot;
  return DistanceFromPointToAuxShape(shape, CMath2D::Cd2DPoint(x, y), foot);
}

double CMathAuxShapes::DistanceFromPointToAuxShape(const KCI_AuxLine& shape, double x, double y,
                                                   CMath2D::Cd2DPoint& foot) {
  return DistanceFromPointToAuxShape(shape, CMath2D::Cd2DPoint(x, y), foot);
}

// ---------------------------------------------------------------------------------------------------------
// line intersections

bool CMathAuxShapes::GetIntersection(const CMath2D::Cd2DLine& line, const KCI_AuxHorLine& aux,
                                     CMath2D::Cd2DPoint& p) {
  if (CMath2D::IsHorizontal(line)) {
    return false;
  }
  const double pos = aux.GetPos();
  SetPoint(p, line.GetStartX() + (pos - line.GetStartY()) / std::tan(CMath2D::GetAngleRad(line)), pos);
  return true;
}

bool CMathAuxShapes::GetIntersection(const CMath2D::Cd2DLine& line, const KCI_AuxVerLine& aux,
                                     CMath2D::Cd2DPoint& p) {
  if (CMath2D::IsVertical(line)) {
    return false;
  }
  const double pos = aux.GetPos();
  SetPoint(p, pos, line.GetStartY() + (pos - line.GetStartX()) * std::tan(CMath2D::GetAngleRad(line)));
  return true;
}

bool CMathAuxShapes::GetIntersection(const CMath2D::Cd2DLine& line, const KCI_AuxLine& aux,
                                     CMath2D::Cd2DPoint& p) {
  if (CMath2D::IsHorizontal(line) && IsVertical(aux)) {
    SetPoint(p, aux.GetXPos(), line.GetStartY());
    return true;
  }
  if (CMath2D::IsVertical(line) && IsHorizontal(aux)) {
    SetPoint(p, line.GetStartX(), aux.GetYPos());
    return true;
  }
  return SlopeIntersection(std::tan(CMath2D::GetAngleRad(line)), line.GetStartX(), line.GetStartY(),
                           std::tan(aux.GetAngleRad()), aux.GetXPos(), aux.GetYPos(), p);
}

bool CMathAuxShapes::GetIntersection(const KCI_AuxLine& line, const KCI_AuxHorLine& aux,
                                     CMath2D::Cd2DPoint& p) {
  if (IsHorizontal(line)) {
    return false;
  }
  const double pos = aux.GetPos();
  SetPoint(p, line.GetXPos() + (pos - line.GetYPos()) / std::tan(line.GetAngleRad()), pos);
  return true;
}

bool CMathAuxShapes::GetIntersection(const KCI_AuxLine& line, const KCI_AuxVerLine& aux,
                                     CMath2D::Cd2DPoint& p) {
  if (IsVertical(line)) {
    return false;
  }
  const double pos = aux.GetPos();
  SetPoint(p, pos, line.GetYPos() + (pos - line.GetXPos()) * std::tan(line.GetAngleRad()));
  return true;
}

bool CMathAuxShapes::GetIntersection(const KCI_AuxLine& first, const KCI_AuxLine& second,
                                     CMath2D::Cd2DPoint& p) {
  if (IsHorizontal(first) && IsVertical(second)) {
    SetPoint(p, second.GetXPos(), first.GetYPos());
    return true;
  }
  if (IsVertical(first) && IsHorizontal(second)) {
    SetPoint(p, first.GetXPos(), second.GetYPos());
    return true;
  }
  return SlopeIntersection(std::tan(first.GetAngleRad()), first.GetXPos(), first.GetYPos(),
                           std::tan(second.GetAngleRad()), second.GetXPos(), second.GetYPos(), p);
}

// ---------------------------------------------------------------------------------------------------------
// circle intersections

bool CMathAuxShapes::GetIntersection(const KCI_AuxCircle& circle, const KCI_AuxHorLine& aux,
                                     CMath2D::Cd2DPoint& p1, CMath2D::Cd2DPoint& p2) {
  return HorLineCircle(circle.GetCenterX(), circle.GetCenterY(), circle.GetRadius(), aux.GetPos(), p1, p2);
}

bool CMathAuxShapes::GetIntersection(const KCI_AuxCircle& circle, const KCI_AuxVerLine& aux,
                                     CMath2D::Cd2DPoint& p1, CMath2D::Cd2DPoint& p2) {
  return VerLineCircle(circle.GetCenterX(), circle.GetCenterY(), circle.GetRadius(), aux.GetPos(), p1, p2);
}

bool CMathAuxShapes::GetIntersection(const KCI_AuxCircle& circle, const KCI_AuxLine& aux,
                                     CMath2D::Cd2DPoint& p1, CMath2D::Cd2DPoint& p2) {
  if (IsHorizontal(aux)) {
    return GetIntersection(circle, CAuxHorLine(aux.GetYPos()), p1, p2);
  }
  if (IsVertical(aux)) {
    return GetIntersection(circle, CAuxVerLine(aux.GetXPos()), p1, p2);
  }
  const double t = std::tan(aux.GetAngleRad());
  if (std::fabs(t) < kAuxCircleSlopeTolerance) {
    return false;
  }
  const double cx = circle.GetCenterX();
  const double cy = circle.GetCenterY();
  const double r = circle.GetRadius();
  const double b = aux.GetYPos() - aux.GetXPos() * t;
  const double qa = 1.0 + t * t;
  const double qb = 2.0 * t * (b - cy) - 2.0 * cx;
  const double qc = (b - cy) * (b - cy) + cx * cx - r * r;
  const double d = qb * qb - 4.0 * qa * qc;
  if (d < -kAuxCircleDiscriminantTolerance) {
    return false;
  }
  // A discriminant between -1e-6 and 0 is not snapped to 0: its root is NaN, and that result stands.
  const double root = std::sqrt(d);
  const double x1 = (-qb + root) / (2.0 * qa);
  const double x2 = (-qb - root) / (2.0 * qa);
  SetPoint(p1, x1, x1 * t + b);
  SetPoint(p2, x2, x2 * t + b);
  return true;
}

bool CMathAuxShapes::GetIntersection(const KCI_AuxCircle& a, const KCI_AuxCircle& b, CMath2D::Cd2DPoint& p1,
                                     CMath2D::Cd2DPoint& p2) {
  return CircleCircle(a.GetCenterX(), a.GetCenterY(), a.GetRadius(), b.GetCenterX(), b.GetCenterY(),
                      b.GetRadius(), p1, p2);
}

// ---------------------------------------------------------------------------------------------------------
// arc intersections

int CMathAuxShapes::GetIntersection(const CMath2D::Cd2DArc& arc, const KCI_AuxHorLine& aux,
                                    CMath2D::Cd2DPoint& p1, CMath2D::Cd2DPoint& p2) {
  const double y = aux.GetPos();
  const double r = CMath2D::GetArcRadius(arc);
  const double cx = arc.GetCenterX();
  const double cy = arc.GetCenterY();
  if (std::fabs(cy + r - y) < kAxisLineTangentTolerance) {
    const CMath2D::Cd2DPoint touch(cx, y);
    if (!CMath2D::PointIsBetweenStartAndEndWc(arc, touch)) {
      return 0;
    }
    p1 = touch;  // the top touch writes p1 only
    return 1;
  }
  if (std::fabs(cy - r - y) < kAxisLineTangentTolerance) {
    const CMath2D::Cd2DPoint touch(cx, y);
    if (!CMath2D::PointIsBetweenStartAndEndWc(arc, touch)) {
      return 0;
    }
    p1 = touch;  // the bottom touch writes both
    p2 = touch;
    return 1;
  }
  const double dy = y - cy;
  if (std::fabs(dy) > r + kAxisLineMissTolerance) {
    return 0;
  }
  const double h = std::sqrt(r * r - dy * dy);
  const CMath2D::Cd2DPoint a(cx + h, y);
  const CMath2D::Cd2DPoint b(cx - h, y);
  const bool aOn = CMath2D::PointIsBetweenStartAndEndWc(arc, a);
  const bool bOn = CMath2D::PointIsBetweenStartAndEndWc(arc, b);
  if (aOn && bOn) {
    p1 = a;
    p2 = b;
    return 2;
  }
  if (aOn) {
    p1 = a;
    return 1;
  }
  if (bOn) {
    p1 = b;
    return 1;
  }
  return 0;
}

int CMathAuxShapes::GetIntersection(const CMath2D::Cd2DArc& arc, const KCI_AuxVerLine& aux,
                                    CMath2D::Cd2DPoint& p1, CMath2D::Cd2DPoint& p2) {
  const double x = aux.GetPos();
  const double r = CMath2D::GetArcRadius(arc);
  const double cx = arc.GetCenterX();
  const double cy = arc.GetCenterY();
  if (std::fabs(cx + r - x) < kAxisLineTangentTolerance) {
    const CMath2D::Cd2DPoint touch(x, cy);
    if (!CMath2D::PointIsBetweenStartAndEndWc(arc, touch)) {
      return 0;
    }
    p1 = touch;  // the right touch writes p1 only
    return 1;
  }
  if (std::fabs(cx - r - x) < kAxisLineTangentTolerance) {
    const CMath2D::Cd2DPoint touch(x, cy);
    if (!CMath2D::PointIsBetweenStartAndEndWc(arc, touch)) {
      return 0;
    }
    p1 = touch;  // the left touch writes both
    p2 = touch;
    return 1;
  }
  const double dx = x - cx;
  if (std::fabs(dx) > r + kAxisLineMissTolerance) {
    return 0;
  }
  const double h = std::sqrt(r * r - dx * dx);
  const CMath2D::Cd2DPoint a(x, cy + h);
  const CMath2D::Cd2DPoint b(x, cy - h);
  const bool aOn = CMath2D::PointIsBetweenStartAndEndWc(arc, a);
  const bool bOn = CMath2D::PointIsBetweenStartAndEndWc(arc, b);
  if (aOn && bOn) {
    p1 = a;
    p2 = b;
    return 2;
  }
  if (aOn) {
    p1 = a;
    return 1;
  }
  if (bOn) {
    p1 = b;
    return 1;
  }
  return 0;
}

int CMathAuxShapes::GetIntersection(const CMath2D::Cd2DArc& arc, const KCI_AuxLine& aux,
                                    CMath2D::Cd2DPoint& p1, CMath2D::Cd2DPoint& p2) {
  if (IsHorizontal(aux)) {
    return GetIntersection(arc, CAuxHorLine(aux.GetYPos()), p1, p2);
  }
  if (IsVertical(aux)) {
    return GetIntersection(arc, CAuxVerLine(aux.GetXPos()), p1, p2);
  }
  return 0;
}
