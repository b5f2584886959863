// The diary's page: one file of HTML without scripts and without anything from elsewhere, for
// screens, telephones and paper. Its sections stand each in a file of their own.

#ifndef VELNOR_DIARY_PAGE_H_
#define VELNOR_DIARY_PAGE_H_

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "activity/requirement.h"
#include "diary/day_table.h"
#include "diary/plot_frame.h"
#include "diary/statistics.h"

namespace velnor {

// What all sections draw from.
struct DiaryContent {
  DayTable table = {};
  DayNumber today = 0;
  std::string_view user_name = {};
  RequirementBounds requirement = {};  // an upper value of 0: none is known
  std::optional<double> height = {};   // m
  std::vector<DayValue> weights = {};  // those that can be drawn
  std::vector<DayValue> trend = {};

  ValueBand Needed(Limit lower) const { return {requirement[lower], requirement[lower + 1]}; }
};

// The newest days that are shown with their foods, and the rows of a day at the most; older ones
// are summed by month, so many months at the most.
inline constexpr std::size_t kShownDays = 400;
inline constexpr std::size_t kShownRows = 200;
inline constexpr std::size_t kShownMonths = 1200;

// Characters of a name that are shown.
inline constexpr std::size_t kShownName = 120;

std::string MakePage(const DiaryContent& content);

// The sections, in the order of the page.
std::string TodaySection(const DiaryContent& content);
std::string OverviewSection(const DiaryContent& content);
std::string PlotsSection(const DiaryContent& content);
std::string HabitsSection(const DiaryContent& content);
std::string DaysSection(const DiaryContent& content);

// The foods of a day with their times, and below them what else was entered on it.
std::string FoodsOfDay(const DayTable& table, const DiaryDay& day);

// The stretch of time that the plot of everything shows: from the first entry, or from the first
// after a pause of five years, but not more than a hundred years, to today; a week at the least.
DayRange WholeRange(const DayTable& table, DayNumber today);

}  // namespace velnor

#endif  // VELNOR_DIARY_PAGE_H_
