// A folder in which a version has worked that knew of no history and made no copies: whoever logs
// in keeps every byte of it, and gets a history that tells of what was before.

#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

#include "tests/desktop/driver.h"
#include "tests/support/history_sums.h"

namespace velnor::desktop {
namespace {

using Files = std::map<std::string, std::string>;

constexpr const char* kCopies = "kopie zapasowe";

class VersionBefore : public testing::Test {
 protected:
  // A day's files bear `date`.
  Files Arrange(const std::string& date) const {
    std::string nutrients;
    std::string weights;
    for (int day = 1; day <= 20; ++day) {
      const std::string start = std::to_string(day) + ".3.2019;";
      nutrients += start + std::to_string(2000 + day) + ".5;70.25;60.;" +
                   std::to_string(250 + day) + ".;\r\n";
      weights += start + std::to_string(70 + day) + ",5;24.4;\r\n";
    }
    Files files = {
        {"users.ASC", "Ann\r\nBob"},
        {"data.txt", "fruits;fresh;apple pie;120;237;1.9;11;34.0;\r\n"},
        {"Ann\\info.ASC", "35\r\n170\r\nwomen\r\nlow\r\nnone"},
        {"Ann\\bilans.ASC", date + "\r\n1500.25\r\n50.125\r\n40.\r\n200."},
        {"Ann\\z1.ASC", "20."},
        {"Ann\\z2.ASC", "5.605"},
        {"Ann\\erg.txt", date + ";300.;"},
        {"Ann\\zapot.ASC", "tak\r\n2000\r\n2500\r\n60\r\n80\r\n50\r\n70\r\n200\r\n300"},
        {"Ann\\wykoda.txt", nutrients + date + ";1500.25;50.125;40.;200.;\r\n"},
        {"Ann\\wykwag.txt", weights + "an old line of nobody"},
        {"Ann\\mirvo.ASC", "a report\r\n"},
        {"Ann\\mine.doc", std::string("something of Ann's own\0\x81", 24)},
        {"Bob\\info.ASC", "40\r\n180\r\nmen\r\nhigh\r\nnone"},
        {"Bob\\wykoda.txt", "1.3.2019;1.;2.;3.;4.;\r\n"},
    };
    for (const char* const name : {"Ann", "Bob"}) {
      CreateDirectoryA((folder_.path() + name).c_str(), nullptr);
    }
    for (const auto& [name, bytes] : files) folder_.Write(name, bytes);
    return files;
  }
  // The program starts, Ann logs in, and it is ended.
  void LogIn() const {
    const App app(folder_);
    app.main().Command(200);
    const Window login = app.WaitForPopup();
    ASSERT_TRUE(login.Choose(700, "Ann"));
    login.PostCommand(IDOK);
    ASSERT_TRUE(WaitUntilGone(login.handle()));
    app.Settle();
  }
  // What lies in the folders of the people and beside them, copies apart.
  Files Look(const std::string& below = "") const {
    Files files;
    for (const std::string folder : {"", "Ann\\", "Bob\\"}) {
      for (const std::string& name : folder_.Names(below + folder)) {
        std::string path = folder;
        path += name;
        if (const auto bytes = folder_.Read(below + path)) files[path] = *bytes;
      }
    }
    return files;
  }
  static std::string History(const Files& files) {
    const auto found = files.find("Ann\\dziennik.csv");
    return found == files.end() ? "(missing)" : found->second;
  }
  // Of the twenty days of the series; `day` is the line of the day after them.
  static std::string HistoryOfSeries(const std::string& day) {
    std::string history = std::string(kHistoryHeader) + "\r\n";
    for (int i = 1; i <= 20; ++i) {
      const std::string date = std::string("2019-03-") + (i < 10 ? "0" : "") + std::to_string(i);
      history += date + ";;imported;;;;" + std::to_string(2000 + i) + ".5;70.25;60;" +
                 std::to_string(250 + i) + "\r\n";
      history += date + ";;weight;;" + std::to_string(70 + i) + ";kg;;;;\r\n";
    }
    return history + day;
  }

  WorkFolder folder_;
};

TEST_F(VersionBefore, LosesNoByteOnTheSameDay) {
  Files expected = Arrange(Today());
  const Files before = expected;
  LogIn();
  const Files after = Look();
  expected["Ann\\dziennik.csv"] =
      HistoryOfSeries(IsoDate(Today()) + ";;imported;;;;1500.25;50.125;40;200\r\n");
  EXPECT_EQ(after, expected);
  ExpectToldTotals(History(after), after.at("Ann\\bilans.ASC"));
  EXPECT_EQ(folder_.Names(kCopies), std::vector<std::string>{IsoDate(Today())});
  EXPECT_EQ(Look(std::string(kCopies) + '\\' + IsoDate(Today()) + '\\'), before);
  LogIn();
  EXPECT_EQ(Look(), expected) << "the history is begun once";
}

TEST_F(VersionBefore, LosesNoByteButThoseOfTheDayOnAnother) {
  Files expected = Arrange("21.3.2019");
  const Files before = expected;
  LogIn();
  expected["Ann\\dziennik.csv"] =
      HistoryOfSeries("2019-03-21;;imported;;;;1500.25;50.125;40;200\r\n");
  // As a new day is prescribed to begin.
  expected["Ann\\bilans.ASC"] = Today();
  expected["Ann\\z1.ASC"] = "";
  expected["Ann\\z2.ASC"] = "";
  EXPECT_EQ(Look(), expected);
  EXPECT_EQ(Look(std::string(kCopies) + '\\' + IsoDate(Today()) + '\\'), before);
}

}  // namespace
}  // namespace velnor::desktop
