// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "ncappkit/foundation/KCVector.h"

TEST(KcVector, BuiltFromTwoPointsIsTheirDifference) {
  const KCVector v(KC3DPoint(1, 2, 3), KC3DPoint(4, 6, 3));
  EXPECT_DOUBLE_EQ(v.GetX(), 3.0);
  EXPECT_DOUBLE_EQ(v.GetY(), 4.0);
  EXPECT_DOUBLE_EQ(v.GetZ(), 0.0);
}

TEST(KcVector, LenIsTheEuclideanLengthInSpace) {
  EXPECT_DOUBLE_EQ(KCVector(KC3DPoint(0, 0, 0), KC3DPoint(2, 3, 6)).Len(), 7.0);
}

TEST(KcVector, LenOfTheZeroVectorIsZero) {
  EXPECT_DOUBLE_EQ(KCVector().Len(), 0.0);
}

TEST(KcVector, VectorFromBToAIsTheNegativeOfAToB) {
  const KC3DPoint a(1, -2, 5);
  const KC3DPoint b(-3, 7, 0.5);
  const KCVector ab(a, b);
  const KCVector ba(b, a);
  EXPECT_EQ(ba, KCVector(-ab.GetX(), -ab.GetY(), -ab.GetZ()));
  EXPECT_DOUBLE_EQ(ab.Len(), ba.Len());
}

TEST(Kc3DPoint, KeepsItsThreeCoordinates) {
  KC3DPoint p(1.5, -2.5, 3.25);
  EXPECT_DOUBLE_EQ(p.GetX(), 1.5);
  EXPECT_DOUBLE_EQ(p.GetY(), -2.5);
  EXPECT_DOUBLE_EQ(p.GetZ(), 3.25);
  p.SetZ(0);
  EXPECT_EQ(p, KC3DPoint(1.5, -2.5, 0));
  EXPECT_NE(p, KC3DPoint(1.5, -2.5, 1));
}
