// Whatever happens, a file holds its old bytes or its new ones. Every action of a person that
// writes is done again and again: each time another one of its calls on files fails, or the process
// ends in it.

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "tests/faults/actions.h"
#include "tests/faults/file_faults.h"
#include "tests/faults/scene.h"
#include "users/backup.h"

namespace velnor {
namespace {

// What an action comes to when nothing goes wrong.
struct Outcome {
  Snapshot before;
  Snapshot once;
  Snapshot twice;
  // Begun in a program that was started anew: after the action had been done, or not.
  Snapshot anew_after;
  Snapshot anew_instead;
  std::vector<FileCall> calls;  // of doing it once
  // Before it, after each of its deeds, and after it.
  std::vector<Files> states;
};

void Begin(const Action& action, Scene& scene) {
  scene.Arrange();
  action.arrange(scene);
  scene.Restart();
  action.enter(scene);
  scene.boxes().TakeTexts();
}

void BeginAnew(const Action& action, Scene& scene) {
  scene.Restart();
  action.enter(scene);
}

// The action, and the repaint that follows it.
void Do(const Action& action, Scene& scene) {
  action.act(scene);
  scene.Repaint();
}

Outcome OutcomeOf(const Action& action) {
  Outcome outcome;
  {
    Scene scene;
    Begin(action, scene);
    outcome.before = scene.Look();
    {
      outcome.states.push_back(outcome.before.files);
      const FileWatch watch(scene.folder(), [&] { outcome.states.push_back(scene.Look().files); });
      Do(action, scene);
      outcome.calls = watch.calls();
    }
    outcome.once = scene.Look();
    EXPECT_EQ(outcome.states.back(), outcome.once.files) << "changed without the lock";
    Do(action, scene);
    outcome.twice = scene.Look();
  }
  for (const bool done : {true, false}) {
    Scene scene;
    Begin(action, scene);
    if (done) Do(action, scene);
    BeginAnew(action, scene);
    Do(action, scene);
    (done ? outcome.anew_after : outcome.anew_instead) = scene.Look();
  }
  return outcome;
}

std::set<std::string> PathsOf(const Outcome& outcome) {
  std::set<std::string> paths;
  for (const Snapshot* const snapshot : {&outcome.before, &outcome.once}) {
    for (const auto& [path, bytes] : snapshot->files) paths.insert(path);
  }
  return paths;
}

bool IsDone(const Outcome& outcome, const Snapshot& now, const std::string& path) {
  return now.At(path) == outcome.once.At(path) && now.At(path) != outcome.before.At(path);
}

// What the folder holds when of the deeds of an action, one after the other, some came to nothing.
std::vector<Files> WithoutSomeDeeds(const std::vector<Files>& states) {
  std::vector<Files> possible = {states.front()};
  for (std::size_t deed = 1; deed < states.size(); ++deed) {
    const Files& before = states[deed - 1];
    const Files& after = states[deed];
    const std::vector<Files> without = possible;
    for (Files files : without) {
      for (const auto& [path, bytes] : before) {
        if (!after.contains(path)) files.erase(path);
      }
      for (const auto& [path, bytes] : after) {
        const auto old = before.find(path);
        if (old == before.end() || old->second != bytes) files[path] = bytes;
      }
      if (std::ranges::find(possible, files) == possible.end()) possible.push_back(files);
    }
  }
  return possible;
}

void ExpectOneOf(const std::vector<Files>& states, const Snapshot& now) {
  EXPECT_TRUE(std::ranges::find(states, now.files) != states.end())
      << "half of a deed: " << testing::PrintToString(now.files)
      << "\nbefore it: " << testing::PrintToString(states.front())
      << "\nafter it: " << testing::PrintToString(states.back());
  EXPECT_TRUE(now.temporaries.empty()) << testing::PrintToString(now.temporaries);
}

// Older copies are as they were. Every new one that has its name is whole: it holds what the folder
// held before one of the deeds, or the folder of one person of it.
void ExpectWholeCopies(const Outcome& outcome, const Snapshot& now) {
  for (const auto& [name, copy] : outcome.before.copies) {
    EXPECT_TRUE(now.copies.contains(name) && now.copies.at(name) == copy) << name;
  }
  for (const auto& entry : now.copies) {
    const std::string& name = entry.first;
    const Files& copy = entry.second;
    if (outcome.before.copies.contains(name)) continue;
    const bool is_whole = std::ranges::any_of(outcome.states, [&](const Files& state) {
      Files copied;
      std::ranges::copy_if(state, std::inserter(copied, copied.end()), [&](const auto& file) {
        return copy.contains("users.ASC") || file.first.starts_with(copy.begin()->first);
      });
      Files without_words = copy;
      without_words.erase(std::string(kAboutFile));
      return without_words == copied;
    });
    EXPECT_TRUE(is_whole) << name << ": " << testing::PrintToString(copy);
  }
}

// That doing it once more has come to what it should, file by file: a file in which it had been
// done has it twice.
void ExpectDoneAgain(const Action& action, const Outcome& outcome, const Snapshot& then,
                     const Snapshot& now, const Snapshot& if_done, const Snapshot& if_not) {
  for (const std::string& path : PathsOf(outcome)) {
    const bool may_be = std::ranges::any_of(action.again, [&](const Held& state) {
      return state.file == path && state.bytes == now.At(path);
    });
    if (may_be) continue;
    const bool done = IsDone(outcome, then, path);
    EXPECT_EQ(now.At(path), (done ? if_done : if_not).At(path)) << path << ", done again";
  }
}

void ExpectTheRightWords(const Action& action, const Outcome& outcome, const Snapshot& now,
                         const std::vector<std::string>& said) {
  const auto all_new = [&](const Saying& saying) {
    return std::ranges::all_of(saying.files, [&](std::string_view file) {
      return now.At(std::string(file)) == outcome.once.At(std::string(file));
    });
  };
  const auto was_said = [&](const Saying& saying) {
    return std::ranges::find(said, saying.text) != said.end();
  };
  for (const Saying& saying : action.says_on_failure) {
    EXPECT_NE(was_said(saying), all_new(saying)) << saying.text;
  }
  for (const Saying& saying : action.says_on_success) {
    EXPECT_EQ(was_said(saying), all_new(saying)) << saying.text;
  }
}

void Fail(const Action& action, const Outcome& outcome, std::size_t at, Fault fault) {
  Scene scene;
  Begin(action, scene);
  {
    const FileWatch watch(scene.folder(), at, fault);
    Do(action, scene);
  }
  const std::vector<std::string> said = scene.boxes().TakeTexts();
  // What was written down and not finished is finished before anything is read again.
  scene.Repaint();
  Snapshot then = scene.Look();
  if (Lasts(fault)) then.temporaries.clear();  // clearing up has failed too
  ExpectOneOf(WithoutSomeDeeds(outcome.states), then);
  ExpectWholeCopies(outcome, then);
  ExpectTheRightWords(action, outcome, then, said);
  Do(action, scene);
  ExpectDoneAgain(action, outcome, then, scene.Look(), outcome.twice, outcome.once);
  scene.Restart();
  EXPECT_TRUE(scene.Look().temporaries.empty());
}

// Does the action in a process of its own, which ends at the fault.
int StatusOfCrash(const Action& action, Scene& scene, std::size_t at, Fault fault) {
  std::fflush(nullptr);
  const pid_t child = fork();
  if (child == 0) {
    const FileWatch watch(scene.folder(), at, fault);
    Do(action, scene);
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void Crash(const Action& action, const Outcome& outcome, std::size_t at, Fault fault) {
  Scene scene;
  Begin(action, scene);
  ASSERT_EQ(StatusOfCrash(action, scene, at, fault), kCrashStatus);
  scene.Restart();
  const Snapshot then = scene.Look();
  ExpectOneOf(outcome.states, then);
  ExpectWholeCopies(outcome, then);
  BeginAnew(action, scene);
  Do(action, scene);
  ExpectDoneAgain(action, outcome, then, scene.Look(), outcome.anew_after, outcome.anew_instead);
}

struct FaultPoint {
  std::size_t at;
  Fault fault;
};

std::vector<FaultPoint> FaultPointsOf(const Outcome& outcome) {
  std::vector<FaultPoint> points;
  for (std::size_t at = 0; at < outcome.calls.size(); ++at) {
    for (const Fault fault : FaultsOf(outcome.calls[at])) points.push_back({at, fault});
  }
  return points;
}

class FaultsTest : public testing::TestWithParam<Action> {
 protected:
  // Goes through the crashes or through the errors, to the first that does harm.
  static void GoThrough(bool crashes,
                        void (*run)(const Action&, const Outcome&, std::size_t, Fault)) {
    const Outcome outcome = OutcomeOf(GetParam());
    ASSERT_FALSE(HasFailure());
    ASSERT_FALSE(outcome.calls.empty());
    for (const auto& [at, fault] : FaultPointsOf(outcome)) {
      if (IsCrash(fault) != crashes) continue;
      SCOPED_TRACE(std::string(NameOf(fault)) + " in call " + std::to_string(at) + ", " +
                   NameOf(outcome.calls[at]));
      run(GetParam(), outcome, at, fault);
      if (HasFailure()) return;
    }
  }
};

TEST_P(FaultsTest, AnErrorLeavesOldOrNew) { GoThrough(false, Fail); }

TEST_P(FaultsTest, ACrashLeavesOldOrNew) { GoThrough(true, Crash); }

INSTANTIATE_TEST_SUITE_P(EveryAction, FaultsTest,
                         testing::ValuesIn(Actions().begin(), Actions().end()),
                         [](const auto& tested) {
                           std::string name = tested.param.name;
                           std::ranges::replace_if(
                               name, [](char c) { return c == ' ' || c == '-'; }, '_');
                           return name;
                         });

// Not a test of the program but of the tests: no call may slip past them.
TEST(FaultPointsTest, AreCounted) {
  std::set<FileCall> seen;
  std::size_t all_calls = 0;
  std::size_t all_points = 0;
  std::printf("%-38s %5s %6s\n", "action", "calls", "points");
  for (const Action& action : Actions()) {
    const Outcome outcome = OutcomeOf(action);
    const std::size_t points = FaultPointsOf(outcome).size();
    std::printf("%-38s %5zu %6zu\n", action.name, outcome.calls.size(), points);
    seen.insert(outcome.calls.begin(), outcome.calls.end());
    all_calls += outcome.calls.size();
    all_points += points;
  }
  std::printf("%-38s %5zu %6zu\n", "all", all_calls, all_points);
  for (int call = 0; call < static_cast<int>(FileCall::kCut); ++call) {
    EXPECT_TRUE(seen.contains(static_cast<FileCall>(call))) << NameOf(static_cast<FileCall>(call));
  }
}

}  // namespace
}  // namespace velnor
