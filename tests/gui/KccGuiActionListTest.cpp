// SPDX-License-Identifier: MIT
// KCC_GUI_ActionList: the owning list of actions, its walk, its plain deletion and its ownership rules.
// These run under AddressSanitizer too, where a double delete or a leak fails them.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "GuiActionLog.h"
#include "ncappkit/gui/KCC_GUI_Action.h"
#include "ncappkit/gui/KCC_GUI_ActionList.h"

using guiactiontest::ActionLog;
using guiactiontest::NameCollector;
using guiactiontest::NamesOf;
using guiactiontest::RecordingAction;

namespace {

using Names = std::vector<std::string>;

// A list holding A, B, C recording into `log`.
KCC_GUI_ActionList ListOfABC(ActionLog& log) {
  KCC_GUI_ActionList list;
  list.Append(new RecordingAction(log, "A"));
  list.Append(new RecordingAction(log, "B"));
  list.Append(new RecordingAction(log, "C"));
  return list;
}

}  // namespace

TEST(KccGuiActionList, NewListIsEmpty) {
  const KCC_GUI_ActionList list;

  EXPECT_TRUE(list.IsEmpty());
  EXPECT_EQ(list.GetNumberOfActions(), 0);
  EXPECT_EQ(list.begin(), list.end());
}

TEST(KccGuiActionList, AppendKeepsTheOrderOfCreation) {
  ActionLog log;

  const KCC_GUI_ActionList list = ListOfABC(log);

  EXPECT_EQ(list.GetNumberOfActions(), 3);
  EXPECT_EQ(NamesOf(list), (Names{"A", "B", "C"}));
}

TEST(KccGuiActionList, NullEntryCountsAsAnEntry) {
  ActionLog log;
  KCC_GUI_ActionList list;
  list.Append(new RecordingAction(log, "A"));

  list.Append(nullptr);

  EXPECT_EQ(list.GetNumberOfActions(), 2);
  EXPECT_EQ(NamesOf(list), (Names{"A", "null"}));
}

TEST(KccGuiActionList, AcceptWalksFrontToBack) {
  ActionLog log;
  KCC_GUI_ActionList list = ListOfABC(log);
  NameCollector visitor;

  const bool completed = list.Accept(visitor);

  EXPECT_TRUE(completed);
  EXPECT_EQ(visitor.names, (Names{"A", "B", "C"}));
}

TEST(KccGuiActionList, AcceptStopsAtTheFirstFalse) {
  ActionLog log;
  KCC_GUI_ActionList list = ListOfABC(log);
  NameCollector visitor("B");

  const bool completed = list.Accept(visitor);

  EXPECT_FALSE(completed);
  EXPECT_EQ(visitor.names, (Names{"A", "B"}));
}

TEST(KccGuiActionList, AcceptSkipsNullEntries) {
  ActionLog log;
  KCC_GUI_ActionList list;
  list.Append(nullptr);
  list.Append(new RecordingAction(log, "A"));
  list.Append(nullptr);
  NameCollector visitor;

  const bool completed = list.Accept(visitor);

  EXPECT_TRUE(completed);
  EXPECT_EQ(visitor.names, (Names{"A"}));
}

TEST(KccGuiActionList, AcceptOnAnEmptyListIsTrue) {
  KCC_GUI_ActionList list;
  NameCollector visitor("anything");

  EXPECT_TRUE(list.Accept(visitor));
  EXPECT_TRUE(visitor.names.empty());
}

TEST(KccGuiActionList, ClearWithContentsDeletesFrontToBackWithoutTerminateOrDestroy) {
  ActionLog log;
  KCC_GUI_ActionList list = ListOfABC(log);

  list.ClearWithContents();

  EXPECT_EQ(log, (ActionLog{"delete A", "delete B", "delete C"}));
  EXPECT_TRUE(list.IsEmpty());
}

TEST(KccGuiActionList, ClearWithContentsSkipsNullEntries) {
  ActionLog log;
  KCC_GUI_ActionList list;
  list.Append(nullptr);
  list.Append(new RecordingAction(log, "A"));

  list.ClearWithContents();

  EXPECT_EQ(log, (ActionLog{"delete A"}));
  EXPECT_EQ(list.GetNumberOfActions(), 0);
}

TEST(KccGuiActionList, DestructorDeletesEveryAction) {
  ActionLog log;

  { const KCC_GUI_ActionList list = ListOfABC(log); }

  EXPECT_EQ(log, (ActionLog{"delete A", "delete B", "delete C"}));
}

TEST(KccGuiActionList, ListStaysUsableAfterClearWithContents) {
  ActionLog log;
  KCC_GUI_ActionList list = ListOfABC(log);
  list.ClearWithContents();

  list.Append(new RecordingAction(log, "D"));

  EXPECT_EQ(NamesOf(list), (Names{"D"}));
}

TEST(KccGuiActionList, CopySharesTheActions) {
  ActionLog log;
  KCC_GUI_ActionList source = ListOfABC(log);

  KCC_GUI_ActionList copy(source);

  EXPECT_EQ(*copy.begin(), *source.begin());
  EXPECT_EQ(copy.GetNumberOfActions(), 3);
  copy.Detach();  // one owner only
}

TEST(KccGuiActionList, DetachEmptiesTheListWithoutDeleting) {
  ActionLog log;
  KCC_GUI_ActionList source = ListOfABC(log);
  KCC_GUI_ActionList copy(source);

  copy.Detach();

  EXPECT_TRUE(copy.IsEmpty());
  EXPECT_TRUE(log.empty());
  EXPECT_EQ(NamesOf(source), (Names{"A", "B", "C"}));
}

TEST(KccGuiActionList, CopyAssignmentSharesWithoutDeletingTheFormerActions) {
  ActionLog log;
  KCC_GUI_ActionList source = ListOfABC(log);
  RecordingAction* kept = new RecordingAction(log, "X");
  KCC_GUI_ActionList target;
  target.Append(kept);

  target = source;

  EXPECT_TRUE(log.empty());
  EXPECT_EQ(NamesOf(target), (Names{"A", "B", "C"}));
  target.Detach();
  delete kept;  // the assignment left X to the caller
}

TEST(KccGuiActionList, MoveTransfersTheActionsAndEmptiesTheSource) {
  ActionLog log;
  KCC_GUI_ActionList source = ListOfABC(log);

  const KCC_GUI_ActionList target(std::move(source));

  EXPECT_EQ(NamesOf(target), (Names{"A", "B", "C"}));
  EXPECT_TRUE(source.IsEmpty());  // NOLINT(bugprone-use-after-move): moved-from lists are empty and usable
  EXPECT_TRUE(log.empty());
}

TEST(KccGuiActionList, MoveAssignmentDeletesTheFormerActionsFirst) {
  ActionLog log;
  KCC_GUI_ActionList source = ListOfABC(log);
  KCC_GUI_ActionList target;
  target.Append(new RecordingAction(log, "X"));

  target = std::move(source);

  EXPECT_EQ(log, (ActionLog{"delete X"}));
  EXPECT_EQ(NamesOf(target), (Names{"A", "B", "C"}));
  EXPECT_TRUE(source.IsEmpty());  // NOLINT(bugprone-use-after-move)
}

TEST(KccGuiActionList, MoveAssignmentOntoItselfChangesNothing) {
  ActionLog log;
  KCC_GUI_ActionList list = ListOfABC(log);
  KCC_GUI_ActionList& alias = list;

  list = std::move(alias);

  EXPECT_TRUE(log.empty());
  EXPECT_EQ(NamesOf(list), (Names{"A", "B", "C"}));
}

TEST(KccGuiActionList, ListsInAVectorKeepTheirActions) {
  ActionLog log;
  std::vector<KCC_GUI_ActionList> lists;

  for (int i = 0; i < 10; ++i)
    lists.push_back(ListOfABC(log));

  ASSERT_EQ(lists.size(), 10U);
  EXPECT_EQ(NamesOf(lists[0]), (Names{"A", "B", "C"}));
  EXPECT_EQ(NamesOf(lists[9]), (Names{"A", "B", "C"}));
  EXPECT_TRUE(log.empty());
}
