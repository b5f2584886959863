// The pieces that deeds are put together from. Included by the files that list them.

#ifndef VELNOR_BENCH_DEED_PARTS_H_
#define VELNOR_BENCH_DEED_PARTS_H_

#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "bench/deeds.h"

namespace velnor::bench {

inline constexpr int kOk = 1;
inline constexpr int kCancel = 2;
inline constexpr int kChosen = 1;  // notification of lists

inline constexpr int kOpenLogin = 200;
inline constexpr int kOpenCounter = 231;
inline constexpr int kOpenBurned = 238;
inline constexpr int kOpenCaloriesChart = 271;
inline constexpr int kOpenExchanges = 252;  // a screen without controls
inline constexpr int kOpenWeightChart = 270;
inline constexpr int kOpenSearch = 149;

inline constexpr int kCounterScreen = 7;
inline constexpr int kBurnedScreen = 10;
inline constexpr int kCaloriesScreen = 14;
inline constexpr int kExchangesScreen = 20;
inline constexpr int kWeightChartScreen = 13;

// The day's totals on the food list.
inline constexpr int kTotals[] = {137, 138, 139, 140, 141, 142, 143, 144, 183, 184};

inline std::vector<std::string> Texts(const std::vector<std::string_view>& views) {
  return {views.begin(), views.end()};
}

inline Step On(int id, int notification = 0) {
  return {std::string(kOn), id, {std::to_string(notification)}};
}
inline Step Do(std::string_view verb, int number = 0, std::vector<std::string> texts = {}) {
  return {std::string(verb), number, std::move(texts)};
}

inline Work SetTexts(std::span<const int> ids, const std::string& text) {
  Work work;
  for (const int id : ids) work.push_back(Do(kText, id, {text}));
  return work;
}

inline void Append(Work& work, const Work& more) {
  work.insert(work.end(), more.begin(), more.end());
}

inline Action Send(int id, int notification = 0) {
  return [=](Stage& stage) {
    stage.Send(id, notification);
    stage.Settle();
  };
}
inline Action InDialog(int id) {
  return [=](Stage& stage) {
    stage.SendToDialog(id);
    stage.Settle();
  };
}
inline Action Opening(int command) {
  return [=](Stage& stage) {
    stage.Send(command);
    stage.WaitForDialog();
    stage.Settle();
  };
}
inline void Closing(Stage& stage) {
  stage.CloseDialog();
  Stage::Calm();
  stage.Settle();
}
// The dialog closes itself.
inline Action Confirming() {
  return [](Stage& stage) {
    stage.SendToDialog(kOk);
    stage.Settle();
  };
}
inline void AfterConfirming(Stage& stage) {
  stage.ForgetDialog();
  Stage::Calm();
  stage.Settle();
}
inline Action Writing(const std::string& file, const std::string& bytes) {
  return [=](Stage& stage) { stage.folder().Write(file, bytes); };
}
inline Action Both(const Action& first, const Action& second) {
  return [=](Stage& stage) {
    first(stage);
    second(stage);
  };
}

void AddScreens(std::vector<Deed>& deeds);
void AddFood(std::vector<Deed>& deeds, const FoodTable& food);
void AddDialogs(std::vector<Deed>& deeds, const FoodTable& food);

}  // namespace velnor::bench

#endif  // VELNOR_BENCH_DEED_PARTS_H_
