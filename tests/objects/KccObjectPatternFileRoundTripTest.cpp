// SPDX-License-Identifier: MIT
// Placement patterns kept in a saved job file: written into a document, saved, read by a new document from
// the file, made again by the factory from the saved type name and read back, they give the same values and
// the same positions.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ncappkit/foundation/KCParagraph.h"
#include "ncappkit/objects/KCC_ObjectPattern.h"
#include "ncappkit/objects/KCC_ObjectPatternFactory.h"
#include "support/TempDir.h"

namespace {

using Positions = std::vector<std::pair<double, double>>;

Positions AllPositions(KCC_ObjectPattern& pattern) {
  Positions positions;
  double x = 0.0;
  double y = 0.0;
  for (bool more = pattern.GetFirstPosition(x, y); more; more = pattern.GetNextPosition(x, y))
    positions.emplace_back(x, y);
  return positions;
}

// Saves `pattern` as the pattern of the part "Bracket" of a job file and opens that file in a new document.
// The returned document holds the part's section, which holds the pattern's "ObjectPattern" section.
std::unique_ptr<KCDocument> SaveAndOpen(const KCC_ObjectPattern& pattern, const TempDir& dir) {
  const std::string path = dir.Path("job.xml");
  KCDocument saved;
  KCParagraph* part = saved.CreateRoot("Job")->AddParagraph("Bracket");
  part->WriteString("Drawing", "bracket.dxf");
  pattern.WriteValuesToParagraph(part);
  EXPECT_TRUE(saved.SaveToFile(path));

  auto opened = std::make_unique<KCDocument>();
  EXPECT_TRUE(opened->LoadFromFile(path)) << opened->GetLoadError();
  return opened;
}

// The pattern saved in the part "Bracket" of `document`, made by the factory from its "Type" and read back;
// null when the part holds no pattern.
std::unique_ptr<KCC_ObjectPattern> RestorePattern(KCDocument& document) {
  KCParagraph* part = document.GetRoot() != nullptr ? document.GetRoot()->FindParagraph("Bracket") : nullptr;
  KCParagraph* section = part != nullptr ? part->FindParagraph("ObjectPattern") : nullptr;
  if (section == nullptr)
    return nullptr;
  KCC_ObjectPatternFactory factory;
  std::unique_ptr<KCC_ObjectPattern> pattern(factory.CreateByName(section->ReadString("Type", "")));
  if (pattern != nullptr) {
    EXPECT_TRUE(pattern->ReadValuesFromParagraph(section));
  }
  return pattern;
}

}  // namespace

TEST(KccObjectPatternFileRoundTrip, LinearAngleGivesTheSameValuesAndPositions) {
  KCC_ObjectPattern_LinearAngle original(-33.3, 1.0 / 3.0, 7);
  TempDir dir;

  std::unique_ptr<KCDocument> opened = SaveAndOpen(original, dir);
  std::unique_ptr<KCC_ObjectPattern> restored = RestorePattern(*opened);

  ASSERT_NE(restored, nullptr);
  auto& linear = dynamic_cast<KCC_ObjectPattern_LinearAngle&>(*restored);
  EXPECT_EQ(linear.GetAngle(), -33.3);
  EXPECT_EQ(linear.GetDistance(), 1.0 / 3.0);
  EXPECT_EQ(linear.GetNmbShapes(), 7);
  EXPECT_EQ(AllPositions(linear), AllPositions(original));
  EXPECT_EQ(AllPositions(linear).size(), 7u);
}

TEST(KccObjectPatternFileRoundTrip, GridGivesTheSameValuesAndPositions) {
  KCC_ObjectPattern_Grid original(12.5, 0.1 + 0.2, 4, 3);
  TempDir dir;

  std::unique_ptr<KCDocument> opened = SaveAndOpen(original, dir);
  std::unique_ptr<KCC_ObjectPattern> restored = RestorePattern(*opened);

  ASSERT_NE(restored, nullptr);
  auto& grid = dynamic_cast<KCC_ObjectPattern_Grid&>(*restored);
  EXPECT_EQ(grid.GetHorDistance(), 12.5);
  EXPECT_EQ(grid.GetVerDistance(), 0.1 + 0.2);
  EXPECT_EQ(grid.GetNmbHorShapes(), 4);
  EXPECT_EQ(grid.GetNmbVerShapes(), 3);
  EXPECT_EQ(AllPositions(grid), AllPositions(original));
  EXPECT_EQ(AllPositions(grid).size(), 12u);
}

TEST(KccObjectPatternFileRoundTrip, CircularGivesTheSameValuesAndPositions) {
  KCC_ObjectPattern_Circular original(25.4, 15.0, -1.0 / 7.0 * 360.0);
  TempDir dir;

  std::unique_ptr<KCDocument> opened = SaveAndOpen(original, dir);
  std::unique_ptr<KCC_ObjectPattern> restored = RestorePattern(*opened);

  ASSERT_NE(restored, nullptr);
  auto& circular = dynamic_cast<KCC_ObjectPattern_Circular&>(*restored);
  EXPECT_EQ(circular.GetRadius(), 25.4);
  EXPECT_EQ(circular.GetStartAngle(), 15.0);
  EXPECT_EQ(circular.GetIncrementAngle(), -1.0 / 7.0 * 360.0);
  EXPECT_EQ(AllPositions(circular), AllPositions(original));
  EXPECT_EQ(AllPositions(circular).size(), 8u);  // clockwise: seven steps and the copy on top of the first
}

TEST(KccObjectPatternFileRoundTrip, SingletonLeavesNothingToRestore) {
  KCC_ObjectPattern_Singleton original;
  TempDir dir;

  std::unique_ptr<KCDocument> opened = SaveAndOpen(original, dir);

  EXPECT_EQ(RestorePattern(*opened), nullptr);
  EXPECT_EQ(opened->GetRoot()->FindParagraph("Bracket")->ReadString("Drawing", ""), "bracket.dxf");
}
