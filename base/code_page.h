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

// `text` in small letters without their marks, so that "\xAFurek" and "zurek" compare equal: a
// letter of the alphabet for each letter that has one, the letter sharp s as "s", the no-break
// space as a blank. Other bytes stay, and the length does.
std::string FoldLetters(std::string text);

// Whether `bytes` are sound UTF-8: no sequence cut short, longer than needed, of a surrogate or
// beyond the last code point.
bool IsUtf8(std::string_view bytes);

// UTF-8 text in the code page. A sign that the page lacks gets a stand-in: a Latin letter its plain
// letter, a dash "-", a space a blank, other signs what they look like or "?". Marks of their own
// that combine with the letter before them, and signs of no width, are left out. A byte that is not
// part of sound UTF-8 gives "?".
std::string FromUtf8(std::string_view utf8);

// UTF-16 text in the code page, with the same stand-ins. The lower byte of a unit comes first
// unless `high_byte_first`. A pair of units gives one "?"; a second half alone and a byte left over
// at the end give nothing.
std::string FromUtf16(std::string_view bytes, bool high_byte_first);

}  // namespace velnor

#endif  // VELNOR_BASE_CODE_PAGE_H_
