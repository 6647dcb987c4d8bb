// SPDX-License-Identifier: MIT
// nckit units: convert a value between mm and inch, then round and format it with the library's rules for
// one kind of quantity.
//
//   nckit units 25.4 --from mm --to inch                  -> 1.0000
//   nckit units 1.23456 --from mm --to mm                 -> 1.235
//   nckit units 12.5 --from mm --to inch --quantity weight -> 13
//
// Lengths (axis, dimension, thickness) are converted with KCC_MmInch (mm to inch keeps four decimals as the
// library does); weights and specific weights are not lengths and keep their value, only the target unit's
// digits apply. The converted value is rounded (half away from zero) and then written with the digits of
// the quantity in the target unit. A value whose rounding steps do not fit in 32 bits is refused.
#include <algorithm>
#include <cmath>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

#include "NckitCommand.h"
#include "NckitCommandLine.h"
#include "ncappkit/foundation/KCString.h"
#include "ncappkit/units/KCC_MmInch.h"

namespace {

enum class Quantity { kAxis, kDimension, kThickness, kWeight, kSpecWeight };

bool ParseUnit(const std::string& text, KCC_MmInch& unit) {
  const KCString name(text);
  if (name.EqualsNoCase("mm")) {
    unit.SetMmMode();
    return true;
  }
  if (name.EqualsNoCase("inch") || name.EqualsNoCase("in")) {
    unit.SetInchMode();
    return true;
  }
  return false;
}

bool ParseQuantity(const std::string& text, Quantity& quantity) {
  const struct {
    const char* name;
    Quantity quantity;
  } names[] = {{"axis", Quantity::kAxis},
               {"dimension", Quantity::kDimension},
               {"thickness", Quantity::kThickness},
               {"weight", Quantity::kWeight},
               {"specweight", Quantity::kSpecWeight}};
  for (const auto& n : names) {
    if (KCString(text).EqualsNoCase(n.name)) {
      quantity = n.quantity;
      return true;
    }
  }
  return false;
}

// "-0.000" -> "0.000": a value that rounds to zero has no sign.
std::string WithoutNegativeZero(std::string text) {
  if (!text.empty() && text[0] == '-' && text.find_first_of("123456789") == std::string::npos)
    text.erase(0, 1);
  return text;
}

int RunUnits(const NckitArgs& args, std::ostream& out, std::ostream& err) {
  std::vector<std::string> values;
  std::string fromText;
  std::string toText;
  std::string quantityText = "axis";
  NckitCommandLine cl(
      "units",
      "nckit units VALUE --from mm|inch --to mm|inch "
      "[--quantity axis|dimension|thickness|weight|specweight]",
      "Converts VALUE (lengths only; weights keep their value), rounds it half away from zero "
      "and writes\nit with the digits of the quantity in the target unit (default quantity: "
      "axis). A negative VALUE\nmay be given as it is (-5, -.5) or after '--'. A value that "
      "rounds to zero is written without a sign.\n");
  cl.Operands("VALUE", values);
  cl.Option("--from", fromText, "UNIT", "the unit of VALUE: mm or inch (in)");
  cl.Option("--to", toText, "UNIT", "the unit to write: mm or inch (in)");
  cl.Option("--quantity", quantityText, "KIND",
            "axis (default), dimension, thickness, weight or specweight: the digits and\nwhether VALUE is a "
            "length");
  if (const auto stop = cl.Parse(args, out, err))
    return *stop;
  if (values.empty())
    return cl.UsageError("missing value", err);
  if (values.size() > 1)
    return cl.UsageError("more than one value: '" + values[1] + "'", err);
  const std::string& valueText = values[0];
  const double value = KCString(valueText).AsDoubleStrict(std::numeric_limits<double>::quiet_NaN());
  if (std::isnan(value))
    return cl.UsageError("not a number: '" + valueText + "'", err);
  if (!std::isfinite(value)) {
    err << cl.Program() << ": value '" << valueText << "' is out of range\n";
    return kNckitUsage;
  }
  if (!cl.Given("--from"))
    return cl.UsageError("missing --from", err);
  if (!cl.Given("--to"))
    return cl.UsageError("missing --to", err);
  KCC_MmInch from;
  KCC_MmInch to;
  Quantity quantity = Quantity::kAxis;
  if (!ParseUnit(fromText, from))
    return cl.UsageError("unknown unit '" + fromText + "' (mm or inch)", err);
  if (!ParseUnit(toText, to))
    return cl.UsageError("unknown unit '" + toText + "' (mm or inch)", err);
  if (!ParseQuantity(quantityText, quantity))
    return cl.UsageError("unknown quantity '" + quantityText + "'", err);

  const bool isLength =
      quantity == Quantity::kAxis || quantity == Quantity::kDimension || quantity == Quantity::kThickness;
  double converted = value;
  if (isLength && from != to) {
    const KCC_MmInch inch(KCC_MmInch::eMmInchInch);
    const double mm = from.IsInchMode() ? inch.Dim_InchMmConvert(value) : value;
    converted = to.IsInchMode() ? inch.Dim_MmInchConvert(mm) : mm;
  }

  const KCC_MmInch_Rounding round(to);
  const KCC_MmInch_Format format(to);
  // The conversion to inch and the rounding scale the value to whole steps held in a 32-bit integer; a
  // value with more steps is outside the range they support, so it is refused instead of printed wrong.
  int digits = 0;
  switch (quantity) {
    case Quantity::kAxis:
      digits = round.DigitsBehindAxis();
      break;
    case Quantity::kDimension:
      digits = round.DigitsBehindDimension();
      break;
    case Quantity::kThickness:
      digits = round.DigitsBehindThickness();
      break;
    case Quantity::kWeight:
      digits = round.DigitsBehindWeight();
      break;
    case Quantity::kSpecWeight:
      digits = round.DigitsBehindSpecificWeight();
      break;
  }
  constexpr double kMaxSteps = 2147483647.0;
  const bool convertsToInch = isLength && from != to && to.IsInchMode();
  const int stepDigits = convertsToInch ? std::max(digits, 4) : digits;
  if (!std::isfinite(converted) ||
      std::fabs(converted) * std::pow(10.0, stepDigits) + 0.5 >= kMaxSteps + 1.0) {
    const KCString limit(kMaxSteps / std::pow(10.0, stepDigits), stepDigits, false);
    err << cl.Program() << ": value '" << valueText << "' is out of range: at most " << limit << ' '
        << (to.IsInchMode() ? "inch" : "mm") << " after conversion\n";
    return kNckitUsage;
  }
  double rounded = converted;
  switch (quantity) {
    case Quantity::kAxis:
      rounded = round.RoundAxis(converted);
      break;
    case Quantity::kDimension:
      rounded = round.RoundDimension(converted);
      break;
    case Quantity::kThickness:
      rounded = round.RoundThickness(converted);
      break;
    case Quantity::kWeight:
      rounded = round.RoundWeight(converted);
      break;
    case Quantity::kSpecWeight:
      rounded = round.RoundSpecificWeight(converted);
      break;
  }
  KCString text;
  switch (quantity) {
    case Quantity::kAxis:
      text = format.FormatAxisPos(rounded);
      break;
    case Quantity::kDimension:
      text = format.FormatDimension(rounded);
      break;
    case Quantity::kThickness:
      text = format.FormatThickness(rounded);
      break;
    case Quantity::kWeight:
      text = format.FormatWeight(rounded);
      break;
    case Quantity::kSpecWeight:
      text = format.FormatSpecWeight(rounded);
      break;
  }
  out << WithoutNegativeZero(text.str()) << '\n';
  return kNckitOk;
}

}  // namespace

NCKIT_COMMAND(units, "convert, round and format a value in mm or inch", RunUnits);
