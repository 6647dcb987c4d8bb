// SPDX-License-Identifier: MIT
// Test objects for object lists: a named object that counts its deletions, and a list that can hold null
// placeholders.
#pragma once

#include <string>

#include "ncappkit/foundation/KCString.h"
#include "ncappkit/objects/KCC_ObjectData.h"
#include "ncappkit/objects/KCC_ObjectList.h"

// A named list object; when given a counter, its destructor adds 1 to it.
class TrackedObject : public KCC_ObjectData {
 public:
  explicit TrackedObject(const char* name, int* deletions = nullptr) : m_name(name), m_deletions(deletions) {}
  TrackedObject(const TrackedObject&) = default;
  TrackedObject& operator=(const TrackedObject&) = default;
  ~TrackedObject() override {
    if (m_deletions != nullptr)
      ++*m_deletions;
  }
  KCString GetObjectString() const override { return KCString(m_name); }

 private:
  std::string m_name;
  int* m_deletions;
};

// A list that can also hold null pointers, as derived lists may.
class ListWithPlaceholders : public KCC_ObjectList {
 public:
  using KCC_ObjectList::AppendElement;
  using KCC_ObjectList::KCC_ObjectList;
};

// The object's name, or "null".
inline std::string NameOf(const KCC_ObjectData* object) {
  return object == nullptr ? std::string("null") : object->GetObjectString().str();
}

// The names of the list's objects in order, comma-separated. Walks with the cursor (read the cursor before
// calling it) and stops at the first null element, so use it for lists without placeholders.
inline std::string NamesOf(KCC_ObjectList& list) {
  std::string names;
  for (KCC_ObjectData* object = list.GetFirst(); object != nullptr; object = list.GetNext()) {
    if (!names.empty())
      names += ",";
    names += NameOf(object);
  }
  return names;
}
