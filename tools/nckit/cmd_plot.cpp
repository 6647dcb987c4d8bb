// SPDX-License-Identifier: MIT
// nckit plot: the backplot of an NC program, its tool path drawn as an SVG picture (see NckitPlot.h).
//
//   nckit plot samples/fanuc_programs.nc -o job.svg          # the first main program
//   nckit plot part.nc --program 1000 --size 1600x1000 > part.svg
//   nckit plot lathe.nc --view xz --json                      # counts, extents, lengths and notes
//
// The program is interpreted by KCC_NcToolPath; called sub-programs are taken from the file, and Siemens
// sub-program files from --search DIR (by default the folder of FILE). With --all every main program runs
// in file order, each starting where the one before ended.
//
// The file is read as with --keep-unfinished and --no-line-limit: a plot only reads, so it shows whatever
// the file holds, also programs that end with M2 or lines longer than the reader's limit.
//
// Exit codes: 2 for a wrong command line (also --size below 100 pixels a side, an unknown view or corner, a
// rapid rate that is no positive number); 1 when the file cannot be loaded, the program is not in it, it
// expands to more than kPlotMaxSegments segments or beyond the interpreter's block limit (refused: nothing
// is drawn), the picture cannot be written, or the program gives no motion (the picture, with the legend
// only, is written all the same). A size above kPlotMaxSide pixels a side is capped with a warning. --json
// writes the JSON object instead of the picture on the standard output; with -o the picture is written to
// the file all the same.
#include <charconv>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <system_error>
#include <vector>

#include "NckitCommand.h"
#include "NckitCommandLine.h"
#include "NckitJson.h"
#include "NckitLoad.h"
#include "NckitOutput.h"
#include "NckitPlot.h"
#include "ncappkit/foundation/KCFileMan.h"
#include "ncappkit/nc/KCC_NcFileProgram.h"
#include "ncappkit/nc/KCC_NcToolPath.h"

namespace fs = std::filesystem;

namespace {

// Decimals of lengths, extents and times in the JSON object (a thousandth of a millimetre or second).
constexpr int kJsonDecimals = 3;

// One side of --size: digits only. Values too large for a long long read as the largest one, so that
// they are capped like any other huge size.
std::optional<long long> ParseSide(const std::string& text) {
  if (text.empty())
    return std::nullopt;
  long long value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (end != text.data() + text.size())
    return std::nullopt;
  if (error == std::errc::result_out_of_range)
    return std::numeric_limits<long long>::max();
  if (error != std::errc())
    return std::nullopt;
  return value;
}

// --size WxH into `options`; a side above kPlotMaxSide is capped with a warning. Returns the exit code
// after a message when the text is no size or a side is below kPlotMinSide.
std::optional<int> ParseSize(const NckitCommandLine& cl, const std::string& text, PlotOptions& options,
                             std::ostream& err) {
  const std::size_t x = text.find_first_of("xX");
  const std::optional<long long> w = x == std::string::npos ? std::nullopt : ParseSide(text.substr(0, x));
  const std::optional<long long> h = x == std::string::npos ? std::nullopt : ParseSide(text.substr(x + 1));
  const std::string range = std::to_string(kPlotMinSide) + " to " + std::to_string(kPlotMaxSide);
  if (!w || !h)
    return cl.UsageError("--size '" + text + "' is not WIDTHxHEIGHT in whole pixels (" + range + ")", err);
  if (*w < kPlotMinSide || *h < kPlotMinSide)
    return cl.UsageError("--size '" + text + "' is too small: each side needs at least " +
                             std::to_string(kPlotMinSide) + " pixels",
                         err);
  options.width = static_cast<int>(std::min<long long>(*w, kPlotMaxSide));
  options.height = static_cast<int>(std::min<long long>(*h, kPlotMaxSide));
  if (*w > kPlotMaxSide || *h > kPlotMaxSide)
    err << cl.Program() << ": warning: --size '" << text << "' is larger than " << kPlotMaxSide
        << " pixels a side; drawing " << options.width << "x" << options.height << '\n';
  return std::nullopt;
}

std::string JsonNumber(double value) {
  return std::isfinite(value) ? PlotNumber(value, kJsonDecimals) : std::string("null");
}

std::string JsonProgram(const KCC_NcFileProgram& program) {
  const int number = program.GetProgramNumber();
  return "{\"number\": " + (number < 0 ? std::string("null") : std::to_string(number)) +
         ", \"name\": " + JsonString(PlotProgramName(program)) +
         ", \"ref\": " + JsonString(program.GetProgramRef().str()) + "}";
}

// The name of the program a note of `path` belongs to.
std::string NoteProgram(const KCC_NcToolPath& path, std::uint32_t index) {
  return path.GetProgramName(index).str();
}

void WriteJson(const std::string& file, const std::vector<PlotProgram>& programs, const char* view,
               std::ostream& out) {
  const PlotSummary s = SummarizePlot(programs);
  std::string json = "{\"file\": " + JsonString(file);
  json += ", \"program\": " + (programs.empty() ? std::string("null") : JsonProgram(*programs[0].program));
  json += ", \"programs\": [";
  for (std::size_t i = 0; i < programs.size(); ++i)
    json += (i == 0 ? "" : ", ") + JsonProgram(*programs[i].program);
  json += "], \"units\": \"mm\", \"view\": \"" + std::string(view) + "\", \"extents\": ";
  if (s.hasExtents) {
    const char* names[3] = {"x", "y", "z"};
    json += "{";
    for (int i = 0; i < 3; ++i)
      json += std::string(i == 0 ? "" : ", ") + "\"" + names[i] + "min\": " + JsonNumber(s.extents.min[i]);
    for (int i = 0; i < 3; ++i)
      json += std::string(", \"") + names[i] + "max\": " + JsonNumber(s.extents.max[i]);
    json += "}";
  } else {
    json += "null";
  }
  json += ", \"segments\": {\"rapid\": " + std::to_string(s.rapids) +
          ", \"feed\": " + std::to_string(s.feeds) + ", \"arc\": " + std::to_string(s.arcs) +
          ", \"hole\": " + std::to_string(s.holes) + "}";
  json += ", \"rapid_length\": " + JsonNumber(s.rapidLength) +
          ", \"feed_length\": " + JsonNumber(s.feedLength) + ", \"run_time_s\": " + JsonNumber(s.runTime);
  json += ", \"tools\": [";
  for (std::size_t i = 0; i < s.tools.size(); ++i)
    json += (i == 0 ? "" : ", ") + std::to_string(s.tools[i]);
  json += "], \"warnings\": [";
  bool first = true;
  for (const PlotProgram& p : programs) {
    for (const KCC_NcToolPath::Note& n : p.path->GetWarnings()) {
      json += std::string(first ? "" : ", ") +
              "{\"program\": " + JsonString(NoteProgram(*p.path, n.program)) +
              ", \"line\": " + std::to_string(n.line) + ", \"text\": " + JsonString(n.text.str()) + "}";
      first = false;
    }
  }
  json += "], \"warning_count\": " + std::to_string(s.warnings) + ", \"not_drawn\": [";
  first = true;
  std::uint64_t notDrawn = 0;
  for (const PlotProgram& p : programs) {
    notDrawn += p.path->GetNotInterpretedCount();
    for (const KCC_NcToolPath::Note& n : p.path->GetNotInterpreted()) {
      json += std::string(first ? "" : ", ") +
              "{\"program\": " + JsonString(NoteProgram(*p.path, n.program)) +
              ", \"line\": " + std::to_string(n.line) + ", \"word\": " + JsonString(n.text.str()) + "}";
      first = false;
    }
  }
  json += "], \"not_drawn_count\": " + std::to_string(notDrawn) + "}\n";
  out << json;
}

// The programs to draw, or the exit code after a message.
std::optional<int> ChoosePrograms(const NckitCommandLine& cl, const std::string& path, KCC_NcFile& file,
                                  bool all, const std::string& programText,
                                  std::vector<KCC_NcFileProgram*>& chosen, std::ostream& err) {
  if (all) {
    for (int i = 0; i < file.GetNumberOfMainPrograms(); ++i) {
      if (KCC_NcFileProgram* p = file.GetMainProgList().GetProgram(i))
        chosen.push_back(p);
    }
    if (chosen.empty()) {
      err << cl.Program() << ": " << path << ": the file holds no main program for --all\n";
      return kNckitProblem;
    }
    return std::nullopt;
  }
  const std::vector<KCC_NcFileProgram*> programs = AllPrograms(file);
  if (!cl.Given("--program")) {
    if (programs.empty()) {
      err << cl.Program() << ": " << path << ": the file holds no program\n";
      return kNckitProblem;
    }
    chosen.push_back(programs[0]);  // main programs come first
    return std::nullopt;
  }
  int number = 0;
  if (!ParseProgramNumberArgument(programText, number))
    return cl.UsageError("--program '" + programText + "' is no program number", err);
  for (KCC_NcFileProgram* p : programs) {
    if (p->GetProgramNumber() == number) {
      chosen.push_back(p);
      return std::nullopt;
    }
  }
  err << cl.Program() << ": " << path << ": no program " << ProgramNumberText(number) << " in the file\n";
  return kNckitProblem;
}

int RunPlot(const NckitArgs& args, std::ostream& out, std::ostream& err) {
  std::vector<std::string> files;
  // A plot only reads, so it takes what it can: the text after the last program end and long lines too.
  NcLoadOptions load;
  load.keepUnfinished = true;
  load.noLineLimit = true;
  std::string programText, target, size, viewText = "xy", cornerText = "bl", search, rapidRate;
  bool all = false;
  bool json = false;
  NckitCommandLine cl(
      "plot", "nckit plot FILE [options]",
      "Draws the tool path of a program of FILE as an SVG picture: rapids dashed, feeds and arcs solid\n"
      "in one colour per tool, holes as numbered circles, a start dot and an end square, and a legend\n"
      "with the extents, lengths, run time and the words not drawn. Each tool and move kind is a group\n"
      "(a layer in vector editors). By default the first main program is drawn (the first program when\n"
      "there is no main one) and the picture goes to the standard output. The file is read as with\n"
      "--keep-unfinished and --no-line-limit, so that a plot shows whatever the file holds.\n");
  cl.Operands("FILE", files);
  cl.LoadOptions(load);
  cl.Option("--program", programText, "N", "draw the program with this number");
  cl.Flag("--all", all, "draw every main program, in file order");
  cl.Option("-o,--output", target, "OUT.svg", "write the picture to this file");
  cl.Option("--size", size, "WxH",
            "canvas size in pixels (default " + std::to_string(kPlotDefaultWidth) + "x" +
                std::to_string(kPlotDefaultHeight) + ", sides " + std::to_string(kPlotMinSide) + " to " +
                std::to_string(kPlotMaxSide) + ")");
  cl.Option("--view", viewText, "xy|xz|yz",
            "the plane shown, seen from its positive third axis (default xy; xz shows Z right and X up, "
            "as lathe programs are drawn)");
  cl.Option("--corner", cornerText, "bl|br|tl|tr", "the reference corner of the view (default bl)");
  cl.Option("--search", search, "DIR",
            "folder of sub-program files (NAME.SPF, L<n>.SPF); default: the folder of FILE");
  cl.Option("--rapid-rate", rapidRate, "MM_PER_MIN",
            "rapid rate for the run time (default " + PlotNumber(KCC_NcToolPath::kDefaultRapidRate, 0) + ")");
  cl.Flag("--json", json, "write counts, extents, lengths, warnings and words not drawn as one JSON object");
  if (const auto stop = cl.Parse(args, out, err))
    return *stop;
  if (files.size() != 1)
    return cl.UsageError("expects exactly one FILE", err);
  if (all && cl.Given("--program"))
    return cl.UsageError("--all and --program cannot be combined", err);
  PlotOptions options;
  if (!ParsePlotView(viewText, options.view))
    return cl.UsageError("--view '" + viewText + "' is not xy, xz or yz", err);
  if (!ParsePlotCorner(cornerText, options.corner))
    return cl.UsageError("--corner '" + cornerText + "' is not bl, br, tl or tr", err);
  if (cl.Given("--size")) {
    if (const auto stop = ParseSize(cl, size, options, err))
      return *stop;
  }
  double rate = KCC_NcToolPath::kDefaultRapidRate;
  if (cl.Given("--rapid-rate")) {
    const std::optional<double> parsed = ParseRealArgument(rapidRate);
    if (!parsed || *parsed <= 0.0)
      return cl.UsageError("--rapid-rate '" + rapidRate + "' is not a positive number of mm/min", err);
    rate = *parsed;
  }
  const bool toFile = cl.Given("-o");
  if (toFile) {
    if (const auto stop = CheckOutputFileName(cl, target, err))
      return *stop;
  }
  const std::string& path = files[0];
  std::string folder = search;
  if (!cl.Given("--search")) {
    folder = fs::path(path).parent_path().string();
    if (folder.empty())
      folder = ".";
  } else {
    std::error_code ec;
    if (!fs::is_directory(search, ec))
      return cl.UsageError("--search '" + search + "' is not a folder", err);
  }

  NcLoadResult loaded;
  if (const auto stop = LoadNcFileWithoutError(cl, path, load, loaded, err))
    return *stop;
  KCC_NcFile& file = *loaded.file;
  std::vector<KCC_NcFileProgram*> chosen;
  if (const auto stop = ChoosePrograms(cl, path, file, all, programText, chosen, err))
    return *stop;

  const PlotPaths plot = InterpretForPlot(file, chosen, folder, rate);
  if (plot.stopped != nullptr) {
    const std::string name = PlotProgramName(*plot.stopped);
    err << cl.Program() << ": " << path << ": program " << (name.empty() ? "(no number)" : name) << " "
        << plot.stopReason << "; a plot takes at most " << kPlotMaxSegments
        << " segments, nothing is drawn\n";
    return kNckitProblem;
  }
  const std::vector<PlotProgram>& drawn = plot.drawn;
  const std::size_t segments = plot.segments;

  if (json)
    WriteJson(path, drawn, viewText.c_str(), out);
  if (!json || toFile) {
    const std::string svg = PlotToSvg(path, drawn, options);
    if (!toFile) {
      out << svg;
    } else if (!KCFileMan::ReplaceFileContents(target, svg)) {
      err << cl.Program() << ": " << target << ": cannot write the picture\n";
      return kNckitProblem;
    }
  }
  if (segments == 0) {
    // The picture (legend only) is written all the same: it lists what the interpreter did not take.
    std::size_t programs = 0;  // the empty program --keep-unfinished may add does not count
    for (const KCC_NcFileProgram* p : AllPrograms(file))
      programs += p->GetStringList().size() > 0 ? 1u : 0u;
    err << cl.Program() << ": " << path << ": ";
    if (chosen.size() == 1) {
      const std::string name = PlotProgramName(*chosen[0]);
      err << "program " << (name.empty() ? std::string("(no number)") : name) << " gives no motion";
    } else {
      err << "the programs give no motion";
    }
    err << "; nothing is drawn";
    if (!all && programs > 1)
      err << " (the file holds " << programs << " programs: choose one with --program N, or use --all)";
    err << '\n';
    return kNckitProblem;
  }
  return kNckitOk;
}

}  // namespace

NCKIT_COMMAND(plot, "draw the tool path of an NC program as an SVG picture", RunPlot);
