// The products overview: values, exchanges, ratio, and every text it paints.

#include <string>
#include <vector>

#include "tests/support/program_fixture.h"

namespace velnor {
namespace {

constexpr int kOpenOverview = 236;
constexpr int kMainCategory = 108;
constexpr int kSubcategory = 110;
constexpr int kProducts = 109;
constexpr int kWeight = 111;

// Of lists and combo boxes: everything but a choice. Among them 2, the double click, and 7, the
// dropping down.
constexpr int kOtherListNotifications[] = {-1, 0, 2, 3, 4, 5, 6, 7, 8, 9, 10, 0x0300, 0x0400};

using Texts = std::vector<std::string>;

class OverviewScreenTest : public ProgramTest {
 protected:
  void Open() {
    Start();
    ProgramTest::Open(kOpenOverview);
  }
  void ChooseProduct(const std::string& main_category, const std::string& subcategory,
                     const std::string& product) {
    form_.Choose(kMainCategory, main_category);
    form_.Choose(kSubcategory, subcategory);
    form_.Choose(kProducts, product);
  }
  // One product of the user's, chosen.
  void ChooseOwn(const std::string& kcal, const std::string& protein, const std::string& fat,
                 const std::string& carbohydrate) {
    folder_.Write("data.txt", "fruits;fresh;aa own;100;" + kcal + ';' + protein + ';' + fat + ';' +
                                  carbohydrate + ";\n");
    Open();
    ChooseProduct("fruits", "fresh", "aa own");
  }
  // kcal, protein, fat, carbohydrate
  Texts Values() const {
    return {form_.Text(112), form_.Text(113), form_.Text(114), form_.Text(115)};
  }
  Texts Ratio() const { return {form_.Text(116), form_.Text(117), form_.Text(118)}; }
  // carbohydrate, protein-fat
  Texts ExchangeTexts() const { return {form_.Text(185), form_.Text(186)}; }
};

TEST_F(OverviewScreenTest, PaintsItsTexts) {
  Start();
  const RecordingCanvas canvas = ProgramTest::Open(kOpenOverview);
  constexpr Font kLabel{14, 0, false};
  const std::vector<DrawnText> expected = {
      {"Products overview", {10, 30}, {18, 700, true}, kBlack},
      {"Choose main category: ", {10, 85}, kLabel, kBlack},
      {"Choose subcategory: ", {10, 135}, kLabel, kBlack},
      {"Choose the product: ", {10, 175}, kLabel, kBlack},
      {"Food weight [g]: ", {73, 265}, kLabel, kBlack},
      {"Calories [kcal]: ", {50, 350}, kLabel, kBlack},
      {"proteins [g]: ", {50, 395}, kLabel, kBlack},
      {"Fat [g]: ", {50, 420}, kLabel, kBlack},
      {"Carbohydrates [g]: ", {50, 445}, kLabel, kBlack},
      {"B : T : W", {50, 490}, kLabel, kBlack},
      {"Carb Exch:", {600, 340}, kLabel, kBlack},
      {"(Carbohydrate Exchange)", {600, 370}, kLabel, kBlack},
      {"Protein-Fat Exch:", {600, 400}, kLabel, kBlack},
      {"(Protein-Fat Exchange)", {600, 430}, kLabel, kBlack},
  };
  EXPECT_EQ(std::vector<DrawnText>(canvas.texts.begin() + 2, canvas.texts.end()), expected);
  EXPECT_EQ(canvas.lines, (std::vector<DrawnLine>{{{{4, 20}, {790, 20}}, {kBlack, 1}},
                                                  {{{5, 55}, {695, 55}}, {kBlack, 1}}}));
}

TEST_F(OverviewScreenTest, GrainPreservesOfferAnEmptyEntry) {
  Open();
  form_.Choose(kMainCategory, "grain preserves");
  EXPECT_EQ(form_.Items(kSubcategory),
            (Texts{"", "breakfast", "flour", "groats", "other", "rice"}));
  form_.Choose(kSubcategory, "");
  EXPECT_EQ(form_.ItemCount(kProducts), 0);
}

TEST_F(OverviewScreenTest, AMainCategoryLeavesTheValuesAlone) {
  Open();
  ChooseProduct("fruits", "frozen", "frozen strawberries");
  form_.Choose(kMainCategory, "fish");
  EXPECT_EQ(form_.Text(kWeight), "100");
  EXPECT_EQ(Values(), (Texts{"28", "0.70", "0.40", "5.40"}));
  EXPECT_EQ(form_.ItemCount(kProducts), 0);
}

TEST_F(OverviewScreenTest, AProductShowsItsTextsExchangesAndRatio) {
  ChooseOwn("63.90", "3.3", "3.5", "4.8");
  EXPECT_EQ(form_.Text(kWeight), "100");
  EXPECT_EQ(Values(), (Texts{"63.90", "3.3", "3.5", "4.8"}));
  EXPECT_EQ(ExchangeTexts(), (Texts{"0.48", "0.447"}));
  EXPECT_EQ(Ratio(), (Texts{"1.", "1.06061", "1.45455"}));
}

TEST_F(OverviewScreenTest, AWeightShowsWhatItHolds) {
  Open();
  ChooseProduct("fruits", "frozen", "frozen strawberries");
  form_.Type(kWeight, "250");
  EXPECT_EQ(Values(), (Texts{"70.", "1.75", "1.", "13.5"}));
  EXPECT_EQ(ExchangeTexts(), (Texts{"1.35", "0.16"}));
  EXPECT_EQ(Ratio(), (Texts{"1.", "0.571429", "7.71429"}));
}

TEST_F(OverviewScreenTest, FourCharactersOfTheWeightCount) {
  Open();
  ChooseProduct("fruits", "frozen", "frozen strawberries");
  form_.Type(kWeight, "12345");
  EXPECT_EQ(Values()[0], "345.52");  // 1234 g
}

TEST_F(OverviewScreenTest, WithoutProteinThereIsNoRatio) {
  Open();
  ChooseProduct("other", "sugar", "sugar");
  EXPECT_EQ(Ratio(), (Texts{" --", " --", " --"}));
  form_.Type(kWeight, "50");
  EXPECT_EQ(Ratio(), (Texts{" --", " --", " --"}));
  ChooseProduct("alcohol", "vodka", "vodka 40%");
  EXPECT_EQ(Ratio(), (Texts{" --", " --", " --"}));
  form_.Type(kWeight, "250");
  EXPECT_EQ(Values(), (Texts{"550.", "0", "0", "0"}));
  EXPECT_EQ(Ratio(), (Texts{" --", " --", " --"}));
}

TEST_F(OverviewScreenTest, SmallExchangesAndSmallValuesDiffer) {
  ChooseOwn("100", "10", "1", "0.5");
  form_.Type(kWeight, "100");
  EXPECT_EQ(ExchangeTexts(), (Texts{"<0.1", "0.49"}));  // 0.05 carbohydrate exchanges
  EXPECT_EQ(Values()[3], "0.5");
  form_.Type(kWeight, "10");
  // 0.1 g of fat, held in single precision, lies just above 0.1; 0.05 g of carbohydrate does not.
  EXPECT_EQ(Values(), (Texts{"10.", "1.", "0.1", "0"}));
  EXPECT_EQ(ExchangeTexts(), (Texts{"<0.1", "<0.1"}));
}

TEST_F(OverviewScreenTest, SmallPartsOfTheRatioShowDifferentlyAfterChoiceAndWeight) {
  ChooseOwn("100", "20", "1", "0.5");
  EXPECT_EQ(Ratio(), (Texts{"1.", "<0.1", "<0.1"}));
  form_.Type(kWeight, "100");
  EXPECT_EQ(Ratio(), (Texts{"1.", "0", "0"}));
}

TEST_F(OverviewScreenTest, AWeightThatIsNoNumberGivesNothing) {
  Open();
  ChooseProduct("fruits", "frozen", "frozen strawberries");
  form_.Type(kWeight, "abc");
  EXPECT_EQ(Values(), (Texts{"0", "0", "0", "0"}));
  EXPECT_EQ(ExchangeTexts(), (Texts{"<0.1", "<0.1"}));
  EXPECT_EQ(Ratio(), (Texts{" --", " --", " --"}));
}

TEST_F(OverviewScreenTest, BeforeTheFirstChoiceAWeightChangesNothing) {
  Open();
  form_.Type(kWeight, "250");
  EXPECT_EQ(Values(), (Texts{"", "", "", ""}));
  EXPECT_EQ(Ratio(), (Texts{"", "", ""}));
}

TEST_F(OverviewScreenTest, OtherNotificationsChangeNothing) {
  Open();
  ChooseProduct("fruits", "frozen", "frozen strawberries");
  form_.Type(kWeight, "250");
  const Texts subcategories = form_.Items(kSubcategory);
  const Texts products = form_.Items(kProducts);
  const Texts values = Values();
  for (const int id : {kMainCategory, kSubcategory, kProducts}) {
    for (const int notification : kOtherListNotifications) {
      SCOPED_TRACE(std::to_string(id) + " announces " + std::to_string(notification));
      program_->OnCommand(id, notification);
      EXPECT_EQ(form_.Items(kSubcategory), subcategories);
      EXPECT_EQ(form_.SelectedText(kSubcategory), "frozen");
      EXPECT_EQ(form_.Items(kProducts), products);
      EXPECT_EQ(form_.SelectedText(kProducts), "frozen strawberries");
      EXPECT_EQ(form_.Text(kWeight), "250");
      EXPECT_EQ(Values(), values);
    }
  }
}

TEST_F(OverviewScreenTest, OnlyTheUpdateOfTheWeightComputes) {
  Open();
  ChooseProduct("fruits", "frozen", "frozen strawberries");
  form_.SetListener({});
  form_.SetText(kWeight, "250");
  for (const int notification : {0, 1, 0x0100, 0x0200, 0x0300, 0x0500}) {
    program_->OnCommand(kWeight, notification);
    EXPECT_EQ(Values(), (Texts{"28", "0.70", "0.40", "5.40"})) << notification;
  }
  program_->OnCommand(kWeight, 0x0400);
  EXPECT_EQ(Values(), (Texts{"70.", "1.75", "1.", "13.5"}));
}

TEST_F(OverviewScreenTest, AProductOfNoMassShowsWhatTheDivisionGives) {
  folder_.Write("data.txt", "fruits;fresh;aa own;0;100;0;4;5;\n");
  Open();
  ChooseProduct("fruits", "fresh", "aa own");
  form_.Type(kWeight, "10");
  EXPECT_EQ(Values(), (Texts{"inf", "0", "inf", "inf"}));
  EXPECT_EQ(ExchangeTexts(), (Texts{"inf", "<0.1"}));
}

TEST_F(OverviewScreenTest, LongNamesOfTheUsersAreFound) {
  const std::string name(110, 'a');
  folder_.Write("data.txt", "fruits;fresh;" + name + ";100;22;1;1;1;\n");
  Open();
  ChooseProduct("fruits", "fresh", name);
  EXPECT_EQ(Values()[0], "22");
}

}  // namespace
}  // namespace velnor
