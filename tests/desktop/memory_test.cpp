// The program with little memory: it says what it could not do and goes on.

#include <gtest/gtest.h>
#include <string>

#include "tests/desktop/driver.h"

namespace velnor::desktop {
namespace {

class ShortOfMemory : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    if (GetEnvironmentVariableA("VELNOR_LITTLE_MEMORY", nullptr, 0) == 0) {
      GTEST_SKIP() << "run-under-wine --little-memory starts this suite";
    }
  }

  // A file of blank lines that takes more memory than there is, and hardly any of the disk.
  void WriteHugeFile(const std::string& name) const {
    const HANDLE file = CreateFileA((folder_.path() + name).c_str(), GENERIC_WRITE, 0, nullptr,
                                    CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    SetFilePointer(file, 2'000'000'000, nullptr, FILE_BEGIN);
    EXPECT_NE(SetEndOfFile(file), FALSE);
    CloseHandle(file);
  }

  const WorkFolder folder_;
};

TEST_F(ShortOfMemory, ADialogThatFindsTooLittleSaysSoAndTheProgramGoesOn) {
  WriteHugeFile("users.ASC");
  const App app(folder_);
  app.main().PostCommand(202);
  const MessageBoxSeen box = app.WaitForMessageBox();
  EXPECT_EQ(box.caption, "Velnor calorie counter");
  EXPECT_EQ(box.text,
            "This could not be done.\n"
            "The computer may be short of memory: close other programs and try again.");
  Answer(box, IDOK);
  const Window dialog = app.WaitForPopup();
  ASSERT_NE(dialog.handle(), nullptr);
  dialog.PostCommand(IDCANCEL);
  EXPECT_TRUE(WaitUntilGone(dialog.handle()));
  // What needs little is done as ever.
  app.main().Command(236);
  app.Settle();
  EXPECT_TRUE(app.main().IsShown(108));
  EXPECT_TRUE(app.IsRunning());
}

}  // namespace
}  // namespace velnor::desktop
