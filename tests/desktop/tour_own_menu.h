// The part of the tour that goes through the menu of our own items, and what takes the pictures.

#ifndef VELNOR_TESTS_DESKTOP_TOUR_OWN_MENU_H_
#define VELNOR_TESTS_DESKTOP_TOUR_OWN_MENU_H_

#include <string>
#include <utility>

#include "tests/desktop/driver.h"

namespace velnor::desktop {

class Camera {
 public:
  // Saves its pictures in `folder`, without a separator at its end.
  explicit Camera(std::string folder) : folder_(std::move(folder)) {}

  // What the display shows of the window, once the program has come to rest.
  void Take(const App& app, const Window& window, const std::string& name) const;

 private:
  std::string folder_;
};

// Quick add and import. Somebody is logged in and has eaten; `folder` is that of the program.
void WalkFoodAtHand(const App& app, const Folder& folder, const Camera& camera);

// Back up and restore. There are copies already.
void WalkCopies(const App& app, const Camera& camera);

}  // namespace velnor::desktop

#endif  // VELNOR_TESTS_DESKTOP_TOUR_OWN_MENU_H_
