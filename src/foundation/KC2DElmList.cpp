// SPDX-License-Identifier: MIT
#include "ncappkit/foundation/KC2DElmList.h"

#include <utility>

KC2DElmList::KC2DElmList(const KC2DElmList& other) {
  m_items.reserve(other.m_items.size());
  for (const KC2DElement* e : other.m_items) {
    m_items.push_back(e ? e->Clone() : nullptr);
  }
}

KC2DElmList::KC2DElmList(KC2DElmList&& other) noexcept : m_items(std::move(other.m_items)) {
  other.m_items.clear();
}

KC2DElmList& KC2DElmList::operator=(const KC2DElmList& other) {
  if (this != &other) {
    KC2DElmList copy(other);  // clone first, so a throwing Clone leaves this list intact
    Clear();
    m_items.swap(copy.m_items);
  }
  return *this;
}

KC2DElmList& KC2DElmList::operator=(KC2DElmList&& other) noexcept {
  if (this != &other) {
    Clear();
    m_items.swap(other.m_items);
  }
  return *this;
}

KC2DElmList::~KC2DElmList() {
  Clear();
}

void KC2DElmList::Add(KC2DElement* element) {
  m_items.push_back(element);
}

bool KC2DElmList::Remove(std::size_t index) {
  if (index >= m_items.size()) {
    return false;
  }
  delete m_items[index];
  m_items.erase(m_items.begin() + static_cast<std::ptrdiff_t>(index));
  return true;
}

void KC2DElmList::Clear() noexcept {
  for (KC2DElement* e : m_items) {
    delete e;
  }
  m_items.clear();
}

bool KC2DElmList::Accept(KC2DElementVisitor& visitor) {
  for (KC2DElement* e : m_items) {
    if (e != nullptr && !e->Accept(visitor)) {
      return false;
    }
  }
  return true;
}

KC2DArea KC2DElmList::GetArea() const {
  KC2DArea area;
  for (const KC2DElement* e : m_items) {
    if (e != nullptr) {
      area.ApplyPoint(e->GetMinX(), e->GetMinY());
      area.ApplyPoint(e->GetMaxX(), e->GetMaxY());
    }
  }
  return area;
}
