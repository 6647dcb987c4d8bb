// SPDX-License-Identifier: MIT
// Loading a large NC file with KCC_NcFile::LoadFromFile against the floor of reading the same file with
// std::getline into a std::vector<std::string>.
//
// At start-up a file of 999,000 lines (about 25 MB: programs of 1,000 lines each with number lines, moves,
// comments and parameter lines) is written into a fresh temporary directory and removed at exit. Each
// benchmark reports its time per load, throughput and, as the counter peak_heap_MB, the highest number of
// heap bytes live during one load (counted by a replaced global operator new, which also serves the
// library). After the run the ratios LoadFromFile / floor for the best time and the peak heap are printed.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "bench_nc_alloc_counter.h"
#include "ncappkit/nc/KCC_NcFile.h"

namespace fs = std::filesystem;

namespace {

constexpr int kLines = 999000;
constexpr int kLinesPerProgram = 1000;

struct Measured {
  double bestSeconds = std::numeric_limits<double>::max();
  double bestCpuSeconds = std::numeric_limits<double>::max();
  std::size_t peakBytes = 0;
};
Measured g_floor;
Measured g_library;
std::string g_path;
fs::path g_dir;
std::uintmax_t g_fileBytes = 0;

// A realistic mix of lines: mostly linear moves with two or three axes, some arcs, comments and parameter
// lines; every program starts with a number line and ends with M30 or M99.
void WriteTestFile() {
  g_dir = fs::temp_directory_path() / ("ncappkit-bench-nc-load-" + std::to_string(std::random_device{}()));
  fs::create_directories(g_dir);
  g_path = (g_dir / "big.nc").string();
  std::ofstream out(g_path, std::ios::binary);
  std::mt19937 random(2026);
  std::uniform_int_distribution<int> coord(-99999, 99999);
  std::uniform_int_distribution<int> kind(0, 99);
  auto num = [&](int v) {
    std::string s = std::to_string(v / 1000) + "." + std::to_string(std::abs(v % 1000));
    return (v < 0 && v / 1000 == 0 ? "-" : "") + s;
  };
  std::string line;
  out << "%\n";
  int written = 1;
  for (int program = 0; written < kLines; ++program) {
    out << "O" << (1000 + program) << " (PART " << program << ")\n";
    ++written;
    for (int n = 1; n < kLinesPerProgram - 1 && written < kLines - 1; ++n, ++written) {
      const int k = kind(random);
      const std::string block = "N" + std::to_string(n * 10);
      if (k < 60) {
        line = block + " G01 X" + num(coord(random)) + " Y" + num(coord(random));
      } else if (k < 75) {
        line = block + " X" + num(coord(random)) + " Y" + num(coord(random)) + " Z" + num(coord(random) / 10);
      } else if (k < 85) {
        line = block + " G02 X" + num(coord(random)) + " I" + num(coord(random) / 10);
      } else if (k < 92) {
        line = "(CONTOUR " + std::to_string(n) + " FINISH)";
      } else if (k < 97) {
        line = "#" + std::to_string(100 + k) + " = " + num(coord(random)) + " (P)";
      } else {
        line = block + " M08";
      }
      out << line << '\n';
    }
    out << (program % 3 == 2 ? "M99" : "M30") << '\n';
    ++written;
  }
  out.close();
  g_fileBytes = fs::file_size(g_path);
}

// CPU time of the calling thread: on a machine shared with other work it varies far less than wall time.
double ThreadCpuSeconds() {
  timespec ts{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
  return static_cast<double>(ts.tv_sec) + static_cast<double>(ts.tv_nsec) * 1e-9;
}

template <class Load>
void Measure(benchmark::State& state, Measured& measured, Load load) {
  for (auto _ : state) {
    HeapCounter::ResetPeak();
    const double cpuStart = ThreadCpuSeconds();
    const auto start = std::chrono::steady_clock::now();
    load();
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    measured.bestSeconds = std::min(measured.bestSeconds, seconds);
    measured.bestCpuSeconds = std::min(measured.bestCpuSeconds, ThreadCpuSeconds() - cpuStart);
    measured.peakBytes = std::max(measured.peakBytes, HeapCounter::PeakAboveBaseline());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                          static_cast<std::int64_t>(g_fileBytes));
  state.counters["peak_heap_MB"] = static_cast<double>(measured.peakBytes) / (1024.0 * 1024.0);
}

void BM_GetlineIntoVectorFloor(benchmark::State& state) {
  Measure(state, g_floor, [] {
    std::ifstream in(g_path, std::ios::binary);
    std::vector<std::string> lines;
    std::string line;
    while (std::getline(in, line))
      lines.push_back(line);
    benchmark::DoNotOptimize(lines.data());
    if (lines.size() != static_cast<std::size_t>(kLines))
      std::abort();
  });
}
BENCHMARK(BM_GetlineIntoVectorFloor)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_KccNcFileLoadFromFile(benchmark::State& state) {
  Measure(state, g_library, [] {
    KCC_NcFile file;
    KCC_NcFileProgram* last = file.LoadFromFile(g_path, false, false);
    benchmark::DoNotOptimize(last);
    if (last == nullptr ||
        file.GetNumberOfMainPrograms() + file.GetNumberOfSubPrograms() != kLines / kLinesPerProgram)
      std::abort();
  });
}
BENCHMARK(BM_KccNcFileLoadFromFile)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
  WriteTestFile();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv))
    return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  if (g_floor.peakBytes > 0 && g_library.peakBytes > 0) {
    std::cout << "\nfile: " << kLines << " lines, " << g_fileBytes << " bytes\n"
              << "floor (getline into vector<string>): best " << g_floor.bestSeconds * 1000.0 << " ms ("
              << g_fileBytes / g_floor.bestSeconds / 1e6 << " MB/s), peak heap "
              << g_floor.peakBytes / 1048576.0 << " MB\n"
              << "KCC_NcFile::LoadFromFile:            best " << g_library.bestSeconds * 1000.0 << " ms ("
              << g_fileBytes / g_library.bestSeconds / 1e6 << " MB/s), peak heap "
              << g_library.peakBytes / 1048576.0 << " MB\n"
              << "best CPU time: floor " << g_floor.bestCpuSeconds * 1000.0 << " ms, LoadFromFile "
              << g_library.bestCpuSeconds * 1000.0 << " ms\n"
              << "ratio wall time " << g_library.bestSeconds / g_floor.bestSeconds << ", ratio CPU time "
              << g_library.bestCpuSeconds / g_floor.bestCpuSeconds << " (goal <= 1.5), ratio peak heap "
              << static_cast<double>(g_library.peakBytes) / static_cast<double>(g_floor.peakBytes)
              << " (goal <= 2)\n";
  }
  std::error_code ec;
  fs::remove_all(g_dir, ec);
  return 0;
}
