// SPDX-License-Identifier: MIT
// Ownership of NC files and program lists: copies share, moves transfer, Clone duplicates. These run under
// AddressSanitizer in CI, where a double delete or a use after free fails them.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "ncappkit/foundation/KCPlatform.h"
#include "ncappkit/nc/KCC_NcFile.h"
#include "support/TempDir.h"

namespace {

const char kTwoPrograms[] = "%\nO1 (A)\nG0 X1\nM30\nO2 (B)\nG0 X2\nM99\n%\n";

// Returns a loaded file on one path and an empty one on the other, as client code naturally writes it.
KCC_NcFile Load(const std::string& path) {
  KCC_NcFile file;
  if (file.LoadFromFile(path, true, false) == nullptr)
    return KCC_NcFile();
  return file;
}

KCC_NcFileProgram* NewProgram(int number, const char* line) {
  auto* program = new KCC_NcFileProgram();
  program->SetProgramNumber(number);
  program->AddLine(KCString(line));
  return program;
}

}  // namespace

TEST(KccNcFileOwnership, FileReturnedFromAFunctionKeepsItsPrograms) {
  TempDir dir;
  const std::string path = dir.WriteFile("two.nc", kTwoPrograms);

  const KCC_NcFile file = Load(path);

  EXPECT_EQ(file.GetNumberOfMainPrograms(), 1);
  EXPECT_EQ(file.GetNumberOfSubPrograms(), 1);
  EXPECT_EQ(file.GetLoadedFromFileId().str(), path);
}

TEST(KccNcFileOwnership, FileReturnedOnTheFailurePathIsEmpty) {
  TempDir dir;

  const KCC_NcFile file = Load(dir.Path("missing.nc"));

  EXPECT_TRUE(file.IsMainProgramsEmpty());
  EXPECT_TRUE(file.HasNoError());
}

TEST(KccNcFileOwnership, VectorGrownWithEmplaceBackAndMovesKeepsEveryFile) {
  TempDir dir;
  const std::string path = dir.WriteFile("two.nc", kTwoPrograms);
  std::vector<KCC_NcFile> files;

  for (int i = 0; i < 20; ++i) {
    KCC_NcFile file = Load(path);
    if (i % 2 == 0)
      files.push_back(std::move(file));
    else
      files.emplace_back(Load(path));
  }

  ASSERT_EQ(files.size(), 20u);
  for (KCC_NcFile& file : files)
    EXPECT_EQ(file.GetMainProgList().GetProgram(0)->GetProgramNumber(), 1);
}

TEST(KccNcFileOwnership, MovedFromFileIsLikeANewOne) {
  TempDir dir;
  KCC_NcFile source = Load(dir.WriteFile("two.nc", kTwoPrograms));

  KCC_NcFile target(std::move(source));

  EXPECT_EQ(target.GetNumberOfMainPrograms(), 1);
  EXPECT_TRUE(
      source.IsMainProgramsEmpty());  // NOLINT(bugprone-use-after-move): the moved-from state is defined
  EXPECT_TRUE(source.IsSubProgramsEmpty());
  EXPECT_EQ(source.GetLoadedFromFileId().str(), "");
  EXPECT_TRUE(source.HasNoError());
}

TEST(KccNcFileOwnership, MoveAssignmentReplacesThePrograms) {
  TempDir dir;
  KCC_NcFile target = Load(dir.WriteFile("one.nc", "O7\nM30\n"));
  KCC_NcFile source = Load(dir.WriteFile("two.nc", kTwoPrograms));

  target = std::move(source);

  ASSERT_EQ(target.GetNumberOfMainPrograms(), 1);
  EXPECT_EQ(target.GetMainProgList().GetProgram(0)->GetProgramNumber(), 1);
  EXPECT_TRUE(source.IsMainProgramsEmpty());  // NOLINT(bugprone-use-after-move)
}

TEST(KccNcFileOwnership, SelfMoveAssignmentChangesNothing) {
  TempDir dir;
  KCC_NcFile file = Load(dir.WriteFile("two.nc", kTwoPrograms));
  KCC_NcFile& same = file;

  file = std::move(same);

  EXPECT_EQ(file.GetNumberOfMainPrograms(), 1);
  EXPECT_EQ(file.GetNumberOfSubPrograms(), 1);
}

TEST(KccNcFileOwnership, CloneIsIndependentOfTheOriginal) {
  TempDir dir;
  const std::string path = dir.WriteFile("two.nc", kTwoPrograms);
  KCC_NcFile original = Load(path);

  KCC_NcFile clone = original.Clone();
  clone.GetMainProgList().GetProgram(0)->SetProgramNumber(99);
  original.ClearAllPrograms();

  ASSERT_EQ(clone.GetNumberOfMainPrograms(), 1);
  EXPECT_EQ(clone.GetMainProgList().GetProgram(0)->GetProgramNumber(), 99);
  EXPECT_EQ(clone.GetSubProgList().GetProgram(0)->GetProgramRef().str(), "B");
  EXPECT_EQ(clone.GetLoadedFromFileId().str(), path);
}

TEST(KccNcFileOwnership, CopiesStillShareTheirPrograms) {
  TempDir dir;
  KCC_NcFile original = Load(dir.WriteFile("two.nc", kTwoPrograms));

  KCC_NcFile copy(original);
  copy.GetMainProgList().GetProgram(0)->SetProgramNumber(42);

  EXPECT_EQ(original.GetMainProgList().GetProgram(0)->GetProgramNumber(), 42);
  copy.GetMainProgList().Detach();  // one owner only, so the programs are deleted once
  copy.GetSubProgList().Detach();
}

TEST(KccNcFileProgramListOwnership, MovedListTakesTheProgramsAndLeavesTheSourceEmpty) {
  KCC_NcFileProgramList source;
  source.AddProgram(NewProgram(1, "O1"));
  source.AddProgram(NewProgram(2, "O2"));

  KCC_NcFileProgramList target(std::move(source));

  EXPECT_EQ(target.GetNumberOfPrograms(), 2);
  EXPECT_TRUE(source.IsEmpty());  // NOLINT(bugprone-use-after-move)
  EXPECT_EQ(source.GetNextProg(), nullptr);
}

TEST(KccNcFileProgramListOwnership, MoveAssignmentDeletesTheProgramsHeldBefore) {
  KCC_NcFileProgramList target;
  target.AddProgram(NewProgram(7, "O7"));
  KCC_NcFileProgramList source;
  source.AddProgram(NewProgram(1, "O1"));

  target = std::move(source);

  ASSERT_EQ(target.GetNumberOfPrograms(), 1);
  EXPECT_EQ(target.GetProgram(0)->GetProgramNumber(), 1);
}

TEST(KccNcFileProgramListOwnership, CloneCopiesEveryProgramAndKeepsNullEntries) {
  KCC_NcFileProgramList original;
  original.AddProgram(NewProgram(1, "O1"));
  original.AddProgram(nullptr);

  KCC_NcFileProgramList clone = original.Clone();
  original.ClearWithContents();

  ASSERT_EQ(clone.GetNumberOfPrograms(), 2);
  EXPECT_EQ(clone.GetProgram(0)->GetStringList()[0].str(), "O1");
  EXPECT_EQ(clone.GetProgram(1), nullptr);
}

TEST(KccNcFileProgramListRange, RangeForVisitsEveryEntryInOrder) {
  KCC_NcFileProgramList list;
  list.AddProgram(NewProgram(1, "O1"));
  list.AddProgram(NewProgram(2, "O2"));
  std::vector<int> numbers;

  for (const KCC_NcFileProgram* program : list)
    numbers.push_back(program->GetProgramNumber());

  EXPECT_EQ(numbers, (std::vector<int>{1, 2}));
}

TEST(KccNcFileProgramListRange, NestedLoopsDoNotDisturbEachOther) {
  KCC_NcFileProgramList list;
  list.AddProgram(NewProgram(1, "O1"));
  list.AddProgram(NewProgram(2, "O2"));
  std::vector<int> pairs;

  for (const KCC_NcFileProgram* a : list) {
    for (const KCC_NcFileProgram* b : list)
      pairs.push_back(a->GetProgramNumber() * 10 + b->GetProgramNumber());
  }

  EXPECT_EQ(pairs, (std::vector<int>{11, 12, 21, 22}));
}

TEST(KccNcFileProgramListRange, RangeForLeavesTheCursorAlone) {
  KCC_NcFileProgramList list;
  list.AddProgram(NewProgram(1, "O1"));
  list.AddProgram(NewProgram(2, "O2"));
  ASSERT_NE(list.GetFirstProg(), nullptr);

  int count = 0;
  for (const KCC_NcFileProgram* program : list)
    count += program != nullptr ? 1 : 0;

  EXPECT_EQ(count, 2);
  ASSERT_NE(list.GetNextProg(), nullptr);
  EXPECT_EQ(list.GetNextProg(), nullptr);
}

TEST(KccNcFileProgramSave, SavesOneProgramFramedAsAFile) {
  TempDir dir;
  KCC_NcFile file = Load(dir.WriteFile("two.nc", kTwoPrograms));

  ASSERT_TRUE(file.GetSubProgList().GetProgram(0)->SaveToFile(dir.Path("O2.nc")));

  const std::string le = KCC_GetTextLineEnd();
  EXPECT_EQ(dir.ReadFile("O2.nc"), "%" + le + "O2 (B)" + le + "G0 X2" + le + "M99" + le + "%" + le);
}

TEST(KccNcFileProgramSave, FailedSaveKeepsTheOldFile) {
  TempDir dir;
  KCC_NcFileProgram program;
  program.AddLine(KCString("O5"));
  const std::string folder = dir.Path("folder");
  dir.WriteFile("folder/keep.txt", "x");

  EXPECT_FALSE(program.SaveToFile(folder));
  EXPECT_EQ(dir.ReadFile("folder/keep.txt"), "x");
}

TEST(KccNcFileTooLongLine, TooLongLineAfterTheLineBudgetIsNotNamed) {
  TempDir dir;
  std::string text;
  text.reserve(static_cast<std::size_t>(KCC_NcFile::kMaxLines) * 3 + 200);
  for (int i = 0; i < KCC_NcFile::kMaxLines; ++i)
    text += "G0\n";
  text += std::string(static_cast<std::size_t>(KCC_NcFile::kMaxLineLength) + 10, 'X') + "\n";
  const std::string path = dir.WriteFile("budget.nc", text);
  KCC_NcFile file;

  EXPECT_EQ(file.LoadFromFile(path, false, false), nullptr);

  EXPECT_EQ(file.GetErrorCode(), KCC_NcFile::kTooManyLinesError);
  EXPECT_EQ(file.GetTooLongLineNumber(), 0);
}
