#include "shell/parts.h"

#include <utility>

namespace velnor {

Parts::Parts(std::string base_folder, std::string date_text, Form& main_form,
             MainWindow& main_window, MessageBoxes& boxes, const Clock& clock)
    : form(main_form),
      window(main_window),
      message_boxes(boxes),
      session{.base_folder = std::move(base_folder),
              .date_text = std::move(date_text),
              .clock = &clock},
      day(session),
      food_list(food, day, exchanges, form, message_boxes),
      requirement(session, profile),
      burned_total(session),
      copies(session, message_boxes),
      bmi_screen(session, profile, weight, form, window),
      whr_screen(session, profile, form, window),
      overview_screen(food, exchanges, form, window),
      report_screen(session, copies, form, window, message_boxes),
      requirement_screen(requirement, profile, form, window, message_boxes),
      counter_screen(session, food, exchanges, food_list, requirement, form, window),
      burned_screen(session, burned_total, form, window, message_boxes),
      balance_screen(day, food_list, requirement, copies, window),
      weight_chart(session, requirement, ChartId::kWeight),
      calorie_chart(session, requirement, ChartId::kCalories),
      protein_chart(session, requirement, ChartId::kProteins),
      fat_chart(session, requirement, ChartId::kFat),
      carbohydrate_chart(session, requirement, ChartId::kCarbohydrates),
      bmr_screen(profile, weight, form, window),
      energy_screen(day, burned_total, form, window, message_boxes) {}

void Parts::OnProductsChanged() {
  counter_screen.OnProductsChanged();
  overview_screen.OnProductsChanged();
}

}  // namespace velnor
