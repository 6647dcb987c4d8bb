// SPDX-License-Identifier: MIT
// KCC_GUI_Editor: a history list with its manager, and what copies and moves of an editor do. These run
// under AddressSanitizer too, where a double delete, a use after free or a leak fails them.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "GuiActionLog.h"
#include "ncappkit/gui/KCC_GUI_Action.h"
#include "ncappkit/gui/KCC_GUI_Editor.h"

using guiactiontest::ActionLog;
using guiactiontest::NamesOf;
using guiactiontest::RecordingAction;

namespace {

using Names = std::vector<std::string>;

RecordingAction* Add(KCC_GUI_Editor& editor, ActionLog& log, const char* name) {
  auto* action = new RecordingAction(log, name);
  editor.GetGUIActionManager().AddActionInCreation(*action);
  return action;
}

// An editor with A, B and C added, and C undone (the cursor on C).
KCC_GUI_Editor EditorWithCUndone(ActionLog& log, unsigned int maxActions) {
  KCC_GUI_Editor editor(maxActions);
  Add(editor, log, "A");
  Add(editor, log, "B");
  Add(editor, log, "C");
  editor.GetGUIActionManager().UndoAction();
  return editor;
}

}  // namespace

TEST(KccGuiEditor, NewEditorHasAnEmptyHistory) {
  KCC_GUI_Editor editor(10);

  EXPECT_TRUE(editor.GetGUIActionList().IsEmpty());
  EXPECT_EQ(editor.GetGUIActionManager().GetCurrentAction(), nullptr);
}

TEST(KccGuiEditor, ManagerAddsToTheEditorsList) {
  ActionLog log;
  KCC_GUI_Editor editor(0);

  Add(editor, log, "A");
  Add(editor, log, "B");

  EXPECT_EQ(NamesOf(editor.GetGUIActionList()), (Names{"A", "B"}));
}

TEST(KccGuiEditor, MaximumGoesToTheManager) {
  ActionLog log;
  KCC_GUI_Editor editor(2);
  Add(editor, log, "A");
  Add(editor, log, "B");

  Add(editor, log, "C");

  EXPECT_EQ(log, (ActionLog{"Terminate A", "delete A"}));
  EXPECT_EQ(NamesOf(editor.GetGUIActionList()), (Names{"B", "C"}));
}

TEST(KccGuiEditor, DestroyingTheEditorDeletesEveryActionWithoutTerminateOrDestroy) {
  ActionLog log;

  { const KCC_GUI_Editor editor = EditorWithCUndone(log, 0); }

  EXPECT_EQ(log, (ActionLog{"Undo C", "delete A", "delete B", "delete C"}));
}

TEST(KccGuiEditor, CopyManagerWorksOnTheCopysOwnList) {
  ActionLog log;
  KCC_GUI_Editor source(0);
  Add(source, log, "A");

  KCC_GUI_Editor copy(source);
  Add(copy, log, "B");

  EXPECT_EQ(NamesOf(copy.GetGUIActionList()), (Names{"A", "B"}));
  EXPECT_EQ(NamesOf(source.GetGUIActionList()), (Names{"A"}));
  source.GetGUIActionList().Detach();  // the copy is the one owner of A from here on
}

TEST(KccGuiEditor, CopySharesTheActions) {
  ActionLog log;
  KCC_GUI_Editor source(0);
  Add(source, log, "A");

  KCC_GUI_Editor copy(source);

  EXPECT_EQ(*copy.GetGUIActionList().begin(), *source.GetGUIActionList().begin());
  copy.GetGUIActionList().Detach();
}

TEST(KccGuiEditor, CopyKeepsTheCursorPosition) {
  ActionLog log;
  KCC_GUI_Editor source = EditorWithCUndone(log, 0);
  log.clear();

  KCC_GUI_Editor copy(source);
  copy.GetGUIActionManager().RedoAction();

  EXPECT_EQ(log, (ActionLog{"Redo C"}));
  EXPECT_EQ(copy.GetGUIActionManager().GetCurrentAction(), nullptr);
  EXPECT_NE(source.GetGUIActionManager().GetCurrentAction(), nullptr);
  copy.GetGUIActionList().Detach();
}

TEST(KccGuiEditor, CopyKeepsTheMaximum) {
  ActionLog log;
  KCC_GUI_Editor source(1);
  Add(source, log, "A");
  KCC_GUI_Editor copy(source);
  source.GetGUIActionList().Detach();

  Add(copy, log, "B");

  EXPECT_EQ(log, (ActionLog{"Terminate A", "delete A"}));
}

TEST(KccGuiEditor, CopyAssignmentRebindsTheManagerToItsOwnList) {
  ActionLog log;
  KCC_GUI_Editor source = EditorWithCUndone(log, 0);
  KCC_GUI_Editor target(5);
  log.clear();

  target = source;
  source.GetGUIActionList().Detach();
  Add(target, log, "D");

  EXPECT_EQ(log, (ActionLog{"Destroy C", "delete C"}));
  EXPECT_EQ(NamesOf(target.GetGUIActionList()), (Names{"A", "B", "D"}));
  EXPECT_TRUE(source.GetGUIActionList().IsEmpty());
}

TEST(KccGuiEditor, MoveTransfersTheActionsAndTheCursor) {
  ActionLog log;
  KCC_GUI_Editor source = EditorWithCUndone(log, 0);
  log.clear();

  KCC_GUI_Editor target(std::move(source));
  target.GetGUIActionManager().RedoAction();

  EXPECT_EQ(log, (ActionLog{"Redo C"}));
  EXPECT_EQ(NamesOf(target.GetGUIActionList()), (Names{"A", "B", "C"}));
}

TEST(KccGuiEditor, MovedFromEditorIsEmptyAndUsable) {
  ActionLog log;
  KCC_GUI_Editor source = EditorWithCUndone(log, 0);
  KCC_GUI_Editor target(std::move(source));
  log.clear();

  // NOLINTNEXTLINE(bugprone-use-after-move): a moved-from editor is empty and usable
  KCC_GUI_ActionManager& manager = source.GetGUIActionManager();
  manager.UndoAction();
  manager.RedoAction();
  Add(source, log, "E");

  EXPECT_TRUE(log.empty());
  EXPECT_EQ(NamesOf(source.GetGUIActionList()), (Names{"E"}));
  EXPECT_EQ(NamesOf(target.GetGUIActionList()), (Names{"A", "B", "C"}));
}

TEST(KccGuiEditor, MoveKeepsTheMaximum) {
  ActionLog log;
  KCC_GUI_Editor source(2);
  Add(source, log, "A");
  Add(source, log, "B");
  KCC_GUI_Editor target(std::move(source));

  Add(target, log, "C");

  EXPECT_EQ(log, (ActionLog{"Terminate A", "delete A"}));
}

TEST(KccGuiEditor, MoveAssignmentDeletesTheFormerActionsAndTakesTheCursor) {
  ActionLog log;
  KCC_GUI_Editor source = EditorWithCUndone(log, 0);
  KCC_GUI_Editor target(0);
  Add(target, log, "X");
  log.clear();

  target = std::move(source);
  target.GetGUIActionManager().RedoAction();

  EXPECT_EQ(log, (ActionLog{"delete X", "Redo C"}));
  EXPECT_EQ(NamesOf(target.GetGUIActionList()), (Names{"A", "B", "C"}));
  EXPECT_TRUE(source.GetGUIActionList().IsEmpty());  // NOLINT(bugprone-use-after-move)
}

TEST(KccGuiEditor, MoveAssignmentOntoItselfChangesNothing) {
  ActionLog log;
  KCC_GUI_Editor editor = EditorWithCUndone(log, 0);
  KCC_GUI_Editor& alias = editor;
  log.clear();

  editor = std::move(alias);
  editor.GetGUIActionManager().RedoAction();

  EXPECT_EQ(log, (ActionLog{"Redo C"}));
  EXPECT_EQ(NamesOf(editor.GetGUIActionList()), (Names{"A", "B", "C"}));
}

TEST(KccGuiEditor, EditorsInAVectorKeepTheirOwnHistories) {
  ActionLog log;
  std::vector<KCC_GUI_Editor> editors;
  for (int i = 0; i < 8; ++i)
    editors.push_back(EditorWithCUndone(log, 0));
  log.clear();

  editors[0].GetGUIActionManager().RedoAction();
  Add(editors[7], log, "D");

  EXPECT_EQ(log, (ActionLog{"Redo C", "Destroy C", "delete C"}));
  EXPECT_EQ(NamesOf(editors[0].GetGUIActionList()), (Names{"A", "B", "C"}));
  EXPECT_EQ(NamesOf(editors[7].GetGUIActionList()), (Names{"A", "B", "D"}));
}
