// A folder of its own for a test, gone with the object.

#ifndef VELNOR_TESTS_SUPPORT_TEMPORARY_FOLDER_H_
#define VELNOR_TESTS_SUPPORT_TEMPORARY_FOLDER_H_

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

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

 private:
  std::string path_;
};

}  // namespace velnor

#endif  // VELNOR_TESTS_SUPPORT_TEMPORARY_FOLDER_H_
