// The table a benchmark prints: every cost beside its floor, which was measured in the same run.
// Used by the native benchmarks and by those of the desktop.

#ifndef VELNOR_BENCH_TABLE_H_
#define VELNOR_BENCH_TABLE_H_

#include <optional>
#include <string>
#include <vector>

namespace velnor::bench {

// The median, the lower one of two, and the least; 0 of nothing.
double Median(const std::vector<double>& values);
double Least(const std::vector<double>& values);
// The value that 99 of 100 do not exceed; 0 of nothing.
double NinetyNinth(const std::vector<double>& values);

struct Comparison {
  std::string what;
  double measured = 0;
  double floor = 0;
  double bound = 0;  // how many times the floor is allowed; 0: shown without a bound
};

// Prints a heading and a line a comparison, `unit` behind its figures. A ratio above its bound is
// marked.
void PrintComparisons(const std::string& heading, const std::string& unit,
                      const std::vector<Comparison>& rows);

struct Growth {
  std::string what;
  std::vector<std::optional<double>> costs;  // one for each size; nothing: not measured there
};

// Prints a heading with the sizes and a line of costs for each row.
void PrintGrowth(const std::string& heading, const std::string& unit,
                 const std::vector<std::string>& sizes, const std::vector<Growth>& rows);

}  // namespace velnor::bench

#endif  // VELNOR_BENCH_TABLE_H_
