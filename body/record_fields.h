// What the two dialogs that save body measures have in common.

#ifndef VELNOR_BODY_RECORD_FIELDS_H_
#define VELNOR_BODY_RECORD_FIELDS_H_

#include <cstddef>
#include <string>

#include "base/form.h"
#include "base/number_text.h"
#include "res/ids.h"

namespace velnor {

inline constexpr int kRecordDate = ID_RECORD_DATE;
inline constexpr int kRecordOther = ID_BODY_RECORD_OTHER;

// Characters of a date or a figure that count.
inline constexpr std::size_t kRecordTextLimit = 49;

// Significant digits of the figures, offered and saved.
inline constexpr int kRecordDigits = 6;

// The figure in a field cut to two decimals; "0." when there is none.
inline std::string ReadTwoDecimals(const Form& form, int id) {
  return FormatNumber(TruncateTwoDecimals(form.ReadText(id, kRecordTextLimit)), kRecordDigits);
}

}  // namespace velnor

#endif  // VELNOR_BODY_RECORD_FIELDS_H_
