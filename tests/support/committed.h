// A deed of its own, for the tests of what is usually a part of one.

#ifndef VELNOR_TESTS_SUPPORT_COMMITTED_H_
#define VELNOR_TESTS_SUPPORT_COMMITTED_H_

#include <string>
#include <type_traits>

#include "base/transaction.h"

namespace velnor {

// Lets `put` put its changes into a deed on the folder. Whether it did and they were made.
template <typename Put, typename... Arguments>
bool Committed(const std::string& folder, Put put, const Arguments&... arguments) {
  Transaction deed(folder);
  if constexpr (std::is_void_v<std::invoke_result_t<Put, Transaction&, const Arguments&...>>) {
    put(deed, arguments...);
  } else if (!put(deed, arguments...)) {
    return false;
  }
  return deed.Commit();
}

}  // namespace velnor

#endif  // VELNOR_TESTS_SUPPORT_COMMITTED_H_
