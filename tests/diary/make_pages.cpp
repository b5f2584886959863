// Writes the diaries that are looked at in a browser, each into a folder of its own.
// Usage: make_pages FOLDER

#include <array>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <string>

#include "diary/diary.h"
#include "tests/support/diary_histories.h"

namespace velnor {
namespace {

constexpr std::string_view kToday = "16.11.2026";

void Write(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary);
  file << bytes;
  if (!file.flush()) throw std::runtime_error("cannot write " + path.string());
}

struct Scene {
  const char* name;
  std::string history;
  const char* user = "Zofia";
  UserProfile profile = {.age = "34", .height = "168", .sex = "women", .life_style = "low"};
  bool has_requirement = true;
};

void MakeScene(const std::filesystem::path& folder, const Scene& scene) {
  DailyRequirement requirement;
  if (scene.has_requirement) UpdateRequirement(scene.profile, {}, requirement);
  const DiaryFiles files = MakeDiary({.history = scene.history,
                                      .profile = scene.profile,
                                      .requirement = BoundsOf(requirement),
                                      .date_text = kToday,
                                      .user_name = scene.user});
  std::filesystem::create_directories(folder / scene.name);
  Write(folder / scene.name / "dziennik.html", files.page);
  Write(folder / scene.name / "dziennik-dni.csv", files.days);
  Write(folder / scene.name / "dziennik-potrawy.csv", files.deeds);
}

void MakePages(const std::filesystem::path& folder) {
  const DayNumber today = DayOfIsoDate("2026-11-16").value_or(0);
  const UserProfile nobody;
  const std::array<Scene, 7> scenes = {{
      {"nothing", "", "Jan", nobody, false},
      {"one-day", LivedHistory(1, today)},
      {"month", LivedHistory(30, today)},
      {"years", LivedHistory(3 * 365, today)},
      {"ten-years", LivedHistory(3652, today)},
      {"long-ago", LivedHistory(40, today - 200), "Jan", nobody, false},
      {"hostile", HostileHistory(today), "<b>Zo\xEB</b>&\"'\xA5\xA5\xA5\xA5\xA5\xA5\xA5\xA5\xA5"},
  }};
  for (const Scene& scene : scenes) MakeScene(folder, scene);
}

}  // namespace
}  // namespace velnor

int main(int argc, char** argv) {
  try {
    if (argc != 2) throw std::runtime_error("usage: make_pages FOLDER");
    velnor::MakePages(argv[1]);
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "make_pages: %s\n", error.what());
    return 1;
  }
}
