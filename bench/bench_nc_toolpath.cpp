// SPDX-License-Identifier: MIT
// Interpreting a large NC program with KCC_NcToolPath against loading the same file with
// KCC_NcFile::LoadFromFile, both timed in this process and run.
//
// The file (999,000 lines, one program) is written at start-up and removed at exit: a number line, then
// mostly straight moves in two or three axes, some rapids, arcs by radius and full circles by centre,
// comments, parameter lines and M codes, and M30. One sample of the load side is construction,
// LoadFromFile and destruction of a KCC_NcFile; one sample of the interpret side is construction, Interpret
// and destruction of a KCC_NcToolPath on the file loaded once before. Both end with merging the freed
// blocks (see bench_nc_load.cpp), run 15 repetitions of one sample each, interleaved in random order. After
// the run the minimum and the median of the samples, the ratio interpret / load (goal <= 2), the segment
// count and the bytes per segment (sizeof, and the segment list's capacity per segment) are printed.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "bench_nc_program_file.h"
#include "bench_sampling.h"
#include "ncappkit/nc/KCC_NcFile.h"
#include "ncappkit/nc/KCC_NcToolPath.h"

namespace {

using bench_nc::kProgramFileLines;
using bench_nc::ProgramFile;

std::unique_ptr<ProgramFile> g_file;
std::unique_ptr<KCC_NcFile> g_loaded;
std::size_t g_segments = 0;
std::size_t g_capacityBytes = 0;
std::uint64_t g_warnings = 0;

using bench_sampling::Measure;
using bench_sampling::Median;
using bench_sampling::Min;
using bench_sampling::Samples;

Samples g_load;
Samples g_interpret;

void BM_KccNcFileLoadFromFile(benchmark::State& state) {
  Measure(state, g_load, g_file->bytes, [] {
    KCC_NcFile file;
    KCC_NcFileProgram* last = file.LoadFromFile(g_file->path, false, false);
    benchmark::DoNotOptimize(last);
    if (last == nullptr || file.GetNumberOfMainPrograms() != 1)
      std::abort();
  });
}
BENCHMARK(BM_KccNcFileLoadFromFile)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(1)
    ->Repetitions(15);

void BM_KccNcToolPathInterpret(benchmark::State& state) {
  Measure(state, g_interpret, g_file->bytes, [] {
    KCC_NcToolPath path;
    path.Interpret(*g_loaded, *g_loaded->GetMainProgList().GetProgram(0));
    if (!path.IsComplete() || path.GetSegmentCount() == 0)
      std::abort();
    g_segments = path.GetSegmentCount();
    g_capacityBytes = path.GetSegments().capacity() * sizeof(KCC_NcToolPath::Segment);
    g_warnings = path.GetWarningCount();
    benchmark::DoNotOptimize(path.GetSegments().data());
  });
}
BENCHMARK(BM_KccNcToolPathInterpret)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(1)
    ->Repetitions(15);

void PrintSummary() {
  if (g_load.wall.empty() || g_interpret.wall.empty())
    return;
  std::printf("\nfile: %d lines, %ju bytes, one program; %zu load and %zu interpret samples\n",
              kProgramFileLines, g_file->bytes, g_load.wall.size(), g_interpret.wall.size());
  std::printf("%-36s %10s %10s %10s %10s\n", "", "wall min", "wall med", "CPU min", "CPU med");
  auto row = [](const char* name, const Samples& s) {
    std::printf("%-36s %7.1f ms %7.1f ms %7.1f ms %7.1f ms\n", name, Min(s.wall) * 1e3, Median(s.wall) * 1e3,
                Min(s.cpu) * 1e3, Median(s.cpu) * 1e3);
  };
  row("KCC_NcFile::LoadFromFile", g_load);
  row("KCC_NcToolPath::Interpret", g_interpret);
  std::printf("%-36s %10.3f %10.3f %10.3f %10.3f   (goal <= 2.0)\n", "ratio Interpret / LoadFromFile",
              Min(g_interpret.wall) / Min(g_load.wall), Median(g_interpret.wall) / Median(g_load.wall),
              Min(g_interpret.cpu) / Min(g_load.cpu), Median(g_interpret.cpu) / Median(g_load.cpu));
  std::printf(
      "segments: %zu (%ju warnings); sizeof(Segment) = %zu bytes; list capacity %.1f bytes per segment\n",
      g_segments, static_cast<std::uintmax_t>(g_warnings), sizeof(KCC_NcToolPath::Segment),
      g_segments == 0 ? 0.0 : static_cast<double>(g_capacityBytes) / static_cast<double>(g_segments));
  bench_sampling::PrintLoadAverage();
}

}  // namespace

int main(int argc, char** argv) {
  g_file = std::make_unique<ProgramFile>();
  g_loaded = std::make_unique<KCC_NcFile>();
  if (g_loaded->LoadFromFile(g_file->path, false, false) == nullptr) {
    std::fprintf(stderr, "the benchmark file does not load: error %d\n", g_loaded->GetErrorCode());
    return 1;
  }
  if (!bench_sampling::InitializeInterleaved(argc, argv))
    return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  PrintSummary();
  g_loaded.reset();
  g_file.reset();
  return 0;
}
