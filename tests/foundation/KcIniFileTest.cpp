// SPDX-License-Identifier: MIT
// KCIniFile. The cases "a file, some calls, the file afterwards" are the case folders of tests/data/ini (one
// KcIniFileCases test each, format in tests/data/ini/README.md); the tests below them are of other shapes:
// a file changed between reads, and writes that fail or meet odd paths.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "ncappkit/foundation/KCIniFile.h"
#include "support/PlatformText.h"
#include "support/TempDir.h"
#include "support/TestData.h"

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

namespace fs = std::filesystem;

// ---------------------------------------------------------------------------------------------------------
// Cases: before.ini, operation, after.ini

// One folder of tests/data/ini.
struct IniCase {
  std::string name;
  fs::path dir;
  bool hasBefore = false;  // else the file does not exist before the operation
  std::string before;
  std::vector<TableLine> operation;
  bool hasAfter = false;  // else the file is as it was before (or still missing)
  std::string after;
  std::string error;  // why the case cannot run
};

void PrintTo(const IniCase& c, std::ostream* out) {
  *out << c.dir.u8string();
}

std::vector<IniCase> ReadIniCases() {
  const fs::path root = TestDataPath("ini");
  std::vector<IniCase> cases;
  for (const std::string& name : ListCaseFolders(root)) {
    IniCase c;
    c.name = name;
    c.dir = root / fs::u8path(name);
    c.hasBefore = ReadFileBytes(c.dir / "before.ini", c.before);
    c.hasAfter = ReadFileBytes(c.dir / "after.ini", c.after);
    ReadTableLines(c.dir / "operation", c.operation, c.error);
    cases.push_back(c);
  }
  if (cases.empty()) {
    IniCase none;
    none.name = "no_cases";
    none.error = root.u8string() + ": no case folders";
    cases.push_back(none);
  }
  return cases;
}

bool ToBool(const std::string& text, bool& value) {
  value = text == "true";
  return value || text == "false";
}

// Runs one line of an operation file on `ini` and checks its result: "METHOD ARGUMENTS... [=> RESULT]",
// METHOD and ARGUMENTS as in KCIniFile's member functions. Without "=> RESULT" a method that answers true or
// false is expected to answer true; the Read methods need the result. "" when the line ran, else why not.
std::string RunOperation(KCIniFile& ini, const std::string& line) {
  std::vector<std::string> a;
  std::string error;
  if (!SplitWords(line, a, error))
    return error;
  std::string result;
  const auto arrow = std::find(a.begin(), a.end(), "=>");
  const bool hasResult = arrow != a.end();
  if (hasResult) {
    if (arrow + 2 != a.end())
      return "'=>' is followed by one result";
    result = arrow[1];
    a.erase(arrow, a.end());
  }
  const std::string method = a.empty() ? std::string() : a[0];
  const std::size_t count = a.size() - (a.empty() ? 0 : 1);
  bool answerExpected = true;
  if (hasResult && !ToBool(result, answerExpected) && method.rfind("Read", 0) != 0)
    return "the result of " + method + " is true or false";
  int i = 0;
  double d = 0.0;
  bool b = false;
  if (method == "WriteString" && count == 3) {
    EXPECT_EQ(ini.WriteString(a[1], a[2], a[3]), answerExpected);
  } else if (method == "WriteInteger" && count == 3 && ParseNumber(a[3], i)) {
    EXPECT_EQ(ini.WriteInteger(a[1], a[2], i), answerExpected);
  } else if (method == "WriteBool" && count == 3 && ToBool(a[3], b)) {
    EXPECT_EQ(ini.WriteBool(a[1], a[2], b), answerExpected);
  } else if (method == "WriteDouble" && count == 4 && ParseNumber(a[3], d) && ParseNumber(a[4], i)) {
    EXPECT_EQ(ini.WriteDouble(a[1], a[2], d, i), answerExpected);
  } else if (method == "DeleteKey" && count == 2) {
    EXPECT_EQ(ini.DeleteKey(a[1], a[2]), answerExpected);
  } else if (method == "HasKey" && count == 2) {
    EXPECT_EQ(ini.HasKey(a[1], a[2]), answerExpected);
  } else if (method == "ReadString" && count == 4 && ToBool(a[4], b) && hasResult) {
    EXPECT_EQ(ini.ReadString(a[1], a[2], a[3], b), result);
  } else if (method == "ReadInteger" && count == 4 && ParseNumber(a[3], i) && ToBool(a[4], b) && hasResult) {
    int expected = 0;
    if (!ParseNumber(result, expected))
      return "the result of ReadInteger is an integer";
    EXPECT_EQ(ini.ReadInteger(a[1], a[2], i, b), expected);
  } else if (method == "ReadDouble" && count == 5 && ParseNumber(a[3], d) && ToBool(a[4], b) &&
             ParseNumber(a[5], i) && hasResult) {
    double expected = 0.0;
    if (!ParseNumber(result, expected))
      return "the result of ReadDouble is a number";
    EXPECT_DOUBLE_EQ(ini.ReadDouble(a[1], a[2], d, b, i), expected);
  } else {
    return "no such operation, or wrong arguments (see tests/data/ini/README.md)";
  }
  return std::string();
}

class KcIniFileCases : public ::testing::TestWithParam<IniCase> {};

TEST_P(KcIniFileCases, OperationTurnsBeforeIntoAfter) {
  const IniCase& c = GetParam();
  ASSERT_TRUE(c.error.empty()) << c.error;
  TempDir dir;
  const std::string path = c.hasBefore ? dir.WriteFile("a.ini", c.before) : dir.Path("a.ini");
  KCIniFile ini(path);

  for (const TableLine& line : c.operation) {
    SCOPED_TRACE(Where(c.dir / "operation", line.number) + line.text);
    const std::string error = RunOperation(ini, line.text);
    EXPECT_TRUE(error.empty()) << error;
  }

  if (c.hasAfter) {
    // A file the library creates has the system's line end; one it rewrites keeps its own.
    ASSERT_TRUE(dir.Exists("a.ini"));
    EXPECT_EQ(dir.ReadFile("a.ini"), c.hasBefore ? c.after : PlatformText(c.after));
  } else if (c.hasBefore) {
    EXPECT_EQ(dir.ReadFile("a.ini"), c.before);
  } else {
    EXPECT_FALSE(dir.Exists("a.ini"));
  }
  EXPECT_EQ(dir.EntryCount(), dir.Exists("a.ini") ? 1 : 0) << "a temporary file was left behind";
}

INSTANTIATE_TEST_SUITE_P(Data, KcIniFileCases, ::testing::ValuesIn(ReadIniCases()), RowName());

// ---------------------------------------------------------------------------------------------------------
// Reading

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
