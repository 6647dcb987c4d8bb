// SPDX-License-Identifier: MIT
// nckit block, run as a program.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/NckitFixture.h"

namespace {

class NckitBlock : public NckitTest {};

}  // namespace

TEST_F(NckitBlock, WritesOneWordPerLine) {
  const ChildResult r = Run({"block", "N10 G01 X-12.5 Y0.25 F300 M03"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "F 300\nG 1\nM 3\nN 10\nX -12.5\nY 0.25\n");
  EXPECT_EQ(r.err, "");
}

TEST_F(NckitBlock, LaterGCodesAccumulate) {
  EXPECT_EQ(Run({"block", "G17 G90 G00"}).out, "G 17\nG(2nd) 9000\n");
}

TEST_F(NckitBlock, JsonForm) {
  const ChildResult r = Run({"block", "M03 S1200.5", "--json"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(
      r.out,
      "{\"block\": \"M03 S1200.5\", \"complete\": true, \"words\": [{\"address\": \"M\", \"value\": 3}, "
      "{\"address\": \"S\", \"value\": 1200.5}]}\n");
}

TEST_F(NckitBlock, SeveralArgumentsAreOneBlock) {
  EXPECT_EQ(Run({"block", "X1", "Y2"}).out, "X 1\nY 2\n");
}

TEST_F(NckitBlock, MalformedBlockShowsTheWordsBeforeTheFault) {
  const ChildResult r = Run({"block", "Y7 X--5"});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.out, "X 0\nY 7\n");
  EXPECT_NE(r.err.find("malformed block"), std::string::npos);
}

TEST_F(NckitBlock, OverlongFractionHasNoJsonNumber) {
  const ChildResult r = Run({"block", "X1." + std::string(40, '1'), "--json"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_NE(r.out.find("\"value\": null"), std::string::npos) << r.out;
}

TEST_F(NckitBlock, MissingBlockIsAUsageError) {
  const ChildResult r = Run({"block"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.err, "nckit block: expects a BLOCK (try 'nckit block --help')\n");
}

TEST_F(NckitBlock, UnknownOptionIsAUsageError) {
  EXPECT_EQ(Run({"block", "X1", "--xml"}).exitCode, 2);
}

TEST_F(NckitBlock, NegativeNumberArgumentIsPartOfTheBlock) {
  EXPECT_EQ(Run({"block", "X", "-5"}).out, "");
}

TEST_F(NckitBlock, HelpExitsZero) {
  const ChildResult r = Run({"block", "--help"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out.rfind("usage: nckit block", 0), 0u);
}

TEST_F(NckitBlock, BlockWithoutAddressWordsSaysSo) {
  const ChildResult r = Run({"block", "x10 Z5 H1"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(
      r.err,
      "nckit block: no address words found (addresses are the upper-case letters A to Y except H, O, Q, U "
      "and W, each followed directly by its number)\n");
}

TEST_F(NckitBlock, FileLoadingOptionIsUnknownHere) {
  const ChildResult r = Run({"block", "--no-line-limit", "X1"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, "nckit block: unknown option '--no-line-limit' (try 'nckit block --help')\n");
}

struct VWordRow {
  const char* name;
  const char* block;
  const char* out;
};

class NckitBlockVWord : public NckitParamTest<VWordRow> {};

TEST_P(NckitBlockVWord, IsShownOnlyWhenTheBlockHoldsXAndAVWord) {
  const ChildResult r = Run({"block", GetParam().block});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.out, GetParam().out);
}

INSTANTIATE_TEST_SUITE_P(Blocks, NckitBlockVWord,
                         ::testing::Values(VWordRow{"WithX", "X1 V2", "V 2\nX 1\n"},
                                           VWordRow{"WithoutX", "V2 Y1", "Y 1\n"},
                                           VWordRow{"InAComment", "X1 (V2)", "X 1\n"},
                                           VWordRow{"WithoutANumber", "X1 V 2", "X 1\n"},
                                           VWordRow{"AfterAComment", "X1 (A) V-3.5", "V -3.5\nX 1\n"}),
                         NckitRowName());
