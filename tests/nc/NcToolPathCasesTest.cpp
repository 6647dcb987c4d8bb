// SPDX-License-Identifier: MIT
// Data-driven tool-path cases, one test per folder of tests/data/toolpath/: program.nc is loaded and its
// first main program (or, without one, its first sub-program) interpreted with the default options; the
// result, written as NcToolPathText.h's Describe writes it, must equal expected.txt. Run with the
// environment variable NCAPPKIT_REGENERATE_TOOLPATH=1 to write expected.txt from the result instead (then
// check the new file by hand before keeping it); tests/data/toolpath/README.md describes the form.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <string>
#include <vector>

#include "NcToolPathText.h"
#include "ncappkit/nc/KCC_NcFile.h"
#include "ncappkit/nc/KCC_NcToolPath.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace {

struct ToolPathCase {
  std::string name;
  fs::path dir;
};

void PrintTo(const ToolPathCase& c, std::ostream* out) {
  *out << c.dir.u8string();
}

std::vector<ToolPathCase> ReadCases() {
  const fs::path root = TestDataPath("toolpath");
  std::vector<ToolPathCase> cases;
  for (const std::string& name : ListCaseFolders(root))
    cases.push_back({name, root / fs::u8path(name)});
  if (cases.empty())
    cases.push_back({"no_cases", fs::path()});
  return cases;
}

bool Regenerating() {
  const char* value = std::getenv("NCAPPKIT_REGENERATE_TOOLPATH");
  return value != nullptr && std::string(value) == "1";
}

class NcToolPathCases : public ::testing::TestWithParam<ToolPathCase> {};

}  // namespace

TEST_P(NcToolPathCases, InterpretsToItsExpectedPath) {
  const ToolPathCase& c = GetParam();
  ASSERT_FALSE(c.dir.empty()) << "no case folders in " << TestDataPath("toolpath").u8string();
  KCC_NcFile file;
  ASSERT_NE(file.LoadFromFileWithoutLineLimit((c.dir / "program.nc").u8string(), true, true), nullptr)
      << "program.nc does not load: " << KCC_NcFile::GetErrorName(file.GetErrorCode()).str();
  KCC_NcFileProgram* program = file.GetMainProgList().GetProgram(0);
  if (program == nullptr)
    program = file.GetSubProgList().GetProgram(0);
  ASSERT_NE(program, nullptr);
  KCC_NcToolPath path;
  path.Interpret(file, *program);
  const std::string actual = toolpath_test::Describe(path);

  const fs::path expectedPath = c.dir / "expected.txt";
  if (Regenerating()) {
    std::ofstream(expectedPath, std::ios::binary) << actual;
    std::cout << "regenerated " << expectedPath.u8string() << "\n";
    return;
  }
  std::string expected;
  ASSERT_TRUE(ReadFileBytes(expectedPath, expected)) << expectedPath.u8string() << ": cannot be read";
  EXPECT_EQ(actual, expected);
}

INSTANTIATE_TEST_SUITE_P(Data, NcToolPathCases, ::testing::ValuesIn(ReadCases()), RowName());
