#include "diary/page.h"

#include "diary/markup.h"
#include "diary/page_style.h"
#include "users/user_files.h"

namespace velnor {
namespace {

constexpr std::string_view kPolicy = "default-src 'none'; style-src 'unsafe-inline'";

std::string Head(const DiaryContent& content) {
  return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
         "<meta http-equiv=\"Content-Security-Policy\" content=\"" +
         std::string(kPolicy) +
         "\">\n<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>" +
         EscapedText(content.user_name, kShownName) + ": diary, " + DayWords(content.today) +
         "</title>\n<style>\n" + PageStyle() + "</style>\n</head>\n";
}

std::string FileLink(std::string_view file, std::string_view what) {
  return "<a href=\"" + std::string(file) + "\" download>" + std::string(what) + "</a>";
}

std::string Banner(const DiaryContent& content) {
  const DayTable& table = content.table;
  std::string line = DayWords(content.today);
  if (!table.days.empty()) {
    line += " \u00B7 " + CountText(table.days.size(), "day", "days") + " with an entry since " +
            DayWords(table.days.front().day);
  }
  return "<header>\n<p class=\"eyebrow\">Diary</p>\n<h1>" +
         EscapedText(content.user_name, kShownName) + "</h1>\n<p class=\"soft\">" + line +
         "</p>\n<p class=\"files\">" + FileLink(kDiaryDaysFile, "Table of the days (CSV)") + ' ' +
         FileLink(kDiaryDeedsFile, "Table of everything entered (CSV)") + "</p>\n</header>\n";
}

constexpr std::string_view kFooter =
    "<footer><p>Made by Velnor calorie counter from the entries of its user. The figures are "
    "averages over many people; a doctor or dietician knows more.</p></footer>\n";

}  // namespace

std::string MakePage(const DiaryContent& content) {
  return Head(content) + "<body>\n" + Banner(content) + "<main>\n" + TodaySection(content) +
         OverviewSection(content) + PlotsSection(content) + HabitsSection(content) +
         DaysSection(content) + "</main>\n" + std::string(kFooter) + "</body>\n</html>\n";
}

}  // namespace velnor
