// SPDX-License-Identifier: MIT
// RecordingReporter: a message reporter for tests that records every call in order, so a test can check
// what a class under test reported.
//
// Besides the raw call list it keeps the header and message the way a message box builds them (SetMessage
// replaces, AddMessage appends a line feed and the text, ClearMessage empties both) and a snapshot of header
// and message at every DoReport.
//
//   RecordingReporter reporter;
//   Evaluator eval(reporter);
//   eval.Run("1/0");
//   EXPECT_EQ(reporter.Log(), "ClearMessage()|SetHeader(Error)|SetMessage(Division by zero)|DoReport()");
//   ASSERT_EQ(reporter.Reports().size(), 1u);
//   EXPECT_EQ(reporter.Reports()[0].message, "Division by zero");
#pragma once

#include <string>
#include <vector>

#include "ncappkit/foundation/KCC_MessageReporter.h"
#include "ncappkit/foundation/KCString.h"

class RecordingReporter : public KCC_MessageReporter {
 public:
  /// The reporter operations.
  enum class Op { SetHeader, SetMessage, AddMessage, DoReport, ClearMessage };
  /// One recorded call; `text` is the argument ("" for DoReport and ClearMessage).
  struct Call {
    Op op;
    KCString text;
  };
  /// Header and message at the moment of one DoReport.
  struct Report {
    KCString header;
    KCString message;
  };

  void SetHeader(const KCString& header) override;
  void SetMessage(const KCString& message) override;
  void AddMessage(const KCString& text) override;
  void DoReport() override;
  void ClearMessage() override;

  /// All calls in the order they were made.
  const std::vector<Call>& Calls() const noexcept { return m_calls; }
  /// Header and message at each DoReport, in order.
  const std::vector<Report>& Reports() const noexcept { return m_reports; }
  /// Number of DoReport calls.
  int ReportCount() const noexcept { return static_cast<int>(m_reports.size()); }
  /// The current header, as a message box would hold it.
  const KCString& Header() const noexcept { return m_header; }
  /// The current message, as a message box would hold it.
  const KCString& Message() const noexcept { return m_message; }
  /// The calls as one text: "Name(argument)" joined with '|', e.g. "SetHeader(Error)|DoReport()".
  std::string Log() const;
  /// Forget everything recorded.
  void Reset();

  /// Name of an operation ("SetHeader", ...).
  static const char* OpName(Op op) noexcept;

 private:
  std::vector<Call> m_calls;
  std::vector<Report> m_reports;
  KCString m_header;
  KCString m_message;
};
