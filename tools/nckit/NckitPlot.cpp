// SPDX-License-Identifier: MIT
// The backplot of nckit plot (see NckitPlot.h).
#include "NckitPlot.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <map>
#include <memory>
#include <system_error>
#include <thread>
#include <utility>

#include "NckitUtf8.h"
#include "ncappkit/draw/KCC_Draw.h"
#include "ncappkit/draw/KCC_FillAttributes.h"
#include "ncappkit/draw/KCC_FontAttributes.h"
#include "ncappkit/draw/KCC_LineAttributes.h"
#include "ncappkit/draw/KCC_SvgCanvas.h"
#include "ncappkit/draw/KCC_ViewPortDraw.h"
#include "ncappkit/gui/KCC_GUI_ZoomData.h"
#include "ncappkit/nc/KCC_NcFileProgram.h"

namespace {

struct Rgb {
  int r;
  int g;
  int b;
};

// Rapids in red: they are the moves to check first, since they do not cut.
constexpr Rgb kRapidColour{220, 30, 30};
// One colour per tool, by the order in which the tools first move; the ninth tool takes the first again.
// None of them is red (rapids) or light enough to vanish on white.
constexpr Rgb kToolPalette[] = {{0, 90, 200},  {0, 140, 60},  {150, 60, 200}, {200, 120, 0},
                                {0, 150, 160}, {180, 0, 120}, {90, 90, 90},   {120, 80, 20}};
constexpr Rgb kBackgroundColour{255, 255, 255};
constexpr Rgb kLegendPanelColour{245, 245, 245};
constexpr Rgb kTextColour{0, 0, 0};
// Segments the interpreter marked (an inconsistent arc as it would most likely run, an arc without centre
// or radius run straight) are orange and dash-dotted, whatever their tool: they are the ones to check.
constexpr Rgb kMarkedColour{255, 130, 0};
// The start dot is green and the end square black, so they read as "go" and "stop".
constexpr Rgb kStartColour{0, 200, 0};
constexpr Rgb kEndColour{0, 0, 0};

// Feeds are drawn thicker than rapids so that the cut reads first.
constexpr int kFeedPenWidth = 2;
constexpr int kRapidPenWidth = 1;
// Length of the direction arrows' heads, pixels.
constexpr int kArrowSize = 9;
// Radius of a hole's circle, pixels; its cross spans the circle.
constexpr int kHoleMarkerRadius = 5;
constexpr int kHoleNumberFontSize = 10;
// Holes beyond this count are drawn without their number, which would only cover the picture.
constexpr std::uint64_t kMaxNumberedHoles = 1000;
constexpr int kStartMarkerRadius = 6;
constexpr int kEndMarkerHalfSize = 5;
// Pixels kept free around the path inside the plot area: room for markers and arrow heads.
constexpr int kPlotMargin = 30;
// The legend panel at the right of the canvas.
constexpr int kLegendWidth = 300;
constexpr int kLegendPadding = 12;
constexpr int kLegendFontSize = 12;
constexpr int kLegendLineHeight = 17;
// Length of the line samples in front of the tool and move-kind entries of the legend, pixels.
constexpr int kLegendSwatchLength = 26;
// Tools listed in the legend; more are summed up in one line.
constexpr std::size_t kMaxLegendTools = 8;
// Decimals of the pixel coordinates written: a tenth of a pixel is finer than any viewer shows, and each
// decimal less saves a byte per number in files with a million moves.
constexpr int kSvgDecimals = 1;
// Decimals of lengths and extents in the legend, mm.
constexpr int kLegendDecimals = 3;
// Lines shorter than this on the canvas (a plunge seen from above) are not drawn, pixels.
constexpr double kMinDrawnPixels = 1e-3;
// Arcs are drawn as polylines that stay within this distance of the true arc, pixels: a quarter pixel is
// below what anti-aliasing shows, and a 40-pixel circle takes 20 lines instead of the 100 a fixed angle
// step gives.
constexpr double kArcTolerancePixels = 0.25;
// The most lines one arc is drawn with (reached only by arcs of some 10^6 pixels' radius).
constexpr int kMaxArcSteps = 4096;
// Points of a layer's path closer than this to the last point drawn are merged into the next line, pixels:
// a run of tiny moves (a finely tessellated CAM contour) becomes one line per half pixel.
constexpr double kMergePixels = 0.5;
constexpr double kPi = 3.14159265358979323846;
const char kFontName[] = "Arial";

KCColor ToColor(const Rgb& rgb) {
  return KCColor(rgb.r, rgb.g, rgb.b);
}

// The axes (0 X, 1 Y, 2 Z) shown to the right and up, and the plane of arcs drawn as arcs.
struct ViewAxes {
  int h;
  int v;
  KCC_NcToolPath::Plane plane;
};

ViewAxes AxesOf(PlotView view) {
  switch (view) {
    case PlotView::kXZ:
      return {2, 0, KCC_NcToolPath::kPlaneZX};
    case PlotView::kYZ:
      return {1, 2, KCC_NcToolPath::kPlaneYZ};
    case PlotView::kXY:
      break;
  }
  return {0, 1, KCC_NcToolPath::kPlaneXY};
}

// The axes an arc of `plane` turns in (from a towards b is counter-clockwise) and its third axis.
void ArcAxes(int plane, int& a, int& b, int& c) {
  switch (plane) {
    case KCC_NcToolPath::kPlaneZX:
      a = 2, b = 0, c = 1;
      return;
    case KCC_NcToolPath::kPlaneYZ:
      a = 1, b = 2, c = 0;
      return;
    default:
      a = 0, b = 1, c = 2;
      return;
  }
}

const char* ViewText(PlotView view) {
  switch (view) {
    case PlotView::kXZ:
      return "XZ seen from +Y (Z right, X up)";
    case PlotView::kYZ:
      return "YZ seen from +X (Y right, Z up)";
    case PlotView::kXY:
      break;
  }
  return "XY seen from +Z (X right, Y up)";
}

// The layer of the segments the interpreter marked kFlagInconsistent, whatever their kind.
constexpr int kMarkedLayer = 100;

const char* KindLabel(int kind) {
  switch (kind) {
    case kMarkedLayer:
      return "marked";
    case KCC_NcToolPath::kRapid:
      return "rapid";
    case KCC_NcToolPath::kFeed:
      return "feed";
    case KCC_NcToolPath::kHole:
      return "hole";
    default:
      return "arc";
  }
}

// The layer a segment is drawn in: arcs of both senses share one, and marked segments have their own.
int LayerKind(const KCC_NcToolPath::Segment& s) {
  if ((s.flags & KCC_NcToolPath::kFlagInconsistent) != 0 && s.kind != KCC_NcToolPath::kHole)
    return kMarkedLayer;
  return s.kind == KCC_NcToolPath::kArcCCW ? static_cast<int>(KCC_NcToolPath::kArcCW) : s.kind;
}

// The order of the layers from bottom to top: rapids below the cut, the marked segments over it, holes on
// top (they stay last: DrawSegments counts on it).
constexpr int kLayerKindOrder[] = {KCC_NcToolPath::kRapid, KCC_NcToolPath::kFeed, KCC_NcToolPath::kArcCW,
                                   kMarkedLayer, KCC_NcToolPath::kHole};
constexpr std::size_t kLayerKinds = sizeof kLayerKindOrder / sizeof kLayerKindOrder[0];

// The position of a segment's layer kind in kLayerKindOrder.
std::size_t LayerKindIndex(const KCC_NcToolPath::Segment& s) {
  const int kind = LayerKind(s);
  return static_cast<std::size_t>(std::find(kLayerKindOrder, kLayerKindOrder + kLayerKinds, kind) -
                                  kLayerKindOrder);
}

std::string ToolLabel(std::uint32_t tool) {
  return tool == 0 ? std::string("no tool") : "T" + std::to_string(tool);
}

// Seconds as h:mm:ss, rounded to the second.
std::string DurationText(double seconds) {
  const double rounded = std::floor(seconds + 0.5);
  if (!(rounded >= 0.0) || rounded > 1e12)
    return PlotNumber(seconds, 0) + " s";
  const auto total = static_cast<long long>(rounded);
  char buffer[48];
  std::snprintf(buffer, sizeof buffer, "%lld:%02lld:%02lld", total / 3600, (total / 60) % 60, total % 60);
  return buffer;
}

std::string ProgramText(const KCC_NcFileProgram& program) {
  std::string name = PlotProgramName(program);
  const std::string ref = program.GetProgramRef().str();
  if (name.empty())
    name = "(no number)";
  return ref.empty() ? name : name + " " + ref;
}

// How many segments ahead of the one being drawn DrawSegments asks for a segment's memory.
constexpr std::size_t kPrefetchDistance = 8;

// A hint to fetch the memory at `address` into the cache; nothing where the compiler has no such hint.
void Prefetch(const void* address) {
#if defined(__GNUC__) || defined(__clang__)
  __builtin_prefetch(address);
#else
  static_cast<void>(address);
#endif
}

// A line of the legend, with an optional line sample in front of its text.
struct LegendLine {
  std::string text;
  bool sample = false;
  KCC_LineAttributes pen;
};

class Plotter {
 public:
  Plotter(const std::string& fileName, const std::vector<PlotProgram>& programs, const PlotOptions& options)
      : m_fileName(fileName),
        m_programs(programs),
        m_options(options),
        m_axes(AxesOf(options.view)),
        m_summary(SummarizePlot(programs)),
        m_width(std::clamp(options.width, kPlotMinSide, kPlotMaxSide)),
        m_height(std::clamp(options.height, kPlotMinSide, kPlotMaxSide)),
        m_canvas(m_width, m_height),
        m_draw(m_port, m_canvas) {
    m_canvas.SetPrecision(kSvgDecimals);
    // Long layers are written on as many threads as the machine runs side by side, four at most.
    m_canvas.SetWriteThreads(static_cast<int>(std::clamp(std::thread::hardware_concurrency(), 1u, 4u)));
    m_legend = m_width >= kPlotMinWidthForLegend;
    m_arrows =
        m_summary.rapids + m_summary.feeds + m_summary.arcs + m_summary.holes <= kPlotMaxSegmentsWithArrows;
    m_plotWidth = m_legend ? m_width - kLegendWidth : m_width;
    for (std::size_t i = 0; i < m_summary.tools.size(); ++i)
      m_toolColour[m_summary.tools[i]] = kToolPalette[i % (sizeof kToolPalette / sizeof kToolPalette[0])];
  }

  std::string Run() {
    m_port.SetCanvasPixels(0, m_plotWidth, m_height, 0);
    m_port.SetPixelMargins(kPlotMargin);
    switch (m_options.corner) {
      case PlotCorner::kBottomRight:
        m_port.SetRefCornorBottomRight();
        break;
      case PlotCorner::kTopLeft:
        m_port.SetRefCornorTopLeft();
        break;
      case PlotCorner::kTopRight:
        m_port.SetRefCornorTopRight();
        break;
      case PlotCorner::kBottomLeft:
        m_port.SetRefCornorBottomLeft();
        break;
    }
    m_canvas.BeginGroup("background", "background");
    KCColor paper = ToColor(kBackgroundColour);
    m_draw.PaintBackGround(paper);
    m_canvas.EndGroup();

    m_mapped = m_summary.hasExtents && FitView();
    if (m_mapped) {
      m_mirrored = MappingMirrors();
      DrawSegments();
    }
    BuildLegendLines();
    if (m_legend)
      DrawLegend();
    m_canvas.SetTitle(Title());
    std::string description;
    for (std::size_t i = 0; i < m_lines.size(); ++i)
      description += (i == 0 ? "" : "\n") + m_lines[i].text;
    m_canvas.SetDescription(description);
    return m_canvas.ToSvg();
  }

 private:
  // The extents in the view's axes, widened where too small, fitted into the plot area.
  bool FitView() {
    const KCC_NcToolPath::Extents& e = m_summary.extents;
    double minH = e.min[m_axes.h];
    double maxH = e.max[m_axes.h];
    double minV = e.min[m_axes.v];
    double maxV = e.max[m_axes.v];
    auto widen = [](double& low, double& high) {
      if (high - low < kPlotMinWorldSpan) {
        const double middle = (low + high) / 2.0;
        low = middle - kPlotMinWorldSpan / 2.0;
        high = middle + kPlotMinWorldSpan / 2.0;
      }
    };
    widen(minH, maxH);
    widen(minV, maxV);
    KCC_GUI_ZoomData zoom;
    zoom.SetFitData(KCC_GUI_ZoomArea(minH, minV, maxH, maxV), true);
    return m_port.SetWorldCoord(zoom.GetCurrenData());
  }

  // True when the world-to-pixel mapping turns the sense of rotation: always with pixel y pointing down,
  // whatever the reference corner, but measured rather than assumed.
  bool MappingMirrors() const {
    double x0 = 0.0, y0 = 0.0, x1 = 0.0, y1 = 0.0, x2 = 0.0, y2 = 0.0;
    m_port.World2ScreenPoint(0.0, 0.0, x0, y0);
    m_port.World2ScreenPoint(1.0, 0.0, x1, y1);
    m_port.World2ScreenPoint(0.0, 1.0, x2, y2);
    return (x1 - x0) * (y2 - y0) - (y1 - y0) * (x2 - x0) < 0.0;
  }

  void Map(const double point[3], double& px, double& py) const {
    m_port.World2ScreenPoint(point[m_axes.h], point[m_axes.v], px, py);
  }
  void Map(const float point[3], double& px, double& py) const {
    m_port.World2ScreenPoint(static_cast<double>(point[m_axes.h]), static_cast<double>(point[m_axes.v]), px,
                             py);
  }
  // A segment's start and end in pixels. A segment that starts where the one mapped before ended (the
  // segments of a layer mostly chain) takes that pixel point again, so each shared point is mapped once.
  void MapEnds(const KCC_NcToolPath::Segment& s, double& x1, double& y1, double& x2, double& y2) {
    if (m_endMapped && std::equal(s.start, s.start + 3, m_mappedEnd)) {
      x1 = m_mappedEndX;
      y1 = m_mappedEndY;
    } else {
      Map(s.start, x1, y1);
    }
    Map(s.end, x2, y2);
    std::copy(s.end, s.end + 3, m_mappedEnd);
    m_mappedEndX = x2;
    m_mappedEndY = y2;
    m_endMapped = true;
  }

  // The pen of a layer kind (kLayerKindOrder) of `tool`.
  KCC_LineAttributes PenOf(std::uint32_t tool, int kind) const {
    if (kind == kMarkedLayer)
      return KCC_LineAttributes(ToColor(kMarkedColour), KCPenStyleDashDot(), kFeedPenWidth);
    if (kind == KCC_NcToolPath::kRapid)
      return KCC_LineAttributes(ToColor(kRapidColour), KCPenStyleDash(), kRapidPenWidth);
    return KCC_LineAttributes(ToColor(m_toolColour.at(tool)), KCPenStyleSolid(), kFeedPenWidth);
  }

  // --- the path of the layer being drawn ---------------------------------------------------------------
  // Lines go through the drawing API as they come, joined into one path where one starts at the end of the
  // last. A point closer than kMergePixels to the last point drawn is held back and drawn only when the path
  // leaves it or breaks off, so runs of sub-pixel moves cost one line per half pixel.

  // The point the layer's path stands at: the held-back point, else the last one drawn.
  bool AtPathEnd(double x, double y) const {
    return m_penDown && (m_held ? (x == m_heldX && y == m_heldY) : (x == m_lastX && y == m_lastY));
  }
  // Continue the path at (x, y), or start a new one there.
  void PathStart(double x, double y) {
    if (AtPathEnd(x, y))
      return;
    PathFlush();
    m_penDown = true;
    m_lastX = x;
    m_lastY = y;
  }
  void PathTo(double x, double y) {
    const double dx = x - m_lastX;
    const double dy = y - m_lastY;
    if (dx * dx + dy * dy < kMergePixels * kMergePixels) {
      m_held = true;
      m_heldX = x;
      m_heldY = y;
      return;
    }
    LineFromLast(x, y);
    m_held = false;
  }
  // Draw the held-back point, if any; the path then ends where the segments ended.
  void PathFlush() {
    const double dx = m_heldX - m_lastX;
    const double dy = m_heldY - m_lastY;
    if (m_held && dx * dx + dy * dy >= kMinDrawnPixels * kMinDrawnPixels)
      LineFromLast(m_heldX, m_heldY);
    m_held = false;
  }
  // A line from the last point drawn to (x, y), which becomes the last point.
  void LineFromLast(double x, double y) {
    EnsureGroup();
    m_draw.DrawLine(m_lastX, m_lastY, x, y);
    m_lastX = x;
    m_lastY = y;
  }
  // Lift the pen: the next line starts a path of its own.
  void PathEnd() {
    PathFlush();
    m_penDown = false;
  }

  // A layer's group is begun with its first shape, so a layer whose moves all stay below a pixel is left out.
  void EnsureGroup() {
    if (m_groupPending.empty())
      return;
    m_canvas.BeginGroup(m_groupPending, m_groupLabel);
    const KCC_LineAttributes pen = PenOf(m_layerTool, m_layerKind);
    m_canvas.SetPenColor(pen.GetLineColor());
    m_canvas.SetPenStyle(pen.GetLineStyle());
    m_canvas.SetPenWidth(pen.GetLineWidth());
    m_groupPending.clear();
  }

  // A straight move; long ones get an arrow at their middle.
  void DrawMove(double x1, double y1, double x2, double y2) {
    if (m_arrows && std::hypot(x2 - x1, y2 - y1) >= kPlotArrowMinPixels) {
      PathEnd();
      EnsureGroup();
      const double mx = (x1 + x2) / 2.0;
      const double my = (y1 + y2) / 2.0;
      m_draw.DrawArrowLine(x1, y1, mx, my, kArrowSize, PenOf(m_layerTool, m_layerKind));
      m_draw.DrawLine(mx, my, x2, y2);
      return;
    }
    PathStart(x1, y1);
    PathTo(x2, y2);
  }

  // An arc in the view's plane. A consistent arc is an SVG arc, exact at any zoom (a full circle two half
  // arcs). An inconsistent one is a polyline within kArcTolerancePixels of a spiral whose radius changes
  // evenly from the start's to the end's along the sweep, the way the tool-path extents take it, so the
  // drawing ends exactly at the end point. Arcs smaller than the merge distance are lines.
  void DrawPlaneArc(const KCC_NcToolPath::Segment& s, double x1, double y1, double x2, double y2) {
    double xc = 0.0, yc = 0.0;
    Map(s.centre, xc, yc);
    // Pixel y points the other way than world y whenever the mapping mirrors, which turns the sense; an
    // increasing pixel angle turns clockwise on the canvas.
    const bool increasing = (s.kind == KCC_NcToolPath::kArcCW) == m_mirrored;
    const double sx = x1 - xc, sy = y1 - yc;  // centre to start
    const double ex = x2 - xc, ey = y2 - yc;  // centre to end
    double sweep = 2.0 * kPi;
    if ((s.flags & KCC_NcToolPath::kFlagFullCircle) == 0) {
      // The angle from the start to the end direction, then taken the way the arc turns.
      const double turn = std::atan2(sx * ey - sy * ex, sx * ex + sy * ey);
      sweep = increasing ? turn : -turn;
      if (sweep <= 0.0)
        sweep += 2.0 * kPi;
    }
    const double rs = std::sqrt(sx * sx + sy * sy);
    const double re = std::sqrt(ex * ex + ey * ey);
    const double r = std::max(rs, re);
    PathStart(x1, y1);
    if (!(r >= kMergePixels) || !std::isfinite(sweep) || !std::isfinite(r)) {
      PathTo(x2, y2);
      return;
    }
    if ((s.flags & KCC_NcToolPath::kFlagInconsistent) == 0) {
      PathFlush();
      EnsureGroup();
      m_canvas.MoveTo(KC2DPoint(m_lastX, m_lastY));
      if (sweep >= 2.0 * kPi) {
        const KC2DPoint opposite(2.0 * xc - x1, 2.0 * yc - y1);
        m_canvas.ArcTo(opposite, rs, false, increasing);
        m_canvas.ArcTo(KC2DPoint(x2, y2), rs, false, increasing);
      } else {
        m_canvas.ArcTo(KC2DPoint(x2, y2), (rs + re) / 2.0, sweep > kPi, increasing);
      }
      m_lastX = x2;
      m_lastY = y2;
      return;
    }
    const double steps = std::ceil(sweep / (2.0 * std::acos(1.0 - kArcTolerancePixels / r)));
    if (!(steps > 1.0) || !(rs > 0.0)) {
      PathTo(x2, y2);
      return;
    }
    const int n = static_cast<int>(std::min(steps, static_cast<double>(kMaxArcSteps)));
    const double step = (increasing ? sweep : -sweep) / n;
    // The unit vector of each point's angle, turned by one step at a time.
    const double turnCos = std::cos(step);
    const double turnSin = std::sin(step);
    double c = sx / rs;
    double sn = sy / rs;
    for (int k = 1; k < n; ++k) {
      const double nc = c * turnCos - sn * turnSin;
      sn = sn * turnCos + c * turnSin;
      c = nc;
      const double radius = rs + (re - rs) * k / n;
      PathTo(xc + radius * c, yc + radius * sn);
    }
    PathTo(x2, y2);
  }

  void DrawArcSegment(const KCC_NcToolPath::Segment& s) {
    double x1 = 0.0, y1 = 0.0, x2 = 0.0, y2 = 0.0;
    MapEnds(s, x1, y1, x2, y2);
    if (s.plane == m_axes.plane) {
      DrawPlaneArc(s, x1, y1, x2, y2);
      return;
    }
    // Seen from the side the arc is a line; it runs through the points where the arc turns back in one
    // of its axes, so the line covers all of the arc and not only its chord.
    int a = 0, b = 0, c = 0;
    ArcAxes(s.plane, a, b, c);
    const double ca = static_cast<double>(s.centre[a]);
    const double cb = static_cast<double>(s.centre[b]);
    const double sa = static_cast<double>(s.start[a]) - ca;
    const double sb = static_cast<double>(s.start[b]) - cb;
    const double ea = static_cast<double>(s.end[a]) - ca;
    const double eb = static_cast<double>(s.end[b]) - cb;
    const double startAngle = std::atan2(sb, sa);
    double sweep = std::atan2(eb, ea) - startAngle;
    const bool ccw = s.kind == KCC_NcToolPath::kArcCCW;
    if ((s.flags & KCC_NcToolPath::kFlagFullCircle) != 0) {
      sweep = ccw ? 2.0 * kPi : -2.0 * kPi;
    } else if (ccw) {
      while (sweep <= 0.0)
        sweep += 2.0 * kPi;
    } else {
      while (sweep >= 0.0)
        sweep -= 2.0 * kPi;
    }
    const double startRadius = std::hypot(sa, sb);
    const double endRadius = std::hypot(ea, eb);
    const double startC = static_cast<double>(s.start[c]);
    const double endC = static_cast<double>(s.end[c]);
    PathStart(x1, y1);
    const double quarter = kPi / 2.0;
    // Multiples of 90 degrees strictly inside the sweep, in turning order.
    double k = ccw ? std::floor(startAngle / quarter) + 1.0 : std::ceil(startAngle / quarter) - 1.0;
    for (int i = 0; i < 5; ++i, k += ccw ? 1.0 : -1.0) {
      const double angle = k * quarter;
      const double fraction = (angle - startAngle) / sweep;
      if (!(fraction > 0.0 && fraction < 1.0))
        break;
      const double radius = startRadius + (endRadius - startRadius) * fraction;
      double point[3] = {0.0, 0.0, 0.0};
      point[a] = ca + radius * std::cos(angle);
      point[b] = cb + radius * std::sin(angle);
      point[c] = startC + (endC - startC) * fraction;
      double qx = 0.0, qy = 0.0;
      Map(point, qx, qy);
      PathTo(qx, qy);
    }
    PathTo(x2, y2);
  }

  void DrawHole(const KCC_NcToolPath::Segment& s, std::uint64_t number) {
    double x1 = 0.0, y1 = 0.0, x2 = 0.0, y2 = 0.0;
    MapEnds(s, x1, y1, x2, y2);
    PathStart(x1, y1);
    PathTo(x2, y2);
    PathEnd();
    EnsureGroup();
    const KCC_LineAttributes pen = PenOf(s.tool, s.kind);
    const int x = static_cast<int>(std::lround(x2));
    const int y = static_cast<int>(std::lround(y2));
    KCC_LineAttributes thin = pen;
    thin.SetLineWidth(1);
    m_draw.DrawAttrCircle(x, y, kHoleMarkerRadius, thin);
    m_draw.DrawAttrLine(x - kHoleMarkerRadius, y, x + kHoleMarkerRadius, y, thin);
    m_draw.DrawAttrLine(x, y - kHoleMarkerRadius, x, y + kHoleMarkerRadius, thin);
    if (number > kMaxNumberedHoles)
      return;
    KCC_TextAttributes font(kFontName);
    font.SetFontSize(kHoleNumberFontSize);
    font.SetTextColor(pen.GetLineColor());
    const std::string text = std::to_string(number);
    int w = 0, h = 0;
    MeasureIn(m_canvas, text, kHoleNumberFontSize, w, h);
    m_draw.DisplayText(text, static_cast<double>(x + kHoleMarkerRadius) + 1.0 + w / 2.0,
                       static_cast<double>(y - kHoleMarkerRadius) - h / 2.0, KCC_FillAttributes(), font);
  }

  // The size of `text` in the legend font of `size` pixels, measured by `canvas` (its font is restored).
  static void MeasureIn(KCC_SvgCanvas& canvas, const std::string& text, int size, int& w, int& h) {
    const KCString name = canvas.GetFontName();
    const int oldSize = canvas.GetFontSize();
    canvas.SetFontName(kFontName);
    canvas.SetFontSize(size);
    canvas.MeasureText(text, w, h);
    canvas.SetFontName(name);
    canvas.SetFontSize(oldSize);
  }

  // The segments are drawn layer by layer, each layer a group: the move kinds from bottom to top
  // (kLayerKindOrder), within a kind the tools in the order they first move, and within a layer the segments
  // in program order. One counting pass and one placing pass put them in that order; holes keep their
  // number in drilling order.
  void DrawSegments() {
    const std::size_t tools = m_summary.tools.size();
    std::map<std::uint32_t, std::size_t> toolIndex;
    for (std::size_t i = 0; i < tools; ++i)
      toolIndex.emplace(m_summary.tools[i], i);
    // Consecutive segments mostly share their tool, so the last lookup is kept.
    auto cached = toolIndex.end();
    auto layerOf = [&](const KCC_NcToolPath::Segment& s) {
      if (cached == toolIndex.end() || cached->first != s.tool)
        cached = toolIndex.find(s.tool);
      return LayerKindIndex(s) * tools + cached->second;
    };
    std::vector<std::size_t> start(kLayerKinds * tools + 1, 0);
    std::size_t total = 0;
    const KCC_NcToolPath::Segment* first = nullptr;
    const KCC_NcToolPath::Segment* last = nullptr;
    for (const PlotProgram& p : m_programs) {
      for (const KCC_NcToolPath::Segment& s : p.path->GetSegments()) {
        ++start[layerOf(s) + 1];
        ++total;
        if (!first)
          first = &s;
        last = &s;
      }
    }
    if (!first)
      return;
    for (std::size_t i = 1; i < start.size(); ++i)
      start[i] += start[i - 1];
    std::vector<const KCC_NcToolPath::Segment*> order(total);
    std::vector<std::size_t> fill(start.begin(), start.end() - 1);
    const std::size_t holeStart = start[(kLayerKinds - 1) * tools];
    std::vector<std::uint64_t> holeNumbers(total - holeStart);
    std::uint64_t holes = 0;
    for (const PlotProgram& p : m_programs) {
      for (const KCC_NcToolPath::Segment& s : p.path->GetSegments()) {
        const std::size_t at = fill[layerOf(s)]++;
        order[at] = &s;
        if (s.kind == KCC_NcToolPath::kHole)
          holeNumbers[at - holeStart] = ++holes;
      }
    }
    // In a layer consecutive segments seldom touch, so each may start with a move: a line takes at most three
    // points, a consistent arc eight (a move, two half arcs), a hole's line three and its marker's lines
    // two each. Spirals grow the array as they need.
    m_canvas.ReservePoints(3 * total + 5 * (m_summary.arcs + m_summary.holes));
    for (std::size_t layer = 0; layer < kLayerKinds * tools; ++layer) {
      if (start[layer] == start[layer + 1])
        continue;
      const int kind = kLayerKindOrder[layer / tools];
      m_layerTool = m_summary.tools[layer % tools];
      m_layerKind = kind;
      m_groupPending = "t" + std::to_string(m_layerTool) + "-" + KindLabel(kind);
      m_groupLabel = ToolLabel(m_layerTool) + " " + KindLabel(kind);
      for (std::size_t i = start[layer]; i < start[layer + 1]; ++i) {
        // A layer picks its segments out of the whole list, which has long left the cache; asking for one a
        // few places ahead lets its memory arrive while this one is drawn.
        if (i + kPrefetchDistance < start[layer + 1])
          Prefetch(order[i + kPrefetchDistance]);
        const KCC_NcToolPath::Segment& s = *order[i];
        if (s.kind == KCC_NcToolPath::kArcCW || s.kind == KCC_NcToolPath::kArcCCW) {
          DrawArcSegment(s);
        } else if (s.kind == KCC_NcToolPath::kHole) {
          DrawHole(s, holeNumbers[i - holeStart]);
        } else {
          double x1 = 0.0, y1 = 0.0, x2 = 0.0, y2 = 0.0;
          MapEnds(s, x1, y1, x2, y2);
          DrawMove(x1, y1, x2, y2);
        }
      }
      PathEnd();
      if (m_groupPending.empty())
        m_canvas.EndGroup();  // the layer drew something, so its group was begun
      m_groupPending.clear();
    }

    m_canvas.BeginGroup("markers", "start and end");
    const KCC_LineAttributes outline(ToColor(kEndColour), KCPenStyleSolid(), 1);
    double sx = 0.0, sy = 0.0, ex = 0.0, ey = 0.0;
    Map(first->start, sx, sy);
    Map(last->end, ex, ey);
    m_draw.DrawFilledRectangle(ex - kEndMarkerHalfSize, ey - kEndMarkerHalfSize, ex + kEndMarkerHalfSize,
                               ey + kEndMarkerHalfSize, outline,
                               KCC_FillAttributes(ToColor(kEndColour), true));
    m_draw.DrawAttrCircle(static_cast<int>(std::lround(sx)), static_cast<int>(std::lround(sy)),
                          kStartMarkerRadius, outline, KCC_FillAttributes(ToColor(kStartColour), true));
    m_canvas.EndGroup();
  }

  std::string ExtentLine(const char* axis, int index) const {
    const KCC_NcToolPath::Extents& e = m_summary.extents;
    return std::string(axis) + " " + PlotNumber(e.min[index], kLegendDecimals) + " to " +
           PlotNumber(e.max[index], kLegendDecimals) + " mm";
  }

  void BuildLegendLines() {
    auto add = [this](const std::string& text) { m_lines.push_back({text, false, KCC_LineAttributes()}); };
    auto addSample = [this](const std::string& text, const KCC_LineAttributes& pen) {
      m_lines.push_back({text, true, pen});
    };
    std::string base = m_fileName;
    const std::size_t slash = base.find_last_of("/\\");
    if (slash != std::string::npos)
      base = base.substr(slash + 1);
    add("File: " + base);
    if (m_programs.size() == 1) {
      add("Program: " + ProgramText(*m_programs[0].program));
    } else {
      std::string names;
      for (const PlotProgram& p : m_programs) {
        std::string name = PlotProgramName(*p.program);
        names += (names.empty() ? "" : ", ") + (name.empty() ? std::string("(no number)") : name);
      }
      add("Programs (" + std::to_string(m_programs.size()) + "): " + names);
    }
    add("Units: mm");
    add(std::string("View: ") + ViewText(m_options.view));
    if (m_summary.hasExtents) {
      add(ExtentLine("X", 0));
      add(ExtentLine("Y", 1));
      add(ExtentLine("Z", 2));
    } else {
      add("No motion");
    }
    if (m_summary.hasExtents && !m_mapped)
      add("The extents are too large to show");
    add("Segments: " + std::to_string(m_summary.rapids) + " rapid, " + std::to_string(m_summary.feeds) +
        " feed, " + std::to_string(m_summary.arcs) + " arc, " + std::to_string(m_summary.holes) + " hole");
    add("Rapid length: " + PlotNumber(m_summary.rapidLength, kLegendDecimals) + " mm");
    add("Feed length: " + PlotNumber(m_summary.feedLength, kLegendDecimals) + " mm");
    add("Run time: " + DurationText(m_summary.runTime));
    addSample("rapid (dashed)", PenOf(0, KCC_NcToolPath::kRapid));
    for (std::size_t i = 0; i < m_summary.tools.size() && i < kMaxLegendTools; ++i) {
      const std::uint32_t tool = m_summary.tools[i];
      addSample(ToolLabel(tool) + " feed, arc, hole", PenOf(tool, KCC_NcToolPath::kFeed));
    }
    if (m_summary.marked > 0)
      addSample("marked: inconsistent arcs (" + std::to_string(m_summary.marked) + ")",
                PenOf(0, kMarkedLayer));
    if (m_summary.tools.size() > kMaxLegendTools)
      add("and " + std::to_string(m_summary.tools.size() - kMaxLegendTools) + " more tools");
    add("Warnings: " + std::to_string(m_summary.warnings));
    if (m_summary.notDrawn.empty()) {
      add("Not drawn: nothing");
    } else {
      std::string words;
      for (const KCC_NcToolPath::KindCount& k : m_summary.notDrawn)
        words += (words.empty() ? "" : ", ") + k.kind.str() + " (" + std::to_string(k.count) + ")";
      add("Not drawn: " + words);
    }
  }

  // `text` cut at a character boundary, with "..." added, so that it fits `width` pixels in `canvas`. The
  // cut is found by halving, since the measured width grows with every character kept.
  static std::string Fit(KCC_SvgCanvas& canvas, const std::string& text, int width) {
    int w = 0, h = 0;
    MeasureIn(canvas, text, kLegendFontSize, w, h);
    if (w <= width)
      return text;
    std::vector<std::size_t> cuts;  // the lengths that end at a character boundary, shortest first
    for (std::size_t i = 0; i < text.size(); ++i) {
      if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80)
        cuts.push_back(i);
    }
    std::size_t low = 0;  // cuts[low] fits (the empty text is taken even when "..." alone does not fit)
    std::size_t high = cuts.size();
    while (high - low > 1) {
      const std::size_t middle = low + (high - low) / 2;
      MeasureIn(canvas, text.substr(0, cuts[middle]) + "...", kLegendFontSize, w, h);
      if (w <= width)
        low = middle;
      else
        high = middle;
    }
    return text.substr(0, cuts[low]) + "...";
  }

  void DrawLegend() {
    m_canvas.BeginGroup("legend", "legend");
    const KCC_LineAttributes edge(ToColor(kLegendPanelColour), KCPenStyleSolid(), 1);
    m_draw.DrawFilledRectangle(m_plotWidth, 0, m_width, m_height, edge,
                               KCC_FillAttributes(ToColor(kLegendPanelColour), true));
    KCC_TextAttributes font(kFontName);
    font.SetFontSize(kLegendFontSize);
    font.SetTextColor(ToColor(kTextColour));
    const int left = m_plotWidth + kLegendPadding;
    const int right = m_width - kLegendPadding;
    int top = kLegendPadding;
    for (const LegendLine& line : m_lines) {
      if (top + kLegendLineHeight > m_height - kLegendPadding)
        break;
      int textLeft = left;
      const int middle = top + kLegendLineHeight / 2;
      if (line.sample) {
        m_draw.DrawAttrLine(left, middle, left + kLegendSwatchLength, middle, line.pen);
        textLeft = left + kLegendSwatchLength + kLegendPadding / 2;
      }
      const std::string text = Fit(m_canvas, line.text, right - textLeft);
      int w = 0, h = 0;
      MeasureIn(m_canvas, text, kLegendFontSize, w, h);
      m_draw.DisplayText(text, textLeft + w / 2.0, static_cast<double>(middle), KCC_FillAttributes(), font);
      top += kLegendLineHeight;
    }
    m_canvas.EndGroup();
  }

  std::string Title() const {
    std::string title = m_fileName;
    if (m_programs.size() == 1)
      title += " - " + ProgramText(*m_programs[0].program);
    else
      title += " - " + std::to_string(m_programs.size()) + " programs";
    return title;
  }

  const std::string& m_fileName;
  const std::vector<PlotProgram>& m_programs;
  const PlotOptions& m_options;
  const ViewAxes m_axes;
  const PlotSummary m_summary;
  const int m_width;
  const int m_height;
  int m_plotWidth = 0;
  bool m_legend = false;
  bool m_arrows = true;
  bool m_mapped = false;
  bool m_mirrored = true;
  std::map<std::uint32_t, Rgb> m_toolColour;
  KCC_ViewPortDraw m_port;
  KCC_SvgCanvas m_canvas;
  KCC_Draw m_draw;
  // The layer being drawn: its tool and move kind, and its group's id and label until the group is begun
  // (the id is never empty, so an empty m_groupPending within a layer means the group is open).
  std::uint32_t m_layerTool = 0;
  int m_layerKind = 0;
  std::string m_groupPending;
  std::string m_groupLabel;
  // The end of the segment mapped last, in world and pixel coordinates (see MapEnds).
  bool m_endMapped = false;
  float m_mappedEnd[3] = {0.0f, 0.0f, 0.0f};
  double m_mappedEndX = 0.0;
  double m_mappedEndY = 0.0;
  // The layer's path: pen down at (m_lastX, m_lastY), the last point drawn, and maybe a held-back point.
  bool m_penDown = false;
  double m_lastX = 0.0;
  double m_lastY = 0.0;
  bool m_held = false;
  double m_heldX = 0.0;
  double m_heldY = 0.0;
  std::vector<LegendLine> m_lines;
};

}  // namespace

bool ParsePlotView(const std::string& text, PlotView& view) {
  if (text == "xy")
    view = PlotView::kXY;
  else if (text == "xz")
    view = PlotView::kXZ;
  else if (text == "yz")
    view = PlotView::kYZ;
  else
    return false;
  return true;
}

bool ParsePlotCorner(const std::string& text, PlotCorner& corner) {
  if (text == "bl")
    corner = PlotCorner::kBottomLeft;
  else if (text == "br")
    corner = PlotCorner::kBottomRight;
  else if (text == "tl")
    corner = PlotCorner::kTopLeft;
  else if (text == "tr")
    corner = PlotCorner::kTopRight;
  else
    return false;
  return true;
}

std::string PlotProgramName(const KCC_NcFileProgram& program) {
  const int number = program.GetProgramNumber();
  if (number < 0)
    return std::string();
  std::string digits = std::to_string(number);
  if (digits.size() < 4)
    digits.insert(0, 4 - digits.size(), '0');
  return "O" + digits;
}

std::string PlotNumber(double value, int decimals) {
  char buffer[400];  // a double in fixed notation has at most 309 integer digits
  const std::to_chars_result result =
      std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
  std::string text(buffer, result.ec == std::errc() ? result.ptr : buffer);
  if (text.find('.') != std::string::npos) {
    while (text.back() == '0')
      text.pop_back();
    if (text.back() == '.')
      text.pop_back();
  }
  if (text == "-0")
    text = "0";
  return text;
}

PlotSummary SummarizePlot(const std::vector<PlotProgram>& programs) {
  PlotSummary summary;
  std::map<std::string, std::uint64_t> notDrawn;
  for (const PlotProgram& p : programs) {
    const KCC_NcToolPath& path = *p.path;
    for (const KCC_NcToolPath::Segment& s : path.GetSegments()) {
      switch (s.kind) {
        case KCC_NcToolPath::kRapid:
          ++summary.rapids;
          break;
        case KCC_NcToolPath::kFeed:
          ++summary.feeds;
          break;
        case KCC_NcToolPath::kHole:
          ++summary.holes;
          break;
        default:
          ++summary.arcs;
          break;
      }
      if ((s.flags & KCC_NcToolPath::kFlagInconsistent) != 0 && s.kind != KCC_NcToolPath::kHole)
        ++summary.marked;
      if (summary.tools.empty() || summary.tools.back() != s.tool) {
        if (std::find(summary.tools.begin(), summary.tools.end(), s.tool) == summary.tools.end())
          summary.tools.push_back(s.tool);
      }
    }
    KCC_NcToolPath::Extents e;
    if (path.GetExtents(e)) {
      if (!summary.hasExtents) {
        summary.extents = e;
        summary.hasExtents = true;
      } else {
        for (int i = 0; i < 3; ++i) {
          summary.extents.min[i] = std::min(summary.extents.min[i], e.min[i]);
          summary.extents.max[i] = std::max(summary.extents.max[i], e.max[i]);
        }
      }
    }
    summary.rapidLength += path.GetRapidLength();
    summary.feedLength += path.GetFeedLength();
    summary.runTime += path.GetRunTime();
    summary.warnings += path.GetWarningCount();
    for (const KCC_NcToolPath::KindCount& k : path.GetNotInterpretedKinds())
      notDrawn[k.kind.str()] += k.count;
  }
  for (const auto& [kind, count] : notDrawn) {
    KCC_NcToolPath::KindCount entry;
    entry.kind = kind;
    entry.count = count;
    summary.notDrawn.push_back(entry);
  }
  return summary;
}

PlotPaths InterpretForPlot(KCC_NcFile& file, const std::vector<KCC_NcFileProgram*>& programs,
                           const std::string& folder, double rapidRate) {
  PlotPaths result;
  double start[3] = {0.0, 0.0, 0.0};
  for (KCC_NcFileProgram* program : programs) {
    auto path = std::make_unique<KCC_NcToolPath>();
    path->SetSubProgramFolder(folder);
    path->SetRapidRate(rapidRate);
    path->SetReadAhead(true);  // a long program is read on a second thread while it runs
    path->SetMaxSegments(kPlotMaxSegments - result.segments);
    path->SetStartPoint(start[0], start[1], start[2]);
    path->Interpret(file, *program);
    if (!path->IsComplete()) {
      result.stopped = program;
      result.stopReason = path->GetStopReason().str();
      return result;
    }
    result.segments += path->GetSegmentCount();
    if (!path->GetSegments().empty()) {
      for (int a = 0; a < 3; ++a)
        start[a] = static_cast<double>(path->GetSegments().back().end[a]);
    }
    result.drawn.push_back({program, path.get()});
    result.paths.push_back(std::move(path));
  }
  return result;
}

std::string PlotToSvg(const std::string& fileName, const std::vector<PlotProgram>& programs,
                      const PlotOptions& options) {
  Plotter plotter(fileName, programs, options);
  return plotter.Run();
}
