// What the files of a day cost, beside bare calls on the same bytes. Used by the native benchmarks.

#ifndef VELNOR_BENCH_FILE_BENCH_H_
#define VELNOR_BENCH_FILE_BENCH_H_

#include <vector>

#include "bench/table.h"

namespace velnor::bench {

// In microseconds. Throws std::runtime_error when something cannot be written.
std::vector<Comparison> CompareFileWork();
// The same work with one day in the chart, and with twenty.
std::vector<Growth> GrowFileWork();

}  // namespace velnor::bench

#endif  // VELNOR_BENCH_FILE_BENCH_H_
