// SPDX-License-Identifier: MIT
// KCI_GUI_GetString: an input field in which the user types a text that an action asks for (a name, a
// label). The client implements it over its own edit control or dialog.
//
//   m_input.SetPrompt("Text of the label");      // m_input: a KCI_GUI_GetString&
//   m_input.SetValue("Hole 1");
//   m_input.SetVisible(true);
//   ...
//   KCString text;
//   if (m_input.GetValue(text)) { ... }          // the user confirmed a text
//
// Rules worth knowing:
// - The library itself never calls these operations; they are for the client's own actions.
// See docs/behaviours.md#gui-actions.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"

/// An input field for a text, implemented by the client.
class NCAPPKIT_EXPORT KCI_GUI_GetString {
 public:
  /// Nothing to set up: the interface holds no data.
  KCI_GUI_GetString() = default;
  /// Nothing to copy: the interface holds no data.
  KCI_GUI_GetString(const KCI_GUI_GetString&) = default;
  /// Nothing to assign: the interface holds no data; returns *this.
  KCI_GUI_GetString& operator=(const KCI_GUI_GetString&) = default;
  virtual ~KCI_GUI_GetString();

  /// Show `prompt` beside the field, telling the user what to type.
  virtual void SetPrompt(const KCString& prompt) = 0;
  /// Put `text` into the field as the proposed entry.
  virtual void SetValue(const KCString& text) = 0;
  /// Write the confirmed entry to `text` and return true; false (text untouched) while nothing is confirmed.
  virtual bool GetValue(KCString& text) const = 0;
  /// Show (true) or hide (false) the field.
  virtual void SetVisible(bool visible) = 0;
};
