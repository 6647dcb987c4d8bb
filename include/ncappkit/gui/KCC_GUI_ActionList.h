// SPDX-License-Identifier: MIT
// KCC_GUI_ActionList: the owning, doubly linked list of GUI actions that holds an editing history in
// creation order. A KCC_GUI_ActionManager appends to it and removes from it; clients walk it for display.
//
//   KCC_GUI_Editor editor(50);
//   KCC_GUI_ActionList& history = editor.GetGUIActionList();
//   for (KCC_GUI_Action* action : history)          // front (oldest) to back (newest)
//     names.push_back(action->ToString());
//   history.ClearWithContents();                     // deletes every action, without Terminate or Destroy
//
// Ownership, in three rules:
// - Copies share. Copying a list copies only the pointers: both lists then refer to the same actions and
//   both would delete them. Keep one copy alive only, or call Detach on all copies but one.
// - Moves transfer. A moved-to list takes the actions over; the moved-from list is empty and usable. So a
//   list can be returned from a function or kept in a std::vector safely.
// - Deleting is plain. ClearWithContents, a move assignment onto the list and the destructor delete the
//   actions through their virtual destructor, front to back, and call neither Terminate nor Destroy.
// There is no deep copy: an action does not know how to copy itself.
//
// Rules worth knowing:
// - Accept walks front to back, skips null entries and stops at the first false.
// - A null pointer appended is kept as an empty entry: it counts, and walks and the manager skip it.
// - Entries are removed one by one only by the manager (KCC_GUI_ActionManager is a friend); the public
//   operations append, count, walk, clear and detach. Clearing, detaching, assigning or moving a list that a
//   manager works on is safe: the manager's cursor goes to the end (see KCC_GUI_ActionManager).
// See docs/behaviours.md#gui-actions.
#pragma once

#include <cstdint>
#include <list>

#include "ncappkit/export.h"

class KCC_GUI_Action;
class KCC_GUI_ActionVisitor;

/// An owning, doubly linked list of GUI actions; a copy shares the actions (see the ownership note).
class NCAPPKIT_EXPORT KCC_GUI_ActionList {
 public:
  /// Empty list.
  KCC_GUI_ActionList();
  /// Copies the pointers (no copies of the actions; see the ownership note above).
  KCC_GUI_ActionList(const KCC_GUI_ActionList& other);
  /// Copies the pointers; the actions held before are not deleted. Returns *this.
  KCC_GUI_ActionList& operator=(const KCC_GUI_ActionList& other);
  /// Takes over the actions of `other`, which is left empty.
  KCC_GUI_ActionList(KCC_GUI_ActionList&& other) noexcept;
  /// Deletes the actions held before (as ClearWithContents), then takes over those of `other`, which is left
  /// empty. Moving a list onto itself changes nothing. Returns *this.
  KCC_GUI_ActionList& operator=(KCC_GUI_ActionList&& other) noexcept;
  /// Deletes every action still held (ClearWithContents).
  virtual ~KCC_GUI_ActionList();

  /// Append `action` at the end and take ownership of it (a null pointer is kept as an empty entry).
  void Append(KCC_GUI_Action* action);
  /// Number of entries, null entries included.
  int GetNumberOfActions() const;
  /// True when the list has no entry.
  bool IsEmpty() const;

  /// Hand every non-null action, front to back, to `visitor`; false as soon as one Visit gives false (the
  /// rest is not visited), true after the last entry and for an empty list.
  bool Accept(KCC_GUI_ActionVisitor& visitor);
  /// Delete every non-null action front to back (no Terminate, no Destroy), then empty the list.
  void ClearWithContents();
  /// Empty the list without deleting the actions (for a list that shares them with a copy).
  void Detach();

  /// Iterator over the entries: each is an action pointer, null for an entry appended as null.
  using const_iterator = std::list<KCC_GUI_Action*>::const_iterator;
  /// First (oldest) entry, for range-for.
  const_iterator begin() const noexcept { return m_actions.begin(); }
  /// Past the last (newest) entry.
  const_iterator end() const noexcept { return m_actions.end(); }

 private:
  friend class KCC_GUI_ActionManager;

  // Replaces the whole contents: bumps the generation so that managers drop their cursors into the old one.
  void NewGeneration() noexcept;

  std::list<KCC_GUI_Action*> m_actions;
  // Counts the times the contents were emptied or replaced as a whole; a manager compares it with the value
  // it saw when it set its cursor. Appending does not change it (list positions stay valid).
  std::uint64_t m_generation;
};
