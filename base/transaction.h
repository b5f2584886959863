// One deed of a person: what is read, computed and written as one. Whatever happens, all of its
// files are old or all are new after the next start. Used by everything that writes.
//
//   Transaction deed(folder);
//   ... read, compute ...
//   deed.Replace(path, bytes);
//   deed.Append(other_path, line);
//   return deed.Commit();
//
// A commit of several changes is written down first (base/note): from then on the deed is done, and
// what is left of it is made up for by the next transaction on the folder, here or in another
// program, before it reads anything. Whoever reads without one asks FinishWhatWasBegun first.
//
// What the system refuses is mostly refused before: every new file has been written beside its
// place, and every place is asked whether it can be changed, while there is no note. When a change
// is refused after that and only texts have been appended and folders made, those are taken back,
// and the note with them. Otherwise the note stays and the deed counts as done: to go back would
// need the same disk to take the old bytes again, and a crash on the way would leave neither.

#ifndef VELNOR_BASE_TRANSACTION_H_
#define VELNOR_BASE_TRANSACTION_H_

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/change.h"
#include "base/folder_lock.h"

namespace velnor {

// Holds the lock of the folder from its construction to its commit or its end. Shows nobody a box
// and waits for nothing meanwhile; a function that is part of a deed gets the transaction of it and
// makes none of its own, which would wait for the first one in vain.
//
// Every path is the folder's path with something behind it. A file is changed in one way within one
// transaction: replaced (the last bytes count), appended to (texts add up), or removed.
class Transaction {
 public:
  // Finishes what was begun in the folder, whose path ends with a separator.
  explicit Transaction(const std::string& folder);
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  ~Transaction();

  // Returns false if the lock was not to be had, or a deed before this one cannot be finished:
  // nothing that is read now can be relied on, and the commit will fail.
  bool has_begun() const { return has_begun_; }

  // Gives the file these bytes and no others. They are written beside it at once.
  void Replace(const std::string& path, std::string_view bytes);
  // Adds the text to the end of the file, every line end of it as CR LF. A missing file is made,
  // for an empty text too.
  void Append(const std::string& path, std::string_view text);
  // Afterwards there is no such file.
  void Remove(const std::string& path);
  // Afterwards there is such a folder. Comes before the files in it.
  void MakeFolder(const std::string& path);
  // Afterwards there is no such folder, unless something is left in it.
  void RemoveFolder(const std::string& path);

  // Makes the changes and frees the lock. Returns false if nothing has changed. Called at most
  // once.
  [[nodiscard]] bool Commit();
  // Makes the changes and passes a failure over: the screens show the files as they are.
  void CommitUnreported();

 private:
  Change* Put(ChangeKind kind, const std::string& path);
  bool WriteBeside(Change& change, std::string_view bytes);
  bool WillHaveFolder(const Change& change) const;
  bool Prepare();
  bool PrepareAppend(Change& change);
  bool IsAlone() const;
  bool MakeAll();
  bool MakeWrittenDown() const;
  bool TakeBackUpTo(const Change& refused) const;
  void DropNewFiles() const;

  const std::string folder_;
  std::optional<FolderLock> lock_;
  bool has_begun_;
  bool has_failed_ = false;
  std::vector<Change> changes_;
};

// Finishes what a deed that was cut off has left to do. Costs one look when there is none.
void FinishWhatWasBegun(const std::string& folder);

// Does the same when a program starts. Also clears away what cut-off writes have left in the folder
// and in the folders in it.
void OpenDataFolder(const std::string& folder);

}  // namespace velnor

#endif  // VELNOR_BASE_TRANSACTION_H_
