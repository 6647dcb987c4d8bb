// SPDX-License-Identifier: MIT
#include "ncappkit/mathexpr/CExpressionItem.h"

#include <iterator>
#include <stdexcept>

// ---------------------------------------------------------------------------------------------------------
// CExpressionItem

CExpressionItem::~CExpressionItem() = default;

bool CExpressionItem::operator==(const CExpressionItem& other) const noexcept {
  return m_type == other.m_type && m_value == other.m_value && m_operator == other.m_operator &&
         m_function == other.m_function;
}

bool CExpressionItem::operator<(const CExpressionItem& /*other*/) const noexcept {
  // Items have no order; containers that need one treat every pair alike.
  return true;
}

bool CExpressionItem::SetFunctionFromName(const KCString& name, CExpressionItem& item) noexcept {
  struct Entry {
    const char* name;
    eFunctionName function;
  };
  static constexpr Entry kFunctions[] = {
      {"SQRT", eFuncSqrt}, {"SIN", eFuncSin}, {"COS", eFuncCos}, {"TAN", eFuncTan}};
  for (const Entry& entry : kFunctions) {
    if (name.EqualsNoCase(KCString(entry.name))) {
      item.SetFunction(entry.function);
      return true;
    }
  }
  return false;
}

// ---------------------------------------------------------------------------------------------------------
// CExpressionItemList

CExpressionItemList::~CExpressionItemList() = default;

void CExpressionItemList::CheckRoomFor(size_type count) const {
  if (count > kMaxItems || m_items.size() > kMaxItems - count)
    throw std::length_error("list too long");
}

void CExpressionItemList::push_back(const CExpressionItem& item) {
  CheckRoomFor(1);
  m_items.push_back(item);
}

CExpressionItemList::iterator CExpressionItemList::insert(const_iterator pos, const CExpressionItem& item) {
  CheckRoomFor(1);
  return m_items.insert(pos, item);
}

CExpressionItemList::iterator CExpressionItemList::insert(const_iterator pos, const_iterator first,
                                                          const_iterator last) {
  CheckRoomFor(static_cast<size_type>(std::distance(first, last)));
  return m_items.insert(pos, first, last);
}

CExpressionItemList::iterator CExpressionItemList::FindOperator() noexcept {
  // One pass remembers the first operator of each character; the fixed priority then picks among them.
  iterator first[4] = {end(), end(), end(), end()};
  for (iterator it = begin(); it != end(); ++it) {
    if (!it->IsOperator())
      continue;
    int slot = -1;
    switch (it->GetOperator()) {
      case '*':
        slot = 0;
        break;
      case '/':
        slot = 1;
        break;
      case '+':
        slot = 2;
        break;
      case '-':
        slot = 3;
        break;
      default:
        break;
    }
    if (slot == 0)
      return it;  // nothing outranks the first '*'
    if (slot > 0 && first[slot] == end())
      first[slot] = it;
  }
  for (iterator it : first) {
    if (it != end())
      return it;
  }
  return end();
}

CExpressionItemList::const_iterator CExpressionItemList::FindOperator() const noexcept {
  return const_cast<CExpressionItemList*>(this)->FindOperator();
}

// Definitions of the class's constants. With them the Windows DLL exports the constants, so that a program
// that takes one by reference or address links against the DLL's copy.
constexpr CExpressionItemList::size_type CExpressionItemList::kMaxItems;
