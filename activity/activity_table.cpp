#include "activity/activity_table.h"

#include <iterator>

#include "base/loose_match.h"

namespace velnor {
namespace {

// clang-format off
constexpr ActivityRecord kActivities[] = {
    {"sitting", "0.3"},
    {"kneeling", "0.5"},
    {"crouch", "0.5"},
    {"bending", "0.8"},
    {"march 3km/h", "2.6"},
    {"march 5km/h", "5.0"},
    {"table tennis", "5.0"},
    {"volleyball", "5.0"},
    {"gymnastics", "5.0"},
    {"tennis", "7.0"},
    {"badminton", "7.0"},
    {"dancing", "7.0"},
    {"baseball", "9.0"},
    {"socker", "10.8"},
    {"swimming", "10.0"},
    {"easy swimming", "6.0"},
    {"riding a bike 20km/h", "10.0"},
    {"riding a bike /average/", "8.3"},
    {"running 10km/h", "11.0"},
    {"jogging", "13.0"},
    {"crosstrainer", "9.7"},
    {"aerobics", "6.0"},
    {"joga", "4.1"},
    {"sleeping", "1.0"},
    {"watching tv", "0.4"},
    {"driving a car", "1.7"},
    {"typing", "1.7"},
    {"queue /standing/", "1.7"},
    {"walking", "3.3"},
    {"tensing", "3.3"},
    {"throwing a stick /to a dog/", "3.3"},
    {"walking and talking", "4.0"},
    {"hiking", "5.0"},
    {"sex /average/", "5.0"},
    {"kissing", "6.7"},
    {"/walking/ upstairs", "6.7"},
    {"stepper", "6.7"},
    {"running with a dog", "10.0"},
    {"water aerobics", "9.2"},
    {"running fast ~1km/3,40 min", "20.0"},
    {"running ~1km/5 min", "16.7"},
    {"callanetics", "5.0"},
    {"gym /average/", "6.7"},
    {"reading", "0.4"},
    {"loud reading", "2.5"},
    {"golf", "4.2"},
    {"cooking", "1.75"},
    {"playing piano", "2.0"},
    {"skittles", "5.0"},
    {"hatha-yoga", "4.8"},
    {"riding a horse", "10.8"},
    {"skateing", "6.2"},
    {"running-skiing", "9.6"},
    {"water-skiing", "7.4"},
    {"skiing", "8.5"},
    {"roller-skating", "6.7"},
    {"plundering", "8.3"},
    {"light gymnastics", "3.5"},
    {"light office work", "2.3"},
    {"resting", "1.3"},
    {"fishing", "4.3"},
    {"painting room", "6.7"},
    {"fast march", "8.3"},
    {"windows cleaning", "4.0"},
    {"floor cleaning", "4.2"},
    {"deep kissing", "2.5"},
    {"dedusting", "2.5"},
    {"sawing", "6.7"},
    {"pencraft", "1.5"},
    {"typing /machine/", "1.3"},
    {"hard work /physical/", "11.7"},
    {"garden working", "4.2"},
    {"hand-washing", "2.5"},
    {"ironing", "2.4"},
    {"crochet", "0.9"},
    {"schopping", "5.0"},
    {"carpenter works", "4.0"},
    {"metallurgist works", "4.0"},
    {"industrial painting", "4.0"},
    {"/walking/ downstairs", "6.1"},
    {"dust abrasion", "4.0"},
    {"beach-volleyball", "9.8"},
    {"skipping rope", "9.6"},
    {"making beds", "3.3"},
    {"singing", "2.0"},
    {"cleaning bathroom", "4.0"},
    {"cleaning room", "3.0"},
    {"squash", "8.3"},
    {"standing at attention", "1.9"},
    {"standing", "1.6"},
    {"stretching", "4.8"},
    {"floor polishing", "7.1"},
    {"sewing machine", "2.2"},
    {"hand sewing", "1.8"},
    {"dancing /disco/", "8.3"},
    {"carpet cleaning", "4.3"},
    {"dressing", "2.0"},
    {"papers arrangement", "3.3"},
    {"running upstairs", "18.3"},
    {"rowing", "8.3"},
    {"floor sweeping", "1.7"},
};
// clang-format on
static_assert(std::size(kActivities) == 101);

// Enough to tell the activities of the table apart; the place behind the middle is what tells
// "march 3km/h" from "march 5km/h".
bool IsNamed(const ActivityRecord& activity, std::string_view name) {
  const int n = Length(name);
  return Length(activity.name) == n &&
         AgreeAt(activity.name, name, {0, 1, 2, 4, n / 3, n / 2, n / 2 + 1, n - 1});
}

}  // namespace

std::span<const ActivityRecord> Activities() { return kActivities; }

std::string_view BurnFactor(std::string_view name) {
  std::string_view factor;
  for (const ActivityRecord& activity : kActivities) {
    if (IsNamed(activity, name)) factor = activity.factor;
  }
  return factor;
}

}  // namespace velnor
