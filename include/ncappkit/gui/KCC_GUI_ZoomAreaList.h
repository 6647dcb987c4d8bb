// SPDX-License-Identifier: MIT
// KCC_GUI_ZoomAreaList: an ordered, owning list of zoom areas, for example the zoom history of a window.
// Fill it with AddZoomArea or a KCC_GUI_ZoomAreaCreator, walk it with range-for or a visitor.
//
//   KCC_GUI_ZoomAreaList history;
//   KCC_GUI_ZoomAreaCreator creator(history);
//   creator.CreateZoomArea(0.0, 0.0, 100.0, 50.0);  // owned by `history`
//   for (KCC_GUI_ZoomArea* area : history) { ... }
//   history.ClearWithContents();                   // deletes the areas
//
// Ownership, in three rules:
// - Copies share. Copying a list copies only the pointers: both lists then refer to the same areas and both
//   would delete them. Keep one copy alive only, or call Detach on all copies but one.
// - Moves transfer. A moved-to list takes the areas over; the moved-from list is empty and usable. So a list
//   can be returned from a function or kept in a std::vector safely.
// - Clone duplicates. Clone gives an independent list with copies of the areas.
// The list deletes its areas in ClearWithContents, a move assignment onto it and its destructor.
//
// Rules worth knowing:
// - A null pointer can be added; it stays an entry (counted, walked by range-for) and Accept skips it.
// - Accept walks front to back and stops at the first visitor that returns false.
// See docs/behaviours.md#zoom-areas.
#pragma once

#include <list>

#include "ncappkit/export.h"

class KCC_GUI_ZoomArea;
class KCC_GUI_ZoomAreaVisitor;

/// An ordered, owning list of zoom areas; a copy shares the areas (see the ownership note).
class NCAPPKIT_EXPORT KCC_GUI_ZoomAreaList {
 public:
  /// Empty list.
  KCC_GUI_ZoomAreaList();
  /// Copies the pointers (no copies of the areas; see the ownership note above).
  KCC_GUI_ZoomAreaList(const KCC_GUI_ZoomAreaList& other);
  /// Copies the pointers; the areas held before are not deleted. Returns *this.
  KCC_GUI_ZoomAreaList& operator=(const KCC_GUI_ZoomAreaList& other);
  /// Takes over the areas of `other`, which is left empty.
  KCC_GUI_ZoomAreaList(KCC_GUI_ZoomAreaList&& other) noexcept;
  /// Deletes the areas held before, then takes over those of `other`, which is left empty. Moving a list
  /// onto itself changes nothing. Returns *this.
  KCC_GUI_ZoomAreaList& operator=(KCC_GUI_ZoomAreaList&& other) noexcept;
  /// Deletes every area of the list (ClearWithContents).
  virtual ~KCC_GUI_ZoomAreaList();

  /// Append `area` at the end and take ownership of it (a null pointer is kept as an empty entry).
  void AddZoomArea(KCC_GUI_ZoomArea* area);
  /// Number of entries, null entries included.
  int GetNumberOfZoomAreas() const;
  /// True when the list has no entry.
  bool IsEmpty() const;
  /// The area of the first entry, or null when the list is empty (or that entry is null).
  KCC_GUI_ZoomArea* GetFirst() const;
  /// The area of the last entry, or null when the list is empty (or that entry is null).
  KCC_GUI_ZoomArea* GetLast() const;

  /// Delete every non-null area, then empty the list.
  void ClearWithContents();
  /// Empty the list without deleting the areas (for a list that shares them with a copy).
  void Detach();
  /// An independent list holding a copy of every area (null entries stay null).
  KCC_GUI_ZoomAreaList Clone() const;

  /// Iterator over the entries: each is an area pointer, null for an entry added as null.
  using const_iterator = std::list<KCC_GUI_ZoomArea*>::const_iterator;
  /// First entry, for range-for.
  const_iterator begin() const noexcept { return m_areas.begin(); }
  /// Past the last entry.
  const_iterator end() const noexcept { return m_areas.end(); }

  /// The visitor on every non-null area, front to back; false as soon as one Visit returns false, else true.
  bool Accept(KCC_GUI_ZoomAreaVisitor& visitor);

 private:
  std::list<KCC_GUI_ZoomArea*> m_areas;
};
