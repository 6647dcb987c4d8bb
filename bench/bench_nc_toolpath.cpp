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
// count and the bytes per segment (sizeof, and the vector's capacity per segment) are printed.
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

#include "bench_sampling.h"
#include "ncappkit/nc/KCC_NcFile.h"
#include "ncappkit/nc/KCC_NcToolPath.h"

namespace {

constexpr int kFileLines = 999000;

struct ProgramFile {
  std::filesystem::path directory;
  std::string path;
  std::uintmax_t bytes = 0;

  ProgramFile() {
    directory = std::filesystem::temp_directory_path() /
                ("ncappkit-bench-toolpath-" + std::to_string(std::random_device{}()));
    std::filesystem::create_directories(directory);
    path = (directory / "big.nc").string();
    Write();
    bytes = std::filesystem::file_size(path);
  }
  ~ProgramFile() {
    std::error_code ec;
    std::filesystem::remove_all(directory, ec);
  }
  ProgramFile(const ProgramFile&) = delete;
  ProgramFile& operator=(const ProgramFile&) = delete;

 private:
  void Write() {
    std::ofstream out(path, std::ios::binary);
    std::mt19937 random(2026);
    std::uniform_int_distribution<int> coord(-99999, 99999);
    std::uniform_int_distribution<int> kind(0, 99);
    auto num = [](int v) {
      std::string s = std::to_string(v / 1000) + "." + std::to_string(std::abs(v % 1000));
      return (v < 0 && v / 1000 == 0 ? "-" : "") + s;
    };
    out << "%\nO1000 (BIG PART)\nN10 G90 G17 G21 T1 M6\n";
    int written = 4;
    for (int n = 2; written < kFileLines - 2; ++n, ++written) {
      const int k = kind(random);
      const std::string block = "N" + std::to_string(n * 10);
      std::string line;
      if (k < 50) {
        line = block + " G01 X" + num(coord(random)) + " Y" + num(coord(random)) + (k < 5 ? " F1200" : "");
      } else if (k < 62) {
        line = block + " G01 X" + num(coord(random)) + " Y" + num(coord(random)) + " Z" +
               num(coord(random) / 10);
      } else if (k < 67) {
        line = block + " G00 X" + num(coord(random)) + " Y" + num(coord(random));
      } else if (k < 75) {
        // Radius 200: every chord of the +-100 square is shorter than 2R.
        line = block + (k < 71 ? " G02" : " G03") + " X" + num(coord(random)) + " Y" + num(coord(random)) +
               " R200.";
      } else if (k < 80) {
        line = block + " G03 I" + num(coord(random) / 10) + " J" + num(coord(random) / 10);  // a full circle
      } else if (k < 88) {
        line = "(CONTOUR " + std::to_string(n) + " FINISH)";
      } else if (k < 94) {
        line = "#" + std::to_string(100 + k) + " = " + num(coord(random)) + " (P)";
      } else {
        line = block + " M08";
      }
      out << line << '\n';
    }
    out << "M30\n%\n";
  }
};

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
  std::printf("\nfile: %d lines, %ju bytes, one program; %zu load and %zu interpret samples\n", kFileLines,
              g_file->bytes, g_load.wall.size(), g_interpret.wall.size());
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
      "segments: %zu (%ju warnings); sizeof(Segment) = %zu bytes; vector capacity %.1f bytes per segment\n",
      g_segments, static_cast<std::uintmax_t>(g_warnings), sizeof(KCC_NcToolPath::Segment),
      g_segments == 0 ? 0.0 : static_cast<double>(g_capacityBytes) / static_cast<double>(g_segments));
  if (std::FILE* f = std::fopen("/proc/loadavg", "r")) {
    char text[128] = {};
    if (std::fgets(text, sizeof text, f) != nullptr)
      std::printf("load average at the end: %s", text);
    std::fclose(f);
  }
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
  g_file = std::make_unique<ProgramFile>();
  g_loaded = std::make_unique<KCC_NcFile>();
  if (g_loaded->LoadFromFile(g_file->path, false, false) == nullptr) {
    std::fprintf(stderr, "the benchmark file does not load: error %d\n", g_loaded->GetErrorCode());
    return 1;
  }
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
