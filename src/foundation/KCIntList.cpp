// SPDX-License-Identifier: MIT
#include "ncappkit/foundation/KCIntList.h"

#include <algorithm>

KCIntList::~KCIntList() = default;

bool KCIntList::Contains(int value) const noexcept {
  return std::find(m_items.begin(), m_items.end(), value) != m_items.end();
}
