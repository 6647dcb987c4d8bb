// SPDX-License-Identifier: MIT
// nckit pattern: the offsets a placement pattern yields, one "x y" pair a line or a JSON array of pairs.
//
//   nckit pattern linear --angle 90 --distance 10 --count 3      -> 0 0 / 0 10 / 0 20
//   nckit pattern grid --dx 5 --dy 7 --columns 3 --rows 2        -> six positions, row by row
//   nckit pattern circular --radius 10 --step 90                 -> 10 0 / 0 10 / -10 0 / 0 -10
//
// The positions come from the library's patterns through their first/next protocol and are written as they
// come, so a 10,000 x 10,000 grid streams without being held; --limit N stops after N. --origin X,Y adds a
// start point to every offset. Numbers are written with at most --digits decimals (6 by default, trailing
// zeros dropped, so cos(90 degrees) x 10 prints as 0); --digits -1 writes the shortest text that reads back
// exactly.
//
// Exit codes: 2 for a wrong command line (unknown kind, a missing option, a value that is no finite number, a
// negative count, an angle beyond +/-1e9 degrees, where the circle's full-turn test would lose its
// precision); 1 when the pattern gives no position at all (a count of 0, a radius or step of at most 0.0001
// in size) or a position is too large to write (beyond the range of a double).
#include <algorithm>
#include <charconv>
#include <climits>
#include <cmath>
#include <limits>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <system_error>
#include <vector>

#include "NckitCommand.h"
#include "NckitCommandLine.h"
#include "ncappkit/foundation/KCString.h"
#include "ncappkit/objects/KCC_ObjectPattern.h"

namespace {

// Angles beyond this size (degrees) are refused: the circle's full-turn test compares angles of that size
// with a 1e-7 margin, which a double cannot hold there.
constexpr double kMaxAngleDegrees = 1e9;

const char kPatternHelp[] =
    "usage: nckit pattern linear --distance D --count N [--angle DEG] [options]\n"
    "       nckit pattern grid --dx D --dy D --columns N --rows N [options]\n"
    "       nckit pattern circular --radius R --step DEG [--start DEG] [options]\n"
    "\n"
    "Writes the offsets of the copies a placement pattern gives, one \"x y\" pair a line.\n"
    "  linear    copies along a direction: 0, D, 2D ... (N copies in all)\n"
    "  grid      COLUMNS x ROWS copies, row by row, the first at 0 0\n"
    "  circular  copies on a circle round the origin, from --start, every --step degrees,\n"
    "            until a full turn (a negative step runs clockwise and ends on the first copy)\n"
    "\n"
    "options of every kind:\n"
    "  --origin X,Y   add X,Y to every offset\n"
    "  --limit N      stop after N positions\n"
    "  --digits N     decimals written (default 6, trailing zeros dropped; -1: shortest exact text)\n"
    "  --json         write one JSON array of [x, y] pairs\n"
    "Try 'nckit pattern KIND --help' for the options of one kind.\n";

// A whole number in [minimum, INT_MAX] (an optional leading '+' aside, digits only), or nothing.
std::optional<int> ParseWhole(const std::string& text, long long minimum) {
  const char* first = text.data();
  const char* last = text.data() + text.size();
  if (first != last && *first == '+')
    ++first;
  long long value = 0;
  const auto [end, error] = std::from_chars(first, last, value);
  if (error != std::errc() || end != last || first == last || value < minimum || value > INT_MAX)
    return std::nullopt;
  return static_cast<int>(value);
}

// The common options after the kind's own ones were declared.
struct CommonOptions {
  std::string origin;
  std::string limit;
  std::string digits = "6";
  bool json = false;
};

void DeclareCommon(NckitCommandLine& cl, CommonOptions& options) {
  cl.Option("--origin", options.origin, "X,Y", "add X,Y to every offset");
  cl.Option("--limit", options.limit, "N", "stop after N positions");
  cl.Option("--digits", options.digits, "N",
            "decimals written (default 6, trailing zeros dropped; -1: the shortest exact text)");
  cl.Flag("--json", options.json, "write one JSON array of [x, y] pairs");
}

// A required real option; writes the message and gives the exit code when it is missing or no finite
// number.
std::optional<int> RequireReal(const NckitCommandLine& cl, const std::string& name, const std::string& text,
                               bool required, double& value, std::ostream& err) {
  if (!cl.Given(name)) {
    if (required)
      return cl.UsageError("missing " + name, err);
    return std::nullopt;
  }
  const std::optional<double> parsed = ParseRealArgument(text);
  if (!parsed)
    return cl.UsageError(name + " '" + text + "' is not a finite number", err);
  value = *parsed;
  return std::nullopt;
}

std::optional<int> RequireAngle(const NckitCommandLine& cl, const std::string& name, const std::string& text,
                                bool required, double& value, std::ostream& err) {
  if (const auto stop = RequireReal(cl, name, text, required, value, err))
    return stop;
  if (std::fabs(value) > kMaxAngleDegrees)
    return cl.UsageError(name + " '" + text + "' is beyond +/-1e9 degrees", err);
  return std::nullopt;
}

std::optional<int> RequireCount(const NckitCommandLine& cl, const std::string& name, const std::string& text,
                                int& value, std::ostream& err) {
  if (!cl.Given(name))
    return cl.UsageError("missing " + name, err);
  const std::optional<int> parsed = ParseWhole(text, 0);
  if (!parsed)
    return cl.UsageError(name + " '" + text + "' is not a whole number from 0 to 2147483647", err);
  value = *parsed;
  return std::nullopt;
}

// Writes the positions as they come; the text is collected in a buffer and handed to the stream in blocks.
class PositionWriter {
 public:
  PositionWriter(std::ostream& out, bool json, int digits) : m_out(out), m_json(json), m_digits(digits) {
    m_buffer.reserve(kFlushSize + 256);
  }

  void Add(double x, double y) {
    if (m_json) {
      m_buffer += m_count == 0 ? "[[" : ",\n [";
      AppendNumber(x);
      m_buffer += ", ";
      AppendNumber(y);
      m_buffer += ']';
    } else {
      AppendNumber(x);
      m_buffer += ' ';
      AppendNumber(y);
      m_buffer += '\n';
    }
    ++m_count;
    if (m_buffer.size() >= kFlushSize)
      Flush();
  }

  // Ends the JSON array (an empty one when nothing was added) and writes what is left.
  void Finish() {
    if (m_json)
      m_buffer += m_count == 0 ? "[]\n" : "]\n";
    Flush();
  }

 private:
  static constexpr std::size_t kFlushSize = 64 * 1024;

  void AppendNumber(double value) {
    KCString text(value, m_digits, false);
    if (m_digits > 0)
      text.CleanDoubleString();  // also turns "-0" into "0"
    else if (text.str() == "-0")
      text = "0";
    m_buffer += text.str();
  }

  void Flush() {
    m_out.write(m_buffer.data(), static_cast<std::streamsize>(m_buffer.size()));
    m_buffer.clear();
  }

  std::ostream& m_out;
  bool m_json;
  int m_digits;
  long long m_count = 0;
  std::string m_buffer;
};

// Walks the pattern, adding the origin, and writes each position. Exit code 1 when there is no position or
// one is too large to write.
int WritePositions(const NckitCommandLine& cl, KCC_ObjectPattern& pattern, bool json, int digits,
                   double originX, double originY, long long limit, const std::string& whyNone,
                   std::ostream& out, std::ostream& err) {
  PositionWriter writer(out, json, digits);
  double x = 0.0;
  double y = 0.0;
  long long written = 0;
  bool more = pattern.GetFirstPosition(x, y);
  if (!more) {
    writer.Finish();
    err << cl.Program() << ": the pattern gives no position (" << whyNone << ")\n";
    return kNckitProblem;
  }
  while (more && (limit < 0 || written < limit)) {
    const double px = x + originX;
    const double py = y + originY;
    if (!std::isfinite(px) || !std::isfinite(py)) {
      writer.Finish();
      err << cl.Program() << ": position " << (written + 1) << " is too large to write\n";
      return kNckitProblem;
    }
    writer.Add(px, py);
    ++written;
    if (limit >= 0 && written >= limit)
      break;
    more = pattern.GetNextPosition(x, y);
  }
  writer.Finish();
  return kNckitOk;
}

int RunPattern(const NckitArgs& args, std::ostream& out, std::ostream& err) {
  if (args.empty()) {
    err << kPatternHelp;
    return kNckitUsage;
  }
  const std::string& kind = args[0];
  if (kind == "-h" || kind == "--help") {
    out << kPatternHelp;
    return kNckitOk;
  }
  if (kind != "linear" && kind != "grid" && kind != "circular") {
    err << "nckit pattern: unknown pattern kind '" << kind
        << "' (linear, grid or circular; try 'nckit pattern --help')\n";
    return kNckitUsage;
  }
  const NckitArgs rest(args.begin() + 1, args.end());

  std::string angle, distance, count, dx, dy, columns, rows, radius, start, step;
  std::vector<std::string> operands;
  CommonOptions common;
  std::unique_ptr<NckitCommandLine> cl;
  if (kind == "linear") {
    cl = std::make_unique<NckitCommandLine>(
        "pattern linear", "nckit pattern linear --distance D --count N [--angle DEG] [options]",
        "Writes the offsets of N copies in a row: 0, D, 2D ... along the direction --angle (degrees,\n"
        "counter-clockwise from +x, default 0).\n");
    cl->Option("--angle", angle, "DEG", "the direction of the row in degrees (default 0)");
    cl->Option("--distance", distance, "D", "the distance between neighbouring copies");
    cl->Option("--count", count, "N", "the number of copies");
  } else if (kind == "grid") {
    cl = std::make_unique<NckitCommandLine>(
        "pattern grid", "nckit pattern grid --dx D --dy D --columns N --rows N [options]",
        "Writes the offsets of COLUMNS x ROWS copies, row by row from the first at 0 0.\n");
    cl->Option("--dx", dx, "D", "the distance between columns");
    cl->Option("--dy", dy, "D", "the distance between rows");
    cl->Option("--columns", columns, "N", "the number of copies in a row");
    cl->Option("--rows", rows, "N", "the number of rows");
  } else {
    cl = std::make_unique<NckitCommandLine>(
        "pattern circular", "nckit pattern circular --radius R --step DEG [--start DEG] [options]",
        "Writes the offsets of copies on a circle of radius R round the origin, the first at --start\n"
        "degrees (default 0), then every --step degrees until a full turn. A negative step runs\n"
        "clockwise and gives one copy more, the last on top of the first.\n");
    cl->Option("--radius", radius, "R", "the radius of the circle");
    cl->Option("--start", start, "DEG", "the angle of the first copy in degrees (default 0)");
    cl->Option("--step", step, "DEG", "the angle from one copy to the next in degrees");
  }
  cl->Operands("ARGS", operands);
  DeclareCommon(*cl, common);
  if (const auto stop = cl->Parse(rest, out, err))
    return *stop;
  if (!operands.empty())
    return cl->UsageError("unexpected argument '" + operands[0] + "'", err);

  double originX = 0.0;
  double originY = 0.0;
  if (cl->Given("--origin")) {
    const std::size_t comma = common.origin.find(',');
    const std::optional<double> ox =
        comma == std::string::npos ? std::nullopt : ParseRealArgument(common.origin.substr(0, comma));
    const std::optional<double> oy =
        comma == std::string::npos ? std::nullopt : ParseRealArgument(common.origin.substr(comma + 1));
    if (!ox || !oy)
      return cl->UsageError("--origin '" + common.origin + "' is not two finite numbers X,Y", err);
    originX = *ox;
    originY = *oy;
  }
  long long limit = -1;
  if (cl->Given("--limit")) {
    const std::optional<int> parsed = ParseWhole(common.limit, 0);
    if (!parsed)
      return cl->UsageError("--limit '" + common.limit + "' is not a whole number from 0 to 2147483647", err);
    limit = *parsed;
  }
  int digits = -1;
  if (common.digits != "-1") {
    const std::optional<int> parsed = ParseWhole(common.digits, 0);
    if (!parsed || *parsed > 17)
      return cl->UsageError("--digits '" + common.digits + "' is not -1 or a whole number from 0 to 17", err);
    digits = *parsed;
  }

  std::unique_ptr<KCC_ObjectPattern> pattern;
  std::string whyNone;
  if (kind == "linear") {
    double a = 0.0, d = 0.0;
    int n = 0;
    if (const auto stop = RequireAngle(*cl, "--angle", angle, false, a, err))
      return *stop;
    if (const auto stop = RequireReal(*cl, "--distance", distance, true, d, err))
      return *stop;
    if (const auto stop = RequireCount(*cl, "--count", count, n, err))
      return *stop;
    pattern = std::make_unique<KCC_ObjectPattern_LinearAngle>(a, d, n);
    whyNone = "a count of 0";
  } else if (kind == "grid") {
    double h = 0.0, v = 0.0;
    int nh = 0, nv = 0;
    if (const auto stop = RequireReal(*cl, "--dx", dx, true, h, err))
      return *stop;
    if (const auto stop = RequireReal(*cl, "--dy", dy, true, v, err))
      return *stop;
    if (const auto stop = RequireCount(*cl, "--columns", columns, nh, err))
      return *stop;
    if (const auto stop = RequireCount(*cl, "--rows", rows, nv, err))
      return *stop;
    pattern = std::make_unique<KCC_ObjectPattern_Grid>(h, v, nh, nv);
    whyNone = "0 columns and 0 rows";
  } else {
    double r = 0.0, s = 0.0, inc = 0.0;
    if (const auto stop = RequireReal(*cl, "--radius", radius, true, r, err))
      return *stop;
    if (const auto stop = RequireAngle(*cl, "--start", start, false, s, err))
      return *stop;
    if (const auto stop = RequireAngle(*cl, "--step", step, true, inc, err))
      return *stop;
    pattern = std::make_unique<KCC_ObjectPattern_Circular>(r, s, inc);
    whyNone = "the radius and the step must each be larger than 0.0001 in size";
  }
  return WritePositions(*cl, *pattern, common.json, digits, originX, originY, limit, whyNone, out, err);
}

}  // namespace

NCKIT_COMMAND(pattern, "write the positions of a placement pattern (linear, grid, circular)", RunPattern);
