// Feeds files to a fuzz target, one after the other: how the tests run the corpora, and how a
// finding is looked at in a debugger. Arguments are files, or folders whose files are meant.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void Replay(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  // An allocation of exactly this size, so that a read behind its end is noticed.
  const std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
  std::fprintf(stderr, "%s\n", path.c_str());
  LLVMFuzzerTestOneInput(input.data(), input.size());
}

}  // namespace

int main(int argc, char** argv) {
  int replayed = 0;
  for (const std::string& argument : std::vector<std::string>(argv + 1, argv + argc)) {
    if (!std::filesystem::is_directory(argument)) {
      Replay(argument);
      ++replayed;
      continue;
    }
    for (const auto& entry : std::filesystem::directory_iterator(argument)) {
      Replay(entry.path());
      ++replayed;
    }
  }
  std::fprintf(stderr, "%d inputs\n", replayed);
  return replayed == 0 ? 1 : 0;
}
