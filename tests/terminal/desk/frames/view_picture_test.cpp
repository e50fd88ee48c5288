// Pictures of views as icons.

#include "terminal/desk/frames/view_picture.h"

#include <gtest/gtest.h>

#include <limits>

namespace algo::terminal::desk::tests {
namespace {

TEST(ViewPicture, PixelsGoRowByRowFromTheTopLeft) {
  const host::TImage image{2, 2, {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0x80FFFFFF}};
  const QImage shown = frames::IconOf(image).pixmap(2, 2).toImage();
  ASSERT_EQ(shown.size(), QSize(2, 2));
  EXPECT_EQ(shown.pixelColor(0, 0), QColor(255, 0, 0));
  EXPECT_EQ(shown.pixelColor(1, 0), QColor(0, 255, 0));
  EXPECT_EQ(shown.pixelColor(0, 1), QColor(0, 0, 255));
  EXPECT_EQ(shown.pixelColor(1, 1).alpha(), 128);
}

TEST(ViewPicture, APictureWhosePixelsDoNotFillItIsNone) {
  constexpr std::int32_t Most = std::numeric_limits<std::int32_t>::max();
  const host::TImage images[] = {
      {},           {2, 2, {1, 2, 3}}, {2, 1, {1, 2, 3}}, {0, 0, {1}}, {-1, -1, {1}},
      {-2, -1, {}}, {Most, Most, {1}}, {3, 0, {1, 2, 3}}};
  for (const host::TImage& image : images) {
    EXPECT_TRUE(frames::IconOf(image).isNull()) << image.width << " × " << image.height;
  }
}

TEST(ViewPicture, AButtonHasThePictureOfItsPlaceInTheList) {
  const std::vector<host::TImage> images{{1, 1, {0xFF112233}}, {1, 1, {0xFF445566}}};
  const auto buttons = frames::TitleButtonsOf({{7, "Pin", 1}, {8, "Help", -1}, {9, "Lost", 2}}, images);
  ASSERT_EQ(buttons.size(), 3U);
  EXPECT_EQ(buttons[0].id, 7);
  EXPECT_EQ(buttons[0].hint, "Pin");
  EXPECT_EQ(buttons[0].icon.pixmap(1, 1).toImage().pixelColor(0, 0), QColor(0x44, 0x55, 0x66));
  EXPECT_TRUE(buttons[1].icon.isNull());
  EXPECT_TRUE(buttons[2].icon.isNull());
}

}  // namespace
}  // namespace algo::terminal::desk::tests
