// SPDX-License-Identifier: MIT
// KCC_GUI_ActionVisitor: the visitor interface over GUI actions.
//
// Implement Visit and hand the visitor to KCC_GUI_Action::Accept or KCC_GUI_ActionList::Accept; returning
// false stops a list's walk:
//
//   class FindMove : public KCC_GUI_ActionVisitor {   // stops at the first MoveAction
//    public:
//     bool Visit(KCC_GUI_Action& a) override {
//       found = dynamic_cast<MoveAction*>(&a) != nullptr;
//       return !found;
//     }
//     bool found = false;
//   };
//
// See docs/behaviours.md#gui-actions.
#pragma once

#include "ncappkit/export.h"

class KCC_GUI_Action;

/// Visitor over GUI actions.
class NCAPPKIT_EXPORT KCC_GUI_ActionVisitor {
 public:
  /// Nothing to set up: the class holds no data.
  KCC_GUI_ActionVisitor() = default;
  /// Nothing to copy: the class holds no data.
  KCC_GUI_ActionVisitor(const KCC_GUI_ActionVisitor&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KCC_GUI_ActionVisitor& operator=(const KCC_GUI_ActionVisitor&) = default;
  virtual ~KCC_GUI_ActionVisitor();

  /// Called with one action; false stops a list's walk, true lets it go on.
  virtual bool Visit(KCC_GUI_Action& action) = 0;
};
