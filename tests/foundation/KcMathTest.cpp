// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <limits>

#include "ncappkit/foundation/KCMath.h"

TEST(KcMath, AlmostEqCountsDifferenceEqualToToleranceAsEqual) {
  EXPECT_TRUE(KCMath::AlmostEq(1.0, 1.5, 0.5));
  EXPECT_FALSE(KCMath::AlmostEq(1.0, 1.5000001, 0.5));
}

TEST(KcMath, AlmostEqIsSymmetric) {
  EXPECT_TRUE(KCMath::AlmostEq(2.0, 2.0 + 1e-6, 1e-5));
  EXPECT_TRUE(KCMath::AlmostEq(2.0 + 1e-6, 2.0, 1e-5));
}

TEST(KcMath, AlmostEqNeverMatchesNaN) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(KCMath::AlmostEq(nan, nan, 1.0));
  EXPECT_FALSE(KCMath::AlmostEq(nan, 0.0, 1.0));
}

TEST(KcMath, AlmostEqMatchesEqualInfinities) {
  const double inf = std::numeric_limits<double>::infinity();
  EXPECT_TRUE(KCMath::AlmostEq(inf, inf, 0.0));
  EXPECT_FALSE(KCMath::AlmostEq(inf, -inf, 1.0));
}

TEST(KcMath, DegreesAndRadiansConvert) {
  EXPECT_DOUBLE_EQ(KCMath::DegToRad(180.0), KCMath::Pi);
  EXPECT_DOUBLE_EQ(KCMath::RadToDeg(KCMath::Pi / 2.0), 90.0);
}
