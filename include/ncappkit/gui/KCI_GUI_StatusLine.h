// SPDX-License-Identifier: MIT
// KCI_GUI_StatusLine: the status line of the client's window, through which an action tells the user what
// it expects next. The client implements it over its own status bar.
//
//   void MyRectangleAction::MouseLeftDown(int x, int y, const KCI_GUI_Keys&) {
//     m_status.SetStatusText("Click the opposite corner");   // m_status: a KCI_GUI_StatusLine&
//   }
//
// Rules worth knowing:
// - The library itself never calls these operations; they are for the client's own actions.
// See docs/behaviours.md#gui-actions.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"

/// The status line of the client's window, implemented by the client.
class NCAPPKIT_EXPORT KCI_GUI_StatusLine {
 public:
  /// Nothing to set up: the interface holds no data.
  KCI_GUI_StatusLine() = default;
  /// Nothing to copy: the interface holds no data.
  KCI_GUI_StatusLine(const KCI_GUI_StatusLine&) = default;
  /// Nothing to assign: the interface holds no data; returns *this.
  KCI_GUI_StatusLine& operator=(const KCI_GUI_StatusLine&) = default;
  virtual ~KCI_GUI_StatusLine();

  /// Show `text` in the status line, replacing what was shown before.
  virtual void SetStatusText(const KCString& text) = 0;
  /// Empty the status line.
  virtual void ClearStatusText() = 0;
};
