// SPDX-License-Identifier: MIT
// KCC_FontAttributes: defaults, colours, styles, named fonts and colours, and the paragraph form.
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "ncappkit/draw/KCC_FontAttributes.h"
#include "ncappkit/foundation/KCParagraph.h"

namespace {

// A paragraph that notes every child-section look-up and creation it is asked for.
class RecordingParagraph : public KCParagraph {
 public:
  using KCParagraph::KCParagraph;
  KCParagraph* FindParagraph(const KCString& name) override {
    lookups.push_back(name.str());
    return KCParagraph::FindParagraph(name);
  }
  KCParagraph* AddParagraph(const KCString& name) override {
    additions.push_back(name.str());
    return KCParagraph::AddParagraph(name);
  }
  std::vector<std::string> lookups;
  std::vector<std::string> additions;
};

// Font attributes with every field away from its default.
KCC_FontAttributes SampleFont() {
  KCC_FontAttributes font("Georgia");
  font.SetColors(KCColor(10, 20, 30, 40), KCColor(50, 60, 70, 80));
  font.SetFontSize(24);
  font.EnableBold();
  font.EnableUnderline();
  return font;
}

TEST(KccFontAttributes, NewFontHasSize16) {
  const KCC_FontAttributes font;

  EXPECT_EQ(font.GetFontSize(), 16);
}

TEST(KccFontAttributes, NewFontHasBlackTextOnWhite) {
  const KCC_FontAttributes font;

  EXPECT_EQ(font.GetFontColor(), KCColor(0, 0, 0, 255));
  EXPECT_EQ(font.GetBackColor(), KCColor(255, 255, 255, 255));
}

TEST(KccFontAttributes, NewFontHasNoStyle) {
  const KCC_FontAttributes font;

  EXPECT_FALSE(font.IsBold());
  EXPECT_FALSE(font.IsItalic());
  EXPECT_FALSE(font.IsUnderline());
  EXPECT_FALSE(font.IsStrike());
}

TEST(KccFontAttributes, DefaultFontNameIsTimesNewRoman) {
  const KCC_FontAttributes font;

  EXPECT_EQ(font.GetFontName(), "Times New Roman");
}

TEST(KccFontAttributes, ConstructorStoresTheFontName) {
  const KCC_FontAttributes font("Verdana");

  EXPECT_EQ(font.GetFontName(), "Verdana");
}

TEST(KccFontAttributes, SetTextColorIsReadByGetFontColor) {
  KCC_FontAttributes font;

  font.SetTextColor(KCColor(10, 20, 30, 40));

  EXPECT_EQ(font.GetFontColor(), KCColor(10, 20, 30, 40));
}

TEST(KccFontAttributes, SetFontColorIsReadByGetTextColor) {
  KCC_FontAttributes font;

  font.SetFontColor(KCColor(10, 20, 30, 40));

  EXPECT_EQ(font.GetTextColor(), KCColor(10, 20, 30, 40));
}

TEST(KccFontAttributes, SetBackColorStoresTheBackColor) {
  KCC_FontAttributes font;

  font.SetBackColor(KCColor(10, 20, 30, 40));

  EXPECT_EQ(font.GetBackColor(), KCColor(10, 20, 30, 40));
}

TEST(KccFontAttributes, SetColorsStoresTextColorThenBackColor) {
  KCC_FontAttributes font;

  font.SetColors(KCColorYellow(255), KCColorNavy(255));

  EXPECT_EQ(font.GetTextColor(), KCColor(255, 255, 0, 255));
  EXPECT_EQ(font.GetBackColor(), KCColor(0, 0, 128, 255));
}

TEST(KccFontAttributes, SetFontNameStoresTheName) {
  KCC_FontAttributes font;

  font.SetFontName("Consolas");

  EXPECT_EQ(font.GetFontName(), "Consolas");
}

TEST(KccFontAttributes, SetFontSizeStoresTheSize) {
  KCC_FontAttributes font;

  font.SetFontSize(9);

  EXPECT_EQ(font.GetFontSize(), 9);
}

TEST(KccFontAttributes, CopyConstructorCopiesAllFields) {
  const KCC_FontAttributes original = SampleFont();

  const KCC_FontAttributes copy(original);

  EXPECT_EQ(copy.GetTextColor(), KCColor(10, 20, 30, 40));
  EXPECT_EQ(copy.GetBackColor(), KCColor(50, 60, 70, 80));
  EXPECT_EQ(copy.GetFontName(), "Georgia");
  EXPECT_EQ(copy.GetFontSize(), 24);
  EXPECT_TRUE(copy.IsBold());
  EXPECT_FALSE(copy.IsItalic());
  EXPECT_TRUE(copy.IsUnderline());
  EXPECT_FALSE(copy.IsStrike());
}

TEST(KccFontAttributes, AssignmentCopiesAllFields) {
  const KCC_FontAttributes original = SampleFont();
  KCC_FontAttributes target;

  target = original;

  EXPECT_EQ(target.GetTextColor(), KCColor(10, 20, 30, 40));
  EXPECT_EQ(target.GetBackColor(), KCColor(50, 60, 70, 80));
  EXPECT_EQ(target.GetFontName(), "Georgia");
  EXPECT_EQ(target.GetFontSize(), 24);
  EXPECT_TRUE(target.IsBold());
  EXPECT_FALSE(target.IsItalic());
  EXPECT_TRUE(target.IsUnderline());
  EXPECT_FALSE(target.IsStrike());
}

// One row per font style: its test, its setters, and the four flags (bold, italic, underline, strike) that
// enabling it on a new font gives.
struct FontStyleRow {
  const char* name;
  bool (KCC_FontAttributes::*is)() const;
  void (KCC_FontAttributes::*set)(bool);
  void (KCC_FontAttributes::*enable)();
  void (KCC_FontAttributes::*disable)();
  bool bold;
  bool italic;
  bool underline;
  bool strike;
};

// Failure messages name the row.
void PrintTo(const FontStyleRow& row, std::ostream* out) {
  *out << row.name;
}

class KccFontAttributesStyle : public ::testing::TestWithParam<FontStyleRow> {};

TEST_P(KccFontAttributesStyle, EnableSetsTheFlag) {
  const FontStyleRow& row = GetParam();
  KCC_FontAttributes font;

  (font.*row.enable)();

  EXPECT_TRUE((font.*row.is)());
}

TEST_P(KccFontAttributesStyle, DisableClearsTheFlag) {
  const FontStyleRow& row = GetParam();
  KCC_FontAttributes font;
  (font.*row.enable)();

  (font.*row.disable)();

  EXPECT_FALSE((font.*row.is)());
}

TEST_P(KccFontAttributesStyle, SetTrueSetsTheFlag) {
  const FontStyleRow& row = GetParam();
  KCC_FontAttributes font;

  (font.*row.set)(true);

  EXPECT_TRUE((font.*row.is)());
}

TEST_P(KccFontAttributesStyle, SetFalseClearsTheFlag) {
  const FontStyleRow& row = GetParam();
  KCC_FontAttributes font;
  (font.*row.enable)();

  (font.*row.set)(false);

  EXPECT_FALSE((font.*row.is)());
}

TEST_P(KccFontAttributesStyle, EnableLeavesTheOtherFlagsAlone) {
  const FontStyleRow& row = GetParam();
  KCC_FontAttributes font;

  (font.*row.enable)();

  EXPECT_EQ(font.IsBold(), row.bold);
  EXPECT_EQ(font.IsItalic(), row.italic);
  EXPECT_EQ(font.IsUnderline(), row.underline);
  EXPECT_EQ(font.IsStrike(), row.strike);
}

INSTANTIATE_TEST_SUITE_P(
    Styles, KccFontAttributesStyle,
    ::testing::Values(FontStyleRow{"Bold", &KCC_FontAttributes::IsBold, &KCC_FontAttributes::SetBold,
                                   &KCC_FontAttributes::EnableBold, &KCC_FontAttributes::DisableBold, true,
                                   false, false, false},
                      FontStyleRow{"Italic", &KCC_FontAttributes::IsItalic, &KCC_FontAttributes::SetItalic,
                                   &KCC_FontAttributes::EnableItalic, &KCC_FontAttributes::DisableItalic,
                                   false, true, false, false},
                      FontStyleRow{"Underline", &KCC_FontAttributes::IsUnderline,
                                   &KCC_FontAttributes::SetUnderline, &KCC_FontAttributes::EnableUnderline,
                                   &KCC_FontAttributes::DisableUnderline, false, false, true, false},
                      FontStyleRow{"Strike", &KCC_FontAttributes::IsStrike, &KCC_FontAttributes::SetStrike,
                                   &KCC_FontAttributes::EnableStrike, &KCC_FontAttributes::DisableStrike,
                                   false, false, false, true}),
    [](const ::testing::TestParamInfo<FontStyleRow>& paramInfo) {
      return std::string(paramInfo.param.name);
    });

// One row per named font setter and the font name it stores.
struct FontNameRow {
  const char* name;
  void (KCC_FontAttributes::*set)();
  const char* expected;
};

// Failure messages name the row.
void PrintTo(const FontNameRow& row, std::ostream* out) {
  *out << row.name;
}

class KccFontAttributesFontName : public ::testing::TestWithParam<FontNameRow> {};

TEST_P(KccFontAttributesFontName, SetterStoresTheFontName) {
  const FontNameRow& row = GetParam();
  KCC_FontAttributes font("Unset");

  (font.*row.set)();

  EXPECT_EQ(font.GetFontName(), row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Fonts, KccFontAttributesFontName,
    ::testing::Values(
        FontNameRow{"Arial", &KCC_FontAttributes::SetFontArial, "Arial"},
        FontNameRow{"BookmanOldStyle", &KCC_FontAttributes::SetFontBookmanOldStyle, "Bookman Old Style"},
        FontNameRow{"ComicSansMS", &KCC_FontAttributes::SetFontComicSansMS, "Comic Sans MS"},
        FontNameRow{"CourierNew", &KCC_FontAttributes::SetFontCourierNew, "Courier New"},
        FontNameRow{"Georgia", &KCC_FontAttributes::SetFontGeorgia, "Georgia"},
        FontNameRow{"Impact", &KCC_FontAttributes::SetFontImpact, "Impact"},
        FontNameRow{"Tahoma", &KCC_FontAttributes::SetFontTahoma, "Tahoma"},
        FontNameRow{"TimesNewRoman", &KCC_FontAttributes::SetFontTimesNewRoman, "Times New Roman"},
        FontNameRow{"Verdana", &KCC_FontAttributes::SetFontVerdana, "Verdana"}),
    [](const ::testing::TestParamInfo<FontNameRow>& paramInfo) { return std::string(paramInfo.param.name); });

// One row per colour word: its text setter and the class-library colour it stores.
struct TextColorRow {
  const char* word;
  void (KCC_FontAttributes::*set)();
  KCColor expected;
};

// Failure messages name the row.
void PrintTo(const TextColorRow& row, std::ostream* out) {
  *out << row.word;
}

class KccFontAttributesColorWord : public ::testing::TestWithParam<TextColorRow> {};

TEST_P(KccFontAttributesColorWord, SetterStoresTheNamedColorWith255) {
  const TextColorRow& row = GetParam();
  KCC_FontAttributes font;
  font.SetTextColor(KCColor(1, 2, 3, 4));  // a colour no setter stores

  (font.*row.set)();

  EXPECT_EQ(font.GetTextColor(), row.expected);
}

TEST_P(KccFontAttributesColorWord, SetterLeavesTheBackColorAlone) {
  const TextColorRow& row = GetParam();
  KCC_FontAttributes font;
  font.SetBackColor(KCColor(1, 2, 3, 4));

  (font.*row.set)();

  EXPECT_EQ(font.GetBackColor(), KCColor(1, 2, 3, 4));
}

INSTANTIATE_TEST_SUITE_P(
    Words, KccFontAttributesColorWord,
    ::testing::Values(
        TextColorRow{"Black", &KCC_FontAttributes::SetBlackText, KCColorBlack(255)},
        TextColorRow{"Blue", &KCC_FontAttributes::SetBlueText, KCColorBlue(255)},
        TextColorRow{"Cyan", &KCC_FontAttributes::SetCyanText, KCColorAqua(255)},
        TextColorRow{"DarkBlue", &KCC_FontAttributes::SetDarkBlueText, KCColorNavy(255)},
        TextColorRow{"DarkCyan", &KCC_FontAttributes::SetDarkCyanText, KCColorTeal(255)},
        TextColorRow{"DarkGray", &KCC_FontAttributes::SetDarkGrayText, KCColorGray(255)},
        TextColorRow{"DarkGreen", &KCC_FontAttributes::SetDarkGreenText, KCColorGreen(255)},
        TextColorRow{"DarkMagenta", &KCC_FontAttributes::SetDarkMagentaText, KCColorPurple(255)},
        TextColorRow{"DarkRed", &KCC_FontAttributes::SetDarkRedText, KCColorMaroon(255)},
        TextColorRow{"DarkYellow", &KCC_FontAttributes::SetDarkYellowText, KCColorOlive(255)},
        TextColorRow{"DeepSkyBlue", &KCC_FontAttributes::SetDeepSkyBlueText, KCColorDeepSkyBlue(255)},
        TextColorRow{"Green", &KCC_FontAttributes::SetGreenText, KCColorLime(255)},
        TextColorRow{"LightGray", &KCC_FontAttributes::SetLightGrayText, KCColorSilver(255)},
        TextColorRow{"Magenta", &KCC_FontAttributes::SetMagentaText, KCColorFuchsia(255)},
        TextColorRow{"Orange", &KCC_FontAttributes::SetOrangeText, KCColorOrange(255)},
        TextColorRow{"Pink", &KCC_FontAttributes::SetPinkText, KCColorPink(255)},
        TextColorRow{"Red", &KCC_FontAttributes::SetRedText, KCColorRed(255)},
        TextColorRow{"White", &KCC_FontAttributes::SetWhiteText, KCColorWhite(255)},
        TextColorRow{"Yellow", &KCC_FontAttributes::SetYellowText, KCColorYellow(255)}),
    [](const ::testing::TestParamInfo<TextColorRow>& paramInfo) {
      return std::string(paramInfo.param.word);
    });

TEST(KccFontAttributes, SetGreenTextStoresLimeNotGreen) {
  KCC_FontAttributes font;

  font.SetGreenText();

  EXPECT_EQ(font.GetTextColor(), KCColor(0, 255, 0, 255));
  EXPECT_NE(font.GetTextColor(), KCColorGreen(255));
}

TEST(KccFontAttributes, WriteWithEmptyNamePutsTheEightKeysDirectlyIntoTheParagraph) {
  const KCC_FontAttributes font = SampleFont();
  KCParagraph root("Root");

  ASSERT_TRUE(font.WriteToParagraph("", &root));

  const std::vector<KCParagraph::Entry> expected = {{"TextColor", "10,20,30,40"},
                                                    {"BackColor", "50,60,70,80"},
                                                    {"FontName", "Georgia"},
                                                    {"FontSize", "24"},
                                                    {"Bold", "1"},
                                                    {"Italic", "0"},
                                                    {"Underline", "1"},
                                                    {"Strike", "0"}};
  EXPECT_EQ(root.GetEntries(), expected);
  EXPECT_TRUE(root.GetParagraphs().empty());
}

TEST(KccFontAttributes, WriteWithNameWritesTheEightKeysInOrderIntoTheChild) {
  const KCC_FontAttributes font;
  KCParagraph root("Root");

  ASSERT_TRUE(font.WriteToParagraph("Label", &root));

  const KCParagraph* section = root.FindParagraph("Label");
  ASSERT_NE(section, nullptr);
  const std::vector<KCParagraph::Entry> expected = {{"TextColor", "0,0,0,255"},
                                                    {"BackColor", "255,255,255,255"},
                                                    {"FontName", "Times New Roman"},
                                                    {"FontSize", "16"},
                                                    {"Bold", "0"},
                                                    {"Italic", "0"},
                                                    {"Underline", "0"},
                                                    {"Strike", "0"}};
  EXPECT_EQ(section->GetEntries(), expected);
  EXPECT_TRUE(root.GetEntries().empty());
}

TEST(KccFontAttributes, WriteWithNameAddsTheChildThroughAddParagraph) {
  const KCC_FontAttributes font;
  RecordingParagraph root("Root");

  ASSERT_TRUE(font.WriteToParagraph("Label", &root));

  EXPECT_EQ(root.additions, std::vector<std::string>{"Label"});
}

TEST(KccFontAttributes, WriteWithEmptyNameAddsNoChild) {
  const KCC_FontAttributes font;
  RecordingParagraph root("Root");

  ASSERT_TRUE(font.WriteToParagraph("", &root));

  EXPECT_TRUE(root.additions.empty());
}

TEST(KccFontAttributes, WriteToNullParagraphGivesFalse) {
  const KCC_FontAttributes font;

  EXPECT_FALSE(font.WriteToParagraph("Label", nullptr));
}

TEST(KccFontAttributes, RoundTripThroughParagraphGivesTheSameAttributes) {
  KCParagraph root("Root");
  ASSERT_TRUE(SampleFont().WriteToParagraph("Label", &root));
  KCC_FontAttributes read;

  ASSERT_TRUE(read.ReadFromParagraph("Label", &root));

  EXPECT_EQ(read.GetTextColor(), KCColor(10, 20, 30, 40));
  EXPECT_EQ(read.GetBackColor(), KCColor(50, 60, 70, 80));
  EXPECT_EQ(read.GetFontName(), "Georgia");
  EXPECT_EQ(read.GetFontSize(), 24);
  EXPECT_TRUE(read.IsBold());
  EXPECT_FALSE(read.IsItalic());
  EXPECT_TRUE(read.IsUnderline());
  EXPECT_FALSE(read.IsStrike());
}

TEST(KccFontAttributes, RoundTripClearsStylesThatWereWrittenOff) {
  KCParagraph root("Root");
  ASSERT_TRUE(KCC_FontAttributes().WriteToParagraph("Label", &root));
  KCC_FontAttributes read;
  read.EnableItalic();
  read.EnableStrike();

  ASSERT_TRUE(read.ReadFromParagraph("Label", &root));

  EXPECT_FALSE(read.IsItalic());
  EXPECT_FALSE(read.IsStrike());
}

TEST(KccFontAttributes, ReadLooksUpTheSectionAlsoForAnEmptyName) {
  RecordingParagraph root("Root");
  KCC_FontAttributes font;

  ASSERT_TRUE(font.ReadFromParagraph("", &root));

  EXPECT_EQ(root.lookups, std::vector<std::string>{""});
}

TEST(KccFontAttributes, ReadWithEmptyNameReadsWhatAnEmptyNameWrote) {
  KCParagraph root("Root");
  ASSERT_TRUE(SampleFont().WriteToParagraph("", &root));
  KCC_FontAttributes read;

  ASSERT_TRUE(read.ReadFromParagraph("", &root));

  EXPECT_EQ(read.GetFontName(), "Georgia");
  EXPECT_EQ(read.GetFontSize(), 24);
  EXPECT_TRUE(read.IsBold());
}

TEST(KccFontAttributes, ReadWithEmptyNameReadsTheParagraphNotAChildWithEmptyName) {
  KCParagraph root("Root");
  root.WriteString("FontName", "Impact");
  root.NewParagraph("")->WriteString("FontName", "Tahoma");
  KCC_FontAttributes font;

  ASSERT_TRUE(font.ReadFromParagraph("", &root));

  EXPECT_EQ(font.GetFontName(), "Impact");
}

TEST(KccFontAttributes, ReadFontSizeWrittenAsTextWithTheIntegerRead) {
  KCParagraph root("Root");
  root.AddParagraph("Label")->WriteString("FontSize", "18pt");
  KCC_FontAttributes font;

  ASSERT_TRUE(font.ReadFromParagraph("Label", &root));

  EXPECT_EQ(font.GetFontSize(), 18);
}

TEST(KccFontAttributes, ReadFontSizeThatIsNoNumberKeepsTheCurrentSize) {
  KCParagraph root("Root");
  root.AddParagraph("Label")->WriteString("FontSize", "big");
  KCC_FontAttributes font;
  font.SetFontSize(20);

  ASSERT_TRUE(font.ReadFromParagraph("Label", &root));

  EXPECT_EQ(font.GetFontSize(), 20);
}

TEST(KccFontAttributes, ReadFromMissingSectionGivesFalseAndChangesNothing) {
  KCParagraph root("Root");
  ASSERT_TRUE(KCC_FontAttributes("Arial").WriteToParagraph("Other", &root));
  KCC_FontAttributes font = SampleFont();

  EXPECT_FALSE(font.ReadFromParagraph("Label", &root));

  EXPECT_EQ(font.GetTextColor(), KCColor(10, 20, 30, 40));
  EXPECT_EQ(font.GetBackColor(), KCColor(50, 60, 70, 80));
  EXPECT_EQ(font.GetFontName(), "Georgia");
  EXPECT_EQ(font.GetFontSize(), 24);
  EXPECT_TRUE(font.IsBold());
  EXPECT_FALSE(font.IsItalic());
  EXPECT_TRUE(font.IsUnderline());
  EXPECT_FALSE(font.IsStrike());
}

TEST(KccFontAttributes, ReadFromNullParagraphGivesFalse) {
  KCC_FontAttributes font("Impact");

  EXPECT_FALSE(font.ReadFromParagraph("Label", nullptr));

  EXPECT_EQ(font.GetFontName(), "Impact");
}

TEST(KccFontAttributes, ReadMissingKeyKeepsTheCurrentValue) {
  KCParagraph root("Root");
  root.AddParagraph("Label")->WriteString("FontName", "Tahoma");
  KCC_FontAttributes font = SampleFont();

  ASSERT_TRUE(font.ReadFromParagraph("Label", &root));

  EXPECT_EQ(font.GetFontName(), "Tahoma");
  EXPECT_EQ(font.GetTextColor(), KCColor(10, 20, 30, 40));
  EXPECT_EQ(font.GetFontSize(), 24);
  EXPECT_TRUE(font.IsBold());
}

TEST(KccFontAttributes, ReadStyleThatIsNoBoolKeepsTheCurrentFlag) {
  KCParagraph root("Root");
  root.AddParagraph("Label")->WriteString("Bold", "maybe");
  KCC_FontAttributes font;
  font.EnableBold();

  ASSERT_TRUE(font.ReadFromParagraph("Label", &root));

  EXPECT_TRUE(font.IsBold());
}

}  // namespace
