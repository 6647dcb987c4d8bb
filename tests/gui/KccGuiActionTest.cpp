// SPDX-License-Identifier: MIT
// KCC_GUI_Action: the base behaviour, the finished state, the visitor hook and the pixel-to-world helper.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "GuiActionLog.h"
#include "ncappkit/draw/KCI_ViewPort.h"
#include "ncappkit/gui/KCC_GUI_Action.h"
#include "ncappkit/gui/KCC_GUI_ActionVisitor.h"
#include "ncappkit/gui/KCC_GUI_Keys.h"
#include "ncappkit/gui/KCI_GUI_MouseButtons.h"

using guiactiontest::ActionLog;
using guiactiontest::NameCollector;
using guiactiontest::RecordingAction;

namespace {

// A view port with a fixed mapping: world x = 10 + pixel x / 2, world y = 100 - pixel y / 2. It records the
// pixels it was asked about; the other operations are not used by actions.
class FakeViewPort : public KCI_ViewPort {
 public:
  bool SetWorldCoord(KCC_GUI_ZoomArea& /*area*/) override { return false; }
  bool SetWorldCoord(double /*xMin*/, double /*yMin*/, double /*xMax*/, double /*yMax*/) override {
    return false;
  }
  void Screen2WorldPoint(int sx, int sy, double& wx, double& wy) const override {
    asked.push_back(std::to_string(sx) + "," + std::to_string(sy));
    wx = 10.0 + sx / 2.0;
    wy = 100.0 - sy / 2.0;
  }
  void World2ScreenPoint(double /*wx*/, double /*wy*/, int& sx, int& sy) const override {
    sx = 0;
    sy = 0;
  }
  double GetWorld2PixelRatioX() const override { return 0.5; }
  double GetWorld2PixelRatioY() const override { return 0.5; }
  int GetCanvasHorPixels() const override { return 800; }
  int GetCanvasVerPixels() const override { return 600; }

  mutable std::vector<std::string> asked;
};

// A client action that converts the pixel of a left click into world coordinates.
class ClickAction : public KCC_GUI_Action {
 public:
  explicit ClickAction(KCI_ViewPort& viewPort) : m_viewPort(&viewPort) {}
  void MouseLeftDown(int x, int y, const KCI_GUI_Keys& /*keys*/) override {
    GetWcPoint(*m_viewPort, x, y, wx, wy);
    SetFinishedState(true);
  }
  double wx = -1.0;
  double wy = -1.0;

 private:
  KCI_ViewPort* m_viewPort;
};

// Mouse buttons as a client reports them: nothing held.
class NoButtons : public KCI_GUI_MouseButtons {
 public:
  bool LeftButtonPressed() const override { return false; }
  bool MiddleButtonPressed() const override { return false; }
  bool RightButtonPressed() const override { return false; }
};

// Overrides every slot and records the calls with their arguments, in the order they arrive.
class EverySlotAction : public KCC_GUI_Action {
 public:
  void DoAction(int x, int y, const KCI_GUI_Keys& keys) override { Log("DoAction", x, y, keys); }
  void MouseLeftDown(int x, int y, const KCI_GUI_Keys& keys) override { Log("MouseLeftDown", x, y, keys); }
  void MouseLeftUp(int x, int y, const KCI_GUI_Keys& keys) override { Log("MouseLeftUp", x, y, keys); }
  void MouseRightDown(int x, int y, const KCI_GUI_Keys& keys) override { Log("MouseRightDown", x, y, keys); }
  void MouseRightUp(int x, int y, const KCI_GUI_Keys& keys) override { Log("MouseRightUp", x, y, keys); }
  void MouseMove(int x, int y, const KCI_GUI_Keys& keys, const KCI_GUI_MouseButtons& buttons) override {
    Log(buttons.LeftButtonPressed() ? "MouseMove(drag)" : "MouseMove", x, y, keys);
  }
  std::vector<std::string> calls;

 private:
  void Log(const char* what, int x, int y, const KCI_GUI_Keys& keys) {
    calls.push_back(std::string(what) + " " + std::to_string(x) + "," + std::to_string(y) +
                    (keys.ShiftKeyPressed() ? " shift" : ""));
  }
};

class CountingVisitor : public KCC_GUI_ActionVisitor {
 public:
  explicit CountingVisitor(bool answer) : m_answer(answer) {}
  bool Visit(KCC_GUI_Action& action) override {
    visited.push_back(&action);
    return m_answer;
  }
  std::vector<KCC_GUI_Action*> visited;

 private:
  bool m_answer;
};

}  // namespace

TEST(KccGuiAction, ToStringOfAnActionThatDoesNotOverrideItIsQuestionMarks) {
  KCC_GUI_Action action;

  EXPECT_EQ(action.ToString().str(), "???");
}

TEST(KccGuiAction, BaseMouseCallsLeaveTheActionInCreation) {
  KCC_GUI_Action action;
  const KCC_GUI_Keys keys(0x2CU);
  const NoButtons buttons;

  action.DoAction(1, 2, keys);
  action.MouseLeftDown(1, 2, keys);
  action.MouseLeftUp(1, 2, keys);
  action.MouseRightDown(1, 2, keys);
  action.MouseRightUp(1, 2, keys);
  action.MouseMove(1, 2, keys, buttons);

  bool result = true;
  EXPECT_FALSE(action.HasFinishedState(result));
  EXPECT_EQ(action.ToString().str(), "???");
}

TEST(KccGuiAction, MouseEventsReachTheOverridesWithPixelsAndKeys) {
  EverySlotAction action;
  const KCC_GUI_Keys shift(KCC_GUI_Keys::kShiftFlag);
  const KCC_GUI_Keys none(0U);
  const NoButtons buttons;

  action.MouseLeftDown(5, 6, shift);
  action.MouseMove(7, 8, none, buttons);
  action.MouseLeftUp(9, 10, none);
  action.MouseRightDown(11, 12, shift);
  action.MouseRightUp(13, 14, none);
  action.DoAction(15, 16, none);

  const std::vector<std::string> expected = {"MouseLeftDown 5,6 shift", "MouseMove 7,8",
                                             "MouseLeftUp 9,10",        "MouseRightDown 11,12 shift",
                                             "MouseRightUp 13,14",      "DoAction 15,16"};
  EXPECT_EQ(action.calls, expected);
}

TEST(KccGuiAction, NewActionHasNoFinishedStateAndLeavesResultUntouched) {
  const KCC_GUI_Action action;
  bool result = true;

  const bool finished = action.HasFinishedState(result);

  EXPECT_FALSE(finished);
  EXPECT_TRUE(result);
}

TEST(KccGuiAction, NewActionLeavesAFalseResultUntouchedToo) {
  const KCC_GUI_Action action;
  bool result = false;

  EXPECT_FALSE(action.HasFinishedState(result));
  EXPECT_FALSE(result);
}

TEST(KccGuiAction, FinishedWithFalseReportsFinishedAndFalse) {
  KCC_GUI_Action action;
  action.SetFinishedState(false);
  bool result = true;

  const bool finished = action.HasFinishedState(result);

  EXPECT_TRUE(finished);
  EXPECT_FALSE(result);
}

TEST(KccGuiAction, FinishedWithTrueReportsFinishedAndTrue) {
  KCC_GUI_Action action;
  action.SetFinishedState(true);
  bool result = false;

  const bool finished = action.HasFinishedState(result);

  EXPECT_TRUE(finished);
  EXPECT_TRUE(result);
}

TEST(KccGuiAction, FinishedStateCanChangeItsResultButNotGoBackToCreation) {
  KCC_GUI_Action action;
  action.SetFinishedState(true);

  action.SetFinishedState(false);

  bool result = true;
  EXPECT_TRUE(action.HasFinishedState(result));
  EXPECT_FALSE(result);
}

TEST(KccGuiAction, CopyTakesTheFinishedState) {
  KCC_GUI_Action source;
  source.SetFinishedState(true);

  const KCC_GUI_Action copy(source);

  bool result = false;
  EXPECT_TRUE(copy.HasFinishedState(result));
  EXPECT_TRUE(result);
}

TEST(KccGuiAction, AssignmentTakesTheFinishedStateBackToCreation) {
  KCC_GUI_Action finished;
  finished.SetFinishedState(false);
  const KCC_GUI_Action inCreation;

  finished = inCreation;

  bool result = true;
  EXPECT_FALSE(finished.HasFinishedState(result));
}

TEST(KccGuiAction, AcceptHandsThisActionToTheVisitor) {
  KCC_GUI_Action action;
  CountingVisitor visitor(true);

  const bool answer = action.Accept(visitor);

  EXPECT_TRUE(answer);
  ASSERT_EQ(visitor.visited.size(), 1U);
  EXPECT_EQ(visitor.visited[0], &action);
}

TEST(KccGuiAction, AcceptReturnsFalseWhenTheVisitorDoes) {
  KCC_GUI_Action action;
  CountingVisitor visitor(false);

  EXPECT_FALSE(action.Accept(visitor));
}

TEST(KccGuiAction, AcceptReachesTheDerivedActionThroughTheBase) {
  ActionLog log;
  RecordingAction move(log, "Move");
  KCC_GUI_Action& asBase = move;
  NameCollector names;

  asBase.Accept(names);

  EXPECT_EQ(names.names, std::vector<std::string>{"Move"});
}

TEST(KccGuiAction, GetWcPointConvertsThePixelThroughTheViewPort) {
  FakeViewPort viewPort;
  ClickAction click(viewPort);

  click.MouseLeftDown(40, 60, KCC_GUI_Keys(0U));

  EXPECT_DOUBLE_EQ(click.wx, 30.0);
  EXPECT_DOUBLE_EQ(click.wy, 70.0);
  EXPECT_EQ(viewPort.asked, std::vector<std::string>{"40,60"});
}

TEST(KccGuiAction, BaseUndoRedoTerminateDestroyLeaveTheStateAlone) {
  KCC_GUI_Action action;
  action.SetFinishedState(true);

  action.Undo();
  action.Redo();
  action.Terminate();
  action.Destroy();

  bool result = false;
  EXPECT_TRUE(action.HasFinishedState(result));
  EXPECT_TRUE(result);
}

TEST(KccGuiAction, DeletingThroughTheBaseRunsTheDerivedDestructor) {
  ActionLog log;
  KCC_GUI_Action* action = new RecordingAction(log, "A");

  delete action;

  EXPECT_EQ(log, ActionLog{"delete A"});
}
