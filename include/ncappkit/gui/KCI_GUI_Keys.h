// SPDX-License-Identifier: MIT
// KCI_GUI_Keys: the state of the modifier keys (shift, control, alt) at a mouse event. Every mouse call of an
// action receives one; KCC_GUI_Keys is the library's implementation over the key flags of a mouse message.
//
//   class MyAction : public KCC_GUI_Action {
//     void MouseLeftDown(int x, int y, const KCI_GUI_Keys& keys) override {
//       if (keys.ShiftKeyPressed()) { ... }   // e.g. snap to the grid
//     }
//   };
//
// Rules worth knowing:
// - The three queries are const and say only what was held down at the event; they read no live key state.
// See docs/behaviours.md#gui-actions.
#pragma once

#include "ncappkit/export.h"

/// The modifier keys held down at a mouse event, as the client reports them.
class NCAPPKIT_EXPORT KCI_GUI_Keys {
 public:
  /// Nothing to set up: the interface holds no data.
  KCI_GUI_Keys() = default;
  /// Nothing to copy: the interface holds no data.
  KCI_GUI_Keys(const KCI_GUI_Keys&) = default;
  /// Nothing to assign: the interface holds no data; returns *this.
  KCI_GUI_Keys& operator=(const KCI_GUI_Keys&) = default;
  virtual ~KCI_GUI_Keys();

  /// True when a shift key was held down.
  virtual bool ShiftKeyPressed() const = 0;
  /// True when a control key was held down.
  virtual bool ControlPressed() const = 0;
  /// True when an alt key was held down.
  virtual bool AltKeyPressed() const = 0;
};
