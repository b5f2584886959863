// What a person does at the window and waits for: how it is done to either program, and what of it
// is visible, which the bare window does instead.

#ifndef VELNOR_BENCH_DEEDS_H_
#define VELNOR_BENCH_DEEDS_H_

#include <functional>
#include <string>
#include <vector>

#include "bench/bare_work.h"
#include "bench/stage.h"
#include "food/food_table.h"

namespace velnor::bench {

// How long a deed may take.
struct Bound {
  double times_floor;
  double more_ms;
};
inline constexpr Bound kListBound = {1.5, 0};
inline constexpr Bound kBound = {1.5, 1};

using Action = std::function<void(Stage&)>;

inline void Nothing(Stage&) {}

struct Deed {
  std::string name;
  std::string detail = {};  // what it depends on, as how many are found; may be empty
  Bound bound = kBound;
  bool depends_on_products = false;  // its floor too
  Work work = {};                    // of the bare window
  Action press = Nothing;            // what is timed, until everything is painted
  Action once = Nothing;             // before the first press
  Action before = Nothing;           // before every press
  Action after = Nothing;            // after every press
  Action at_end = Nothing;           // after the last press
};

// Own products, all fresh fruits.
std::string OwnProducts(int count);

// What a person with twenty days behind them has in their folder, who is called Ann.
void WriteAnn(const desktop::WorkFolder& folder, int own_products);

// Ann is chosen in the login, and logs in.
void OpenLogin(Stage& stage);
void LogIn(Stage& stage);

// Everything that is measured. `food` holds the own products.
std::vector<Deed> AllDeeds(const FoodTable& food);

}  // namespace velnor::bench

#endif  // VELNOR_BENCH_DEEDS_H_
