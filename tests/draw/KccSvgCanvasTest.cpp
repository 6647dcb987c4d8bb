// SPDX-License-Identifier: MIT
// KCC_SvgCanvas: the SVG element and attributes each canvas call produces, path joining, escaping, number
// precision and locale independence, text measuring, and saving.
#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <clocale>
#include <functional>
#include <limits>
#include <locale>
#include <random>
#include <stdexcept>
#include <string>

#include "ncappkit/draw/KCC_SvgCanvas.h"
#include "support/TempDir.h"
#include "support/TestData.h"

namespace {

// The element lines of the canvas's SVG: everything between the <svg> start tag line and </svg>.
std::string Elements(const KCC_SvgCanvas& canvas) {
  const std::string svg = canvas.ToSvg();
  const std::size_t start = svg.find('\n', svg.find("<svg")) + 1;
  return svg.substr(start, svg.rfind("</svg>") - start);
}

struct ShapeRow {
  std::string name;
  std::function<void(KCC_SvgCanvas&)> draw;
  std::string expected;  // the element lines
};

void PrintTo(const ShapeRow& row, std::ostream* out) {
  *out << row.name;
}

class KccSvgCanvasShape : public ::testing::TestWithParam<ShapeRow> {};

TEST_P(KccSvgCanvasShape, WritesTheExpectedElements) {
  KCC_SvgCanvas canvas(40, 30);
  GetParam().draw(canvas);
  EXPECT_EQ(Elements(canvas), GetParam().expected);
}

const ShapeRow kShapeRows[] = {
    {"FillCanvasPaintsTheWholeCanvasWithTheBrush",
     [](KCC_SvgCanvas& c) {
       c.SetBrushColor(KCColor(10, 20, 30));
       c.FillCanvas();
     },
     "  <rect x=\"0\" y=\"0\" width=\"40\" height=\"30\" fill=\"#0a141e\"/>\n"},
    {"FillCanvasWithClearBrushDrawsNothing",
     [](KCC_SvgCanvas& c) {
       c.SetBrushStyle(KCBrushStyleClear());
       c.FillCanvas();
     },
     ""},
    {"RectangleIsOutlinedWithThePenAndFilledWithTheBrush",
     [](KCC_SvgCanvas& c) { c.Rectangle(KC2DRectangle(30, 20, 10, 5)); },
     "  <rect x=\"10\" y=\"5\" width=\"20\" height=\"15\" fill=\"#ffffff\" stroke=\"#000000\" "
     "stroke-width=\"1\"/>\n"},
    {"RectangleWithClearBrushIsNotFilled",
     [](KCC_SvgCanvas& c) {
       c.SetBrushStyle(KCBrushStyleClear());
       c.Rectangle(KC2DRectangle(1, 2, 3, 4));
     },
     "  <rect x=\"1\" y=\"2\" width=\"2\" height=\"2\" "
     "fill=\"none\" stroke=\"#000000\" stroke-width=\"1\"/>\n"},
    {"FrameRectangleIgnoresTheBrush",
     [](KCC_SvgCanvas& c) {
       c.SetBrushColor(KCColorRed(255));
       c.FrameRectangle(KC2DRectangle(1, 2, 3, 4));
     },
     "  <rect x=\"1\" y=\"2\" width=\"2\" height=\"2\" "
     "fill=\"none\" stroke=\"#000000\" stroke-width=\"1\"/>\n"},
    {"EllipseIsInscribedInItsBounds",
     [](KCC_SvgCanvas& c) {
       c.SetBrushColor(KCColorYellow(255));
       c.Ellipse(KC2DRectangle(10, 20, 50, 40));
     },
     "  <ellipse cx=\"30\" cy=\"30\" rx=\"20\" ry=\"10\" fill=\"#ffff00\" stroke=\"#000000\" "
     "stroke-width=\"1\"/>\n"},
    {"EllipseMarkIgnoresTheBrush", [](KCC_SvgCanvas& c) { c.EllipseMark(KC2DRectangle(10, 20, 50, 40)); },
     "  <ellipse cx=\"30\" cy=\"30\" rx=\"20\" ry=\"10\" "
     "fill=\"none\" stroke=\"#000000\" stroke-width=\"1\"/>\n"},
    {"PolygonListsItsPoints",
     [](KCC_SvgCanvas& c) {
       c.Polygon({KC2DPoint(1, 2), KC2DPoint(3.5, 4), KC2DPoint(5, -6)});
     },
     "  <polygon points=\"1,2 3.5,4 5,-6\" fill=\"#ffffff\" stroke=\"#000000\" stroke-width=\"1\"/>\n"},
    {"PolygonOfOnePointDrawsNothing", [](KCC_SvgCanvas& c) { c.Polygon({KC2DPoint(1, 2)}); }, ""},
    {"LineToDrawsAPathFromTheCurrentPoint",
     [](KCC_SvgCanvas& c) {
       c.MoveTo(KC2DPoint(1, 2));
       c.LineTo(KC2DPoint(3, 4));
     },
     "  <path d=\"M1 2 L3 4\" fill=\"none\" stroke=\"#000000\" stroke-width=\"1\"/>\n"},
    {"MoveToAloneDrawsNothing", [](KCC_SvgCanvas& c) { c.MoveTo(KC2DPoint(1, 2)); }, ""},
    {"PenColorWithAlphaWritesAnOpacity",
     [](KCC_SvgCanvas& c) {
       c.SetPenColor(KCColorRed(128));
       c.FrameRectangle(KC2DRectangle(0, 0, 1, 1));
     },
     "  <rect x=\"0\" y=\"0\" width=\"1\" height=\"1\" "
     "fill=\"none\" stroke=\"#ff0000\" stroke-opacity=\"0.502\" "
     "stroke-width=\"1\"/>\n"},
    {"BrushColorWithAlphaWritesAnOpacity",
     [](KCC_SvgCanvas& c) {
       c.SetBrushColor(KCColorBlue(0));
       c.FillCanvas();
     },
     "  <rect x=\"0\" y=\"0\" width=\"40\" height=\"30\" fill=\"#0000ff\" fill-opacity=\"0\"/>\n"},
    {"PenWidthBelowOneDrawsOnePixelWide",
     [](KCC_SvgCanvas& c) {
       c.SetPenWidth(0);
       c.FrameRectangle(KC2DRectangle(0, 0, 1, 1));
     },
     "  <rect x=\"0\" y=\"0\" width=\"1\" height=\"1\" "
     "fill=\"none\" stroke=\"#000000\" stroke-width=\"1\"/>\n"},
    {"DashPatternIsScaledByThePenWidth",
     [](KCC_SvgCanvas& c) {
       c.SetPenStyle(KCPenStyleDash());
       c.SetPenWidth(2);
       c.FrameRectangle(KC2DRectangle(0, 0, 1, 1));
     },
     "  <rect x=\"0\" y=\"0\" width=\"1\" height=\"1\" fill=\"none\" stroke=\"#000000\" stroke-width=\"2\" "
     "stroke-dasharray=\"12,6\"/>\n"},
    {"DotPatternIsScaledByThePenWidth",
     [](KCC_SvgCanvas& c) {
       c.SetPenStyle(KCPenStyleDot());
       c.SetPenWidth(2);
       c.FrameRectangle(KC2DRectangle(0, 0, 1, 1));
     },
     "  <rect x=\"0\" y=\"0\" width=\"1\" height=\"1\" fill=\"none\" stroke=\"#000000\" stroke-width=\"2\" "
     "stroke-dasharray=\"4,4\"/>\n"},
    {"DashDotPatternIsScaledByThePenWidth",
     [](KCC_SvgCanvas& c) {
       c.SetPenStyle(KCPenStyleDashDot());
       c.SetPenWidth(2);
       c.FrameRectangle(KC2DRectangle(0, 0, 1, 1));
     },
     "  <rect x=\"0\" y=\"0\" width=\"1\" height=\"1\" fill=\"none\" stroke=\"#000000\" stroke-width=\"2\" "
     "stroke-dasharray=\"12,6,4,6\"/>\n"},
    {"DashDotDotPatternIsScaledByThePenWidth",
     [](KCC_SvgCanvas& c) {
       c.SetPenStyle(KCPenStyleDashDotDot());
       c.SetPenWidth(2);
       c.FrameRectangle(KC2DRectangle(0, 0, 1, 1));
     },
     "  <rect x=\"0\" y=\"0\" width=\"1\" height=\"1\" fill=\"none\" stroke=\"#000000\" stroke-width=\"2\" "
     "stroke-dasharray=\"12,6,4,6,4,6\"/>\n"},
    {"NotXorDrawsTheComplementWithDifferenceBlending",
     [](KCC_SvgCanvas& c) {
       c.SetPenMode(KCPenModeNotXor());
       c.SetBrushStyle(KCBrushStyleClear());
       c.FrameRectangle(KC2DRectangle(0, 0, 1, 1));
     },
     "  <rect x=\"0\" y=\"0\" width=\"1\" height=\"1\" fill=\"none\" stroke=\"#ffffff\" stroke-width=\"1\" "
     "style=\"mix-blend-mode:difference\"/>\n"},
    {"NotXorComplementsTheBrushOfAFilledShape",
     [](KCC_SvgCanvas& c) {
       c.SetPenMode(KCPenModeNotXor());
       c.SetBrushColor(KCColor(255, 0, 0));
       c.Ellipse(KC2DRectangle(0, 0, 2, 2));
     },
     "  <ellipse cx=\"1\" cy=\"1\" rx=\"1\" ry=\"1\" fill=\"#00ffff\" stroke=\"#ffffff\" stroke-width=\"1\" "
     "style=\"mix-blend-mode:difference\"/>\n"},
    {"TextOutWithClearBrushWritesOnlyTheText",
     [](KCC_SvgCanvas& c) {
       c.SetBrushStyle(KCBrushStyleClear());
       c.TextOut(KC2DPoint(10, 20), "Hg");
     },
     "  <text x=\"10\" y=\"29.6\" font-family=\"Arial\" font-size=\"12\" fill=\"#000000\" "
     "xml:space=\"preserve\"><tspan>Hg</tspan></text>\n"},
    {"TextOutWithSolidBrushFillsTheMeasuredBox",
     [](KCC_SvgCanvas& c) {
       c.SetBrushColor(KCColorYellow(255));
       c.SetFontColor(KCColorNavy(255));
       c.SetFontSize(10);
       c.TextOut(KC2DPoint(10, 20), "Hg");
     },
     "  <rect x=\"10\" y=\"20\" width=\"13\" height=\"10\" fill=\"#ffff00\"/>\n"
     "  <text x=\"10\" y=\"28\" font-family=\"Arial\" font-size=\"10\" fill=\"#000080\" "
     "xml:space=\"preserve\"><tspan>Hg</tspan></text>\n"},
    {"TextAngleTurnsCounterClockwiseAboutTheOrigin",
     [](KCC_SvgCanvas& c) {
       c.SetBrushStyle(KCBrushStyleClear());
       c.SetTextAngle(30);
       c.TextOut(KC2DPoint(10, 20), "A");
     },
     "  <text x=\"10\" y=\"29.6\" font-family=\"Arial\" font-size=\"12\" fill=\"#000000\" "
     "transform=\"rotate(-30 10 20)\" xml:space=\"preserve\"><tspan>A</tspan></text>\n"},
    {"FontStylesBecomeFontAttributes",
     [](KCC_SvgCanvas& c) {
       KCFontStyles styles;
       styles.Add(KCFontStyleBold());
       styles.Add(KCFontStyleItalic());
       styles.Add(KCFontStyleUnderline());
       styles.Add(KCFontStyleStrikeOut());
       c.SetFontStyles(styles);
       c.SetFontName("Courier New");
       c.SetBrushStyle(KCBrushStyleClear());
       c.TextOut(KC2DPoint(0, 0), "A");
     },
     "  <text x=\"0\" y=\"9.6\" font-family=\"Courier New\" font-size=\"12\" font-weight=\"bold\" "
     "font-style=\"italic\" text-decoration=\"underline line-through\" fill=\"#000000\" "
     "xml:space=\"preserve\"><tspan>A</tspan></text>\n"},
    {"EmptyFontNameLeavesTheFamilyOut",
     [](KCC_SvgCanvas& c) {
       c.SetFontName("");
       c.SetBrushStyle(KCBrushStyleClear());
       c.TextOut(KC2DPoint(0, 0), "A");
     },
     "  <text x=\"0\" y=\"9.6\" font-size=\"12\" "
     "fill=\"#000000\" xml:space=\"preserve\"><tspan>A</tspan></text>\n"},
    {"EmptyTextDrawsNothing", [](KCC_SvgCanvas& c) { c.TextOut(KC2DPoint(0, 0), ""); }, ""},
    {"RectangleWithAnInfiniteCornerDrawsNothing",
     [](KCC_SvgCanvas& c) { c.Rectangle(KC2DRectangle(0, 0, std::numeric_limits<double>::infinity(), 1)); },
     ""},
};

INSTANTIATE_TEST_SUITE_P(Table, KccSvgCanvasShape, ::testing::ValuesIn(kShapeRows), RowName());

TEST(KccSvgCanvas, ConsecutiveLineTosWithTheSamePenMakeOnePath) {
  KCC_SvgCanvas canvas(40, 30);
  canvas.MoveTo(KC2DPoint(0, 0));
  canvas.LineTo(KC2DPoint(10, 0));
  canvas.LineTo(KC2DPoint(10, 10));
  canvas.LineTo(KC2DPoint(0, 10));
  EXPECT_EQ(Elements(canvas),
            "  <path d=\"M0 0 L10 0 L10 10 L0 10\" fill=\"none\" stroke=\"#000000\" "
            "stroke-width=\"1\"/>\n");
}

TEST(KccSvgCanvas, MoveToBetweenLineTosStartsASubPath) {
  KCC_SvgCanvas canvas(40, 30);
  canvas.LineTo(KC2DPoint(10, 0));
  canvas.MoveTo(KC2DPoint(20, 20));
  canvas.LineTo(KC2DPoint(30, 30));
  EXPECT_EQ(Elements(canvas),
            "  <path d=\"M0 0 L10 0 M20 20 L30 30\" fill=\"none\" stroke=\"#000000\" "
            "stroke-width=\"1\"/>\n");
}

TEST(KccSvgCanvas, PenColorChangeEndsThePath) {
  KCC_SvgCanvas canvas(40, 30);
  canvas.LineTo(KC2DPoint(10, 0));
  canvas.SetPenColor(KCColorRed(255));
  canvas.LineTo(KC2DPoint(10, 10));
  EXPECT_EQ(Elements(canvas),
            "  <path d=\"M0 0 L10 0\" fill=\"none\" stroke=\"#000000\" stroke-width=\"1\"/>\n"
            "  <path d=\"M10 0 L10 10\" fill=\"none\" stroke=\"#ff0000\" stroke-width=\"1\"/>\n");
}

TEST(KccSvgCanvas, PenSetBackBeforeTheNextLineToKeepsThePath) {
  KCC_SvgCanvas canvas(40, 30);
  canvas.LineTo(KC2DPoint(10, 0));
  canvas.SetPenWidth(5);
  canvas.SetPenWidth(1);
  canvas.LineTo(KC2DPoint(10, 10));
  EXPECT_EQ(Elements(canvas),
            "  <path d=\"M0 0 L10 0 L10 10\" fill=\"none\" stroke=\"#000000\" stroke-width=\"1\"/>\n");
}

TEST(KccSvgCanvas, AnotherShapeEndsThePath) {
  KCC_SvgCanvas canvas(40, 30);
  canvas.LineTo(KC2DPoint(10, 0));
  canvas.EllipseMark(KC2DRectangle(0, 0, 2, 2));
  canvas.LineTo(KC2DPoint(10, 10));
  EXPECT_EQ(
      Elements(canvas),
      "  <path d=\"M0 0 L10 0\" fill=\"none\" stroke=\"#000000\" stroke-width=\"1\"/>\n"
      "  <ellipse cx=\"1\" cy=\"1\" rx=\"1\" ry=\"1\" fill=\"none\" stroke=\"#000000\" stroke-width=\"1\"/>\n"
      "  <path d=\"M10 0 L10 10\" fill=\"none\" stroke=\"#000000\" stroke-width=\"1\"/>\n");
}

TEST(KccSvgCanvas, LineToANonFinitePointDrawsNothingButMovesTheCurrentPoint) {
  KCC_SvgCanvas canvas(40, 30);
  canvas.LineTo(KC2DPoint(std::numeric_limits<double>::quiet_NaN(), 5));
  canvas.MoveTo(KC2DPoint(1, 1));
  canvas.LineTo(KC2DPoint(2, 2));
  EXPECT_EQ(Elements(canvas),
            "  <path d=\"M1 1 L2 2\" fill=\"none\" stroke=\"#000000\" stroke-width=\"1\"/>\n");
}

TEST(KccSvgCanvas, CanvasWithoutCallsIsAnEmptySvg) {
  const KCC_SvgCanvas canvas(320, 200);
  EXPECT_EQ(canvas.ToSvg(),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" width=\"320\" height=\"200\" "
            "viewBox=\"0 0 320 200\">\n"
            "</svg>\n");
}

TEST(KccSvgCanvas, NegativeSizeIsTakenAsZero) {
  const KCC_SvgCanvas canvas(-5, -1);
  EXPECT_EQ(canvas.ToSvg(),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" width=\"0\" height=\"0\" "
            "viewBox=\"0 0 0 0\">\n"
            "</svg>\n");
}

TEST(KccSvgCanvas, GettersGiveBackWhatWasSetEvenWhenItCannotBeDrawnAsIs) {
  KCC_SvgCanvas canvas(10, 10);
  canvas.SetPenWidth(-3);
  canvas.SetFontSize(-7);
  canvas.SetTextAngle(0.1 + 0.2);
  canvas.SetFontName("  Odd<Name>  ");
  EXPECT_EQ(canvas.GetPenWidth(), -3);
  EXPECT_EQ(canvas.GetFontSize(), -7);
  EXPECT_EQ(canvas.GetTextAngle(), 0.1 + 0.2);
  EXPECT_EQ(canvas.GetFontName(), "  Odd<Name>  ");
}

TEST(KccSvgCanvas, NewCanvasHasTheDocumentedDefaults) {
  const KCC_SvgCanvas canvas(10, 10);
  EXPECT_EQ(canvas.GetPenColor(), KCColor(0, 0, 0, 255));
  EXPECT_EQ(canvas.GetPenWidth(), 1);
  EXPECT_EQ(canvas.GetPenStyle(), KCPenStyleSolid());
  EXPECT_EQ(canvas.GetPenMode(), KCPenMode());
  EXPECT_EQ(canvas.GetBrushColor(), KCColor(255, 255, 255, 255));
  EXPECT_EQ(canvas.GetBrushStyle(), KCBrushStyleSolid());
  EXPECT_EQ(canvas.GetFontColor(), KCColor(0, 0, 0, 255));
  EXPECT_EQ(canvas.GetFontName(), "Arial");
  EXPECT_EQ(canvas.GetFontSize(), 12);
  EXPECT_TRUE(canvas.GetFontStyles().IsEmpty());
  EXPECT_EQ(canvas.GetTextAngle(), 0.0);
  EXPECT_EQ(canvas.GetCurrentPoint(), KC2DPoint(0, 0));
  EXPECT_EQ(canvas.GetPrecision(), 2);
}

TEST(KccSvgCanvas, CopyKeepsTheShapesDrawnSoFar) {
  KCC_SvgCanvas canvas(10, 10);
  canvas.Rectangle(KC2DRectangle(1, 1, 2, 2));
  const KCC_SvgCanvas copy(canvas);
  canvas.Rectangle(KC2DRectangle(3, 3, 4, 4));
  EXPECT_EQ(Elements(copy),
            "  <rect x=\"1\" y=\"1\" width=\"1\" height=\"1\" fill=\"#ffffff\" stroke=\"#000000\" "
            "stroke-width=\"1\"/>\n");
}

// ---- escaping

struct EscapeRow {
  std::string name;
  std::string text;
  std::string written;  // the content of the <tspan>
};

void PrintTo(const EscapeRow& row, std::ostream* out) {
  *out << row.name;
}

class KccSvgCanvasEscape : public ::testing::TestWithParam<EscapeRow> {};

TEST_P(KccSvgCanvasEscape, WritesTheTextSoTheFileStaysWellFormed) {
  KCC_SvgCanvas canvas(10, 10);
  canvas.SetBrushStyle(KCBrushStyleClear());
  canvas.TextOut(KC2DPoint(0, 0), GetParam().text);
  const std::string elements = Elements(canvas);
  const std::size_t start = elements.find("<tspan>") + 7;
  EXPECT_EQ(elements.substr(start, elements.find("</tspan>") - start), GetParam().written);
}

const EscapeRow kEscapeRows[] = {
    {"MarkupCharacters", "a<b & \"c\" 'd'>", "a&lt;b &amp; &quot;c&quot; &apos;d&apos;&gt;"},
    {"ValidUtf8StaysAsItIs", "\xC3\xBC\xE2\x82\xAC", "\xC3\xBC\xE2\x82\xAC"},
    {"InvalidByteIsTakenAsLatin1", "\xE9t\xE9", "\xC3\xA9t\xC3\xA9"},
    {"OverlongFormIsTakenAsLatin1Bytes", "\xC0\xAF", "\xC3\x80\xC2\xAF"},
    {"EncodedSurrogateIsTakenAsLatin1Bytes", "\xED\xA0\x80", "\xC3\xAD\xC2\xA0\xC2\x80"},
    {"TruncatedSequenceIsTakenAsLatin1", "a\xE2\x82", "a\xC3\xA2\xC2\x82"},
    {"ForbiddenControlCharacterBecomesReplacementCharacter", "a\x01z", "a\xEF\xBF\xBDz"},
    {"TabAndLineEndsBecomeReferences", "a\tb\r\nc", "a&#9;b&#13;&#10;c"},
};

INSTANTIATE_TEST_SUITE_P(Table, KccSvgCanvasEscape, ::testing::ValuesIn(kEscapeRows), RowName());

TEST(KccSvgCanvas, FontNameIsEscapedInItsAttribute) {
  KCC_SvgCanvas canvas(10, 10);
  canvas.SetBrushStyle(KCBrushStyleClear());
  canvas.SetFontName("A\"&B");
  canvas.TextOut(KC2DPoint(0, 0), "x");
  EXPECT_NE(Elements(canvas).find(" font-family=\"A&quot;&amp;B\" "), std::string::npos);
}

// ---- numbers

struct PrecisionRow {
  std::string name;
  int precision;
  double value;
  std::string written;
};

void PrintTo(const PrecisionRow& row, std::ostream* out) {
  *out << row.name;
}

class KccSvgCanvasPrecision : public ::testing::TestWithParam<PrecisionRow> {};

TEST_P(KccSvgCanvasPrecision, WritesCoordinatesWithAtMostThatManyDecimals) {
  KCC_SvgCanvas canvas(10, 10);
  canvas.SetPrecision(GetParam().precision);
  canvas.MoveTo(KC2DPoint(GetParam().value, 0));
  canvas.LineTo(KC2DPoint(0, 0));
  EXPECT_EQ(Elements(canvas), "  <path d=\"M" + GetParam().written +
                                  " 0 L0 0\" fill=\"none\" stroke=\"#000000\" stroke-width=\"1\"/>\n");
}

const PrecisionRow kPrecisionRows[] = {
    {"DefaultTwoDecimals", 2, 1.23456, "1.23"}, {"ZeroDecimalsRounds", 0, 1.5, "2"},
    {"FourDecimals", 4, 1.23456, "1.2346"},     {"TrailingZerosDropped", 3, 2.5, "2.5"},
    {"WholeNumberHasNoPoint", 3, 7.0, "7"},     {"NegativeZeroAfterRoundingIsZero", 2, -0.001, "0"},
    {"NegativeValue", 2, -12.345, "-12.35"},    {"LargeValueInFixedNotation", 1, 1.5e7, "15000000"},
};

INSTANTIATE_TEST_SUITE_P(Table, KccSvgCanvasPrecision, ::testing::ValuesIn(kPrecisionRows), RowName());

TEST(KccSvgCanvas, PrecisionIsClampedToZeroToTen) {
  KCC_SvgCanvas canvas(10, 10);
  canvas.SetPrecision(-3);
  const int low = canvas.GetPrecision();
  canvas.SetPrecision(99);
  EXPECT_EQ(low, 0);
  EXPECT_EQ(canvas.GetPrecision(), 10);
}

TEST(KccSvgCanvas, PrecisionSetAfterDrawingAppliesToTheWholeImage) {
  KCC_SvgCanvas canvas(10, 10);
  canvas.LineTo(KC2DPoint(1.25, 0));
  canvas.SetPrecision(1);
  EXPECT_EQ(Elements(canvas),
            "  <path d=\"M0 0 L1.2 0\" fill=\"none\" stroke=\"#000000\" stroke-width=\"1\"/>\n");
}

TEST(KccSvgCanvas, NumbersDoNotDependOnTheCLocale) {
  const char* previous = std::setlocale(LC_ALL, nullptr);
  const std::string saved = previous ? previous : "C";
  const bool haveGerman =
      std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr || std::setlocale(LC_ALL, "de_DE") != nullptr;
  KCC_SvgCanvas canvas(10, 10);
  canvas.MoveTo(KC2DPoint(1.5, 1234.25));
  canvas.LineTo(KC2DPoint(0, 0));
  const std::string elements = Elements(canvas);
  std::setlocale(LC_ALL, saved.c_str());
  EXPECT_EQ(elements,
            "  <path d=\"M1.5 1234.25 L0 0\" fill=\"none\" stroke=\"#000000\" stroke-width=\"1\"/>\n");
  if (!haveGerman)
    GTEST_SKIP() << "de_DE locale not installed; checked in the C locale only";
}

TEST(KccSvgCanvas, NumbersDoNotDependOnTheGlobalCppLocale) {
  std::locale german;
  try {
    german = std::locale("de_DE.UTF-8");
  } catch (const std::runtime_error&) {
    GTEST_SKIP() << "de_DE.UTF-8 locale not installed";
  }
  const std::locale saved = std::locale::global(german);
  KCC_SvgCanvas canvas(1000, 10);
  canvas.MoveTo(KC2DPoint(1.5, 1234.25));
  canvas.LineTo(KC2DPoint(0, 0));
  const std::string svg = canvas.ToSvg();
  std::locale::global(saved);
  EXPECT_NE(svg.find("width=\"1000\""), std::string::npos);
  EXPECT_NE(svg.find("d=\"M1.5 1234.25 L0 0\""), std::string::npos);
}

// ---- text measuring

struct MeasureRow {
  std::string name;
  std::string font;
  int size;
  bool bold;
  std::string text;
  int width;
  int height;
};

void PrintTo(const MeasureRow& row, std::ostream* out) {
  *out << row.name;
}

class KccSvgCanvasMeasure : public ::testing::TestWithParam<MeasureRow> {};

TEST_P(KccSvgCanvasMeasure, EstimatesTheTextBox) {
  const MeasureRow& row = GetParam();
  KCC_SvgCanvas canvas(10, 10);
  canvas.SetFontName(row.font);
  canvas.SetFontSize(row.size);
  KCFontStyles styles;
  if (row.bold)
    styles.Add(KCFontStyleBold());
  canvas.SetFontStyles(styles);
  int width = -1;
  int height = -1;
  canvas.MeasureText(row.text, width, height);
  EXPECT_EQ(width, row.width);
  EXPECT_EQ(height, row.height);
}

const MeasureRow kMeasureRows[] = {
    // H 0.722 + g 0.556 em = 12.78 px at 10 px, rounded up.
    {"ProportionalWidthsAreSummedAndRoundedUp", "Arial", 10, false, "Hg", 13, 10},
    {"NarrowLettersAreNarrower", "Arial", 100, false, "il", 45, 100},
    // 12.78 * 1.07 = 13.67 px.
    {"BoldIsSevenPercentWider", "Arial", 10, true, "Hg", 14, 10},
    {"MonospaceFamilyTakesSixTenthsPerCharacter", "Courier New", 10, false, "Hg", 12, 10},
    {"MonoInTheNameMakesAMonospaceFamily", "DejaVu Sans Mono", 10, false, "ili", 18, 10},
    {"CharacterBeyondAsciiTakesTheWidthOfADigit", "Arial", 1000, false, "\xC3\xBC", 556, 1000},
    {"EmptyTextHasTheFontHeight", "Arial", 12, false, "", 0, 12},
    {"FontSizeBelowZeroMeasuresAsZero", "Arial", -5, false, "Hg", 0, 0},
};

INSTANTIATE_TEST_SUITE_P(Table, KccSvgCanvasMeasure, ::testing::ValuesIn(kMeasureRows), RowName());

// ---- saving

TEST(KccSvgCanvas, SaveToFileWritesTheSvgText) {
  TempDir dir;
  KCC_SvgCanvas canvas(10, 10);
  canvas.Rectangle(KC2DRectangle(1, 1, 5, 5));
  const bool saved = canvas.SaveToFile(dir.Path("out.svg"));
  EXPECT_TRUE(saved);
  EXPECT_EQ(dir.ReadFile("out.svg"), canvas.ToSvg());
}

TEST(KccSvgCanvas, SaveToFileReplacesAnExistingFile) {
  TempDir dir;
  const std::string path =
      dir.WriteFile("out.svg", "old contents that are longer than the new ones ... ... ...");
  const KCC_SvgCanvas canvas(1, 1);
  EXPECT_TRUE(canvas.SaveToFile(path));
  EXPECT_EQ(dir.ReadFile("out.svg"), canvas.ToSvg());
}

TEST(KccSvgCanvas, SaveToFileWithANulInThePathFailsAndWritesNothing) {
  TempDir dir;
  const KCC_SvgCanvas canvas(1, 1);
  const bool saved = canvas.SaveToFile(KCString(dir.Path("a") + std::string(1, '\0') + "b.svg"));
  EXPECT_FALSE(saved);
  EXPECT_EQ(dir.EntryCount(), 0);
}

TEST(KccSvgCanvas, SaveToFileInAMissingFolderFails) {
  TempDir dir;
  const KCC_SvgCanvas canvas(1, 1);
  EXPECT_FALSE(canvas.SaveToFile(dir.Path("missing/out.svg")));
}

// ---- arcs

TEST(KccSvgCanvas, ArcToJoinsTheOpenPathAsAnArcCommand) {
  KCC_SvgCanvas canvas(80, 80);
  canvas.MoveTo(KC2DPoint(10, 10));
  canvas.LineTo(KC2DPoint(50, 10));
  canvas.ArcTo(KC2DPoint(50, 50), 20, false, true);
  canvas.LineTo(KC2DPoint(10, 50));
  EXPECT_EQ(Elements(canvas),
            "  <path d=\"M10 10 L50 10 A20 20 0 0 1 50 50 L10 50\" fill=\"none\" stroke=\"#000000\" "
            "stroke-width=\"1\"/>\n");
}

TEST(KccSvgCanvas, ArcToWritesTheLargeArcAndCounterClockwiseFlags) {
  KCC_SvgCanvas canvas(80, 80);
  canvas.MoveTo(KC2DPoint(10, 10));
  canvas.ArcTo(KC2DPoint(20, 10), -5.5, true, false);
  EXPECT_EQ(
      Elements(canvas),
      "  <path d=\"M10 10 A5.5 5.5 0 1 0 20 10\" fill=\"none\" stroke=\"#000000\" stroke-width=\"1\"/>\n");
}

TEST(KccSvgCanvas, ArcToTheCurrentPointDrawsNothing) {
  KCC_SvgCanvas canvas(80, 80);
  canvas.MoveTo(KC2DPoint(10, 10));
  canvas.ArcTo(KC2DPoint(10, 10), 5, false, true);
  EXPECT_EQ(Elements(canvas), "");
}

TEST(KccSvgCanvas, ArcToWithANonFiniteRadiusDrawsNothingButMovesTheCurrentPoint) {
  KCC_SvgCanvas canvas(80, 80);
  canvas.ArcTo(KC2DPoint(10, 10), std::numeric_limits<double>::infinity(), false, true);
  const KC2DPoint current = canvas.GetCurrentPoint();
  EXPECT_EQ(Elements(canvas), "");
  EXPECT_EQ(current, KC2DPoint(10, 10));
}

TEST(KccSvgCanvas, ArcToAfterAMoveStartsASubPath) {
  KCC_SvgCanvas canvas(80, 80);
  canvas.LineTo(KC2DPoint(10, 0));
  canvas.MoveTo(KC2DPoint(30, 30));
  canvas.ArcTo(KC2DPoint(40, 30), 5, false, true);
  EXPECT_EQ(Elements(canvas),
            "  <path d=\"M0 0 L10 0 M30 30 A5 5 0 0 1 40 30\" fill=\"none\" stroke=\"#000000\" "
            "stroke-width=\"1\"/>\n");
}

TEST(KccSvgCanvas, ReservePointsLeavesThePictureUnchanged) {
  KCC_SvgCanvas plain(40, 30);
  KCC_SvgCanvas reserved(40, 30);
  reserved.ReservePoints(1000);
  reserved.ReservePoints(std::numeric_limits<std::size_t>::max());  // too large to hold: ignored
  for (KCC_SvgCanvas* canvas : {&plain, &reserved}) {
    canvas->LineTo(KC2DPoint(10, 0));
    canvas->ArcTo(KC2DPoint(10, 10), 5, false, true);
  }
  EXPECT_EQ(reserved.ToSvg(), plain.ToSvg());
}

// ---- groups, title and description

TEST(KccSvgCanvas, GroupsWrapTheirShapesAndNest) {
  KCC_SvgCanvas canvas(40, 30);
  canvas.BeginGroup("outer", "");
  canvas.LineTo(KC2DPoint(10, 0));
  canvas.BeginGroup("inner", "");
  canvas.FrameRectangle(KC2DRectangle(1, 1, 2, 2));
  canvas.EndGroup();
  canvas.EndGroup();
  EXPECT_EQ(Elements(canvas),
            "  <g id=\"outer\">\n"
            "    <path d=\"M0 0 L10 0\" fill=\"none\" stroke=\"#000000\" stroke-width=\"1\"/>\n"
            "    <g id=\"inner\">\n"
            "      <rect x=\"1\" y=\"1\" width=\"1\" height=\"1\" fill=\"none\" stroke=\"#000000\" "
            "stroke-width=\"1\"/>\n"
            "    </g>\n"
            "  </g>\n");
}

TEST(KccSvgCanvas, GroupWithALabelIsALayerAndDeclaresItsNamespace) {
  KCC_SvgCanvas canvas(40, 30);
  canvas.BeginGroup("t1", "T1 <feed>");
  canvas.EndGroup();
  const std::string svg = canvas.ToSvg();
  EXPECT_NE(svg.find("<svg xmlns=\"http://www.w3.org/2000/svg\" "
                     "xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\" version=\"1.1\""),
            std::string::npos);
  EXPECT_EQ(Elements(canvas),
            "  <g id=\"t1\" inkscape:groupmode=\"layer\" inkscape:label=\"T1 &lt;feed&gt;\">\n"
            "  </g>\n");
}

TEST(KccSvgCanvas, GroupWithoutLabelDeclaresNoLayerNamespace) {
  KCC_SvgCanvas canvas(40, 30);
  canvas.BeginGroup("", "");
  canvas.EndGroup();
  EXPECT_EQ(canvas.ToSvg().find("inkscape"), std::string::npos);
  EXPECT_EQ(Elements(canvas), "  <g>\n  </g>\n");
}

TEST(KccSvgCanvas, EndGroupWithoutAnOpenGroupDoesNothing) {
  KCC_SvgCanvas canvas(40, 30);
  canvas.EndGroup();
  EXPECT_EQ(canvas.GetOpenGroupCount(), 0);
  EXPECT_EQ(Elements(canvas), "");
}

TEST(KccSvgCanvas, ToSvgClosesTheGroupsLeftOpen) {
  KCC_SvgCanvas canvas(40, 30);
  canvas.BeginGroup("a", "");
  canvas.BeginGroup("b", "");
  EXPECT_EQ(canvas.GetOpenGroupCount(), 2);
  EXPECT_EQ(Elements(canvas), "  <g id=\"a\">\n    <g id=\"b\">\n    </g>\n  </g>\n");
}

TEST(KccSvgCanvas, BeginGroupEndsTheOpenPath) {
  KCC_SvgCanvas canvas(40, 30);
  canvas.LineTo(KC2DPoint(10, 0));
  canvas.BeginGroup("g", "");
  canvas.LineTo(KC2DPoint(20, 0));
  EXPECT_EQ(Elements(canvas),
            "  <path d=\"M0 0 L10 0\" fill=\"none\" stroke=\"#000000\" stroke-width=\"1\"/>\n"
            "  <g id=\"g\">\n"
            "    <path d=\"M10 0 L20 0\" fill=\"none\" stroke=\"#000000\" stroke-width=\"1\"/>\n"
            "  </g>\n");
}

TEST(KccSvgCanvas, TitleAndDescriptionComeFirstEscapedWithTheirLineBreaks) {
  KCC_SvgCanvas canvas(40, 30);
  canvas.FillCanvas();
  canvas.SetTitle("part.nc - O1000 <A&B>");
  canvas.SetDescription("File: part.nc\nUnits: mm\r");
  EXPECT_EQ(canvas.GetTitle(), KCString("part.nc - O1000 <A&B>"));
  EXPECT_EQ(Elements(canvas),
            "  <title>part.nc - O1000 &lt;A&amp;B&gt;</title>\n"
            "  <desc>File: part.nc\nUnits: mm&#13;</desc>\n"
            "  <rect x=\"0\" y=\"0\" width=\"40\" height=\"30\" fill=\"#ffffff\"/>\n");
}

TEST(KccSvgCanvas, EmptyTitleAndDescriptionWriteNoElements) {
  KCC_SvgCanvas canvas(40, 30);
  canvas.SetTitle("x");
  canvas.SetTitle("");
  canvas.SetDescription("");
  EXPECT_EQ(Elements(canvas), "");
}

// ---- numbers

// What std::to_chars writes in fixed notation with `decimals` decimals, trailing zeros and a lone point
// dropped and "-0" as "0": the text the canvas must write for every value.
std::string ToCharsText(double value, int decimals) {
  char buffer[400];
  const auto result =
      std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
  std::string text(buffer, result.ptr);
  if (text.find('.') != std::string::npos) {
    while (text.back() == '0')
      text.pop_back();
    if (text.back() == '.')
      text.pop_back();
  }
  return text == "-0" ? "0" : text;
}

TEST(KccSvgCanvas, NumbersAreWhatToCharsWritesForEveryPrecision) {
  // Random pixel-sized values, values on and next to ties, and values beyond the integer path.
  std::vector<double> values = {0.25,   0.125, 2.5,     -2.5,  0.05,     -0.05,  1.0 / 3.0, 999999.95,
                                0.0005, 1e12,  -3.7e15, 1e300, 4.999999, 0.4999, -0.0,      123456.785};
  std::mt19937_64 random(7);
  std::uniform_real_distribution<double> pixels(-20000.0, 20000.0);
  for (int i = 0; i < 2000; ++i)
    values.push_back(pixels(random));
  for (int precision = 0; precision <= 10; ++precision) {
    KCC_SvgCanvas canvas(10, 10);
    canvas.SetPrecision(precision);
    std::string expected = "  <path d=\"M0 0";
    for (const double v : values) {
      canvas.LineTo(KC2DPoint(v, 1.5));
      expected += " L" + ToCharsText(v, precision) + " " + ToCharsText(1.5, precision);
    }
    expected += "\" fill=\"none\" stroke=\"#000000\" stroke-width=\"1\"/>\n";
    EXPECT_EQ(Elements(canvas), expected) << "precision " << precision;
  }
}

}  // namespace

// --- write threads -----------------------------------------------------------------------------------------

namespace {

// A canvas with one path of about `steps` * 2.4 points: lines, arcs every third step (whose three points a
// part boundary must not split) and a move every seventh.
KCC_SvgCanvas LongPathCanvas(int steps) {
  KCC_SvgCanvas canvas(800, 600);
  canvas.SetPrecision(1);
  canvas.MoveTo(KC2DPoint(0.0, 0.0));
  for (int i = 1; i <= steps; ++i) {
    const KC2DPoint to((i * 37) % 800 + 0.25, (i * 53) % 600 + 0.5);
    if (i % 7 == 0)
      canvas.MoveTo(to);
    else if (i % 3 == 0)
      canvas.ArcTo(to, 150.0 + i % 50, i % 2 == 0, i % 4 == 0);
    else
      canvas.LineTo(to);
  }
  return canvas;
}

}  // namespace

TEST(KccSvgCanvas, WriteThreadsAreOneUnlessSet) {
  const KCC_SvgCanvas canvas(10, 10);

  EXPECT_EQ(canvas.GetWriteThreads(), 1);
}

TEST(KccSvgCanvas, WriteThreadsAreClampedToTheirRange) {
  KCC_SvgCanvas canvas(10, 10);

  canvas.SetWriteThreads(0);
  EXPECT_EQ(canvas.GetWriteThreads(), 1);
  canvas.SetWriteThreads(1000);
  EXPECT_EQ(canvas.GetWriteThreads(), KCC_SvgCanvas::kMaxWriteThreads);
}

TEST(KccSvgCanvas, LongPathIsTheSameBytesWhateverTheWriteThreads) {
  KCC_SvgCanvas canvas = LongPathCanvas(120000);
  const std::string alone = canvas.ToSvg();

  for (int threads : {2, 3, 4, KCC_SvgCanvas::kMaxWriteThreads}) {
    canvas.SetWriteThreads(threads);
    EXPECT_EQ(canvas.ToSvg(), alone) << threads << " threads";
  }
  EXPECT_EQ(std::count(alone.begin(), alone.end(), 'A'), 120000 / 3 - 120000 / 21);
}
