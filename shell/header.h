// The header that every screen carries: who is logged in, and the date.

#ifndef VELNOR_SHELL_HEADER_H_
#define VELNOR_SHELL_HEADER_H_

#include "base/canvas.h"
#include "base/session.h"

namespace velnor {

// Leaves the canvas with the header's font.
void PaintHeader(Canvas& canvas, const SessionState& session);

}  // namespace velnor

#endif  // VELNOR_SHELL_HEADER_H_
