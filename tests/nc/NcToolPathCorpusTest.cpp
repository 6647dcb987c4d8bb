// SPDX-License-Identifier: MIT
// KCC_NcToolPath on real programs: the bundled samples (hand-checked results) and every NC file of the
// shared corpus (no crash, no hang, bounded result, within a time budget per file).
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "ncappkit/nc/KCC_NcFile.h"
#include "ncappkit/nc/KCC_NcToolPath.h"
#include "support/TempDir.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace {

std::string SamplePath(const char* name) {
  return (fs::path(NCAPPKIT_SOURCE_DIR) / "samples" / name).string();
}

std::vector<std::string> Warnings(const KCC_NcToolPath& path) {
  std::vector<std::string> texts;
  for (const KCC_NcToolPath::Note& n : path.GetWarnings())
    texts.push_back(std::to_string(n.line) + " " + n.text.str());
  return texts;
}

std::vector<std::string> Kinds(const KCC_NcToolPath& path) {
  std::vector<std::string> texts;
  for (const KCC_NcToolPath::KindCount& k : path.GetNotInterpretedKinds())
    texts.push_back(k.kind.str() + " " + std::to_string(k.count));
  return texts;
}

using Texts = std::vector<std::string>;

}  // namespace

// --- bundled samples ---------------------------------------------------------------------------------------

TEST(NcToolPathSamples, FanucJobRunsAllItsProgramsWithoutWarnings) {
  KCC_NcFile file;
  ASSERT_NE(file.LoadFromFile(SamplePath("fanuc_programs.nc"), true, false), nullptr);
  KCC_NcToolPath path;

  path.Interpret(file, *file.GetMainProgList().FindProgramFromList(1));

  EXPECT_TRUE(path.IsComplete());
  EXPECT_TRUE(path.GetWarnings().empty());
  // O1000: rapid down, the pocket O8020 twice (5 moves each), rapid up = 12; O2000: 2 rapids, then three
  // holes of O8030 with approach, descent and G98 return = 14.
  EXPECT_EQ(path.GetSegmentCount(), 26u);
}

TEST(NcToolPathSamples, FanucJobListsTheSetupCodesItDoesNotInterpret) {
  KCC_NcFile file;
  ASSERT_NE(file.LoadFromFile(SamplePath("fanuc_programs.nc"), true, false), nullptr);
  KCC_NcToolPath path;

  path.Interpret(file, *file.GetMainProgList().FindProgramFromList(1));

  EXPECT_EQ(Kinds(path), Texts({"G28 1", "G43 2", "G54 1"}));
}

TEST(NcToolPathSamples, FanucDrillProgramDrillsThreeHolesFromParameters) {
  KCC_NcFile file;
  ASSERT_NE(file.LoadFromFile(SamplePath("fanuc_programs.nc"), true, false), nullptr);
  KCC_NcToolPath path;

  path.Interpret(file, *file.GetMainProgList().FindProgramFromList(2000));

  KCC_NcToolPath::Extents box;
  ASSERT_TRUE(path.GetExtents(box));
  EXPECT_DOUBLE_EQ(box.min[2], -5.5);            // #101
  EXPECT_DOUBLE_EQ(box.max[0], 30.0);            // the last hole
  EXPECT_DOUBLE_EQ(path.GetFeedLength(), 22.5);  // three holes from R2 to -5.5
}

TEST(NcToolPathSamples, SiemensProgramReportsOnlyItsMissingSubProgram) {
  KCC_NcFile file;
  ASSERT_NE(file.LoadFromFile(SamplePath("siemens_program.mpf"), true, false), nullptr);
  KCC_NcToolPath path;

  path.Interpret(file, *file.GetMainProgList().GetProgram(0));

  EXPECT_EQ(Warnings(path), Texts({"6 sub-program L8010 not found: call not followed"}));
  EXPECT_TRUE(path.GetNotInterpreted().empty());
}

TEST(NcToolPathSamples, SiemensProgramFindsItsSubProgramInTheFolder) {
  KCC_NcFile file;
  ASSERT_NE(file.LoadFromFile(SamplePath("siemens_program.mpf"), true, false), nullptr);
  std::string text;
  for (const KCString& line : file.GetSubProgList().GetProgram(0)->GetStringList())
    text += line.str() + "\n";
  TempDir dir;
  dir.WriteFile("L8010.SPF", text);
  KCC_NcToolPath path;
  path.SetSubProgramFolder(dir.Path());

  path.Interpret(file, *file.GetMainProgList().GetProgram(0));

  EXPECT_TRUE(path.GetWarnings().empty());
  // Down to -R10 = -4.5, four sides of the pocket, then the rapid to Z100.
  EXPECT_EQ(path.GetSegmentCount(), 6u);
  KCC_NcToolPath::Extents box;
  ASSERT_TRUE(path.GetExtents(box));
  EXPECT_DOUBLE_EQ(box.min[2], -4.5);
}

// --- the shared corpus -------------------------------------------------------------------------------------

namespace {

// Limits low enough for a test run; a corpus file that reaches them is still interpreted to that point.
constexpr std::size_t kCorpusMaxSegments = 200000;
constexpr std::uint64_t kCorpusMaxBlocks = 2000000;
// Budget per file for loading it and interpreting every program (generous for debug and sanitizer builds).
constexpr double kCorpusSecondsPerFile = 30.0;

// NC programs only: the usual program extensions, and files without one (Fanuc O1234 files).
bool LooksLikeNc(const fs::path& path) {
  std::string extension = path.extension().string();
  std::transform(extension.begin(), extension.end(), extension.begin(),
                 [](unsigned char c) { return static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c); });
  static const char* const kExtensions[] = {"",     ".nc",  ".ngc", ".mpf", ".spf",
                                            ".tap", ".txt", ".cnc", ".all", ".gcode"};
  return std::find(std::begin(kExtensions), std::end(kExtensions), extension) != std::end(kExtensions);
}

class NcToolPathCorpus : public ::testing::TestWithParam<CorpusFile> {};

}  // namespace

TEST_P(NcToolPathCorpus, EveryProgramInterpretsWithinTheLimits) {
  const fs::path& file = GetParam().path;
  if (file.empty())
    GTEST_SKIP() << "no NC corpus at " << NCAPPKIT_CORPUS_DIR;
  const auto start = std::chrono::steady_clock::now();
  KCC_NcFile loaded;
  loaded.LoadFromFileWithoutLineLimit(file.string(), true, true);
  std::vector<KCC_NcFileProgram*> programs;
  for (KCC_NcFileProgramList* list : {&loaded.GetMainProgList(), &loaded.GetSubProgList()}) {
    for (KCC_NcFileProgram* p : *list) {
      if (p != nullptr)
        programs.push_back(p);
    }
  }
  for (KCC_NcFileProgram* program : programs) {
    KCC_NcToolPath path;
    path.SetMaxSegments(kCorpusMaxSegments);
    path.SetMaxBlocks(kCorpusMaxBlocks);

    path.Interpret(loaded, *program);

    SCOPED_TRACE("program " + std::to_string(program->GetProgramNumber()));
    EXPECT_LE(path.GetSegmentCount(), kCorpusMaxSegments);
    EXPECT_LE(path.GetBlockCount(), kCorpusMaxBlocks + 1);
    EXPECT_LE(path.GetWarnings().size(), KCC_NcToolPath::kMaxKeptNotes);
    EXPECT_TRUE(std::isfinite(path.GetRunTime()));
    bool wellFormed = true;
    for (const KCC_NcToolPath::Segment& s : path.GetSegments()) {
      wellFormed =
          wellFormed && s.program < path.GetProgramCount() && s.line >= 1 && s.kind <= KCC_NcToolPath::kHole;
      for (int i = 0; i < 3; ++i)
        wellFormed =
            wellFormed && std::isfinite(s.start[i]) && std::isfinite(s.end[i]) && std::isfinite(s.centre[i]);
    }
    EXPECT_TRUE(wellFormed);
  }
  const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  EXPECT_LT(seconds, kCorpusSecondsPerFile);
}

INSTANTIATE_TEST_SUITE_P(Corpus, NcToolPathCorpus, ::testing::ValuesIn(CorpusFiles(LooksLikeNc)), RowName());
