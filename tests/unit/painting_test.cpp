// A kept painting draws what it was asked for, and knows when that is the same again.

#include "shell/painting.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/support/recording_canvas.h"

namespace velnor {
namespace {

void DrawScreen(Canvas& canvas) {
  canvas.CopyBackground("POS");
  canvas.WriteText({1, 2}, "before any choice");
  canvas.SetFont(kTitleFont);
  canvas.SetTextColour(kRed);
  canvas.WriteText({10, 30}, "title");
  canvas.WriteText({0, 0}, "");
  canvas.SetFont(kBodyFont);
  canvas.WriteText({10, 60}, "body");
  const Point wave[] = {{0, 0}, {5, 9}, {10, 0}};
  canvas.DrawPolyline(wave);
  canvas.SetPen({kRed, 3});
  canvas.DrawLine({1, 1}, {9, 9});
  canvas.DrawPolyline({});
}

TEST(PaintingTest, DrawsWhatItWasAskedFor) {
  RecordingCanvas asked;
  DrawScreen(asked);
  Painting painting;
  DrawScreen(painting);
  RecordingCanvas drawn;
  painting.DrawOn(drawn);
  EXPECT_EQ(drawn.backgrounds, asked.backgrounds);
  EXPECT_EQ(drawn.texts, asked.texts);
  EXPECT_EQ(drawn.lines, asked.lines);
  RecordingCanvas again;
  painting.DrawOn(again);
  EXPECT_EQ(again.texts, asked.texts);
}

TEST(PaintingTest, IsEqualToTheSameAgain) {
  Painting one;
  Painting other;
  DrawScreen(one);
  EXPECT_FALSE(one == other);
  DrawScreen(other);
  EXPECT_TRUE(one == other);
}

TEST(PaintingTest, AnyDifferenceCounts) {
  const std::vector<std::function<void(Canvas&)>> paintings = {
      [](Canvas&) {},
      [](Canvas& c) { c.CopyBackground("POS"); },
      [](Canvas& c) { c.CopyBackground("WHR"); },
      [](Canvas& c) { c.SetFont(kTitleFont); },
      [](Canvas& c) { c.SetFont(kBodyFont); },
      [](Canvas& c) { c.SetTextColour(kRed); },
      [](Canvas& c) { c.SetTextColour(kBlack); },
      [](Canvas& c) {
        c.SetPen({kRed, 1});
      },
      [](Canvas& c) {
        c.SetPen({kRed, 2});
      },
      [](Canvas& c) {
        c.WriteText({1, 1}, "ab");
      },
      [](Canvas& c) {
        c.WriteText({1, 1}, "ac");
      },
      [](Canvas& c) {
        c.WriteText({1, 2}, "ab");
      },
      [](Canvas& c) {
        c.WriteText({1, 1}, "a");
        c.WriteText({1, 1}, "b");
      },
      [](Canvas& c) {
        c.DrawLine({1, 1}, {2, 2});
      },
      [](Canvas& c) {
        c.DrawLine({1, 1}, {2, 3});
      },
      [](Canvas& c) {
        c.DrawLine({1, 1}, {2, 2});
        c.SetPen({kRed, 2});
      },
      [](Canvas& c) {
        c.SetPen({kRed, 2});
        c.DrawLine({1, 1}, {2, 2});
      },
  };
  for (std::size_t i = 0; i < paintings.size(); ++i) {
    for (std::size_t j = 0; j < paintings.size(); ++j) {
      Painting one;
      Painting other;
      paintings[i](one);
      paintings[j](other);
      EXPECT_EQ(one == other, i == j) << i << " and " << j;
    }
  }
}

}  // namespace
}  // namespace velnor
