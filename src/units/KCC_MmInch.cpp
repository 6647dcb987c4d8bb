// SPDX-License-Identifier: MIT
#include "ncappkit/units/KCC_MmInch.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

// Digits behind the point when no unit is selected.
constexpr int kUndefDigits = 10;

// Values between this and zero count as positive when rounding, so that a tiny negative rest of a
// computation does not come out as "-0.000".
constexpr double kNegativeThreshold = -1e-7;

// Scale of the inch value kept by Dim_MmInchConvert: four decimals.
constexpr double kInchConvertScale = 10000.0;

// The length of the text buffer of the undefined format ("%f" into 50 characters: at most 49 are kept).
constexpr std::size_t kUndefFormatBuffer = 50;

// Truncation toward zero to a 32-bit integer, the step that drops the digits behind the last kept one.
// Outside the 32-bit range the value is truncated as a double (the digits a wider integer would give);
// NaN and infinities pass through.
double TruncateToInt32(double value) noexcept {
  constexpr double kLow = static_cast<double>(std::numeric_limits<std::int32_t>::min());
  constexpr double kHigh = static_cast<double>(std::numeric_limits<std::int32_t>::max());
  if (value > kLow - 1.0 && value < kHigh + 1.0)
    return static_cast<double>(static_cast<std::int32_t>(value));
  return std::trunc(value);
}

// Truncation toward zero to an int for results that must be ints; saturates outside the int range and
// gives 0 for NaN.
int TruncateToIntSaturated(double value) noexcept {
  if (std::isnan(value))
    return 0;
  constexpr double kLow = static_cast<double>(std::numeric_limits<int>::min());
  constexpr double kHigh = static_cast<double>(std::numeric_limits<int>::max());
  if (value <= kLow)
    return std::numeric_limits<int>::min();
  if (value >= kHigh)
    return std::numeric_limits<int>::max();
  return static_cast<int>(value);
}

// The text C's "%f" gives (six decimals, fixed notation), written locale-free and cut to the 49 characters
// that fit the 50-character buffer.
KCString FormatLikePrintfF(double value) {
  if (std::isnan(value))
    return KCString(std::signbit(value) ? "-nan" : "nan");
  if (std::isinf(value))
    return KCString(value < 0 ? "-inf" : "inf");
  std::array<char, 400> buffer{};
  const auto result =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, 6);
  std::size_t length = static_cast<std::size_t>(result.ptr - buffer.data());
  if (length > kUndefFormatBuffer - 1)
    length = kUndefFormatBuffer - 1;
  return KCString(buffer.data(), length);
}

}  // namespace

// ---------------------------------------------------------------------------------------------------------
// KCC_MmInch

KCC_MmInch::KCC_MmInch(eMmInchSel sel) : m_sel(sel) {}

KCC_MmInch::KCC_MmInch(KCUnitMan::tevDistUnit unit) {
  SetMode(unit);
}

void KCC_MmInch::SetMode(KCUnitMan::tevDistUnit unit) noexcept {
  switch (static_cast<int>(unit)) {
    case KCUnitMan::evDistMM:
      m_sel = eMmInchMm;
      break;
    case KCUnitMan::evDistInch:
    case KCUnitMan::evDistMil:
      m_sel = eMmInchInch;
      break;
    default:
      break;  // unknown unit: the selection stays as it was
  }
}

KCUnitMan::tevDistUnit KCC_MmInch::GetAsUnit() const noexcept {
  return IsInchMode() ? KCUnitMan::evDistInch : KCUnitMan::evDistMM;
}

bool KCC_MmInch::ReadFromString(const KCString& text) noexcept {
  if (text == "MM") {
    m_sel = eMmInchMm;
    return true;
  }
  // Only the short form: the configuration stores "IN", and "INCH" is deliberately not read.
  if (text == "IN") {
    m_sel = eMmInchInch;
    return true;
  }
  m_sel = eMmInchUndef;
  return false;
}

KCString KCC_MmInch::WriteToString(bool longForm) const {
  if (IsMmMode())
    return KCString("MM");
  if (IsInchMode())
    return KCString(longForm ? "INCH" : "IN");
  return KCString();
}

double KCC_MmInch::Dim_InchMmConvert(double value) const noexcept {
  return IsInchMode() ? value * kMmPerInch : value;
}

double KCC_MmInch::Dim_MmInchConvert(double value) const noexcept {
  if (!IsInchMode())
    return value;
  // No sign handling: adding the half step before truncating toward zero moves negative values one step
  // toward zero (-25.4 mm gives -0.9999 inch).
  const double steps = TruncateToInt32((value / kMmPerInch) * kInchConvertScale + 0.5);
  return steps / kInchConvertScale;
}

double KCC_MmInch::ConvertStringWithUnitAsDouble(const KCString& text, const KCC_MmInch& target) noexcept {
  // The position is narrowed to 32 bits and compared with the 64-bit npos, which it can never equal: the
  // "MM" branch is always taken, and without "MM" the count 0xFFFFFFFF takes the whole text.
  const std::uint32_t mmPos = static_cast<std::uint32_t>(text.Find(KCString("MM"), 0));
  const std::uint32_t inchPos = static_cast<std::uint32_t>(text.Find(KCString("INCH"), 0));
  const std::uint64_t npos = KCString::npos;
  if (mmPos != npos) {
    const double value = text.substr(0, mmPos).AsDouble(0.0);
    return target.IsInchMode() ? value / kMmPerInch : value;
  }
  if (inchPos != npos) {
    const double value = text.substr(0, inchPos).AsDouble(0.0);
    return target.IsMmMode() ? value * kMmPerInch : value;
  }
  return text.AsDouble(-1.0);
}

int KCC_MmInch::ConvertStringWithUnitAsInt(const KCString& text, const KCC_MmInch& target) noexcept {
  // Positions and npos are both compared at 32 bits here, so all three branches are reachable.
  const std::uint32_t mmPos = static_cast<std::uint32_t>(text.Find(KCString("MM"), 0));
  const std::uint32_t inchPos = static_cast<std::uint32_t>(text.Find(KCString("INCH"), 0));
  const std::uint32_t npos32 = static_cast<std::uint32_t>(KCString::npos);
  if (mmPos != npos32) {
    const int value = text.substr(0, mmPos).AsInt(0, false);
    return target.IsInchMode() ? TruncateToIntSaturated(value / kMmPerInch) : value;
  }
  if (inchPos != npos32) {
    const int value = text.substr(0, inchPos).AsInt(0, false);
    return target.IsMmMode() ? TruncateToIntSaturated(value * kMmPerInch) : value;
  }
  return text.AsInt(-1, false);
}

KCString KCC_MmInch::CreateStringWithUnit(int value, const KCC_MmInch& unit) {
  return KCString(value, false) + unit.WriteToString(true);
}

KCString KCC_MmInch::CreateStringWithUnit(double value, int digits, const KCC_MmInch& unit) {
  return KCString(value, digits, false) + unit.WriteToString(true);
}

// ---------------------------------------------------------------------------------------------------------
// KCC_MmInch_Rounding

double KCC_MmInch_Rounding::GetPosNegFactor(double value) const noexcept {
  return value < kNegativeThreshold ? -1.0 : 1.0;
}

double KCC_MmInch_Rounding::Round(double value, int digits) const noexcept {
  const double factor = GetPosNegFactor(value);
  if (m_unit.IsUndef())
    return factor * value;  // no digits, but the magnitude of a negative value
  if (digits == 0)
    return TruncateToInt32(factor * value + 0.5) * factor;
  const double scale = std::pow(10.0, digits);
  const double steps = TruncateToInt32(factor * value * scale + 0.5);
  return factor * (steps / scale);
}

double KCC_MmInch_Rounding::RoundAxis(double value) const noexcept {
  return Round(value, DigitsBehindAxis());
}
double KCC_MmInch_Rounding::RoundDimension(double value) const noexcept {
  return Round(value, DigitsBehindDimension());
}
double KCC_MmInch_Rounding::RoundThickness(double value) const noexcept {
  return Round(value, DigitsBehindThickness());
}
double KCC_MmInch_Rounding::RoundWeight(double value) const noexcept {
  return Round(value, DigitsBehindWeight());
}
double KCC_MmInch_Rounding::RoundSpecificWeight(double value) const noexcept {
  return Round(value, DigitsBehindSpecificWeight());
}

namespace {
int DigitsFor(const KCC_MmInch& unit, int mmDigits, int inchDigits) noexcept {
  if (unit.IsMmMode())
    return mmDigits;
  if (unit.IsInchMode())
    return inchDigits;
  return kUndefDigits;
}
}  // namespace

int KCC_MmInch_Rounding::DigitsBehindAxis() const noexcept {
  return DigitsFor(m_unit, 3, 4);
}
int KCC_MmInch_Rounding::DigitsBehindDimension() const noexcept {
  return DigitsFor(m_unit, 1, 3);
}
int KCC_MmInch_Rounding::DigitsBehindThickness() const noexcept {
  return DigitsFor(m_unit, 2, 4);
}
int KCC_MmInch_Rounding::DigitsBehindWeight() const noexcept {
  return DigitsFor(m_unit, 1, 0);
}
int KCC_MmInch_Rounding::DigitsBehindSpecificWeight() const noexcept {
  return DigitsFor(m_unit, 1, 3);
}

// ---------------------------------------------------------------------------------------------------------
// KCC_MmInch_Format

KCString KCC_MmInch_Format::Format(double value, int mmDigits, int inchDigits) const {
  if (m_unit.IsMmMode())
    return KCString(value, mmDigits, false);
  if (m_unit.IsInchMode())
    return KCString(value, inchDigits, false);
  return FormatLikePrintfF(value);
}

KCString KCC_MmInch_Format::FormatAxisPos(double value) const {
  return Format(value, 3, 4);
}
KCString KCC_MmInch_Format::FormatDimension(double value) const {
  return Format(value, 1, 3);
}
KCString KCC_MmInch_Format::FormatThickness(double value) const {
  return Format(value, 2, 4);
}
KCString KCC_MmInch_Format::FormatWeight(double value) const {
  if (m_unit.IsInchMode()) {
    // Whole pounds, truncated toward zero: 12.9 gives "12".
    const double whole = TruncateToInt32(value);
    if (whole >= std::numeric_limits<int>::min() && whole <= std::numeric_limits<int>::max())
      return KCString(static_cast<int>(whole), false);
    return KCString(whole, 0, false);
  }
  return Format(value, 1, 0);
}
KCString KCC_MmInch_Format::FormatSpecWeight(double value) const {
  return Format(value, 1, 3);
}

// Definitions of the class's constants. With them the Windows DLL exports the constants, so that a program
// that takes one by reference or address links against the DLL's copy.
constexpr double KCC_MmInch::kMmPerInch;
