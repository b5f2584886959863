// Changes of a report that could not be saved: how long they stay.

#include <filesystem>
#include <string>

#include "tests/screens/report_fixture.h"

namespace velnor {
namespace {

class UnsavedReportTest : public ReportScreenTest {
 protected:
  // Ann has typed over a report that nobody may write, and pressed "Save changes".
  void TypeWhatCannotBeSaved() {
    LogIn();
    path_ = Write("mirvo.ASC", "old\r\n");
    std::filesystem::permissions(path_, std::filesystem::perms{0444});
    Open(kOpenCalorie);
    form_.SetText(119, "typed");
    form_.Press(kSaveChanges);
    Repaint();
    Repaint();
  }
  void LetItBeWritten() const { std::filesystem::permissions(path_, std::filesystem::perms{0644}); }

  std::string path_;
};

TEST_F(UnsavedReportTest, StaysUntilItIsSaved) {
  TypeWhatCannotBeSaved();
  EXPECT_EQ(Shown(), "typed");
  form_.SetText(119, "typed on");
  Repaint();
  EXPECT_EQ(Shown(), "typed on");
  form_.Press(kSaveChanges);
  Repaint();
  EXPECT_EQ(Shown(), "typed on");
  EXPECT_EQ(Read("mirvo.ASC"), "old\r\n");
  LetItBeWritten();
  form_.Press(kSaveChanges);
  EXPECT_EQ(Read("mirvo.ASC"), "typed on");
  EXPECT_EQ(Read("mirvo.ASC.rest.txt"), "(missing)");
  form_.SetText(119, "changed");
  Repaint();
  EXPECT_EQ(Shown(), "typed on") << "saved: a repaint reloads again";
}

TEST_F(UnsavedReportTest, StaysThoughTheFileGrowsMeanwhile) {
  TypeWhatCannotBeSaved();
  LetItBeWritten();
  Write("mirvo.ASC", Read("mirvo.ASC") + "a record\r\n");
  Repaint();
  EXPECT_EQ(Shown(), "typed");
  form_.Press(kSaveChanges);
  EXPECT_EQ(Read("mirvo.ASC"), "typed");
  EXPECT_EQ(Read("mirvo.ASC.rest.txt"), "a record\r\n");
}

TEST_F(UnsavedReportTest, StaysThroughARepaintUnderTheBox) {
  LogIn();
  path_ = Write("mirvo.ASC", "old\r\n");
  std::filesystem::permissions(path_, std::filesystem::perms{0444});
  Open(kOpenCalorie);
  form_.SetText(119, "typed");
  boxes_.while_open = [&] { Repaint(); };
  form_.Press(kSaveChanges);
  Repaint();
  EXPECT_EQ(Shown(), "typed");
}

TEST_F(UnsavedReportTest, GoesWhenTheReportIsReloadedFromTheMenu) {
  TypeWhatCannotBeSaved();
  Open(kOpenCalorie);
  EXPECT_EQ(Shown(), "old\r\n");
  form_.SetText(119, "changed");
  Repaint();
  EXPECT_EQ(Shown(), "old\r\n");
}

TEST_F(UnsavedReportTest, GoesWhenTheReportIsCleared) {
  TypeWhatCannotBeSaved();
  form_.Press(kClearReport);
  Repaint();
  EXPECT_EQ(Shown(), "typed") << "nor could it be cleared";
  LetItBeWritten();
  form_.Press(kClearReport);
  Repaint();
  EXPECT_EQ(Shown(), "");
}

TEST_F(UnsavedReportTest, IsNotShownInAnotherReportOrToAnotherUser) {
  TypeWhatCannotBeSaved();
  Open(210);
  EXPECT_EQ(Shown(), "");
  Open(kOpenCalorie);
  EXPECT_EQ(Shown(), "old\r\n");
  TypeWhatCannotBeSaved();
  program_->OnCommand(201, kButtonClicked);
  LogIn("Bob");
  Open(kOpenCalorie);
  EXPECT_EQ(Shown(), "");
}

}  // namespace
}  // namespace velnor
