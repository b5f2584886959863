#include "diary/diary_command.h"

#include <cstddef>
#include <optional>
#include <string>

#include "base/text_file.h"
#include "diary/diary.h"
#include "users/user_files.h"

namespace velnor {
namespace {

constexpr std::size_t kHistoryLimit = std::size_t{64} * 1024 * 1024;  // a dozen of lifetimes

constexpr std::string_view kNotRead = "Your history cannot be read. No diary was made.";
constexpr std::string_view kNotWritten =
    "The diary cannot be written. Is the disk full, or one of its files open in another program?";
constexpr std::string_view kNoBrowser = "No browser could be opened. The diary is in these files:";

}  // namespace

void DiaryCommand::Run(const UserProfile& profile, const RequirementBounds& requirement) const {
  if (!session_.user) return;
  const UserFolder& user = *session_.user;
  const std::optional<std::string> history =
      ReadFileToRewrite(user.File(kHistoryFile), kHistoryLimit);
  if (!history) {
    message_boxes_.Show({.text = kNotRead});
    return;
  }
  const DiaryFiles files = MakeDiary({.history = *history,
                                      .profile = profile,
                                      .requirement = requirement,
                                      .date_text = session_.date_text,
                                      .user_name = user.name()});
  if (!WriteDiary(session_.base_folder, user, files)) {
    message_boxes_.Show({.text = kNotWritten});
    return;
  }
  const std::string page = user.File(kDiaryPageFile);
  if (window_.OpenInBrowser(page)) return;
  message_boxes_.Show({.text = std::string(kNoBrowser) + "\n\n" + page + '\n' +
                               user.File(kDiaryDaysFile) + '\n' + user.File(kDiaryDeedsFile)});
}

}  // namespace velnor
