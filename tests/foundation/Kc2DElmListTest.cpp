// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "ncappkit/foundation/KC2DElmList.h"

namespace {

// Counts live instances, so the tests can see the list delete its elements.
class CountedPoint : public KC2DPoint {
 public:
  explicit CountedPoint(int& live) : KC2DPoint(1, 2), m_live(live) { ++m_live; }
  CountedPoint(const CountedPoint& other) : KC2DPoint(other), m_live(other.m_live) { ++m_live; }
  CountedPoint& operator=(const CountedPoint&) = delete;
  ~CountedPoint() override { --m_live; }
  KC2DElement* Clone() const override { return new CountedPoint(*this); }

 private:
  int& m_live;
};

class KindCounter : public KC2DElementVisitor {
 public:
  bool Visit(KC2DPoint&) override { return ++points < stopAfter; }
  bool Visit(KC2DLine&) override { return ++lines < stopAfter; }
  bool Visit(KC2DArc&) override { return ++arcs < stopAfter; }
  bool Visit(KC2DRectangle&) override { return ++rectangles < stopAfter; }
  int points = 0, lines = 0, arcs = 0, rectangles = 0;
  int stopAfter = 1000;
};

}  // namespace

TEST(Kc2DElmList, DestructorDeletesTheElements) {
  int live = 0;
  {
    KC2DElmList list;
    list.Add(new CountedPoint(live));
    list.Add(new CountedPoint(live));
    EXPECT_EQ(live, 2);
  }
  EXPECT_EQ(live, 0);
}

TEST(Kc2DElmList, ClearDeletesTheElementsAndEmptiesTheList) {
  int live = 0;
  KC2DElmList list;
  list.Add(new CountedPoint(live));
  list.Clear();
  EXPECT_EQ(live, 0);
  EXPECT_TRUE(list.empty());
}

TEST(Kc2DElmList, CopyClonesEveryElement) {
  int live = 0;
  KC2DElmList list;
  list.Add(new CountedPoint(live));
  list.Add(nullptr);
  KC2DElmList copy(list);
  EXPECT_EQ(live, 2);
  ASSERT_EQ(copy.size(), 2u);
  EXPECT_NE(copy.GetAt(0), list.GetAt(0));
  EXPECT_TRUE(copy.GetAt(0)->IsAlmostEq(*list.GetAt(0), 0.0));
  EXPECT_EQ(copy.GetAt(1), nullptr);
}

TEST(Kc2DElmList, AssignmentReplacesTheElementsWithClones) {
  int live = 0;
  KC2DElmList a;
  a.Add(new CountedPoint(live));
  KC2DElmList b;
  b.Add(new CountedPoint(live));
  b.Add(new CountedPoint(live));
  b = a;
  EXPECT_EQ(b.size(), 1u);
  EXPECT_EQ(live, 2);  // a's one and b's clone of it
}

TEST(Kc2DElmList, MoveLeavesTheSourceEmpty) {
  KC2DElmList a;
  a.Add(new KC2DLine(0, 0, 1, 1));
  KC2DElmList b(std::move(a));
  EXPECT_EQ(b.size(), 1u);
  EXPECT_TRUE(a.empty());  // NOLINT(bugprone-use-after-move): moved-from state is part of the contract
}

TEST(Kc2DElmList, RemoveDeletesOneElement) {
  int live = 0;
  KC2DElmList list;
  list.Add(new CountedPoint(live));
  list.Add(new KC2DLine(0, 0, 1, 0));
  EXPECT_TRUE(list.Remove(0));
  EXPECT_EQ(live, 0);
  ASSERT_EQ(list.size(), 1u);
  EXPECT_NE(dynamic_cast<KC2DLine*>(list.GetAt(0)), nullptr);
  EXPECT_FALSE(list.Remove(5));
  EXPECT_EQ(list.GetAt(5), nullptr);
}

TEST(Kc2DElmList, AcceptVisitsFrontToBackSkippingNulls) {
  KC2DElmList list;
  list.Add(new KC2DPoint(0, 0));
  list.Add(nullptr);
  list.Add(new KC2DLine(0, 0, 1, 0));
  list.Add(new KC2DArc(KC2DPoint(1, 0), KC2DPoint(0, 1), KC2DPoint(0, 0), true));
  list.Add(new KC2DRectangle(0, 0, 1, 1));
  KindCounter counter;
  EXPECT_TRUE(list.Accept(counter));
  EXPECT_EQ(counter.points, 1);
  EXPECT_EQ(counter.lines, 1);
  EXPECT_EQ(counter.arcs, 1);
  EXPECT_EQ(counter.rectangles, 1);
}

TEST(Kc2DElmList, AcceptStopsAtTheFirstFalse) {
  KC2DElmList list;
  list.Add(new KC2DLine(0, 0, 1, 0));
  list.Add(new KC2DLine(0, 0, 2, 0));
  list.Add(new KC2DLine(0, 0, 3, 0));
  KindCounter counter;
  counter.stopAfter = 2;
  EXPECT_FALSE(list.Accept(counter));
  EXPECT_EQ(counter.lines, 2);
}

TEST(Kc2DElmList, AreaCoversEveryElement) {
  KC2DElmList list;
  list.Add(new KC2DLine(0, 0, 10, 0));
  list.Add(new KC2DArc(KC2DPoint(10, 0), KC2DPoint(10, 10), KC2DPoint(10, 5), true));  // bulges to x = 15
  const KC2DArea area = list.GetArea();
  EXPECT_DOUBLE_EQ(area.GetMinX(), 0.0);
  EXPECT_DOUBLE_EQ(area.GetMaxX(), 15.0);
  EXPECT_DOUBLE_EQ(area.GetMaxY(), 10.0);
  EXPECT_TRUE(KC2DElmList().GetArea().IsEmpty());
}
