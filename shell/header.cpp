#include "shell/header.h"

namespace velnor {

void PaintHeader(Canvas& canvas, const SessionState& session) {
  canvas.DrawLine({4, 20}, {790, 20});
  canvas.SetFont(kBodyFont);
  if (session.user_name.empty()) {
    canvas.DrawText({10, 2}, "user: NONE");
    canvas.DrawText({720, 2}, session.date_text);
    return;
  }
  canvas.DrawText({10, 2}, "user: ");
  canvas.DrawText({45, 2}, session.user_name);
  canvas.DrawText({730, 2}, session.date_text);
}

}  // namespace velnor
