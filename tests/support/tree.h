// The files below a folder, for tests that look at all of it.

#ifndef VELNOR_TESTS_SUPPORT_TREE_H_
#define VELNOR_TESTS_SUPPORT_TREE_H_

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

namespace velnor {

// The bytes of each file by its path in the folder.
using Tree = std::map<std::string, std::string>;

// A missing folder has none.
inline Tree TreeBelow(const std::string& folder) {
  Tree tree;
  if (!std::filesystem::exists(folder)) return tree;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;
    std::ifstream file(entry.path(), std::ios::binary);
    tree[std::filesystem::relative(entry.path(), folder).string()] = {
        std::istreambuf_iterator<char>(file), {}};
  }
  return tree;
}

}  // namespace velnor

#endif  // VELNOR_TESTS_SUPPORT_TREE_H_
