// The note of a deed: the changes of files that belong together, written down before the first of
// them is made. Written and carried out by base/transaction; a program that finds one in the
// start-up folder carries it out first of all.

#ifndef VELNOR_BASE_NOTE_H_
#define VELNOR_BASE_NOTE_H_

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/change.h"

namespace velnor {

inline constexpr std::string_view kNoteFile = "velnor.zapis";

// No note is longer, in bytes.
inline constexpr std::size_t kNoteLimit = 16'000'000;

// 64 bits that tell damaged bytes from whole ones: FNV-1a.
std::uint64_t Checksum(std::string_view bytes);

// The note as it stands in its file: a line with the version, the checksum and the length of the
// rest, and then for each change a line with its kind and figures, its two paths, and its text.
std::string NoteBytes(std::span<const Change> changes);

enum class NoteState { kWhole, kNotWhole, kOtherVersion };

struct Note {
  NoteState state = NoteState::kNotWhole;
  std::vector<Change> changes = {};  // of a whole one
};

// Whether a path of a note lies below the start-up folder whatever the system makes of it: it takes
// points and blanks off the end of a name, so that ".. " is the folder above, and has names that
// mean devices.
bool StaysInside(std::string_view path);

// Reads the bytes of a note. One with a path that does not stay in the start-up folder is not
// whole, whatever its checksum says.
Note ReadNote(std::string_view bytes);

}  // namespace velnor

#endif  // VELNOR_BASE_NOTE_H_
