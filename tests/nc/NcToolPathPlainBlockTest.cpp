// SPDX-License-Identifier: MIT
// KCC_NcToolPath reads a block made only of plain address words and comments ("N20 G01 X-12.5 Y3 (C)") by a
// short way and every other block word by word. FIRST_BLOCK (the marker of a Siemens main program, which
// does nothing) at the end of a block sends it the long way without changing what it says, so each row is
// interpreted twice, as written and with " FIRST_BLOCK" after every block, and both results must agree to
// the last bit: segments, warnings, not-interpreted entries, extents, lengths, time.
// Long programs may also be read ahead on a second thread, which must not change the result either.
#include <gtest/gtest.h>

#include <ostream>
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

void PrintTo(const PlainBlockCase& row, std::ostream* out) {
  *out << row.name;
}

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

TEST_P(NcToolPathPlainBlock, ReadsAsTheSameBlockReadWordByWord) {
  const KCC_NcToolPath plain = Interpret(Program(GetParam().blocks, ""));
  const KCC_NcToolPath wordByWord = Interpret(Program(GetParam().blocks, " FIRST_BLOCK"));

  EXPECT_EQ(Describe(plain), Describe(wordByWord));
  EXPECT_EQ(Numbers(plain), Numbers(wordByWord));
  EXPECT_EQ(plain.GetBlockCount(), wordByWord.GetBlockCount());
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
        PlainBlockCase{"ProgramEndInTheMiddle", {"G1 X1 F10", "M30", "G1 X5"}},
        PlainBlockCase{"CommentsBetweenAndAfterWords",
                       {"(ONLY A COMMENT)", "G1 X1 (MID) Y2 F10 (END)", "N5(A)G0X3(B)", "G1 X4 ; REST Y9"}},
        PlainBlockCase{"UnclosedCommentRunsToTheEnd", {"G1 X2 F10 (OPEN Y7", "(X9"}},
        PlainBlockCase{"CommentBeforeTheFirstWord", {"(C) G1 X3 F10", "(C)N20 X4"}}),
    [](const ::testing::TestParamInfo<PlainBlockCase>& row) { return std::string(row.param.name); });

// --- reading ahead on a second thread ----------------------------------------------------------------------

namespace {

// A long main program (above the read-ahead threshold) of plain moves, with calls of a sub-program, comments,
// parameter lines, a letter given twice and a run of blocks with many words; then the sub-program O2.
std::vector<std::string> LongProgram(int blocks, int endAt) {
  std::vector<std::string> lines{"O1", "G90 G17 G21 T1 M6 F800"};
  for (int i = 0; i < blocks; ++i) {
    const std::string x = std::to_string((i * 37) % 2000 - 1000) + "." + std::to_string(i % 10);
    const std::string y = std::to_string((i * 53) % 1600 - 800);
    if (i == endAt)
      lines.push_back("M30");
    else if (i % 997 == 0)
      lines.push_back("M98 P2 L2");
    else if (i % 101 == 0)
      lines.push_back("(CONTOUR " + std::to_string(i) + ")");
    else if (i % 211 == 0)
      lines.push_back("#" + std::to_string(100 + i % 50) + " = " + x);
    else if (i == 5000)
      lines.push_back("G1 X1 X2");
    else if (i >= 12000 && i < 14000)  // more words than a chunk has room for on average
      lines.push_back("G1 X" + x + " Y" + y + " Z1 A0 B0 C0 U0 V0 W0 E0 H0 D0 S100 M8 M9 M7 M8 M9 M7 M8");
    else
      lines.push_back((i % 7 == 0 ? "G0 X" : "G1 X") + x + " Y" + y);
  }
  lines.push_back("M30");
  lines.push_back("O2");
  lines.push_back("G91 G1 X1 Y1");
  lines.push_back("G90 M99");
  return lines;
}

KCC_NcToolPath InterpretWithReadAhead(const std::vector<std::string>& lines, bool readAhead,
                                      std::size_t maxSegments = KCC_NcToolPath::kDefaultMaxSegments) {
  KCC_NcToolPath path;
  path.SetReadAhead(readAhead);
  path.SetMaxSegments(maxSegments);
  toolpath_test::InterpretLines(lines, path);
  return path;
}

}  // namespace

TEST(KccNcToolPathReadAhead, IsOffByDefault) {
  const KCC_NcToolPath path;

  EXPECT_FALSE(path.GetReadAhead());
}

TEST(KccNcToolPathReadAhead, GivesTheSameResultAsReadingEachLineInTurn) {
  const std::vector<std::string> lines = LongProgram(40000, -1);

  const KCC_NcToolPath ahead = InterpretWithReadAhead(lines, true);
  const KCC_NcToolPath inTurn = InterpretWithReadAhead(lines, false);

  ASSERT_GT(ahead.GetSegmentCount(), 30000u);
  EXPECT_EQ(Describe(ahead), Describe(inTurn));
  EXPECT_EQ(Numbers(ahead), Numbers(inTurn));
  EXPECT_EQ(ahead.GetBlockCount(), inTurn.GetBlockCount());
}

TEST(KccNcToolPathReadAhead, ProgramEndEarlyStopsTheReader) {
  const std::vector<std::string> lines = LongProgram(40000, 150);

  const KCC_NcToolPath ahead = InterpretWithReadAhead(lines, true);

  EXPECT_TRUE(ahead.IsComplete());
  EXPECT_EQ(Describe(ahead), Describe(InterpretWithReadAhead(lines, false)));
  EXPECT_LT(ahead.GetSegmentCount(), 160u);
}

TEST(KccNcToolPathReadAhead, SegmentLimitStopsTheReaderWithTheSameResult) {
  const std::vector<std::string> lines = LongProgram(40000, -1);

  const KCC_NcToolPath ahead = InterpretWithReadAhead(lines, true, 10000);

  EXPECT_FALSE(ahead.IsComplete());
  EXPECT_EQ(ahead.GetSegmentCount(), 10000u);
  EXPECT_EQ(Describe(ahead), Describe(InterpretWithReadAhead(lines, false, 10000)));
}
