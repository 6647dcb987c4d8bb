// SPDX-License-Identifier: MIT
// CMath2D: the library's 2D value types (points, line segments and circular arcs in int and double form) and
// its static 2D computations: angles, distances, arc sweep and length, points along an arc, projections,
// parallels, intersections, tangents and bounding boxes.
//
// Every computation takes its geometry through the interfaces KCI_d2DPoint, KCI_d2DLine, KCI_d2DArc (and the
// int forms where stated) and writes results through their setters, so client classes implementing those
// interfaces work as well as the nested value types. Nothing keeps state; calls on distinct objects may run
// on any thread. Angles are counter-clockwise from +x, radians in the ...Rad operations and degrees in the
// ...Deg ones. The radius every computation uses is GetArcRadius (centre to START point), while
// Cd2DArc::GetRadius measures centre to END point; the two differ on an inconsistent arc, on purpose.
//
//   CMath2D::Cd2DLine a(0, 0, 10, 0), b(3, -5, 3, 5);
//   CMath2D::Cd2DPoint hit;
//   if (CMath2D::GetIntersectPoint(a, b, hit)) { ... }            // hit == (3, 0)
//   CMath2D::Cd2DArc arc(CMath2D::Cd2DArc::eArcCCW, 1, 0, 0, 1, 0, 0);
//   double sweep = CMath2D::GetArcAngleDeg(arc);                  // 90
//
// Every tolerance is an absolute constant of its own operation, named in the operation's comment; the values
// are in the tolerance block of src/geometry/CMath2D.cpp (the circle kernels' ones in
// src/geometry/CircleKernels.h). They are deliberately not unified. Nothing throws except the four start/end
// angle operations, which throw IMath2DException by value for an arc that is neither clockwise nor
// counter-clockwise.
// See docs/behaviours.md#2d-geometry.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KC2DArea.h"
#include "ncappkit/foundation/KC2DElement.h"
#include "ncappkit/foundation/KCMath.h"
#include "ncappkit/geometry/KCI_d2DArc.h"
#include "ncappkit/geometry/KCI_d2DHorLine.h"
#include "ncappkit/geometry/KCI_d2DLine.h"
#include "ncappkit/geometry/KCI_d2DPoint.h"
#include "ncappkit/geometry/KCI_d2DVerLine.h"
#include "ncappkit/geometry/KCI_i2DArc.h"
#include "ncappkit/geometry/KCI_i2DLine.h"
#include "ncappkit/geometry/KCI_i2DPoint.h"

/// The library's 2D value types (int and double points, lines, arcs) and its static 2D computations.
class NCAPPKIT_EXPORT CMath2D {
 public:
  // ----- value types ------------------------------------------------------------------------------------

  /// A point with int coordinates. Fields are reached through the accessors only.
  class NCAPPKIT_EXPORT Ci2DPoint : public KCI_i2DPoint {
   public:
    /// The point (0, 0).
    Ci2DPoint() = default;
    /// The point (x, y).
    Ci2DPoint(int x, int y) noexcept : m_x(x), m_y(y) {}
    /// The same coordinates.
    Ci2DPoint(const Ci2DPoint&) = default;
    /// Take the other point's coordinates; returns *this.
    Ci2DPoint& operator=(const Ci2DPoint&) = default;
    ~Ci2DPoint() override;

    /// The x coordinate.
    int GetX() const override { return m_x; }
    /// The y coordinate.
    int GetY() const override { return m_y; }
    /// Set the x coordinate.
    void SetX(int x) override { m_x = x; }
    /// Set the y coordinate.
    void SetY(int y) override { m_y = y; }

   private:
    int m_x = 0;
    int m_y = 0;
  };

  /// A point with double coordinates.
  class NCAPPKIT_EXPORT Cd2DPoint : public KCI_d2DPoint {
   public:
    /// The point (0, 0).
    Cd2DPoint() = default;
    /// The point (x, y).
    Cd2DPoint(double x, double y) noexcept : m_x(x), m_y(y) {}
    /// The same coordinates.
    Cd2DPoint(const Cd2DPoint&) = default;
    /// Take the other point's coordinates; returns *this.
    Cd2DPoint& operator=(const Cd2DPoint&) = default;
    ~Cd2DPoint() override;

    /// The x coordinate.
    double GetX() const override { return m_x; }
    /// The y coordinate.
    double GetY() const override { return m_y; }
    /// Set the x coordinate.
    void SetX(double x) override { m_x = x; }
    /// Set the y coordinate.
    void SetY(double y) override { m_y = y; }

    /// True when both coordinates differ by at most kPointEqualTolerance (a difference of exactly that much
    /// is still equal); the other point is read through its GetX/GetY, x first.
    bool operator==(const Cd2DPoint& other) const;
    /// Exact negation of ==.
    bool operator!=(const Cd2DPoint& other) const;
    /// (x + other.x, y + other.y); neither operand changes.
    Cd2DPoint operator+(const Cd2DPoint& other) const;
    /// (x - other.x, y - other.y), this minus other; neither operand changes.
    Cd2DPoint operator-(const Cd2DPoint& other) const;
    /// The class library's point at (x, y).
    KC2DPoint AsKC2DPoint() const { return KC2DPoint(m_x, m_y); }

   private:
    double m_x = 0.0;
    double m_y = 0.0;
  };

  /// A line segment with int coordinates.
  class NCAPPKIT_EXPORT Ci2DLine : public KCI_i2DLine {
   public:
    /// All coordinates 0.
    Ci2DLine() = default;
    /// The segment from (startX, startY) to (endX, endY).
    Ci2DLine(int startX, int startY, int endX, int endY) noexcept
        : m_startX(startX), m_startY(startY), m_endX(endX), m_endY(endY) {}
    /// The same start and end.
    Ci2DLine(const Ci2DLine&) = default;
    /// Take the other line's start and end; returns *this.
    Ci2DLine& operator=(const Ci2DLine&) = default;
    ~Ci2DLine() override;

    /// The start point's x.
    int GetStartX() const override { return m_startX; }
    /// The start point's y.
    int GetStartY() const override { return m_startY; }
    /// Set the start point's x.
    void SetStartX(int x) override { m_startX = x; }
    /// Set the start point's y.
    void SetStartY(int y) override { m_startY = y; }
    /// The end point's x.
    int GetEndX() const override { return m_endX; }
    /// The end point's y.
    int GetEndY() const override { return m_endY; }
    /// Set the end point's x.
    void SetEndX(int x) override { m_endX = x; }
    /// Set the end point's y.
    void SetEndY(int y) override { m_endY = y; }

   private:
    int m_startX = 0;
    int m_startY = 0;
    int m_endX = 0;
    int m_endY = 0;
  };

  /// A line segment with double coordinates.
  class NCAPPKIT_EXPORT Cd2DLine : public KCI_d2DLine {
   public:
    /// All coordinates 0.
    Cd2DLine() = default;
    /// The segment from (startX, startY) to (endX, endY).
    Cd2DLine(double startX, double startY, double endX, double endY) noexcept
        : m_startX(startX), m_startY(startY), m_endX(endX), m_endY(endY) {}
    /// The segment between two points, read through their GetX/GetY.
    Cd2DLine(const KCI_d2DPoint& start, const KCI_d2DPoint& end);
    /// The same start and end.
    Cd2DLine(const Cd2DLine&) = default;
    /// Take the other line's start and end; returns *this.
    Cd2DLine& operator=(const Cd2DLine&) = default;
    ~Cd2DLine() override;

    /// The start point's x.
    double GetStartX() const override { return m_startX; }
    /// The start point's y.
    double GetStartY() const override { return m_startY; }
    /// Set the start point's x.
    void SetStartX(double x) override { m_startX = x; }
    /// Set the start point's y.
    void SetStartY(double y) override { m_startY = y; }
    /// The end point's x.
    double GetEndX() const override { return m_endX; }
    /// The end point's y.
    double GetEndY() const override { return m_endY; }
    /// Set the end point's x.
    void SetEndX(double x) override { m_endX = x; }
    /// Set the end point's y.
    void SetEndY(double y) override { m_endY = y; }

   private:
    double m_startX = 0.0;
    double m_startY = 0.0;
    double m_endX = 0.0;
    double m_endY = 0.0;
  };

  /// A circular arc with int coordinates: start, end, centre and turning sense (the radius is not stored).
  class NCAPPKIT_EXPORT Ci2DArc : public KCI_i2DArc {
   public:
    /// Turning sense 0 and all coordinates 0.
    Ci2DArc() = default;
    /// The arc of the given sense from (startX, startY) to (endX, endY) around (centerX, centerY).
    Ci2DArc(eArcType type, int startX, int startY, int endX, int endY, int centerX, int centerY) noexcept
        : m_arcType(type),
          m_startX(startX),
          m_startY(startY),
          m_endX(endX),
          m_endY(endY),
          m_centerX(centerX),
          m_centerY(centerY) {}
    /// The same turning sense, start, end and centre.
    Ci2DArc(const Ci2DArc&) = default;
    /// Take the other arc's turning sense and points; returns *this.
    Ci2DArc& operator=(const Ci2DArc&) = default;
    ~Ci2DArc() override;

    /// The stored turning sense (0 none, 1 clockwise, 2 counter-clockwise).
    eArcType GetArcType() const override { return m_arcType; }
    /// Store the turning sense, unchecked.
    void SetArcType(eArcType type) override { m_arcType = type; }
    /// Store 1 (clockwise).
    void SetArcCW() override { m_arcType = eArcCW; }
    /// Store 2 (counter-clockwise).
    void SetArcCCW() override { m_arcType = eArcCCW; }
    /// True exactly when the turning sense is 1.
    bool IsArcCW() const override { return m_arcType == eArcCW; }
    /// True exactly when the turning sense is 2.
    bool IsArcCCW() const override { return m_arcType == eArcCCW; }
    /// The start point's x.
    int GetStartX() const override { return m_startX; }
    /// The start point's y.
    int GetStartY() const override { return m_startY; }
    /// Set the start point's x.
    void SetStartX(int x) override { m_startX = x; }
    /// Set the start point's y.
    void SetStartY(int y) override { m_startY = y; }
    /// The end point's x.
    int GetEndX() const override { return m_endX; }
    /// The end point's y.
    int GetEndY() const override { return m_endY; }
    /// Set the end point's x.
    void SetEndX(int x) override { m_endX = x; }
    /// Set the end point's y.
    void SetEndY(int y) override { m_endY = y; }
    /// The centre's x.
    int GetCenterX() const override { return m_centerX; }
    /// The centre's y.
    int GetCenterY() const override { return m_centerY; }
    /// Set the centre's x.
    void SetCenterX(int x) override { m_centerX = x; }
    /// Set the centre's y.
    void SetCenterY(int y) override { m_centerY = y; }

   private:
    eArcType m_arcType = eArcTypeNone;
    int m_startX = 0;
    int m_startY = 0;
    int m_endX = 0;
    int m_endY = 0;
    int m_centerX = 0;
    int m_centerY = 0;
  };

  /// A circular arc with double coordinates: start, end, centre and turning sense.
  class NCAPPKIT_EXPORT Cd2DArc : public KCI_d2DArc {
   public:
    /// Turning sense 0 and all coordinates 0.
    Cd2DArc() = default;
    /// The arc of the given sense from (startX, startY) to (endX, endY) around (centerX, centerY).
    Cd2DArc(eArcType type, double startX, double startY, double endX, double endY, double centerX,
            double centerY) noexcept
        : m_arcType(type),
          m_startX(startX),
          m_startY(startY),
          m_endX(endX),
          m_endY(endY),
          m_centerX(centerX),
          m_centerY(centerY) {}
    /// The same arc in double form: the turning sense copied, each int coordinate converted exactly (read
    /// through the int arc's accessors).
    explicit Cd2DArc(const Ci2DArc& arc);
    /// The same turning sense, start, end and centre.
    Cd2DArc(const Cd2DArc&) = default;
    /// Take the other arc's turning sense and points; returns *this.
    Cd2DArc& operator=(const Cd2DArc&) = default;
    ~Cd2DArc() override;

    /// The stored turning sense (0 none, 1 clockwise, 2 counter-clockwise).
    eArcType GetArcType() const override { return m_arcType; }
    /// Store the turning sense, unchecked.
    void SetArcType(eArcType type) override { m_arcType = type; }
    /// Store 1 (clockwise).
    void SetArcCW() override { m_arcType = eArcCW; }
    /// Store 2 (counter-clockwise).
    void SetArcCCW() override { m_arcType = eArcCCW; }
    /// True exactly when the turning sense is 1.
    bool IsArcCW() const override { return m_arcType == eArcCW; }
    /// True exactly when the turning sense is 2.
    bool IsArcCCW() const override { return m_arcType == eArcCCW; }
    /// The start point's x.
    double GetStartX() const override { return m_startX; }
    /// The start point's y.
    double GetStartY() const override { return m_startY; }
    /// Set the start point's x.
    void SetStartX(double x) override { m_startX = x; }
    /// Set the start point's y.
    void SetStartY(double y) override { m_startY = y; }
    /// The end point's x.
    double GetEndX() const override { return m_endX; }
    /// The end point's y.
    double GetEndY() const override { return m_endY; }
    /// Set the end point's x.
    void SetEndX(double x) override { m_endX = x; }
    /// Set the end point's y.
    void SetEndY(double y) override { m_endY = y; }
    /// The centre's x.
    double GetCenterX() const override { return m_centerX; }
    /// The centre's y.
    double GetCenterY() const override { return m_centerY; }
    /// Set the centre's x.
    void SetCenterX(double x) override { m_centerX = x; }
    /// Set the centre's y.
    void SetCenterY(double y) override { m_centerY = y; }

    /// Distance from the centre to the END point (CMath2D::GetArcRadius measures to the start point).
    double GetRadius() const;

   private:
    eArcType m_arcType = eArcTypeNone;
    double m_startX = 0.0;
    double m_startY = 0.0;
    double m_endX = 0.0;
    double m_endY = 0.0;
    double m_centerX = 0.0;
    double m_centerY = 0.0;
  };

  /// The one exception of the geometry: thrown by value by the start/end angle operations for an arc that is
  /// neither clockwise nor counter-clockwise. It carries nothing.
  class NCAPPKIT_EXPORT IMath2DException {
   public:
    /// The exception (it carries nothing).
    IMath2DException() = default;
    /// Nothing to copy: the class holds no data.
    IMath2DException(const IMath2DException&) = default;
    /// Nothing to move: the class holds no data.
    IMath2DException(IMath2DException&&) = default;
    /// Nothing to assign: the class holds no data; returns *this.
    IMath2DException& operator=(const IMath2DException&) = default;
    /// Nothing to assign: the class holds no data; returns *this.
    IMath2DException& operator=(IMath2DException&&) = default;
  };

  // ----- the toolbox itself holds nothing -------------------------------------------------------------

  /// Nothing to set up: the class holds no data.
  CMath2D() = default;
  /// Nothing to copy: the class holds no data.
  CMath2D(const CMath2D&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  CMath2D& operator=(const CMath2D&) = default;
  virtual ~CMath2D();

  // ----- constants and angle conversion ---------------------------------------------------------------

  /// KCMath::Pi (3.141592653589793).
  static double PI() noexcept { return KCMath::Pi; }
  /// KCMath::Pi / 2 (1.5707963267948966; halving is exact).
  static double HalfPI() noexcept { return KCMath::Pi / 2.0; }
  /// 2 * KCMath::Pi (6.283185307179586; doubling is exact).
  static double DoublePI() noexcept { return 2.0 * KCMath::Pi; }
  /// a * pi / 180 (multiplication first).
  static double Deg2Rad(double a) noexcept { return a * PI() / 180.0; }
  /// a * 180 / pi (multiplication first).
  static double Rad2Deg(double a) noexcept { return a * 180.0 / PI(); }

  // ----- basic measures -------------------------------------------------------------------------------

  /// Distance between two points.
  static double GetDistance(const KCI_d2DPoint& a, const KCI_d2DPoint& b);
  /// Distance between (x1, y1) and (x2, y2).
  static double GetDistance(double x1, double y1, double x2, double y2) noexcept;
  /// Distance between two int points, rounded to a whole number (d + 0.5 truncated), as a double.
  static double GetDistance(const KCI_i2DPoint& a, const KCI_i2DPoint& b);
  /// Distance between (x1, y1) and (x2, y2), rounded to a whole number (d + 0.5 truncated), as a double.
  static double GetDistance(int x1, int y1, int x2, int y2) noexcept;
  /// Squared distance between two points (no root).
  static double GetDistanceSquare(const KCI_d2DPoint& a, const KCI_d2DPoint& b);
  /// Length of the segment.
  static double GetLength(const KCI_d2DLine& line);
  /// out = ((a.x + b.x) * 0.5, (a.y + b.y) * 0.5).
  static void GetMiddle(const KCI_d2DPoint& a, const KCI_d2DPoint& b, KCI_d2DPoint& out);
  /// out = the middle of the segment.
  static void GetCenter(const KCI_d2DLine& line, KCI_d2DPoint& out);
  /// |endY - startY| < kLineAxisTolerance.
  static bool IsHorizontal(const KCI_d2DLine& line);
  /// |endX - startX| < kLineAxisTolerance.
  static bool IsVertical(const KCI_d2DLine& line);
  /// Direction of the line, atan2(dy, dx); 0 when |dx| and |dy| are both below kLineAngleDegenerateTolerance.
  static double GetAngleRad(const KCI_d2DLine& line);
  /// GetAngleRad in degrees.
  static double GetAngleDeg(const KCI_d2DLine& line);

  // ----- arcs -----------------------------------------------------------------------------------------

  /// Start and end coincide within kArcClosedTolerance in each coordinate.
  static bool IsCircle(const KCI_d2DArc& arc);
  /// Distance from the centre to the start point: the radius of every arc computation.
  static double GetArcRadius(const KCI_d2DArc& arc);
  /// Distance from the centre to p.
  static double DistanceCenterOfArc2Point(const KCI_d2DArc& arc, const KCI_d2DPoint& p);
  /// Angle of (x, y) seen from the centre, atan2 in (-pi, pi]; 0 when (x, y) is within
  /// kArcPointAngleDegenerateTolerance of the centre in both coordinates.
  static double CalcArcPointAngleRad(const KCI_d2DArc& arc, double x, double y);
  /// CalcArcPointAngleRad in degrees, (-180, 180].
  static double CalcArcPointAngleDeg(const KCI_d2DArc& arc, double x, double y);
  /// Sweep in degrees, never negative: 360 for a full circle, 0 for an arc of type neither 1 nor 2.
  static double GetArcAngleDeg(const KCI_d2DArc& arc);
  /// (GetArcAngleDeg / 360) * GetArcRadius * 2 pi.
  static double GetArcLength(const KCI_d2DArc& arc);
  /// Direction of travel at the start: start angle + pi/2 (CCW) or - pi/2 (CW), not normalised; throws
  /// IMath2DException for any other type.
  static double GetStartAngleRad(const KCI_d2DArc& arc);
  /// GetStartAngleRad in degrees (the exception passes through).
  static double GetStartAngleDeg(const KCI_d2DArc& arc);
  /// Same computation as GetStartAngleRad.
  static double GetStartAngleTangentRad(const KCI_d2DArc& arc);
  /// GetStartAngleTangentRad in degrees.
  static double GetStartAngleTangentDeg(const KCI_d2DArc& arc);
  /// Direction of travel at the end point, as GetStartAngleRad with the end point.
  static double GetEndAngleRad(const KCI_d2DArc& arc);
  /// GetEndAngleRad in degrees.
  static double GetEndAngleDeg(const KCI_d2DArc& arc);
  /// Same computation as GetEndAngleRad.
  static double GetEndAngleTangentRad(const KCI_d2DArc& arc);
  /// GetEndAngleTangentRad in degrees.
  static double GetEndAngleTangentDeg(const KCI_d2DArc& arc);
  /// Whether the direction angleDeg lies on the sweep from startDeg to endDeg in the arc's turning sense
  /// (both senses, despite the name). The ends match within kAngleEndTolerance degrees, the inside is widened
  /// by kAngleInsideTolerance degrees; an arc of type 0 accepts only its two end directions, a full circle
  /// accepts everything.
  static bool AngleOnCCWArcSegment(const KCI_d2DArc& arc, double startDeg, double endDeg, double angleDeg);
  /// Whether p's direction from the centre lies on the arc (true for a full circle); p's distance from the
  /// centre is not checked.
  static bool PointIsBetweenStartAndEndWc(const KCI_d2DArc& arc, const KCI_d2DPoint& p);
  /// The point after `fraction` of the sweep (0 start, 1 end, not clamped) on the circle of radius
  /// GetArcRadius; an arc of type 0 stays at the start angle.
  static void GetArcPointByOffset(const KCI_d2DArc& arc, double fraction, double& x, double& y);
  /// As above, written through out.SetX, out.SetY.
  static void GetArcPointByOffset(const KCI_d2DArc& arc, double fraction, KCI_d2DPoint& out);
  /// Int form: computed on the double arc (type 2 when the int arc is CCW, otherwise 1), each coordinate
  /// truncated toward zero; results beyond the int range saturate and NaN gives 0.
  static void GetArcPointByOffset(const KCI_i2DArc& arc, double fraction, int& x, int& y);
  /// As above, written through out.SetX, out.SetY.
  static void GetArcPointByOffset(const KCI_i2DArc& arc, double fraction, KCI_i2DPoint& out);
  /// Radial projection of p onto the arc's full circle; false (out untouched) when p is within
  /// kProjectCentreTolerance of the centre.
  static bool ProjectedPointOnArcWc(const KCI_d2DArc& arc, const KCI_d2DPoint& p, KCI_d2DPoint& out);
  /// Append the arc's quadrant points: all four (0, 90, 180, -90 degrees) for a full circle; otherwise
  /// (cx + r, cy) when 0 degrees is on the arc, (cx, cy + r) when 180 degrees is, (cx - r, cy) when 90
  /// degrees is, (cx, cy - r) when -90 degrees is (the 90 and 180 tests are crossed over, as the drawing code
  /// expects). The list is not cleared.
  static void GetArcAnchorPoints(const KCI_d2DArc& arc, KC2DPointList& points);
  /// area = box of start, end and each quadrant point on the arc.
  static void GetRectangle(const KCI_d2DArc& arc, KC2DArea& area);
  /// Leaves `area` exactly as passed: the line's box is built locally and dropped (callers rely on this).
  static void GetRectangle(const KCI_d2DLine& line, KC2DArea& area);

  // ----- lines ----------------------------------------------------------------------------------------

  /// Distance from p to the infinite line (segment false) or to the closed segment (segment true: the
  /// perpendicular distance when the foot lies on the segment, else the nearer end, the start on a tie).
  static double DistancePoint2Line(const KCI_d2DLine& line, const KCI_d2DPoint& p, bool segment);
  /// As above, stored into dist.
  static void DistancePoint2Line(const KCI_d2DLine& line, const KCI_d2DPoint& p, double& dist, bool segment);
  /// Bounding-box test only: (x, y) inside the segment's box widened by kBelongsBoxTolerance (collinearity
  /// not checked).
  static bool PointBelongsToLine(const KCI_d2DLine& line, double x, double y);
  /// The same box test on p's own coordinates (p is not projected first).
  static bool ProjectPointBelongsToLine(const KCI_d2DLine& line, const KCI_d2DPoint& p);
  /// Foot of the perpendicular from p on the infinite line; always true.
  static bool ProjectPoint(const KCI_d2DLine& line, const KCI_d2DPoint& p, double& x, double& y);
  /// As above, written through out.SetX, out.SetY.
  static bool ProjectPoint(const KCI_d2DLine& line, const KCI_d2DPoint& p, KCI_d2DPoint& out);
  /// Intersection of the two infinite lines (slope form, kLineLineTolerance); false when parallel or both
  /// vertical.
  static bool GetIntersectPoint(const KCI_d2DLine& a, const KCI_d2DLine& b, KCI_d2DPoint& out);
  /// As above; then, when onA (onB) is set, false if the point lies outside a's (b's) bounding box (exact
  /// comparison, out already written).
  static bool GetIntersectPoint(const KCI_d2DLine& a, const KCI_d2DLine& b, KCI_d2DPoint& out, bool onA,
                                bool onB);
  /// The line through p parallel to `line`, its ends the perpendicular feet of line's ends; angleDeg its
  /// direction (90 for vertical, 0 for horizontal lines, within kParallelAxisTolerance). Always true.
  static bool GetParallelLine(const KCI_d2DLine& line, const KCI_d2DPoint& p, KCI_d2DLine& out,
                              double& angleDeg);
  /// As above without the angle.
  static bool GetParallelLine(const KCI_d2DLine& line, const KCI_d2DPoint& p, KCI_d2DLine& out);
  /// The two parallels at distance dist: left of the direction start->end and right of it (for a vertical
  /// line left is -x, for a horizontal one +y, within kParallelAxisTolerance); angleDeg as GetParallelLine.
  /// Always true.
  static bool GetParallelLinesAtDist(const KCI_d2DLine& line, double dist, KCI_d2DLine& left,
                                     KCI_d2DLine& right, double& angleDeg);
  /// As above without the angle.
  static bool GetParallelLinesAtDist(const KCI_d2DLine& line, double dist, KCI_d2DLine& left,
                                     KCI_d2DLine& right);

  // ----- intersections with arcs (the arc's full circle; the sweep is not checked) -----------------------

  /// The arc's circle and the line at height y: tangent within kAxisLineTangentTolerance gives
  /// p1 = p2 = (cx, y); a miss by more than r + kAxisLineMissTolerance gives false; else p1 = (cx + h, y),
  /// p2 = (cx - h, y).
  static bool GetHorLineIntersection(const KCI_d2DArc& arc, double y, KCI_d2DPoint& p1, KCI_d2DPoint& p2);
  /// Mirror of GetHorLineIntersection for the line at x: p1 = (x, cy + h), p2 = (x, cy - h).
  static bool GetVerLineIntersection(const KCI_d2DArc& arc, double x, KCI_d2DPoint& p1, KCI_d2DPoint& p2);
  /// GetHorLineIntersection at h.GetPosY().
  static bool GetIntersection(const KCI_d2DArc& arc, const KCI_d2DHorLine& h, KCI_d2DPoint& p1,
                              KCI_d2DPoint& p2);
  /// GetVerLineIntersection at v.GetPosX().
  static bool GetIntersection(const KCI_d2DArc& arc, const KCI_d2DVerLine& v, KCI_d2DPoint& p1,
                              KCI_d2DPoint& p2);
  /// The arc's circle and the infinite line: horizontal and vertical lines (within kArcLineAxisTolerance) go
  /// to the two operations above; a slope below kArcLineAxisTolerance otherwise gives false; else the roots
  /// of the quadratic (false when the discriminant is below -kArcLineDiscriminantTolerance; within
  /// kArcLineDiscriminantTolerance of 0 it counts as 0).
  static bool GetIntersection(const KCI_d2DArc& arc, const KCI_d2DLine& line, KCI_d2DPoint& p1,
                              KCI_d2DPoint& p2);
  /// The two arcs' circles: false when the centres are within kConcentricTolerance (concentric), farther
  /// apart than r1 + r2, or when one circle lies inside the other (h² < -kCircleTouchTolerance); a touch
  /// (|h²| < kCircleTouchTolerance) gives p1 = p2.
  static bool GetIntersection(const KCI_d2DArc& a, const KCI_d2DArc& b, KCI_d2DPoint& p1, KCI_d2DPoint& p2);
  /// The two points where the tangents from p touch the arc's circle; false when p is inside, on, or within
  /// kTangentOutsideTolerance outside the circle.
  static bool GetCircleTangentPoints(const KCI_d2DArc& arc, const KCI_d2DPoint& p, KCI_d2DPoint& t1,
                                     KCI_d2DPoint& t2);
};
