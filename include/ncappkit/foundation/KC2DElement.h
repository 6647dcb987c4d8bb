// SPDX-License-Identifier: MIT
// KC2DElement and its kinds KC2DPoint, KC2DLine, KC2DArc and KC2DRectangle: the class library's 2D drawing
// elements, with the visitor KC2DElementVisitor that tells the kinds apart.
//
// Every element can be copied polymorphically (Clone), measured (Len, GetMinX ...), walked along
// (GetParametricPoint: 0 is the start, 1 the end), transformed in place (Translate, Scale, MirrorX, ...),
// turned into a polygon (AddAsPolygon appends points to a KC2DPointList) and stored in a KCParagraph.
//
//   KC2DArc arc(KC2DPoint(1, 0), KC2DPoint(0, 1), KC2DPoint(0, 0), true);  // quarter circle, ccw
//   double length = arc.Len();                                               // pi / 2
//   KC2DPointList polygon;
//   arc.AddAsPolygonMaxAngle(polygon, 0.1);  // start, 15 inner points, end
//
// Conventions of all kinds:
// - Angles are radians, counter-clockwise from +x.
// - MirrorX mirrors at the x axis (y becomes -y), MirrorY at the y axis (x becomes -x); both reverse the
//   turning sense of an arc.
// - RotateAxis(a) turns the coordinate axes counter-clockwise by a about the origin and re-expresses the
//   element in the turned axes, so the element itself turns by -a (clockwise) about the origin.
// - Scale, ScaleX and ScaleY scale about the origin. A negative ScaleX or ScaleY is a mirror and reverses an
//   arc; a negative Scale is a half turn and keeps it.
// - Write stores the element in the child section `name` of a paragraph (the paragraph itself for an empty
//   name) under the key "Type" ("Point", "Line", "Arc", "Rectangle") and one key per coordinate; the int is
//   the number of decimals written (negative: the shortest text that reads back exactly). Read reads that
//   form back; its int, when not negative, rounds every value read to that many decimals. Read gives false
//   and leaves the element unchanged when the section, the type or a coordinate is missing or not a number.
//
// See docs/behaviours.md#2d-geometry.
#pragma once

#include <vector>

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"
#include "ncappkit/foundation/KCVector.h"

class KCParagraph;
class KC2DPoint;
class KC2DLine;
class KC2DArc;
class KC2DRectangle;

/// Points appended by AddAsPolygon and by the arc anchor computations.
using KC2DPointList = std::vector<KC2DPoint>;

/// Visitor over the kinds of 2D element; Accept calls the Visit of the element's kind.
class NCAPPKIT_EXPORT KC2DElementVisitor {
 public:
  /// Nothing to set up: the class holds no data.
  KC2DElementVisitor() = default;
  /// Nothing to copy: the class holds no data.
  KC2DElementVisitor(const KC2DElementVisitor&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KC2DElementVisitor& operator=(const KC2DElementVisitor&) = default;
  virtual ~KC2DElementVisitor();

  /// Called by KC2DPoint::Accept; false stops a walk over a list.
  virtual bool Visit(KC2DPoint& point) = 0;
  /// Called by KC2DLine::Accept; false stops a walk over a list.
  virtual bool Visit(KC2DLine& line) = 0;
  /// Called by KC2DArc::Accept; false stops a walk over a list.
  virtual bool Visit(KC2DArc& arc) = 0;
  /// Called by KC2DRectangle::Accept; false stops a walk over a list.
  virtual bool Visit(KC2DRectangle& rectangle) = 0;
};

/// Abstract 2D drawing element: measured, walked along, transformed in place, stored in a KCParagraph.
class NCAPPKIT_EXPORT KC2DElement {
 public:
  /// Nothing to set up: the class holds no data.
  KC2DElement() = default;
  /// Nothing to copy: the class holds no data.
  KC2DElement(const KC2DElement&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KC2DElement& operator=(const KC2DElement&) = default;
  virtual ~KC2DElement() = default;

  /// A new copy of this element, owned by the caller.
  virtual KC2DElement* Clone() const = 0;
  /// Call the visitor's Visit for this element's kind and return its answer.
  virtual bool Accept(KC2DElementVisitor& visitor) = 0;

  /// The point where the element begins.
  virtual KC2DPoint GetStartPoint() const = 0;
  /// The point where the element ends.
  virtual KC2DPoint GetEndPoint() const = 0;
  /// The point at fraction t of the way along the element (0 start, 1 end; lines and arcs extrapolate
  /// outside 0..1, rectangles clamp).
  virtual KC2DPoint GetParametricPoint(double t) const = 0;

  /// Smallest x of the element's bounding box.
  virtual double GetMinX() const = 0;
  /// Smallest y of the element's bounding box.
  virtual double GetMinY() const = 0;
  /// Largest x of the element's bounding box.
  virtual double GetMaxX() const = 0;
  /// Largest y of the element's bounding box.
  virtual double GetMaxY() const = 0;
  /// Length of the element's path (0 for a point, the perimeter of a rectangle).
  virtual double Len() const = 0;

  /// True when `other` is the same kind with every defining coordinate within `tolerance` (and, for arcs,
  /// the same turning sense).
  virtual bool IsAlmostEq(const KC2DElement& other, double tolerance) const = 0;

  /// Mirror at the x axis (y becomes -y).
  virtual void MirrorX() = 0;
  /// Mirror at the y axis (x becomes -x).
  virtual void MirrorY() = 0;
  /// Run the element the other way round (start and end exchanged; the path is unchanged).
  virtual void Reverse() = 0;
  /// Turn the coordinate axes counter-clockwise by `angleRad` about the origin (the element turns by -angle).
  virtual void RotateAxis(double angleRad) = 0;
  /// Scale by `factor` about the origin.
  virtual void Scale(double factor) = 0;
  /// Scale x by `factor` about the origin.
  virtual void ScaleX(double factor) = 0;
  /// Scale y by `factor` about the origin.
  virtual void ScaleY(double factor) = 0;
  /// Move by (dx, dy).
  virtual void Translate(double dx, double dy) = 0;
  /// Append the element's path to `points` as a polygon (see each kind for the points appended).
  virtual void AddAsPolygon(KC2DPointList& points) const = 0;

  /// Read the element from the child section `name` of `paragraph`; false (element unchanged) when missing.
  virtual bool Read(const KCString& name, KCParagraph* paragraph, int digits) = 0;
  /// Write the element into the child section `name` of `paragraph` with `digits` decimals; false for null.
  virtual bool Write(const KCString& name, KCParagraph* paragraph, int digits) const = 0;
};

/// A 2D point with double coordinates, also an element of its own.
class NCAPPKIT_EXPORT KC2DPoint : public KC2DElement {
 public:
  /// The origin.
  KC2DPoint() = default;
  /// The point (x, y).
  KC2DPoint(double x, double y) noexcept : m_x(x), m_y(y) {}
  /// The same coordinates.
  KC2DPoint(const KC2DPoint&) = default;
  /// Take the other point's coordinates; returns *this.
  KC2DPoint& operator=(const KC2DPoint&) = default;
  ~KC2DPoint() override = default;

  /// The x coordinate.
  double GetX() const noexcept { return m_x; }
  /// The y coordinate.
  double GetY() const noexcept { return m_y; }
  /// Set the x coordinate.
  void SetX(double x) noexcept { m_x = x; }
  /// Set the y coordinate.
  void SetY(double y) noexcept { m_y = y; }
  /// Set both coordinates.
  void Set(double x, double y) noexcept {
    m_x = x;
    m_y = y;
  }
  /// Distance to `other`.
  double DistanceTo(const KC2DPoint& other) const noexcept;

  /// A new copy of this element, owned by the caller.
  KC2DElement* Clone() const override;
  /// visitor.Visit(*this).
  bool Accept(KC2DElementVisitor& visitor) override;
  /// The point itself.
  KC2DPoint GetStartPoint() const override { return *this; }
  /// The point itself.
  KC2DPoint GetEndPoint() const override { return *this; }
  /// The point itself, whatever t.
  KC2DPoint GetParametricPoint(double t) const override;
  /// Smallest x of the bounding box.
  double GetMinX() const override { return m_x; }
  /// Smallest y of the bounding box.
  double GetMinY() const override { return m_y; }
  /// Largest x of the bounding box.
  double GetMaxX() const override { return m_x; }
  /// Largest y of the bounding box.
  double GetMaxY() const override { return m_y; }
  /// 0.
  double Len() const override { return 0.0; }
  /// Same kind with every coordinate within tolerance.
  bool IsAlmostEq(const KC2DElement& other, double tolerance) const override;
  /// Mirror at the x axis.
  void MirrorX() override { m_y = -m_y; }
  /// Mirror at the y axis.
  void MirrorY() override { m_x = -m_x; }
  /// Nothing to do: a point has no direction.
  void Reverse() override {}
  /// Turn the axes counter-clockwise by angleRad about the origin (the element turns clockwise).
  void RotateAxis(double angleRad) override;
  /// Scale about the origin.
  void Scale(double factor) override;
  /// Scale x about the origin.
  void ScaleX(double factor) override { m_x *= factor; }
  /// Scale y about the origin.
  void ScaleY(double factor) override { m_y *= factor; }
  /// Move by (dx, dy).
  void Translate(double dx, double dy) override;
  /// Appends the point once.
  void AddAsPolygon(KC2DPointList& points) const override;
  /// Keys "X", "Y".
  bool Read(const KCString& name, KCParagraph* paragraph, int digits) override;
  /// Write into the child section name; false for a null paragraph.
  bool Write(const KCString& name, KCParagraph* paragraph, int digits) const override;

  /// The point moved by the x and y components of `v`.
  KC2DPoint operator+(const KCVector& v) const noexcept { return KC2DPoint(m_x + v.GetX(), m_y + v.GetY()); }
  /// The point moved back by the x and y components of `v`.
  KC2DPoint operator-(const KCVector& v) const noexcept { return KC2DPoint(m_x - v.GetX(), m_y - v.GetY()); }
  /// Move by the x and y components of `v`.
  KC2DPoint& operator+=(const KCVector& v) noexcept;
  /// Move back by the x and y components of `v`.
  KC2DPoint& operator-=(const KCVector& v) noexcept;

  /// Exact equality of both coordinates (use IsAlmostEq for a tolerance).
  friend bool operator==(const KC2DPoint& a, const KC2DPoint& b) noexcept {
    return a.m_x == b.m_x && a.m_y == b.m_y;
  }
  /// Negation of ==.
  friend bool operator!=(const KC2DPoint& a, const KC2DPoint& b) noexcept { return !(a == b); }
  /// Lexicographic order: by x, then by y (for sorting and ordered containers).
  friend bool operator<(const KC2DPoint& a, const KC2DPoint& b) noexcept {
    return a.m_x < b.m_x || (a.m_x == b.m_x && a.m_y < b.m_y);
  }
  /// b < a.
  friend bool operator>(const KC2DPoint& a, const KC2DPoint& b) noexcept { return b < a; }
  /// !(b < a).
  friend bool operator<=(const KC2DPoint& a, const KC2DPoint& b) noexcept { return !(b < a); }
  /// !(a < b).
  friend bool operator>=(const KC2DPoint& a, const KC2DPoint& b) noexcept { return !(a < b); }

 private:
  double m_x = 0.0;
  double m_y = 0.0;
};

/// A line segment from a start point to an end point.
class NCAPPKIT_EXPORT KC2DLine : public KC2DElement {
 public:
  /// A zero-length line at the origin.
  KC2DLine() = default;
  /// The segment from `start` to `end`.
  KC2DLine(const KC2DPoint& start, const KC2DPoint& end) noexcept : m_start(start), m_end(end) {}
  /// The segment from (x1, y1) to (x2, y2).
  KC2DLine(double x1, double y1, double x2, double y2) noexcept : m_start(x1, y1), m_end(x2, y2) {}
  /// The same start and end.
  KC2DLine(const KC2DLine&) = default;
  /// Take the other line's start and end; returns *this.
  KC2DLine& operator=(const KC2DLine&) = default;
  ~KC2DLine() override = default;

  /// Set the start point.
  void SetStartPoint(const KC2DPoint& p) noexcept { m_start = p; }
  /// Set the end point.
  void SetEndPoint(const KC2DPoint& p) noexcept { m_end = p; }
  /// Squared length (no root).
  double SquareLen() const noexcept;

  /// A new copy of this element, owned by the caller.
  KC2DElement* Clone() const override;
  /// visitor.Visit(*this).
  bool Accept(KC2DElementVisitor& visitor) override;
  /// The start point.
  KC2DPoint GetStartPoint() const override { return m_start; }
  /// The end point.
  KC2DPoint GetEndPoint() const override { return m_end; }
  /// start + t * (end - start).
  KC2DPoint GetParametricPoint(double t) const override;
  /// Smallest x of the bounding box.
  double GetMinX() const override;
  /// Smallest y of the bounding box.
  double GetMinY() const override;
  /// Largest x of the bounding box.
  double GetMaxX() const override;
  /// Largest y of the bounding box.
  double GetMaxY() const override;
  /// Length of the path.
  double Len() const override;
  /// Same kind with every coordinate within tolerance.
  bool IsAlmostEq(const KC2DElement& other, double tolerance) const override;
  /// Mirror at the x axis.
  void MirrorX() override;
  /// Mirror at the y axis.
  void MirrorY() override;
  /// Exchange start and end (the path is unchanged).
  void Reverse() override;
  /// Turn the axes counter-clockwise by angleRad about the origin (the element turns clockwise).
  void RotateAxis(double angleRad) override;
  /// Scale about the origin.
  void Scale(double factor) override;
  /// Scale x about the origin.
  void ScaleX(double factor) override;
  /// Scale y about the origin.
  void ScaleY(double factor) override;
  /// Move by (dx, dy).
  void Translate(double dx, double dy) override;
  /// Appends start and end.
  void AddAsPolygon(KC2DPointList& points) const override;
  /// Keys "StartX", "StartY", "EndX", "EndY".
  bool Read(const KCString& name, KCParagraph* paragraph, int digits) override;
  /// Write into the child section name; false for a null paragraph.
  bool Write(const KCString& name, KCParagraph* paragraph, int digits) const override;

 private:
  KC2DPoint m_start;
  KC2DPoint m_end;
};

// An arc is its start point, end point, centre and turning sense. The radius is the distance from the
// centre to the start point; the end point is taken as given (an inconsistent end only shifts the end angle).
// Start and end within kArcCircleTolerance of each other make a full circle (see the constants of
// src/foundation/KC2DElement.cpp).
/// A circular arc: start, end, centre and turning sense; the radius follows the start point.
class NCAPPKIT_EXPORT KC2DArc : public KC2DElement {
 public:
  /// A zero-radius counter-clockwise circle at the origin.
  KC2DArc() = default;
  /// The arc from `start` to `end` around `center`, counter-clockwise when `ccw` is true.
  KC2DArc(const KC2DPoint& start, const KC2DPoint& end, const KC2DPoint& center, bool ccw) noexcept
      : m_start(start), m_end(end), m_center(center), m_ccw(ccw) {}
  /// The same start, end, centre and turning sense.
  KC2DArc(const KC2DArc&) = default;
  /// Take the other arc's points and turning sense; returns *this.
  KC2DArc& operator=(const KC2DArc&) = default;
  ~KC2DArc() override = default;

  /// The centre.
  KC2DPoint GetCenterPoint() const noexcept { return m_center; }
  /// Set the start point.
  void SetStartPoint(const KC2DPoint& p) noexcept { m_start = p; }
  /// Set the end point.
  void SetEndPoint(const KC2DPoint& p) noexcept { m_end = p; }
  /// Set the centre.
  void SetCenterPoint(const KC2DPoint& p) noexcept { m_center = p; }

  /// Distance from the centre to the start point.
  double Radius() const noexcept;
  /// True when the arc turns clockwise.
  bool IsCW() const noexcept { return !m_ccw; }
  /// True when the arc turns counter-clockwise.
  bool IsCCW() const noexcept { return m_ccw; }
  /// Same as IsCW.
  bool IsClockwise() const noexcept { return !m_ccw; }
  /// Same as IsCCW.
  bool IsCounterClockwise() const noexcept { return m_ccw; }
  /// True when start and end coincide within kArcCircleTolerance in each coordinate (a full circle).
  bool IsCircle() const noexcept;
  /// Bring the arc into counter-clockwise form covering the same points: a clockwise arc gets start and end
  /// exchanged and turns counter-clockwise; a counter-clockwise arc is left as it is.
  void Normalize() noexcept;
  /// Make the arc turn clockwise (start, end and centre unchanged: the other part of the circle).
  void SetClockWise() noexcept { m_ccw = false; }
  /// Make the arc turn counter-clockwise (start, end and centre unchanged).
  void SetCounterClockWise() noexcept { m_ccw = true; }
  /// Exchange start and end, keeping the turning sense (the arc becomes the other part of the circle).
  void SwapPoints() noexcept;
  /// Exchange start and end and flip the turning sense (same path, run backwards); same as Reverse.
  void SwapPointsWithReverse() noexcept;
  /// Swept angle in radians, in [0, 2 pi): the turn from the start angle to the end angle in the arc's sense;
  /// a full circle sweeps 2 pi.
  double GetSweepAngle() const noexcept;
  /// Append start, inner points and end so that no step sweeps more than `maxAngleRad` (at most 65536 steps);
  /// a step limit that is not a positive finite number, or a sweep that is not finite, gives start and end.
  void AddAsPolygonMaxAngle(KC2DPointList& points, double maxAngleRad) const;

  /// A new copy of this element, owned by the caller.
  KC2DElement* Clone() const override;
  /// visitor.Visit(*this).
  bool Accept(KC2DElementVisitor& visitor) override;
  /// The start point.
  KC2DPoint GetStartPoint() const override { return m_start; }
  /// The end point.
  KC2DPoint GetEndPoint() const override { return m_end; }
  /// The point on the circle at fraction t of the sweep from the start angle, in the turning sense.
  KC2DPoint GetParametricPoint(double t) const override;
  /// Bounding box of start, end and every quadrant point (0, 90, 180, 270 degrees) on the sweep.
  double GetMinX() const override;
  /// Smallest y of the bounding box.
  double GetMinY() const override;
  /// Largest x of the bounding box.
  double GetMaxX() const override;
  /// Largest y of the bounding box.
  double GetMaxY() const override;
  /// Radius times sweep.
  double Len() const override;
  /// Same kind with every coordinate within tolerance.
  bool IsAlmostEq(const KC2DElement& other, double tolerance) const override;
  /// Mirror at the x axis.
  void MirrorX() override;
  /// Mirror at the y axis.
  void MirrorY() override;
  /// Same as SwapPointsWithReverse.
  void Reverse() override { SwapPointsWithReverse(); }
  /// Turn the axes counter-clockwise by angleRad about the origin (the element turns clockwise).
  void RotateAxis(double angleRad) override;
  /// Scale about the origin.
  void Scale(double factor) override;
  /// Scales start, end and centre x; a negative factor flips the turning sense. Unequal ScaleX and ScaleY
  /// would make an ellipse, which an arc cannot hold: the radius then follows the new start point.
  void ScaleX(double factor) override;
  /// As ScaleX, for y.
  void ScaleY(double factor) override;
  /// Move by (dx, dy).
  void Translate(double dx, double dy) override;
  /// AddAsPolygonMaxAngle with steps of at most 5 degrees.
  void AddAsPolygon(KC2DPointList& points) const override;
  /// Keys "StartX", "StartY", "EndX", "EndY", "CenterX", "CenterY", "Direction" ("CCW" or "CW").
  bool Read(const KCString& name, KCParagraph* paragraph, int digits) override;
  /// Write into the child section name; false for a null paragraph.
  bool Write(const KCString& name, KCParagraph* paragraph, int digits) const override;

 private:
  void Box(double& minX, double& minY, double& maxX, double& maxY) const noexcept;

  KC2DPoint m_start;
  KC2DPoint m_end;
  KC2DPoint m_center;
  bool m_ccw = true;
};

// An axis-parallel rectangle kept as its smallest and largest corner. Its outline starts and ends at the
// smallest corner and runs counter-clockwise; transformations keep it axis-parallel by taking the bounding
// box of the transformed corners (exact for quarter turns, mirrors and scaling).
/// An axis-parallel rectangle kept as its smallest and largest corner.
class NCAPPKIT_EXPORT KC2DRectangle : public KC2DElement {
 public:
  /// An empty rectangle at the origin.
  KC2DRectangle() = default;
  /// The rectangle spanned by two opposite corners, in any order.
  KC2DRectangle(double x1, double y1, double x2, double y2) noexcept;
  /// The rectangle spanned by two opposite corners, in any order.
  KC2DRectangle(const KC2DPoint& a, const KC2DPoint& b) noexcept;
  /// The same corners.
  KC2DRectangle(const KC2DRectangle&) = default;
  /// Take the other rectangle's corners; returns *this.
  KC2DRectangle& operator=(const KC2DRectangle&) = default;
  ~KC2DRectangle() override = default;

  /// Width times height.
  double GetArea() const noexcept { return GetWidth() * GetHeight(); }
  /// Largest x minus smallest x.
  double GetWidth() const noexcept { return m_maxX - m_minX; }
  /// Largest y minus smallest y.
  double GetHeight() const noexcept { return m_maxY - m_minY; }

  /// A new copy of this element, owned by the caller.
  KC2DElement* Clone() const override;
  /// visitor.Visit(*this).
  bool Accept(KC2DElementVisitor& visitor) override;
  /// The smallest corner.
  KC2DPoint GetStartPoint() const override { return KC2DPoint(m_minX, m_minY); }
  /// The smallest corner (the outline is closed).
  KC2DPoint GetEndPoint() const override { return KC2DPoint(m_minX, m_minY); }
  /// The point at fraction t (clamped to 0..1) of the perimeter, counter-clockwise from the smallest corner.
  KC2DPoint GetParametricPoint(double t) const override;
  /// Smallest x of the bounding box.
  double GetMinX() const override { return m_minX; }
  /// Smallest y of the bounding box.
  double GetMinY() const override { return m_minY; }
  /// Largest x of the bounding box.
  double GetMaxX() const override { return m_maxX; }
  /// Largest y of the bounding box.
  double GetMaxY() const override { return m_maxY; }
  /// The perimeter.
  double Len() const override;
  /// Same kind with every coordinate within tolerance.
  bool IsAlmostEq(const KC2DElement& other, double tolerance) const override;
  /// Mirror at the x axis.
  void MirrorX() override;
  /// Mirror at the y axis.
  void MirrorY() override;
  /// Nothing to do: the outline always runs counter-clockwise from the smallest corner.
  void Reverse() override {}
  /// Turn the axes counter-clockwise by angleRad about the origin (the element turns clockwise).
  void RotateAxis(double angleRad) override;
  /// Scale about the origin.
  void Scale(double factor) override;
  /// Scale x about the origin.
  void ScaleX(double factor) override;
  /// Scale y about the origin.
  void ScaleY(double factor) override;
  /// Move by (dx, dy).
  void Translate(double dx, double dy) override;
  /// Appends the four corners counter-clockwise from the smallest one, then the smallest corner again.
  void AddAsPolygon(KC2DPointList& points) const override;
  /// Keys "MinX", "MinY", "MaxX", "MaxY".
  bool Read(const KCString& name, KCParagraph* paragraph, int digits) override;
  /// Write into the child section name; false for a null paragraph.
  bool Write(const KCString& name, KCParagraph* paragraph, int digits) const override;

 private:
  void SetCorners(double x1, double y1, double x2, double y2) noexcept;

  double m_minX = 0.0;
  double m_minY = 0.0;
  double m_maxX = 0.0;
  double m_maxY = 0.0;
};
