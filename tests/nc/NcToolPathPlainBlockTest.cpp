// SPDX-License-Identifier: MIT
// KCC_NcToolPath reads a block made only of plain address words ("N20 G01 Y3") by a short way and
// every other block word by word. A comment at the end of a block sends it the long way without changing
// what it says, so each row is interpreted twice, as written and with " (C)" after every block, and both
// results must agree to the last bit: segments, warnings, not-interpreted entries, extents, lengths, time.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "NcToolPathText.h"
#include "ncappkit/nc/KCC_NcToolPath.h"

using toolpath_test::Describe;
using toolpath_test::Interpret;

namespace {

struct PlainBlockCase {
  const char* name;
  std::vector<std::string> blocks;  // between "O1" and "M30"
};

std::vector<std::string> Program(const std::vector<std::string>& blocks, const std::string& suffix) {
  std::vector<std::string> lines{"O1"};
  for (const std::string& block : blocks)
    lines.push_back(block + suffix);
  lines.push_back("M30");
  return lines;
}

// Every coordinate of every segment, the extents, lengths and time as exact numbers.
std::vector<double> Numbers(const KCC_NcToolPath& path) {
  std::vector<double> numbers;
  for (const KCC_NcToolPath::Segment& s : path.GetSegments()) {
    for (int a = 0; a < 3; ++a) {
      numbers.push_back(static_cast<double>(s.start[a]));
      numbers.push_back(static_cast<double>(s.end[a]));
      numbers.push_back(static_cast<double>(s.centre[a]));
    }
    numbers.push_back(static_cast<double>(s.feed));
  }
  KCC_NcToolPath::Extents box;
  if (path.GetExtents(box)) {
    numbers.insert(numbers.end(), box.min, box.min + 3);
    numbers.insert(numbers.end(), box.max, box.max + 3);
  }
  numbers.push_back(path.GetRapidLength());
  numbers.push_back(path.GetFeedLength());
  numbers.push_back(path.GetRunTime());
  return numbers;
}

class NcToolPathPlainBlock : public ::testing::TestWithParam<PlainBlockCase> {};

}  // namespace

TEST_P(NcToolPathPlainBlock, ReadsAsTheSameBlockWithACommentDoes) {
  const KCC_NcToolPath plain = Interpret(Program(GetParam().blocks, ""));
  const KCC_NcToolPath commented = Interpret(Program(GetParam().blocks, " (C)"));

  EXPECT_EQ(Describe(plain), Describe(commented));
  EXPECT_EQ(Numbers(plain), Numbers(commented));
  EXPECT_EQ(plain.GetBlockCount(), commented.GetBlockCount());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, NcToolPathPlainBlock,
    ::testing::Values(
        PlainBlockCase{"SignedAndShortDecimals", {"G01 X-12.345 Y.5 Z+3. F1200", "X-.25 Y-0.5 Z-0"}},
        PlainBlockCase{"WordsWithoutBlanks", {"G01X10Y-5.25F300", "G2X20Y-5.25I5J0"}},
        PlainBlockCase{"LowerCaseLetters", {"g1 x4.5 y-2 f100", "g3 x0 y0 r5"}},
        PlainBlockCase{"BlockNumbersAreSkipped", {"N10 G0 X1", "N20 G1 Y2 F50", "N30"}},
        PlainBlockCase{"TabsBetweenWords", {"G1\tX3\tY4 F10"}},
        PlainBlockCase{"LongNumbers",
                       {"G1 X123456789.123456789 Y0.000000001234 F10", "X0.1000000000000000055"}},
        PlainBlockCase{"LetterGivenTwiceWarns", {"G1 X1 X2 F10"}},
        PlainBlockCase{"SeventeenGWordsWarn", {"G1 G1 G1 G1 G1 G1 G1 G1 G1 G1 G1 G1 G1 G1 G1 G1 G1 X5 F10"}},
        PlainBlockCase{"LetterWithoutNumberWarns", {"G1 X F10", "G1 Y2 Z"}},
        PlainBlockCase{"ArcsByRadius", {"G2 X5 Y5 R5 F100", "G3 X0 Y0 R-5", "R10 X1"}},
        PlainBlockCase{"ToolChangeDwellAndMCodes", {"T3 M6", "G4 P500", "G1 X1 F10 M8", "M9 M5"}},
        PlainBlockCase{"LettersNotInterpreted", {"G1 X1 A30 B2 F10", "G1 O5 X2", "U1 W2"}},
        PlainBlockCase{"CannedCycle", {"G99 G81 X10 Y10 Z-5 R2 F100", "X20", "G80"}},
        PlainBlockCase{"InchInput", {"G20", "G1 X1.5 Y-0.25 F20", "G21 X3"}},
        PlainBlockCase{"ProgramEndInTheMiddle", {"G1 X1 F10", "M30", "G1 X5"}}),
    [](const ::testing::TestParamInfo<PlainBlockCase>& row) { return std::string(row.param.name); });
