#include "fuzz/day.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

#include "base/number_text.h"
#include "base/text_file.h"

namespace velnor {
namespace {

constexpr int kOpenCounter = 231;
constexpr int kList = 134;

void RequireFigure(std::string_view text) {
  const double figure = ParseNumber(text);
  Require(figure != 0 || !std::signbit(figure), "nothing has no sign");
  Require(FormatNumber(figure, 8) == text || text == "0", "a stored figure is a number");
}

}  // namespace

void EatStrawberries(ProgramRun& run) {
  run.Open(kOpenCounter);
  run.form().Choose(124, "fruits");
  run.form().Choose(125, "frozen");
  run.form().Choose(126, "frozen strawberries");
  run.form().SetText(128, "250");
  run.Press(127);
}

void TakeOffFirst(ProgramRun& run) {
  run.Open(kOpenCounter);
  run.form().Choose(kList, run.form().ItemText(kList, 0));
  run.Press(136);
}

void RequireSoundDay(const ProgramRun& run) {
  const std::string balance = run.Read("Ann/bilans.ASC");
  LineReader lines(balance, balance.size() + 1);
  Require(lines.Next() == kTestDate, "the balance is of today");
  int figures = 0;
  for (; const auto line = lines.Next(); ++figures) RequireFigure(*line);
  Require(figures == 0 || figures == 4, "the balance has four figures or none");
  for (const char* const file : {"Ann/z1.ASC", "Ann/z2.ASC"}) {
    const std::string exchange = run.Read(file);
    if (!exchange.empty()) RequireFigure(exchange);
  }
}

bool AgreeAsStored(double one, double other) {
  constexpr double kRelative = 1e-6;
  constexpr double kRest = 1e-3;  // what is smaller is not kept when something is taken off
  return one == other ||
         std::abs(one - other) <= kRest + kRelative * std::max(std::abs(one), std::abs(other));
}

}  // namespace velnor
