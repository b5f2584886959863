// Texts and numbers as the diary's page has them: UTF-8, with the signs of the markup escaped.

#ifndef VELNOR_DIARY_MARKUP_H_
#define VELNOR_DIARY_MARKUP_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace velnor {

// A text of the program, code page 1250, as UTF-8 that stands for itself in an element or between
// the quotes of an attribute. Control signs, which the page may not hold, become U+FFFD, line ends
// and tabs blanks.
std::string EscapedText(std::string_view text);

// At most `limit` characters of the text, made safe in the same way, with an ellipsis where it was
// cut.
std::string EscapedText(std::string_view text, std::size_t limit);

// Rounded to `decimals`, the thousands parted by thin blanks, a true minus before what is below
// zero: "2 140". From ten million on in powers of ten, "1e30".
std::string NumberText(double value, int decimals = 0);

// A number as above, with a plus before what is above zero.
std::string SignedNumberText(double value, int decimals = 0);

// "1 day", "12 days".
std::string CountText(std::size_t count, std::string_view one, std::string_view several);

}  // namespace velnor

#endif  // VELNOR_DIARY_MARKUP_H_
