// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "ncappkit/foundation/KCFileMan.h"
#include "ncappkit/foundation/KCPlatform.h"
#include "ncappkit/version.h"

namespace fs = std::filesystem;

namespace {

class KcFileManFiles : public ::testing::Test {
 protected:
  void SetUp() override {
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    dir_ = fs::temp_directory_path() / (std::string("ncappkit-fileman-") + info->name());
    fs::remove_all(dir_);
    fs::create_directories(dir_);
  }
  void TearDown() override { fs::remove_all(dir_); }
  KCString Write(const std::string& name) {
    const fs::path p = dir_ / name;
    std::ofstream(p) << "x";
    return KCString(p.string());
  }
  fs::path dir_;
};

}  // namespace

TEST_F(KcFileManFiles, FileExistsForRegularFile) {
  EXPECT_TRUE(KCFileMan::FileExists(Write("a.nc")));
}

TEST_F(KcFileManFiles, FileExistsIsFalseForMissingFile) {
  EXPECT_FALSE(KCFileMan::FileExists(KCString((dir_ / "missing.nc").string())));
}

TEST_F(KcFileManFiles, FileExistsIsFalseForDirectory) {
  EXPECT_FALSE(KCFileMan::FileExists(KCString(dir_.string())));
  EXPECT_TRUE(KCFileMan::DirectoryExists(KCString(dir_.string())));
}

TEST(KcFileMan, FileExistsIsFalseForEmptyName) {
  EXPECT_FALSE(KCFileMan::FileExists(""));
}

TEST(KcFileMan, ExtractFileNameNoExtDropsDirectoryAndLastExtension) {
  EXPECT_EQ(KCFileMan::ExtractFileNameNoExt("/opt/app/bin/mill.exe"), "mill");
  EXPECT_EQ(KCFileMan::ExtractFileNameNoExt("C:\\x\\run.exe"), "run");
  EXPECT_EQ(KCFileMan::ExtractFileNameNoExt("a/b/mill.tar.gz"), "mill.tar");
  EXPECT_EQ(KCFileMan::ExtractFileNameNoExt("mill"), "mill");
  EXPECT_EQ(KCFileMan::ExtractFileNameNoExt("/home/u/.profile"), ".profile");
  EXPECT_EQ(KCFileMan::ExtractFileNameNoExt(""), "");
}

TEST(KcFileMan, ExtractFilePartsSplitPath) {
  EXPECT_EQ(KCFileMan::ExtractFileName("/a/b/mill.exe"), "mill.exe");
  EXPECT_EQ(KCFileMan::ExtractFilePath("/a/b/mill.exe"), "/a/b");
  EXPECT_EQ(KCFileMan::ExtractFilePath("mill.exe"), "");
  EXPECT_EQ(KCFileMan::ExtractFileExt("part.nc"), ".nc");
  EXPECT_EQ(KCFileMan::ExtractFileExt("part"), "");
}

#if !defined(_WIN32)
TEST_F(KcFileManFiles, FullFileVersionOfExistingFileIsLibraryVersion) {
  const KCString path = Write("tool.bin");
  EXPECT_EQ(KCFileMan::GetFullFileVersion(path, false), NCAPPKIT_VERSION_STRING);
  EXPECT_EQ(KCFileMan::GetFullFileVersion(path, true), std::string(NCAPPKIT_VERSION_STRING) + ".0");
}
#endif

TEST_F(KcFileManFiles, FullFileVersionOfMissingFileIsEmpty) {
  EXPECT_EQ(KCFileMan::GetFullFileVersion(KCString((dir_ / "none.exe").string()), true), "");
}

TEST(KcFileMan, FullFileVersionOfRunningProgramIsNotEmptyWhereItHasOne) {
  const KCString self = KCC_GetExecutablePath();
  ASSERT_FALSE(self.empty());
  const KCString version = KCFileMan::GetFullFileVersion(self, true);
#if defined(_WIN32)
  if (version.empty())
    GTEST_SKIP() << "this test program carries no version resource";
#endif
  EXPECT_EQ(std::count(version.str().begin(), version.str().end(), '.'), 3) << version.str();
}

TEST_F(KcFileManFiles, PathWithANulByteNamesNoFileEvenWhenItsFirstPartDoes) {
  const KCString file = Write("a.nc");
  const std::string dir = dir_.string();

  EXPECT_FALSE(KCFileMan::FileExists(KCString(file.str() + std::string(1, '\0') + "x")));
  EXPECT_FALSE(KCFileMan::DirectoryExists(KCString(dir + std::string(1, '\0') + "x")));
}

TEST_F(KcFileManFiles, ReplaceFileContentsReplacesAnExistingFileWhole) {
  const KCString path = Write("job.xml");

  const bool written = KCFileMan::ReplaceFileContents(path, std::string("new\0text", 8));

  EXPECT_TRUE(written);
  std::ifstream in(path.str(), std::ios::binary);
  const std::string contents((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  EXPECT_EQ(contents, std::string("new\0text", 8));
  EXPECT_EQ(std::distance(fs::directory_iterator(dir_), fs::directory_iterator()), 1);  // no temporary left
}

TEST_F(KcFileManFiles, ReplaceFileContentsInAMissingFolderFailsAndWritesNothing) {
  const KCString path((dir_ / "missing" / "job.xml").string());

  EXPECT_FALSE(KCFileMan::ReplaceFileContents(path, "text"));
  EXPECT_FALSE(fs::exists(dir_ / "missing"));
}

TEST_F(KcFileManFiles, ReplaceFileContentsRefusesAPathWithANulByte) {
  const KCString existing = Write("a");
  const KCString path(existing.str() + std::string("\0b", 2));

  EXPECT_FALSE(KCFileMan::ReplaceFileContents(path, "text"));
  std::ifstream in(existing.str());
  std::string contents;
  in >> contents;
  EXPECT_EQ(contents, "x");
}
