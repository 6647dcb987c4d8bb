// SPDX-License-Identifier: MIT
// The platform layer as the test program sees it: the running program's path, the version text of program
// files, and the replaceable message-box handler. On Windows these go through GetModuleFileNameA, the files'
// version resources and MessageBoxA; elsewhere the tests check the portable substitutes that take their
// place.
#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

#include "ncappkit/foundation/KCC_MessageBox.h"
#include "ncappkit/foundation/KCFileMan.h"
#include "ncappkit/foundation/KCIniFile.h"
#include "ncappkit/foundation/KCPlatform.h"
#include "ncappkit/nc/KCC_NcFile.h"
#include "ncappkit/nc/KCC_NcFileProgram.h"
#include "ncappkit/nc/KCC_NcFileProgramList.h"
#include "ncappkit/version.h"
#include "support/PlatformText.h"
#include "support/TempDir.h"

#if defined(_WIN32)
#include <windows.h>
#endif

namespace {

// The test program's own file name without directory and extension.
constexpr const char* kTestProgramName = "ncappkit_foundation_tests";

// What the message-box handler below last received.
struct SeenBox {
  HWND owner = nullptr;
  std::string text;
  std::string caption;
  unsigned int style = 0;
  int calls = 0;
};
SeenBox g_seen;

unsigned int AnswerRetry(HWND owner, const char* text, const char* caption, unsigned int style) {
  g_seen.owner = owner;
  g_seen.text = text;
  g_seen.caption = caption;
  g_seen.style = style;
  ++g_seen.calls;
  return 4;  // Retry
}

unsigned int AnswerNo(HWND, const char*, const char*, unsigned int) {
  return 7;  // No
}

// Installs a handler for one test and puts the previous one back afterwards.
class ScopedHandler {
 public:
  explicit ScopedHandler(KCC_MessageBoxHandler handler) : m_previous(KCC_SetMessageBoxHandler(handler)) {}
  ~ScopedHandler() { KCC_SetMessageBoxHandler(m_previous); }
  ScopedHandler(const ScopedHandler&) = delete;
  ScopedHandler& operator=(const ScopedHandler&) = delete;

 private:
  KCC_MessageBoxHandler m_previous;
};

// The lines of the first main program of `file`.
std::vector<std::string> FirstProgramLines(KCC_NcFile& file) {
  std::vector<std::string> lines;
  const KCC_NcFileProgram* program = file.GetMainProgList().GetProgram(0);
  if (program == nullptr)
    return lines;
  for (const KCString& line : program->GetStringList())
    lines.push_back(line.str());
  return lines;
}

// Writes `text` through a text-mode stream, as a Windows editor or program would ("\r\n" on Windows).
std::string WriteThroughTextStream(const TempDir& dir, const std::string& name, const std::string& text) {
  const std::string path = dir.Path(name);
  std::ofstream out(path);
  out << text;
  out.close();
  EXPECT_TRUE(out.good()) << path;
  return path;
}

const std::vector<std::string> kPlateLines = {"O1 (PLATE)", "G0 X1. Y2.", "M30"};

std::string LibraryVersion(bool withBuild) {
  return withBuild ? std::string(NCAPPKIT_VERSION_STRING) + ".0" : std::string(NCAPPKIT_VERSION_STRING);
}

}  // namespace

TEST(KcWindowsLane, ExecutablePathNamesTheRunningTestProgram) {
  const KCString path = KCC_GetExecutablePath();

  EXPECT_EQ(KCFileMan::ExtractFileNameNoExt(path).str(), kTestProgramName);
  EXPECT_TRUE(KCFileMan::FileExists(path)) << path.str();
}

TEST(KcWindowsLane, ExecutablePathIsAbsolute) {
  const std::string path = KCC_GetExecutablePath().str();

#if defined(_WIN32)
  // "C:\dir\prog.exe" or "\\server\share\prog.exe"
  const bool drive = path.size() > 3 && path[1] == ':' && path[2] == '\\';
  const bool unc = path.rfind("\\\\", 0) == 0;
  EXPECT_TRUE(drive || unc) << path;
  EXPECT_EQ(KCFileMan::ExtractFileExt(path).UpperCase().str(), ".EXE");
#else
  ASSERT_FALSE(path.empty());
  EXPECT_EQ(path.front(), '/');
#endif
}

TEST(KcWindowsLane, VersionTextOfTheRunningProgramComesBack) {
  const KCString path = KCC_GetExecutablePath();

  EXPECT_EQ(KCFileMan::GetFullFileVersion(path, true).str(), LibraryVersion(true));
  EXPECT_EQ(KCFileMan::GetFullFileVersion(path, false).str(), LibraryVersion(false));
}

TEST(KcWindowsLane, VersionTextOfAMissingFileIsEmpty) {
  TempDir dir;

  EXPECT_EQ(KCFileMan::GetFullFileVersion(dir.Path("absent.exe"), true).str(), "");
}

#if defined(_WIN32)

TEST(KcWindowsLane, ExecutablePathMatchesTheModuleFileName) {
  char buffer[MAX_PATH] = {};
  const DWORD length = GetModuleFileNameA(nullptr, buffer, MAX_PATH);
  ASSERT_GT(length, 0u);

  EXPECT_EQ(KCC_GetExecutablePath().str(), std::string(buffer, length));
}

TEST(KcWindowsLane, FileWithoutVersionResourceGivesEmptyVersionText) {
  TempDir dir;
  const std::string plain = dir.WriteFile("notes.txt", "no resources in here\r\n");

  EXPECT_EQ(KCFileMan::GetFullFileVersion(plain, true).str(), "");
}

TEST(KcWindowsLane, VersionTextOfTheLibraryDllComesBack) {
  // The module that holds KCFileMan is the library's DLL.
  HMODULE library = nullptr;
  ASSERT_TRUE(GetModuleHandleExA(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      reinterpret_cast<LPCSTR>(&KCC_GetExecutablePath), &library));
  char buffer[MAX_PATH] = {};
  const DWORD length = GetModuleFileNameA(library, buffer, MAX_PATH);
  ASSERT_GT(length, 0u);
  const KCString dllPath(std::string(buffer, length));

  EXPECT_EQ(KCFileMan::ExtractFileExt(dllPath).UpperCase().str(), ".DLL");
  EXPECT_EQ(KCFileMan::GetFullFileVersion(dllPath, true).str(), LibraryVersion(true));
}

#ifdef NCKIT_EXE
TEST(KcWindowsLane, VersionTextOfNckitComesBack) {
  EXPECT_EQ(KCFileMan::GetFullFileVersion(NCKIT_EXE, true).str(), LibraryVersion(true));
}
#endif

#else  // the portable substitutes

TEST(KcWindowsLane, AnyExistingFileCarriesTheLibraryVersionOffWindows) {
  TempDir dir;
  const std::string plain = dir.WriteFile("notes.txt", "no resources in here\n");

  EXPECT_EQ(KCFileMan::GetFullFileVersion(plain, true).str(), LibraryVersion(true));
  EXPECT_EQ(KCFileMan::GetFullFileVersion(plain, false).str(), LibraryVersion(false));
}

#endif

TEST(KcWindowsLane, InstalledHandlerReceivesTheBoxInsteadOfTheSystem) {
  ScopedHandler scoped(&AnswerRetry);
  g_seen = SeenBox();
  HWND owner = reinterpret_cast<HWND>(static_cast<std::uintptr_t>(0x1234));
  KCC_MessageBox box(owner, "Caption", "Body");
  box.SetTypeRetryCancel();
  box.SetIconStop();
  box.SetDefaultButton(2);

  box.DoModal();

  EXPECT_EQ(g_seen.calls, 1);
  EXPECT_EQ(g_seen.owner, owner);
  EXPECT_EQ(g_seen.text, "Body");
  EXPECT_EQ(g_seen.caption, "Caption");
  EXPECT_EQ(g_seen.style, 0x100u | 0x10u | 5u);
  EXPECT_TRUE(box.IsRetry());
}

TEST(KcWindowsLane, ReplacingTheHandlerReturnsTheOneItReplaces) {
  const KCC_MessageBoxHandler systemHandler = KCC_SetMessageBoxHandler(&AnswerNo);
  const KCC_MessageBoxHandler replaced = KCC_SetMessageBoxHandler(&AnswerRetry);
  const KCC_MessageBoxHandler restoredFrom = KCC_SetMessageBoxHandler(systemHandler);

  EXPECT_NE(systemHandler, nullptr);
  EXPECT_EQ(replaced, &AnswerNo);
  EXPECT_EQ(restoredFrom, &AnswerRetry);
}

TEST(KcWindowsLane, NullHandlerRestoresTheSystemBox) {
  const KCC_MessageBoxHandler systemHandler = KCC_SetMessageBoxHandler(&AnswerNo);
  KCC_SetMessageBoxHandler(nullptr);
  const KCC_MessageBoxHandler afterReset = KCC_SetMessageBoxHandler(systemHandler);

  EXPECT_EQ(afterReset, systemHandler);
}

TEST(KcWindowsLane, ReportShowsTheTextThroughTheInstalledHandler) {
  ScopedHandler scoped(&AnswerRetry);
  g_seen = SeenBox();
  KCC_MessageBox box;
  box.SetHeader("Load");
  box.AddMessage("file not found");

  box.DoReport();

  EXPECT_EQ(g_seen.owner, nullptr);
  EXPECT_EQ(g_seen.text, "\nfile not found");
  EXPECT_EQ(g_seen.caption, "Load");
  EXPECT_EQ(g_seen.style, 0x30u);  // OK, exclamation, first button
  EXPECT_EQ(box.GetReturn(), 4u);
}

TEST(KcWindowsLane, NcFileWithCrLfLineEndsLoadsTheSameLinesAsWithLf) {
  TempDir dir;
  const std::string crlf = dir.WriteFile("crlf.nc", "%\r\nO1 (PLATE)\r\nG0 X1. Y2.\r\nM30\r\n%\r\n");
  const std::string lf = dir.WriteFile("lf.nc", "%\nO1 (PLATE)\nG0 X1. Y2.\nM30\n%\n");
  KCC_NcFile fromCrlf;
  KCC_NcFile fromLf;

  ASSERT_NE(fromCrlf.LoadFromFile(crlf, true, false), nullptr);
  ASSERT_NE(fromLf.LoadFromFile(lf, true, false), nullptr);

  EXPECT_EQ(FirstProgramLines(fromCrlf), kPlateLines);
  EXPECT_EQ(FirstProgramLines(fromLf), kPlateLines);
}

TEST(KcWindowsLane, NcFileWrittenThroughATextStreamLoads) {
  TempDir dir;
  const std::string path = WriteThroughTextStream(dir, "stream.nc", "%\nO1 (PLATE)\nG0 X1. Y2.\nM30\n%\n");
  ASSERT_EQ(TempDir::ReadFileAt(path), PlatformText("%\nO1 (PLATE)\nG0 X1. Y2.\nM30\n%\n"));
  KCC_NcFile file;

  ASSERT_NE(file.LoadFromFile(path, true, false), nullptr);

  EXPECT_EQ(FirstProgramLines(file), kPlateLines);
}

TEST(KcWindowsLane, NcFileWithCrLfSavesWithTheSystemLineEndsAndReloadsUnchanged) {
  TempDir dir;
  const std::string crlf = dir.WriteFile("crlf.nc", "%\r\nO1 (PLATE)\r\nG0 X1. Y2.\r\nM30\r\n%\r\n");
  KCC_NcFile original;
  ASSERT_NE(original.LoadFromFile(crlf, true, false), nullptr);

  ASSERT_TRUE(original.SaveToFile(dir.Path("saved.nc")));
  KCC_NcFile reloaded;
  ASSERT_NE(reloaded.LoadFromFile(dir.Path("saved.nc"), true, false), nullptr);

  // On Windows the saved bytes are the loaded file's bytes again.
  EXPECT_EQ(dir.ReadFile("saved.nc"), PlatformText("%\nO1 (PLATE)\nG0 X1. Y2.\nM30\n%\n"));
  EXPECT_EQ(FirstProgramLines(reloaded), kPlateLines);
}

TEST(KcWindowsLane, IniFileWithCrLfLineEndsReadsItsKeys) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("app.ini", "[App]\r\nLang=Fra\r\nUnits=Inch\r\n\r\n[Other]\r\nLang=Ned\r\n"));

  EXPECT_EQ(ini.ReadString("App", "Lang", "", false).str(), "Fra");
  EXPECT_EQ(ini.ReadString("App", "Units", "", false).str(), "Inch");
  EXPECT_EQ(ini.ReadString("Other", "Lang", "", false).str(), "Ned");
}

TEST(KcWindowsLane, IniFileWithCrLfKeepsItsLineEndsWhenAKeyIsWritten) {
  TempDir dir;
  KCIniFile ini(dir.WriteFile("app.ini", "[App]\r\nLang=Fra\r\nUnits=Inch\r\n"));

  ASSERT_TRUE(ini.WriteString("App", "Lang", "Eng"));

  EXPECT_EQ(dir.ReadFile("app.ini"), "[App]\r\nLang=Eng\r\nUnits=Inch\r\n");
  EXPECT_EQ(ini.ReadString("App", "Lang", "", false).str(), "Eng");
}

TEST(KcWindowsLane, IniFileWrittenThroughATextStreamRoundTrips) {
  TempDir dir;
  const std::string path = WriteThroughTextStream(dir, "app.ini", "[App]\nLang=Fra\nUnits=Inch\n");
  KCIniFile ini(path);

  ASSERT_TRUE(ini.WriteInteger("App", "WriteEnable", 3));

  EXPECT_EQ(TempDir::ReadFileAt(path), PlatformText("[App]\nLang=Fra\nUnits=Inch\nWriteEnable=3\n"));
  EXPECT_EQ(ini.ReadString("App", "Lang", "", false).str(), "Fra");
  EXPECT_EQ(ini.ReadInteger("App", "WriteEnable", 0, false), 3);
}

TEST(KcWindowsLane, NcFileWithANonAsciiNameLoadsThroughTheLibrarysNarrowPaths) {
  // The name is UTF-8, as every 8-bit text of the library; Windows programs declare UTF-8 as their code page.
  const std::string name =
      "Pr\xC3\xBC"
      "fteil-\xE3\x83\xAF\xE3\x83\xBC\xE3\x82\xAF.nc";
  TempDir dir;
  const std::string path = dir.WriteFile(name, "%\r\nO1 (PLATE)\r\nG0 X1. Y2.\r\nM30\r\n%\r\n");
  KCC_NcFile file;

  ASSERT_TRUE(KCFileMan::FileExists(path)) << path;
  ASSERT_NE(file.LoadFromFile(path, true, false), nullptr);

  EXPECT_EQ(FirstProgramLines(file), kPlateLines);
  EXPECT_EQ(KCFileMan::ExtractFileNameNoExt(path).str(), name.substr(0, name.size() - 3));
#if defined(_WIN32)
  EXPECT_EQ(GetACP(), 65001u);  // CP_UTF8
#endif
}
