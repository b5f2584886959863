// The pictures: their form, the flat surfaces the screens put texts and lines on, and how far the
// colours of those stand apart from the surface.

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

#include "shell/screens.h"
#include "tests/support/picture.h"

namespace velnor {
namespace {

std::string Text(Colour colour) {
  return std::to_string(colour.red) + ' ' + std::to_string(colour.green) + ' ' +
         std::to_string(colour.blue);
}

TEST(PicturesTest, EveryBackgroundIsAPictureOfItsOwn) {
  const std::string script = ReadResource("velnor.rc");
  std::set<std::string> contents;
  for (const std::string resource : BackgroundNames()) {
    SCOPED_TRACE(resource);
    const Picture picture(PictureFile(resource));
    EXPECT_EQ(picture.width(), 800);
    EXPECT_EQ(picture.height(), 550);
    const std::size_t row = script.find('\n' + resource + ' ');
    ASSERT_NE(row, std::string::npos);
    const std::string line = script.substr(row + 1, script.find('\n', row + 1) - row - 1);
    EXPECT_TRUE(line.ends_with("BITMAP \"" + PictureFile(resource) + '"')) << line;
    contents.insert(ReadResource(PictureFile(resource)));
  }
  EXPECT_EQ(contents.size(), BackgroundNames().size());
}

TEST(PicturesTest, TheIconHasFiveSizes) {
  const std::string icon = ReadResource("velnor.ico");
  ASSERT_GT(icon.size(), 6U + 5U * 16U);
  EXPECT_EQ(icon.substr(0, 6), std::string("\0\0\1\0\5\0", 6));
  std::vector<int> sizes;
  for (std::size_t i = 0; i < 5; ++i) {
    const int stored = static_cast<unsigned char>(icon[6 + 16 * i]);
    sizes.push_back(stored == 0 ? 256 : stored);
  }
  EXPECT_EQ(sizes, (std::vector<int>{16, 24, 32, 48, 256}));
}

// A part of a picture on which a screen puts its texts, lines or controls: corners included.
struct Place {
  const char* resource;
  Point from;
  Point to;
  const char* surface;
};

constexpr Place kPlaces[] = {
    {"BCG", {5, 26}, {695, 90}, "paper"},      // titles, notes
    {"BCG", {16, 94}, {779, 478}, "slate"},    // axes, labels, lines of a chart
    {"BMI2", {5, 28}, {318, 262}, "paper"},    // entries
    {"BMI2", {6, 276}, {370, 332}, "paper"},   // value, age note
    {"BMI2", {340, 44}, {792, 230}, "haze"},   // verdict
    {"BMI2", {28, 412}, {620, 456}, "haze"},   // scale, marker
    {"BMI2", {621, 442}, {792, 456}, "haze"},  // right of it the axis alone, the word above
    {"BMI2", {628, 413}, {786, 440}, "card"},
    {"BMI2", {190, 457}, {670, 482}, "haze"},   // names of the ranges
    {"BMI2", {133, 459}, {184, 474}, "paper"},  // red words of the scale
    {"BMI2", {678, 459}, {729, 474}, "paper"},
    {"BMI2", {6, 493}, {440, 542}, "paper"},  // note on the way of life
    {"WHR", {5, 28}, {318, 380}, "paper"},
    {"WHR", {342, 44}, {790, 126}, "paper"},
    {"WHR", {8, 511}, {318, 540}, "paper"},
    {"POS", {5, 26}, {695, 540}, "paper"},
    {"POS", {696, 63}, {790, 300}, "paper"},
    {"POS", {696, 301}, {744, 540}, "paper"},
    {"ZAAP", {5, 26}, {695, 55}, "paper"},
    {"ZAAP", {6, 67}, {347, 306}, "paper"},
    {"ZAAP", {6, 319}, {292, 490}, "paper"},
    {"ZAAP", {500, 66}, {790, 91}, "pine"},
    {"ZAAP", {497, 95}, {792, 320}, "paper"},
    {"ZAAP", {407, 335}, {792, 538}, "paper"},
    {"SPAL", {5, 27}, {695, 55}, "paper"},
    {"SPAL", {8, 63}, {690, 542}, "mist"},
    {"SPAL", {691, 205}, {799, 542}, "mist"},
    {"BILANS", {6, 21}, {280, 48}, "paper"},
    {"BILANS", {295, 22}, {790, 48}, "pine"},
    {"BILANS", {116, 63}, {790, 176}, "card"},
    {"BILANS", {116, 189}, {790, 302}, "card"},
    {"BILANS", {116, 315}, {790, 428}, "card"},
    {"BILANS", {116, 441}, {790, 543}, "card"},
    {"BILANS", {6, 86}, {55, 117}, "card"},  // the mark of nothing eaten
    {"BILANS", {6, 216}, {55, 242}, "card"},
    {"BILANS", {6, 346}, {55, 374}, "card"},
    {"BILANS", {6, 476}, {55, 502}, "card"},
    {"BILANS", {61, 68}, {110, 84}, "pine"},
    {"BILANS", {61, 198}, {110, 214}, "pine"},
    {"BILANS", {61, 328}, {110, 344}, "pine"},
    {"BILANS", {61, 456}, {110, 472}, "pine"},
};

void ExpectFlat(const Picture& picture, Point from, Point to, Colour colour) {
  for (int y = from.y; y <= to.y; ++y) {
    for (int x = from.x; x <= to.x; ++x) {
      ASSERT_EQ(Text(picture.At(x, y)), Text(colour)) << "at " << x << ' ' << y;
    }
  }
}

TEST(PicturesTest, TextsAndLinesFallOnFlatSurfaces) {
  for (const Place& place : kPlaces) {
    SCOPED_TRACE(place.resource + std::string(" from ") + std::to_string(place.from.x) + ' ' +
                 std::to_string(place.from.y));
    const Picture picture(PictureFile(place.resource));
    ASSERT_GT(picture.width(), place.to.x);
    ASSERT_GT(picture.height(), place.to.y);
    ExpectFlat(picture, place.from, place.to, PaletteColour(place.surface));
  }
}

TEST(PicturesTest, TheHeaderIsTheSameOnAll) {
  for (const std::string resource : BackgroundNames()) {
    SCOPED_TRACE(resource);
    const Picture picture(PictureFile(resource));
    ASSERT_EQ(picture.width(), 800);
    ExpectFlat(picture, {0, 0}, {799, 20}, PaletteColour("band"));
  }
}

struct Demand {
  const char* surface;
  Colour colour;
  double least;  // contrast
};

constexpr Colour kGreen{0, 255, 0};
constexpr Colour kBrown{183, 101, 20};
constexpr Colour kOrange{229, 171, 31};
constexpr Colour kLeafGreen{0, 205, 0};
constexpr Colour kLightGrey{205, 205, 205};
constexpr Colour kAxisGrey{79, 79, 79};
constexpr Colour kWhite{255, 255, 255};

// Black text 7, a colour that stands alone 3, colours that share a place 1.6, lines 1.5.
constexpr Demand kDemands[] = {
    {"band", kBlack, 7.0},
    {"paper", kBlack, 7.0},
    {"paper", kRed, 3.0},
    {"paper", {0, 0, 165}, 3.0},
    {"card", kBlack, 7.0},
    {"card", kRed, 3.0},
    {"card", {200, 0, 0}, 3.0},
    {"card", kLeafGreen, 1.6},
    {"card", kOrange, 1.5},
    {"card", kLightGrey, 1.5},
    {"card", kAxisGrey, 1.5},
    {"slate", kBlack, 7.0},
    {"slate", {0, 0, 188}, 1.5},
    {"slate", kWhite, 1.5},
    {"slate", {255, 255, 71}, 1.5},
    {"slate", kGreen, 1.5},
    // The calorie line would need a surface on which black text stands out by 6.2 only.
    {"slate", {255, 139, 137}, 1.3},
    {"haze", kBlack, 7.0},
    {"haze", kRed, 1.6},
    {"haze", kGreen, 1.6},
    {"haze", kBrown, 1.6},
    {"haze", kLightGrey, 1.5},
    {"haze", kAxisGrey, 1.5},
    {"mist", kBlack, 7.0},
    {"mist", kWhite, 1.5},
    {"pine", kOrange, 3.0},
    {"pine", kLeafGreen, 3.0},
    {"pine", {246, 255, 86}, 4.5},
};

TEST(PicturesTest, ColoursStandOutFromTheirSurface) {
  for (const Demand& demand : kDemands) {
    EXPECT_GE(Contrast(PaletteColour(demand.surface), demand.colour), demand.least)
        << demand.surface << ' ' << Text(demand.colour);
  }
}

TEST(PicturesTest, ContrastIsMeasuredFromBlackToWhite) {
  EXPECT_NEAR(Contrast(kBlack, kWhite), 21.0, 1e-9);
  EXPECT_NEAR(Contrast(kWhite, kBlack), 21.0, 1e-9);
  EXPECT_NEAR(Contrast(kRed, kRed), 1.0, 1e-9);
  EXPECT_NEAR(Contrast(kWhite, {118, 118, 118}), 4.54, 0.005);  // the lightest grey above 4.5
}

TEST(PicturesTest, DifferenceCountsLightnessAndHue) {
  EXPECT_NEAR(ColourDifference(kBlack, kWhite), 100.0, 0.05);
  EXPECT_NEAR(ColourDifference(kRed, kRed), 0.0, 1e-9);
  // Red is L* 53.24, a* 80.09, b* 67.20; this green L* 87.73, a* -86.18, b* 83.18.
  EXPECT_NEAR(ColourDifference(kRed, kGreen), 170.6, 0.1);
  EXPECT_NEAR(ColourDifference(kBlack, kRed), 117.3, 0.1);
}

}  // namespace
}  // namespace velnor
