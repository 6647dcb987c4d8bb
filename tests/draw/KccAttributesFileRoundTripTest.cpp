// SPDX-License-Identifier: MIT
// Graphic attributes kept in a saved job file: written into a document, saved, read by a new document from
// the file and read back into fresh attribute objects, they have the same values.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "ncappkit/draw/KCC_FillAttributes.h"
#include "ncappkit/draw/KCC_FontAttributes.h"
#include "ncappkit/draw/KCC_LineAttributes.h"
#include "ncappkit/foundation/KCColor.h"
#include "ncappkit/foundation/KCParagraph.h"
#include "ncappkit/foundation/KCPenStyle.h"
#include "support/TempDir.h"

namespace {

// Saves a document whose root "Job" holds the section "Styles", filled by `write`, and opens the file in a
// new document; returns that document's "Styles" section (the document is kept in `opened`).
template <typename Write>
KCParagraph* SaveAndOpenStyles(const TempDir& dir, Write write, KCDocument& opened) {
  const std::string path = dir.Path("job.xml");
  KCDocument saved;
  write(saved.CreateRoot("Job")->AddParagraph("Styles"));
  EXPECT_TRUE(saved.SaveToFile(path));
  EXPECT_TRUE(opened.LoadFromFile(path)) << opened.GetLoadError();
  return opened.GetRoot() != nullptr ? opened.GetRoot()->FindParagraph("Styles") : nullptr;
}

}  // namespace

TEST(KccAttributesFileRoundTrip, LineAttributesReadBackEqual) {
  const KCC_LineAttributes contour(KCColorOrange(255), KCPenStyleDashDotDot(), 3);
  TempDir dir;
  KCDocument opened;

  KCParagraph* styles = SaveAndOpenStyles(
      dir, [&](KCParagraph* p) { ASSERT_TRUE(contour.WriteToParagraph("Contour", p)); }, opened);
  ASSERT_NE(styles, nullptr);
  KCC_LineAttributes read;
  ASSERT_TRUE(read.ReadFromParagraph("Contour", styles));

  EXPECT_EQ(read.GetLineColor(), KCColorOrange(255));
  EXPECT_TRUE(read.IsDashDotDotLine());
  EXPECT_EQ(read.GetLineWidth(), 3);
}

TEST(KccAttributesFileRoundTrip, FillAttributesReadBackEqual) {
  const KCC_FillAttributes pocket(KCColorTeal(255), true);
  TempDir dir;
  KCDocument opened;

  KCParagraph* styles = SaveAndOpenStyles(
      dir, [&](KCParagraph* p) { ASSERT_TRUE(pocket.WriteToParagraph("Pocket", p)); }, opened);
  ASSERT_NE(styles, nullptr);
  KCC_FillAttributes read;
  ASSERT_TRUE(read.ReadFromParagraph("Pocket", styles));

  EXPECT_EQ(read.GetFillColor(), KCColorTeal(255));
  EXPECT_TRUE(read.IsFilledShape());
}

TEST(KccAttributesFileRoundTrip, FontAttributesReadBackEqual) {
  KCC_FontAttributes label("Courier New & <Mono> \xC3\x84");  // escapes and a non-ASCII letter in the name
  label.SetColors(KCColorNavy(255), KCColorYellow(255));
  label.SetFontSize(11);
  label.EnableBold();
  label.EnableStrike();
  TempDir dir;
  KCDocument opened;

  KCParagraph* styles = SaveAndOpenStyles(
      dir, [&](KCParagraph* p) { ASSERT_TRUE(label.WriteToParagraph("Label", p)); }, opened);
  ASSERT_NE(styles, nullptr);
  KCC_FontAttributes read;
  ASSERT_TRUE(read.ReadFromParagraph("Label", styles));

  EXPECT_EQ(read.GetFontName(), KCString("Courier New & <Mono> \xC3\x84"));
  EXPECT_EQ(read.GetTextColor(), KCColorNavy(255));
  EXPECT_EQ(read.GetBackColor(), KCColorYellow(255));
  EXPECT_EQ(read.GetFontSize(), 11);
  EXPECT_TRUE(read.IsBold());
  EXPECT_FALSE(read.IsItalic());
  EXPECT_FALSE(read.IsUnderline());
  EXPECT_TRUE(read.IsStrike());
}
