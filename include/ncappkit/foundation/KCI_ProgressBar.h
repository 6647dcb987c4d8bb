// SPDX-License-Identifier: MIT
// KCI_ProgressBar: a progress display that the client implements, which can also show a message.
//
// The client implements the seven pure operations; SetKccMessage is the library's entry point for showing a
// message and forwards its arguments unchanged to ShowMessage. The table of virtual operations is, after the
// destructor: SetRange, SetPosition, StepIt, SetKccMessage, ShowMessage, ClearMessage, SetVisible,
// IsCanceled.
//
//   class MyProgress : public KCI_ProgressBar { ... };
//   MyProgress bar;
//   bar.SetRange(0, 100);
//   bar.SetPosition(40);
//   bar.SetKccMessage("Loading", lines);     // calls bar.ShowMessage("Loading", lines)
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"
#include "ncappkit/foundation/KCStringList.h"

/// A progress display implemented by the client, which can also show a message.
class NCAPPKIT_EXPORT KCI_ProgressBar {
 public:
  /// Nothing to set up: the class holds no data.
  KCI_ProgressBar() = default;
  /// Nothing to copy: the class holds no data.
  KCI_ProgressBar(const KCI_ProgressBar&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KCI_ProgressBar& operator=(const KCI_ProgressBar&) = default;
  virtual ~KCI_ProgressBar();

  /// Set the values of the empty and of the full bar.
  virtual void SetRange(int minimum, int maximum) = 0;
  /// Move the bar to `position` (within the range).
  virtual void SetPosition(int position) = 0;
  /// Advance the bar by one step.
  virtual void StepIt() = 0;
  /// Show a message: calls ShowMessage(header, lines) with the arguments unchanged.
  virtual void SetKccMessage(const KCString& header, const KCStringList& lines);
  /// Show `header` and the lines of a message beside the progress.
  virtual void ShowMessage(const KCString& header, const KCStringList& lines) = 0;
  /// Remove the message shown.
  virtual void ClearMessage() = 0;
  /// Show (true) or hide (false) the progress display.
  virtual void SetVisible(bool visible) = 0;
  /// True when the user asked to cancel the work in progress.
  virtual bool IsCanceled() const = 0;
};
