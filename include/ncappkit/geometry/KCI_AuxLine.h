// SPDX-License-Identifier: MIT
// KCI_AuxLine: abstract access to an infinite construction line through a point at an angle.
//
// The angle is in degrees, counter-clockwise from +x; GetAngleRad and SetAngleRad are the same angle in
// radians. The auxiliary-shape computations (CMathAuxShapes) read only the getters. The library's own
// implementation is CMathAuxShapes::CAuxLine.
//
//   CMathAuxShapes::CAuxLine line(0, 0, 45);   // through the origin at 45 degrees
//   bool flat = CMathAuxShapes::IsHorizontal(line);   // false
#pragma once

#include "ncappkit/export.h"

/// Abstract access to an infinite construction line through a point at an angle in degrees.
class NCAPPKIT_EXPORT KCI_AuxLine {
 public:
  /// Nothing to set up: the class holds no data.
  KCI_AuxLine() = default;
  /// Nothing to copy: the class holds no data.
  KCI_AuxLine(const KCI_AuxLine&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KCI_AuxLine& operator=(const KCI_AuxLine&) = default;
  virtual ~KCI_AuxLine();

  /// The x of the point the line passes through.
  virtual double GetXPos() const = 0;
  /// Set the x of the point the line passes through.
  virtual void SetXPos(double x) = 0;
  /// The y of the point the line passes through.
  virtual double GetYPos() const = 0;
  /// Set the y of the point the line passes through.
  virtual void SetYPos(double y) = 0;
  /// The direction in degrees.
  virtual double GetAngleDeg() const = 0;
  /// The direction in radians.
  virtual double GetAngleRad() const = 0;
  /// Set the direction in degrees.
  virtual void SetAngleDeg(double angleDeg) = 0;
  /// Set the direction in radians.
  virtual void SetAngleRad(double angleRad) = 0;
};
