// What the fuzz targets over the day's files have in common.

#ifndef VELNOR_FUZZ_DAY_H_
#define VELNOR_FUZZ_DAY_H_

#include "fuzz/program_run.h"

namespace velnor {

// Opens the nutrition counter, chooses a product and puts 250 g of it on the list.
void EatStrawberries(ProgramRun& run);

// Takes the first food of the list off it again.
void TakeOffFirst(ProgramRun& run);

// The balance, exchanges and series as the program writes them: figures that are numbers, and a
// date of today.
void RequireSoundDay(const ProgramRun& run);

// Whether two figures agree as far as the eight digits with which figures are stored.
bool AgreeAsStored(double one, double other);

}  // namespace velnor

#endif  // VELNOR_FUZZ_DAY_H_
