// SPDX-License-Identifier: MIT
// KCC_FillAttributes: defaults, the paint-colour synonyms, filled or hollow, named colours and the paragraph
// form.
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "ncappkit/draw/KCC_FillAttributes.h"
#include "ncappkit/foundation/KCParagraph.h"

namespace {

TEST(KccFillAttributes, DefaultIsHollow) {
  const KCC_FillAttributes fill;

  EXPECT_TRUE(fill.IsHollowShape());
  EXPECT_FALSE(fill.IsFilledShape());
}

TEST(KccFillAttributes, DefaultColorIsTheLibraryDefaultColor) {
  const KCC_FillAttributes fill;

  EXPECT_EQ(fill.GetFillColor(), KCColor());
}

TEST(KccFillAttributes, ConstructorStoresColorAndFilledFlag) {
  const KCC_FillAttributes fill(KCColorPink(255), true);

  EXPECT_EQ(fill.GetFillColor(), KCColor(255, 192, 203, 255));
  EXPECT_TRUE(fill.IsFilledShape());
}

TEST(KccFillAttributes, SetFilledShapeMakesItFilled) {
  KCC_FillAttributes fill;

  fill.SetFilledShape();

  EXPECT_TRUE(fill.IsFilledShape());
  EXPECT_FALSE(fill.IsHollowShape());
}

TEST(KccFillAttributes, SetHollowShapeMakesItHollow) {
  KCC_FillAttributes fill(KCColor(), true);

  fill.SetHollowShape();

  EXPECT_TRUE(fill.IsHollowShape());
  EXPECT_FALSE(fill.IsFilledShape());
}

TEST(KccFillAttributes, SetPaintColorIsReadByGetFillColor) {
  KCC_FillAttributes fill;

  fill.SetPaintColor(KCColor(10, 20, 30, 40));

  EXPECT_EQ(fill.GetFillColor(), KCColor(10, 20, 30, 40));
}

TEST(KccFillAttributes, SetFillColorIsReadByGetPaintColor) {
  KCC_FillAttributes fill;

  fill.SetFillColor(KCColor(10, 20, 30, 40));

  EXPECT_EQ(fill.GetPaintColor(), KCColor(10, 20, 30, 40));
}

TEST(KccFillAttributes, CopyConstructorCopiesAllFields) {
  const KCC_FillAttributes original(KCColorOlive(255), true);

  const KCC_FillAttributes copy(original);

  EXPECT_EQ(copy.GetFillColor(), KCColor(128, 128, 0, 255));
  EXPECT_TRUE(copy.IsFilledShape());
}

TEST(KccFillAttributes, AssignmentCopiesAllFields) {
  const KCC_FillAttributes original(KCColorOlive(255), true);
  KCC_FillAttributes target;

  target = original;

  EXPECT_EQ(target.GetFillColor(), KCColor(128, 128, 0, 255));
  EXPECT_TRUE(target.IsFilledShape());
}

// One row per colour word: its paint setter and the class-library colour it stores.
struct PaintColorRow {
  const char* word;
  void (KCC_FillAttributes::*set)();
  KCColor expected;
};

// Failure messages name the row.
void PrintTo(const PaintColorRow& row, std::ostream* out) {
  *out << row.word;
}

class KccFillAttributesColorWord : public ::testing::TestWithParam<PaintColorRow> {};

TEST_P(KccFillAttributesColorWord, SetterStoresTheNamedColorWith255) {
  const PaintColorRow& row = GetParam();
  KCC_FillAttributes fill(KCColor(1, 2, 3, 4), false);  // a colour no setter stores

  (fill.*row.set)();

  EXPECT_EQ(fill.GetFillColor(), row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Words, KccFillAttributesColorWord,
    ::testing::Values(
        PaintColorRow{"Black", &KCC_FillAttributes::SetBlackPaint, KCColorBlack(255)},
        PaintColorRow{"Blue", &KCC_FillAttributes::SetBluePaint, KCColorBlue(255)},
        PaintColorRow{"Cyan", &KCC_FillAttributes::SetCyanPaint, KCColorAqua(255)},
        PaintColorRow{"DarkBlue", &KCC_FillAttributes::SetDarkBluePaint, KCColorNavy(255)},
        PaintColorRow{"DarkCyan", &KCC_FillAttributes::SetDarkCyanPaint, KCColorTeal(255)},
        PaintColorRow{"DarkGray", &KCC_FillAttributes::SetDarkGrayPaint, KCColorGray(255)},
        PaintColorRow{"DarkGreen", &KCC_FillAttributes::SetDarkGreenPaint, KCColorGreen(255)},
        PaintColorRow{"DarkMagenta", &KCC_FillAttributes::SetDarkMagentaPaint, KCColorPurple(255)},
        PaintColorRow{"DarkRed", &KCC_FillAttributes::SetDarkRedPaint, KCColorMaroon(255)},
        PaintColorRow{"DarkYellow", &KCC_FillAttributes::SetDarkYellowPaint, KCColorOlive(255)},
        PaintColorRow{"DeepSkyBlue", &KCC_FillAttributes::SetDeepSkyBluePaint, KCColorDeepSkyBlue(255)},
        PaintColorRow{"Green", &KCC_FillAttributes::SetGreenPaint, KCColorLime(255)},
        PaintColorRow{"LightGray", &KCC_FillAttributes::SetLightGrayPaint, KCColorSilver(255)},
        PaintColorRow{"Magenta", &KCC_FillAttributes::SetMagentaPaint, KCColorFuchsia(255)},
        PaintColorRow{"Orange", &KCC_FillAttributes::SetOrangePaint, KCColorOrange(255)},
        PaintColorRow{"Pink", &KCC_FillAttributes::SetPinkPaint, KCColorPink(255)},
        PaintColorRow{"Red", &KCC_FillAttributes::SetRedPaint, KCColorRed(255)},
        PaintColorRow{"White", &KCC_FillAttributes::SetWhitePaint, KCColorWhite(255)},
        PaintColorRow{"Yellow", &KCC_FillAttributes::SetYellowPaint, KCColorYellow(255)}),
    [](const ::testing::TestParamInfo<PaintColorRow>& paramInfo) {
      return std::string(paramInfo.param.word);
    });

TEST(KccFillAttributes, SetGreenPaintStoresLimeNotGreen) {
  KCC_FillAttributes fill;

  fill.SetGreenPaint();

  EXPECT_EQ(fill.GetFillColor(), KCColor(0, 255, 0, 255));
  EXPECT_NE(fill.GetFillColor(), KCColorGreen(255));
}

TEST(KccFillAttributes, WriteToParagraphWritesTheTwoKeysInOrderIntoTheChild) {
  const KCC_FillAttributes fill(KCColorOrange(255), true);
  KCParagraph root("Root");

  ASSERT_TRUE(fill.WriteToParagraph("Pocket", &root));

  const KCParagraph* section = root.FindParagraph("Pocket");
  ASSERT_NE(section, nullptr);
  const std::vector<KCParagraph::Entry> expected = {{"FillColor", "255,165,0,255"}, {"Filled", "1"}};
  EXPECT_EQ(section->GetEntries(), expected);
}

TEST(KccFillAttributes, WriteToParagraphWithEmptyNameWritesIntoTheParagraphItself) {
  const KCC_FillAttributes fill;
  KCParagraph root("Root");

  ASSERT_TRUE(fill.WriteToParagraph("", &root));

  const std::vector<KCParagraph::Entry> expected = {{"FillColor", "0,0,0,255"}, {"Filled", "0"}};
  EXPECT_EQ(root.GetEntries(), expected);
  EXPECT_TRUE(root.GetParagraphs().empty());
}

TEST(KccFillAttributes, WriteToNullParagraphGivesFalse) {
  const KCC_FillAttributes fill;

  EXPECT_FALSE(fill.WriteToParagraph("Pocket", nullptr));
}

TEST(KccFillAttributes, RoundTripThroughParagraphGivesTheSameAttributes) {
  const KCC_FillAttributes written(KCColor(12, 34, 56, 78), true);
  KCParagraph root("Root");
  ASSERT_TRUE(written.WriteToParagraph("Pocket", &root));
  KCC_FillAttributes read;

  ASSERT_TRUE(read.ReadFromParagraph("Pocket", &root));

  EXPECT_EQ(read.GetFillColor(), KCColor(12, 34, 56, 78));
  EXPECT_TRUE(read.IsFilledShape());
}

TEST(KccFillAttributes, RoundTripOfHollowShapeReadsHollow) {
  const KCC_FillAttributes written(KCColorRed(255), false);
  KCParagraph root("Root");
  ASSERT_TRUE(written.WriteToParagraph("Pocket", &root));
  KCC_FillAttributes read(KCColor(), true);

  ASSERT_TRUE(read.ReadFromParagraph("Pocket", &root));

  EXPECT_TRUE(read.IsHollowShape());
}

TEST(KccFillAttributes, RoundTripWithEmptyNameReadsTheParagraphItself) {
  const KCC_FillAttributes written(KCColorYellow(255), true);
  KCParagraph root("Root");
  ASSERT_TRUE(written.WriteToParagraph("", &root));
  KCC_FillAttributes read;

  ASSERT_TRUE(read.ReadFromParagraph("", &root));

  EXPECT_EQ(read.GetFillColor(), KCColor(255, 255, 0, 255));
  EXPECT_TRUE(read.IsFilledShape());
}

TEST(KccFillAttributes, ReadFromMissingSectionGivesFalseAndChangesNothing) {
  KCParagraph root("Root");
  ASSERT_TRUE(KCC_FillAttributes(KCColorRed(255), false).WriteToParagraph("Other", &root));
  KCC_FillAttributes fill(KCColorBlue(255), true);

  EXPECT_FALSE(fill.ReadFromParagraph("Pocket", &root));

  EXPECT_EQ(fill.GetFillColor(), KCColor(0, 0, 255, 255));
  EXPECT_TRUE(fill.IsFilledShape());
}

TEST(KccFillAttributes, ReadFromNullParagraphGivesFalse) {
  KCC_FillAttributes fill(KCColorBlue(255), true);

  EXPECT_FALSE(fill.ReadFromParagraph("Pocket", nullptr));

  EXPECT_TRUE(fill.IsFilledShape());
}

TEST(KccFillAttributes, ReadMissingKeyKeepsTheCurrentValue) {
  KCParagraph root("Root");
  root.AddParagraph("Pocket")->WriteBool("Filled", true);
  KCC_FillAttributes fill(KCColorBlue(255), false);

  ASSERT_TRUE(fill.ReadFromParagraph("Pocket", &root));

  EXPECT_EQ(fill.GetFillColor(), KCColor(0, 0, 255, 255));
  EXPECT_TRUE(fill.IsFilledShape());
}

}  // namespace
