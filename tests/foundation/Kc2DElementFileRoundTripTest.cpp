// SPDX-License-Identifier: MIT
// 2D elements kept in a saved job file: written into a document, saved, read by a new document from the file
// and read back, they are the same elements.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "ncappkit/foundation/KC2DElement.h"
#include "ncappkit/foundation/KCParagraph.h"
#include "support/TempDir.h"

namespace {

struct ElementRow {
  std::string name;
  std::shared_ptr<const KC2DElement> element;
};

class Kc2DElementFileRoundTrip : public ::testing::TestWithParam<ElementRow> {};

// A fresh element of the same kind, at other coordinates than any row uses, so a read that changes nothing
// is seen.
std::unique_ptr<KC2DElement> BlankOfTheSameKind(const KC2DElement& element) {
  std::unique_ptr<KC2DElement> blank(element.Clone());
  blank->Translate(1000.25, -77.5);
  return blank;
}

}  // namespace

TEST_P(Kc2DElementFileRoundTrip, ReadsBackTheSameElementFromTheSavedFile) {
  const KC2DElement& element = *GetParam().element;
  TempDir dir;
  const std::string path = dir.Path("job.xml");
  {
    KCDocument saved;
    KCParagraph* geometry = saved.CreateRoot("Job")->AddParagraph("Geometry");
    ASSERT_TRUE(element.Write("Contour", geometry, -1));
    ASSERT_TRUE(saved.SaveToFile(path));
  }

  KCDocument opened;
  ASSERT_TRUE(opened.LoadFromFile(path)) << opened.GetLoadError();
  KCParagraph* geometry = opened.GetRoot()->FindParagraph("Geometry");
  ASSERT_NE(geometry, nullptr);
  std::unique_ptr<KC2DElement> read = BlankOfTheSameKind(element);
  ASSERT_FALSE(read->IsAlmostEq(element, 1.0));
  ASSERT_TRUE(read->Read("Contour", geometry, -1));

  EXPECT_TRUE(read->IsAlmostEq(element, 0.0));  // every coordinate exactly as written
  EXPECT_EQ(read->Len(), element.Len());
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, Kc2DElementFileRoundTrip,
    ::testing::Values(
        ElementRow{"Point", std::make_shared<KC2DPoint>(0.1, -2.0 / 3.0)},
        ElementRow{"Line", std::make_shared<KC2DLine>(1e-9, 12345.678901234, -0.3, 1e15)},
        ElementRow{"ArcCounterClockwise",
                   std::make_shared<KC2DArc>(KC2DPoint(10, 0), KC2DPoint(0, 10), KC2DPoint(0, 0), true)},
        ElementRow{"ArcClockwise",
                   std::make_shared<KC2DArc>(KC2DPoint(0.7071067811865476, 0.7071067811865475),
                                             KC2DPoint(1, 0), KC2DPoint(0, 0), false)},
        ElementRow{"Rectangle", std::make_shared<KC2DRectangle>(-5.5, 2.25, 100.125, 1.0 / 7.0)}),
    [](const ::testing::TestParamInfo<ElementRow>& row) { return row.param.name; });
