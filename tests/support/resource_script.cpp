#include "tests/support/resource_script.h"

#include <algorithm>
#include <cctype>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <optional>
#include <sstream>
#include <string_view>

#include "base/number_text.h"
#include "tests/support/picture.h"

namespace velnor {
namespace {

using Names = std::map<std::string, std::string, std::less<>>;
using Templates = std::map<int, std::vector<DialogControl>>;

// The numbers of the header that the script shares with the program, by their names.
Names ReadNames() {
  Names names;
  std::istringstream header(ReadResource("ids.h"));
  for (std::string line; std::getline(header, line);) {
    std::istringstream words(line);
    std::string define;
    std::string name;
    std::string number;
    if (words >> define >> name >> number && define == "#define") names[name] = number;
  }
  return names;
}

bool IsOfName(char letter) {
  return std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '_';
}

struct Keyword {
  std::string_view word;
  ControlClass control_class;
  bool has_text;  // between the keyword and the id
};

constexpr Keyword kKeywords[] = {
    {"EDITTEXT ", ControlClass::kEdit, false},       {"LISTBOX ", ControlClass::kListBox, false},
    {"COMBOBOX ", ControlClass::kComboBox, false},   {"PUSHBUTTON ", ControlClass::kButton, true},
    {"DEFPUSHBUTTON ", ControlClass::kButton, true}, {"LTEXT ", ControlClass::kStatic, true},
};

struct StyleWord {
  std::string_view word;
  std::uint32_t style;
};

constexpr StyleWord kStyles[] = {
    {"LBS_SORT", control_style::kSortedList},
    {"CBS_DROPDOWNLIST", control_style::kDropDownList},
    {"ES_MULTILINE", control_style::kMultiLine},
    {"ES_READONLY", control_style::kReadOnly},
};

std::optional<DialogControl> ControlOf(std::string_view line) {
  line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
  const auto* const keyword = std::ranges::find_if(
      kKeywords, [=](const Keyword& row) { return line.starts_with(row.word); });
  if (keyword == std::end(kKeywords)) return std::nullopt;
  std::string_view id = line.substr(keyword->word.size());
  if (keyword->has_text) id.remove_prefix(id.rfind('"') + 2);
  DialogControl control = {ParseInteger(id), keyword->control_class, control_style::kPlain};
  if (control.id < 0) return std::nullopt;
  for (const StyleWord& row : kStyles) {
    if (line.find(row.word) != std::string_view::npos) control.style |= row.style;
  }
  return control;
}

Templates ReadTemplates() {
  Templates templates;
  std::vector<DialogControl>* current = nullptr;
  std::istringstream script(ResourceScript());
  for (std::string line; std::getline(script, line);) {
    if (line.find(" DIALOG ") != std::string::npos) current = &templates[ParseInteger(line)];
    if (line.starts_with("END")) current = nullptr;
    if (current == nullptr) continue;
    if (const auto control = ControlOf(line)) current->push_back(*control);
  }
  return templates;
}

}  // namespace

std::string ResourceScript() {
  static const Names names = ReadNames();
  const std::string script = ReadResource("velnor.rc");
  std::string numbered;
  for (auto letter = script.begin(); letter != script.end();) {
    const auto end = std::find_if_not(letter, script.end(), IsOfName);
    if (end == letter) {
      numbered += *letter++;
      continue;
    }
    const std::string word(letter, end);
    const auto name = names.find(word);
    numbered += name == names.end() ? word : name->second;
    letter = end;
  }
  return numbered;
}

const std::vector<DialogControl>& DialogTemplate(int resource_id) {
  static const Templates templates = ReadTemplates();
  static const std::vector<DialogControl> kNoControls;
  const auto found = templates.find(resource_id);
  if (found != templates.end()) return found->second;
  ADD_FAILURE() << "dialog " << resource_id << " has no template";
  return kNoControls;
}

}  // namespace velnor
