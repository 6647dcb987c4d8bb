// SPDX-License-Identifier: MIT
// KCI_MessageReporter, KCC_MessageReporter and KCC_MessageNone: the sink that errors and information are sent
// to.
//
// A caller fills a header (caption) and a message, possibly in several pieces, and then asks the reporter to
// report. Classes that must report hold a `KCC_MessageReporter&` and never know which kind they were given:
// `KCC_MessageBox` (KCC_MessageBox.h) shows a modal box, `KCC_MessageNone` swallows everything (batch use,
// callers that want no dialogs).
//
//   KCC_MessageNone quiet;
//   KCC_MessageReporter& reporter = quiet;
//   reporter.SetHeader("Expression");
//   reporter.SetMessage("Division by zero");
//   reporter.DoReport();                       // nothing happens
//
// See docs/behaviours.md#message-reporters.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"

/// Abstract root of the reporters. The table of virtual operations is, after the destructor: SetHeader,
/// SetMessage, AddMessage, DoReport, ClearMessage.
class NCAPPKIT_EXPORT KCI_MessageReporter {
 public:
  /// Nothing to set up: the class holds no data.
  KCI_MessageReporter() = default;
  /// Nothing to copy: the class holds no data.
  KCI_MessageReporter(const KCI_MessageReporter&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KCI_MessageReporter& operator=(const KCI_MessageReporter&) = default;
  virtual ~KCI_MessageReporter();

  /// Set the header (caption) of the next report.
  virtual void SetHeader(const KCString& header) = 0;
  /// Replace the message text.
  virtual void SetMessage(const KCString& message) = 0;
  /// Append a line feed and `text` to the message text.
  virtual void AddMessage(const KCString& text) = 0;
  /// Report the header and message as an error.
  virtual void DoReport() = 0;
  /// Empty the message text and the header.
  virtual void ClearMessage() = 0;
};

/// The reporter type that clients and other classes hold by reference; still abstract.
class NCAPPKIT_EXPORT KCC_MessageReporter : public KCI_MessageReporter {
 public:
  /// Nothing to set up: the class holds no data.
  KCC_MessageReporter() = default;
  /// Nothing to copy: the class holds no data.
  KCC_MessageReporter(const KCC_MessageReporter&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KCC_MessageReporter& operator=(const KCC_MessageReporter&) = default;
  ~KCC_MessageReporter() override;

  /// Set the header (caption) of the next report.
  void SetHeader(const KCString& header) override = 0;
  /// Replace the message text.
  void SetMessage(const KCString& message) override = 0;
  /// Append a line feed and `text` to the message text.
  void AddMessage(const KCString& text) override = 0;
  /// Report the header and message as an error.
  void DoReport() override = 0;
  /// Empty the message text and the header.
  void ClearMessage() override = 0;
};

/// The silent reporter: every operation does nothing at all and no text is kept.
class NCAPPKIT_EXPORT KCC_MessageNone : public KCC_MessageReporter {
 public:
  /// Nothing to set up: the class holds no data.
  KCC_MessageNone() = default;
  /// Nothing to copy: the class holds no data.
  KCC_MessageNone(const KCC_MessageNone&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KCC_MessageNone& operator=(const KCC_MessageNone&) = default;
  ~KCC_MessageNone() override;

  /// Does nothing.
  void SetHeader(const KCString& header) override;
  /// Does nothing.
  void SetMessage(const KCString& message) override;
  /// Does nothing.
  void AddMessage(const KCString& text) override;
  /// Does nothing.
  void DoReport() override;
  /// Does nothing.
  void ClearMessage() override;
};
