// Which files velnor.exe opens, as Wine sees it: whatever the names of the users and the contents
// of the files, none outside of the start-up folder.

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "tests/desktop/driver.h"
#include "tests/desktop/outside.h"
#include "tests/desktop/working_day.h"

namespace velnor::desktop {
namespace {

using Texts = std::vector<std::string>;

struct Call {
  std::string line;
  std::string path;  // with small letters only
  bool changes = false;
};

std::string Small(std::string text) {
  std::ranges::transform(text, text.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
  return text;
}

// The `nth` text in quotes of a line, with what Wine has escaped as it was, without the mark of a
// path of the system itself.
std::optional<std::string> Quoted(const std::string& line, int nth = 0) {
  std::size_t at = line.find("L\"");
  for (; nth > 0 && at != std::string::npos; --nth) at = line.find("L\"", at + 2);
  if (at == std::string::npos) return std::nullopt;
  std::string text;
  for (at += 2; at < line.size() && line[at] != '"'; ++at) {
    if (line[at] == '\\') ++at;
    text += line[at];
  }
  constexpr std::string_view kSystemMark = "\\??\\";
  if (text.starts_with(kSystemMark)) text.erase(0, kSystemMark.size());
  return Small(text);
}

// Of a call that opens, makes or removes a file or folder: whether it may do more than read.
bool OpensToChange(const std::string& line) {
  constexpr DWORD kReading = 0x80000000 | 0x20000000 |  // GENERIC_READ, GENERIC_EXECUTE
                             FILE_READ_DATA | FILE_READ_ATTRIBUTES | FILE_READ_EA | FILE_EXECUTE |
                             READ_CONTROL | SYNCHRONIZE;
  const auto number = [&line](std::string_view name, int base) {
    const std::size_t at = line.find(name);
    return at == std::string::npos ? 0
                                   : std::strtoul(line.c_str() + at + name.size(), nullptr, base);
  };
  constexpr DWORD kOpenWhatIsThere = 1;
  return (number(" access=", 16) & ~kReading) != 0 || number(" disp=", 10) != kOpenWhatIsThere;
}

// Reading makes the trace longer: what is added by that is not read.
std::string ReadAsItIsNow(const std::string& path) {
  std::ifstream file(path, std::ios::binary | std::ios::ate);
  std::string bytes(static_cast<std::size_t>(file.tellg()), '\0');
  file.seekg(0);
  file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return bytes;
}

// What a process did with files and folders, out of what Wine wrote of all processes.
std::vector<Call> CallsOf(const std::string& trace, DWORD process) {
  std::array<char, 16> mark = {};
  std::snprintf(mark.data(), mark.size(), "%04lx:", process);
  std::vector<Call> calls;
  std::istringstream text(ReadAsItIsNow(trace));
  for (std::string line; std::getline(text, line);) {
    if (!line.starts_with(mark.data())) continue;
    const auto add = [&](int nth, bool changes) {
      if (const auto path = Quoted(line, nth)) calls.push_back({line, *path, changes});
    };
    if (line.find(":file:NtCreateFile handle") != std::string::npos) add(0, OpensToChange(line));
    if (line.find(":file:MoveFileWithProgressW (") != std::string::npos) {
      add(0, true);
      add(1, true);
    }
    if (line.find(":file:GetFileAttributesW ") != std::string::npos) add(0, false);
    if (line.find(":file:FindFirstFileExW ") != std::string::npos) add(0, false);
  }
  return calls;
}

class Opens : public testing::Test {
 protected:
  void SetUp() override {
    const char* const trace = std::getenv("VELNOR_TRACE");
    if (trace == nullptr) {
      GTEST_SKIP() << "needs Wine's trace of calls on files: run-under-wine --trace";
    }
    trace_ = PathOfUnix(trace);
    CreateDirectoryA((outer_.path() + "start").c_str(), nullptr);
  }
  bool IsInside(const std::string& path) const {
    return path.starts_with(Small(start_.path())) && path.find("..") == std::string::npos;
  }
  // What Wine reads to load a program and its fonts; nobody writes there.
  static bool IsOfTheSystem(const std::string& path) {
    static const std::string program_folder =
        Small(ProgramPath().substr(0, ProgramPath().rfind('\\') + 1));
    const Texts folders = {R"(c:\windows\)", R"(z:\usr\share\wine\)", R"(z:\opt\wine)",
                           program_folder};
    return std::ranges::any_of(
        folders, [&path](const std::string& folder) { return path.starts_with(folder); });
  }
  // Gives the calls inside of the folder.
  std::vector<Call> ExpectNothingOutside(DWORD process) const {
    std::vector<Call> inside;
    for (const Call& call : CallsOf(trace_, process)) {
      if (IsInside(call.path)) {
        inside.push_back(call);
      } else {
        EXPECT_TRUE(IsOfTheSystem(call.path) && !call.changes) << call.line;
      }
    }
    return inside;
  }

  std::string trace_;
  WorkFolder outer_;
  Folder start_{outer_.path() + "start\\"};
};

bool HasChanged(const std::vector<Call>& calls, std::string_view name) {
  return std::ranges::any_of(
      calls, [&](const Call& call) { return call.changes && call.path.ends_with(name); });
}

TEST_F(Opens, ADayOpensNothingElse) {
  DWORD process = 0;
  {
    const App app(ProgramPath(), start_);
    process = GetProcessId(app.process());
    for (const Deed& deed : WorkingDay()) deed.act(app);
  }
  const std::vector<Call> inside = ExpectNothingOutside(process);
  for (const char* const name : {"\\users.asc", "\\ann", "\\ann\\bilans.asc", "\\ann\\waga.asc",
                                 "\\data.txt", "\\velnor.zapis", "\\velnor.blokada"}) {
    EXPECT_TRUE(HasChanged(inside, name)) << name << ": is the trace what it was?";
  }
}

// Names that lead elsewhere, that mean devices, that are as long as a name may be, or longer.
const Texts kNames = {"Ann",
                      "..\\x",
                      "../x",
                      "..",
                      ".. ",
                      "C:\\x",
                      "C:x",
                      "Z:\\tmp",
                      "/tmp",
                      R"(\\host\share)",
                      R"(\??\C:\x)",
                      R"(Ann\..\..\x)",
                      "Ann/",
                      "NUL",
                      "con.txt",
                      "COM1",
                      "LPT1 ",
                      "*?",
                      "a:stream",
                      "%s%n",
                      " first",
                      "last.",
                      "za\xBF\xF3\xB3\xE6",
                      std::string(99, 'n'),
                      std::string(100, 'm')};

class HostileOpens : public Opens {
 protected:
  void SetUp() override {
    Opens::SetUp();
    if (IsSkipped()) return;
    std::string list;
    for (const std::string& name : kNames) {
      list += name + "\r\n";
      if (name.find_first_of("\\/:") == std::string::npos) {
        CreateDirectoryA((start_.path() + name).c_str(), nullptr);
      }
    }
    start_.Write("users.ASC", list);
    const std::string long_line(5000, '\\');
    start_.Write("data.txt", "fruits;fresh;..\\..\\x;100;1;1;1;1;\r\n" + long_line);
    const std::string elsewhere = "..\\x\r\n" + long_line + ";..\\x;";
    for (const char* const file : {"info.ASC", "zapot.ASC", "bilans.ASC", "wykoda.txt", "waga.ASC",
                                   "erg.txt", "waga.ASC.rest.txt"}) {
      start_.Write(std::string("Ann\\") + file, elsewhere);
    }
    // Where such names lead.
    CreateDirectoryA((outer_.path() + "x").c_str(), nullptr);
    for (const char* const file : {"waga.ASC", "info.ASC", "bilans.ASC", "x\\waga.ASC"}) {
      outer_.Write(file, "somebody else's");
    }
  }
  Snapshot LookBesideTheFolder() const {
    Snapshot snapshot = Look(outer_);
    std::erase_if(snapshot, [](const auto& entry) { return entry.first.starts_with("start"); });
    return snapshot;
  }
  // Whoever the program offers, logged in and busy with everything that writes.
  static void WorkAs(const App& app, const std::string& name) {
    app.main().Command(200);
    const Window login = app.WaitForPopup();
    EXPECT_TRUE(login.Choose(700, name)) << name;
    app.CommandAndAnswer(login, IDOK);
    for (const Deed& deed : WorkingDay()) {
      const Texts chosen = {"add a food", "save a weight", "change a report", "clear the day"};
      if (std::ranges::count(chosen, deed.name) > 0) deed.act(app);
    }
  }
  static void AddAndRemove(const App& app) {
    app.main().Command(202);
    const Window users = app.WaitForPopup();
    for (const std::string& name : kNames) {
      users.SetText(701, name);
      app.CommandAndAnswer(users, 702);
      users.SetText(701, name);
      app.CommandAndAnswer(users, 703);
    }
    app.CommandAndAnswer(users, IDOK);
  }
};

TEST_F(HostileOpens, NoNameLeadsOutside) {
  const Snapshot beside = LookBesideTheFolder();
  DWORD process = 0;
  {
    const App app(ProgramPath(), start_);
    process = GetProcessId(app.process());
    app.main().Command(200);
    const Window login = app.WaitForPopup();
    const Texts offered = login.Items(700);
    login.Command(IDCANCEL);
    EXPECT_GE(offered.size(), 5U);
    for (const std::string& name : offered) WorkAs(app, name);
    AddAndRemove(app);
    EXPECT_TRUE(app.IsRunning());
  }
  EXPECT_EQ(LookBesideTheFolder(), beside);
  const std::vector<Call> inside = ExpectNothingOutside(process);
  EXPECT_TRUE(HasChanged(inside, "\\ann\\waga.asc"));
  EXPECT_TRUE(HasChanged(inside, std::string(99, 'n') + "\\bilans.asc"));
}

}  // namespace
}  // namespace velnor::desktop
