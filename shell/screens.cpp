#include "shell/screens.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

#include "base/form.h"
#include "res/ids.h"
#include "shell/parts.h"

namespace velnor {
namespace {

constexpr const char* kBackgroundNames[] = {"BCG",    "TLO", "ZAAP", "BMI2",
                                            "BILANS", "WHR", "SPAL", "POS"};

template <typename S>
S ScreenTypeOf(S Parts::*);

// A row for the screen that `kScreen`, a member of Parts, is.
template <auto kScreen>
constexpr ScreenRow Row(ScreenId id, int command, std::string_view background,
                        const Availability& availability) {
  using S = decltype(ScreenTypeOf(kScreen));
  return {id,           command,      background,
          availability, &S::Controls, [](Parts& parts) -> Screen& { return parts.*kScreen; }};
}

// clang-format off
constexpr ScreenRow kScreens[] = {
    Row<&Parts::home_screen>(0, 0, "TLO", kNeverTouched),
    Row<&Parts::bmi_screen>(1, ID_BMI, "BMI2", kWithUser),
    Row<&Parts::whr_screen>(2, ID_WHR, "WHR", kWithUser),
    Row<&Parts::overview_screen>(3, 236, "POS", kAlways),  // no menu item
    Row<&Parts::report_screen>(4, ID_WEIGHT_REPORT, "BCG", kWithUser),
    Row<&Parts::report_screen>(5, ID_WHR_REPORT, "BCG", kWithUser),
    Row<&Parts::requirement_screen>(6, ID_REQUIREMENT, "ZAAP", kWithUser),
    Row<&Parts::counter_screen>(7, ID_COUNTER, "POS", kWithUser),
    Row<&Parts::report_screen>(8, ID_CALORIE_REPORT, "BCG", kWithUser),
    Row<&Parts::report_screen>(9, ID_RECIPE_REPORT, "BCG", kWithUser),
    Row<&Parts::burned_screen>(10, ID_BURNED, "SPAL", kWithUserButKeptAtRemoval),
    Row<&Parts::report_screen>(11, ID_BURNED_REPORT, "BCG", kWithUser),
    Row<&Parts::balance_screen>(12, ID_BALANCE, "BILANS", kWithUser),
    Row<&Parts::weight_chart>(13, ID_WEIGHT_CHART, "BCG", kWithUser),
    Row<&Parts::calorie_chart>(14, ID_CALORIE_CHART, "BCG", kWithUser),
    Row<&Parts::protein_chart>(15, ID_PROTEIN_CHART, "BCG", kWithUser),
    Row<&Parts::fat_chart>(16, ID_FAT_CHART, "BCG", kWithUser),
    Row<&Parts::carbohydrate_chart>(17, ID_CARBOHYDRATE_CHART, "BCG", kWithUser),
    Row<&Parts::bmr_screen>(18, ID_BMR, "SPAL", kWithUser),
    Row<&Parts::energy_screen>(19, ID_ENERGY, "SPAL", kWithUser),
    Row<&Parts::exchanges_screen>(20, ID_EXCHANGES, "POS", kNeverTouched),
};
// clang-format on

std::vector<ControlRow> CollectControls() {
  // Of two controls with one id, the one whose key is the id comes first.
  std::map<std::pair<int, int>, ControlRow> by_id;
  for (const ScreenRow& screen : kScreens) {
    for (const ControlRow& row : screen.controls())
      by_id.emplace(std::pair{row.id(), row.key}, row);
  }
  std::vector<ControlRow> controls;
  controls.reserve(by_id.size());
  for (const auto& [id, row] : by_id) controls.push_back(row);
  return controls;
}

}  // namespace

std::span<const char* const> BackgroundNames() { return kBackgroundNames; }

std::span<const ScreenRow> Screens() { return kScreens; }

const ScreenRow* FindScreen(ScreenId id) {
  const auto* const row = std::ranges::find(kScreens, id, &ScreenRow::id);
  return row == std::end(kScreens) ? nullptr : row;
}

std::vector<int> ShownKeys(const ScreenRow& row) {
  std::vector<int> keys;
  for (const ControlRow& control : row.controls()) {
    if (control.is_shown) keys.push_back(control.key);
  }
  return keys;
}

std::span<const ControlRow> MainWindowControls() {
  static const std::vector<ControlRow> controls = CollectControls();
  return controls;
}

void ShowScreen(Parts& parts, ScreenId id) {
  parts.session.screen = id;
  parts.window.Invalidate();
}

}  // namespace velnor
