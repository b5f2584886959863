#include "tests/support/picture.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>

#include "base/text_file.h"

namespace velnor {
namespace {

constexpr std::size_t kLimit = 1 << 20;  // bytes; twice the largest picture

// A little-endian number of `size` bytes at `offset`; beyond the end of the bytes, 0.
std::uint32_t Number(std::string_view bytes, std::size_t offset, std::size_t size) {
  std::uint32_t value = 0;
  for (std::size_t i = size; i-- > 0;) {
    const std::size_t at = offset + i;
    const auto byte = static_cast<unsigned char>(at < bytes.size() ? bytes[at] : 0);
    value = value << 8 | byte;
  }
  return value;
}

double Linear(std::uint8_t channel) {
  const double part = channel / 255.0;
  return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

struct Lab {
  double lightness, a, b;
};

// Of a part 0 to 1 of the reference white.
double LabCurve(double part) {
  constexpr double kBreak = 6.0 / 29.0;
  return part > kBreak * kBreak * kBreak ? std::cbrt(part)
                                         : part / (3 * kBreak * kBreak) + 4.0 / 29.0;
}

Lab LabOf(Colour colour) {
  const double red = Linear(colour.red);
  const double green = Linear(colour.green);
  const double blue = Linear(colour.blue);
  // The matrix of sRGB, each row divided by its white.
  const double x = LabCurve((0.4124 * red + 0.3576 * green + 0.1805 * blue) / 0.9505);
  const double y = LabCurve(0.2126 * red + 0.7152 * green + 0.0722 * blue);
  const double z = LabCurve((0.0193 * red + 0.1192 * green + 0.9505 * blue) / 1.0890);
  return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

double Luminance(Colour colour) {
  return 0.2126 * Linear(colour.red) + 0.7152 * Linear(colour.green) + 0.0722 * Linear(colour.blue);
}

std::size_t RowSize(int width) { return (static_cast<std::size_t>(width) + 3) / 4 * 4; }

}  // namespace

std::string PictureFile(std::string_view resource) {
  std::string file(resource);
  std::ranges::transform(file, file.begin(), [](unsigned char letter) {
    return static_cast<char>(std::tolower(letter));
  });
  return file + ".bmp";
}

std::string ReadResource(const std::string& file) {
  return ReadFile(std::string(VELNOR_RESOURCES) + '/' + file, kLimit);
}

Picture::Picture(const std::string& file) {
  constexpr std::size_t kInfoHeader = 14;  // where it begins
  constexpr std::uint32_t kInfoHeaderSize = 40;
  const std::string bytes = ReadResource(file);
  const std::uint32_t pixels = Number(bytes, 10, 4);
  const std::uint32_t bits = Number(bytes, kInfoHeader + 14, 2);
  const std::uint32_t compression = Number(bytes, kInfoHeader + 16, 4);
  if (Number(bytes, 0, 2) != 0x4D42 || Number(bytes, kInfoHeader, 4) != kInfoHeaderSize ||
      bits != 8 || compression != 0) {
    return;
  }
  const auto width = static_cast<int>(Number(bytes, kInfoHeader + 4, 4));
  const auto height = static_cast<int>(Number(bytes, kInfoHeader + 8, 4));
  if (width <= 0 || height <= 0 ||
      bytes.size() < pixels + RowSize(width) * static_cast<std::size_t>(height)) {
    return;
  }
  width_ = width;
  height_ = height;
  rows_ = bytes.substr(pixels);
  for (std::size_t at = kInfoHeader + kInfoHeaderSize; at + 4 <= pixels; at += 4) {
    const std::uint32_t entry = Number(bytes, at, 3);
    colours_.push_back({static_cast<std::uint8_t>(entry >> 16),
                        static_cast<std::uint8_t>(entry >> 8 & 0xFF),
                        static_cast<std::uint8_t>(entry & 0xFF)});
  }
}

Colour Picture::At(int x, int y) const {
  const std::size_t row = static_cast<std::size_t>(height_ - 1 - y) * RowSize(width_);
  return colours_.at(static_cast<unsigned char>(rows_.at(row + static_cast<std::size_t>(x))));
}

Colour PaletteColour(std::string_view name) {
  static constexpr std::string_view kFill = "fill: #";
  const std::string palette = ReadResource("art/palette.css");
  const std::size_t row = palette.find("\n." + std::string(name) + ' ');
  const std::size_t fill = palette.find(kFill, row);
  if (row == std::string::npos || fill == std::string::npos) {
    ADD_FAILURE() << "no colour " << name;
    return {};
  }
  const auto value = std::stoul(palette.substr(fill + kFill.size(), 6), nullptr, 16);
  return {static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 8 & 0xFF),
          static_cast<std::uint8_t>(value & 0xFF)};
}

double ColourDifference(Colour one, Colour other) {
  const Lab here = LabOf(one);
  const Lab there = LabOf(other);
  return std::hypot(here.lightness - there.lightness, here.a - there.a, here.b - there.b);
}

double Contrast(Colour one, Colour other) {
  constexpr double kFlare = 0.05;
  const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
  return (lighter + kFlare) / (darker + kFlare);
}

}  // namespace velnor
