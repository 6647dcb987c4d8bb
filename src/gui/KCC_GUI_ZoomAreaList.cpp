// SPDX-License-Identifier: MIT
// KCC_GUI_ZoomAreaList: owning list of zoom areas.
#include "ncappkit/gui/KCC_GUI_ZoomAreaList.h"

#include <utility>

#include "ncappkit/gui/KCC_GUI_ZoomArea.h"
#include "ncappkit/gui/KCC_GUI_ZoomAreaVisitor.h"

KCC_GUI_ZoomAreaList::KCC_GUI_ZoomAreaList() = default;
KCC_GUI_ZoomAreaList::KCC_GUI_ZoomAreaList(const KCC_GUI_ZoomAreaList& other) = default;
KCC_GUI_ZoomAreaList& KCC_GUI_ZoomAreaList::operator=(const KCC_GUI_ZoomAreaList& other) = default;

// A moved-from std::list is valid but its contents are not promised; clear() makes the source empty.
KCC_GUI_ZoomAreaList::KCC_GUI_ZoomAreaList(KCC_GUI_ZoomAreaList&& other) noexcept
    : m_areas(std::move(other.m_areas)) {
  other.m_areas.clear();
}

KCC_GUI_ZoomAreaList& KCC_GUI_ZoomAreaList::operator=(KCC_GUI_ZoomAreaList&& other) noexcept {
  if (this == &other)
    return *this;
  ClearWithContents();
  m_areas.swap(other.m_areas);
  return *this;
}

KCC_GUI_ZoomAreaList::~KCC_GUI_ZoomAreaList() {
  ClearWithContents();
}

void KCC_GUI_ZoomAreaList::AddZoomArea(KCC_GUI_ZoomArea* area) {
  m_areas.push_back(area);
}
int KCC_GUI_ZoomAreaList::GetNumberOfZoomAreas() const {
  return static_cast<int>(m_areas.size());
}
bool KCC_GUI_ZoomAreaList::IsEmpty() const {
  return m_areas.empty();
}
KCC_GUI_ZoomArea* KCC_GUI_ZoomAreaList::GetFirst() const {
  return m_areas.empty() ? nullptr : m_areas.front();
}
KCC_GUI_ZoomArea* KCC_GUI_ZoomAreaList::GetLast() const {
  return m_areas.empty() ? nullptr : m_areas.back();
}

void KCC_GUI_ZoomAreaList::ClearWithContents() {
  for (KCC_GUI_ZoomArea* area : m_areas)
    delete area;
  m_areas.clear();
}

void KCC_GUI_ZoomAreaList::Detach() {
  m_areas.clear();
}

KCC_GUI_ZoomAreaList KCC_GUI_ZoomAreaList::Clone() const {
  KCC_GUI_ZoomAreaList copy;
  for (const KCC_GUI_ZoomArea* area : m_areas)
    copy.m_areas.push_back(area == nullptr ? nullptr : new KCC_GUI_ZoomArea(*area));
  return copy;
}

bool KCC_GUI_ZoomAreaList::Accept(KCC_GUI_ZoomAreaVisitor& visitor) {
  for (KCC_GUI_ZoomArea* area : m_areas) {
    if (area != nullptr && !visitor.Visit(*area))
      return false;
  }
  return true;
}
