// The report viewer of Ann, who has reports, and Bob. Used by the tests of the viewer.

#ifndef VELNOR_TESTS_SCREENS_REPORT_FIXTURE_H_
#define VELNOR_TESTS_SCREENS_REPORT_FIXTURE_H_

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/text_file.h"
#include "tests/support/program_fixture.h"

namespace velnor {

using Texts = std::vector<std::string>;

inline constexpr int kClearReport = 151;
inline constexpr int kSaveChanges = 152;
inline constexpr const char* kSureToClear =
    "Are You sure You want erase report?\nAll data will be LOST!\nADVICE: You can select and copy "
    "whole text to another file.";
inline constexpr const char* kSureToSave =
    "Do You want save changes?\nThere`ll be no chance to cancel!";

struct ReportOnScreen {
  ScreenId screen;
  int command;
  const char* title;
  const char* file_name;
};
inline constexpr ReportOnScreen kReportScreens[] = {
    {4, 210, "Reports overview - WEIGHT", "waga.ASC"},
    {5, 214, "Reports overview - WHR", "whr.ASC"},
    {8, 212, "Reports overview - CALORIE", "mirvo.ASC"},
    {9, 213, "Reports overview - RECIPES", "zestaw.ASC"},
    {11, 215, "Reports overview - BURNED CALORIES", "cwiczenia.ASC"},
};
inline constexpr int kOpenCalorie = 212;

class ReportScreenTest : public ProgramTest {
 protected:
  void LogIn(const std::string& name = "Ann") {
    ProgramTest::LogIn(name, "35\r\n180\r\nmen\r\nlow\r\nnone");
    folder_.Write("users.ASC", "Ann\r\nBob");
    window_.log.clear();
  }
  std::string Write(const std::string& file_name, std::string_view bytes) const {
    return folder_.Write("Ann/" + file_name, bytes);
  }
  std::string Read(const std::string& file_name) const { return folder_.Read("Ann/" + file_name); }
  std::string Shown() const { return form_.Text(119); }
  // A window whose PaintNow paints, as the real one's does.
  void PaintWhenAsked() {
    window_.on_paint_now = [this] { Repaint(); };
  }
};

}  // namespace velnor

#endif  // VELNOR_TESTS_SCREENS_REPORT_FIXTURE_H_
