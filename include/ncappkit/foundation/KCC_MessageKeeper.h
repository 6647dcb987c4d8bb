// SPDX-License-Identifier: MIT
// KCC_MessageKeeper: a silent reporter that keeps what it is given, so that a program can run the library's
// classes without message boxes and still tell the user what went wrong.
//
// It shows nothing. It holds the current header and message as the other reporters do, records every text
// that SetMessage or AddMessage gives it, and records a (header, message) pair at every DoReport.
//
//   KCC_MessageKeeper keeper;
//   KCC_MathExpression expr(keeper);
//   double value = 0.0;
//   if (!expr.ParseMathExpression("2*-3") || !expr.DoMathExpression(value))
//     std::cerr << keeper.GetLastMessage() << '\n';   // what the evaluator said last: the fault
//
// Rules worth knowing:
// - The evaluator of typed-in arithmetic sends every intermediate list and its faults with SetMessage and
//   never calls DoReport, so its fault is GetLastMessage() after a failed evaluation, not a report.
// - At most kMaxKept messages and kMaxKept reports are kept; older ones drop off the front, so a caller that
//   never clears cannot grow memory without bound.
// - ClearMessage empties the current header and message only; ClearKept forgets the kept history too.
// See docs/behaviours.md#message-reporters.
#pragma once

#include <cstddef>
#include <deque>

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCC_MessageReporter.h"
#include "ncappkit/foundation/KCString.h"
#include "ncappkit/foundation/KCStringList.h"

/// A silent reporter that keeps the messages and reports it is given (a bounded history).
class NCAPPKIT_EXPORT KCC_MessageKeeper : public KCC_MessageReporter {
 public:
  /// One DoReport: the header and the message as they stood then.
  struct Report {
    KCString header;   ///< the header (caption) at DoReport
    KCString message;  ///< the message text at DoReport
  };
  /// Most messages and most reports kept; the oldest goes when one more arrives.
  static constexpr std::size_t kMaxKept = 1000;

  /// Nothing kept, empty header and message.
  KCC_MessageKeeper() = default;
  /// A copy with the same current texts and history.
  KCC_MessageKeeper(const KCC_MessageKeeper&) = default;
  /// Take over the current texts and history of `other`.
  KCC_MessageKeeper& operator=(const KCC_MessageKeeper&) = default;
  ~KCC_MessageKeeper() override;

  /// Set the current header.
  void SetHeader(const KCString& header) override;
  /// Replace the current message and keep `message` as the newest message.
  void SetMessage(const KCString& message) override;
  /// Append a line feed and `text` to the current message and keep `text` as the newest message.
  void AddMessage(const KCString& text) override;
  /// Keep the current header and message as the newest report; nothing is shown.
  void DoReport() override;
  /// Empty the current header and message; the kept messages and reports stay.
  void ClearMessage() override;

  /// The current header.
  const KCString& GetHeader() const noexcept { return m_header; }
  /// The current message, as SetMessage and AddMessage built it.
  const KCString& GetText() const noexcept { return m_text; }
  /// The newest text given to SetMessage or AddMessage; "" when none was kept.
  KCString GetLastMessage() const;
  /// Every kept text given to SetMessage or AddMessage, oldest first.
  KCStringList GetMessages() const;
  /// Number of kept reports.
  std::size_t GetReportCount() const noexcept { return m_reports.size(); }
  /// The newest report; a report with empty texts when there is none.
  Report GetLastReport() const;
  /// Every kept report, oldest first.
  const std::deque<Report>& GetReports() const noexcept { return m_reports; }
  /// Forget the kept messages and reports and empty the current header and message.
  void ClearKept();

 private:
  void Keep(const KCString& message);

  KCString m_header;
  KCString m_text;
  std::deque<KCString> m_messages;
  std::deque<Report> m_reports;
};
