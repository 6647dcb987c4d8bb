// SPDX-License-Identifier: MIT
// KCI_d2DHorLine: abstract access to a horizontal line segment: its y position and the x of its two ends.
//
// The 2D computations call only GetPosY (the third operation), when intersecting an arc with the line's
// infinite extension (CMath2D::GetIntersection); the end abscissae are there for the client's own use.
//
//   class MyHorLine : public KCI_d2DHorLine { ... };
//   CMath2D::Cd2DPoint p1, p2;
//   bool hit = CMath2D::GetIntersection(arc, myHorLine, p1, p2);
#pragma once

#include "ncappkit/export.h"

/// Abstract access to a horizontal line segment: its y position and the x of its two ends.
class NCAPPKIT_EXPORT KCI_d2DHorLine {
 public:
  /// Nothing to set up: the class holds no data.
  KCI_d2DHorLine() = default;
  /// Nothing to copy: the class holds no data.
  KCI_d2DHorLine(const KCI_d2DHorLine&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KCI_d2DHorLine& operator=(const KCI_d2DHorLine&) = default;
  virtual ~KCI_d2DHorLine();

  /// The x of the start end.
  virtual double GetStartX() const = 0;
  /// The x of the other end.
  virtual double GetEndX() const = 0;
  /// The y position of the line.
  virtual double GetPosY() const = 0;
  /// Set the x of the start end.
  virtual void SetStartX(double x) = 0;
  /// Set the x of the other end.
  virtual void SetEndX(double x) = 0;
  /// Set the y position of the line.
  virtual void SetPosY(double y) = 0;
};
