// The skins: everything that is read can be read, and everything that is drawn can be seen.

#include "terminal/desk/appearance/skins.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <cmath>
#include <string>

namespace algo::terminal::desk::tests {
namespace {

// The contrast of two colours by the Web Content Accessibility Guidelines 2.1: from 1 to 21.
double Linear(double channel) {
  return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}
double Luminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) + 0.0722 * Linear(color.blueF());
}
double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one) + 0.05;
  const double b = Luminance(other) + 0.05;
  return std::max(a, b) / std::min(a, b);
}

TEST(Contrast, IsWhatTheGuidelinesSay) {
  EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21.0, 0.001);
  EXPECT_NEAR(Contrast(Qt::white, Qt::white), 1.0, 0.001);
  EXPECT_NEAR(Contrast(QColor(0x767676), Qt::white), 4.54, 0.01);
}

QColor ToQColor(forms::TColor color) { return QColor::fromRgb(color); }

class EachSkin : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override { ASSERT_NE(appearance::SkinNamed(GetParam()), nullptr); }
  const appearance::TSkin& Skin() const { return *appearance::SkinNamed(GetParam()); }
  double ForText() const { return std::string(GetParam()) == "high-contrast" ? 7.0 : 4.5; }
};
INSTANTIATE_TEST_SUITE_P(Skins, EachSkin, testing::Values("light", "dark", "high-contrast"),
                         [](const auto& tested) {
                           std::string name = tested.param;
                           std::erase(name, '-');
                           return name;
                         });

TEST_P(EachSkin, EveryTextOfTheWidgetsCanBeRead) {
  const QPalette palette = appearance::PaletteOf(Skin());
  struct TPair {
    QPalette::ColorRole text;
    QPalette::ColorRole behind;
  };
  constexpr TPair Pairs[] = {
      {QPalette::WindowText, QPalette::Window},
      {QPalette::Text, QPalette::Base},
      {QPalette::Text, QPalette::AlternateBase},
      {QPalette::ButtonText, QPalette::Button},
      {QPalette::PlaceholderText, QPalette::Base},
      {QPalette::PlaceholderText, QPalette::Window},
      {QPalette::HighlightedText, QPalette::Highlight},
      {QPalette::ToolTipText, QPalette::ToolTipBase},
      {QPalette::Link, QPalette::Base},
      {QPalette::Link, QPalette::Window},
      {QPalette::LinkVisited, QPalette::Window},
      {QPalette::BrightText, QPalette::Highlight},
  };
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    for (const auto& [text, behind] : Pairs)
      EXPECT_GE(Contrast(palette.color(group, text), palette.color(group, behind)), ForText())
          << "group " << group << ", role " << text << " on " << behind;
  }
}

TEST_P(EachSkin, TheSidesCanBeReadAsTextAndBehindText) {
  const QPalette palette = appearance::PaletteOf(Skin());
  THostData data;
  Skin().FillInto(data);
  for (const int index : {7, 9}) {
    const QColor side = ToQColor(data.colors.at(index));
    EXPECT_GE(Contrast(side, palette.color(QPalette::Base)), ForText()) << index;
    EXPECT_GE(Contrast(side, palette.color(QPalette::AlternateBase)), ForText()) << index;
    EXPECT_GE(std::max(Contrast(side, Qt::black), Contrast(side, Qt::white)), ForText()) << index;
  }
}

TEST_P(EachSkin, WhatIsDrawnStandsOutFromWhatItIsDrawnOn) {
  constexpr double ForShapes = 3.0;  // of outlines and signs, by the same guidelines
  const QPalette palette = appearance::PaletteOf(Skin());
  for (const auto behind : {QPalette::Window, QPalette::Base}) {
    EXPECT_GE(Contrast(palette.color(QPalette::Mid), palette.color(behind)), ForShapes)
        << "border on " << behind;
    EXPECT_GE(Contrast(palette.color(QPalette::Highlight), palette.color(behind)), ForShapes)
        << "focus on " << behind;
    for (const auto link : Skin().links)
      EXPECT_GE(Contrast(ToQColor(link), palette.color(behind)), ForShapes)
          << std::hex << link << " on " << behind;
  }
}

// The colour of the outline in the middle of the widget's lower edge.
QColor OutlineOf(QWidget& widget) {
  widget.resize(120, 30);
  const QImage image = widget.grab().toImage();
  return image.pixelColor(60, image.height() - 1);
}

TEST_P(EachSkin, FieldsHaveAnOutlineThatShows) {
  appearance::ApplySkin(Skin());
  QLineEdit line;
  QSpinBox number;
  QComboBox list;
  list.setEditable(true);
  for (QWidget* field :
       {static_cast<QWidget*>(&line), static_cast<QWidget*>(&number), static_cast<QWidget*>(&list)})
    EXPECT_GE(Contrast(OutlineOf(*field), ToQColor(Skin().window)), 2.9) << field->metaObject()->className();
}

TEST_P(EachSkin, OpenWindowsFollowWithTheNextEvents) {
  QWidget window;
  QLabel label(&window);
  window.resize(40, 40);
  window.show();
  appearance::ApplySkin(Skin());
  QCoreApplication::processEvents();
  EXPECT_EQ(window.grab().toImage().pixelColor(10, 10).rgb(), ToQColor(Skin().window).rgb());
  EXPECT_EQ(label.palette().color(QPalette::WindowText).rgb(), ToQColor(Skin().text).rgb());
}

TEST(Skins, AreFoundByTheirNamesAlone) {
  EXPECT_EQ(appearance::SkinNamed("dark")->textKey, "Dark");
  EXPECT_EQ(appearance::SkinNamed("high-contrast")->textKey, "High contrast");
  for (const char* other : {"", "Dark", "high contrast", "blue"})
    EXPECT_EQ(appearance::SkinNamed(other), nullptr) << other;
}

TEST(Skins, GiveTheHostTheColoursOfTheSidesAndLeaveOthersAlone) {
  THostData data;
  data.colors[7] = 1;
  data.colors[12] = 2;
  appearance::SkinNamed("light")->FillInto(data);
  EXPECT_EQ(data.colors, (std::map<std::int32_t, forms::TColor>{{7, 0x0B5CAD}, {9, 0xB3261E}, {12, 2}}));
}

}  // namespace
}  // namespace algo::terminal::desk::tests
