// SPDX-License-Identifier: MIT
// Splitting NC text into main programs and sub-programs, loading files and saving them. The cases where one
// text splits into programs, or fails to, are the case folders of tests/data/nc/split_cases and
// tests/data/nc/bad (NcSplitCasesTest.cpp); the tests here are of other shapes: the loader's line tests,
// string lists a file cannot hold, loads that follow earlier loads, the line budget, list operations and
// saving.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "ncappkit/nc/KCC_NcFile.h"
#include "support/PlatformText.h"
#include "support/TempDir.h"

#if defined(_WIN32)
#include <windows.h>
#endif

namespace {

KCStringList Lines(std::initializer_list<const char*> lines) {
  KCStringList list;
  for (const char* l : lines)
    list.push_back(l);
  return list;
}

std::vector<std::string> LinesOf(const KCC_NcFileProgram& program) {
  std::vector<std::string> out;
  for (const KCString& l : program.GetStringList())
    out.push_back(l.str());
  return out;
}

// Opens the protected line tests for the tests.
class NcFileProbe : public KCC_NcFile {
 public:
  using KCC_NcFile::Check_FirstBlock_Command;
  using KCC_NcFile::Check_M30_M99_RET_Command;
  using KCC_NcFile::ParseProgramNumberLine;
};

bool Ends(const char* line) {
  NcFileProbe probe;
  bool m30 = false, m99 = false, ret = false;
  return probe.Check_M30_M99_RET_Command(line, m30, m99, ret);
}

}  // namespace

TEST(KccNcFile, M300AndM991AreNoEndLines) {
  EXPECT_FALSE(Ends("M300"));
  EXPECT_FALSE(Ends("M991"));
}

TEST(KccNcFile, RetCountsOnlyAtTheStartOfTheLine) {
  EXPECT_FALSE(Ends("N10 RET"));
  EXPECT_TRUE(Ends("RET"));
  EXPECT_TRUE(Ends("RET ; back"));
}

TEST(KccNcFile, EndTestTellsWhichCodeEndedTheProgram) {
  NcFileProbe probe;
  bool m30 = false, m99 = false, ret = false;
  EXPECT_TRUE(probe.Check_M30_M99_RET_Command("N20 M99 (BACK)", m30, m99, ret));
  EXPECT_TRUE(m99);
  EXPECT_FALSE(m30);
  EXPECT_FALSE(ret);
}

TEST(KccNcFile, EndCodeInsideBracketsDoesNotCount) {
  EXPECT_FALSE(Ends("(M30 M99)"));
  EXPECT_FALSE(Ends("M3"));
}

TEST(KccNcFile, FirstBlockNeedsM98AndP8010OutsideBrackets) {
  NcFileProbe probe;
  EXPECT_TRUE(probe.Check_FirstBlock_Command("P8010 M98 X1"));
  EXPECT_FALSE(probe.Check_FirstBlock_Command("M98 (P8010) X1"));
  EXPECT_FALSE(probe.Check_FirstBlock_Command("M98 P80"));
}

TEST(KccNcFile, FirstBlockScanStopsFiveCharactersBeforeTheEnd) {
  NcFileProbe probe;
  EXPECT_TRUE(probe.Check_FirstBlock_Command("M98P8010"));
  // M98 in the last four characters is not looked at.
  EXPECT_FALSE(probe.Check_FirstBlock_Command("P8010 X M98"));
}

TEST(KccNcFile, SiemensFirstBlockWithoutBlank) {
  NcFileProbe probe;
  EXPECT_TRUE(probe.Check_FirstBlock_Command("N50FIRST_BLOCK"));
  EXPECT_TRUE(probe.IsSiemensNcFileStructure());
  EXPECT_FALSE(probe.Check_FirstBlock_Command("N55 FIRST_BLOCK"));
}

TEST(KccNcFile, ProgramNumberLineGivesNumberAndRef) {
  NcFileProbe probe;
  int number = 0;
  KCString ref("keep");
  EXPECT_TRUE(probe.ParseProgramNumberLine("O 1234 (BRACKET)", number, ref));
  EXPECT_EQ(number, 1234);
  EXPECT_EQ(ref, "BRACKET");
}

TEST(KccNcFile, ProgramNumberLineWithoutBracketsKeepsTheRef) {
  NcFileProbe probe;
  int number = 0;
  KCString ref("keep");
  EXPECT_TRUE(probe.ParseProgramNumberLine(":77", number, ref));
  EXPECT_EQ(number, 77);
  EXPECT_EQ(ref, "keep");
}

TEST(KccNcFile, ColonOIsNoProgramNumberLineForTheLoader) {
  NcFileProbe probe;
  int number = 0;
  KCString ref;
  EXPECT_FALSE(probe.ParseProgramNumberLine(":O12", number, ref));
  EXPECT_FALSE(probe.ParseProgramNumberLine("O", number, ref));
}

TEST(KccNcFile, LeadingBlanksAndLineEndsAreRemovedFromLines) {
  KCC_NcFile file;
  file.LoadFromStringList(Lines({"\r\n  O5", " \tM30"}), false, false);
  ASSERT_EQ(file.GetNumberOfMainPrograms(), 1);
  EXPECT_EQ(LinesOf(*file.GetMainProgList().GetProgram(0)), (std::vector<std::string>{"O5", "M30"}));
}

TEST(KccNcFile, NineHundredNinetyNineThousandNineHundredNinetyEightLinesLoad) {
  KCStringList text;
  text.reserve(999998);
  for (int i = 0; i < 999997; ++i)
    text.push_back("G1");
  text.push_back("M30");
  KCC_NcFile file;
  EXPECT_NE(file.LoadFromStringList(text, false, false), nullptr);
  EXPECT_TRUE(file.HasNoError());
  EXPECT_EQ(file.GetMainProgList().GetProgram(0)->GetStringList().size(), 999998u);
}

TEST(KccNcFile, NineHundredNinetyNineThousandNineHundredNinetyNineLinesAreTooMany) {
  KCStringList text;
  text.reserve(999999);
  text.push_back("M30");
  for (int i = 1; i < 999999; ++i)
    text.push_back("G1");
  KCC_NcFile file;
  EXPECT_EQ(file.LoadFromStringList(text, false, false), nullptr);
  EXPECT_TRUE(file.HasTooManyLinesError());
  // Programs stored before the budget ran out stay in the lists.
  EXPECT_EQ(file.GetNumberOfMainPrograms(), 1);
}

TEST(KccNcFile, CheckMultipleProgramNumbersLooksAtBothLists) {
  KCC_NcFile file;
  file.LoadFromStringList(Lines({"O5", "M99", "O6", "M30", "O5", "M30"}), false, false);
  EXPECT_TRUE(file.CheckMultipleProgramNumbers());
  file.LoadFromStringList(Lines({"O5", "M99", "O6", "M30"}), false, false);
  EXPECT_FALSE(file.CheckMultipleProgramNumbers());
}

TEST(KccNcFile, RemoveAndClearWorkOnTheirList) {
  KCC_NcFile file;
  file.LoadFromStringList(Lines({"O5", "M99", "O6", "M30", "O7", "M30"}), false, false);
  EXPECT_FALSE(file.RemoveProgramFromMainProgramList(5));
  EXPECT_TRUE(file.RemoveProgramFromSubProgramList(5));
  EXPECT_TRUE(file.RemoveProgramFromMainProgramList(6));
  EXPECT_EQ(file.GetNumberOfMainPrograms(), 1);
  file.ClearMainProgramsList();
  EXPECT_TRUE(file.IsMainProgramsEmpty());
}

TEST(KccNcFile, ReInitForgetsEverythingButTheStructure) {
  TempDir dir;
  const std::string path = dir.WriteFile("s.mpf", "N50 FIRST_BLOCK\nRET\n");
  KCC_NcFile file;
  ASSERT_NE(file.LoadFromFile(path, true, false), nullptr);
  EXPECT_EQ(file.GetLoadedFromFileId(), path);
  file.ReInit();
  EXPECT_EQ(file.GetLoadedFromFileId(), "");
  EXPECT_TRUE(file.HasNoError());
  EXPECT_TRUE(file.IsMainProgramsEmpty());
  EXPECT_TRUE(file.IsSiemensNcFileStructure());
}

// ---- files ----

TEST(KccNcFile, EmptyFileNameIsReported) {
  KCC_NcFile file;
  EXPECT_EQ(file.LoadFromFile("", false, false), nullptr);
  EXPECT_TRUE(file.HasNoFileNameError());
}

TEST(KccNcFile, MissingFileIsReportedAndTheListsStay) {
  KCC_NcFile file;
  file.LoadFromStringList(Lines({"O1", "M30"}), false, false);
  TempDir dir;
  EXPECT_EQ(file.LoadFromFile(dir.Path("none.nc"), false, false), nullptr);
  EXPECT_TRUE(file.HasFileNotFoundError());
  EXPECT_EQ(file.GetNumberOfMainPrograms(), 1);
}

TEST(KccNcFile, SaveWritesThePercentLinesBackMainProgramsFirst) {
  TempDir dir;
  const std::string in = dir.WriteFile("in.nc", "%\nO8010\nM99\nO1\nM30\n%\n");
  KCC_NcFile file;
  ASSERT_NE(file.LoadFromFile(in, false, false), nullptr);
  ASSERT_TRUE(file.SaveToFile(dir.Path("out.nc")));
  EXPECT_EQ(dir.ReadFile("out.nc"), PlatformText("%\nO1\nM30\nO8010\nM99\n%\n"));
}

TEST(KccNcFile, SaveWithDirectoryAndNameJoinsThem) {
  TempDir dir;
  KCC_NcFile file;
  file.LoadFromStringList(Lines({"O1", "M30"}), false, false);
  ASSERT_TRUE(file.SaveToFile(KCString(dir.Path()), KCString("joined.nc")));
  EXPECT_EQ(dir.ReadFile("joined.nc"), PlatformText("%\nO1\nM30\n%\n"));
}

TEST(KccNcFile, SaveDoesNotDoubleExistingPercentLines) {
  TempDir dir;
  KCC_NcFile file;
  file.LoadFromStringList(Lines({"O1", "M30"}), false, false);
  KCC_NcFileProgram* p = file.GetMainProgList().GetProgram(0);
  p->GetStringList().insert(p->GetStringList().begin(), "%");
  p->AddLine("%");
  ASSERT_TRUE(file.SaveToFile(dir.Path("o.nc")));
  EXPECT_EQ(dir.ReadFile("o.nc"), PlatformText("%\nO1\nM30\n%\n"));
}

TEST(KccNcFile, SaveOfNoProgramsWritesAnEmptyFile) {
  TempDir dir;
  dir.WriteFile("o.nc", "old");
  KCC_NcFile file;
  ASSERT_TRUE(file.SaveToFile(dir.Path("o.nc")));
  EXPECT_TRUE(dir.Exists("o.nc"));
  EXPECT_EQ(dir.ReadFile("o.nc"), "");
}

TEST(KccNcFile, SaveWithEmptyNameFails) {
  KCC_NcFile file;
  EXPECT_FALSE(file.SaveToFile(""));
}

TEST(KccNcFile, FailedSaveLeavesTheExistingTargetAlone) {
  TempDir dir;
  // The target is a directory: it cannot be replaced by a file, and nothing inside it changes.
  dir.WriteFile("target.nc/keep.txt", "keep");
  KCC_NcFile file;
  file.LoadFromStringList(Lines({"O1", "M30"}), false, false);
  EXPECT_FALSE(file.SaveToFile(dir.Path("target.nc")));
  EXPECT_EQ(dir.ReadFile("target.nc/keep.txt"), "keep");
}

TEST(KccNcFile, SaveIntoAMissingDirectoryFails) {
  TempDir dir;
  KCC_NcFile file;
  file.LoadFromStringList(Lines({"O1", "M30"}), false, false);
  EXPECT_FALSE(file.SaveToFile(dir.Path("no/such/dir/o.nc")));
}

TEST(KccNcFile, SaveLeavesNoTemporaryFileBehind) {
  TempDir dir;
  KCC_NcFile file;
  file.LoadFromStringList(Lines({"O1", "M30"}), false, false);
  ASSERT_TRUE(file.SaveToFile(dir.Path("o.nc")));
  EXPECT_EQ(dir.EntryCount(), 1);
}

TEST(KccNcFile, SaveReplacesTheTextOfAnExistingFile) {
  TempDir dir;
  const std::string path =
      dir.WriteFile("o.nc", "%\nO9\nG00 X1 Y1 Z1 (a much longer old program text)\nM30\n%\n");
  KCC_NcFile file;
  file.LoadFromStringList(Lines({"O1", "M30"}), false, false);
  ASSERT_TRUE(file.SaveToFile(path));
  EXPECT_EQ(dir.ReadFile("o.nc"), PlatformText("%\nO1\nM30\n%\n"));
  EXPECT_EQ(dir.EntryCount(), 1);
}

#if defined(_WIN32)

namespace {

// Makes `link` a symbolic link to the file `target`. Returns "" when the link exists afterwards, otherwise
// why it could not be made: Windows lets only administrators, and everyone in developer mode, make links, and
// wine's CreateSymbolicLinkA reports success without making one. (MinGW's std::filesystem::create_symlink
// always fails with "Function not implemented", so the system call is used directly.)
std::string MakeFileSymlink(const std::string& target, const std::string& link) {
  constexpr DWORD kAllowUnprivilegedCreate = 0x2;  // SYMBOLIC_LINK_FLAG_ALLOW_UNPRIVILEGED_CREATE
  bool made = CreateSymbolicLinkA(link.c_str(), target.c_str(), kAllowUnprivilegedCreate) != 0;
  DWORD error = made ? 0 : GetLastError();
  if (!made && error == ERROR_INVALID_PARAMETER) {  // Windows before 10 1703 does not know the flag
    made = CreateSymbolicLinkA(link.c_str(), target.c_str(), 0) != 0;
    error = made ? 0 : GetLastError();
  }
  if (!made)
    return "CreateSymbolicLinkA failed with error " + std::to_string(error);
  const DWORD attributes = GetFileAttributesA(link.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
    return "CreateSymbolicLinkA reported success but made no symbolic link (as wine does)";
  return "";
}

bool IsSymlink(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

// The attributes that say how a file is marked, without those that describe what it is or where it lies.
DWORD MarkAttributes(const std::string& path) {
  return GetFileAttributesA(path.c_str()) &
         (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_READONLY);
}

}  // namespace

TEST(KccNcFile, SaveKeepsTheHiddenAndSystemAttributesOfTheReplacedFile) {
  TempDir dir;
  const std::string path = dir.WriteFile("o.nc", "old");
  ASSERT_NE(SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM), 0);
  KCC_NcFile file;
  file.LoadFromStringList(Lines({"O1", "M30"}), false, false);
  ASSERT_TRUE(file.SaveToFile(path));
  EXPECT_EQ(MarkAttributes(path), static_cast<DWORD>(FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM));
  EXPECT_EQ(dir.ReadFile("o.nc"), PlatformText("%\nO1\nM30\n%\n"));
  EXPECT_EQ(dir.EntryCount(), 1);
}

TEST(KccNcFile, SaveOverAPlainFileLeavesItPlain) {
  TempDir dir;
  const std::string path = dir.WriteFile("o.nc", "old");
  ASSERT_NE(SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL), 0);
  KCC_NcFile file;
  file.LoadFromStringList(Lines({"O1", "M30"}), false, false);
  ASSERT_TRUE(file.SaveToFile(path));
  EXPECT_EQ(MarkAttributes(path), 0u);
}

#else

TEST(KccNcFile, SaveKeepsThePermissionsOfTheReplacedFile) {
  TempDir dir;
  const std::string path = dir.WriteFile("o.nc", "old");
  std::filesystem::permissions(path, std::filesystem::perms::owner_read |
                                         std::filesystem::perms::owner_write |
                                         std::filesystem::perms::group_read);
  KCC_NcFile file;
  file.LoadFromStringList(Lines({"O1", "M30"}), false, false);
  ASSERT_TRUE(file.SaveToFile(path));
  EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms::owner_read |
                                                             std::filesystem::perms::owner_write |
                                                             std::filesystem::perms::group_read);
}

#endif

TEST(KccNcFile, SaveWritesThroughASymbolicLinkIntoTheFileItNames) {
  TempDir dir;
  const std::string real = dir.WriteFile("real.nc", "old");
#if defined(_WIN32)
  const std::string whyNot = MakeFileSymlink(real, dir.Path("link.nc"));
  if (!whyNot.empty())
    GTEST_SKIP() << whyNot;
#else
  std::filesystem::create_symlink(real, dir.Path("link.nc"));
#endif
  KCC_NcFile file;
  file.LoadFromStringList(Lines({"O1", "M30"}), false, false);
  ASSERT_TRUE(file.SaveToFile(dir.Path("link.nc")));
#if defined(_WIN32)
  EXPECT_TRUE(IsSymlink(dir.Path("link.nc")));
#else
  EXPECT_TRUE(std::filesystem::is_symlink(dir.Path("link.nc")));
#endif
  EXPECT_EQ(dir.ReadFile("real.nc"), PlatformText("%\nO1\nM30\n%\n"));
  EXPECT_EQ(dir.EntryCount(), 2);
}

TEST(KccNcFile, CopySharesTheProgramsWithTheOriginal) {
  KCC_NcFile file;
  file.LoadFromStringList(Lines({"O1", "M30", "O2", "M99"}), false, false);
  KCC_NcFile copy(file);
  EXPECT_EQ(copy.GetMainProgList().GetProgram(0), file.GetMainProgList().GetProgram(0));
  EXPECT_EQ(copy.GetSubProgList().GetProgram(0), file.GetSubProgList().GetProgram(0));
  EXPECT_TRUE(copy.HasNoError());
  // Only one of the two may delete the shared programs.
  copy.GetMainProgList().Detach();
  copy.GetSubProgList().Detach();
}

TEST(KccNcFile, LoadWithoutProgramsLeavesTheListsOfTheLoadBeforeEmpty) {
  KCC_NcFile file;
  file.LoadFromStringList(Lines({"O1", "M30", "O2", "M99"}), false, false);
  EXPECT_EQ(file.LoadFromStringList(Lines({"G0 X0"}), false, false), nullptr);
  EXPECT_TRUE(file.HasFileWithoutNcStructureError());
  EXPECT_TRUE(file.IsMainProgramsEmpty());
  EXPECT_TRUE(file.IsSubProgramsEmpty());
}

TEST(KccNcFile, MissingFileKeepsTheNameOfTheFileLoadedBefore) {
  TempDir dir;
  const std::string path = dir.WriteFile("p.nc", "O1\nM30\n");
  KCC_NcFile file;
  ASSERT_NE(file.LoadFromFile(path, false, false), nullptr);
  EXPECT_EQ(file.LoadFromFile(dir.Path("none.nc"), false, false), nullptr);
  EXPECT_EQ(file.GetErrorCode(), 2);
  EXPECT_EQ(file.GetLoadedFromFileId(), path);
}

TEST(KccNcFile, SuccessfulLoadResetsTheErrorCode) {
  KCC_NcFile file;
  file.LoadFromStringList(KCStringList(), false, false);
  ASSERT_EQ(file.GetErrorCode(), 5);
  ASSERT_NE(file.LoadFromStringList(Lines({"O1", "M30"}), false, false), nullptr);
  EXPECT_EQ(file.GetErrorCode(), 0);
}

TEST(KccNcFile, StructureStaysFromAnEarlierLoadWhenNoFirstBlockIsFound) {
  KCC_NcFile file;
  file.LoadFromStringList(Lines({"O1", "N50 FIRST_BLOCK", "RET"}), true, false);
  ASSERT_TRUE(file.IsSiemensNcFileStructure());
  file.LoadFromStringList(Lines({"O2", "G0 X0", "M30"}), true, false);
  EXPECT_TRUE(file.IsSiemensNcFileStructure());
}

TEST(KccNcFile, SaveOfOneEmptyProgramWritesASinglePercentLine) {
  TempDir dir;
  KCC_NcFile file;
  ASSERT_NE(file.LoadFromStringList(KCStringList(), false, true), nullptr);
  ASSERT_TRUE(file.SaveToFile(dir.Path("o.nc")));
  EXPECT_EQ(dir.ReadFile("o.nc"), PlatformText("%\n"));
}
