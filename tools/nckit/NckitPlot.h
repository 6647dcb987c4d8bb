// SPDX-License-Identifier: MIT
// The backplot of nckit plot: the tool path of one or more interpreted NC programs drawn through the
// library's drawing stack (KCC_ViewPortDraw, KCC_Draw, KCC_SvgCanvas) into one SVG picture.
//
//   KCC_NcToolPath path;
//   path.Interpret(file, program);
//   PlotOptions options;                              // 1000 x 700, view XY, bottom-left corner
//   const std::vector<PlotProgram> drawn = {{&program, &path}};
//   const std::string svg = PlotToSvg("part.nc", drawn, options);
//
// How the picture is made:
// - The view names the plane shown and looks at it from its positive third axis, the way G17, G18 and G19
//   arcs count their turning sense: xy shows X to the right and Y up, xz shows Z to the right and X up (a
//   lathe program as it is usually drawn), yz shows Y to the right and Z up. The reference corner turns
//   that picture as KCC_ViewPort's corners do.
// - The extents of the path (arc bulges included) fit the plot area through KCC_GUI_ZoomData's fit data,
//   inside a pixel margin; a side shorter than kPlotMinWorldSpan is widened to it, so a single point or a
//   straight line still gives a view.
// - Rapids are dashed in one colour; feeds, arcs and holes are solid in the colour of their tool (a fixed
//   palette, by the order in which the tools first move). Arcs in the view's plane are SVG arcs, exact at
//   any zoom; an inconsistent arc (start and end radius differ) is a polyline within a quarter pixel of
//   the spiral whose radius changes evenly along the sweep, as the extents take it. Arcs in another plane
//   are drawn as their projection, a line through the arc's extreme points. Lines longer than
//   kPlotArrowMinPixels get a direction arrow at their middle, in pictures of at most
//   kPlotMaxSegmentsWithArrows segments. A hole is its plunge line and a circle with a cross at its bottom,
//   numbered in drilling order. A green dot marks the start of the path and a black square its end.
// - Segments the interpreter marked (kFlagInconsistent: an arc whose radii disagree, drawn as the spiral
//   above, an R arc too short for its chord, drawn as the half circle, an arc without centre or radius,
//   drawn straight) are drawn orange and dash-dotted in a "marked" layer of their tool, above the cut, and
//   the legend counts them.
// - Within a layer, points closer than half a pixel to the last point drawn are merged into the next line,
//   so a run of tiny moves costs one line per half pixel; every segment's end is still reached.
// - Every tool and move kind is a group of its own ("T1 feed", "T3 rapid"), marked as a layer for vector
//   editors, then come the markers and the legend. The segments are sorted into their layers first, so each
//   layer is one group however the tools and kinds alternate; a layer with nothing to draw is left out.
// - A legend at the right (on canvases at least kPlotMinWidthForLegend wide) names the file, the programs,
//   the units, the extents, the segment counts, the lengths, the run time, the tools and the words the
//   interpreter did not take; the same text is the picture's <desc>.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "ncappkit/nc/KCC_NcToolPath.h"

class KCC_NcFile;
class KCC_NcFileProgram;

/// Canvas size when none is given, pixels: a landscape picture that fits a laptop screen.
constexpr int kPlotDefaultWidth = 1000;
constexpr int kPlotDefaultHeight = 700;
/// The smallest canvas side accepted, pixels: room for the margins and a few pixels of path.
constexpr int kPlotMinSide = 100;
/// The largest canvas side, pixels; larger sizes are capped to it (a bigger image only grows the file).
constexpr int kPlotMaxSide = 10000;
/// The most segments a plot takes (all programs together). A program that expands beyond it is refused:
/// its picture would be a solid blot, and its segments alone would take over 100 MB.
constexpr std::size_t kPlotMaxSegments = 2000000;
/// Shortest side of the world rectangle shown, mm.
constexpr double kPlotMinWorldSpan = 1.0;
/// Lines at least this long on the canvas get a direction arrow, pixels.
constexpr double kPlotArrowMinPixels = 60.0;
/// Pictures of more segments than this get no direction arrows: there the arrows would hide the path (and
/// each one would double the size of its move in the file).
constexpr std::size_t kPlotMaxSegmentsWithArrows = 10000;
/// Canvases at least this wide get the legend at their right, pixels.
constexpr int kPlotMinWidthForLegend = 600;

/// The plane shown (see the header comment for the axes' directions).
enum class PlotView { kXY, kXZ, kYZ };
/// The reference corner of the view port.
enum class PlotCorner { kBottomLeft, kBottomRight, kTopLeft, kTopRight };

struct PlotOptions {
  int width = kPlotDefaultWidth;
  int height = kPlotDefaultHeight;
  PlotView view = PlotView::kXY;
  PlotCorner corner = PlotCorner::kBottomLeft;
};

/// One interpreted program of the picture; both pointers must stay valid while the plot is made.
struct PlotProgram {
  const KCC_NcFileProgram* program = nullptr;
  const KCC_NcToolPath* path = nullptr;
};

/// The programs of a plot interpreted: their tool paths (owned) and the list PlotToSvg takes.
struct PlotPaths {
  std::vector<std::unique_ptr<KCC_NcToolPath>> paths;
  std::vector<PlotProgram> drawn;
  /// Segments of all programs together.
  std::size_t segments = 0;
  /// The program a limit stopped, which ends the list (nullptr when every program ran to its end).
  const KCC_NcFileProgram* stopped = nullptr;
  /// Why it stopped (KCC_NcToolPath::GetStopReason), or "".
  std::string stopReason;
};

/// Counts, extents and totals of all programs of a plot.
struct PlotSummary {
  std::uint64_t rapids = 0;
  std::uint64_t feeds = 0;
  std::uint64_t arcs = 0;
  std::uint64_t holes = 0;
  /// Segments the interpreter marked kFlagInconsistent (counted in their kind as well).
  std::uint64_t marked = 0;
  bool hasExtents = false;
  KCC_NcToolPath::Extents extents;
  double rapidLength = 0.0;
  double feedLength = 0.0;
  double runTime = 0.0;
  std::uint64_t warnings = 0;
  /// Every kind of construct not interpreted with its count over all programs, sorted by kind.
  std::vector<KCC_NcToolPath::KindCount> notDrawn;
  /// The tool numbers in the order they first move.
  std::vector<std::uint32_t> tools;
};

/// Parse "xy", "xz" or "yz"; false for anything else.
bool ParsePlotView(const std::string& text, PlotView& view);
/// Parse "bl", "br", "tl" or "tr"; false for anything else.
bool ParsePlotCorner(const std::string& text, PlotCorner& corner);
/// "O1000" for a program with a number, "" for one without.
std::string PlotProgramName(const KCC_NcFileProgram& program);
/// `value` with at most `decimals` decimals, locale-free, trailing zeros dropped, "-0" as "0".
std::string PlotNumber(double value, int decimals);
/// The counts, extents and totals of `programs`.
PlotSummary SummarizePlot(const std::vector<PlotProgram>& programs);
/// Interpret `programs` of `file` for a plot, as nckit plot does: each starts where the one before ended,
/// with Siemens sub-program files looked for in `folder` and rapids at `rapidRate` mm/min; a long program is
/// read ahead on a second thread, and all programs together take at most kPlotMaxSegments. Stops at the
/// first program a limit stopped, which is not drawn.
PlotPaths InterpretForPlot(KCC_NcFile& file, const std::vector<KCC_NcFileProgram*>& programs,
                           const std::string& folder, double rapidRate);
/// The picture of `programs` as SVG text; `fileName` is shown in the legend and the title. A plot without
/// any segment shows the legend and an empty plot area.
std::string PlotToSvg(const std::string& fileName, const std::vector<PlotProgram>& programs,
                      const PlotOptions& options);
