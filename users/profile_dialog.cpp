#include "users/profile_dialog.h"

#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/file_calls.h"
#include "base/transaction.h"
#include "res/ids.h"
#include "users/user_files.h"

namespace velnor {
namespace {

constexpr int kAge = ID_PROFILE_AGE;
constexpr int kHeight = ID_PROFILE_HEIGHT;
constexpr int kSex = ID_PROFILE_SEX;
constexpr int kLifeStyle = ID_PROFILE_LIFE_STYLE;
constexpr int kOther = ID_PROFILE_OTHER;

// What a line of the profile file can hold beside its end.
constexpr std::size_t kTypedLimit = 98;

constexpr std::string_view kSexes[] = {"women", "men"};
constexpr std::string_view kLifeStyles[] = {"low", "medium", "high", "very high"};
constexpr std::string_view kOthers[] = {"pregnant", "suckling mother", "athlete", "none"};

constexpr std::string_view kContradiction =
    "ATTENTION!!\nIt seems something is wrong\nCheck Your profile!";

constexpr std::string_view kNotRead =
    "Your profile could not be read.\nClose this window and open it again.";

// Selects the word that begins with the first letter of `text`; without one nothing is selected.
void SelectByLetter(Form& form, int id, std::span<const std::string_view> words,
                    std::string_view text) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (!text.empty() && words[i].front() == text.front()) {
      form.SelectItem(id, static_cast<int>(i));
    }
  }
}

}  // namespace

ProfileDialog::ProfileDialog(SessionState& session, UserProfile& profile, MainWindow& window,
                             MessageBoxes& message_boxes)
    : session_(session), profile_(profile), window_(window), message_boxes_(message_boxes) {}

void ProfileDialog::OnOpen(Form& form) {
  for (const int id : {kAge, kHeight}) {
    form.LimitText(id, kTypedLimit);
    form.TakeNumbers(id);
  }
  form.FillItems(kSex, kSexes);
  form.FillItems(kLifeStyle, kLifeStyles);
  form.FillItems(kOther, kOthers);
  std::optional<ProfileLines> lines;
  if (session_.user) lines = ReadProfileLinesToRewrite(session_.user->File(kProfileFile));
  was_read_ = lines.has_value();
  const auto [age, height, sex, life_style, other] = lines.value_or(ProfileLines());
  form.SetText(kAge, age);
  form.SetText(kHeight, height);
  // Women are told by the length of the word; everything else counts as men.
  form.SelectItem(kSex, sex.size() == kSexes[0].size() ? 0 : 1);
  SelectByLetter(form, kLifeStyle, kLifeStyles, life_style);
  SelectByLetter(form, kOther, kOthers, other);
}

void ProfileDialog::OnCommand(Form& form, int id, int notification) {
  if (id == kOkButton && notification == kButtonClicked) Save(form);
  if (id == kCancelButton) Close(form);
}

void ProfileDialog::Close(Form& form) {
  is_closed_ = true;
  form.Close();
}

// Empty fields would take the place of what is still in the file. Where the user's folder is gone,
// or holds no profile, there is nothing to lose.
bool ProfileDialog::WouldLoseWhatWasNotRead() const {
  if (was_read_) return false;
  const std::string path = session_.user->File(kProfileFile);
  const std::optional<ProfileLines> lines = ReadProfileLinesToRewrite(path);
  if (!lines) return HasFolder(path);
  return std::ranges::any_of(*lines, [](const std::string& line) { return !line.empty(); });
}

// A profile that cannot be written is not reported; it counts as long as the session lasts.
void ProfileDialog::Save(Form& form) {
  if (!session_.user || WouldLoseWhatWasNotRead()) {
    message_boxes_.Show({.text = kNotRead, .owner = MessageOwner::kDialog});
    return;
  }
  ProfileLines lines = {form.ReadText(kAge, kTypedLimit), form.ReadText(kHeight, kTypedLimit),
                        form.SelectedText(kSex).value_or(""),
                        form.SelectedText(kLifeStyle).value_or(""),
                        form.SelectedText(kOther).value_or("")};
  auto& [age, height, sex, life_style, other] = lines;
  if (sex.starts_with('m') && (other.starts_with('p') || other.starts_with('s'))) {
    message_boxes_.Show({.text = kContradiction, .owner = MessageOwner::kDialog});
    // The menu could be used behind the box: with the session of its user the dialog has ended.
    if (is_closed_) return;
    other = "0";
  }
  Transaction deed(session_.base_folder);
  deed.MakeFolder(session_.user->path());
  WriteProfileLines(deed, session_.user->File(kProfileFile), lines);
  deed.CommitUnreported();
  for (std::string& line : lines) {
    if (line.empty()) line = "0";
    line.resize(std::min(line.size(), UserProfile::kLimit));
  }
  profile_ = {age, height, sex, life_style, other};
  session_.screen = kHomeScreen;
  window_.PaintNow();
  Close(form);
}

}  // namespace velnor
