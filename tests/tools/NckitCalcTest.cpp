// SPDX-License-Identifier: MIT
// nckit calc, run as a program.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/ChildProcess.h"

namespace {

ChildResult Calc(const std::vector<std::string>& args) {
  std::vector<std::string> argv = {NCKIT_EXE, "calc"};
  argv.insert(argv.end(), args.begin(), args.end());
  return RunChild(argv, 60.0);
}

class NckitCalc : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!CanRunChildren())
      GTEST_SKIP() << "cannot run programs here";
  }
};

}  // namespace

TEST_F(NckitCalc, PrintsTheValue) {
  const ChildResult r = Calc({"2*(3+(4-1))"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "12\n");
  EXPECT_EQ(r.err, "");
}

TEST_F(NckitCalc, PrintsTheShortestExactForm) {
  EXPECT_EQ(Calc({"1/4"}).out, "0.25\n");
  EXPECT_EQ(Calc({"1/3"}).out, "0.3333333333333333\n");
  EXPECT_EQ(Calc({"sqrt(16)+Cos[0]"}).out, "5\n");
}

TEST_F(NckitCalc, UsesTheFixedOperatorPriority) {
  EXPECT_EQ(Calc({"8/2*2"}).out, "2\n");
  EXPECT_EQ(Calc({"5-3+1"}).out, "1\n");
}

TEST_F(NckitCalc, LeadingMinusIsTheExpressionNotAnOption) {
  const ChildResult r = Calc({"-3*2"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "-6\n");
}

TEST_F(NckitCalc, DoubleDashEndsTheOptions) {
  const ChildResult r = Calc({"--", "-3*2"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "-6\n");
}

TEST_F(NckitCalc, JoinsSeveralArguments) {
  EXPECT_EQ(Calc({"2", "+", "3"}).out, "5\n");
}

TEST_F(NckitCalc, DivisionByZeroPrintsInfinity) {
  const ChildResult r = Calc({"1/0"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "inf\n");
}

TEST_F(NckitCalc, EvaluationFaultPrintsTheMessage) {
  const ChildResult r = Calc({"2*-3"});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, "Apply operator : right item is not an operand\n");
}

TEST_F(NckitCalc, UnbalancedBracketsPrintTheMismatch) {
  const ChildResult r = Calc({"((1+2)"});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "Open/Close brackets mismatch !\n");
}

TEST_F(NckitCalc, CrossedBracketsFailClearly) {
  const ChildResult r = Calc({")1+2("});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "nckit calc: cannot evaluate the expression\n");
}

TEST_F(NckitCalc, EmptyBracketsShowTheLastList) {
  const ChildResult r = Calc({"()"});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "nckit calc: cannot evaluate the expression; last list:\nResult SubList\n\n");
}

TEST_F(NckitCalc, UnknownFunctionIsNamed) {
  const ChildResult r = Calc({"LOG(2)"});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "nckit calc: unknown function 'LOG'\n");
}

TEST_F(NckitCalc, EmptyOrBlankExpressionFails) {
  for (const char* text : {"", "   ", ",;"}) {
    SCOPED_TRACE(text);
    const ChildResult r = Calc({text});
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_EQ(r.err, "nckit calc: empty expression\n");
  }
}

TEST_F(NckitCalc, LoneOperatorFails) {
  const ChildResult r = Calc({"*"});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "nckit calc: cannot evaluate the expression\n");
}

TEST_F(NckitCalc, RefusesAListThatWouldNeverFinish) {
  for (const char* text : {"2 3", "SQRT 4", "2(3)"}) {
    SCOPED_TRACE(text);
    const ChildResult r = Calc({text});
    EXPECT_FALSE(r.timedOut);
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_EQ(r.err,
              "nckit calc: an operator is missing between two items; the expression would never finish "
              "evaluating\n");
  }
}

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
  const ChildResult r = Calc({text});
  EXPECT_FALSE(r.timedOut);
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "nckit calc: list too long (at most 4096 items)\n");
}

TEST_F(NckitCalc, TenThousandNestedBracketsAreTooLong) {
  const ChildResult r = Calc({std::string(10000, '(') + "1" + std::string(10000, ')')});
  EXPECT_FALSE(r.timedOut);
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "nckit calc: list too long (at most 4096 items)\n");
}

TEST_F(NckitCalc, MissingExpressionIsAUsageError) {
  EXPECT_EQ(Calc({}).exitCode, 2);
  EXPECT_EQ(Calc({"--"}).exitCode, 2);
}

TEST_F(NckitCalc, HelpDescribesTheCommand) {
  const ChildResult r = Calc({"--help"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.rfind("usage: nckit calc", 0), 0u);
}

TEST_F(NckitCalc, UnknownOptionIsAUsageError) {
  const ChildResult r = Calc({"--precise", "1+2"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, "nckit calc: unknown option '--precise' (try 'nckit calc --help')\n");
}

TEST_F(NckitCalc, ShortHelpOptionShowsTheHelp) {
  const ChildResult r = Calc({"-h"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.rfind("usage: nckit calc", 0), 0u);
  EXPECT_EQ(r.err, "");
}

TEST_F(NckitCalc, HelpAfterTheExpressionShowsTheHelp) {
  const ChildResult r = Calc({"1+2", "--help"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.rfind("usage: nckit calc", 0), 0u);
}

TEST_F(NckitCalc, OptionLikeTextAfterDoubleDashIsTheExpression) {
  const ChildResult r = Calc({"--", "--precise"});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "nckit calc: unknown function 'precise'\n");
}
