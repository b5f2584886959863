#include "bench/table.h"

#include <algorithm>
#include <cstdio>

namespace velnor::bench {
namespace {

constexpr int kNameWidth = 46;
constexpr int kFigureWidth = 12;

// Enough digits to compare by, whatever the magnitude.
std::string Figure(double value) {
  char text[32];
  std::snprintf(text, sizeof text, value < 100 ? "%.2f" : "%.0f", value);
  return text;
}

void PrintName(const std::string& name) { std::printf("%-*s", kNameWidth, name.c_str()); }

void PrintCell(const std::string& text) { std::printf("%*s", kFigureWidth, text.c_str()); }

}  // namespace

double Median(const std::vector<double>& values) {
  if (values.empty()) return 0;
  std::vector<double> sorted = values;
  std::ranges::sort(sorted);
  return sorted[(sorted.size() - 1) / 2];
}

double Least(const std::vector<double>& values) {
  return values.empty() ? 0 : *std::ranges::min_element(values);
}

double NinetyNinth(const std::vector<double>& values) {
  if (values.empty()) return 0;
  std::vector<double> sorted = values;
  std::ranges::sort(sorted);
  return sorted[(sorted.size() * 99 + 99) / 100 - 1];
}

void PrintComparisons(const std::string& heading, const std::string& unit,
                      const std::vector<Comparison>& rows) {
  std::printf("\n");
  PrintName(heading);
  for (const char* const column : {"measured", "floor", "ratio", "bound"}) PrintCell(column);
  std::printf("\n");
  for (const Comparison& row : rows) {
    const double ratio = row.floor > 0 ? row.measured / row.floor : 0;
    PrintName(row.what);
    PrintCell(Figure(row.measured) + ' ' + unit);
    PrintCell(Figure(row.floor) + ' ' + unit);
    PrintCell(Figure(ratio));
    PrintCell(row.bound > 0 ? Figure(row.bound) : "-");
    std::printf("%s\n", row.bound > 0 && ratio > row.bound ? "  MISSED" : "");
  }
}

void PrintGrowth(const std::string& heading, const std::string& unit,
                 const std::vector<std::string>& sizes, const std::vector<Growth>& rows) {
  std::printf("\n");
  PrintName(heading);
  for (const std::string& size : sizes) PrintCell(size);
  std::printf("\n");
  for (const Growth& row : rows) {
    PrintName(row.what);
    for (const std::optional<double>& cost : row.costs) {
      PrintCell(cost ? Figure(*cost) + ' ' + unit : "");
    }
    std::printf("\n");
  }
}

}  // namespace velnor::bench
