// SPDX-License-Identifier: MIT
// Parsing, evaluating and reporting typed-in expressions.
#include <gtest/gtest.h>

#include <cmath>
#include <iterator>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "ncappkit/foundation/KCC_MessageReporter.h"
#include "ncappkit/mathexpr/KCC_MathExpression.h"
#include "support/RecordingReporter.h"
#include "support/TestData.h"

namespace {

constexpr double kNotWritten = -12345.0;

// A row of a TEST_P table of expression texts.
struct TextRow {
  const char* name;
  const char* text;
};

// Parses and evaluates `text`; `value` keeps kNotWritten unless the evaluation succeeds.
struct Outcome {
  bool parsed = false;
  bool evaluated = false;
  double value = kNotWritten;
};

Outcome ParseAndEvaluate(const std::string& text, KCC_MessageReporter& reporter) {
  Outcome outcome;
  KCC_MathExpression expr(reporter);
  outcome.parsed = expr.ParseMathExpression(text);
  if (outcome.parsed)
    outcome.evaluated = expr.DoMathExpression(outcome.value);
  return outcome;
}

double ValueOf(const std::string& text) {
  KCC_MessageNone quiet;
  const Outcome outcome = ParseAndEvaluate(text, quiet);
  EXPECT_TRUE(outcome.parsed) << text;
  EXPECT_TRUE(outcome.evaluated) << text;
  return outcome.value;
}

// The messages handed to the reporter, in order.
std::vector<std::string> Messages(const RecordingReporter& reporter) {
  std::vector<std::string> messages;
  for (const RecordingReporter::Call& call : reporter.Calls())
    messages.push_back(call.text.str());
  return messages;
}

bool OnlySetMessageCalls(const RecordingReporter& reporter) {
  for (const RecordingReporter::Call& call : reporter.Calls()) {
    if (call.op != RecordingReporter::Op::SetMessage)
      return false;
  }
  return true;
}

// A reporter that stops an evaluation after a number of messages by throwing, so a test can watch a loop
// that would otherwise never end.
class StoppingReporter : public RecordingReporter {
 public:
  struct Stop {};
  explicit StoppingReporter(int limit) : m_limit(limit) {}
  void SetMessage(const KCString& message) override {
    RecordingReporter::SetMessage(message);
    if (static_cast<int>(Calls().size()) >= m_limit)
      throw Stop{};
  }

 private:
  int m_limit;
};

std::string Repeat(const std::string& piece, int count) {
  std::string text;
  for (int i = 0; i < count; ++i)
    text += piece;
  return text;
}

}  // namespace

// ----- results -----

TEST(KccMathExpression, MultipliesBeforeAdding) {
  EXPECT_DOUBLE_EQ(ValueOf("2+3*4"), 14.0);
}

TEST(KccMathExpression, BracketsComeFirst) {
  EXPECT_DOUBLE_EQ(ValueOf("(2+3)*4"), 20.0);
}

TEST(KccMathExpression, NestedBracketsResolveInnermostFirst) {
  EXPECT_DOUBLE_EQ(ValueOf("2*(3+(4-1))"), 12.0);
}

TEST(KccMathExpression, MultipliesBeforeDividing) {
  EXPECT_DOUBLE_EQ(ValueOf("8/2*2"), 2.0);
}

TEST(KccMathExpression, AddsBeforeSubtracting) {
  EXPECT_DOUBLE_EQ(ValueOf("5-3+1"), 1.0);
}

TEST(KccMathExpression, EqualOperatorsGoLeftToRight) {
  EXPECT_DOUBLE_EQ(ValueOf("2-1-1"), 0.0);
  EXPECT_DOUBLE_EQ(ValueOf("16/4/2"), 2.0);
}

TEST(KccMathExpression, LeadingMinusIsUnaryAfterTheMultiplication) {
  EXPECT_DOUBLE_EQ(ValueOf("-3*2"), -6.0);
}

TEST(KccMathExpression, LeadingPlusIsUnary) {
  EXPECT_DOUBLE_EQ(ValueOf("+4"), 4.0);
}

TEST(KccMathExpression, MinusInsideBracketsIsUnary) {
  EXPECT_DOUBLE_EQ(ValueOf("2*(-3)"), -6.0);
}

TEST(KccMathExpression, FunctionsApplyToTheFollowingBracket) {
  EXPECT_DOUBLE_EQ(ValueOf("sqrt(16)+Cos[0]"), 5.0);
  EXPECT_DOUBLE_EQ(ValueOf("SQRT(16)"), 4.0);
  EXPECT_DOUBLE_EQ(ValueOf("sin[0]"), 0.0);
}

TEST(KccMathExpression, FunctionsTakeRadians) {
  EXPECT_NEAR(ValueOf("SIN(1.5707963267949)"), 1.0, 1e-12);
  EXPECT_NEAR(ValueOf("tan(0.7853981633974483)"), 1.0, 1e-12);
  EXPECT_NEAR(ValueOf("cos(3.141592653589793)"), -1.0, 1e-12);
}

TEST(KccMathExpression, FunctionOfAnExpressionInBrackets) {
  EXPECT_DOUBLE_EQ(ValueOf("SQRT(9+16)*2"), 10.0);
  EXPECT_DOUBLE_EQ(ValueOf("sqrt(sqrt(81))"), 3.0);
}

TEST(KccMathExpression, SquareRootOfNegativeIsNanWithoutMessage) {
  RecordingReporter reporter;
  const Outcome outcome = ParseAndEvaluate("SQRT(0-4)", reporter);
  EXPECT_TRUE(outcome.evaluated);
  EXPECT_TRUE(std::isnan(outcome.value));
  for (const std::string& message : Messages(reporter))
    EXPECT_EQ(message.find("Apply"), std::string::npos) << message;
}

TEST(KccMathExpression, DivisionByZeroGivesInfinity) {
  KCC_MessageNone quiet;
  const Outcome outcome = ParseAndEvaluate("1/0", quiet);
  EXPECT_TRUE(outcome.evaluated);
  EXPECT_EQ(outcome.value, std::numeric_limits<double>::infinity());
}

TEST(KccMathExpression, BothBracketStylesAreOneKind) {
  EXPECT_DOUBLE_EQ(ValueOf("(2+3]"), 5.0);
  EXPECT_DOUBLE_EQ(ValueOf("[2+3)*[1+1]"), 10.0);
}

TEST(KccMathExpression, SingleNumberIsItsOwnValue) {
  EXPECT_DOUBLE_EQ(ValueOf("42"), 42.0);
  EXPECT_DOUBLE_EQ(ValueOf("(7)"), 7.0);
}

TEST(KccMathExpression, NumbersStopAtTheSecondPoint) {
  KCC_MessageNone quiet;
  KCC_MathExpression expr(quiet);
  ASSERT_TRUE(expr.ParseMathExpression("1.2.3"));
  ASSERT_EQ(expr.GetItemList().size(), 1u);
  EXPECT_DOUBLE_EQ(expr.GetItemList().front().GetOperand(), 1.2);
}

TEST(KccMathExpression, LonePointIsZero) {
  EXPECT_DOUBLE_EQ(ValueOf("."), 0.0);
  EXPECT_DOUBLE_EQ(ValueOf(".5+5."), 5.5);
}

TEST(KccMathExpression, OtherCharactersAreSkipped) {
  EXPECT_DOUBLE_EQ(ValueOf("=2+%3"), 5.0);
  EXPECT_DOUBLE_EQ(ValueOf("\t2 *\r\n 3 "), 6.0);
}

TEST(KccMathExpression, VeryLongNumberIsInfinity) {
  EXPECT_EQ(ValueOf(std::string(100000, '9')), std::numeric_limits<double>::infinity());
}

TEST(KccMathExpression, VeryLongFractionIsZero) {
  EXPECT_EQ(ValueOf("0." + std::string(1000, '0') + "1"), 0.0);
}

// ----- failures -----

TEST(KccMathExpression, MultiplyingByANegativeNumberFails) {
  RecordingReporter reporter;
  const Outcome outcome = ParseAndEvaluate("2*-3", reporter);
  EXPECT_TRUE(outcome.parsed);
  EXPECT_FALSE(outcome.evaluated);
  EXPECT_EQ(outcome.value, kNotWritten);
  EXPECT_EQ(reporter.Message(), "Apply operator : right item is not an operand");
}

TEST(KccMathExpression, MissingCloseBracketIsAMismatch) {
  RecordingReporter reporter;
  const Outcome outcome = ParseAndEvaluate("((1+2)", reporter);
  EXPECT_FALSE(outcome.evaluated);
  EXPECT_EQ(outcome.value, kNotWritten);
  EXPECT_EQ(reporter.Log(), "SetMessage(Open/Close brackets mismatch !)");
}

TEST(KccMathExpression, CrossedBracketsFailWithoutMessage) {
  RecordingReporter reporter;
  const Outcome outcome = ParseAndEvaluate(")1+2(", reporter);
  EXPECT_TRUE(outcome.parsed);
  EXPECT_FALSE(outcome.evaluated);
  EXPECT_TRUE(reporter.Calls().empty());
}

TEST(KccMathExpression, EmptyBracketPairFails) {
  RecordingReporter reporter;
  const Outcome outcome = ParseAndEvaluate("()", reporter);
  EXPECT_TRUE(outcome.parsed);
  EXPECT_FALSE(outcome.evaluated);
  EXPECT_EQ(reporter.Message(), "Result SubList\n\n");
}

TEST(KccMathExpression, EmptyTextDoesNotParse) {
  KCC_MessageNone quiet;
  KCC_MathExpression expr(quiet);
  EXPECT_FALSE(expr.ParseMathExpression(""));
  EXPECT_TRUE(expr.GetItemList().empty());
}

TEST(KccMathExpression, BlanksAndSkippedCharactersDoNotParse) {
  KCC_MessageNone quiet;
  KCC_MathExpression expr(quiet);
  EXPECT_FALSE(expr.ParseMathExpression("   \t "));
  EXPECT_FALSE(expr.ParseMathExpression(",;=%"));
}

TEST(KccMathExpression, UnknownFunctionStopsParsingWithoutMessage) {
  RecordingReporter reporter;
  KCC_MathExpression expr(reporter);
  EXPECT_FALSE(expr.ParseMathExpression("LOG(2)"));
  EXPECT_TRUE(expr.GetItemList().empty());
  EXPECT_TRUE(reporter.Calls().empty());
}

TEST(KccMathExpression, UnknownNameKeepsTheItemsBeforeIt) {
  KCC_MessageNone quiet;
  KCC_MathExpression expr(quiet);
  EXPECT_FALSE(expr.ParseMathExpression("[1.50 + x2]"));
  const CExpressionItemList& list = expr.GetItemList();
  ASSERT_EQ(list.size(), 3u);
  auto it = list.begin();
  EXPECT_TRUE(it->IsOpenBracket());
  ++it;
  EXPECT_TRUE(it->IsOperand());
  EXPECT_DOUBLE_EQ(it->GetOperand(), 1.5);
  ++it;
  EXPECT_TRUE(it->CheckOperator('+'));
  EXPECT_EQ(expr.ToString(), "(1.5+");
}

TEST(KccMathExpression, ParsingAgainStartsFromAnEmptyList) {
  KCC_MessageNone quiet;
  KCC_MathExpression expr(quiet);
  ASSERT_TRUE(expr.ParseMathExpression("1+2"));
  EXPECT_FALSE(expr.ParseMathExpression("   "));
  EXPECT_TRUE(expr.GetItemList().empty());
}

namespace {

const TextRow kLoneOperators[] = {{"plus", "+"}, {"minus", "-"}, {"times", "*"}, {"divided_by", "/"}};

class KccMathExpressionLoneOperator : public ::testing::TestWithParam<TextRow> {};

}  // namespace

TEST_P(KccMathExpressionLoneOperator, Fails) {
  RecordingReporter reporter;
  const Outcome outcome = ParseAndEvaluate(GetParam().text, reporter);
  EXPECT_TRUE(outcome.parsed);
  EXPECT_FALSE(outcome.evaluated);
  EXPECT_TRUE(reporter.Calls().empty());  // a one-item list is taken as it stands
}

INSTANTIATE_TEST_SUITE_P(Operators, KccMathExpressionLoneOperator, ::testing::ValuesIn(kLoneOperators),
                         RowName());

TEST(KccMathExpression, OperatorWithoutRightOperandFails) {
  RecordingReporter reporter;
  EXPECT_FALSE(ParseAndEvaluate("2+", reporter).evaluated);
  EXPECT_EQ(reporter.Message(), "Apply operator : right item is not an operand");
}

TEST(KccMathExpression, OperatorWithoutLeftOperandFails) {
  RecordingReporter reporter;
  EXPECT_FALSE(ParseAndEvaluate("+*3", reporter).evaluated);
  EXPECT_EQ(reporter.Message(), "Apply operator : left item is not an operand");
}

TEST(KccMathExpression, UnaryMultiplicationIsNotSupported) {
  RecordingReporter reporter;
  EXPECT_FALSE(ParseAndEvaluate("*3", reporter).evaluated);
  EXPECT_EQ(reporter.Message(), "Apply operator : operator not supported");
}

TEST(KccMathExpression, FunctionWithoutNameIsNotSupported) {
  RecordingReporter reporter;
  KCC_MathExpression expr(reporter);
  expr.SetFunction(CExpressionItem::eFuncNone);
  expr.SetOpenBracket();
  expr.AddOperand(2.0);
  expr.SetCloseBracket();
  double value = kNotWritten;
  EXPECT_FALSE(expr.DoMathExpression(value));
  EXPECT_EQ(value, kNotWritten);
  EXPECT_EQ(reporter.Message(), "Apply function : function not supported");
}

TEST(KccMathExpression, EmptyListDoesNotEvaluate) {
  RecordingReporter reporter;
  KCC_MathExpression expr(reporter);
  double value = kNotWritten;
  EXPECT_FALSE(expr.DoMathExpression(value));
  EXPECT_EQ(value, kNotWritten);
  EXPECT_TRUE(reporter.Calls().empty());
}

// ----- lists that never finish -----

TEST(KccMathExpression, TwoOperandsWithoutOperatorNeverFinish) {
  StoppingReporter reporter(1000);
  KCC_MathExpression expr(reporter);
  ASSERT_TRUE(expr.ParseMathExpression("2 3"));
  double value = kNotWritten;
  EXPECT_THROW(expr.DoMathExpression(value), StoppingReporter::Stop);
  ASSERT_EQ(reporter.Calls().size(), 1000u);
  for (const std::string& message : Messages(reporter))
    ASSERT_EQ(message, "SubList\n\n[Operand]  : 2\n[Operand]  : 3\n");
  EXPECT_EQ(value, kNotWritten);
}

namespace {

const TextRow kEndlessLists[] = {
    {"two_numbers_side_by_side", "2 3"},
    {"function_without_brackets", "SQRT 4"},
    {"function_before_a_sum_without_brackets", "sin 2+3"},
    {"number_before_brackets", "2(3)"},
    {"brackets_side_by_side", "(1)(2)"},
    {"decimal_comma", "2,5"},
    {"numbers_side_by_side_in_brackets", "1+(2 3)"},
    {"number_after_a_function", "sqrt(2)3"},
};

const TextRow kFinishingLists[] = {
    {"sum_and_product", "2+3*4"},
    {"unclosed_bracket", "((1+2)"},
    {"brackets_the_wrong_way_round", ")1+2("},
    {"minus_after_an_operator", "2*-3"},
    {"empty_brackets", "()"},
    {"lone_plus", "+"},
    {"functions_with_both_bracket_kinds", "sqrt(16)+Cos[0]"},
    {"function_name_alone", "SQRT"},
    {"leading_minus", "-3*2"},
};

class KccMathExpressionEndless : public ::testing::TestWithParam<TextRow> {};
class KccMathExpressionFinishing : public ::testing::TestWithParam<TextRow> {};

}  // namespace

TEST_P(KccMathExpressionEndless, ProbeFindsTheListNeverFinishes) {
  KCC_MessageNone quiet;
  KCC_MathExpression expr(quiet);
  ASSERT_TRUE(expr.ParseMathExpression(GetParam().text));
  EXPECT_TRUE(expr.HasEndlessEvaluation());
}

INSTANTIATE_TEST_SUITE_P(Lists, KccMathExpressionEndless, ::testing::ValuesIn(kEndlessLists), RowName());

TEST_P(KccMathExpressionFinishing, ProbePassesTheList) {
  KCC_MessageNone quiet;
  KCC_MathExpression expr(quiet);
  ASSERT_TRUE(expr.ParseMathExpression(GetParam().text));
  EXPECT_FALSE(expr.HasEndlessEvaluation());
}

INSTANTIATE_TEST_SUITE_P(Lists, KccMathExpressionFinishing, ::testing::ValuesIn(kFinishingLists), RowName());

TEST(KccMathExpression, ProbeReportsNothingAndKeepsTheList) {
  RecordingReporter reporter;
  KCC_MathExpression expr(reporter);
  ASSERT_TRUE(expr.ParseMathExpression("(2+3)*4"));
  EXPECT_FALSE(expr.HasEndlessEvaluation());
  EXPECT_TRUE(reporter.Calls().empty());
  EXPECT_EQ(expr.ToString(), "(2+3)*4");
}

TEST(KccMathExpression, OperatorOfAnotherCharacterNeverFinishes) {
  KCC_MessageNone quiet;
  KCC_MathExpression expr(quiet);
  expr.AddOperand(2.0);
  expr.AddOperator('^');
  expr.AddOperand(3.0);
  EXPECT_TRUE(expr.HasEndlessEvaluation());
}

// ----- reporting -----

TEST(KccMathExpression, ReportsEveryIntermediateList) {
  RecordingReporter reporter;
  ASSERT_TRUE(ParseAndEvaluate("-3*2", reporter).evaluated);
  EXPECT_TRUE(OnlySetMessageCalls(reporter));
  const std::vector<std::string> expected = {
      "SubList\n\n[Operator] : -\n[Operand]  : 3\n[Operator] : *\n[Operand]  : 2\n",
      "SubList\n\n[Operator] : -\n[Operand]  : 6\n",
      "Result SubList\n\n[Operand]  : -6\n",
  };
  EXPECT_EQ(Messages(reporter), expected);
}

TEST(KccMathExpression, ReportsBracketRemovalAndFunctions) {
  RecordingReporter reporter;
  ASSERT_TRUE(ParseAndEvaluate("SQRT(9+16)*2", reporter).evaluated);
  EXPECT_TRUE(OnlySetMessageCalls(reporter));
  const std::vector<std::string> expected = {
      "SubList\n\n[Operand]  : 9\n[Operator] : +\n[Operand]  : 16\n",
      "Result SubList\n\n[Operand]  : 25\n",
      "Before brackets removal\n\n[Open Bracket]\n[Operand]  : 9\n[Operator] : +\n[Operand]  : 16\n"
      "[Close Bracket]\n[Operator] : *\n[Operand]  : 2\n",
      "After brackets removal\n\n[Operand]  : 25\n[Operator] : *\n[Operand]  : 2\n",
      "After Function\n\n[Operand]  : 5\n[Operator] : *\n[Operand]  : 2\n",
      "SubList\n\n[Operand]  : 5\n[Operator] : *\n[Operand]  : 2\n",
      "Result SubList\n\n[Operand]  : 10\n",
  };
  EXPECT_EQ(Messages(reporter), expected);
}

TEST(KccMathExpression, ReporterEndsWithTheLastListShown) {
  RecordingReporter reporter;
  ASSERT_TRUE(ParseAndEvaluate("2+3*4", reporter).evaluated);
  EXPECT_EQ(reporter.Message(), "Result SubList\n\n[Operand]  : 14\n");
}

namespace {

struct NumberRow {
  const char* name;
  double value;
};

const NumberRow kReportedNumbers[] = {
    {"a_tenth", 0.1},
    {"negative_zero", -0.0},
    {"two_and_a_half", 2.5},
    {"ten_to_the_22", 1e22},
    {"eighteen_digit_integer", 123456789012345678.0},
    {"above_two_to_the_53", 9007199254740993.0},
    {"ten_to_the_minus_7", 1e-7},
    {"minus_ten_to_the_300", -1e300},
    {"one_third", 1.0 / 3},
    {"seven", 7.0},
    {"minus_forty_two", -42.0},
    {"not_a_number", std::numeric_limits<double>::quiet_NaN()},
    {"infinity", 1e308 * 10},
    {"minus_infinity", -1e308 * 10},
};

class KccMathExpressionReportedNumber : public ::testing::TestWithParam<NumberRow> {};

}  // namespace

TEST_P(KccMathExpressionReportedNumber, UsesTheShortestText) {
  const double v = GetParam().value;
  RecordingReporter reporter;
  KCC_MathExpression expr(reporter);
  expr.AddOperand(v);
  expr.AddOperator('+');
  double result = 0.0;
  EXPECT_FALSE(expr.DoMathExpression(result));
  ASSERT_FALSE(reporter.Calls().empty());
  EXPECT_EQ(reporter.Calls().front().text,
            KCString("SubList\n\n[Operand]  : ") + KCString(v, -1, false) + KCString("\n[Operator] : +\n"));
}

INSTANTIATE_TEST_SUITE_P(Numbers, KccMathExpressionReportedNumber, ::testing::ValuesIn(kReportedNumbers),
                         RowName());

// ----- list building, text form, copies -----

TEST(KccMathExpression, EvaluationLeavesTheSingleResult) {
  KCC_MessageNone quiet;
  KCC_MathExpression expr(quiet);
  ASSERT_TRUE(expr.ParseMathExpression("(2+3)*4"));
  double value = 0.0;
  ASSERT_TRUE(expr.DoMathExpression(value));
  ASSERT_EQ(expr.GetItemList().size(), 1u);
  EXPECT_DOUBLE_EQ(expr.GetItemList().front().GetOperand(), 20.0);
  double again = 0.0;
  EXPECT_TRUE(expr.DoMathExpression(again));
  EXPECT_DOUBLE_EQ(again, 20.0);
}

TEST(KccMathExpression, BuiltListEvaluates) {
  KCC_MessageNone quiet;
  KCC_MathExpression expr(quiet);
  expr.SetFunction(CExpressionItem::eFuncSqrt);
  expr.SetOpenBracket();
  expr.AddOperand(2.0);
  expr.AddOperator('*');
  expr.AddOperand(8.0);
  expr.SetCloseBracket();
  EXPECT_EQ(expr.ToString(), "SQRT(2*8)");
  double value = 0.0;
  ASSERT_TRUE(expr.DoMathExpression(value));
  EXPECT_DOUBLE_EQ(value, 4.0);
}

TEST(KccMathExpression, ParsedItemsEqualTheSameItemsBuiltOneByOne) {
  KCC_MessageNone quiet;
  KCC_MathExpression built(quiet);
  built.AddOperand(2.0);
  built.AddOperator('*');
  built.SetOpenBracket();
  built.AddOperand(3.0);
  built.SetCloseBracket();
  KCC_MathExpression parsed(quiet);
  ASSERT_TRUE(parsed.ParseMathExpression("2*(3)"));
  EXPECT_TRUE(parsed.GetItemList() == built.GetItemList());
}

TEST(KccMathExpression, ParsedItemsThatAreNoOperatorsHaveABlankOperator) {
  KCC_MessageNone quiet;
  KCC_MathExpression expr(quiet);
  ASSERT_TRUE(expr.ParseMathExpression("2-(3)"));
  const CExpressionItemList& list = expr.GetItemList();
  ASSERT_EQ(list.size(), 5u);
  auto it = list.begin();
  std::advance(it, 2);
  EXPECT_TRUE(it->IsOpenBracket());
  EXPECT_EQ(it->GetOperator(), ' ');
  EXPECT_DOUBLE_EQ(it->GetOperand(), 0.0);
  ++it;
  EXPECT_TRUE(it->IsOperand());
  EXPECT_EQ(it->GetOperator(), ' ');
}

TEST(KccMathExpression, ToStringWritesItemsWithoutSeparators) {
  KCC_MessageNone quiet;
  KCC_MathExpression expr(quiet);
  ASSERT_TRUE(expr.ParseMathExpression(" sqrt( 16 ) + Cos[ 0 ] - tan(2.50) / sin(0.125)"));
  EXPECT_EQ(expr.ToString(), "SQRT(16)+COS(0)-TAN(2.5)/SIN(0.125)");
}

TEST(KccMathExpression, ToStringOfEmptyListIsEmpty) {
  KCC_MessageNone quiet;
  const KCC_MathExpression expr(quiet);
  EXPECT_EQ(expr.ToString(), "");
}

TEST(KccMathExpression, ToStringCleansNegativeZero) {
  KCC_MessageNone quiet;
  KCC_MathExpression expr(quiet);
  expr.AddOperand(-0.0);
  EXPECT_EQ(expr.ToString(), "0");
}

TEST(KccMathExpression, CopyKeepsTheListAndTheReporter) {
  RecordingReporter reporter;
  KCC_MathExpression original(reporter);
  ASSERT_TRUE(original.ParseMathExpression("1+2"));
  KCC_MathExpression copy(original);
  double value = 0.0;
  ASSERT_TRUE(copy.DoMathExpression(value));
  EXPECT_DOUBLE_EQ(value, 3.0);
  EXPECT_EQ(reporter.Message(), "Result SubList\n\n[Operand]  : 3\n");
  EXPECT_EQ(original.ToString(), "1+2");
}

TEST(KccMathExpression, AssignmentCopiesTheListButKeepsItsOwnReporter) {
  RecordingReporter first;
  RecordingReporter second;
  KCC_MathExpression a(first);
  KCC_MathExpression b(second);
  ASSERT_TRUE(a.ParseMathExpression("2*5"));
  b = a;
  double value = 0.0;
  ASSERT_TRUE(b.DoMathExpression(value));
  EXPECT_DOUBLE_EQ(value, 10.0);
  EXPECT_TRUE(first.Calls().empty());
  EXPECT_FALSE(second.Calls().empty());
}

// ----- size limits -----

TEST(KccMathExpression, HundredThousandCharacterSumIsTooLong) {
  KCC_MessageNone quiet;
  KCC_MathExpression expr(quiet);
  const std::string text = "1" + Repeat("+1", 49999) + "+";
  ASSERT_EQ(text.size(), 100000u);
  try {
    expr.ParseMathExpression(text);
    FAIL() << "no length_error";
  } catch (const std::length_error& error) {
    EXPECT_STREQ(error.what(), "list too long");
  }
}

TEST(KccMathExpression, TenThousandNestedBracketsAreTooLong) {
  KCC_MessageNone quiet;
  KCC_MathExpression expr(quiet);
  const std::string text = std::string(10000, '(') + "1" + std::string(10000, ')');
  EXPECT_THROW(expr.ParseMathExpression(text), std::length_error);
}

TEST(KccMathExpression, LongestAllowedExpressionParses) {
  KCC_MessageNone quiet;
  KCC_MathExpression expr(quiet);
  const std::string text = "1" + Repeat("+1", static_cast<int>(CExpressionItemList::kMaxItems / 2) - 1) + "+";
  ASSERT_TRUE(expr.ParseMathExpression(text));
  EXPECT_EQ(expr.GetItemList().size(), CExpressionItemList::kMaxItems);
}

TEST(KccMathExpression, DeeplyNestedBracketsWithinTheLimitEvaluate) {
  KCC_MessageNone quiet;
  KCC_MathExpression expr(quiet);
  const std::string text = std::string(1000, '(') + "1+1" + std::string(1000, ')');
  ASSERT_TRUE(expr.ParseMathExpression(text));
  double value = 0.0;
  ASSERT_TRUE(expr.DoMathExpression(value));
  EXPECT_DOUBLE_EQ(value, 2.0);
}

TEST(KccMathExpression, BlanksDoNotCountTowardsTheLimit) {
  EXPECT_DOUBLE_EQ(ValueOf(std::string(50000, ' ') + "2*3" + std::string(50000, ' ')), 6.0);
}
