// Numbers as decimal text, the one place where text becomes a number and a number becomes text.
// Every table, data file and field of the program holds its figures as text and goes through here.
// Nothing in this file depends on the locale of the machine.

#ifndef VELNOR_BASE_NUMBER_TEXT_H_
#define VELNOR_BASE_NUMBER_TEXT_H_

#include <string>
#include <string_view>

namespace velnor {

// The number at the start of `text`, as C `atof` reads it in the "C" locale: leading white space is
// skipped, then an optional sign, decimal digits with an optional point, and an optional exponent
// are read; whatever follows is ignored. "12.5 g" gives 12.5, "263,7" gives 263. Text that does not
// begin with a number, empty text included, gives 0. Hexadecimal digits and the words "inf" and
// "nan" are not numbers here: a typed weight never means them. A magnitude beyond the range of
// double gives infinity, one too small for it gives 0, both signed.
double ParseNumber(std::string_view text);

// The whole number at the start of `text`, as C `atoi` reads it: leading white space, an optional
// sign, decimal digits; the rest is ignored. Text without a number gives 0. A number outside the
// range of int gives the nearest bound of that range.
int ParseInteger(std::string_view text);

// `value` with at most `digits` significant digits (1 to 17; other counts are brought into this
// range), as the platform runtime's `_gcvt` writes it: rounded to nearest, trailing zeros dropped,
// the decimal point always kept ("70.", "1.75", "0.", "-50."). Fixed notation while the decimal
// exponent is from -4 to digits - 1, else scientific with at least two exponent digits ("1.5e-05",
// "1.e+06"). Not finite: "inf", "-inf", "nan". A negative zero is written "-0.".
std::string FormatNumber(double value, int digits);

// `value` with exactly `decimals` decimals (0 to 9; other counts are brought into this range),
// rounded to nearest, without a point when there are none: "70", "1.75", "-0.5". What rounds to
// zero has no sign. Not finite: "inf", "-inf", "nan". For texts that other programs draw or show.
std::string FormatFixed(double value, int decimals);

// The number at the start of `text`, cut to two decimals in single precision: always downwards,
// never rounded, so that "1234.5678" gives 1234.56 and "-1.234" gives -1.24. What does not fit
// single precision is infinite, and its cut is no number (nan).
float TruncateTwoDecimals(std::string_view text);

}  // namespace velnor

#endif  // VELNOR_BASE_NUMBER_TEXT_H_
