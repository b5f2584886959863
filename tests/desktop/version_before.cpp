#include "tests/desktop/version_before.h"

#include <windows.h>

#include <gtest/gtest.h>

#include "users/history_file.h"

namespace velnor::desktop {

Files LayVersionBefore(const Folder& folder, const std::string& date) {
  std::string nutrients;
  std::string weights;
  for (int day = 1; day <= 20; ++day) {
    const std::string start = std::to_string(day) + ".3.2019;";
    nutrients +=
        start + std::to_string(2000 + day) + ".5;70.25;60.;" + std::to_string(250 + day) + ".;\r\n";
    weights += start + std::to_string(70 + day) + ",5;24.4;\r\n";
  }
  Files files = {
      {"users.ASC", "Ann\r\nBob"},
      {"data.txt", "fruits;fresh;apple pie;120;237;1.9;11;34.0;\r\n"},
      {"Ann\\info.ASC", "35\r\n170\r\nwomen\r\nlow\r\nnone"},
      {"Ann\\bilans.ASC", date + "\r\n1500.25\r\n50.125\r\n40.\r\n200."},
      {"Ann\\z1.ASC", "20."},
      {"Ann\\z2.ASC", "5.605"},
      {"Ann\\erg.txt", date + ";300.;"},
      {"Ann\\zapot.ASC", "tak\r\n2000\r\n2500\r\n60\r\n80\r\n50\r\n70\r\n200\r\n300"},
      {"Ann\\wykoda.txt", nutrients + date + ";1500.25;50.125;40.;200.;\r\n"},
      {"Ann\\wykwag.txt", weights + "an old line of nobody"},
      {"Ann\\mirvo.ASC", "a report\r\n"},
      {"Ann\\mine.doc", std::string("something of Ann's own\0\x81", 24)},
      {"Bob\\info.ASC", "40\r\n180\r\nmen\r\nhigh\r\nnone"},
      {"Bob\\wykoda.txt", "1.3.2019;1.;2.;3.;4.;\r\n"},
  };
  for (const char* const name : {"Ann", "Bob"}) {
    CreateDirectoryA((folder.path() + name).c_str(), nullptr);
  }
  for (const auto& [name, bytes] : files) folder.Write(name, bytes);
  return files;
}

void LogInAnn(const App& app) {
  app.main().Command(200);
  const Window login = app.WaitForPopup();
  ASSERT_TRUE(login.Choose(700, "Ann"));
  login.PostCommand(IDOK);
  ASSERT_TRUE(WaitUntilGone(login.handle()));
  app.Settle();
}

std::string HistoryOfVersionBefore(const std::string& date) {
  std::string history = std::string(kHistoryHeader) + "\r\n";
  for (int i = 1; i <= 20; ++i) {
    const std::string day = std::string("2019-03-") + (i < 10 ? "0" : "") + std::to_string(i);
    history += day + ";;imported;;;;" + std::to_string(2000 + i) + ".5;70.25;60;" +
               std::to_string(250 + i) + "\r\n";
    history += day + ";;weight;;" + std::to_string(70 + i) + ";kg;;;;\r\n";
  }
  return history + IsoDate(date) + ";;imported;;;;1500.25;50.125;40;200\r\n";
}

}  // namespace velnor::desktop
