// SPDX-License-Identifier: MIT
// nckit plot over the NC corpus (NCAPPKIT_CORPUS_DIR): every file, with no option, gives a picture within
// a time budget, without crash or hang. A file whose first program gives no motion (a macro, a warm-up
// that only turns the spindle) exits 1 with that message and still writes its legend. The test is skipped
// when the corpus folder is absent.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "support/NckitFixture.h"
#include "support/TempDir.h"

namespace {

// Most seconds one file may take in a debug build with sanitizers; the largest corpus file (1.3 MB, 67,000
// segments) takes about a second there.
constexpr double kSecondsPerFile = 30.0;

class NckitPlotCorpus : public NckitTest {};

TEST_F(NckitPlotCorpus, EveryFilePlotsWithinItsTimeBudget) {
  const std::filesystem::path root(NCAPPKIT_CORPUS_DIR);
  std::error_code ec;
  if (!std::filesystem::is_directory(root, ec))
    GTEST_SKIP() << "no NC corpus at " << root.string();
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(root, ec)) {
    if (entry.is_regular_file() && entry.path().filename() != "SOURCES.md")
      files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  ASSERT_FALSE(files.empty()) << "the corpus at " << root.string() << " holds no file";
  TempDir dir;
  int drawn = 0;
  int skipped = 0;
  for (const std::filesystem::path& file : files) {
#ifdef _WIN32
    // nckit.exe receives its arguments in the system's ANSI code page, which cannot hold every name of the
    // corpus (some are Japanese), so on Windows only the files with ASCII paths are plotted.
    const std::string name = file.string();
    if (std::any_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) >= 0x80; })) {
      ++skipped;
      continue;
    }
#endif
    const std::string target = dir.Path("plot.svg");
    std::filesystem::remove(target, ec);
    const auto start = std::chrono::steady_clock::now();
    const ChildResult r = Run({"plot", file.string(), "-o", target}, kSecondsPerFile);
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    EXPECT_FALSE(r.timedOut) << file;
    EXPECT_LT(seconds, kSecondsPerFile) << file;
    if (r.exitCode == 0) {
      EXPECT_EQ(r.err, "") << file;
      ++drawn;
    } else {
      EXPECT_EQ(r.exitCode, 1) << file << ": " << r.err;
      EXPECT_NE(r.err.find("gives no motion; nothing is drawn"), std::string::npos) << file << ": " << r.err;
    }
    EXPECT_EQ(TempDir::ReadFileAt(target).rfind("<?xml", 0), 0u) << file << ": no picture written";
  }
  RecordProperty("files", static_cast<int>(files.size()));
  RecordProperty("drawn", drawn);
  RecordProperty("skipped_non_ascii_paths", skipped);
  EXPECT_GT(drawn, 0);
}

}  // namespace
