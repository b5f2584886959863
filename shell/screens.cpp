#include "shell/screens.h"

#include "activity/exchanges_screen.h"
#include "base/form.h"
#include "charts/chart.h"
#include "food/balance_screen.h"
#include "shell/program.h"

namespace velnor {
namespace {

constexpr const char* kBackgroundNames[] = {"BCG",    "TLO", "ZAAP", "BMI2",
                                            "BILANS", "WHR", "SPAL", "POS"};

constexpr int kBmiControls[] = {101, 102, 103};
constexpr int kWhrControls[] = {104, 105, 106, 107};
constexpr int kOverviewControls[] = {
    108, 109, 110, 111, 112, 113, 114, 115, 116, 117, 118, SecondControl(149), 185, 186};
constexpr int kReportControls[] = {119, 151, 152, 153, 154, 155, 156, 157, 158};
constexpr int kRequirementControls[] = {120, 121, 122, 123, 166, 167, 168,
                                        169, 170, 171, 172, 173, 174, 175};
constexpr int kCounterControls[] = {124, 125, 126, 127, 128, 129, 130, 131, 132,
                                    133, 134, 135, 136, 137, 138, 139, 140, 141,
                                    142, 143, 144, 145, 146, 147, 149, 183, 184};
constexpr int kActivityControls[] = {159, 160, 161, 162, 163, 164, 177, 179, 180};
constexpr int kBalanceControls[] = {165};
constexpr int kBmrControls[] = {101, 176};
constexpr int kEnergyControls[] = {181, 182};

void UpdateRequirement(Program& program) { program.requirement().Update(); }

template <ChartId chart>
void PaintChart(Program& program, Canvas& canvas) {
  program.charts().Paint(canvas, FindChart(chart), program.requirement().DayBounds());
}
void ReloadReport(Program& program) { program.reports().Reload(); }
void PaintReport(Program& program, Canvas& canvas) { program.reports().Paint(canvas); }

// clang-format off
constexpr ScreenRow kScreens[] = {
    {0, 0, "TLO", {}, nullptr},                          // home
    {1, 221, "BMI2", kBmiControls,                       // BMI
     [](Program& program, Canvas& canvas) { program.bmi().Paint(canvas); }},
    {2, 224, "WHR", kWhrControls,                        // WHR
     [](Program& program, Canvas& canvas) { program.whr().Paint(canvas); }},
    {3, 236, "POS", kOverviewControls,                   // products overview
     [](Program& program, Canvas& canvas) { program.overview().Paint(canvas); }},
    {4, 210, "BCG", kReportControls, PaintReport, ReloadReport},       // weight report
    {5, 214, "BCG", kReportControls, PaintReport, ReloadReport},       // WHR report
    {6, 232, "ZAAP", kRequirementControls,               // daily requirement
     [](Program& program, Canvas& canvas) { program.requirement().Paint(canvas); },
     UpdateRequirement},
    {7, 231, "POS", kCounterControls,                    // nutrition counter
     [](Program& program, Canvas& canvas) { program.counter().Paint(canvas); },
     UpdateRequirement},
    {8, 212, "BCG", kReportControls, PaintReport, ReloadReport},       // eaten calories report
    {9, 213, "BCG", kReportControls, PaintReport, ReloadReport},       // recipes report
    {10, 238, "SPAL", kActivityControls,                 // burn fat and calories
     [](Program& program, Canvas& canvas) { program.burned().Paint(canvas); }},
    {11, 215, "BCG", kReportControls, PaintReport, ReloadReport},      // burned calories report
    {12, 233, "BILANS", kBalanceControls,                // daily balance
     [](Program& program, Canvas& canvas) {
       PaintBalance(canvas, program.day(), program.requirement().requirement());
     },
     UpdateRequirement},
    {13, 270, "BCG", {}, PaintChart<ChartId::kWeight>},
    {14, 271, "BCG", {}, PaintChart<ChartId::kCalories>, UpdateRequirement},
    {15, 272, "BCG", {}, PaintChart<ChartId::kProteins>, UpdateRequirement},
    {16, 273, "BCG", {}, PaintChart<ChartId::kFat>, UpdateRequirement},
    {17, 274, "BCG", {}, PaintChart<ChartId::kCarbohydrates>, UpdateRequirement},
    {18, 225, "SPAL", kBmrControls,                      // BMR
     [](Program& program, Canvas& canvas) { program.bmr().Paint(canvas); }},
    {19, 239, "SPAL", kEnergyControls,                   // energy balance
     [](Program& program, Canvas& canvas) { program.energy().Paint(canvas); }},
    {20, 252, "POS", {},                                 // weight exchanges
     [](Program&, Canvas& canvas) { PaintWeightExchanges(canvas); }},
};
// clang-format on

}  // namespace

std::span<const char* const> BackgroundNames() { return kBackgroundNames; }

std::span<const ScreenRow> Screens() { return kScreens; }

}  // namespace velnor
