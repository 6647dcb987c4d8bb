// SPDX-License-Identifier: MIT
// KCI_d2DLine: abstract access to a 2D line segment with double coordinates.
//
// The 2D computations read the four coordinates through the getters; results that are lines are written
// through SetStartX, SetStartY, SetEndX, SetEndY, in that order. The library's own implementation is
// CMath2D::Cd2DLine.
//
//   class MyLine : public KCI_d2DLine { ... };   // implement the eight operations
//   double length = CMath2D::GetLength(myLine);
#pragma once

#include "ncappkit/export.h"

/// Abstract access to a line segment with double coordinates.
class NCAPPKIT_EXPORT KCI_d2DLine {
 public:
  /// Nothing to set up: the class holds no data.
  KCI_d2DLine() = default;
  /// Nothing to copy: the class holds no data.
  KCI_d2DLine(const KCI_d2DLine&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KCI_d2DLine& operator=(const KCI_d2DLine&) = default;
  virtual ~KCI_d2DLine();

  /// The start point's x.
  virtual double GetStartX() const = 0;
  /// The start point's y.
  virtual double GetStartY() const = 0;
  /// Set the start point's x.
  virtual void SetStartX(double x) = 0;
  /// Set the start point's y.
  virtual void SetStartY(double y) = 0;
  /// The end point's x.
  virtual double GetEndX() const = 0;
  /// The end point's y.
  virtual double GetEndY() const = 0;
  /// Set the end point's x.
  virtual void SetEndX(double x) = 0;
  /// Set the end point's y.
  virtual void SetEndY(double y) = 0;
};
