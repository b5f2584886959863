// A verdict: the lines in which the BMI and WHR screens say what a result means.

#ifndef VELNOR_BODY_VERDICT_H_
#define VELNOR_BODY_VERDICT_H_

#include <span>
#include <string_view>

#include "base/canvas.h"

namespace velnor {

// The column that verdicts and explanations stand in.
inline constexpr int kVerdictX = 350;

struct VerdictLine {
  int y;
  std::string_view text;
  Colour colour = kBlack;
};

// Draws the lines in the body font and leaves the text black.
inline void DrawVerdict(Canvas& canvas, std::span<const VerdictLine> lines) {
  canvas.SetFont(kBodyFont);
  for (const VerdictLine& line : lines) {
    canvas.SetTextColour(line.colour);
    canvas.WriteText({kVerdictX, line.y}, line.text);
  }
  canvas.SetTextColour(kBlack);
}

}  // namespace velnor

#endif  // VELNOR_BODY_VERDICT_H_
