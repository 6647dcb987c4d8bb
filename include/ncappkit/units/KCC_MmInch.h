// SPDX-License-Identifier: MIT
// KCC_MmInch, KCC_MmInch_Rounding and KCC_MmInch_Format: the user's unit selection (undefined, millimetres or
// inches) and the rounding and text of lengths and weights in that unit.
//
// Lengths are kept in millimetres everywhere; inch is a display unit. A KCC_MmInch is a plain value that says
// which unit the user sees; rounding and format objects refer to one (by reference, so a later change of the
// selection changes their results) and give the digits behind the point per kind of quantity:
//
//   quantity          mm  inch  undefined
//   axis position      3     4         10
//   dimension          1     3         10
//   thickness          2     4         10
//   weight             1     0         10
//   specific weight    1     3         10
//
//   KCC_MmInch unit(KCC_MmInch::eMmInchInch);
//   double shown = unit.Dim_MmInchConvert(25.4);          // 1.0 (inch)
//   KCC_MmInch_Rounding round(unit);
//   double r = round.RoundAxis(1.23456);                  // 1.2346
//   KCC_MmInch_Format format(unit);
//   KCString text = format.FormatAxisPos(1.5);            // "1.5000"
//
// Deliberate details that callers rely on:
// - ReadFromString accepts only "MM" and "IN" (case-sensitive); WriteToString(true) writes "INCH", which
//   ReadFromString refuses. Configuration stores the short form.
// - Dim_MmInchConvert truncates the scaled value without sign handling, so -25.4 mm gives -0.9999 inch.
// - ConvertStringWithUnitAsDouble always reads the text in front of "MM" (the whole text when there is no
//   "MM"); its "INCH" and no-suffix branches are never reached. ConvertStringWithUnitAsInt reaches all three.
// - Rounding in the undefined selection applies no digits but returns the magnitude of values below
//   kNegativeThreshold (see the constants of src/units/KCC_MmInch.cpp).
//
// Choices for values the integer arithmetic cannot hold: the rounding and conversion steps truncate a scaled
// value to a 32-bit integer. When the scaled value lies outside the 32-bit range (above 2,147,483.647 mm at 3
// digits, for example) it is truncated as a double instead, which gives the same digits a wider integer
// would; NaN and infinities pass through unchanged. The integer unit-string reader saturates at the int
// range.
// See docs/behaviours.md#units.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"
#include "ncappkit/foundation/KCUnitMan.h"

#include <cstdint>

/// The unit selection: undefined, millimetres or inches.
class NCAPPKIT_EXPORT KCC_MmInch {
 public:
  /// The selection values.
  enum eMmInchSel : std::int32_t {
    eMmInchUndef = 0,  ///< no unit chosen
    eMmInchMm = 1,     ///< millimetres
    eMmInchInch = 2    ///< inches
  };

  /// Millimetres per inch.
  static constexpr double kMmPerInch = 25.4;

  /// Undefined selection.
  KCC_MmInch() = default;
  /// The given selection, stored unchecked.
  KCC_MmInch(eMmInchSel sel);  // NOLINT(google-explicit-constructor): a selection is a unit value
  /// The selection for a class-library distance unit (see SetMode); undefined for an unknown unit.
  explicit KCC_MmInch(KCUnitMan::tevDistUnit unit);
  /// The same selection.
  KCC_MmInch(const KCC_MmInch&) = default;
  /// Copy the selection.
  KCC_MmInch& operator=(const KCC_MmInch&) = default;
  /// True when both selections are equal.
  bool operator==(const KCC_MmInch& other) const noexcept { return m_sel == other.m_sel; }
  /// True when the selections differ.
  bool operator!=(const KCC_MmInch& other) const noexcept { return m_sel != other.m_sel; }

  /// The selection.
  eMmInchSel GetMmInchMode() const noexcept { return m_sel; }
  /// True when the selection is undefined.
  bool IsUndef() const noexcept { return m_sel == eMmInchUndef; }
  /// True when the selection is millimetres.
  bool IsMmMode() const noexcept { return m_sel == eMmInchMm; }
  /// True when the selection is inches.
  bool IsInchMode() const noexcept { return m_sel == eMmInchInch; }
  /// Make the selection undefined.
  void SetUndef() noexcept { m_sel = eMmInchUndef; }
  /// Select millimetres.
  void SetMmMode() noexcept { m_sel = eMmInchMm; }
  /// Select inches.
  void SetInchMode() noexcept { m_sel = eMmInchInch; }

  /// Select by distance unit: mm selects mm, inch and mil both select inch; any other unit changes nothing.
  void SetMode(KCUnitMan::tevDistUnit unit) noexcept;
  /// The distance unit: inch for the inch selection, mm otherwise (also for undefined).
  KCUnitMan::tevDistUnit GetAsUnit() const noexcept;

  /// Select from text: "MM" selects mm, "IN" inch (both exact and case-sensitive) and return true; any other
  /// text makes the selection undefined and returns false ("INCH" included).
  bool ReadFromString(const KCString& text) noexcept;
  /// "MM" for mm; "INCH" (longForm) or "IN" for inch; "" for undefined.
  KCString WriteToString(bool longForm) const;

  /// A displayed value in millimetres: times 25.4 in inch, unchanged otherwise.
  double Dim_InchMmConvert(double value) const noexcept;
  /// Millimetres as a displayed value: in inch, value / 25.4 truncated to 4 decimals after adding half a
  /// step (no sign handling); unchanged otherwise.
  double Dim_MmInchConvert(double value) const noexcept;

  /// The number in front of "MM" (or the whole text when there is none), divided by 25.4 when `target` is
  /// inch; 0.0 when that text holds no number.
  static double ConvertStringWithUnitAsDouble(const KCString& text, const KCC_MmInch& target) noexcept;
  /// The whole number in front of "MM" (divided by 25.4 and truncated when `target` is inch) or in front of
  /// "INCH" (times 25.4, truncated, when `target` is mm), 0 when that text holds no number; without either
  /// suffix the whole text read as an integer, -1 when it holds none. "MM" wins when both occur.
  static int ConvertStringWithUnitAsInt(const KCString& text, const KCC_MmInch& target) noexcept;
  /// The integer followed directly by the unit's long suffix: "12MM", "12INCH", or "12" when undefined.
  static KCString CreateStringWithUnit(int value, const KCC_MmInch& unit);
  /// The real with `digits` decimals followed directly by the unit's long suffix: "1.50MM".
  static KCString CreateStringWithUnit(double value, int digits, const KCC_MmInch& unit);

 private:
  eMmInchSel m_sel = eMmInchUndef;
};

/// Rounding of the five quantities to the digits of the referenced selection.
class NCAPPKIT_EXPORT KCC_MmInch_Rounding {
 public:
  /// Round in the unit of `unit`, read anew at every call; `unit` must outlive this object.
  explicit KCC_MmInch_Rounding(const KCC_MmInch& unit) noexcept : m_unit(unit) {}
  /// Refers to the same selection object.
  KCC_MmInch_Rounding(const KCC_MmInch_Rounding&) = default;
  /// Keeps this object's own selection: a reference cannot be re-seated and there is nothing else to copy.
  KCC_MmInch_Rounding& operator=(const KCC_MmInch_Rounding&) noexcept { return *this; }

  /// Axis position rounded half away from zero (3 decimals mm, 4 inch); magnitude only when undefined.
  double RoundAxis(double value) const noexcept;
  /// Dimension rounded half away from zero (1 decimal mm, 3 inch); magnitude only when undefined.
  double RoundDimension(double value) const noexcept;
  /// Thickness rounded half away from zero (2 decimals mm, 4 inch); magnitude only when undefined.
  double RoundThickness(double value) const noexcept;
  /// Weight rounded half away from zero (1 decimal mm, whole numbers inch); magnitude only when undefined.
  double RoundWeight(double value) const noexcept;
  /// Specific weight rounded half away from zero (1 decimal mm, 3 inch); magnitude only when undefined.
  double RoundSpecificWeight(double value) const noexcept;

  /// Decimals of an axis position: 3 mm, 4 inch, 10 undefined.
  int DigitsBehindAxis() const noexcept;
  /// Decimals of a dimension: 1 mm, 3 inch, 10 undefined.
  int DigitsBehindDimension() const noexcept;
  /// Decimals of a thickness: 2 mm, 4 inch, 10 undefined.
  int DigitsBehindThickness() const noexcept;
  /// Decimals of a weight: 1 mm, 0 inch, 10 undefined.
  int DigitsBehindWeight() const noexcept;
  /// Decimals of a specific weight: 1 mm, 3 inch, 10 undefined.
  int DigitsBehindSpecificWeight() const noexcept;

 private:
  /// -1.0 for values below kNegativeThreshold, +1.0 otherwise.
  double GetPosNegFactor(double value) const noexcept;
  double Round(double value, int digits) const noexcept;

  const KCC_MmInch& m_unit;
};

/// Text of the five quantities with the digits of the referenced selection.
class NCAPPKIT_EXPORT KCC_MmInch_Format {
 public:
  /// Format in the unit of `unit`, read anew at every call; `unit` must outlive this object.
  explicit KCC_MmInch_Format(const KCC_MmInch& unit) noexcept : m_unit(unit) {}
  /// Refers to the same selection object.
  KCC_MmInch_Format(const KCC_MmInch_Format&) = default;
  /// Keeps this object's own selection: a reference cannot be re-seated and there is nothing else to copy.
  KCC_MmInch_Format& operator=(const KCC_MmInch_Format&) noexcept { return *this; }

  /// Axis position with 3 (mm) or 4 (inch) decimals; six decimals when undefined ("1.500000").
  KCString FormatAxisPos(double value) const;
  /// Dimension with 1 (mm) or 3 (inch) decimals; six decimals when undefined.
  KCString FormatDimension(double value) const;
  /// Thickness with 2 (mm) or 4 (inch) decimals; six decimals when undefined.
  KCString FormatThickness(double value) const;
  /// Weight with 1 decimal (mm), or truncated to a whole number (inch: 12.9 gives "12"); six decimals when
  /// undefined.
  KCString FormatWeight(double value) const;
  /// Specific weight with 1 (mm) or 3 (inch) decimals; six decimals when undefined.
  KCString FormatSpecWeight(double value) const;

 private:
  KCString Format(double value, int mmDigits, int inchDigits) const;

  const KCC_MmInch& m_unit;
};
