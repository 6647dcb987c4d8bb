// SPDX-License-Identifier: MIT
// KCC_GUI_ZoomArea: a world rectangle with the values before its last change.
#include <gtest/gtest.h>

#include <limits>

#include "ncappkit/gui/KCC_GUI_ZoomArea.h"
#include "ncappkit/gui/KCC_GUI_ZoomAreaVisitor.h"

namespace {

constexpr double kLargest = std::numeric_limits<double>::max();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

// Records the area it was shown and answers as told.
class RecordingVisitor : public KCC_GUI_ZoomAreaVisitor {
 public:
  explicit RecordingVisitor(bool answer) : m_answer(answer) {}
  bool Visit(KCC_GUI_ZoomArea& area) override {
    seen = &area;
    return m_answer;
  }
  KCC_GUI_ZoomArea* seen = nullptr;

 private:
  bool m_answer;
};

}  // namespace

TEST(KccGuiZoomArea, ConstructorStoresTheRectangleUnsorted) {
  const KCC_GUI_ZoomArea area(100.0, 0.0, 0.0, 50.0);

  EXPECT_EQ(area.GetXmin(), 100.0);
  EXPECT_EQ(area.GetYmin(), 0.0);
  EXPECT_EQ(area.GetXmax(), 0.0);
  EXPECT_EQ(area.GetYmax(), 50.0);
}

TEST(KccGuiZoomArea, ConstructorStoresTheRectangleAlsoAsPreviousValues) {
  KCC_GUI_ZoomArea area(1.0, 2.0, 3.0, 4.0);

  area.RestorePreviousValues();

  EXPECT_EQ(area.GetXmin(), 1.0);
  EXPECT_EQ(area.GetYmin(), 2.0);
  EXPECT_EQ(area.GetXmax(), 3.0);
  EXPECT_EQ(area.GetYmax(), 4.0);
}

TEST(KccGuiZoomArea, DefaultAreaHoldsTheInvalidMarkers) {
  const KCC_GUI_ZoomArea area;

  EXPECT_EQ(area.GetXmin(), 1.7976931348623157e308);
  EXPECT_EQ(area.GetYmin(), 1.7976931348623157e308);
  EXPECT_EQ(area.GetXmax(), -1.7976931348623157e308);
  EXPECT_EQ(area.GetYmax(), -1.7976931348623157e308);
}

TEST(KccGuiZoomArea, DefaultAreaIsInvalid) {
  const KCC_GUI_ZoomArea area;

  EXPECT_FALSE(area.Valid());
  EXPECT_FALSE(area.ValidX());
  EXPECT_FALSE(area.ValidY());
}

TEST(KccGuiZoomArea, DefaultAreaBecomesValidOnceRealValuesAreSet) {
  KCC_GUI_ZoomArea area;

  area.SetXmin(0.0);
  area.SetXmax(10.0);
  EXPECT_TRUE(area.ValidX());
  EXPECT_FALSE(area.Valid());
  area.SetYmin(0.0);
  area.SetYmax(5.0);

  EXPECT_TRUE(area.ValidY());
  EXPECT_TRUE(area.Valid());
}

TEST(KccGuiZoomArea, PairIsInvalidWhenOnlyOneEndIsTheMarker) {
  const KCC_GUI_ZoomArea area(kLargest, 0.0, 10.0, 5.0);

  EXPECT_FALSE(area.ValidX());
  EXPECT_TRUE(area.ValidY());
  EXPECT_FALSE(area.Valid());
}

TEST(KccGuiZoomArea, ReversedPairIsStillValid) {
  const KCC_GUI_ZoomArea area(10.0, 5.0, 0.0, 0.0);

  EXPECT_TRUE(area.Valid());
}

TEST(KccGuiZoomArea, NaNMakesAPairInvalid) {
  const KCC_GUI_ZoomArea area(0.0, kNaN, 10.0, 5.0);

  EXPECT_TRUE(area.ValidX());
  EXPECT_FALSE(area.ValidY());
  EXPECT_FALSE(area.Valid());
}

TEST(KccGuiZoomArea, InfiniteExtentsAreValid) {
  const KCC_GUI_ZoomArea area(-kInf, -kInf, kInf, kInf);

  EXPECT_TRUE(area.Valid());
}

TEST(KccGuiZoomArea, SetterKeepsTheOldValueAsPrevious) {
  KCC_GUI_ZoomArea area(0.0, 0.0, 100.0, 50.0);

  area.SetXmax(20.0);
  area.RestorePreviousValues();

  EXPECT_EQ(area.GetXmax(), 100.0);
}

TEST(KccGuiZoomArea, SetXminTwiceLeavesTheFirstNewValueAsPrevious) {
  KCC_GUI_ZoomArea area(0.0, 0.0, 100.0, 50.0);
  area.SetXmin(10.0);
  area.SetXmin(20.0);

  area.RestorePreviousValues();

  EXPECT_EQ(area.GetXmin(), 10.0);
}

TEST(KccGuiZoomArea, SetterTouchesOnlyItsOwnPreviousValue) {
  KCC_GUI_ZoomArea area(0.0, 0.0, 100.0, 50.0);
  area.SetYmin(-5.0);
  area.SetYmax(60.0);
  area.SetYmin(-7.0);

  area.RestorePreviousValues();

  EXPECT_EQ(area.GetXmin(), 0.0);
  EXPECT_EQ(area.GetYmin(), -5.0);
  EXPECT_EQ(area.GetXmax(), 100.0);
  EXPECT_EQ(area.GetYmax(), 50.0);
}

TEST(KccGuiZoomArea, MakeInvalidSetsTheMarkers) {
  KCC_GUI_ZoomArea area(0.0, 0.0, 100.0, 50.0);

  area.MakeInvalid();

  EXPECT_FALSE(area.Valid());
  EXPECT_EQ(area.GetXmin(), kLargest);
  EXPECT_EQ(area.GetYmin(), kLargest);
  EXPECT_EQ(area.GetXmax(), -kLargest);
  EXPECT_EQ(area.GetYmax(), -kLargest);
}

TEST(KccGuiZoomArea, MakeInvalidLeavesThePreviousValues) {
  KCC_GUI_ZoomArea area(0.0, 0.0, 100.0, 50.0);
  area.MakeInvalid();

  area.RestorePreviousValues();

  EXPECT_TRUE(area.Valid());
  EXPECT_EQ(area.GetXmax(), 100.0);
  EXPECT_EQ(area.GetYmax(), 50.0);
}

TEST(KccGuiZoomArea, NormalizeSortsBothPairs) {
  KCC_GUI_ZoomArea area(100.0, 0.0, 0.0, 50.0);

  area.Normalize();

  EXPECT_EQ(area.GetXmin(), 0.0);
  EXPECT_EQ(area.GetYmin(), 0.0);
  EXPECT_EQ(area.GetXmax(), 100.0);
  EXPECT_EQ(area.GetYmax(), 50.0);
}

TEST(KccGuiZoomArea, NormalizeSortsTheYPair) {
  KCC_GUI_ZoomArea area(0.0, 30.0, 10.0, -30.0);

  area.Normalize();

  EXPECT_EQ(area.GetYmin(), -30.0);
  EXPECT_EQ(area.GetYmax(), 30.0);
}

TEST(KccGuiZoomArea, NormalizeLeavesAnInvalidXPairAloneAndStillSortsY) {
  KCC_GUI_ZoomArea area(kLargest, 50.0, -kLargest, 0.0);

  area.Normalize();

  EXPECT_EQ(area.GetXmin(), kLargest);
  EXPECT_EQ(area.GetXmax(), -kLargest);
  EXPECT_EQ(area.GetYmin(), 0.0);
  EXPECT_EQ(area.GetYmax(), 50.0);
}

TEST(KccGuiZoomArea, NormalizeLeavesThePreviousValues) {
  KCC_GUI_ZoomArea area(0.0, 0.0, 100.0, 50.0);
  area.SetXmin(200.0);
  area.Normalize();

  area.RestorePreviousValues();

  EXPECT_EQ(area.GetXmin(), 0.0);
  EXPECT_EQ(area.GetXmax(), 100.0);
}

TEST(KccGuiZoomArea, CopyTakesCurrentAndPreviousValues) {
  KCC_GUI_ZoomArea original(0.0, 0.0, 100.0, 50.0);
  original.SetXmax(20.0);

  KCC_GUI_ZoomArea copy(original);
  copy.RestorePreviousValues();

  EXPECT_EQ(original.GetXmax(), 20.0);
  EXPECT_EQ(copy.GetXmax(), 100.0);
}

TEST(KccGuiZoomArea, AssignmentTakesCurrentAndPreviousValues) {
  KCC_GUI_ZoomArea original(0.0, 0.0, 100.0, 50.0);
  original.SetYmax(20.0);
  KCC_GUI_ZoomArea target(1.0, 1.0, 2.0, 2.0);

  target = original;

  EXPECT_EQ(target.GetYmax(), 20.0);
  target.RestorePreviousValues();
  EXPECT_EQ(target.GetYmax(), 50.0);
  EXPECT_EQ(target.GetXmin(), 0.0);
}

TEST(KccGuiZoomArea, AcceptHandsTheAreaItselfToTheVisitor) {
  KCC_GUI_ZoomArea area(0.0, 0.0, 1.0, 1.0);
  RecordingVisitor visitor(true);

  EXPECT_TRUE(area.Accept(visitor));

  EXPECT_EQ(visitor.seen, &area);
}

TEST(KccGuiZoomArea, AcceptReturnsTheVisitorsFalse) {
  KCC_GUI_ZoomArea area(0.0, 0.0, 1.0, 1.0);
  RecordingVisitor visitor(false);

  EXPECT_FALSE(area.Accept(visitor));
}
