// SPDX-License-Identifier: MIT
// Memory of the NC benchmarks, measured apart from their timing: this program replaces the global operator
// new/delete with counting versions (bench_nc_alloc_counter.h), which would slow every allocation of a timed
// run. It prints
// - the peak heap (highest number of live bytes) of one KCC_NcFile::LoadFromFile of the bench_nc_load file
//   (construction, load, destruction) and of one std::getline-into-vector<string> read of it, and their
//   ratio;
// - the peak resident set growth of each side, each loading once in a child process of its own (Linux);
// - the heap allocations per block of KCC_ParseNc::DecodeISOLine over the bench_nc_decode block mix.
// It is no Google Benchmark program: each figure comes from one untimed pass.
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

#include "bench_nc_alloc_counter.h"
#include "bench_nc_blocks.h"
#include "bench_nc_load_file.h"
#include "ncappkit/nc/KCC_NcFile.h"
#include "ncappkit/nc/KCC_ParseNc.h"

namespace {

void LoadFloor(const bench_nc::TestFile& file) {
  std::ifstream in(file.path);
  std::vector<std::string> lines;
  std::string line;
  while (std::getline(in, line))
    lines.push_back(line);
  if (lines.size() != static_cast<std::size_t>(bench_nc::kFileLines))
    std::abort();
}

void LoadLibrary(const bench_nc::TestFile& file) {
  KCC_NcFile nc;
  if (nc.LoadFromFile(file.path, false, false) == nullptr ||
      nc.GetNumberOfMainPrograms() + nc.GetNumberOfSubPrograms() != file.programs)
    std::abort();
}

template <class Load>
std::size_t PeakHeap(Load load) {
  HeapCounter::ResetPeak();
  load();
  return HeapCounter::PeakAboveBaseline();
}

// A kibibyte figure of /proc/self/status ("VmRSS:", "VmHWM:"); 0 where there is none.
long StatusKiB(const char* key) {
  std::FILE* f = std::fopen("/proc/self/status", "r");
  if (f == nullptr)
    return 0;
  char text[256];
  long value = 0;
  const std::size_t keyLength = std::strlen(key);
  while (std::fgets(text, sizeof text, f) != nullptr) {
    if (std::strncmp(text, key, keyLength) == 0)
      value = std::strtol(text + keyLength, nullptr, 10);
  }
  std::fclose(f);
  return value;
}

// Growth of the resident set's high-water mark over one load, in a child process of its own so that the
// other side's pages play no part. -1 where it cannot be measured.
template <class Load>
long PeakRssGrowthKiB(Load load) {
  int pipeEnds[2];
  if (pipe(pipeEnds) != 0)
    return -1;
  const pid_t child = fork();
  if (child < 0)
    return -1;
  if (child == 0) {
    close(pipeEnds[0]);
    const long before = StatusKiB("VmRSS:");
    load();
    long growth = StatusKiB("VmHWM:") - before;
    if (write(pipeEnds[1], &growth, sizeof growth) != static_cast<ssize_t>(sizeof growth))
      _exit(1);
    _exit(0);
  }
  close(pipeEnds[1]);
  long growth = -1;
  if (read(pipeEnds[0], &growth, sizeof growth) != static_cast<ssize_t>(sizeof growth))
    growth = -1;
  close(pipeEnds[0]);
  int status = 0;
  waitpid(child, &status, 0);
  return growth;
}

}  // namespace

int main() {
  const bench_nc::TestFile file;
  std::printf("file: %d lines, %ju bytes, %d programs\n", bench_nc::kFileLines, file.bytes, file.programs);

  // The child processes come first: forked later they would start with the pages this process kept from
  // its own loads, and reuse them without growing.
  const long floorRss = PeakRssGrowthKiB([&] { LoadFloor(file); });
  const long libraryRss = PeakRssGrowthKiB([&] { LoadLibrary(file); });
  if (floorRss > 0 && libraryRss > 0) {
    std::printf("peak RSS growth (own process each): floor %8.1f MB, LoadFromFile %8.1f MB, ratio %.3f\n",
                static_cast<double>(floorRss) / 1024.0, static_cast<double>(libraryRss) / 1024.0,
                static_cast<double>(libraryRss) / static_cast<double>(floorRss));
  }

  const std::size_t floorPeak = PeakHeap([&] { LoadFloor(file); });
  const std::size_t libraryPeak = PeakHeap([&] { LoadLibrary(file); });
  std::printf(
      "peak heap  floor (getline into vector<string>) %8.1f MB, LoadFromFile %8.1f MB, ratio %.3f "
      "(goal <= 1.2)\n",
      static_cast<double>(floorPeak) / 1048576.0, static_cast<double>(libraryPeak) / 1048576.0,
      static_cast<double>(libraryPeak) / static_cast<double>(floorPeak));

  const std::vector<KCString> blocks = bench_nc::MakeBlocks();
  KCC_ParseNc parser;
  int decodedOk = 0;
  const std::size_t before = HeapCounter::Allocations();
  for (const KCString& block : blocks)
    decodedOk += parser.DecodeISOLine(block) ? 1 : 0;
  const std::size_t allocations = HeapCounter::Allocations() - before;
  std::printf("DecodeISOLine: %zu allocations for %zu blocks (%.3f per block; %d decoded whole)\n",
              allocations, blocks.size(),
              static_cast<double>(allocations) / static_cast<double>(blocks.size()), decodedOk);
  return 0;
}
