#include "diary/diary.h"

#include <utility>

#include "base/number_text.h"
#include "base/transaction.h"
#include "diary/page.h"
#include "diary/spreadsheet.h"
#include "diary/weight_trend.h"
#include "users/history_file.h"
#include "users/user_files.h"

namespace velnor {
namespace {

constexpr double kLeastHeight = 50;  // cm
constexpr double kGreatestHeight = 300;
constexpr double kCentimetres = 100;  // in a metre

std::optional<double> HeightOf(const UserProfile& profile) {
  const double height = ParseNumber(profile.height);
  if (height < kLeastHeight || height > kGreatestHeight) return std::nullopt;
  return height / kCentimetres;
}

DayNumber Today(std::string_view date_text, const DayTable& table) {
  if (const std::optional<DayNumber> today = DayOfIsoDate(IsoDate(date_text))) return *today;
  return table.days.empty() ? 0 : table.days.back().day;
}

// Limits that a person can have set are from 0 to some thousands; others are none.
RequirementBounds Checked(const RequirementBounds& bounds) {
  for (const double bound : bounds) {
    if (!(bound >= 0 && bound <= kLargestDay)) return {};
  }
  return bounds;
}

}  // namespace

DiaryFiles MakeDiary(const DiaryInputs& inputs) {
  DiaryContent content;
  content.table = FoldHistory(inputs.history);
  content.today = Today(inputs.date_text, content.table);
  content.user_name = inputs.user_name;
  content.requirement = Checked(inputs.requirement);
  content.height = HeightOf(inputs.profile);
  // What is dated after today belongs to no trend.
  for (const DayValue& weight : BodyWeights(content.table.days)) {
    if (weight.day <= content.today) content.weights.push_back(weight);
  }
  content.trend = WeightTrend(content.weights);
  return {.page = MakePage(content),
          .days = DaysSpreadsheet(content.table),
          .deeds = DeedsSpreadsheet(content.table)};
}

bool WriteDiary(const std::string& base_folder, const UserFolder& user, const DiaryFiles& files) {
  Transaction deed(base_folder);
  deed.Replace(user.File(kDiaryPageFile), files.page);
  deed.Replace(user.File(kDiaryDaysFile), files.days);
  deed.Replace(user.File(kDiaryDeedsFile), files.deeds);
  return deed.Commit();
}

}  // namespace velnor
