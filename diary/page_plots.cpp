// The plots of the page over four stretches of time, of which the style sheet shows the one that is
// chosen.

#include <algorithm>
#include <array>

#include "diary/markup.h"
#include "diary/page.h"
#include "diary/plots.h"
#include "diary/weight_trend.h"

namespace velnor {
namespace {

constexpr int kLongestPause = 5 * 365 + 1;     // days
constexpr int kLongestRange = 100 * 365 + 25;  // days
constexpr double kFatEnergy = 7000;  // kcal in a kg of body fat, as elsewhere in the program

struct RangeRow {
  std::string_view id;
  std::string_view label;
  int days;  // 0: the whole range
};

constexpr std::array<RangeRow, 4> kRanges = {
    {{"30", "30 days", 30}, {"90", "90 days", 90}, {"365", "Year", 365}, {"all", "All", 0}}};

DayRange RangeOf(const RangeRow& row, const DiaryContent& content) {
  if (row.days == 0) return WholeRange(content.table, content.today);
  return {content.today - row.days + 1, content.today};
}

struct KeyRow {
  std::string_view css_class;
  std::string_view text;
};

std::string Figure(std::string_view title, const std::string& lead, std::span<const KeyRow> key,
                   const std::string& rest) {
  std::string text = "<figure>\n<figcaption><h3>" + std::string(title) + "</h3><p>" + lead + "</p>";
  if (!key.empty()) text += "<ul class=\"key\">";
  for (const KeyRow& row : key) {
    text += "<li><i class=\"" + std::string(row.css_class) + "\"></i>" + std::string(row.text) +
            "</li>";
  }
  if (!key.empty()) text += "</ul>";
  return text + "</figcaption>\n" + rest + "</figure>\n";
}

// The plots of one stretch of time, and what they say in words.
class RangePanel {
 public:
  RangePanel(const DiaryContent& content, const RangeRow& row)
      : content_(content),
        row_(row),
        range_(RangeOf(row, content)),
        days_(DaysOf(content.table, range_)),
        needed_(content.Needed(kCaloriesLower)),
        eaten_(EatenKcal(days_)) {}

  std::string Text() const {
    std::string text =
        "<div class=\"panel p" + std::string(row_.id) + "\">\n" + Calories() + Shares() + Weight();
    if (needed_.IsKnown()) text += Deficit();
    return text + "</div>\n";
  }

 private:
  // Both shapes of a plot. `draw` gets the input of each.
  std::string Draw(const PlotHead& head, bool has_right_axis, const auto& draw) const {
    std::string text;
    for (const PlotShape& any_shape : kPlotShapes) {
      const PlotShape shape = has_right_axis ? any_shape : WithoutRightAxis(any_shape);
      text += draw(PlotInput{shape, head, range_});
    }
    return text;
  }

  PlotHead Head(std::string_view id, std::string_view title, const std::string& lead) const {
    return {.id = std::string(id) + std::string(row_.id),
            .title =
                std::string(title) + ", " + DayWords(range_.first) + " to " + DayWords(range_.last),
            .description = lead};
  }

  double MeanKcal() const {
    double sum = 0;
    for (const DayValue& value : eaten_) sum += value.value;
    return eaten_.empty() ? 0 : sum / static_cast<double>(eaten_.size());
  }

  // What a bar stands for, which the two shapes may differ in.
  std::string PieceText() const {
    constexpr std::array<std::string_view, 4> kPieces = {"a day", "mean of a week",
                                                         "mean of a month", "mean of a year"};
    std::string text;
    for (const PlotShape& shape : kPlotShapes) {
      const BucketUnit unit = ChooseUnit(range_, shape.most_buckets);
      text += "<span class=\"" + std::string(shape.css_class) + "\">" +
              std::string(kPieces[static_cast<std::size_t>(unit)]) + "</span>";
    }
    return text;
  }

  std::string Calories() const {
    std::string lead = NumberText(static_cast<double>(eaten_.size())) + " of " +
                       CountText(static_cast<std::size_t>(range_.Days()), "day", "days") +
                       " with foods";
    if (!eaten_.empty()) lead += "; " + NumberText(MeanKcal()) + " kcal a day on average";
    if (needed_.IsKnown()) lead += "; " + BoundsText() + " are needed";
    lead += '.';
    const auto slips = static_cast<std::size_t>(std::ranges::count_if(
        days_, [](const DiaryDay& day) { return IsEatenDay(day) && !CountsInMeans(day); }));
    if (slips > 0) {
      lead += ' ' + CountText(slips, "day", "days") + " beyond " + NumberText(kLargestDay) +
              " kcal or below 0, marked at the top, left out of all means.";
    }
    const std::string piece = PieceText();
    const std::array<KeyRow, 3> key = {
        {{"blue", piece}, {"vermilion line", "mean of 7 days"}, {"need", "what you need"}}};
    const std::span<const KeyRow> rows(key);
    // The line reaches back a week before the range.
    const std::span<const DiaryDay> days =
        DaysOf(content_.table, {range_.first - kWeekDays + 1, range_.last});
    return Figure("Calories", lead, rows.first(needed_.IsKnown() ? 3 : 2),
                  Draw(Head("kcal", "Calories", lead), false, [&](const PlotInput& input) {
                    return DrawCaloriePlot(input, days, needed_);
                  }));
  }

  std::string BoundsText() const {
    const std::string lower = NumberText(needed_.lower);
    const std::string upper = NumberText(needed_.upper);
    return lower == upper ? lower : lower + " to " + upper;
  }

  std::string Shares() const {
    std::string lead = "No grams are known.";
    if (const std::optional<EnergyShares> shares = SharesOf(SumNutrients(days_))) {
      lead = "On average protein " + NumberText(shares->protein * 100) + " %, fat " +
             NumberText(shares->fat * 100) + " %, carbohydrate " +
             NumberText(shares->carbohydrate * 100) + " % of the energy of the three.";
    }
    constexpr std::array<KeyRow, 3> kKey = {
        {{"blue", "protein, below"}, {"vermilion", "fat"}, {"purple", "carbohydrate, above"}}};
    return Figure("Where the energy comes from", lead, kKey,
                  Draw(Head("share", "Protein, fat and carbohydrate", lead), false,
                       [&](const PlotInput& input) { return DrawSharePlot(input, days_); }));
  }

  std::string Weight() const {
    std::string lead;
    if (const std::optional<TrendChange> change = ChangeWithin(content_.trend, range_)) {
      lead = "The trend changes by " + SignedNumberText(change->kilograms, 1) + " kg, " +
             SignedNumberText(change->kilograms_a_week, 2) + " kg a week. ";
    }
    const std::vector<DayValue> weights = BodyWeights(days_);
    if (!weights.empty()) {
      lead += "Last weight " + NumberText(weights.back().value, 1) + " kg";
      if (content_.height) {
        const double square = *content_.height * *content_.height;
        lead += ", BMI " + NumberText(weights.back().value / square, 1);
      }
      lead += ". ";
      lead += BeyondText(weights);
    }
    lead += content_.trend.empty()
                ? "A trend needs " + std::to_string(kLeastTrendPoints) + " weights."
                : "The trend is a line through the nearest " + std::to_string(kTrendPoints) +
                      " weights that no single day can bend.";
    constexpr std::array<KeyRow, 2> kKey = {
        {{"blue dot", "a weight"}, {"vermilion line", "trend"}}};
    return Figure("Weight", lead, kKey,
                  Draw(Head("weight", "Weight", lead), true, [&](const PlotInput& input) {
                    return DrawWeightPlot(input, content_.weights, content_.trend, content_.height);
                  }));
  }

  std::string BeyondText(std::span<const DayValue> weights) const {
    const std::optional<ValueAxis> axis =
        WeightAxis(kPlotShapes.front(), range_, weights, content_.trend);
    const auto beyond =
        static_cast<std::size_t>(std::ranges::count_if(weights, [&](const DayValue& weight) {
          return weight.value > axis->high || weight.value < axis->low;
        }));
    if (beyond == 0) return {};
    return CountText(beyond, "weight", "weights") + " beyond the scale, marked at its end. ";
  }

  std::string Deficit() const {
    const std::vector<DayValue> sums = SumDeficit(days_, needed_.Middle());
    const double sum = sums.empty() ? 0 : sums.back().value;
    double burned = 0;
    for (const DiaryDay& day : days_) {
      if (CountsInMeans(day)) burned += std::clamp(day.burned.value_or(0), 0.0, kLargestDay);
    }
    const double count = std::max<double>(1, static_cast<double>(sums.size()));
    const std::string lead =
        "What was needed, taken as the middle of the requirement, " + NumberText(needed_.Middle()) +
        " kcal, and burned by activities, less what was eaten, added up over the days with foods.";
    const std::optional<TrendChange> change = ChangeWithin(content_.trend, range_);
    const std::string facts =
        "<dl class=\"facts\">" + Fact("Eaten a day", NumberText(MeanKcal()) + " kcal") +
        Fact("Needed and burned a day",
             NumberText(needed_.Middle()) + " + " + NumberText(burned / count) + " kcal") +
        Fact("Sum of the deficit", SignedNumberText(sum) + " kcal",
             "the energy of " + NumberText(std::abs(sum) / kFatEnergy, 1) + " kg of body fat") +
        Fact("Trend of the weight",
             change ? SignedNumberText(change->kilograms, 1) + " kg" : std::string("not known")) +
        "</dl>\n";
    constexpr std::array<KeyRow, 2> kKey = {
        {{"purple line", "sum of the deficit: upwards less was eaten than used"},
         {"vermilion line", "trend of the weight"}}};
    return Figure(
        "Deficit and weight", lead, kKey,
        Draw(Head("deficit", "Sum of the deficit, and weight", lead), false,
             [&](const PlotInput& input) { return DrawDeficitPlot(input, sums, content_.trend); }) +
            facts);
  }

  static std::string Fact(std::string_view what, const std::string& value,
                          const std::string& more = "") {
    return "<div><dt>" + std::string(what) + "</dt><dd>" + value +
           (more.empty() ? "" : "<small>" + more + "</small>") + "</dd></div>";
  }

  const DiaryContent& content_;
  const RangeRow& row_;
  DayRange range_;
  std::span<const DiaryDay> days_;
  ValueBand needed_;
  std::vector<DayValue> eaten_;
};

// The first stretch with an entry, so that the page does not open with empty plots.
std::string_view ChosenRange(const DiaryContent& content) {
  for (const RangeRow& row : kRanges) {
    if (!DaysOf(content.table, RangeOf(row, content)).empty()) return row.id;
  }
  return kRanges.front().id;
}

std::string Notes(const DiaryContent& content) {
  const std::vector<DiaryDay>& days = content.table.days;
  const DayRange whole = WholeRange(content.table, content.today);
  const auto is_before = [&](const DiaryDay& day) { return day.day < whole.first; };
  const auto is_after = [&](const DiaryDay& day) { return day.day > whole.last; };
  const auto before = static_cast<std::size_t>(std::ranges::count_if(days, is_before));
  const auto after = static_cast<std::size_t>(std::ranges::count_if(days, is_after));
  std::string text;
  if (before > 0) {
    text += "<p class=\"note\">" + CountText(before, "day", "days") + " before " +
            DayWords(whole.first) + ", after which there is a long pause, not drawn.</p>\n";
  }
  if (after > 0) {
    text += "<p class=\"note\">" + CountText(after, "day is", "days are") +
            " dated after today and not drawn.</p>\n";
  }
  return text;
}

}  // namespace

DayRange WholeRange(const DayTable& table, DayNumber today) {
  DayNumber first = today;
  for (std::size_t i = table.days.size(); i > 0; --i) {
    const DayNumber day = table.days[i - 1].day;
    if (day > today) continue;
    if (first - day > kLongestPause || today - day >= kLongestRange) break;
    first = day;
  }
  return {std::min(first, today - kWeekDays + 1), today};
}

std::string PlotsSection(const DiaryContent& content) {
  const std::string_view chosen = ChosenRange(content);
  std::string text =
      "<section class=\"plots\" aria-labelledby=\"plots\">\n<h2 id=\"plots\">Over time</h2>\n"
      "<fieldset class=\"ranges\"><legend>Time shown by the plots</legend>";
  for (const RangeRow& row : kRanges) {
    const std::string id = 'r' + std::string(row.id);
    text += R"(<input type="radio" name="range" id=")" + id;
    text += row.id == chosen ? R"(" checked><label for=")" : R"("><label for=")";
    text += id + "\">" + std::string(row.label) + "</label>";
  }
  text += "</fieldset>\n";
  for (const RangeRow& row : kRanges) text += RangePanel(content, row).Text();
  return text + Notes(content) + "</section>\n";
}

}  // namespace velnor
