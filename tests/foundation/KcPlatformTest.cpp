// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>

#include "ncappkit/foundation/KCFileMan.h"
#include "ncappkit/foundation/KCPlatform.h"

namespace {

struct Seen {
  std::string text;
  std::string caption;
  unsigned int style = 0;
  int calls = 0;
};
Seen g_seen;

unsigned int RecordingBox(HWND, const char* text, const char* caption, unsigned int style) {
  g_seen.text = text;
  g_seen.caption = caption;
  g_seen.style = style;
  ++g_seen.calls;
  return 7;
}

}  // namespace

TEST(KcPlatform, InstalledHandlerReceivesTextsAndStyle) {
  g_seen = Seen{};
  const KCC_MessageBoxHandler previous = KCC_SetMessageBoxHandler(&RecordingBox);
  const unsigned int answer = KCC_ShowMessageBox(nullptr, "Body", "Caption", 0x34);
  KCC_SetMessageBoxHandler(previous);
  EXPECT_EQ(answer, 7u);
  EXPECT_EQ(g_seen.text, "Body");
  EXPECT_EQ(g_seen.caption, "Caption");
  EXPECT_EQ(g_seen.style, 0x34u);
}

TEST(KcPlatform, SetHandlerReturnsThePreviousOne) {
  const KCC_MessageBoxHandler original = KCC_SetMessageBoxHandler(&RecordingBox);
  const KCC_MessageBoxHandler mine = KCC_SetMessageBoxHandler(original);
  EXPECT_EQ(mine, &RecordingBox);
}

TEST(KcPlatform, NullHandlerRestoresTheDefault) {
  const KCC_MessageBoxHandler original = KCC_SetMessageBoxHandler(&RecordingBox);
  KCC_SetMessageBoxHandler(nullptr);
  const KCC_MessageBoxHandler restored = KCC_SetMessageBoxHandler(original);
  EXPECT_EQ(restored, original);
}

TEST(KcPlatform, NullTextsReachHandlerAsEmptyStrings) {
  g_seen = Seen{};
  const KCC_MessageBoxHandler previous = KCC_SetMessageBoxHandler(&RecordingBox);
  KCC_ShowMessageBox(nullptr, nullptr, nullptr, 0);
  KCC_SetMessageBoxHandler(previous);
  EXPECT_EQ(g_seen.calls, 1);
  EXPECT_EQ(g_seen.text, "");
  EXPECT_EQ(g_seen.caption, "");
}

TEST(KcPlatform, DefaultAnswerIsFirstButtonOfEachSet) {
  EXPECT_EQ(KCC_DefaultMessageBoxAnswer(0), 1u);  // OK
  EXPECT_EQ(KCC_DefaultMessageBoxAnswer(1), 1u);  // OK, Cancel
  EXPECT_EQ(KCC_DefaultMessageBoxAnswer(2), 3u);  // Abort, Retry, Ignore
  EXPECT_EQ(KCC_DefaultMessageBoxAnswer(3), 6u);  // Yes, No, Cancel
  EXPECT_EQ(KCC_DefaultMessageBoxAnswer(4), 6u);  // Yes, No
  EXPECT_EQ(KCC_DefaultMessageBoxAnswer(5), 4u);  // Retry, Cancel
}

TEST(KcPlatform, DefaultAnswerFollowsSecondAndThirdDefaultButton) {
  EXPECT_EQ(KCC_DefaultMessageBoxAnswer(1 | 0x100), 2u);  // Cancel
  EXPECT_EQ(KCC_DefaultMessageBoxAnswer(2 | 0x200), 5u);  // Ignore
  EXPECT_EQ(KCC_DefaultMessageBoxAnswer(3 | 0x200), 2u);  // Cancel
  EXPECT_EQ(KCC_DefaultMessageBoxAnswer(4 | 0x100), 7u);  // No
}

TEST(KcPlatform, DefaultAnswerIgnoresIconBits) {
  EXPECT_EQ(KCC_DefaultMessageBoxAnswer(4 | 0x30 | 0x100), 7u);
}

TEST(KcPlatform, DefaultAnswerFallsBackToFirstButtonWhenSetHasNoSuchButton) {
  EXPECT_EQ(KCC_DefaultMessageBoxAnswer(0 | 0x200), 1u);
  EXPECT_EQ(KCC_DefaultMessageBoxAnswer(5 | 0x200), 4u);
}

TEST(KcPlatform, DefaultAnswerOfUnknownSetIsOk) {
  EXPECT_EQ(KCC_DefaultMessageBoxAnswer(9), 1u);
}

TEST(KcPlatform, ExecutablePathNamesThisTestProgram) {
  const KCString path = KCC_GetExecutablePath();
  ASSERT_FALSE(path.empty());
  EXPECT_TRUE(KCFileMan::FileExists(path)) << path.str();
  EXPECT_NE(KCFileMan::ExtractFileNameNoExt(path).Find(KCString("ncappkit_foundation_tests")), KCString::npos)
      << path.str();
}

#if !defined(_WIN32)
TEST(KcPlatform, DefaultHandlerWritesCaptionAndTextToStderrAndAnswersTheDefaultButton) {
  const KCC_MessageBoxHandler previous = KCC_SetMessageBoxHandler(nullptr);
  ::testing::internal::CaptureStderr();

  // Yes/No box with the second button as default.
  const unsigned int answer = KCC_ShowMessageBox(nullptr, "Overwrite the file?", "Save", 0x4 | 0x20 | 0x100);

  const std::string err = ::testing::internal::GetCapturedStderr();
  KCC_SetMessageBoxHandler(previous);
  EXPECT_EQ(answer, 7u);
  EXPECT_EQ(err, "[Save] Overwrite the file?\n");
}
#endif
