// SPDX-License-Identifier: MIT
// KC2DArea: an axis-parallel bounding area that grows point by point.
//
// A new area is empty; the first ApplyPoint makes it the single point, later ones widen it. The extent of an
// empty area reads as 0. Points with a NaN coordinate are ignored, so one bad point cannot poison the box.
//
//   KC2DArea box;
//   box.ApplyPoint(1, 2);
//   box.ApplyPoint(-3, 5);       // box is now x -3..1, y 2..5
#pragma once

#include "ncappkit/export.h"

/// An axis-parallel bounding area that grows point by point; empty until the first point.
class NCAPPKIT_EXPORT KC2DArea {
 public:
  /// An empty area.
  KC2DArea() = default;
  /// The same extent (and emptiness).
  KC2DArea(const KC2DArea&) = default;
  /// Take the other area's extent and emptiness; returns *this.
  KC2DArea& operator=(const KC2DArea&) = default;
  virtual ~KC2DArea();

  /// Grow the area so that it includes (x, y); the first point of an empty area becomes the whole area.
  /// A point with a NaN coordinate leaves the area unchanged.
  void ApplyPoint(double x, double y) noexcept;
  /// Make the area empty again.
  void Clear() noexcept { *this = KC2DArea(); }
  /// True until the first point has been applied.
  bool IsEmpty() const noexcept { return m_empty; }

  /// Smallest x of the applied points, or 0 when empty.
  double GetMinX() const noexcept { return m_minX; }
  /// Smallest y of the applied points, or 0 when empty.
  double GetMinY() const noexcept { return m_minY; }
  /// Largest x of the applied points, or 0 when empty.
  double GetMaxX() const noexcept { return m_maxX; }
  /// Largest y of the applied points, or 0 when empty.
  double GetMaxY() const noexcept { return m_maxY; }
  /// GetMaxX() - GetMinX() (0 when empty).
  double GetWidth() const noexcept { return m_maxX - m_minX; }
  /// GetMaxY() - GetMinY() (0 when empty).
  double GetHeight() const noexcept { return m_maxY - m_minY; }

 private:
  bool m_empty = true;
  double m_minX = 0.0;
  double m_minY = 0.0;
  double m_maxX = 0.0;
  double m_maxY = 0.0;
};
