// The five charts of Ann. Used by the tests of what they paint and of when they refuse.

#ifndef VELNOR_TESTS_SCREENS_CHART_FIXTURE_H_
#define VELNOR_TESTS_SCREENS_CHART_FIXTURE_H_

#include <string>
#include <vector>

#include "tests/support/program_fixture.h"

namespace velnor {

inline constexpr int kWeightChart = 270;
inline constexpr int kCalorieChart = 271;
inline constexpr int kProteinsChart = 272;
inline constexpr int kFatChart = 273;
inline constexpr int kCarbohydratesChart = 274;
inline constexpr int kOpenRequirement = 232;

inline const std::string kThreeWeights =
    "16.11.2026;70;22.85;\r\n17.11.2026;71.5;23.34;\r\n18.11.2026;69;22.53;\r\n";
inline const std::string kThreeDays =
    "14.11.2026;1850.;72.5;60.25;230.7;\r\n"
    "15.11.2026;5200;500;300;9999;\r\n"
    "16.11.2026;2000.;100.;80.;300.;\r\n";

class ChartScreenTest : public ProgramTest {
 protected:
  void LogIn(const std::string& profile = "35\r\n180\r\nmen\r\nlow\r\nnone") {
    ProgramTest::LogIn("Ann", profile);
    ASSERT_EQ(program_->session().user.value().name(), "Ann");
  }
};

// What was drawn after the header.
inline std::vector<DrawnText> Texts(const RecordingCanvas& canvas) {
  return {canvas.texts.begin() + 3, canvas.texts.end()};
}

}  // namespace velnor

#endif  // VELNOR_TESTS_SCREENS_CHART_FIXTURE_H_
