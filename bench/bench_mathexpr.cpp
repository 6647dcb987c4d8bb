// SPDX-License-Identifier: MIT
// Parse + evaluate of typed-in expressions with a silent reporter, and the same expressions in muparser (a
// reused parser, SetExpr + Eval) for reference when it is available.
//
// Our evaluator builds and reports the text of every intermediate list, so the reporting is most of its
// cost; the benchmark keeps an eye on it. Compare the pairs BM_Ours/<n> and BM_MuParser/<n>.
#include <benchmark/benchmark.h>

#include <string>

#include "ncappkit/foundation/KCC_MessageReporter.h"
#include "ncappkit/mathexpr/KCC_MathExpression.h"

#if defined(NCAPPKIT_BENCH_HAVE_MUPARSER)
#include <muParser.h>
#endif

namespace {

std::string SumOf40Terms() {
  std::string text = "1";
  for (int i = 2; i <= 40; ++i)
    text += "+" + std::to_string(i);
  return text;
}

// Each case in our syntax and in muparser's (which has lower-case functions and round brackets only).
struct Case {
  const char* name;
  std::string ours;
  std::string muparser;
};

const Case& CaseAt(int index) {
  static const Case cases[] = {
      {"nested brackets", "2*(3+(4-1))", "2*(3+(4-1))"},
      {"functions", "sqrt(16)+Cos[0]", "sqrt(16)+cos(0)"},
      {"40-term sum", SumOf40Terms(), SumOf40Terms()},
  };
  return cases[index];
}

void BM_Ours(benchmark::State& state) {
  const Case& c = CaseAt(static_cast<int>(state.range(0)));
  state.SetLabel(c.name);
  const KCString text(c.ours);
  KCC_MessageNone quiet;
  KCC_MathExpression expr(quiet);
  double value = 0.0;
  for (auto _ : state) {
    if (!expr.ParseMathExpression(text) || !expr.DoMathExpression(value)) {
      state.SkipWithError("evaluation failed");
      break;
    }
    benchmark::DoNotOptimize(value);
  }
}
BENCHMARK(BM_Ours)->DenseRange(0, 2);

#if defined(NCAPPKIT_BENCH_HAVE_MUPARSER)
void BM_MuParser(benchmark::State& state) {
  const Case& c = CaseAt(static_cast<int>(state.range(0)));
  state.SetLabel(c.name);
  mu::Parser parser;
  double value = 0.0;
  for (auto _ : state) {
    parser.SetExpr(c.muparser);
    value = parser.Eval();
    benchmark::DoNotOptimize(value);
  }
}
BENCHMARK(BM_MuParser)->DenseRange(0, 2);
#endif

}  // namespace

BENCHMARK_MAIN();
