// What the bare window is told to do when it is pressed: the visible work of a deed and nothing
// else. The benchmark writes it, sends it as one text, and the bare window reads it.

#ifndef VELNOR_BENCH_BARE_WORK_H_
#define VELNOR_BENCH_BARE_WORK_H_

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velnor::bench {

// The verbs. Ids are those of the program's controls, dialogs and screens; a control of the open
// dialog comes before one of the main window.
inline constexpr std::string_view kOn = "on";          // id, notification: what follows is for it
inline constexpr std::string_view kFill = "fill";      // id, texts
inline constexpr std::string_view kAdd = "add";        // id, texts
inline constexpr std::string_view kRemove = "remove";  // id: its first item
inline constexpr std::string_view kText = "text";      // id, text
inline constexpr std::string_view kSelect = "select";  // id, index
inline constexpr std::string_view kWrite = "write";    // bytes, file name
inline constexpr std::string_view kAppend = "append";  // bytes, file name
inline constexpr std::string_view kOpen = "open";      // id of a dialog, hidden at first
inline constexpr std::string_view kShow = "show";      // 0: the open dialog
inline constexpr std::string_view kClose = "close";    // 0: the open dialog
inline constexpr std::string_view kScreen = "screen";  // number
inline constexpr std::string_view kBox = "box";        // 0, text

struct Step {
  std::string verb;
  int number = 0;
  std::vector<std::string> texts = {};
};
using Work = std::vector<Step>;

// Characters that no text of the program has.
inline constexpr char kFieldEnd = '\x1E';
inline constexpr char kStepEnd = '\x1F';

inline std::string Encode(const Work& work) {
  std::string text;
  for (const Step& step : work) {
    text.append(step.verb).append(1, kFieldEnd).append(std::to_string(step.number)) += kFieldEnd;
    for (const std::string& field : step.texts) text.append(field) += kFieldEnd;
    text += kStepEnd;
  }
  return text;
}

inline std::vector<std::string> Split(std::string_view text, char end) {
  std::vector<std::string> parts;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t next = std::min(text.find(end, at), text.size());
    parts.emplace_back(text.substr(at, next - at));
    at = next + 1;
  }
  return parts;
}

inline Work Decode(std::string_view text) {
  Work work;
  for (const std::string& line : Split(text, kStepEnd)) {
    std::vector<std::string> fields = Split(line, kFieldEnd);
    if (fields.size() < 2) continue;
    work.push_back(Step{std::move(fields[0]), std::atoi(fields[1].c_str())});
    work.back().texts.assign(std::move_iterator(fields.begin() + 2),
                             std::move_iterator(fields.end()));
  }
  return work;
}

}  // namespace velnor::bench

#endif  // VELNOR_BENCH_BARE_WORK_H_
