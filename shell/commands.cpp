#include "shell/commands.h"

#include <algorithm>
#include <iterator>

#include "shell/about_box.h"
#include "shell/program.h"
#include "shell/screens.h"

namespace velnor {
namespace {

constexpr std::string_view kHelpFile = "Velnor CALORIES COUNTER V 2.6 PORADNIK.HLP";

void OpenLogin(Program& program) { program.OpenLogin(); }

void LogOut(Program& program) { program.LogOut(); }

void OpenUsers(Program& program) { program.OpenUsers(); }

void OpenProfile(Program& program) { program.OpenProfile(); }

void Exit(Program& program) { program.window().Close(); }

void OpenAboutBox(Program& program) {
  AboutBox about_box;
  program.window().RunDialog(kAboutBoxResource, about_box);
}

void OpenHelp(Program& program) { program.window().OpenHelp(kHelpFile); }

void SayNotAvailable(Program& program) {
  program.message_boxes().Show({.text = "Function not yet available"});
}

void OpenAddProduct(Program& program) { program.OpenAddProduct(); }

void OpenRemoveProduct(Program& program) { program.OpenRemoveProduct(); }

struct CommandRow {
  int id;
  void (*run)(Program& program);
};

// The commands that do something other than selecting a screen.
// clang-format off
constexpr CommandRow kCommands[] = {
    {200, OpenLogin},
    {201, LogOut},
    {202, OpenUsers},
    {203, Exit},
    {204, OpenProfile},
    {211, SayNotAvailable},
    {220, SayNotAvailable},
    {222, SayNotAvailable},
    {223, SayNotAvailable},
    {230, SayNotAvailable},
    {234, SayNotAvailable},
    {235, SayNotAvailable},
    {237, SayNotAvailable},
    {240, OpenAddProduct},
    {241, OpenRemoveProduct},
    {250, OpenAboutBox},
    {251, OpenHelp},
};
// clang-format on

// Menu ids; outside of them an id always belongs to a control.
constexpr int kFirstCommand = 200;
constexpr int kLastCommand = 274;

}  // namespace

bool RunCommand(Program& program, int id) {
  if (id < kFirstCommand || id > kLastCommand) return false;
  const auto screen = std::ranges::find(Screens(), id, &ScreenRow::command);
  if (screen != Screens().end()) {
    if (screen->before != nullptr) screen->before(program);
    program.ShowScreen(screen->id);
    return true;
  }
  const CommandRow* const command = std::ranges::find(kCommands, id, &CommandRow::id);
  if (command == std::end(kCommands)) return false;
  command->run(program);
  return true;
}

}  // namespace velnor
