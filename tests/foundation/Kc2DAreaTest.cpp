// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cmath>

#include "ncappkit/foundation/KC2DArea.h"

TEST(Kc2DArea, IsEmptyUntilTheFirstPoint) {
  KC2DArea area;
  EXPECT_TRUE(area.IsEmpty());
  area.ApplyPoint(3, 4);
  EXPECT_FALSE(area.IsEmpty());
}

TEST(Kc2DArea, FirstPointBecomesTheWholeArea) {
  KC2DArea area;
  area.ApplyPoint(-3, 4);
  EXPECT_DOUBLE_EQ(area.GetMinX(), -3.0);
  EXPECT_DOUBLE_EQ(area.GetMaxX(), -3.0);
  EXPECT_DOUBLE_EQ(area.GetMinY(), 4.0);
  EXPECT_DOUBLE_EQ(area.GetMaxY(), 4.0);
}

TEST(Kc2DArea, GrowsToIncludeEveryPoint) {
  KC2DArea area;
  area.ApplyPoint(1, 2);
  area.ApplyPoint(-3, 5);
  area.ApplyPoint(0, -1);
  EXPECT_DOUBLE_EQ(area.GetMinX(), -3.0);
  EXPECT_DOUBLE_EQ(area.GetMaxX(), 1.0);
  EXPECT_DOUBLE_EQ(area.GetMinY(), -1.0);
  EXPECT_DOUBLE_EQ(area.GetMaxY(), 5.0);
  EXPECT_DOUBLE_EQ(area.GetWidth(), 4.0);
  EXPECT_DOUBLE_EQ(area.GetHeight(), 6.0);
}

TEST(Kc2DArea, PointInsideDoesNotChangeTheArea) {
  KC2DArea area;
  area.ApplyPoint(0, 0);
  area.ApplyPoint(10, 10);
  area.ApplyPoint(5, 5);
  EXPECT_DOUBLE_EQ(area.GetMinX(), 0.0);
  EXPECT_DOUBLE_EQ(area.GetMaxX(), 10.0);
}

TEST(Kc2DArea, PointWithNaNCoordinateIsIgnored) {
  KC2DArea area;
  area.ApplyPoint(std::nan(""), 1);
  EXPECT_TRUE(area.IsEmpty());
  area.ApplyPoint(1, 1);
  area.ApplyPoint(5, std::nan(""));
  EXPECT_DOUBLE_EQ(area.GetMaxX(), 1.0);
}

TEST(Kc2DArea, AssignmentCopiesTheExtentAndClearEmpties) {
  KC2DArea a;
  a.ApplyPoint(1, 1);
  a.ApplyPoint(2, 3);
  KC2DArea b;
  b = a;
  EXPECT_DOUBLE_EQ(b.GetMaxY(), 3.0);
  b.Clear();
  EXPECT_TRUE(b.IsEmpty());
  EXPECT_FALSE(a.IsEmpty());
}
