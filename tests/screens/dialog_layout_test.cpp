// The layout of the dialogs: one grid, equal margins, texts that fit, keys that walk through a
// dialog as it is read. Places are dialog units, as the templates give them.

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/legibility.h"
#include "tests/support/resource_script.h"

namespace velnor {
namespace {

constexpr int kAboutBox = 10000;
constexpr int kSearch = 10009;
constexpr int kBurnedRecord = 10012;

constexpr int kLineHeight = 8;     // by the definition of the unit
constexpr int kClosedHeight = 12;  // of a combo box: its own height is that of its open list
constexpr int kReserve = 8;        // percent that a text may be wider than estimated

struct Item {
  std::string kind;
  std::string text;
  int id = -1;
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;

  int right() const { return x + width; }
  int bottom() const { return y + (kind == "COMBOBOX" ? kClosedHeight : height); }
  bool is_label() const { return kind == "LTEXT"; }
  bool is_title() const { return kind == "CTEXT" && y < 20; }
  bool is_field() const { return kind == "EDITTEXT" || kind == "COMBOBOX"; }
  bool is_button() const { return kind == "DEFPUSHBUTTON" || kind == "PUSHBUTTON"; }
  bool is_tab_stop() const { return is_field() || is_button() || kind == "LISTBOX"; }
};

struct Layout {
  int width = 0;
  int height = 0;
  std::vector<Item> items;  // in the order of the keys
};

// What stands between quotes is one word, with its quotes.
std::vector<std::string> Words(const std::string& line) {
  std::vector<std::string> words(1);
  bool quoted = false;
  for (const char letter : line) {
    if (letter == '"') quoted = !quoted;
    if (quoted || (letter != ' ' && letter != ',')) {
      words.back() += letter;
    } else if (!words.back().empty()) {
      words.emplace_back();
    }
  }
  return words;
}

Item ReadItem(const std::vector<std::string>& words) {
  const bool has_text = words[1].front() == '"';
  const std::size_t id = has_text ? 2 : 1;
  const std::string text = has_text ? words[1].substr(1, words[1].size() - 2) : "";
  return {words[0],
          text,
          std::stoi(words[id]),
          std::stoi(words[id + 1]),
          std::stoi(words[id + 2]),
          std::stoi(words[id + 3]),
          std::stoi(words[id + 4])};
}

// The templates of the resource script, by their numbers.
std::map<int, Layout> ReadLayouts() {
  std::map<int, Layout> layouts;
  std::istringstream script(ResourceScript());
  Layout* current = nullptr;
  bool among_items = false;
  for (std::string line; std::getline(script, line);) {
    const std::vector<std::string> words = Words(line);
    if (words.size() > 5 && words[1] == "DIALOG") {
      current = &layouts[std::stoi(words[0])];
      *current = {std::stoi(words[4]), std::stoi(words[5]), {}};
    } else if (current != nullptr && words[0] == "BEGIN") {
      among_items = true;
    } else if (words[0] == "END") {
      among_items = false;
    } else if (among_items) {
      current->items.push_back(ReadItem(words));
    }
  }
  return layouts;
}

// Advances of the face that the templates name, in thousandths of its size. Where it is missing,
// as under Wine, the dialogs get the face of the screens.
struct LetterWidth {
  std::string_view letters;
  int width;
};
constexpr LetterWidth kSerifWidths[] = {
    {"'", 180},          {"|", 200},   {" ,.", 250},           {"/:;\\ijlt", 278},
    {"!()-I[]`fr", 333}, {"Js", 389},  {"?acez", 444},         {"FPS", 556},
    {"ELTZ", 611},       {"BCR", 667}, {"ADGHKNOQUVXYw", 722}, {"m", 778},
    {"M", 889},          {"W", 944},
};
constexpr int kOtherSerifWidth = 500;

int SerifWidth(std::string_view text) {
  int width = 0;
  for (const char letter : text) {
    const auto* const row =
        std::ranges::find_if(kSerifWidths, [letter](const LetterWidth& candidate) {
          return candidate.letters.find(letter) != std::string_view::npos;
        });
    width += row == std::end(kSerifWidths) ? kOtherSerifWidth : row->width;
  }
  return width;
}

int SansWidth(std::string_view text) { return WidestExtent({1149, 0, false}, text); }

// Four units are as wide as the mean letter of the alphabet.
template <typename Measure>
double Units(Measure measure, std::string_view text) {
  constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  return 4.0 * measure(text) * static_cast<double>(kAlphabet.size()) / measure(kAlphabet);
}

// In the wider of the two faces, without blanks at the end, with the reserve.
double WidthOfText(std::string text) {
  text.erase(text.find_last_not_of(' ') + 1);
  return std::max(Units(SerifWidth, text), Units(SansWidth, text)) * (100 + kReserve) / 100;
}

// The lines that the text takes when it is broken between words; a word too wide for the place
// counts as a hundred.
int LinesOfText(const Item& item) {
  constexpr int kTooMany = 100;
  int count = 1;
  std::string line;
  std::string text = item.text;
  for (std::size_t at = 0; (at = text.find("\\n", at)) != std::string::npos; at += 3) {
    text.replace(at, 2, " \n ");
  }
  std::istringstream words(text);
  for (std::string word; std::getline(words, word, ' ');) {
    if (WidthOfText(word) > item.width) return kTooMany;
    const bool ends_line = word == "\n";
    std::string longer = line;
    if (!longer.empty()) longer += ' ';
    longer += word;
    if (ends_line || WidthOfText(longer) > item.width) {
      ++count;
      line = ends_line ? "" : word;
    } else {
      line = longer;
    }
  }
  return count;
}

TEST(DialogLayoutTest, ReadsEveryItem) {
  const std::map<int, Layout> layouts = ReadLayouts();
  ASSERT_EQ(layouts.size(), 16U);
  EXPECT_EQ(layouts.at(10000).items.size(), 4U);
  EXPECT_EQ(layouts.at(10002).items.size(), 5U);
  EXPECT_EQ(layouts.at(10010).items.size(), 20U);
  EXPECT_EQ(layouts.at(10010).width, 210);
  const Item& add = layouts.at(10010).items[18];
  EXPECT_EQ(add.text, "ADD");
  EXPECT_EQ(add.id, 1);
  EXPECT_EQ(add.right(), 110);
}

TEST(DialogLayoutTest, EveryTextHasRoomInEitherFace) {
  for (const auto& [number, layout] : ReadLayouts()) {
    for (const Item& item : layout.items) {
      if (item.text.empty()) continue;
      if (item.is_title() || item.is_button()) {
        EXPECT_LE(WidthOfText(item.text), item.width) << number << ' ' << item.text;
      } else {
        EXPECT_LE(LinesOfText(item) * kLineHeight, item.height) << number << ' ' << item.text;
      }
    }
  }
}

TEST(DialogLayoutTest, NoTextReachesIntoTheFieldBesideIt) {
  for (const auto& [number, layout] : ReadLayouts()) {
    for (const Item& label : layout.items) {
      if (!label.is_label()) continue;
      for (const Item& field : layout.items) {
        const bool beside = field.is_tab_stop() && field.x > label.x && field.y < label.bottom() &&
                            field.bottom() > label.y;
        if (beside && LinesOfText(label) == 1) {
          EXPECT_LE(label.x + std::min<double>(WidthOfText(label.text), label.width), field.x + 1)
              << number << ' ' << label.text;
        }
      }
    }
  }
}

TEST(DialogLayoutTest, EverythingLiesInsideWithEqualMargins) {
  // Given sizes leave what they leave at the bottom.
  const std::set<int> given_sizes = {kAboutBox, 10004, 10005, kBurnedRecord};
  for (const auto& [number, layout] : ReadLayouts()) {
    int left = layout.width;
    int right = 0;
    int bottom = 0;
    for (const Item& item : layout.items) {
      EXPECT_LE(item.right(), layout.width) << number << ' ' << item.text;
      EXPECT_LE(item.bottom(), layout.height) << number << ' ' << item.text;
      if (item.y < 20) continue;  // frame and title
      left = std::min(left, item.x);
      right = std::max(right, item.right());
      if (item.is_button()) bottom = std::max(bottom, item.bottom());
    }
    if (number == kAboutBox) continue;  // centred texts have no margins
    EXPECT_EQ(left, layout.width - right) << number;
    if (given_sizes.contains(number)) continue;
    EXPECT_EQ(layout.height - bottom, left) << number;
  }
}

TEST(DialogLayoutTest, TitlesStandInOneFrame) {
  for (const auto& [number, layout] : ReadLayouts()) {
    const auto frame = std::ranges::find(layout.items, "GROUPBOX", &Item::kind);
    if (number == kSearch) {
      EXPECT_EQ(frame, layout.items.end());
      continue;
    }
    ASSERT_NE(frame, layout.items.end()) << number;
    EXPECT_EQ(frame->x, 2) << number;
    EXPECT_EQ(frame->y, 2) << number;
    EXPECT_EQ(frame->height, 20) << number;
    EXPECT_EQ(frame->width, number == kBurnedRecord ? 116 : layout.width - 4) << number;
    const auto title = std::ranges::find_if(layout.items, &Item::is_title);
    ASSERT_NE(title, layout.items.end()) << number;
    EXPECT_NEAR(title->x - frame->x, frame->right() - title->right(), 1) << number;
    EXPECT_NEAR(title->y, 9, 1) << number;
  }
}

// Beside its field a label stands a hair lower, since a field has an edge above its text.
TEST(DialogLayoutTest, LabelsStandAtTheHeightOfTheirFields) {
  int labels = 0;
  for (const auto& [number, layout] : ReadLayouts()) {
    for (std::size_t i = 0; i + 1 < layout.items.size(); ++i) {
      const Item& label = layout.items[i];
      const Item& field = layout.items[i + 1];
      const bool beside = label.is_label() && field.is_field() && field.y < label.bottom() &&
                          field.x > label.x && field.y + kLineHeight > label.y;
      if (!beside || label.text == "(lower case)") continue;
      ++labels;
      EXPECT_GE(label.y - field.y, 0) << number << ' ' << label.text;
      EXPECT_LE(label.y - field.y, 2) << number << ' ' << label.text;
    }
  }
  EXPECT_GT(labels, 30);
}

TEST(DialogLayoutTest, LabelsOfAColumnBeginAtOnePlace) {
  for (const auto& [number, layout] : ReadLayouts()) {
    std::map<int, int> beginnings;
    for (const Item& item : layout.items) {
      if (item.is_label()) ++beginnings[item.x];
    }
    if (beginnings.empty()) continue;
    // A second column has one label at most: the calories beside the mass.
    EXPECT_LE(beginnings.size(), number == 10010 ? 2U : 1U) << number;
  }
}

TEST(DialogLayoutTest, KeysWalkAsTheDialogIsRead) {
  for (const auto& [number, layout] : ReadLayouts()) {
    const Item* before = nullptr;
    for (const Item& item : layout.items) {
      if (!item.is_tab_stop()) continue;
      if (before != nullptr) {
        const bool to_the_right = item.x >= before->right();
        EXPECT_TRUE(to_the_right || item.y > before->y) << number << " id " << item.id;
        EXPECT_GE(item.y, before->y) << number << " id " << item.id;
      }
      before = &item;
    }
  }
}

TEST(DialogLayoutTest, EnterAndEscapeHaveTheirButtons) {
  for (const auto& [number, layout] : ReadLayouts()) {
    EXPECT_EQ(std::ranges::count(layout.items, "DEFPUSHBUTTON", &Item::kind), 1) << number;
    const auto is_cancel = [](const Item& item) { return item.is_button() && item.id == 2; };
    // The About box has one button, and its procedure takes Escape for it.
    EXPECT_EQ(std::ranges::count_if(layout.items, is_cancel), number == kAboutBox ? 0 : 1)
        << number;
  }
}

TEST(DialogLayoutTest, ButtonsOfARowAreOfOneSize) {
  for (const auto& [number, layout] : ReadLayouts()) {
    for (const Item& button : layout.items) {
      for (const Item& other : layout.items) {
        if (!button.is_button() || !other.is_button() || button.y != other.y) continue;
        EXPECT_EQ(button.height, other.height) << number << ' ' << other.text;
        if (number == kSearch) continue;
        EXPECT_EQ(button.width, other.width) << number << ' ' << other.text;
      }
    }
  }
}

}  // namespace
}  // namespace velnor
