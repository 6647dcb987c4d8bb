// SPDX-License-Identifier: MIT
// KCC_ObjectData: the selection flag every listed object carries, and its description text.
#include <gtest/gtest.h>

#include "TrackedObject.h"
#include "ncappkit/objects/KCC_ObjectData.h"

TEST(KccObjectData, NewObjectIsNotSelected) {
  const KCC_ObjectData object;

  EXPECT_FALSE(object.IsSelected());
}

TEST(KccObjectData, SetSelectionFlagSetsAndClears) {
  KCC_ObjectData object;

  object.SetSelectionFlag(true);
  const bool afterSet = object.IsSelected();
  object.SetSelectionFlag(false);

  EXPECT_TRUE(afterSet);
  EXPECT_FALSE(object.IsSelected());
}

TEST(KccObjectData, CopyAndAssignmentCopyTheFlag) {
  KCC_ObjectData selected;
  selected.SetSelectionFlag(true);
  KCC_ObjectData assigned;

  const KCC_ObjectData copy(selected);
  assigned = selected;

  EXPECT_TRUE(copy.IsSelected());
  EXPECT_TRUE(assigned.IsSelected());
}

TEST(KccObjectData, BaseObjectStringIsEmpty) {
  const KCC_ObjectData object;

  EXPECT_EQ(object.GetObjectString().str(), "");
}

TEST(KccObjectData, DerivedObjectDescribesItself) {
  const TrackedObject hole("Hole");
  const KCC_ObjectData& base = hole;

  EXPECT_EQ(base.GetObjectString().str(), "Hole");
}
