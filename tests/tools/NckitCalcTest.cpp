// SPDX-License-Identifier: MIT
// nckit calc, run as a program.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ncappkit/mathexpr/KCC_MathExpression.h"
#include "support/NckitFixture.h"

namespace {

class NckitCalc : public NckitTest {};

}  // namespace

TEST_F(NckitCalc, PrintsTheValue) {
  const ChildResult r = Run({"calc", "2*(3+(4-1))"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "12\n");
  EXPECT_EQ(r.err, "");
}

struct CalcRow {
  const char* name;
  const char* expression;
  const char* value;
};

class NckitCalcValue : public NckitParamTest<CalcRow> {};

TEST_P(NckitCalcValue, PrintsTheShortestExactForm) {
  const ChildResult r = Run({"calc", GetParam().expression});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, std::string(GetParam().value) + "\n");
}

INSTANTIATE_TEST_SUITE_P(Expressions, NckitCalcValue,
                         ::testing::Values(CalcRow{"Quarter", "1/4", "0.25"},
                                           CalcRow{"Third", "1/3", "0.3333333333333333"},
                                           CalcRow{"FunctionsAndSquareBrackets", "sqrt(16)+Cos[0]", "5"},
                                           CalcRow{"AllMultiplicationsBeforeDivisions", "8/2*2", "2"},
                                           CalcRow{"AllAdditionsBeforeSubtractions", "5-3+1", "1"},
                                           CalcRow{"LeadingMinusBeforeABracket", "-(1+2)", "-3"},
                                           CalcRow{"LeadingMinusBeforeAPoint", "-.5*2", "-1"}),
                         NckitRowName());

TEST_F(NckitCalc, LeadingMinusIsTheExpressionNotAnOption) {
  const ChildResult r = Run({"calc", "-3*2"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "-6\n");
}

TEST_F(NckitCalc, DoubleDashEndsTheOptions) {
  const ChildResult r = Run({"calc", "--", "-3*2"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "-6\n");
}

TEST_F(NckitCalc, JoinsSeveralArguments) {
  EXPECT_EQ(Run({"calc", "2", "+", "3"}).out, "5\n");
}

TEST_F(NckitCalc, DivisionByZeroPrintsInfinity) {
  const ChildResult r = Run({"calc", "1/0"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "inf\n");
}

TEST_F(NckitCalc, EvaluationFaultPrintsTheMessage) {
  const ChildResult r = Run({"calc", "2*-3"});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, "Apply operator : right item is not an operand\n");
}

TEST_F(NckitCalc, UnbalancedBracketsPrintTheMismatch) {
  const ChildResult r = Run({"calc", "((1+2)"});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "Open/Close brackets mismatch !\n");
}

TEST_F(NckitCalc, CrossedBracketsFailClearly) {
  const ChildResult r = Run({"calc", ")1+2("});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "nckit calc: cannot evaluate the expression\n");
}

TEST_F(NckitCalc, EmptyBracketsShowTheLastList) {
  const ChildResult r = Run({"calc", "()"});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "nckit calc: cannot evaluate the expression; last list:\nResult SubList\n\n");
}

TEST_F(NckitCalc, UnknownFunctionIsNamed) {
  const ChildResult r = Run({"calc", "LOG(2)"});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "nckit calc: unknown function 'LOG'\n");
}

struct CalcFailureRow {
  const char* name;
  const char* expression;
  const char* err;
};

class NckitCalcEmpty : public NckitParamTest<CalcFailureRow> {};

TEST_P(NckitCalcEmpty, ExpressionWithoutItemsFails) {
  const ChildResult r = Run({"calc", GetParam().expression});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, GetParam().err);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, NckitCalcEmpty,
    ::testing::Values(CalcFailureRow{"Empty", "", "nckit calc: empty expression\n"},
                      CalcFailureRow{"Blanks", "   ", "nckit calc: empty expression\n"},
                      CalcFailureRow{
                          "OnlySkippedCharacters", ",;",
                          "nckit calc: skipped ',' at column 1\nnckit calc: skipped ';' at column 2\n"
                          "nckit calc: empty expression\n"},
                      CalcFailureRow{"DollarSign", "$",
                                     "nckit calc: skipped '$' at column 1\nnckit calc: empty expression\n"}),
    NckitRowName());

TEST_F(NckitCalc, SkippedCharacterIsNamedAndTheRestIsEvaluated) {
  const ChildResult r = Run({"calc", "2$+3"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "5\n");
  EXPECT_EQ(r.err, "nckit calc: skipped '$' at column 2\n");
}

TEST_F(NckitCalc, SkippedUtf8CharacterIsNamedWholeAndCountsAsOneColumn) {
  const ChildResult r = Run({"calc",
                             "\xE2\x82\xAC"
                             "2+3%"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "5\n");
  EXPECT_EQ(r.err, "nckit calc: skipped '\xE2\x82\xAC' at column 1\nnckit calc: skipped '%' at column 5\n");
}

TEST_F(NckitCalc, SkippedControlCharacterIsShownAsItsCode) {
  const ChildResult r = Run({"calc", "1\x01+1"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.err, "nckit calc: skipped '\\x01' at column 2\n");
}

TEST_F(NckitCalc, MinusAndALetterIsAnOption) {
  const ChildResult r = Run({"calc", "-SQRT(4)"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit calc: unknown option '-SQRT(4)' (try 'nckit calc --help')\n");
}

TEST_F(NckitCalc, MinusAndALetterAfterDoubleDashIsTheExpression) {
  const ChildResult r = Run({"calc", "--", "-SQRT(4)"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "-2\n");
}

TEST_F(NckitCalc, LoneOperatorFails) {
  const ChildResult r = Run({"calc", "*"});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "nckit calc: cannot evaluate the expression\n");
}

struct EndlessRow {
  const char* name;
  const char* expression;
};

class NckitCalcEndless : public NckitParamTest<EndlessRow> {};

TEST_P(NckitCalcEndless, RefusesAListThatWouldNeverFinish) {
  const ChildResult r = Run({"calc", GetParam().expression});
  EXPECT_FALSE(r.timedOut);
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err,
            "nckit calc: an operator is missing between two items; the expression would never finish "
            "evaluating\n");
}

INSTANTIATE_TEST_SUITE_P(Lists, NckitCalcEndless,
                         ::testing::Values(EndlessRow{"TwoNumbers", "2 3"},
                                           EndlessRow{"FunctionWithoutBracket", "SQRT 4"},
                                           EndlessRow{"NumberBeforeABracket", "2(3)"}),
                         NckitRowName());

TEST_F(NckitCalc, HundredThousandCharacterExpressionIsTooLong) {
#if defined(_WIN32)
  // A Windows command line holds at most 32767 characters; 30000 still make far more than 4096 items.
  constexpr std::size_t kLength = 30000;
#else
  constexpr std::size_t kLength = 100000;
#endif
  std::string text = "1";
  while (text.size() < kLength)
    text += "+1";
  text.resize(kLength);
  const ChildResult r = Run({"calc", text});
  EXPECT_FALSE(r.timedOut);
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "nckit calc: list too long (at most " + std::to_string(CExpressionItemList::kMaxItems) +
                       " items)\n");
}

TEST_F(NckitCalc, TenThousandNestedBracketsAreTooLong) {
  const ChildResult r = Run({"calc", std::string(10000, '(') + "1" + std::string(10000, ')')});
  EXPECT_FALSE(r.timedOut);
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "nckit calc: list too long (at most " + std::to_string(CExpressionItemList::kMaxItems) +
                       " items)\n");
}

TEST_F(NckitCalc, MissingExpressionIsAUsageError) {
  const ChildResult r = Run({"calc"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit calc: missing expression (try 'nckit calc --help')\n");
}

TEST_F(NckitCalc, DoubleDashAloneIsAMissingExpression) {
  EXPECT_EQ(Run({"calc", "--"}).exitCode, 2);
}

TEST_F(NckitCalc, HelpDescribesTheCommand) {
  const ChildResult r = Run({"calc", "--help"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.rfind("usage: nckit calc", 0), 0u);
}

TEST_F(NckitCalc, UnknownOptionIsAUsageError) {
  const ChildResult r = Run({"calc", "--precise", "1+2"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, "nckit calc: unknown option '--precise' (try 'nckit calc --help')\n");
}

TEST_F(NckitCalc, ShortHelpOptionShowsTheHelp) {
  const ChildResult r = Run({"calc", "-h"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.rfind("usage: nckit calc", 0), 0u);
  EXPECT_EQ(r.err, "");
}

TEST_F(NckitCalc, HelpAfterTheExpressionShowsTheHelp) {
  const ChildResult r = Run({"calc", "1+2", "--help"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.rfind("usage: nckit calc", 0), 0u);
}

TEST_F(NckitCalc, OptionLikeTextAfterDoubleDashIsTheExpression) {
  const ChildResult r = Run({"calc", "--", "--precise"});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "nckit calc: unknown function 'precise'\n");
}
