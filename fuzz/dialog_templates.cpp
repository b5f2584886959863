#include "fuzz/dialog_templates.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>

#include "base/number_text.h"
#include "fuzz/program_run.h"
#include "tests/support/picture.h"

namespace velnor {
namespace {

using Templates = std::map<int, std::vector<DialogControl>>;

struct Keyword {
  std::string_view word;
  ControlClass control_class;
  bool has_text;  // between the keyword and the id
};

constexpr Keyword kKeywords[] = {
    {"EDITTEXT ", ControlClass::kEdit, false},       {"LISTBOX ", ControlClass::kListBox, false},
    {"COMBOBOX ", ControlClass::kComboBox, false},   {"PUSHBUTTON ", ControlClass::kButton, true},
    {"DEFPUSHBUTTON ", ControlClass::kButton, true},
};

std::optional<DialogControl> ControlOf(std::string_view line) {
  line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
  const auto* const keyword = std::ranges::find_if(
      kKeywords, [=](const Keyword& row) { return line.starts_with(row.word); });
  if (keyword == std::end(kKeywords)) return std::nullopt;
  std::string_view id = line.substr(keyword->word.size());
  if (keyword->has_text) id.remove_prefix(id.rfind('"') + 2);
  std::uint32_t style = control_style::kPlain;
  if (line.find("LBS_SORT") != std::string_view::npos) style |= control_style::kSortedList;
  if (line.find("ES_MULTILINE") != std::string_view::npos) style |= control_style::kMultiLine;
  if (line.find("ES_READONLY") != std::string_view::npos) style |= control_style::kReadOnly;
  return DialogControl{ParseInteger(id), keyword->control_class, style};
}

Templates ReadTemplates() {
  Templates templates;
  std::vector<DialogControl>* current = nullptr;
  std::istringstream script(ReadResource("velnor.rc"));
  for (std::string line; std::getline(script, line);) {
    if (line.find(" DIALOG ") != std::string::npos) current = &templates[ParseInteger(line)];
    if (line.starts_with("END")) current = nullptr;
    if (current == nullptr) continue;
    if (const auto control = ControlOf(line)) current->push_back(*control);
  }
  return templates;
}

}  // namespace

const std::vector<DialogControl>& DialogTemplate(int resource_id) {
  static const Templates templates = ReadTemplates();
  const auto found = templates.find(resource_id);
  Require(found != templates.end() && !found->second.empty(), "every dialog has a template");
  return found->second;
}

}  // namespace velnor
