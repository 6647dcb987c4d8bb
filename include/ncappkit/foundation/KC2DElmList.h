// SPDX-License-Identifier: MIT
// KC2DElmList: an ordered list of 2D elements that owns them.
//
// Add hands an element (created with new) over to the list; Remove, Clear and the destructor delete it.
// Copying the list clones every element, so two lists never share one. Null entries are allowed and skipped
// by Accept and by the bounding area.
//
//   KC2DElmList outline;
//   outline.Add(new KC2DLine(0, 0, 10, 0));
//   outline.Add(new KC2DArc(KC2DPoint(10, 0), KC2DPoint(10, 10), KC2DPoint(10, 5), true));
//   KC2DArea box = outline.GetArea();
#pragma once

#include <cstddef>
#include <vector>

#include "ncappkit/export.h"
#include "ncappkit/foundation/KC2DArea.h"
#include "ncappkit/foundation/KC2DElement.h"

/// An ordered list of 2D elements that owns them; a copy clones every element.
class NCAPPKIT_EXPORT KC2DElmList {
 public:
  /// Read-only iterator over the entries (element pointers, null entries included).
  using const_iterator = std::vector<KC2DElement*>::const_iterator;

  /// An empty list.
  KC2DElmList() = default;
  /// Deep copy: every element is cloned (null entries stay null).
  KC2DElmList(const KC2DElmList& other);
  /// Takes the other list's elements; the other list is left empty.
  KC2DElmList(KC2DElmList&& other) noexcept;
  /// Deep copy: deletes this list's elements, then clones the other's.
  KC2DElmList& operator=(const KC2DElmList& other);
  /// Deletes this list's elements and takes the other's; the other list is left empty.
  KC2DElmList& operator=(KC2DElmList&& other) noexcept;
  /// Deletes every element.
  virtual ~KC2DElmList();

  /// Append `element` (may be null) and take ownership of it.
  void Add(KC2DElement* element);
  /// Delete the element at `index` and remove its entry; false (nothing done) for an index out of range.
  bool Remove(std::size_t index);
  /// Delete every element and empty the list.
  void Clear() noexcept;
  /// Number of entries (null entries included).
  std::size_t size() const noexcept { return m_items.size(); }
  /// True when the list has no entry.
  bool empty() const noexcept { return m_items.empty(); }
  /// The element at `index` (still owned by the list), or null when out of range.
  KC2DElement* GetAt(std::size_t index) const noexcept {
    return index < m_items.size() ? m_items[index] : nullptr;
  }
  /// First entry.
  const_iterator begin() const noexcept { return m_items.begin(); }
  /// Past the last entry.
  const_iterator end() const noexcept { return m_items.end(); }

  /// Let `visitor` visit each element front to back, skipping null entries; stops at the first false and
  /// returns false then, true otherwise.
  bool Accept(KC2DElementVisitor& visitor);
  /// Bounding area of all elements' boxes (empty for a list without elements).
  KC2DArea GetArea() const;

 private:
  std::vector<KC2DElement*> m_items;
};
