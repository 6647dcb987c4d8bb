// SPDX-License-Identifier: MIT
// KCC_LineAttributes: defaults, accessors, line styles, named colours and the paragraph form.
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "ncappkit/draw/KCC_LineAttributes.h"
#include "ncappkit/foundation/KCParagraph.h"

namespace {

TEST(KccLineAttributes, DefaultWidthIsOne) {
  const KCC_LineAttributes line;

  EXPECT_EQ(line.GetLineWidth(), 1);
}

TEST(KccLineAttributes, DefaultColorIsTheLibraryDefaultColor) {
  const KCC_LineAttributes line;

  EXPECT_EQ(line.GetLineColor(), KCColor());
}

TEST(KccLineAttributes, DefaultStyleIsSolid) {
  const KCC_LineAttributes line;

  EXPECT_EQ(line.GetLineStyle(), KCPenStyleSolid());
  EXPECT_TRUE(line.IsSolidLine());
}

TEST(KccLineAttributes, ConstructorStoresColorStyleAndWidth) {
  const KCC_LineAttributes line(KCColorRed(255), KCPenStyleDot(), 3);

  EXPECT_EQ(line.GetLineColor(), KCColor(255, 0, 0, 255));
  EXPECT_EQ(line.GetLineStyle(), KCPenStyleDot());
  EXPECT_EQ(line.GetLineWidth(), 3);
}

TEST(KccLineAttributes, SetLineColorStoresTheColor) {
  KCC_LineAttributes line;

  line.SetLineColor(KCColor(10, 20, 30, 40));

  EXPECT_EQ(line.GetLineColor(), KCColor(10, 20, 30, 40));
}

TEST(KccLineAttributes, SetLineStyleStoresTheStyle) {
  KCC_LineAttributes line;

  line.SetLineStyle(KCPenStyleDashDot());

  EXPECT_EQ(line.GetLineStyle(), KCPenStyleDashDot());
}

TEST(KccLineAttributes, SetLineWidthKeepsAWidthBelowOne) {
  KCC_LineAttributes line;

  line.SetLineWidth(-2);

  EXPECT_EQ(line.GetLineWidth(), -2);
}

TEST(KccLineAttributes, CopyConstructorCopiesAllFields) {
  const KCC_LineAttributes original(KCColorTeal(255), KCPenStyleDash(), 4);

  const KCC_LineAttributes copy(original);

  EXPECT_EQ(copy.GetLineColor(), KCColor(0, 128, 128, 255));
  EXPECT_EQ(copy.GetLineStyle(), KCPenStyleDash());
  EXPECT_EQ(copy.GetLineWidth(), 4);
}

TEST(KccLineAttributes, AssignmentCopiesAllFields) {
  const KCC_LineAttributes original(KCColorTeal(255), KCPenStyleDash(), 4);
  KCC_LineAttributes target;

  target = original;

  EXPECT_EQ(target.GetLineColor(), KCColor(0, 128, 128, 255));
  EXPECT_EQ(target.GetLineStyle(), KCPenStyleDash());
  EXPECT_EQ(target.GetLineWidth(), 4);
}

// One row per line style: its setter, its test, the stored style, and a different style to start from.
struct StyleRow {
  const char* name;
  void (KCC_LineAttributes::*set)();
  bool (KCC_LineAttributes::*is)() const;
  KCPenStyle expected;
  KCPenStyle other;
};

// Failure messages name the row.
void PrintTo(const StyleRow& row, std::ostream* out) {
  *out << row.name;
}

class KccLineAttributesStyle : public ::testing::TestWithParam<StyleRow> {};

TEST_P(KccLineAttributesStyle, SetterStoresItsPenStyle) {
  const StyleRow& row = GetParam();
  KCC_LineAttributes line(KCColor(), row.other, 1);

  (line.*row.set)();

  EXPECT_EQ(line.GetLineStyle(), row.expected);
}

TEST_P(KccLineAttributesStyle, TestIsTrueForItsPenStyle) {
  const StyleRow& row = GetParam();
  const KCC_LineAttributes line(KCColor(), row.expected, 1);

  EXPECT_TRUE((line.*row.is)());
}

TEST_P(KccLineAttributesStyle, TestIsFalseForAnotherPenStyle) {
  const StyleRow& row = GetParam();
  const KCC_LineAttributes line(KCColor(), row.other, 1);

  EXPECT_FALSE((line.*row.is)());
}

INSTANTIATE_TEST_SUITE_P(
    Styles, KccLineAttributesStyle,
    ::testing::Values(StyleRow{"Solid", &KCC_LineAttributes::SetSolidLine, &KCC_LineAttributes::IsSolidLine,
                               KCPenStyleSolid(), KCPenStyleDash()},
                      StyleRow{"Dash", &KCC_LineAttributes::SetDashLine, &KCC_LineAttributes::IsDashLine,
                               KCPenStyleDash(), KCPenStyleSolid()},
                      StyleRow{"Dot", &KCC_LineAttributes::SetDotLine, &KCC_LineAttributes::IsDotLine,
                               KCPenStyleDot(), KCPenStyleDash()},
                      StyleRow{"DashDot", &KCC_LineAttributes::SetDashDotLine,
                               &KCC_LineAttributes::IsDashDotLine, KCPenStyleDashDot(),
                               KCPenStyleDashDotDot()},
                      StyleRow{"DashDotDot", &KCC_LineAttributes::SetDashDotDotLine,
                               &KCC_LineAttributes::IsDashDotDotLine, KCPenStyleDashDotDot(),
                               KCPenStyleDashDot()}),
    [](const ::testing::TestParamInfo<StyleRow>& paramInfo) { return std::string(paramInfo.param.name); });

// One row per colour word: its line setter and the class-library colour it stores.
struct LineColorRow {
  const char* word;
  void (KCC_LineAttributes::*set)();
  KCColor expected;
};

// Failure messages name the row.
void PrintTo(const LineColorRow& row, std::ostream* out) {
  *out << row.word;
}

class KccLineAttributesColorWord : public ::testing::TestWithParam<LineColorRow> {};

TEST_P(KccLineAttributesColorWord, SetterStoresTheNamedColorWith255) {
  const LineColorRow& row = GetParam();
  KCC_LineAttributes line;
  line.SetLineColor(KCColor(1, 2, 3, 4));  // a colour no setter stores

  (line.*row.set)();

  EXPECT_EQ(line.GetLineColor(), row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Words, KccLineAttributesColorWord,
    ::testing::Values(
        LineColorRow{"Black", &KCC_LineAttributes::SetBlackLine, KCColorBlack(255)},
        LineColorRow{"Blue", &KCC_LineAttributes::SetBlueLine, KCColorBlue(255)},
        LineColorRow{"Cyan", &KCC_LineAttributes::SetCyanLine, KCColorAqua(255)},
        LineColorRow{"DarkBlue", &KCC_LineAttributes::SetDarkBlueLine, KCColorNavy(255)},
        LineColorRow{"DarkCyan", &KCC_LineAttributes::SetDarkCyanLine, KCColorTeal(255)},
        LineColorRow{"DarkGray", &KCC_LineAttributes::SetDarkGrayLine, KCColorGray(255)},
        LineColorRow{"DarkGreen", &KCC_LineAttributes::SetDarkGreenLine, KCColorGreen(255)},
        LineColorRow{"DarkMagenta", &KCC_LineAttributes::SetDarkMagentaLine, KCColorPurple(255)},
        LineColorRow{"DarkRed", &KCC_LineAttributes::SetDarkRedLine, KCColorMaroon(255)},
        LineColorRow{"DarkYellow", &KCC_LineAttributes::SetDarkYellowLine, KCColorOlive(255)},
        LineColorRow{"DeepSkyBlue", &KCC_LineAttributes::SetDeepSkyBlueLine, KCColorDeepSkyBlue(255)},
        LineColorRow{"Green", &KCC_LineAttributes::SetGreenLine, KCColorLime(255)},
        LineColorRow{"LightGray", &KCC_LineAttributes::SetLightGrayLine, KCColorSilver(255)},
        LineColorRow{"Magenta", &KCC_LineAttributes::SetMagentaLine, KCColorFuchsia(255)},
        LineColorRow{"Orange", &KCC_LineAttributes::SetOrangeLine, KCColorOrange(255)},
        LineColorRow{"Pink", &KCC_LineAttributes::SetPinkLine, KCColorPink(255)},
        LineColorRow{"Red", &KCC_LineAttributes::SetRedLine, KCColorRed(255)},
        LineColorRow{"White", &KCC_LineAttributes::SetWhiteLine, KCColorWhite(255)},
        LineColorRow{"Yellow", &KCC_LineAttributes::SetYellowLine, KCColorYellow(255)}),
    [](const ::testing::TestParamInfo<LineColorRow>& paramInfo) {
      return std::string(paramInfo.param.word);
    });

TEST(KccLineAttributes, SetGreenLineStoresLimeNotGreen) {
  KCC_LineAttributes line;

  line.SetGreenLine();

  EXPECT_EQ(line.GetLineColor(), KCColor(0, 255, 0, 255));
  EXPECT_NE(line.GetLineColor(), KCColorGreen(255));
}

TEST(KccLineAttributes, SetDarkGreenLineStoresTheLibraryGreen) {
  KCC_LineAttributes line;

  line.SetDarkGreenLine();

  EXPECT_EQ(line.GetLineColor(), KCColor(0, 128, 0, 255));
}

TEST(KccLineAttributes, WriteToParagraphWritesTheThreeKeysInOrderIntoTheChild) {
  const KCC_LineAttributes line(KCColorNavy(255), KCPenStyleDash(), 3);
  KCParagraph root("Root");

  ASSERT_TRUE(line.WriteToParagraph("Contour", &root));

  const KCParagraph* section = root.FindParagraph("Contour");
  ASSERT_NE(section, nullptr);
  const std::vector<KCParagraph::Entry> expected = {
      {"LineColor", "0,0,128,255"}, {"LineStyle", "Dash"}, {"LineWidth", "3"}};
  EXPECT_EQ(section->GetEntries(), expected);
}

TEST(KccLineAttributes, WriteToParagraphWithEmptyNameWritesIntoTheParagraphItself) {
  const KCC_LineAttributes line(KCColorNavy(255), KCPenStyleDash(), 3);
  KCParagraph root("Root");

  ASSERT_TRUE(line.WriteToParagraph("", &root));

  const std::vector<KCParagraph::Entry> expected = {
      {"LineColor", "0,0,128,255"}, {"LineStyle", "Dash"}, {"LineWidth", "3"}};
  EXPECT_EQ(root.GetEntries(), expected);
  EXPECT_TRUE(root.GetParagraphs().empty());
}

TEST(KccLineAttributes, WriteToParagraphReusesAnExistingChild) {
  KCParagraph root("Root");
  ASSERT_TRUE(KCC_LineAttributes(KCColorRed(255), KCPenStyleDot(), 2).WriteToParagraph("Contour", &root));

  ASSERT_TRUE(KCC_LineAttributes(KCColorBlue(255), KCPenStyleDash(), 5).WriteToParagraph("Contour", &root));

  ASSERT_EQ(root.GetParagraphs().size(), 1u);
  EXPECT_EQ(root.FindParagraph("Contour")->GetValue("LineWidth"), "5");
}

TEST(KccLineAttributes, WriteToNullParagraphGivesFalse) {
  const KCC_LineAttributes line;

  EXPECT_FALSE(line.WriteToParagraph("Contour", nullptr));
}

TEST(KccLineAttributes, RoundTripThroughParagraphGivesTheSameAttributes) {
  const KCC_LineAttributes written(KCColor(12, 34, 56, 78), KCPenStyleDashDotDot(), 7);
  KCParagraph root("Root");
  ASSERT_TRUE(written.WriteToParagraph("Contour", &root));
  KCC_LineAttributes read;

  ASSERT_TRUE(read.ReadFromParagraph("Contour", &root));

  EXPECT_EQ(read.GetLineColor(), KCColor(12, 34, 56, 78));
  EXPECT_EQ(read.GetLineStyle(), KCPenStyleDashDotDot());
  EXPECT_EQ(read.GetLineWidth(), 7);
}

TEST(KccLineAttributes, RoundTripWithEmptyNameReadsTheParagraphItself) {
  const KCC_LineAttributes written(KCColorOrange(255), KCPenStyleDot(), 2);
  KCParagraph root("Root");
  ASSERT_TRUE(written.WriteToParagraph("", &root));
  KCC_LineAttributes read;

  ASSERT_TRUE(read.ReadFromParagraph("", &root));

  EXPECT_EQ(read.GetLineColor(), KCColor(255, 165, 0, 255));
  EXPECT_EQ(read.GetLineStyle(), KCPenStyleDot());
  EXPECT_EQ(read.GetLineWidth(), 2);
}

TEST(KccLineAttributes, ReadFromMissingSectionGivesFalseAndChangesNothing) {
  KCParagraph root("Root");
  ASSERT_TRUE(KCC_LineAttributes(KCColorRed(255), KCPenStyleDot(), 9).WriteToParagraph("Other", &root));
  KCC_LineAttributes line(KCColorBlue(255), KCPenStyleDash(), 3);

  EXPECT_FALSE(line.ReadFromParagraph("Contour", &root));

  EXPECT_EQ(line.GetLineColor(), KCColor(0, 0, 255, 255));
  EXPECT_EQ(line.GetLineStyle(), KCPenStyleDash());
  EXPECT_EQ(line.GetLineWidth(), 3);
}

TEST(KccLineAttributes, ReadFromNullParagraphGivesFalse) {
  KCC_LineAttributes line(KCColorBlue(255), KCPenStyleDash(), 3);

  EXPECT_FALSE(line.ReadFromParagraph("Contour", nullptr));

  EXPECT_EQ(line.GetLineWidth(), 3);
}

TEST(KccLineAttributes, ReadMissingKeyKeepsTheCurrentValue) {
  KCParagraph root("Root");
  KCParagraph* section = root.AddParagraph("Contour");
  section->WriteInteger("LineWidth", 6);
  KCC_LineAttributes line(KCColorBlue(255), KCPenStyleDash(), 3);

  ASSERT_TRUE(line.ReadFromParagraph("Contour", &root));

  EXPECT_EQ(line.GetLineColor(), KCColor(0, 0, 255, 255));
  EXPECT_EQ(line.GetLineStyle(), KCPenStyleDash());
  EXPECT_EQ(line.GetLineWidth(), 6);
}

TEST(KccLineAttributes, ReadUnreadableColorKeepsTheCurrentColor) {
  KCParagraph root("Root");
  root.AddParagraph("Contour")->WriteString("LineColor", "purple");
  KCC_LineAttributes line(KCColorBlue(255), KCPenStyleDash(), 3);

  ASSERT_TRUE(line.ReadFromParagraph("Contour", &root));

  EXPECT_EQ(line.GetLineColor(), KCColor(0, 0, 255, 255));
}

TEST(KccLineAttributes, ReadUnknownLineStyleKeepsTheCurrentStyle) {
  KCParagraph root("Root");
  root.AddParagraph("Contour")->WriteString("LineStyle", "Wavy");
  KCC_LineAttributes line(KCColorBlue(255), KCPenStyleDash(), 3);

  ASSERT_TRUE(line.ReadFromParagraph("Contour", &root));

  EXPECT_EQ(line.GetLineStyle(), KCPenStyleDash());
}

}  // namespace
