#include "diary/palette.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <string>

namespace velnor {
namespace {

constexpr double kTextContrast = 4.5;
constexpr double kMarkContrast = 3;

using Channels = std::array<double, 3>;  // red, green, blue; light, not what is written

// Source: WCAG 2.2, "relative luminance".
double LightOf(int byte) {
  const double share = byte / 255.0;
  return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

Channels ChannelsOf(std::string_view colour) {
  Channels channels = {};
  for (std::size_t i = 0; i < channels.size(); ++i) {
    channels[i] = LightOf(std::stoi(std::string(colour.substr(1 + 2 * i, 2)), nullptr, 16));
  }
  return channels;
}

double Luminance(const Channels& c) { return 0.2126 * c[0] + 0.7152 * c[1] + 0.0722 * c[2]; }

double Contrast(std::string_view a, std::string_view b) {
  const auto [low, high] = std::minmax({Luminance(ChannelsOf(a)), Luminance(ChannelsOf(b))});
  return (high + 0.05) / (low + 0.05);
}

const PageColour& Colour(std::string_view name) {
  return *std::ranges::find(kPageColours, name, &PageColour::name);
}

using Scheme = std::string_view PageColour::*;
constexpr std::array<Scheme, 2> kSchemes = {&PageColour::light, &PageColour::dark};

TEST(PaletteTest, ContrastIsThatOfTheGuidelines) {
  EXPECT_NEAR(Contrast("#000000", "#ffffff"), 21, 1e-9);
  EXPECT_NEAR(Contrast("#777777", "#ffffff"), 4.48, 0.005);  // the published example
}

TEST(PaletteTest, TextsAndMarksStandApartFromEverySurface) {
  for (const Scheme scheme : kSchemes) {
    for (const PageColour& surface : kPageColours) {
      if (surface.use != ColourUse::kSurface) continue;
      for (const PageColour& colour : kPageColours) {
        const double contrast = Contrast(colour.*scheme, surface.*scheme);
        if (colour.use == ColourUse::kText) {
          EXPECT_GE(contrast, kTextContrast) << colour.name << " on " << surface.name;
        }
        if (colour.use == ColourUse::kMark) {
          EXPECT_GE(contrast, kMarkContrast) << colour.name << " on " << surface.name;
        }
      }
    }
  }
}

// What lies on the band of the requirement and on the rails of the meters.
TEST(PaletteTest, MarksStandApartFromWhatTheyLieOn) {
  for (const Scheme scheme : kSchemes) {
    for (const std::string_view mark : {"blue", "vermilion", "green"}) {
      EXPECT_GE(Contrast(Colour(mark).*scheme, Colour("band").*scheme), kMarkContrast) << mark;
    }
    for (const std::string_view mark : {"blue", "green"}) {
      EXPECT_GE(Contrast(Colour(mark).*scheme, Colour("track").*scheme), kMarkContrast) << mark;
    }
    EXPECT_GE(Contrast(Colour("ink").*scheme, Colour("band").*scheme), kTextContrast);
  }
}

struct Sight {
  const char* name;
  std::array<Channels, 3> rows;
};

// Source: G. M. Machado, M. M. Oliveira and L. A. F. Fernandes, "A Physiologically-based Model for
// Simulation of Color Vision Deficiency", IEEE Transactions on Visualization and Computer Graphics
// 15 (2009), severity 1.
constexpr std::array<Sight, 4> kSights = {{
    {"all cones", {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}},
    {"protanopia",
     {{{0.152286, 1.052583, -0.204868},
       {0.114503, 0.786281, 0.099216},
       {-0.003882, -0.048116, 1.051998}}}},
    {"deuteranopia",
     {{{0.367322, 0.860646, -0.227968},
       {0.280085, 0.672501, 0.047413},
       {-0.011820, 0.042940, 0.968881}}}},
    {"tritanopia",
     {{{1.255528, -0.076749, -0.178779},
       {-0.078411, 0.930809, 0.147602},
       {0.004733, 0.691367, 0.303900}}}},
}};

// The three values of CIE L*a*b* of a colour as that sight has it.
Channels LabOf(std::string_view colour, const Sight& sight) {
  const Channels c = ChannelsOf(colour);
  Channels seen = {};
  for (std::size_t i = 0; i < seen.size(); ++i) {
    const Channels& row = sight.rows[i];
    seen[i] = std::clamp(row[0] * c[0] + row[1] * c[1] + row[2] * c[2], 0.0, 1.0);
  }
  const auto root = [](double t) { return t > 0.008856 ? std::cbrt(t) : 7.787 * t + 16.0 / 116; };
  const double x = root((0.4124 * seen[0] + 0.3576 * seen[1] + 0.1805 * seen[2]) / 0.95047);
  const double y = root(Luminance(seen));
  const double z = root((0.0193 * seen[0] + 0.1192 * seen[1] + 0.9505 * seen[2]) / 1.08883);
  return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

double Distance(std::string_view a, std::string_view b, const Sight& sight) {
  const Channels first = LabOf(a, sight);
  const Channels second = LabOf(b, sight);
  return std::hypot(first[0] - second[0], first[1] - second[1], first[2] - second[2]);
}

// A distance of 2 is seen side by side; parts of one plot need far more.
TEST(PaletteTest, ColoursThatShareAPlotAreToldApartByEverybody) {
  constexpr double kFar = 13;
  constexpr std::array<std::array<std::string_view, 3>, 2> kPlots = {
      {{"blue", "vermilion", "purple"}, {"blue", "vermilion", "green"}}};
  for (const Scheme scheme : kSchemes) {
    for (const auto& plot : kPlots) {
      for (std::size_t i = 0; i < plot.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
          for (const Sight& sight : kSights) {
            EXPECT_GE(Distance(Colour(plot[i]).*scheme, Colour(plot[j]).*scheme, sight), kFar)
                << plot[i] << " and " << plot[j] << ", " << sight.name;
          }
        }
      }
    }
  }
}

}  // namespace
}  // namespace velnor
