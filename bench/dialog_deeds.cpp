// The dialogs: opened, saved, logged in by.

#include <algorithm>

#include "bench/deed_parts.h"
#include "food/product_rules.h"

namespace velnor::bench {
namespace {

struct DialogRow {
  const char* name;
  int command;
  int resource;
  Work work;
};

std::vector<DialogRow> Dialogs(const FoodTable& food) {
  std::vector<std::string> own;
  for (const ProductRecord& product : food.user_products.products()) own.emplace_back(product.name);
  const auto texts = [](const std::vector<int>& ids) { return SetTexts(ids, "123.45"); };
  return {
      {"login", kOpenLogin, 10002, {Do(kFill, 700, {"Ann"})}},
      {"users", 202, 10001, {Do(kFill, 700, {"Ann"})}},
      {"profile",
       204,
       10003,
       {Do(kFill, 706, {"women", "men"}), Do(kFill, 707, {"low", "medium", "high", "very high"}),
        Do(kFill, 708, {"pregnant", "suckling mother", "athlete", "none"}), Do(kText, 704, {"35"}),
        Do(kText, 705, {"170"}), Do(kSelect, 706), Do(kSelect, 707), Do(kSelect, 708)}},
      {"add product",
       240,
       10010,
       {Do(kFill, 732, Texts(ListMainCategories(food))), Do(kText, 735, {"100"})}},
      {"remove product", 241, 10011, {Do(kFill, 739, own)}},
      {"search", kOpenSearch, 10009, {}},
      {"weight record", 103, 10004, texts({709, 710, 711})},
      {"WHR record", 107, 10005, texts({709, 713, 714, 715})},
      {"calorie record", 145, 10006, texts({709, 721, 722, 717, 718, 719, 746, 747})},
      {"recipe", 147, 10007, texts({709})},
      {"burned record", 162, 10012, texts({709, 741, 742, 743, 744})},
  };
}

Work OpenAndClose(const DialogRow& dialog) {
  Work work = {On(dialog.command), Do(kOpen, dialog.resource)};
  Append(work, dialog.work);
  Append(work, {Do(kShow), On(kCancel), Do(kClose)});
  return work;
}

void AddOpening(std::vector<Deed>& deeds, const FoodTable& food) {
  for (const DialogRow& dialog : Dialogs(food)) {
    const bool lists_products = dialog.resource == 10011;
    deeds.push_back({.name = std::string("dialog opened: ") + dialog.name,
                     .bound = lists_products ? kListBound : kBound,
                     .depends_on_products = lists_products,
                     .work = OpenAndClose(dialog),
                     .press = Opening(dialog.command),
                     .after = Closing});
  }
  // This one keeps its command until it is closed.
  deeds.push_back({.name = "dialog opened: about",
                   .work = {On(250), Do(kOpen, 10000), Do(kShow), On(kCancel), Do(kClose)},
                   .press =
                       [](Stage& stage) {
                         stage.Post(250);
                         stage.WaitForDialog();
                         stage.Settle();
                       },
                   .after = Closing});
}

struct RecordRow {
  const char* dialog;
  int field;                                       // one that is filled in
  std::vector<std::pair<std::string, int>> files;  // with the bytes they get
};

const RecordRow kRecords[] = {
    {"weight record", 710, {{"Ann\\waga.ASC", 70}, {"Ann\\wykwag.txt", 24}}},
    {"WHR record", 713, {{"Ann\\whr.ASC", 70}}},
    {"calorie record", 723, {{"Ann\\mirvo.ASC", 190}}},
    {"recipe", 724, {{"Ann\\zestaw.ASC", 210}}},
    {"burned record", 745, {{"Ann\\cwiczenia.ASC", 100}}},
};

void AddSaves(std::vector<Deed>& deeds, const FoodTable& food) {
  const std::vector<DialogRow> dialogs = Dialogs(food);
  for (const RecordRow& record : kRecords) {
    const DialogRow& dialog = *std::ranges::find(dialogs, std::string_view(record.dialog),
                                                 [](const DialogRow& row) { return row.name; });
    Work work = OpenAndClose(dialog);
    work.push_back(On(kOk));
    Action fill_in = [field = record.field](Stage& stage) { stage.SetText(field, "70"); };
    for (const auto& [file, bytes] : record.files) {
      work.push_back(Do(kWrite, bytes, {file.substr(4)}));
      fill_in = Both(fill_in, Writing(file, ""));
    }
    work.push_back(Do(kClose));
    deeds.push_back({.name = std::string("saved: ") + record.dialog,
                     .work = work,
                     .press = Confirming(),
                     .before = Both(Opening(dialog.command), fill_in),
                     .after = AfterConfirming});
  }
  Work profile = OpenAndClose(
      *std::ranges::find(dialogs, 204, [](const DialogRow& row) { return row.command; }));
  Append(profile, {On(kOk), Do(kWrite, 31, {"info.ASC"}), Do(kScreen, 0), Do(kClose)});
  deeds.push_back({.name = "saved: profile, screen 0 opened",
                   .work = profile,
                   .press = Confirming(),
                   .before = Opening(204),
                   .after = AfterConfirming});
}

void AddOwnProduct(std::vector<Deed>& deeds, const FoodTable& food) {
  const int count = static_cast<int>(food.user_products.products().size());
  const std::string file = OwnProducts(count);
  Work work = {On(240), Do(kOpen, 10010), Do(kShow), On(kCancel), Do(kClose), On(kOk)};
  work.push_back(Do(kWrite, static_cast<int>(file.size()) + 48, {"data.txt"}));
  work.push_back(Do(kBox, 0, {"New product was added to database"}));
  deeds.push_back({.name = "saved: own product",
                   .depends_on_products = true,
                   .work = work,
                   .press =
                       [](Stage& stage) {
                         stage.PostToDialog(kOk);
                         stage.WaitForBox();
                         stage.Settle();
                       },
                   .once = Opening(240),
                   .before =
                       [file](Stage& stage) {
                         stage.folder().Write("data.txt", file);
                         stage.Select(732, 4);
                         stage.SendToDialog(732, kChosen);
                         stage.Select(733, 0);
                         for (const int id : {734, 740, 736, 737, 738}) stage.SetText(id, "1234");
                         stage.Settle();
                       },
                   .after =
                       [](Stage& stage) {
                         stage.CloseBox();
                         Stage::Calm();
                         stage.Settle();
                       },
                   .at_end = Both(Closing, Writing("data.txt", file))});
}

void AddLogin(std::vector<Deed>& deeds, const FoodTable& food) {
  Work work = OpenAndClose(Dialogs(food).front());
  work.push_back(On(kOk));
  Append(work, SetTexts(kTotals, ""));
  Append(work, {Do(kScreen, 0), Do(kClose)});
  deeds.push_back({.name = "login, screen 0 opened",
                   .work = work,
                   .press = Confirming(),
                   .before = OpenLogin,
                   .after = AfterConfirming});
}

}  // namespace

void AddDialogs(std::vector<Deed>& deeds, const FoodTable& food) {
  AddOpening(deeds, food);
  AddSaves(deeds, food);
  AddOwnProduct(deeds, food);
  AddLogin(deeds, food);
}

}  // namespace velnor::bench
