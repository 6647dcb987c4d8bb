// SPDX-License-Identifier: MIT
// KCI_AuxVerLine: abstract access to an infinite vertical construction line, given by its x position.
//
// The auxiliary-shape computations (CMathAuxShapes) read only GetPos. The library's own implementation is
// CMathAuxShapes::CAuxVerLine.
//
//   CMathAuxShapes::CAuxVerLine line(2.5);   // the line x = 2.5
//   double pos = line.GetPos();
#pragma once

#include "ncappkit/export.h"

/// Abstract access to an infinite vertical construction line x = pos.
class NCAPPKIT_EXPORT KCI_AuxVerLine {
 public:
  /// Nothing to set up: the class holds no data.
  KCI_AuxVerLine() = default;
  /// Nothing to copy: the class holds no data.
  KCI_AuxVerLine(const KCI_AuxVerLine&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KCI_AuxVerLine& operator=(const KCI_AuxVerLine&) = default;
  virtual ~KCI_AuxVerLine();

  /// The x position of the line.
  virtual double GetPos() const = 0;
  /// Set the x position of the line.
  virtual void SetPos(double pos) = 0;
};
