// SPDX-License-Identifier: MIT
// KCI_i2DLine: abstract access to a 2D line segment with int coordinates.
//
// The 2D computations read the four coordinates through the getters; results that are lines are written
// through SetStartX, SetStartY, SetEndX, SetEndY, in that order. The library's own implementation is
// CMath2D::Ci2DLine.
//
//   class MyLine : public KCI_i2DLine { ... };   // implement the eight operations
//   CMath2D::Ci2DLine copy(myLine.GetStartX(), myLine.GetStartY(), myLine.GetEndX(), myLine.GetEndY());
#pragma once

#include "ncappkit/export.h"

/// Abstract access to a line segment with int coordinates.
class NCAPPKIT_EXPORT KCI_i2DLine {
 public:
  /// Nothing to set up: the class holds no data.
  KCI_i2DLine() = default;
  /// Nothing to copy: the class holds no data.
  KCI_i2DLine(const KCI_i2DLine&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KCI_i2DLine& operator=(const KCI_i2DLine&) = default;
  virtual ~KCI_i2DLine();

  /// The start point's x.
  virtual int GetStartX() const = 0;
  /// The start point's y.
  virtual int GetStartY() const = 0;
  /// Set the start point's x.
  virtual void SetStartX(int x) = 0;
  /// Set the start point's y.
  virtual void SetStartY(int y) = 0;
  /// The end point's x.
  virtual int GetEndX() const = 0;
  /// The end point's y.
  virtual int GetEndY() const = 0;
  /// Set the end point's x.
  virtual void SetEndX(int x) = 0;
  /// Set the end point's y.
  virtual void SetEndY(int y) = 0;
};
