// Letters of code page 1250, the code page of every text in the program, and the way out of it.

#ifndef VELNOR_BASE_CODE_PAGE_H_
#define VELNOR_BASE_CODE_PAGE_H_

#include <string>
#include <string_view>

namespace velnor {

// `text` with its capital letters, Polish and other Central European ones included, as small ones.
// Other bytes stay. Source of the letter pairs: the code page's published mapping table.
std::string ToLowerCase(std::string text);

// `text` in UTF-8, for the files that other programs read. The five bytes without a letter become
// U+FFFD. Source: the same table.
std::string ToUtf8(std::string_view text);

}  // namespace velnor

#endif  // VELNOR_BASE_CODE_PAGE_H_
