// The style sheet of the diary's page.

#ifndef VELNOR_DIARY_PAGE_STYLE_H_
#define VELNOR_DIARY_PAGE_STYLE_H_

#include <string>

namespace velnor {

// With the colours of the palette: light ones on paper and by default, dark ones where the person's
// system asks for these.
std::string PageStyle();

}  // namespace velnor

#endif  // VELNOR_DIARY_PAGE_STYLE_H_
