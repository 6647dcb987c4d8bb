// SPDX-License-Identifier: MIT
// KCI_i2DArc: abstract access to a circular arc with int coordinates: start point, end point, centre and
// turning sense.
//
// The turning sense eArcType is 0 (none), 1 (clockwise) or 2 (counter-clockwise); SetArcCW stores 1,
// SetArcCCW stores 2, SetArcType stores any value unchecked. The 2D computations read arcs only (GetArcType,
// IsArcCW, IsArcCCW and the six coordinate getters). The library's own implementation is CMath2D::Ci2DArc.
//
//   class MyArc : public KCI_i2DArc { ... };   // implement the eighteen operations
//   CMath2D::GetArcPointByOffset(myArc, 0.5, x, y);   // mid point, truncated to int
#pragma once

#include "ncappkit/export.h"

/// Abstract access to a circular arc with int coordinates: start, end, centre and turning sense.
class NCAPPKIT_EXPORT KCI_i2DArc {
 public:
  /// Turning sense of an arc.
  enum eArcType : int {
    eArcTypeNone = 0,  ///< neither direction
    eArcCW = 1,        ///< clockwise
    eArcCCW = 2        ///< counter-clockwise
  };

  /// Nothing to set up: the class holds no data.
  KCI_i2DArc() = default;
  /// Nothing to copy: the class holds no data.
  KCI_i2DArc(const KCI_i2DArc&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KCI_i2DArc& operator=(const KCI_i2DArc&) = default;
  virtual ~KCI_i2DArc();

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
  /// The centre's x.
  virtual int GetCenterX() const = 0;
  /// The centre's y.
  virtual int GetCenterY() const = 0;
  /// Set the centre's x.
  virtual void SetCenterX(int x) = 0;
  /// Set the centre's y.
  virtual void SetCenterY(int y) = 0;
};
