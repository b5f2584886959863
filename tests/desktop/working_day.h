// A day with everything in it that writes, deed by deed: for the tests that spoil one.

#ifndef VELNOR_TESTS_DESKTOP_WORKING_DAY_H_
#define VELNOR_TESTS_DESKTOP_WORKING_DAY_H_

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tests/desktop/driver.h"

namespace velnor::desktop {

struct Deed {
  const char* name;
  // Does it and gives the texts of the boxes that it led to. Can be repeated after it failed.
  std::vector<std::string> (*act)(const App& app);
  // What the program says when not all of `about` could be written; null: nothing.
  const char* refused = nullptr;
  // What it says when they could; null: nothing of its own.
  const char* done = nullptr;
  std::vector<std::string_view> about = {};
  // Files that are made or emptied before anything else is written.
  std::vector<std::string_view> emptied_first = {};
};

// Begins in an empty folder with registering Ann and ends with removing her. Each deed changes a
// file.
std::span<const Deed> WorkingDay();

}  // namespace velnor::desktop

#endif  // VELNOR_TESTS_DESKTOP_WORKING_DAY_H_
