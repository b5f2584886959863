// The note of a deed that was cut off: read and carried out by the next start. As it stands it is
// hardly ever whole, so that the same bytes are read once more behind a head that fits.

#include <cstdio>
#include <string>
#include <string_view>

#include "base/note.h"
#include "fuzz/program_run.h"

namespace velnor {
namespace {

std::string WithFittingHead(std::string_view body) {
  const std::string empty = NoteBytes({});
  const std::string version = empty.substr(0, empty.find(' ', kNoteFile.size() + 1) + 1);
  char sum[17] = {};
  std::snprintf(sum, sizeof sum, "%016llx", static_cast<unsigned long long>(Checksum(body)));
  return version + sum + ' ' + std::to_string(body.size()) + '\n' + std::string(body);
}

// What is read is what would be written.
void RequireSound(std::string_view bytes) {
  const Note note = ReadNote(bytes);
  if (note.state != NoteState::kWhole) {
    Require(note.changes.empty(), "what is not whole changes nothing");
    return;
  }
  for (const Change& change : note.changes) {
    Require(StaysInside(change.path), "a change stays in the start-up folder");
  }
  Require(ReadNote(NoteBytes(note.changes)).changes == note.changes, "a note is read back");
}

void StartOver(std::string_view bytes) {
  ProgramRun run;
  run.Write("users.ASC", "Ann");
  run.Write(std::string(kNoteFile), bytes);
  run.Start();  // requires that nothing beside the start-up folder has changed
}

}  // namespace
}  // namespace velnor

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velnor;  // NOLINT(google-build-using-namespace)
  const std::string bytes(InputText(data, size));
  for (const std::string& note : {bytes, WithFittingHead(bytes)}) {
    RequireSound(note);
    StartOver(note);
  }
  return 0;
}
