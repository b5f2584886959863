// A folder of its own for a test, gone with the object.

#ifndef VELNOR_TESTS_SUPPORT_TEMPORARY_FOLDER_H_
#define VELNOR_TESTS_SUPPORT_TEMPORARY_FOLDER_H_

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace velnor {

class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "velnor-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("cannot make " + name);
    path_ = name + '/';
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::string& path() const { return path_; }  // with a separator at its end

  // Returns the path of the file.
  std::string Write(const std::string& name, std::string_view bytes) const {
    std::ofstream(path_ + name, std::ios::binary) << bytes;
    return path_ + name;
  }

  // The bytes of the file; "(missing)" when there is none.
  std::string Read(const std::string& name) const {
    std::ifstream file(path_ + name, std::ios::binary);
    if (!file) return "(missing)";
    return {std::istreambuf_iterator<char>(file), {}};
  }

  // The names of everything in the folder, sorted.
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(path_)) {
      names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
  }

 private:
  std::string path_;
};

}  // namespace velnor

#endif  // VELNOR_TESTS_SUPPORT_TEMPORARY_FOLDER_H_
