// SPDX-License-Identifier: MIT
// KCC_NcFileProgram, its list, creator and visitor.
#include <gtest/gtest.h>

#include <vector>

#include "ncappkit/nc/KCC_NcFileProgram.h"
#include "ncappkit/nc/KCC_NcFileProgramCreator.h"
#include "ncappkit/nc/KCC_NcFileProgramList.h"
#include "ncappkit/nc/KCC_NcFileProgramVisitor.h"

namespace {

class NumberCollector : public KCC_NcFileProgramVisitor {
 public:
  bool Visit(KCC_NcFileProgram& program) override {
    numbers.push_back(program.GetProgramNumber());
    return false;
  }
  std::vector<int> numbers;
};

void AddNumbered(KCC_NcFileProgramList& list, std::vector<int> numbers) {
  KCC_NcFileProgramCreator creator(list);
  for (int n : numbers)
    creator.Create()->SetProgramNumber(n);
}

}  // namespace

TEST(KccNcFileProgram, NewProgramHasNoNumberAndNoAction) {
  KCC_NcFileProgram program;
  EXPECT_EQ(program.GetProgramNumber(), -1);
  EXPECT_EQ(program.GetProgramRef(), "");
  EXPECT_EQ(program.GetProgramSize(), 0);
  EXPECT_TRUE(program.GetStringList().empty());
  EXPECT_TRUE(program.HasDownLoadNoAction());
}

TEST(KccNcFileProgram, SizeIsTheSumOfLineLengths) {
  KCC_NcFileProgram program;
  program.AddLine(KCString("O1000 (PLATE)"));
  program.AddLine("M30");
  EXPECT_EQ(program.GetProgramSize(), 0);
  EXPECT_EQ(program.CalculateProgramSize(), 16);
  EXPECT_EQ(program.GetProgramSize(), 16);
}

TEST(KccNcFileProgram, AddLineFromMutableBuffer) {
  KCC_NcFileProgram program;
  char line[] = "G00 X0";
  program.AddLine(line);
  ASSERT_EQ(program.GetStringList().size(), 1u);
  EXPECT_EQ(program.GetStringList().front(), "G00 X0");
}

TEST(KccNcFileProgram, ClearStringListRemovesTheLines) {
  KCC_NcFileProgram program;
  program.AddLine("A");
  program.ClearStringList();
  EXPECT_TRUE(program.GetStringList().empty());
}

TEST(KccNcFileProgram, EachDownloadActionHasItsPredicate) {
  KCC_NcFileProgram program;
  program.SetDownLoadActionDoDelete();
  EXPECT_TRUE(program.HasDownLoadActionDoDelete());
  program.SetDownLoadActionKeepInMemory();
  EXPECT_TRUE(program.HasDownLoadActionKeepInMemory());
  program.SetDownLoadDoDownLoad();
  EXPECT_TRUE(program.HasDownLoadDoDownLoad());
  EXPECT_TRUE(program.IsSelectedForDownLoading());
  program.SetDownLoadNoAction();
  EXPECT_TRUE(program.HasDownLoadNoAction());
}

TEST(KccNcFileProgram, DeselectingAProgramMarkedForDeletionResetsIt) {
  KCC_NcFileProgram program;
  program.SetDownLoadActionDoDelete();
  program.SetSelectedForDownLoading(false);
  EXPECT_TRUE(program.HasDownLoadNoAction());
  EXPECT_FALSE(program.HasDownLoadActionDoDelete());
}

TEST(KccNcFileProgram, SelectingOverwritesKeepInMemory) {
  KCC_NcFileProgram program;
  program.SetDownLoadActionKeepInMemory();
  program.SetSelectedForDownLoading(true);
  EXPECT_TRUE(program.HasDownLoadDoDownLoad());
  EXPECT_FALSE(program.HasDownLoadActionKeepInMemory());
}

TEST(KccNcFileProgram, AcceptHandsBackTheVisitorsResult) {
  KCC_NcFileProgram program;
  program.SetProgramNumber(4);
  NumberCollector visitor;
  EXPECT_FALSE(program.Accept(visitor));
  EXPECT_EQ(visitor.numbers, std::vector<int>{4});
}

TEST(KccNcFileProgram, CopyCopiesTheLines) {
  KCC_NcFileProgram program;
  program.SetProgramNumber(7);
  program.SetProgramRef("REF");
  program.AddLine("O7");
  KCC_NcFileProgram copy(program);
  program.AddLine("M30");
  EXPECT_EQ(copy.GetProgramNumber(), 7);
  EXPECT_EQ(copy.GetProgramRef(), "REF");
  EXPECT_EQ(copy.GetStringList().size(), 1u);
}

TEST(KccNcFileProgramList, CreatorAppendsToTheEnd) {
  KCC_NcFileProgramList list;
  AddNumbered(list, {1, 2});
  ASSERT_EQ(list.GetNumberOfPrograms(), 2);
  EXPECT_EQ(list.GetProgram(1)->GetProgramNumber(), 2);
}

TEST(KccNcFileProgramList, CursorWalksFrontToBackAndStaysAtTheEnd) {
  KCC_NcFileProgramList list;
  AddNumbered(list, {10, 20});
  ASSERT_NE(list.GetFirstProg(), nullptr);
  EXPECT_EQ(list.GetFirstProg()->GetProgramNumber(), 10);
  KCC_NcFileProgram* second = list.GetNextProg();
  ASSERT_NE(second, nullptr);
  EXPECT_EQ(second->GetProgramNumber(), 20);
  EXPECT_EQ(list.GetNextProg(), nullptr);
  EXPECT_EQ(list.GetNextProg(), nullptr);
}

TEST(KccNcFileProgramList, FirstProgOfEmptyListIsNull) {
  KCC_NcFileProgramList list;
  EXPECT_EQ(list.GetFirstProg(), nullptr);
  EXPECT_EQ(list.GetNextProg(), nullptr);
}

TEST(KccNcFileProgramList, FindGivesTheFirstMatch) {
  KCC_NcFileProgramList list;
  AddNumbered(list, {5, 6, 5});
  EXPECT_EQ(list.FindProgramFromList(5), list.GetProgram(0));
  EXPECT_EQ(list.FindProgramFromList(9), nullptr);
}

TEST(KccNcFileProgramList, RemoveDeletesTheFirstMatchOnly) {
  KCC_NcFileProgramList list;
  AddNumbered(list, {5, 6, 5});
  EXPECT_TRUE(list.RemoveProgramFromList(5));
  ASSERT_EQ(list.GetNumberOfPrograms(), 2);
  EXPECT_EQ(list.GetProgram(0)->GetProgramNumber(), 6);
  EXPECT_EQ(list.GetProgram(1)->GetProgramNumber(), 5);
  EXPECT_FALSE(list.RemoveProgramFromList(42));
}

TEST(KccNcFileProgramList, RemovingTheCurrentEntryContinuesWithTheNextOne) {
  KCC_NcFileProgramList list;
  AddNumbered(list, {1, 2, 3});
  list.GetFirstProg();
  list.GetNextProg();  // on 2
  EXPECT_TRUE(list.RemoveProgramFromList(2));
  KCC_NcFileProgram* next = list.GetNextProg();
  ASSERT_NE(next, nullptr);
  EXPECT_EQ(next->GetProgramNumber(), 3);
}

TEST(KccNcFileProgramList, ClearWithContentsEmptiesTheList) {
  KCC_NcFileProgramList list;
  AddNumbered(list, {1, 2});
  list.ClearWithContents();
  EXPECT_TRUE(list.IsEmpty());
  EXPECT_EQ(list.GetFirstProg(), nullptr);
}

TEST(KccNcFileProgramList, SelectAllMarksEveryProgram) {
  KCC_NcFileProgramList list;
  AddNumbered(list, {1, 2});
  list.GetProgram(1)->SetDownLoadActionDoDelete();
  list.SelectDownLoadAllPrograms(true);
  EXPECT_TRUE(list.GetProgram(0)->IsSelectedForDownLoading());
  EXPECT_TRUE(list.GetProgram(1)->IsSelectedForDownLoading());
  list.SelectDownLoadAllPrograms(false);
  EXPECT_TRUE(list.GetProgram(1)->HasDownLoadNoAction());
}

TEST(KccNcFileProgramList, SelectSingleMarksTheFirstMatch) {
  KCC_NcFileProgramList list;
  AddNumbered(list, {1, 2});
  EXPECT_TRUE(list.SelectDownloadSingleProgram(2, true));
  EXPECT_FALSE(list.GetProgram(0)->IsSelectedForDownLoading());
  EXPECT_TRUE(list.GetProgram(1)->IsSelectedForDownLoading());
  EXPECT_FALSE(list.SelectDownloadSingleProgram(3, true));
}

TEST(KccNcFileProgramList, AcceptVisitsAllInOrderSkippingNullsWhateverTheVisitorSays) {
  KCC_NcFileProgramList list;
  AddNumbered(list, {3, 1});
  list.AddProgram(nullptr);
  AddNumbered(list, {2});
  NumberCollector visitor;
  EXPECT_TRUE(list.Accept(visitor));
  EXPECT_EQ(visitor.numbers, (std::vector<int>{3, 1, 2}));
}

TEST(KccNcFileProgramList, CopySharesTheProgramsUntilDetached) {
  KCC_NcFileProgramList list;
  AddNumbered(list, {8});
  KCC_NcFileProgramList copy(list);
  EXPECT_EQ(copy.GetProgram(0), list.GetProgram(0));
  copy.Detach();
  EXPECT_TRUE(copy.IsEmpty());
  EXPECT_EQ(list.GetProgram(0)->GetProgramNumber(), 8);
}
