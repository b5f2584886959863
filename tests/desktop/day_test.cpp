// A day as a person spends it with the program, every file checked byte by byte.

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/desktop/driver.h"

namespace velnor::desktop {
namespace {

using Texts = std::vector<std::string>;

class Day : public testing::Test {
 protected:
  Day() {
    const Window users = OpenDialog(202);
    users.SetText(701, "Ann");
    users.Command(702);
    Close(users, IDOK);
    folder_.Write("Ann\\info.ASC", "35\r\n170\r\nwomen\r\nlow\r\nnone");
    LogIn();
  }
  Window OpenDialog(int command) const {
    app_.main().Command(command);
    return app_.WaitForPopup();
  }
  static void Close(const Window& dialog, int button) {
    dialog.PostCommand(button);
    EXPECT_TRUE(WaitUntilGone(dialog.handle()));
  }
  void LogIn() const {
    const Window login = OpenDialog(200);
    ASSERT_TRUE(login.Choose(700, "Ann"));
    Close(login, IDOK);
  }
  void LogOut() const {
    app_.main().PostCommand(201);
    Answer(app_.WaitForMessageBox(), IDOK);
    app_.Settle();
  }
  void Show(int command) const {
    app_.main().Command(command);
    app_.Settle();
  }
  void Choose(const char* main_category, const char* subcategory, const char* product) const {
    ASSERT_TRUE(app_.main().Choose(124, main_category));
    ASSERT_TRUE(app_.main().Choose(125, subcategory));
    ASSERT_TRUE(app_.main().Choose(126, product));
  }
  void Add(const char* main_category, const char* subcategory, const char* product,
           const char* weight) const {
    Choose(main_category, subcategory, product);
    app_.main().SetText(128, weight);
    app_.main().Command(127);
  }
  // Weight, kcal, protein, fat, carbohydrate, ratio, exchanges.
  Texts Totals() const {
    Texts texts;
    for (int id = 137; id <= 144; ++id) texts.push_back(app_.main().Text(id));
    for (const int id : {183, 184}) texts.push_back(app_.main().Text(id));
    return texts;
  }
  std::string File(const std::string& name) const {
    return folder_.Read("Ann\\" + name).value_or("(missing)");
  }
  void AddApplePie() const {
    const Window dialog = OpenDialog(240);
    dialog.SetText(734, "Apple Pie");
    ASSERT_TRUE(dialog.Choose(732, "sweets"));
    ASSERT_TRUE(dialog.Choose(733, "cake"));
    dialog.SetText(740, "237");
    dialog.SetText(736, "1.9");
    dialog.SetText(737, "11.0");
    dialog.SetText(738, "34.0");
    dialog.PostCommand(IDOK);
    Answer(app_.WaitForMessageBox(dialog), IDOK);
    Close(dialog, IDCANCEL);
  }

  WorkFolder folder_;
  App app_{folder_};
};

TEST_F(Day, FromTheFirstFoodToTheNextMorning) {
  const std::string today = Today();
  AddApplePie();
  Show(231);
  Add("fruits", "frozen", "frozen strawberries", "250");
  EXPECT_EQ(File("bilans.ASC"), today + "\r\n70.\r\n1.75\r\n1.\r\n13.5");
  Add("milk preserves", "milk", "milk 3,5%", "200");
  Choose("milk preserves", "milk", "skimmed milk");
  app_.main().Command(127);  // its own 100 g
  Add("dairy products", "cottage cheese", "cottage cheese 2%", "150");
  Add("fats", "animal fats", "butter", "10");
  Add("sweets", "cake", "apple pie", "120");
  EXPECT_EQ(app_.main().Items(134),
            (Texts{"apple pie  120.0g", "butter  10.0g", "cottage cheese 2%  150.0g",
                   "frozen strawberries  250.0g", "milk 3,5%  200.0g", "skimmed milk  100.0g"}));
  EXPECT_EQ(Totals(), (Texts{"830.", "716.353", "31.7", "33.141", "74.41", "1.", "1.04416", "2.347",
                             "7.441", "4.25069"}));
  EXPECT_EQ(File("bilans.ASC"), today + "\r\n716.353\r\n31.7\r\n33.141\r\n74.41");
  EXPECT_EQ(File("z1.ASC"), "7.441");
  EXPECT_EQ(File("z2.ASC"), "4.25069");
  EXPECT_EQ(File("wykoda.txt"), today + ";716.353;31.7;33.141;74.41;\r\n");

  ASSERT_TRUE(app_.main().Choose(134, "cottage cheese 2%  150.0g"));
  app_.main().Command(136);
  EXPECT_EQ(app_.main().Items(134).size(), 5U);
  EXPECT_EQ(Totals().at(1), "589.603");
  EXPECT_EQ(File("bilans.ASC"), today + "\r\n589.603\r\n14.\r\n29.391\r\n68.86");
  EXPECT_EQ(File("z1.ASC"), "6.886");
  EXPECT_EQ(File("z2.ASC"), "3.20519");
  EXPECT_EQ(File("wykoda.txt"), today + ";589.603;14.;29.391;68.86;\r\n");

  const Window report = OpenDialog(145);
  EXPECT_EQ((Texts{report.Text(709), report.Text(721), report.Text(722), report.Text(717),
                   report.Text(718), report.Text(719), report.Text(746), report.Text(747)}),
            (Texts{today, "680.", "589.6", "14.", "29.39", "68.86", "6.886", "3.20519"}));
  report.SetText(723, "a good day");
  Close(report, IDOK);
  EXPECT_EQ(File("mirvo.ASC"),
            today +
                "  food weight[g]: 680.  K[kcal]: 589.6  P[g]: 14.  F[g]: 29.39  C[g]: 68.86  "
                "CE: 6.886  PFE: 3.20519  ||a good day\r\n" +
                std::string(120, '-') + "\r\n");

  const Window recipe = OpenDialog(147);
  EXPECT_EQ(recipe.Text(709), today);
  EXPECT_EQ(recipe.FocusedId(), 725);
  recipe.SetText(724, "breakfast");
  recipe.SetText(725, "Mix.\r\nEat.");
  Close(recipe, IDOK);
  const std::string long_rule = '\t' + std::string(86, '*') + "\r\n";
  const std::string short_rule = "\t\t\t" + std::string(35, '*') + "\r\n";
  EXPECT_EQ(File("zestaw.ASC"),
            long_rule + short_rule + "DATE: " + today +
                "\r\nNAME:  breakfast\r\n"
                "[kcal]:589.603 proteins[g]:14. fat[g]:29.391 carbohydrates[g]:68.86\r\n"
                "COMPOSITION:\r\napple pie  120.0g\r\nbutter  10.0g\r\n"
                "frozen strawberries  250.0g\r\nmilk 3,5%  200.0g\r\nskimmed milk  100.0g\r\n"
                "RECIPE:  \r\nMix.\r\nEat.\r\n" +
                short_rule + long_rule + "\r\n");

  Show(233);
  EXPECT_TRUE(app_.main().IsShown(165));
  EXPECT_EQ(File("z1.ASC"), "6.886") << "looking changes nothing";

  // The night: the files are of yesterday now.
  LogOut();
  folder_.Write("Ann\\bilans.ASC", "1.1.2020\r\n589.603\r\n14.\r\n29.391\r\n68.86");
  folder_.Write("Ann\\wykoda.txt", "1.1.2020;589.603;14.;29.391;68.86;\r\n");
  LogIn();
  EXPECT_EQ(File("bilans.ASC"), today);
  EXPECT_EQ(File("z1.ASC"), "");
  EXPECT_EQ(File("z2.ASC"), "");
  Show(231);
  EXPECT_TRUE(app_.main().Items(134).empty());
  EXPECT_EQ(Totals(), Texts(10, ""));
  Add("fruits", "frozen", "frozen strawberries", "100");
  EXPECT_EQ(File("bilans.ASC"), today + "\r\n28.\r\n0.7\r\n0.4\r\n5.4");
  EXPECT_EQ(File("z1.ASC"), "0.54");
  EXPECT_EQ(File("z2.ASC"), "0.064");
  EXPECT_EQ(File("wykoda.txt"),
            "1.1.2020;589.603;14.;29.391;68.86;\r\n" + today + ";28.;0.7;0.4;5.4;\r\n");
  app_.main().Command(146);
  EXPECT_EQ(File("bilans.ASC"), today + "\r\n0.\r\n0.\r\n0.\r\n0.");
  EXPECT_EQ(Totals(), Texts(10, "0"));
  Add("fruits", "frozen", "frozen strawberries", "100");
  Show(233);
  app_.main().Command(165);
  app_.Settle();
  EXPECT_EQ(File("bilans.ASC"), today);
  EXPECT_EQ(File("z1.ASC"), "0");
  EXPECT_EQ(File("z2.ASC"), "0");
  EXPECT_EQ(File("wykoda.txt"),
            "1.1.2020;589.603;14.;29.391;68.86;\r\n" + today + ";0.;0.;0.;0.;\r\n");
  EXPECT_EQ(folder_.Names("Ann"), (Texts{"bilans.ASC", "cwiczenia.ASC", "dziennik.csv", "info.ASC",
                                         "mirvo.ASC", "waga.ASC", "whr.ASC", "wykoda.txt",
                                         "wykwag.txt", "z1.ASC", "z2.ASC", "zestaw.ASC"}));
}

TEST_F(Day, TooLittleIsRefusedWithABox) {
  Show(231);
  Choose("fruits", "frozen", "frozen strawberries");
  app_.main().SetText(128, "0.5");
  app_.main().PostCommand(127);
  const MessageBoxSeen box = app_.WaitForMessageBox();
  EXPECT_EQ(box.caption, "Velnor calorie counter");
  EXPECT_EQ(box.text, "Choose some product from the list or change weight!");
  Answer(box, IDOK);
  EXPECT_EQ(app_.main().Items(134), Texts{"frozen strawberries  0.5g"});
  EXPECT_EQ(File("bilans.ASC"), Today() + "\r\n0.14\r\n0.\r\n0.\r\n0.");
}

// Files that cannot be written: the box says so and the list keeps to what the day knows.
TEST_F(Day, AReadOnlyDayIsLeftAsItIs) {
  Show(231);
  Choose("fruits", "frozen", "frozen strawberries");
  const std::string path = folder_.path() + "Ann\\bilans.ASC";
  ASSERT_TRUE(SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY));
  app_.main().PostCommand(127);
  const MessageBoxSeen box = app_.WaitForMessageBox();
  EXPECT_EQ(box.text,
            "The daily balance could not be saved.\nCheck the folder of Your data and try again.");
  Answer(box, IDOK);
  EXPECT_TRUE(app_.main().Items(134).empty());
  EXPECT_EQ(File("bilans.ASC"), Today());
  ASSERT_TRUE(SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL));
  app_.main().Command(127);
  EXPECT_EQ(File("bilans.ASC"), Today() + "\r\n28.\r\n0.7\r\n0.4\r\n5.4");
  EXPECT_EQ(folder_.Names("Ann").size(), 12U) << "something was left beside the files";
}

}  // namespace
}  // namespace velnor::desktop
