// The order in which a sorted list box keeps its items, found out beforehand: a list that is given
// its items in that order has nothing to look for. Used where lists are filled.

#ifndef VELNOR_SHELL_WIN32_LIST_ORDER_H_
#define VELNOR_SHELL_WIN32_LIST_ORDER_H_

#include <windows.h>

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velnor {

// `texts`, in code page 1250 and up to a NUL each, in the order in which the empty list box `list`
// would show them. Returns nothing if only the box knows: where it compares two different texts as
// equal, as "Figs" and "figs", or where the platform gives no answer.
std::optional<std::vector<std::string>> OrderOfList(HWND list,
                                                    std::span<const std::string_view> texts);

}  // namespace velnor

#endif  // VELNOR_SHELL_WIN32_LIST_ORDER_H_
