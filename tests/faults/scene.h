// A folder of people's data with a program at work in it, which can be started afresh over the same
// folder. The tests of the faults act in it as a person would.

#ifndef VELNOR_TESTS_FAULTS_SCENE_H_
#define VELNOR_TESTS_FAULTS_SCENE_H_

#include <map>
#include <span>
#include <string>
#include <vector>

#include "tests/support/day_fixture.h"

namespace velnor {

// The bytes of every file by its path below a folder, and "folder" for every folder.
using Files = std::map<std::string, std::string>;

// What stands in a folder. Temporary files and copies of the data are kept apart.
struct Snapshot {
  Files files;
  Files temporaries;
  std::map<std::string, Files> copies;  // the whole ones, by their names

  // The bytes; "(missing)" when there is no such file.
  const std::string& At(const std::string& path) const;
};

// What a write that was interrupted long ago has left beside every file.
inline constexpr const char* kLeftover = "16.11.2026;LEFT;OVER;";

class Scene : public DayTest {
 public:
  struct StartFile {
    const char* name;
    const char* bytes;
  };

  Scene() = default;

  // Ann with all her files, Bob with none, and two products of theirs. The last lines of the
  // product file and of the reports are open, as somebody who edited them by hand leaves them.
  // Beside every file lies what an interrupted write has left.
  void Arrange();
  // All files that a person can have, for `name`.
  void ArrangePerson(const std::string& name);
  // Ends the program, if one runs, and starts one.
  void Restart();

  // The dialog that `command` opens, or the button of this id on the current screen.
  FakeForm& Dialog(int command);
  // The one that an item of the menu of our own opens.
  FakeForm& OwnDialog(int item);

  void LogIn(const std::string& name);
  // The person opens the screen, types and presses.
  void CountBmi(const std::string& weight);

  Snapshot Look() const;
  std::string Path(const std::string& name) const { return folder_.path() + name; }
  const std::string& folder() const { return folder_.path(); }
  void WriteFile(const std::string& name, std::string_view bytes) const {
    folder_.Write(name, bytes);
  }
  void RemoveFile(const std::string& name) const;

  static constexpr int kClearDay = 165;

  using DayTest::AddStrawberries;
  using DayTest::kClearList;
  using DayTest::Remove;
  using ProgramTest::Open;
  using ProgramTest::Repaint;
  FakeForm& form() { return form_; }
  FakeMessageBoxes& boxes() { return boxes_; }

 private:
  void TestBody() override {}
  void WriteStartFiles(std::span<const StartFile> files, const std::string& folder);

  FakeForm dialog_;
};

}  // namespace velnor

#endif  // VELNOR_TESTS_FAULTS_SCENE_H_
