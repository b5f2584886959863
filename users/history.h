// Adds to the history of the person who is logged in, in the deed that it tells of.

#ifndef VELNOR_USERS_HISTORY_H_
#define VELNOR_USERS_HISTORY_H_

#include "base/session.h"
#include "base/transaction.h"
#include "users/history_file.h"

namespace velnor {

// Puts the line of `entry` at the end of the user's history, which is made, with its header, when
// it is missing. The entry is dated with the day of the session and the time of now. A deed whose
// line cannot be written is not done.
void TellHistory(Transaction& deed, const SessionState& session, const UserFolder& user,
                 HistoryEntry entry);

// Makes the history of a user who has none from the two chart series: the totals of each day as
// kImported, the weights of each day as kWeight, without a time. Lines without a sound date are
// left out. Does nothing when there is a history, or when the folder is missing. What could not be
// read or written is tried again at the next login.
void BeginHistory(const SessionState& session, const UserFolder& user);

}  // namespace velnor

#endif  // VELNOR_USERS_HISTORY_H_
