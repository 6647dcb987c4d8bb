// SPDX-License-Identifier: MIT
// Data-driven splitting cases: every folder of tests/data/nc/split_cases holds an NC file (input.nc), the
// load options (options: "first-block", "keep-unfinished") and the expected programs (expected.txt, one line
// per program: list, number, reference text, number of lines; led by "structure ..." with first-block).
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "ncappkit/nc/KCC_NcFile.h"

namespace fs = std::filesystem;

namespace {

std::string ReadText(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

std::string Describe(KCC_NcFile& file, bool withStructure) {
  std::string text;
  if (withStructure)
    text += std::string("structure ") + (file.IsSiemensNcFileStructure() ? "Siemens" : "Fanuc") + "\n";
  const char* names[] = {"main", "sub"};
  KCC_NcFileProgramList* lists[] = {&file.GetMainProgList(), &file.GetSubProgList()};
  for (int l = 0; l < 2; ++l) {
    for (KCC_NcFileProgram* p = lists[l]->GetFirstProg(); p != nullptr; p = lists[l]->GetNextProg()) {
      text += std::string(names[l]) + " " + std::to_string(p->GetProgramNumber()) + " " +
              p->GetProgramRef().str() + " " + std::to_string(p->GetStringList().size()) + "\n";
    }
  }
  return text;
}

}  // namespace

TEST(NcSplitCases, EachCaseSplitsIntoItsExpectedPrograms) {
  const fs::path root = fs::path(NCAPPKIT_TEST_DATA_DIR) / "nc" / "split_cases";
  std::vector<fs::path> cases;
  for (const auto& entry : fs::directory_iterator(root)) {
    if (entry.is_directory())
      cases.push_back(entry.path());
  }
  std::sort(cases.begin(), cases.end());
  ASSERT_FALSE(cases.empty());
  for (const fs::path& dir : cases) {
    SCOPED_TRACE(dir.filename().string());
    const std::string options = ReadText(dir / "options");
    const bool firstBlock = options.find("first-block") != std::string::npos;
    const bool keepUnfinished = options.find("keep-unfinished") != std::string::npos;
    KCC_NcFile file;
    ASSERT_NE(file.LoadFromFile((dir / "input.nc").string(), firstBlock, keepUnfinished), nullptr);
    EXPECT_EQ(Describe(file, firstBlock), ReadText(dir / "expected.txt"));
  }
}
