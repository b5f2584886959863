// The report viewer: what it paints and shows, scrolling, saving and clearing.

#include "reports/report_screen.h"

#include <set>
#include <string>
#include <vector>

#include "base/text_file.h"
#include "tests/screens/report_fixture.h"

namespace velnor {
namespace {

std::string Lines(int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += "line " + std::to_string(i) + "\r\n";
  return text;
}

TEST_F(ReportScreenTest, EveryScreenPaintsItsTitleAndShowsItsFile) {
  LogIn();
  for (const ReportOnScreen& report : kReportScreens) {
    Write(report.file_name, std::string("record in ") + report.file_name + "\r\n");
  }
  for (const ReportOnScreen& report : kReportScreens) {
    const RecordingCanvas canvas = Open(report.command);
    EXPECT_EQ(program_->session().screen, report.screen);
    EXPECT_EQ(std::vector<DrawnText>(canvas.texts.begin() + 3, canvas.texts.end()),
              (std::vector<DrawnText>{{report.title, {10, 30}, {18, 700, true}, kBlack}}));
    ASSERT_EQ(canvas.lines.size(), 2U);
    EXPECT_EQ(canvas.lines[1], (DrawnLine{{{5, 55}, {695, 55}}, {kBlack, 1}}));
    EXPECT_EQ(Shown(), std::string("record in ") + report.file_name + "\r\n");
    EXPECT_EQ(form_.ShownKeys(), (std::set<int>{119, 151, 152, 153, 154, 155, 156, 157, 158}));
  }
}

TEST_F(ReportScreenTest, AMissingOrEmptyReportShowsAnEmptyEdit) {
  LogIn();
  Write("waga.ASC", "something");
  Write("whr.ASC", "");
  for (const int command : {212, 214}) {
    Open(210);
    EXPECT_EQ(Shown(), "something");
    Open(command);
    EXPECT_EQ(Shown(), "");
  }
  EXPECT_EQ(Read("mirvo.ASC"), "(missing)");
}

TEST_F(ReportScreenTest, ShowsAtMostTheLimitOnEveryScreen) {
  LogIn();
  for (const ReportOnScreen& report : kReportScreens) {
    for (const std::size_t size : {1U, 29'998U, 29'999U, 30'000U, 30'001U, 200'000U}) {
      Write(report.file_name, std::string(size, 'x'));
      Open(report.command);
      EXPECT_EQ(Shown().size(), std::min<std::size_t>(size, 29'999)) << report.title << size;
    }
  }
}

TEST_F(ReportScreenTest, LinesThatEndWithLfStandOneBelowTheOther) {
  LogIn();
  Write("mirvo.ASC", "one\ntwo\r\nthree\n\nlast");
  Open(kOpenCalorie);
  EXPECT_EQ(Shown(), "one\r\ntwo\r\nthree\r\n\r\nlast");
  EXPECT_EQ(Read("mirvo.ASC"), "one\ntwo\r\nthree\n\nlast");
  form_.Press(kSaveChanges);
  EXPECT_EQ(Read("mirvo.ASC"), "one\r\ntwo\r\nthree\r\n\r\nlast");
  EXPECT_EQ(Read("mirvo.ASC.rest.txt"), "(missing)");
}

TEST_F(ReportScreenTest, EveryRepaintReloadsTheFileAndDropsChanges) {
  LogIn();
  Write("mirvo.ASC", "one\r\n");
  Open(kOpenCalorie);
  form_.SetText(119, "changed");
  Repaint();
  EXPECT_EQ(Shown(), "one\r\n");
  const std::string path = Write("mirvo.ASC", "two\r\n");
  Repaint();
  EXPECT_EQ(Shown(), "two\r\n");
  std::filesystem::remove(path);
  Repaint();
  EXPECT_EQ(Shown(), "");
}

TEST_F(ReportScreenTest, ARepaintWithoutChangesKeepsThePlace) {
  LogIn();
  Write("mirvo.ASC", Lines(100));
  Open(kOpenCalorie);
  form_.Press(155);
  Repaint();
  EXPECT_EQ(form_.FirstVisibleLine(119), 12);
  Write("mirvo.ASC", Lines(101));
  Repaint();
  EXPECT_EQ(form_.FirstVisibleLine(119), 0);
  std::string lf_only = Lines(100);
  std::erase(lf_only, '\r');
  Write("mirvo.ASC", lf_only);
  Repaint();
  form_.Press(155);
  Repaint();
  EXPECT_EQ(form_.FirstVisibleLine(119), 12);
}

TEST_F(ReportScreenTest, TheSixButtonsScroll) {
  LogIn();
  Write("mirvo.ASC", Lines(200));
  Open(kOpenCalorie);
  const auto press = [this](int button) {
    form_.Press(button);
    return form_.FirstVisibleLine(119);
  };
  EXPECT_EQ(press(153), 5);
  EXPECT_EQ(press(155), 17);
  EXPECT_EQ(press(157), 47);
  EXPECT_EQ(press(157), 77);
  EXPECT_EQ(press(154), 72);
  EXPECT_EQ(press(156), 60);
  EXPECT_EQ(press(158), 30);
  EXPECT_EQ(press(158), 0);
  EXPECT_EQ(press(156), 0);
  EXPECT_TRUE(boxes_.shown.empty());
  EXPECT_EQ(window_.log, (Texts{"invalidate"}));  // of choosing the screen
}

TEST_F(ReportScreenTest, SaveWritesTheTextAndRepaints) {
  LogIn();
  for (const ReportOnScreen& report : kReportScreens) {
    Write(report.file_name, "old\r\n");
    Open(report.command);
    window_.log.clear();
    const std::string text = std::string("new\r\n") + report.title;
    form_.SetText(119, text);
    form_.Press(kSaveChanges);
    ASSERT_EQ(boxes_.shown.size(), 1U);
    EXPECT_EQ(boxes_.shown[0].caption, "Velnor calorie counter");
    EXPECT_EQ(boxes_.shown[0].buttons, MessageButtons::kYesNo);
    EXPECT_EQ(boxes_.shown[0].icon, MessageIcon::kInformation);
    EXPECT_EQ(boxes_.shown[0].owner, MessageOwner::kMainWindow);
    EXPECT_EQ(boxes_.TakeTexts(), (Texts{kSureToSave}));
    EXPECT_EQ(Read(report.file_name), text);
    EXPECT_EQ(window_.log, (Texts{"invalidate"}));
    Repaint();
    EXPECT_EQ(Shown(), text);
  }
}

TEST_F(ReportScreenTest, SaveAnsweredWithNoChangesNothing) {
  LogIn();
  Write("mirvo.ASC", "old\r\n");
  Open(kOpenCalorie);
  window_.log.clear();
  form_.SetText(119, "new");
  boxes_.answer = Answer::kNo;
  form_.Press(kSaveChanges);
  EXPECT_EQ(boxes_.TakeTexts(), (Texts{kSureToSave}));
  EXPECT_EQ(Read("mirvo.ASC"), "old\r\n");
  EXPECT_EQ(Shown(), "new");
  EXPECT_EQ(window_.log, Texts{});
}

TEST_F(ReportScreenTest, SavingAMissingReportWritesNothing) {
  LogIn();
  Open(kOpenCalorie);
  window_.log.clear();
  form_.SetText(119, "new");
  form_.Press(kSaveChanges);
  EXPECT_EQ(Read("mirvo.ASC"), "(missing)");
  EXPECT_EQ(boxes_.TakeTexts(), (Texts{kSureToSave}));
  EXPECT_EQ(window_.log, (Texts{"invalidate"}));
}

TEST_F(ReportScreenTest, SavesWhatWasWrittenBeforeARepaintUnderTheBox) {
  LogIn();
  Write("mirvo.ASC", "old\r\n");
  Open(kOpenCalorie);
  form_.SetText(119, "new\r\n");
  boxes_.while_open = [&] {
    Write("mirvo.ASC", "old\r\nappended\r\n");
    Repaint();
  };
  form_.Press(kSaveChanges);
  EXPECT_EQ(Read("mirvo.ASC"), "new\r\n");
  EXPECT_EQ(Read("mirvo.ASC.rest.txt"), "appended\r\n");
}

TEST_F(ReportScreenTest, SavingBeforeTheScreenIsPaintedSavesNoOtherReportsText) {
  LogIn();
  PaintWhenAsked();
  Write("waga.ASC", "weight\r\n");
  Write("mirvo.ASC", "calories\r\n");
  Open(210);
  program_->OnCommand(kOpenCalorie, kButtonClicked);
  form_.Press(kSaveChanges);
  EXPECT_EQ(Read("mirvo.ASC"), "calories\r\n");
  EXPECT_EQ(Read("waga.ASC"), "weight\r\n");
}

TEST_F(ReportScreenTest, SavingBeforeTheScreenIsPaintedSavesNoOtherUsersText) {
  LogIn("Bob");
  PaintWhenAsked();
  folder_.Write("Bob/mirvo.ASC", "of Bob\r\n");
  Open(kOpenCalorie);
  program_->OnCommand(201, kButtonClicked);
  LogIn();
  Write("mirvo.ASC", "of Ann\r\n");
  program_->OnCommand(kOpenCalorie, kButtonClicked);
  program_->OnCommand(kSaveChanges, kButtonClicked);  // a press on its way
  EXPECT_EQ(Read("mirvo.ASC"), "of Ann\r\n");
}

TEST_F(ReportScreenTest, ACutReportSaysWhereTheRestIs) {
  LogIn();
  Write("mirvo.ASC", std::string(29'999, 'x') + "never seen");
  EXPECT_EQ(Open(kOpenCalorie).texts.size(), 4U);
  form_.Press(kSaveChanges);
  EXPECT_EQ(Read("mirvo.ASC"), std::string(29'999, 'x'));
  EXPECT_EQ(Read("mirvo.ASC.rest.txt"), "never seen");
  EXPECT_EQ(Repaint().texts.back(),
            (DrawnText{"What was not shown when changes were saved is kept in mirvo.ASC.rest.txt",
                       {10, 62},
                       {14, 0, false},
                       kBlack}));
  EXPECT_EQ(Open(210).texts.back().text, "Reports overview - WEIGHT");
}

TEST_F(ReportScreenTest, ClearErasesTheReportAndRepaints) {
  LogIn();
  for (const ReportOnScreen& report : kReportScreens) {
    Write(report.file_name, Lines(100));
    Open(report.command);
    window_.log.clear();
    form_.Press(kClearReport);
    ASSERT_EQ(boxes_.shown.size(), 1U);
    EXPECT_EQ(boxes_.shown[0].caption, "Velnor calorie counter");
    EXPECT_EQ(boxes_.shown[0].buttons, MessageButtons::kYesNo);
    EXPECT_EQ(boxes_.shown[0].icon, MessageIcon::kInformation);
    EXPECT_EQ(boxes_.shown[0].owner, MessageOwner::kMainWindow);
    EXPECT_EQ(boxes_.TakeTexts(), (Texts{kSureToClear}));
    EXPECT_EQ(Read(report.file_name), "");
    EXPECT_EQ(window_.log, (Texts{"invalidate"}));
    Repaint();
    EXPECT_EQ(Shown(), "");
  }
}

TEST_F(ReportScreenTest, ClearAnsweredWithNoChangesNothing) {
  LogIn();
  Write("mirvo.ASC", "old\r\n");
  Open(kOpenCalorie);
  window_.log.clear();
  boxes_.answer = Answer::kNo;
  form_.Press(kClearReport);
  EXPECT_EQ(boxes_.TakeTexts(), (Texts{kSureToClear}));
  EXPECT_EQ(Read("mirvo.ASC"), "old\r\n");
  EXPECT_EQ(window_.log, Texts{});
}

TEST_F(ReportScreenTest, ClearMakesAMissingReport) {
  LogIn();
  Open(kOpenCalorie);
  form_.Press(kClearReport);
  EXPECT_EQ(Read("mirvo.ASC"), "");
}

TEST_F(ReportScreenTest, OnOtherScreensClearAndSaveDoNothing) {
  LogIn();
  for (const ReportOnScreen& report : kReportScreens) Write(report.file_name, "old\r\n");
  Write("wykwag.txt", "1.11.2026;70;\r\n2.11.2026;71;\r\n3.11.2026;72;\r\n");
  for (const int command : {221, 224, 236, 232, 231, 238, 233, 270, 225, 239, 252}) {
    Open(command);
    window_.log.clear();
    form_.SetText(119, "new");
    for (const int id : {kClearReport, kSaveChanges}) program_->OnCommand(id, kButtonClicked);
    EXPECT_EQ(boxes_.TakeTexts(), Texts{}) << command;
    EXPECT_EQ(window_.log, Texts{}) << command;
  }
  for (const ReportOnScreen& report : kReportScreens) EXPECT_EQ(Read(report.file_name), "old\r\n");
}

TEST_F(ReportScreenTest, ClearingTakesTheRestAndItsLineWithIt) {
  LogIn();
  Write("mirvo.ASC", std::string(29'999, 'x') + "never seen");
  Open(kOpenCalorie);
  form_.Press(kSaveChanges);
  EXPECT_EQ(Repaint().texts.size(), 5U);
  form_.Press(kClearReport);
  EXPECT_EQ(Repaint().texts.size(), 4U);
  EXPECT_EQ(Read("mirvo.ASC"), "");
  EXPECT_EQ(Read("mirvo.ASC.rest.txt"), "(missing)");
}

}  // namespace
}  // namespace velnor
