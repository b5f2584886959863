// Letters of code page 1250, the code page of every text in the program.

#ifndef VELNOR_BASE_CODE_PAGE_H_
#define VELNOR_BASE_CODE_PAGE_H_

#include <string>

namespace velnor {

// `text` with its capital letters, Polish and other Central European ones included, as small ones.
// Other bytes stay. Source of the letter pairs: the code page's published mapping table.
std::string ToLowerCase(std::string text);

}  // namespace velnor

#endif  // VELNOR_BASE_CODE_PAGE_H_
