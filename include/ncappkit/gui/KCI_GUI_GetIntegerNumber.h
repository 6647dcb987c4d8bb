// SPDX-License-Identifier: MIT
// KCI_GUI_GetIntegerNumber: an input field in which the user types a whole number that an action asks for
// (a number of copies, a tool number). The client implements it over its own edit control or dialog.
//
//   m_count.SetPrompt("Number of holes");        // m_count: a KCI_GUI_GetIntegerNumber&
//   m_count.SetRange(1, 100);
//   m_count.SetValue(4);
//   m_count.SetVisible(true);
//   ...
//   int holes = 0;
//   if (m_count.GetValue(holes)) { ... }         // a valid number in 1..100 was confirmed
//
// Rules worth knowing:
// - The library itself never calls these operations; they are for the client's own actions.
// See docs/behaviours.md#gui-actions.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"

/// An input field for a whole number, implemented by the client.
class NCAPPKIT_EXPORT KCI_GUI_GetIntegerNumber {
 public:
  /// Nothing to set up: the interface holds no data.
  KCI_GUI_GetIntegerNumber() = default;
  /// Nothing to copy: the interface holds no data.
  KCI_GUI_GetIntegerNumber(const KCI_GUI_GetIntegerNumber&) = default;
  /// Nothing to assign: the interface holds no data; returns *this.
  KCI_GUI_GetIntegerNumber& operator=(const KCI_GUI_GetIntegerNumber&) = default;
  virtual ~KCI_GUI_GetIntegerNumber();

  /// Show `prompt` beside the field, telling the user what to type.
  virtual void SetPrompt(const KCString& prompt) = 0;
  /// Accept only numbers from `minimum` to `maximum`, both included.
  virtual void SetRange(int minimum, int maximum) = 0;
  /// Put `value` into the field as the proposed entry.
  virtual void SetValue(int value) = 0;
  /// Write the confirmed number to `value` and return true; false (value untouched) while no valid number
  /// within the range is confirmed.
  virtual bool GetValue(int& value) const = 0;
  /// Show (true) or hide (false) the field.
  virtual void SetVisible(bool visible) = 0;
};
