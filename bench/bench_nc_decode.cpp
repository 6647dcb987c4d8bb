// SPDX-License-Identifier: MIT
// Decoding NC blocks with KCC_ParseNc::DecodeISOLine on a realistic mix of blocks (bench_nc_blocks.h).
// Reports blocks per second (items_per_second). Heap allocations per block are counted by bench_nc_memory,
// in an untimed pass with its counting allocator; this binary uses the ordinary one.
#include <benchmark/benchmark.h>

#include <vector>

#include "bench_nc_blocks.h"
#include "ncappkit/nc/KCC_ParseNc.h"

namespace {

void BM_DecodeISOLine(benchmark::State& state) {
  const std::vector<KCString> blocks = bench_nc::MakeBlocks();
  KCC_ParseNc parser;
  std::size_t decoded = 0;
  for (auto _ : state) {
    for (const KCString& block : blocks) {
      benchmark::DoNotOptimize(parser.DecodeISOLine(block));
      double x = 0.0;
      benchmark::DoNotOptimize(parser.GetXCommand(x));
    }
    decoded += blocks.size();
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(decoded));
}
BENCHMARK(BM_DecodeISOLine);

}  // namespace

BENCHMARK_MAIN();
