// SPDX-License-Identifier: MIT
// CExpressionItem and CExpressionItemList: the tokens of a typed-in arithmetic expression and the flat,
// ordered list that holds them.
//
// An item is an operand (a double), an operator character, an open or close bracket, or one of the functions
// SQRT, SIN, COS and TAN. KCC_MathExpression (KCC_MathExpression.h) cuts text into such a list and reduces
// it; callers may also build and inspect lists themselves.
//
//   CExpressionItemList list;
//   CExpressionItem item;
//   item.SetOperand(2.0);
//   list.push_back(item);
//   item.SetOperator('+');
//   list.push_back(item);
//   CExpressionItemList::iterator op = list.FindOperator();   // the '+'
//
// FindOperator picks the next operator by a fixed priority of the characters: the first '*', else the first
// '/', else the first '+', else the first '-'. So a list evaluates all multiplications before any division
// and all additions before any subtraction (8/2*2 gives 2, 5-3+1 gives 1).
//
// A list holds at most kMaxItems items; an insertion beyond that throws std::length_error("list too long").
// The bound sits far above any expression a person types, and keeps the cost of evaluating (which reports
// every intermediate list, so it grows with the square of the length) well under a second.
// See docs/behaviours.md#typed-in-arithmetic.
#pragma once

#include <cstddef>
#include <cstdint>
#include <list>

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"

/// One token of an expression.
class NCAPPKIT_EXPORT CExpressionItem {
 public:
  /// Kind of item.
  enum eItemType : std::int32_t {
    eItemUndefined = 0,     ///< a new item, not yet set
    eItemOperand = 1,       ///< a number
    eItemOperator = 2,      ///< an operator character
    eItemOpenBracket = 3,   ///< '(' or '['
    eItemCloseBracket = 4,  ///< ')' or ']'
    eItemFunction = 5       ///< SQRT, SIN, COS or TAN
  };
  /// Function of a function item.
  enum eFunctionName : std::int32_t {
    eFuncNone = 0,  ///< no function
    eFuncSqrt = 1,  ///< square root
    eFuncSin = 2,   ///< sine of radians
    eFuncCos = 3,   ///< cosine of radians
    eFuncTan = 4    ///< tangent of radians
  };

  /// An undefined item: value 0.0, operator blank, no function.
  CExpressionItem() = default;
  /// A copy of all four fields (type, value, operator character, function).
  CExpressionItem(const CExpressionItem&) = default;
  /// Copy all four fields.
  CExpressionItem& operator=(const CExpressionItem&) = default;
  virtual ~CExpressionItem();

  /// True when type, value (compared exactly), operator character and function are all equal.
  bool operator==(const CExpressionItem& other) const noexcept;
  /// True for every pair of items; items have no order.
  bool operator<(const CExpressionItem& other) const noexcept;

  /// The kind of item.
  eItemType GetItemType() const noexcept { return m_type; }
  /// Set the kind only; the other fields stay.
  void SetItemType(eItemType type) noexcept { m_type = type; }
  /// The operand value (0.0 for a new item).
  double GetOperand() const noexcept { return m_value; }
  /// Make this an operand with `value`.
  void SetOperand(double value) noexcept {
    m_value = value;
    m_type = eItemOperand;
  }
  /// The operator character (a blank when the item never was an operator).
  char GetOperator() const noexcept { return m_operator; }
  /// Make this an operator with character `op` (not checked).
  void SetOperator(char op) noexcept {
    m_operator = op;
    m_type = eItemOperator;
  }
  /// Make this an open bracket (the kind only).
  void SetOpenBracket() noexcept { m_type = eItemOpenBracket; }
  /// Make this a close bracket (the kind only).
  void SetCloseBracket() noexcept { m_type = eItemCloseBracket; }
  /// Make this a function item of `function`.
  void SetFunction(eFunctionName function) noexcept {
    m_function = function;
    m_type = eItemFunction;
  }
  /// The function (eFuncNone for a new item).
  eFunctionName GetFunctionName() const noexcept { return m_function; }

  /// True for an operand.
  bool IsOperand() const noexcept { return m_type == eItemOperand; }
  /// True for an operator.
  bool IsOperator() const noexcept { return m_type == eItemOperator; }
  /// True for an open bracket.
  bool IsOpenBracket() const noexcept { return m_type == eItemOpenBracket; }
  /// True for a close bracket.
  bool IsCloseBracket() const noexcept { return m_type == eItemCloseBracket; }
  /// True for a function.
  bool IsFunction() const noexcept { return m_type == eItemFunction; }
  /// True when this is an operator with character `op`.
  bool CheckOperator(char op) const noexcept { return m_type == eItemOperator && m_operator == op; }

  /// Make `item` the function named `name` (SQRT, SIN, COS or TAN in any case) and return true; false and
  /// `item` unchanged for any other name.
  static bool SetFunctionFromName(const KCString& name, CExpressionItem& item) noexcept;

 private:
  eItemType m_type = eItemUndefined;
  double m_value = 0.0;
  char m_operator = ' ';
  eFunctionName m_function = eFuncNone;
};

/// An ordered, doubly linked list of items.
class NCAPPKIT_EXPORT CExpressionItemList {
 public:
  /// The standard container that holds the items.
  using container_type = std::list<CExpressionItem>;
  /// Writable iterator over the items.
  using iterator = container_type::iterator;
  /// Read-only iterator over the items.
  using const_iterator = container_type::const_iterator;
  /// Type of sizes.
  using size_type = container_type::size_type;
  /// Type of the items.
  using value_type = CExpressionItem;

  /// Most items a list holds.
  static constexpr size_type kMaxItems = 4096;

  /// Empty list.
  CExpressionItemList() = default;
  /// A copy of all items in the same order.
  CExpressionItemList(const CExpressionItemList&) = default;
  /// Copy all items.
  CExpressionItemList& operator=(const CExpressionItemList&) = default;
  virtual ~CExpressionItemList();

  /// The next operator to apply: the first '*', else the first '/', else the first '+', else the first '-';
  /// end() when there is none (at once for an empty list).
  iterator FindOperator() noexcept;
  /// As above, read-only.
  const_iterator FindOperator() const noexcept;

  /// Number of items.
  size_type size() const noexcept { return m_items.size(); }
  /// True when the list has no items.
  bool empty() const noexcept { return m_items.empty(); }
  /// Most items this list can hold (kMaxItems).
  size_type max_size() const noexcept { return kMaxItems; }
  /// Remove every item.
  void clear() noexcept { m_items.clear(); }

  /// Iterator to the first item (end() for an empty list).
  iterator begin() noexcept { return m_items.begin(); }
  /// Iterator past the last item.
  iterator end() noexcept { return m_items.end(); }
  /// Read-only iterator to the first item.
  const_iterator begin() const noexcept { return m_items.begin(); }
  /// Read-only iterator past the last item.
  const_iterator end() const noexcept { return m_items.end(); }
  /// Read-only iterator to the first item.
  const_iterator cbegin() const noexcept { return m_items.cbegin(); }
  /// Read-only iterator past the last item.
  const_iterator cend() const noexcept { return m_items.cend(); }
  /// The first item; the list must not be empty.
  CExpressionItem& front() { return m_items.front(); }
  /// The first item, read-only; the list must not be empty.
  const CExpressionItem& front() const { return m_items.front(); }
  /// The last item; the list must not be empty.
  CExpressionItem& back() { return m_items.back(); }
  /// The last item, read-only; the list must not be empty.
  const CExpressionItem& back() const { return m_items.back(); }

  /// Append `item`; throws std::length_error("list too long") when the list is full.
  void push_back(const CExpressionItem& item);
  /// Insert `item` before `pos`; throws std::length_error("list too long") when the list is full.
  iterator insert(const_iterator pos, const CExpressionItem& item);
  /// Insert copies of [first, last) before `pos`; throws std::length_error("list too long") (and inserts
  /// nothing) when they do not fit.
  iterator insert(const_iterator pos, const_iterator first, const_iterator last);
  /// Remove the item at `pos`; returns the item behind it.
  iterator erase(const_iterator pos) noexcept { return m_items.erase(pos); }
  /// Remove [first, last); returns `last`.
  iterator erase(const_iterator first, const_iterator last) noexcept { return m_items.erase(first, last); }

  /// True when both lists hold equal items in the same order.
  bool operator==(const CExpressionItemList& other) const noexcept { return m_items == other.m_items; }
  /// Negation of ==.
  bool operator!=(const CExpressionItemList& other) const noexcept { return !(*this == other); }

 private:
  void CheckRoomFor(size_type count) const;

  container_type m_items;
};
