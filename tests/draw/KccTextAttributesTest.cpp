// SPDX-License-Identifier: MIT
// KCC_TextAttributes: the font defaults, the angle in degrees and radians, and the paragraph form without the
// angle.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "ncappkit/draw/KCC_FontAttributes.h"
#include "ncappkit/foundation/KCParagraph.h"

namespace {

const double kPi = 4.0 * std::atan(1.0);

TEST(KccTextAttributes, DefaultAngleIsZero) {
  const KCC_TextAttributes text;

  EXPECT_EQ(text.GetAngleDeg(), 0.0);
}

TEST(KccTextAttributes, DefaultFontIsTimesNewRomanSize16) {
  const KCC_TextAttributes text;

  EXPECT_EQ(text.GetFontName(), "Times New Roman");
  EXPECT_EQ(text.GetFontSize(), 16);
}

TEST(KccTextAttributes, ConstructorStoresTheFontName) {
  const KCC_TextAttributes text("Courier New");

  EXPECT_EQ(text.GetFontName(), "Courier New");
}

TEST(KccTextAttributes, SetAngleDegStoresDegrees) {
  KCC_TextAttributes text;

  text.SetAngleDeg(-30.5);

  EXPECT_EQ(text.GetAngleDeg(), -30.5);
}

TEST(KccTextAttributes, SetAngleRadOfHalfPiGivesNinetyDegrees) {
  KCC_TextAttributes text;

  text.SetAngleRad(kPi / 2);

  EXPECT_NEAR(text.GetAngleDeg(), 90.0, 1e-12);
}

TEST(KccTextAttributes, GetAngleRadOfOneEightyDegreesGivesPi) {
  KCC_TextAttributes text;
  text.SetAngleDeg(180.0);

  const double radians = text.GetAngleRad();

  EXPECT_NEAR(radians, 3.141592653589793, 1e-12);
}

TEST(KccTextAttributes, CopyConstructorCopiesAngleAndFont) {
  KCC_TextAttributes original("Impact");
  original.SetAngleDeg(45.0);

  const KCC_TextAttributes copy(original);

  EXPECT_EQ(copy.GetAngleDeg(), 45.0);
  EXPECT_EQ(copy.GetFontName(), "Impact");
}

TEST(KccTextAttributes, AssignmentCopiesAngleAndFont) {
  KCC_TextAttributes original("Impact");
  original.SetAngleDeg(45.0);
  KCC_TextAttributes target;

  target = original;

  EXPECT_EQ(target.GetAngleDeg(), 45.0);
  EXPECT_EQ(target.GetFontName(), "Impact");
}

TEST(KccTextAttributes, WriteSavesTheFontKeysButNotTheAngle) {
  KCC_TextAttributes text("Arial");
  text.SetAngleDeg(30.0);
  KCParagraph root("Root");

  ASSERT_TRUE(text.WriteToParagraph("Label", &root));

  const std::vector<KCParagraph::Entry> expected = {{"TextColor", "0,0,0,255"},
                                                    {"BackColor", "255,255,255,255"},
                                                    {"FontName", "Arial"},
                                                    {"FontSize", "16"},
                                                    {"Bold", "0"},
                                                    {"Italic", "0"},
                                                    {"Underline", "0"},
                                                    {"Strike", "0"}};
  EXPECT_EQ(root.FindParagraph("Label")->GetEntries(), expected);
}

TEST(KccTextAttributes, ReadKeepsTheCurrentAngle) {
  KCC_TextAttributes written("Arial");
  written.SetAngleDeg(30.0);
  KCParagraph root("Root");
  ASSERT_TRUE(written.WriteToParagraph("Label", &root));
  KCC_TextAttributes read;
  read.SetAngleDeg(-15.0);

  ASSERT_TRUE(read.ReadFromParagraph("Label", &root));

  EXPECT_EQ(read.GetFontName(), "Arial");
  EXPECT_EQ(read.GetAngleDeg(), -15.0);
}

}  // namespace
