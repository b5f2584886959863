// The history and the copies of a day, by how much there is of them.

#include <benchmark/benchmark.h>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>

#include "base/text_file.h"
#include "food/day_balance.h"
#include "tests/support/diary_histories.h"
#include "tests/support/temporary_folder.h"
#include "users/backup.h"
#include "users/history_file.h"

namespace velnor::bench {
namespace {

constexpr DayNumber kToday = 20773;  // 16 November 2026

// A folder in which each of these has so many lines of history, and some of the other files.
class Folder {
 public:
  Folder(std::initializer_list<std::string> people, const std::string& history) {
    std::string registry;
    for (const std::string& name : people) {
      registry += (registry.empty() ? "" : "\r\n") + name;
      std::filesystem::create_directory(folder_.path() + name);
      folder_.Write(name + "/info.ASC", "35\r\n170\r\nwomen\r\nlow\r\nnone");
      folder_.Write(name + "/bilans.ASC", "16.11.2026\r\n1873.25\r\n70.125\r\n61.5\r\n254.75");
      for (const char* const series : {"wykoda.txt", "wykwag.txt"}) {
        folder_.Write(name + '/' + series, "15.11.2026;1873.25;70.125;61.5;254.75;\r\n");
      }
      folder_.Write(name + "/dziennik.csv", history);
      for (const char* const report : {"waga.ASC", "whr.ASC", "mirvo.ASC", "spal.ASC"}) {
        folder_.Write(name + '/' + report, std::string(100'000, 'x'));
      }
    }
    folder_.Write("users.ASC", registry);
    session_.base_folder = folder_.path();
    session_.user = UserFolder::In(folder_.path(), *people.begin());
    session_.date_text = "16.11.2026";
  }
  SessionState& session() { return session_; }
  const std::string& path() const { return folder_.path(); }
  void Write(const std::string& name, std::string_view bytes) const { folder_.Write(name, bytes); }

 private:
  TemporaryFolder folder_;
  SessionState session_;
};

std::string Lines(benchmark::State& state) {
  std::string history = std::string(kHistoryHeader) + "\r\n";
  for (std::int64_t i = 0; i < state.range(0); ++i) {
    history += "2026-10-05;12:00:00;food;frozen strawberries;250;g;70;1.75;1;13.5\r\n";
  }
  return history;
}

// Food taken and told, behind so many lines.
void FoodTold(benchmark::State& state) {
  Folder folder({"Ann"}, Lines(state));
  DayBalance day(folder.session());
  bool written = true;
  for (auto _ : state) {
    written = day.Add({70, 1.75, 1, 13.5}, DayExchanges{1.35, 0.16}, {"plums", 250}) && written;
  }
  if (!written) state.SkipWithError("the food could not be told");
}

// The first look at a day, which asks the history whether it knows the day already.
void DayBegun(benchmark::State& state) {
  Folder folder({"Ann"}, Lines(state));
  DayBalance day(folder.session());
  bool written = true;
  for (auto _ : state) {
    state.PauseTiming();
    folder.Write("Ann/bilans.ASC", "15.11.2026\r\n1873.25\r\n70.125\r\n61.5\r\n254.75");
    state.ResumeTiming();
    written = day.StartDayIfNew() && written;
  }
  if (!written) state.SkipWithError("the day could not be begun");
}

// Three people who have lived so many days with the program.
void DailyCopy(benchmark::State& state) {
  Folder folder({"Ann", "Bob", "Zoe"},
                WithCrLf(LivedHistory(static_cast<int>(state.range(0)), kToday)));
  bool made = true;
  for (auto _ : state) {
    made = MakeDailyCopy(folder.path(), "2026-11-16") && made;
    state.PauseTiming();
    std::filesystem::remove_all(folder.path() + std::string(kCopiesFolder));
    state.ResumeTiming();
  }
  if (!made) state.SkipWithError("the copy could not be made");
}

// Waiting for the disk is what these do: time is that of the clock.
BENCHMARK(FoodTold)->Arg(1)->Arg(40'000)->UseRealTime();
BENCHMARK(DayBegun)->Arg(1)->Arg(40'000)->UseRealTime();
BENCHMARK(DailyCopy)->Arg(30)->Arg(365)->Arg(3652)->UseRealTime();

}  // namespace
}  // namespace velnor::bench
