// SPDX-License-Identifier: MIT
// CMathAuxShapes: the unbounded construction geometry of a drawing (infinite horizontal, vertical and angled
// lines, full circles) as nested classes, and the static operations that measure distances to them and
// intersect them with each other and with CMath2D's line and arc.
//
// Operations take the shapes through KCI_AuxHorLine, KCI_AuxVerLine, KCI_AuxLine and KCI_AuxCircle, so client
// classes implementing those interfaces work too. Output points are CMath2D::Cd2DPoint. Nothing throws;
// impossible cases return false or a count of 0 and leave the outputs untouched unless stated otherwise.
//
//   CMathAuxShapes::CAuxCircleImpl circle(0, 0, 2);
//   CMathAuxShapes::CAuxHorLine line(1);
//   CMath2D::Cd2DPoint p1, p2;
//   if (CMathAuxShapes::GetIntersection(circle, line, p1, p2)) { ... }   // (1.732.., 1), (-1.732.., 1)
//
// Tolerances are named in each operation's comment; their values are in the tolerance block of
// src/geometry/CMathAuxShapes.cpp (the circle kernels' ones in src/geometry/CircleKernels.h).
//
// CAuxCircle implements only the radius of KCI_AuxCircle; its GetXPos/SetXPos/GetYPos/SetYPos are plain
// members that do not implement the interface's centre operations, so CAuxCircle is abstract. The ready-made
// circle is CAuxCircleImpl, a CAuxCircle whose interface centre operations read and write those same fields.
// See docs/behaviours.md#2d-geometry.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/geometry/CMath2D.h"
#include "ncappkit/geometry/KCI_AuxCircle.h"
#include "ncappkit/geometry/KCI_AuxHorLine.h"
#include "ncappkit/geometry/KCI_AuxLine.h"
#include "ncappkit/geometry/KCI_AuxVerLine.h"

/// Infinite construction lines and full construction circles, and the static operations that measure and
/// intersect them.
class NCAPPKIT_EXPORT CMathAuxShapes {
 public:
  /// The infinite line y = pos.
  class NCAPPKIT_EXPORT CAuxHorLine : public KCI_AuxHorLine {
   public:
    /// The line y = 0.
    CAuxHorLine() = default;
    /// The line y = pos.
    explicit CAuxHorLine(double pos) noexcept : m_pos(pos) {}
    /// The same position.
    CAuxHorLine(const CAuxHorLine&) = default;
    /// Take the other line's position; returns *this.
    CAuxHorLine& operator=(const CAuxHorLine&) = default;
    ~CAuxHorLine() override;

    /// The position of the line.
    double GetPos() const override { return m_pos; }
    /// Set the position of the line.
    void SetPos(double pos) override { m_pos = pos; }

   private:
    double m_pos = 0.0;
  };

  /// The infinite line x = pos.
  class NCAPPKIT_EXPORT CAuxVerLine : public KCI_AuxVerLine {
   public:
    /// The line x = 0.
    CAuxVerLine() = default;
    /// The line x = pos.
    explicit CAuxVerLine(double pos) noexcept : m_pos(pos) {}
    /// The same position.
    CAuxVerLine(const CAuxVerLine&) = default;
    /// Take the other line's position; returns *this.
    CAuxVerLine& operator=(const CAuxVerLine&) = default;
    ~CAuxVerLine() override;

    /// The position of the line.
    double GetPos() const override { return m_pos; }
    /// Set the position of the line.
    void SetPos(double pos) override { m_pos = pos; }

   private:
    double m_pos = 0.0;
  };

  /// The infinite line through (xPos, yPos) at angleDeg (stored as given, not normalised). The radian forms
  /// convert through atan(1) = pi/4: GetAngleRad = atan(1) * angleDeg / 45, SetAngleRad(a) stores
  /// a * 45 / atan(1).
  class NCAPPKIT_EXPORT CAuxLine : public KCI_AuxLine {
   public:
    /// Through the origin at 0 degrees.
    CAuxLine() = default;
    /// Through (x, y) at angleDeg degrees.
    CAuxLine(double x, double y, double angleDeg) noexcept : m_xPos(x), m_yPos(y), m_angleDeg(angleDeg) {}
    /// The same point and angle.
    CAuxLine(const CAuxLine&) = default;
    /// Take the other line's point and angle; returns *this.
    CAuxLine& operator=(const CAuxLine&) = default;
    ~CAuxLine() override;

    /// The x of the point the line passes through.
    double GetXPos() const override { return m_xPos; }
    /// Set the x of the point the line passes through.
    void SetXPos(double x) override { m_xPos = x; }
    /// The y of the point the line passes through.
    double GetYPos() const override { return m_yPos; }
    /// Set the y of the point the line passes through.
    void SetYPos(double y) override { m_yPos = y; }
    /// The direction in degrees, as stored.
    double GetAngleDeg() const override { return m_angleDeg; }
    /// atan(1) * angleDeg / 45.
    double GetAngleRad() const override;
    /// Store the direction in degrees.
    void SetAngleDeg(double angleDeg) override { m_angleDeg = angleDeg; }
    /// Store angleRad * 45 / atan(1) degrees.
    void SetAngleRad(double angleRad) override;

   private:
    double m_xPos = 0.0;
    double m_yPos = 0.0;
    double m_angleDeg = 0.0;
  };

  /// A full circle with centre (xPos, yPos). Abstract: it implements only GetRadius and SetRadius of
  /// KCI_AuxCircle. Use CAuxCircleImpl, or derive and implement GetCenterX, SetCenterX, GetCenterY and
  /// SetCenterY yourself.
  class NCAPPKIT_EXPORT CAuxCircle : public KCI_AuxCircle {
   public:
    /// Centre (0, 0), radius 0.
    CAuxCircle() = default;
    /// Centre (x, y) and the radius.
    CAuxCircle(double x, double y, double radius) noexcept : m_xPos(x), m_yPos(y), m_radius(radius) {}
    /// The same centre and radius.
    CAuxCircle(const CAuxCircle&) = default;
    /// Take the other circle's centre and radius; returns *this.
    CAuxCircle& operator=(const CAuxCircle&) = default;
    ~CAuxCircle() override;

    /// The radius.
    double GetRadius() const override { return m_radius; }
    /// Set the radius.
    void SetRadius(double radius) override { m_radius = radius; }

    /// The stored centre x (a plain member: not the interface's GetCenterX).
    double GetXPos() const { return m_xPos; }
    /// Store the centre x (a plain member: not the interface's SetCenterX).
    void SetXPos(double x) { m_xPos = x; }
    /// The stored centre y (a plain member: not the interface's GetCenterY).
    double GetYPos() const { return m_yPos; }
    /// Store the centre y (a plain member: not the interface's SetCenterY).
    void SetYPos(double y) { m_yPos = y; }

   private:
    double m_xPos = 0.0;
    double m_yPos = 0.0;
    double m_radius = 0.0;
  };

  /// The ready-to-use circle: a CAuxCircle whose interface centre operations are its GetXPos, SetXPos,
  /// GetYPos and SetYPos.
  class NCAPPKIT_EXPORT CAuxCircleImpl : public CAuxCircle {
   public:
    /// Centre (0, 0), radius 0.
    CAuxCircleImpl() = default;
    /// Centre (x, y) and the radius.
    CAuxCircleImpl(double x, double y, double radius) noexcept : CAuxCircle(x, y, radius) {}
    /// The same centre and radius.
    CAuxCircleImpl(const CAuxCircleImpl&) = default;
    /// Take the other circle's centre and radius; returns *this.
    CAuxCircleImpl& operator=(const CAuxCircleImpl&) = default;
    ~CAuxCircleImpl() override;

    /// GetXPos().
    double GetCenterX() const override { return GetXPos(); }
    /// SetXPos(x).
    void SetCenterX(double x) override { SetXPos(x); }
    /// GetYPos().
    double GetCenterY() const override { return GetYPos(); }
    /// SetYPos(y).
    void SetCenterY(double y) override { SetYPos(y); }
  };

  /// Nothing to set up: the class holds no data.
  CMathAuxShapes() = default;
  /// Nothing to copy: the class holds no data.
  CMathAuxShapes(const CMathAuxShapes&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  CMathAuxShapes& operator=(const CMathAuxShapes&) = default;
  virtual ~CMathAuxShapes();

  // ----- predicates -----------------------------------------------------------------------------------

  /// The angle is a whole multiple of 180 degrees: q = |a / 180|, |q - trunc(q + t)| < t with
  /// t = kAuxAxisTolerance.
  static bool IsHorizontal(const KCI_AuxLine& line);
  /// The angle is 90 degrees plus a whole multiple of 180: q = (|a| - 90) / 180, |q - trunc(q + t)| < t with
  /// t = kAuxAxisTolerance.
  static bool IsVertical(const KCI_AuxLine& line);

  // ----- distance from a point; foot = the nearest point of the shape ----------------------------------

  /// |pos - p.y|, foot (p.x, pos).
  static double DistanceFromPointToAuxShape(const KCI_AuxHorLine& shape, const CMath2D::Cd2DPoint& p);
  /// |pos - p.y|, the foot (p.x, pos) into `foot`.
  static double DistanceFromPointToAuxShape(const KCI_AuxHorLine& shape, const CMath2D::Cd2DPoint& p,
                                            CMath2D::Cd2DPoint& foot);
  /// |pos - y|.
  static double DistanceFromPointToAuxShape(const KCI_AuxHorLine& shape, double x, double y);
  /// |pos - y|, the foot (x, pos) into `foot`.
  static double DistanceFromPointToAuxShape(const KCI_AuxHorLine& shape, double x, double y,
                                            CMath2D::Cd2DPoint& foot);
  /// |p.x - pos|, foot (pos, p.y).
  static double DistanceFromPointToAuxShape(const KCI_AuxVerLine& shape, const CMath2D::Cd2DPoint& p);
  /// |p.x - pos|, the foot (pos, p.y) into `foot`.
  static double DistanceFromPointToAuxShape(const KCI_AuxVerLine& shape, const CMath2D::Cd2DPoint& p,
                                            CMath2D::Cd2DPoint& foot);
  /// |x - pos|.
  static double DistanceFromPointToAuxShape(const KCI_AuxVerLine& shape, double x, double y);
  /// |x - pos|, the foot (pos, y) into `foot`.
  static double DistanceFromPointToAuxShape(const KCI_AuxVerLine& shape, double x, double y,
                                            CMath2D::Cd2DPoint& foot);
  /// |d - r| with d the distance from the centre, foot c + (r / d)(p - c). A point at the centre divides by
  /// zero: the distance is r and the foot NaN.
  static double DistanceFromPointToAuxShape(const KCI_AuxCircle& shape, const CMath2D::Cd2DPoint& p);
  /// As above, the foot into `foot` (NaN for a point at the centre).
  static double DistanceFromPointToAuxShape(const KCI_AuxCircle& shape, const CMath2D::Cd2DPoint& p,
                                            CMath2D::Cd2DPoint& foot);
  /// The distance of (x, y) from the circle, as above.
  static double DistanceFromPointToAuxShape(const KCI_AuxCircle& shape, double x, double y);
  /// The distance of (x, y) from the circle, the foot into `foot`, as above.
  static double DistanceFromPointToAuxShape(const KCI_AuxCircle& shape, double x, double y,
                                            CMath2D::Cd2DPoint& foot);
  /// Perpendicular distance and foot; horizontal and vertical lines as above; when
  /// |tan| < kAuxDistanceSlopeTolerance otherwise (cannot happen for finite angles that are not horizontal)
  /// kNoDistance (99999999.9) with the foot untouched.
  static double DistanceFromPointToAuxShape(const KCI_AuxLine& shape, const CMath2D::Cd2DPoint& p);
  /// As above, the foot into `foot` (untouched in the no-distance case).
  static double DistanceFromPointToAuxShape(const KCI_AuxLine& shape, const CMath2D::Cd2DPoint& p,
                                            CMath2D::Cd2DPoint& foot);
  /// The distance of (x, y) from the line, as above.
  static double DistanceFromPointToAuxShape(const KCI_AuxLine& shape, double x, double y);
  /// The distance of (x, y) from the line, the foot into `foot`, as above.
  static double DistanceFromPointToAuxShape(const KCI_AuxLine& shape, double x, double y,
                                            CMath2D::Cd2DPoint& foot);

  // ----- intersections (lines infinite, circles full, arcs limited by their sweep) ----------------------

  /// Line (infinite) and horizontal line; false when the line is horizontal (CMath2D::IsHorizontal).
  static bool GetIntersection(const CMath2D::Cd2DLine& line, const KCI_AuxHorLine& aux,
                              CMath2D::Cd2DPoint& p);
  /// Line (infinite) and vertical line; false when the line is vertical (CMath2D::IsVertical).
  static bool GetIntersection(const CMath2D::Cd2DLine& line, const KCI_AuxVerLine& aux,
                              CMath2D::Cd2DPoint& p);
  /// Line (infinite) and aux line; false when their tangents differ by less than kAuxParallelTolerance.
  static bool GetIntersection(const CMath2D::Cd2DLine& line, const KCI_AuxLine& aux, CMath2D::Cd2DPoint& p);
  /// Aux line and horizontal line; false when the aux line is horizontal.
  static bool GetIntersection(const KCI_AuxLine& line, const KCI_AuxHorLine& aux, CMath2D::Cd2DPoint& p);
  /// Aux line and vertical line; false when the aux line is vertical.
  static bool GetIntersection(const KCI_AuxLine& line, const KCI_AuxVerLine& aux, CMath2D::Cd2DPoint& p);
  /// Two aux lines; false when their tangents differ by less than kAuxParallelTolerance.
  static bool GetIntersection(const KCI_AuxLine& first, const KCI_AuxLine& second, CMath2D::Cd2DPoint& p);
  /// Circle and horizontal line: tangent within kAxisLineTangentTolerance gives p1 = p2 = (cx, y); beyond
  /// r + kAxisLineMissTolerance false.
  static bool GetIntersection(const KCI_AuxCircle& circle, const KCI_AuxHorLine& aux, CMath2D::Cd2DPoint& p1,
                              CMath2D::Cd2DPoint& p2);
  /// Circle and vertical line, the mirror of the horizontal case.
  static bool GetIntersection(const KCI_AuxCircle& circle, const KCI_AuxVerLine& aux, CMath2D::Cd2DPoint& p1,
                              CMath2D::Cd2DPoint& p2);
  /// Circle and aux line: false when |tan| < kAuxCircleSlopeTolerance (for a non-axis line) or the
  /// discriminant is below -kAuxCircleDiscriminantTolerance.
  static bool GetIntersection(const KCI_AuxCircle& circle, const KCI_AuxLine& aux, CMath2D::Cd2DPoint& p1,
                              CMath2D::Cd2DPoint& p2);
  /// Two circles, as CMath2D's circle–circle intersection.
  static bool GetIntersection(const KCI_AuxCircle& a, const KCI_AuxCircle& b, CMath2D::Cd2DPoint& p1,
                              CMath2D::Cd2DPoint& p2);
  /// Arc and horizontal line: the number of points (0..2) on the arc's sweep, in p1 (then p2). A touch at the
  /// top of the circle writes p1 only; a touch at the bottom writes p1 and p2.
  static int GetIntersection(const CMath2D::Cd2DArc& arc, const KCI_AuxHorLine& aux, CMath2D::Cd2DPoint& p1,
                             CMath2D::Cd2DPoint& p2);
  /// Arc and vertical line, the mirror (candidates (x, cy + h) then (x, cy - h); touch at cx + r first).
  static int GetIntersection(const CMath2D::Cd2DArc& arc, const KCI_AuxVerLine& aux, CMath2D::Cd2DPoint& p1,
                             CMath2D::Cd2DPoint& p2);
  /// Arc and aux line: horizontal and vertical aux lines as above; any other direction gives 0, outputs
  /// untouched.
  static int GetIntersection(const CMath2D::Cd2DArc& arc, const KCI_AuxLine& aux, CMath2D::Cd2DPoint& p1,
                             CMath2D::Cd2DPoint& p2);
};
