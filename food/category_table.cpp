// The main categories and their subcategories, in the order of the combo boxes.

#include "food/food_table.h"

namespace velnor {
namespace {

constexpr std::string_view kNone = kUnusedSlot;

// "grain preserves" has a ninth subcategory whose name is empty; the products overview offers it.
constexpr CategoryRecord kCategories[] = {
    {"poultry",
     {"goose", "turkey", "chicken", "duck", "giblets", "hen", "other", kNone, kNone, kNone, kNone,
      kNone}},
    {"fruits",
     {"frozen", "fresh", "dried", "preserves", "tin", "other", kNone, kNone, kNone, kNone, kNone,
      kNone}},
    {"vegetables",
     {"fresh", "frozen", "tin", "dried", "other", kNone, kNone, kNone, kNone, kNone, kNone, kNone}},
    {"grain preserves",
     {"flour", "groats", "rice", "breakfast", "other", kNone, kNone, kNone, "", kNone, kNone,
      kNone}},
    {"dairy products",
     {"cheese", "cottage cheese", "processed cheese", "eggs", "other", kNone, kNone, kNone, kNone,
      kNone, kNone, kNone}},
    {"drinks",
     {"juice", "carbonated", "non-carbonated", "compote", "syrup", "other", kNone, kNone, kNone,
      kNone, kNone, kNone}},
    {"fats",
     {"plant fats", "animal fats", "other", kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone,
      kNone}},
    {"sweets",
     {"chocolate", "ice cream", "small cakes", "candy", "chocolate bar", "cake", "crisps",
      "dessert", "other", "gummi", kNone, kNone}},
    {"fish",
     {"fresh", "smoked", "fish preserves", "seafood", "frozen", "other", kNone, kNone, kNone, kNone,
      kNone, kNone}},
    {"spices",
     {"sauce", "dry spices", "wet spices", "other", "herbs", kNone, kNone, kNone, kNone, kNone,
      kNone, kNone}},
    {"milk preserves",
     {"drinks", "milk", "cream", "other", kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone}},
    {"meat",
     {"mutton", "veal", "pork", "beef", "preserves", "other", "horsemeat", "game", kNone, kNone,
      kNone, kNone}},
    {"sausages",
     {"pork/beef", "offal", "turkey", "chicken", "other", kNone, kNone, kNone, kNone, kNone, kNone,
      kNone}},
    {"noodles",
     {"pasta", "other", kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone}},
    {"bread",
     {"rye", "mixed", "wheat", "other", kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone}},
    {"soup",
     {"frozen", "traditional", "other", "pouder", "instant", kNone, kNone, kNone, kNone, kNone,
      kNone, kNone}},
    {"mushrooms",
     {"fresh", "dried", "other", kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone}},
    {"pulse and nutts",
     {"nutts", "pulse", "other", kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone}},
    {"alcohol",
     {"beer", "wine", "other", "vodka", kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone}},
    {"other",
     {"sugar", "honey", "no category", kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone,
      kNone}},
    {"dishes",
     {"traditional/meat", "other", "salad", "traditional/no meat", "traditional/fish", kNone, kNone,
      kNone, kNone, kNone, kNone, kNone}},
    {"tinned food",
     {"poultry", "pork/beef", "offal", "fish", "other", kNone, kNone, kNone, kNone, kNone, kNone,
      kNone}},
};
static_assert(std::size(kCategories) == 22);

}  // namespace

std::span<const CategoryRecord> BuiltInCategories() { return kCategories; }

}  // namespace velnor
