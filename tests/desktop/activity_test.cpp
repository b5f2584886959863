// Burned calories: an activity counted, added to the day, saved as a record and cleared again.

#include <algorithm>
#include <cstddef>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <vector>

#include "tests/desktop/driver.h"

namespace velnor::desktop {
namespace {

using Texts = std::vector<std::string>;

constexpr int kOpenLogin = 200;
constexpr int kOpenActivities = 238;
constexpr int kActivities = 159;
constexpr int kMinutes = 160;
constexpr int kCount = 161;
constexpr int kSaveReport = 162;
constexpr int kCalories = 163;
constexpr int kFat = 164;
constexpr int kAdd = 177;
constexpr int kClear = 179;
constexpr int kTotal = 180;

struct ExpectedActivity {
  const char* name;
  const char* factor;
  const char* kcal;
  const char* fat;
};

constexpr ExpectedActivity kExpected[] = {
#include "tests/support/burned_activities.inc"
};

class Activity : public testing::Test {
 protected:
  Activity() {
    CreateDirectoryA((folder_.path() + "Zoe").c_str(), nullptr);
    folder_.Write("users.ASC", "Zoe");
    folder_.Write("Zoe\\info.ASC", "35\r\n170\r\nwomen\r\nlow\r\nnone");
  }
  // Zoe is logged in and has the activities before her.
  static void OpenActivities(const App& app) {
    app.main().Command(kOpenLogin);
    const Window login = app.WaitForPopup();
    ASSERT_TRUE(login.Choose(700, "Zoe"));
    login.PostCommand(IDOK);
    ASSERT_TRUE(WaitUntilGone(login.handle()));
    app.main().Command(kOpenActivities);
    app.Settle();
  }
  static void Count(const App& app, const std::string& activity, const std::string& minutes) {
    ASSERT_TRUE(app.main().Choose(kActivities, activity)) << activity;
    app.main().SetText(kMinutes, minutes);
    app.main().Command(kCount);
  }
  std::string TotalFile() const { return folder_.Read("Zoe\\erg.txt").value_or("(missing)"); }

  WorkFolder folder_;
};

TEST_F(Activity, ADayOfBurnedCalories) {
  const std::string report =
      Today() +
      "  activity: cooking  time[min]: 45  calories burned[kcal]: 78.75  fat burned[g]: 6.75  \r\n"
      "other: soup\r\n" +
      std::string(99, '-') + "\r\n";
  {
    const App app(folder_);
    OpenActivities(app);
    EXPECT_EQ(TotalFile(), "");
    EXPECT_EQ(app.main().Text(kTotal), "0");
    Count(app, "cooking", "45");
    EXPECT_EQ(app.main().Text(kCalories), "78.75");
    EXPECT_EQ(app.main().Text(kFat), "6.75");
    EXPECT_EQ(TotalFile(), "");
    app.main().Command(kAdd);
    EXPECT_EQ(TotalFile(), Today() + ";78.75;");
    app.Settle();
    EXPECT_EQ(app.main().Text(kTotal), "78.75");
    EXPECT_EQ(app.main().Selected(kActivities), std::nullopt) << "the repaint fills the list anew";

    app.main().Command(kSaveReport);
    const Window dialog = app.WaitForPopup();
    EXPECT_EQ(dialog.Caption(), "Velnor calorie counter");
    EXPECT_EQ((Texts{dialog.Text(709), dialog.Text(741), dialog.Text(742), dialog.Text(743),
                     dialog.Text(744), dialog.Text(745)}),
              (Texts{Today(), "cooking", "45", "78.75", "6.75", ""}));
    for (const int id : {741, 742, 743, 744}) {
      EXPECT_TRUE(GetWindowLongA(dialog.Control(id), GWL_STYLE) & ES_READONLY) << id;
    }
    for (const int id : {709, 745}) {
      EXPECT_FALSE(GetWindowLongA(dialog.Control(id), GWL_STYLE) & ES_READONLY) << id;
    }
    dialog.SetText(745, "soup");
    dialog.PostCommand(IDOK);
    EXPECT_TRUE(WaitUntilGone(dialog.handle()));
    EXPECT_EQ(folder_.Read("Zoe\\cwiczenia.ASC"), report);

    app.main().Command(kSaveReport);
    const Window cancelled = app.WaitForPopup();
    cancelled.PostCommand(IDCANCEL);
    EXPECT_TRUE(WaitUntilGone(cancelled.handle()));
    EXPECT_EQ(folder_.Read("Zoe\\cwiczenia.ASC"), report);
  }
  const App app(folder_);
  OpenActivities(app);
  EXPECT_EQ(app.main().Text(kTotal), "78.75");
  Count(app, "sitting", "30");
  EXPECT_EQ(app.main().Text(kFat), "0.771428585");
  app.main().Command(kAdd);
  EXPECT_EQ(TotalFile(), Today() + ";87.75;");

  app.main().PostCommand(kClear);
  const MessageBoxSeen box = app.WaitForMessageBox();
  EXPECT_EQ(box.text, "Balance has been cleared");
  EXPECT_EQ(box.caption, "Velnor calorie counter");
  EXPECT_EQ(app.main().Text(kTotal), "0");
  EXPECT_EQ(TotalFile(), "");
  Answer(box, IDOK);
  app.Settle();
  EXPECT_EQ(app.main().Text(kTotal), "0");
  EXPECT_EQ(folder_.Names("Zoe"),
            (Texts{"bilans.ASC", "cwiczenia.ASC", "dziennik.csv", "erg.txt", "info.ASC"}));
  EXPECT_EQ(folder_.Names(), (Texts{"Zoe", "kopie zapasowe", "users.ASC"}));
}

// The order of the list is the platform's; what every name counts as is asked of every tenth.
TEST_F(Activity, TheListOffersAllAndCountsByName) {
  const App app(folder_);
  OpenActivities(app);
  const Texts items = app.main().Items(kActivities);
  EXPECT_EQ(items.size(), std::size(kExpected));
  for (std::size_t i = 0; i < std::size(kExpected); ++i) {
    const ExpectedActivity& expected = kExpected[i];
    EXPECT_EQ(std::ranges::count(items, expected.name), 1) << expected.name;
    if (i % 10 != 0) continue;
    Count(app, expected.name, "7");
    EXPECT_EQ(app.main().Text(kCalories), expected.kcal) << expected.name;
    EXPECT_EQ(app.main().Text(kFat), expected.fat) << expected.name;
  }
}

TEST_F(Activity, AnotherDaysTotalIsShownOnceMore) {
  const App app(folder_);
  OpenActivities(app);
  folder_.Write("Zoe\\erg.txt", "1.1.1999;120.;");
  app.main().Command(kOpenActivities);
  // Not settled: that could paint twice, and the second time the old total is gone.
  EXPECT_TRUE(WaitUntil([&] { return app.main().Text(kTotal) == "120."; }));
  EXPECT_EQ(TotalFile(), "");
  app.main().Command(kOpenActivities);
  app.Settle();
  EXPECT_EQ(app.main().Text(kTotal), "0");

  std::string another_year = Today();
  another_year.back() = another_year.back() == '9' ? '8' : '9';
  folder_.Write("Zoe\\erg.txt", another_year + ";120.;");
  for (int i = 0; i < 2; ++i) {
    app.main().Command(kOpenActivities);
    app.Settle();
  }
  EXPECT_EQ(app.main().Text(kTotal), "120.");
  EXPECT_EQ(TotalFile(), another_year + ";120.;");
  Count(app, "golf", "10");
  app.main().Command(kAdd);
  EXPECT_EQ(TotalFile(), Today() + ";162.;");
}

// A click into the field, keys, clicks on the buttons.
TEST_F(Activity, ByMouseAndKeyboard) {
  const App app(folder_);
  OpenActivities(app);
  ASSERT_TRUE(app.main().Choose(kActivities, "swimming"));
  ClickOn(app.main().Control(kMinutes));
  TypeKeys("7.5");
  ASSERT_TRUE(WaitUntil([&] { return app.main().Text(kMinutes) == "7.5"; }));
  ClickOn(app.main().Control(kCount));
  EXPECT_TRUE(WaitUntil([&] { return app.main().Text(kCalories) == "75."; }));
  ClickOn(app.main().Control(kAdd));
  EXPECT_TRUE(WaitUntil([&] { return TotalFile() == Today() + ";75.;"; }));
  ClickOn(app.main().Control(kSaveReport));
  const Window dialog = app.WaitForPopup();
  ClickOn(dialog.Control(745));
  TypeKeys("pool");
  ASSERT_TRUE(WaitUntil([&] { return dialog.Text(745) == "pool"; }));
  PressKey(VK_RETURN);
  EXPECT_TRUE(WaitUntilGone(dialog.handle()));
  EXPECT_EQ(folder_.Read("Zoe\\cwiczenia.ASC"),
            Today() +
                "  activity: swimming  time[min]: 7.5  calories burned[kcal]: 75.  fat burned[g]: "
                "6.428  \r\nother: pool\r\n" +
                std::string(99, '-') + "\r\n");
}

// Backups and virus scanners open files for a moment; what is added meanwhile must not be lost.
TEST_F(Activity, AFileHeldForAMomentIsWritten) {
  const App app(folder_);
  OpenActivities(app);
  Count(app, "swimming", "7.5");
  const HANDLE held =
      CreateFileA((folder_.path() + "Zoe\\erg.txt").c_str(), GENERIC_READ,
                  FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  app.main().PostCommand(kAdd);
  Sleep(150);
  CloseHandle(held);
  app.Settle();
  EXPECT_EQ(TotalFile(), Today() + ";75.;");
  EXPECT_EQ(app.main().Text(kTotal), "75.");
}

}  // namespace
}  // namespace velnor::desktop
