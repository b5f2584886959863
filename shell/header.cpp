#include "shell/header.h"

namespace velnor {

void PaintHeader(Canvas& canvas, const SessionState& session) {
  canvas.DrawLine({4, 20}, {790, 20});
  canvas.SetFont(kBodyFont);
  if (!session.user) {
    canvas.WriteText({10, 2}, "user: NONE");
    canvas.WriteText({720, 2}, session.date_text);
    return;
  }
  canvas.WriteText({10, 2}, "user: ");
  canvas.WriteText({45, 2}, session.user->name());
  canvas.WriteText({730, 2}, session.date_text);
}

}  // namespace velnor
