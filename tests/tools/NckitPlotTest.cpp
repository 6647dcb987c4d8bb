// SPDX-License-Identifier: MIT
// nckit plot, run as a program: golden pictures and JSON objects, hand-computed figures, the groups and
// metadata of the picture, xmllint, a render by headless Chromium, refusals and command-line errors.
//
// Golden files: each folder of tests/data/plot/ holds args.txt (the arguments, one a line; {source} stands
// for the source tree, {case} for the folder), the NC program when it is not a bundled sample, and the
// expected expected.svg (the picture on the standard output) and expected.json (the same arguments with
// --json). Paths in the output are compared with the same placeholders. The files are rewritten only on
// purpose: run the tests with NCAPPKIT_UPDATE_GOLDEN=1 in the environment, then read the difference:
//   NCAPPKIT_UPDATE_GOLDEN=1 ncappkit_tools_tests --gtest_filter='*NckitPlotGolden*'
//
// xmllint (Debian: libxml2-utils) is needed; a missing xmllint fails its test, except on Windows. The render
// test needs a chromium (or chromium-browser) program on PATH and is skipped when there is none.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "support/ChromiumRender.h"
#include "support/NckitFixture.h"
#include "support/PngImage.h"
#include "support/TempDir.h"
#include "support/TestData.h"

namespace {

class NckitPlot : public NckitTest {};

bool UpdateGolden() {
  const char* value = std::getenv("NCAPPKIT_UPDATE_GOLDEN");
  return value && std::string(value) == "1";
}

void ReplaceAll(std::string& text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
}

// How often `what` occurs in `text`.
std::size_t Occurrences(const std::string& text, const std::string& what) {
  std::size_t found = 0;
  for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1))
    ++found;
  return found;
}

// The picture's text from `start` (the start tag of a group) to the group's first "</g>"; "" when `svg` has
// no such group.
std::string GroupText(const std::string& svg, const std::string& start) {
  const std::size_t group = svg.find(start);
  if (group == std::string::npos)
    return std::string();
  return svg.substr(group, svg.find("</g>", group) - group);
}

std::string CaseFolder(const std::string& name) {
  return TestDataPath("plot/" + name).string();
}

// The arguments of a case folder with the placeholders filled in.
std::vector<std::string> CaseArguments(const std::string& name) {
  std::vector<std::string> args = {"plot"};
  for (const std::string& line : SplitLines(ReadFileBytes(TestDataPath("plot/" + name + "/args.txt")))) {
    std::string arg = line;
    ReplaceAll(arg, "{source}", NCAPPKIT_SOURCE_DIR);
    ReplaceAll(arg, "{case}", CaseFolder(name));
    args.push_back(arg);
  }
  return args;
}

// Paths of this machine written back as the placeholders.
std::string Normalised(std::string text, const std::string& name) {
  // In JSON a backslash of a Windows path is written doubled, so that form is replaced first.
  std::string jsonFolder = CaseFolder(name);
  ReplaceAll(jsonFolder, "\\", "\\\\");
  ReplaceAll(text, jsonFolder, "{case}");
  ReplaceAll(text, CaseFolder(name), "{case}");
  ReplaceAll(text, NCAPPKIT_SOURCE_DIR, "{source}");
  return text;
}

void CompareWithGolden(const std::string& actual, const std::string& name, const std::string& file) {
  const std::filesystem::path golden = TestDataPath("plot/" + name + "/" + file);
  if (UpdateGolden()) {
    std::ofstream out(golden, std::ios::binary | std::ios::trunc);
    out << actual;
    ASSERT_TRUE(out.good()) << "cannot write " << golden;
  }
  std::string expected;
  ASSERT_TRUE(ReadFileBytes(golden, expected))
      << golden << " cannot be read; run with NCAPPKIT_UPDATE_GOLDEN=1 to write it";
  EXPECT_EQ(actual, expected) << "if the change is intended, run with NCAPPKIT_UPDATE_GOLDEN=1 and review "
                                 "the diff of "
                              << golden;
}

struct GoldenRow {
  std::string name;
};

class NckitPlotGolden : public NckitParamTest<GoldenRow> {};

TEST_P(NckitPlotGolden, PictureIsTheGoldenFile) {
  const ChildResult r = Run(CaseArguments(GetParam().name));
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_EQ(r.err, "");
  CompareWithGolden(Normalised(r.out, GetParam().name), GetParam().name, "expected.svg");
}

TEST_P(NckitPlotGolden, JsonIsTheGoldenFile) {
  std::vector<std::string> args = CaseArguments(GetParam().name);
  args.push_back("--json");
  const ChildResult r = Run(args);
  ASSERT_EQ(r.exitCode, 0) << r.err;
  CompareWithGolden(Normalised(r.out, GetParam().name), GetParam().name, "expected.json");
}

std::vector<GoldenRow> GoldenRows() {
  std::vector<GoldenRow> rows;
  for (const std::string& name : ListCaseFolders(TestDataPath("plot")))
    rows.push_back({name});
  return rows;
}

INSTANTIATE_TEST_SUITE_P(Cases, NckitPlotGolden, ::testing::ValuesIn(GoldenRows()),
                         [](const ::testing::TestParamInfo<GoldenRow>& row) {
                           return ToTestName(row.param.name);
                         });

std::string SquareCase() {
  return CaseFolder("square-semicircle") + "/program.nc";
}

// ---- hand-computed figures

TEST_F(NckitPlot, ExtentsIncludeTheBulgeOfTheSemicircle) {
  // The G3 half circle from (40, 40) to (0, 40) about (20, 40) reaches up to Y 60.
  const ChildResult r = Run({"plot", SquareCase(), "--json"});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_NE(r.out.find("\"extents\": {\"xmin\": 0, \"ymin\": 0, \"zmin\": -1, \"xmax\": 40, \"ymax\": 60, "
                       "\"zmax\": 5}"),
            std::string::npos)
      << r.out;
}

TEST_F(NckitPlot, LengthsAndRunTimeOfTheSquareAreHandComputed) {
  // Rapids: Z0 to Z5 and Z-1 to Z5, 11 mm. Feeds: the plunge of 6 mm at F100 (3.6 s), then 40 + 40 +
  // 20 pi + 40 = 182.832 mm at F200 (54.850 s); the rapids at 10000 mm/min take 0.066 s.
  const ChildResult r = Run({"plot", SquareCase(), "--json"});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_NE(r.out.find("\"segments\": {\"rapid\": 2, \"feed\": 4, \"arc\": 1, \"hole\": 0}"),
            std::string::npos);
  EXPECT_NE(r.out.find("\"rapid_length\": 11, \"feed_length\": 188.832, \"run_time_s\": 58.516"),
            std::string::npos)
      << r.out;
}

TEST_F(NckitPlot, RapidRateChangesTheRunTime) {
  // 11 mm of rapids at 1100 mm/min take 0.6 s instead of 0.066 s: 58.45 + 0.6.
  const ChildResult r = Run({"plot", SquareCase(), "--json", "--rapid-rate", "1100"});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_NE(r.out.find("\"run_time_s\": 59.05,"), std::string::npos) << r.out;
}

TEST_F(NckitPlot, BoltCircleHolesAreNumberedInDrillingOrder) {
  const ChildResult r = Run({"plot", CaseFolder("bolt-circle") + "/program.nc"});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  std::size_t at = 0;
  for (int hole = 1; hole <= 6; ++hole) {
    at = r.out.find("<tspan>" + std::to_string(hole) + "</tspan>", at);
    EXPECT_NE(at, std::string::npos) << "hole " << hole;
  }
  EXPECT_EQ(r.out.find("<tspan>7</tspan>"), std::string::npos);
}

TEST_F(NckitPlot, BoltCircleLengthsAreHandComputed) {
  // G0 Z10: 10; to the first hole at Z10: 30, down to R2: 8, drill to Z-5: 7 (feed), up to R: 7; five
  // more holes 30 apart (the side of a hexagon is its radius) at the R level with 7 up each; G0 Z10: 8.
  const ChildResult r = Run({"plot", CaseFolder("bolt-circle") + "/program.nc", "--json"});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_NE(r.out.find("\"hole\": 6}"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("\"rapid_length\": 248.001, \"feed_length\": 42,"), std::string::npos) << r.out;
}

TEST_F(NckitPlot, LatheProfileInTheXzViewKeepsItsArcAsAnArc) {
  // The quarter circle G3 from Z0 X10 to Z-10 X20 about Z-10 X10: seen with Z right and X up it is drawn
  // as one SVG arc command, in the XY view as the line its projection is (X 10 to 20 at Y 0).
  const std::string file = CaseFolder("lathe-profile-xz") + "/program.nc";
  const ChildResult xz = Run({"plot", file, "--view", "xz"});
  const ChildResult xy = Run({"plot", file});
  ASSERT_EQ(xz.exitCode, 0) << xz.err;
  ASSERT_EQ(xy.exitCode, 0) << xy.err;
  const std::string xzArcs = GroupText(xz.out, "<g id=\"t1-arc\"");
  const std::string xyArcs = GroupText(xy.out, "<g id=\"t1-arc\"");
  ASSERT_FALSE(xzArcs.empty());
  ASSERT_FALSE(xyArcs.empty());
  EXPECT_EQ(Occurrences(xzArcs, " A"), 1u);
  EXPECT_EQ(Occurrences(xzArcs, " L"), 0u);
  EXPECT_EQ(Occurrences(xyArcs, " A"), 0u);
  EXPECT_EQ(Occurrences(xyArcs, " L"), 1u);
}

TEST_F(NckitPlot, RunOfTinyMovesIsMergedButReachesItsEnd) {
  // 2000 moves of 0.01 mm along X and one move of 20 mm back along Y: 20 mm span about 640 pixels, so each
  // tiny move is a third of a pixel and two or three of them make one line of at least half a pixel.
  std::string program = "%\nO0010 (TINY)\nG90 G1 X0 Y0 F500\nG91\n";
  for (int i = 0; i < 2000; ++i)
    program += "X0.01\n";
  program += "Y20\nM30\n%\n";
  TempDir dir;
  const ChildResult r = Run({"plot", dir.WriteFile("tiny.nc", program)});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  const std::string feed = GroupText(r.out, "<g id=\"t0-feed\"");
  ASSERT_FALSE(feed.empty());
  const std::size_t lines = Occurrences(feed, " L");
  EXPECT_GT(lines, 600u);   // nothing is dropped beyond half a pixel...
  EXPECT_LT(lines, 1300u);  // ...but 2001 moves do not make 2001 lines
  // The corner at X20 Y0 is drawn: the tiny run ends exactly where the move along Y starts (whose first
  // half ends at its direction arrow).
  EXPECT_NE(feed.find(" L670 670 L670 350\""), std::string::npos) << feed.substr(feed.size() - 300);
}

TEST_F(NckitPlot, AlternatingKindsStillMakeOneGroupPerLayer) {
  // Feed, rapid, feed, rapid ...: each layer is one group, not one per run.
  std::string program = "%\nO0011 (ZIGZAG)\nG90\n";
  for (int i = 0; i < 10; ++i)
    program +=
        "G1 X" + std::to_string(i * 10 + 5) + " Y10 F800\nG0 X" + std::to_string(i * 10 + 10) + " Y0\n";
  program += "M30\n%\n";
  TempDir dir;
  const ChildResult r = Run({"plot", dir.WriteFile("zigzag.nc", program)});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_EQ(Occurrences(r.out, "<g id=\"t0-feed\""), 1u);
  EXPECT_EQ(Occurrences(r.out, "<g id=\"t0-rapid\""), 1u);
  EXPECT_LT(r.out.find("<g id=\"t0-rapid\""), r.out.find("<g id=\"t0-feed\""));
}

TEST_F(NckitPlot, InconsistentArcIsDrawnInTheMarkedLayer) {
  // G2 from X0 Y0 to X20 Y0 about I5: 5 mm from the centre at the start, 15 mm at the end.
  TempDir dir;
  const std::string file =
      dir.WriteFile("bad-arc.nc", "%\nO0012 (BAD ARC)\nG90 G1 X0 Y0 F500\nG2 X20 Y0 I5 J0\nG1 X30\nM30\n%\n");
  const ChildResult r = Run({"plot", file});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  const std::string marked =
      GroupText(r.out, "<g id=\"t0-marked\" inkscape:groupmode=\"layer\" inkscape:label=\"no tool marked\">");
  ASSERT_FALSE(marked.empty());
  EXPECT_NE(marked.find("stroke=\"#ff8200\" stroke-width=\"2\" stroke-dasharray=\"12,6,4,6\""),
            std::string::npos)
      << marked.substr(0, 400);
  EXPECT_EQ(r.out.find("<g id=\"t0-arc\""), std::string::npos);
  EXPECT_NE(r.out.find("<tspan>marked: inconsistent arcs (1)</tspan>"), std::string::npos);
}

TEST_F(NckitPlot, ProgramWithoutInconsistentArcsHasNoMarkedLayer) {
  const ChildResult r = Run({"plot", FanucSample()});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_EQ(r.out.find("marked"), std::string::npos);
}

// ---- the picture's structure

TEST_F(NckitPlot, EachToolAndMoveKindIsALayer) {
  const ChildResult r = Run({"plot", FanucSample()});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_NE(r.out.find("xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\""), std::string::npos);
  EXPECT_NE(r.out.find("<g id=\"t1-feed\" inkscape:groupmode=\"layer\" inkscape:label=\"T1 feed\">"),
            std::string::npos);
  EXPECT_NE(r.out.find("<g id=\"t2-hole\" inkscape:groupmode=\"layer\" inkscape:label=\"T2 hole\">"),
            std::string::npos);
  EXPECT_NE(r.out.find("<g id=\"legend\" inkscape:groupmode=\"layer\" inkscape:label=\"legend\">"),
            std::string::npos);
}

TEST_F(NckitPlot, TitleNamesTheFileAndTheProgram) {
  const ChildResult r = Run({"plot", SquareCase()});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_NE(r.out.find("<title>" + SquareCase() + " - O0100 SQUARE WITH SEMICIRCLE</title>"),
            std::string::npos);
  EXPECT_NE(r.out.find("<desc>File: program.nc\nProgram: O0100 SQUARE WITH SEMICIRCLE\nUnits: mm\n"),
            std::string::npos);
}

TEST_F(NckitPlot, LegendListsTheWordsNotDrawn) {
  const ChildResult r = Run({"plot", FanucSample()});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_NE(r.out.find("<tspan>Not drawn: G28 (1), G43 (2), G54 (1)</tspan>"), std::string::npos);
}

TEST_F(NckitPlot, NarrowCanvasLeavesTheLegendOut) {
  const ChildResult r = Run({"plot", SquareCase(), "--size", "500x400"});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_NE(r.out.find("width=\"500\" height=\"400\""), std::string::npos);
  EXPECT_EQ(r.out.find("<g id=\"legend\""), std::string::npos);
}

TEST_F(NckitPlot, AllDrawsEveryMainProgramInOrder) {
  const ChildResult r = Run({"plot", FanucSample(), "--all", "--json"});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_NE(r.out.find("\"programs\": [{\"number\": 1, \"name\": \"O0001\", \"ref\": \"JOB\"}, "
                       "{\"number\": 1000, \"name\": \"O1000\", \"ref\": \"PLATE 200X100\"}, "
                       "{\"number\": 2000, \"name\": \"O2000\", \"ref\": \"FLANGE\"}]"),
            std::string::npos)
      << r.out;
}

TEST_F(NckitPlot, ProgramOptionChoosesByNumber) {
  const ChildResult r = Run({"plot", FanucSample(), "--program", "2000", "--json"});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_NE(r.out.find("\"program\": {\"number\": 2000, \"name\": \"O2000\", \"ref\": \"FLANGE\"}"),
            std::string::npos);
  EXPECT_NE(r.out.find("\"hole\": 3}"), std::string::npos);
}

TEST_F(NckitPlot, OutputFileGetsThePictureAndNothingGoesToStandardOutput) {
  TempDir dir;
  const std::string target = dir.Path("square.svg");
  const ChildResult r = Run({"plot", SquareCase(), "-o", target});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_EQ(r.out, "");
  const ChildResult direct = Run({"plot", SquareCase()});
  EXPECT_EQ(TempDir::ReadFileAt(target), direct.out);
}

TEST_F(NckitPlot, JsonWithOutputFileWritesBoth) {
  TempDir dir;
  const std::string target = dir.Path("square.svg");
  const ChildResult r = Run({"plot", SquareCase(), "-o", target, "--json"});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_EQ(r.out.rfind("{\"file\": ", 0), 0u);
  EXPECT_EQ(TempDir::ReadFileAt(target).rfind("<?xml", 0), 0u);
}

TEST_F(NckitPlot, XmllintFindsThePictureWellFormed) {
#if defined(_WIN32)
  GTEST_SKIP() << "the Windows lane runs the tests under wine, where xmllint is missing";
#endif
  const std::string xmllint = FindProgramOnPath("xmllint");
  ASSERT_FALSE(xmllint.empty()) << "xmllint was not found on PATH; this test needs it "
                                   "(Debian: apt-get install libxml2-utils)";
  TempDir dir;
  const std::string target = dir.Path("fanuc.svg");
  ASSERT_EQ(Run({"plot", FanucSample(), "--all", "-o", target}).exitCode, 0);
  const ChildResult result = RunChild({xmllint, "--noout", target});
  EXPECT_EQ(result.exitCode, 0) << result.err;
  EXPECT_EQ(result.err, "");
}

// ---- refusals

TEST_F(NckitPlot, ProgramWithoutMotionWritesTheLegendAndExitsOne) {
  TempDir dir;
  const std::string file = dir.WriteFile("still.nc", "%\nO0007 (STILL)\nS1000 M3\nG4 P500\nM5\nM30\n%\n");
  const ChildResult r = Run({"plot", file});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "nckit plot: " + file + ": program O0007 gives no motion; nothing is drawn\n");
  EXPECT_NE(r.out.find("<tspan>No motion</tspan>"), std::string::npos);
}

TEST_F(NckitPlot, ProgramExpandingToAHundredMillionSegmentsIsRefused) {
  // 10000 calls of a program that makes 10000 calls of a one-move program: 100,000,000 segments.
  TempDir dir;
  const std::string file = dir.WriteFile("huge.nc",
                                         "%\nO0001\nM98 P0002 L10000\nM30\n"
                                         "O0002\nM98 P0003 L10000\nM99\n"
                                         "O0003\nG91 G1 X0.001 F1000\nM99\n%\n");
  const ChildResult r = Run({"plot", file}, 120.0);
  EXPECT_FALSE(r.timedOut);
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, "nckit plot: " + file +
                       ": program O0001 stopped after 2000000 segments (the segment limit); a plot takes at "
                       "most 2000000 segments, nothing is drawn\n");
}

TEST_F(NckitPlot, MissingProgramIsAProblem) {
  const ChildResult r = Run({"plot", FanucSample(), "--program", "4711"});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.err, "nckit plot: " + FanucSample() + ": no program 4711 in the file\n");
}

TEST_F(NckitPlot, UnreadableFileIsNamed) {
  TempDir dir;
  const std::string missing = dir.Path("missing.nc");
  const ChildResult r = Run({"plot", missing});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_NE(r.err.find(missing), std::string::npos) << r.err;
  EXPECT_EQ(r.out, "");
}

TEST_F(NckitPlot, HugeSizeIsCappedWithAWarning) {
  const ChildResult r = Run({"plot", SquareCase(), "--size", "50000x700"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_EQ(r.err,
            "nckit plot: warning: --size '50000x700' is larger than 10000 pixels a side; drawing "
            "10000x700\n");
  EXPECT_NE(r.out.find("width=\"10000\" height=\"700\""), std::string::npos);
}

// ---- command-line errors

struct UsageRow {
  std::string name;
  std::vector<std::string> options;
  std::string message;  // what stderr starts with after "nckit plot: "
};

class NckitPlotUsage : public NckitParamTest<UsageRow> {};

TEST_P(NckitPlotUsage, IsAWrongCommandLine) {
  std::vector<std::string> args = {"plot", NckitTest::FanucSample()};
  args.insert(args.end(), GetParam().options.begin(), GetParam().options.end());
  const ChildResult r = Run(args);
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err.rfind("nckit plot: " + GetParam().message, 0), 0u) << r.err;
}

INSTANTIATE_TEST_SUITE_P(
    Options, NckitPlotUsage,
    ::testing::Values(
        UsageRow{
            "ZeroSize", {"--size", "0x700"}, "--size '0x700' is too small: each side needs at least 100"},
        UsageRow{"NegativeSize",
                 {"--size", "-5x700"},
                 "--size '-5x700' is too small: each side needs at least 100"},
        UsageRow{"SizeWithoutHeight", {"--size", "1000x"}, "--size '1000x' is not WIDTHxHEIGHT"},
        UsageRow{"SizeNoNumber", {"--size", "big"}, "--size 'big' is not WIDTHxHEIGHT"},
        UsageRow{"TinySize", {"--size", "99x700"}, "--size '99x700' is too small"},
        UsageRow{"UnknownView", {"--view", "xx"}, "--view 'xx' is not xy, xz or yz"},
        UsageRow{"UnknownCorner", {"--corner", "middle"}, "--corner 'middle' is not bl, br, tl or tr"},
        UsageRow{"ZeroRapidRate", {"--rapid-rate", "0"}, "--rapid-rate '0' is not a positive number"},
        UsageRow{"TextRapidRate", {"--rapid-rate", "fast"}, "--rapid-rate 'fast' is not a positive number"},
        UsageRow{"AllWithProgram", {"--all", "--program", "1000"}, "--all and --program cannot be combined"},
        UsageRow{"ProgramNoNumber", {"--program", "abc"}, "--program 'abc' is no program number"},
        UsageRow{
            "SearchNoFolder", {"--search", "/no/such/folder"}, "--search '/no/such/folder' is not a folder"}),
    NckitRowName());

// ---- rendering

// The rapid colour (220, 30, 30) of a 1-pixel dashed line, blended with the white paper by anti-aliasing.
bool IsRapidRed(const PngImage::Pixel& p) {
  return p.r > 200 && p.g < 180 && p.b < 180 && p.r - p.g > 40;
}
// The first tool's colour (0, 90, 200), 2 pixels wide.
bool IsToolBlue(const PngImage::Pixel& p) {
  return p.r < 80 && p.g < 150 && p.b > 150;
}

TEST_F(NckitPlot, ChromiumDrawsRapidsAndFeedsWhereTheyRun) {
  const std::string chromium = FindChromium();
  if (chromium.empty())
    GTEST_SKIP() << "no chromium or chromium-browser on PATH (Debian: apt-get install chromium)";
  // A rapid along Y0 from X0 to X100, a feed up to Y50 and one back along Y50. The plot area is 700 x 700
  // (the legend takes 300 of 1000) with margins of 30: 0.15625 mm a pixel, world (50, 25) at pixel
  // (350, 350), so Y0 lies at pixel row 510 and Y50 at 190, X0 at column 30 and X100 at 670.
  TempDir dir;
  const std::string file =
      dir.WriteFile("lines.nc", "%\nO0001\nT1 M6\nG0 X0 Y0\nX100\nG1 Y50 F500\nX0\nM30\n%\n");
  const std::string svg = dir.Path("lines.svg");
  ASSERT_EQ(Run({"plot", file, "-o", svg}).exitCode, 0);
  PngImage image;
  std::string error;
  ASSERT_TRUE(RenderWithChromium(chromium, svg, 1000, 700, dir.Path("render"), image, error)) << error;
  ASSERT_EQ(image.width, 1000);
  ASSERT_EQ(image.height, 700);
  // The rapid's dashes cover about two thirds of the 500 columns checked; no feed colour lies there.
  EXPECT_GE(image.CountInBox(100, 507, 600, 514, IsRapidRed), 250);
  EXPECT_EQ(image.CountInBox(100, 507, 600, 514, IsToolBlue), 0);
  // The feed is solid; no rapid colour lies on it.
  EXPECT_GE(image.CountInBox(100, 187, 600, 194, IsToolBlue), 900);
  EXPECT_EQ(image.CountInBox(100, 187, 600, 194, IsRapidRed), 0);
  // The feed up X100 (column 670), and nothing drawn in the middle of the rectangle.
  EXPECT_GE(image.CountInBox(666, 220, 675, 480, IsToolBlue), 2 * 240);
  EXPECT_EQ(image.CountInBox(100, 220, 600, 480, IsToolBlue), 0);
  EXPECT_EQ(image.CountInBox(100, 220, 600, 480, IsRapidRed), 0);
}

}  // namespace
