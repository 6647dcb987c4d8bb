// SPDX-License-Identifier: MIT
// KCIntList: an ordered list of int with value semantics, standard-sequence style.
//
//   KCIntList numbers;
//   numbers.push_back(1000);
//   for (int n : numbers) { ... }
#pragma once

#include <cstddef>
#include <initializer_list>
#include <vector>

#include "ncappkit/export.h"

/// An ordered list of int with value semantics.
class NCAPPKIT_EXPORT KCIntList {
 public:
  /// Type of the entries.
  using value_type = int;
  /// The standard container that holds the entries.
  using container_type = std::vector<int>;
  /// Writable iterator over the entries.
  using iterator = container_type::iterator;
  /// Read-only iterator over the entries.
  using const_iterator = container_type::const_iterator;
  /// Type of sizes and indices.
  using size_type = std::size_t;

  /// Empty list.
  KCIntList() = default;
  /// List of the given numbers, in order.
  KCIntList(std::initializer_list<int> items) : m_items(items) {}
  /// A copy with the same numbers in the same order.
  KCIntList(const KCIntList&) = default;
  /// Takes over the numbers; the moved-from list is left valid but unspecified.
  KCIntList(KCIntList&&) noexcept = default;
  /// Copy the other list's numbers; returns *this.
  KCIntList& operator=(const KCIntList&) = default;
  /// Take over the other list's numbers; returns *this.
  KCIntList& operator=(KCIntList&&) noexcept = default;
  virtual ~KCIntList();

  /// Empty the list.
  void ReInitList() noexcept { m_items.clear(); }
  /// Empty the list.
  void clear() noexcept { m_items.clear(); }
  /// Append `value` at the end.
  void push_back(int value) { m_items.push_back(value); }
  /// Number of entries.
  size_type size() const noexcept { return m_items.size(); }
  /// True when the list holds no entry.
  bool empty() const noexcept { return m_items.empty(); }
  /// The first entry; the list must not be empty.
  int front() const { return m_items.front(); }
  /// The last entry; the list must not be empty.
  int back() const { return m_items.back(); }
  /// The entry at `index`; the index must be below size().
  int& operator[](size_type index) { return m_items[index]; }
  /// The entry at `index`; the index must be below size().
  int operator[](size_type index) const { return m_items[index]; }
  /// True when `value` is in the list.
  bool Contains(int value) const noexcept;

  /// Iterator to the first entry (end() for an empty list).
  iterator begin() noexcept { return m_items.begin(); }
  /// Iterator past the last entry.
  iterator end() noexcept { return m_items.end(); }
  /// Read-only iterator to the first entry.
  const_iterator begin() const noexcept { return m_items.begin(); }
  /// Read-only iterator past the last entry.
  const_iterator end() const noexcept { return m_items.end(); }

  /// True when both lists hold the same numbers in the same order.
  friend bool operator==(const KCIntList& a, const KCIntList& b) { return a.m_items == b.m_items; }
  /// Negation of ==.
  friend bool operator!=(const KCIntList& a, const KCIntList& b) { return !(a == b); }

 private:
  container_type m_items;
};
