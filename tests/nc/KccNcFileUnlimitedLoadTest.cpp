// SPDX-License-Identifier: MIT
// Loading without the line limit, the too-long line's number, saving chosen programs and the names of the
// load errors.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ncappkit/foundation/KCPlatform.h"
#include "ncappkit/nc/KCC_NcFile.h"
#include "support/TempDir.h"

namespace {

std::string LongLine(std::size_t length) {
  return "(" + std::string(length - 2, 'X') + ")";
}

}  // namespace

TEST(KccNcFileUnlimitedLoad, ReadsALineLongerThanTheReaderLimitWhole) {
  TempDir dir;
  const std::string comment = LongLine(300);
  const std::string path = dir.WriteFile("long.nc", "%\nO1 (A)\n" + comment + "\nM30\n%\n");
  KCC_NcFile file;

  ASSERT_NE(file.LoadFromFileWithoutLineLimit(path, false, false), nullptr);

  ASSERT_EQ(file.GetNumberOfMainPrograms(), 1);
  const KCStringList& lines = file.GetMainProgList().GetProgram(0)->GetStringList();
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[1].str(), comment);
}

TEST(KccNcFileUnlimitedLoad, ReadsALineLongerThanTheReadBuffer) {
  TempDir dir;
  const std::string comment = LongLine(3 * 1024 * 1024);
  const std::string path = dir.WriteFile("huge.nc", "O1\n" + comment + "\r\nM30\n");
  KCC_NcFile file;

  ASSERT_NE(file.LoadFromFileWithoutLineLimit(path, false, false), nullptr);

  const KCStringList& lines = file.GetMainProgList().GetProgram(0)->GetStringList();
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[1].size(), comment.size());
  EXPECT_EQ(file.GetTooLongLineNumber(), 0);
}

TEST(KccNcFileUnlimitedLoad, LineStillEndsAtItsFirstNul) {
  TempDir dir;
  const std::string path = dir.WriteFile("nul-byte.nc", std::string("O1\0hidden\nM30\n", 14));
  KCC_NcFile file;

  ASSERT_NE(file.LoadFromFileWithoutLineLimit(path, false, false), nullptr);

  EXPECT_EQ(file.GetMainProgList().GetProgram(0)->GetStringList()[0].str(), "O1");
}

TEST(KccNcFileUnlimitedLoad, MissingFileIsAFileNotFoundError) {
  TempDir dir;
  KCC_NcFile file;

  EXPECT_EQ(file.LoadFromFileWithoutLineLimit(dir.Path("missing.nc"), false, false), nullptr);

  EXPECT_EQ(file.GetErrorCode(), KCC_NcFile::kFileNotFoundError);
}

TEST(KccNcFileUnlimitedLoad, ReadsBackWhatSaveWroteWithLongLines) {
  TempDir dir;
  const std::string comment = LongLine(500);
  const std::string source = dir.WriteFile("in.nc", "O7 (LONG)\n" + comment + "\nM30\n");
  KCC_NcFile original;
  ASSERT_NE(original.LoadFromFileWithoutLineLimit(source, false, false), nullptr);
  ASSERT_TRUE(original.SaveToFile(dir.Path("out.nc")));
  KCC_NcFile again;

  ASSERT_NE(again.LoadFromFileWithoutLineLimit(dir.Path("out.nc"), false, false), nullptr);

  EXPECT_EQ(again.GetMainProgList().GetProgram(0)->GetStringList()[1].str(), comment);
}

TEST(KccNcFileTooLongLine, LimitedLoadNamesTheTooLongLine) {
  TempDir dir;
  const std::string path =
      dir.WriteFile("long.nc", "O1\nG0 X0\n" + LongLine(KCC_NcFile::kMaxLineLength + 1) + "\nM30\n");
  KCC_NcFile file;

  EXPECT_EQ(file.LoadFromFile(path, false, false), nullptr);

  EXPECT_EQ(file.GetErrorCode(), KCC_NcFile::kTooManyLinesError);
  EXPECT_EQ(file.GetTooLongLineNumber(), 3);
}

TEST(KccNcFileTooLongLine, LineOfExactlyTheLimitIsRead) {
  TempDir dir;
  const std::string path =
      dir.WriteFile("limit.nc", "O1\n" + LongLine(KCC_NcFile::kMaxLineLength) + "\nM30\n");
  KCC_NcFile file;

  EXPECT_NE(file.LoadFromFile(path, false, false), nullptr);

  EXPECT_EQ(file.GetTooLongLineNumber(), 0);
}

TEST(KccNcFileSavePrograms, SavesOnlyTheChosenProgramsFramedByPercentLines) {
  TempDir dir;
  const std::string path = dir.WriteFile("two.nc", "O1 (A)\nG0 X1\nM30\nO2 (B)\nG0 X2\nM30\n");
  KCC_NcFile file;
  ASSERT_NE(file.LoadFromFile(path, false, false), nullptr);
  const std::vector<const KCC_NcFileProgram*> chosen = {file.GetMainProgList().GetProgram(1)};

  ASSERT_TRUE(KCC_NcFile::SaveProgramsToFile(dir.Path("b.nc"), chosen));

  const std::string le = KCC_GetTextLineEnd();
  EXPECT_EQ(dir.ReadFile("b.nc"), "%" + le + "O2 (B)" + le + "G0 X2" + le + "M30" + le + "%" + le);
}

TEST(KccNcFileSavePrograms, EmptyNameFails) {
  EXPECT_FALSE(KCC_NcFile::SaveProgramsToFile("", {}));
}

TEST(KccNcFileProgramsText, NoProgramsGiveTheEmptyText) {
  EXPECT_EQ(KCC_NcFile::GetProgramsText({}, "\n"), "");
}

TEST(KccNcFileProgramsText, NullEntriesAreSkipped) {
  KCC_NcFileProgram program;
  program.GetStringList().push_back("O5");
  program.GetStringList().push_back("M30");

  EXPECT_EQ(KCC_NcFile::GetProgramsText({nullptr, &program}, "\n"), "%\nO5\nM30\n%\n");
}

TEST(KccNcFileErrorName, NamesEveryLoadError) {
  EXPECT_EQ(KCC_NcFile::GetErrorName(KCC_NcFile::kNoError).str(), "no error");
  EXPECT_EQ(KCC_NcFile::GetErrorName(KCC_NcFile::kNoFileNameError).str(), "no file name");
  EXPECT_EQ(KCC_NcFile::GetErrorName(KCC_NcFile::kFileNotFoundError).str(), "file not found");
  EXPECT_EQ(KCC_NcFile::GetErrorName(KCC_NcFile::kFileOpenError).str(), "file cannot be opened");
  EXPECT_EQ(KCC_NcFile::GetErrorName(KCC_NcFile::kTooManyLinesError).str(), "too many lines");
  EXPECT_EQ(KCC_NcFile::GetErrorName(KCC_NcFile::kNoNcStructureError).str(), "no NC structure");
}

TEST(KccNcFileErrorName, UnknownCodeSaysItsNumber) {
  EXPECT_EQ(KCC_NcFile::GetErrorName(9).str(), "unknown error 9");
}

// The reader fills a buffer of 1 MiB at a time; a line that crosses its end is read in two pieces.
TEST(KccNcFileReadBuffer, ProgramEndInALineAcrossTheBufferEndIsFound) {
  TempDir dir;
  constexpr std::size_t kBufferEnd = std::size_t{1} << 20;
  std::string text = "O1\n";
  const std::size_t endLineStart = kBufferEnd - 10;  // "M30" before the buffer end, the line end after it
  while (text.size() + 100 < endLineStart)
    text += "(" + std::string(97, 'X') + ")\n";
  text += "(" + std::string(endLineStart - text.size() - 3, 'X') + ")\n";
  text += "M30 (END OF PART ONE)\nO2\nG0 X1\nM30\n";
  const std::string path = dir.WriteFile("across.nc", text);
  KCC_NcFile file;

  ASSERT_NE(file.LoadFromFile(path, false, false), nullptr);

  ASSERT_EQ(file.GetNumberOfMainPrograms(), 2);
  EXPECT_EQ(file.GetMainProgList().GetProgram(0)->GetProgramNumber(), 1);
  EXPECT_EQ(file.GetMainProgList().GetProgram(1)->GetProgramNumber(), 2);
}
