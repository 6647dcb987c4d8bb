// SPDX-License-Identifier: MIT
// KCC_GUI_ZoomAreaList and KCC_GUI_ZoomAreaCreator: an owning list of zoom areas and the creator that fills
// it. Copies share, moves transfer, Clone duplicates; run under AddressSanitizer, a double delete or a leak
// fails these tests.
#include <gtest/gtest.h>

#include <limits>
#include <type_traits>
#include <utility>
#include <vector>

#include "ncappkit/gui/KCC_GUI_ZoomArea.h"
#include "ncappkit/gui/KCC_GUI_ZoomAreaCreator.h"
#include "ncappkit/gui/KCC_GUI_ZoomAreaList.h"
#include "ncappkit/gui/KCC_GUI_ZoomAreaVisitor.h"

namespace {

// A zoom area that counts its deletions, to see what the list deletes.
class CountedArea : public KCC_GUI_ZoomArea {
 public:
  CountedArea(double xMax, int& deletions) : KCC_GUI_ZoomArea(0.0, 0.0, xMax, 1.0), m_deletions(deletions) {}
  ~CountedArea() override { ++m_deletions; }

 private:
  int& m_deletions;
};

// Notes the Xmax of every area it visits; answers false at the area whose Xmax is `stopAt`.
class XmaxCollector : public KCC_GUI_ZoomAreaVisitor {
 public:
  explicit XmaxCollector(double stopAt = -1.0) : m_stopAt(stopAt) {}
  bool Visit(KCC_GUI_ZoomArea& area) override {
    seen.push_back(area.GetXmax());
    return area.GetXmax() != m_stopAt;
  }
  std::vector<double> seen;

 private:
  double m_stopAt;
};

}  // namespace

TEST(KccGuiZoomAreaList, NewListIsEmpty) {
  const KCC_GUI_ZoomAreaList list;

  EXPECT_TRUE(list.IsEmpty());
  EXPECT_EQ(list.GetNumberOfZoomAreas(), 0);
  EXPECT_EQ(list.GetFirst(), nullptr);
  EXPECT_EQ(list.GetLast(), nullptr);
}

TEST(KccGuiZoomAreaList, AddZoomAreaAppendsAtTheEnd) {
  KCC_GUI_ZoomAreaList list;
  auto* first = new KCC_GUI_ZoomArea(0.0, 0.0, 1.0, 1.0);
  auto* second = new KCC_GUI_ZoomArea(0.0, 0.0, 2.0, 2.0);

  list.AddZoomArea(first);
  list.AddZoomArea(second);

  EXPECT_EQ(list.GetNumberOfZoomAreas(), 2);
  EXPECT_EQ(list.GetFirst(), first);
  EXPECT_EQ(list.GetLast(), second);
}

TEST(KccGuiZoomAreaList, RangeForWalksFrontToBackIncludingNullEntries) {
  KCC_GUI_ZoomAreaList list;
  auto* first = new KCC_GUI_ZoomArea(0.0, 0.0, 1.0, 1.0);
  auto* third = new KCC_GUI_ZoomArea(0.0, 0.0, 3.0, 3.0);
  list.AddZoomArea(first);
  list.AddZoomArea(nullptr);
  list.AddZoomArea(third);

  std::vector<KCC_GUI_ZoomArea*> walked;
  for (KCC_GUI_ZoomArea* area : list)
    walked.push_back(area);

  EXPECT_EQ(walked, (std::vector<KCC_GUI_ZoomArea*>{first, nullptr, third}));
}

TEST(KccGuiZoomAreaList, AcceptVisitsFrontToBackAndSkipsNullEntries) {
  KCC_GUI_ZoomAreaList list;
  list.AddZoomArea(new KCC_GUI_ZoomArea(0.0, 0.0, 1.0, 1.0));
  list.AddZoomArea(nullptr);
  list.AddZoomArea(new KCC_GUI_ZoomArea(0.0, 0.0, 2.0, 1.0));
  XmaxCollector visitor;

  const bool result = list.Accept(visitor);

  EXPECT_TRUE(result);
  EXPECT_EQ(visitor.seen, (std::vector<double>{1.0, 2.0}));
}

TEST(KccGuiZoomAreaList, AcceptStopsAtTheFirstFalse) {
  KCC_GUI_ZoomAreaList list;
  list.AddZoomArea(new KCC_GUI_ZoomArea(0.0, 0.0, 1.0, 1.0));
  list.AddZoomArea(new KCC_GUI_ZoomArea(0.0, 0.0, 2.0, 1.0));
  list.AddZoomArea(new KCC_GUI_ZoomArea(0.0, 0.0, 3.0, 1.0));
  XmaxCollector visitor(2.0);

  const bool result = list.Accept(visitor);

  EXPECT_FALSE(result);
  EXPECT_EQ(visitor.seen, (std::vector<double>{1.0, 2.0}));
}

TEST(KccGuiZoomAreaList, AcceptOnAnEmptyListIsTrue) {
  KCC_GUI_ZoomAreaList list;
  XmaxCollector visitor;

  EXPECT_TRUE(list.Accept(visitor));
  EXPECT_TRUE(visitor.seen.empty());
}

TEST(KccGuiZoomAreaList, ClearWithContentsDeletesEveryAreaAndEmptiesTheList) {
  int deletions = 0;
  KCC_GUI_ZoomAreaList list;
  list.AddZoomArea(new CountedArea(1.0, deletions));
  list.AddZoomArea(nullptr);
  list.AddZoomArea(new CountedArea(2.0, deletions));

  list.ClearWithContents();

  EXPECT_EQ(deletions, 2);
  EXPECT_TRUE(list.IsEmpty());
}

TEST(KccGuiZoomAreaList, DestructorDeletesEveryArea) {
  int deletions = 0;
  {
    KCC_GUI_ZoomAreaList list;
    list.AddZoomArea(new CountedArea(1.0, deletions));
    list.AddZoomArea(new CountedArea(2.0, deletions));
  }

  EXPECT_EQ(deletions, 2);
}

TEST(KccGuiZoomAreaList, CopySharesTheAreas) {
  KCC_GUI_ZoomAreaList original;
  original.AddZoomArea(new KCC_GUI_ZoomArea(0.0, 0.0, 1.0, 1.0));

  KCC_GUI_ZoomAreaList copy(original);

  EXPECT_EQ(copy.GetFirst(), original.GetFirst());
  copy.Detach();  // one owner only
}

TEST(KccGuiZoomAreaList, AssignmentSharesTheAreasAndDeletesNothing) {
  int deletions = 0;
  KCC_GUI_ZoomAreaList original;
  original.AddZoomArea(new CountedArea(1.0, deletions));
  KCC_GUI_ZoomAreaList target;
  CountedArea kept(2.0, deletions);  // on the stack: the assignment must not delete it
  target.AddZoomArea(&kept);

  target = original;

  EXPECT_EQ(deletions, 0);
  EXPECT_EQ(target.GetFirst(), original.GetFirst());
  target.Detach();  // one owner only
}

TEST(KccGuiZoomAreaList, DetachEmptiesWithoutDeleting) {
  int deletions = 0;
  CountedArea area(1.0, deletions);
  KCC_GUI_ZoomAreaList list;
  list.AddZoomArea(&area);

  list.Detach();

  EXPECT_TRUE(list.IsEmpty());
  EXPECT_EQ(deletions, 0);
}

TEST(KccGuiZoomAreaList, MovesAreNoexcept) {
  EXPECT_TRUE(std::is_nothrow_move_constructible<KCC_GUI_ZoomAreaList>::value);
  EXPECT_TRUE(std::is_nothrow_move_assignable<KCC_GUI_ZoomAreaList>::value);
}

TEST(KccGuiZoomAreaList, MoveConstructionTransfersTheAreasAndEmptiesTheSource) {
  KCC_GUI_ZoomAreaList source;
  auto* area = new KCC_GUI_ZoomArea(0.0, 0.0, 1.0, 1.0);
  source.AddZoomArea(area);

  KCC_GUI_ZoomAreaList target(std::move(source));

  EXPECT_EQ(target.GetFirst(), area);
  EXPECT_TRUE(source.IsEmpty());  // NOLINT(bugprone-use-after-move): the emptied source is the behaviour
}

TEST(KccGuiZoomAreaList, MovedFromListIsUsable) {
  KCC_GUI_ZoomAreaList source;
  source.AddZoomArea(new KCC_GUI_ZoomArea(0.0, 0.0, 1.0, 1.0));
  KCC_GUI_ZoomAreaList target(std::move(source));

  source.AddZoomArea(new KCC_GUI_ZoomArea(0.0, 0.0, 5.0, 5.0));  // NOLINT(bugprone-use-after-move)

  EXPECT_EQ(source.GetNumberOfZoomAreas(), 1);
  EXPECT_EQ(source.GetFirst()->GetXmax(), 5.0);
}

TEST(KccGuiZoomAreaList, MoveAssignmentDeletesTheOldAreasAndTakesTheNewOnes) {
  int deletions = 0;
  KCC_GUI_ZoomAreaList target;
  target.AddZoomArea(new CountedArea(1.0, deletions));
  KCC_GUI_ZoomAreaList source;
  auto* area = new KCC_GUI_ZoomArea(0.0, 0.0, 2.0, 2.0);
  source.AddZoomArea(area);

  target = std::move(source);

  EXPECT_EQ(deletions, 1);
  EXPECT_EQ(target.GetNumberOfZoomAreas(), 1);
  EXPECT_EQ(target.GetFirst(), area);
  EXPECT_TRUE(source.IsEmpty());  // NOLINT(bugprone-use-after-move)
}

TEST(KccGuiZoomAreaList, MoveAssignmentOntoItselfChangesNothing) {
  KCC_GUI_ZoomAreaList list;
  auto* area = new KCC_GUI_ZoomArea(0.0, 0.0, 1.0, 1.0);
  list.AddZoomArea(area);
  KCC_GUI_ZoomAreaList& alias = list;

  list = std::move(alias);

  EXPECT_EQ(list.GetNumberOfZoomAreas(), 1);
  EXPECT_EQ(list.GetFirst(), area);
}

TEST(KccGuiZoomAreaList, ListsInAVectorSurviveItsGrowth) {
  std::vector<KCC_GUI_ZoomAreaList> lists;

  for (int i = 0; i < 20; ++i) {
    KCC_GUI_ZoomAreaList list;
    list.AddZoomArea(new KCC_GUI_ZoomArea(0.0, 0.0, 1.0, 1.0));
    lists.push_back(std::move(list));
  }

  ASSERT_EQ(lists.size(), 20u);
  EXPECT_EQ(lists.front().GetFirst()->GetXmax(), 1.0);
  EXPECT_EQ(lists.back().GetFirst()->GetXmax(), 1.0);
}

TEST(KccGuiZoomAreaList, CloneCopiesTheAreas) {
  KCC_GUI_ZoomAreaList original;
  original.AddZoomArea(new KCC_GUI_ZoomArea(0.0, 0.0, 1.0, 1.0));
  original.AddZoomArea(nullptr);

  const KCC_GUI_ZoomAreaList clone = original.Clone();

  ASSERT_EQ(clone.GetNumberOfZoomAreas(), 2);
  EXPECT_NE(clone.GetFirst(), original.GetFirst());
  EXPECT_EQ(clone.GetFirst()->GetXmax(), 1.0);
  EXPECT_EQ(clone.GetLast(), nullptr);
}

TEST(KccGuiZoomAreaList, CloneKeepsThePreviousValues) {
  KCC_GUI_ZoomAreaList original;
  auto* area = new KCC_GUI_ZoomArea(0.0, 0.0, 1.0, 1.0);
  area->SetXmax(9.0);
  original.AddZoomArea(area);
  const KCC_GUI_ZoomAreaList clone = original.Clone();

  clone.GetFirst()->RestorePreviousValues();

  EXPECT_EQ(clone.GetFirst()->GetXmax(), 1.0);
  EXPECT_EQ(area->GetXmax(), 9.0);
}

TEST(KccGuiZoomAreaCreator, CreateZoomAreaAppendsANewAreaToTheList) {
  KCC_GUI_ZoomAreaList list;
  KCC_GUI_ZoomAreaCreator creator(list);

  KCC_GUI_ZoomArea* area = creator.CreateZoomArea(1.0, 2.0, 3.0, 4.0);

  ASSERT_NE(area, nullptr);
  EXPECT_EQ(list.GetNumberOfZoomAreas(), 1);
  EXPECT_EQ(list.GetLast(), area);
  EXPECT_EQ(area->GetXmin(), 1.0);
  EXPECT_EQ(area->GetYmin(), 2.0);
  EXPECT_EQ(area->GetXmax(), 3.0);
  EXPECT_EQ(area->GetYmax(), 4.0);
}

TEST(KccGuiZoomAreaCreator, CreateZoomAreaKeepsTheOrderOfCreation) {
  KCC_GUI_ZoomAreaList list;
  KCC_GUI_ZoomAreaCreator creator(list);

  KCC_GUI_ZoomArea* first = creator.CreateZoomArea(0.0, 0.0, 1.0, 1.0);
  KCC_GUI_ZoomArea* second = creator.CreateZoomArea(0.0, 0.0, 2.0, 2.0);

  EXPECT_EQ(list.GetFirst(), first);
  EXPECT_EQ(list.GetLast(), second);
}

TEST(KccGuiZoomAreaCreator, CreateFromAValidAreaCopiesItsCurrentValues) {
  KCC_GUI_ZoomAreaList list;
  KCC_GUI_ZoomAreaCreator creator(list);
  const KCC_GUI_ZoomArea source(-1.0, -2.0, 10.0, 20.0);

  KCC_GUI_ZoomArea* area = creator.CreateZoomArea(source);

  ASSERT_NE(area, nullptr);
  EXPECT_NE(area, &source);
  EXPECT_EQ(area->GetXmin(), -1.0);
  EXPECT_EQ(area->GetYmin(), -2.0);
  EXPECT_EQ(area->GetXmax(), 10.0);
  EXPECT_EQ(area->GetYmax(), 20.0);
}

TEST(KccGuiZoomAreaCreator, CreatedCopyHasItsCurrentValuesAsPreviousValues) {
  KCC_GUI_ZoomAreaList list;
  KCC_GUI_ZoomAreaCreator creator(list);
  KCC_GUI_ZoomArea source(0.0, 0.0, 100.0, 50.0);
  source.SetXmax(10.0);
  source.SetYmax(5.0);
  KCC_GUI_ZoomArea* area = creator.CreateZoomArea(source);
  ASSERT_NE(area, nullptr);

  area->RestorePreviousValues();

  EXPECT_EQ(area->GetXmax(), 10.0);
  EXPECT_EQ(area->GetYmax(), 5.0);
}

TEST(KccGuiZoomAreaCreator, CreateFromAnInvalidAreaGivesNullAndAddsNothing) {
  KCC_GUI_ZoomAreaList list;
  KCC_GUI_ZoomAreaCreator creator(list);

  KCC_GUI_ZoomArea* area = creator.CreateZoomArea(KCC_GUI_ZoomArea());

  EXPECT_EQ(area, nullptr);
  EXPECT_TRUE(list.IsEmpty());
}

TEST(KccGuiZoomAreaCreator, CreateFromAnAreaWithNaNGivesNull) {
  KCC_GUI_ZoomAreaList list;
  KCC_GUI_ZoomAreaCreator creator(list);
  const KCC_GUI_ZoomArea source(0.0, 0.0, std::numeric_limits<double>::quiet_NaN(), 1.0);

  EXPECT_EQ(creator.CreateZoomArea(source), nullptr);
  EXPECT_TRUE(list.IsEmpty());
}

TEST(KccGuiZoomAreaCreator, CopiedCreatorFillsTheSameList) {
  KCC_GUI_ZoomAreaList list;
  KCC_GUI_ZoomAreaCreator creator(list);
  KCC_GUI_ZoomAreaCreator copy(creator);

  KCC_GUI_ZoomArea* area = copy.CreateZoomArea(0.0, 0.0, 1.0, 1.0);

  EXPECT_EQ(list.GetFirst(), area);
}

TEST(KccGuiZoomAreaCreator, AssignedCreatorFillsTheOtherList) {
  KCC_GUI_ZoomAreaList first;
  KCC_GUI_ZoomAreaList second;
  KCC_GUI_ZoomAreaCreator creator(first);
  const KCC_GUI_ZoomAreaCreator other(second);

  creator = other;
  creator.CreateZoomArea(0.0, 0.0, 1.0, 1.0);

  EXPECT_TRUE(first.IsEmpty());
  EXPECT_EQ(second.GetNumberOfZoomAreas(), 1);
}
