// SPDX-License-Identifier: MIT
// KCC_GUI_ZoomAreaVisitor: the visitor interface over zoom areas. Implement Visit and hand the visitor to
// KCC_GUI_ZoomArea::Accept or KCC_GUI_ZoomAreaList::Accept.
//
//   class CountValid : public KCC_GUI_ZoomAreaVisitor {
//    public:
//     bool Visit(KCC_GUI_ZoomArea& a) override { count += a.Valid() ? 1 : 0; return true; }
//     int count = 0;
//   };
//
// Rules worth knowing:
// - Returning false from Visit stops a list walk; the list's Accept then returns false.
// See docs/behaviours.md#zoom-areas.
#pragma once

#include "ncappkit/export.h"

class KCC_GUI_ZoomArea;

/// Visitor over zoom areas.
class NCAPPKIT_EXPORT KCC_GUI_ZoomAreaVisitor {
 public:
  /// Nothing to set up: the class holds no data.
  KCC_GUI_ZoomAreaVisitor() = default;
  /// Nothing to copy: the class holds no data.
  KCC_GUI_ZoomAreaVisitor(const KCC_GUI_ZoomAreaVisitor&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KCC_GUI_ZoomAreaVisitor& operator=(const KCC_GUI_ZoomAreaVisitor&) = default;
  virtual ~KCC_GUI_ZoomAreaVisitor();

  /// Called with one area; false stops a list walk.
  virtual bool Visit(KCC_GUI_ZoomArea& area) = 0;
};
