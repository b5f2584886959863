// The names of files for the system. The program keeps paths as bytes of the machine's code page,
// the system as UTF-16; a letter of the start-up folder that the code page lacks stands in a path
// as its number between angle brackets, "<0141>", which no name of a file contains otherwise.

#ifndef VELNOR_SHELL_WIN32_WIDE_PATH_H_
#define VELNOR_SHELL_WIN32_WIDE_PATH_H_

#include <string>
#include <string_view>

namespace velnor {

// The current folder with a separator at its end, as the program writes it.
std::string StartUpFolder();

// The path for calls of the system. One that is too long for the classic form gets the prefix that
// lifts the limit; it must be absolute then.
std::wstring WidePath(const std::string& path);

// A text that may hold such paths, as a person is to read it.
std::wstring WideText(std::string_view text);

// A name as the system gives it, as the program writes it.
std::string NarrowPath(const std::wstring& path);

}  // namespace velnor

#endif  // VELNOR_SHELL_WIN32_WIDE_PATH_H_
