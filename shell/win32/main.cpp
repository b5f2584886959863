// The entry point.

#include <windows.h>

#include "shell/win32/win32_main_window.h"

int WINAPI WinMain(HINSTANCE instance, HINSTANCE /*previous*/, LPSTR /*command_line*/,
                   int show_command) {
  velnor::Win32MainWindow window(instance);
  if (!window.Open(show_command)) return 0;
  return window.RunMessageLoop();
}
