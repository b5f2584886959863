// The diary: from the bytes of a history to those of its page and its two tables.

#include <benchmark/benchmark.h>
#include <optional>
#include <string>

#include "diary/diary.h"
#include "tests/support/diary_histories.h"
#include "users/history_file.h"

namespace velnor::bench {
namespace {

constexpr DayNumber kToday = 20773;  // 16 November 2026

void Diary(benchmark::State& state) {
  const std::string history = LivedHistory(static_cast<int>(state.range(0)), kToday);
  const DiaryInputs inputs = {.history = history,
                              .profile = {.height = "170"},
                              .requirement = {2100, 2300, 70, 70, 65, 90, 300, 360},
                              .date_text = "16.11.2026",
                              .user_name = "Ann"};
  for (auto _ : state) {
    const DiaryFiles files = MakeDiary(inputs);
    benchmark::DoNotOptimize(files.page.data());
  }
}

// Reading the same history and doing nothing with it.
void DiaryFloor(benchmark::State& state) {
  const std::string history = LivedHistory(static_cast<int>(state.range(0)), kToday);
  for (auto _ : state) {
    HistoryReader reader(history);
    while (const std::optional<HistoryEntry> entry = reader.Next()) {
      benchmark::DoNotOptimize(entry->kcal);
    }
  }
}

// A month, a year, ten years of eleven lines a day.
BENCHMARK(Diary)->Arg(30)->Arg(365)->Arg(3652);
BENCHMARK(DiaryFloor)->Arg(3652);

}  // namespace
}  // namespace velnor::bench
