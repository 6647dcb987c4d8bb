// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "ncappkit/foundation/KCC_MessageBox.h"
#include "ncappkit/foundation/KCPlatform.h"
#include "support/TestData.h"

namespace {

// What the installed handler saw on its last call, and what it answers.
struct ShownBox {
  int calls = 0;
  HWND owner = nullptr;
  std::string text;
  std::string caption;
  unsigned int style = 0;
};
ShownBox g_shown;
unsigned int g_answer = 1;

unsigned int RecordingHandler(HWND owner, const char* text, const char* caption, unsigned int style) {
  ++g_shown.calls;
  g_shown.owner = owner;
  g_shown.text = text;
  g_shown.caption = caption;
  g_shown.style = style;
  return g_answer;
}

// Installs the recording handler for one test, so that no box is ever shown, and restores the old one.
class KccMessageBoxFixture : public ::testing::Test {
 protected:
  void SetUp() override {
    g_shown = ShownBox();
    g_answer = 1;
    m_previous = KCC_SetMessageBoxHandler(&RecordingHandler);
  }
  void TearDown() override { KCC_SetMessageBoxHandler(m_previous); }

 private:
  KCC_MessageBoxHandler m_previous = nullptr;
};

using KccMessageBox = KccMessageBoxFixture;

// The same for a TEST_P table whose rows are `Row`s.
template <typename Row>
class KccMessageBoxTable : public KccMessageBoxFixture, public ::testing::WithParamInterface<Row> {};

TEST_F(KccMessageBox, NewBoxHasNoAnswerAndEveryPredicateIsFalse) {
  KCC_MessageBox box;

  EXPECT_EQ(box.GetReturn(), 0xFFFFFFFFu);
  EXPECT_FALSE(box.IsOk());
  EXPECT_FALSE(box.IsCancel());
  EXPECT_FALSE(box.IsAbort());
  EXPECT_FALSE(box.IsRetry());
  EXPECT_FALSE(box.IsIgnore());
  EXPECT_FALSE(box.IsYes());
  EXPECT_FALSE(box.IsNo());
}

TEST_F(KccMessageBox, NamedCodesAreTheWindowsMessageBoxValues) {
  KCC_MessageBox box;
  box.SetTypeYesNo();
  box.SetIconStop();
  box.SetDefaultButton(2);
  g_answer = 7;

  box.DoModal();

  EXPECT_EQ(box.GetButtonType(), KCC_MessageBox::kTypeYesNo);
  EXPECT_EQ(box.GetIconType(), KCC_MessageBox::kIconStop);
  EXPECT_EQ(box.GetDefaultButtonCode(), KCC_MessageBox::kDefaultButton2);
  EXPECT_EQ(box.GetReturn(), KCC_MessageBox::kReturnNo);
  EXPECT_EQ(KCC_MessageBox().GetReturn(), KCC_MessageBox::kReturnNone);
  EXPECT_EQ(g_shown.style, 0x114u);
}

TEST_F(KccMessageBox, NewBoxHasEmptyTextsOkButtonInformationIconFirstDefault) {
  KCC_MessageBox box;

  EXPECT_EQ(box.GetHeader(), "");
  EXPECT_EQ(box.GetMessage(), "");
  EXPECT_EQ(box.GetButtonType(), 0);
  EXPECT_EQ(box.GetIconType(), 64);
  EXPECT_EQ(box.GetDefaultButtonCode(), 0);
  EXPECT_EQ(box.GetOwner(), nullptr);
}

TEST_F(KccMessageBox, ConstructorCopiesOwnerHandleHeaderAndMessage) {
  int window = 0;
  HWND owner = reinterpret_cast<HWND>(&window);
  KCC_MessageBox box(owner, "Caption", "Body");
  owner = nullptr;  // the box keeps the handle it was given

  box.DoModal();

  EXPECT_EQ(box.GetHeader(), "Caption");
  EXPECT_EQ(box.GetMessage(), "Body");
  EXPECT_EQ(g_shown.owner, reinterpret_cast<HWND>(&window));
  EXPECT_EQ(g_shown.caption, "Caption");
  EXPECT_EQ(g_shown.text, "Body");
}

TEST_F(KccMessageBox, OwnerOnlyConstructorLeavesTextsEmpty) {
  int window = 0;
  HWND owner = reinterpret_cast<HWND>(&window);
  KCC_MessageBox box(owner);

  EXPECT_EQ(box.GetOwner(), owner);
  EXPECT_EQ(box.GetHeader(), "");
  EXPECT_EQ(box.GetMessage(), "");
  EXPECT_EQ(box.GetReturn(), 0xFFFFFFFFu);
}

TEST_F(KccMessageBox, SetHeaderAndSetMessageReplaceTheTexts) {
  KCC_MessageBox box;
  box.SetHeader("First");
  box.SetMessage("one");

  box.SetHeader("Second");
  box.SetMessage("two");

  EXPECT_EQ(box.GetHeader(), "Second");
  EXPECT_EQ(box.GetMessage(), "two");
}

TEST_F(KccMessageBox, AddMessageOnNewBoxStartsWithLineFeed) {
  KCC_MessageBox box;

  box.AddMessage("a");
  box.AddMessage("b");

  EXPECT_EQ(box.GetMessage(), "\na\nb");
}

TEST_F(KccMessageBox, AddMessageAppendsLineFeedAndTextToExistingMessage) {
  KCC_MessageBox box;
  box.SetMessage("first");

  box.AddMessage("second");

  EXPECT_EQ(box.GetMessage(), "first\nsecond");
}

TEST_F(KccMessageBox, GetHeaderAndGetMessageAreModifiable) {
  KCC_MessageBox box;

  box.GetHeader() = "Edited caption";
  box.GetMessage() += "edited";
  box.DoModal();

  EXPECT_EQ(g_shown.caption, "Edited caption");
  EXPECT_EQ(g_shown.text, "edited");
}

TEST_F(KccMessageBox, ClearMessageEmptiesTextsButKeepsSettingsAndAnswer) {
  KCC_MessageBox box;
  box.SetHeader("Caption");
  box.SetMessage("Body");
  box.SetTypeYesNo();
  box.SetIconStop();
  box.SetDefaultButton(2);
  g_answer = 7;
  box.DoModal();

  box.ClearMessage();

  EXPECT_EQ(box.GetHeader(), "");
  EXPECT_EQ(box.GetMessage(), "");
  EXPECT_EQ(box.GetButtonType(), 4);
  EXPECT_EQ(box.GetIconType(), 16);
  EXPECT_EQ(box.GetDefaultButtonCode(), 256);
  EXPECT_TRUE(box.IsNo());
}

TEST_F(KccMessageBox, ButtonSettersStoreWindowsButtonCodes) {
  KCC_MessageBox box;
  box.SetTypeOkCancel();
  EXPECT_EQ(box.GetButtonType(), 1);
  box.SetTypeAbortRetryIgnore();
  EXPECT_EQ(box.GetButtonType(), 2);
  box.SetTypeYesNoCancel();
  EXPECT_EQ(box.GetButtonType(), 3);
  box.SetTypeYesNo();
  EXPECT_EQ(box.GetButtonType(), 4);
  box.SetTypeRetryCancel();
  EXPECT_EQ(box.GetButtonType(), 5);
  box.SetTypeOk();
  EXPECT_EQ(box.GetButtonType(), 0);
}

TEST_F(KccMessageBox, IconSettersStoreWindowsIconCodes) {
  KCC_MessageBox box;
  box.SetIconStop();
  EXPECT_EQ(box.GetIconType(), 0x10);
  box.SetIconQuestion();
  EXPECT_EQ(box.GetIconType(), 0x20);
  box.SetIconExclamation();
  EXPECT_EQ(box.GetIconType(), 0x30);
  box.SetIconInformation();
  EXPECT_EQ(box.GetIconType(), 0x40);
}

TEST_F(KccMessageBox, DefaultButtonTwoAndThreeSelectSecondAndThirdButton) {
  KCC_MessageBox box;
  box.SetDefaultButton(2);
  EXPECT_EQ(box.GetDefaultButtonCode(), 0x100);
  box.SetDefaultButton(3);
  EXPECT_EQ(box.GetDefaultButtonCode(), 0x200);
  box.SetDefaultButton(1);
  EXPECT_EQ(box.GetDefaultButtonCode(), 0);
}

struct OtherDefaultButton {
  const char* name;
  int button;
};

const OtherDefaultButton kOtherDefaultButtons[] = {
    {"zero", 0}, {"seven", 7}, {"minus_one", -1}, {"four", 4}, {"two_hundred_fifty_six", 256},
};

using KccMessageBoxOtherDefaultButton = KccMessageBoxTable<OtherDefaultButton>;

TEST_P(KccMessageBoxOtherDefaultButton, SelectsFirstButton) {
  KCC_MessageBox box;
  box.SetDefaultButton(3);

  box.SetDefaultButton(GetParam().button);

  EXPECT_EQ(box.GetDefaultButtonCode(), 0) << "argument " << GetParam().button;
}

INSTANTIATE_TEST_SUITE_P(OutsideOneToThree, KccMessageBoxOtherDefaultButton,
                         ::testing::ValuesIn(kOtherDefaultButtons), RowName());

TEST_F(KccMessageBox, DoModalPassesDefaultButtonOrIconOrButtonSetAsStyle) {
  KCC_MessageBox box;
  box.SetTypeYesNoCancel();
  box.SetIconQuestion();
  box.SetDefaultButton(3);

  box.DoModal();

  EXPECT_EQ(g_shown.calls, 1);
  EXPECT_EQ(g_shown.style, 0x200u | 0x20u | 3u);
  EXPECT_EQ(box.GetStyle(), 0x223u);
}

TEST_F(KccMessageBox, DoModalWithDefaultSettingsPassesInformationIconAndOkButton) {
  KCC_MessageBox box;

  box.DoModal();

  EXPECT_EQ(g_shown.style, 0x40u);
  EXPECT_EQ(g_shown.owner, nullptr);
}

// An answer of the box and the one predicate that is true for it.
struct Answer {
  const char* name;
  unsigned int answer;
  bool (KCC_MessageBox::*predicate)() const;
};

const Answer kAnswers[] = {
    {"ok", 1, &KCC_MessageBox::IsOk},         {"cancel", 2, &KCC_MessageBox::IsCancel},
    {"abort", 3, &KCC_MessageBox::IsAbort},   {"retry", 4, &KCC_MessageBox::IsRetry},
    {"ignore", 5, &KCC_MessageBox::IsIgnore}, {"yes", 6, &KCC_MessageBox::IsYes},
    {"no", 7, &KCC_MessageBox::IsNo},
};

using KccMessageBoxAnswer = KccMessageBoxTable<Answer>;

TEST_P(KccMessageBoxAnswer, DoModalStoresTheAnswerAndOnlyItsPredicateIsTrue) {
  const Answer& a = GetParam();
  KCC_MessageBox box;
  g_answer = a.answer;

  box.DoModal();

  EXPECT_EQ(box.GetReturn(), a.answer);
  for (const Answer& other : kAnswers) {
    EXPECT_EQ((box.*other.predicate)(), other.predicate == a.predicate) << "predicate of " << other.name;
  }
}

INSTANTIATE_TEST_SUITE_P(Answers, KccMessageBoxAnswer, ::testing::ValuesIn(kAnswers), RowName());

TEST_F(KccMessageBox, AnswerOutsideTheKnownCodesMakesEveryPredicateFalse) {
  KCC_MessageBox box;
  g_answer = 0;

  box.DoModal();

  EXPECT_EQ(box.GetReturn(), 0u);
  EXPECT_FALSE(box.IsOk() || box.IsCancel() || box.IsAbort() || box.IsRetry() || box.IsIgnore() ||
               box.IsYes() || box.IsNo());
}

TEST_F(KccMessageBox, SettingsStayAfterDoModalSoTheBoxCanBeReused) {
  KCC_MessageBox box;
  box.SetTypeRetryCancel();
  box.SetIconStop();
  box.SetDefaultButton(2);
  box.SetMessage("Disk full");
  g_answer = 4;
  box.DoModal();
  g_answer = 2;

  box.DoModal();

  EXPECT_EQ(g_shown.calls, 2);
  EXPECT_EQ(g_shown.style, 0x100u | 0x10u | 5u);
  EXPECT_EQ(g_shown.text, "Disk full");
  EXPECT_TRUE(box.IsCancel());
}

TEST_F(KccMessageBox, DoReportOverridesEarlierSettingsWithOkExclamationFirstButton) {
  KCC_MessageBox box;
  box.SetTypeYesNoCancel();
  box.SetIconQuestion();
  box.SetDefaultButton(3);
  box.SetHeader("Error");
  box.SetMessage("Bad value");

  box.DoReport();

  EXPECT_EQ(g_shown.calls, 1);
  EXPECT_EQ(g_shown.style, 0x30u);
  EXPECT_EQ(g_shown.caption, "Error");
  EXPECT_EQ(g_shown.text, "Bad value");
  EXPECT_EQ(box.GetButtonType(), 0);
  EXPECT_EQ(box.GetIconType(), 0x30);
  EXPECT_EQ(box.GetDefaultButtonCode(), 0);
  EXPECT_TRUE(box.IsOk());
}

// Records the steps DoReport takes and lets a subclass replace some of them.
class StepRecordingBox : public KCC_MessageBox {
 public:
  std::vector<std::string> steps;

  void SetTypeOk() override {
    steps.push_back("SetTypeOk");
    KCC_MessageBox::SetTypeOk();
  }
  void SetIconExclamation() override {
    steps.push_back("SetIconExclamation");
    SetIconStop();  // this subclass reports errors with the stop icon
  }
  void SetDefaultButton(int button) override {
    steps.push_back("SetDefaultButton(" + std::to_string(button) + ")");
    KCC_MessageBox::SetDefaultButton(button);
  }
  void DoModal() override {
    steps.push_back("DoModal");
    KCC_MessageBox::DoModal();
  }
};

TEST_F(KccMessageBox, DoReportCallsItsStepsThroughTheVirtualTable) {
  StepRecordingBox box;
  KCC_MessageReporter& reporter = box;

  reporter.DoReport();

  EXPECT_EQ(box.steps,
            (std::vector<std::string>{"SetTypeOk", "SetIconExclamation", "SetDefaultButton(1)", "DoModal"}));
  EXPECT_EQ(g_shown.style, 0x10u);
}

TEST_F(KccMessageBox, DoReportWithOverriddenDoModalShowsNoBox) {
  class SilentBox : public KCC_MessageBox {
   public:
    int modalCalls = 0;
    void DoModal() override { ++modalCalls; }
  };
  SilentBox box;

  box.DoReport();

  EXPECT_EQ(box.modalCalls, 1);
  EXPECT_EQ(g_shown.calls, 0);
}

TEST_F(KccMessageBox, WorksThroughTheReporterReference) {
  KCC_MessageBox box;
  KCC_MessageReporter& reporter = box;

  reporter.SetHeader("Parser");
  reporter.SetMessage("line 3");
  reporter.AddMessage("unknown address");
  reporter.DoReport();

  EXPECT_EQ(g_shown.caption, "Parser");
  EXPECT_EQ(g_shown.text, "line 3\nunknown address");
}

TEST_F(KccMessageBox, WorksThroughTheMessageBoxInterface) {
  KCC_MessageBox box;
  KCI_MessageBox& abstractBox = box;
  abstractBox.SetTypeYesNo();
  abstractBox.SetIconQuestion();
  abstractBox.SetDefaultButton(2);
  g_answer = 6;

  abstractBox.DoModal();

  EXPECT_EQ(g_shown.style, 0x124u);
  EXPECT_TRUE(abstractBox.IsYes());
  EXPECT_FALSE(abstractBox.IsNo());
}

TEST_F(KccMessageBox, CopyAndAssignmentCopyTextsSettingsAndAnswer) {
  KCC_MessageBox box;
  box.SetHeader("H");
  box.SetMessage("M");
  box.SetTypeOkCancel();
  g_answer = 2;
  box.DoModal();

  KCC_MessageBox copy(box);
  KCC_MessageBox assigned;
  assigned = box;

  EXPECT_EQ(copy.GetHeader(), "H");
  EXPECT_EQ(copy.GetMessage(), "M");
  EXPECT_EQ(copy.GetButtonType(), 1);
  EXPECT_TRUE(copy.IsCancel());
  EXPECT_EQ(assigned.GetHeader(), "H");
  EXPECT_EQ(assigned.GetMessage(), "M");
  EXPECT_EQ(assigned.GetButtonType(), 1);
  EXPECT_TRUE(assigned.IsCancel());
}

TEST_F(KccMessageBox, EmptyTextsArePassedAsEmptyStrings) {
  KCC_MessageBox box;

  box.DoModal();

  EXPECT_EQ(g_shown.text, "");
  EXPECT_EQ(g_shown.caption, "");
}

}  // namespace
