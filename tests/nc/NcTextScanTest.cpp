// SPDX-License-Identifier: MIT
// The NC text scans that the file splitter, the line tests and the block decoder share (comments in round
// brackets, program-end codes, the first block), checked over many seeded random lines against the plain
// character-by-character reading of their rules, flags included.
#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>

#include "ncappkit/nc/KCC_NcFile.h"
#include "ncappkit/nc/KCC_ParseNc.h"

namespace {

constexpr int kRuns = 20000;

// Opens the protected line tests of the file splitter.
class NcFileLineTests : public KCC_NcFile {
 public:
  using KCC_NcFile::Check_FirstBlock_Command;
  using KCC_NcFile::Check_M30_M99_RET_Command;
};

bool Digit(char c) {
  return c >= '0' && c <= '9';
}

// The end-code rule read character by character: every position up to n - 3 outside round brackets is
// compared with M30, M99 and RET; the flags are written at each compared position. `withM99` and
// `withRET` choose the codes that end the scan.
bool ReferenceEndCode(const std::string& line, bool withM99, bool withRET, bool& m30, bool& m99, bool& ret) {
  const std::size_t n = line.size();
  if (n < 3)
    return false;
  bool inComment = false;
  for (std::size_t i = 0; i + 3 <= n; ++i) {
    const char c = line[i];
    if (c == '(') {
      inComment = true;
      continue;
    }
    if (c == ')')
      inComment = false;
    if (inComment)
      continue;
    m30 = line.compare(i, 3, "M30") == 0;
    m99 = line.compare(i, 3, "M99") == 0;
    ret = line.compare(i, 3, "RET") == 0;
    const bool mCode = m30 || (withM99 && m99);
    if (mCode && (i + 3 == n || !Digit(line[i + 3])))
      return true;
    if (withRET && ret && i == 0)
      return true;
  }
  return false;
}

// The first-block rule read character by character: M98 and P8010 outside brackets at positions with room
// for five characters, or a line starting with the Siemens first block.
bool ReferenceFirstBlock(const std::string& line) {
  const std::size_t n = line.size();
  if (n < 8)
    return false;
  bool m98 = false;
  bool p8010 = false;
  bool inComment = false;
  for (std::size_t i = 0; i + 5 <= n; ++i) {
    const char c = line[i];
    if (c == '(') {
      inComment = true;
      continue;
    }
    if (c == ')')
      inComment = false;
    if (inComment)
      continue;
    m98 = m98 || line.compare(i, 3, "M98") == 0;
    p8010 = p8010 || line.compare(i, 5, "P8010") == 0;
    if (m98 && p8010)
      return true;
  }
  return line.rfind("N50FIRST_BLOCK", 0) == 0 || line.rfind("N50 FIRST_BLOCK", 0) == 0;
}

// Lines built from the pieces that matter to the scans, so that codes, brackets and digits meet often.
class LineMaker {
 public:
  explicit LineMaker(unsigned seed) : m_engine(seed) {}
  std::string Next() {
    static const char* const kPieces[] = {"M30",   "M99", "M3",          "M9",  "RET", "R",   "(",
                                          ")",     "0",   "9",           " ",   "X1.", "M98", "P",
                                          "P8010", "N50", "FIRST_BLOCK", "G01", "E",   "T"};
    std::uniform_int_distribution<int> count(0, 12);
    std::uniform_int_distribution<std::size_t> piece(0, sizeof kPieces / sizeof kPieces[0] - 1);
    std::string line;
    for (int k = count(m_engine); k > 0; --k)
      line += kPieces[piece(m_engine)];
    return line;
  }

 private:
  std::mt19937 m_engine;
};

TEST(NcTextScan, FileEndTestFollowsTheCharacterRuleWithItsFlags) {
  LineMaker maker(11);
  NcFileLineTests file;
  for (int run = 0; run < kRuns; ++run) {
    const std::string line = maker.Next();
    // Flags start true so that a test that leaves them alone is seen.
    bool m30 = true, m99 = true, ret = true;
    bool refM30 = true, refM99 = true, refRet = true;
    const bool expected = ReferenceEndCode(line, true, true, refM30, refM99, refRet);
    ASSERT_EQ(file.Check_M30_M99_RET_Command(line.c_str(), m30, m99, ret), expected) << line;
    EXPECT_EQ(m30, refM30) << line;
    EXPECT_EQ(m99, refM99) << line;
    EXPECT_EQ(ret, refRet) << line;
  }
}

TEST(NcTextScan, ParserEndTestsFollowTheCharacterRuleWithTheirFlags) {
  LineMaker maker(12);
  KCC_ParseNc parser;
  for (int run = 0; run < kRuns; ++run) {
    const std::string line = maker.Next();
    bool m30 = true, m99 = true;
    bool refM30 = true, refM99 = true, refRet = true;
    const bool expected = ReferenceEndCode(line, true, false, refM30, refM99, refRet);
    ASSERT_EQ(parser.Check_M30_M99_Command(line.c_str(), m30, m99), expected) << line;
    EXPECT_EQ(m30, refM30) << line;
    EXPECT_EQ(m99, refM99) << line;
    bool only30 = false, unused99 = false, unusedRet = false;
    EXPECT_EQ(parser.Check_M30_Command(line.c_str()),
              ReferenceEndCode(line, false, false, only30, unused99, unusedRet))
        << line;
  }
}

TEST(NcTextScan, FirstBlockTestFollowsTheCharacterRule) {
  LineMaker maker(13);
  NcFileLineTests file;
  for (int run = 0; run < kRuns; ++run) {
    const std::string line = maker.Next();
    EXPECT_EQ(file.Check_FirstBlock_Command(line.c_str()), ReferenceFirstBlock(line)) << line;
  }
}

TEST(NcTextScan, LongLinesFindCodesBehindCommentsAndAcrossEightByteSteps) {
  NcFileLineTests file;
  bool m30 = false, m99 = false, ret = false;
  EXPECT_TRUE(file.Check_M30_M99_RET_Command("N1234567 G01 X12.5 (M30 M99 NOT HERE) Y4 M99", m30, m99, ret));
  EXPECT_TRUE(m99);
  EXPECT_FALSE(
      file.Check_M30_M99_RET_Command("N1234567 G01 X12.5 Y4 (COMMENT WITHOUT END M30", m30, m99, ret));
  EXPECT_FALSE(file.Check_M30_M99_RET_Command("N1234567 G01 X12.5 Y4 (M30) M300", m30, m99, ret));
}

TEST(NcTextScan, DecoderIgnoresWhatCommentsHold) {
  std::mt19937 engine(14);
  std::uniform_int_distribution<int> letter('A', 'Z');
  std::uniform_int_distribution<int> digit('0', '9');
  std::uniform_int_distribution<int> length(0, 20);
  KCC_ParseNc plain;
  KCC_ParseNc commented;
  for (int run = 0; run < kRuns; ++run) {
    std::string comment;
    for (int k = length(engine); k > 0; --k)
      comment += static_cast<char>(run % 2 == 0 ? letter(engine) : digit(engine));
    const std::string withComment = "N10 G01 X" + std::to_string(run) + " (" + comment + ") Y-2.5 M08";
    const std::string withBlankComment =
        "N10 G01 X" + std::to_string(run) + " (" + std::string(comment.size(), ' ') + ") Y-2.5 M08";
    ASSERT_TRUE(commented.DecodeISOLine(KCString(withComment))) << withComment;
    ASSERT_TRUE(plain.DecodeISOLine(KCString(withBlankComment)));
    double x1 = 0.0, x2 = 1.0, y1 = 0.0, y2 = 1.0;
    int m1 = 0, m2 = 1, n1 = 0, n2 = 1;
    EXPECT_EQ(commented.GetXCommand(x1), plain.GetXCommand(x2));
    EXPECT_EQ(x1, x2) << withComment;
    EXPECT_TRUE(commented.GetYCommand(y1) && plain.GetYCommand(y2));
    EXPECT_EQ(y1, y2) << withComment;
    EXPECT_TRUE(commented.GetMprimCommand(m1) && plain.GetMprimCommand(m2));
    EXPECT_EQ(m1, m2) << withComment;
    EXPECT_TRUE(commented.GetNCommand(n1) && plain.GetNCommand(n2));
    EXPECT_EQ(n1, n2) << withComment;
  }
}

}  // namespace
