// SPDX-License-Identifier: MIT
// KCC_ObjectList: ordered list of object pointers with a cursor and selection handling.
//
// The cursor is an index into the vector, kNoElement standing for "behind the last element". Indices stay
// meaningful across the operations that keep the cursor (exchanges, reversal, appends), and a sentinel
// rather than size() keeps "no current element" from turning into an element when something is appended.
#include "ncappkit/objects/KCC_ObjectList.h"

#include <algorithm>
#include <utility>

#include "ncappkit/objects/KCC_ObjectData.h"

namespace {

// Deletes every distinct non-null pointer of [first, last) once; the range is left sorted.
void DeleteDistinct(std::vector<KCC_ObjectData*>::iterator first,
                    std::vector<KCC_ObjectData*>::iterator last) noexcept {
  std::sort(first, last);
  const KCC_ObjectData* previous = nullptr;
  for (auto it = first; it != last; ++it) {
    if (*it != nullptr && *it != previous)
      delete *it;
    previous = *it;
  }
}

}  // namespace

KCC_ObjectList::KCC_ObjectList(bool owner) : m_owner(owner), m_cursor(kNoElement), m_cursorForeign(false) {}

KCC_ObjectList::KCC_ObjectList(const KCC_ObjectList& other)
    : m_objects(other.m_objects), m_owner(other.m_owner), m_cursor(other.m_cursor), m_cursorForeign(true) {}

KCC_ObjectList& KCC_ObjectList::operator=(const KCC_ObjectList& other) {
  if (this == &other)
    return *this;
  std::vector<KCC_ObjectData*> objects(other.m_objects);  // copy first: a failure leaves this list as it was
  m_objects.swap(objects);
  m_owner = other.m_owner;
  m_cursor = other.m_cursor;
  m_cursorForeign = true;
  return *this;
}

KCC_ObjectList::KCC_ObjectList(KCC_ObjectList&& other) noexcept
    : m_objects(std::move(other.m_objects)),
      m_owner(other.m_owner),
      m_cursor(other.m_cursor),
      m_cursorForeign(other.m_cursorForeign) {
  other.m_objects.clear();
  other.SetCursor(kNoElement);
}

KCC_ObjectList& KCC_ObjectList::operator=(KCC_ObjectList&& other) noexcept {
  if (this == &other)
    return *this;
  if (m_owner)
    DeleteOwnedObjects();
  m_objects = std::move(other.m_objects);
  m_owner = other.m_owner;
  m_cursor = other.m_cursor;
  m_cursorForeign = other.m_cursorForeign;
  other.m_objects.clear();
  other.SetCursor(kNoElement);
  return *this;
}

KCC_ObjectList::~KCC_ObjectList() {
  if (m_owner)
    DeleteOwnedObjects();
}

void KCC_ObjectList::DeleteOwnedObjects() noexcept {
  DeleteDistinct(m_objects.begin(), m_objects.end());
  m_objects.clear();
  SetCursor(kNoElement);
}

std::size_t KCC_ObjectList::Find(const KCC_ObjectData* object) const noexcept {
  const auto it = std::find(m_objects.begin(), m_objects.end(), object);
  return it == m_objects.end() ? kNoElement : static_cast<std::size_t>(it - m_objects.begin());
}

std::size_t KCC_ObjectList::CurrentIndex() const noexcept {
  if (m_cursorForeign || m_cursor >= m_objects.size())
    return kNoElement;
  return m_cursor;
}

void KCC_ObjectList::SetCursor(std::size_t index) noexcept {
  m_cursor = index;
  m_cursorForeign = false;
}

int KCC_ObjectList::Count() {
  // Walks with the cursor on purpose: callers rely on where it stops (on the first null element).
  int count = 0;
  for (KCC_ObjectData* object = GetFirst(); object != nullptr; object = GetNext())
    ++count;
  return count;
}

bool KCC_ObjectList::IsEmpty() const noexcept {
  return m_objects.empty();
}

bool KCC_ObjectList::DoesListExists() const noexcept {
  return true;
}

KCC_ObjectData* KCC_ObjectList::GetFirst() noexcept {
  if (m_objects.empty()) {
    SetCursor(kNoElement);
    return nullptr;
  }
  SetCursor(0);
  return m_objects.front();
}

KCC_ObjectData* KCC_ObjectList::GetLast() noexcept {
  if (m_objects.empty())
    return nullptr;
  SetCursor(m_objects.size() - 1);
  return m_objects.back();
}

KCC_ObjectData* KCC_ObjectList::GetNext() noexcept {
  const std::size_t current = CurrentIndex();
  if (current == kNoElement)
    return nullptr;
  const std::size_t next = current + 1;
  if (next >= m_objects.size()) {
    SetCursor(kNoElement);
    return nullptr;
  }
  SetCursor(next);
  return m_objects[next];
}

KCC_ObjectData* KCC_ObjectList::GetPrev() noexcept {
  const std::size_t current = CurrentIndex();
  if (current == kNoElement) {
    if (m_objects.empty()) {
      SetCursor(kNoElement);
      return nullptr;
    }
    SetCursor(m_objects.size() - 1);
    return m_objects.back();
  }
  if (current == 0)
    return nullptr;
  SetCursor(current - 1);
  return m_objects[current - 1];
}

KCC_ObjectData* KCC_ObjectList::GetCurrent() const noexcept {
  const std::size_t current = CurrentIndex();
  return current == kNoElement ? nullptr : m_objects[current];
}

bool KCC_ObjectList::SetCurrent(const KCC_ObjectData* object) noexcept {
  SetCursor(Find(object));
  return m_cursor != kNoElement;
}

void KCC_ObjectList::UpdateCurrent(const KCC_ObjectData* object) noexcept {
  SetCursor(Find(object));
}

bool KCC_ObjectList::IsElement(const KCC_ObjectData* object) noexcept {
  return SetCurrent(object);
}

void KCC_ObjectList::InsertHead(KCC_ObjectData* object) {
  if (object == nullptr)
    return;
  m_objects.insert(m_objects.begin(), object);
  SetCursor(0);
}

void KCC_ObjectList::InsertTail(KCC_ObjectData* object) {
  if (object == nullptr)
    return;
  m_objects.push_back(object);
  SetCursor(Find(object));  // the first element holding it, which is earlier when it was there already
}

void KCC_ObjectList::AppendElement(KCC_ObjectData* object) {
  m_objects.push_back(object);
}

void KCC_ObjectList::InsertAfter(KCC_ObjectData* object, const KCC_ObjectData* reference) {
  if (object == nullptr)
    return;
  const std::size_t at = Find(reference);
  if (at == kNoElement)
    m_objects.push_back(object);
  else
    m_objects.insert(m_objects.begin() + static_cast<std::ptrdiff_t>(at + 1), object);
  SetCursor(Find(object));
}

void KCC_ObjectList::InsertBefore(KCC_ObjectData* object, const KCC_ObjectData* reference) {
  if (object == nullptr)
    return;
  const std::size_t at = Find(reference);
  if (at == kNoElement)
    m_objects.push_back(object);
  else
    m_objects.insert(m_objects.begin() + static_cast<std::ptrdiff_t>(at), object);
  SetCursor(Find(object));
}

bool KCC_ObjectList::RemoveDataItem(const KCC_ObjectData* object) noexcept {
  const std::size_t at = Find(object);
  if (at == kNoElement) {
    SetCursor(kNoElement);
    return false;
  }
  m_objects.erase(m_objects.begin() + static_cast<std::ptrdiff_t>(at));
  SetCursor(at < m_objects.size() ? at : kNoElement);
  return true;
}

bool KCC_ObjectList::DeleteOneDataItem(KCC_ObjectData* object) noexcept {
  if (!RemoveDataItem(object))
    return false;
  delete object;
  return true;
}

template <typename Predicate>
bool KCC_ObjectList::DeleteWhere(Predicate doomed) noexcept {
  // Every flag is read before anything is deleted, so an object held twice is neither read after its
  // deletion nor deleted twice. Kept elements move to the front in their order, doomed ones to the back.
  std::size_t kept = 0;
  for (std::size_t i = 0; i < m_objects.size(); ++i) {
    KCC_ObjectData* object = m_objects[i];
    if (object == nullptr || !doomed(*object))
      std::swap(m_objects[kept++], m_objects[i]);
  }
  const bool deleted = kept < m_objects.size();
  DeleteDistinct(m_objects.begin() + static_cast<std::ptrdiff_t>(kept), m_objects.end());
  m_objects.resize(kept);
  SetCursor(kNoElement);
  return deleted;
}

bool KCC_ObjectList::DeleteAllSelectedItems() noexcept {
  return DeleteWhere([](const KCC_ObjectData& object) { return object.IsSelected(); });
}

bool KCC_ObjectList::DeleteAllUnSelectedItems() noexcept {
  return DeleteWhere([](const KCC_ObjectData& object) { return !object.IsSelected(); });
}

void KCC_ObjectList::SetAllSelections() noexcept {
  for (KCC_ObjectData* object : m_objects) {
    if (object != nullptr)
      object->SetSelectionFlag(true);
  }
}

void KCC_ObjectList::ClearAllSelections() noexcept {
  for (KCC_ObjectData* object : m_objects) {
    if (object != nullptr)
      object->SetSelectionFlag(false);
  }
}

int KCC_ObjectList::GetNumberOfSelectedItems() const noexcept {
  int count = 0;
  for (const KCC_ObjectData* object : m_objects) {
    if (object != nullptr && object->IsSelected())
      ++count;
  }
  return count;
}

bool KCC_ObjectList::MoveForeward(const KCC_ObjectData* object) noexcept {
  const std::size_t at = Find(object);
  if (at == kNoElement || at + 1 >= m_objects.size())
    return false;
  std::swap(m_objects[at], m_objects[at + 1]);
  return true;
}

bool KCC_ObjectList::MoveBackward(const KCC_ObjectData* object) noexcept {
  const std::size_t at = Find(object);
  if (at == kNoElement || at == 0)
    return false;
  std::swap(m_objects[at - 1], m_objects[at]);
  return true;
}

bool KCC_ObjectList::ReverseList() noexcept {
  if (m_objects.size() < 2)
    return false;
  std::reverse(m_objects.begin(), m_objects.end());
  const std::size_t current = CurrentIndex();
  if (current != kNoElement)
    m_cursor = m_objects.size() - 1 - current;
  return true;
}

void KCC_ObjectList::AppendList(KCC_ObjectList& other) {
  if (&other == this)
    return;
  m_objects.insert(m_objects.end(), other.m_objects.begin(), other.m_objects.end());
  other.m_objects.clear();
  other.SetCursor(kNoElement);
}

void KCC_ObjectList::ReInitList() noexcept {
  SetCursor(kNoElement);
}
