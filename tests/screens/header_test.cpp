#include "shell/header.h"

#include <gtest/gtest.h>

#include "tests/support/recording_canvas.h"

namespace velnor {
namespace {

constexpr Font kHeaderFont{14, 0, false};

TEST(HeaderTest, SaysThatNobodyIsLoggedIn) {
  RecordingCanvas canvas;
  SessionState session;
  session.date_text = "5.3.2026";
  PaintHeader(canvas, session);
  EXPECT_EQ(canvas.texts, (std::vector<DrawnText>{{"user: NONE", {10, 2}, kHeaderFont, kBlack},
                                                  {"5.3.2026", {720, 2}, kHeaderFont, kBlack}}));
  EXPECT_EQ(canvas.lines, (std::vector<DrawnLine>{{{{4, 20}, {790, 20}}, {kBlack, 1}}}));
}

TEST(HeaderTest, NamesTheUserAndMovesTheDate) {
  RecordingCanvas canvas;
  SessionState session;
  session.user = UserFolder::In("", "Ann");
  session.date_text = "5.3.2026";
  PaintHeader(canvas, session);
  EXPECT_EQ(canvas.texts, (std::vector<DrawnText>{{"user: ", {10, 2}, kHeaderFont, kBlack},
                                                  {"Ann", {45, 2}, kHeaderFont, kBlack},
                                                  {"5.3.2026", {730, 2}, kHeaderFont, kBlack}}));
}

}  // namespace
}  // namespace velnor
