// SPDX-License-Identifier: MIT
// KCC_ObjectList: walking with the cursor, inserting, removing, moving, selection. Each operation's effect on
// the cursor is one row of the table below; the cases that need null elements or a special list follow.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "TrackedObject.h"
#include "ncappkit/objects/KCC_ObjectList.h"
#include "support/TestData.h"

namespace {

// A non-owning list holding A, B, C, plus objects X and Y that are not in it.
class KccObjectListWithAbc : public ::testing::Test {
 public:
  KccObjectListWithAbc() {
    list.InsertTail(&a);
    list.InsertTail(&b);
    list.InsertTail(&c);
  }

  TrackedObject a{"A"};
  TrackedObject b{"B"};
  TrackedObject c{"C"};
  TrackedObject x{"X"};
  TrackedObject y{"Y"};
  KCC_ObjectList list{false};
};

using Abc = KccObjectListWithAbc;

// Where the cursor stands before the operation of a row.
enum class Start { First, Second, Last, None };

struct CursorCase {
  const char* name;
  Start start;
  // Runs the operation and gives its result as text: an object name, "null", "true"/"false", a number, or
  // "-" for an operation without a result.
  std::function<std::string(Abc&)> act;
  const char* result;
  const char* order;    // the list afterwards
  const char* current;  // the current object afterwards, "none" when there is no current element
};

std::string Bool(bool value) {
  return value ? "true" : "false";
}

// The result text of an operation without a result.
std::string Done() {
  return "-";
}

class KccObjectListCursor : public KccObjectListWithAbc, public ::testing::WithParamInterface<CursorCase> {};

// clang-format off
const CursorCase kCursorCases[] = {
    {"GetFirstGoesToTheFirstElement", Start::None,
     [](Abc& f) { return NameOf(f.list.GetFirst()); }, "A", "A,B,C", "A"},
    {"GetLastGoesToTheLastElement", Start::First,
     [](Abc& f) { return NameOf(f.list.GetLast()); }, "C", "A,B,C", "C"},
    {"GetNextMovesOn", Start::First,
     [](Abc& f) { return NameOf(f.list.GetNext()); }, "B", "A,B,C", "B"},
    {"GetNextOnTheLastPassesTheEnd", Start::Last,
     [](Abc& f) { return NameOf(f.list.GetNext()); }, "null", "A,B,C", "none"},
    {"GetNextWithoutCurrentElementGivesNull", Start::None,
     [](Abc& f) { return NameOf(f.list.GetNext()); }, "null", "A,B,C", "none"},
    {"GetPrevMovesBack", Start::Second,
     [](Abc& f) { return NameOf(f.list.GetPrev()); }, "A", "A,B,C", "A"},
    {"GetPrevOnTheFirstGivesNullAndKeepsTheCursor", Start::First,
     [](Abc& f) { return NameOf(f.list.GetPrev()); }, "null", "A,B,C", "A"},
    {"GetPrevWithoutCurrentElementGoesToTheLast", Start::None,
     [](Abc& f) { return NameOf(f.list.GetPrev()); }, "C", "A,B,C", "C"},
    {"GetCurrentKeepsTheCursor", Start::Second,
     [](Abc& f) { return NameOf(f.list.GetCurrent()); }, "B", "A,B,C", "B"},
    {"SetCurrentGoesToTheObject", Start::First,
     [](Abc& f) { return Bool(f.list.SetCurrent(&f.c)); }, "true", "A,B,C", "C"},
    {"SetCurrentOfAnAbsentObjectLeavesNoCurrentElement", Start::First,
     [](Abc& f) { return Bool(f.list.SetCurrent(&f.x)); }, "false", "A,B,C", "none"},
    {"UpdateCurrentGoesToTheObject", Start::First,
     [](Abc& f) { f.list.UpdateCurrent(&f.b); return Done(); }, "-", "A,B,C", "B"},
    {"UpdateCurrentOfAnAbsentObjectLeavesNoCurrentElement", Start::First,
     [](Abc& f) { f.list.UpdateCurrent(&f.x); return Done(); }, "-", "A,B,C", "none"},
    {"IsElementMovesTheCursorToTheObject", Start::First,
     [](Abc& f) { return Bool(f.list.IsElement(&f.c)); }, "true", "A,B,C", "C"},
    {"IsElementOfAnAbsentObjectLeavesNoCurrentElement", Start::Second,
     [](Abc& f) { return Bool(f.list.IsElement(&f.x)); }, "false", "A,B,C", "none"},
    {"InsertHeadPutsTheObjectInFrontAndMakesItCurrent", Start::Last,
     [](Abc& f) { f.list.InsertHead(&f.x); return Done(); }, "-", "X,A,B,C", "X"},
    {"InsertTailAppendsTheObjectAndMakesItCurrent", Start::First,
     [](Abc& f) { f.list.InsertTail(&f.x); return Done(); }, "-", "A,B,C,X", "X"},
    {"InsertTailOfAHeldObjectGoesToItsFirstElement", Start::Last,
     [](Abc& f) { f.list.InsertTail(&f.a); return Done(); }, "-", "A,B,C,A", "A"},
    {"InsertTailOfANullObjectChangesNothing", Start::Second,
     [](Abc& f) { f.list.InsertTail(nullptr); return Done(); }, "-", "A,B,C", "B"},
    {"InsertHeadOfANullObjectChangesNothing", Start::Second,
     [](Abc& f) { f.list.InsertHead(nullptr); return Done(); }, "-", "A,B,C", "B"},
    {"InsertAfterPutsTheObjectBehindTheReference", Start::Last,
     [](Abc& f) { f.list.InsertAfter(&f.x, &f.a); return Done(); }, "-", "A,X,B,C", "X"},
    {"InsertAfterAnAbsentReferenceAppendsAndMakesCurrent", Start::First,
     [](Abc& f) { f.list.InsertAfter(&f.x, &f.y); return Done(); }, "-", "A,B,C,X", "X"},
    {"InsertAfterOfANullObjectChangesNothing", Start::Second,
     [](Abc& f) { f.list.InsertAfter(nullptr, &f.a); return Done(); }, "-", "A,B,C", "B"},
    {"InsertBeforePutsTheObjectInFrontOfTheReference", Start::First,
     [](Abc& f) { f.list.InsertBefore(&f.x, &f.c); return Done(); }, "-", "A,B,X,C", "X"},
    {"InsertBeforeAnAbsentReferenceAppendsAndMakesCurrent", Start::First,
     [](Abc& f) { f.list.InsertBefore(&f.x, &f.y); return Done(); }, "-", "A,B,C,X", "X"},
    {"InsertBeforeOfANullObjectChangesNothing", Start::Last,
     [](Abc& f) { f.list.InsertBefore(nullptr, &f.b); return Done(); }, "-", "A,B,C", "C"},
    {"RemoveDataItemGoesToTheFollowingElement", Start::First,
     [](Abc& f) { return Bool(f.list.RemoveDataItem(&f.b)); }, "true", "A,C", "C"},
    {"RemoveDataItemOfTheLastLeavesNoCurrentElement", Start::First,
     [](Abc& f) { return Bool(f.list.RemoveDataItem(&f.c)); }, "true", "A,B", "none"},
    {"RemoveDataItemOfAnAbsentObjectLeavesNoCurrentElement", Start::Second,
     [](Abc& f) { return Bool(f.list.RemoveDataItem(&f.x)); }, "false", "A,B,C", "none"},
    {"MoveForewardExchangesWithTheNextAndKeepsTheElement", Start::First,
     [](Abc& f) { return Bool(f.list.MoveForeward(&f.a)); }, "true", "B,A,C", "B"},
    {"MoveForewardOnTheLastGivesFalse", Start::Second,
     [](Abc& f) { return Bool(f.list.MoveForeward(&f.c)); }, "false", "A,B,C", "B"},
    {"MoveForewardOfAnAbsentObjectGivesFalse", Start::Second,
     [](Abc& f) { return Bool(f.list.MoveForeward(&f.x)); }, "false", "A,B,C", "B"},
    {"MoveBackwardExchangesWithThePreviousAndKeepsTheElement", Start::Last,
     [](Abc& f) { return Bool(f.list.MoveBackward(&f.c)); }, "true", "A,C,B", "B"},
    {"MoveBackwardOnTheFirstGivesFalse", Start::Second,
     [](Abc& f) { return Bool(f.list.MoveBackward(&f.a)); }, "false", "A,B,C", "B"},
    {"MoveBackwardOfAnAbsentObjectChangesNothing", Start::Second,
     [](Abc& f) { return Bool(f.list.MoveBackward(&f.x)); }, "false", "A,B,C", "B"},
    {"ReverseListKeepsTheElementAtItsMirroredPlace", Start::First,
     [](Abc& f) { return Bool(f.list.ReverseList()); }, "true", "C,B,A", "A"},
    {"ReverseListWithoutCurrentElementKeepsNone", Start::None,
     [](Abc& f) { return Bool(f.list.ReverseList()); }, "true", "C,B,A", "none"},
    {"ReInitListLeavesNoCurrentElement", Start::Second,
     [](Abc& f) { f.list.ReInitList(); return Done(); }, "-", "A,B,C", "none"},
    {"CountWithoutNullsLeavesNoCurrentElement", Start::Second,
     [](Abc& f) { return std::to_string(f.list.Count()); }, "3", "A,B,C", "none"},
    {"IsEmptyKeepsTheCursor", Start::Second,
     [](Abc& f) { return Bool(f.list.IsEmpty()); }, "false", "A,B,C", "B"},
    {"DoesListExistsIsTrue", Start::Second,
     [](Abc& f) { return Bool(f.list.DoesListExists()); }, "true", "A,B,C", "B"},
    {"SetAllSelectionsKeepsTheCursor", Start::Second,
     [](Abc& f) { f.list.SetAllSelections(); return std::to_string(f.list.GetNumberOfSelectedItems()); },
     "3", "A,B,C", "B"},
    {"ClearAllSelectionsKeepsTheCursor", Start::Last,
     [](Abc& f) { f.b.SetSelectionFlag(true); f.list.ClearAllSelections();
                            return std::to_string(f.list.GetNumberOfSelectedItems()); },
     "0", "A,B,C", "C"},
    {"GetNumberOfSelectedItemsCountsSetFlags", Start::First,
     [](Abc& f) { f.a.SetSelectionFlag(true); f.c.SetSelectionFlag(true);
                            return std::to_string(f.list.GetNumberOfSelectedItems()); },
     "2", "A,B,C", "A"},
};
// clang-format on

}  // namespace

TEST_P(KccObjectListCursor, OperationMovesTheCursorAsDocumented) {
  const CursorCase& row = GetParam();
  switch (row.start) {
    case Start::First:
      list.GetFirst();
      break;
    case Start::Second:
      list.SetCurrent(&b);
      break;
    case Start::Last:
      list.GetLast();
      break;
    case Start::None:
      list.ReInitList();
      break;
  }

  const std::string result = row.act(*this);
  KCC_ObjectData* current = list.GetCurrent();
  const std::string currentName = current == nullptr ? "none" : NameOf(current);

  EXPECT_EQ(result, row.result);
  EXPECT_EQ(currentName, row.current);
  EXPECT_EQ(NamesOf(list), row.order);
}

INSTANTIATE_TEST_SUITE_P(Table, KccObjectListCursor, ::testing::ValuesIn(kCursorCases), RowName());

TEST_F(KccObjectListWithAbc, AppendListKeepsTheCursorAndEmptiesTheOtherList) {
  TrackedObject d("D");
  KCC_ObjectList other(false);
  other.InsertTail(&d);
  list.SetCurrent(&b);

  list.AppendList(other);

  EXPECT_EQ(NameOf(list.GetCurrent()), "B");
  EXPECT_TRUE(other.IsEmpty());
  EXPECT_EQ(other.GetCurrent(), nullptr);
  EXPECT_EQ(NamesOf(list), "A,B,C,D");
}

TEST_F(KccObjectListWithAbc, AppendListWithoutCurrentElementKeepsNone) {
  TrackedObject d("D");
  KCC_ObjectList other(false);
  other.InsertTail(&d);
  list.ReInitList();

  list.AppendList(other);

  EXPECT_EQ(list.GetCurrent(), nullptr);
  EXPECT_EQ(list.GetNext(), nullptr);
}

TEST_F(KccObjectListWithAbc, AppendListToItselfChangesNothing) {
  list.AppendList(list);

  EXPECT_EQ(NamesOf(list), "A,B,C");
}

TEST_F(KccObjectListWithAbc, GetNextAfterTheLastThenGetPrevGivesTheLast) {
  list.GetLast();

  KCC_ObjectData* past = list.GetNext();
  KCC_ObjectData* back = list.GetPrev();

  EXPECT_EQ(past, nullptr);
  EXPECT_EQ(back, &c);
}

TEST_F(KccObjectListWithAbc, WalkingBackwardsFromTheLastVisitsEveryObject) {
  std::string names;

  for (KCC_ObjectData* object = list.GetLast(); object != nullptr; object = list.GetPrev())
    names += NameOf(object);

  EXPECT_EQ(names, "CBA");
}

TEST(KccObjectList, NewListIsEmptyWithoutCurrentElement) {
  KCC_ObjectList list(false);

  EXPECT_TRUE(list.IsEmpty());
  EXPECT_EQ(list.GetCurrent(), nullptr);
  EXPECT_EQ(list.Count(), 0);
  EXPECT_FALSE(list.IsOwner());
}

TEST(KccObjectList, GetFirstAndGetLastOfAnEmptyListGiveNull) {
  KCC_ObjectList list(false);

  EXPECT_EQ(list.GetFirst(), nullptr);
  EXPECT_EQ(list.GetLast(), nullptr);
  EXPECT_EQ(list.GetPrev(), nullptr);
}

TEST(KccObjectList, CountStopsAtTheFirstNullAndLeavesTheCursorThere) {
  TrackedObject a("A");
  TrackedObject b("B");
  ListWithPlaceholders list(false);
  list.AppendElement(&a);
  list.AppendElement(nullptr);
  list.AppendElement(&b);

  const int count = list.Count();

  EXPECT_EQ(count, 1);
  EXPECT_EQ(list.GetCurrent(), nullptr);
  EXPECT_EQ(list.GetNext(), &b);  // the cursor stood on the null element, not behind the last one
}

TEST(KccObjectList, CountWithoutNullsLeavesNoCurrentElement) {
  TrackedObject a("A");
  TrackedObject b("B");
  KCC_ObjectList list(false);
  list.InsertTail(&a);
  list.InsertTail(&b);

  const int count = list.Count();

  EXPECT_EQ(count, 2);
  EXPECT_EQ(list.GetCurrent(), nullptr);
  EXPECT_EQ(list.GetNext(), nullptr);
  EXPECT_EQ(list.GetPrev(), &b);  // from no current element back to the last one
}

TEST(KccObjectList, IsEmptyCountsNullElements) {
  ListWithPlaceholders list(false);
  list.AppendElement(nullptr);

  EXPECT_FALSE(list.IsEmpty());
  EXPECT_EQ(list.Count(), 0);
}

TEST(KccObjectList, SetCurrentOfNullFindsTheFirstNullElement) {
  TrackedObject a("A");
  TrackedObject b("B");
  ListWithPlaceholders list(false);
  list.AppendElement(&a);
  list.AppendElement(nullptr);
  list.AppendElement(&b);

  const bool found = list.SetCurrent(nullptr);

  EXPECT_TRUE(found);
  EXPECT_EQ(list.GetNext(), &b);
}

TEST(KccObjectList, ReverseListOfOneElementGivesFalse) {
  TrackedObject a("A");
  KCC_ObjectList list(false);
  list.InsertTail(&a);

  const bool reversed = list.ReverseList();

  EXPECT_FALSE(reversed);
  EXPECT_EQ(list.GetCurrent(), &a);
}

TEST(KccObjectList, ReverseListOfAnEmptyListGivesFalse) {
  KCC_ObjectList list(false);

  EXPECT_FALSE(list.ReverseList());
}

TEST(KccObjectList, SearchesStopAtTheFirstElementHoldingTheObject) {
  TrackedObject a("A");
  TrackedObject b("B");
  KCC_ObjectList list(false);
  list.InsertTail(&a);
  list.InsertTail(&b);
  list.InsertTail(&a);

  list.RemoveDataItem(&a);

  EXPECT_EQ(NamesOf(list), "B,A");
}

TEST(KccObjectList, InsertAfterANullReferenceGoesBehindTheFirstNullElement) {
  TrackedObject a("A");
  TrackedObject x("X");
  ListWithPlaceholders list(false);
  list.AppendElement(nullptr);
  list.AppendElement(&a);

  list.InsertAfter(&x, nullptr);

  EXPECT_EQ(list.GetCurrent(), &x);
  EXPECT_EQ(list.GetNext(), &a);
  EXPECT_EQ(list.GetFirst(), nullptr);
}

TEST(KccObjectList, SelectionOperationsSkipNullElements) {
  TrackedObject a("A");
  ListWithPlaceholders list(false);
  list.AppendElement(nullptr);
  list.AppendElement(&a);

  list.SetAllSelections();

  EXPECT_TRUE(a.IsSelected());
  EXPECT_EQ(list.GetNumberOfSelectedItems(), 1);
}

TEST(KccObjectList, AppendElementKeepsNoCurrentElement) {
  TrackedObject a("A");
  ListWithPlaceholders list(false);

  list.AppendElement(&a);

  EXPECT_EQ(list.GetCurrent(), nullptr);
  EXPECT_EQ(list.GetFirst(), &a);
}
