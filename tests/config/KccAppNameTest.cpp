// SPDX-License-Identifier: MIT
// The application's display name.
#include <gtest/gtest.h>

#include <filesystem>
#include <iostream>
#include <string>

#include "ncappkit/config/KCC_AppName.h"
#include "ncappkit/foundation/KCFileMan.h"
#include "ncappkit/foundation/KCPlatform.h"
#include "support/ChildProcess.h"
#include "support/TempDir.h"

TEST(KccAppName, RunningProgramGivesBaseNameAndVersion) {
  const KCString exe = KCC_GetExecutablePath();
  ASSERT_FALSE(exe.empty());
  const KCString version = KCFileMan::GetFullFileVersion(exe, false);
  ASSERT_FALSE(version.empty());
  KCString name;
  ASSERT_TRUE(KCC_AppName::PrepareAppName(name));
  EXPECT_EQ(name, KCString("ncappkit_config_tests V") + version);
}

TEST(KccAppName, ShortNameIsKeptWhole) {
  TempDir dir;
  const std::string exe = dir.WriteFile("mill.exe", "");
  KCString name;
  ASSERT_TRUE(KCC_AppName::MakeAppName(exe, name));
  EXPECT_EQ(name, KCString("mill V") + KCFileMan::GetFullFileVersion(exe, false));
}

TEST(KccAppName, LongBaseNameGivesWayToTheVersion) {
  TempDir dir;
  const std::string base = "abcdefghijklmnopqrstuvwxyz0123456789ABCD";
  ASSERT_EQ(base.size(), 40u);
  // A copy of this program, so that the file has a version wherever versions come from the file itself.
  const std::string exe = dir.Path(base + ".exe");
  std::filesystem::copy_file(KCC_GetExecutablePath().str(), exe);
  const KCString suffix = KCString(" V") + KCFileMan::GetFullFileVersion(exe, false);
  ASSERT_GT(suffix.GetLength(), 2);
  KCString name;
  ASSERT_TRUE(KCC_AppName::MakeAppName(exe, name));
  EXPECT_EQ(name.GetLength(), 30);
  EXPECT_EQ(name, KCString(base.substr(0, static_cast<std::size_t>(30 - suffix.GetLength()))) + suffix);
}

TEST(KccAppName, MissingVersionStillGivesTheSuffixLetter) {
  // A path that does not exist has no version: the name is the base name and " V".
  KCString name;
  ASSERT_TRUE(KCC_AppName::MakeAppName("/no/such/dir/tool.exe", name));
  EXPECT_EQ(name, "tool V");
}

TEST(KccAppName, NameOfExactlyThirtyCharactersIsKept) {
  KCString name;
  const std::string base(28, 'x');
  ASSERT_TRUE(KCC_AppName::MakeAppName(KCString("/no/such/") + KCString(base), name));
  EXPECT_EQ(name, KCString(base) + " V");
  EXPECT_EQ(name.GetLength(), 30);
}

TEST(KccAppName, EmptyPathFailsAndLeavesTheName) {
  KCString name = "before";
  EXPECT_FALSE(KCC_AppName::MakeAppName("", name));
  EXPECT_EQ(name, "before");
}

TEST(KccAppName, OverlongPathFailsAndLeavesTheName) {
  KCString name = "before";
  const KCString path = KCString("/") + KCString(std::string(259, 'p'));
  ASSERT_EQ(path.GetLength(), 260);
  EXPECT_FALSE(KCC_AppName::MakeAppName(path, name));
  EXPECT_EQ(name, "before");
}

// Run only inside a renamed copy of this program (see the next test): prints the display name it gets.
TEST(KccAppName, DISABLED_PrintsTheDisplayNameOfThisProgram) {
  KCString name;
  ASSERT_TRUE(KCC_AppName::PrepareAppName(name));
  std::cout << "APPNAME=" << name << "\n";
}

TEST(KccAppName, RunningProgramWithALongNameKeepsThirtyCharacters) {
  if (!CanRunChildren())
    GTEST_SKIP() << "cannot run programs here";
  const KCString self = KCC_GetExecutablePath();
  ASSERT_FALSE(self.empty());
  TempDir dir;
  const std::string base = "abcdefghijklmnopqrstuvwxyz0123456789ABCD";
  ASSERT_EQ(base.size(), 40u);
  const std::string copy = dir.Path(base + ".exe");
  std::filesystem::copy_file(self.str(), copy);
  std::filesystem::permissions(copy, std::filesystem::perms::owner_all);
#if defined(_WIN32)
  // A Windows program finds its DLLs beside itself: the copy gets the ones the original has.
  for (const auto& entry : std::filesystem::directory_iterator(KCFileMan::ExtractFilePath(self).str())) {
    if (entry.path().extension() == ".dll")
      std::filesystem::copy_file(entry.path(), std::filesystem::path(dir.Path()) / entry.path().filename());
  }
#endif
  const ChildResult r = RunChild({copy, "--gtest_also_run_disabled_tests",
                                  "--gtest_filter=KccAppName.DISABLED_PrintsTheDisplayNameOfThisProgram"});
  ASSERT_EQ(r.exitCode, 0) << r.out << r.err;
  const std::size_t at = r.out.find("APPNAME=");
  ASSERT_NE(at, std::string::npos) << r.out;
  const std::string name = r.out.substr(at + 8, r.out.find('\n', at) - at - 8);
  const std::string suffix = " V" + KCFileMan::GetFullFileVersion(copy, false).str();
  EXPECT_EQ(name.size(), 30u);
  EXPECT_EQ(name, base.substr(0, 30 - suffix.size()) + suffix);
}
