// The files of a day: adding a food, the chart series, reports.

#include "bench/file_bench.h"

#include <array>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <initializer_list>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

#include "base/form.h"
#include "base/message_boxes.h"
#include "base/text_file.h"
#include "base/transaction.h"
#include "bench/products.h"
#include "bench/table.h"
#include "charts/chart_file.h"
#include "food/day_balance.h"
#include "food/food_list_panel.h"
#include "food/user_product_file.h"
#include "tests/support/temporary_folder.h"
#include "users/user_files.h"

namespace velnor::bench {
namespace {

constexpr std::string_view kToday = "16.11.2026";
constexpr std::int64_t kFullSeries = 20;  // days

// Only texts, and nothing that takes time: a press is to be measured, not its window.
class PlainForm final : public Form {
 public:
  std::string ReadText(int id, std::size_t limit) const override {
    const auto text = texts_.find(id);
    return text == texts_.end() ? "" : text->second.substr(0, limit);
  }
  void SetText(int id, std::string_view text) override { texts_[id] = text; }
  int ItemCount(int) const override { return 0; }
  void FillItems(int, std::span<const std::string_view>) override {}
  void AddItems(int, std::span<const std::string_view>) override {}
  void ClearItems(int) override {}
  std::string ItemText(int, int) const override { return ""; }
  void SelectItem(int, int) override {}
  std::optional<int> SelectedItem(int) const override { return std::nullopt; }
  std::optional<std::string> SelectedText(int) const override { return std::nullopt; }
  void RemoveSelectedItem(int) override {}
  void RemoveItem(int, int) override {}
  void Focus(int) override {}
  void SelectAllText(int) override {}
  void LimitText(int, std::size_t) override {}
  void TakeNumbers(int) override {}
  void SetDefaultButton(int) override {}
  void Scroll(int, ScrollStep) override {}
  void Show(int) override {}
  void HideAll() override {}
  void Close() override {}

 private:
  std::map<int, std::string> texts_;
};

class CountedBoxes final : public MessageBoxes {
 public:
  Answer Show(const Message&) override {
    ++shown_;
    return Answer::kOk;
  }
  int shown() const { return shown_; }

 private:
  int shown_ = 0;
};

// The lines of `days` days before today.
std::string Series(std::int64_t days) {
  std::string text;
  for (std::int64_t day = 1; day <= days; ++day) {
    text += std::to_string(day) + ".10.2026;1873.25;70.125;61.5;254.75;\r\n";
  }
  return text;
}

// A folder with a person's files in the middle of a day.
class PersonsFolder {
 public:
  explicit PersonsFolder(std::int64_t days) {
    std::filesystem::create_directory(folder_.path() + "Ann");
    folder_.Write("Ann/bilans.ASC", "16.11.2026\r\n1873.25\r\n70.125\r\n61.5\r\n254.75");
    folder_.Write("Ann/z1.ASC", "25.475");
    folder_.Write("Ann/z2.ASC", "8.34");
    folder_.Write("Ann/wykoda.txt", Series(days) + "16.11.2026;1873.25;70.125;61.5;254.75;\r\n");
    session_.base_folder = folder_.path();
    session_.user = UserFolder::In(folder_.path(), "Ann");
    session_.date_text = kToday;
  }
  const SessionState& session() const { return session_; }
  std::string Read(std::string_view name) const { return folder_.Read("Ann/" + std::string(name)); }

 private:
  TemporaryFolder folder_;
  SessionState session_;
};

// How little it takes to give a file these bytes without ever leaving half of them.
bool BareReplace(const std::string& path, const std::string& beside, std::string_view bytes) {
  const int file = open(beside.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
  const bool written =
      write(file, bytes.data(), bytes.size()) == std::ssize(bytes) && fsync(file) == 0;
  return close(file) == 0 && written && std::rename(beside.c_str(), path.c_str()) == 0;
}

// The same for a text at the end of a file.
bool BareAppend(const std::string& path, std::string_view text) {
  const int file = open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT, 0666);
  const bool written =
      write(file, text.data(), text.size()) == std::ssize(text) && fsync(file) == 0;
  return close(file) == 0 && written;
}

const std::array<std::string, 4> kFigures = {"1873.25", "70.125", "61.5", "254.75"};

// Presses of "Add" on the nutrition screen. Each call is one, and says whether all was written; so
// do the costs and floors below.
class Add {
 public:
  explicit Add(std::int64_t days) : folder_(days) {
    form_.SetText(128, "250");
    form_.SetText(129, "70.");
    form_.SetText(130, "1.75");
    form_.SetText(131, "1.");
    form_.SetText(132, "13.5");
  }
  bool operator()() {
    panel_.Add("frozen strawberries");
    return boxes_.shown() == 0;
  }

 private:
  PersonsFolder folder_;
  FoodTable food_;
  DayBalance day_{folder_.session()};
  Exchanges exchanges_;
  PlainForm form_;
  CountedBoxes boxes_;
  FoodListPanel panel_{food_, day_, exchanges_, form_, boxes_};
};

// Rewrites some files of a person with the bytes they hold.
class Rewrite {
 public:
  Rewrite(std::int64_t days, std::initializer_list<std::string_view> names) : folder_(days) {
    for (const std::string_view name : names) {
      const std::string path = folder_.session().user->File(name);
      files_.push_back({path, TemporaryPath(path), folder_.Read(name)});
    }
  }
  bool operator()() {
    bool written = true;
    for (const Written& file : files_) {
      written = BareReplace(file.path, file.beside, file.bytes) && written;
    }
    return written;
  }
  std::string File(std::string_view name) const { return folder_.session().user->File(name); }

 private:
  struct Written {
    std::string path;
    std::string beside;
    std::string bytes;
  };
  PersonsFolder folder_;
  std::vector<Written> files_;
};

// The bytes of a food added, and their flushes: the files of the day, a line of the history.
class WriteFood {
 public:
  bool operator()() {
    constexpr std::string_view kLine =
        "2026-11-16;13:05:09;food;frozen strawberries;250;g;70;1.75;1;13.5\r\n";
    return files_() && BareAppend(files_.File(kHistoryFile), kLine);
  }

 private:
  Rewrite files_{
      kFullSeries,
      {kBalanceFile, kNutrientSeriesFile, kCarbohydrateExchangeFile, kProteinFatExchangeFile}};
};

bool Update(const SessionState& session, std::string_view date) {
  Transaction deed(session.base_folder);
  return UpdateChartFile(deed, session.user->File(kNutrientSeriesFile), date, kFigures) &&
         deed.Commit();
}

// How little it takes to add bytes to the end of a file, when they are written down first so that
// half of them is never all there is.
class NotedAppend {
 public:
  explicit NotedAppend(std::int64_t days)
      : folder_(days), path_(folder_.session().user->File(kNutrientSeriesFile)) {}
  bool operator()() {
    constexpr std::string_view kLine = "16.11.2026;1873.25;70.125;61.5;254.75;\r\n";
    constexpr std::size_t kNote = 150;  // bytes
    const std::string note = path_ + ".note";
    const bool noted = BareReplace(note, note + ".new", std::string(kNote, 'n'));
    return noted && BareAppend(path_, kLine) && unlink(note.c_str()) == 0;
  }

 private:
  PersonsFolder folder_;
  std::string path_;
};

class ReplaceChartLine {
 public:
  explicit ReplaceChartLine(std::int64_t days) : folder_(days) {}
  bool operator()() { return Update(folder_.session(), kToday); }

 private:
  PersonsFolder folder_;
};

// Of days that are new to the series; after 21 lines it starts again, by itself.
class AddChartLine {
 public:
  bool operator()() {
    const std::string date = std::to_string(10 + day_++ % 20) + ".12.2026";
    return Update(folder_.session(), date);
  }

 private:
  PersonsFolder folder_{0};
  int day_ = 0;
};

template <class Cost>
double Microseconds(Cost& cost) {
  const auto before = std::chrono::steady_clock::now();
  if (!cost()) throw std::runtime_error("files could not be written");
  const std::chrono::duration<double, std::micro> taken = std::chrono::steady_clock::now() - before;
  return taken.count();
}

struct Medians {
  double first;
  double second;
};

// Once this, once that: how long the disk lets one wait changes from moment to moment.
Medians InTurns(auto first, auto second) {
  constexpr int kTurns = 200;
  std::vector<double> of_first;
  std::vector<double> of_second;
  for (int i = 0; i < kTurns; ++i) {
    of_first.push_back(Microseconds(first));
    of_second.push_back(Microseconds(second));
  }
  return {Median(of_first), Median(of_second)};
}

Comparison Beside(const char* what, const Medians& medians, double bound = 1.25) {
  return {what, medians.first, medians.second, bound};
}

// A record at the end of a report that holds so many bytes already.
void ReportAppend(benchmark::State& state) {
  const TemporaryFolder folder;
  const std::string line = "16.11.2026  70.5  24.4  after the holidays\n";
  const std::string path =
      folder.Write("waga.ASC", std::string(static_cast<std::size_t>(state.range(0)), 'x'));
  bool written = true;
  for (auto _ : state) {
    Transaction deed(folder.path());
    deed.Append(path, line);
    written = deed.Commit() && written;
  }
  if (!written) state.SkipWithError("the report could not be written");
}

void ReportRead(benchmark::State& state) {
  const TemporaryFolder folder;
  const auto size = static_cast<std::size_t>(state.range(0));
  const std::string path = folder.Write("waga.ASC", std::string(size, 'x'));
  for (auto _ : state) benchmark::DoNotOptimize(ReadFile(path, size));
}

void ProductAppend(benchmark::State& state) {
  const TemporaryFolder folder;
  const std::string path =
      folder.Write("data.txt", ProductsFile(static_cast<std::size_t>(state.range(0))));
  bool written = true;
  for (auto _ : state) {
    Transaction deed(folder.path());
    written = AddUserProduct(deed, path, BuiltInProducts().front()) && deed.Commit() && written;
  }
  if (!written) state.SkipWithError("the product could not be written");
}

void ProductRemove(benchmark::State& state) {
  const TemporaryFolder folder;
  const std::string bytes = ProductsFile(static_cast<std::size_t>(state.range(0)));
  const std::string name = std::string(BuiltInProducts()[7].name) + " 1";  // the second line's
  bool written = true;
  for (auto _ : state) {
    state.PauseTiming();
    const std::string path = folder.Write("data.txt", bytes);
    state.ResumeTiming();
    Transaction deed(folder.path());
    written = RemoveUserProduct(deed, path, name) && deed.Commit() && written;
  }
  if (!written) state.SkipWithError("the products could not be written");
}

// Waiting for the disk is what most of these do: time is that of the clock.
BENCHMARK(ReportAppend)->Arg(1'000)->Arg(100'000)->Arg(10'000'000)->UseRealTime();
BENCHMARK(ReportRead)->Arg(1'000)->Arg(100'000)->Arg(10'000'000)->UseRealTime();
BENCHMARK(ProductAppend)->Arg(0)->Arg(300)->Arg(3000)->UseRealTime();
BENCHMARK(ProductRemove)->Arg(300)->Arg(3000)->UseRealTime();

}  // namespace

std::vector<Comparison> CompareFileWork() {
  constexpr double kBoundWithNote = 1.35;
  return {
      Beside("food added, 20 days charted", InTurns(Add(kFullSeries), WriteFood()), kBoundWithNote),
      Beside("chart line replaced, 20 days",
             InTurns(ReplaceChartLine(kFullSeries), Rewrite(kFullSeries, {kNutrientSeriesFile}))),
      Beside("chart line added, up to 20 days",
             InTurns(AddChartLine(), NotedAppend(kFullSeries / 2)), kBoundWithNote),
  };
}

std::vector<Growth> GrowFileWork() {
  const Medians added = InTurns(Add(1), Add(kFullSeries));
  const Medians replaced = InTurns(ReplaceChartLine(1), ReplaceChartLine(kFullSeries));
  return {{"food added", {added.first, added.second}},
          {"chart line replaced", {replaced.first, replaced.second}}};
}

}  // namespace velnor::bench
