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

const char* KindLabel(int kind) {
  switch (kind) {
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

// The layer a segment kind is drawn in: arcs of both senses share one.
int LayerKind(int kind) {
  return kind == KCC_NcToolPath::kArcCCW ? static_cast<int>(KCC_NcToolPath::kArcCW) : kind;
}

// The order of the move-kind layers from bottom to top: rapids below the cut, holes on top.
constexpr int kLayerKindOrder[] = {KCC_NcToolPath::kRapid, KCC_NcToolPath::kFeed, KCC_NcToolPath::kArcCW,
                                   KCC_NcToolPath::kHole};

std::string ToolLabel(std::uint32_t tool) {
  return tool == 0 ? std::string("no tool") : "T" + std::to_string(tool);
}

// `text` as XML character data or attribute text: markup characters escaped, a byte that starts no UTF-8
// character taken as the Latin-1 character of that value, control characters XML forbids as U+FFFD.
std::string XmlText(const std::string& text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    const auto c = static_cast<unsigned char>(text[i]);
    unsigned codePoint = 0;
    const std::size_t length = Utf8Sequence(text, i, codePoint);
    if (length == 0) {
      out += static_cast<char>(0xC0 | (c >> 6));
      out += static_cast<char>(0x80 | (c & 0x3F));
      ++i;
      continue;
    }
    if (c == '&')
      out += "&amp;";
    else if (c == '<')
      out += "&lt;";
    else if (c == '>')
      out += "&gt;";
    else if (c == '"')
      out += "&quot;";
    else if (c < 0x20 && c != '\n' && c != '\t')
      out += "\xEF\xBF\xBD";
    else
      out.append(text, i, length);
    i += length;
  }
  return out;
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

// One group of the picture: a canvas of its own with a drawing API on the shared view port.
struct Layer {
  Layer(std::string id_, std::string label_, int width, int height, KCC_ViewPortDraw& port)
      : id(std::move(id_)), label(std::move(label_)), canvas(width, height), draw(port, canvas) {
    canvas.SetPrecision(kSvgDecimals);
  }
  std::string id;
  std::string label;
  KCC_SvgCanvas canvas;
  KCC_Draw draw;
};

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
        m_summary(SummarizePlot(programs)) {
    m_width = std::clamp(options.width, kPlotMinSide, kPlotMaxSide);
    m_height = std::clamp(options.height, kPlotMinSide, kPlotMaxSide);
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
    Layer& background = NewLayer("background", "background");
    KCColor paper = ToColor(kBackgroundColour);
    background.draw.PaintBackGround(paper);

    m_mapped = m_summary.hasExtents && FitView();
    if (m_mapped) {
      m_mirrored = MappingMirrors();
      DrawSegments();
    }
    BuildLegendLines();
    if (m_legend)
      DrawLegend();
    return Assemble();
  }

 private:
  Layer& NewLayer(const std::string& id, const std::string& label) {
    m_layers.push_back(std::make_unique<Layer>(id, label, m_width, m_height, m_port));
    return *m_layers.back();
  }

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
    const double p[3] = {static_cast<double>(point[0]), static_cast<double>(point[1]),
                         static_cast<double>(point[2])};
    Map(p, px, py);
  }

  KCC_LineAttributes PenOf(std::uint32_t tool, int kind) const {
    if (kind == KCC_NcToolPath::kRapid)
      return KCC_LineAttributes(ToColor(kRapidColour), KCPenStyleDash(), kRapidPenWidth);
    return KCC_LineAttributes(ToColor(m_toolColour.at(tool)), KCPenStyleSolid(), kFeedPenWidth);
  }

  Layer& LayerOf(std::uint32_t tool, int kind) {
    const std::pair<std::uint32_t, int> key(tool, LayerKind(kind));
    if (m_lastLayer && key == m_lastKey)
      return *m_lastLayer;
    auto found = m_segmentLayers.find(key);
    if (found == m_segmentLayers.end()) {
      const std::string id = "t" + std::to_string(tool) + "-" + KindLabel(key.second);
      auto layer = std::make_unique<Layer>(id, ToolLabel(tool) + " " + KindLabel(key.second), m_width,
                                           m_height, m_port);
      // The layer's canvas keeps its pen, so plain lines and arcs need no attributes per call.
      const KCC_LineAttributes pen = PenOf(tool, key.second);
      layer->canvas.SetPenColor(pen.GetLineColor());
      layer->canvas.SetPenStyle(pen.GetLineStyle());
      layer->canvas.SetPenWidth(pen.GetLineWidth());
      found = m_segmentLayers.emplace(key, std::move(layer)).first;
    }
    m_lastKey = key;
    m_lastLayer = found->second.get();
    return *m_lastLayer;
  }

  // A straight move; long ones get an arrow at their middle.
  void DrawMove(Layer& layer, double x1, double y1, double x2, double y2, const KCC_LineAttributes& pen) {
    const double length = std::hypot(x2 - x1, y2 - y1);
    if (!(length >= kMinDrawnPixels))
      return;
    if (m_arrows && length >= kPlotArrowMinPixels) {
      const double mx = (x1 + x2) / 2.0;
      const double my = (y1 + y2) / 2.0;
      layer.draw.DrawArrowLine(x1, y1, mx, my, kArrowSize, pen);
      layer.draw.DrawLine(mx, my, x2, y2);
    } else {
      layer.draw.DrawLine(x1, y1, x2, y2);
    }
  }

  void DrawArcSegment(Layer& layer, const KCC_NcToolPath::Segment& s) {
    double x1 = 0.0, y1 = 0.0, x2 = 0.0, y2 = 0.0;
    Map(s.start, x1, y1);
    Map(s.end, x2, y2);
    if (s.plane == m_axes.plane) {
      double xc = 0.0, yc = 0.0;
      Map(s.centre, xc, yc);
      const bool worldClockwise = s.kind == KCC_NcToolPath::kArcCW;
      layer.draw.DrawArc(x1, y1, x2, y2, xc, yc, worldClockwise != m_mirrored,
                         (s.flags & KCC_NcToolPath::kFlagFullCircle) != 0);
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
    double px = x1, py = y1;
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
      if (std::hypot(qx - px, qy - py) >= kMinDrawnPixels)
        layer.draw.DrawLine(px, py, qx, qy);
      px = qx;
      py = qy;
    }
    if (std::hypot(x2 - px, y2 - py) >= kMinDrawnPixels)
      layer.draw.DrawLine(px, py, x2, y2);
  }

  void DrawHole(Layer& layer, const KCC_NcToolPath::Segment& s, const KCC_LineAttributes& pen) {
    double x1 = 0.0, y1 = 0.0, x2 = 0.0, y2 = 0.0;
    Map(s.start, x1, y1);
    Map(s.end, x2, y2);
    if (std::hypot(x2 - x1, y2 - y1) >= kMinDrawnPixels)
      layer.draw.DrawLine(x1, y1, x2, y2);
    const int x = static_cast<int>(std::lround(x2));
    const int y = static_cast<int>(std::lround(y2));
    KCC_LineAttributes thin = pen;
    thin.SetLineWidth(1);
    layer.draw.DrawAttrCircle(x, y, kHoleMarkerRadius, thin);
    layer.draw.DrawAttrLine(x - kHoleMarkerRadius, y, x + kHoleMarkerRadius, y, thin);
    layer.draw.DrawAttrLine(x, y - kHoleMarkerRadius, x, y + kHoleMarkerRadius, thin);
    ++m_holeNumber;
    if (m_holeNumber > kMaxNumberedHoles)
      return;
    KCC_TextAttributes font(kFontName);
    font.SetFontSize(kHoleNumberFontSize);
    font.SetTextColor(pen.GetLineColor());
    const std::string number = std::to_string(m_holeNumber);
    int w = 0, h = 0;
    MeasureIn(layer.canvas, number, kHoleNumberFontSize, w, h);
    layer.draw.DisplayText(number, static_cast<double>(x + kHoleMarkerRadius) + 1.0 + w / 2.0,
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

  void DrawSegments() {
    const KCC_NcToolPath::Segment* first = nullptr;
    const KCC_NcToolPath::Segment* last = nullptr;
    for (const PlotProgram& p : m_programs) {
      for (const KCC_NcToolPath::Segment& s : p.path->GetSegments()) {
        if (!first)
          first = &s;
        last = &s;
        Layer& layer = LayerOf(s.tool, s.kind);
        if (s.kind == KCC_NcToolPath::kArcCW || s.kind == KCC_NcToolPath::kArcCCW) {
          DrawArcSegment(layer, s);
        } else if (s.kind == KCC_NcToolPath::kHole) {
          DrawHole(layer, s, PenOf(s.tool, s.kind));
        } else {
          double x1 = 0.0, y1 = 0.0, x2 = 0.0, y2 = 0.0;
          Map(s.start, x1, y1);
          Map(s.end, x2, y2);
          DrawMove(layer, x1, y1, x2, y2, PenOf(s.tool, s.kind));
        }
      }
    }
    if (!first)
      return;
    Layer& markers = NewLayer("markers", "start and end");
    const KCC_LineAttributes outline(ToColor(kEndColour), KCPenStyleSolid(), 1);
    double sx = 0.0, sy = 0.0, ex = 0.0, ey = 0.0;
    Map(first->start, sx, sy);
    Map(last->end, ex, ey);
    markers.draw.DrawFilledRectangle(ex - kEndMarkerHalfSize, ey - kEndMarkerHalfSize,
                                     ex + kEndMarkerHalfSize, ey + kEndMarkerHalfSize, outline,
                                     KCC_FillAttributes(ToColor(kEndColour), true));
    markers.draw.DrawAttrCircle(static_cast<int>(std::lround(sx)), static_cast<int>(std::lround(sy)),
                                kStartMarkerRadius, outline, KCC_FillAttributes(ToColor(kStartColour), true));
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

  // `text` cut at a character boundary, with "..." added, so that it fits `width` pixels in `canvas`.
  static std::string Fit(KCC_SvgCanvas& canvas, std::string text, int width) {
    int w = 0, h = 0;
    MeasureIn(canvas, text, kLegendFontSize, w, h);
    if (w <= width)
      return text;
    while (!text.empty()) {
      // Drop one character: its continuation bytes first, then the byte that starts it.
      while (!text.empty() && (static_cast<unsigned char>(text.back()) & 0xC0) == 0x80)
        text.pop_back();
      if (!text.empty())
        text.pop_back();
      MeasureIn(canvas, text + "...", kLegendFontSize, w, h);
      if (w <= width)
        break;
    }
    return text + "...";
  }

  void DrawLegend() {
    Layer& legend = NewLayer("legend", "legend");
    const KCC_LineAttributes edge(ToColor(kLegendPanelColour), KCPenStyleSolid(), 1);
    legend.draw.DrawFilledRectangle(m_plotWidth, 0, m_width, m_height, edge,
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
        legend.draw.DrawAttrLine(left, middle, left + kLegendSwatchLength, middle, line.pen);
        textLeft = left + kLegendSwatchLength + kLegendPadding / 2;
      }
      const std::string text = Fit(legend.canvas, line.text, right - textLeft);
      int w = 0, h = 0;
      MeasureIn(legend.canvas, text, kLegendFontSize, w, h);
      legend.draw.DisplayText(text, textLeft + w / 2.0, static_cast<double>(middle), KCC_FillAttributes(),
                              font);
      top += kLegendLineHeight;
    }
  }

  std::string Title() const {
    std::string title = m_fileName;
    if (m_programs.size() == 1)
      title += " - " + ProgramText(*m_programs[0].program);
    else
      title += " - " + std::to_string(m_programs.size()) + " programs";
    return title;
  }

  // The canvases' pictures joined: the first one's XML declaration and <svg> start tag (with the layer
  // namespace added), the title and description, then each canvas's elements as one group.
  std::string Assemble() {
    std::vector<Layer*> order;
    order.push_back(m_layers[0].get());
    for (int kind : kLayerKindOrder) {
      for (std::uint32_t tool : m_summary.tools) {
        const auto found = m_segmentLayers.find({tool, kind});
        if (found != m_segmentLayers.end())
          order.push_back(found->second.get());
      }
    }
    for (std::size_t i = 1; i < m_layers.size(); ++i)
      order.push_back(m_layers[i].get());

    const std::string frame = order[0]->canvas.ToSvg();
    const std::size_t open = frame.find("<svg ");
    const std::size_t close = frame.find(">\n", open);
    std::string out = frame.substr(0, open) +
                      "<svg xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\" " +
                      frame.substr(open + 5, close + 2 - (open + 5));
    out += "<title>" + XmlText(Title()) + "</title>\n<desc>";
    for (std::size_t i = 0; i < m_lines.size(); ++i)
      out += (i == 0 ? "" : "\n") + XmlText(m_lines[i].text);
    out += "</desc>\n";
    const std::string end = "</svg>\n";
    for (Layer* layer : order) {
      const std::string svg = layer->canvas.ToSvg();
      const std::size_t bodyStart = svg.find(">\n", svg.find("<svg ")) + 2;
      const std::size_t bodyEnd = svg.size() - end.size();
      if (bodyEnd <= bodyStart)
        continue;  // nothing drawn on this canvas
      out += "<g id=\"" + layer->id + "\" inkscape:groupmode=\"layer\" inkscape:label=\"" +
             XmlText(layer->label) + "\">\n";
      out.append(svg, bodyStart, bodyEnd - bodyStart);
      out += "</g>\n";
    }
    out += end;
    return out;
  }

  const std::string& m_fileName;
  const std::vector<PlotProgram>& m_programs;
  const PlotOptions& m_options;
  const ViewAxes m_axes;
  const PlotSummary m_summary;
  int m_width = 0;
  int m_height = 0;
  int m_plotWidth = 0;
  bool m_legend = false;
  bool m_arrows = true;
  bool m_mapped = false;
  bool m_mirrored = true;
  std::uint64_t m_holeNumber = 0;
  std::map<std::uint32_t, Rgb> m_toolColour;
  KCC_ViewPortDraw m_port;
  std::vector<std::unique_ptr<Layer>> m_layers;
  std::map<std::pair<std::uint32_t, int>, std::unique_ptr<Layer>> m_segmentLayers;
  std::pair<std::uint32_t, int> m_lastKey;
  Layer* m_lastLayer = nullptr;
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

std::string PlotToSvg(const std::string& fileName, const std::vector<PlotProgram>& programs,
                      const PlotOptions& options) {
  Plotter plotter(fileName, programs, options);
  return plotter.Run();
}
