// A start-up folder with the files of two people, for tests of what is copied and brought back.

#ifndef VELNOR_TESTS_SUPPORT_DATA_FOLDER_H_
#define VELNOR_TESTS_SUPPORT_DATA_FOLDER_H_

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "tests/support/temporary_folder.h"

namespace velnor {

// Ann, who has records, Bob, whose files are empty, and a product of theirs.
class DataFolderTest : public testing::Test {
 protected:
  void SetUp() override {
    Write("users.ASC", "Ann\r\nBob");
    Write("data.txt", "fruits;fresh;quince;100;57;0.4;0.1;15;\r\n");
    Write("Ann/info.ASC", "30\r\n170");
    Write("Ann/waga.ASC", "record\r\n");
    Write("Bob/info.ASC", "");
  }

  std::string Base() const { return folder_.path(); }

  // Makes the folder of the file too.
  void Write(const std::string& name, const std::string& bytes) const {
    std::filesystem::create_directories((std::filesystem::path(Base()) / name).parent_path());
    folder_.Write(name, bytes);
  }

 private:
  TemporaryFolder folder_;
};

}  // namespace velnor

#endif  // VELNOR_TESTS_SUPPORT_DATA_FOLDER_H_
