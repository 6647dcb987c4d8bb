// SPDX-License-Identifier: MIT
// KCC_ObjectPatternFactory: default patterns by exact type name; no singleton.
#include <gtest/gtest.h>

#include <memory>

#include "ncappkit/objects/KCC_ObjectPattern.h"
#include "ncappkit/objects/KCC_ObjectPatternFactory.h"
#include "support/TestData.h"

namespace {

struct FactoryCase {
  const char* name;
  const char* typeName;  // the name asked for
  const char* text;      // ToString of the pattern made, or "" for none
};

class KccObjectPatternFactoryNames : public ::testing::TestWithParam<FactoryCase> {};

const FactoryCase kFactoryCases[] = {
    {"LinearAngleGivesADefaultRow", "LinearAngle", "[Angle](0,0,1)"},
    {"GridGivesADefaultGrid", "Grid", "[Grid](0,0,1,1)"},
    {"CircularGivesADefaultCircle", "Circular", "[Circular](0,0,0)"},
    {"LowerCaseGridGivesNull", "grid", ""},
    {"SingletonGivesNull", "Singleton", ""},
    {"EmptyNameGivesNull", "", ""},
    {"NameWithATrailingBlankGivesNull", "Grid ", ""},
    {"ClassNameGivesNull", "ObjectPattern", ""},
};

}  // namespace

TEST_P(KccObjectPatternFactoryNames, CreateByNameMakesThePatternOfThatName) {
  const KCC_ObjectPatternFactory factory;

  const std::unique_ptr<KCC_ObjectPattern> pattern(factory.CreateByName(GetParam().typeName));

  if (GetParam().text[0] == '\0') {
    EXPECT_EQ(pattern, nullptr);
  } else {
    ASSERT_NE(pattern, nullptr);
    EXPECT_EQ(pattern->GetPatternTypeName().str(), GetParam().typeName);
    EXPECT_EQ(pattern->ToString().str(), GetParam().text);
  }
}

INSTANTIATE_TEST_SUITE_P(Table, KccObjectPatternFactoryNames, ::testing::ValuesIn(kFactoryCases), RowName());

TEST(KccObjectPatternFactory, EachCallMakesANewPattern) {
  const KCC_ObjectPatternFactory factory;

  const std::unique_ptr<KCC_ObjectPattern> first(factory.CreateByName("Grid"));
  const std::unique_ptr<KCC_ObjectPattern> second(factory.CreateByName("Grid"));

  EXPECT_NE(first.get(), second.get());
}

TEST(KccObjectPatternFactory, DerivedFactoryCanAddTheSingleton) {
  class FactoryWithSingleton : public KCC_ObjectPatternFactory {
   public:
    KCC_ObjectPattern* CreateByName(const KCString& name) const override {
      if (name == "Singleton")
        return new KCC_ObjectPattern_Singleton();
      return KCC_ObjectPatternFactory::CreateByName(name);
    }
  };
  const FactoryWithSingleton factory;
  const KCC_ObjectPatternFactory& base = factory;

  const std::unique_ptr<KCC_ObjectPattern> pattern(base.CreateByName("Singleton"));

  ASSERT_NE(pattern, nullptr);
  EXPECT_EQ(pattern->ToString().str(), "KCC_ObjectPattern_Singleton");
}
