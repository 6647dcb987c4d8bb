// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cmath>
#include <type_traits>

#include "ncappkit/geometry/CMath2D.h"

using Arc = CMath2D::Cd2DArc;
using IArc = CMath2D::Ci2DArc;
using Point = CMath2D::Cd2DPoint;

TEST(CMath2DValueTypes, DefaultArcHasNoDirection) {
  const Arc arc;
  EXPECT_EQ(arc.GetArcType(), 0);
  EXPECT_FALSE(arc.IsArcCW());
  EXPECT_FALSE(arc.IsArcCCW());
  EXPECT_DOUBLE_EQ(arc.GetStartX(), 0.0);
  EXPECT_DOUBLE_EQ(arc.GetCenterY(), 0.0);
}

TEST(CMath2DValueTypes, ArcDirectionSettersStoreOneAndTwo) {
  Arc arc;
  arc.SetArcCW();
  EXPECT_EQ(arc.GetArcType(), 1);
  EXPECT_TRUE(arc.IsArcCW());
  EXPECT_FALSE(arc.IsArcCCW());
  arc.SetArcCCW();
  EXPECT_EQ(arc.GetArcType(), 2);
  EXPECT_TRUE(arc.IsArcCCW());
  IArc iarc;
  iarc.SetArcCCW();
  EXPECT_EQ(iarc.GetArcType(), 2);
  iarc.SetArcCW();
  EXPECT_TRUE(iarc.IsArcCW());
}

TEST(CMath2DValueTypes, SetArcTypeStoresAnyValueUnchecked) {
  Arc arc;
  arc.SetArcType(static_cast<Arc::eArcType>(7));
  EXPECT_EQ(arc.GetArcType(), 7);
  EXPECT_FALSE(arc.IsArcCW());
  EXPECT_FALSE(arc.IsArcCCW());
}

TEST(CMath2DValueTypes, ArcTypeIsA32BitEnumerationWithValuesZeroOneTwo) {
  EXPECT_EQ(sizeof(KCI_d2DArc::eArcType), 4u);
  EXPECT_EQ(static_cast<int>(KCI_d2DArc::eArcTypeNone), 0);
  EXPECT_EQ(static_cast<int>(KCI_d2DArc::eArcCW), 1);
  EXPECT_EQ(static_cast<int>(KCI_i2DArc::eArcCCW), 2);
}

TEST(CMath2DValueTypes, PointsWithin1e7AreEqual) {
  EXPECT_TRUE(Point(0, 0) == Point(1e-7, -1e-7));
  EXPECT_FALSE(Point(0, 0) != Point(1e-7, -1e-7));
  EXPECT_FALSE(Point(0, 0) == Point(2e-7, 0));
  EXPECT_TRUE(Point(0, 0) != Point(2e-7, 0));
  EXPECT_FALSE(Point(0, 0) == Point(0, 2e-7));
}

TEST(CMath2DValueTypes, PointWithANaNCoordinateIsNeverEqual) {
  const double nan = std::nan("");
  EXPECT_FALSE(Point(nan, 0) == Point(0, 0));
  EXPECT_TRUE(Point(nan, 0) != Point(0, 0));
  EXPECT_FALSE(Point(0, 0) == Point(nan, 0));
  EXPECT_FALSE(Point(0, nan) == Point(0, 0));
  EXPECT_TRUE(Point(0, nan) != Point(0, 0));
}

TEST(CMath2DValueTypes, PointDifferenceIsThisMinusOtherAndLeavesOperands) {
  const Point a(5, 7);
  const Point b(2, 3);
  const Point d = a - b;
  EXPECT_DOUBLE_EQ(d.GetX(), 3.0);
  EXPECT_DOUBLE_EQ(d.GetY(), 4.0);
  EXPECT_DOUBLE_EQ(a.GetX(), 5.0);
  EXPECT_DOUBLE_EQ(b.GetY(), 3.0);
  const Point s = a + b;
  EXPECT_DOUBLE_EQ(s.GetX(), 7.0);
  EXPECT_DOUBLE_EQ(s.GetY(), 10.0);
}

TEST(CMath2DValueTypes, AsKC2DPointCarriesTheCoordinates) {
  EXPECT_EQ(Point(1.25, -3).AsKC2DPoint(), KC2DPoint(1.25, -3));
}

TEST(CMath2DValueTypes, DoubleArcFromIntArcCopiesTypeAndCoordinatesInOrder) {
  const IArc iarc(IArc::eArcCW, 1, 2, 3, 4, 5, 6);
  const Arc arc(iarc);
  EXPECT_EQ(arc.GetArcType(), 1);
  EXPECT_DOUBLE_EQ(arc.GetStartX(), 1.0);
  EXPECT_DOUBLE_EQ(arc.GetStartY(), 2.0);
  EXPECT_DOUBLE_EQ(arc.GetEndX(), 3.0);
  EXPECT_DOUBLE_EQ(arc.GetEndY(), 4.0);
  EXPECT_DOUBLE_EQ(arc.GetCenterX(), 5.0);
  EXPECT_DOUBLE_EQ(arc.GetCenterY(), 6.0);
}

TEST(CMath2DValueTypes, DoubleArcFromIntArcConvertsLargeIntsExactly) {
  const IArc iarc(IArc::eArcCCW, 2147483647, -2147483647 - 1, 0, 0, 0, 0);
  const Arc arc(iarc);
  EXPECT_EQ(arc.GetStartX(), 2147483647.0);
  EXPECT_EQ(arc.GetStartY(), -2147483648.0);
}

TEST(CMath2DValueTypes, ArcRadiusMemberUsesTheEndPoint) {
  const Arc arc(Arc::eArcCCW, 10, 0, 0, 5, 0, 0);
  EXPECT_DOUBLE_EQ(arc.GetRadius(), 5.0);
  EXPECT_DOUBLE_EQ(CMath2D::GetArcRadius(arc), 10.0);  // the computations use the start point
}

TEST(CMath2DValueTypes, LineFromTwoPointsReadsThem) {
  const Point a(1, 2);
  const Point b(3, 4);
  const CMath2D::Cd2DLine line(a, b);
  EXPECT_DOUBLE_EQ(line.GetStartX(), 1.0);
  EXPECT_DOUBLE_EQ(line.GetStartY(), 2.0);
  EXPECT_DOUBLE_EQ(line.GetEndX(), 3.0);
  EXPECT_DOUBLE_EQ(line.GetEndY(), 4.0);
}

TEST(CMath2DValueTypes, DefaultValuesAreZeroAndFieldConstructorsKeepTheOrder) {
  const CMath2D::Ci2DPoint ip;
  EXPECT_EQ(ip.GetX(), 0);
  const CMath2D::Ci2DLine il(1, 2, 3, 4);
  EXPECT_EQ(il.GetStartX(), 1);
  EXPECT_EQ(il.GetStartY(), 2);
  EXPECT_EQ(il.GetEndX(), 3);
  EXPECT_EQ(il.GetEndY(), 4);
  const CMath2D::Cd2DLine dl;
  EXPECT_DOUBLE_EQ(dl.GetEndY(), 0.0);
  const IArc ia(IArc::eArcCCW, 1, 2, 3, 4, 5, 6);
  EXPECT_EQ(ia.GetCenterX(), 5);
  EXPECT_EQ(ia.GetCenterY(), 6);
}

TEST(CMath2DValueTypes, CopiesCopyEveryField) {
  Arc a(Arc::eArcCW, 1, 2, 3, 4, 5, 6);
  Arc b;
  b = a;
  a.SetStartX(99);
  EXPECT_EQ(b.GetArcType(), 1);
  EXPECT_DOUBLE_EQ(b.GetStartX(), 1.0);
  EXPECT_DOUBLE_EQ(b.GetCenterY(), 6.0);
}

TEST(CMath2DValueTypes, TheToolboxAndTheExceptionAreCopyable) {
  EXPECT_TRUE(std::is_copy_constructible<CMath2D>::value);
  EXPECT_TRUE(std::is_copy_assignable<CMath2D::IMath2DException>::value);
  EXPECT_TRUE(std::is_move_assignable<CMath2D::IMath2DException>::value);
  EXPECT_TRUE(std::is_empty<CMath2D::IMath2DException>::value);
  EXPECT_TRUE(std::has_virtual_destructor<CMath2D>::value);
}
