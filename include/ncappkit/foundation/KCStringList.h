// SPDX-License-Identifier: MIT
// KCStringList: an ordered list of KCString with value semantics.
//
// NC program text is held in one of these, a line per entry. It behaves like a standard sequence (push_back,
// size, begin/end, front/back, indexing) and adds ReInitList() to empty it.
//
//   KCStringList lines;
//   lines.push_back("O1000");
//   lines.push_back("M30");
//   for (const KCString& line : lines) { ... }
#pragma once

#include <cstddef>
#include <initializer_list>
#include <utility>
#include <vector>

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"

/// An ordered list of KCString with value semantics (an NC program holds its lines in one).
class NCAPPKIT_EXPORT KCStringList {
 public:
  /// Type of the entries.
  using value_type = KCString;
  /// The standard container that holds the entries.
  using container_type = std::vector<KCString>;
  /// Writable iterator over the entries.
  using iterator = container_type::iterator;
  /// Read-only iterator over the entries.
  using const_iterator = container_type::const_iterator;
  /// Writable iterator from the last entry to the first.
  using reverse_iterator = container_type::reverse_iterator;
  /// Read-only iterator from the last entry to the first.
  using const_reverse_iterator = container_type::const_reverse_iterator;
  /// Type of sizes and indices.
  using size_type = std::size_t;

  /// Empty list.
  KCStringList() = default;
  /// List of the given strings, in order.
  KCStringList(std::initializer_list<KCString> items) : m_items(items) {}
  /// A copy with the same strings in the same order.
  KCStringList(const KCStringList&) = default;
  /// Takes over the strings; the moved-from list is left valid but unspecified.
  KCStringList(KCStringList&&) noexcept = default;
  /// Copy the other list's strings; returns *this.
  KCStringList& operator=(const KCStringList&) = default;
  /// Take over the other list's strings; returns *this.
  KCStringList& operator=(KCStringList&&) noexcept = default;
  virtual ~KCStringList();

  /// Empty the list.
  void ReInitList() noexcept { m_items.clear(); }
  /// Empty the list.
  void clear() noexcept { m_items.clear(); }
  /// Append a copy of `s` at the end.
  void push_back(const KCString& s) { m_items.push_back(s); }
  /// Append `s` at the end, taking over its text.
  void push_back(KCString&& s) { m_items.push_back(std::move(s)); }
  /// Append a string built from the arguments at the end; returns it.
  template <class... Args>
  KCString& emplace_back(Args&&... args) {
    return m_items.emplace_back(std::forward<Args>(args)...);
  }
  /// Remove the last string; does nothing on an empty list.
  void pop_back() noexcept {
    if (!m_items.empty())
      m_items.pop_back();
  }
  /// Insert `s` before `pos`; returns the position of the new string.
  iterator insert(const_iterator pos, const KCString& s) { return m_items.insert(pos, s); }
  /// Remove the string at `pos`; returns the position after it.
  iterator erase(const_iterator pos) { return m_items.erase(pos); }
  /// Reserve room for `n` strings.
  void reserve(size_type n) { m_items.reserve(n); }

  /// Number of strings.
  size_type size() const noexcept { return m_items.size(); }
  /// True when the list holds no string.
  bool empty() const noexcept { return m_items.empty(); }
  /// The first string; the list must not be empty.
  KCString& front() { return m_items.front(); }
  /// The first string; the list must not be empty.
  const KCString& front() const { return m_items.front(); }
  /// The last string; the list must not be empty.
  KCString& back() { return m_items.back(); }
  /// The last string; the list must not be empty.
  const KCString& back() const { return m_items.back(); }
  /// The string at `index`; the index must be below size().
  KCString& operator[](size_type index) { return m_items[index]; }
  /// The string at `index`; the index must be below size().
  const KCString& operator[](size_type index) const { return m_items[index]; }

  /// Iterator to the first string (end() for an empty list).
  iterator begin() noexcept { return m_items.begin(); }
  /// Iterator past the last string.
  iterator end() noexcept { return m_items.end(); }
  /// Read-only iterator to the first string.
  const_iterator begin() const noexcept { return m_items.begin(); }
  /// Read-only iterator past the last string.
  const_iterator end() const noexcept { return m_items.end(); }
  /// Read-only iterator to the first string.
  const_iterator cbegin() const noexcept { return m_items.cbegin(); }
  /// Read-only iterator past the last string.
  const_iterator cend() const noexcept { return m_items.cend(); }
  /// Reverse iterator to the last string.
  reverse_iterator rbegin() noexcept { return m_items.rbegin(); }
  /// Reverse iterator before the first string.
  reverse_iterator rend() noexcept { return m_items.rend(); }
  /// Read-only reverse iterator to the last string.
  const_reverse_iterator rbegin() const noexcept { return m_items.rbegin(); }
  /// Read-only reverse iterator before the first string.
  const_reverse_iterator rend() const noexcept { return m_items.rend(); }

  /// Element-wise, case-sensitive equality.
  friend bool operator==(const KCStringList& a, const KCStringList& b) { return a.m_items == b.m_items; }
  /// Negation of ==.
  friend bool operator!=(const KCStringList& a, const KCStringList& b) { return !(a == b); }

 private:
  container_type m_items;
};
