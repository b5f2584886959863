#include "food/recipe_record.h"

namespace velnor {
namespace {

constexpr std::size_t kRows = 70;
constexpr std::size_t kRowLimit = 127;
constexpr std::size_t kLongRule = 86;
constexpr std::size_t kShortRule = 35;

std::string LongRule() { return '\t' + std::string(kLongRule, '*'); }
std::string ShortRule() { return "\t\t\t" + std::string(kShortRule, '*'); }

}  // namespace

std::vector<std::string> CompositionOf(const std::vector<std::string>& lines) {
  std::vector<std::string> rows;
  for (const std::string& line : lines) {
    if (line.empty() || rows.size() == kRows) break;
    rows.push_back(line.substr(0, kRowLimit));
  }
  return rows;
}

std::string RecipeRecordText(const RecipeRecord& record) {
  std::string text = LongRule() + '\n' + ShortRule() + '\n';
  text += "DATE: " + record.date + '\n';
  text += "NAME:  " + record.name + '\n';
  text += "[kcal]:" + record.totals.kcal + " proteins[g]:" + record.totals.protein +
          " fat[g]:" + record.totals.fat + " carbohydrates[g]:" + record.totals.carbohydrate + '\n';
  text += "COMPOSITION:\n";
  for (const std::string& row : record.composition) text += row + '\n';
  text += "RECIPE:  \n" + record.recipe + '\n';
  text += ShortRule() + '\n' + LongRule() + "\n\n";
  return text;
}

}  // namespace velnor
