// Products of one's own, from the first to the last, as a person has them.

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/desktop/driver.h"

namespace velnor::desktop {
namespace {

using Texts = std::vector<std::string>;

constexpr int kOpenAdd = 240;
constexpr int kOpenRemove = 241;
constexpr int kOpenSearch = 149;

const std::string kPieLine = "fruits;fresh;apple pie;100;237;1.9;11;34.0;\r\n";

void FillIn(const Window& dialog, const std::string& name) {
  ASSERT_TRUE(dialog.Choose(732, "fruits"));
  ASSERT_TRUE(dialog.Choose(733, "fresh"));
  dialog.SetText(734, name);
  dialog.SetText(740, "237");
  dialog.SetText(736, "1.9");
  dialog.SetText(737, "11");
  dialog.SetText(738, "34.0");
}

// Presses a button of a dialog and answers `count` boxes; their texts, in order.
Texts PressAndAnswer(const App& app, const Window& dialog, int button, std::size_t count,
                     int answer) {
  dialog.PostCommand(button);
  Texts texts;
  while (texts.size() < count) {
    const MessageBoxSeen box = app.WaitForMessageBox(dialog);
    texts.push_back(box.text);
    EXPECT_EQ(box.caption, "Velnor calorie counter");
    Answer(box, answer);
  }
  SendMessageA(dialog.handle(), WM_NULL, 0, 0);
  return texts;
}

Window OpenDialog(const App& app, int command) {
  app.main().Command(command);
  return app.WaitForPopup();
}

void CloseDialog(const Window& dialog) {
  dialog.Command(IDCANCEL);
  EXPECT_TRUE(WaitUntilGone(dialog.handle()));
}

Texts FreshFruits(const App& app) {
  app.main().Command(231);
  app.Settle();
  EXPECT_TRUE(app.main().Choose(124, "fruits"));
  EXPECT_TRUE(app.main().Choose(125, "fresh"));
  return app.main().Items(126);
}

TEST(OwnProducts, AddedWeighedFoundRemoved) {
  const WorkFolder folder;
  {
    const App app(folder);
    Window dialog = OpenDialog(app, kOpenAdd);
    ASSERT_NE(dialog.handle(), nullptr);
    EXPECT_EQ(dialog.Caption(), "Velnor calorie counter");
    EXPECT_EQ(dialog.Text(735), "100");
    FillIn(dialog, "Apple Pie");
    EXPECT_EQ(PressAndAnswer(app, dialog, IDOK, 1, IDOK),
              (Texts{"New product was added to database"}));
    EXPECT_EQ(dialog.Text(734), "");
    EXPECT_EQ(folder.Read("data.txt"), kPieLine);

    const Texts fruits = FreshFruits(app);
    EXPECT_EQ(fruits.size(), 30U);
    EXPECT_TRUE(std::is_sorted(fruits.begin(), fruits.end()));
    ASSERT_TRUE(app.main().Choose(126, "apple pie"));
    app.main().SetText(128, "50");
    EXPECT_EQ(app.main().Text(129), "118.5");

    FillIn(dialog, "Apple Pie");
    PressAndAnswer(app, dialog, IDOK, 1, IDOK);
    EXPECT_EQ(folder.Read("data.txt"), kPieLine + kPieLine);
    CloseDialog(dialog);

    dialog = OpenDialog(app, kOpenSearch);
    dialog.SetText(728, "apple pie");
    dialog.Command(730);
    const Texts found = dialog.Items(729);
    EXPECT_EQ(std::ranges::count(found, "[B] fruits --> fresh --> apple pie"), 2);
    CloseDialog(dialog);
  }
  {
    const App app(folder);
    const Window dialog = OpenDialog(app, kOpenRemove);
    EXPECT_EQ(dialog.Items(739), (Texts{"apple pie", "apple pie"}));
    ASSERT_TRUE(dialog.Choose(739, "apple pie"));
    EXPECT_EQ(PressAndAnswer(app, dialog, IDOK, 1, IDNO), (Texts{"Are You sure??"}));
    EXPECT_EQ(folder.Read("data.txt"), kPieLine + kPieLine);
    EXPECT_EQ(PressAndAnswer(app, dialog, IDOK, 1, IDYES), (Texts{"Are You sure??"}));
    EXPECT_EQ(folder.Read("data.txt"), "");
    EXPECT_EQ(dialog.Items(739), (Texts{"apple pie"}));
    CloseDialog(dialog);
    EXPECT_EQ(FreshFruits(app).size(), 29U);
  }
  const App app(folder);
  EXPECT_EQ(FreshFruits(app).size(), 29U);
  EXPECT_EQ(folder.Names(), (Texts{"data.txt"}));
}

TEST(OwnProducts, AShortNameShowsTwoBoxesInOrder) {
  const WorkFolder folder;
  const App app(folder);
  const Window dialog = OpenDialog(app, kOpenAdd);
  FillIn(dialog, "fig");
  EXPECT_EQ(PressAndAnswer(app, dialog, IDOK, 2, IDOK),
            (Texts{"ATTENTION! The name of product must be 4-signs long miniumum!",
                   "Product wasn`t added to database\nSome data are incorrect"}));
  EXPECT_EQ(folder.Read("data.txt"), std::nullopt);
}

TEST(OwnProducts, RemovalKeepsWhatItDoesNotMean) {
  const WorkFolder folder;
  const std::string kept =
      "fruits;fresh;figs;100;74;1;0;19;\r\nfruits;fresh;\xBFurek;100;1;1;1;1;\r\n";
  folder.Write("data.txt", kPieLine + kept);
  const App app(folder);
  const Window dialog = OpenDialog(app, kOpenRemove);
  dialog.Command(IDOK);  // nothing is selected: nothing is asked
  EXPECT_EQ(dialog.Items(739).size(), 3U);
  ASSERT_TRUE(dialog.Choose(739, "apple pie"));
  PressAndAnswer(app, dialog, IDOK, 1, IDYES);
  EXPECT_EQ(folder.Read("data.txt"), kept);
}

TEST(OwnProducts, BytesBeyondAsciiArriveAsTheyWere) {
  const WorkFolder folder;
  const App app(folder);
  const Window dialog = OpenDialog(app, kOpenAdd);
  FillIn(dialog, "\xA3OSO\x8C");  // in code page 1250
  PressAndAnswer(app, dialog, IDOK, 1, IDOK);
  EXPECT_EQ(folder.Read("data.txt"), "fruits;fresh;\xB3oso\x9C;100;237;1.9;11;34.0;\r\n");
}

TEST(OwnProducts, EnterAndEscapeWorkInTheSearch) {
  const WorkFolder folder;
  const App app(folder);
  app.main().Command(231);
  app.Settle();
  ClickOn(app.main().Control(149));
  const Window dialog = app.WaitForPopup();
  ASSERT_NE(dialog.handle(), nullptr);
  ClickOn(dialog.Control(728));
  SendMessageA(dialog.handle(), WM_NULL, 0, 0);
  TypeKeys("goat");
  PressKey(VK_RETURN);
  SendMessageA(dialog.handle(), WM_NULL, 0, 0);
  EXPECT_EQ(dialog.Text(728), "goat");
  for (int wait = 0; wait < 100 && dialog.Items(729).empty(); ++wait) Sleep(20);
  const Texts found = dialog.Items(729);
  EXPECT_EQ(std::ranges::count(found, "milk preserves --> milk --> goat milk"), 1);
  PressKey(VK_ESCAPE);
  EXPECT_TRUE(WaitUntilGone(dialog.handle()));
  EXPECT_TRUE(app.IsRunning());
}

TEST(OwnProducts, FindOpensADialogAtEveryPress) {
  const WorkFolder folder;
  const App app(folder);
  const Window first = OpenDialog(app, kOpenSearch);
  app.main().Command(kOpenSearch);
  const Window second = app.WaitForPopup(first);
  ASSERT_NE(second.handle(), nullptr);
  EXPECT_NE(first.handle(), second.handle());
  CloseDialog(first);
  CloseDialog(second);
  EXPECT_TRUE(app.IsRunning());
}

TEST(OwnProducts, ClosingTheProgramTakesOpenDialogsAlong) {
  const WorkFolder folder;
  const App app(folder);
  for (const int command : {kOpenAdd, kOpenRemove, kOpenSearch}) app.main().Command(command);
  app.main().PostCommand(203);
  EXPECT_EQ(app.WaitForExit(), 0U);
}

TEST(OwnProducts, NothingOfTheDialogsIsCoveredByItsNeighbour) {
  const WorkFolder folder;
  const App app(folder);
  for (const int command : {kOpenAdd, kOpenRemove, kOpenSearch}) {
    const Window dialog = OpenDialog(app, command);
    RECT inside = {};
    GetClientRect(dialog.handle(), &inside);
    MapWindowPoints(dialog.handle(), nullptr, reinterpret_cast<POINT*>(&inside), 2);
    std::vector<RECT> places;
    for (const HWND control : dialog.Controls()) {
      RECT place = {};
      GetWindowRect(control, &place);
      EXPECT_TRUE(place.left >= inside.left && place.right <= inside.right &&
                  place.top >= inside.top && place.bottom <= inside.bottom)
          << command << ' ' << Window(control).Caption();
      // Fixed texts and frames have no background of their own.
      if (GetDlgCtrlID(control) != 0xFFFF) places.push_back(place);
    }
    for (std::size_t i = 0; i < places.size(); ++i) {
      for (std::size_t j = 0; j < i; ++j) {
        RECT common = {};
        EXPECT_EQ(IntersectRect(&common, &places[i], &places[j]), FALSE) << command;
      }
    }
    CloseDialog(dialog);
  }
}

TEST(OwnProducts, AFileOfTenMegabytesIsReadAndKept) {
  const WorkFolder folder;
  std::string lines;
  while (lines.size() < 10'000'000) lines += "fish;smoked;many more;100;1;1;1;1;\r\n";
  folder.Write("data.txt", lines);
  const App app(folder);
  ASSERT_NE(app.main().handle(), nullptr);
  const Window dialog = OpenDialog(app, kOpenAdd);
  FillIn(dialog, "apple pie");
  PressAndAnswer(app, dialog, IDOK, 1, IDOK);
  EXPECT_EQ(folder.Read("data.txt"), lines + kPieLine);
  CloseDialog(dialog);
}

}  // namespace
}  // namespace velnor::desktop
