// SPDX-License-Identifier: MIT
// Data-driven loading cases, one test per case folder: tests/data/nc/split_cases/<case>/ (NcSplitCases) holds
// an NC file that loads and the programs it splits into, tests/data/nc/bad/<case>/ (NcBadCases) one that
// gives a load error, the error and what stays in the lists. Each folder has input.nc, an optional options
// file and expected.txt; tests/data/nc/README.md describes them.
#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "ncappkit/nc/KCC_NcFile.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace {

struct LoadOptions {
  bool firstBlock = false;
  bool keepUnfinished = false;
  bool fileOnly = false;
};

// The words of the case's options file (none when it has no such file); false with `error` on an unknown
// word.
bool ReadOptions(const fs::path& dir, LoadOptions& options, std::string& error) {
  const fs::path path = dir / "options";
  for (const TableLine& line : TableLines(ReadFileBytes(path))) {
    std::vector<std::string> words;
    if (!SplitWords(line.text, words, error)) {
      error = Where(path, line.number) + error;
      return false;
    }
    for (const std::string& word : words) {
      if (word == "first-block") {
        options.firstBlock = true;
      } else if (word == "keep-unfinished") {
        options.keepUnfinished = true;
      } else if (word == "file-only") {
        options.fileOnly = true;
      } else {
        error = Where(path, line.number) + "unknown option '" + word + "'";
        return false;
      }
    }
  }
  return true;
}

// How much of a load the expected text describes, told by the expected text itself.
struct Detail {
  bool lines = false;
  bool returns = false;
};

Detail DetailOf(const std::string& expected) {
  Detail detail;
  for (const std::string& line : SplitLines(expected)) {
    detail.lines = detail.lines || line == "|" || line.rfind("| ", 0) == 0;
    detail.returns = detail.returns || line.rfind("returns ", 0) == 0;
  }
  return detail;
}

std::string Describe(KCC_NcFile& file, const KCC_NcFileProgram* result, bool withStructure, Detail detail) {
  std::string text;
  if (withStructure)
    text += std::string("structure ") + (file.IsSiemensNcFileStructure() ? "Siemens" : "Fanuc") + "\n";
  const char* names[] = {"main", "sub"};
  KCC_NcFileProgramList* lists[] = {&file.GetMainProgList(), &file.GetSubProgList()};
  std::string returned = result == nullptr ? "null" : "a program of neither list";
  for (int l = 0; l < 2; ++l) {
    int index = 0;
    for (KCC_NcFileProgram* p = lists[l]->GetFirstProg(); p != nullptr;
         p = lists[l]->GetNextProg(), ++index) {
      text += std::string(names[l]) + " " + std::to_string(p->GetProgramNumber()) + " " +
              p->GetProgramRef().str() + " " + std::to_string(p->GetStringList().size()) + "\n";
      if (detail.lines) {
        for (const KCString& line : p->GetStringList())
          text += line.str().empty() ? "|\n" : "| " + EscapeText(line.str()) + "\n";
      }
      if (p == result)
        returned = std::string(names[l]) + "[" + std::to_string(index) + "]";
    }
  }
  if (detail.returns)
    text += "returns " + returned + "\n";
  return text;
}

// The error of the last load, named as in the Has...Error predicate that is true.
std::string ErrorName(const KCC_NcFile& file) {
  if (file.HasNoError())
    return "NoError";
  if (file.HasNoFileNameError())
    return "NoFileName";
  if (file.HasFileNotFoundError())
    return "FileNotFound";
  if (file.HasFileOpenError())
    return "FileOpen";
  if (file.HasTooManyLinesError())
    return "TooManyLines";
  if (file.HasFileWithoutNcStructureError())
    return "FileWithoutNcStructure";
  return "code " + std::to_string(file.GetErrorCode());
}

// A loading case: its folder and what was read from it.
struct LoadCase {
  std::string name;
  fs::path dir;
  LoadOptions options;
  std::string input;     // bytes of input.nc
  std::string expected;  // expected.txt
  std::string error;     // why the case cannot run
};

void PrintTo(const LoadCase& c, std::ostream* out) {
  *out << c.dir.u8string();
}

std::vector<LoadCase> ReadLoadCases(const std::string& folder) {
  const fs::path root = TestDataPath(folder);
  std::vector<LoadCase> cases;
  for (const std::string& name : ListCaseFolders(root)) {
    LoadCase c;
    c.name = name;
    c.dir = root / fs::u8path(name);
    if (!ReadFileBytes(c.dir / "input.nc", c.input))
      c.error = (c.dir / "input.nc").u8string() + ": cannot be read";
    else if (!ReadFileBytes(c.dir / "expected.txt", c.expected))
      c.error = (c.dir / "expected.txt").u8string() + ": cannot be read";
    else
      ReadOptions(c.dir, c.options, c.error);
    cases.push_back(c);
  }
  if (cases.empty()) {
    LoadCase none;
    none.name = "no_cases";
    none.dir = root;
    none.error = root.u8string() + ": no case folders";
    cases.push_back(none);
  }
  return cases;
}

// Loads the case's file, and unless it is file-only, the file's lines as a string list. `check` gets each
// loaded KCC_NcFile, what the load returned and the file name it was given ("" for the string list).
template <typename Check>
void LoadBothWays(const LoadCase& c, Check check) {
  const std::string path = (c.dir / "input.nc").u8string();
  {
    SCOPED_TRACE("LoadFromFile");
    KCC_NcFile file;
    KCC_NcFileProgram* result = file.LoadFromFile(path, c.options.firstBlock, c.options.keepUnfinished);
    check(file, result, path);
  }
  if (!c.options.fileOnly) {
    SCOPED_TRACE("LoadFromStringList of the file's lines");
    KCStringList lines;
    for (const std::string& line : SplitLines(c.input))
      lines.push_back(line);
    KCC_NcFile file;
    KCC_NcFileProgram* result =
        file.LoadFromStringList(lines, c.options.firstBlock, c.options.keepUnfinished);
    check(file, result, std::string());
  }
}

class NcSplitCases : public ::testing::TestWithParam<LoadCase> {};
class NcBadCases : public ::testing::TestWithParam<LoadCase> {};

}  // namespace

TEST_P(NcSplitCases, SplitsIntoItsExpectedPrograms) {
  const LoadCase& c = GetParam();
  ASSERT_TRUE(c.error.empty()) << c.error;
  const Detail detail = DetailOf(c.expected);
  LoadBothWays(c, [&](KCC_NcFile& file, KCC_NcFileProgram* result, const std::string& path) {
    ASSERT_NE(result, nullptr) << "error " << ErrorName(file);
    EXPECT_EQ(ErrorName(file), "NoError");
    if (!path.empty()) {
      EXPECT_EQ(file.GetLoadedFromFileId(), path);
    }
    EXPECT_EQ(Describe(file, result, c.options.firstBlock, detail), c.expected);
  });
}

TEST_P(NcBadCases, GivesItsExpectedError) {
  const LoadCase& c = GetParam();
  ASSERT_TRUE(c.error.empty()) << c.error;
  const Detail detail = DetailOf(c.expected);
  LoadBothWays(c, [&](KCC_NcFile& file, KCC_NcFileProgram* result, const std::string& path) {
    EXPECT_EQ(result, nullptr);
    const std::string error = ErrorName(file);
    // The file name is remembered when the file was read to its end, also when it held no program.
    if (!path.empty()) {
      EXPECT_EQ(file.GetLoadedFromFileId(), error == "FileWithoutNcStructure" ? path : std::string());
    }
    EXPECT_EQ("error " + error + "\n" + Describe(file, result, c.options.firstBlock, detail), c.expected);
  });
}

INSTANTIATE_TEST_SUITE_P(Data, NcSplitCases, ::testing::ValuesIn(ReadLoadCases("nc/split_cases")), RowName());
INSTANTIATE_TEST_SUITE_P(Data, NcBadCases, ::testing::ValuesIn(ReadLoadCases("nc/bad")), RowName());
