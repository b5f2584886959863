// Whoever logs in in a folder of the version before keeps every byte of it, and gets a history that
// tells of what was before.

#include "tests/desktop/version_before.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/support/history_sums.h"
#include "users/history_file.h"

namespace velnor::desktop {
namespace {

constexpr const char* kCopies = "kopie zapasowe";

class VersionBefore : public testing::Test {
 protected:
  // The program starts, Ann logs in, and it is ended.
  void LogIn() const {
    const App app(folder_);
    LogInAnn(app);
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

  WorkFolder folder_;
};

TEST_F(VersionBefore, LosesNoByteOnTheSameDay) {
  Files expected = LayVersionBefore(folder_, Today());
  const Files before = expected;
  LogIn();
  const Files after = Look();
  expected["Ann\\dziennik.csv"] = HistoryOfVersionBefore(Today());
  EXPECT_EQ(after, expected);
  ExpectToldTotals(History(after), after.at("Ann\\bilans.ASC"));
  EXPECT_EQ(folder_.Names(kCopies), std::vector<std::string>{IsoDate(Today())});
  EXPECT_EQ(Look(std::string(kCopies) + '\\' + IsoDate(Today()) + '\\'), before);
  LogIn();
  EXPECT_EQ(Look(), expected) << "the history is begun once";
}

TEST_F(VersionBefore, LosesNoByteButThoseOfTheDayOnAnother) {
  const std::string another = "21.3.2019";
  Files expected = LayVersionBefore(folder_, another);
  const Files before = expected;
  LogIn();
  expected["Ann\\dziennik.csv"] = HistoryOfVersionBefore(another);
  // As a new day is prescribed to begin.
  expected["Ann\\bilans.ASC"] = Today();
  expected["Ann\\z1.ASC"] = "";
  expected["Ann\\z2.ASC"] = "";
  EXPECT_EQ(Look(), expected);
  EXPECT_EQ(Look(std::string(kCopies) + '\\' + IsoDate(Today()) + '\\'), before);
}

}  // namespace
}  // namespace velnor::desktop
