// SPDX-License-Identifier: MIT
// The scope guard of a configuration object.
#include <gtest/gtest.h>

#include "ncappkit/config/KCC_CfgInitSection.h"
#include "ncappkit/config/KCC_CfgObject.h"

namespace {

// A configuration object that counts its destructions.
class CountedCfg : public KCC_CfgObjectIniFile {
 public:
  explicit CountedCfg(int& destroyed) : KCC_CfgObjectIniFile("unused.ini", "S"), m_destroyed(destroyed) {}
  ~CountedCfg() override { ++m_destroyed; }

 private:
  int& m_destroyed;
};

}  // namespace

TEST(KccCfgInitSection, OwningGuardDeletesTheObject) {
  int destroyed = 0;
  {
    KCC_CfgInitSection guard(*new CountedCfg(destroyed), true);
    EXPECT_TRUE(guard.IsOwner());
    EXPECT_EQ(guard.GetCfgObject().GetSection(), "S");
  }
  EXPECT_EQ(destroyed, 1);
}

TEST(KccCfgInitSection, NonOwningGuardLeavesTheObject) {
  int destroyed = 0;
  CountedCfg cfg(destroyed);
  {
    KCC_CfgInitSection guard(cfg, false);
    EXPECT_FALSE(guard.IsOwner());
    EXPECT_EQ(&guard.GetCfgObject(), &cfg);
  }
  EXPECT_EQ(destroyed, 0);
}

TEST(KccCfgInitSection, CopyRefersWithoutOwning) {
  int destroyed = 0;
  {
    KCC_CfgInitSection owner(*new CountedCfg(destroyed), true);
    {
      KCC_CfgInitSection copy(owner);
      EXPECT_FALSE(copy.IsOwner());
      EXPECT_EQ(&copy.GetCfgObject(), &owner.GetCfgObject());
    }
    EXPECT_EQ(destroyed, 0);
  }
  EXPECT_EQ(destroyed, 1);
}

TEST(KccCfgInitSection, AssignmentReleasesAnOwnedObjectFirst) {
  int destroyedA = 0;
  int destroyedB = 0;
  {
    KCC_CfgInitSection a(*new CountedCfg(destroyedA), true);
    KCC_CfgInitSection b(*new CountedCfg(destroyedB), true);
    a = b;
    EXPECT_EQ(destroyedA, 1);
    EXPECT_FALSE(a.IsOwner());
    EXPECT_EQ(&a.GetCfgObject(), &b.GetCfgObject());
  }
  EXPECT_EQ(destroyedA, 1);
  EXPECT_EQ(destroyedB, 1);
}
