// SPDX-License-Identifier: MIT
// KCC_GUI_ZoomAreaCreator: makes new zoom areas at the end of one zoom area list, which owns them. It is the
// one place where zoom areas are allocated for a list.
//
//   KCC_GUI_ZoomAreaList history;
//   KCC_GUI_ZoomAreaCreator creator(history);
//   KCC_GUI_ZoomArea* area = creator.CreateZoomArea(0.0, 0.0, 100.0, 50.0);  // owned by `history`
//   if (creator.CreateZoomArea(KCC_GUI_ZoomArea()) == nullptr) { ... }   // invalid: nothing added
//
// Rules worth knowing:
// - Creating from an area copies only its four current values: the new area's previous values equal its
//   current ones, whatever the source's previous values were.
// - An area that is not Valid gives null and the list stays as it was.
// See docs/behaviours.md#zoom-areas.
#pragma once

#include "ncappkit/export.h"

class KCC_GUI_ZoomArea;
class KCC_GUI_ZoomAreaList;

/// Makes new zoom areas at the end of one zoom area list.
class NCAPPKIT_EXPORT KCC_GUI_ZoomAreaCreator {
 public:
  /// A creator that appends to `target`; the list must outlive the creator.
  explicit KCC_GUI_ZoomAreaCreator(KCC_GUI_ZoomAreaList& target);
  /// Refers to the same list.
  KCC_GUI_ZoomAreaCreator(const KCC_GUI_ZoomAreaCreator& other);
  /// Refers to the other creator's list from now on; returns *this.
  KCC_GUI_ZoomAreaCreator& operator=(const KCC_GUI_ZoomAreaCreator& other);
  /// Nothing to release: the list, not the creator, owns the areas.
  ~KCC_GUI_ZoomAreaCreator();

  /// A new area (xMin, yMin, xMax, yMax), appended to the list (which owns it); never null.
  KCC_GUI_ZoomArea* CreateZoomArea(double xMin, double yMin, double xMax, double yMax);
  /// A new area from the current values of `area`, appended to the list; null (and nothing added) when
  /// `area` is not Valid.
  KCC_GUI_ZoomArea* CreateZoomArea(const KCC_GUI_ZoomArea& area);

 private:
  KCC_GUI_ZoomAreaList* m_target;
};
