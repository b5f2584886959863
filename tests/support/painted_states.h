// Walks the whole program through every state in which a screen draws something of its own, and
// keeps what was drawn. Used by the test of legibility.

#ifndef VELNOR_TESTS_SUPPORT_PAINTED_STATES_H_
#define VELNOR_TESTS_SUPPORT_PAINTED_STATES_H_

#include <string>
#include <vector>

#include "tests/support/program_fixture.h"

namespace velnor {

struct PaintedState {
  std::string name;
  RecordingCanvas canvas;
};

class PaintedStatesTest : public ProgramTest {
 protected:
  // Every screen before anything is entered, without and with a user; then what each draws once
  // there is something to draw. A state whose own text is not drawn fails the test.
  void WalkAll();
  // The five charts alone, full.
  void WalkAllCharts();

  std::vector<PaintedState> states_;

 private:
  void WalkEmptyScreens(const std::string& who);
  void WalkBmi();
  void WalkBmiOf(const std::string& sex);
  void WalkBmiNotes();
  void WalkWhr();
  void WalkBmr();
  void WalkRequirement();
  void WalkBalance();
  void WalkEnergy();
  void WalkCharts();
  void WalkReports();
  void WalkFood();

  // Logs Ann in with this profile: "age,height,sex,way of life,other".
  void LogInAs(std::string profile);
  void Write(const std::string& file, const std::string& bytes) const;
  // Keeps what was drawn, which must hold the text `shows`.
  void Keep(const std::string& name, const RecordingCanvas& canvas, const std::string& shows);
};

}  // namespace velnor

#endif  // VELNOR_TESTS_SUPPORT_PAINTED_STATES_H_
