// Adds to the history of the person who is logged in, in the deed that it tells of.

#ifndef VELNOR_USERS_HISTORY_H_
#define VELNOR_USERS_HISTORY_H_

#include "base/session.h"
#include "base/transaction.h"
#include "users/history_file.h"

namespace velnor {

// Puts the line of `entry` at the end of the user's history. A missing history is begun, as
// BeginHistory does. The entry is dated with the day of the session and the time of now. A deed
// whose line cannot be written is not done. Returns false if the deed must not be done because it
// is not known what stands before the line.
[[nodiscard]] bool TellHistory(Transaction& deed, const SessionState& session,
                               const UserFolder& user, HistoryEntry entry);

// Tells that nothing has been eaten on the day of the session: what the history holds of it
// already, as after a clock was set back, is taken back as kDayCleared. Mostly that is nothing, and
// nothing is told. Returns false if the history cannot be read.
[[nodiscard]] bool TellNewDay(Transaction& deed, const SessionState& session,
                              const UserFolder& user);

// Makes the history of a user who has none from the two chart series: the totals of each day as
// kImported, the weights of each day as kWeight, without a time. Lines without a sound date are
// left out. Does nothing when there is a history, or when the folder is missing. What could not be
// read or written is tried again at the next login.
void BeginHistory(const SessionState& session, const UserFolder& user);

}  // namespace velnor

#endif  // VELNOR_USERS_HISTORY_H_
