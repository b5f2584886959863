// The program without a mouse: every screen and every dialog from start to end with real keys.

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/desktop/keyboard_fixture.h"

namespace velnor::desktop {
namespace {

TEST_F(Keyboard, APersonComesFillsInTheProfileAndGoes) {
  const Window users = OpenDialog(kUsers);
  EXPECT_TRUE(TypeInto(users, 701, "ann"));
  PressButton(users, 702, VK_SPACE);
  EXPECT_TRUE(WaitUntil([&] { return users.Items(700).size() == 1; }));
  PressButton(users, IDOK, VK_RETURN);
  ASSERT_TRUE(IsClosed(users));

  const Window login = OpenDialog(kLogin);
  EXPECT_TRUE(ArrowTo(login, 700, "ann"));
  PressKey(VK_RETURN);
  EXPECT_NE(AnswerBox(login).find("profile"), std::string::npos);
  ASSERT_TRUE(IsClosed(login));

  const Window profile = OpenDialog(kProfile);
  EXPECT_TRUE(TypeInto(profile, 704, "35"));
  EXPECT_TRUE(TypeInto(profile, 705, "170,5", "170.5"));
  EXPECT_TRUE(TabTo(profile, 706));
  TypeKeys("w");
  EXPECT_TRUE(ArrowTo(profile, 707, "medium"));
  EXPECT_TRUE(ArrowTo(profile, 708, "none"));
  ASSERT_TRUE(Closes(profile, VK_RETURN));
  EXPECT_EQ(folder_.Read("ann\\info.ASC"), "35\r\n170.5\r\nwomen\r\nmedium\r\nnone");

  ChooseWhatShowsABox(kLogout);
  EXPECT_EQ(AnswerBox(), "BYE, SEE YOU SOON!");
  ChooseFromMenuBar(kExit);
  EXPECT_EQ(app_.WaitForExit(), 0U);
}

TEST_F(KeyboardOfAnn, BodyScreensAndTheirRecords) {
  ChooseFromMenuBar(kBmi);
  EXPECT_TRUE(TypeInto(main(), 101, "70,5", "70.5"));
  PressKey(VK_RETURN);
  PressButton(main(), 103, VK_RETURN);
  const Window weight = Popup();
  EXPECT_EQ(weight.Text(710), "70.5");
  EXPECT_EQ(weight.Text(711), "24.3945");
  EXPECT_TRUE(TypeInto(weight, 710, "71,25", "71.25"));
  EXPECT_TRUE(TypeInto(weight, 716, "a,b")) << "a remark is no number";
  ASSERT_TRUE(Closes(weight, VK_RETURN));
  EXPECT_TRUE(FileHolds("waga.ASC", "71.25"));

  ChooseFromMenuBar(kWhr);
  EXPECT_TRUE(TypeInto(main(), 104, "81"));
  EXPECT_TRUE(TypeInto(main(), 105, "100"));
  PressKey(VK_RETURN);
  PressButton(main(), 107, VK_SPACE);
  const Window whr = Popup();
  EXPECT_EQ(whr.Text(715), "0.81");
  PressButton(whr, IDOK, VK_SPACE);
  ASSERT_TRUE(IsClosed(whr));
  EXPECT_TRUE(FileHolds("whr.ASC", "0.81"));

  ChooseFromMenuBar(kBmr);
  const RECT result = {10, 275, 200, 300};
  const std::vector<char> before = Look(main(), result);
  EXPECT_TRUE(TypeInto(main(), 101, "70")) << "typing replaces the weight of before";
  PressKey(VK_RETURN);
  EXPECT_TRUE(WaitUntil([&] { return Look(main(), result) != before; }));
}

TEST_F(KeyboardOfAnn, TheCounterWithItsDialogs) {
  ChooseFromMenuBar(kCounter);
  EXPECT_TRUE(ArrowTo(main(), 124, "fruits"));
  EXPECT_TRUE(ArrowTo(main(), 125, "frozen"));
  EXPECT_TRUE(ArrowTo(main(), 126, "frozen strawberries"));
  PressKey(VK_RETURN);
  EXPECT_TRUE(main().Items(134).empty()) << "Enter in a list adds nothing";
  EXPECT_TRUE(TypeInto(main(), 128, "62,5", "62.5"));
  PressKey(VK_RETURN);
  EXPECT_TRUE(WaitUntil([this] { return main().Items(134).size() == 1; }));
  EXPECT_EQ(main().FocusedId(), 128) << "the focus stays in the field";
  PressButton(main(), 127, VK_SPACE);
  EXPECT_TRUE(WaitUntil([this] { return main().Items(134).size() == 2; }));
  EXPECT_TRUE(TabTo(main(), 134));
  PressKey(VK_DOWN);
  PressButton(main(), 136, VK_RETURN);
  EXPECT_TRUE(WaitUntil([this] { return main().Items(134).size() == 1; }));

  EXPECT_TRUE(TabTo(main(), 145, KeyModifier::kShift));
  PressKey(VK_RETURN);
  const Window calories = Popup();
  EXPECT_TRUE(TypeInto(calories, 723, "supper"));
  ASSERT_TRUE(Closes(calories, VK_RETURN));
  EXPECT_TRUE(FileHolds("mirvo.ASC", "supper"));
  PressButton(main(), 147, VK_SPACE);
  const Window recipe = Popup();
  EXPECT_TRUE(TypeInto(recipe, 724, "ice"));
  EXPECT_TRUE(TypeInto(recipe, 725, "a"));
  PressKey(VK_RETURN);
  TypeKeys("b");
  EXPECT_TRUE(WaitUntil([&] { return recipe.Text(725) == "a\r\nb"; })) << "Enter breaks the line";
  PressButton(recipe, IDOK, VK_RETURN);
  ASSERT_TRUE(IsClosed(recipe));
  EXPECT_TRUE(FileHolds("zestaw.ASC", "ice"));

  PressButton(main(), 149, VK_RETURN);
  const Window search = Popup();
  EXPECT_TRUE(TypeInto(search, 728, "apple"));
  PressKey(VK_RETURN);
  EXPECT_TRUE(WaitUntil([&] { return search.Items(729).size() > 3; }));
  ASSERT_TRUE(Closes(search, VK_ESCAPE));
  PressButton(main(), 146, VK_SPACE);
  EXPECT_TRUE(WaitUntil([this] { return main().Items(134).empty(); }));
}

TEST_F(KeyboardOfAnn, TheScreensOfTheDay) {
  ChooseFromMenuBar(kRequirement);
  int field = 166;
  for (const char* const limit : {"1800", "2000", "50,5", "70", "40", "60", "200", "250"}) {
    EXPECT_TRUE(TypeInto(main(), field, limit, field == 168 ? "50.5" : limit));
    ++field;
  }
  PressKey(VK_RETURN);
  EXPECT_TRUE(FileHolds("zapot.ASC", "50.5"));
  PressButton(main(), 175, VK_SPACE);
  EXPECT_TRUE(WaitUntil([this] { return folder_.Read("ann\\zapot.ASC") == "0\r\n"; }));

  ChooseFromMenuBar(kActivities);
  EXPECT_TRUE(ArrowTo(main(), 159, "badminton"));
  EXPECT_TRUE(TypeInto(main(), 160, "30"));
  PressKey(VK_RETURN);
  EXPECT_TRUE(WaitUntil([this] { return !main().Text(163).empty(); }));
  PressButton(main(), 162, VK_RETURN);
  const Window record = Popup();
  EXPECT_EQ(record.Text(741), "badminton");
  EXPECT_TRUE(TypeInto(record, 745, "hot"));
  ASSERT_TRUE(Closes(record, VK_RETURN));
  EXPECT_TRUE(FileHolds("cwiczenia.ASC", "badminton"));
  PressButton(main(), 177, VK_SPACE);
  EXPECT_TRUE(WaitUntil([this] { return main().Text(180) == main().Text(163); }));

  ChooseFromMenuBar(kEnergy);
  const RECT scales = {10, 180, 780, 520};
  const std::vector<char> before = Look(main(), scales);
  EXPECT_TRUE(TypeInto(main(), 181, "1400"));
  PressKey(VK_RETURN);
  EXPECT_TRUE(WaitUntil([&] { return Look(main(), scales) != before; }));

  ChooseFromMenuBar(kActivities);
  PressButton(main(), 179, VK_RETURN);
  EXPECT_EQ(AnswerBox(), "Balance has been cleared");

  ChooseFromMenuBar(kBalance);
  EXPECT_TRUE(TabTo(main(), 165));
  folder_.Write("ann\\bilans.ASC", Today() + "\r\n100\r\n1\r\n1\r\n1");
  PressKey(VK_RETURN);
  EXPECT_TRUE(WaitUntil([this] {
    return folder_.Read("ann\\bilans.ASC").value_or("").find("100") == std::string::npos;
  }));
}

TEST_F(KeyboardOfAnn, ReportsAreReadWrittenAndLeftWithTab) {
  std::string lines;
  for (int line = 1; line <= 90; ++line) lines += "line " + std::to_string(line) + "\r\n";
  folder_.Write("ann\\waga.ASC", lines);
  ChooseFromMenuBar(kReportsMenu[0]);
  const auto first_line = [this] {
    return SendMessageA(main().Control(119), EM_GETFIRSTVISIBLELINE, 0, 0);
  };
  LRESULT at = first_line();
  for (const int button : {153, 155, 157}) {  // down by a line's worth, more, a page
    PressButton(main(), button, VK_SPACE);
    EXPECT_TRUE(WaitUntil([&] { return first_line() > at; })) << button;
    at = first_line();
  }
  for (const int button : {154, 156, 158}) {
    PressButton(main(), button, VK_RETURN);
    EXPECT_TRUE(WaitUntil([&] { return first_line() < at; })) << button;
    at = first_line();
  }
  ASSERT_TRUE(TabTo(main(), 119));
  PressKey(VK_HOME, KeyModifier::kControl);
  TypeKeys("a,b");
  PressKey(VK_RETURN);
  PressKey(VK_TAB);
  ASSERT_TRUE(WaitUntil([this] { return main().FocusedId() != 119; }));
  EXPECT_EQ(main().Text(119).substr(0, 11), "a,b\r\nline 1") << "what was typed stays";
  PressButton(main(), 152, VK_RETURN);
  AnswerBox();
  EXPECT_TRUE(FileHolds("waga.ASC", "a,b\r\nline 1\r\n"));
  PressButton(main(), 151, VK_RETURN);
  AnswerBox();
  EXPECT_TRUE(WaitUntil([this] { return folder_.Read("ann\\waga.ASC") == ""; }));

  for (const MenuPlace report : kReportsMenu) {
    ChooseFromMenuBar(report);
    EXPECT_TRUE(TabTo(main(), 119));
  }
  for (const MenuPlace chart : kCharts) {
    ChooseWhatShowsABox(chart);
    EXPECT_FALSE(AnswerBox().empty()) << "no chart without days";
  }
}

TEST_F(Keyboard, ProductsOfOnesOwn) {
  const Window add = OpenDialog(kAddProduct);
  EXPECT_TRUE(TypeInto(add, 734, "apple, pie"));
  EXPECT_TRUE(ArrowTo(add, 732, "sweets"));
  EXPECT_TRUE(ArrowTo(add, 733, "cake"));
  EXPECT_TRUE(TypeInto(add, 740, "237"));
  EXPECT_TRUE(TypeInto(add, 736, "1,9", "1.9"));
  EXPECT_TRUE(TypeInto(add, 737, "11"));
  EXPECT_TRUE(TypeInto(add, 738, "34,25", "34.25"));
  PressKey(VK_RETURN);
  EXPECT_EQ(AnswerBox(add), "New product was added to database");
  ASSERT_TRUE(Closes(add, VK_ESCAPE));
  const std::string data = folder_.Read("data.txt").value_or("");
  EXPECT_NE(data.find(";apple, pie;"), std::string::npos) << data;
  EXPECT_NE(data.find(";34.25;"), std::string::npos) << data;

  main().Command(kOverviewCommand);
  EXPECT_TRUE(ArrowTo(main(), 108, "sweets"));
  EXPECT_TRUE(ArrowTo(main(), 110, "cake"));
  EXPECT_TRUE(TabTo(main(), 109));
  PressKey(VK_DOWN);
  EXPECT_TRUE(WaitUntil([this] { return main().Text(111) == "100"; }));
  EXPECT_TRUE(TypeInto(main(), 111, "50,5", "50.5"));
  PressKey(VK_TAB);
  PressKey(VK_RETURN);  // "Find"
  const Window search = Popup();
  ASSERT_TRUE(Closes(search, VK_ESCAPE));

  const Window remove = OpenDialog(kRemoveProduct);
  EXPECT_TRUE(ArrowTo(remove, 739, "apple, pie"));
  PressKey(VK_RETURN);
  EXPECT_EQ(AnswerBox(remove), "Are You sure??");
  EXPECT_TRUE(WaitUntil([&] { return remove.Items(739).empty(); }));
  ASSERT_TRUE(Closes(remove, VK_ESCAPE));

  ChooseFromContextMenu(kImport);
  const Window import = Popup();
  EXPECT_TRUE(TabTo(import, 802));
  EXPECT_TRUE(TypeInto(import, 801, "no.csv"));
  PressKey(VK_RETURN);
  EXPECT_FALSE(AnswerBox(import).empty());
  ASSERT_TRUE(Closes(import, VK_ESCAPE));
}

TEST_F(Keyboard, KeysOfCommandsAndTheRest) {
  PressKey('F', KeyModifier::kControl);
  const Window search = Popup();
  ASSERT_NE(search.Control(728), nullptr);
  PressKey('F', KeyModifier::kControl);
  PressKey(VK_F1);
  Settle();
  EXPECT_EQ(Popup().handle(), search.handle()) << "a dialog keeps its keys";
  ASSERT_TRUE(Closes(search, VK_ESCAPE));

  PressKey(VK_F1);
  EXPECT_NE(AnswerBox().find("README.md"), std::string::npos);

  const Window about = OpenDialog(kAbout);
  ASSERT_TRUE(Closes(about, VK_RETURN));
  ChooseFromMenuBar(kExchanges);
  PressKey(VK_TAB);  // nothing to go to
  Settle();
  EXPECT_EQ(Focused(main()), main().handle());
}

// The frame is around what has the focus as long as keys move it.
TEST_F(Keyboard, WhatHasTheFocusIsVisible) {
  main().Command(kOverviewCommand);
  Settle();
  const auto frame_of = [this](int id) {
    RECT place = {};
    GetWindowRect(main().Control(id), &place);
    MapWindowPoints(nullptr, main().handle(), reinterpret_cast<POINT*>(&place), 2);
    return PixelAt(main(), place.left - 1, place.top - 1);
  };
  const COLORREF paper = frame_of(108);
  const COLORREF frame = GetSysColor(COLOR_HIGHLIGHT);
  ASSERT_NE(paper, frame);
  ASSERT_TRUE(TabTo(main(), 111));
  EXPECT_TRUE(WaitUntil([&] { return frame_of(111) == frame; }));
  EXPECT_NE(frame_of(108), frame);
  main().Command(kOverviewCommand);  // painted anew
  Settle();
  EXPECT_TRUE(WaitUntil([&] { return frame_of(111) == frame; }));
  ASSERT_TRUE(TabTo(main(), 108));
  EXPECT_TRUE(WaitUntil([&] { return frame_of(108) == frame && frame_of(111) != frame; }));
  ClickOn(main().Control(111));
  EXPECT_TRUE(WaitUntil([&] { return frame_of(108) == paper && frame_of(111) != frame; }));
}

// Only what is typed: a text that is pasted or set is read as before.
TEST_F(Keyboard, APastedCommaStaysOne) {
  main().Command(kOverviewCommand);
  main().SetText(111, "1,5");
  EXPECT_EQ(main().Text(111), "1,5");
  SendMessageA(main().Control(111), EM_SETSEL, 0, -1);
  SendMessageA(main().Control(111), EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>("2,5"));
  EXPECT_EQ(main().Text(111), "2,5");
}

}  // namespace
}  // namespace velnor::desktop
