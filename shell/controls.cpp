#include "shell/controls.h"

#include <algorithm>
#include <iterator>

#include "activity/burned_calories.h"
#include "activity/personal_limits.h"
#include "body/weight_text.h"
#include "body/whr.h"
#include "food/energy_balance.h"
#include "food/nutrition.h"

namespace velnor {
namespace {

using namespace control_style;  // NOLINT(google-build-using-namespace): the table reads by them

constexpr bool kNumber = true;
constexpr std::uint32_t kSortedDropDown = kDropDownList | kSortedCombo;
constexpr std::uint32_t kSortedListBox = kVerticalScroll | kListNotify | kSortedList;

// clang-format off
constexpr ControlRow kControls[] = {
    {101, ControlClass::kEdit, "", kPlain, {170, 90, 60, 23}, WeightText::kLimit, "Put Your weight [kg]", kNumber},
    {102, ControlClass::kButton, "Count BMI", kPlain, {100, 180, 100, 35}},
    {103, ControlClass::kButton, "Save raport", kPlain, {100, 220, 100, 35}},
    {104, ControlClass::kEdit, "", kPlain, {200, 90, 50, 23}, WhrResult::kLimit, "Waist circumference [cm]", kNumber},
    {105, ControlClass::kEdit, "", kPlain, {200, 120, 50, 23}, WhrResult::kLimit, "Hip circumference [cm]", kNumber},
    {106, ControlClass::kButton, "Count WHR", kPlain, {100, 220, 100, 35}},
    {107, ControlClass::kButton, "Save raport", kPlain, {100, 260, 100, 35}},
    {108, ControlClass::kComboBox, "", kSortedDropDown, {260, 85, 280, 450}, 0, "Choose main category"},
    {109, ControlClass::kListBox, "", kSortedListBox, {260, 175, 280, 140}, 0, "Choose the product"},
    {110, ControlClass::kComboBox, "", kSortedDropDown, {260, 135, 280, 450}, 0, "Choose subcategory"},
    {111, ControlClass::kEdit, "", kPlain, {85, 285, 60, 23}, kOverviewWeightLimit, "Food weight [g]", kNumber},
    {112, ControlClass::kStatic, "", kPlain, {290, 350, 60, 20}},
    {113, ControlClass::kStatic, "", kPlain, {290, 395, 60, 20}},
    {114, ControlClass::kStatic, "", kPlain, {290, 420, 60, 20}},
    {115, ControlClass::kStatic, "", kPlain, {290, 445, 60, 20}},
    {116, ControlClass::kStatic, "", kPlain, {270, 490, 33, 20}},
    {117, ControlClass::kStatic, "", kPlain, {313, 490, 33, 20}},
    {118, ControlClass::kStatic, "", kPlain, {356, 490, 33, 20}},
    {119, ControlClass::kEdit, "", kBorder | kMultiLine | kScrollVertically | kKeepSelection, {5, 85, 780, 430}, 0, "Report"},
    {120, ControlClass::kStatic, "", kPlain, {170, 355, 100, 23}},
    {121, ControlClass::kStatic, "", kPlain, {170, 390, 100, 23}},
    {122, ControlClass::kStatic, "", kPlain, {170, 425, 100, 23}},
    {123, ControlClass::kStatic, "", kPlain, {170, 460, 100, 23}},
    {124, ControlClass::kComboBox, "", kSortedDropDown, {25, 100, 280, 450}, 0, "Choose main category"},
    {125, ControlClass::kComboBox, "", kSortedDropDown, {25, 170, 280, 450}, 0, "Choose subcategory"},
    {126, ControlClass::kListBox, "", kSortedListBox, {330, 100, 330, 140}, 0, "Choose product"},
    {127, ControlClass::kButton, "Add", kPlain, {570, 264, 65, 35}},
    {128, ControlClass::kEdit, "", kPlain, {25, 270, 50, 23}, kListedFigureLimit, "Food weight[g]", kNumber},
    {129, ControlClass::kStatic, "", kPlain, {125, 270, 50, 23}},
    {130, ControlClass::kStatic, "", kPlain, {225, 270, 50, 23}},
    {131, ControlClass::kStatic, "", kPlain, {325, 270, 50, 23}},
    {132, ControlClass::kStatic, "", kPlain, {425, 270, 50, 23}},
    {133, ControlClass::kButton, "", kGroupBox, {10, 58, 665, 250}},
    {134, ControlClass::kListBox, "", kSortedListBox, {25, 345, 330, 155}, 0, "Your list"},
    {135, ControlClass::kButton, "", kGroupBox, {380, 320, 350, 200}},
    {136, ControlClass::kButton, "Remove", kPlain, {25, 500, 100, 35}},
    {137, ControlClass::kStatic, "", kPlain, {500, 340, 75, 23}},
    {138, ControlClass::kStatic, "", kPlain, {500, 370, 75, 23}},
    {139, ControlClass::kStatic, "", kPlain, {500, 400, 75, 23}},
    {140, ControlClass::kStatic, "", kPlain, {500, 430, 75, 23}},
    {141, ControlClass::kStatic, "", kPlain, {500, 460, 75, 23}},
    {142, ControlClass::kStatic, "", kPlain, {500, 490, 33, 23}},
    {143, ControlClass::kStatic, "", kPlain, {550, 490, 33, 23}},
    {144, ControlClass::kStatic, "", kPlain, {600, 490, 33, 23}},
    {145, ControlClass::kButton, "Save raport", kPlain, {680, 80, 110, 35}},
    {146, ControlClass::kButton, "Clear list", kPlain, {245, 500, 110, 35}},
    {147, ControlClass::kButton, "Save food", kPlain, {680, 130, 110, 35}},
    {148, ControlClass::kEdit, "", kVerticalScroll | kHorizontalScroll | kMultiLine | kReadOnly, {10, 85, 775, 450}, 0, "Report"},
    {149, ControlClass::kButton, "Find", kPlain, {680, 264, 110, 35}},  // of the nutrition counter
    {149, ControlClass::kButton, "Find", kPlain, {410, 320, 110, 35}},  // of the products overview
    {151, ControlClass::kButton, "Clear raport", kPlain, {580, 23, 115, 29}},
    {152, ControlClass::kButton, "Save changes", kPlain, {450, 23, 110, 29}},
    {153, ControlClass::kButton, "V", kPlain, {750, 520, 30, 23}},
    {154, ControlClass::kButton, "^", kPlain, {750, 57, 30, 23}},
    {155, ControlClass::kButton, "VV", kPlain, {710, 520, 30, 23}},
    {156, ControlClass::kButton, "^^", kPlain, {710, 57, 30, 23}},
    {157, ControlClass::kButton, "VVV", kPlain, {650, 520, 45, 23}},
    {158, ControlClass::kButton, "^^^", kPlain, {650, 57, 45, 23}},
    {159, ControlClass::kListBox, "", kSortedListBox, {25, 100, 330, 350}, 0, "choose activity"},
    {160, ControlClass::kEdit, "", kPlain, {380, 100, 50, 23}, kMinutesLimit, "time[min]", kNumber},
    {161, ControlClass::kButton, "Count", kPlain, {460, 95, 100, 35}},
    {162, ControlClass::kButton, "Save raport", kPlain, {380, 180, 100, 35}},
    {163, ControlClass::kStatic, "", kPlain, {235, 470, 73, 23}},
    {164, ControlClass::kStatic, "", kPlain, {235, 510, 73, 23}},
    {165, ControlClass::kButton, "Clear", kPlain, {705, 23, 80, 25}},
    {166, ControlClass::kEdit, "", kPlain, {500, 355, 100, 23}, kLimitTextLimit, "calorie[kcal], lower limit", kNumber},
    {167, ControlClass::kEdit, "", kPlain, {630, 355, 100, 23}, kLimitTextLimit, "calorie[kcal], upper limit", kNumber},
    {168, ControlClass::kEdit, "", kPlain, {500, 390, 100, 23}, kLimitTextLimit, "proteins[g], lower limit", kNumber},
    {169, ControlClass::kEdit, "", kPlain, {630, 390, 100, 23}, kLimitTextLimit, "proteins[g], upper limit", kNumber},
    {170, ControlClass::kEdit, "", kPlain, {500, 425, 100, 23}, kLimitTextLimit, "fat[g], lower limit", kNumber},
    {171, ControlClass::kEdit, "", kPlain, {630, 425, 100, 23}, kLimitTextLimit, "fat[g], upper limit", kNumber},
    {172, ControlClass::kEdit, "", kPlain, {500, 460, 100, 23}, kLimitTextLimit, "carbohydrates[g], lower limit", kNumber},
    {173, ControlClass::kEdit, "", kPlain, {630, 460, 100, 23}, kLimitTextLimit, "carbohydrates[g], upper limit", kNumber},
    {174, ControlClass::kButton, "Activate", kPlain, {540, 255, 140, 30}},
    {175, ControlClass::kButton, "Clear", kPlain, {540, 290, 140, 30}},
    {176, ControlClass::kButton, "Count BMR", kPlain, {100, 180, 100, 35}},
    {177, ControlClass::kButton, "ADD", kPlain, {320, 465, 150, 23}},
    {178, ControlClass::kButton, "REMOVE", kPlain, {320, 490, 150, 23}},
    {179, ControlClass::kButton, "CLEAR", kPlain, {320, 515, 150, 23}},
    {180, ControlClass::kStatic, "", kPlain, {600, 490, 73, 23}},
    {181, ControlClass::kEdit, "", kPlain, {200, 150, 50, 23}, kBmrTextLimit, "Put Your BMR value [kcal]", kNumber},
    {182, ControlClass::kButton, "COUNT ENERGY BALANCE / REFRESH", kPlain, {299, 150, 310, 25}},
    {183, ControlClass::kStatic, "", kPlain, {640, 360, 50, 23}},
    {184, ControlClass::kStatic, "", kPlain, {640, 420, 50, 23}},
    {185, ControlClass::kStatic, "", kPlain, {640, 340, 50, 23}},
    {186, ControlClass::kStatic, "", kPlain, {640, 400, 50, 23}},
};
// clang-format on
static_assert(std::size(kControls) == 86);

// Six digits with a point and a zero before them, as "0.571429", fit into 50 pixels in this font.
// Anything smaller could not be read: of a figure that is wider than its field, the first digits
// are seen.
constexpr Font kSmallFont{12, 0, false};
constexpr int kSmallFieldWidth = 50;

// Wider fields with more digits: burned energy and fat have nine, the day's total fifteen.
constexpr int kLongFigures[] = {163, 164, 180};

}  // namespace

Font ControlFont(const ControlRow& row) {
  if (row.control_class != ControlClass::kStatic) return kBodyFont;
  const bool is_long = std::ranges::find(kLongFigures, row.id) != std::end(kLongFigures);
  return is_long || row.place.width <= kSmallFieldWidth ? kSmallFont : kBodyFont;
}

std::span<const ControlRow> MainWindowControls() { return kControls; }

}  // namespace velnor
