// The dialog that finds a product by a part of its name.

#include <string>
#include <vector>

#include "tests/support/program_fixture.h"

namespace velnor {
namespace {

using Texts = std::vector<std::string>;

const std::string kPie = "fruits;fresh;apple pie;100;237;1.9;11;34.0;\r\n";

constexpr int kOpenOverview = 236;

class SearchTest : public ProgramTest {
 protected:
  void Open() {
    Start();
    ProgramTest::Open(kOpenOverview);
    OpenDialog(149, dialog_);
  }
  void Find(const std::string& query) {
    dialog_.SetText(728, query);
    dialog_.Press(730);
  }

  FakeForm dialog_;
};

TEST_F(SearchTest, OpensInTheQuery) {
  Open();
  EXPECT_EQ(dialog_.Log(), (Texts{"focus 728"}));
}

TEST_F(SearchTest, FindsAndMovesTheFocusToTheButton) {
  Open();
  Find("frozen strawberries");
  EXPECT_EQ(dialog_.Items(729), (Texts{"fruits --> frozen --> frozen strawberries"}));
  EXPECT_EQ(dialog_.Log(), (Texts{"focus 728", "focus 730"}));
}

TEST_F(SearchTest, ResultsAddUpUntilReset) {
  Open();
  Find("frozen strawberries");
  Find("frozen strawberries");
  Find("Frozen");
  EXPECT_EQ(dialog_.Items(729),
            (Texts{"-------- not found --------", "fruits --> frozen --> frozen strawberries",
                   "fruits --> frozen --> frozen strawberries"}));
  dialog_.Press(731);
  EXPECT_EQ(dialog_.ItemCount(729), 0);
  EXPECT_EQ(dialog_.Text(728), "");
  EXPECT_EQ(dialog_.Log().back(), "focus 730");
}

TEST_F(SearchTest, AnEmptyQueryFindsNothing) {
  Open();
  Find("");
  EXPECT_EQ(dialog_.Items(729), (Texts{"-------- not found --------"}));
}

TEST_F(SearchTest, ReadsAHundredAndFortyEightCharacters) {
  const std::string name(140, 'q');
  folder_.Write("data.txt", "m;s;" + name + ";\n");
  Open();
  Find("s " + name);
  EXPECT_EQ(dialog_.Items(729), (Texts{"[B] m --> s --> " + name}));
  dialog_.Press(731);
  Find(std::string(148, 'z') + name);
  EXPECT_EQ(dialog_.Items(729), (Texts{"-------- not found --------"}));
}

TEST_F(SearchTest, ShowsTheUsersProductsAsTheirs) {
  folder_.Write("data.txt", kPie);
  Open();
  Find("apple pie");
  EXPECT_EQ(dialog_.Items(729).front(), "[B] fruits --> fresh --> apple pie");
}

TEST_F(SearchTest, ChoosingAResultDoesNothing) {
  Open();
  Find("frozen strawberries");
  dialog_.Choose(729, "fruits --> frozen --> frozen strawberries");
  EXPECT_EQ(dialog_.ItemCount(729), 1);
}

TEST_F(SearchTest, CloseCloses) {
  Open();
  dialog_.Press(2);
  EXPECT_EQ(dialog_.Log().back(), "close");
}

}  // namespace
}  // namespace velnor
