// SPDX-License-Identifier: MIT
// KCI_AuxCircle: abstract access to a full construction circle: its centre and radius.
//
// The auxiliary-shape computations (CMathAuxShapes) read the centre through GetCenterX and GetCenterY and
// the radius through GetRadius. CMathAuxShapes::CAuxCircle implements only the radius operations and is
// abstract; CMathAuxShapes::CAuxCircleImpl is the ready-to-use circle.
//
//   CMathAuxShapes::CAuxCircleImpl circle(0, 0, 2);   // centre (0, 0), radius 2
//   double d = CMathAuxShapes::DistanceFromPointToAuxShape(circle, 3.0, 4.0);   // 3
#pragma once

#include "ncappkit/export.h"

/// Abstract access to a full construction circle: its centre and radius.
class NCAPPKIT_EXPORT KCI_AuxCircle {
 public:
  /// Nothing to set up: the class holds no data.
  KCI_AuxCircle() = default;
  /// Nothing to copy: the class holds no data.
  KCI_AuxCircle(const KCI_AuxCircle&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KCI_AuxCircle& operator=(const KCI_AuxCircle&) = default;
  virtual ~KCI_AuxCircle();

  /// The centre's x.
  virtual double GetCenterX() const = 0;
  /// Set the centre's x.
  virtual void SetCenterX(double x) = 0;
  /// The centre's y.
  virtual double GetCenterY() const = 0;
  /// Set the centre's y.
  virtual void SetCenterY(double y) = 0;
  /// The radius.
  virtual double GetRadius() const = 0;
  /// Set the radius.
  virtual void SetRadius(double radius) = 0;
};
