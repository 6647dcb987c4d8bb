// SPDX-License-Identifier: MIT
// example_typed_values: evaluate what a user typed into numeric fields, without message boxes, and tell the
// user what was wrong.
//
//   example_typed_values [expression...]
//
// A KCC_MessageKeeper takes the evaluator's messages silently and keeps them; after a failure its last
// message says why. Texts that would make the evaluator loop for ever (two items without an operator, such as
// "2 3") are refused first with HasEndlessEvaluation.
#include <iostream>
#include <string>
#include <vector>

#include "ncappkit/foundation/KCC_MessageKeeper.h"
#include "ncappkit/mathexpr/KCC_MathExpression.h"

int main(int argc, char** argv) {
  std::vector<std::string> inputs(argv + 1, argv + argc);
  // "10-2+3" is 5: all '+' are applied before any '-'. In "12,5" the evaluator skips the comma, which leaves
  // two numbers without an operator between them.
  if (inputs.empty())
    inputs = {"2*(3+4)", "sqrt(16)+Cos[0]", "10-2+3", "2*-3", "2 3", "12,5"};

  KCC_MessageKeeper keeper;
  KCC_MathExpression expression(keeper);
  for (const std::string& input : inputs) {
    keeper.ClearKept();
    std::cout << "\"" << input << "\": ";
    double value = 0.0;
    if (!expression.ParseMathExpression(input)) {
      std::cout << "not an expression\n";
      continue;
    }
    if (expression.HasEndlessEvaluation()) {
      std::cout << "an operator is missing between two values\n";
      continue;
    }
    if (!expression.DoMathExpression(value)) {
      std::cout << "failed: " << keeper.GetLastMessage() << '\n';
      continue;
    }
    std::cout << KCString(value, -1, false) << '\n';
  }
  return 0;
}
