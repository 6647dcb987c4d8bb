// SPDX-License-Identifier: MIT
// KCI_d2DVerLine: abstract access to a vertical line segment: its x position and the y of its two ends.
//
// The 2D computations call only GetPosX (the third operation), when intersecting an arc with the line's
// infinite extension (CMath2D::GetIntersection); the end ordinates are there for the client's own use.
//
//   class MyVerLine : public KCI_d2DVerLine { ... };
//   CMath2D::Cd2DPoint p1, p2;
//   bool hit = CMath2D::GetIntersection(arc, myVerLine, p1, p2);
#pragma once

#include "ncappkit/export.h"

/// Abstract access to a vertical line segment: its x position and the y of its two ends.
class NCAPPKIT_EXPORT KCI_d2DVerLine {
 public:
  /// Nothing to set up: the class holds no data.
  KCI_d2DVerLine() = default;
  /// Nothing to copy: the class holds no data.
  KCI_d2DVerLine(const KCI_d2DVerLine&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KCI_d2DVerLine& operator=(const KCI_d2DVerLine&) = default;
  virtual ~KCI_d2DVerLine();

  /// The y of the start end.
  virtual double GetStartY() const = 0;
  /// The y of the other end.
  virtual double GetEndY() const = 0;
  /// The x position of the line.
  virtual double GetPosX() const = 0;
  /// Set the y of the start end.
  virtual void SetStartY(double y) = 0;
  /// Set the y of the other end.
  virtual void SetEndY(double y) = 0;
  /// Set the x position of the line.
  virtual void SetPosX(double x) = 0;
};
