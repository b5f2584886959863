// Reads the pictures the program carries, so that tests can look at their pixels, and measures how
// far colours stand apart. Used by the tests of the pictures and of what is painted on them.

#ifndef VELNOR_TESTS_SUPPORT_PICTURE_H_
#define VELNOR_TESTS_SUPPORT_PICTURE_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "base/canvas.h"

namespace velnor {

// A bitmap of 8 bits a pixel.
class Picture {
 public:
  // Reads "NAME" of the resource folder. What is no uncompressed bitmap of 8 bits that holds all
  // its pixels gives a picture of no size.
  explicit Picture(const std::string& file);

  int width() const { return width_; }
  int height() const { return height_; }

  // x and y must lie in the picture; (0, 0) is the upper left corner.
  Colour At(int x, int y) const;

 private:
  int width_ = 0;
  int height_ = 0;
  std::vector<Colour> colours_;
  std::string rows_;  // from the lowest up, each padded to four bytes
};

// The file of a background, by its resource name.
std::string PictureFile(std::string_view resource);

// The text of a file of the resource folder; a missing one gives nothing.
std::string ReadResource(const std::string& file);

// The colour of a name in the palette of the drawings. An unknown name fails the test and is black.
Colour PaletteColour(std::string_view name);

// How far two colours stand apart, 1 to 21: the contrast ratio of WCAG 2, from relative luminances.
double Contrast(Colour one, Colour other);

// How far two colours are apart to the eye, hue and all: the distance in CIE L*a*b* (1976, daylight
// D65). Black and white are 100 apart; from 2 or 3 on neighbours can be told.
double ColourDifference(Colour one, Colour other);

}  // namespace velnor

#endif  // VELNOR_TESTS_SUPPORT_PICTURE_H_
