// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cmath>

#include "ncappkit/foundation/KCGeometry.h"

TEST(KcGeometry, DistanceLinePointIsThePerpendicularDistanceToTheInfiniteLine) {
  double d = -1;
  EXPECT_TRUE(KCGeometry::GetDistanceLinePoint(KC2DLine(0, 0, 10, 0), KC2DPoint(3, 4), d));
  EXPECT_DOUBLE_EQ(d, 4.0);
  // beyond the end the infinite line still counts
  EXPECT_TRUE(KCGeometry::GetDistanceLinePoint(KC2DLine(0, 0, 10, 0), KC2DPoint(30, -2), d));
  EXPECT_DOUBLE_EQ(d, 2.0);
}

TEST(KcGeometry, DistanceToASlantedLine) {
  double d = -1;
  KCGeometry::GetDistanceLinePoint(KC2DLine(0, 0, 1, 1), KC2DPoint(0, 2), d);
  EXPECT_NEAR(d, std::sqrt(2.0), 1e-15);
}

TEST(KcGeometry, DistanceToAZeroLengthLineIsTheDistanceToItsPointAndReportsFalse) {
  double d = -1;
  EXPECT_FALSE(KCGeometry::GetDistanceLinePoint(KC2DLine(1, 1, 1, 1), KC2DPoint(4, 5), d));
  EXPECT_DOUBLE_EQ(d, 5.0);
}

TEST(KcGeometry, ProjectPointOnLineGivesThePerpendicularFoot) {
  KC2DPoint foot;
  EXPECT_TRUE(KCGeometry::ProjectPointOnLine(foot, KC2DLine(0, 0, 10, 0), KC2DPoint(3, 4)));
  EXPECT_EQ(foot, KC2DPoint(3, 0));
  EXPECT_TRUE(KCGeometry::ProjectPointOnLine(foot, KC2DLine(0, 0, 2, 2), KC2DPoint(0, 2)));
  EXPECT_NEAR(foot.GetX(), 1.0, 1e-15);
  EXPECT_NEAR(foot.GetY(), 1.0, 1e-15);
}

TEST(KcGeometry, ProjectPointOnLineExtendsBeyondTheSegment) {
  KC2DPoint foot;
  KCGeometry::ProjectPointOnLine(foot, KC2DLine(0, 0, 1, 0), KC2DPoint(-5, 1));
  EXPECT_EQ(foot, KC2DPoint(-5, 0));
}

TEST(KcGeometry, ProjectOnZeroLengthLineGivesItsPointAndFalse) {
  KC2DPoint foot(9, 9);
  EXPECT_FALSE(KCGeometry::ProjectPointOnLine(foot, KC2DLine(2, 3, 2, 3), KC2DPoint(7, 7)));
  EXPECT_EQ(foot, KC2DPoint(2, 3));
}

TEST(KcGeometry, PointOnClosedLineTellsStartEndInsideAndOff) {
  const KC2DLine line(0, 0, 10, 0);
  EXPECT_EQ(KCGeometry::Point2DOnClosedLine(line, KC2DPoint(0, 0)), KCGeometry::kAtStart);
  EXPECT_EQ(KCGeometry::Point2DOnClosedLine(line, KC2DPoint(10, 0)), KCGeometry::kAtEnd);
  EXPECT_EQ(KCGeometry::Point2DOnClosedLine(line, KC2DPoint(4, 0)), KCGeometry::kInside);
  EXPECT_EQ(KCGeometry::Point2DOnClosedLine(line, KC2DPoint(11, 0)), KCGeometry::kOff);
  EXPECT_EQ(KCGeometry::Point2DOnClosedLine(line, KC2DPoint(-1e-6, 0)), KCGeometry::kOff);
  EXPECT_EQ(KCGeometry::Point2DOnClosedLine(line, KC2DPoint(4, 1e-6)), KCGeometry::kOff);
}

TEST(KcGeometry, PointOnClosedLineValuesOnTheSegmentArePositive) {
  EXPECT_GT(KCGeometry::kAtStart, 0);
  EXPECT_GT(KCGeometry::kAtEnd, 0);
  EXPECT_GT(KCGeometry::kInside, 0);
  EXPECT_EQ(KCGeometry::kOff, 0);
}

TEST(KcGeometry, PointOnClosedLineAcceptsPointsWithinTheTolerance) {
  const KC2DLine line(0, 0, 10, 0);
  EXPECT_EQ(KCGeometry::Point2DOnClosedLine(line, KC2DPoint(10 + 5e-10, 0)), KCGeometry::kAtEnd);
  EXPECT_EQ(KCGeometry::Point2DOnClosedLine(line, KC2DPoint(5, 5e-10)), KCGeometry::kInside);
}

TEST(KcGeometry, ProjectedFootFarFromTheOriginIsOnTheClosedLine) {
  const KC2DLine line(1e7, 1e7, 1e7 + 2, 1e7 + 3);
  KC2DPoint foot;
  ASSERT_TRUE(KCGeometry::ProjectPointOnLine(foot, line, KC2DPoint(1e7, 1e7 + 2)));
  EXPECT_EQ(KCGeometry::Point2DOnClosedLine(line, foot), KCGeometry::kInside);
  EXPECT_EQ(KCGeometry::Point2DOnClosedLine(line, KC2DPoint(1e7 + 1, 1e7 + 1.5 + 1e-6)), KCGeometry::kOff);
}

TEST(KcGeometry, PointOnZeroLengthLineIsOnlyItsOwnPoint) {
  const KC2DLine line(3, 3, 3, 3);
  EXPECT_EQ(KCGeometry::Point2DOnClosedLine(line, KC2DPoint(3, 3)), KCGeometry::kAtStart);
  EXPECT_EQ(KCGeometry::Point2DOnClosedLine(line, KC2DPoint(3, 4)), KCGeometry::kOff);
}

TEST(KcGeometry, PointWithNaNIsNotOnTheLine) {
  EXPECT_EQ(KCGeometry::Point2DOnClosedLine(KC2DLine(0, 0, 1, 0), KC2DPoint(std::nan(""), 0)),
            KCGeometry::kOff);
}
