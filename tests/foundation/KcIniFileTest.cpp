// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>

#include "ncappkit/foundation/KCIniFile.h"
#include "support/TempDir.h"

#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <future>
#endif

namespace {

#if defined(_WIN32)
const std::string kNl = "\r\n";  // line end of a file the library creates
#else
const std::string kNl = "\n";
#endif

// ---------------------------------------------------------------------------------------------------------
// Reading

TEST(KcIniFile, MissingFileReadsAsEmptyAndIsNotCreatedByReading) {
  TempDir dir;
  KCIniFile ini(dir.Path("absent.ini"));

  EXPECT_EQ(ini.ReadString("App", "Lang", "Eng", false), "Eng");
  EXPECT_EQ(ini.ReadInteger("App", "Units", 3, false), 3);
  EXPECT_DOUBLE_EQ(ini.ReadDouble("App", "Scale", 1.5, false, -1), 1.5);
  EXPECT_FALSE(ini.HasKey("App", "Lang"));
  EXPECT_FALSE(dir.Exists("absent.ini"));
}

TEST(KcIniFile, SectionAndKeyNamesMatchWithoutRegardToCase) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[MyApp]\nLang=Deu\n"));

  EXPECT_EQ(ini.ReadString("MYAPP", "lang", "", false), "Deu");
  EXPECT_EQ(ini.ReadString("myapp", "LANG", "", false), "Deu");
}

TEST(KcIniFile, NamesAndValuesAreTrimmed) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "  [ App ]  \n\t Lang  =   Eng  \t\n"));

  EXPECT_EQ(ini.ReadString("App", "Lang", "", false), "Eng");
  EXPECT_EQ(ini.ReadString(" App\t", "  Lang ", "", false), "Eng");
}

TEST(KcIniFile, WriteWithBlanksAroundNamesUpdatesTheSameKey) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\nLang=Eng\n"));

  ASSERT_TRUE(ini.WriteString("  App ", " Lang\t", "Fra"));

  EXPECT_EQ(dir.ReadFile("a.ini"), "[App]\nLang=Fra\n");
}

TEST(KcIniFile, ReadsCrLfFilesLikeLfFiles) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\r\nLang=Eng\r\nUnits=2\r\n"));

  EXPECT_EQ(ini.ReadString("App", "Lang", "", false), "Eng");
  EXPECT_EQ(ini.ReadInteger("App", "Units", 0, false), 2);
}

TEST(KcIniFile, CommentLinesAreNotKeys) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\n;Lang=Fra\n# Units=2\n"));

  EXPECT_FALSE(ini.HasKey("App", "Lang"));
  EXPECT_FALSE(ini.HasKey("App", "Units"));
  EXPECT_FALSE(ini.HasKey("App", "# Units"));
}

TEST(KcIniFile, SemicolonInsideAValueBelongsToTheValue) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\nPath=a;b # c\n"));

  EXPECT_EQ(ini.ReadString("App", "Path", "", false), "a;b # c");
}

TEST(KcIniFile, DuplicateKeyReadsTheFirst) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\nLang=Eng\nLang=Fra\n"));

  EXPECT_EQ(ini.ReadString("App", "Lang", "", false), "Eng");
}

TEST(KcIniFile, KeyWithoutEqualsSignIsNotAKey) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\nLang\n=orphan\n"));

  EXPECT_FALSE(ini.HasKey("App", "Lang"));
  EXPECT_EQ(ini.ReadString("App", "Lang", "none", false), "none");
  EXPECT_FALSE(ini.HasKey("App", ""));
}

TEST(KcIniFile, SectionThatAppearsTwiceIsSearchedInBothFirstMatchWinning) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\nLang=Eng\n[Other]\nX=1\n[app]\nLang=Fra\nUnits=2\n"));

  EXPECT_EQ(ini.ReadString("App", "Lang", "", false), "Eng");
  EXPECT_EQ(ini.ReadInteger("App", "Units", 0, false), 2);
  EXPECT_FALSE(ini.HasKey("Other", "Units"));
}

TEST(KcIniFile, KeysBeforeTheFirstSectionBelongToTheNamelessSection) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "Top=1\n[App]\nLang=Eng\n"));

  EXPECT_EQ(ini.ReadInteger("", "Top", 0, false), 1);
  EXPECT_FALSE(ini.HasKey("App", "Top"));
  EXPECT_FALSE(ini.HasKey("", "Lang"));
}

TEST(KcIniFile, ReadIntegerGivesTheLeadingIntegerOrTheDefault) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[N]\nA=12.7\nB=abc\nC=-4 mm\nD=\n"));

  EXPECT_EQ(ini.ReadInteger("N", "A", 0, false), 12);
  EXPECT_EQ(ini.ReadInteger("N", "B", -1, false), -1);
  EXPECT_EQ(ini.ReadInteger("N", "C", 0, false), -4);
  EXPECT_EQ(ini.ReadInteger("N", "D", 9, false), 9);
}

TEST(KcIniFile, ReadDoubleGivesTheNumberOrTheDefault) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[N]\nA=2.5\nB=x\nC=-1e-3\n"));

  EXPECT_DOUBLE_EQ(ini.ReadDouble("N", "A", 0.0, false, -1), 2.5);
  EXPECT_DOUBLE_EQ(ini.ReadDouble("N", "B", 7.0, false, -1), 7.0);
  EXPECT_DOUBLE_EQ(ini.ReadDouble("N", "C", 0.0, false, -1), -0.001);
}

TEST(KcIniFile, EveryReadSeesTheFileAsItIsNow) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\nLang=Eng\n"));
  ASSERT_EQ(ini.ReadString("App", "Lang", "", false), "Eng");

  dir.WriteFile("a.ini", "[App]\nLang=Ita\n");

  EXPECT_EQ(ini.ReadString("App", "Lang", "", false), "Ita");
}

TEST(KcIniFile, FileNameIsKept) {
  const KCIniFile ini("some/dir/app.ini");

  EXPECT_EQ(ini.GetFileName(), "some/dir/app.ini");
}

// ---------------------------------------------------------------------------------------------------------
// Writing

TEST(KcIniFile, FirstWriteCreatesTheFile) {
  TempDir dir;
  KCIniFile ini(dir.Path("new.ini"));

  ASSERT_TRUE(ini.WriteString("App", "Lang", "Eng"));

  EXPECT_EQ(dir.ReadFile("new.ini"), "[App]" + kNl + "Lang=Eng" + kNl);
  EXPECT_EQ(ini.ReadString("App", "Lang", "", false), "Eng");
}

TEST(KcIniFile, WriteToNamelessSectionOfNewFileWritesAKeyWithoutHeader) {
  TempDir dir;
  KCIniFile ini(dir.Path("new.ini"));

  ASSERT_TRUE(ini.WriteInteger("", "Top", 5));

  EXPECT_EQ(dir.ReadFile("new.ini"), "Top=5" + kNl);
}

TEST(KcIniFile, RewriteKeepsCommentsUnknownLinesAndOrder) {
  TempDir dir;
  const std::string before =
      "; settings of the app\n"
      "[App]\n"
      "# language\n"
      "Lang=Eng\n"
      "this line means nothing\n"
      "Units=1\n"
      "\n"
      "[Paths]\n"
      "Data=/tmp\n";
  KCIniFile ini(dir.WriteFile("a.ini", before));

  ASSERT_TRUE(ini.WriteString("App", "Lang", "Deu"));

  EXPECT_EQ(dir.ReadFile("a.ini"),
            "; settings of the app\n"
            "[App]\n"
            "# language\n"
            "Lang=Deu\n"
            "this line means nothing\n"
            "Units=1\n"
            "\n"
            "[Paths]\n"
            "Data=/tmp\n");
}

TEST(KcIniFile, RewriteOfCrLfFileKeepsCrLf) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\r\nLang=Eng\r\n"));

  ASSERT_TRUE(ini.WriteString("App", "Units", "2"));

  EXPECT_EQ(dir.ReadFile("a.ini"), "[App]\r\nLang=Eng\r\nUnits=2\r\n");
}

TEST(KcIniFile, RewriteOfLfFileKeepsLf) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\nLang=Eng\n"));

  ASSERT_TRUE(ini.WriteString("App", "Lang", "Fra"));

  EXPECT_EQ(dir.ReadFile("a.ini"), "[App]\nLang=Fra\n");
}

TEST(KcIniFile, RewriteEndsTheLastLineEvenWhenTheFileDidNot) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\nLang=Eng"));

  ASSERT_TRUE(ini.WriteString("App", "Lang", "Fra"));

  EXPECT_EQ(dir.ReadFile("a.ini"), "[App]\nLang=Fra\n");
}

TEST(KcIniFile, UpdateKeepsTheKeySpellingAndTheBlanksAroundEquals) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\n  LANG = Eng\n"));

  ASSERT_TRUE(ini.WriteString("app", "lang", "Ita"));

  EXPECT_EQ(dir.ReadFile("a.ini"), "[App]\n  LANG = Ita\n");
}

TEST(KcIniFile, DuplicateKeyWriteUpdatesTheFirst) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\nLang=Eng\nLang=Fra\n"));

  ASSERT_TRUE(ini.WriteString("App", "Lang", "Deu"));

  EXPECT_EQ(dir.ReadFile("a.ini"), "[App]\nLang=Deu\nLang=Fra\n");
  EXPECT_EQ(ini.ReadString("App", "Lang", "", false), "Deu");
}

TEST(KcIniFile, KeyWithoutEqualsSignIsKeptWhenTheKeyIsWritten) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\nLang\n"));

  ASSERT_TRUE(ini.WriteString("App", "Lang", "Eng"));

  EXPECT_EQ(dir.ReadFile("a.ini"), "[App]\nLang=Eng\nLang\n");
}

TEST(KcIniFile, NewKeyGoesToTheFirstOccurrenceOfATwiceAppearingSection) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\nA=1\n\n[Other]\n[App]\nB=2\n"));

  ASSERT_TRUE(ini.WriteString("App", "C", "3"));

  EXPECT_EQ(dir.ReadFile("a.ini"), "[App]\nA=1\nC=3\n\n[Other]\n[App]\nB=2\n");
}

TEST(KcIniFile, KeyOnlyInTheSecondOccurrenceIsUpdatedWhereItStands) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\nA=1\n[App]\nB=2\n"));

  ASSERT_TRUE(ini.WriteString("App", "B", "20"));

  EXPECT_EQ(dir.ReadFile("a.ini"), "[App]\nA=1\n[App]\nB=20\n");
  EXPECT_EQ(ini.ReadInteger("App", "B", 0, false), 20);
}

TEST(KcIniFile, NewKeyGoesAfterTheLastKeyOfItsSection) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\nA=1\n; about the next section\n\n[Next]\nX=1\n"));

  ASSERT_TRUE(ini.WriteString("App", "B", "2"));

  EXPECT_EQ(dir.ReadFile("a.ini"), "[App]\nA=1\nB=2\n; about the next section\n\n[Next]\nX=1\n");
}

TEST(KcIniFile, NewKeyOfSectionWithoutKeysGoesRightAfterItsHeader) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[Empty]\n\n[Next]\n"));

  ASSERT_TRUE(ini.WriteString("Empty", "K", "v"));

  EXPECT_EQ(dir.ReadFile("a.ini"), "[Empty]\nK=v\n\n[Next]\n");
}

TEST(KcIniFile, NewSectionIsAppendedAfterABlankLine) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\nA=1\n"));

  ASSERT_TRUE(ini.WriteString("Paths", "Data", "/var/data"));

  EXPECT_EQ(dir.ReadFile("a.ini"), "[App]\nA=1\n\n[Paths]\nData=/var/data\n");
}

TEST(KcIniFile, ByteOrderMarkIsKept) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "\xEF\xBB\xBF[App]\nLang=Eng\n"));

  EXPECT_EQ(ini.ReadString("App", "Lang", "", false), "Eng");
  ASSERT_TRUE(ini.WriteString("App", "Lang", "Fra"));

  EXPECT_EQ(dir.ReadFile("a.ini"), "\xEF\xBB\xBF[App]\nLang=Fra\n");
}

TEST(KcIniFile, WriteBoolStoresOneAndZero) {
  TempDir dir;
  KCIniFile ini(dir.Path("a.ini"));

  ASSERT_TRUE(ini.WriteBool("App", "On", true));
  ASSERT_TRUE(ini.WriteBool("App", "Off", false));

  EXPECT_EQ(ini.ReadString("App", "On", "", false), "1");
  EXPECT_EQ(ini.ReadString("App", "Off", "", false), "0");
  EXPECT_EQ(ini.ReadInteger("App", "On", -1, false), 1);
  EXPECT_EQ(ini.ReadInteger("App", "Off", -1, false), 0);
}

TEST(KcIniFile, WriteIntegerAndWriteDoubleWriteDecimalText) {
  TempDir dir;
  KCIniFile ini(dir.Path("a.ini"));

  ASSERT_TRUE(ini.WriteInteger("N", "I", -42));
  ASSERT_TRUE(ini.WriteDouble("N", "D2", 1.5, 2));
  ASSERT_TRUE(ini.WriteDouble("N", "Dshort", 0.1, -1));

  EXPECT_EQ(dir.ReadFile("a.ini"), "[N]" + kNl + "I=-42" + kNl + "D2=1.50" + kNl + "Dshort=0.1" + kNl);
}

TEST(KcIniFile, ValueIsStoredTrimmed) {
  TempDir dir;
  KCIniFile ini(dir.Path("a.ini"));

  ASSERT_TRUE(ini.WriteString("App", "Lang", "  Eng  "));

  EXPECT_EQ(dir.ReadFile("a.ini"), "[App]" + kNl + "Lang=Eng" + kNl);
}

TEST(KcIniFile, ReadsWithCreateWriteTheDefaultOfAMissingKey) {
  TempDir dir;
  KCIniFile ini(dir.Path("a.ini"));

  EXPECT_EQ(ini.ReadString("App", "Lang", "Eng", true), "Eng");
  EXPECT_EQ(ini.ReadInteger("App", "Units", 1, true), 1);
  EXPECT_DOUBLE_EQ(ini.ReadDouble("App", "Scale", 2.25, true, 3), 2.25);

  EXPECT_EQ(dir.ReadFile("a.ini"), "[App]" + kNl + "Lang=Eng" + kNl + "Units=1" + kNl + "Scale=2.250" + kNl);
}

TEST(KcIniFile, ReadsWithCreateLeaveAnExistingKeyAlone) {
  TempDir dir;
  const std::string content = "[App]\nLang=Fra\nUnits=2\nScale=3\n";
  KCIniFile ini(dir.WriteFile("a.ini", content));

  EXPECT_EQ(ini.ReadString("App", "Lang", "Eng", true), "Fra");
  EXPECT_EQ(ini.ReadInteger("App", "Units", 1, true), 2);
  EXPECT_DOUBLE_EQ(ini.ReadDouble("App", "Scale", 1.0, true, 2), 3.0);

  EXPECT_EQ(dir.ReadFile("a.ini"), content);
}

TEST(KcIniFile, ReadsWithoutCreateDoNotWrite) {
  TempDir dir;
  const std::string content = "[App]\n";
  KCIniFile ini(dir.WriteFile("a.ini", content));

  ini.ReadString("App", "Lang", "Eng", false);
  ini.ReadInteger("App", "Units", 1, false);
  ini.ReadDouble("App", "Scale", 1.0, false, -1);

  EXPECT_EQ(dir.ReadFile("a.ini"), content);
}

TEST(KcIniFile, DeleteKeyRemovesEveryOccurrence) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\nLang=Eng\nA=1\nlang=Fra\n"));

  ASSERT_TRUE(ini.DeleteKey("App", "LANG"));

  EXPECT_FALSE(ini.HasKey("App", "Lang"));
  EXPECT_EQ(dir.ReadFile("a.ini"), "[App]\nA=1\n");
}

TEST(KcIniFile, DeleteOfAMissingKeyChangesNothing) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\nA=1\n"));

  EXPECT_TRUE(ini.DeleteKey("App", "B"));
  EXPECT_TRUE(KCIniFile(dir.Path("absent.ini")).DeleteKey("App", "B"));

  EXPECT_EQ(dir.ReadFile("a.ini"), "[App]\nA=1\n");
  EXPECT_FALSE(dir.Exists("absent.ini"));
}

TEST(KcIniFile, WritesThatCouldNotBeReadBackFailAndLeaveTheFileAlone) {
  TempDir dir;
  const std::string content = "[App]\nA=1\n";
  KCIniFile ini(dir.WriteFile("a.ini", content));

  EXPECT_FALSE(ini.WriteString("App", "A", "two\nlines"));
  EXPECT_FALSE(ini.WriteString("App", "a=b", "1"));
  EXPECT_FALSE(ini.WriteString("App", "", "1"));
  EXPECT_FALSE(ini.WriteString("App", ";comment", "1"));
  EXPECT_FALSE(ini.WriteString("App", "[x", "1"));
  EXPECT_FALSE(ini.WriteString("Ap]p", "A", "1"));
  EXPECT_FALSE(ini.WriteString("App\n", "A", "1"));

  EXPECT_EQ(dir.ReadFile("a.ini"), content);
}

TEST(KcIniFile, WriteLeavesNoTemporaryFileBehind) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\n"));

  ASSERT_TRUE(ini.WriteString("App", "A", "1"));
  ASSERT_TRUE(ini.WriteString("App", "B", "2"));

  EXPECT_EQ(dir.EntryCount(), 1);
}

#if defined(_WIN32)
TEST(KcIniFile, WriteKeepsTheHiddenAttributeOfTheIniFile) {
  TempDir dir;
  const std::string path = dir.WriteFile("a.ini", "[App]\n");
  ASSERT_NE(SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_HIDDEN), 0);
  KCIniFile ini(path);

  ASSERT_TRUE(ini.WriteString("App", "Lang", "Eng"));

  const DWORD attributes = GetFileAttributesA(path.c_str());
  ASSERT_NE(attributes, INVALID_FILE_ATTRIBUTES);
  EXPECT_NE(attributes & FILE_ATTRIBUTE_HIDDEN, 0u);
  EXPECT_EQ(ini.ReadString("App", "Lang", "", false), "Eng");
  EXPECT_EQ(dir.EntryCount(), 1);
}
#endif

// ---------------------------------------------------------------------------------------------------------
// Failed writes

TEST(KcIniFile, WriteFailsWhenNoFileCanBeCreatedBesideTheIniFile) {
  TempDir dir;
  // The ini file's directory is a regular file: nothing can be created there, not even by root.
  const std::string blocker = dir.WriteFile("blocker", "precious");
  KCIniFile ini(blocker + "/app.ini");

  EXPECT_FALSE(ini.WriteString("App", "Lang", "Eng"));
  EXPECT_FALSE(ini.WriteBool("App", "On", true));
  EXPECT_EQ(ini.ReadString("App", "Lang", "Eng", true), "Eng");  // the failed create does not hurt the read

  EXPECT_EQ(dir.ReadFile("blocker"), "precious");
  EXPECT_EQ(dir.EntryCount(), 1);
}

TEST(KcIniFile, FailedWriteLeavesTheExistingFileIntact) {
  TempDir dir;
  // A file name so long that the temporary name beside it (the name plus a suffix) exceeds the file
  // system's limit for one name: the old file exists and is readable, but no replacement can be written.
  const std::string name(250, 'n');
  const std::string content = "[App]\nLang=Eng\n";
  const std::string path = dir.WriteFile(name, content);
  if (dir.ReadFile(name) != content)
    GTEST_SKIP() << "the file system does not take 250-character names";
  KCIniFile ini(path);

  EXPECT_FALSE(ini.WriteString("App", "Lang", "Fra"));

  EXPECT_EQ(dir.ReadFile(name), content);
  EXPECT_EQ(ini.ReadString("App", "Lang", "", false), "Eng");
  EXPECT_EQ(dir.EntryCount(), 1);
}

#if !defined(_WIN32)
TEST(KcIniFile, WriteThatFailsHalfWayLeavesTheOldFileAndNoTemporaryFile) {
  TempDir dir;
  const std::string content = "[App]\nLang=Eng\n";
  KCIniFile ini(dir.WriteFile("a.ini", content));
  // A file-size limit below the new contents makes the write of the temporary file fail part way.
  rlimit saved{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &saved), 0);
  void (*previousHandler)(int) = signal(SIGXFSZ, SIG_IGN);
  rlimit small = saved;
  small.rlim_cur = 64;
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);

  const bool written = ini.WriteString("App", "Lang", std::string(1000, 'x'));

  setrlimit(RLIMIT_FSIZE, &saved);
  signal(SIGXFSZ, previousHandler);
  EXPECT_FALSE(written);
  EXPECT_EQ(dir.ReadFile("a.ini"), content);
  EXPECT_EQ(dir.EntryCount(), 1);
}
#endif

#if !defined(_WIN32)
TEST(KcIniFile, FailedWriteInReadOnlyDirectoryLeavesTheFileIntact) {
  if (geteuid() == 0)
    GTEST_SKIP() << "root writes into read-only directories";
  TempDir dir;
  const std::string content = "[App]\nLang=Eng\n";
  KCIniFile ini(dir.WriteFile("sub/a.ini", content));
  ASSERT_EQ(chmod(dir.Path("sub").c_str(), 0555), 0);

  const bool written = ini.WriteString("App", "Lang", "Fra");

  chmod(dir.Path("sub").c_str(), 0755);
  EXPECT_FALSE(written);
  EXPECT_EQ(dir.ReadFile("sub/a.ini"), content);
}
#else
TEST(KcIniFile, FailedWriteWhileAnotherProgramHoldsTheFileLeavesTheFileIntact) {
  // Windows: a reader that denies writing keeps the file from being replaced, as a read-only directory
  // does elsewhere.
  TempDir dir;
  const std::string content = "[App]\nLang=Eng\n";
  KCIniFile ini(dir.WriteFile("sub/a.ini", content));
  const int lock = _sopen(dir.Path("sub/a.ini").c_str(), _O_RDONLY | _O_BINARY, _SH_DENYWR);
  ASSERT_NE(lock, -1);

  const bool written = ini.WriteString("App", "Lang", "Fra");

  _close(lock);
  EXPECT_FALSE(written);
  EXPECT_EQ(dir.ReadFile("sub/a.ini"), content);
  EXPECT_EQ(dir.EntryCount("sub"), 1);
}
#endif

TEST(KcIniFile, PathThatIsADirectoryReadsAsEmptyAndIsNeverOverwritten) {
  TempDir dir;
  dir.WriteFile("folder.ini/inside", "x");
  KCIniFile ini(dir.Path("folder.ini"));

  EXPECT_EQ(ini.ReadString("App", "Lang", "Eng", false), "Eng");
  EXPECT_FALSE(ini.WriteString("App", "Lang", "Fra"));

  EXPECT_EQ(dir.ReadFile("folder.ini/inside"), "x");
}

TEST(KcIniFile, ReadsFilesWithCarriageReturnOnlyLineEnds) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\rLang=Eng\rUnits=2\r"));

  EXPECT_EQ(ini.ReadString("App", "Lang", "", false), "Eng");
  EXPECT_EQ(ini.ReadInteger("App", "Units", 0, false), 2);
}

TEST(KcIniFile, RewriteOfCarriageReturnOnlyFileUpdatesTheKeyAndKeepsItsLineEnds) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\rLang=Eng\rUnits=2\r"));

  ASSERT_TRUE(ini.WriteString("App", "Lang", "Fra"));

  EXPECT_EQ(dir.ReadFile("a.ini"), "[App]\rLang=Fra\rUnits=2\r");
}

TEST(KcIniFile, KeysAfterAnUnclosedSectionHeaderDoNotBelongToTheSectionAbove) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\nLang=Eng\n[Broken\nUnits=2\n"));

  EXPECT_EQ(ini.ReadString("App", "Lang", "", false), "Eng");
  EXPECT_EQ(ini.ReadInteger("App", "Units", 0, false), 0);
}

TEST(KcIniFile, NewKeyOfSectionBeforeAnUnclosedHeaderGoesBeforeThatHeader) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("a.ini", "[App]\nLang=Eng\n[Broken\nUnits=2\n"));

  ASSERT_TRUE(ini.WriteInteger("App", "Units", 1));

  EXPECT_EQ(dir.ReadFile("a.ini"), "[App]\nLang=Eng\nUnits=1\n[Broken\nUnits=2\n");
}

TEST(KcIniFile, FileNameWithANulByteNeitherReadsNorWritesAnotherFile) {
  TempDir dir;
  const std::string real = dir.WriteFile("a.ini", "[App]\nLang=Eng\n");
  KCIniFile ini(KCString(real + std::string(1, '\0') + "x"));

  EXPECT_EQ(ini.ReadString("App", "Lang", "none", false), "none");
  EXPECT_FALSE(ini.WriteString("App", "Lang", "Fra"));

  EXPECT_EQ(dir.ReadFile("a.ini"), "[App]\nLang=Eng\n");
  EXPECT_EQ(dir.EntryCount(), 1);
}

#if !defined(_WIN32)
TEST(KcIniFile, WriteThroughASymbolicLinkUpdatesTheFileItNamesAndKeepsTheLink) {
  TempDir dir;
  const std::string target = dir.WriteFile("real.ini", "[App]\nLang=Eng\n");
  const std::string link = dir.Path("link.ini");
  ASSERT_EQ(symlink(target.c_str(), link.c_str()), 0);
  KCIniFile ini(link);

  ASSERT_TRUE(ini.WriteString("App", "Lang", "Fra"));

  struct stat info {};
  ASSERT_EQ(lstat(link.c_str(), &info), 0);
  EXPECT_TRUE(S_ISLNK(info.st_mode));
  EXPECT_EQ(dir.ReadFile("real.ini"), "[App]\nLang=Fra\n");
  EXPECT_EQ(dir.EntryCount(), 2);
}
#endif

#if !defined(_WIN32)
TEST(KcIniFile, PathThatIsAFifoReadsAsEmptyWithoutWaitingForAWriter) {
  TempDir dir;
  const std::string fifo = dir.Path("pipe.ini");
  ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
  KCIniFile ini(fifo);

  std::future<KCString> read =
      std::async(std::launch::async, [&ini] { return ini.ReadString("App", "Lang", "Eng", false); });
  const bool finished = read.wait_for(std::chrono::seconds(10)) == std::future_status::ready;
  if (!finished) {
    // Release a reader that is blocked opening the fifo: a writer that comes and goes gives it an end of
    // file.
    const int writer = open(fifo.c_str(), O_WRONLY);
    if (writer >= 0)
      close(writer);
    FAIL() << "reading waited for a writer of the fifo";
  }

  EXPECT_EQ(read.get(), "Eng");
  EXPECT_FALSE(ini.WriteString("App", "Lang", "Fra"));
}
#endif

}  // namespace
