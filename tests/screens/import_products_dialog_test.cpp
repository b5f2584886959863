// Products from a table: what the dialog says and what is in the lists afterwards.

#include "food/import_products_dialog.h"

#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/program_fixture.h"

namespace velnor {
namespace {

using Texts = std::vector<std::string>;

const std::string kTable =
    "name,kcal,protein,fat,carbohydrate,main,sub\n"
    "Medlars,53,0.4,0.1,11,fruits,fresh\n"
    "Crab apples,76,0.4,0.3,20,,\n"
    "pea,1,1,1,1,,\n";
const std::string kLines =
    "fruits;fresh;medlars;100;53;0.4;0.1;11;\r\n"
    "other;no category;crab apples;100;76;0.4;0.3;20;\r\n";
const std::string kReport = "2 products were added, 1 left out: line 4: no name of four letters.";

class ImportProductsTest : public testing::Test {
 protected:
  ImportProductsTest() {
    form_.AddDialogControls(kImportProductsResource);
    form_.SetListener(
        [this](int id, int notification) { dialog_.OnCommand(form_, id, notification); });
    dialog_.OnOpen(form_);
  }

  std::string Data() const { return folder_.Read("data.txt"); }
  // What the boxes say when the table `bytes` is imported.
  Texts Import(const std::string& bytes) {
    form_.SetText(801, folder_.Write("table.csv", bytes));
    form_.Press(kOkButton);
    return boxes_.TakeTexts();
  }
  // Leaves `free` of the slots.
  std::string FillSlots(int free) {
    std::string lines;
    for (int i = 0; i < 3000 - free; ++i) {
      lines += "fish;smoked;p" + std::to_string(i) + ";100;1;1;1;1;\r\n";
    }
    folder_.Write("data.txt", lines);
    return lines;
  }

  TemporaryFolder folder_;
  SessionState session_{.base_folder = folder_.path()};
  FoodTable food_;
  FakeMainWindow window_;
  FakeMessageBoxes boxes_;
  FakeForm form_;
  int changes_ = 0;
  ImportProductsDialog dialog_{food_, session_, window_, boxes_, [this] { ++changes_; }};
};

TEST_F(ImportProductsTest, OpensWithTheCategoryForWhatBelongsToNoOther) {
  EXPECT_EQ(form_.ItemCount(803), 22);
  EXPECT_EQ(form_.SelectedText(803), "other");
  EXPECT_EQ(form_.Items(804), (Texts{"sugar", "honey", "no category"}));
  EXPECT_EQ(form_.SelectedText(804), "no category");
}

TEST_F(ImportProductsTest, AMainCategoryOffersItsSubcategoriesAndChoosesTheFirst) {
  form_.Choose(803, "grain preserves");
  EXPECT_EQ(form_.Items(804), (Texts{"flour", "groats", "rice", "breakfast", "other"}));
  EXPECT_EQ(form_.SelectedText(804), "flour");
}

TEST_F(ImportProductsTest, AddsTheProductsAndSaysWhatWasLeftOut) {
  folder_.Write("data.txt", "fruits;fresh;figs;100;74;1;0;19;\r\n");
  EXPECT_EQ(Import(kTable), Texts{kReport});
  EXPECT_EQ(Data(), "fruits;fresh;figs;100;74;1;0;19;\r\n" + kLines);
  EXPECT_EQ(food_.user_products.products().size(), 3U);  // the lists have them at once
  EXPECT_TRUE(form_.Log().empty());                      // and the dialog is still open
}

TEST_F(ImportProductsTest, RowsWithoutACategoryGoToTheChosenOne) {
  form_.Choose(803, "fruits");
  form_.Choose(804, "dried");
  Import(kTable);
  EXPECT_NE(Data().find("fruits;dried;crab apples;"), std::string::npos);
}

TEST_F(ImportProductsTest, TheSameTableAgainAddsNothing) {
  Import(kTable);
  EXPECT_EQ(Import(kTable), Texts{"0 products were added, 2 were there already, 1 left out: "
                                  "line 4: no name of four letters."});
  EXPECT_EQ(Data(), kLines);
}

TEST_F(ImportProductsTest, WhatAnotherProgramAddedSinceCounts) {
  folder_.Write("data.txt", "fruits;fresh;medlars;100;53;0.4;0.1;11;\r\n");
  EXPECT_TRUE(Import(kTable).front().starts_with("1 product was added, 1 was there already"));
}

TEST_F(ImportProductsTest, MoreThanFitsIsAskedBeforeAnythingIsWritten) {
  const std::string lines = FillSlots(1);
  boxes_.answer = Answer::kNo;
  boxes_.while_open = [&] { EXPECT_EQ(Data(), lines); };
  const std::string question =
      "The table holds 2 products to add, but Your own list has room for 1 more.\n"
      "Add the first 1 of them?";
  form_.SetText(801, folder_.Write("table.csv", kTable));
  form_.Press(kOkButton);
  ASSERT_EQ(boxes_.shown.size(), 1U);
  EXPECT_EQ(boxes_.shown[0].buttons, MessageButtons::kYesNo);
  EXPECT_EQ(boxes_.TakeTexts(), Texts{question});
  EXPECT_EQ(Data(), lines);
  boxes_.while_open = nullptr;
  boxes_.answer = Answer::kYes;
  EXPECT_EQ(Import(kTable),
            (Texts{question, "1 product was added, 1 left out: line 4: no name of four letters."}));
  EXPECT_EQ(Data(), lines + kLines.substr(0, kLines.find('\n') + 1));
}

TEST_F(ImportProductsTest, AFullListTakesNothing) {
  const std::string lines = FillSlots(0);
  EXPECT_EQ(Import(kTable),
            Texts{"The table holds 2 products to add, but Your own list has room for 0 more.\n"
                  "Nothing was added. Remove some products first."});
  EXPECT_EQ(Data(), lines);
}

TEST_F(ImportProductsTest, WhatIsNoTableIsSaidAndChangesNothing) {
  const std::string old = "fruits;fresh;figs;100;74;1;0;19;\r\n";
  folder_.Write("data.txt", old);
  std::string junk;
  for (unsigned i = 0; i < 100'000; ++i) junk += static_cast<char>(i * i % 251 + 1);
  for (const std::string& table : {std::string(), junk, std::string(1'000'000, 'x'),
                                   std::string("MZ\0\0", 4), std::string(500'000, '"')}) {
    const Texts texts = Import(table);
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_TRUE(texts[0].ends_with("Nothing was added.")) << texts[0];
    EXPECT_EQ(Data(), old);
  }
}

// A file of 100 MB that takes no room on the disk: no more of it is read than a table can have.
TEST_F(ImportProductsTest, AHugeFileIsSaidToBeTooLarge) {
  const std::string path = folder_.Write("table.csv", kTable);
  std::filesystem::resize_file(path, 100'000'000);
  form_.SetText(801, path);
  form_.Press(kOkButton);
  EXPECT_EQ(boxes_.TakeTexts(),
            Texts{"This file is larger than 8 MB. A table of products is smaller.\n"
                  "Nothing was added."});
  EXPECT_EQ(Data(), "(missing)");
}

TEST_F(ImportProductsTest, AFileThatIsNotThereIsSaid) {
  const Texts not_opened = {"This table could not be opened.\nCheck its name and try again."};
  for (const std::string& path : {folder_.path() + "missing.csv", folder_.path()}) {
    form_.SetText(801, path);
    form_.Press(kOkButton);
    EXPECT_EQ(boxes_.TakeTexts(), not_opened) << path;
  }
  form_.SetText(801, "");
  form_.Press(kOkButton);
  EXPECT_EQ(boxes_.TakeTexts(), Texts{"Choose the table first."});
}

TEST_F(ImportProductsTest, ProductsThatCannotBeSavedAreSaidToBe) {
  std::filesystem::create_directory(folder_.path() + "data.txt");
  EXPECT_EQ(Import(kTable), Texts{"The products could not be saved. Nothing was added.\nCheck the "
                                  "folder of Your data and try again."});
}

TEST_F(ImportProductsTest, BrowsePutsTheChosenFileInItsField) {
  form_.SetText(801, "as typed");
  form_.Press(802);
  EXPECT_EQ(form_.Text(801), "as typed");  // nothing was chosen
  window_.file_to_choose = folder_.Write("table.csv", kTable);
  form_.Press(802);
  EXPECT_EQ(form_.Text(801), folder_.path() + "table.csv");
  EXPECT_EQ(window_.log.back(), "choose *.csv;*.tsv;*.txt");
}

TEST_F(ImportProductsTest, APathInQuotesIsUnderstood) {
  form_.SetText(801, '"' + folder_.Write("table.csv", kTable) + '"');
  form_.Press(kOkButton);
  EXPECT_EQ(boxes_.TakeTexts(), Texts{kReport});
}

TEST_F(ImportProductsTest, CloseClosesAndAddsNothing) {
  form_.SetText(801, folder_.Write("table.csv", kTable));
  form_.Press(kCancelButton);
  EXPECT_EQ(form_.Log(), Texts{"close"});
  EXPECT_EQ(Data(), "(missing)");
}

}  // namespace
}  // namespace velnor
