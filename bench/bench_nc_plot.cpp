// SPDX-License-Identifier: MIT
// Plotting a large NC file against loading it: KCC_NcFile::LoadFromFile of a 999,000-line file against
// interpreting every main program of the loaded file with KCC_NcToolPath and drawing the result as an SVG
// text with nckit plot's drawing code (NckitPlot.cpp), both timed in this process and run.
//
// Two files are measured:
// - "one program": the 999,000-line program of the tool-path benchmark (bench_nc_program_file.h), whose
//   arcs and circles are all consistent. This is the file of the speed goal: a plot at most 2 x the load.
// - "700 programs": the file of the load benchmarks (bench_nc_load_file.h). Its arcs are "G02 X.. I..": a
//   random end point for a centre offset, so nearly every arc is inconsistent and is drawn as a spiral
//   polyline of up to hundreds of pixels' radius. It shows what such a picture costs; no goal is set for it.
//
// One sample is one load, or one interpretation and picture of the file loaded once at start-up (the load
// is not part of the plot side); the interpretation alone is timed as a third side, to show its share. Each
// side runs 7 repetitions of one sample (5 for the second file), interleaved in random order. After the run
// the minimum and the median of the samples, the ratio plot / load and the size of the picture per segment
// are printed. The plot side reads the program ahead on a second thread, as nckit plot does: its wall time is
// the goal's measure, and the CPU time of all threads is printed beside the measuring thread's.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "NckitPlot.h"
#include "bench_nc_load_file.h"
#include "bench_nc_program_file.h"
#include "bench_sampling.h"
#include "ncappkit/nc/KCC_NcFile.h"
#include "ncappkit/nc/KCC_NcFileProgram.h"
#include "ncappkit/nc/KCC_NcToolPath.h"

namespace {

using bench_sampling::Measure;
using bench_sampling::Median;
using bench_sampling::Min;
using bench_sampling::Samples;

// One measured file with its samples.
struct Subject {
  const char* name = "";
  std::string path;
  std::uint64_t bytes = 0;
  int lines = 0;
  std::unique_ptr<KCC_NcFile> loaded;
  Samples load;
  Samples plot;
  Samples interpret;
  std::size_t svgBytes = 0;
  std::size_t segments = 0;
  std::size_t programs = 0;
  std::uint64_t warnings = 0;
};

std::unique_ptr<bench_nc::ProgramFile> g_programFile;
std::unique_ptr<bench_nc::TestFile> g_loadFile;
Subject g_one;
Subject g_many;

// Interpret every main program as nckit plot --all does (InterpretForPlot) and draw them unless `plot` is
// false; returns the picture.
std::string InterpretAndPlot(Subject& subject, bool plot) {
  KCC_NcFile& file = *subject.loaded;
  std::vector<KCC_NcFileProgram*> programs;
  for (int i = 0; i < file.GetNumberOfMainPrograms(); ++i)
    programs.push_back(file.GetMainProgList().GetProgram(i));
  const PlotPaths paths = InterpretForPlot(file, programs, "", KCC_NcToolPath::kDefaultRapidRate);
  if (paths.stopped != nullptr)
    std::abort();
  std::uint64_t warnings = 0;
  for (const auto& path : paths.paths)
    warnings += path->GetWarningCount();
  subject.segments = paths.segments;
  subject.programs = paths.drawn.size();
  subject.warnings = warnings;
  if (!plot)
    return std::string();
  return PlotToSvg(subject.path, paths.drawn, PlotOptions());
}

void Load(benchmark::State& state, Subject& subject) {
  Measure(state, subject.load, subject.bytes, [&subject] {
    KCC_NcFile file;
    KCC_NcFileProgram* last = file.LoadFromFile(subject.path, true, false);
    benchmark::DoNotOptimize(last);
    if (last == nullptr)
      std::abort();
  });
}

void Plot(benchmark::State& state, Subject& subject) {
  Measure(state, subject.plot, subject.bytes, [&subject] {
    const std::string svg = InterpretAndPlot(subject, true);
    benchmark::DoNotOptimize(svg.data());
    subject.svgBytes = svg.size();
  });
}

void Interpret(benchmark::State& state, Subject& subject) {
  Measure(state, subject.interpret, subject.bytes, [&subject] {
    const std::string none = InterpretAndPlot(subject, false);
    benchmark::DoNotOptimize(none.data());
  });
}

void BM_OneProgramLoadFromFile(benchmark::State& state) {
  Load(state, g_one);
}
void BM_OneProgramInterpretAndPlotToSvg(benchmark::State& state) {
  Plot(state, g_one);
}
void BM_OneProgramInterpretOnly(benchmark::State& state) {
  Interpret(state, g_one);
}
void BM_SevenHundredProgramsLoadFromFile(benchmark::State& state) {
  Load(state, g_many);
}
void BM_SevenHundredProgramsInterpretAndPlotToSvg(benchmark::State& state) {
  Plot(state, g_many);
}
void BM_SevenHundredProgramsInterpretOnly(benchmark::State& state) {
  Interpret(state, g_many);
}

#define NC_PLOT_BENCHMARK(function, repetitions) \
  BENCHMARK(function)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1)->Repetitions(repetitions)
NC_PLOT_BENCHMARK(BM_OneProgramLoadFromFile, 7);
NC_PLOT_BENCHMARK(BM_OneProgramInterpretAndPlotToSvg, 7);
NC_PLOT_BENCHMARK(BM_OneProgramInterpretOnly, 7);
NC_PLOT_BENCHMARK(BM_SevenHundredProgramsLoadFromFile, 5);
NC_PLOT_BENCHMARK(BM_SevenHundredProgramsInterpretAndPlotToSvg, 5);
NC_PLOT_BENCHMARK(BM_SevenHundredProgramsInterpretOnly, 5);

void PrintSummary(const Subject& s, const char* goal) {
  if (s.load.wall.empty() || s.plot.wall.empty() || s.segments == 0)
    return;
  std::printf("\n%s: %d lines, %ju bytes; %zu main programs plotted, %zu segments, %ju warnings\n", s.name,
              s.lines, static_cast<std::uintmax_t>(s.bytes), s.programs, s.segments,
              static_cast<std::uintmax_t>(s.warnings));
  std::printf("%-34s %10s %10s %10s %10s %10s %10s\n", "", "wall min", "wall med", "CPU min", "CPU med",
              "all min", "all med");
  auto row = [](const char* name, const Samples& v) {
    std::printf("%-34s %7.1f ms %7.1f ms %7.1f ms %7.1f ms %7.1f ms %7.1f ms\n", name, Min(v.wall) * 1e3,
                Median(v.wall) * 1e3, Min(v.cpu) * 1e3, Median(v.cpu) * 1e3, Min(v.processCpu) * 1e3,
                Median(v.processCpu) * 1e3);
  };
  row("KCC_NcFile::LoadFromFile", s.load);
  row("interpret + plot to SVG string", s.plot);
  if (!s.interpret.wall.empty())
    row("of which interpretation alone", s.interpret);
  std::printf("%-34s %10.3f %10.3f %10.3f %10.3f %10.3f %10.3f   %s\n", "ratio plot / load",
              Min(s.plot.wall) / Min(s.load.wall), Median(s.plot.wall) / Median(s.load.wall),
              Min(s.plot.cpu) / Min(s.load.cpu), Median(s.plot.cpu) / Median(s.load.cpu),
              Min(s.plot.processCpu) / Min(s.load.processCpu),
              Median(s.plot.processCpu) / Median(s.load.processCpu), goal);
  std::printf("(CPU: the measuring thread; all: every thread of the process, the helper threads included)\n");
  std::printf("SVG: %zu bytes, %.1f bytes per segment\n", s.svgBytes,
              static_cast<double>(s.svgBytes) / static_cast<double>(s.segments));
}

bool Prepare(Subject& subject, const char* name, const std::string& path, std::uint64_t bytes, int lines) {
  subject.name = name;
  subject.path = path;
  subject.bytes = bytes;
  subject.lines = lines;
  subject.loaded = std::make_unique<KCC_NcFile>();
  if (subject.loaded->LoadFromFile(path, true, false) != nullptr)
    return true;
  std::fprintf(stderr, "%s does not load: error %d\n", path.c_str(), subject.loaded->GetErrorCode());
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  g_programFile = std::make_unique<bench_nc::ProgramFile>();
  g_loadFile = std::make_unique<bench_nc::TestFile>();
  if (!Prepare(g_one, "one program", g_programFile->path, g_programFile->bytes,
               bench_nc::kProgramFileLines) ||
      !Prepare(g_many, "700 programs", g_loadFile->path, g_loadFile->bytes, bench_nc::kFileLines))
    return 1;
  if (!bench_sampling::InitializeInterleaved(argc, argv))
    return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  PrintSummary(g_one, "(goal <= 2)");
  PrintSummary(g_many, "(no goal: its arcs are inconsistent)");
  bench_sampling::PrintLoadAverage();
  g_one.loaded.reset();
  g_many.loaded.reset();
  g_loadFile.reset();
  g_programFile.reset();
  return 0;
}
