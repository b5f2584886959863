// The last section of the page: every day with its foods folded under it, and older months.

#include <algorithm>
#include <iterator>

#include "diary/markup.h"
#include "diary/page.h"
#include "users/user_files.h"

namespace velnor {
namespace {

constexpr std::string_view kDash = "\u2013";

std::string Cell(const std::string& text, std::string_view css_class = "") {
  if (css_class.empty()) return "<td>" + text + "</td>";
  return "<td class=\"" + std::string(css_class) + "\">" + text + "</td>";
}

std::string Figure(const std::optional<double>& figure, int decimals) {
  return figure ? NumberText(*figure, decimals) : std::string();
}

std::string_view HourAndMinute(const HistoryEntry& entry) {
  const std::string_view time = entry.time;
  return time.substr(0, 5);
}

// A line without a product says what it was: "day cleared", or "imported" for a whole day.
std::string NameOf(const HistoryEntry& entry) {
  if (entry.kind == HistoryKind::kFood) return EscapedText(entry.name, kShownName);
  std::string name(HistoryWord(entry.kind));
  if (!entry.name.empty()) name += ": " + EscapedText(entry.name, kShownName);
  return name;
}

std::string FoodRow(const HistoryEntry& entry) {
  std::string amount = Figure(entry.amount, 0);
  if (!amount.empty() && !entry.unit.empty()) amount += ' ' + EscapedText(entry.unit, 5);
  return "<tr>" + Cell(std::string(HourAndMinute(entry)), "time") + Cell(NameOf(entry), "name") +
         Cell(amount) + Cell(Figure(entry.kcal, 0)) +
         Cell(Figure(entry.protein, 1), "grams-column") +
         Cell(Figure(entry.fat, 1), "grams-column") +
         Cell(Figure(entry.carbohydrate, 1), "grams-column") + "</tr>\n";
}

constexpr std::string_view kFoodsHead =
    "<table><thead><tr><th scope=\"col\">Time</th><th scope=\"col\" class=\"name\">Food</th>"
    "<th scope=\"col\">Amount</th><th scope=\"col\">kcal</th>"
    "<th scope=\"col\" class=\"grams-column\"><abbr title=\"protein, g\">P</abbr></th>"
    "<th scope=\"col\" class=\"grams-column\"><abbr title=\"fat, g\">F</abbr></th>"
    "<th scope=\"col\" class=\"grams-column\"><abbr title=\"carbohydrate, g\">C</abbr></th>"
    "</tr></thead><tbody>\n";

// What was burned or measured.
std::string DeedRow(const HistoryEntry& entry) {
  std::string text;
  if (entry.kind == HistoryKind::kBurned || entry.kind == HistoryKind::kBurnedCleared) {
    text = NameOf(entry) + ", " + NumberText(entry.kcal.value_or(0)) + " kcal";
  } else {
    const bool is_weight = entry.kind == HistoryKind::kWeight;
    text = NameOf(entry) + ' ' + Figure(entry.amount, is_weight ? 1 : 2) + (is_weight ? " kg" : "");
  }
  return "<li>" + std::string(HourAndMinute(entry)) + ' ' + text + "</li>\n";
}

std::string More(std::size_t count) {
  return "<li>and " + NumberText(static_cast<double>(count)) + " more, in " +
         std::string(kDiaryDeedsFile) + "</li>\n";
}

std::string GramsText(const Nutrients& amounts) {
  return "P " + NumberText(amounts.protein) + " \u00B7 F " + NumberText(amounts.fat) +
         " \u00B7 C " + NumberText(amounts.carbohydrate) + " g";
}

std::string Span(std::string_view css_class, const std::string& text) {
  return "<span class=\"" + std::string(css_class) + "\">" + text + "</span>";
}

std::string DayRow(const DayTable& table, const DiaryDay& day) {
  const bool eaten = IsEatenDay(day);
  const std::string energy = eaten ? NumberText(day.totals.kcal) + " kcal" : std::string(kDash);
  const CalendarDate date = DateOfDay(day.day);
  const std::string name = std::string(WeekdayWord(WeekdayOfDay(day.day))) + ' ' +
                           std::to_string(date.day) + ' ' + std::string(ShortMonthWord(date.month));
  return "<details><summary>" + Span("date", name) + Span("energy", energy) +
         Span("grams soft", eaten ? GramsText(day.totals) : "") +
         Span("burned soft", day.burned ? "burned " + NumberText(*day.burned) : "") +
         Span("weight soft", day.weight ? NumberText(*day.weight, 1) + " kg" : "") +
         "</summary><div class=\"foods\">\n" + FoodsOfDay(table, day) + "</div></details>\n";
}

std::string WeightsText(const MonthSum& month) {
  if (!month.last_weight) return {};
  const std::string last = NumberText(*month.last_weight, 1) + " kg";
  const std::string first = NumberText(*month.first_weight, 1);
  return month.first_weight == month.last_weight ? last : first + " to " + last;
}

std::string MonthHead(const MonthSum& month) {
  std::string text = "<div class=\"month\">\n<h3>" + MonthWords(month.month) + "</h3>\n<p>" +
                     CountText(static_cast<std::size_t>(month.days), "day", "days") +
                     " with an entry";
  if (month.eaten_days > 0) {
    text += " \u00B7 " + NumberText(month.means.kcal) + " kcal a day \u00B7 " +
            GramsText(month.means) + " a day";
  }
  if (month.burned > 0) text += " \u00B7 burned " + NumberText(month.burned) + " kcal";
  if (month.last_weight) text += " \u00B7 " + WeightsText(month);
  return text + "</p>\n<div class=\"days\">\n";
}

constexpr std::string_view kCutMonth =
    "</div>\n<p class=\"note\">Its earlier days are in the two tables beside this "
    "page.</p>\n</div>\n";

std::string MonthRow(const MonthSum& month) {
  const bool eaten = month.eaten_days > 0;
  const auto figure = [&](double value) { return eaten ? NumberText(value) : std::string(kDash); };
  return "<tr><td>" + MonthWords(month.month) + "</td>" + Cell(NumberText(month.days)) +
         Cell(figure(month.means.kcal)) + Cell(figure(month.means.protein), "grams-column") +
         Cell(figure(month.means.fat), "grams-column") +
         Cell(figure(month.means.carbohydrate), "grams-column") +
         Cell(NumberText(month.burned), "grams-column") + Cell(WeightsText(month)) + "</tr>\n";
}

constexpr std::string_view kMonthsHead =
    "<h3 class=\"month\">Earlier months</h3>\n<p class=\"note\">Their days are in the two tables "
    "beside this page.</p>\n<div class=\"card month\"><table class=\"months\"><thead><tr>"
    "<th scope=\"col\">Month</th><th scope=\"col\">Days</th><th scope=\"col\">kcal a day</th>"
    "<th scope=\"col\" class=\"grams-column\">Protein, g</th>"
    "<th scope=\"col\" class=\"grams-column\">Fat, g</th>"
    "<th scope=\"col\" class=\"grams-column\">Carbohydrate, g</th>"
    "<th scope=\"col\" class=\"grams-column\">Burned, kcal</th><th scope=\"col\">Weight</th>"
    "</tr></thead><tbody>\n";

// Months before the one that the oldest day shown lies in.
std::string EarlierMonths(std::span<const MonthSum> months) {
  if (months.empty()) return {};
  std::string text(kMonthsHead);
  const std::size_t shown = std::min(kShownMonths, months.size());
  for (const MonthSum& month : months.first(shown)) text += MonthRow(month);
  text += "</tbody></table></div>\n";
  if (shown < months.size()) {
    text += "<p class=\"note\">" + NumberText(static_cast<double>(months.size() - shown)) +
            " earlier months are in the tables only.</p>\n";
  }
  return text;
}

}  // namespace

std::string FoodsOfDay(const DayTable& table, const DiaryDay& day) {
  std::string text;
  const std::size_t foods = std::min(kShownRows, day.eaten.size());
  for (std::size_t i = 0; i < foods; ++i) text += FoodRow(table.entries[day.eaten[i]]);
  if (!text.empty()) text = std::string(kFoodsHead) + text + "</tbody></table>\n";
  std::string deeds = day.eaten.size() > foods ? More(day.eaten.size() - foods) : std::string();
  std::size_t shown = 0;
  std::size_t left_out = 0;
  for (std::size_t i = 0; i < day.entry_count; ++i) {
    const HistoryEntry& entry = table.entries[day.first_entry + i];
    if (CountsInDay(entry.kind)) continue;
    if (shown == kShownRows) {
      ++left_out;
      continue;
    }
    deeds += DeedRow(entry);
    ++shown;
  }
  if (left_out > 0) deeds += More(left_out);
  if (!deeds.empty()) text += "<ul class=\"deeds\">\n" + deeds + "</ul>\n";
  if (text.empty()) text = "<p class=\"soft\">Everything was taken off again.</p>\n";
  return text;
}

std::string DaysSection(const DiaryContent& content) {
  const std::vector<DiaryDay>& days = content.table.days;
  std::string text = "<section aria-labelledby=\"days\">\n<h2 id=\"days\">Every day</h2>\n";
  if (days.empty()) return text + "<p class=\"soft\">There is no entry yet.</p>\n</section>\n";
  const std::vector<MonthSum> months = SumMonths(days);
  std::size_t left = std::min(kShownDays, days.size());
  auto day = days.rbegin();
  auto month = months.begin();
  for (; month != months.end() && left > 0; ++month) {
    text += MonthHead(*month);
    for (; left > 0 && day != days.rend() && MonthOfDay(day->day) == month->month; ++day, --left) {
      text += DayRow(content.table, *day);
    }
    const bool is_cut = day != days.rend() && MonthOfDay(day->day) == month->month;
    text += is_cut ? std::string(kCutMonth) : "</div>\n</div>\n";
  }
  return text + EarlierMonths({month, months.end()}) + "</section>\n";
}

}  // namespace velnor
