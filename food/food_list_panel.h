// The lower half of the nutrition counter: the list of foods eaten today and its totals. Adding to
// it and taking off it keeps the day's balance in step.

#ifndef VELNOR_FOOD_FOOD_LIST_PANEL_H_
#define VELNOR_FOOD_FOOD_LIST_PANEL_H_

#include <string>
#include <string_view>
#include <vector>

#include "base/form.h"
#include "base/message_boxes.h"
#include "food/calorie_record.h"
#include "food/day_balance.h"
#include "food/food_list.h"
#include "food/food_table.h"
#include "food/nutrition.h"
#include "food/recipe_record.h"

namespace velnor {

// A food with what is in its weight.
struct WeighedFood {
  std::string name;
  std::string weight;  // g, as it was typed
  DayTotals amounts;   // as the counter shows them
};

class FoodListPanel {
 public:
  FoodListPanel(const FoodTable& food, DayBalance& day, Exchanges& exchanges, Form& form,
                MessageBoxes& message_boxes);

  // Puts what the upper half weighs on the list, under the name `product`. A weight below 1 g is
  // refused with a message, but only after the line and the day's totals were written. A balance
  // that cannot be written is reported; what was not written is not on the list either.
  void Add(const std::string& product);
  // Puts a product on the list that was chosen by its row and not by its name. Its name may stand
  // for another one, or for none, so what its line takes off again is what was added with it.
  // Returns false if it could not be written.
  [[nodiscard]] bool AddChosen(const WeighedFood& food);
  // Takes the selected food off the list and off the day. Without a selection nothing happens.
  void Remove();
  // Takes the whole list off the day and empties it.
  void ClearList();

  // Nothing has been eaten today: clears the day and empties the list.
  void ClearDay();

  // Empties the list and puts `nothing` in its fields, those of the exchanges included: a login
  // leaves nothing of the user before. The day stays as it is.
  void Empty(std::string_view nothing);

  // What the records of the list are made of: its totals as they are shown, each cut to `limit`
  // characters, and its lines as they stand.
  TotalTexts Totals(std::size_t limit) const;
  std::vector<std::string> Lines() const;

 private:
  // A line of the list with what was added with it.
  struct AddedLine {
    std::string line;
    DayTotals amounts;
  };

  // What both have in common. Returns false if the day keeps what it held.
  bool Put(const WeighedFood& food);
  DayTotals AmountsOf(const std::string& line, const ListedFood& listed) const;
  void Forget(const std::string& line);
  // Adds to the totals; what is taken off is negative.
  void ChangeTotals(double weight, const DayTotals& amounts);
  void ShowTotals(const ListTotals& totals);
  void ReportFailedWrite();

  const FoodTable& food_;
  DayBalance& day_;
  Exchanges& exchanges_;
  Form& form_;
  MessageBoxes& message_boxes_;
  // The lines that were added with their products' own figures. They may hold traces, which the
  // same weight typed leaves out: what is taken off must be what was added.
  std::vector<std::string> lines_with_own_figures_;
  // The lines of products that are not those that their names stand for.
  std::vector<AddedLine> lines_of_other_products_;
  DayTotals left_out_;  // of the totals that are shown, by rounding
};

}  // namespace velnor

#endif  // VELNOR_FOOD_FOOD_LIST_PANEL_H_
