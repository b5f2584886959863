// Measures how far everything that a screen draws stands out from the picture it is drawn on. Used
// by the test that walks through the states of all screens.

#ifndef VELNOR_TESTS_SUPPORT_LEGIBILITY_H_
#define VELNOR_TESTS_SUPPORT_LEGIBILITY_H_

#include <string>
#include <string_view>
#include <vector>

#include "tests/support/picture.h"
#include "tests/support/recording_canvas.h"

namespace velnor {

enum class MarkKind { kText, kLine };

// A text or a line, and the pixel under it from which it stands out least.
struct Mark {
  MarkKind kind;
  std::string what;  // the text, or the ends of the line
  Point at;          // its corner, or its first point
  Colour colour;
  Colour under;
  double contrast;  // 1 to 21; 1 when nothing of it lies on the picture
};

// How wide the text is at most in the face that the program gets, in pixels. Letters beyond ASCII
// count as digits do.
int WidestExtent(const Font& font, std::string_view text);

// Everything on the canvas, texts first, over `background`. A text is held against every pixel of
// its cell, a line against every pixel as far as its pen reaches. Texts without a letter and lines
// of fewer than two points draw nothing and are left out, as are pixels beyond the picture.
std::vector<Mark> MeasureMarks(const RecordingCanvas& canvas, const Picture& background);

}  // namespace velnor

#endif  // VELNOR_TESTS_SUPPORT_LEGIBILITY_H_
