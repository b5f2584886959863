// The program with a user logged in, for the tests of the body measures.

#ifndef VELNOR_TESTS_SCREENS_BODY_FIXTURE_H_
#define VELNOR_TESTS_SCREENS_BODY_FIXTURE_H_

#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/program_fixture.h"

namespace velnor {

using Texts = std::vector<std::string>;

inline constexpr int kOpenBmi = 221;
inline constexpr int kOpenWhr = 224;
inline constexpr int kOpenBmr = 225;
inline constexpr int kWeightEdit = 101;

class BodyTest : public ProgramTest {
 protected:
  // Registers `name` alone with this profile (age, height, sex, life style, other) and logs in.
  void LogIn(const std::string& profile, const std::string& name = "Ann") {
    ProgramTest::LogIn(name, profile);
  }

  void LogOut() {
    program_->OnCommand(201, kButtonClicked);
    boxes_.TakeTexts();
  }

  // Types the weight, presses the button and repaints.
  RecordingCanvas CountWith(const std::string& weight, int button) {
    form_.SetText(kWeightEdit, weight);
    form_.Press(button);
    return Repaint();
  }

  // What the screen itself has drawn, without the header.
  static std::vector<DrawnText> OwnTexts(const RecordingCanvas& canvas) {
    return {canvas.texts.begin() + 3, canvas.texts.end()};
  }
  static std::vector<DrawnLine> OwnLines(const RecordingCanvas& canvas) {
    return {canvas.lines.begin() + 1, canvas.lines.end()};
  }
  // The texts that stand in one column, from one height on.
  static std::vector<DrawnText> Column(const RecordingCanvas& canvas, int x, int from_y) {
    std::vector<DrawnText> texts;
    for (const DrawnText& text : OwnTexts(canvas)) {
      if (text.at.x == x && text.at.y >= from_y) texts.push_back(text);
    }
    return texts;
  }
  // The text at this place; empty when there is none.
  static std::string TextAt(const RecordingCanvas& canvas, Point at) {
    for (const DrawnText& text : OwnTexts(canvas)) {
      if (text.at == at) return text.text;
    }
    return "";
  }
};

}  // namespace velnor

#endif  // VELNOR_TESTS_SCREENS_BODY_FIXTURE_H_
