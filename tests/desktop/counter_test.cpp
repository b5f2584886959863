// Counting calories as a person does.

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/desktop/driver.h"

namespace velnor::desktop {
namespace {

using Texts = std::vector<std::string>;

class Counter : public testing::Test {
 protected:
  // kcal, protein, fat, carbohydrate
  Texts Values() const {
    const Window& window = app_.main();
    return {window.Text(129), window.Text(130), window.Text(131), window.Text(132)};
  }
  bool WaitForWeight(const std::string& text) const {
    return WaitUntil([&] { return app_.main().Text(128) == text; });
  }
  void ChooseStrawberries() const {
    app_.main().Command(231);
    app_.Settle();
    ASSERT_TRUE(app_.main().Choose(124, "fruits"));
    ASSERT_TRUE(app_.main().Choose(125, "frozen"));
    ASSERT_TRUE(app_.main().Choose(126, "frozen strawberries"));
  }

  WorkFolder folder_;
  App app_{folder_};
};

TEST_F(Counter, AProductAndAWeightShowWhatIsInIt) {
  ChooseStrawberries();
  EXPECT_EQ(app_.main().Text(128), "100");
  EXPECT_EQ(Values(), (Texts{"28", "0.70", "0.40", "5.40"}));
  app_.main().SetText(128, "250");
  EXPECT_EQ(Values(), (Texts{"70.", "1.75", "1.", "13.5"}));
}

TEST_F(Counter, AMainCategorySetsDashes) {
  ChooseStrawberries();
  ASSERT_TRUE(app_.main().Choose(124, "fish"));
  EXPECT_EQ(app_.main().Text(128), "   -");
  EXPECT_EQ(Values(), (Texts{"   -", "   -", "   -", "   -"}));
  EXPECT_TRUE(app_.main().Items(126).empty());
}

TEST_F(Counter, TheMainCategoriesAreOfferedSortedAndOnce) {
  app_.main().Command(231);
  app_.Settle();
  InvalidateRect(app_.main().handle(), nullptr, TRUE);
  app_.Settle();
  const Texts items = app_.main().Items(124);
  EXPECT_EQ(items.size(), 22U);
  EXPECT_TRUE(std::is_sorted(items.begin(), items.end()));
}

TEST_F(Counter, TypingUpdatesTheValuesWithEveryKey) {
  ChooseStrawberries();
  app_.main().SetText(128, "");
  ClickOn(app_.main().Control(128));
  TypeKeys("25");
  EXPECT_TRUE(WaitForWeight("25"));
  EXPECT_EQ(Values()[0], "7.");
  TypeKeys("0");
  EXPECT_TRUE(WaitForWeight("250"));
  EXPECT_EQ(Values(), (Texts{"70.", "1.75", "1.", "13.5"}));
}

TEST_F(Counter, ARepaintDoesNotInterruptTyping) {
  ChooseStrawberries();
  app_.main().SetText(128, "");
  ClickOn(app_.main().Control(128));
  TypeKeys("25");
  ASSERT_TRUE(WaitForWeight("25"));
  PressKey(VK_LEFT);  // the caret stands between the two
  InvalidateRect(app_.main().handle(), nullptr, TRUE);
  app_.Settle();
  TypeKeys("0");
  EXPECT_TRUE(WaitForWeight("205"));
}

TEST_F(Counter, ARepaintKeepsTheSelectionOfTheWeight) {
  ChooseStrawberries();
  ClickOn(app_.main().Control(128));
  const auto selection = [this] { return SendMessageA(app_.main().Control(128), EM_GETSEL, 0, 0); };
  SendMessageA(app_.main().Control(128), EM_SETSEL, 1, 3);
  ASSERT_EQ(selection(), MAKELONG(1, 3));
  InvalidateRect(app_.main().handle(), nullptr, TRUE);
  app_.Settle();
  EXPECT_EQ(selection(), MAKELONG(1, 3));
}

TEST_F(Counter, APersonPicksByMouseAndKeyboard) {
  app_.main().Command(231);
  app_.Settle();
  ClickOn(app_.main().Control(124));
  PressKey(VK_RETURN);
  // The arrow keys go through the entries one by one.
  for (int key = 0; key < 22 && app_.main().Selected(124) != "fruits"; ++key) {
    const std::optional<std::string> before = app_.main().Selected(124);
    PressKey(VK_DOWN);
    ASSERT_TRUE(WaitUntil([&] { return app_.main().Selected(124) != before; }));
  }
  ASSERT_EQ(app_.main().Selected(124), "fruits");
  EXPECT_EQ(app_.main().Items(125),
            (Texts{"dried", "fresh", "frozen", "other", "preserves", "tin"}));
}

TEST_F(Counter, TheOverviewShowsExchangesAndRatio) {
  app_.main().Command(236);
  app_.Settle();
  ASSERT_TRUE(app_.main().Choose(108, "fruits"));
  ASSERT_TRUE(app_.main().Choose(110, "frozen"));
  ASSERT_TRUE(app_.main().Choose(109, "frozen strawberries"));
  app_.main().SetText(111, "250");
  const Window& window = app_.main();
  EXPECT_EQ((Texts{window.Text(112), window.Text(113), window.Text(114), window.Text(115)}),
            (Texts{"70.", "1.75", "1.", "13.5"}));
  EXPECT_EQ((Texts{window.Text(185), window.Text(186)}), (Texts{"1.35", "0.16"}));
  EXPECT_EQ((Texts{window.Text(116), window.Text(117), window.Text(118)}),
            (Texts{"1.", "0.571429", "7.71429"}));
}

}  // namespace
}  // namespace velnor::desktop
