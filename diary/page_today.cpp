// The first sections of the page: today, and how things stand.

#include <algorithm>
#include <array>
#include <cmath>

#include "base/number_text.h"
#include "diary/markup.h"
#include "diary/page.h"
#include "diary/weight_trend.h"

namespace velnor {
namespace {

constexpr int kTrendDays = 90;  // over which kg a week are told

struct MeterRow {
  std::string_view name;
  std::string_view unit;
  double Nutrients::*figure;
  Limit lower;
};

constexpr std::array<MeterRow, 4> kMeters = {{
    {"Energy", "kcal", &Nutrients::kcal, kCaloriesLower},
    {"Protein", "g", &Nutrients::protein, kProteinLower},
    {"Fat", "g", &Nutrients::fat, kFatLower},
    {"Carbohydrate", "g", &Nutrients::carbohydrate, kCarbohydrateLower},
}};

std::string RangeText(double lower, double upper) {
  const std::string low = NumberText(lower);
  const std::string high = NumberText(upper);
  return low == high ? low : low + " to " + high;
}

// What is left of the requirement, or how far it has been passed.
std::string LeftText(double eaten, const ValueBand& needed, std::string_view unit) {
  const std::string behind = ' ' + std::string(unit);
  if (eaten > needed.upper) return NumberText(eaten - needed.upper) + behind + " above";
  if (eaten >= needed.lower) return "enough, up to " + NumberText(needed.upper - eaten) + " left";
  return RangeText(needed.lower - eaten, needed.upper - eaten) + behind + " left";
}

std::string Percent(double share) {
  return FormatFixed(std::clamp(share, 0.0, 1.0) * 100, 1) + '%';
}

// A rail with the requirement on it and what was eaten as a bar.
std::string Meter(const MeterRow& row, double eaten, const ValueBand& needed) {
  const std::string unit(row.unit);
  std::string text = R"(<div class="meter"><div class="names"><span>)" + std::string(row.name) +
                     "</span><span><b>" + NumberText(eaten) + "</b>";
  if (!needed.IsKnown()) return text + ' ' + unit + "</span></div></div>\n";
  const double end = std::max(needed.upper * 1.25, 1.0);
  text += " of " + RangeText(needed.lower, needed.upper) + ' ' + unit +
          "</span></div><div class=\"rail\" aria-hidden=\"true\"><span class=\"need\" "
          "style=\"left:" +
          Percent(needed.lower / end) + ";right:" + Percent(1 - needed.upper / end) +
          R"("></span><span class="eaten" style="width:)" + Percent(eaten / end) +
          "\"></span></div></div>\n";
  return text;
}

std::string Tile(std::string_view what, const std::string& value, std::string_view unit,
                 const std::string& more) {
  return R"(<div class="tile"><p class="what">)" + std::string(what) + "</p><p class=\"value\">" +
         value + " <small>" + std::string(unit) + "</small></p><p class=\"more\">" + more +
         "</p></div>\n";
}

std::string MeanTile(const DiaryContent& content, int days) {
  const DayRange range = {content.today - days + 1, content.today};
  std::vector<double> values;
  for (const DayValue& value : EatenKcal(DaysOf(content.table, range))) {
    values.push_back(value.value);
  }
  const std::optional<double> mean = MeanOf(values);
  return Tile("Mean of " + std::to_string(days) + " days", mean ? NumberText(*mean) : "\u2013",
              mean ? "kcal" : "", CountText(values.size(), "day", "days") + " with foods");
}

std::string WeightTile(const DiaryContent& content) {
  const std::vector<DayValue>& shown = content.trend.empty() ? content.weights : content.trend;
  if (shown.empty()) return Tile("Weight", "\u2013", "", "none was saved yet");
  std::string more;
  const DayRange range = {content.today - kTrendDays + 1, content.today};
  if (const std::optional<TrendChange> change = ChangeWithin(content.trend, range)) {
    more = SignedNumberText(change->kilograms_a_week, 2) + " kg a week over " +
           std::to_string(kTrendDays) + " days";
  } else {
    more = "on " + DayWords(shown.back().day);
  }
  if (content.height) {
    const double index = shown.back().value / (*content.height * *content.height);
    more = "BMI " + NumberText(index, 1) + "; " + more;
  }
  return Tile(content.trend.empty() ? "Weight" : "Weight, trend", NumberText(shown.back().value, 1),
              "kg", more);
}

}  // namespace

std::string TodaySection(const DiaryContent& content) {
  const DiaryDay* const today = content.table.Find(content.today);
  const Nutrients totals = today == nullptr ? Nutrients() : today->totals;
  const ValueBand needed = content.Needed(kCaloriesLower);
  std::string text = "<section aria-labelledby=\"today\">\n<h2 id=\"today\">Today, " +
                     std::string(WeekdayWord(WeekdayOfDay(content.today))) + ' ' +
                     ShortDayWords(content.today) + "</h2>\n<div class=\"card today\">\n<div>\n" +
                     "<p class=\"big\">" + NumberText(totals.kcal) +
                     " <small>kcal eaten</small></p>\n<p class=\"soft\">";
  text += needed.IsKnown() ? LeftText(totals.kcal, needed, "kcal")
                           : "No requirement is known: it needs a complete profile, or limits.";
  text += "</p>\n<div class=\"meters\">\n";
  for (const MeterRow& row : kMeters) {
    // Without a requirement of energy none of the others is in force either.
    const ValueBand band = needed.IsKnown() ? content.Needed(row.lower) : ValueBand();
    text += Meter(row, totals.*row.figure, band);
  }
  text += "</div>\n</div>\n<div>\n";
  text += today == nullptr ? "<p class=\"soft\">Nothing was entered today yet.</p>\n"
                           : FoodsOfDay(content.table, *today);
  return text + "</div>\n</div>\n</section>\n";
}

std::string OverviewSection(const DiaryContent& content) {
  const Streak current = CurrentStreak(content.table.days, content.today);
  const Streak longest = LongestStreak(content.table.days);
  const std::string record = longest.days == 0 ? "none yet"
                                               : "longest: " + NumberText(longest.days) +
                                                     ", until " + DayWords(longest.last);
  return "<div class=\"tiles\">\n" +
         Tile("In a row with an entry", NumberText(current.days),
              current.days == 1 ? "day" : "days", record) +
         MeanTile(content, 7) + MeanTile(content, 30) + WeightTile(content) + "</div>\n";
}

}  // namespace velnor
