// Finding a food while its name is being typed: all products by pieces of their names, the best
// first. Used by the quick way to add a food.

#ifndef VELNOR_FOOD_QUICK_FIND_H_
#define VELNOR_FOOD_QUICK_FIND_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "food/eating_habits.h"
#include "food/food_table.h"
#include "food/nutrition.h"

namespace velnor {

// A product that was found. Nothing in it is a view: the user's products may be reloaded under it.
struct QuickMatch {
  std::string name;
  SelectedProduct product;
  bool is_own = false;           // one of the user's
  std::string last_weight = {};  // g, what was eaten of it last; empty when that is not known

  // The name as a list shows it: "[B] apple pie" for one of the user's.
  std::string ListText() const;
};

class QuickFind {
 public:
  // `food` and `habits` must live as long as the object.
  QuickFind(const FoodTable& food, const EatingHabits& habits) : food_(food), habits_(habits) {}

  // The products whose names hold every word of `query`, in any order, without regard to case or to
  // the marks of letters; at most `limit`, the best first. A word that begins one of the name is
  // better than one in the middle of it; then comes what is eaten often and lately, as it is on
  // `today`, then a name that begins with the query's first word, then the shorter name.
  std::vector<QuickMatch> Find(std::string_view query, int today, std::size_t limit);

  // What is eaten most around that hour of the day, at most `limit`; behind it, by how often and
  // how lately, what is eaten at others.
  std::vector<QuickMatch> EatenAround(int hour, int today, std::size_t limit);

 private:
  // A product as it is looked for.
  struct Entry {
    std::string_view name;  // folded, in text_
    const ProductRecord* product;
    bool is_own;
  };
  struct Ranked {
    const Entry* entry;
    int first;  // of the more important reasons the better is the smaller, in this order
    double second;
    int third;
  };

  // Takes the products anew when they have been reloaded.
  void Update();
  std::vector<QuickMatch> Best(std::vector<Ranked>& ranked, std::size_t limit) const;

  const FoodTable& food_;
  const EatingHabits& habits_;
  std::string text_;  // the folded names, one behind the other
  std::vector<Entry> entries_;
  unsigned generation_ = 0;
};

}  // namespace velnor

#endif  // VELNOR_FOOD_QUICK_FIND_H_
