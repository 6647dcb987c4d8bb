// SPDX-License-Identifier: MIT
// KCI_d2DArc: abstract access to a circular arc with double coordinates: start point, end point, centre and
// turning sense.
//
// The turning sense eArcType is 0 (none), 1 (clockwise) or 2 (counter-clockwise); SetArcCW stores 1,
// SetArcCCW stores 2, SetArcType stores any value unchecked. The 2D computations read arcs only (GetArcType,
// IsArcCW, IsArcCCW and the six coordinate getters). The library's own implementation is CMath2D::Cd2DArc.
//
//   class MyArc : public KCI_d2DArc { ... };   // implement the eighteen operations
//   double sweepDeg = CMath2D::GetArcAngleDeg(myArc);
#pragma once

#include "ncappkit/export.h"

/// Abstract access to a circular arc with double coordinates: start, end, centre and turning sense.
class NCAPPKIT_EXPORT KCI_d2DArc {
 public:
  /// Turning sense of an arc.
  enum eArcType : int {
    eArcTypeNone = 0,  ///< neither direction
    eArcCW = 1,        ///< clockwise
    eArcCCW = 2        ///< counter-clockwise
  };

  /// Nothing to set up: the class holds no data.
  KCI_d2DArc() = default;
  /// Nothing to copy: the class holds no data.
  KCI_d2DArc(const KCI_d2DArc&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KCI_d2DArc& operator=(const KCI_d2DArc&) = default;
  virtual ~KCI_d2DArc();

  /// The stored turning sense.
  virtual eArcType GetArcType() const = 0;
  /// Store the turning sense (any value, unchecked).
  virtual void SetArcType(eArcType type) = 0;
  /// Store eArcCW (1).
  virtual void SetArcCW() = 0;
  /// Store eArcCCW (2).
  virtual void SetArcCCW() = 0;
  /// True exactly when the stored turning sense is 1.
  virtual bool IsArcCW() const = 0;
  /// True exactly when the stored turning sense is 2.
  virtual bool IsArcCCW() const = 0;
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
  /// The centre's x.
  virtual double GetCenterX() const = 0;
  /// The centre's y.
  virtual double GetCenterY() const = 0;
  /// Set the centre's x.
  virtual void SetCenterX(double x) = 0;
  /// Set the centre's y.
  virtual void SetCenterY(double y) = 0;
};
