// A list is filled in one step: however many items it gets, it is drawn once. Drawn at every item,
// its scroll bar alone takes a person's seconds.

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/desktop/driver.h"
#include "tests/desktop/list_watch.h"

namespace velnor::desktop {
namespace {

constexpr int kOpenCounter = 231;
constexpr int kOpenBurned = 238;
constexpr int kOpenSearch = 149;
constexpr int kOwnProducts = 3000;
constexpr int kFreshFruits = 29;  // built in
constexpr int kFound = 1111;      // of the own products, those with "pie 1"
constexpr int kActivities = 101;

std::string OwnProducts() {
  std::string lines;
  for (int i = 0; i < kOwnProducts; ++i) {
    lines += "fruits;fresh;pie " + std::to_string(i) + ";100;237;1.9;11;34.0;\r\n";
  }
  return lines;
}

class Fill : public testing::Test {
 protected:
  Fill() { folder_.Write("data.txt", OwnProducts()); }

  // Waits until the program has painted, by itself, what it has to: a paint asked for from here
  // would come on top of its own.
  static void Wait(const Window& window, HWND list) {
    EXPECT_TRUE(WaitUntil([&] {
      SendMessageA(window.handle(), WM_NULL, 0, 0);
      return GetUpdateRect(window.handle(), nullptr, FALSE) == 0 &&
             GetUpdateRect(list, nullptr, FALSE) == 0;
    }));
    SendMessageA(window.handle(), WM_NULL, 0, 0);
  }

  WorkFolder folder_;
};

TEST_F(Fill, ThreeThousandProductsAreDrawnOnce) {
  const App app(folder_);
  const Window& window = app.main();
  const HWND list = window.Control(126);
  window.Command(kOpenCounter);
  Wait(window, list);
  ASSERT_TRUE(window.Choose(124, "fruits"));
  Wait(window, list);
  const ListWatch watch(list);
  ASSERT_TRUE(window.Choose(125, "fresh"));
  Wait(window, list);
  EXPECT_EQ(watch.counts().added, kFreshFruits + kOwnProducts);
  EXPECT_EQ(watch.counts().added_and_drawn, 0);
  EXPECT_EQ(watch.counts().paints, 1);
}

TEST_F(Fill, FoundProductsAreDrawnOnceASearchAndPileUp) {
  const App app(folder_);
  app.main().Command(kOpenCounter);
  app.main().PostCommand(kOpenSearch);
  const Window dialog = app.WaitForPopup();
  const HWND list = dialog.Control(729);
  dialog.SetText(728, "pie 1");
  Wait(dialog, list);
  const ListWatch watch(list);
  for (int search = 1; search <= 2; ++search) {
    dialog.Command(730);
    Wait(dialog, list);
    EXPECT_EQ(watch.counts().added, search * kFound);
    EXPECT_EQ(watch.counts().added_and_drawn, 0);
    EXPECT_EQ(watch.counts().paints, search);
  }
  EXPECT_EQ(SendMessageA(list, LB_GETCOUNT, 0, 0), 2 * kFound);
}

// A list that is filled while it is hidden stays hidden until its screen shows it.
TEST_F(Fill, TheActivitiesAreDrawnOnceAPaintingOfTheScreen) {
  const App app(folder_);
  const Window& window = app.main();
  const HWND list = window.Control(159);
  EXPECT_FALSE(window.IsShown(159));
  window.Command(kOpenBurned);
  Wait(window, list);
  EXPECT_TRUE(window.IsShown(159));
  const ListWatch watch(list);
  window.Command(kOpenBurned);
  Wait(window, list);
  EXPECT_EQ(watch.counts().added, kActivities);
  EXPECT_EQ(watch.counts().added_and_drawn, 0);
  EXPECT_EQ(watch.counts().paints, 1);
}

using Names = std::vector<std::string>;

// The items of a sorted list box that is given these one after the other.
Names AsTheBoxSorts(const Names& names) {
  constexpr int kList = 1;
  const HWND parent = CreateWindowExA(0, "static", "", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr,
                                      nullptr, nullptr);
  const HWND list = CreateWindowExA(0, "listbox", "", WS_CHILD | LBS_SORT, 0, 0, 100, 100, parent,
                                    reinterpret_cast<HMENU>(kList), nullptr, nullptr);
  for (const std::string& name : names) {
    SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
  }
  Names sorted = Window(parent).Items(kList);
  DestroyWindow(parent);
  return sorted;
}

// As the list of own products to remove shows them.
Names AsTheProgramSorts(const Names& names) {
  const WorkFolder folder;
  std::string lines;
  for (const std::string& name : names) {
    lines += "fruits;fresh;" + name + ";100;237;1.9;11;34.0;\r\n";
  }
  folder.Write("data.txt", lines);
  const App app(folder);
  app.main().Command(241);
  return app.WaitForPopup().Items(739);
}

TEST(FillOrder, IsThatOfTheBox) {
  const Names names = {"pie 10", "pie 2",      "pie-2",     "pie's",      "pies",      "\xBFurek",
                       "zupa",   "100% juice", "_pie",      "Apples",     "apple pie", "APRICOTS",
                       "co-op",  "coop",       "coop 1",    "pie (big)",  "pie, big",  "\xE6ma",
                       "cma",    "pie 10",     "<tab\tin>", "\xA3OSO\x8C"};
  EXPECT_EQ(AsTheProgramSorts(names), AsTheBoxSorts(names));
}

// The box takes these for one another: their order is how it found a place for each.
TEST(FillOrder, IsThatOfTheBoxWhereItSeesNoDifference) {
  const Names names = {"figs", "Figs", "pears", "FIGS", "fIgS", "apples", "figs", "Pears", "peARS"};
  EXPECT_EQ(AsTheProgramSorts(names), AsTheBoxSorts(names));
}

}  // namespace
}  // namespace velnor::desktop
