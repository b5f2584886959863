// The two dialogs that save body measures: what they open with and what they write.

#include <string>
#include <vector>

#include "tests/screens/body_fixture.h"

namespace velnor {
namespace {

constexpr int kDate = 709;
constexpr int kWeight = 710;
constexpr int kBmi = 711;
constexpr int kWaist = 713;
constexpr int kHip = 714;
constexpr int kWhr = 715;
constexpr int kOther = 716;
constexpr int kSave = 1;
constexpr int kCancel = 2;

const std::string kMan = "35\r\n175\r\nmen\r\nlow\r\nnone";
const std::string kFiftyLetters(50, 'x');

class RecordDialogTest : public BodyTest {
 protected:
  void OpenWeight() {
    if (program_->session().screen != 1) Open(kOpenBmi);
    OpenDialog(103, weight_);
  }
  void OpenWhr() {
    if (program_->session().screen != 2) Open(kOpenWhr);
    OpenDialog(107, whr_);
  }
  Texts WeightFields() const {
    return {weight_.Text(kDate), weight_.Text(kWeight), weight_.Text(kBmi), weight_.Text(kOther)};
  }
  Texts WhrFields() const {
    return {whr_.Text(kDate), whr_.Text(kWaist), whr_.Text(kHip), whr_.Text(kWhr),
            whr_.Text(kOther)};
  }
  std::string WeightReport() const { return folder_.Read("Ann/waga.ASC"); }
  std::string WeightSeries() const { return folder_.Read("Ann/wykwag.txt"); }
  std::string WhrReport() const { return folder_.Read("Ann/whr.ASC"); }

  FakeForm weight_;
  FakeForm whr_;
};

// --- body weight

TEST_F(RecordDialogTest, WeightOpensWithTheLastCount) {
  LogIn(kMan);
  Open(kOpenBmi);
  window_.log.clear();
  OpenWeight();
  EXPECT_EQ(window_.log, (Texts{"open 10004"}));
  EXPECT_EQ(WeightFields(), (Texts{kTestDate, "", "", ""}));
  CountWith("70", 102);
  form_.SetText(kWeightEdit, "99");  // typed, not counted with
  OpenWeight();
  EXPECT_EQ(WeightFields(), (Texts{kTestDate, "70", "22.8571", ""}));
}

TEST_F(RecordDialogTest, WeightOffersNoBmiThatIsNotAboveNothing) {
  LogIn(kMan);
  Open(kOpenBmi);
  for (const char* const weight : {"0", "-70"}) {
    CountWith(weight, 102);
    OpenWeight();
    EXPECT_EQ(WeightFields(), (Texts{kTestDate, weight, "", ""}));
  }
}

TEST_F(RecordDialogTest, WeightIsSavedInReportAndSeries) {
  LogIn(kMan);
  Open(kOpenBmi);
  CountWith("70", 102);
  OpenWeight();
  weight_.Press(kSave);
  EXPECT_EQ(WeightReport(), "date: 16.11.2026\tbody weight[kg]: 70\tBMI: 22.85\tother: \t\r\n");
  EXPECT_EQ(WeightSeries(), "16.11.2026;70;22.85;\r\n");
  EXPECT_EQ(weight_.Log(), (Texts{"close"}));
}

TEST_F(RecordDialogTest, OnlyTheBmiIsCutToTwoDecimals) {
  LogIn(kMan);
  OpenWeight();
  weight_.SetText(kWeight, "70.456");
  weight_.SetText(kBmi, "22.999");
  weight_.SetText(kOther, "after lunch");
  weight_.Press(kSave);
  EXPECT_EQ(WeightReport(),
            "date: 16.11.2026\tbody weight[kg]: 70.456\tBMI: 22.99\tother: after lunch\t\r\n");
  EXPECT_EQ(WeightSeries(), "16.11.2026;70.456;22.99;\r\n");
}

TEST_F(RecordDialogTest, AnEditedDateGoesIntoTheReportOnly) {
  LogIn(kMan);
  OpenWeight();
  weight_.SetText(kDate, "1.1.2020");
  weight_.SetText(kWeight, "70");
  weight_.Press(kSave);
  EXPECT_EQ(WeightReport(), "date: 1.1.2020\tbody weight[kg]: 70\tBMI: 0.\tother: \t\r\n");
  EXPECT_EQ(WeightSeries(), "16.11.2026;70;0.;\r\n");
}

TEST_F(RecordDialogTest, TheReportKeepsEverySaveAndTheSeriesOneADay) {
  LogIn(kMan);
  folder_.Write("Ann/wykwag.txt", "14.11.2026;72;23.51;\r\n15.11.2026;71;23.18;\r\n");
  for (const char* const weight : {"70", "69"}) {
    Open(kOpenBmi);
    CountWith(weight, 102);
    OpenWeight();
    weight_.Press(kSave);
  }
  EXPECT_EQ(WeightReport(),
            "date: 16.11.2026\tbody weight[kg]: 70\tBMI: 22.85\tother: \t\r\n"
            "date: 16.11.2026\tbody weight[kg]: 69\tBMI: 22.53\tother: \t\r\n");
  EXPECT_EQ(WeightSeries(),
            "14.11.2026;72;23.51;\r\n15.11.2026;71;23.18;\r\n16.11.2026;69;22.53;\r\n");
}

TEST_F(RecordDialogTest, LimitsOfTheWeightFields) {
  LogIn(kMan);
  OpenWeight();
  weight_.SetText(kDate, kFiftyLetters);
  weight_.SetText(kWeight, kFiftyLetters);
  weight_.SetText(kBmi, std::string(48, '0') + "12");
  weight_.SetText(kOther, std::string(128, 'y'));
  weight_.Press(kSave);
  const std::string fields(49, 'x');
  EXPECT_EQ(WeightReport(), "date: " + fields + "\tbody weight[kg]: " + fields +
                                "\tBMI: 1.\tother: " + std::string(127, 'y') + "\t\r\n");
}

// --- waist and hip

TEST_F(RecordDialogTest, WhrOpensWithTheLastCount) {
  LogIn(kMan);
  Open(kOpenWhr);
  window_.log.clear();
  OpenWhr();
  EXPECT_EQ(window_.log, (Texts{"open 10005"}));
  EXPECT_EQ(WhrFields(), (Texts{kTestDate, "", "", "", ""}));
  form_.SetText(104, "85");
  form_.SetText(105, "101");
  OpenWhr();
  EXPECT_EQ(WhrFields(), (Texts{kTestDate, "", "", "", ""}));
  form_.Press(106);
  OpenWhr();
  EXPECT_EQ(WhrFields(), (Texts{kTestDate, "85", "101", "0.841584", ""}));
  form_.SetText(104, "0");
  form_.Press(106);
  OpenWhr();
  EXPECT_EQ(WhrFields(), (Texts{kTestDate, "0", "101", "", ""}));
}

TEST_F(RecordDialogTest, WhrIsSavedWithItsFiguresCutToTwoDecimals) {
  LogIn(kMan);
  OpenWhr();
  whr_.SetText(kWaist, "80.129");
  whr_.SetText(kHip, "100");
  whr_.SetText(kWhr, "0.8013");
  whr_.SetText(kOther, "after lunch");
  whr_.SetText(kDate, "1.1.2020");
  whr_.Press(kSave);
  EXPECT_EQ(WhrReport(),
            "date: 1.1.2020\twaist[cm]: 80.12\thip[cm]: 100.\tWHR: 0.8\tother: after lunch\r\n");
  EXPECT_EQ(whr_.Log(), (Texts{"close"}));
  EXPECT_EQ(WeightSeries(), "(missing)");
}

TEST_F(RecordDialogTest, EmptyFiguresOfTheWhrAreSavedAsNothing) {
  LogIn(kMan);
  for (int i = 0; i < 2; ++i) {
    OpenWhr();
    whr_.SetText(kDate, "");
    whr_.Press(kSave);
  }
  const std::string line = "date: \twaist[cm]: 0.\thip[cm]: 0.\tWHR: 0.\tother: \r\n";
  EXPECT_EQ(WhrReport(), line + line);
}

TEST_F(RecordDialogTest, LimitsOfTheWhrFields) {
  LogIn(kMan);
  OpenWhr();
  whr_.SetText(kDate, kFiftyLetters);
  for (const int id : {kWaist, kHip, kWhr}) whr_.SetText(id, std::string(48, '0') + "12");
  whr_.SetText(kOther, std::string(100, 'y'));
  whr_.Press(kSave);
  EXPECT_EQ(WhrReport(),
            "date: " + std::string(49, 'x') +
                "\twaist[cm]: 1.\thip[cm]: 1.\tWHR: 1.\tother: " + std::string(99, 'y') + "\r\n");
}

// --- both

TEST_F(RecordDialogTest, CancelWritesNothing) {
  LogIn(kMan);
  OpenWeight();
  weight_.Press(kCancel);
  EXPECT_EQ(weight_.Log(), (Texts{"close"}));
  OpenWhr();
  whr_.Press(kCancel);
  EXPECT_EQ(whr_.Log(), (Texts{"close"}));
  EXPECT_EQ(WeightReport(), "(missing)");
  EXPECT_EQ(WeightSeries(), "(missing)");
  EXPECT_EQ(WhrReport(), "(missing)");
}

TEST_F(RecordDialogTest, OnlyAPressSaves) {
  LogIn(kMan);
  OpenWeight();
  window_.opened->OnCommand(weight_, kSave, 1);
  OpenWhr();
  window_.opened->OnCommand(whr_, kSave, 1);
  EXPECT_EQ(WeightReport(), "(missing)");
  EXPECT_EQ(WhrReport(), "(missing)");
  EXPECT_TRUE(weight_.Log().empty());
  EXPECT_TRUE(whr_.Log().empty());
}

TEST_F(RecordDialogTest, ALogoutClosesBothAsCancelDoes) {
  LogIn(kMan);
  OpenWeight();
  OpenWhr();
  program_->OnCommand(201, kButtonClicked);
  EXPECT_EQ(weight_.Log(), (Texts{"close"}));
  EXPECT_EQ(whr_.Log(), (Texts{"close"}));
  EXPECT_EQ(WeightReport(), "(missing)");
  EXPECT_EQ(WhrReport(), "(missing)");
}

}  // namespace
}  // namespace velnor
