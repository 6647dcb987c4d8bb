// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "ncappkit/foundation/KCColor.h"
#include "support/TestData.h"

namespace {

TEST(KcColor, DefaultIsOpaqueBlack) {
  const KCColor color;

  EXPECT_EQ(color.GetRed(), 0);
  EXPECT_EQ(color.GetGreen(), 0);
  EXPECT_EQ(color.GetBlue(), 0);
  EXPECT_EQ(color.GetAlpha(), 255);
}

TEST(KcColor, ChannelsOutsideTheRangeAreClamped) {
  const KCColor color(-5, 300, 128, 1000);

  EXPECT_EQ(color, KCColor(0, 255, 128, 255));
}

TEST(KcColor, NamedColorsCarryTheWebColorValues) {
  EXPECT_EQ(KCColorAqua(), KCColor(0, 255, 255));
  EXPECT_EQ(KCColorBlack(), KCColor(0, 0, 0));
  EXPECT_EQ(KCColorBlue(), KCColor(0, 0, 255));
  EXPECT_EQ(KCColorDeepSkyBlue(), KCColor(0, 191, 255));
  EXPECT_EQ(KCColorFuchsia(), KCColor(255, 0, 255));
  EXPECT_EQ(KCColorGray(), KCColor(128, 128, 128));
  EXPECT_EQ(KCColorGreen(), KCColor(0, 128, 0));
  EXPECT_EQ(KCColorLime(), KCColor(0, 255, 0));
  EXPECT_EQ(KCColorMaroon(), KCColor(128, 0, 0));
  EXPECT_EQ(KCColorNavy(), KCColor(0, 0, 128));
  EXPECT_EQ(KCColorOlive(), KCColor(128, 128, 0));
  EXPECT_EQ(KCColorOrange(), KCColor(255, 165, 0));
  EXPECT_EQ(KCColorPink(), KCColor(255, 192, 203));
  EXPECT_EQ(KCColorPurple(), KCColor(128, 0, 128));
  EXPECT_EQ(KCColorRed(), KCColor(255, 0, 0));
  EXPECT_EQ(KCColorSilver(), KCColor(192, 192, 192));
  EXPECT_EQ(KCColorTeal(), KCColor(0, 128, 128));
  EXPECT_EQ(KCColorWhite(), KCColor(255, 255, 255));
  EXPECT_EQ(KCColorYellow(), KCColor(255, 255, 0));
}

TEST(KcColor, NamedColorArgumentIsTheAlpha) {
  const KCColor halfRed = KCColorRed(128);

  EXPECT_EQ(halfRed, KCColor(255, 0, 0, 128));
  EXPECT_NE(halfRed, KCColorRed(255));
}

TEST(KcColor, CopyAndAssignmentKeepAllChannels) {
  const KCColor original(1, 2, 3, 4);
  KCColor copy(original);
  KCColor assigned;

  assigned = original;

  EXPECT_EQ(copy, original);
  EXPECT_EQ(assigned, original);
}

TEST(KcColor, ToStringWritesFourDecimalChannels) {
  EXPECT_EQ(KCColor::ToString(KCColorOrange()), "255,165,0,255");
  EXPECT_EQ(KCColor::ToString(KCColor(1, 2, 3, 0)), "1,2,3,0");
}

TEST(KcColor, FromStringReadsBackWhatToStringWrote) {
  const KCColor original(12, 200, 7, 99);
  KCColor read;

  ASSERT_TRUE(KCColor::FromString(KCColor::ToString(original), read));

  EXPECT_EQ(read, original);
}

TEST(KcColor, FromStringWithThreeChannelsGivesOpaqueColor) {
  KCColor read(1, 1, 1, 1);

  ASSERT_TRUE(KCColor::FromString(" 10, 20 ,30 ", read));

  EXPECT_EQ(read, KCColor(10, 20, 30, 255));
}

struct BadColorText {
  const char* name;
  const char* text;
};

const BadColorText kBadColorTexts[] = {
    {"empty", ""},
    {"two_channels", "1,2"},
    {"five_channels", "1,2,3,4,5"},
    {"letter", "1,2,x"},
    {"channel_above_255", "1,2,256"},
    {"negative_channel", "-1,2,3"},
    {"empty_channel", "1,,3"},
    {"fraction", "1.5,2,3"},
    {"trailing_comma", "1,2,3,"},
};

class KcColorBadText : public ::testing::TestWithParam<BadColorText> {};

TEST_P(KcColorBadText, FromStringRejectsItAndLeavesColorUnchanged) {
  const char* text = GetParam().text;
  KCColor color(9, 8, 7, 6);

  EXPECT_FALSE(KCColor::FromString(text, color)) << text;
  EXPECT_EQ(color, KCColor(9, 8, 7, 6)) << text;
}

INSTANTIATE_TEST_SUITE_P(Texts, KcColorBadText, ::testing::ValuesIn(kBadColorTexts), RowName());

}  // namespace
