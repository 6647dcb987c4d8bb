// SPDX-License-Identifier: MIT
// Expression items and the item list with its fixed operator priority.
#include <gtest/gtest.h>

#include <iterator>
#include <stdexcept>
#include <string>

#include "ncappkit/mathexpr/CExpressionItem.h"
#include "support/TestData.h"

namespace {

CExpressionItem Operand(double value) {
  CExpressionItem item;
  item.SetOperand(value);
  return item;
}

CExpressionItem Operator(char op) {
  CExpressionItem item;
  item.SetOperator(op);
  return item;
}

// Builds a list from a compact description: digits are operands, * / + - ^ are operators.
CExpressionItemList ListOf(const std::string& tokens) {
  CExpressionItemList list;
  for (char c : tokens) {
    if (c >= '0' && c <= '9')
      list.push_back(Operand(c - '0'));
    else
      list.push_back(Operator(c));
  }
  return list;
}

int PositionOf(const CExpressionItemList& list, CExpressionItemList::const_iterator it) {
  return static_cast<int>(std::distance(list.begin(), it));
}

}  // namespace

TEST(CExpressionItem, NewItemIsUndefinedWithBlankOperator) {
  const CExpressionItem item;
  EXPECT_EQ(item.GetItemType(), CExpressionItem::eItemUndefined);
  EXPECT_EQ(item.GetOperand(), 0.0);
  EXPECT_EQ(item.GetOperator(), ' ');
  EXPECT_EQ(item.GetFunctionName(), CExpressionItem::eFuncNone);
  EXPECT_FALSE(item.IsOperand() || item.IsOperator() || item.IsOpenBracket() || item.IsCloseBracket() ||
               item.IsFunction());
}

TEST(CExpressionItem, SetOperandSetsValueAndType) {
  CExpressionItem item;
  item.SetOperand(2.5);
  EXPECT_TRUE(item.IsOperand());
  EXPECT_EQ(item.GetItemType(), CExpressionItem::eItemOperand);
  EXPECT_EQ(item.GetOperand(), 2.5);
}

TEST(CExpressionItem, SetOperatorSetsCharacterAndType) {
  CExpressionItem item;
  item.SetOperator('/');
  EXPECT_TRUE(item.IsOperator());
  EXPECT_EQ(item.GetOperator(), '/');
  EXPECT_TRUE(item.CheckOperator('/'));
  EXPECT_FALSE(item.CheckOperator('*'));
}

TEST(CExpressionItem, CheckOperatorIsFalseForOtherKinds) {
  CExpressionItem item;
  item.SetOperator('+');
  item.SetOperand(1.0);  // the character stays, but the item is no operator any more
  EXPECT_EQ(item.GetOperator(), '+');
  EXPECT_FALSE(item.CheckOperator('+'));
}

TEST(CExpressionItem, BracketSettersChangeOnlyTheType) {
  CExpressionItem item;
  item.SetOperand(4.0);
  item.SetOpenBracket();
  EXPECT_TRUE(item.IsOpenBracket());
  EXPECT_EQ(item.GetOperand(), 4.0);
  item.SetCloseBracket();
  EXPECT_TRUE(item.IsCloseBracket());
  item.SetItemType(CExpressionItem::eItemOperand);
  EXPECT_TRUE(item.IsOperand());
  EXPECT_EQ(item.GetOperand(), 4.0);
}

TEST(CExpressionItem, SetFunctionSetsFunctionAndType) {
  CExpressionItem item;
  item.SetFunction(CExpressionItem::eFuncCos);
  EXPECT_TRUE(item.IsFunction());
  EXPECT_EQ(item.GetFunctionName(), CExpressionItem::eFuncCos);
}

struct FunctionNameRow {
  const char* name;
  const char* text;
  CExpressionItem::eFunctionName function;
};

const FunctionNameRow kFunctionNames[] = {
    {"upper_case_sqrt", "SQRT", CExpressionItem::eFuncSqrt},
    {"lower_case_sqrt", "sqrt", CExpressionItem::eFuncSqrt},
    {"capitalised_sin", "Sin", CExpressionItem::eFuncSin},
    {"mixed_case_cos", "cOs", CExpressionItem::eFuncCos},
    {"lower_case_tan", "tan", CExpressionItem::eFuncTan},
};

class CExpressionItemFunctionNames : public ::testing::TestWithParam<FunctionNameRow> {};

TEST_P(CExpressionItemFunctionNames, FunctionNameIsReadInAnyCase) {
  const FunctionNameRow& c = GetParam();
  CExpressionItem item;
  EXPECT_TRUE(CExpressionItem::SetFunctionFromName(c.text, item));
  EXPECT_TRUE(item.IsFunction());
  EXPECT_EQ(item.GetFunctionName(), c.function);
}

INSTANTIATE_TEST_SUITE_P(Names, CExpressionItemFunctionNames, ::testing::ValuesIn(kFunctionNames), RowName());

TEST(CExpressionItem, UnknownFunctionNameLeavesTheItemAlone) {
  CExpressionItem item;
  item.SetOperand(3.0);
  EXPECT_FALSE(CExpressionItem::SetFunctionFromName("LOG", item));
  EXPECT_FALSE(CExpressionItem::SetFunctionFromName("SQR", item));
  EXPECT_FALSE(CExpressionItem::SetFunctionFromName("SQRTX", item));
  EXPECT_FALSE(CExpressionItem::SetFunctionFromName("", item));
  EXPECT_TRUE(item.IsOperand());
  EXPECT_EQ(item.GetOperand(), 3.0);
}

TEST(CExpressionItem, CopiesAllFourFields) {
  CExpressionItem a;
  a.SetOperator('-');
  a.SetOperand(7.0);
  a.SetFunction(CExpressionItem::eFuncTan);
  CExpressionItem b(a);
  CExpressionItem c;
  c = a;
  EXPECT_EQ(b, a);
  EXPECT_EQ(c, a);
  EXPECT_EQ(c.GetOperator(), '-');
  EXPECT_EQ(c.GetOperand(), 7.0);
  EXPECT_EQ(c.GetFunctionName(), CExpressionItem::eFuncTan);
}

TEST(CExpressionItem, EqualityComparesEveryField) {
  EXPECT_EQ(Operand(1.0), Operand(1.0));
  EXPECT_FALSE(Operand(1.0) == Operand(1.0000000001));
  EXPECT_FALSE(Operator('+') == Operator('-'));
  CExpressionItem typeOnly;
  typeOnly.SetItemType(CExpressionItem::eItemOperand);
  EXPECT_EQ(typeOnly, Operand(0.0));
  CExpressionItem withOldOperator = Operator('*');
  withOldOperator.SetOperand(0.0);
  EXPECT_FALSE(withOldOperator == Operand(0.0));  // the leftover '*' differs from the blank
}

TEST(CExpressionItem, LessThanIsTrueForEveryPair) {
  const CExpressionItem a = Operand(1.0);
  const CExpressionItem b = Operand(2.0);
  EXPECT_TRUE(a < b);
  EXPECT_TRUE(b < a);
  EXPECT_TRUE(a < a);
}

TEST(CExpressionItemList, FindOperatorOnEmptyListGivesEnd) {
  CExpressionItemList list;
  EXPECT_TRUE(list.FindOperator() == list.end());
}

TEST(CExpressionItemList, FindOperatorTakesMultiplicationFirst) {
  const CExpressionItemList list = ListOf("8/2*2");
  EXPECT_EQ(PositionOf(list, list.FindOperator()), 3);
}

TEST(CExpressionItemList, FindOperatorTakesDivisionBeforeAddition) {
  const CExpressionItemList list = ListOf("1+8/2");
  EXPECT_EQ(PositionOf(list, list.FindOperator()), 3);
}

TEST(CExpressionItemList, FindOperatorTakesAdditionBeforeSubtraction) {
  const CExpressionItemList list = ListOf("5-3+1");
  EXPECT_EQ(PositionOf(list, list.FindOperator()), 3);
}

TEST(CExpressionItemList, FindOperatorTakesEqualOperatorsLeftToRight) {
  const CExpressionItemList list = ListOf("2-1-1");
  EXPECT_EQ(PositionOf(list, list.FindOperator()), 1);
}

TEST(CExpressionItemList, FindOperatorIgnoresOtherCharacters) {
  const CExpressionItemList list = ListOf("2^3");
  EXPECT_TRUE(list.FindOperator() == list.end());
}

TEST(CExpressionItemList, FindOperatorGivesAWritablePosition) {
  CExpressionItemList list = ListOf("2*3");
  list.FindOperator()->SetOperator('+');
  EXPECT_EQ(list.FindOperator()->GetOperator(), '+');
}

TEST(CExpressionItemList, CopiesItsItems) {
  const CExpressionItemList list = ListOf("1+2");
  CExpressionItemList copy(list);
  CExpressionItemList assigned;
  assigned = list;
  EXPECT_EQ(copy, list);
  EXPECT_EQ(assigned, list);
  copy.front().SetOperand(9.0);
  EXPECT_NE(copy, list);
  EXPECT_EQ(list.front().GetOperand(), 1.0);
}

TEST(CExpressionItemList, FullListThrowsLengthError) {
  CExpressionItemList list;
  for (CExpressionItemList::size_type i = 0; i < CExpressionItemList::kMaxItems; ++i)
    list.push_back(Operand(1.0));
  EXPECT_EQ(list.size(), list.max_size());
  try {
    list.push_back(Operand(2.0));
    FAIL() << "no length_error";
  } catch (const std::length_error& error) {
    EXPECT_STREQ(error.what(), "list too long");
  }
  EXPECT_THROW(list.insert(list.begin(), Operand(2.0)), std::length_error);
  EXPECT_EQ(list.size(), CExpressionItemList::kMaxItems);
}

TEST(CExpressionItemList, RangeInsertThatDoesNotFitInsertsNothing) {
  const CExpressionItemList source = ListOf("1+2");
  CExpressionItemList list;
  for (CExpressionItemList::size_type i = 0; i + 2 < CExpressionItemList::kMaxItems; ++i)
    list.push_back(Operand(1.0));
  EXPECT_THROW(list.insert(list.end(), source.begin(), source.end()), std::length_error);
  EXPECT_EQ(list.size(), CExpressionItemList::kMaxItems - 2);
  list.insert(list.end(), source.begin(), std::next(source.begin(), 2));
  EXPECT_EQ(list.size(), CExpressionItemList::kMaxItems);
}
