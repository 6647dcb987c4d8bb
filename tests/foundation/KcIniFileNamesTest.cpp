// SPDX-License-Identifier: MIT
// KCIniFile: listing the sections and keys that reads can find.
#include <gtest/gtest.h>

#include "ncappkit/foundation/KCIniFile.h"
#include "support/TempDir.h"

namespace {

KCStringList Names(std::initializer_list<KCString> names) {
  return KCStringList(names);
}

}  // namespace

TEST(KcIniFileNames, SectionsComeInFileOrder) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[Zeta]\nk=1\n[Alpha]\nk=2\n"));

  EXPECT_EQ(ini.GetSectionNames(), Names({"Zeta", "Alpha"}));
}

TEST(KcIniFileNames, SectionsDifferingOnlyInCaseAreOneInTheirFirstSpelling) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[Mill]\na=1\n[MILL]\nb=2\n"));

  EXPECT_EQ(ini.GetSectionNames(), Names({"Mill"}));
  EXPECT_EQ(ini.GetKeyNames("mill"), Names({"a", "b"}));
}

TEST(KcIniFileNames, KeysBeforeTheFirstHeaderBelongToTheNamelessSection) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "top=1\n[S]\nk=2\n"));

  EXPECT_EQ(ini.GetSectionNames(), Names({"", "S"}));
  EXPECT_EQ(ini.GetKeyNames(""), Names({"top"}));
}

TEST(KcIniFileNames, SectionWithoutKeysIsNotListed) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[Empty]\n; only a comment\n[Full]\nk=1\n"));

  EXPECT_EQ(ini.GetSectionNames(), Names({"Full"}));
}

TEST(KcIniFileNames, KeysAfterAnUnclosedHeaderAreNotListed) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[S]\na=1\n[broken\nb=2\n"));

  EXPECT_EQ(ini.GetKeyNames("S"), Names({"a"}));
}

TEST(KcIniFileNames, DuplicateKeyIsListedOnceInItsFirstSpelling) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[S]\nLang=Eng\nLANG=Ger\n"));

  EXPECT_EQ(ini.GetKeyNames("S"), Names({"Lang"}));
}

TEST(KcIniFileNames, MissingFileHasNoSections) {
  TempDir dir;
  KCIniFile ini(dir.Path("missing.ini"));

  EXPECT_TRUE(ini.GetSectionNames().empty());
  EXPECT_TRUE(ini.GetKeyNames("S").empty());
}

TEST(KcIniFileRoundTrip, KeyStartingWithTheByteOrderMarkBytesReadsBackAfterWrite) {
  TempDir dir;
  KCIniFile ini(dir.Path("new.ini"));
  const KCString key = "\xEF\xBB\xBFLang";

  ASSERT_TRUE(ini.WriteString("", key, "Eng"));

  EXPECT_EQ(ini.GetKeyNames(""), Names({key}));
  EXPECT_EQ(ini.ReadString("", key, "missing", false).str(), "Eng");
}
