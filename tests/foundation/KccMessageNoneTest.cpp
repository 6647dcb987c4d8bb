// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>

#include "ncappkit/foundation/KCC_MessageReporter.h"
#include "ncappkit/foundation/KCPlatform.h"

namespace {

int g_boxes = 0;

unsigned int CountingHandler(HWND, const char*, const char*, unsigned int) {
  ++g_boxes;
  return 1;
}

// A class that reports through whatever reporter it is given, as the library's own classes do.
class Worker {
 public:
  explicit Worker(KCC_MessageReporter& reporter) : m_reporter(reporter) {}
  void Fail() {
    m_reporter.ClearMessage();
    m_reporter.SetHeader("Worker");
    m_reporter.SetMessage("failed");
    m_reporter.AddMessage("details");
    m_reporter.DoReport();
  }

 private:
  KCC_MessageReporter& m_reporter;
};

TEST(KccMessageNone, ReportingThroughItShowsNoBoxAndWritesNothing) {
  g_boxes = 0;
  const KCC_MessageBoxHandler previous = KCC_SetMessageBoxHandler(&CountingHandler);
  KCC_MessageNone none;
  Worker worker(none);
  ::testing::internal::CaptureStdout();
  ::testing::internal::CaptureStderr();

  worker.Fail();

  const std::string out = ::testing::internal::GetCapturedStdout();
  const std::string err = ::testing::internal::GetCapturedStderr();
  KCC_SetMessageBoxHandler(previous);
  EXPECT_EQ(g_boxes, 0);
  EXPECT_EQ(out, "");
  EXPECT_EQ(err, "");
}

TEST(KccMessageNone, KeepsNoStateSoCopiesAreInterchangeable) {
  KCC_MessageNone none;
  none.SetHeader("H");
  none.SetMessage("M");
  none.AddMessage("A");
  none.DoReport();
  none.ClearMessage();

  KCC_MessageNone copy(none);
  KCC_MessageNone assigned;
  assigned = none;

  // The class declares no field: it is no bigger than its table pointer.
  EXPECT_EQ(sizeof(KCC_MessageNone), sizeof(void*));
  EXPECT_EQ(sizeof(copy), sizeof(assigned));
}

TEST(KccMessageNone, IsAMessageReporter) {
  KCC_MessageNone none;
  KCI_MessageReporter* root = &none;

  EXPECT_NE(dynamic_cast<KCC_MessageReporter*>(root), nullptr);
  EXPECT_NE(dynamic_cast<KCC_MessageNone*>(root), nullptr);
}

}  // namespace
