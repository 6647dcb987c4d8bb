// SPDX-License-Identifier: MIT
// KCI_GUI_MouseButtons: the state of the mouse buttons during a mouse move, as the client reports it. An
// action's MouseMove receives it, so that a drag (move with the left button held) can be told from a hover.
//
//   class MyButtons : public KCI_GUI_MouseButtons {
//    public:
//     explicit MyButtons(unsigned int flags) : m_flags(flags) {}
//     bool LeftButtonPressed() const override { return (m_flags & 1U) != 0; }
//     bool MiddleButtonPressed() const override { return (m_flags & 16U) != 0; }
//     bool RightButtonPressed() const override { return (m_flags & 2U) != 0; }
//     unsigned int m_flags;
//   };
//
// Rules worth knowing:
// - The library itself never calls these queries; it only hands the object on to the action.
// See docs/behaviours.md#gui-actions.
#pragma once

#include "ncappkit/export.h"

/// The mouse buttons held down during a mouse move, implemented by the client.
class NCAPPKIT_EXPORT KCI_GUI_MouseButtons {
 public:
  /// Nothing to set up: the interface holds no data.
  KCI_GUI_MouseButtons() = default;
  /// Nothing to copy: the interface holds no data.
  KCI_GUI_MouseButtons(const KCI_GUI_MouseButtons&) = default;
  /// Nothing to assign: the interface holds no data; returns *this.
  KCI_GUI_MouseButtons& operator=(const KCI_GUI_MouseButtons&) = default;
  virtual ~KCI_GUI_MouseButtons();

  /// True while the left mouse button is held down.
  virtual bool LeftButtonPressed() const = 0;
  /// True while the middle mouse button (or wheel) is held down.
  virtual bool MiddleButtonPressed() const = 0;
  /// True while the right mouse button is held down.
  virtual bool RightButtonPressed() const = 0;
};
