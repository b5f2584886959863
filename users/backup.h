// Copies of what people have written: one for each day, one before a press that destroys, and those
// a person asks for. A copy is a folder that holds the list of users, the products and a folder for
// each person, as the start-up folder does, and is read back before it gets its name.

#ifndef VELNOR_USERS_BACKUP_H_
#define VELNOR_USERS_BACKUP_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/clock.h"

namespace velnor {

// In the start-up folder. The blank keeps it from being the name of a user.
inline constexpr std::string_view kCopiesFolder = "kopie zapasowe";

// In a copy that was made before a press: what was about to be done, in one line.
inline constexpr std::string_view kAboutFile = "opis.txt";

// So many copies are kept: of days the newest, and the first of so many months; of copies made
// before a press the newest.
inline constexpr std::size_t kKeptDays = 7;
inline constexpr std::size_t kKeptMonths = 12;
inline constexpr std::size_t kKeptPresses = 20;

// Every folder below is named with a separator at its end, every copy without one.

// The people whose folders lie in `folder`: those of the list of users there who have a folder, and
// everybody else whose folder holds a file of a user. In the order of the list, the others behind
// it.
std::vector<std::string> PeopleIn(const std::string& folder);

// Names as they are shown: "Ann, Bob".
std::string Joined(const std::vector<std::string>& names);

// Whether there is something that can be restored: a list of users, or a person's folder.
bool IsCopy(const std::string& folder);

struct CopySize {
  std::size_t files = 0;
  std::uint64_t bytes = 0;
};

// Copies the list of users, the products and the people of the data folder `from`, of whom `person`
// alone when that is not empty, to the new folder `to`. `about` is kept with the copy when it is
// not empty. Nothing, and no such folder, when a file could not be read, written, or read back.
std::optional<CopySize> MakeCopy(const std::string& from, const std::string& to,
                                 std::string_view person = {}, std::string_view about = {});

// The copy of the day `date` ("2026-11-21") in `folder`, unless it is there; older ones that are no
// longer kept go, but for a day that is not the newest: the clock has been set back then, and may
// be wrong. Returns false if there is none of that day now.
[[nodiscard]] bool MakeDailyCopy(const std::string& folder, std::string_view date);

// The copy before a press, under the moment, or under a second after it that no copy has: of one
// person, or of everything when `person` is empty. Returns false if it could not be made.
[[nodiscard]] bool MakeCopyBefore(const std::string& folder, const Moment& moment,
                                  std::string_view about, std::string_view person);

struct NewCopy {
  std::string path;
  CopySize size;
};

// Copies the data folder `from` into `folder`, to "Velnor 2026-11-21" for that date, with " (2)"
// and so on behind it when that is taken. Nothing, and no such folder, when that could not be done.
std::optional<NewCopy> MakeCopyIn(const std::string& from, const std::string& folder,
                                  std::string_view date);

struct ListedCopy {
  std::string path;
  std::string name;    // "2026-11-21", or "2026-11-21 130509"
  std::string people;  // parted by ", "
  std::string about;   // empty for the copy of a day
  CopySize size;
};

// The copies in the copies folder of `folder`, the newest first.
std::vector<ListedCopy> ListCopies(const std::string& folder);

}  // namespace velnor

#endif  // VELNOR_USERS_BACKUP_H_
