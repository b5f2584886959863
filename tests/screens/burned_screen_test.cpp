// The activities screen: what it paints, counting, the day's total, and the record of a count.

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "tests/support/program_fixture.h"

namespace velnor {
namespace {

using Texts = std::vector<std::string>;

constexpr int kOpenActivities = 238;
constexpr int kCount = 161;
constexpr int kSaveReport = 162;
constexpr int kAdd = 177;
constexpr int kClear = 179;

struct ExpectedActivity {
  const char* name;
  const char* factor;
  const char* kcal;
  const char* fat;
};

constexpr ExpectedActivity kExpected[] = {
#include "tests/support/burned_activities.inc"
};

// Ann is logged in and has the screen before her.
class BurnedScreenTest : public ProgramTest {
 protected:
  BurnedScreenTest() {
    folder_.Write("users.ASC", "Ann\r\nBob");
    for (const char* const name : {"Ann", "Bob"}) {
      std::filesystem::create_directory(folder_.path() + name);
      folder_.Write(name + std::string("/info.ASC"), "35\r\n180\r\nwomen\r\nlow\r\nnone");
    }
    Start();
    LogIn("Ann");
  }
  void LogIn(const std::string& name) {
    FakeForm login;
    OpenDialog(200, login);
    login.Choose(700, name);
    login.Press(1);
  }
  void Count(const std::string& activity, const std::string& minutes) {
    form_.Choose(159, activity);
    form_.Type(160, minutes);
    form_.Press(kCount);
  }
  void WriteTotal(const std::string& bytes) const { folder_.Write("Ann/erg.txt", bytes); }
  std::string TotalFile() const { return folder_.Read("Ann/erg.txt"); }
};

TEST_F(BurnedScreenTest, PaintsItsTexts) {
  const RecordingCanvas canvas = Open(kOpenActivities);
  constexpr Font kTitle{18, 700, true};
  constexpr Font kBody{14, 0, false};
  constexpr Font kBold{15, 700, false};
  const std::vector<DrawnText> expected = {
      {"burned calories counting", {10, 30}, kTitle, kBlack},
      {"choose activity", {25, 80}, kBody, kBlack},
      {"time[min]", {380, 80}, kBody, kBlack},
      {"MANUAL:", {380, 230}, kBody, kBlack},
      {"1.Choose one kind of activity from the list.", {380, 245}, kBody, kBlack},
      {"2.Inscribe duration of given exercise.", {380, 260}, kBody, kBlack},
      {"3.Click the \"Count\" button.", {380, 275}, kBody, kBlack},
      {"4.If You use daytime energy balance click \"Add\".", {380, 290}, kBody, kBlack},
      {"5.You can clear daily balance by pressing \"clear\" buttton.", {380, 305}, kBody, kBlack},
      {"6.You can save activity report for later view.", {380, 320}, kBody, kBlack},
      {"7.ATTENTION! We suppose that 60% of burned energy become from fat.",
       {380, 335},
       kBody,
       kBlack},
      {"If You want to add new activity to database - write to us - we`ll add it!",
       {380, 355},
       kBold,
       kBlack},
      {"Burned[kcal]:", {130, 470}, kBold, kBlack},
      {"Fat loose[g]:", {130, 510}, kBold, kBlack},
      {"YOUR ALL-OUT DAYTIME BALANCE  [kcal]", {510, 470}, kBold, kBlack},
  };
  constexpr std::size_t kHeaderTexts = 3;
  EXPECT_EQ(std::vector<DrawnText>(canvas.texts.begin() + kHeaderTexts, canvas.texts.end()),
            expected);
  ASSERT_EQ(canvas.lines.size(), 2U);  // that of the header before it
  EXPECT_EQ(canvas.lines.back(), (DrawnLine{{{5, 55}, {695, 55}}, {kBlack, 1}}));
}

TEST_F(BurnedScreenTest, EveryRepaintOffersAllActivitiesAnew) {
  Open(kOpenActivities);
  std::multiset<std::string> names;
  for (const ExpectedActivity& expected : kExpected) names.insert(expected.name);
  EXPECT_EQ(std::multiset<std::string>(form_.Items(159).begin(), form_.Items(159).end()), names);
  form_.Choose(159, "tennis");
  Repaint();
  EXPECT_EQ(form_.Items(159).size(), 101U);
  EXPECT_EQ(form_.SelectedText(159), std::nullopt);
}

TEST_F(BurnedScreenTest, EveryActivityOfTheListIsCounted) {
  Open(kOpenActivities);
  for (const ExpectedActivity& expected : kExpected) {
    Count(expected.name, "7");
    EXPECT_EQ(form_.Text(163), expected.kcal) << expected.name;
    EXPECT_EQ(form_.Text(164), expected.fat) << expected.name;
  }
}

TEST_F(BurnedScreenTest, CountWritesNothing) {
  WriteTotal("16.11.2026;120;");
  Open(kOpenActivities);
  window_.log.clear();
  Count("sitting", "30");
  EXPECT_EQ(form_.Text(163), "9.");
  EXPECT_EQ(form_.Text(164), "0.771428585");
  EXPECT_EQ(form_.Text(180), "120");
  EXPECT_EQ(TotalFile(), "16.11.2026;120;");
  EXPECT_EQ(window_.log, Texts{});
  EXPECT_EQ(boxes_.TakeTexts(), Texts{});
  Repaint();
  EXPECT_EQ(form_.Text(163), "9.");
  EXPECT_EQ(form_.Text(160), "30");
}

TEST_F(BurnedScreenTest, NoActivityOrNoNumberCountsAsNothing) {
  Open(kOpenActivities);
  Count("sitting", "30");
  Repaint();
  form_.Press(kCount);
  EXPECT_EQ(form_.Text(163), "0.");
  EXPECT_EQ(form_.Text(164), "0.");
  Count("sitting", "thirty");
  EXPECT_EQ(form_.Text(163), "0.");
  EXPECT_EQ(boxes_.TakeTexts(), Texts{});
}

TEST_F(BurnedScreenTest, EightCharactersOfTheMinutesCount) {
  Open(kOpenActivities);
  Count("sleeping", "0000012.9");
  EXPECT_EQ(form_.Text(163), "12.");
  Count("sleeping", "00000129");
  EXPECT_EQ(form_.Text(163), "129.");
}

TEST_F(BurnedScreenTest, AddsWhatWasCountedToTheDay) {
  Open(kOpenActivities);
  EXPECT_EQ(form_.Text(180), "0");
  EXPECT_EQ(TotalFile(), "");
  form_.Press(kAdd);
  EXPECT_EQ(form_.Text(180), "0.") << "an empty field adds 0";
  Count("sitting", "30");
  window_.log.clear();
  form_.Press(kAdd);
  EXPECT_EQ(form_.Text(180), "9.");
  EXPECT_EQ(TotalFile(), "16.11.2026;9.;");
  EXPECT_EQ(window_.log, Texts{"invalidate"});
  Repaint();
  EXPECT_EQ(form_.Text(180), "9.");
  form_.Press(kAdd);
  EXPECT_EQ(form_.Text(180), "18.");
  EXPECT_EQ(TotalFile(), "16.11.2026;18.;");
}

TEST_F(BurnedScreenTest, AddsToTheTotalOfToday) {
  WriteTotal("16.11.2026;120;");
  Open(kOpenActivities);
  form_.SetText(163, "9");
  form_.Press(kAdd);
  EXPECT_EQ(TotalFile(), "16.11.2026;129.;");
  EXPECT_EQ(form_.Text(180), "129.");
}

TEST_F(BurnedScreenTest, FifteenDigitsAreShownUntilTheRepaint) {
  Open(kOpenActivities);
  form_.SetText(163, "123.4");
  form_.Press(kAdd);
  EXPECT_EQ(form_.Text(180), "123.400001525879");
  Repaint();
  EXPECT_EQ(form_.Text(180), "123.4000015258");
}

TEST_F(BurnedScreenTest, FourteenCharactersOfTheBurnedAreAdded) {
  Open(kOpenActivities);
  form_.SetText(163, "0.000000000000125");
  form_.Press(kAdd);
  EXPECT_EQ(form_.Text(180), "0.");
  form_.SetText(163, "000000000001.25");
  form_.Press(kAdd);
  EXPECT_EQ(form_.Text(180), "1.20000004768372");
}

TEST_F(BurnedScreenTest, YesterdaysTotalIsShownOnceMore) {
  WriteTotal("15.11.2026;120;");
  Open(kOpenActivities);
  EXPECT_EQ(form_.Text(180), "120");
  EXPECT_EQ(TotalFile(), "");
  Repaint();
  EXPECT_EQ(form_.Text(180), "0");
  WriteTotal("16.11.2025;120;");  // the same day of another year
  Repaint();
  Repaint();
  EXPECT_EQ(form_.Text(180), "120");
  EXPECT_EQ(TotalFile(), "16.11.2025;120;");
}

TEST_F(BurnedScreenTest, WhatIsAddedAfterTheDayChangedStartsTheDay) {
  WriteTotal("15.11.2026;120;");
  Open(kOpenActivities);
  Count("sitting", "30");
  form_.Press(kAdd);
  EXPECT_EQ(TotalFile(), "16.11.2026;9.;");
  EXPECT_EQ(form_.Text(180), "9.");
}

TEST_F(BurnedScreenTest, ClearSaysSo) {
  WriteTotal("16.11.2026;120;");
  Open(kOpenActivities);
  window_.log.clear();
  form_.Press(kClear);
  EXPECT_EQ(form_.Text(180), "0");
  EXPECT_EQ(TotalFile(), "");
  ASSERT_EQ(boxes_.shown.size(), 1U);
  EXPECT_EQ(boxes_.shown[0].text, "Balance has been cleared");
  EXPECT_EQ(boxes_.shown[0].caption, "Velnor calorie counter");
  EXPECT_EQ(boxes_.shown[0].buttons, MessageButtons::kOk);
  EXPECT_EQ(boxes_.shown[0].icon, MessageIcon::kInformation);
  EXPECT_EQ(boxes_.shown[0].owner, MessageOwner::kNone);
  EXPECT_EQ(window_.log, Texts{"invalidate"});
  Repaint();
  EXPECT_EQ(form_.Text(180), "0");
  form_.Press(kClear);
  EXPECT_EQ(boxes_.shown.size(), 2U) << "an empty total is cleared too";
}

TEST_F(BurnedScreenTest, TheTotalIsTheUsersTheCountStays) {
  Open(kOpenActivities);
  Count("sitting", "30");
  form_.Press(kAdd);
  LogIn("Bob");
  Open(kOpenActivities);
  EXPECT_EQ(form_.Text(180), "0");
  EXPECT_EQ(form_.Text(163), "9.");
  LogIn("Ann");
  Start();
  LogIn("Ann");
  Open(kOpenActivities);
  EXPECT_EQ(form_.Text(180), "9.");
}

class BurnedRecordDialogTest : public BurnedScreenTest {
 protected:
  BurnedRecordDialogTest() { Open(kOpenActivities); }
  Texts Entries() const {
    return {dialog_.Text(709), dialog_.Text(741), dialog_.Text(742),
            dialog_.Text(743), dialog_.Text(744), dialog_.Text(745)};
  }
  std::string Report() const { return folder_.Read("Ann/cwiczenia.ASC"); }
  static std::string Record(const std::string& first, const std::string& second) {
    return first + "  \r\nother: " + second + "\r\n" + std::string(99, '-') + "\r\n";
  }

  FakeForm dialog_;
};

const std::string kSitting =
    "16.11.2026  activity: sitting  time[min]: 30  calories burned[kcal]: 9.  fat burned[g]: 0.771";

TEST_F(BurnedRecordDialogTest, OpensWithTheLastCountCutToFiveCharacters) {
  Count("running fast ~1km/3,40 min", "1234.567");
  EXPECT_EQ(form_.Text(163), "24691.3398");
  Repaint();
  window_.log.clear();
  OpenDialog(kSaveReport, dialog_);
  EXPECT_EQ(window_.log, Texts{"open 10012"});
  EXPECT_EQ(Entries(),
            (Texts{"16.11.2026", "running fast ~1km/3,40 min", "1234.", "24691", "2116.", ""}));
}

TEST_F(BurnedRecordDialogTest, SavesARecordAndCloses) {
  Count("sitting", "30");
  OpenDialog(kSaveReport, dialog_);
  EXPECT_EQ(Entries(), (Texts{"16.11.2026", "sitting", "30", "9.", "0.771", ""}));
  dialog_.SetText(745, "at work");
  EXPECT_EQ(dialog_.Log(), Texts{});
  dialog_.Press(kOkButton);
  EXPECT_EQ(Report(), Record(kSitting, "at work"));
  EXPECT_EQ(dialog_.Log(), Texts{"close"});
  EXPECT_EQ(TotalFile(), "");
}

TEST_F(BurnedRecordDialogTest, TwoSavesAreTwoRecords) {
  Count("sitting", "30");
  for (int i = 0; i < 2; ++i) {
    OpenDialog(kSaveReport, dialog_);
    dialog_.Press(kOkButton);
  }
  EXPECT_EQ(Report(), Record(kSitting, "") + Record(kSitting, ""));
}

TEST_F(BurnedRecordDialogTest, CancelWritesNothing) {
  Count("sitting", "30");
  OpenDialog(kSaveReport, dialog_);
  dialog_.Press(kCancelButton);
  EXPECT_EQ(Report(), "(missing)");
  EXPECT_EQ(dialog_.Log(), Texts{"close"});
}

TEST_F(BurnedRecordDialogTest, TypingSavesNothing) {
  OpenDialog(kSaveReport, dialog_);
  dialog_.Type(709, "today");
  dialog_.Type(745, "x");
  window_.opened->OnCommand(dialog_, kOkButton, kEditUpdated);
  EXPECT_EQ(Report(), "(missing)");
  EXPECT_EQ(dialog_.Log(), Texts{});
}

// What was never counted has no activity and whatever the fields show.
TEST_F(BurnedRecordDialogTest, WithoutACountTheFieldsAreSavedAsTheyAre) {
  form_.Choose(159, "sitting");
  form_.Type(160, "45");
  OpenDialog(kSaveReport, dialog_);
  EXPECT_EQ(Entries(), (Texts{"16.11.2026", "", "45", "", "", ""}));
  dialog_.Press(kOkButton);
  EXPECT_EQ(
      Report(),
      Record("16.11.2026  activity:   time[min]: 45  calories burned[kcal]:   fat burned[g]: ",
             ""));
}

TEST_F(BurnedRecordDialogTest, ACountWithoutAnActivityForgetsTheLastOne) {
  Count("sitting", "30");
  Repaint();
  form_.Press(kCount);
  OpenDialog(kSaveReport, dialog_);
  EXPECT_EQ(Entries(), (Texts{"16.11.2026", "", "30", "0.", "0.", ""}));
}

TEST_F(BurnedRecordDialogTest, DateAndOtherAreCutTo26Characters) {
  OpenDialog(kSaveReport, dialog_);
  dialog_.SetText(709, "abcdefghijklmnopqrstuvwxyz12");
  dialog_.SetText(745, "ABCDEFGHIJKLMNOPQRSTUVWXYZ12");
  dialog_.Press(kOkButton);
  EXPECT_EQ(Report(), Record("abcdefghijklmnopqrstuvwxyz  activity:   time[min]:   calories "
                             "burned[kcal]:   fat burned[g]: ",
                             "ABCDEFGHIJKLMNOPQRSTUVWXYZ"));
}

// The figures are what the dialog shows, five characters of each.
TEST_F(BurnedRecordDialogTest, FiguresAreReadFromTheDialog) {
  Count("sitting", "30");
  OpenDialog(kSaveReport, dialog_);
  for (const int id : {742, 743, 744}) dialog_.SetText(id, std::to_string(id) + "4567");
  dialog_.SetText(741, "not read back");
  dialog_.Press(kOkButton);
  EXPECT_EQ(Report(), Record("16.11.2026  activity: sitting  time[min]: 74245  calories "
                             "burned[kcal]: 74345  fat burned[g]: 74445",
                             ""));
}

// The activity is that of the last count, the figures are those of the dialog's opening.
TEST_F(BurnedRecordDialogTest, ACountWhileItIsOpenNamesTheActivity) {
  Count("sitting", "30");
  OpenDialog(kSaveReport, dialog_);
  Count("tennis", "10");
  dialog_.Press(kOkButton);
  EXPECT_EQ(Report(), Record("16.11.2026  activity: tennis  time[min]: 30  calories "
                             "burned[kcal]: 9.  fat burned[g]: 0.771",
                             ""));
}

TEST_F(BurnedRecordDialogTest, ALogoutClosesItAsCancelDoes) {
  Count("sitting", "30");
  OpenDialog(kSaveReport, dialog_);
  program_->OnCommand(201, kButtonClicked);
  EXPECT_EQ(dialog_.Log(), Texts{"close"});
  EXPECT_EQ(Report(), "(missing)");
}

TEST_F(BurnedRecordDialogTest, AReportThatCannotBeWrittenIsNotReported) {
  OpenDialog(kSaveReport, dialog_);
  std::filesystem::remove_all(folder_.path() + "Ann");
  dialog_.Press(kOkButton);
  EXPECT_EQ(dialog_.Log(), Texts{"close"});
  EXPECT_EQ(boxes_.TakeTexts(), Texts{});
}

}  // namespace
}  // namespace velnor
