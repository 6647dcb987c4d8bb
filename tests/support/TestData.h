// SPDX-License-Identifier: MIT
// TestData: the one reader of tests/data/ for the data-driven tests. It finds data files, reads their bytes,
// lists case folders in a fixed order, reads line tables (with line numbers, without comments) and splits a
// line into words, quoted words included. Every failure says which file and line it is about. RowName names
// the rows of TEST_P tables, data-driven or written inline.
//
//   for (const std::string& name : ListCaseFolders(TestDataPath("nc/split_cases"))) ...   // sorted
//   std::vector<TableSection> rows;
//   std::string error;
//   if (!ReadTableSections(TestDataPath("nc/decode_blocks.txt"), rows, error)) ADD_FAILURE() << error;
//   SplitWords(R"(WriteString "  App " Lang Fra)", words, error);     // {"  App ", "Lang", "Fra"}
//
// Table files: a line whose first non-blank character is '#' is a comment; blank lines are skipped. A
// sectioned table groups its lines under "[name]" lines. Quoted words take the escapes \t \n \r \\ \" and
// \xHH (two hex digits), the same ones EscapeText writes.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <ostream>
#include <set>
#include <string>
#include <vector>

/// The path of `relative` ('/'-separated) inside tests/data/.
std::filesystem::path TestDataPath(const std::string& relative);

/// The bytes of the file at `path`; false (and `bytes` empty) when it cannot be read.
bool ReadFileBytes(const std::filesystem::path& path, std::string& bytes);
/// The bytes of the file at `path`, or "" when it cannot be read.
std::string ReadFileBytes(const std::filesystem::path& path);

/// The names of the folders directly inside `root`, sorted bytewise; empty when `root` is no folder.
std::vector<std::string> ListCaseFolders(const std::filesystem::path& root);

/// The names of the regular files directly inside `root` whose names end with `suffix` (".xml"), sorted
/// bytewise; empty when `root` is no folder.
std::vector<std::string> ListFilesWithSuffix(const std::filesystem::path& root, const std::string& suffix);

/// `text` split at LF. A CR right before an LF belongs to the line end; a final LF ends the last line and
/// starts no empty one (so "" gives no line and "a\n\n" gives "a" and "").
std::vector<std::string> SplitLines(const std::string& text);

/// One line of a table file and its number in the file (from 1).
struct TableLine {
  int number = 0;
  std::string text;
};

/// The lines of `text` that are neither comments nor blank, each with its line number.
std::vector<TableLine> TableLines(const std::string& text);
/// TableLines of the file at `path`; false with `error` ("PATH: cannot be read") when it cannot be read.
bool ReadTableLines(const std::filesystem::path& path, std::vector<TableLine>& lines, std::string& error);

/// A "[name]" line of a sectioned table and the table lines that follow it up to the next one.
struct TableSection {
  std::string name;
  int number = 0;  // line number of "[name]"
  std::vector<TableLine> lines;
};

/// The sections of the table file at `path`. False with `error` ("PATH:LINE: reason") when it cannot be
/// read, a table line stands before the first section, or a "[name]" line is not closed, empty or repeated.
bool ReadTableSections(const std::filesystem::path& path, std::vector<TableSection>& sections,
                       std::string& error);

/// Split `line` into words at blanks (spaces and tabs). A word in double quotes may hold blanks and escapes;
/// "" is an empty word. False with `error` (the reason) on an unclosed quote or an unknown escape.
bool SplitWords(const std::string& line, std::vector<std::string>& words, std::string& error);

/// True when the whole of `text` is a number, read into `value` without regard to the locale.
bool ParseNumber(const std::string& text, int& value);
/// True when the whole of `text` is a number, read into `value` without regard to the locale.
bool ParseNumber(const std::string& text, double& value);

/// `text` with backslashes, double quotes and control characters written as the escapes quoted words take.
std::string EscapeText(const std::string& text);

/// `text` as a GoogleTest name: letters, digits and '_' stay, every other character becomes '_'.
std::string ToTestName(const std::string& text);

/// A test name for a row that has none, made from its text: letters, digits and '_' stay, blanks separate,
/// and other characters are spelled as words: "2*(3+4)" gives "2_times_open_3_plus_4_close", "-1.5" gives
/// "minus_1_point_5"; "" gives "empty".
std::string SpelledTestName(const std::string& text);

/// Appends "_2", "_3", ... to the `name` of rows whose name an earlier row has already (GoogleTest stops at a
/// repeated name).
template <typename Row>
void MakeRowNamesUnique(std::vector<Row>& rows) {
  std::set<std::string> taken;
  for (Row& row : rows) {
    const std::string base = row.name;
    for (int n = 2; !taken.insert(row.name).second; ++n)
      row.name = base + "_" + std::to_string(n);
  }
}

/// Names the rows of a TEST_P table after their `name` member (made a GoogleTest name by ToTestName):
///   INSTANTIATE_TEST_SUITE_P(Table, MySuite, ::testing::ValuesIn(kRows), RowName());
struct RowName {
  template <typename Row>
  std::string operator()(const ::testing::TestParamInfo<Row>& info) const {
    return ToTestName(info.param.name);
  }
};

/// One file of the NC corpus (NCAPPKIT_CORPUS_DIR) as a row of a TEST_P table; `name` is its path inside
/// the corpus as a test name.
struct CorpusFile {
  std::string name;
  std::filesystem::path path;  // empty for the row that stands for a missing corpus
};
/// Prints the file's path as the row's parameter.
void PrintTo(const CorpusFile& file, std::ostream* out);

/// The regular files below the corpus folder for which `keep` holds, sorted by path, with unique names; a
/// single row "no_corpus" with an empty path when the folder is absent or keeps no file (the test skips).
std::vector<CorpusFile> CorpusFiles(const std::function<bool(const std::filesystem::path&)>& keep);

/// "PATH:LINE: ", the start of a message about a line of a data file.
std::string Where(const std::filesystem::path& path, int line);
