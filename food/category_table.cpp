// The main categories and their subcategories, in the order of the combo boxes.

#include "food/food_table.h"

namespace velnor {
namespace {

// "grain preserves" has a ninth subcategory whose name is empty; the products overview offers it.
constexpr CategoryRecord kCategories[] = {
    {"poultry", {"goose", "turkey", "chicken", "duck", "giblets", "hen", "other"}},
    {"fruits", {"frozen", "fresh", "dried", "preserves", "tin", "other"}},
    {"vegetables", {"fresh", "frozen", "tin", "dried", "other"}},
    {"grain preserves",
     {"flour", "groats", "rice", "breakfast", "other", std::nullopt, std::nullopt, std::nullopt,
      ""}},
    {"dairy products", {"cheese", "cottage cheese", "processed cheese", "eggs", "other"}},
    {"drinks", {"juice", "carbonated", "non-carbonated", "compote", "syrup", "other"}},
    {"fats", {"plant fats", "animal fats", "other"}},
    {"sweets",
     {"chocolate", "ice cream", "small cakes", "candy", "chocolate bar", "cake", "crisps",
      "dessert", "other", "gummi"}},
    {"fish", {"fresh", "smoked", "fish preserves", "seafood", "frozen", "other"}},
    {"spices", {"sauce", "dry spices", "wet spices", "other", "herbs"}},
    {"milk preserves", {"drinks", "milk", "cream", "other"}},
    {"meat", {"mutton", "veal", "pork", "beef", "preserves", "other", "horsemeat", "game"}},
    {"sausages", {"pork/beef", "offal", "turkey", "chicken", "other"}},
    {"noodles", {"pasta", "other"}},
    {"bread", {"rye", "mixed", "wheat", "other"}},
    {"soup", {"frozen", "traditional", "other", "pouder", "instant"}},
    {"mushrooms", {"fresh", "dried", "other"}},
    {"pulse and nutts", {"nutts", "pulse", "other"}},
    {"alcohol", {"beer", "wine", "other", "vodka"}},
    {"other", {"sugar", "honey", "no category"}},
    {"dishes", {"traditional/meat", "other", "salad", "traditional/no meat", "traditional/fish"}},
    {"tinned food", {"poultry", "pork/beef", "offal", "fish", "other"}},
};
static_assert(std::size(kCategories) == 22);

}  // namespace

std::span<const CategoryRecord> BuiltInCategories() { return kCategories; }

}  // namespace velnor
