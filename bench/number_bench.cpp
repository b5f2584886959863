// Numbers as text.

#include <array>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <string>

#include "base/number_text.h"

namespace velnor::bench {
namespace {

// Figures as they come up: weights, amounts scaled in single precision, totals, ratios, none, a
// rest of rounding.
constexpr std::array kFigures = {100.0,   28.0,    0.7,       static_cast<double>(98.7F * 1.3F),
                                 5.4,     1.06061, 2345.6789, static_cast<double>(1.0F / 3.0F),
                                 0.0,     -12.25,  45.32 * 3, 263.0,
                                 1.2e-05, 1.0e6,   0.05,      1234567.8};

void Format(benchmark::State& state) {
  const auto digits = static_cast<int>(state.range(0));
  for (auto _ : state) {
    for (const double figure : kFigures) {
      benchmark::DoNotOptimize(FormatNumber(figure, digits));
    }
  }
}

void FormatFloor(benchmark::State& state) {
  const auto digits = static_cast<int>(state.range(0));
  for (auto _ : state) {
    for (const double figure : kFigures) {
      std::array<char, 32> text;
      std::snprintf(text.data(), text.size(), "%.*g", digits, figure);
      benchmark::DoNotOptimize(text);
    }
  }
}

BENCHMARK(Format)->Arg(6)->Arg(8);
BENCHMARK(FormatFloor)->Arg(6)->Arg(8);

}  // namespace
}  // namespace velnor::bench
