// SPDX-License-Identifier: MIT
// Timing helpers shared by the benchmarks that compare two sides in one process: each sample's wall, thread
// CPU and process CPU time, the allocator clean-up every sample pays for itself, and the minimum and median.
//
//   bench_sampling::Samples g_library;
//   void BM_Load(benchmark::State& state) {
//     bench_sampling::Measure(state, g_library, fileBytes, [] { /* one load */ });
//   }
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

namespace bench_sampling {

/// Wall, thread CPU and process CPU seconds of every sample of one side. The process time counts the
/// threads a side starts besides the measuring one; it equals the thread time for a side that starts none.
struct Samples {
  std::vector<double> wall;
  std::vector<double> cpu;
  std::vector<double> processCpu;
};

// CPU time of the calling thread: on a machine shared with other work it varies less than wall time.
inline double ThreadCpuSeconds() {
  timespec ts{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
  return static_cast<double>(ts.tv_sec) + static_cast<double>(ts.tv_nsec) * 1e-9;
}

// CPU time of all threads of the process.
inline double ProcessCpuSeconds() {
  timespec ts{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &ts);
  return static_cast<double>(ts.tv_sec) + static_cast<double>(ts.tv_nsec) * 1e-9;
}

// Merges the small blocks a sample freed into the allocator's free lists, so that no sample pays for the
// garbage of the one before it, which may be of the other side. glibc keeps freed small blocks unmerged until
// the next request for a large block; a side whose own frees end with a large block pays that merge itself,
// one whose frees do not leaves it to whichever sample comes next. Each sample ends with this request, inside
// its timed region: every side pays for merging its own garbage and only for that.
inline void MergeFreedMemory() {
  void* large = std::malloc(std::size_t{1} << 12);
  benchmark::DoNotOptimize(large);
  std::free(large);
}

// Runs `work` once per iteration as one sample (MergeFreedMemory included) and records its times; each
// sample counts `bytesPerSample` bytes processed.
template <class Work>
void Measure(benchmark::State& state, Samples& samples, std::uint64_t bytesPerSample, Work work) {
  for (auto _ : state) {
    const double cpuStart = ThreadCpuSeconds();
    const double processStart = ProcessCpuSeconds();
    const auto start = std::chrono::steady_clock::now();
    work();
    MergeFreedMemory();
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    samples.wall.push_back(seconds);
    samples.cpu.push_back(ThreadCpuSeconds() - cpuStart);
    samples.processCpu.push_back(ProcessCpuSeconds() - processStart);
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                          static_cast<std::int64_t>(bytesPerSample));
}

inline double Min(const std::vector<double>& v) {
  return v.empty() ? 0.0 : *std::min_element(v.begin(), v.end());
}

inline double Median(std::vector<double> v) {
  if (v.empty())
    return 0.0;
  std::sort(v.begin(), v.end());
  const std::size_t h = v.size() / 2;
  return v.size() % 2 == 1 ? v[h] : (v[h - 1] + v[h]) / 2.0;
}

// Initialises Google Benchmark with the sides run in random interleaved order, unless the command line sets
// --benchmark_enable_random_interleaving itself. False (the unknown arguments reported) when the command
// line holds arguments Google Benchmark does not know.
inline bool InitializeInterleaved(int argc, char** argv) {
  static std::vector<char*> args;
  static std::string interleave = "--benchmark_enable_random_interleaving=true";
  args.assign(argv, argv + argc);
  if (std::none_of(args.begin(), args.end(), [](const char* a) {
        return std::string(a).rfind("--benchmark_enable_random_interleaving", 0) == 0;
      }))
    args.insert(args.begin() + 1, interleave.data());
  int count = static_cast<int>(args.size());
  benchmark::Initialize(&count, args.data());
  return !benchmark::ReportUnrecognizedArguments(count, args.data());
}

// Prints the system's load average, to judge how quiet the machine was during the run (Linux only).
inline void PrintLoadAverage() {
  if (std::FILE* f = std::fopen("/proc/loadavg", "r")) {
    char text[128] = {};
    if (std::fgets(text, sizeof text, f) != nullptr)
      std::printf("load average at the end: %s", text);
    std::fclose(f);
  }
}

}  // namespace bench_sampling
