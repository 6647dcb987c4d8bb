// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>

#include "ncappkit/foundation/KCBrushStyle.h"
#include "ncappkit/foundation/KCFontStyle.h"
#include "ncappkit/foundation/KCPenMode.h"
#include "ncappkit/foundation/KCPenStyle.h"
#include "support/TestData.h"

namespace {

TEST(KcPenStyle, DefaultIsSolid) {
  EXPECT_EQ(KCPenStyle(), KCPenStyleSolid());
}

TEST(KcPenStyle, SubclassesChooseTheKind) {
  EXPECT_EQ(KCPenStyleSolid().GetKind(), KCPenStyle::Kind::Solid);
  EXPECT_EQ(KCPenStyleDash().GetKind(), KCPenStyle::Kind::Dash);
  EXPECT_EQ(KCPenStyleDot().GetKind(), KCPenStyle::Kind::Dot);
  EXPECT_EQ(KCPenStyleDashDot().GetKind(), KCPenStyle::Kind::DashDot);
  EXPECT_EQ(KCPenStyleDashDotDot().GetKind(), KCPenStyle::Kind::DashDotDot);
  EXPECT_NE(KCPenStyleDash(), KCPenStyleDot());
}

TEST(KcPenStyle, ToStringNamesEveryKind) {
  EXPECT_EQ(KCPenStyle::ToString(KCPenStyleSolid()), "Solid");
  EXPECT_EQ(KCPenStyle::ToString(KCPenStyleDash()), "Dash");
  EXPECT_EQ(KCPenStyle::ToString(KCPenStyleDot()), "Dot");
  EXPECT_EQ(KCPenStyle::ToString(KCPenStyleDashDot()), "DashDot");
  EXPECT_EQ(KCPenStyle::ToString(KCPenStyleDashDotDot()), "DashDotDot");
}

struct PenStyleRow {
  const char* name;
  KCPenStyle style;
};

const PenStyleRow kPenStyles[] = {
    {"solid", KCPenStyleSolid()},
    {"dash", KCPenStyleDash()},
    {"dot", KCPenStyleDot()},
    {"dash_dot", KCPenStyleDashDot()},
    {"dash_dot_dot", KCPenStyleDashDotDot()},
};

class KcPenStyleKinds : public ::testing::TestWithParam<PenStyleRow> {};

TEST_P(KcPenStyleKinds, FromStringReadsBackTheKind) {
  const KCPenStyle& style = GetParam().style;
  EXPECT_EQ(KCPenStyle::FromString(KCPenStyle::ToString(style)), style);
}

INSTANTIATE_TEST_SUITE_P(Kinds, KcPenStyleKinds, ::testing::ValuesIn(kPenStyles), RowName());

TEST(KcPenStyle, FromStringIgnoresCaseAndBlanks) {
  EXPECT_EQ(KCPenStyle::FromString("  dashdot "), KCPenStyleDashDot());
  EXPECT_EQ(KCPenStyle::FromString("DOT"), KCPenStyleDot());
}

TEST(KcPenStyle, FromStringOfUnknownTextGivesSolid) {
  EXPECT_EQ(KCPenStyle::FromString("Wavy"), KCPenStyleSolid());
  EXPECT_EQ(KCPenStyle::FromString(""), KCPenStyleSolid());
}

TEST(KcPenMode, DefaultIsCopyAndNotXorDiffers) {
  EXPECT_EQ(KCPenMode().GetKind(), KCPenMode::Kind::Copy);
  EXPECT_EQ(KCPenModeNotXor().GetKind(), KCPenMode::Kind::NotXor);
  EXPECT_NE(KCPenMode(), KCPenModeNotXor());
  KCPenMode mode;
  mode = KCPenModeNotXor();
  EXPECT_EQ(mode, KCPenModeNotXor());
}

TEST(KcBrushStyle, ToStringAndFromStringRoundTrip) {
  EXPECT_EQ(KCBrushStyle::ToString(KCBrushStyleSolid()), "Solid");
  EXPECT_EQ(KCBrushStyle::ToString(KCBrushStyleClear()), "Clear");
  EXPECT_EQ(KCBrushStyle::FromString("Clear"), KCBrushStyleClear());
  EXPECT_EQ(KCBrushStyle::FromString("Solid"), KCBrushStyleSolid());
}

TEST(KcBrushStyle, FromStringIgnoresCaseAndUnknownTextGivesSolid) {
  EXPECT_EQ(KCBrushStyle::FromString("cLeAr"), KCBrushStyleClear());
  EXPECT_EQ(KCBrushStyle::FromString("Hatched"), KCBrushStyleSolid());
  EXPECT_EQ(KCBrushStyle(), KCBrushStyleSolid());
}

TEST(KcFontStyles, NewSetIsEmptyAndWritesEmptyText) {
  const KCFontStyles styles;

  EXPECT_TRUE(styles.IsEmpty());
  EXPECT_EQ(KCFontStyles::ToString(styles), "");
}

TEST(KcFontStyles, AddTwiceKeepsTheStyleOnce) {
  KCFontStyles styles;
  styles.Add(KCFontStyleBold());
  styles.Add(KCFontStyleBold());

  styles.Remove(KCFontStyleBold());

  EXPECT_TRUE(styles.IsEmpty());
}

TEST(KcFontStyles, HasTellsMembership) {
  KCFontStyles styles;
  styles.Add(KCFontStyleItalic());

  EXPECT_TRUE(styles.Has(KCFontStyleItalic()));
  EXPECT_FALSE(styles.Has(KCFontStyleBold()));
}

TEST(KcFontStyles, ToStringWritesNamesInFixedOrder) {
  KCFontStyles styles;
  styles.Add(KCFontStyleStrikeOut());
  styles.Add(KCFontStyleItalic());
  styles.Add(KCFontStyleBold());

  EXPECT_EQ(KCFontStyles::ToString(styles), "Bold,Italic,StrikeOut");
}

// Every subset of the four font styles, one row each: bit k of the row's mask stands for style k.
const KCFontStyle kFontStyles[] = {KCFontStyleBold(), KCFontStyleItalic(), KCFontStyleUnderline(),
                                   KCFontStyleStrikeOut()};
const char* const kFontStyleNames[] = {"bold", "italic", "underline", "strike_out"};

KCFontStyles FontStylesOfMask(unsigned mask) {
  KCFontStyles styles;
  for (unsigned bit = 0; bit < 4; ++bit) {
    if ((mask & (1u << bit)) != 0)
      styles.Add(kFontStyles[bit]);
  }
  return styles;
}

std::string FontStylesName(const ::testing::TestParamInfo<unsigned>& info) {
  std::string name;
  for (unsigned bit = 0; bit < 4; ++bit) {
    if ((info.param & (1u << bit)) != 0)
      name += std::string(name.empty() ? "" : "_") + kFontStyleNames[bit];
  }
  return name.empty() ? "none" : name;
}

class KcFontStylesSubsets : public ::testing::TestWithParam<unsigned> {};

TEST_P(KcFontStylesSubsets, SubsetRoundTrips) {
  const KCFontStyles styles = FontStylesOfMask(GetParam());

  EXPECT_EQ(KCFontStyles::FromString(KCFontStyles::ToString(styles)), styles) << "mask " << GetParam();
}

INSTANTIATE_TEST_SUITE_P(EverySubset, KcFontStylesSubsets, ::testing::Range(0u, 16u), FontStylesName);

TEST(KcFontStyles, FromStringIgnoresCaseBlanksAndUnknownNames) {
  const KCFontStyles styles = KCFontStyles::FromString(" underline , BOLD,Shadow,, ");

  KCFontStyles expected;
  expected.Add(KCFontStyleBold());
  expected.Add(KCFontStyleUnderline());
  EXPECT_EQ(styles, expected);
}

TEST(KcFontStyles, ClearEmptiesTheSet) {
  KCFontStyles styles = KCFontStyles::FromString("Bold,Italic");

  styles.Clear();

  EXPECT_TRUE(styles.IsEmpty());
}

}  // namespace
