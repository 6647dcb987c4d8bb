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

#include "NckitCommand.h"
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

void PrintHelp(std::ostream& out) {
  out << "usage: nckit units VALUE --from mm|inch --to mm|inch "
         "[--quantity axis|dimension|thickness|weight|specweight]\n"
         "Converts VALUE (lengths only; weights keep their value), rounds it half away from zero and writes\n"
         "it with the digits of the quantity in the target unit (default quantity: axis). A negative VALUE\n"
         "may be given as it is (-5) or after '--'. --help (-h) shows this text.\n";
}

int Usage(std::ostream& err, const std::string& problem) {
  err << "nckit units: " << problem << " (try 'nckit units --help')\n";
  return kNckitUsage;
}

int RunUnits(const NckitArgs& args, std::ostream& out, std::ostream& err) {
  bool haveValue = false;
  double value = 0.0;
  std::string valueText;
  KCC_MmInch from;
  KCC_MmInch to;
  Quantity quantity = Quantity::kAxis;
  bool optionsEnded = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    std::string arg = args[i];
    if (!optionsEnded && (arg == "--help" || arg == "-h")) {
      PrintHelp(out);
      return kNckitOk;
    }
    if (!optionsEnded && arg == "--") {
      optionsEnded = true;
      continue;
    }
    std::string option;
    std::string optionValue;
    bool isOption = false;
    if (!optionsEnded && arg.rfind("--", 0) == 0 && arg.size() > 2) {
      isOption = true;
      const std::size_t eq = arg.find('=');
      option = arg.substr(0, eq);
      if (option != "--from" && option != "--to" && option != "--quantity")
        return Usage(err, "unknown option '" + option + "'");
      if (eq != std::string::npos) {
        optionValue = arg.substr(eq + 1);
      } else {
        if (i + 1 >= args.size())
          return Usage(err, "missing value after " + option);
        optionValue = args[++i];
      }
    }
    if (!isOption) {
      // A value (negative values start with '-').
      const KCString text(arg);
      const double parsed = text.AsDoubleStrict(std::numeric_limits<double>::quiet_NaN());
      if (haveValue)
        return Usage(err, "more than one value: '" + arg + "'");
      if (std::isnan(parsed))
        return Usage(err, "not a number: '" + arg + "'");
      if (!std::isfinite(parsed)) {
        err << "nckit units: value '" << arg << "' is out of range\n";
        return kNckitUsage;
      }
      value = parsed;
      valueText = arg;
      haveValue = true;
      continue;
    }
    if (option == "--from") {
      if (!ParseUnit(optionValue, from))
        return Usage(err, "unknown unit '" + optionValue + "' (mm or inch)");
    } else if (option == "--to") {
      if (!ParseUnit(optionValue, to))
        return Usage(err, "unknown unit '" + optionValue + "' (mm or inch)");
    } else {
      if (!ParseQuantity(optionValue, quantity))
        return Usage(err, "unknown quantity '" + optionValue + "'");
    }
  }
  if (!haveValue)
    return Usage(err, "missing value");
  if (from.IsUndef())
    return Usage(err, "missing --from");
  if (to.IsUndef())
    return Usage(err, "missing --to");

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
    err << "nckit units: value '" << valueText << "' is out of range: at most " << limit << ' '
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
  out << text << '\n';
  return kNckitOk;
}

}  // namespace

NCKIT_COMMAND(units, "convert, round and format a value in mm or inch", RunUnits);
