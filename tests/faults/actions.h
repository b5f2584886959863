// What a person does that writes, as a table: the tests of the faults go through all of it, call by
// call.

#ifndef VELNOR_TESTS_FAULTS_ACTIONS_H_
#define VELNOR_TESTS_FAULTS_ACTIONS_H_

#include <ostream>
#include <span>
#include <string_view>
#include <vector>

#include "tests/faults/scene.h"

namespace velnor {

// What a file may hold.
struct Held {
  std::string_view file;
  std::string_view bytes;
};

// What the program says of the action in a box, and of which files that depends: all of them have
// their new bytes, or one has not.
struct Saying {
  std::string_view text;
  std::vector<std::string_view> files;
};

inline void DoNothing(Scene& /*scene*/) {}

struct Action {
  const char* name;
  // Changes the folder that Scene::Arrange has made, before the program starts.
  void (*arrange)(Scene& scene) = DoNothing;
  // What the person does before: logs in, opens the screen.
  void (*enter)(Scene& scene) = DoNothing;
  // The action itself. Must be possible a second time, whatever the first one came to.
  void (*act)(Scene& scene);
  // What a file may hold besides when the action is done again after it was interrupted.
  std::vector<Held> again = {};
  std::vector<Saying> says_on_success = {};
  std::vector<Saying> says_on_failure = {};
};

std::span<const Action> Actions();

// How the tests name it.
inline void PrintTo(const Action& action, std::ostream* out) { *out << action.name; }

}  // namespace velnor

#endif  // VELNOR_TESTS_FAULTS_ACTIONS_H_
