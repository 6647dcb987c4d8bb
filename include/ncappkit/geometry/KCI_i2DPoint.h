// SPDX-License-Identifier: MIT
// KCI_i2DPoint: abstract access to a 2D point with int coordinates.
//
// The 2D computations read points through GetX/GetY and write results through SetX then SetY, so a client
// class implementing this interface can receive results directly. The library's own implementation is
// CMath2D::Ci2DPoint.
//
//   class MyPoint : public KCI_i2DPoint { ... };   // implement the four operations
//   CMath2D::GetArcPointByOffset(intArc, 0.5, myPoint);  // result written through myPoint.SetX / SetY
#pragma once

#include "ncappkit/export.h"

/// Abstract access to a 2D point with int coordinates.
class NCAPPKIT_EXPORT KCI_i2DPoint {
 public:
  /// Nothing to set up: the class holds no data.
  KCI_i2DPoint() = default;
  /// Nothing to copy: the class holds no data.
  KCI_i2DPoint(const KCI_i2DPoint&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KCI_i2DPoint& operator=(const KCI_i2DPoint&) = default;
  virtual ~KCI_i2DPoint();

  /// The x coordinate.
  virtual int GetX() const = 0;
  /// The y coordinate.
  virtual int GetY() const = 0;
  /// Set the x coordinate.
  virtual void SetX(int x) = 0;
  /// Set the y coordinate.
  virtual void SetY(int y) = 0;
};
