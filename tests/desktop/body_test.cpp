// Two people and their measures, from the typed figure to the saved record.

#include <cstdio>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/desktop/driver.h"

namespace velnor::desktop {
namespace {

using Texts = std::vector<std::string>;

constexpr int kOpenBmi = 221;
constexpr int kOpenWhr = 224;
constexpr int kOpenBmr = 225;
constexpr int kWeight = 101;

class Body : public testing::Test {
 protected:
  Body() {
    folder_.Write("users.ASC", "Adam\r\nZoe");
    for (const char* const name : {"Adam", "Zoe"}) {
      CreateDirectoryA((folder_.path() + name).c_str(), nullptr);
    }
    folder_.Write("Adam\\info.ASC", "35\r\n175\r\nmen\r\nlow\r\nnone");
    folder_.Write("Zoe\\info.ASC", "30\r\n165\r\nwomen\r\nlow\r\nnone");
  }

  static void LogIn(const App& app, const std::string& name) {
    app.main().Command(200);
    const Window dialog = app.WaitForPopup();
    ASSERT_TRUE(dialog.Choose(700, name));
    dialog.PostCommand(IDOK);
    EXPECT_TRUE(WaitUntilGone(dialog.handle()));
  }
  static void LogOut(const App& app) {
    app.main().PostCommand(201);
    Answer(app.WaitForMessageBox(), IDOK);
  }
  static void Show(const App& app, int screen) {
    app.main().Command(screen);
    app.Settle();
  }
  // Types into an edit of the main window with the keyboard.
  static void Type(const App& app, int edit, const std::string& text) {
    ClickOn(app.main().Control(edit));
    EXPECT_TRUE(WaitUntil([&app] {
      GUITHREADINFO info = {};
      info.cbSize = sizeof info;
      return GetGUIThreadInfo(0, &info) != 0 && info.hwndCaret != nullptr &&
             GetAncestor(info.hwndCaret, GA_ROOT) == app.main().handle();
    }));
    TypeKeys(text);
    EXPECT_TRUE(WaitUntil([&] { return app.main().Text(edit) == text; })) << edit;
  }
  // Clicks on a button of the main window that opens a dialog.
  static Window ClickForDialog(const App& app, int button) {
    ClickOn(app.main().Control(button));
    const Window dialog = app.WaitForPopup();
    EXPECT_EQ(dialog.Caption(), "Velnor calorie counter");
    return dialog;
  }
  static Texts Fields(const Window& dialog, const std::vector<int>& ids) {
    Texts texts;
    for (const int id : ids) texts.push_back(dialog.Text(id));
    return texts;
  }
  // What is to be seen of the main window.
  std::string Picture(const App& app) const {
    app.Settle();
    Sleep(200);  // the display draws a moment after the program has finished
    app.main().SavePicture(folder_.path() + "picture.bmp");
    std::string bytes = folder_.Read("picture.bmp").value_or("");
    std::remove((folder_.path() + "picture.bmp").c_str());
    return bytes;
  }

  WorkFolder folder_;
};

const std::vector<int> kWeightFields = {709, 710, 711, 716};
const std::vector<int> kWhrFields = {709, 713, 714, 715, 716};

TEST_F(Body, AManFromWeightToSavedRecord) {
  const App app(folder_);
  LogIn(app, "Adam");
  Show(app, kOpenBmi);
  Type(app, kWeight, "70");
  const std::string before = Picture(app);
  ClickOn(app.main().Control(102));
  EXPECT_TRUE(WaitUntil([&] { return Picture(app) != before; }));

  Window dialog = ClickForDialog(app, 103);
  EXPECT_EQ(Fields(dialog, kWeightFields), (Texts{Today(), "70", "22.8571", ""}));
  PressKey(VK_RETURN);  // the button that saves is the default one
  EXPECT_TRUE(WaitUntilGone(dialog.handle()));
  const std::string line = "date: " + Today() + "\tbody weight[kg]: 70\tBMI: 22.85\tother: \t\r\n";
  EXPECT_EQ(folder_.Read("Adam\\waga.ASC"), line);
  EXPECT_EQ(folder_.Read("Adam\\wykwag.txt"), Today() + ";70;22.85;\r\n");

  dialog = ClickForDialog(app, 103);
  dialog.SetText(709, "1.1.2020");
  dialog.SetText(710, "69.456");
  dialog.SetText(716, "evening");
  dialog.Command(IDOK);
  EXPECT_EQ(folder_.Read("Adam\\waga.ASC"),
            line + "date: 1.1.2020\tbody weight[kg]: 69.456\tBMI: 22.85\tother: evening\t\r\n");
  EXPECT_EQ(folder_.Read("Adam\\wykwag.txt"), Today() + ";69.456;22.85;\r\n");
}

TEST_F(Body, AWomanFromWeightToSavedRecord) {
  const App app(folder_);
  LogIn(app, "Zoe");
  Show(app, kOpenBmi);
  Type(app, kWeight, "60.5");
  ClickOn(app.main().Control(102));
  app.Settle();
  const Window weight = ClickForDialog(app, 103);
  EXPECT_EQ(Fields(weight, kWeightFields), (Texts{Today(), "60.5", "22.2222", ""}));
  weight.Command(IDOK);
  EXPECT_EQ(folder_.Read("Zoe\\waga.ASC"),
            "date: " + Today() + "\tbody weight[kg]: 60.5\tBMI: 22.22\tother: \t\r\n");
  EXPECT_EQ(folder_.Read("Zoe\\wykwag.txt"), Today() + ";60.5;22.22;\r\n");

  Show(app, kOpenWhr);
  Type(app, 104, "80.129");
  Type(app, 105, "100");
  ClickOn(app.main().Control(106));
  app.Settle();
  const Window whr = ClickForDialog(app, 107);
  EXPECT_EQ(Fields(whr, kWhrFields), (Texts{Today(), "80.129", "100", "0.80129", ""}));
  whr.Command(IDOK);
  EXPECT_EQ(folder_.Read("Zoe\\whr.ASC"),
            "date: " + Today() + "\twaist[cm]: 80.12\thip[cm]: 100.\tWHR: 0.8\tother: \r\n");
  EXPECT_EQ(folder_.Names("Adam"), (Texts{"info.ASC"}));
}

TEST_F(Body, ResultsOutliveScreensLogoutAndAnotherLogin) {
  const App app(folder_);
  LogIn(app, "Adam");
  Show(app, kOpenBmi);
  const std::string empty = Picture(app);
  app.main().SetText(kWeight, "70");
  app.main().Command(102);
  const std::string counted = Picture(app);
  EXPECT_NE(counted, empty);
  Show(app, kOpenWhr);
  app.main().SetText(104, "85");
  app.main().SetText(105, "100");
  app.main().Command(106);
  Show(app, 252);
  Show(app, kOpenBmi);
  EXPECT_EQ(Picture(app), counted);

  LogOut(app);
  LogIn(app, "Zoe");
  Show(app, kOpenBmi);
  EXPECT_EQ(app.main().Text(kWeight), "70");
  app.main().Command(103);
  const Window weight = app.WaitForPopup();
  EXPECT_EQ(Fields(weight, kWeightFields), (Texts{Today(), "70", "22.8571", ""}));
  weight.Command(IDCANCEL);
  Show(app, kOpenWhr);
  app.main().Command(107);
  const Window whr = app.WaitForPopup();
  EXPECT_EQ(Fields(whr, kWhrFields), (Texts{Today(), "85", "100", "0.85", ""}));
  whr.Command(IDCANCEL);
  EXPECT_EQ(folder_.Read("Zoe\\waga.ASC"), std::nullopt);
  EXPECT_EQ(folder_.Read("Zoe\\wykwag.txt"), std::nullopt);
  EXPECT_EQ(folder_.Read("Zoe\\whr.ASC"), std::nullopt);

  LogOut(app);
  LogIn(app, "Adam");
  Show(app, kOpenBmi);
  EXPECT_EQ(Picture(app), counted);
}

TEST_F(Body, TheBmrTakesTheWeightOfTheBmiAndShowsAtOnce) {
  const App app(folder_);
  LogIn(app, "Adam");
  Show(app, kOpenBmi);
  app.main().SetText(kWeight, "70");
  Show(app, kOpenBmr);
  EXPECT_EQ(app.main().Text(kWeight), "70");
  const std::string before = Picture(app);
  app.main().Command(176);
  const std::string after = Picture(app);
  EXPECT_NE(after, before);
  app.main().SetText(kWeight, "");
  app.main().SetText(kWeight, "70");
  app.main().Command(176);
  EXPECT_EQ(Picture(app), after);
}

TEST_F(Body, NothingOfTheDialogsIsCoveredByItsNeighbour) {
  const App app(folder_);
  LogIn(app, "Adam");
  for (const int button : {103, 107}) {
    app.main().Command(button);
    const Window dialog = app.WaitForPopup();
    RECT inside = {};
    GetClientRect(dialog.handle(), &inside);
    MapWindowPoints(dialog.handle(), nullptr, reinterpret_cast<POINT*>(&inside), 2);
    std::vector<RECT> places;
    for (const HWND control : dialog.Controls()) {
      RECT place = {};
      GetWindowRect(control, &place);
      EXPECT_TRUE(place.left >= inside.left && place.right <= inside.right &&
                  place.top >= inside.top && place.bottom <= inside.bottom)
          << button << ' ' << Window(control).Caption();
      if (Window(control).Caption().empty() && GetDlgCtrlID(control) == 0xFFFF) continue;
      for (const RECT& other : places) {  // all but the frame, which is there to stand around
        RECT common = {};
        EXPECT_EQ(IntersectRect(&common, &place, &other), FALSE) << Window(control).Caption();
      }
      places.push_back(place);
    }
    dialog.Command(IDCANCEL);
    EXPECT_TRUE(WaitUntilGone(dialog.handle()));
  }
}

TEST_F(Body, TheTabKeyGoesFromFieldToFieldAndOnToTheButtons) {
  const App app(folder_);
  LogIn(app, "Adam");
  const auto tab_order = [&app](int button) {
    app.main().Command(button);
    const Window dialog = app.WaitForPopup();
    std::vector<int> ids;
    HWND control = nullptr;
    do {
      control = GetNextDlgTabItem(dialog.handle(), control, FALSE);
      ids.push_back(GetDlgCtrlID(control));
    } while (ids.back() != IDCANCEL && ids.size() < 10);
    dialog.Command(IDCANCEL);
    EXPECT_TRUE(WaitUntilGone(dialog.handle()));
    return ids;
  };
  EXPECT_EQ(tab_order(103), (std::vector<int>{709, 710, 711, 716, IDOK, IDCANCEL}));
  EXPECT_EQ(tab_order(107), (std::vector<int>{709, 713, 714, 715, 716, IDOK, IDCANCEL}));
}

}  // namespace
}  // namespace velnor::desktop
