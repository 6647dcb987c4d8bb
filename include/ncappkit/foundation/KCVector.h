// SPDX-License-Identifier: MIT
// KC3DPoint and KCVector: a point in space and the displacement between two points.
//
// The 2D elements use only the x and y parts: a KC2DPoint moves by a vector with `p + v` or `p - v`.
//
//   KCVector v(KC3DPoint(1, 1, 0), KC3DPoint(4, 5, 0));   // (3, 4, 0)
//   double length = v.Len();                               // 5
#pragma once

#include "ncappkit/export.h"

/// A point in space with double coordinates.
class NCAPPKIT_EXPORT KC3DPoint {
 public:
  /// The origin (0, 0, 0).
  KC3DPoint() = default;
  /// The point (x, y, z).
  KC3DPoint(double x, double y, double z) noexcept : m_x(x), m_y(y), m_z(z) {}
  /// The same three coordinates.
  KC3DPoint(const KC3DPoint&) = default;
  /// Take the other point's coordinates; returns *this.
  KC3DPoint& operator=(const KC3DPoint&) = default;
  virtual ~KC3DPoint();

  /// The x coordinate.
  double GetX() const noexcept { return m_x; }
  /// The y coordinate.
  double GetY() const noexcept { return m_y; }
  /// The z coordinate.
  double GetZ() const noexcept { return m_z; }
  /// Set the x coordinate.
  void SetX(double x) noexcept { m_x = x; }
  /// Set the y coordinate.
  void SetY(double y) noexcept { m_y = y; }
  /// Set the z coordinate.
  void SetZ(double z) noexcept { m_z = z; }

  /// True when all three coordinates are exactly equal.
  friend bool operator==(const KC3DPoint& a, const KC3DPoint& b) noexcept {
    return a.m_x == b.m_x && a.m_y == b.m_y && a.m_z == b.m_z;
  }
  /// Negation of ==.
  friend bool operator!=(const KC3DPoint& a, const KC3DPoint& b) noexcept { return !(a == b); }

 private:
  double m_x = 0.0;
  double m_y = 0.0;
  double m_z = 0.0;
};

/// The displacement between two points in space.
class NCAPPKIT_EXPORT KCVector {
 public:
  /// The zero vector.
  KCVector() = default;
  /// The vector from `from` to `to` (to minus from, per coordinate).
  KCVector(const KC3DPoint& from, const KC3DPoint& to) noexcept
      : m_x(to.GetX() - from.GetX()), m_y(to.GetY() - from.GetY()), m_z(to.GetZ() - from.GetZ()) {}
  /// The vector with the given components.
  KCVector(double x, double y, double z) noexcept : m_x(x), m_y(y), m_z(z) {}
  /// The same three components.
  KCVector(const KCVector&) = default;
  /// Take the other vector's components; returns *this.
  KCVector& operator=(const KCVector&) = default;
  virtual ~KCVector();

  /// The x component.
  double GetX() const noexcept { return m_x; }
  /// The y component.
  double GetY() const noexcept { return m_y; }
  /// The z component.
  double GetZ() const noexcept { return m_z; }

  /// Euclidean length sqrt(x² + y² + z²).
  double Len() const noexcept;

  /// True when all three components are exactly equal.
  friend bool operator==(const KCVector& a, const KCVector& b) noexcept {
    return a.m_x == b.m_x && a.m_y == b.m_y && a.m_z == b.m_z;
  }
  /// Negation of ==.
  friend bool operator!=(const KCVector& a, const KCVector& b) noexcept { return !(a == b); }

 private:
  double m_x = 0.0;
  double m_y = 0.0;
  double m_z = 0.0;
};
