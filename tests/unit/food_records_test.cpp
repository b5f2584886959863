#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "food/calorie_record.h"
#include "food/recipe_record.h"

namespace velnor {
namespace {

using Lines = std::vector<std::string>;

TEST(CalorieRecordTest, IsOneLineOfItemsAndARule) {
  EXPECT_EQ(
      CalorieRecordText(
          {"16.11.2026", {"350.", "98.", "2.45", "1.4", "18.9"}, 1.89F, 0.224F, "after sport"}),
      "16.11.2026  food weight[g]: 350.  K[kcal]: 98.  P[g]: 2.45  F[g]: 1.4  C[g]: 18.9  "
      "CE: 1.89  PFE: 0.224  ||after sport\n" +
          std::string(120, '-') + '\n');
}

TEST(CalorieRecordTest, EmptyTextsStayEmpty) {
  EXPECT_EQ(CalorieRecordText({}),
            "  food weight[g]:   K[kcal]:   P[g]:   F[g]:   C[g]:   CE: 0.  PFE: 0.  ||\n" +
                std::string(120, '-') + '\n');
}

TEST(CalorieRecordTest, TotalsAreCutToTwoDecimals) {
  const TotalTexts cut = CutForRecord({"1234.5678", "99.999", "0.019", "", "12345.67"});
  EXPECT_EQ(cut.weight, "1234.56");
  EXPECT_EQ(cut.kcal, "99.99");
  EXPECT_EQ(cut.protein, "0.01");
  EXPECT_EQ(cut.fat, "0.");
  EXPECT_EQ(cut.carbohydrate, "12345.7") << "six digits";
}

TEST(CalorieRecordTest, ExchangesBelowTheLeastShowNothing) {
  EXPECT_EQ(ShownExchange(0.05F, 0.01), "0.05");
  EXPECT_EQ(ShownExchange(0.05F, 0.1), "0");
  EXPECT_EQ(ShownExchange(0.0099F, 0.01), "0");
  EXPECT_EQ(ShownExchange(1.2345678F, 0.1), "1.23457");
}

const std::string kLongRule = '\t' + std::string(86, '*');
const std::string kShortRule = "\t\t\t" + std::string(35, '*');

TEST(RecipeRecordTest, IsADatedSheetBetweenRules) {
  EXPECT_EQ(RecipeRecordText({"16.11.2026",
                              "shake",
                              {"350.", "98.", "2.45", "1.4", "18.9"},
                              {"frozen strawberries  250.0g", "milk 3,5%  100.0g"},
                              "Mix.\r\nDrink."}),
            kLongRule + '\n' + kShortRule +
                "\nDATE: 16.11.2026\nNAME:  shake\n"
                "[kcal]:98. proteins[g]:2.45 fat[g]:1.4 carbohydrates[g]:18.9\n"
                "COMPOSITION:\nfrozen strawberries  250.0g\nmilk 3,5%  100.0g\n"
                "RECIPE:  \nMix.\r\nDrink.\n" +
                kShortRule + '\n' + kLongRule + "\n\n");
}

TEST(RecipeRecordTest, WithoutFoodsTheRecipeFollowsAtOnce) {
  const std::string text = RecipeRecordText({"16.11.2026", "", {}, {}, ""});
  EXPECT_NE(text.find("\nNAME:  \n[kcal]: proteins[g]: fat[g]: carbohydrates[g]:\n"
                      "COMPOSITION:\nRECIPE:  \n\n\t\t\t*"),
            std::string::npos)
      << text;
}

TEST(RecipeRecordTest, SeventyFoodsOf127CharactersAreKept) {
  Lines lines;
  for (int i = 0; i < 75; ++i) lines.push_back("food " + std::to_string(i));
  lines[3] = std::string(127, 'x') + 'y';
  const Lines rows = CompositionOf(lines);
  ASSERT_EQ(rows.size(), 70U);
  EXPECT_EQ(rows.back(), "food 69");
  EXPECT_EQ(rows[3], std::string(127, 'x'));
}

TEST(RecipeRecordTest, AnEmptyLineEndsTheComposition) {
  EXPECT_EQ(CompositionOf({"a", "", "b"}), (Lines{"a"}));
  EXPECT_EQ(CompositionOf({}), Lines{});
}

}  // namespace
}  // namespace velnor
