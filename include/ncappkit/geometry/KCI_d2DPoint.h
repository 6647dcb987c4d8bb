// SPDX-License-Identifier: MIT
// KCI_d2DPoint: abstract access to a 2D point with double coordinates.
//
// The 2D computations read points through GetX/GetY and write results through SetX then SetY, so a client
// class implementing this interface can receive results directly. The library's own implementation is
// CMath2D::Cd2DPoint.
//
//   class MyPoint : public KCI_d2DPoint { ... };   // implement the four operations
//   CMath2D::GetMiddle(a, b, myPoint);         // result written through myPoint.SetX / SetY
#pragma once

#include "ncappkit/export.h"

/// Abstract access to a 2D point with double coordinates.
class NCAPPKIT_EXPORT KCI_d2DPoint {
 public:
  /// Nothing to set up: the class holds no data.
  KCI_d2DPoint() = default;
  /// Nothing to copy: the class holds no data.
  KCI_d2DPoint(const KCI_d2DPoint&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KCI_d2DPoint& operator=(const KCI_d2DPoint&) = default;
  virtual ~KCI_d2DPoint();

  /// The x coordinate.
  virtual double GetX() const = 0;
  /// The y coordinate.
  virtual double GetY() const = 0;
  /// Set the x coordinate.
  virtual void SetX(double x) = 0;
  /// Set the y coordinate.
  virtual void SetY(double y) = 0;
};
