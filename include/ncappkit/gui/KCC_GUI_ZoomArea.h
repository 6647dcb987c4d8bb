// SPDX-License-Identifier: MIT
// KCC_GUI_ZoomArea: a world rectangle together with a copy of its previous values. The view port shows it
// (KCC_ViewPort::SetWorldCoord), and the previous values let a refused or undone zoom be taken back.
//
//   KCC_GUI_ZoomArea area(0.0, 0.0, 100.0, 50.0);   // current and previous values both (0, 0, 100, 50)
//   area.SetXmax(0.001);                            // previous Xmax is now 100
//   area.RestorePreviousValues();                   // back to (0, 0, 100, 50)
//
// Rules worth knowing:
// - The previous values are kept per coordinate: each setter first copies the current value of its own
//   coordinate into the previous one. SetXmin twice in a row leaves the first new value as previous Xmin, so
//   RestorePreviousValues gives back that value, not the constructor's.
// - A pair is invalid while min is the largest finite double and max its negative; the default constructor
//   and MakeInvalid give that state. Validity is strict (Xmin < largest, Xmax > -largest), so NaN is
//   invalid and infinities are valid.
// - Normalize sorts only a valid pair: on an area whose x pair is invalid it leaves x alone and still sorts
//   y. MakeInvalid and Normalize leave the previous values untouched.
// - The getters and the validity tests are const; Accept hands the visitor a mutable area.
// See docs/behaviours.md#zoom-areas.
#pragma once

#include "ncappkit/export.h"

class KCC_GUI_ZoomAreaVisitor;

/// A world rectangle (Xmin, Ymin, Xmax, Ymax) with a copy of the values before the last change.
class NCAPPKIT_EXPORT KCC_GUI_ZoomArea {
 public:
  /// An invalid area: Xmin = Ymin = largest double, Xmax = Ymax = -largest double, also as previous values.
  KCC_GUI_ZoomArea();
  /// The rectangle (xMin, yMin, xMax, yMax), stored both as current and as previous values; not sorted.
  KCC_GUI_ZoomArea(double xMin, double yMin, double xMax, double yMax);
  /// Copies the current and the previous values.
  KCC_GUI_ZoomArea(const KCC_GUI_ZoomArea& other);
  /// Copies the current and the previous values; returns *this.
  KCC_GUI_ZoomArea& operator=(const KCC_GUI_ZoomArea& other);
  virtual ~KCC_GUI_ZoomArea();

  /// The current Xmin.
  double GetXmin() const;
  /// The current Ymin.
  double GetYmin() const;
  /// The current Xmax.
  double GetXmax() const;
  /// The current Ymax.
  double GetYmax() const;

  /// Previous Xmin = current Xmin, then current Xmin = `value`; never fails.
  void SetXmin(double value);
  /// Previous Ymin = current Ymin, then current Ymin = `value`; never fails.
  void SetYmin(double value);
  /// Previous Xmax = current Xmax, then current Xmax = `value`; never fails.
  void SetXmax(double value);
  /// Previous Ymax = current Ymax, then current Ymax = `value`; never fails.
  void SetYmax(double value);

  /// Current Xmin = Ymin = largest double, Xmax = Ymax = -largest double; the previous values stay.
  void MakeInvalid();
  /// True when Xmin < largest double and Xmax > -largest double (false for NaN).
  bool ValidX() const;
  /// True when Ymin < largest double and Ymax > -largest double (false for NaN).
  bool ValidY() const;
  /// True when both ValidX and ValidY hold.
  bool Valid() const;
  /// Swap Xmin and Xmax when ValidX and Xmin > Xmax; then the same for y. The previous values stay.
  void Normalize();
  /// Current values = previous values, for all four coordinates.
  void RestorePreviousValues();

  /// Returns visitor.Visit(*this).
  bool Accept(KCC_GUI_ZoomAreaVisitor& visitor);

 private:
  double m_xMin;
  double m_yMin;
  double m_xMax;
  double m_yMax;
  double m_prevXmin;
  double m_prevYmin;
  double m_prevXmax;
  double m_prevYmax;
};
