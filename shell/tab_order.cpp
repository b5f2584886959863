#include "shell/tab_order.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "base/form.h"
#include "shell/controls.h"

namespace velnor {
namespace {

constexpr int kClosedComboHeight = 24;  // pixels; the table has the height of the open one
constexpr int kLineHeight = 36;         // pixels; what begins within them begins on one line

struct PlacedControl {
  int key;
  int left, top, right, bottom;
};
using Block = std::vector<PlacedControl>;

bool TakesKeyboard(const ControlRow& row) {
  const bool is_frame =
      row.control_class == ControlClass::kButton && row.style == control_style::kGroupBox;
  return row.control_class != ControlClass::kStatic && !is_frame;
}

Block FindControls(std::span<const int> keys) {
  Block found;
  std::vector<int> seen;
  for (const ControlRow& row : MainWindowControls()) {
    const int key = std::ranges::count(seen, row.id) == 0 ? row.id : SecondControl(row.id);
    seen.push_back(row.id);
    if (std::ranges::count(keys, key) == 0 || !TakesKeyboard(row)) continue;
    const Rectangle& place = row.place;
    const int height =
        row.control_class == ControlClass::kComboBox ? kClosedComboHeight : place.height;
    found.push_back({key, place.x, place.y, place.x + place.width, place.y + height});
  }
  return found;
}

// Cuts the block at the gaps in one direction; `from` and `to` are the bounds in it.
std::vector<Block> Cut(Block block, int PlacedControl::*from, int PlacedControl::*to) {
  std::ranges::stable_sort(block, {}, from);
  std::vector<Block> parts;
  int reached = 0;
  for (const PlacedControl& control : block) {
    if (parts.empty() || control.*from >= reached) parts.emplace_back();
    parts.back().push_back(control);
    reached = std::max(reached, control.*to);
  }
  return parts;
}

int TopOf(const Block& block) {
  return std::ranges::min_element(block, {}, &PlacedControl::top)->top;
}

// Of the columns that begin on the line of the highest one, the leftmost is next; they lie from
// left to right.
std::vector<Block> InReadingOrder(std::vector<Block> columns) {
  std::vector<Block> ordered;
  while (!columns.empty()) {
    const int highest = TopOf(*std::ranges::min_element(columns, {}, TopOf));
    const auto next = std::ranges::find_if(
        columns, [highest](const Block& column) { return TopOf(column) < highest + kLineHeight; });
    ordered.push_back(std::move(*next));
    columns.erase(next);
  }
  return ordered;
}

void Read(const Block& block, std::vector<int>& order);

void ReadRow(const Block& row, std::vector<int>& order) {
  const std::vector<Block> columns =
      InReadingOrder(Cut(row, &PlacedControl::left, &PlacedControl::right));
  for (const Block& column : columns) {
    // What overlaps in both directions cannot be cut any further.
    if (column.size() == 1 || columns.size() == 1) {
      for (const PlacedControl& control : column) order.push_back(control.key);
    } else {
      Read(column, order);
    }
  }
}

void Read(const Block& block, std::vector<int>& order) {
  for (const Block& row : Cut(block, &PlacedControl::top, &PlacedControl::bottom)) {
    ReadRow(row, order);
  }
}

}  // namespace

std::vector<int> TabOrder(std::span<const int> keys) {
  std::vector<int> order;
  Read(FindControls(keys), order);
  return order;
}

int NextInTabOrder(std::span<const int> order, int current, bool backwards) {
  if (order.empty()) return 0;
  const auto found = std::ranges::find(order, current);
  if (found == order.end()) return backwards ? order.back() : order.front();
  const auto count = order.size();
  const auto place = static_cast<std::size_t>(found - order.begin());
  return order[(place + (backwards ? count - 1 : 1)) % count];
}

}  // namespace velnor
