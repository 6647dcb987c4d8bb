// SPDX-License-Identifier: MIT
// KCC_ObjectList ownership: what the destructor and the deleting operations delete, copies that share,
// moves that transfer, and the cursor of a copy. These run under AddressSanitizer, where a double delete
// or a use after free fails them.
#include <gtest/gtest.h>

#include <type_traits>
#include <utility>
#include <vector>

#include "TrackedObject.h"
#include "ncappkit/objects/KCC_ObjectList.h"

namespace {

// An owning list of `count` new objects named "A", "B", ...; each deletion adds 1 to `deletions`.
KCC_ObjectList OwningList(int count, int* deletions) {
  static const char* const kNames[] = {"A", "B", "C", "D", "E", "F"};
  KCC_ObjectList list(true);
  for (int i = 0; i < count; ++i)
    list.InsertTail(new TrackedObject(kNames[i], deletions));
  return list;
}

// Returns one of two named lists, so the result is moved out (no copy elision on either path).
KCC_ObjectList Pick(bool wantFull, int* deletions) {
  KCC_ObjectList full = OwningList(3, deletions);
  KCC_ObjectList empty(true);
  if (wantFull)
    return full;
  return empty;
}

}  // namespace

TEST(KccObjectListOwnership, OwningListDeletesItsObjectsWhenDestroyed) {
  int deletions = 0;

  { const KCC_ObjectList list = OwningList(3, &deletions); }

  EXPECT_EQ(deletions, 3);
}

TEST(KccObjectListOwnership, NonOwningListLeavesItsObjectsAlone) {
  int deletions = 0;
  TrackedObject a("A", &deletions);

  {
    KCC_ObjectList list(false);
    list.InsertTail(&a);
  }

  EXPECT_EQ(deletions, 0);
}

TEST(KccObjectListOwnership, DeleteOneDataItemDeletesAlsoInANonOwningList) {
  int deletions = 0;
  auto* a = new TrackedObject("A", &deletions);
  TrackedObject b("B");
  KCC_ObjectList list(false);
  list.InsertTail(a);
  list.InsertTail(&b);

  const bool deleted = list.DeleteOneDataItem(a);

  EXPECT_TRUE(deleted);
  EXPECT_EQ(deletions, 1);
  EXPECT_EQ(list.GetCurrent(), &b);
  EXPECT_EQ(NamesOf(list), "B");
}

TEST(KccObjectListOwnership, DeleteOneDataItemOfAnAbsentObjectDeletesNothing) {
  int deletions = 0;
  TrackedObject outside("X", &deletions);
  KCC_ObjectList list = OwningList(2, nullptr);
  list.GetFirst();

  const bool deleted = list.DeleteOneDataItem(&outside);

  EXPECT_FALSE(deleted);
  EXPECT_EQ(deletions, 0);
  EXPECT_EQ(list.GetCurrent(), nullptr);
}

TEST(KccObjectListOwnership, DeleteOneDataItemOfNullRemovesTheNullElement) {
  TrackedObject a("A");
  ListWithPlaceholders list(false);
  list.AppendElement(nullptr);
  list.AppendElement(&a);

  const bool removed = list.DeleteOneDataItem(nullptr);

  EXPECT_TRUE(removed);
  EXPECT_EQ(list.GetCurrent(), &a);
  EXPECT_EQ(list.Count(), 1);
}

TEST(KccObjectListOwnership, DeleteAllSelectedItemsDeletesTheSelectedOnes) {
  int deletions = 0;
  KCC_ObjectList list = OwningList(3, &deletions);
  list.GetFirst()->SetSelectionFlag(true);
  list.GetLast()->SetSelectionFlag(true);

  const bool deleted = list.DeleteAllSelectedItems();

  EXPECT_TRUE(deleted);
  EXPECT_EQ(deletions, 2);
  EXPECT_EQ(list.GetCurrent(), nullptr);
  EXPECT_EQ(NamesOf(list), "B");
}

TEST(KccObjectListOwnership, DeleteAllSelectedItemsWithNothingSelectedGivesFalse) {
  int deletions = 0;
  KCC_ObjectList list = OwningList(2, &deletions);

  const bool deleted = list.DeleteAllSelectedItems();

  EXPECT_FALSE(deleted);
  EXPECT_EQ(deletions, 0);
  EXPECT_EQ(list.Count(), 2);
}

TEST(KccObjectListOwnership, DeleteAllUnSelectedItemsKeepsNullPointers) {
  int deletions = 0;
  auto* a = new TrackedObject("A", &deletions);
  auto* b = new TrackedObject("B", &deletions);
  a->SetSelectionFlag(true);
  ListWithPlaceholders list(true);
  list.AppendElement(a);
  list.AppendElement(nullptr);
  list.AppendElement(b);

  const bool deleted = list.DeleteAllUnSelectedItems();

  EXPECT_TRUE(deleted);
  EXPECT_EQ(deletions, 1);
  EXPECT_EQ(list.GetCurrent(), nullptr);
  EXPECT_EQ(list.GetFirst(), a);
  EXPECT_EQ(list.GetNext(), nullptr);  // the null element stayed ...
  EXPECT_EQ(list.GetLast(), nullptr);  // ... and is now the last one
}

TEST(KccObjectListOwnership, DeleteAllUnSelectedItemsWithEverythingSelectedGivesFalse) {
  KCC_ObjectList list = OwningList(2, nullptr);
  list.SetAllSelections();

  const bool deleted = list.DeleteAllUnSelectedItems();

  EXPECT_FALSE(deleted);
  EXPECT_EQ(list.Count(), 2);
}

TEST(KccObjectListOwnership, DeleteAllSelectedItemsDeletesAnObjectHeldTwiceOnce) {
  int deletions = 0;
  auto* a = new TrackedObject("A", &deletions);
  a->SetSelectionFlag(true);
  TrackedObject b("B");
  KCC_ObjectList list(false);
  list.InsertTail(a);
  list.InsertTail(&b);
  list.InsertTail(a);

  list.DeleteAllSelectedItems();

  EXPECT_EQ(deletions, 1);
  EXPECT_EQ(NamesOf(list), "B");
}

TEST(KccObjectListOwnership, DestructorDeletesAnObjectHeldTwiceOnce) {
  int deletions = 0;
  auto* a = new TrackedObject("A", &deletions);

  {
    KCC_ObjectList list(true);
    list.InsertTail(a);
    list.InsertTail(a);
  }

  EXPECT_EQ(deletions, 1);
}

TEST(KccObjectListOwnership, CopySharesThePointers) {
  KCC_ObjectList source = OwningList(2, nullptr);

  KCC_ObjectList copy(source);

  EXPECT_EQ(copy.GetFirst(), source.GetFirst());
  EXPECT_EQ(copy.GetLast(), source.GetLast());
  KCC_ObjectList(false).AppendList(copy);  // the source keeps the objects; the copy must not delete them
}

TEST(KccObjectListOwnership, CopyOfAnOwningListAlsoOwnsTheObjects) {
  int deletions = 0;
  KCC_ObjectList source = OwningList(2, &deletions);

  {
    KCC_ObjectList copy(source);
    EXPECT_TRUE(copy.IsOwner());
    KCC_ObjectList(false).AppendList(source);  // leave the objects to the copy alone
  }

  EXPECT_EQ(deletions, 2);
  EXPECT_TRUE(source.IsEmpty());
}

TEST(KccObjectListOwnership, CopyAssignmentKeepsTheObjectsHeldBefore) {
  int deletions = 0;
  TrackedObject kept("K", &deletions);
  TrackedObject a("A");
  KCC_ObjectList target(false);
  target.InsertTail(&kept);
  KCC_ObjectList source(false);
  source.InsertTail(&a);

  target = source;

  EXPECT_EQ(deletions, 0);
  EXPECT_EQ(NamesOf(target), "A");
}

TEST(KccObjectListOwnership, CopiedCursorGivesNoCurrentObject) {
  TrackedObject a("A");
  TrackedObject b("B");
  KCC_ObjectList source(false);
  source.InsertTail(&a);
  source.InsertTail(&b);
  source.SetCurrent(&a);

  KCC_ObjectList copy(source);

  EXPECT_EQ(copy.GetCurrent(), nullptr);
  EXPECT_EQ(source.GetCurrent(), &a);
}

TEST(KccObjectListOwnership, CopiedCursorGetNextGivesNull) {
  TrackedObject a("A");
  TrackedObject b("B");
  KCC_ObjectList source(false);
  source.InsertTail(&a);
  source.InsertTail(&b);
  source.SetCurrent(&a);
  KCC_ObjectList copy(source);

  KCC_ObjectData* next = copy.GetNext();

  EXPECT_EQ(next, nullptr);
  EXPECT_EQ(copy.GetCurrent(), nullptr);
}

TEST(KccObjectListOwnership, CopiedCursorGetPrevGoesToTheLastObject) {
  TrackedObject a("A");
  TrackedObject b("B");
  KCC_ObjectList source(false);
  source.InsertTail(&a);
  source.InsertTail(&b);
  source.SetCurrent(&b);
  KCC_ObjectList copy(source);

  KCC_ObjectData* previous = copy.GetPrev();

  EXPECT_EQ(previous, &b);
  EXPECT_EQ(copy.GetPrev(), &a);  // re-positioned: the copy now walks its own elements
}

TEST(KccObjectListOwnership, CopyRepositionedWithGetFirstWalksItsOwnElements) {
  TrackedObject a("A");
  TrackedObject b("B");
  KCC_ObjectList source(false);
  source.InsertTail(&a);
  source.InsertTail(&b);
  KCC_ObjectList copy(source);
  source.RemoveDataItem(&a);

  KCC_ObjectData* first = copy.GetFirst();

  EXPECT_EQ(first, &a);
  EXPECT_EQ(copy.GetNext(), &b);
  EXPECT_EQ(copy.GetNext(), nullptr);
}

TEST(KccObjectListOwnership, CopiedCursorStaysForeignThroughReverseList) {
  TrackedObject a("A");
  TrackedObject b("B");
  KCC_ObjectList source(false);
  source.InsertTail(&a);
  source.InsertTail(&b);
  KCC_ObjectList copy(source);

  copy.ReverseList();

  EXPECT_EQ(copy.GetCurrent(), nullptr);
}

TEST(KccObjectListOwnership, CopyAssignmentAlsoCopiesTheCursorAsForeign) {
  TrackedObject a("A");
  KCC_ObjectList source(false);
  source.InsertTail(&a);
  KCC_ObjectList target(false);

  target = source;

  EXPECT_EQ(source.GetCurrent(), &a);
  EXPECT_EQ(target.GetCurrent(), nullptr);
  EXPECT_EQ(target.GetFirst(), &a);
}

TEST(KccObjectListOwnership, SelfCopyAssignmentKeepsTheCursor) {
  TrackedObject a("A");
  KCC_ObjectList list(false);
  list.InsertTail(&a);
  KCC_ObjectList& same = list;

  list = same;

  EXPECT_EQ(list.GetCurrent(), &a);
}

TEST(KccObjectListOwnership, MovesAreNoexcept) {
  EXPECT_TRUE(std::is_nothrow_move_constructible<KCC_ObjectList>::value);
  EXPECT_TRUE(std::is_nothrow_move_assignable<KCC_ObjectList>::value);
}

TEST(KccObjectListOwnership, MoveConstructionTakesObjectsFlagAndCursor) {
  int deletions = 0;
  KCC_ObjectList source = OwningList(3, &deletions);
  KCC_ObjectData* second = source.GetFirst();
  second = source.GetNext();

  KCC_ObjectList target(std::move(source));

  EXPECT_EQ(target.GetCurrent(), second);
  EXPECT_TRUE(target.IsOwner());
  EXPECT_EQ(NamesOf(target), "A,B,C");
  EXPECT_EQ(deletions, 0);
}

TEST(KccObjectListOwnership, MovedFromListIsEmptyAndUsable) {
  KCC_ObjectList source = OwningList(2, nullptr);
  source.GetLast();
  TrackedObject x("X");

  KCC_ObjectList target(std::move(source));

  EXPECT_TRUE(source.IsEmpty());  // NOLINT(bugprone-use-after-move): the moved-from state is defined
  EXPECT_EQ(source.GetCurrent(), nullptr);
  EXPECT_EQ(source.GetPrev(), nullptr);
  EXPECT_EQ(target.Count(), 2);
}

TEST(KccObjectListOwnership, MoveAssignmentOntoAnOwningListDeletesItsObjects) {
  int oldDeletions = 0;
  int newDeletions = 0;
  KCC_ObjectList target = OwningList(2, &oldDeletions);
  KCC_ObjectList source = OwningList(3, &newDeletions);

  target = std::move(source);

  EXPECT_EQ(oldDeletions, 2);
  EXPECT_EQ(newDeletions, 0);
  EXPECT_EQ(NamesOf(target), "A,B,C");
  EXPECT_TRUE(source.IsEmpty());  // NOLINT(bugprone-use-after-move)
}

TEST(KccObjectListOwnership, MoveAssignmentOntoANonOwningListDeletesNothing) {
  int deletions = 0;
  TrackedObject kept("K", &deletions);
  KCC_ObjectList target(false);
  target.InsertTail(&kept);

  target = OwningList(1, nullptr);

  EXPECT_EQ(deletions, 0);
  EXPECT_TRUE(target.IsOwner());
  EXPECT_EQ(NamesOf(target), "A");
}

TEST(KccObjectListOwnership, SelfMoveAssignmentChangesNothing) {
  KCC_ObjectList list = OwningList(2, nullptr);
  list.GetLast();
  KCC_ObjectList& same = list;

  list = std::move(same);

  EXPECT_EQ(NameOf(list.GetCurrent()), "B");
  EXPECT_EQ(list.Count(), 2);
}

TEST(KccObjectListOwnership, ListReturnedOnTheFullPathKeepsItsObjects) {
  int deletions = 0;

  const KCC_ObjectList list = Pick(true, &deletions);

  EXPECT_EQ(deletions, 0);
  EXPECT_FALSE(list.IsEmpty());
  EXPECT_TRUE(list.IsOwner());
}

TEST(KccObjectListOwnership, ListReturnedOnTheEmptyPathLeavesTheOtherDeleted) {
  int deletions = 0;

  const KCC_ObjectList list = Pick(false, &deletions);

  EXPECT_EQ(deletions, 3);
  EXPECT_TRUE(list.IsEmpty());
}

TEST(KccObjectListOwnership, VectorGrownWithEmplaceBackAndPushBackKeepsEveryList) {
  int deletions = 0;
  std::vector<KCC_ObjectList> lists;

  {
    for (int i = 0; i < 20; ++i) {
      if (i % 2 == 0) {
        KCC_ObjectList list = OwningList(2, &deletions);
        lists.push_back(std::move(list));
      } else {
        lists.emplace_back(OwningList(3, &deletions));
      }
    }
    EXPECT_EQ(deletions, 0);
    EXPECT_EQ(NamesOf(lists.front()), "A,B");
    EXPECT_EQ(NamesOf(lists.back()), "A,B,C");
    lists.clear();
  }

  EXPECT_EQ(deletions, 10 * 2 + 10 * 3);
}

TEST(KccObjectListOwnership, AppendListHandsThePointersOverWithoutDeleting) {
  int deletions = 0;
  KCC_ObjectList target(true);
  KCC_ObjectList source = OwningList(2, &deletions);

  target.AppendList(source);

  EXPECT_EQ(deletions, 0);
  EXPECT_TRUE(source.IsEmpty());
  EXPECT_EQ(NamesOf(target), "A,B");
}
