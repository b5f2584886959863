#include "tests/faults/actions.h"

#include <algorithm>
#include <string>

#include "base/change.h"
#include "base/note.h"
#include "shell/own_menu.h"

namespace velnor {
namespace {

constexpr std::string_view kDayNotSaved =
    "The daily balance could not be saved.\nCheck the folder of Your data and try again.";
constexpr std::string_view kUsersNotWritten = "The list of users could not be written";

const std::string kYesterday = "15.11.2026\r\n1800.\r\n70.\r\n60.\r\n200.";

bool Has(const FakeForm& form, int list, const std::string& item) {
  return std::ranges::find(form.Items(list), item) != form.Items(list).end();
}

void ChooseIfThere(FakeForm& form, int list, const std::string& item) {
  if (Has(form, list, item)) form.Choose(list, item);
}

void LogAnnIn(Scene& scene) { scene.LogIn("Ann"); }

void OpenCounter(Scene& scene) {
  LogAnnIn(scene);
  scene.Open(231);
}

void AddFood(Scene& scene) { scene.AddStrawberries("250"); }

void EatTwice(Scene& scene) {
  OpenCounter(scene);
  AddFood(scene);
  AddFood(scene);
}

void CountBmi(Scene& scene) {
  LogAnnIn(scene);
  scene.CountBmi("70");
}

// --- people

void AddUser(Scene& scene) {
  FakeForm& users = scene.Dialog(202);
  users.SetText(701, "Eve");
  users.Press(702);
  users.Press(1);
}

void RemoveUser(Scene& scene) {
  FakeForm& users = scene.Dialog(202);
  ChooseIfThere(users, 700, "Bob");
  users.SetText(701, "Bob");
  users.Press(703);
  users.Press(1);
}

void ArrangeBob(Scene& scene) { scene.ArrangePerson("Bob"); }

// The two files of the day's exchanges outlive their person, and the folder with them. What an
// interrupted write has left of them does not.
void ArrangeBobBeforeHisFirstMeal(Scene& scene) {
  ArrangeBob(scene);
  scene.RemoveFile("Bob/z1.ASC");
  scene.RemoveFile("Bob/z2.ASC");
}

void ChangeHeight(Scene& scene) {
  FakeForm& profile = scene.Dialog(204);
  profile.SetText(705, "171");
  profile.Press(1);
}

// The copy of the day was made by the login. Since then a food has come, the report has gone, and
// so has Bob's place on the list.
void SpoilAnnsDay(Scene& scene) {
  EatTwice(scene);
  scene.RemoveFile("Ann/waga.ASC");
  scene.WriteFile("users.ASC", "Ann");
}

void RestoreTheDay(Scene& scene) {
  FakeForm& restore = scene.OwnDialog(kRestoreItem);
  restore.SetText(801, scene.Path("kopie zapasowe/2026-11-16"));
  restore.Press(1);
}

// --- limits

void OpenRequirement(Scene& scene) {
  LogAnnIn(scene);
  scene.Open(232);
}

void SetLimits(Scene& scene) {
  const char* const limits[] = {"1900", "2400", "60", "80", "50", "70", "200", "300"};
  int id = 166;
  for (const char* const limit : limits) scene.form().SetText(id++, limit);
  scene.form().Press(174);
}

void ClearLimits(Scene& scene) { scene.form().Press(175); }

// --- the day

// For actions that copy all files of Ann's: these have nothing that the others do not show, and
// every one costs a hundred points.
void KeepFewFiles(Scene& scene) {
  for (const char* const file :
       {"whr.ASC", "mirvo.ASC", "zestaw.ASC", "cwiczenia.ASC", "zapot.ASC", "erg.txt"}) {
    scene.RemoveFile(std::string("Ann/") + file);
  }
}

void MakeItYesterday(Scene& scene) {
  KeepFewFiles(scene);
  scene.WriteFile("Ann/bilans.ASC", kYesterday);
  scene.WriteFile("Ann/wykoda.txt", "15.11.2026;1800.;70.;60.;200.;\r\n");
}

void ForgetTheDay(Scene& scene) {
  for (const char* const file : {"bilans.ASC", "z1.ASC", "z2.ASC", "wykoda.txt"}) {
    scene.RemoveFile(std::string("Ann/") + file);
  }
}

void ForgetAlmostAll(Scene& scene) {
  KeepFewFiles(scene);
  ForgetTheDay(scene);
}

void RemoveFood(Scene& scene) {
  const std::string line = "frozen strawberries  250.0g";
  if (Has(scene.form(), 134, line)) scene.Remove(line);
}

void ClearList(Scene& scene) { scene.form().Press(Scene::kClearList); }

void OpenBalance(Scene& scene) { scene.Open(233); }

void ClearDay(Scene& scene) { scene.form().Press(Scene::kClearDay); }

void EnterBalance(Scene& scene) {
  LogAnnIn(scene);
  OpenBalance(scene);
}

void ForgetTheWeights(Scene& scene) { scene.RemoveFile("Ann/wykwag.txt"); }

void OpenWeightChart(Scene& scene) { scene.Open(270); }

// --- products

void AddProduct(Scene& scene) {
  FakeForm& dialog = scene.Dialog(240);
  dialog.Choose(732, "fruits");
  dialog.Choose(733, "fresh");
  dialog.SetText(734, "Apple Pie");
  dialog.SetText(740, "237");
  dialog.SetText(736, "1.9");
  dialog.SetText(737, "11");
  dialog.SetText(738, "34.0");
  dialog.Press(1);
}

void RemoveProduct(Scene& scene) {
  FakeForm& dialog = scene.Dialog(241);
  ChooseIfThere(dialog, 739, "old eel");
  dialog.Press(1);
}

// --- records

void SaveWeight(Scene& scene) {
  FakeForm& dialog = scene.Dialog(103);
  dialog.Press(1);
}

// Twenty-one lines, the last of yesterday: the next day starts the series again.
void FillWeightSeries(Scene& scene) {
  std::string lines;
  for (int day = 26; day <= 31; ++day) lines += std::to_string(day) + ".10.2026;72;24.9;\r\n";
  for (int day = 1; day <= 15; ++day) lines += std::to_string(day) + ".11.2026;71;24.56;\r\n";
  scene.WriteFile("Ann/wykwag.txt", lines);
}

void LeaveTheWeightSeriesOpen(Scene& scene) {
  scene.WriteFile("Ann/wykwag.txt", "14.11.2026;72;24.9;\r\n15.11.2026;71;24.56;");
}

void CountWhr(Scene& scene) {
  LogAnnIn(scene);
  scene.Open(224);
  scene.form().Type(104, "80");
  scene.form().Type(105, "100");
  scene.form().Press(106);
}

void SaveWhr(Scene& scene) {
  FakeForm& dialog = scene.Dialog(107);
  dialog.Press(1);
}

void SaveCalories(Scene& scene) {
  FakeForm& dialog = scene.Dialog(145);
  dialog.Press(1);
}

void SaveRecipe(Scene& scene) {
  FakeForm& dialog = scene.Dialog(147);
  dialog.SetText(724, "strawberries");
  dialog.SetText(725, "Eat it.\r\nSlowly.");
  dialog.Press(1);
}

void OpenReport(Scene& scene) {
  LogAnnIn(scene);
  scene.Open(210);
}

void SaveReport(Scene& scene) {
  scene.form().SetText(119, "corrected by hand");
  scene.form().Press(152);
}

void ClearReport(Scene& scene) { scene.form().Press(151); }

// More than is shown: what is behind it is kept in a file of its own.
void LengthenReport(Scene& scene) {
  KeepFewFiles(scene);
  scene.WriteFile("Ann/waga.ASC", std::string(29'000, '=') + std::string(1'000, '-'));
  scene.WriteFile("Ann/waga.ASC.rest.txt", "kept before");
}

// --- what was burned

void CountBurned(Scene& scene) {
  LogAnnIn(scene);
  scene.Open(238);
  scene.form().Choose(159, "sitting");
  scene.form().Type(160, "30");
  scene.form().Press(161);
}

void AddBurned(Scene& scene) { scene.form().Press(177); }

void ClearBurned(Scene& scene) { scene.form().Press(179); }

void SaveBurned(Scene& scene) {
  FakeForm& dialog = scene.Dialog(162);
  dialog.Press(1);
}

void BurnYesterday(Scene& scene) { scene.WriteFile("Ann/erg.txt", "15.11.2026;250.;"); }

void ForgetTheBurned(Scene& scene) { scene.RemoveFile("Ann/erg.txt"); }

void OpenActivities(Scene& scene) { scene.Open(238); }

// Another program was ended in the middle of a deed: of its changes some have been made, one half,
// and some not.
void CutADeedOff(Scene& scene) {
  LogAnnIn(scene);
  const std::string balance = "16.11.2026\r\n570.\r\n21.75\r\n11.\r\n93.5";
  const std::string record = "16.11.2026  70.5\r\n";
  const std::string report = "date: 16.11.2026\r\n";
  const std::vector<Change> changes = {
      {.kind = ChangeKind::kMakeFolder, .path = "Eve"},
      {.kind = ChangeKind::kAppend, .path = "Ann/waga.ASC", .size = report.size(), .text = record},
      {.kind = ChangeKind::kReplace,
       .path = "Ann/bilans.ASC",
       .beside = "Ann/bilans.ASC.velnor-1.new",
       .size = balance.size(),
       .checksum = Checksum(balance)},
      {.kind = ChangeKind::kReplace, .path = "Ann/z1.ASC", .beside = "Ann/z1.ASC.velnor-1.new"},
      {.kind = ChangeKind::kRemove, .path = "Ann/zapot.ASC"}};
  scene.WriteFile("Ann/waga.ASC", report + record.substr(0, 5));
  scene.WriteFile("Ann/bilans.ASC.velnor-1.new", balance);
  scene.WriteFile("Ann/z1.ASC", "9.35");
  scene.WriteFile(std::string(kNoteFile), NoteBytes(changes));
}

void OpenTheFolder(Scene& scene) { scene.Restart(); }

void LookAtTheScreen(Scene& scene) { scene.Repaint(); }

}  // namespace

std::span<const Action> Actions() {
  using Names = std::vector<std::string_view>;
  static const Names kDay = {"Ann/bilans.ASC", "Ann/z1.ASC", "Ann/z2.ASC", "Ann/wykoda.txt"};
  static const Saying kNotSaved = {kDayNotSaved, kDay};
  static const Saying kNotListed = {kUsersNotWritten, {"users.ASC"}};
  static const Saying kAdded = {"New product was added to database", {"data.txt"}};
  static const Saying kRestored = {
      "The copy is restored. Please log in.",
      {"Ann/bilans.ASC", "Ann/dziennik.csv", "Ann/waga.ASC", "users.ASC"}};
  // clang-format off
  static const Action kActions[] = {
      {.name = "add a user", .act = AddUser, .says_on_failure = {kNotListed}},
      {.name = "remove a user", .arrange = ArrangeBob, .act = RemoveUser,
       .says_on_failure = {kNotListed}},
      {.name = "remove a user with the folder", .arrange = ArrangeBobBeforeHisFirstMeal,
       .act = RemoveUser, .says_on_failure = {kNotListed}},
      {.name = "log in on a new day", .arrange = MakeItYesterday, .act = LogAnnIn},
      {.name = "log in for the first time", .arrange = ForgetAlmostAll, .act = LogAnnIn},
      {.name = "change the profile", .enter = LogAnnIn, .act = ChangeHeight},
      {.name = "set limits", .enter = OpenRequirement, .act = SetLimits},
      {.name = "clear the limits", .enter = OpenRequirement, .act = ClearLimits},
      {.name = "add a food", .enter = OpenCounter, .act = AddFood,
       .says_on_failure = {kNotSaved}},
      {.name = "add the first food of all", .arrange = ForgetTheDay, .enter = OpenCounter,
       .act = AddFood, .says_on_failure = {kNotSaved}},
      {.name = "remove a food", .enter = EatTwice, .act = RemoveFood,
       .says_on_failure = {kNotSaved}},
      {.name = "clear the list", .enter = EatTwice, .act = ClearList,
       .says_on_failure = {kNotSaved}},
      {.name = "open the balance for the first time", .arrange = ForgetTheDay, .enter = LogAnnIn,
       .act = OpenBalance},
      {.name = "clear the day", .arrange = KeepFewFiles, .enter = EnterBalance, .act = ClearDay,
       .says_on_failure = {kNotSaved}},
      {.name = "open a chart for the first time", .arrange = ForgetTheWeights, .enter = LogAnnIn,
       .act = OpenWeightChart},
      {.name = "add a product", .act = AddProduct, .says_on_success = {kAdded}},
      {.name = "remove a product", .act = RemoveProduct},
      {.name = "save a weight again", .enter = CountBmi, .act = SaveWeight},
      {.name = "save a weight on a new day", .arrange = LeaveTheWeightSeriesOpen,
       .enter = CountBmi, .act = SaveWeight},
      {.name = "save a weight to a full series", .arrange = FillWeightSeries, .enter = CountBmi,
       .act = SaveWeight},
      {.name = "save a waist-hip ratio", .enter = CountWhr, .act = SaveWhr},
      {.name = "save the eaten calories", .enter = EatTwice, .act = SaveCalories},
      {.name = "save a recipe", .enter = EatTwice, .act = SaveRecipe},
      {.name = "save a changed report", .enter = OpenReport, .act = SaveReport},
      {.name = "save a report longer than shown", .arrange = LengthenReport, .enter = OpenReport,
       .act = SaveReport, .again = {{"Ann/waga.ASC.rest.txt", "kept before\r\n-\r\n-"}}},
      {.name = "open the activities on a new day", .arrange = BurnYesterday, .enter = LogAnnIn,
       .act = OpenActivities},
      {.name = "open the activities for the first time", .arrange = ForgetTheBurned,
       .enter = LogAnnIn, .act = OpenActivities},
      {.name = "add burned calories", .enter = CountBurned, .act = AddBurned},
      {.name = "clear the burned calories", .enter = CountBurned, .act = ClearBurned},
      {.name = "save the burned calories", .enter = CountBurned, .act = SaveBurned},
      {.name = "restore a copy", .arrange = KeepFewFiles, .enter = SpoilAnnsDay, .act = RestoreTheDay,
       .says_on_success = {kRestored}},
      {.name = "start over a deed cut off", .enter = CutADeedOff, .act = OpenTheFolder},
      {.name = "paint over a deed cut off", .enter = CutADeedOff, .act = LookAtTheScreen},
      {.name = "clear a report", .arrange = KeepFewFiles, .enter = OpenReport, .act = ClearReport},
      {.name = "clear a report and what was kept", .arrange = LengthenReport, .enter = OpenReport,
       .act = ClearReport},
  };
  // clang-format on
  return kActions;
}

}  // namespace velnor
