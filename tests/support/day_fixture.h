// A day of Ann's, who has complete data and the nutrition counter open.

#ifndef VELNOR_TESTS_SUPPORT_DAY_FIXTURE_H_
#define VELNOR_TESTS_SUPPORT_DAY_FIXTURE_H_

#include <string>
#include <vector>

#include "tests/support/program_fixture.h"

namespace velnor {

class DayTest : public ProgramTest {
 protected:
  static constexpr int kOpenCounter = 231;
  static constexpr int kOpenBalance = 233;
  static constexpr int kAdd = 127;
  static constexpr int kRemove = 136;
  static constexpr int kClearList = 146;
  static constexpr int kClearDay = 165;
  static constexpr int kList = 134;

  void OpenCounter() {
    LogIn("Ann", "35\r\n170\r\nwomen\r\nlow\r\nnone");
    Open(kOpenCounter);
  }
  void Choose(const std::string& main_category, const std::string& subcategory,
              const std::string& product) {
    form_.Choose(124, main_category);
    form_.Choose(125, subcategory);
    form_.Choose(126, product);
  }
  void AddStrawberries(const std::string& weight) {
    Choose("fruits", "frozen", "frozen strawberries");
    form_.Type(128, weight);
    form_.Press(kAdd);
  }
  void AddButter(const std::string& weight) {
    Choose("fats", "animal fats", "butter");
    form_.Type(128, weight);
    form_.Press(kAdd);
  }
  void AddOwnButter() {
    Choose("fats", "animal fats", "butter");
    form_.Press(kAdd);
  }
  void Remove(const std::string& line) {
    form_.Choose(kList, line);
    form_.Press(kRemove);
  }
  // Clears the day on its own screen, and returns to the counter.
  void ClearDay() {
    Open(kOpenBalance);
    form_.Press(kClearDay);
    Open(kOpenCounter);
  }
  // Weight, kcal, protein, fat, carbohydrate.
  std::vector<std::string> Totals() const { return Shown(137, 141); }
  std::vector<std::string> Ratio() const { return Shown(142, 144); }
  std::vector<std::string> ShownExchanges() const { return Shown(183, 184); }
  std::string Read(const std::string& name) const { return folder_.Read("Ann/" + name); }
  void Write(const std::string& name, std::string_view bytes) const {
    folder_.Write("Ann/" + name, bytes);
  }
  // The balance, its lines joined by blanks.
  std::string Balance() const {
    std::string text = Read("bilans.ASC");
    for (std::size_t at; (at = text.find("\r\n")) != std::string::npos;) text.replace(at, 2, " ");
    return text;
  }

 private:
  std::vector<std::string> Shown(int first, int last) const {
    std::vector<std::string> texts;
    for (int id = first; id <= last; ++id) texts.push_back(form_.Text(id));
    return texts;
  }
};

}  // namespace velnor

#endif  // VELNOR_TESTS_SUPPORT_DAY_FIXTURE_H_
