// SPDX-License-Identifier: MIT
// example_units: show lengths in the user's unit, rounded and formatted per kind of quantity.
//
//   example_units
//
// Lengths are kept in millimetres; inch is only how the user sees them. A rounding or format object refers to
// a KCC_MmInch, so switching the user's unit changes what they give.
#include <iostream>

#include "ncappkit/units/KCC_MmInch.h"

namespace {

void Show(const KCC_MmInch& unit, double mm) {
  const KCC_MmInch_Format format(unit);
  const double shown = unit.IsInchMode() ? unit.Dim_MmInchConvert(mm) : mm;
  std::cout << "  " << KCString(mm, -1, false) << " mm: axis " << format.FormatAxisPos(shown)
            << ", dimension " << format.FormatDimension(shown) << ", thickness "
            << format.FormatThickness(shown) << '\n';
}

}  // namespace

int main() {
  KCC_MmInch unit(KCC_MmInch::eMmInchMm);
  std::cout << "unit " << unit.WriteToString(true) << ":\n";
  Show(unit, 12.34567);
  Show(unit, -25.4);

  unit.SetInchMode();  // the format objects made from now on show inches
  std::cout << "unit " << unit.WriteToString(true) << ":\n";
  Show(unit, 12.34567);
  // The conversion truncates the scaled value without sign handling: -25.4 mm shows as -0.9999 inch.
  Show(unit, -25.4);

  // Typed-in text with a unit: the text in front of "MM" is read, converted to the target unit.
  const double typed = KCC_MmInch::ConvertStringWithUnitAsDouble("50.8MM", unit);
  std::cout << "\"50.8MM\" in inch: " << typed << '\n';
  std::cout << "round 1.23456 for an inch axis: " << KCC_MmInch_Rounding(unit).RoundAxis(1.23456) << '\n';
  return 0;
}
