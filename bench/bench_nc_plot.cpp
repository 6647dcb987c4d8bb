// SPDX-License-Identifier: MIT
// Plotting a large NC file against loading it: KCC_NcFile::LoadFromFile of the 999,000-line file of the
// load benchmarks (bench_nc_load_file.h) against interpreting every main program of the loaded file with
// KCC_NcToolPath and drawing the result as an SVG text with nckit plot's drawing code (NckitPlot.cpp), both
// timed in this process and run.
//
// One sample is one load, or one interpretation and picture of the file loaded once at start-up (the load
// is not part of the plot side); the interpretation alone is timed as a third side, to show its share. Each
// runs 7 repetitions of one sample, interleaved in random order. After the run the minimum and the median
// of the samples, the ratio plot / load (goal <= 2) and the size of the picture per segment drawn (goal <=
// 64 bytes) are printed.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "NckitPlot.h"
#include "bench_nc_load_file.h"
#include "bench_sampling.h"
#include "ncappkit/nc/KCC_NcFile.h"
#include "ncappkit/nc/KCC_NcFileProgram.h"
#include "ncappkit/nc/KCC_NcToolPath.h"

namespace {

std::unique_ptr<bench_nc::TestFile> g_file;
std::unique_ptr<KCC_NcFile> g_loaded;

std::vector<double> g_loadSeconds;
std::vector<double> g_plotSeconds;
std::vector<double> g_interpretSeconds;
std::size_t g_svgBytes = 0;
std::size_t g_segments = 0;
std::size_t g_programs = 0;

// Interpret every main program (each starting where the one before ended, as nckit plot --all does) and
// draw them; returns the picture.
std::string InterpretAndPlot(std::size_t& segments, std::size_t& programs, bool plot = true) {
  KCC_NcFile& file = *g_loaded;
  std::vector<std::unique_ptr<KCC_NcToolPath>> paths;
  std::vector<PlotProgram> drawn;
  double start[3] = {0.0, 0.0, 0.0};
  segments = 0;
  for (int i = 0; i < file.GetNumberOfMainPrograms(); ++i) {
    KCC_NcFileProgram* program = file.GetMainProgList().GetProgram(i);
    auto path = std::make_unique<KCC_NcToolPath>();
    path->SetMaxSegments(kPlotMaxSegments - segments);
    path->SetStartPoint(start[0], start[1], start[2]);
    path->Interpret(file, *program);
    if (!path->IsComplete())
      std::abort();
    segments += path->GetSegmentCount();
    if (!path->GetSegments().empty()) {
      for (int a = 0; a < 3; ++a)
        start[a] = static_cast<double>(path->GetSegments().back().end[a]);
    }
    drawn.push_back({program, path.get()});
    paths.push_back(std::move(path));
  }
  programs = drawn.size();
  if (!plot)
    return std::string();
  return PlotToSvg(g_file->path, drawn, PlotOptions());
}

template <class Work>
void Measure(benchmark::State& state, std::vector<double>& samples, Work work) {
  for (auto _ : state) {
    const auto start = std::chrono::steady_clock::now();
    work();
    samples.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
  }
}

void BM_KccNcFileLoadFromFile(benchmark::State& state) {
  Measure(state, g_loadSeconds, [] {
    KCC_NcFile file;
    KCC_NcFileProgram* last = file.LoadFromFile(g_file->path, true, false);
    benchmark::DoNotOptimize(last);
    if (last == nullptr)
      std::abort();
  });
}
BENCHMARK(BM_KccNcFileLoadFromFile)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(1)
    ->Repetitions(7);

void BM_InterpretAndPlotToSvg(benchmark::State& state) {
  Measure(state, g_plotSeconds, [] {
    std::size_t segments = 0;
    std::size_t programs = 0;
    const std::string svg = InterpretAndPlot(segments, programs);
    benchmark::DoNotOptimize(svg.data());
    g_svgBytes = svg.size();
    g_segments = segments;
    g_programs = programs;
  });
}
BENCHMARK(BM_InterpretAndPlotToSvg)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(1)
    ->Repetitions(7);

// The interpretation alone, to tell its share of the plot side.
void BM_InterpretOnly(benchmark::State& state) {
  Measure(state, g_interpretSeconds, [] {
    std::size_t segments = 0;
    std::size_t programs = 0;
    InterpretAndPlot(segments, programs, false);
    benchmark::DoNotOptimize(segments);
  });
}
BENCHMARK(BM_InterpretOnly)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1)->Repetitions(7);

using bench_sampling::Median;
using bench_sampling::Min;

void PrintSummary() {
  if (g_loadSeconds.empty() || g_plotSeconds.empty() || g_segments == 0)
    return;
  std::printf("\nfile: %d lines, %ju bytes; %zu main programs plotted, %zu segments\n", bench_nc::kFileLines,
              g_file->bytes, g_programs, g_segments);
  std::printf("%-34s %10s %10s\n", "", "wall min", "wall med");
  std::printf("%-34s %7.1f ms %7.1f ms\n", "KCC_NcFile::LoadFromFile", Min(g_loadSeconds) * 1e3,
              Median(g_loadSeconds) * 1e3);
  std::printf("%-34s %7.1f ms %7.1f ms\n", "interpret + plot to SVG string", Min(g_plotSeconds) * 1e3,
              Median(g_plotSeconds) * 1e3);
  std::printf("%-34s %7.1f ms %7.1f ms\n", "of which interpretation alone", Min(g_interpretSeconds) * 1e3,
              Median(g_interpretSeconds) * 1e3);
  std::printf("%-34s %10.3f %10.3f   (goal <= 2)\n", "ratio plot / load",
              Min(g_plotSeconds) / Min(g_loadSeconds), Median(g_plotSeconds) / Median(g_loadSeconds));
  std::printf("SVG: %zu bytes, %.1f bytes per segment (goal <= 64)\n", g_svgBytes,
              static_cast<double>(g_svgBytes) / static_cast<double>(g_segments));
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<char*> args(argv, argv + argc);
  std::string interleave = "--benchmark_enable_random_interleaving=true";
  if (std::none_of(args.begin(), args.end(), [](const char* a) {
        return std::string(a).rfind("--benchmark_enable_random_interleaving", 0) == 0;
      }))
    args.insert(args.begin() + 1, interleave.data());
  int count = static_cast<int>(args.size());
  g_file = std::make_unique<bench_nc::TestFile>();
  g_loaded = std::make_unique<KCC_NcFile>();
  if (g_loaded->LoadFromFile(g_file->path, true, false) == nullptr)
    return 1;
  benchmark::Initialize(&count, args.data());
  if (benchmark::ReportUnrecognizedArguments(count, args.data()))
    return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  PrintSummary();
  g_loaded.reset();
  g_file.reset();
  return 0;
}
