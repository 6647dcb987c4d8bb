// SPDX-License-Identifier: MIT
// KCC_GUI_ActionManager: the undo/redo history. Every action records Undo, Redo, Destroy, Terminate and its
// deletion into one log, so the tests check the exact order of the calls. These run under AddressSanitizer
// too, where a double delete, a use after free or a leak fails them.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "GuiActionLog.h"
#include "ncappkit/gui/KCC_GUI_Action.h"
#include "ncappkit/gui/KCC_GUI_ActionList.h"
#include "ncappkit/gui/KCC_GUI_ActionManager.h"

using guiactiontest::ActionLog;
using guiactiontest::NamesOf;
using guiactiontest::RecordingAction;

namespace {

using Names = std::vector<std::string>;

// A history list, its manager and the log of its actions.
class KccGuiActionManager : public ::testing::Test {
 protected:
  // A new recording action named `name`, added to the manager; returns the pointer the client keeps.
  RecordingAction* Add(KCC_GUI_ActionManager& manager, const char* name) {
    auto* action = new RecordingAction(log, name);
    manager.AddActionInCreation(*action);
    return action;
  }

  ActionLog log;
  KCC_GUI_ActionList list;
};

}  // namespace

TEST_F(KccGuiActionManager, AddedActionsAreKeptInCreationOrder) {
  KCC_GUI_ActionManager manager(list, 0);

  Add(manager, "A");
  Add(manager, "B");

  EXPECT_EQ(NamesOf(list), (Names{"A", "B"}));
  EXPECT_TRUE(log.empty());
}

TEST_F(KccGuiActionManager, CurrentActionIsNullRightAfterAnAdd) {
  KCC_GUI_ActionManager manager(list, 0);

  Add(manager, "A");

  EXPECT_EQ(manager.GetCurrentAction(), nullptr);
}

TEST_F(KccGuiActionManager, MaximumThreeTerminatesAndDeletesTheFirstOfFour) {
  KCC_GUI_ActionManager manager(list, 3);
  Add(manager, "A");
  Add(manager, "B");
  Add(manager, "C");

  Add(manager, "D");

  EXPECT_EQ(log, (ActionLog{"Terminate A", "delete A"}));
  EXPECT_EQ(NamesOf(list), (Names{"B", "C", "D"}));
}

TEST_F(KccGuiActionManager, MaximumZeroKeepsEveryAction) {
  KCC_GUI_ActionManager manager(list, 0);

  for (int i = 0; i < 1000; ++i)
    Add(manager, "A");

  EXPECT_EQ(list.GetNumberOfActions(), 1000);
  EXPECT_TRUE(log.empty());
}

TEST_F(KccGuiActionManager, MaximumOneKeepsOnlyTheNewestAction) {
  KCC_GUI_ActionManager manager(list, 1);
  Add(manager, "A");

  Add(manager, "B");

  EXPECT_EQ(log, (ActionLog{"Terminate A", "delete A"}));
  EXPECT_EQ(NamesOf(list), (Names{"B"}));
}

TEST_F(KccGuiActionManager, MaximumOneReplacesAnUndoneActionByDestroyNotTerminate) {
  KCC_GUI_ActionManager manager(list, 1);
  Add(manager, "A");
  manager.UndoAction();

  Add(manager, "B");

  EXPECT_EQ(log, (ActionLog{"Undo A", "Destroy A", "delete A"}));
  EXPECT_EQ(NamesOf(list), (Names{"B"}));
}

TEST_F(KccGuiActionManager, MaximumOneUndoesAndRedoesItsOneAction) {
  KCC_GUI_ActionManager manager(list, 1);
  RecordingAction* a = Add(manager, "A");

  manager.UndoAction();
  manager.UndoAction();
  EXPECT_EQ(manager.GetCurrentAction(), a);
  manager.RedoAction();
  manager.RedoAction();

  EXPECT_EQ(log, (ActionLog{"Undo A", "Redo A"}));
  EXPECT_EQ(manager.GetCurrentAction(), nullptr);
}

TEST_F(KccGuiActionManager, AtMostOneActionIsDroppedPerAdd) {
  for (const char* name : {"A", "B", "C", "D"})
    list.Append(new RecordingAction(log, name));
  KCC_GUI_ActionManager manager(list, 2);

  Add(manager, "E");

  EXPECT_EQ(log, (ActionLog{"Terminate A", "delete A"}));
  EXPECT_EQ(NamesOf(list), (Names{"B", "C", "D", "E"}));
}

TEST_F(KccGuiActionManager, AddAfterTwoUndosDestroysTheUndoneActionsLastFirst) {
  KCC_GUI_ActionManager manager(list, 0);
  Add(manager, "A");
  RecordingAction* b = Add(manager, "B");
  Add(manager, "C");
  manager.UndoAction();
  manager.UndoAction();
  ASSERT_EQ(manager.GetCurrentAction(), b);
  log.clear();

  Add(manager, "D");

  EXPECT_EQ(log, (ActionLog{"Destroy C", "delete C", "Destroy B", "delete B"}));
  EXPECT_EQ(NamesOf(list), (Names{"A", "D"}));
}

TEST_F(KccGuiActionManager, NothingCanBeRedoneAfterAnAddOverUndoneActions) {
  KCC_GUI_ActionManager manager(list, 0);
  Add(manager, "A");
  Add(manager, "B");
  Add(manager, "C");
  manager.UndoAction();
  manager.UndoAction();
  Add(manager, "D");
  log.clear();

  manager.RedoAction();

  EXPECT_TRUE(log.empty());
  EXPECT_EQ(manager.GetCurrentAction(), nullptr);
}

TEST_F(KccGuiActionManager, UndoneTailIsDiscardedBeforeTheMaximumIsChecked) {
  KCC_GUI_ActionManager manager(list, 3);
  Add(manager, "A");
  Add(manager, "B");
  Add(manager, "C");
  manager.UndoAction();
  log.clear();

  Add(manager, "D");

  EXPECT_EQ(log, (ActionLog{"Destroy C", "delete C"}));
  EXPECT_EQ(NamesOf(list), (Names{"A", "B", "D"}));
}

TEST_F(KccGuiActionManager, UndoOnAnEmptyListDoesNothing) {
  KCC_GUI_ActionManager manager(list, 0);

  manager.UndoAction();

  EXPECT_EQ(manager.GetCurrentAction(), nullptr);
  EXPECT_TRUE(list.IsEmpty());
}

TEST_F(KccGuiActionManager, RedoOnAnEmptyListDoesNothing) {
  KCC_GUI_ActionManager manager(list, 0);

  manager.RedoAction();

  EXPECT_EQ(manager.GetCurrentAction(), nullptr);
  EXPECT_TRUE(list.IsEmpty());
}

TEST_F(KccGuiActionManager, UndoCallsUndoOnTheNewestDoneAction) {
  KCC_GUI_ActionManager manager(list, 0);
  Add(manager, "A");
  RecordingAction* b = Add(manager, "B");

  manager.UndoAction();

  EXPECT_EQ(log, (ActionLog{"Undo B"}));
  EXPECT_EQ(manager.GetCurrentAction(), b);
}

TEST_F(KccGuiActionManager, ThirdUndoAfterBothActionsWereUndoneDoesNothing) {
  KCC_GUI_ActionManager manager(list, 0);
  RecordingAction* a = Add(manager, "A");
  Add(manager, "B");
  manager.UndoAction();
  manager.UndoAction();

  manager.UndoAction();

  EXPECT_EQ(log, (ActionLog{"Undo B", "Undo A"}));
  EXPECT_EQ(manager.GetCurrentAction(), a);
}

TEST_F(KccGuiActionManager, RedoAfterUndoRedoesTheSameActionAndReturnsToTheEnd) {
  KCC_GUI_ActionManager manager(list, 0);
  Add(manager, "A");
  Add(manager, "B");
  manager.UndoAction();

  manager.RedoAction();

  EXPECT_EQ(log, (ActionLog{"Undo B", "Redo B"}));
  EXPECT_EQ(manager.GetCurrentAction(), nullptr);
}

TEST_F(KccGuiActionManager, RedoAtTheEndDoesNothing) {
  KCC_GUI_ActionManager manager(list, 0);
  Add(manager, "A");

  manager.RedoAction();

  EXPECT_TRUE(log.empty());
  EXPECT_EQ(manager.GetCurrentAction(), nullptr);
}

TEST_F(KccGuiActionManager, UndoingEverythingAndRedoingEverythingWalksBothWays) {
  KCC_GUI_ActionManager manager(list, 0);
  Add(manager, "A");
  Add(manager, "B");
  Add(manager, "C");

  for (int i = 0; i < 4; ++i)
    manager.UndoAction();
  for (int i = 0; i < 4; ++i)
    manager.RedoAction();

  EXPECT_EQ(log, (ActionLog{"Undo C", "Undo B", "Undo A", "Redo A", "Redo B", "Redo C"}));
}

TEST_F(KccGuiActionManager, CurrentActionFollowsTheCursorStepByStep) {
  KCC_GUI_ActionManager manager(list, 0);
  RecordingAction* a = Add(manager, "A");
  RecordingAction* b = Add(manager, "B");
  manager.UndoAction();
  manager.UndoAction();

  manager.RedoAction();

  EXPECT_EQ(manager.GetCurrentAction(), b);
  EXPECT_NE(manager.GetCurrentAction(), a);
}

TEST_F(KccGuiActionManager, UndoAndRedoStepOverNullEntriesWithoutACall) {
  list.Append(nullptr);
  KCC_GUI_ActionManager manager(list, 0);
  Add(manager, "A");

  manager.UndoAction();
  manager.UndoAction();
  manager.RedoAction();
  manager.RedoAction();

  EXPECT_EQ(log, (ActionLog{"Undo A", "Redo A"}));
  EXPECT_EQ(manager.GetCurrentAction(), nullptr);
}

// The client's pointer to an action dangles once the manager has deleted the action; the log is the only
// safe witness, the pointer itself must not be used any more.
TEST_F(KccGuiActionManager, ActionDroppedFromTheHistoryIsDeletedWhileTheClientStillHoldsItsPointer) {
  KCC_GUI_ActionManager manager(list, 1);
  RecordingAction* kept = Add(manager, "A");

  Add(manager, "B");

  EXPECT_EQ(log, (ActionLog{"Terminate A", "delete A"}));
  EXPECT_EQ(NamesOf(list), (Names{"B"}));  // `kept` dangles now: not dereferenced, not compared
  static_cast<void>(kept);
}

TEST_F(KccGuiActionManager, CurrentActionPointerDanglesAfterTheNextAdd) {
  KCC_GUI_ActionManager manager(list, 0);
  Add(manager, "A");
  manager.UndoAction();
  KCC_GUI_Action* current = manager.GetCurrentAction();
  ASSERT_NE(current, nullptr);

  Add(manager, "B");

  EXPECT_EQ(log, (ActionLog{"Undo A", "Destroy A", "delete A"}));
  EXPECT_EQ(manager.GetCurrentAction(), nullptr);
}

TEST_F(KccGuiActionManager, DestroyingTheManagerDeletesNothing) {
  {
    KCC_GUI_ActionManager manager(list, 0);
    Add(manager, "A");
  }

  EXPECT_TRUE(log.empty());
  EXPECT_EQ(NamesOf(list), (Names{"A"}));
}

TEST_F(KccGuiActionManager, ClearingTheListPutsTheCursorAtTheEnd) {
  KCC_GUI_ActionManager manager(list, 0);
  Add(manager, "A");
  Add(manager, "B");
  manager.UndoAction();

  list.ClearWithContents();

  EXPECT_EQ(manager.GetCurrentAction(), nullptr);
  EXPECT_EQ(log, (ActionLog{"Undo B", "delete A", "delete B"}));
}

TEST_F(KccGuiActionManager, ClearedListThenRefilledDirectlyHasNothingToRedo) {
  KCC_GUI_ActionManager manager(list, 0);
  Add(manager, "A");
  manager.UndoAction();
  list.ClearWithContents();
  list.Append(new RecordingAction(log, "X"));
  log.clear();

  manager.RedoAction();
  manager.UndoAction();

  EXPECT_EQ(log, (ActionLog{"Undo X"}));
}

TEST_F(KccGuiActionManager, AddAfterClearingTheListStartsANewHistory) {
  KCC_GUI_ActionManager manager(list, 0);
  Add(manager, "A");
  manager.UndoAction();
  list.ClearWithContents();
  log.clear();

  Add(manager, "B");
  manager.UndoAction();

  EXPECT_EQ(log, (ActionLog{"Undo B"}));
  EXPECT_EQ(NamesOf(list), (Names{"B"}));
}

TEST_F(KccGuiActionManager, ListMovedAwayLeavesTheManagerWithNothingToRedo) {
  KCC_GUI_ActionManager manager(list, 0);
  Add(manager, "A");
  manager.UndoAction();

  KCC_GUI_ActionList elsewhere(std::move(list));

  EXPECT_EQ(manager.GetCurrentAction(), nullptr);
  manager.RedoAction();
  EXPECT_EQ(log, (ActionLog{"Undo A"}));
  EXPECT_EQ(NamesOf(elsewhere), (Names{"A"}));
}

TEST_F(KccGuiActionManager, CopyWorksOnTheListOfItsSource) {
  KCC_GUI_ActionManager manager(list, 0);
  Add(manager, "A");

  KCC_GUI_ActionManager copy(manager);
  Add(copy, "B");

  EXPECT_EQ(NamesOf(list), (Names{"A", "B"}));
}

TEST_F(KccGuiActionManager, CopyKeepsTheCursorAndTheMaximum) {
  KCC_GUI_ActionManager manager(list, 2);
  Add(manager, "A");
  RecordingAction* b = Add(manager, "B");
  manager.UndoAction();

  KCC_GUI_ActionManager copy(manager);

  EXPECT_EQ(copy.GetCurrentAction(), b);
  copy.RedoAction();
  Add(copy, "C");
  EXPECT_EQ(log, (ActionLog{"Undo B", "Redo B", "Terminate A", "delete A"}));
}

TEST_F(KccGuiActionManager, AssignmentMovesTheManagerOntoTheOtherList) {
  KCC_GUI_ActionList otherList;
  KCC_GUI_ActionManager other(otherList, 0);
  KCC_GUI_ActionManager manager(list, 0);
  Add(other, "A");

  manager = other;
  Add(manager, "B");

  EXPECT_EQ(NamesOf(otherList), (Names{"A", "B"}));
  EXPECT_TRUE(list.IsEmpty());
}
