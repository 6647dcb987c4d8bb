// SPDX-License-Identifier: MIT
// Every real NC program of the shared corpus loads, and saving and reloading it gives the same programs: one
// test per corpus file.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "ncappkit/nc/KCC_NcFile.h"
#include "support/TempDir.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace {

// The file's lines without the reader's length limit (LF ends a line, a CR before it is dropped).
KCStringList ReadAllLines(const std::string& path) {
  KCStringList lines;
  for (const std::string& line : SplitLines(ReadFileBytes(fs::path(path))))
    lines.push_back(line);
  return lines;
}

// Loads like a client that falls back to reading the lines itself when they are too long for the reader.
// An unfinished last program is not kept: saved after a pending sub-program it would be taken into that
// sub-program on reloading.
bool LoadAnyway(KCC_NcFile& file, const std::string& path) {
  file.LoadFromFile(path, true, false);
  if (file.HasTooManyLinesError())
    file.LoadFromStringList(ReadAllLines(path), true, false);
  return file.HasNoError();
}

// Opens the loader's own line tests, to find where a program's body starts and ends.
class LineTests : public KCC_NcFile {
 public:
  bool IsNumberLine(const KCString& line) {
    int number = 0;
    KCString ref;
    return ParseProgramNumberLine(line, number, ref);
  }
  bool IsEnd(const KCString& line) {
    bool m30 = false, m99 = false, ret = false;
    return Check_M30_M99_RET_Command(line.c_str(), m30, m99, ret);
  }
};

// What a list's programs look like after a save: per program its number, reference text and its body (from
// its number line through its first end line); and all lines of the list in order. A sub-program stays open
// until the next number line, so lines between two programs can move from the second to the first on
// reloading; they are compared only as part of the whole list.
struct ListImage {
  std::vector<int> numbers;
  std::vector<std::string> refs;
  std::vector<std::vector<std::string>> numberedParts;
  std::vector<std::string> allLines;
};

ListImage Image(KCC_NcFileProgramList& list) {
  ListImage image;
  for (KCC_NcFileProgram* p = list.GetFirstProg(); p != nullptr; p = list.GetNextProg()) {
    image.numbers.push_back(p->GetProgramNumber());
    image.refs.push_back(p->GetProgramRef().str());
    LineTests tests;
    std::vector<std::string> part;
    bool inPart = p->GetProgramNumber() < 0;
    bool ended = false;
    for (const KCString& l : p->GetStringList()) {
      image.allLines.push_back(l.str());
      if (!inPart && tests.IsNumberLine(l))
        inPart = true;
      if (inPart && !ended) {
        part.push_back(l.str());
        ended = tests.IsEnd(l);
      }
    }
    image.numberedParts.push_back(part);
  }
  return image;
}

void ExpectSamePrograms(KCC_NcFileProgramList& before, KCC_NcFileProgramList& after) {
  const ListImage a = Image(before);
  const ListImage b = Image(after);
  EXPECT_EQ(a.numbers, b.numbers);
  EXPECT_EQ(a.refs, b.refs);
  EXPECT_TRUE(a.allLines == b.allLines);
  EXPECT_TRUE(a.numberedParts == b.numberedParts);
}

// Every file of the corpus but its notes.
bool IsCorpusFile(const fs::path& path) {
  return path.extension() != ".md";
}

class NcCorpus : public ::testing::TestWithParam<CorpusFile> {};

}  // namespace

TEST_P(NcCorpus, LoadsAndSurvivesSaveAndReload) {
  const fs::path& path = GetParam().path;
  if (path.empty())
    GTEST_SKIP() << "no NC corpus at " << NCAPPKIT_CORPUS_DIR;
  KCC_NcFile direct;
  const bool keptAll = direct.LoadFromFile(path.string(), true, true) != nullptr;
  EXPECT_TRUE(keptAll || direct.HasTooManyLinesError()) << "error code " << direct.GetErrorCode();

  KCC_NcFile original;
  if (!LoadAnyway(original, path.string())) {
    // Files without any program end have nothing to save; they must still report a defined error.
    EXPECT_TRUE(original.HasFileWithoutNcStructureError());
    return;
  }
  TempDir dir;
  const std::string saved = dir.Path("roundtrip.nc");
  ASSERT_TRUE(original.SaveToFile(saved));
  KCC_NcFile reloaded;
  ASSERT_TRUE(LoadAnyway(reloaded, saved));
  ExpectSamePrograms(original.GetMainProgList(), reloaded.GetMainProgList());
  ExpectSamePrograms(original.GetSubProgList(), reloaded.GetSubProgList());
}

INSTANTIATE_TEST_SUITE_P(Corpus, NcCorpus, ::testing::ValuesIn(CorpusFiles(IsCorpusFile)), RowName());

// The round trip above is empty for a file without programs: the corpus must hold some that have programs.
TEST(NcCorpusFiles, SomeFileHasPrograms) {
  const std::vector<CorpusFile> files = CorpusFiles(IsCorpusFile);
  if (files.front().path.empty())
    GTEST_SKIP() << "no NC corpus at " << NCAPPKIT_CORPUS_DIR;
  const bool any = std::any_of(files.begin(), files.end(), [](const CorpusFile& file) {
    KCC_NcFile loaded;
    return LoadAnyway(loaded, file.path.string());
  });
  EXPECT_TRUE(any);
}
