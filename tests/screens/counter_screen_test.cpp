// The nutrition counter: choosing, weighing, and every text it paints.

#include <algorithm>
#include <string>
#include <vector>

#include "tests/support/program_fixture.h"

namespace velnor {
namespace {

constexpr int kOpenCounter = 231;
constexpr int kMainCategory = 124;
constexpr int kSubcategory = 125;
constexpr int kProducts = 126;
constexpr int kWeight = 128;

// Of lists and combo boxes: everything but a choice. Among them 2, the double click, and 7, the
// dropping down.
constexpr int kOtherListNotifications[] = {-1, 0, 2, 3, 4, 5, 6, 7, 8, 9, 10, 0x0300, 0x0400};

using Texts = std::vector<std::string>;

class CounterScreenTest : public ProgramTest {
 protected:
  void Open() {
    Start();
    ProgramTest::Open(kOpenCounter);
  }
  void ChooseProduct(const std::string& main_category, const std::string& subcategory,
                     const std::string& product) {
    form_.Choose(kMainCategory, main_category);
    form_.Choose(kSubcategory, subcategory);
    form_.Choose(kProducts, product);
  }
  // kcal, protein, fat, carbohydrate
  Texts Values() const {
    return {form_.Text(129), form_.Text(130), form_.Text(131), form_.Text(132)};
  }
};

TEST_F(CounterScreenTest, PaintsItsTexts) {
  Start();
  const RecordingCanvas canvas = ProgramTest::Open(kOpenCounter);
  constexpr Font kHeading{18, 700, true};
  constexpr Font kLabel{14, 0, false};
  const std::vector<DrawnText> expected = {
      {"build, count or check food", {10, 30}, kHeading, kBlack},
      {"Choose main category:", {25, 75}, kLabel, kBlack},
      {"Choose product:", {330, 75}, kLabel, kBlack},
      {"Choose subcategory:", {25, 145}, kLabel, kBlack},
      {"Food weight[g]:", {25, 240}, {15, 700, false}, {255, 0, 0}},
      {"[kcal]", {125, 240}, kLabel, kBlack},
      {"proteins[g]", {222, 240}, kLabel, kBlack},
      {"fat[g]", {320, 240}, kLabel, kBlack},
      {"carbohydrates[g]", {400, 240}, kLabel, kBlack},
      {"Your list:", {25, 320}, kLabel, kBlack},
      {"Total weight[g]:", {400, 340}, kLabel, kBlack},
      {"Calories[kcal]:", {400, 370}, kLabel, kBlack},
      {"proteins[g]:", {400, 400}, kLabel, kBlack},
      {"Fat[g]:", {400, 430}, kLabel, kBlack},
      {"Carbohydrates[g]:", {400, 460}, kLabel, kBlack},
      {"P:F:C", {400, 490}, kLabel, kBlack},
      {"Carb Exch:", {600, 340}, kLabel, kBlack},
      {"Protein-Fat Exch:", {600, 400}, kLabel, kBlack},
  };
  EXPECT_EQ(std::vector<DrawnText>(canvas.texts.begin() + 2, canvas.texts.end()), expected);
  const Pen pen = {kBlack, 1};
  EXPECT_EQ(canvas.lines, (std::vector<DrawnLine>{{{{4, 20}, {790, 20}}, pen},
                                                  {{{5, 55}, {695, 55}}, pen},
                                                  {{{25, 230}, {305, 230}}, pen}}));
}

TEST_F(CounterScreenTest, OffersTheMainCategoriesOnce) {
  Open();
  EXPECT_EQ(form_.ItemCount(kMainCategory), 22);
  EXPECT_EQ(form_.Items(kMainCategory).front(), "alcohol");  // the box is sorted
  form_.Choose(kMainCategory, "fruits");
  ProgramTest::Open(221);
  ProgramTest::Open(kOpenCounter);
  EXPECT_EQ(form_.ItemCount(kMainCategory), 22);
  EXPECT_EQ(form_.SelectedText(kMainCategory), "fruits");
}

TEST_F(CounterScreenTest, AMainCategoryOffersItsSubcategoriesAndEmptiesTheProducts) {
  Open();
  form_.Choose(kMainCategory, "fruits");
  form_.Choose(kSubcategory, "fresh");
  EXPECT_EQ(form_.ItemCount(kProducts), 29);
  form_.Choose(kMainCategory, "grain preserves");
  EXPECT_EQ(form_.Items(kSubcategory), (Texts{"breakfast", "flour", "groats", "other", "rice"}));
  EXPECT_EQ(form_.ItemCount(kProducts), 0);
}

TEST_F(CounterScreenTest, AnotherSubcategoryReplacesTheProducts) {
  Open();
  form_.Choose(kMainCategory, "fruits");
  form_.Choose(kSubcategory, "fresh");
  form_.Choose(kSubcategory, "frozen");
  EXPECT_EQ(form_.Items(kProducts),
            (Texts{"frozen plums", "frozen sour cherries", "frozen strawberries"}));
}

TEST_F(CounterScreenTest, WithoutCategoryOrSubcategoryTheProductsStay) {
  for (const int deselected : {kMainCategory, kSubcategory}) {
    Open();
    form_.Choose(kMainCategory, "fruits");
    form_.Choose(kSubcategory, "fresh");
    const Texts products = form_.Items(kProducts);
    form_.ClearItems(deselected);
    program_->OnCommand(kSubcategory, kSelectionChanged);
    EXPECT_EQ(form_.Items(kProducts), products) << deselected;
  }
}

TEST_F(CounterScreenTest, AMainCategorySetsDashes) {
  Open();
  form_.Choose(kMainCategory, "fruits");
  EXPECT_EQ(form_.Text(kWeight), "   -");
  EXPECT_EQ(Values(), (Texts{"   -", "   -", "   -", "   -"}));
  // Also over the values of a product, which the new text of the weight announces first.
  ChooseProduct("fruits", "frozen", "frozen strawberries");
  form_.Choose(kMainCategory, "fish");
  EXPECT_EQ(form_.Text(kWeight), "   -");
  EXPECT_EQ(Values(), (Texts{"   -", "   -", "   -", "   -"}));
}

TEST_F(CounterScreenTest, AProductShowsItsOwnTexts) {
  Open();
  ChooseProduct("fruits", "frozen", "frozen strawberries");
  EXPECT_EQ(form_.Text(kWeight), "100");
  EXPECT_EQ(Values(), (Texts{"28", "0.70", "0.40", "5.40"}));
}

TEST_F(CounterScreenTest, AWeightShowsWhatItHolds) {
  Open();
  ChooseProduct("fruits", "frozen", "frozen strawberries");
  form_.Type(kWeight, "250");
  EXPECT_EQ(Values(), (Texts{"70.", "1.75", "1.", "13.5"}));
}

TEST_F(CounterScreenTest, TracesCountAsNothing) {
  Open();
  ChooseProduct("fruits", "frozen", "frozen strawberries");
  form_.Type(kWeight, "1");
  EXPECT_EQ(Values(), (Texts{"0.28", "0.", "0.", "0."}));
}

TEST_F(CounterScreenTest, SevenCharactersOfTheWeightCount) {
  Open();
  ChooseProduct("fruits", "frozen", "frozen strawberries");
  form_.Type(kWeight, "100.0009");
  EXPECT_EQ(Values()[0], "28.");
  form_.Type(kWeight, "12345678");  // 1234567 g
  EXPECT_EQ(Values()[0], "345679.");
}

TEST_F(CounterScreenTest, AWeightThatIsNoNumberGivesNothing) {
  Open();
  ChooseProduct("fruits", "frozen", "frozen strawberries");
  for (const char* const weight : {"abc", "", "   -", "-20", "nan"}) {
    form_.Type(kWeight, weight);
    EXPECT_EQ(Values(), (Texts{"0.", "0.", "0.", "0."})) << weight;
  }
  form_.Type(kWeight, "50,5");
  EXPECT_EQ(Values()[0], "14.");
}

TEST_F(CounterScreenTest, BeforeTheFirstChoiceAWeightChangesNothing) {
  Open();
  form_.Type(kWeight, "250");
  EXPECT_EQ(Values(), (Texts{"", "", "", ""}));
}

TEST_F(CounterScreenTest, OtherNotificationsChangeNothing) {
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

TEST_F(CounterScreenTest, OnlyTheUpdateOfTheWeightComputes) {
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

TEST_F(CounterScreenTest, NoSelectionLeavesThePreviousValues) {
  Start();
  ProgramTest::Open(kOpenCounter);
  for (const int id : {kMainCategory, kSubcategory, kProducts}) {
    program_->OnCommand(id, kSelectionChanged);
  }
  EXPECT_EQ(Values(), (Texts{"", "", "", ""}));
  ChooseProduct("fruits", "frozen", "frozen strawberries");
  form_.ClearItems(kProducts);
  program_->OnCommand(kProducts, kSelectionChanged);
  EXPECT_EQ(Values(), (Texts{"28", "0.70", "0.40", "5.40"}));
  form_.Type(kWeight, "250");
  EXPECT_EQ(Values()[0], "70.");
}

TEST_F(CounterScreenTest, TheChoiceSurvivesAChangeOfScreen) {
  Open();
  ChooseProduct("fruits", "frozen", "frozen strawberries");
  ProgramTest::Open(252);
  ProgramTest::Open(kOpenCounter);
  EXPECT_EQ(Values(), (Texts{"28", "0.70", "0.40", "5.40"}));
  form_.Type(kWeight, "250");
  EXPECT_EQ(Values()[0], "70.");
}

TEST_F(CounterScreenTest, EachPickerKeepsItsOwnChoice) {
  Open();
  ChooseProduct("fruits", "frozen", "frozen strawberries");
  ProgramTest::Open(236);
  form_.Choose(108, "milk preserves");
  form_.Choose(110, "milk");
  form_.Choose(109, "goat milk");
  ProgramTest::Open(231);
  form_.Type(kWeight, "250");
  EXPECT_EQ(Values()[0], "70.");
}

TEST_F(CounterScreenTest, IrregularFiguresCountAsTheirLeadingNumber) {
  Open();
  ChooseProduct("meat", "pork", "pork-raw ham");
  EXPECT_EQ(Values()[0], "263,7");
  form_.Type(kWeight, "100");
  EXPECT_EQ(Values()[0], "263.");
  ChooseProduct("sausages", "offal", "collar gut");
  EXPECT_EQ(Values()[3], "???");
  form_.Type(kWeight, "100");
  EXPECT_EQ(Values()[3], "0.");
}

TEST_F(CounterScreenTest, UserProductsStandAmongTheOthersInAlphabeticalPlace) {
  folder_.Write("data.txt", "fruits;fresh;apple pie;50;100;2;4;14;\r\n");
  Open();
  form_.Choose(kMainCategory, "fruits");
  form_.Choose(kSubcategory, "fresh");
  EXPECT_EQ(form_.ItemCount(kProducts), 30);
  const Texts& items = form_.Items(kProducts);
  EXPECT_TRUE(std::is_sorted(items.begin(), items.end()));
  form_.Choose(kProducts, "apple pie");
  EXPECT_EQ(form_.Text(kWeight), "50");
  EXPECT_EQ(Values(), (Texts{"100", "2", "4", "14"}));
  form_.Type(kWeight, "100");  // scaled by its own mass
  EXPECT_EQ(Values(), (Texts{"200.", "4.", "8.", "28."}));
}

TEST_F(CounterScreenTest, AProductOfNoMassShowsWhatTheDivisionGives) {
  folder_.Write("data.txt",
                "fruits;fresh;aa nothing;0;100;0;4;x;\nfruits;fresh;ab nothing;;1;1;1;1;\n");
  Open();
  ChooseProduct("fruits", "fresh", "aa nothing");
  EXPECT_EQ(Values(), (Texts{"100", "0", "4", "x"}));
  form_.Type(kWeight, "10");
  EXPECT_EQ(Values(), (Texts{"inf", "nan", "inf", "nan"}));
  form_.Choose(kProducts, "ab nothing");
  form_.Type(kWeight, "10");
  EXPECT_EQ(Values()[0], "inf");
}

TEST_F(CounterScreenTest, ANameOfAHundredCharactersOrMoreIsNotFound) {
  const std::string fits(99, 'a');
  const std::string too_long(100, 'b');
  folder_.Write("data.txt", "fruits;fresh;" + fits + ";100;11;1;1;1;\nfruits;fresh;" + too_long +
                                ";100;22;1;1;1;\n");
  Open();
  ChooseProduct("fruits", "fresh", fits);
  EXPECT_EQ(Values()[0], "11");
  form_.Choose(kProducts, too_long);
  EXPECT_EQ(Values()[0], "11");
}

}  // namespace
}  // namespace velnor
