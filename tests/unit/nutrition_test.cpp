#include "food/nutrition.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace velnor {
namespace {

SelectedProduct Strawberries() { return {"100", "28", "0.70", "0.40", "5.40"}; }

TEST(ScaleToWeightTest, ScalesEveryValueByWeightOverMass) {
  const NutrientAmounts amounts = ScaleToWeight(Strawberries(), 250);
  EXPECT_FLOAT_EQ(amounts.kcal, 70);
  EXPECT_FLOAT_EQ(amounts.protein, 1.75F);
  EXPECT_FLOAT_EQ(amounts.fat, 1);
  EXPECT_FLOAT_EQ(amounts.carbohydrate, 13.5F);
}

TEST(ScaleToWeightTest, UsesTheProductsOwnMass) {
  const NutrientAmounts amounts = ScaleToWeight({"50", "100", "10", "5", "20"}, 25);
  EXPECT_FLOAT_EQ(amounts.kcal, 50);
  EXPECT_FLOAT_EQ(amounts.carbohydrate, 10);
}

TEST(ScaleToWeightTest, ReadsFiguresAsTheLeadingNumber) {
  const NutrientAmounts amounts = ScaleToWeight({"100", "263,7", "18.0", "21.3", "???"}, 100);
  EXPECT_FLOAT_EQ(amounts.kcal, 263);
  EXPECT_FLOAT_EQ(amounts.carbohydrate, 0);
}

TEST(ScaleToWeightTest, AMassOfNothingGivesInfiniteOrUndefinedAmounts) {
  for (const char* const mass : {"0", "", "abc"}) {
    const NutrientAmounts amounts = ScaleToWeight({mass, "28", "0", "-1", ""}, 250);
    EXPECT_EQ(amounts.kcal, std::numeric_limits<float>::infinity());
    EXPECT_TRUE(std::isnan(amounts.protein));
    EXPECT_EQ(amounts.fat, -std::numeric_limits<float>::infinity());
    EXPECT_TRUE(std::isnan(amounts.carbohydrate));
  }
}

TEST(ExchangesTest, CountsAndRemembers) {
  Exchanges exchanges;
  EXPECT_EQ(exchanges.last_carbohydrate(), 0);
  EXPECT_EQ(exchanges.last_protein_fat(), 0);
  EXPECT_FLOAT_EQ(exchanges.CountCarbohydrate(54), 5.4F);
  EXPECT_FLOAT_EQ(exchanges.CountProteinFat(10, 20), 2.2F);
  EXPECT_FLOAT_EQ(exchanges.last_carbohydrate(), 5.4F);
  EXPECT_FLOAT_EQ(exchanges.last_protein_fat(), 2.2F);
  EXPECT_FLOAT_EQ(exchanges.CountCarbohydrate(0.5F), 0.05F);
  EXPECT_FLOAT_EQ(exchanges.last_carbohydrate(), 0.05F);
}

TEST(CounterTextTest, TakesTracesForNothing) {
  EXPECT_EQ(CounterText(70), "70.");
  EXPECT_EQ(CounterText(0.004F), "0.");
  EXPECT_EQ(CounterText(0.0999F), "0.");
  EXPECT_EQ(CounterText(0.1F), "0.1");
  EXPECT_EQ(CounterText(-5), "0.");
  EXPECT_EQ(CounterText(1234567.F), "1.23457e+06");
  EXPECT_EQ(CounterText(std::numeric_limits<float>::infinity()), "inf");
  EXPECT_EQ(CounterText(std::numeric_limits<float>::quiet_NaN()), "nan");
}

TEST(OverviewTextTest, ShowsTheTraceTextInsteadOfSmallAmounts) {
  EXPECT_EQ(OverviewText(5.4F, "0"), "5.4");
  EXPECT_EQ(OverviewText(0.05F, "0"), "0");
  EXPECT_EQ(OverviewText(0.05F, kBelowTrace), "<0.1");
  EXPECT_EQ(OverviewText(0, kBelowTrace), "<0.1");
  EXPECT_EQ(OverviewText(-1, "0"), "0");
  EXPECT_EQ(OverviewText(0.11F, "0"), "0.11");
}

TEST(NutrientRatioTest, TakesProteinForOne) {
  const RatioTexts ratio = NutrientRatio("3.3", "3.5", "4.8", kBelowTrace);
  EXPECT_EQ(ratio.protein, "1.");
  EXPECT_EQ(ratio.fat, "1.06061");
  EXPECT_EQ(ratio.carbohydrate, "1.45455");
}

TEST(NutrientRatioTest, ReadsFourCharacters) {
  const RatioTexts ratio =
      NutrientRatio("12.59", "25.09", "6.2999", kBelowTrace);  // 12.5 25.0 6.29
  EXPECT_EQ(ratio.fat, "2.");
  EXPECT_EQ(ratio.carbohydrate, "0.5032");
}

TEST(NutrientRatioTest, ShowsSmallPartsAsTheTraceText) {
  EXPECT_EQ(NutrientRatio("20.0", "1.9", "0", kBelowTrace).fat, "<0.1");
  EXPECT_EQ(NutrientRatio("20.0", "1.9", "0", kBelowTrace).carbohydrate, "<0.1");
  EXPECT_EQ(NutrientRatio("20.0", "1.9", "0", "0").fat, "0");
  EXPECT_EQ(NutrientRatio("20.0", "1.99", "1.99", kBelowTrace).fat, "<0.1");
  EXPECT_EQ(NutrientRatio("20.0", "1.99", "1.99", kBelowTrace).carbohydrate, "<0.1");
  EXPECT_EQ(NutrientRatio("99.9", "9.98", "0", "0").fat, "0");
  EXPECT_EQ(NutrientRatio("20.0", "2.0", "0", "0").fat, "0.1");
}

TEST(NutrientRatioTest, HoldsItsPartsInSinglePrecision) {
  // 0.3 / 3 lies below 0.1 in double precision and above it in single precision.
  EXPECT_EQ(NutrientRatio("3", "0.3", "0.3", kBelowTrace).fat, "0.1");
  EXPECT_EQ(NutrientRatio("3", "0.3", "0.3", kBelowTrace).carbohydrate, "0.1");
}

TEST(NutrientRatioTest, NeedsMoreThanATraceOfProtein) {
  for (const char* const protein : {"0.0", "0.1", "0.10", "", "abc", "-5", "0.", "nan"}) {
    const RatioTexts ratio = NutrientRatio(protein, "3.5", "4.8", kBelowTrace);
    EXPECT_EQ(ratio.protein, " --") << protein;
    EXPECT_EQ(ratio.fat, " --") << protein;
    EXPECT_EQ(ratio.carbohydrate, " --") << protein;
  }
  EXPECT_EQ(NutrientRatio("0.11", "0.11", "0.22", kBelowTrace).carbohydrate, "2.");
  EXPECT_EQ(NutrientRatio(".101", ".101", ".202", kBelowTrace).protein, "1.");
  EXPECT_EQ(NutrientRatio(".101", ".101", ".202", kBelowTrace).carbohydrate, "2.");
}

}  // namespace
}  // namespace velnor
