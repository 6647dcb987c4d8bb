// SPDX-License-Identifier: MIT
// Loading a large NC file with KCC_NcFile::LoadFromFile against the floor of reading the same file with
// std::getline into a std::vector<std::string>, both timed in this process and run.
//
// The file (bench_nc_load_file.h: 999,000 lines, about 25 MB, 700 programs of 1,427 lines) is written at
// start-up and removed at exit. One load is one sample: construction, load and destruction of the
// KCC_NcFile (of the vector for the floor) are all inside it, and so is merging the blocks it freed into the
// allocator's free lists (MergeFreedMemory), so that each sample pays for its own garbage and for no other.
// Both benchmarks run 15 repetitions of one load each, interleaved in random order so that a busy phase of
// the machine hits both sides alike. After the run the minimum and the median of the samples and the ratios
// LoadFromFile / floor are printed, for wall and thread CPU time.
//
// This binary uses the ordinary allocator: the peak heap of both sides is measured by bench_nc_memory, a
// separate program whose counting allocator would otherwise slow every allocation timed here.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "bench_nc_load_file.h"
#include "bench_sampling.h"
#include "ncappkit/nc/KCC_NcFile.h"

namespace {

std::unique_ptr<bench_nc::TestFile> g_file;

using bench_sampling::Measure;
using bench_sampling::Median;
using bench_sampling::Min;
using bench_sampling::Samples;

Samples g_floor;
Samples g_library;

void BM_GetlineIntoVectorFloor(benchmark::State& state) {
  Measure(state, g_floor, g_file->bytes, [] {
    std::ifstream in(g_file->path);
    std::vector<std::string> lines;
    std::string line;
    while (std::getline(in, line))
      lines.push_back(line);
    benchmark::DoNotOptimize(lines.data());
    if (lines.size() != static_cast<std::size_t>(bench_nc::kFileLines))
      std::abort();
  });
}
BENCHMARK(BM_GetlineIntoVectorFloor)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(1)
    ->Repetitions(15);

void BM_KccNcFileLoadFromFile(benchmark::State& state) {
  Measure(state, g_library, g_file->bytes, [] {
    KCC_NcFile file;
    KCC_NcFileProgram* last = file.LoadFromFile(g_file->path, false, false);
    benchmark::DoNotOptimize(last);
    if (last == nullptr || file.GetNumberOfMainPrograms() + file.GetNumberOfSubPrograms() != g_file->programs)
      std::abort();
  });
}
BENCHMARK(BM_KccNcFileLoadFromFile)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(1)
    ->Repetitions(15);

void PrintSummary() {
  if (g_floor.wall.empty() || g_library.wall.empty())
    return;
  std::printf("\nfile: %d lines, %ju bytes, %d programs; %zu floor and %zu library samples\n",
              bench_nc::kFileLines, g_file->bytes, g_file->programs, g_floor.wall.size(),
              g_library.wall.size());
  std::printf("%-36s %10s %10s %10s %10s\n", "", "wall min", "wall med", "CPU min", "CPU med");
  auto row = [](const char* name, const Samples& s) {
    std::printf("%-36s %7.1f ms %7.1f ms %7.1f ms %7.1f ms\n", name, Min(s.wall) * 1e3, Median(s.wall) * 1e3,
                Min(s.cpu) * 1e3, Median(s.cpu) * 1e3);
  };
  row("getline into vector<string> (floor)", g_floor);
  row("KCC_NcFile::LoadFromFile", g_library);
  std::printf("%-36s %10.3f %10.3f %10.3f %10.3f   (goal <= 1.0)\n", "ratio LoadFromFile / floor",
              Min(g_library.wall) / Min(g_floor.wall), Median(g_library.wall) / Median(g_floor.wall),
              Min(g_library.cpu) / Min(g_floor.cpu), Median(g_library.cpu) / Median(g_floor.cpu));
  bench_sampling::PrintLoadAverage();
}

}  // namespace

int main(int argc, char** argv) {
  g_file = std::make_unique<bench_nc::TestFile>();
  if (!bench_sampling::InitializeInterleaved(argc, argv))
    return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  PrintSummary();
  g_file.reset();
  return 0;
}
