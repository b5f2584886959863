// The report viewer as a person uses it: reading, scrolling, changing, saving and erasing reports.

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/desktop/driver.h"

namespace velnor::desktop {
namespace {

constexpr int kText = 119;
constexpr int kClear = 151;
constexpr int kSave = 152;
constexpr int kOpenCalorie = 212;

constexpr const char* kSureToClear =
    "Are You sure You want erase report?\nAll data will be LOST!\nADVICE: You can select and copy "
    "whole text to another file.";
constexpr const char* kSureToSave = "Do You want save changes?\nThere`ll be no chance to cancel!";

struct ReportOnScreen {
  int command;
  const char* file_name;
};
constexpr ReportOnScreen kReports[] = {
    {210, "Ann\\waga.ASC"},   {214, "Ann\\whr.ASC"},       {212, "Ann\\mirvo.ASC"},
    {213, "Ann\\zestaw.ASC"}, {215, "Ann\\cwiczenia.ASC"},
};

std::string Lines(int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += "16.11.2026  record " + std::to_string(i) + "\r\n";
  return text;
}

class Reports : public testing::Test {
 protected:
  Reports() {
    CreateDirectoryA((folder_.path() + "Ann").c_str(), nullptr);
    folder_.Write("users.ASC", "Ann");
    folder_.Write("Ann\\info.ASC", "35\r\n180\r\nmen\r\nlow\r\nnone");
    main().Command(200);
    const Window login = app_.WaitForPopup();
    EXPECT_TRUE(login.Choose(700, "Ann"));
    login.PostCommand(IDOK);
    EXPECT_TRUE(WaitUntilGone(login.handle()));
  }

  const Window& main() const { return app_.main(); }
  HWND Edit() const { return main().Control(kText); }
  std::string Shown() const { return main().Text(kText); }
  LRESULT Ask(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const {
    return SendMessageA(Edit(), message, wparam, lparam);
  }
  LRESULT FirstLine() const { return Ask(EM_GETFIRSTVISIBLELINE); }
  void Open(int command) const {
    main().Command(command);
    app_.Settle();
  }
  void Repaint() const {
    InvalidateRect(main().handle(), nullptr, TRUE);
    app_.Settle();
  }
  // Clicks on a button, answers the box that it opens, and gives its text.
  std::string ClickAndAnswer(int button, int answer) const {
    ClickOn(main().Control(button));
    const MessageBoxSeen box = app_.WaitForMessageBox();
    EXPECT_EQ(box.caption, "Velnor calorie counter");
    Answer(box, answer);
    app_.Settle();
    return box.text;
  }
  // The same through messages, where the click is not the point.
  void PressAndConfirm(int button) const {
    main().PostCommand(button);
    Answer(app_.WaitForMessageBox(), IDYES);
    app_.Settle();
  }
  std::string File(const std::string& name) const { return folder_.Read(name).value_or("(none)"); }

  WorkFolder folder_;
  App app_{folder_};
};

TEST_F(Reports, EveryScreenShowsItsFile) {
  for (const ReportOnScreen& report : kReports) {
    folder_.Write(report.file_name, std::string("kept in ") + report.file_name);
  }
  for (const ReportOnScreen& report : kReports) {
    Open(report.command);
    EXPECT_EQ(Shown(), std::string("kept in ") + report.file_name);
    EXPECT_TRUE(main().IsShown(kText));
    for (int button = 151; button <= 158; ++button) EXPECT_TRUE(main().IsShown(button));
  }
}

TEST_F(Reports, EachButtonScrolls) {
  folder_.Write("Ann\\mirvo.ASC", Lines(300));
  Open(kOpenCalorie);
  const auto expect_after_click = [this](int button, LRESULT line) {
    ClickOn(main().Control(button));
    EXPECT_TRUE(WaitUntil([&] { return FirstLine() == line; }))
        << "button " << button << ": " << FirstLine() << ", not " << line;
  };
  EXPECT_EQ(FirstLine(), 0);
  RECT inside = {};
  GetClientRect(Edit(), &inside);
  const LRESULT line_height =
      HIWORD(Ask(EM_POSFROMCHAR, static_cast<WPARAM>(Ask(EM_LINEINDEX, 1)))) -
      HIWORD(Ask(EM_POSFROMCHAR, 0));
  const LRESULT page = inside.bottom / line_height;
  EXPECT_GT(page, 20);
  expect_after_click(153, 5);
  expect_after_click(155, 17);
  expect_after_click(157, 17 + page);
  expect_after_click(157, 17 + 2 * page);
  expect_after_click(154, 12 + 2 * page);
  expect_after_click(156, 2 * page);
  expect_after_click(158, page);
  expect_after_click(158, 0);
}

TEST_F(Reports, TheWheelScrollsOneLineWhereverTheFocusIs) {
  folder_.Write("Ann\\mirvo.ASC", Lines(300));
  Open(kOpenCalorie);
  const auto expect_after_turn = [this](int distance, LRESULT line) {
    TurnWheel(distance);
    EXPECT_TRUE(WaitUntil([&] { return FirstLine() == line; })) << FirstLine();
    Sleep(100);  // anything more would have happened by now
    EXPECT_EQ(FirstLine(), line);
  };
  ClickOn(Edit());
  expect_after_turn(-120, 1);
  expect_after_turn(-360, 2);
  expect_after_turn(120, 1);
  ClickOn(main().Control(153));
  EXPECT_TRUE(WaitUntil([this] { return FirstLine() == 6; }));
  expect_after_turn(-120, 7);
  expect_after_turn(240, 6);
}

TEST_F(Reports, ARepaintKeepsThePlaceAndDropsChanges) {
  folder_.Write("Ann\\mirvo.ASC", Lines(300));
  Open(kOpenCalorie);
  ClickOn(Edit());
  Ask(EM_SETSEL, 100, 110);
  main().Command(155);
  EXPECT_EQ(FirstLine(), 12);
  Repaint();
  EXPECT_EQ(FirstLine(), 12);
  EXPECT_EQ(Ask(EM_GETSEL), MAKELONG(100, 110));
  Ask(EM_SETSEL, 0, 0);
  TypeKeys("77");
  EXPECT_TRUE(WaitUntil([this] { return Shown() == "77" + Lines(300); }));
  EXPECT_EQ(Ask(EM_GETSEL), MAKELONG(2, 2));
  Repaint();
  EXPECT_EQ(Shown(), Lines(300));
}

TEST_F(Reports, ChangesAreSavedOnYesOnly) {
  folder_.Write("Ann\\mirvo.ASC", "one\r\ntwo\r\n");
  Open(kOpenCalorie);
  ClickOn(Edit());
  TypeKeys("77");
  EXPECT_TRUE(WaitUntil([this] { return Shown().size() == 12; }));
  EXPECT_EQ(ClickAndAnswer(kSave, IDNO), kSureToSave);
  EXPECT_EQ(File("Ann\\mirvo.ASC"), "one\r\ntwo\r\n");
  Repaint();
  ClickOn(Edit());
  Ask(EM_SETSEL, 0, 0);
  TypeKeys("77");
  PressKey(VK_RETURN);
  EXPECT_TRUE(WaitUntil([this] { return Shown() == "77\r\none\r\ntwo\r\n"; })) << Shown();
  EXPECT_EQ(ClickAndAnswer(kSave, IDYES), kSureToSave);
  EXPECT_EQ(File("Ann\\mirvo.ASC"), "77\r\none\r\ntwo\r\n");
  EXPECT_EQ(Shown(), "77\r\none\r\ntwo\r\n");
  EXPECT_EQ(folder_.Names("Ann"),
            (std::vector<std::string>{"bilans.ASC", "dziennik.csv", "info.ASC", "mirvo.ASC"}));
}

TEST_F(Reports, ClearErasesOnYesOnly) {
  folder_.Write("Ann\\mirvo.ASC", Lines(10));
  Open(kOpenCalorie);
  EXPECT_EQ(ClickAndAnswer(kClear, IDNO), kSureToClear);
  EXPECT_EQ(File("Ann\\mirvo.ASC"), Lines(10));
  EXPECT_EQ(Shown(), Lines(10));
  EXPECT_EQ(ClickAndAnswer(kClear, IDYES), kSureToClear);
  EXPECT_EQ(File("Ann\\mirvo.ASC"), "");
  EXPECT_EQ(Shown(), "");
}

TEST_F(Reports, AMissingReportIsClearedButNotSaved) {
  Open(kOpenCalorie);
  EXPECT_EQ(Shown(), "");
  main().SetText(kText, "new");
  PressAndConfirm(kSave);
  EXPECT_EQ(File("Ann\\mirvo.ASC"), "(none)");
  EXPECT_EQ(Shown(), "new");
  PressAndConfirm(kClear);
  EXPECT_EQ(File("Ann\\mirvo.ASC"), "");
  EXPECT_EQ(Shown(), "");
}

TEST_F(Reports, AWriteProtectedReportStaysAsItIs) {
  folder_.Write("Ann\\mirvo.ASC", Lines(10));
  const std::string path = folder_.path() + "Ann\\mirvo.ASC";
  SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY);
  Open(kOpenCalorie);
  EXPECT_EQ(Shown(), Lines(10));
  main().SetText(kText, "new");
  PressAndConfirm(kSave);
  PressAndConfirm(kClear);
  EXPECT_EQ(File("Ann\\mirvo.ASC"), Lines(10));
  EXPECT_EQ(Shown(), "new") << "what could not be saved stays";
  Open(kOpenCalorie);
  EXPECT_EQ(Shown(), Lines(10));
  EXPECT_EQ(folder_.Names("Ann"),
            (std::vector<std::string>{"bilans.ASC", "dziennik.csv", "info.ASC", "mirvo.ASC"}));
  SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(Reports, LinesThatEndWithLfStandOneBelowTheOther) {
  folder_.Write("Ann\\mirvo.ASC", "one\ntwo\nthree");
  Open(kOpenCalorie);
  EXPECT_EQ(Ask(EM_GETLINECOUNT), 3);
  PressAndConfirm(kSave);
  EXPECT_EQ(File("Ann\\mirvo.ASC"), "one\r\ntwo\r\nthree");
}

TEST_F(Reports, EveryByteButNulSurvivesShowingAndSaving) {
  std::string bytes;
  for (int byte = 1; byte < 256; ++byte) bytes += static_cast<char>(byte);
  std::ranges::replace(bytes, '\n', ' ');
  folder_.Write("Ann\\mirvo.ASC", bytes);
  Open(kOpenCalorie);
  PressAndConfirm(kSave);
  EXPECT_EQ(File("Ann\\mirvo.ASC"), bytes);
}

TEST_F(Reports, OnlySoMuchOfALongReportIsShownAndTheRestIsKept) {
  constexpr std::size_t kLimit = 29'999;
  for (const std::size_t size : {0U, 1U, 29'998U, 29'999U, 30'000U, 30'001U, 200'000U}) {
    SCOPED_TRACE(size);
    const std::string bytes = Lines(9000).substr(0, size);
    for (const ReportOnScreen& report : kReports) {
      const std::string rest_name = report.file_name + std::string(".rest.txt");
      DeleteFileA((folder_.path() + rest_name).c_str());
      folder_.Write(report.file_name, bytes);
      Open(report.command);
      EXPECT_EQ(Shown(), bytes.substr(0, kLimit));
      EXPECT_EQ(File(report.file_name), bytes);
      PressAndConfirm(kSave);
      EXPECT_EQ(File(report.file_name), bytes.substr(0, kLimit));
      EXPECT_EQ(File(rest_name), size > kLimit ? bytes.substr(kLimit) : "(none)");
    }
  }
}

TEST_F(Reports, NothingBehindANulIsLost) {
  const std::string bytes("one\r\n\0two\0", 10);
  folder_.Write("Ann\\mirvo.ASC", bytes);
  Open(kOpenCalorie);
  EXPECT_EQ(Shown(), "one\r\n");
  PressAndConfirm(kSave);
  EXPECT_EQ(File("Ann\\mirvo.ASC"), bytes.substr(0, 5));
  EXPECT_EQ(File("Ann\\mirvo.ASC.rest.txt"), bytes.substr(5));
}

}  // namespace
}  // namespace velnor::desktop
