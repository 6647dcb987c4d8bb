// SPDX-License-Identifier: MIT
// KCI_AuxHorLine: abstract access to an infinite horizontal construction line, given by its y position.
//
// The auxiliary-shape computations (CMathAuxShapes) read only GetPos. The library's own implementation is
// CMathAuxShapes::CAuxHorLine.
//
//   CMathAuxShapes::CAuxHorLine line(2.5);   // the line y = 2.5
//   double pos = line.GetPos();
#pragma once

#include "ncappkit/export.h"

/// Abstract access to an infinite horizontal construction line y = pos.
class NCAPPKIT_EXPORT KCI_AuxHorLine {
 public:
  /// Nothing to set up: the class holds no data.
  KCI_AuxHorLine() = default;
  /// Nothing to copy: the class holds no data.
  KCI_AuxHorLine(const KCI_AuxHorLine&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KCI_AuxHorLine& operator=(const KCI_AuxHorLine&) = default;
  virtual ~KCI_AuxHorLine();

  /// The y position of the line.
  virtual double GetPos() const = 0;
  /// Set the y position of the line.
  virtual void SetPos(double pos) = 0;
};
