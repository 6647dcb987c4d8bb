// SPDX-License-Identifier: MIT
// KCC_MessageKeeper: a silent reporter that keeps what it was given.
#include <gtest/gtest.h>

#include <string>

#include "ncappkit/foundation/KCC_MessageKeeper.h"
#include "ncappkit/foundation/KCPlatform.h"
#include "ncappkit/mathexpr/KCC_MathExpression.h"

namespace {

int g_boxes = 0;

unsigned int CountingHandler(HWND, const char*, const char*, unsigned int) {
  ++g_boxes;
  return 1;
}

}  // namespace

TEST(KccMessageKeeper, KeepsTheLastMessageAndAllBeforeIt) {
  KCC_MessageKeeper keeper;

  keeper.SetMessage("first");
  keeper.SetMessage("second");

  EXPECT_EQ(keeper.GetLastMessage().str(), "second");
  EXPECT_EQ(keeper.GetMessages(), KCStringList({"first", "second"}));
}

TEST(KccMessageKeeper, AddMessageExtendsTheCurrentTextAndIsKeptOnItsOwn) {
  KCC_MessageKeeper keeper;

  keeper.SetMessage("failed");
  keeper.AddMessage("details");

  EXPECT_EQ(keeper.GetText().str(), "failed\ndetails");
  EXPECT_EQ(keeper.GetLastMessage().str(), "details");
}

TEST(KccMessageKeeper, DoReportKeepsHeaderAndMessageAsTheyStood) {
  KCC_MessageKeeper keeper;
  keeper.SetHeader("Worker");
  keeper.SetMessage("failed");

  keeper.DoReport();
  keeper.SetMessage("later");

  ASSERT_EQ(keeper.GetReportCount(), 1u);
  EXPECT_EQ(keeper.GetLastReport().header.str(), "Worker");
  EXPECT_EQ(keeper.GetLastReport().message.str(), "failed");
}

TEST(KccMessageKeeper, ShowsNoMessageBox) {
  g_boxes = 0;
  const KCC_MessageBoxHandler old = KCC_SetMessageBoxHandler(&CountingHandler);
  KCC_MessageKeeper keeper;

  keeper.SetMessage("failed");
  keeper.DoReport();

  KCC_SetMessageBoxHandler(old);
  EXPECT_EQ(g_boxes, 0);
}

TEST(KccMessageKeeper, ClearMessageKeepsTheHistory) {
  KCC_MessageKeeper keeper;
  keeper.SetHeader("H");
  keeper.SetMessage("kept");
  keeper.DoReport();

  keeper.ClearMessage();

  EXPECT_EQ(keeper.GetHeader().str(), "");
  EXPECT_EQ(keeper.GetText().str(), "");
  EXPECT_EQ(keeper.GetLastMessage().str(), "kept");
  EXPECT_EQ(keeper.GetReportCount(), 1u);
}

TEST(KccMessageKeeper, ClearKeptForgetsEverything) {
  KCC_MessageKeeper keeper;
  keeper.SetMessage("kept");
  keeper.DoReport();

  keeper.ClearKept();

  EXPECT_TRUE(keeper.GetMessages().empty());
  EXPECT_EQ(keeper.GetReportCount(), 0u);
  EXPECT_EQ(keeper.GetLastReport().message.str(), "");
}

TEST(KccMessageKeeper, KeepsAtMostTheNewestMessagesAndReports) {
  KCC_MessageKeeper keeper;

  for (std::size_t i = 0; i < KCC_MessageKeeper::kMaxKept + 5; ++i) {
    keeper.SetMessage(KCString(std::to_string(i)));
    keeper.DoReport();
  }

  const KCStringList messages = keeper.GetMessages();
  ASSERT_EQ(messages.size(), KCC_MessageKeeper::kMaxKept);
  EXPECT_EQ(messages.front().str(), "5");
  EXPECT_EQ(keeper.GetReportCount(), KCC_MessageKeeper::kMaxKept);
  EXPECT_EQ(keeper.GetReports().front().message.str(), "5");
}

TEST(KccMessageKeeper, TellsWhyATypedInValueFailed) {
  KCC_MessageKeeper keeper;
  KCC_MathExpression expr(keeper);
  double value = 0.0;

  const bool ok = expr.ParseMathExpression("2*-3") && expr.DoMathExpression(value);

  EXPECT_FALSE(ok);
  EXPECT_EQ(keeper.GetLastMessage().str(), "Apply operator : right item is not an operand");
}
