// Two programs on one user at once, and a third that is killed now and then: nothing is refused,
// and the day's figures are those of everything that all of them took. VELNOR_DEEDS sets how many
// deeds each of the two does.

#include <array>
#include <atomic>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "tests/desktop/driver.h"
#include "tests/support/history_sums.h"

namespace velnor::desktop {
namespace {

using Texts = std::vector<std::string>;

constexpr int kDefaultDeeds = 60;

constexpr int kFoods = 134;
constexpr int kAdd = 127;
constexpr int kTakeOff = 136;
constexpr int kClearList = 146;

class TwoPrograms : public testing::Test {
 protected:
  TwoPrograms() {
    CreateDirectoryA((folder_.path() + "Ann").c_str(), nullptr);
    folder_.Write("users.ASC", "Ann");
    folder_.Write("Ann\\info.ASC", "35\r\n170\r\nwomen\r\nlow\r\nnone");
    // Of round figures, with names that removing does not take for one another, and not
    // proportional to those of the other: from a day's totals one can tell how many of each were
    // taken.
    folder_.Write("data.txt",
                  "fruits;fresh;apple;100;100;10;0;0;\r\n"
                  "fruits;fresh;big melon;100;1;0;1;0;\r\n");
  }
  static void LogIn(const App& app) {
    app.main().Command(200);
    const Window login = app.WaitForPopup();
    ASSERT_TRUE(login.Choose(700, "Ann"));
    login.PostCommand(IDOK);
    ASSERT_TRUE(WaitUntilGone(login.handle()));
  }
  static void Choose(const App& app, const char* product) {
    app.main().Command(238);
    app.Settle();
    app.main().Choose(159, "swimming");
    app.main().SetText(160, "10");
    app.main().Command(161);
    app.main().Command(231);
    app.Settle();
    app.main().Choose(124, "fruits");
    app.main().Choose(125, "fresh");
    app.main().Choose(126, product);
  }
  std::string File(const std::string& name) const {
    return folder_.Read("Ann\\" + name).value_or("(missing)");
  }

  WorkFolder folder_;
};

// What one of the two has done.
struct Done {
  int foods = 0;    // that it took and did not take off
  int records = 0;  // of eaten calories
  int products = 0;
  int refused = 0;
};

// Saves a record of the eaten calories.
bool SaveRecord(const App& app) {
  app.main().Command(145);
  const Window dialog = app.WaitForPopup();
  dialog.Command(IDOK);
  return WaitUntilGone(dialog.handle());
}

bool AddProduct(const App& app, const std::string& name) {
  app.main().Command(240);
  const Window dialog = app.WaitForPopup();
  dialog.Choose(732, "fruits");
  dialog.Choose(733, "fresh");
  dialog.SetText(734, name);
  for (const int id : {740, 736, 737, 738}) dialog.SetText(id, "1");
  const Texts said = app.CommandAndAnswer(dialog, IDOK);
  dialog.Command(IDCANCEL);
  WaitUntilGone(dialog.handle());
  return said == Texts{"New product was added to database"};
}

// Every deed is waited for, and what the list shows afterwards is what was taken.
Done Work(const App& app, int deeds, const std::string& name) {
  Done done;
  const Window& window = app.main();
  const auto count = [&] { return static_cast<int>(window.Items(kFoods).size()); };
  const auto press = [&](int button) {
    for (const std::string& text : app.CommandAndAnswer(window, button)) {
      ADD_FAILURE() << name << button << ": " << text;
    }
  };
  for (int i = 0; i < deeds; ++i) {
    int expected = done.foods + 1;
    if (i % 29 == 28) {
      done.refused += AddProduct(app, name + std::to_string(i)) ? 0 : 1;
      ++done.products;
      continue;
    }
    if (i % 13 == 12) {
      done.refused += SaveRecord(app) ? 0 : 1;
      ++done.records;
      continue;
    }
    if (i % 23 == 22) {
      press(kClearList);
      expected = 0;
    } else if (i % 5 == 4 && done.foods > 0) {
      window.Choose(kFoods, window.Items(kFoods).front());
      press(kTakeOff);
      expected = done.foods - 1;
    } else {
      press(kAdd);
    }
    done.foods = count();
    done.refused += done.foods == expected ? 0 : 1;
  }
  return done;
}

// Presses what writes, again and again, and is killed meanwhile.
void WorkAndDie(const App& app, DWORD life) {
  for (int i = 0; i < 200; ++i) PostMessageA(app.main().handle(), WM_COMMAND, kAdd, 0);
  Sleep(life);
  app.Kill();
}

Texts Lines(const std::string& text) {
  Texts lines;
  std::size_t from = 0;
  for (std::size_t at; (at = text.find("\r\n", from)) != std::string::npos; from = at + 2) {
    lines.push_back(text.substr(from, at - from));
  }
  if (from < text.size()) lines.push_back(text.substr(from));
  return lines;
}

std::size_t Count(const std::string& text, const std::string& what) {
  std::size_t count = 0;
  for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += what.size()) {
    ++count;
  }
  return count;
}

TEST_F(TwoPrograms, OnOneUserLoseNothing) {
  const char* const wanted = std::getenv("VELNOR_DEEDS");
  const int deeds = wanted == nullptr ? kDefaultDeeds : std::atoi(wanted);
  const App one(folder_);
  const App two(folder_);
  for (const App* const app : {&one, &two}) {
    LogIn(*app);
    Choose(*app, "apple");
  }
  std::atomic<int> working = 2;
  std::array<Done, 2> done;
  std::thread first([&] {
    done[0] = Work(one, deeds, "first ");
    --working;
  });
  std::thread second([&] {
    done[1] = Work(two, deeds, "second ");
    --working;
  });
  std::mt19937 random(16'112'026);
  int kills = 0;
  while (working > 0) {
    const App third(folder_);
    LogIn(third);
    Choose(third, "big melon");
    WorkAndDie(third, random() % 300);
    ++kills;
  }
  first.join();
  second.join();
  {
    const App last(folder_);  // finishes what the last kill cut off, and clears up
    LogIn(last);
  }

  EXPECT_EQ(done[0].refused + done[1].refused, 0);
  const Texts balance = Lines(File("bilans.ASC"));
  ASSERT_EQ(balance.size(), 5U) << File("bilans.ASC");
  const int foods = done[0].foods + done[1].foods;
  const double killed = std::atof(balance[3].c_str());  // of fat only these have any
  EXPECT_EQ(killed, std::floor(killed));
  EXPECT_EQ(std::atof(balance[1].c_str()), 100 * foods + killed);
  EXPECT_EQ(std::atof(balance[2].c_str()), 10 * foods);
  EXPECT_EQ(File("wykoda.txt"), Today() + ';' + balance[1] + ';' + balance[2] + ';' + balance[3] +
                                    ';' + balance[4] + ";\r\n");
  // A protein-fat exchange is 100 kcal: 4 of a gram of protein and 9 of one of fat.
  EXPECT_NEAR(std::atof(File("z2.ASC").c_str()), (10 * 4 * foods + 9 * killed) / 100, 0.01);
  ExpectWellFormedHistory(File("dziennik.csv"));
  ExpectToldTotals(File("dziennik.csv"), File("bilans.ASC"));
  EXPECT_EQ(Count(File("mirvo.ASC"), Today()),
            static_cast<std::size_t>(done[0].records + done[1].records));
  const Texts products = Lines(folder_.Read("data.txt").value_or(""));
  EXPECT_EQ(products.size(), static_cast<std::size_t>(2 + done[0].products + done[1].products));
  EXPECT_EQ(std::set<std::string>(products.begin(), products.end()).size(), products.size());
  for (const char* const folder : {"", "Ann"}) {
    for (const std::string& name : folder_.Names(folder)) {
      EXPECT_TRUE(!name.ends_with(".new") && !name.starts_with("velnor.")) << name;
    }
  }
  const int lines = DaysOfHistory(File("dziennik.csv")).begin()->second.entries;
  EXPECT_GT(lines, deeds);
  std::printf(
      "%d deeds by each of two, %d foods at the end; %d kills, %.0f foods of the killed; "
      "%d lines of history\n",
      deeds, foods, kills, killed, lines);
}

}  // namespace
}  // namespace velnor::desktop
