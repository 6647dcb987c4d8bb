// SPDX-License-Identifier: MIT
// KCC_MathExpression: evaluator for arithmetic typed by a user into a numeric field.
//
// Understands numbers (digits and a point, no signs or exponents inside a number), the operators * / + -,
// round or square brackets (one kind: "(2+3]" is accepted) and the functions SQRT, SIN, COS and TAN (any
// case, radians), which apply to the bracket that follows them. Every fault and every intermediate list is
// sent to the reporter with SetMessage, so the reporter ends up holding the last list shown or the error.
//
//   KCC_MessageNone quiet;
//   KCC_MathExpression expr(quiet);
//   double value = 0.0;
//   if (expr.ParseMathExpression("sqrt(16)+Cos[0]") && !expr.HasEndlessEvaluation() &&
//       expr.DoMathExpression(value)) {
//     // value == 5.0
//   }
//
// How the list is reduced:
// - brackets are resolved innermost first, left to right; a function in front of a bracket is applied to
//   the bracket's value;
// - a bracket-free list applies its operators by a fixed priority of the characters, all '*' first, then
//   all '/', then all '+', then all '-', each left to right: 8/2*2 gives 2 and 5-3+1 gives 1;
// - an operator that opens a list is unary ('+' or '-'): -3*2 gives -6, while 2*-3 fails;
// - division by zero is not checked (1/0 gives infinity).
//
// DoMathExpression consumes the list: after success it holds the single result operand, after a failure
// whatever was left. A list with two items and no operator between them (2 3, or SQRT 4 without brackets)
// makes DoMathExpression loop for ever, reporting the same list again and again; that is how the evaluator
// behaves. Callers that take text from users check HasEndlessEvaluation() first.
//
// Choices where the behaviour is otherwise open: an empty bracket pair "()" fails (false). Lists hold at
// most CExpressionItemList::kMaxItems items: parsing or building a longer one throws
// std::length_error("list too long").
// See docs/behaviours.md#typed-in-arithmetic.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCC_MessageReporter.h"
#include "ncappkit/foundation/KCString.h"
#include "ncappkit/mathexpr/CExpressionItem.h"

/// Evaluator of arithmetic typed into a numeric field; every step and fault goes to a reporter.
class NCAPPKIT_EXPORT KCC_MathExpression {
 public:
  /// An empty expression that reports to `reporter` (not owned; must outlive this object).
  explicit KCC_MathExpression(KCC_MessageReporter& reporter) noexcept : m_reporter(reporter) {}
  /// A copy of the list that reports to the same reporter.
  KCC_MathExpression(const KCC_MathExpression&) = default;
  /// Copy the list; the reporter stays this object's own.
  KCC_MathExpression& operator=(const KCC_MathExpression& other);
  virtual ~KCC_MathExpression();

  /// Clear the list and fill it from `text`. False for a text that gives no item (empty, only blanks or
  /// skipped characters) and for a name that is no function; the items before that name stay in the list.
  /// Throws std::length_error("list too long") when the text has more items than a list holds.
  bool ParseMathExpression(const KCString& text);

  /// Append an operand.
  void AddOperand(double value);
  /// Append an operator (the character is not checked).
  void AddOperator(char op);
  /// Append an open bracket.
  void SetOpenBracket();
  /// Append a close bracket.
  void SetCloseBracket();
  /// Append a function.
  void SetFunction(CExpressionItem::eFunctionName function);

  /// The list as text without separators: numbers in their shortest form, brackets as "(" and ")",
  /// functions as "SQRT", "SIN", "COS", "TAN"; "" for an empty list.
  KCString ToString() const;

  /// Evaluate and consume the list; `result` is written only on success. False (with a message to the
  /// reporter, or none for an empty list or a close bracket before any open one) on failure. Never returns
  /// for a list that HasEndlessEvaluation() reports.
  bool DoMathExpression(double& result);

  /// True when DoMathExpression on the current list would never return (an operator missing between two
  /// items at some step). Works on a copy and reports nothing; the list is unchanged.
  bool HasEndlessEvaluation() const;

  /// The current list (after parsing, building or evaluating).
  const CExpressionItemList& GetItemList() const noexcept { return m_list; }

 private:
  using iterator = CExpressionItemList::iterator;
  using const_iterator = CExpressionItemList::const_iterator;

  /// The evaluation; with `probe` set nothing is reported, and a step without an operator sets `endless` and
  /// returns false instead of repeating.
  bool Evaluate(double& result, bool probe, bool& endless);
  bool DoCalculateExpression(CExpressionItemList& list, double& result, bool probe, bool& endless);
  bool ApplyOperator(const CExpressionItemList& list, const_iterator op, double& value, bool& unary,
                     bool probe);
  bool ApplyFunction(const CExpressionItemList& list, const_iterator function, double& value, bool probe);
  void ShowList(const char* title, const CExpressionItemList& list) const;
  void Fail(const char* message, bool probe) const;
  static bool IsTokenNumeric(char c) noexcept;
  static bool IsTokenAflaNonNumeric(char c) noexcept;

  CExpressionItemList m_list;
  KCC_MessageReporter& m_reporter;
};
