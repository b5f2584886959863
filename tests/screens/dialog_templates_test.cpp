// The templates of the dialogs: which there are, and which of their fields a person can change.

#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>
#include <string>

#include "tests/support/resource_script.h"

namespace velnor {
namespace {

struct Template {
  std::string caption;
  std::map<int, bool> edits;  // by id: whether it can be changed
};

std::string FirstWord(const std::string& line) {
  std::istringstream words(line);
  std::string word;
  words >> word;
  return word;
}

// The templates of the resource script, by their numbers.
std::map<int, Template> ReadTemplates() {
  std::map<int, Template> templates;
  std::istringstream script(ResourceScript());
  Template* current = nullptr;
  for (std::string line; std::getline(script, line);) {
    const std::string word = FirstWord(line);
    if (line.find(" DIALOG ") != std::string::npos) current = &templates[std::stoi(word)];
    if (current == nullptr) continue;
    if (word == "CAPTION") current->caption = line.substr(std::string("CAPTION ").size());
    if (word == "EDITTEXT") {
      const std::string id = line.substr(line.find(word) + word.size());
      current->edits[std::stoi(id)] = line.find("ES_READONLY") == std::string::npos;
    }
  }
  return templates;
}

TEST(DialogTemplatesTest, ThereIsOneForEveryDialogAndAllBearTheTitle) {
  std::set<int> numbers;
  for (const auto& [number, dialog] : ReadTemplates()) {
    numbers.insert(number);
    EXPECT_EQ(dialog.caption, "\"Velnor calorie counter\"") << number;
  }
  EXPECT_EQ(numbers, (std::set<int>{10000, 10001, 10002, 10003, 10004, 10005, 10006, 10007, 10009,
                                    10010, 10011, 10012, 10020, 10021, 10022, 10023}));
}

// What was counted is not to be changed in a record, the rest is the person's: the date of a report
// too, but not that of a recipe.
TEST(DialogTemplatesTest, CountedFiguresAndTheDateOfARecipeCannotBeChanged) {
  const std::map<int, std::map<int, bool>> expected = {
      {10000, {}},
      {10001, {{701, true}}},
      {10002, {}},
      {10003, {{704, true}, {705, true}}},
      {10004, {{709, true}, {710, true}, {711, true}, {716, true}}},
      {10005, {{709, true}, {713, true}, {714, true}, {715, true}, {716, true}}},
      {10006,
       {{709, true},
        {717, false},
        {718, false},
        {719, false},
        {721, false},
        {722, false},
        {723, true},
        {746, false},
        {747, false}}},
      {10007, {{709, false}, {724, true}, {725, true}}},
      {10009, {{728, true}}},
      {10010, {{734, true}, {735, true}, {736, true}, {737, true}, {738, true}, {740, true}}},
      {10011, {}},
      {10012, {{709, true}, {741, false}, {742, false}, {743, false}, {744, false}, {745, true}}},
      {10020, {{810, true}, {812, true}}},
      {10021, {{801, true}}},
      {10022, {{801, true}}},
      {10023, {{801, true}}},
  };
  for (const auto& [number, dialog] : ReadTemplates()) {
    EXPECT_EQ(dialog.edits, expected.at(number)) << number;
  }
}

}  // namespace
}  // namespace velnor
