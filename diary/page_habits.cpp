// The section of the page on habits: weekdays compared, and the foods eaten most.

#include <algorithm>
#include <array>

#include "base/number_text.h"
#include "diary/markup.h"
#include "diary/page.h"
#include "diary/plots.h"

namespace velnor {
namespace {

constexpr std::size_t kShownFoods = 10;

std::string Weekdays(const DiaryContent& content) {
  const auto means = WeekdayMeans(content.table.days);
  std::string lead = "Mean energy of each weekday";
  if (!content.table.days.empty()) {
    lead += " since " + DayWords(content.table.days.front().day);
  }
  std::string description = lead + ':';
  for (std::size_t i = 0; i < means.size(); ++i) {
    if (means[i].days == 0) continue;
    description += ' ' + std::string(WeekdayWord(static_cast<int>(i))) + ' ' +
                   NumberText(means[i].kcal) + " kcal.";
  }
  std::string text = "<figure>\n<figcaption><h3>Weekdays</h3><p>" + lead + ".</p></figcaption>\n";
  for (const PlotShape& any_shape : kPlotShapes) {
    const PlotShape shape = WithoutRightAxis(any_shape);
    text += DrawWeekdayPlot(
        shape, {.id = "weekdays", .title = "Weekdays compared", .description = description}, means,
        content.Needed(kCaloriesLower));
  }
  return text + "</figure>\n";
}

struct RankRow {
  std::string_view name;
  std::string value;
  double share;  // of the first
};

std::string Rank(std::string_view title, std::string_view note, std::span<const RankRow> rows) {
  std::string text = "<div class=\"card\"><h3>" + std::string(title) + "</h3><p class=\"soft\">" +
                     std::string(note) + "</p>\n<ol class=\"rank\">\n";
  for (const RankRow& row : rows) {
    text += "<li><span>" + EscapedText(row.name, kShownName) + "</span><span>" + row.value +
            "</span><span class=\"rail\" aria-hidden=\"true\"><span class=\"eaten\" "
            "style=\"width:" +
            FormatFixed(std::clamp(row.share, 0.0, 1.0) * 100, 1) + "%\"></span></span></li>\n";
  }
  return text + "</ol></div>\n";
}

std::string Foods(const DiaryContent& content) {
  const std::vector<EatenFood> by_energy = MostEatenByEnergy(content.table, kShownFoods);
  const std::vector<EatenFood> by_times = MostEatenByTimes(content.table, kShownFoods);
  if (by_energy.empty()) return {};
  std::vector<RankRow> energy;
  for (const EatenFood& food : by_energy) {
    const double most = std::max(by_energy.front().kcal, 1.0);
    energy.push_back({food.name, NumberText(food.kcal) + " kcal", food.kcal / most});
  }
  std::vector<RankRow> times;
  times.reserve(by_times.size());
  for (const EatenFood& food : by_times) {
    times.push_back({food.name, CountText(static_cast<std::size_t>(food.times), "time", "times"),
                     static_cast<double>(food.times) / by_times.front().times});
  }
  return "<div class=\"pair\">\n" +
         Rank("Most energy", "What the most calories came from", energy) +
         Rank("Most often", "What was eaten the most times", times) + "</div>\n";
}

}  // namespace

std::string HabitsSection(const DiaryContent& content) {
  return "<section aria-labelledby=\"habits\">\n<h2 id=\"habits\">Habits</h2>\n" +
         Weekdays(content) + Foods(content) + "</section>\n";
}

}  // namespace velnor
