// The order in which the Tab key goes through the controls of a screen: as the screen reads.

#ifndef VELNOR_SHELL_TAB_ORDER_H_
#define VELNOR_SHELL_TAB_ORDER_H_

#include <span>
#include <vector>

namespace velnor {

// Those of the main window's controls `keys` that take the keyboard, in the order in which they are
// read: in rows from the top, in a row from left to right. A row goes from one gap that runs across
// the screen to the next, so it may hold columns, which are read one after the other. Texts and
// frames are left out, as are keys that no control has.
std::vector<int> TabOrder(std::span<const int> keys);

// The one after `current` in the order, or before it. Behind the last comes the first. From a
// control outside of the order it is the first, backwards the last; 0 when the order is empty.
int NextInTabOrder(std::span<const int> order, int current, bool backwards);

}  // namespace velnor

#endif  // VELNOR_SHELL_TAB_ORDER_H_
