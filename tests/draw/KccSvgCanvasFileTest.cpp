// SPDX-License-Identifier: MIT
// KCC_SvgCanvas as a file: a drawing that uses every canvas operation gives the golden file
// tests/data/draw/every_operation.svg byte for byte, the file is well-formed for xmllint and KCDocument,
// and headless Chromium renders its stroke, fill, text and NOT-XOR mark where they belong.
//
// The golden file is rewritten only on purpose: run the test with NCAPPKIT_UPDATE_GOLDEN=1 in the
// environment, then read the difference before committing it:
//   NCAPPKIT_UPDATE_GOLDEN=1 ncappkit_draw_tests --gtest_filter='KccSvgCanvasFile.*'
//
// xmllint (Debian: libxml2-utils) is needed; a missing xmllint fails its test, except on Windows, whose lane
// runs the tests under wine without it. The rendering test needs a chromium (or chromium-browser) program on
// PATH (Debian: apt-get install chromium) and is skipped when there is none.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <string>

#include "ncappkit/draw/KCC_SvgCanvas.h"
#include "ncappkit/foundation/KCParagraph.h"
#include "support/ChildProcess.h"
#include "support/ChromiumRender.h"
#include "support/PngImage.h"
#include "support/TempDir.h"
#include "support/TestData.h"

namespace {

constexpr int kWidth = 320;
constexpr int kHeight = 200;

// Every canvas operation once at least, each in its own part of the canvas so that a rendering can be
// checked by region:
// - background (250, 250, 240) over the whole canvas;
// - a blue rectangle (20, 20)-(100, 80) with a red outline 6 pixels wide;
// - a black NOT-XOR line 4 pixels wide across it at y = 50, from x = 30 to 90;
// - green bold "Hg" of 28 pixels, clear brush, top-left corner at (20, 110);
// - dashed frame, yellow ellipse, select-style marks, a turned text on a pink box, an orange triangle,
//   joined lines in the other styles and a half-transparent pen elsewhere.
void DrawEveryOperation(KCCanvas& canvas) {
  canvas.SetBrushColor(KCColor(250, 250, 240));
  canvas.FillCanvas();

  canvas.SetPenColor(KCColorRed(255));
  canvas.SetPenWidth(6);
  canvas.SetBrushColor(KCColorBlue(255));
  canvas.Rectangle(KC2DRectangle(20, 20, 100, 80));

  canvas.SetPenMode(KCPenModeNotXor());
  canvas.SetPenColor(KCColorBlack(255));
  canvas.SetPenWidth(4);
  canvas.MoveTo(KC2DPoint(30, 50));
  canvas.LineTo(KC2DPoint(90, 50));
  canvas.SetPenMode(KCPenMode());

  canvas.SetPenStyle(KCPenStyleDash());
  canvas.SetPenWidth(2);
  canvas.FrameRectangle(KC2DRectangle(120, 20, 200, 80));

  canvas.SetPenStyle(KCPenStyleDot());
  canvas.SetPenWidth(1);
  canvas.SetPenColor(KCColorNavy(255));
  canvas.SetBrushColor(KCColorYellow(255));
  canvas.Ellipse(KC2DRectangle(220, 20, 300, 80));

  canvas.SetPenMode(KCPenModeNotXor());
  canvas.SetPenColor(KCColorBlack(255));
  canvas.SetBrushStyle(KCBrushStyleClear());
  canvas.EllipseMark(KC2DRectangle(240, 30, 280, 70));
  canvas.FrameRectangle(KC2DRectangle(125.5, 25.5, 195.5, 75.5));
  canvas.SetPenMode(KCPenMode());

  KCFontStyles bold;
  bold.Add(KCFontStyleBold());
  canvas.SetFontStyles(bold);
  canvas.SetFontName("Arial");
  canvas.SetFontSize(28);
  canvas.SetFontColor(KCColorGreen(255));
  canvas.TextOut(KC2DPoint(20, 110), "Hg");

  KCFontStyles decorated;
  decorated.Add(KCFontStyleItalic());
  decorated.Add(KCFontStyleUnderline());
  decorated.Add(KCFontStyleStrikeOut());
  canvas.SetFontStyles(decorated);
  canvas.SetFontName("Courier New");
  canvas.SetFontSize(12);
  canvas.SetFontColor(KCColorMaroon(255));
  canvas.SetBrushStyle(KCBrushStyleSolid());
  canvas.SetBrushColor(KCColorPink(255));
  canvas.SetTextAngle(30);
  canvas.TextOut(KC2DPoint(120, 160), "<a & \"b\"> \xE9\xC3\xBC");
  canvas.SetTextAngle(0);

  canvas.SetPenStyle(KCPenStyleSolid());
  canvas.SetPenColor(KCColorPurple(255));
  canvas.SetBrushColor(KCColorOrange(255));
  canvas.Polygon({KC2DPoint(230, 180), KC2DPoint(300, 180), KC2DPoint(265, 110.25)});

  canvas.SetPenStyle(KCPenStyleDashDot());
  canvas.SetPenWidth(3);
  canvas.SetPenColor(KCColorTeal(255));
  canvas.MoveTo(KC2DPoint(120, 100));
  canvas.LineTo(KC2DPoint(160, 120));
  canvas.LineTo(KC2DPoint(200, 100));
  canvas.LineTo(KC2DPoint(210, 130));
  canvas.SetPenStyle(KCPenStyleDashDotDot());
  canvas.LineTo(KC2DPoint(170, 140));
  canvas.SetPenStyle(KCPenStyleSolid());
  canvas.SetPenColor(KCColorGray(128));
  canvas.SetPenWidth(8);
  canvas.MoveTo(KC2DPoint(20, 190));
  canvas.LineTo(KC2DPoint(100, 190));
}

std::string EveryOperationSvg() {
  KCC_SvgCanvas canvas(kWidth, kHeight);
  DrawEveryOperation(canvas);
  return canvas.ToSvg();
}

bool UpdateGolden() {
  const char* value = std::getenv("NCAPPKIT_UPDATE_GOLDEN");
  return value && std::string(value) == "1";
}

TEST(KccSvgCanvasFile, EveryOperationGivesTheGoldenFile) {
  const std::string svg = EveryOperationSvg();
  const std::filesystem::path golden = TestDataPath("draw/every_operation.svg");
  if (UpdateGolden()) {
    std::ofstream out(golden, std::ios::binary | std::ios::trunc);
    out << svg;
    ASSERT_TRUE(out.good()) << "cannot write " << golden;
  }
  std::string expected;
  ASSERT_TRUE(ReadFileBytes(golden, expected))
      << golden << " cannot be read; run with NCAPPKIT_UPDATE_GOLDEN=1 to write it";
  EXPECT_EQ(svg, expected)
      << "if the change is intended, run with NCAPPKIT_UPDATE_GOLDEN=1 and review the diff";
}

TEST(KccSvgCanvasFile, EveryOperationIsTheSameBytesEachTime) {
  EXPECT_EQ(EveryOperationSvg(), EveryOperationSvg());
}

TEST(KccSvgCanvasFile, XmllintFindsTheFileWellFormed) {
#if defined(_WIN32)
  GTEST_SKIP() << "the Windows lane runs the tests under wine, where xmllint is missing";
#endif
  const std::string xmllint = FindProgramOnPath("xmllint");
  ASSERT_FALSE(xmllint.empty()) << "xmllint was not found on PATH; this test needs it "
                                   "(Debian: apt-get install libxml2-utils)";
  TempDir dir;
  KCC_SvgCanvas canvas(kWidth, kHeight);
  DrawEveryOperation(canvas);
  const std::string path = dir.Path("every_operation.svg");
  ASSERT_TRUE(canvas.SaveToFile(path));
  const ChildResult result = RunChild({xmllint, "--noout", path});
  EXPECT_EQ(result.exitCode, 0) << result.err;
  EXPECT_EQ(result.err, "");
}

TEST(KccSvgCanvasFile, KcDocumentReadsTheFileBack) {
  KCDocument document;
  const bool loaded = document.LoadFromText(EveryOperationSvg());
  ASSERT_TRUE(loaded) << document.GetLoadError();
  ASSERT_NE(document.GetRoot(), nullptr);
  EXPECT_EQ(document.GetRoot()->ReadString("viewBox", ""), "0 0 320 200");
}

// ---- rendering

bool IsRed(const PngImage::Pixel& p) {
  return p.r > 200 && p.g < 60 && p.b < 60;
}
bool IsBlue(const PngImage::Pixel& p) {
  return p.r < 60 && p.g < 60 && p.b > 200;
}
// The blue of the rectangle inverted by the NOT-XOR pen.
bool IsYellow(const PngImage::Pixel& p) {
  return p.r > 200 && p.g > 200 && p.b < 60;
}
bool IsGreen(const PngImage::Pixel& p) {
  return p.r < 60 && p.g > 90 && p.b < 60;
}

// One render for the whole check: ctest runs every test in a process of its own, and a render takes about
// two seconds.
TEST(KccSvgCanvasRendering, ChromiumDrawsStrokeFillTextAndMarkInTheirBoxes) {
  const std::string chromium = FindChromium();
  if (chromium.empty())
    GTEST_SKIP() << "no chromium or chromium-browser on PATH (Debian: apt-get install chromium)";
  TempDir dir;
  KCC_SvgCanvas canvas(kWidth, kHeight);
  DrawEveryOperation(canvas);
  const std::string svg = dir.Path("every_operation.svg");
  ASSERT_TRUE(canvas.SaveToFile(svg));

  const auto start = std::chrono::steady_clock::now();
  PngImage image;
  std::string error;
  const bool rendered = RenderWithChromium(chromium, svg, kWidth, kHeight, dir.Path("render"), image, error);
  RecordProperty(
      "chromium_seconds",
      std::to_string(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count()));
  ASSERT_TRUE(rendered) << error;

  EXPECT_EQ(image.width, kWidth);
  EXPECT_EQ(image.height, kHeight);
  // Red outline: the left edge at x = 20, 6 pixels wide (x 17..22), between the corners; none inside.
  EXPECT_GE(image.CountInBox(17, 30, 23, 70, IsRed), 6 * 40 * 9 / 10);
  EXPECT_EQ(image.CountInBox(30, 25, 90, 45, IsRed), 0);
  // Blue brush: every pixel of the inside above the NOT-XOR line.
  EXPECT_EQ(image.CountInBox(30, 25, 90, 45, IsBlue), 60 * 20);
  // NOT-XOR line, 4 pixels wide around y = 50: its two middle rows are the inverted blue.
  EXPECT_EQ(image.CountInBox(35, 49, 85, 51, IsYellow), 50 * 2);
  // "Hg" in bold 28 pixels measures 39 x 28 from (20, 110); stems and bowls give many full pixels, and
  // nothing green lies beside the box.
  EXPECT_GE(image.CountInBox(20, 110, 60, 138, IsGreen), 100);
  EXPECT_EQ(image.CountInBox(70, 110, 110, 138, IsGreen), 0);
}

}  // namespace
