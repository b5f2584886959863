// The program with hardly any memory left: it says so and goes on.

#include <gtest/gtest.h>
#include <string>

#include "tests/desktop/driver.h"

namespace velnor::desktop {
namespace {

constexpr SIZE_T kMegabyte = SIZE_T{1} << 20;
constexpr SIZE_T kLargestLeft = 32 * kMegabyte;

// Takes every stretch of the program's addresses that is larger than kLargestLeft.
void TakeLargeStretches(const App& app) {
  for (SIZE_T size = SIZE_T{1} << 46; size >= kLargestLeft; size /= 2) {
    while (VirtualAllocEx(app.process(), nullptr, size, MEM_RESERVE, PAGE_NOACCESS) != nullptr) {
    }
  }
}

class ShortOfMemory : public testing::Test {
 protected:
  // Larger than any stretch that is left.
  const std::string users_ = "Ann\r\n" + std::string(3 * kLargestLeft, '\n');
  const WorkFolder folder_;
};

TEST_F(ShortOfMemory, ADialogThatFindsTooLittleSaysSoAndCloses) {
  folder_.Write("users.ASC", users_);
  const App app(folder_);
  TakeLargeStretches(app);
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
  EXPECT_EQ(folder_.Read("users.ASC"), users_);
}

}  // namespace
}  // namespace velnor::desktop
