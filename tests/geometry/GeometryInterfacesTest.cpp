// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <type_traits>

#include "GeometryClients.h"

using geometry_test::ClientArc;
using geometry_test::ClientAuxCircle;
using geometry_test::ClientHorLine;
using geometry_test::ClientLine;
using geometry_test::ClientPoint;
using geometry_test::ClientVerLine;

TEST(GeometryInterfaces, ClientPointReceivesTheMiddleThroughSetXThenSetY) {
  ClientPoint middle;
  CMath2D::GetMiddle(ClientPoint(0, 0), ClientPoint(4, 2), middle);
  EXPECT_EQ(middle.calls, "xy");
  EXPECT_EQ(middle.GetX(), 2.0);
  EXPECT_EQ(middle.GetY(), 1.0);
}

TEST(GeometryInterfaces, ClientHorLineAtOneTouchesTheUnitCircle) {
  const ClientArc unitCircle(2, 1, 0, 1, 0, 0, 0);
  const ClientHorLine line(1);
  ClientPoint p1, p2;
  EXPECT_TRUE(CMath2D::GetIntersection(unitCircle, line, p1, p2));
  EXPECT_EQ(p1.GetX(), 0.0);
  EXPECT_EQ(p1.GetY(), 1.0);
  EXPECT_EQ(p2.GetX(), 0.0);
  EXPECT_EQ(p2.GetY(), 1.0);
  EXPECT_EQ(line.otherReads, 0);  // only the position is read
}

TEST(GeometryInterfaces, ClientHorLineAtTwoMissesTheUnitCircle) {
  ClientPoint p1, p2;
  EXPECT_FALSE(CMath2D::GetIntersection(ClientArc(2, 1, 0, 1, 0, 0, 0), ClientHorLine(2), p1, p2));
  EXPECT_EQ(p1.calls, "");
}

TEST(GeometryInterfaces, ClientVerLineUsesOnlyItsPosition) {
  const ClientVerLine line(-1);
  ClientPoint p1, p2;
  EXPECT_TRUE(CMath2D::GetIntersection(ClientArc(2, 1, 0, 1, 0, 0, 0), line, p1, p2));
  EXPECT_EQ(p1.GetX(), -1.0);
  EXPECT_EQ(p1.GetY(), 0.0);
  EXPECT_EQ(line.otherReads, 0);
}

TEST(GeometryInterfaces, LineResultsAreWrittenStartXStartYEndXEndY) {
  ClientLine out;
  CMath2D::GetParallelLine(ClientLine(0, 0, 10, 10), ClientPoint(0, 2), out);
  EXPECT_EQ(out.calls, "sx sy ex ey ");
  ClientLine left, right;
  CMath2D::GetParallelLinesAtDist(ClientLine(0, 0, 10, 0), 1, left, right);
  EXPECT_EQ(left.calls, "sx sy ex ey ");
  EXPECT_EQ(right.calls, "sx sy ex ey ");
}

TEST(GeometryInterfaces, ClientCircleDerivedFromCAuxCircleWorksWithTheAuxOperations) {
  const ClientAuxCircle circle(0, 0, 2);
  CMath2D::Cd2DPoint foot;
  EXPECT_DOUBLE_EQ(CMathAuxShapes::DistanceFromPointToAuxShape(circle, CMath2D::Cd2DPoint(3, 4), foot), 3.0);
  EXPECT_NEAR(foot.GetX(), 1.2, 1e-15);
  EXPECT_NEAR(foot.GetY(), 1.6, 1e-15);
}

TEST(GeometryInterfaces, InterfacesAreAbstractWithVirtualDestructors) {
  EXPECT_TRUE(std::is_abstract<KCI_i2DPoint>::value);
  EXPECT_TRUE(std::is_abstract<KCI_d2DPoint>::value);
  EXPECT_TRUE(std::is_abstract<KCI_i2DLine>::value);
  EXPECT_TRUE(std::is_abstract<KCI_d2DLine>::value);
  EXPECT_TRUE(std::is_abstract<KCI_i2DArc>::value);
  EXPECT_TRUE(std::is_abstract<KCI_d2DArc>::value);
  EXPECT_TRUE(std::is_abstract<KCI_d2DHorLine>::value);
  EXPECT_TRUE(std::is_abstract<KCI_d2DVerLine>::value);
  EXPECT_TRUE(std::is_abstract<KCI_AuxHorLine>::value);
  EXPECT_TRUE(std::is_abstract<KCI_AuxVerLine>::value);
  EXPECT_TRUE(std::is_abstract<KCI_AuxLine>::value);
  EXPECT_TRUE(std::is_abstract<KCI_AuxCircle>::value);
  EXPECT_TRUE(std::has_virtual_destructor<KCI_d2DArc>::value);
  EXPECT_TRUE(std::has_virtual_destructor<KCI_AuxCircle>::value);
}

TEST(GeometryInterfaces, LibraryValueTypesImplementTheirInterfaces) {
  EXPECT_TRUE((std::is_base_of<KCI_i2DPoint, CMath2D::Ci2DPoint>::value));
  EXPECT_TRUE((std::is_base_of<KCI_d2DPoint, CMath2D::Cd2DPoint>::value));
  EXPECT_TRUE((std::is_base_of<KCI_i2DLine, CMath2D::Ci2DLine>::value));
  EXPECT_TRUE((std::is_base_of<KCI_d2DLine, CMath2D::Cd2DLine>::value));
  EXPECT_TRUE((std::is_base_of<KCI_i2DArc, CMath2D::Ci2DArc>::value));
  EXPECT_TRUE((std::is_base_of<KCI_d2DArc, CMath2D::Cd2DArc>::value));
  EXPECT_TRUE((std::is_base_of<KCI_AuxHorLine, CMathAuxShapes::CAuxHorLine>::value));
  EXPECT_TRUE((std::is_base_of<KCI_AuxVerLine, CMathAuxShapes::CAuxVerLine>::value));
  EXPECT_TRUE((std::is_base_of<KCI_AuxLine, CMathAuxShapes::CAuxLine>::value));
  EXPECT_TRUE((std::is_base_of<KCI_AuxCircle, CMathAuxShapes::CAuxCircle>::value));
}
