#include "food/product_import.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <vector>

#include "food/product_rules.h"
#include "food/user_product_file.h"
#include "tests/support/committed.h"
#include "tests/support/temporary_folder.h"

namespace velnor {
namespace {

using Texts = std::vector<std::string>;

const ProductCategory kFresh = {"fruits", "fresh"};
const std::string kHeadings = "name,kcal,protein,fat,carbohydrate\n";

// A product as its fields stand in its line.
std::string LineOf(const ImportedProduct& product) {
  std::string line;
  const ProductRecord record = product.AsRecord();
  for (const auto field : kProductFields) line.append(record.*field) += ';';
  return line;
}

class ProductImportTest : public testing::Test {
 protected:
  void WriteOwn(const std::string& bytes) {
    food_.user_products.Load(folder_.Write("data.txt", bytes));
  }
  ImportPlan Plan(std::string_view bytes) const { return PlanImport(bytes, food_, kFresh); }
  Texts Lines(std::string_view bytes) const {
    const ImportPlan plan = Plan(bytes);
    EXPECT_EQ(plan.problem, "");
    Texts lines;
    for (const ImportedProduct& product : plan.products) lines.push_back(LineOf(product));
    return lines;
  }
  // The one row left out, as the report has it.
  std::string LeftOut(const std::string& row) const {
    const ImportPlan plan = Plan("name,kcal,protein,fat,carbohydrate,mass,main,sub\n" + row);
    EXPECT_TRUE(plan.products.empty()) << row;
    EXPECT_EQ(plan.left_out.size(), 1U) << row;
    return plan.left_out.empty() ? "" : std::string(plan.left_out[0].reason);
  }

  TemporaryFolder folder_;
  FoodTable food_;
};

TEST_F(ProductImportTest, ARowBecomesAProductOfTheGivenCategoryFor100Grams) {
  EXPECT_EQ(Lines(kHeadings + "Apple Pie,237,1.9,11,34.0\n"),
            (Texts{"fruits;fresh;apple pie;100;237;1.9;11;34.0;"}));
}

TEST_F(ProductImportTest, ColumnsComeInAnyOrderAndCaseWithUnitsAndOthersBetween) {
  EXPECT_EQ(Lines("Sub;FAT [g];no;Energy (kJ);Energy (kcal);Name;Mass[g];PROTEINS;Main;"
                  "Carbohydrates (available) [g]\n"
                  "Rye;1,1;7;900;215;Dark Bread;50;6,2;Bread;,5\n"),
            (Texts{"bread;rye;dark bread;50;215;6.2;1.1;0.5;"}));
}

TEST_F(ProductImportTest, TheNamesOfNutrientDatabasesAreKnown) {
  // Rows of food_composition.csv.
  EXPECT_EQ(Lines("source,code,group,food,kcal,protein_g,fat_g,carbohydrate_g,fibre_g\n"
                  "sr28,01001,Dairy and Egg Products,\"Butter, salted\",717,0.85,81.11,0.06,0\n"
                  "sr28,01004,Dairy and Egg Products,\"Cheese, blue\",353,21.4,28.74,2.34,0\n"),
            (Texts{"fruits;fresh;butter, salted;100;717;0.85;81.11;0.06;",
                   "fruits;fresh;cheese, blue;100;353;21.4;28.74;2.34;"}));
}

TEST_F(ProductImportTest, EnergyInKilojoulesAloneIsNoEnergy) {
  EXPECT_EQ(Plan("name,energy (kJ),protein,fat,carbohydrate\npears,200,1,1,1\n").problem,
            "The first line of the table must name its columns. It names none for: kcal.\n"
            "Nothing was added.");
}

// Saved from one sheet in three encodings, with three separators and decimal commas.
TEST_F(ProductImportTest, TablesOfASpreadsheetGiveTheSameProducts) {
  for (const char* const name : {"utf8", "1250", "utf16"}) {
    std::ifstream file(std::string(VELNOR_TEST_DATA) + "/products_" + name + ".csv",
                       std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    const std::string creme = std::string(name) == "1250" ? "cr?me br?l\xE9" : "creme brul\xE9";
    EXPECT_EQ(Lines(bytes),
              (Texts{"soup;traditional;\xBFurek \x9Cl\xB9ski;100;64;3.1;3.5;5.2;",
                     "bread;rye;chleb \"\xB3\xB9kowy\", krojony;100;238;7.4;1.2;48.7;",
                     "dishes;salad;sa\xB3"
                     "atka jarzynowa, domowa;250;210;4.2;12.5;18;",
                     "fruits;fresh;" + creme + "e;100;266;4.5;14;21;"}))
        << name;
    EXPECT_EQ(ImportReport(Plan(bytes), 4),
              "4 products were added, 2 left out: line 5: no calories; "
              "line 7: no name of four letters.")
        << name;
  }
}

TEST_F(ProductImportTest, NamesAreMadeFitForTheFile) {
  EXPECT_EQ(Lines(kHeadings + "\"  Milk;  whole\r\n 3.2% \",1,1,1,1\n" + std::string(70, 'N') +
                  ",1,1,1,1\n" + std::string(58, 'X') + " Y,1,1,1,1\n"),
            (Texts{"fruits;fresh;milk, whole 3.2%;100;1;1;1;1;",
                   "fruits;fresh;" + std::string(59, 'n') + ";100;1;1;1;1;",
                   "fruits;fresh;" + std::string(58, 'x') + ";100;1;1;1;1;"}));
}

TEST_F(ProductImportTest, LongFiguresAreRounded) {
  EXPECT_EQ(Lines(kHeadings + "pears,0.30000000000000004,12.3456789,0.00000001,99999\n" +
                  "plums,0000001.5,5.,.25,00\n"),
            (Texts{"fruits;fresh;pears;100;0.3;12.3457;0;99999;",
                   "fruits;fresh;plums;100;1.5;5;0.25;00;"}));
}

TEST_F(ProductImportTest, WhatWouldBeNoProductIsLeftOutWithItsReason) {
  EXPECT_EQ(LeftOut("pea,1,1,1,1"), "no name of four letters");
  EXPECT_EQ(LeftOut(",1,1,1,1"), "no name of four letters");
  EXPECT_EQ(LeftOut("pears"), "no calories");
  EXPECT_EQ(LeftOut("pears,1, ,1,1"), "no protein");
  EXPECT_EQ(LeftOut("pears,1,1,,1"), "no fat");
  EXPECT_EQ(LeftOut("pears,1,1,1"), "no carbohydrates");
  for (const char* const figure :
       {"abc", "<0.1", "-1", "1e2", "1 g", "1.2.3", "\"1.234,5\"", ".", "100000", "inf", "0x10"}) {
    EXPECT_EQ(LeftOut("pears," + std::string(figure) + ",1,1,1"), "the calories are no figure");
    EXPECT_EQ(LeftOut("pears,1,1,1,1," + std::string(figure)), "the mass is no figure");
  }
  EXPECT_EQ(LeftOut("pears,1,x,1,1"), "the protein is no figure");
  EXPECT_EQ(LeftOut("pears,1,1,x,1"), "the fat is no figure");
  EXPECT_EQ(LeftOut("pears,1,1,1,x"), "the carbohydrates are no figure");
  EXPECT_EQ(LeftOut("pears,1,1,1,1,0.00"), "the mass is no figure");
  EXPECT_EQ(LeftOut("pears,1,1,1,1,,fruits"), "unknown category");
  EXPECT_EQ(LeftOut("pears,1,1,1,1,,,fresh"), "unknown category");
  EXPECT_EQ(LeftOut("pears,1,1,1,1,,fruits,0"), "unknown category");
  EXPECT_EQ(LeftOut("pears,1,1,1,1,,fruits,smoked"), "unknown category");
  EXPECT_EQ(LeftOut(std::string(10'001, 'x')), "longer than 10,000 characters");
}

TEST_F(ProductImportTest, TheReportNamesLinesAsAnEditorCountsThem) {
  const ImportPlan plan =
      Plan("\r\n" + kHeadings + "\n,,,,\n\"pears\nof two lines\",x,1,1,1\npears,,1,1,1\n");
  EXPECT_EQ(ImportReport(plan, 0),
            "0 products were added, 2 left out: lines 5 to 6: the calories are no figure; "
            "line 7: no calories.");
}

TEST_F(ProductImportTest, TheReportEndsAfterTenRows) {
  std::string table = kHeadings;
  for (int i = 0; i < 1234; ++i) table += "pea,1,1,1,1\n";
  const std::string report = ImportReport(Plan(table + "pears,1,1,1,1\npears,1,1,1,1\n"), 1);
  EXPECT_TRUE(
      report.starts_with("1 product was added, 1 was there already, 1,234 left out: line 2: "
                         "no name of four letters; line 3: "));
  EXPECT_TRUE(report.ends_with("; line 11: no name of four letters; and 1,224 more.")) << report;
}

TEST_F(ProductImportTest, ProductsThatAreThereAreNotDoubled) {
  WriteOwn("fish;fresh;pears;100;50;1;0.5;12.0;\r\nfish;fresh;plums;100;50;1;1;1;\r\n");
  const ImportPlan plan = Plan(kHeadings +
                               "PEARS,50.0,1,\"0,5\",12\n"    // one of the user's
                               "apples,48.6,0.3,0.2,11.40\n"  // a built-in one
                               "plums,51,1,1,1\n"             // other calories
                               "quinces,1,1,1,1\nquinces,1,1,1,1\n");
  ASSERT_EQ(plan.products.size(), 2U);
  EXPECT_EQ(plan.products[0].name, "plums");
  EXPECT_EQ(plan.products[1].name, "quinces");
  EXPECT_EQ(plan.already_there, 3U);
  EXPECT_EQ(ImportReport(plan, 2), "2 products were added, 3 were there already.");
}

TEST_F(ProductImportTest, CountsWhatTheSlotsHold) {
  std::string own;
  for (int i = 0; i < 2997; ++i) own += "fish;fresh;fish" + std::to_string(i) + ";1;1;1;1;1;\r\n";
  WriteOwn(own + "\r\n");  // an empty line uses up its slot
  const ImportPlan plan = Plan(kHeadings + "pears,1,1,1,2\nplums,1,1,1,2\nquinces,1,1,1,2\n");
  EXPECT_EQ(plan.products.size(), 3U);
  EXPECT_EQ(plan.fitting, 2U);
  EXPECT_EQ(TooManyProducts(plan),
            "The table holds 3 products to add, but Your own list has room for 2 more.\n"
            "Add the first 2 of them?");
  WriteOwn(own + own);
  EXPECT_EQ(Plan(kHeadings + "pears,1,1,1,2\n").fitting, 0U);
  EXPECT_EQ(TooManyProducts(Plan(kHeadings + "pears,1,1,1,2\n")),
            "The table holds 1 product to add, but Your own list has room for 0 more.\n"
            "Nothing was added. Remove some products first.");
}

TEST_F(ProductImportTest, WhatIsNoTableIsRefused) {
  const Texts tables = {std::string(kImportLimit + 1, 'a'),
                        std::string(20'000, 'a'),
                        "",
                        "\r\n\r\n",
                        std::string("PK\x03\x04\0\0", 6),
                        "pears,1,1,1,1\n",
                        kHeadings.substr(5)};
  for (const std::string& table : tables) {
    const ImportPlan plan = Plan(table);
    EXPECT_TRUE(plan.problem.ends_with("Nothing was added.")) << table.substr(0, 20);
    EXPECT_TRUE(plan.products.empty() && plan.left_out.empty());
  }
}

// Whatever the rules by which the lists compare: a product imported under a category is listed
// there, found by its name, read back whole, and removed by its name.
TEST_F(ProductImportTest, AnImportedProductIsListedUnderItsCategoryAndRemoved) {
  const std::string path = folder_.path() + "data.txt";
  for (const CategoryRecord& row : food_.categories) {
    for (const std::string_view subcategory :
         ListSubcategories(food_, Matching::kCounter, row.main_category)) {
      const std::string name = std::string(59, 'q');
      const ImportPlan plan = Plan("name,kcal,protein,fat,carbohydrate,mass,main,sub\n" + name +
                                   ",12345.75,12345.75,12345.75,12345.75,12345.75," +
                                   std::string(row.main_category) + ',' + std::string(subcategory));
      ASSERT_EQ(plan.products.size(), 1U) << row.main_category << ' ' << subcategory;
      ASSERT_TRUE(Committed(folder_.path(), AddUserProduct, path, plan.products[0].AsRecord()));
      food_.user_products.Load(path);
      ASSERT_EQ(food_.user_products.products().size(), 1U);
      EXPECT_EQ(food_.user_products.products()[0].carbohydrate, "12345.75");
      for (const Matching matching : {Matching::kCounter, Matching::kOverview}) {
        const auto listed = ListProducts(food_, matching, row.main_category, subcategory);
        EXPECT_EQ(std::ranges::count(listed, name), 1) << row.main_category << ' ' << subcategory;
        EXPECT_EQ(FindProduct(food_, matching, name), food_.user_products.products().data());
      }
      ASSERT_TRUE(Committed(folder_.path(), RemoveUserProduct, path, name));
      food_.user_products.Load(path);
      EXPECT_TRUE(food_.user_products.products().empty());
    }
  }
}

}  // namespace
}  // namespace velnor
