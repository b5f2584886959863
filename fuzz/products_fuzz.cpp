// The products that users added: read by the counter, the overview and the search, written by the
// dialogs that add and remove.

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "food/food_table.h"
#include "food/user_product_file.h"
#include "fuzz/program_run.h"
#include "tests/support/committed.h"

namespace velnor {
namespace {

constexpr const char* kFile = "data.txt";
constexpr std::size_t kTried = 3;  // products of the file that a run goes through

// The controls of the counter and of the overview that do the same.
struct Picker {
  int command;
  int main_category, subcategory, products, weight;
};
constexpr Picker kCounter = {231, 124, 125, 126, 128};
constexpr Picker kOverview = {236, 108, 110, 109, 111};

bool Offers(const FakeForm& form, int id, const std::string& item) {
  return std::ranges::find(form.Items(id), item) != form.Items(id).end();
}

bool ChooseIfOffered(ProgramRun& run, int id, std::string_view item) {
  if (!Offers(run.form(), id, std::string(item))) return false;
  run.form().Choose(id, std::string(item));
  return true;
}

void RequireSoundTable(const UserProductTable& table) {
  Require(table.products().size() <= UserProductTable::kSlots, "no product is beyond the slots");
  for (const ProductRecord& product : table.products()) {
    for (const std::string_view field :
         {product.main_category, product.subcategory, product.name, product.mass, product.kcal,
          product.protein, product.fat, product.carbohydrate}) {
      Require(field.find_first_of(std::string_view(";\n\0", 3)) == std::string_view::npos,
              "a field holds neither what ends it nor a line end");
      Require(field.size() <= UserProductTable::kLineLimit, "a field fits its line");
    }
  }
}

void Pick(ProgramRun& run, const Picker& picker, const ProductRecord& product) {
  run.Open(picker.command);
  if (!ChooseIfOffered(run, picker.main_category, product.main_category)) return;
  if (!ChooseIfOffered(run, picker.subcategory, product.subcategory)) return;
  Require(Offers(run.form(), picker.products, std::string(product.name)),
          "a product of an offered subcategory is offered");
  run.form().Choose(picker.products, std::string(product.name));
  run.form().SetText(picker.weight, "250");
}

void Find(ProgramRun& run, const ProductRecord& product) {
  run.Open(kCounter.command);
  run.Press(149);
  const std::string query = std::string(product.name).substr(0, 148);
  run.dialog()->SetText(728, query);
  run.PressInDialog(730);
  const std::string result = "[B] " + std::string(product.main_category) + " --> " +
                             std::string(product.subcategory) + " --> " + std::string(product.name);
  if (!query.empty()) Require(Offers(*run.dialog(), 729, result), "what is in the table is found");
  run.PressInDialog(kCancelButton);
}

// Puts a product on the list and takes it off again; whatever its figures are, the day stays sound.
void EatAndRegret(ProgramRun& run) {
  if (run.form().ReadText(128, 1).empty()) return;
  run.Press(127);
  if (run.form().ItemCount(134) == 0) return;
  run.form().Choose(134, run.form().ItemText(134, 0));
  run.Press(136);
}

// Removing a name takes lines away and leaves nothing of that name behind.
void Remove(ProgramRun& run) {
  run.Choose(241);
  if (run.dialog()->ItemCount(739) > 0) {
    const std::string name = run.dialog()->ItemText(739, 0);
    run.dialog()->Choose(739, name);
    run.PressInDialog(kOkButton);
    const std::string left = run.Read(kFile);
    run.Write("copy", left);
    Require(Committed(run.Path(""), RemoveUserProduct, run.Path("copy"), name),
            "a file that can be written is written");
    Require(run.Read("copy") == left, "what was removed is gone at once");
  }
  run.PressInDialog(kCancelButton);
}

// A product added is the last of the table, unless the table is full.
void Add(ProgramRun& run) {
  UserProductTable before;
  before.Load(run.Path(kFile));
  const std::string bytes = run.Read(kFile);
  run.Choose(240);
  FakeForm& dialog = *run.dialog();
  dialog.Choose(732, "fruits");
  dialog.Choose(733, "fresh");
  dialog.SetText(734, "apple pie");
  for (const int id : {740, 736, 737, 738}) dialog.SetText(id, "12.5");
  run.PressInDialog(kOkButton);
  run.PressInDialog(kCancelButton);
  Require(run.Read(kFile).starts_with(bytes), "what the file held stays");
  UserProductTable after;
  after.Load(run.Path(kFile));
  if (bytes.size() > UserProductTable::kSlots) return;  // it may be full
  Require(after.products().size() == before.products().size() + 1, "one product comes");
  const ProductRecord& added = after.products().back();
  Require(added.main_category == "fruits" && added.subcategory == "fresh" &&
              added.name == "apple pie" && added.mass == "100" && added.kcal == "12.5" &&
              added.carbohydrate == "12.5",
          "the product written is read back");
}

}  // namespace
}  // namespace velnor

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velnor;  // NOLINT(google-build-using-namespace)
  ProgramRun run;
  run.AllowNoNumbers();  // a product without a mass has no figures
  run.MakeUser();
  run.Write(kFile, InputText(data, size));
  UserProductTable table;
  table.Load(run.Path(kFile));
  RequireSoundTable(table);
  run.Start();
  run.LogIn();
  const auto before = run.AllFiles();
  for (std::size_t i = 0; i < std::min(kTried, table.products().size()); ++i) {
    const ProductRecord& product = table.products()[i];
    Pick(run, kOverview, product);
    Pick(run, kCounter, product);
    EatAndRegret(run);
    Find(run, product);
  }
  run.RequireUnchanged(before, {"Ann/bilans.ASC", "Ann/z1.ASC", "Ann/z2.ASC", "Ann/wykoda.txt"});
  Remove(run);
  Add(run);
  return 0;
}
