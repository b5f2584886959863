// The dialog that adds a product of the user's own.

#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/program_fixture.h"

namespace velnor {
namespace {

using Texts = std::vector<std::string>;

const std::string kTooShort = "ATTENTION! The name of product must be 4-signs long miniumum!";
const std::string kIncomplete = "Product wasn`t added to database\nSome data are incorrect";
const std::string kLetters =
    "New product was NOT added to database\nCheck your data. There might be letters instead of "
    "numbers";
const std::string kAdded = "New product was added to database";

class AddProductTest : public ProgramTest {
 protected:
  void Open() {
    Start();
    OpenDialog(240, dialog_);
  }
  void FillIn(const std::string& name) {
    dialog_.Choose(732, "fruits");
    dialog_.Choose(733, "fresh");
    dialog_.SetText(734, name);
    dialog_.SetText(740, "237");
    dialog_.SetText(736, "1.9");
    dialog_.SetText(737, "11");
    dialog_.SetText(738, "34.0");
  }
  Texts PressAdd() {
    dialog_.Press(1);
    return boxes_.TakeTexts();
  }

  FakeForm dialog_;
};

TEST_F(AddProductTest, OpensWithTheUsualMassAndTheMainCategories) {
  Open();
  EXPECT_EQ(dialog_.Text(735), "100");
  ASSERT_EQ(dialog_.ItemCount(732), 22);
  EXPECT_EQ(dialog_.Items(732).front(), "poultry");  // in the order of the table
  EXPECT_EQ(dialog_.Items(732).back(), "tinned food");
  EXPECT_EQ(dialog_.ItemCount(733), 0);
}

TEST_F(AddProductTest, AMainCategoryOffersItsSubcategories) {
  Open();
  dialog_.Choose(732, "fruits");
  EXPECT_EQ(dialog_.Items(733), (Texts{"frozen", "fresh", "dried", "preserves", "tin", "other"}));
  dialog_.Choose(732, "grain preserves");  // without its empty one
  EXPECT_EQ(dialog_.Items(733), (Texts{"flour", "groats", "rice", "breakfast", "other"}));
}

TEST_F(AddProductTest, AddsAndClearsTheEntries) {
  Open();
  FillIn("Apple Pie");
  dialog_.SetText(735, "120");
  EXPECT_EQ(PressAdd(), (Texts{kAdded}));
  EXPECT_EQ(folder_.Read("data.txt"), "fruits;fresh;apple pie;120;237;1.9;11;34.0;\r\n");
  EXPECT_EQ(dialog_.Text(735), "100");
  for (const int id : {734, 736, 737, 738, 740}) EXPECT_EQ(dialog_.Text(id), "") << id;
  EXPECT_EQ(dialog_.SelectedText(732), "fruits");
}

TEST_F(AddProductTest, ShowsItsMessagesAsInformation) {
  Open();
  dialog_.Press(1);
  ASSERT_EQ(boxes_.shown.size(), 2U);
  for (const auto& box : boxes_.shown) {
    EXPECT_EQ(box.caption, "Velnor calorie counter");
    EXPECT_EQ(box.icon, MessageIcon::kInformation);
    EXPECT_EQ(box.buttons, MessageButtons::kOk);
  }
}

TEST_F(AddProductTest, TheNewProductIsInTheListsAtOnce) {
  Open();
  FillIn("Apple Pie");
  PressAdd();
  ProgramTest::Open(231);
  form_.Choose(124, "fruits");
  form_.Choose(125, "fresh");
  form_.Choose(126, "apple pie");
  EXPECT_EQ(form_.Text(129), "237");
}

// The lists of both screens, with a product selected in each.
TEST_F(AddProductTest, TheListsThatShowItsSubcategoryGetItAndKeepTheirSelection) {
  Open();
  struct {
    int command, main_category, subcategory, products;
  } const screens[] = {{236, 108, 110, 109}, {231, 124, 125, 126}};
  for (const auto& screen : screens) {
    ProgramTest::Open(screen.command);
    form_.Choose(screen.main_category, "fruits");
    form_.Choose(screen.subcategory, "fresh");
    form_.Choose(screen.products, "apples");
  }
  FillIn("Aaa Pie");
  PressAdd();
  for (const auto& screen : screens) {
    EXPECT_EQ(form_.Items(screen.products).front(), "aaa pie") << screen.command;
    EXPECT_EQ(form_.SelectedText(screen.products), "apples") << screen.command;
    ProgramTest::Open(screen.command);
    form_.Choose(screen.main_category, "fish");
  }
  FillIn("Aab Pie");
  PressAdd();
  EXPECT_EQ(form_.ItemCount(126), 0);  // no subcategory is chosen
}

TEST_F(AddProductTest, WhatCanBeTypedCanBeRemovedAgain) {
  Open();
  FillIn("");
  dialog_.Type(734, std::string(80, 'n'));
  dialog_.Type(736, std::string(40, '1'));
  EXPECT_EQ(PressAdd(), (Texts{kAdded}));
  EXPECT_EQ(folder_.Read("data.txt"), "fruits;fresh;" + std::string(59, 'n') + ";100;237;" +
                                          std::string(29, '1') + ";11;34.0;\r\n");
  FakeForm remove;
  OpenDialog(241, remove);
  remove.Choose(739, std::string(59, 'n'));
  remove.Press(1);
  EXPECT_EQ(folder_.Read("data.txt"), "");
}

TEST_F(AddProductTest, AShortNameShowsTwoMessagesAndReloads) {
  Open();
  FillIn("fig");
  folder_.Write("data.txt", "fruits;fresh;from elsewhere;100;1;1;1;1;\r\n");
  EXPECT_EQ(PressAdd(), (Texts{kTooShort, kIncomplete}));
  EXPECT_EQ(folder_.Read("data.txt"), "fruits;fresh;from elsewhere;100;1;1;1;1;\r\n");
  EXPECT_EQ(dialog_.Text(734), "fig");
  ProgramTest::Open(231);
  form_.Choose(124, "fruits");
  form_.Choose(125, "fresh");
  form_.Choose(126, "from elsewhere");
}

TEST_F(AddProductTest, FourCharactersAreEnough) {
  Open();
  FillIn("figs");
  EXPECT_EQ(PressAdd(), (Texts{kAdded}));
}

TEST_F(AddProductTest, EveryEntryIsNeeded) {
  Open();
  for (const int id : {735, 740, 736, 737, 738}) {
    FillIn("Apple Pie");
    dialog_.SetText(735, "100");
    dialog_.SetText(id, "");
    EXPECT_EQ(PressAdd(), (Texts{kIncomplete})) << id;
  }
  FillIn("Apple Pie");
  dialog_.SetText(735, "100");
  dialog_.Choose(732, "fruits");  // leaves the subcategory unchosen
  EXPECT_EQ(PressAdd(), (Texts{kIncomplete}));
  dialog_.ClearItems(732);
  EXPECT_EQ(PressAdd(), (Texts{kIncomplete}));
  EXPECT_EQ(folder_.Read("data.txt"), "(missing)");
}

TEST_F(AddProductTest, OnlyTheFirstCharacterOfTheNutrientsIsLookedAt) {
  Open();
  for (const int id : {736, 737, 738}) {
    FillIn("Apple Pie");
    dialog_.SetText(id, "x1");
    EXPECT_EQ(PressAdd(), (Texts{kLetters})) << id;
    dialog_.SetText(id, "-1");
    EXPECT_EQ(PressAdd(), (Texts{kLetters})) << id;
    dialog_.SetText(id, ".5");
    EXPECT_EQ(PressAdd(), (Texts{kLetters})) << id;
  }
  FillIn("Apple Pie");
  dialog_.SetText(740, "abc");
  dialog_.SetText(735, "much");
  dialog_.SetText(736, "1x");
  EXPECT_EQ(PressAdd(), (Texts{kAdded}));
  EXPECT_EQ(folder_.Read("data.txt"), "fruits;fresh;apple pie;much;abc;1x;11;34.0;\r\n");
}

TEST_F(AddProductTest, CaloriesThatAreNoNumberCountAsNothing) {
  Open();
  FillIn("aa pie");
  dialog_.SetText(740, "abc");
  PressAdd();
  ProgramTest::Open(231);
  form_.Choose(124, "fruits");
  form_.Choose(125, "fresh");
  form_.Choose(126, "aa pie");
  EXPECT_EQ(form_.Text(129), "abc");
  form_.Type(128, "100");
  EXPECT_EQ(form_.Text(129), "0.");
}

TEST_F(AddProductTest, EntriesAreCut) {
  Open();
  FillIn(std::string(200, 'N'));
  dialog_.SetText(736, std::string(40, '1'));
  EXPECT_EQ(PressAdd(), (Texts{kAdded}));
  EXPECT_EQ(folder_.Read("data.txt"), "fruits;fresh;" + std::string(149, 'n') + ";100;237;" +
                                          std::string(29, '1') + ";11;34.0;\r\n");
}

TEST_F(AddProductTest, SemicolonsBreakTheLineAndNothingElse) {
  folder_.Write("data.txt", "fruits;fresh;figs;100;1;1;1;1;\r\n");
  Open();
  for (const int id : {734, 735, 740, 736, 737, 738}) {
    FillIn("apple pie");
    dialog_.SetText(735, "100");
    dialog_.SetText(id, id == 734 ? "semi;colon" : "1;2");
    EXPECT_EQ(PressAdd(), (Texts{kAdded})) << id;
  }
  const std::string bytes = folder_.Read("data.txt");
  EXPECT_TRUE(bytes.starts_with("fruits;fresh;figs;100;1;1;1;1;\r\nfruits;fresh;semi;colon;100;"));
  ProgramTest::Open(231);
  form_.Choose(124, "fruits");
  form_.Choose(125, "fresh");
  form_.Choose(126, "semi");
  form_.Choose(126, "figs");
}

TEST_F(AddProductTest, ANameTooLongForItsLineIsReadBackInPieces) {
  Open();
  for (const std::size_t length : {149U, 150U, 300U}) {
    FillIn(std::string(length, 'n'));
    EXPECT_EQ(PressAdd(), (Texts{kAdded}));
  }
  FillIn("figs");
  EXPECT_EQ(PressAdd(), (Texts{kAdded}));
  ProgramTest::Open(231);
  form_.Choose(124, "fruits");
  form_.Choose(125, "fresh");
  form_.Choose(126, std::string(136, 'n'));  // what 149 characters hold behind "fruits;fresh;"
  form_.Choose(126, "figs");
}

TEST_F(AddProductTest, PolishLettersAreMadeSmallAndKept) {
  Open();
  FillIn("\xAFUREK Z \xA3OSOSIEM");
  EXPECT_EQ(PressAdd(), (Texts{kAdded}));
  EXPECT_EQ(folder_.Read("data.txt"),
            "fruits;fresh;\xBFurek z \xB3ososiem;100;237;1.9;11;34.0;\r\n");
}

TEST_F(AddProductTest, TheProductBehindAFullTableStaysInTheFile) {
  std::string lines;
  for (int i = 0; i < 3000; ++i) lines += "fish;smoked;p" + std::to_string(i) + ";100;1;1;1;1;\r\n";
  folder_.Write("data.txt", lines);
  Open();
  FillIn("apple pie");
  EXPECT_EQ(PressAdd(), (Texts{kAdded}));
  EXPECT_EQ(folder_.Read("data.txt"), lines + "fruits;fresh;apple pie;100;237;1.9;11;34.0;\r\n");
  ProgramTest::Open(231);
  form_.Choose(124, "fruits");
  form_.Choose(125, "fresh");
  EXPECT_EQ(form_.ItemCount(126), 29);  // no slot was left for it
  form_.Choose(124, "fish");
  form_.Choose(125, "smoked");
  EXPECT_EQ(form_.ItemCount(126), 3005);
}

TEST_F(AddProductTest, AFileThatCannotBeWrittenIsNotReportedAndTheEntriesStay) {
  Open();
  std::filesystem::create_directory(folder_.path() + "data.txt");
  FillIn("Apple Pie");
  EXPECT_EQ(PressAdd(), Texts{});
  EXPECT_EQ(dialog_.Text(734), "Apple Pie");
}

TEST_F(AddProductTest, CloseClosesAndAddsNothing) {
  Open();
  FillIn("Apple Pie");
  dialog_.Press(2);
  EXPECT_EQ(dialog_.Log(), (Texts{"close"}));
  EXPECT_EQ(folder_.Read("data.txt"), "(missing)");
}

}  // namespace
}  // namespace velnor
