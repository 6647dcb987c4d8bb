// SPDX-License-Identifier: MIT
// Placement patterns in paragraphs: what WriteValuesToParagraph writes into the "ObjectPattern" child, and
// reading it back from that child, in memory.
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ncappkit/foundation/KCParagraph.h"
#include "ncappkit/objects/KCC_ObjectPattern.h"
#include "ncappkit/objects/KCC_ObjectPatternFactory.h"
#include "support/TestData.h"

namespace {

using Positions = std::vector<std::pair<double, double>>;

Positions AllPositions(KCC_ObjectPattern& pattern) {
  Positions positions;
  double x = 0.0;
  double y = 0.0;
  for (bool more = pattern.GetFirstPosition(x, y); more && positions.size() < 1000;
       more = pattern.GetNextPosition(x, y))
    positions.emplace_back(x, y);
  return positions;
}

// The section's keys and texts as "key=text;key=text".
std::string EntriesOf(const KCParagraph& section) {
  std::string text;
  for (const KCParagraph::Entry& entry : section.GetEntries())
    text += entry.first.str() + "=" + entry.second.str() + ";";
  return text;
}

struct WriteCase {
  const char* name;
  std::function<std::unique_ptr<KCC_ObjectPattern>()> make;
  const char* entries;
};

template <typename Pattern, typename... Args>
std::function<std::unique_ptr<KCC_ObjectPattern>()> Make(Args... args) {
  return [=] { return std::unique_ptr<KCC_ObjectPattern>(new Pattern(args...)); };
}

class KccObjectPatternWrite : public ::testing::TestWithParam<WriteCase> {};

const WriteCase kWriteCases[] = {
    {"LinearAngle", Make<KCC_ObjectPattern_LinearAngle>(30.0, 12.5, 4),
     "Type=LinearAngle;Angle=30;Distance=12.5;NmbShapes=4;"},
    {"Grid", Make<KCC_ObjectPattern_Grid>(2.5, 0.1, 3, -2),
     "Type=Grid;HorDistance=2.5;VerDistance=0.1;NmbHorShapes=3;NmbVerShapes=-2;"},
    {"Circular", Make<KCC_ObjectPattern_Circular>(25.0, -15.0, 40.0),
     "Type=Circular;Radius=25;StartAngle=-15;IncrementAngle=40;"},
};

}  // namespace

TEST_P(KccObjectPatternWrite, WritesTypeAndValuesIntoTheObjectPatternChild) {
  const std::unique_ptr<KCC_ObjectPattern> pattern = GetParam().make();
  KCParagraph part("Part");

  const bool written = pattern->WriteValuesToParagraph(&part);

  ASSERT_TRUE(written);
  const KCParagraph* child = part.FindParagraph("ObjectPattern");
  ASSERT_NE(child, nullptr);
  EXPECT_EQ(EntriesOf(*child), GetParam().entries);
  EXPECT_TRUE(part.GetEntries().empty());
}

TEST_P(KccObjectPatternWrite, RoundTripThroughTheChildGivesEqualFieldsAndPositions) {
  const std::unique_ptr<KCC_ObjectPattern> pattern = GetParam().make();
  KCParagraph part("Part");
  pattern->WriteValuesToParagraph(&part);
  const std::unique_ptr<KCC_ObjectPattern> restored(
      KCC_ObjectPatternFactory().CreateByName(pattern->GetPatternTypeName()));
  ASSERT_NE(restored, nullptr);

  const bool read = restored->ReadValuesFromParagraph(part.FindParagraph("ObjectPattern"));

  EXPECT_TRUE(read);
  EXPECT_EQ(restored->ToString().str(), pattern->ToString().str());
  EXPECT_EQ(AllPositions(*restored), AllPositions(*pattern));
}

TEST_P(KccObjectPatternWrite, ReadingFromTheParentKeepsTheValues) {
  const std::unique_ptr<KCC_ObjectPattern> pattern = GetParam().make();
  KCParagraph part("Part");
  pattern->WriteValuesToParagraph(&part);
  const std::unique_ptr<KCC_ObjectPattern> restored(
      KCC_ObjectPatternFactory().CreateByName(pattern->GetPatternTypeName()));
  const std::string before = restored->ToString().str();

  const bool read = restored->ReadValuesFromParagraph(&part);  // not the "ObjectPattern" child

  EXPECT_TRUE(read);
  EXPECT_EQ(restored->ToString().str(), before);
}

TEST_P(KccObjectPatternWrite, WritingTwiceReusesTheChild) {
  const std::unique_ptr<KCC_ObjectPattern> pattern = GetParam().make();
  KCParagraph part("Part");

  pattern->WriteValuesToParagraph(&part);
  pattern->WriteValuesToParagraph(&part);

  EXPECT_EQ(part.GetParagraphs().size(), 1u);
  EXPECT_EQ(EntriesOf(*part.FindParagraph("ObjectPattern")), GetParam().entries);
}

TEST_P(KccObjectPatternWrite, NullParagraphGivesFalse) {
  const std::unique_ptr<KCC_ObjectPattern> pattern = GetParam().make();

  EXPECT_FALSE(pattern->WriteValuesToParagraph(nullptr));
  EXPECT_FALSE(pattern->ReadValuesFromParagraph(nullptr));
}

INSTANTIATE_TEST_SUITE_P(Table, KccObjectPatternWrite, ::testing::ValuesIn(kWriteCases), RowName());

TEST(KccObjectPatternParagraph, RoundTripKeepsValuesThatHaveNoShortDecimalForm) {
  const KCC_ObjectPattern_Circular pattern(1.0 / 3.0, 0.1 + 0.2, -2.0 / 7.0);
  KCParagraph part("Part");
  pattern.WriteValuesToParagraph(&part);
  KCC_ObjectPattern_Circular restored;

  restored.ReadValuesFromParagraph(part.FindParagraph("ObjectPattern"));

  EXPECT_EQ(restored.GetRadius(), 1.0 / 3.0);
  EXPECT_EQ(restored.GetStartAngle(), 0.1 + 0.2);
  EXPECT_EQ(restored.GetIncrementAngle(), -2.0 / 7.0);
}

TEST(KccObjectPatternParagraph, SingletonWritesNothingAndGivesFalse) {
  const KCC_ObjectPattern_Singleton pattern;
  KCParagraph part("Part");

  const bool written = pattern.WriteValuesToParagraph(&part);

  EXPECT_FALSE(written);
  EXPECT_TRUE(part.GetParagraphs().empty());
}

TEST(KccObjectPatternParagraph, SingletonReadsNothingAndGivesFalse) {
  KCC_ObjectPattern_Singleton pattern;
  KCParagraph section("ObjectPattern");
  section.WriteString("Type", "Singleton");

  EXPECT_FALSE(pattern.ReadValuesFromParagraph(&section));
}

TEST(KccObjectPatternParagraph, MissingKeysKeepTheCurrentValues) {
  KCC_ObjectPattern_Grid pattern(1.0, 2.0, 3, 4);
  KCParagraph section("ObjectPattern");
  section.WriteString("VerDistance", "9");

  pattern.ReadValuesFromParagraph(&section);

  EXPECT_EQ(pattern.ToString().str(), "[Grid](1,9,3,4)");
}

TEST(KccObjectPatternParagraph, TypeIsNotRead) {
  KCC_ObjectPattern_LinearAngle pattern;
  KCParagraph section("ObjectPattern");
  section.WriteString("Type", "Circular");
  section.WriteString("Distance", "4");

  const bool read = pattern.ReadValuesFromParagraph(&section);

  EXPECT_TRUE(read);
  EXPECT_EQ(pattern.GetPatternTypeName().str(), "LinearAngle");
  EXPECT_EQ(pattern.GetDistance(), 4.0);
}

TEST(KccObjectPatternParagraph, RowReadsTheNumberAtTheStartOfATextWithTrailingLetters) {
  KCC_ObjectPattern_LinearAngle pattern(0.0, 1.0, 1);
  KCParagraph section("ObjectPattern");
  section.WriteString("Distance", "12abc");
  section.WriteString("NmbShapes", "3 copies");

  pattern.ReadValuesFromParagraph(&section);

  EXPECT_EQ(pattern.GetDistance(), 12.0);
  EXPECT_EQ(pattern.GetNmbShapes(), 3);
}

TEST(KccObjectPatternParagraph, GridReadsTheNumberAtTheStartOfATextWithTrailingLetters) {
  KCC_ObjectPattern_Grid pattern;
  KCParagraph section("ObjectPattern");
  section.WriteString("HorDistance", "12abc");

  pattern.ReadValuesFromParagraph(&section);

  EXPECT_EQ(pattern.GetHorDistance(), 12.0);
}

TEST(KccObjectPatternParagraph, CircularKeepsItsValueForATextWithTrailingLetters) {
  KCC_ObjectPattern_Circular pattern(5.0, 0.0, 90.0);
  KCParagraph section("ObjectPattern");
  section.WriteString("Radius", "12abc");
  section.WriteString("IncrementAngle", " 45 ");

  pattern.ReadValuesFromParagraph(&section);

  EXPECT_EQ(pattern.GetRadius(), 5.0);
  EXPECT_EQ(pattern.GetIncrementAngle(), 45.0);
}

TEST(KccObjectPatternParagraph, NaNIsWrittenAsNanAndReadBackAsTheCurrentValue) {
  const KCC_ObjectPattern_LinearAngle pattern(std::numeric_limits<double>::quiet_NaN(), 3.0, 2);
  KCParagraph part("Part");
  pattern.WriteValuesToParagraph(&part);
  KCC_ObjectPattern_LinearAngle restored(45.0, 0.0, 1);

  restored.ReadValuesFromParagraph(part.FindParagraph("ObjectPattern"));

  EXPECT_EQ(part.FindParagraph("ObjectPattern")->GetValue("Angle").str(), "nan");
  EXPECT_EQ(restored.GetAngle(), 45.0);
  EXPECT_EQ(restored.GetDistance(), 3.0);
}

TEST(KccObjectPatternParagraph, ReadingLeavesTheCounterAlone) {
  KCC_ObjectPattern_Grid pattern(1.0, 1.0, 3, 1);
  double x = 0.0;
  double y = 0.0;
  pattern.GetFirstPosition(x, y);
  KCParagraph section("ObjectPattern");
  section.WriteString("HorDistance", "2");

  pattern.ReadValuesFromParagraph(&section);
  pattern.GetNextPosition(x, y);

  EXPECT_EQ(x, 2.0);
}
