// SPDX-License-Identifier: MIT
// KCI_FrmMessageBox: a message form that the client draws itself (instead of the system's message box).
//
// The library only declares the interface; the client implements all four operations and calls them from its
// own code.
//
//   class MyForm : public KCI_FrmMessageBox { ... };
//   MyForm form;
//   form.SetFormHeader("Warning");
//   form.SetFormMessage(lines);
//   int answer = form.ShowForm();     // 1 OK, 2 Cancel, ... as a system message box answers
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"
#include "ncappkit/foundation/KCStringList.h"

/// A message form that the client implements and draws itself.
class NCAPPKIT_EXPORT KCI_FrmMessageBox {
 public:
  /// Nothing to set up: the class holds no data.
  KCI_FrmMessageBox() = default;
  /// Nothing to copy: the class holds no data.
  KCI_FrmMessageBox(const KCI_FrmMessageBox&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KCI_FrmMessageBox& operator=(const KCI_FrmMessageBox&) = default;
  virtual ~KCI_FrmMessageBox();

  /// Set the caption of the form.
  virtual void SetFormHeader(const KCString& header) = 0;
  /// Set the lines of text the form shows, replacing earlier ones.
  virtual void SetFormMessage(const KCStringList& lines) = 0;
  /// Show the form modally; returns the button code that closed it (1 OK, 2 Cancel, 3 Abort, 4 Retry,
  /// 5 Ignore, 6 Yes, 7 No).
  virtual int ShowForm() = 0;
  /// Close the form if it is shown.
  virtual void CloseForm() = 0;
};
