// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "ncappkit/foundation/KCI_FrmMessageBox.h"
#include "ncappkit/foundation/KCI_MessagesFile.h"
#include "ncappkit/foundation/KCI_ProgressBar.h"
#include "ncappkit/foundation/KCStringList.h"
#include "support/RecordingReporter.h"

namespace {

// A progress display that remembers what it was asked to show.
class FakeProgressBar : public KCI_ProgressBar {
 public:
  int minimum = 0, maximum = 0, position = 0, steps = 0;
  bool visible = false;
  int shown = 0;
  KCString header;
  KCStringList lines;

  void SetRange(int lo, int hi) override {
    minimum = lo;
    maximum = hi;
  }
  void SetPosition(int p) override { position = p; }
  void StepIt() override { ++steps; }
  void ShowMessage(const KCString& h, const KCStringList& l) override {
    ++shown;
    header = h;
    lines = l;
  }
  void ClearMessage() override {
    header = KCString();
    lines.clear();
  }
  void SetVisible(bool v) override { visible = v; }
  bool IsCanceled() const override { return false; }
};

TEST(KciProgressBar, SetKccMessageForwardsHeaderAndLinesUnchanged) {
  FakeProgressBar bar;
  const KCStringList lines{"first line", "", "  third  "};

  bar.SetKccMessage("Loading", lines);

  EXPECT_EQ(bar.shown, 1);
  EXPECT_EQ(bar.header, "Loading");
  EXPECT_EQ(bar.lines, lines);
}

TEST(KciProgressBar, SetKccMessageReachesAnOverridingShowMessageThroughTheBase) {
  FakeProgressBar bar;
  KCI_ProgressBar& base = bar;

  base.SetKccMessage("", KCStringList());

  EXPECT_EQ(bar.shown, 1);
  EXPECT_EQ(bar.header, "");
  EXPECT_TRUE(bar.lines.empty());
}

// A messages source backed by a map, as a client would write it.
class MapMessages : public KCI_MessagesFile {
 public:
  std::map<std::pair<std::string, std::string>, std::string> texts;

  KCString GetMessage(const KCString& section, const KCString& key) override {
    return GetMessageDefault(section, key, "[" + section + "/" + key + "]");
  }
  KCString GetMessageDefault(const KCString& section, const KCString& key,
                             const KCString& fallback) override {
    auto it = texts.find({section.str(), key.str()});
    return it == texts.end() ? fallback : KCString(it->second);
  }
  bool HasMessage(const KCString& section, const KCString& key) override {
    return texts.count({section.str(), key.str()}) != 0;
  }
  bool LoadFromFile(const KCString&) override { return false; }
  KCString GetFileName() const override { return KCString(); }
  bool SetLanguage(const KCString&) override { return false; }
  KCString GetLanguage() const override { return "Eng"; }
  void Clear() override { texts.clear(); }
};

TEST(KciMessagesFile, FirstOperationGivesTheTextForTwoKeys) {
  MapMessages messages;
  messages.texts[{"NcParams", "TooLarge"}] = "Value too large";
  KCI_MessagesFile& source = messages;

  EXPECT_EQ(source.GetMessage("NcParams", "TooLarge"), "Value too large");
  EXPECT_EQ(source.GetMessage("NcParams", "Other"), "[NcParams/Other]");
}

class FakeForm : public KCI_FrmMessageBox {
 public:
  KCString header;
  KCStringList lines;
  bool open = false;
  void SetFormHeader(const KCString& h) override { header = h; }
  void SetFormMessage(const KCStringList& l) override { lines = l; }
  int ShowForm() override {
    open = true;
    return 6;
  }
  void CloseForm() override { open = false; }
};

TEST(KciFrmMessageBox, ClientFormIsUsableThroughTheInterface) {
  FakeForm form;
  KCI_FrmMessageBox& base = form;

  base.SetFormHeader("Question");
  base.SetFormMessage(KCStringList{"Continue?"});
  const int answer = base.ShowForm();
  base.CloseForm();

  EXPECT_EQ(answer, 6);
  EXPECT_EQ(form.header, "Question");
  EXPECT_EQ(form.lines, (KCStringList{"Continue?"}));
  EXPECT_FALSE(form.open);
}

TEST(RecordingReporter, RecordsCallsInOrderAndBuildsTheMessageLikeABox) {
  RecordingReporter reporter;
  KCC_MessageReporter& sink = reporter;

  sink.SetHeader("Error");
  sink.AddMessage("a");
  sink.AddMessage("b");
  sink.DoReport();
  sink.ClearMessage();
  sink.SetMessage("c");
  sink.DoReport();

  EXPECT_EQ(
      reporter.Log(),
      "SetHeader(Error)|AddMessage(a)|AddMessage(b)|DoReport()|ClearMessage()|SetMessage(c)|DoReport()");
  ASSERT_EQ(reporter.ReportCount(), 2);
  EXPECT_EQ(reporter.Reports()[0].header, "Error");
  EXPECT_EQ(reporter.Reports()[0].message, "\na\nb");
  EXPECT_EQ(reporter.Reports()[1].header, "");
  EXPECT_EQ(reporter.Reports()[1].message, "c");
  EXPECT_EQ(reporter.Calls().size(), 7u);
}

TEST(RecordingReporter, ResetForgetsEverything) {
  RecordingReporter reporter;
  reporter.SetHeader("H");
  reporter.DoReport();

  reporter.Reset();

  EXPECT_EQ(reporter.Log(), "");
  EXPECT_EQ(reporter.ReportCount(), 0);
  EXPECT_EQ(reporter.Header(), "");
}

}  // namespace
