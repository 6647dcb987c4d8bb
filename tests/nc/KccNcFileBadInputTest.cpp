// SPDX-License-Identifier: MIT
// Loading files that are damaged, odd or not NC files at all: each gives a defined result, never a crash.
#include <gtest/gtest.h>

#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#else
#include <sys/stat.h>
#include <unistd.h>
#endif

#include <cstdio>
#include <random>
#include <string>

#include "ncappkit/nc/KCC_NcFile.h"
#include "support/TempDir.h"

namespace {

std::string Repeat(char c, std::size_t n) {
  return std::string(n, c);
}

const KCStringList& FirstMainLines(KCC_NcFile& file) {
  return file.GetMainProgList().GetProgram(0)->GetStringList();
}

}  // namespace

TEST(KccNcFileBadInput, BinaryGarbageLoadsWithoutCrashing) {
  TempDir dir;
  std::mt19937 random(12345);
  std::string bytes(64 * 1024, '\0');
  for (char& c : bytes)
    c = static_cast<char>(random() & 0xFF);
  const std::string path = dir.WriteFile("garbage.bin", bytes);
  KCC_NcFile file;
  KCC_NcFileProgram* result = file.LoadFromFile(path, true, true);
  // Random bytes hold lines far longer than the reader's buffer.
  EXPECT_EQ(result, nullptr);
  EXPECT_TRUE(file.HasTooManyLinesError());
}

TEST(KccNcFileBadInput, ShortGarbageLinesGiveNoNcStructure) {
  TempDir dir;
  const std::string path = dir.WriteFile("junk.nc", std::string("\x01\x02\xff\xfe\n\x7f ~~\n\x1a", 10));
  KCC_NcFile file;
  EXPECT_EQ(file.LoadFromFile(path, true, false), nullptr);
  EXPECT_TRUE(file.HasFileWithoutNcStructureError());
}

TEST(KccNcFileBadInput, LineEndsAtItsFirstNulByte) {
  TempDir dir;
  const std::string path = dir.WriteFile("nul-byte.nc", std::string("O1\0hidden M30\nM30\n", 19));
  KCC_NcFile file;
  ASSERT_NE(file.LoadFromFile(path, false, false), nullptr);
  ASSERT_EQ(file.GetNumberOfMainPrograms(), 1);
  const KCStringList& lines = FirstMainLines(file);
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0], "O1");
  EXPECT_EQ(lines[1], "M30");
}

TEST(KccNcFileBadInput, EmptyFileWithoutKeepUnfinishedHasNoNcStructure) {
  TempDir dir;
  const std::string path = dir.WriteFile("empty.nc", "");
  KCC_NcFile file;
  EXPECT_EQ(file.LoadFromFile(path, false, false), nullptr);
  EXPECT_TRUE(file.HasFileWithoutNcStructureError());
}

TEST(KccNcFileBadInput, EmptyFileWithKeepUnfinishedGivesOneEmptyProgram) {
  TempDir dir;
  const std::string path = dir.WriteFile("empty.nc", "");
  KCC_NcFile file;
  KCC_NcFileProgram* result = file.LoadFromFile(path, false, true);
  ASSERT_NE(result, nullptr);
  EXPECT_TRUE(file.HasNoError());
  EXPECT_TRUE(result->GetStringList().empty());
}

TEST(KccNcFileBadInput, CrLfLineEndsReadLikeLf) {
  TempDir dir;
  const std::string path = dir.WriteFile("crlf.nc", "%\r\nO1 (A)\r\nG0 X0\r\nM30\r\n%\r\n");
  KCC_NcFile file;
  ASSERT_NE(file.LoadFromFile(path, false, false), nullptr);
  const KCStringList& lines = FirstMainLines(file);
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[0], "O1 (A)");
  EXPECT_EQ(lines[2], "M30");
}

TEST(KccNcFileBadInput, LoneCrIsNoLineEnd) {
  TempDir dir;
  const std::string path = dir.WriteFile("cr.nc", "O1\rG0 X0\rM30\r");
  KCC_NcFile file;
  ASSERT_NE(file.LoadFromFile(path, false, false), nullptr);
  const KCStringList& lines = FirstMainLines(file);
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0], "O1\rG0 X0\rM30\r");
}

TEST(KccNcFileBadInput, CrAtTheStartOfALineCountsAsBlank) {
  TempDir dir;
  const std::string path = dir.WriteFile("lfcrcr.nc", "O1\n\r\rG0 X0\n\r\rM30\n");
  KCC_NcFile file;
  ASSERT_NE(file.LoadFromFile(path, false, false), nullptr);
  const KCStringList& lines = FirstMainLines(file);
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[1], "G0 X0");
}

// A line of 128 characters runs through the line budget: the case folder
// tests/data/nc/bad/line_of_128_characters_runs_through_the_line_budget.
TEST(KccNcFileBadInput, LineOf127CharactersFitsTheBuffer) {
  TempDir dir;
  const std::string longLine = "(" + Repeat('C', 125) + ")";
  ASSERT_EQ(longLine.size(), 127u);
  const std::string path = dir.WriteFile("127.nc", "O1\n" + longLine + "\nM30\n");
  KCC_NcFile file;
  ASSERT_NE(file.LoadFromFile(path, false, false), nullptr);
  EXPECT_EQ(FirstMainLines(file)[1].str(), longLine);
}

TEST(KccNcFileBadInput, LineOf127CharactersWithCrLfFitsTheBuffer) {
  TempDir dir;
  const std::string longLine = "(" + Repeat('C', 125) + ")";
  const std::string path = dir.WriteFile("127crlf.nc", "O1\r\n" + longLine + "\r\nM30\r\n");
  KCC_NcFile file;
  EXPECT_NE(file.LoadFromFile(path, false, false), nullptr);
  EXPECT_TRUE(file.HasNoError());
}

TEST(KccNcFileBadInput, LineOf10000CharactersRunsThroughTheLineBudget) {
  TempDir dir;
  const std::string path = dir.WriteFile("10k.nc", "O1\n" + Repeat('X', 10000) + "\nM30\n");
  KCC_NcFile file;
  EXPECT_EQ(file.LoadFromFile(path, false, true), nullptr);
  EXPECT_TRUE(file.HasTooManyLinesError());
}

TEST(KccNcFileBadInput, SameLongLineLoadsFromAStringList) {
  KCStringList text;
  text.push_back("O1");
  text.push_back(KCString(Repeat('X', 10000)));
  text.push_back("M30");
  KCC_NcFile file;
  EXPECT_NE(file.LoadFromStringList(text, false, false), nullptr);
  EXPECT_TRUE(file.HasNoError());
}

TEST(KccNcFileBadInput, AMillionLinesAreTooMany) {
  TempDir dir;
  std::string text;
  text.reserve(4 * 1000000);
  for (int i = 0; i < 1000000; ++i)
    text += "M30\n";
  const std::string path = dir.WriteFile("million.nc", text);
  KCC_NcFile file;
  EXPECT_EQ(file.LoadFromFile(path, false, false), nullptr);
  EXPECT_TRUE(file.HasTooManyLinesError());
  EXPECT_EQ(file.GetNumberOfMainPrograms(), 999998);
}

TEST(KccNcFileBadInput, NineHundredNinetyNineThousandNineHundredNinetyEightFileLinesLoad) {
  TempDir dir;
  std::string text;
  for (int i = 0; i < 999998; ++i)
    text += "M30\n";
  const std::string path = dir.WriteFile("budget.nc", text);
  KCC_NcFile file;
  EXPECT_NE(file.LoadFromFile(path, false, false), nullptr);
  EXPECT_TRUE(file.HasNoError());
  EXPECT_EQ(file.GetNumberOfMainPrograms(), 999998);
}

TEST(KccNcFileBadInput, MissingPathIsFileNotFound) {
  TempDir dir;
  KCC_NcFile file;
  EXPECT_EQ(file.LoadFromFile(dir.Path("no/such/file.nc"), false, false), nullptr);
  EXPECT_TRUE(file.HasFileNotFoundError());
}

TEST(KccNcFileBadInput, DirectoryIsNoFile) {
  TempDir dir;
  KCC_NcFile file;
  EXPECT_EQ(file.LoadFromFile(dir.Path(), false, false), nullptr);
  EXPECT_TRUE(file.HasFileNotFoundError());
}

TEST(KccNcFileBadInput, SaveToAReadOnlyFileFailsAndKeepsIt) {
#if defined(_WIN32)
  TempDir dir;
  const std::string path = dir.WriteFile("locked.nc", "old");
  ASSERT_EQ(::_chmod(path.c_str(), _S_IREAD), 0);
  KCC_NcFile file;
  file.LoadFromStringList(KCStringList{"O1", "M30"}, false, false);
  EXPECT_FALSE(file.SaveToFile(path));
  ::_chmod(path.c_str(), _S_IREAD | _S_IWRITE);
  EXPECT_EQ(dir.ReadFile("locked.nc"), "old");
#else
  if (::geteuid() == 0)
    GTEST_SKIP() << "running as root: every file is writable";
  TempDir dir;
  const std::string path = dir.WriteFile("locked.nc", "old");
  ASSERT_EQ(::chmod(path.c_str(), S_IRUSR), 0);
  KCC_NcFile file;
  file.LoadFromStringList(KCStringList{"O1", "M30"}, false, false);
  EXPECT_FALSE(file.SaveToFile(path));
  ::chmod(path.c_str(), S_IRUSR | S_IWUSR);
  EXPECT_EQ(dir.ReadFile("locked.nc"), "old");
#endif
}

TEST(KccNcFileBadInput, UnreadableFileIsAnOpenError) {
#if defined(_WIN32)
  // Windows: a handle that shares neither reading nor writing keeps every other open of the file out.
  TempDir dir;
  const std::string path = dir.WriteFile("locked.nc", "O1\nM30\n");
  const int lock = ::_sopen(path.c_str(), _O_RDONLY | _O_BINARY, _SH_DENYRW);
  ASSERT_NE(lock, -1);
  KCC_NcFile file;
  EXPECT_EQ(file.LoadFromFile(path, false, false), nullptr);
  EXPECT_TRUE(file.HasFileOpenError());
  ::_close(lock);
#else
  if (::geteuid() == 0)
    GTEST_SKIP() << "running as root: every file is readable";
  TempDir dir;
  const std::string path = dir.WriteFile("locked.nc", "O1\nM30\n");
  ASSERT_EQ(::chmod(path.c_str(), 0), 0);
  KCC_NcFile file;
  EXPECT_EQ(file.LoadFromFile(path, false, false), nullptr);
  EXPECT_TRUE(file.HasFileOpenError());
  ::chmod(path.c_str(), S_IRUSR | S_IWUSR);
#endif
}

TEST(KccNcFileBadInput, LastLineWithoutLineEndIsRead) {
  TempDir dir;
  const std::string path = dir.WriteFile("noeol.nc", "O1\nM30");
  KCC_NcFile file;
  ASSERT_NE(file.LoadFromFile(path, false, false), nullptr);
  EXPECT_EQ(FirstMainLines(file).size(), 2u);
}

TEST(KccNcFileBadInput, EmptyLinesInsideAProgramAreKept) {
  TempDir dir;
  const std::string path = dir.WriteFile("blank.nc", "O1\n\n\nM30\n");
  KCC_NcFile file;
  ASSERT_NE(file.LoadFromFile(path, false, false), nullptr);
  EXPECT_EQ(FirstMainLines(file).size(), 4u);
}
