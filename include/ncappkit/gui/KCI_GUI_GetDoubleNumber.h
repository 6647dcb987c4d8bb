// SPDX-License-Identifier: MIT
// KCI_GUI_GetDoubleNumber: an input field in which the user types a real number that an action asks for (a
// length, an angle). The client implements it over its own edit control or dialog.
//
//   m_radius.SetPrompt("Radius");                // m_radius: a KCI_GUI_GetDoubleNumber&
//   m_radius.SetRange(0.001, 1000.0);
//   m_radius.SetValue(12.5);
//   m_radius.SetVisible(true);
//   ...
//   double r = 0.0;
//   if (m_radius.GetValue(r)) { ... }            // a valid number in the range was confirmed
//
// Rules worth knowing:
// - The library itself never calls these operations; they are for the client's own actions.
// See docs/behaviours.md#gui-actions.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"

/// An input field for a real number, implemented by the client.
class NCAPPKIT_EXPORT KCI_GUI_GetDoubleNumber {
 public:
  /// Nothing to set up: the interface holds no data.
  KCI_GUI_GetDoubleNumber() = default;
  /// Nothing to copy: the interface holds no data.
  KCI_GUI_GetDoubleNumber(const KCI_GUI_GetDoubleNumber&) = default;
  /// Nothing to assign: the interface holds no data; returns *this.
  KCI_GUI_GetDoubleNumber& operator=(const KCI_GUI_GetDoubleNumber&) = default;
  virtual ~KCI_GUI_GetDoubleNumber();

  /// Show `prompt` beside the field, telling the user what to type.
  virtual void SetPrompt(const KCString& prompt) = 0;
  /// Accept only numbers from `minimum` to `maximum`, both included.
  virtual void SetRange(double minimum, double maximum) = 0;
  /// Put `value` into the field as the proposed entry.
  virtual void SetValue(double value) = 0;
  /// Write the confirmed number to `value` and return true; false (value untouched) while no valid number
  /// within the range is confirmed.
  virtual bool GetValue(double& value) const = 0;
  /// Show (true) or hide (false) the field.
  virtual void SetVisible(bool visible) = 0;
};
