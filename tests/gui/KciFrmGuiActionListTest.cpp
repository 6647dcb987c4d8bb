// SPDX-License-Identifier: MIT
// KCI_FrmGUIActionList: a client's history window fed from an editor, the way a client program uses it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "GuiActionLog.h"
#include "ncappkit/gui/KCC_GUI_Action.h"
#include "ncappkit/gui/KCC_GUI_ActionList.h"
#include "ncappkit/gui/KCC_GUI_Editor.h"
#include "ncappkit/gui/KCI_FrmGUIActionList.h"

using guiactiontest::ActionLog;
using guiactiontest::RecordingAction;

namespace {

// Shows one row per action: its text, with "> " in front of the action that redo would bring back.
class HistoryWindow : public KCI_FrmGUIActionList {
 public:
  void ShowActionList(const KCC_GUI_ActionList& actions, const KCC_GUI_Action* currentAction) override {
    rows.clear();
    for (KCC_GUI_Action* action : actions)
      rows.push_back((action == currentAction ? "> " : "  ") + action->ToString().str());
  }
  std::vector<std::string> rows;
};

}  // namespace

TEST(KciFrmGuiActionList, WindowShowsEveryActionAndMarksTheNextRedo) {
  ActionLog log;
  KCC_GUI_Editor editor(0);
  KCC_GUI_ActionManager& manager = editor.GetGUIActionManager();
  manager.AddActionInCreation(*new RecordingAction(log, "Line"));
  manager.AddActionInCreation(*new RecordingAction(log, "Arc"));
  manager.AddActionInCreation(*new RecordingAction(log, "Move"));
  manager.UndoAction();
  HistoryWindow window;

  window.ShowActionList(editor.GetGUIActionList(), manager.GetCurrentAction());

  EXPECT_EQ(window.rows, (std::vector<std::string>{"  Line", "  Arc", "> Move"}));
}
