// Picking, finding and listing food.

#include <span>

#include "bench/deed_parts.h"
#include "food/product_rules.h"
#include "food/product_search.h"

namespace velnor::bench {
namespace {

constexpr const char* kFood[] = {"fruits", "fresh"};
constexpr int kShownOfProduct[] = {128, 129, 130, 131, 132};
constexpr int kFigures[] = {129, 130, 131, 132};

// The day as it is after every change.
Work WriteDay() {
  return {Do(kWrite, 45, {"bilans.ASC"}), Do(kWrite, 7, {"z1.ASC"}), Do(kWrite, 7, {"z2.ASC"}),
          Do(kWrite, 760, {"wykoda.txt"}), Do(kAppend, 75, {"dziennik.csv"})};
}

void ShowCounter(Stage& stage) {
  stage.Send(kOpenCounter);
  stage.Settle();
}
void ChooseCategory(Stage& stage) {
  stage.Select(124, kFood[0]);
  stage.Send(124, kChosen);
}
void ChooseSubcategory(Stage& stage) {
  stage.Select(125, kFood[1]);
  stage.Send(125, kChosen);
  stage.Settle();
}
void ChooseProduct(Stage& stage) {
  ShowCounter(stage);
  ChooseCategory(stage);
  ChooseSubcategory(stage);
  stage.Select(126, 0);
  stage.Send(126, kChosen);
  stage.SetText(128, "250");
  stage.Settle();
}

void AddPicking(std::vector<TimedDeed>& deeds, const FoodTable& food) {
  const std::vector<std::string> subcategories =
      Texts(ListSubcategories(food, Matching::kCounter, kFood[0]));
  const std::vector<std::string> products =
      Texts(ListProducts(food, Matching::kCounter, kFood[0], kFood[1]));
  const Work counter = {On(kOpenCounter), Do(kScreen, kCounterScreen)};
  Work fill_subcategories = {On(124, kChosen), Do(kFill, 125, subcategories), Do(kFill, 126)};
  Append(fill_subcategories, SetTexts(kShownOfProduct, "0"));
  const Work fill_products = {On(125, kChosen), Do(kFill, 126, products)};
  Work picking = counter;
  Append(picking, fill_subcategories);
  Append(picking, fill_products);

  deeds.push_back({.name = "main category chosen",
                   .bound = kListBound,
                   .depends_on_products = true,
                   .work = picking,
                   .press = Send(124, kChosen),
                   .once = Both(ShowCounter, ChooseCategory),
                   .before = ChooseSubcategory});
  deeds.push_back({.name = "subcategory chosen",
                   .detail = std::to_string(products.size()) + " products",
                   .bound = kListBound,
                   .depends_on_products = true,
                   .work = picking,
                   .press = Send(125, kChosen),
                   .once = Both(ShowCounter, Both(ChooseCategory, ChooseSubcategory))});
  Work choosing = picking;
  choosing.push_back(On(126, kChosen));
  choosing.push_back(Do(kText, 128, {"100"}));
  Append(choosing, SetTexts(kFigures, "12.5"));
  deeds.push_back({.name = "product chosen",
                   .work = choosing,
                   .press = Send(126, kChosen),
                   .once = ChooseProduct});
  Work typing = picking;
  typing.push_back(On(128, 0x0400));
  Append(typing, SetTexts(kFigures, "12.5"));
  deeds.push_back({.name = "a key typed into the weight",
                   .work = typing,
                   .press =
                       [](Stage& stage) {
                         stage.Type(128, '7');
                         stage.Settle();
                       },
                   .once = ChooseProduct,
                   .before =
                       [](Stage& stage) {
                         stage.SetText(128, "15");
                         stage.SelectAll(128);
                         stage.Settle();
                       }});
}

void AddList(std::vector<TimedDeed>& deeds) {
  const Action add = Send(127);
  const Action clear = Send(146);
  Work changing = {On(kOpenCounter), Do(kScreen, kCounterScreen), On(127),
                   Do(kAdd, 134, {"apples  250.0g"})};
  const auto day = [] {
    Work work = SetTexts(kTotals, "123.45");
    Append(work, WriteDay());
    return work;
  }();
  Append(changing, day);
  changing.push_back(On(136));
  changing.push_back(Do(kRemove, 134));
  Append(changing, day);
  changing.push_back(On(146));
  changing.push_back(Do(kFill, 134));
  Append(changing, day);
  deeds.push_back({.name = "Add",
                   .work = changing,
                   .press = add,
                   .once = Both(ChooseProduct, clear),
                   .at_end = clear});
  deeds.push_back({.name = "Remove",
                   .work = changing,
                   .press = Send(136),
                   .once = Both(ChooseProduct, clear),
                   .before = Both(add, [](Stage& stage) { stage.Select(134, 0); })});
  deeds.push_back({.name = "Clear list",
                   .work = changing,
                   .press = clear,
                   .once = ChooseProduct,
                   .before = add});
  // What a function of functions holds is freed with it; the analyser loses sight of that.
  // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
}

void AddSearches(std::vector<TimedDeed>& deeds, const FoodTable& food) {
  for (const std::string query : {"strawberries", "e"}) {
    const std::vector<std::string> found = SearchProducts(food, query);
    deeds.push_back(
        {.name =
             "Find, " + std::to_string(query.size()) + (query.size() > 1 ? " letters" : " letter"),
         .detail = std::to_string(found.size()) + " found",
         .bound = kListBound,
         .depends_on_products = true,
         .work = {On(kOpenSearch), Do(kOpen, 10009), Do(kShow), On(730), Do(kAdd, 729, found),
                  On(731), Do(kFill, 729), On(kCancel), Do(kClose)},
         .press = InDialog(730),
         .once = Opening(kOpenSearch),
         .before =
             [query](Stage& stage) {
               stage.SendToDialog(731);
               stage.SetText(728, query);
               stage.Settle();
             },
         .at_end = Closing});
  }
}

}  // namespace

void AddFood(std::vector<TimedDeed>& deeds, const FoodTable& food) {
  AddPicking(deeds, food);
  AddSearches(deeds, food);
  AddList(deeds);
}

}  // namespace velnor::bench
