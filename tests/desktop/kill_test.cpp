// The program killed at random moments of a day: every file is whole, and it starts again and goes
// on. VELNOR_KILLS sets how often.

#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "tests/desktop/driver.h"
#include "tests/support/history_sums.h"

namespace velnor::desktop {
namespace {

using Texts = std::vector<std::string>;

constexpr int kDefaultKills = 25;
constexpr DWORD kLongestLife = 400;  // milliseconds of work before the kill

Texts Split(const std::string& text, const std::string& separator) {
  Texts parts;
  std::size_t from = 0;
  for (std::size_t at; (at = text.find(separator, from)) != std::string::npos;
       from = at + separator.size()) {
    parts.push_back(text.substr(from, at - from));
  }
  parts.push_back(text.substr(from));
  return parts;
}

bool IsNumber(const std::string& text) {
  return !text.empty() && text.find_first_not_of("0123456789.e+-") == std::string::npos;
}

class Kill : public testing::Test {
 protected:
  Kill() {
    CreateDirectoryA((folder_.path() + "Ann").c_str(), nullptr);
    folder_.Write("users.ASC", "Ann");
    folder_.Write("Ann\\info.ASC", kProfile);
  }
  static void LogIn(const App& app) {
    app.main().Command(200);
    const Window login = app.WaitForPopup();
    ASSERT_TRUE(login.Choose(700, "Ann"));
    login.PostCommand(IDOK);
    ASSERT_TRUE(WaitUntilGone(login.handle()));
  }
  // Presses what writes, again and again, without waiting for anything.
  static void Work(HWND window) {
    const auto press = [window](int id) {
      PostMessageA(window, WM_COMMAND, static_cast<WPARAM>(id), 0);
    };
    for (int round = 0; round < 60; ++round) {
      press(127);  // add the food
      press(127);
      press(161);                      // count the activity
      press(177);                      // add what it burned
      press(175);                      // no personal limits
      if (round % 7 == 6) press(146);  // clear the list
    }
  }
  std::string File(const std::string& name) const {
    return folder_.Read("Ann\\" + name).value_or("");
  }
  void ExpectWholeFiles() const {
    EXPECT_EQ(folder_.Read("users.ASC"), "Ann");
    EXPECT_EQ(File("info.ASC"), kProfile);
    const Texts balance = Split(File("bilans.ASC"), "\r\n");
    EXPECT_EQ(balance.front(), Today());
    EXPECT_TRUE(balance.size() == 1 || balance.size() == 5) << File("bilans.ASC");
    for (std::size_t i = 1; i < balance.size(); ++i) EXPECT_TRUE(IsNumber(balance[i]));
    for (const char* const name : {"z1.ASC", "z2.ASC"}) {
      EXPECT_TRUE(File(name).empty() || IsNumber(File(name))) << name << ": " << File(name);
    }
    const Texts days = Split(File("wykoda.txt"), "\r\n");
    EXPECT_LE(days.size(), 2U) << File("wykoda.txt");
    if (days.size() == 2) {
      EXPECT_EQ(days.back(), "");
      EXPECT_EQ(Split(days.front(), ";").size(), 6U) << days.front();
      EXPECT_EQ(Split(days.front(), ";").front(), Today());
    }
    const std::string burned = File("erg.txt");
    EXPECT_TRUE(burned.empty() || (burned.starts_with(Today() + ';') && burned.ends_with(';')))
        << burned;
  }

  // Once what was cut off has been made up for, which the start of the program does.
  void ExpectHistoryTellsTheDay() const {
    ExpectWellFormedHistory(File("dziennik.csv"));
    ExpectToldTotals(File("dziennik.csv"), File("bilans.ASC"));
    const Texts burned = Split(File("erg.txt"), ";");
    const ToldDay told = DaysOfHistory(File("dziennik.csv")).begin()->second;
    EXPECT_NEAR(told.burned.sum, burned.size() < 2 ? 0 : std::atof(burned[1].c_str()),
                told.burned.Tolerance());
  }

  static constexpr const char* kProfile = "35\r\n170\r\nwomen\r\nlow\r\nnone";
  WorkFolder folder_;
};

TEST_F(Kill, AtAnyMomentLeavesWholeFiles) {
  const char* const wanted = std::getenv("VELNOR_KILLS");
  const int kills = wanted == nullptr ? kDefaultKills : std::atoi(wanted);
  std::mt19937 random(5'032'026);
  int found_leftovers = 0;
  for (int i = 0; i < kills; ++i) {
    const App app(folder_);
    LogIn(app);
    if (i > 0) ExpectHistoryTellsTheDay();
    app.main().Command(238);
    app.Settle();
    app.main().Choose(159, "swimming");
    app.main().SetText(160, "10");
    app.main().Command(231);
    app.Settle();
    app.main().Choose(124, "fruits");
    app.main().Choose(125, "frozen");
    app.main().Choose(126, "frozen strawberries");
    Work(app.main().handle());
    Sleep(random() % kLongestLife);
    app.Kill();
    ExpectWholeFiles();
    for (const std::string& name : folder_.Names("Ann")) {
      found_leftovers += name.ends_with(".new") ? 1 : 0;
    }
    if (HasFailure()) FAIL() << "after kill " << i;
  }
  {
    const App app(folder_);  // clears them away
  }
  for (const std::string& name : folder_.Names("Ann")) EXPECT_FALSE(name.ends_with(".new")) << name;
  EXPECT_EQ(folder_.Read("velnor.zapis"), std::nullopt);
  std::printf("%d kills; a half-written file lay beside a whole one %d times\n", kills,
              found_leftovers);
  // The next one starts, and writes what it should.
  const App app(folder_);
  LogIn(app);
  ExpectHistoryTellsTheDay();
  EXPECT_GT(DaysOfHistory(File("dziennik.csv")).begin()->second.entries, kills);
  app.main().Command(233);
  app.Settle();
  app.main().Command(165);
  EXPECT_EQ(File("bilans.ASC"), Today());
  EXPECT_EQ(File("z1.ASC"), "0");
  ExpectHistoryTellsTheDay();
}

}  // namespace
}  // namespace velnor::desktop
