#include "fuzz/report.h"

#include <algorithm>
#include <string>

#include "base/number_text.h"
#include "base/text_file.h"
#include "reports/report_file.h"

namespace velnor {
namespace {

constexpr int kText = 119;
constexpr int kClear = 151;
constexpr int kSave = 152;
constexpr int kFirstScroll = 153;
constexpr int kLastScroll = 158;
constexpr int kMostThousands = 40;

std::string Repeated(std::string_view input) {
  std::string_view rest = input;
  const std::string_view count = TakeUpTo('|', rest);
  const int thousands = ParseInteger(count);
  if (rest.empty() || thousands <= 0 || thousands > kMostThousands) return std::string(input);
  std::string text;
  while (text.size() < static_cast<std::size_t>(thousands) * 1000) text += rest;
  return text;
}

class Viewer {
 public:
  Viewer(ProgramRun& run, const ReportTarget& target)
      : run_(run), target_(target), name_(std::string(kFuzzUser) + '/' + target.file) {}

  const std::string& name() const { return name_; }

  // Opens the viewer, which shows what the file begins with and changes nothing.
  void View() {
    const std::string bytes = run_.Read(name_);
    run_.Open(target_.view_command);
    Require(run_.form().Text(kText) == WithCrLf(Seen(bytes)), "the report is shown");
    for (int button = kFirstScroll; button <= kLastScroll; ++button) run_.Press(button);
    run_.program().OnMouseWheel(-120);
    Require(run_.Read(name_) == bytes, "looking at a report does not change it");
  }

  // Writes a line more and saves: the file holds the text of the edit, what was not shown is kept.
  void Change() {
    const std::string bytes = run_.Read(name_);
    const std::string rest = run_.Read(RestPath(name_));
    const std::string text = run_.form().Text(kText) + "one line more\r\n";
    run_.form().SetText(kText, text);
    run_.boxes().answer = Answer::kNo;
    run_.Press(kSave);
    Require(run_.Read(name_) == bytes, "nothing is saved without a yes");
    View();
    run_.form().SetText(kText, text);
    run_.boxes().answer = Answer::kYes;
    run_.Press(kSave);
    Require(run_.Read(name_) == text, "the text is saved as it stands");
    const std::string unseen = bytes.substr(Seen(bytes).size());
    const std::string kept = run_.Read(RestPath(name_));
    Require(kept.starts_with(rest) && kept.ends_with(unseen), "what was not shown is kept");
  }

  void Erase() {
    run_.Open(target_.view_command);
    run_.boxes().answer = Answer::kNo;
    run_.Press(kClear);
    run_.boxes().answer = Answer::kYes;
    run_.Press(kClear);
    Require(run_.Read(name_).empty(), "a cleared report is empty");
    Require(run_.form().Text(kText).empty(), "a cleared report shows nothing");
  }

  // Saves a record from the screen it belongs to: it is added behind what is there.
  void AddRecord() {
    const std::string bytes = run_.Read(name_);
    run_.Open(target_.screen_command);
    run_.Press(target_.save_button);
    run_.PressInDialog(kOkButton);
    const std::string with_record = run_.Read(name_);
    Require(with_record.size() > bytes.size() && with_record.starts_with(bytes),
            "a record is added behind the others");
    Require(with_record.ends_with("\r\n"), "a record ends its line");
  }

 private:
  static std::string Seen(const std::string& bytes) {
    const std::string shown = bytes.substr(0, kReportLimit);
    return shown.substr(0, shown.find('\0'));
  }

  ProgramRun& run_;
  const ReportTarget& target_;
  std::string name_;
};

}  // namespace

void FuzzReport(const ReportTarget& target, std::string_view input) {
  ProgramRun run;
  Viewer viewer(run, target);
  run.MakeUser();
  run.Write("Ann/bilans.ASC", kTestDate);
  run.Write(viewer.name(), Repeated(input));
  const auto before = run.AllFiles();
  run.Start();
  run.LogIn();
  viewer.View();
  run.RequireUnchanged(before, {});
  viewer.AddRecord();
  viewer.View();
  viewer.Change();
  viewer.View();
  viewer.AddRecord();
  viewer.Erase();
  viewer.AddRecord();
  viewer.View();
  run.RequireUnchanged(before,
                       {viewer.name(), RestPath(viewer.name()), "Ann/wykwag.txt", "Ann/erg.txt"});
}

}  // namespace velnor
