#include "ui/widgets/desktop_wishes.h"

#include "ui/widgets/edged_style.h"
#include "ui/widgets/notice_banner.h"

#include <QApplication>
#include <QCheckBox>
#include <QImage>
#include <QRadioButton>
#include <QWidget>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace orb::tests {
namespace {

/// As it is defined for web pages; 1 to 21.
double Contrast(const QColor& a, const QColor& b) {
  const auto light = [](const QColor& colour) {
    const auto linear = [](double part) {
      return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF()) + 0.05;
  };
  return std::max(light(a), light(b)) / std::min(light(a), light(b));
}

TEST(DesktopWishes, AreReadFromWhatEveryDesktopsPortalTells) {
  const QString common = "org.freedesktop.appearance";
  const QString gnome = "org.gnome.desktop.interface";
  const QString kde = "org.kde.kdeglobals.KDE";
  struct Case {
    QMap<QString, QVariantMap> settings;
    std::string expected;
  };
  const std::vector<Case> cases = {
      {{}, ""},
      {{{common, {{"color-scheme", 0U}, {"contrast", 0U}, {"reduced-motion", 0U}}}}, ""},
      {{{common, {{"color-scheme", 1U}}}}, "dark"},
      {{{common, {{"color-scheme", 2U}, {"contrast", 1U}}}}, "contrast"},
      {{{common, {{"reduced-motion", 1U}}}}, "still"},
      {{{gnome, {{"enable-animations", false}}}}, "still"},
      {{{gnome, {{"enable-animations", true}}}}, ""},
      {{{kde, {{"AnimationDurationFactor", "0"}}}}, "still"},
      {{{kde, {{"AnimationDurationFactor", "0.5"}}}}, ""},
  };
  for (const Case& row : cases) {
    const ui::DesktopWishes wishes = ui::wishesIn(row.settings);
    EXPECT_EQ(std::string(wishes.dark ? "dark" : "") + (wishes.moreContrast ? "contrast" : "") +
                  (wishes.lessMotion ? "still" : ""),
              row.expected);
  }
}

TEST(DesktopWishes, LeaveEveryTextReadableInThePaletteThatTheyMake) {
  using P = QPalette;
  const std::vector<std::pair<P::ColorRole, P::ColorRole>> pairs = {
      {P::WindowText, P::Window},       {P::Text, P::Base},
      {P::Text, P::AlternateBase},      {P::ButtonText, P::Button},
      {P::ToolTipText, P::ToolTipBase}, {P::HighlightedText, P::Highlight}};
  const P light(QColor(0xef, 0xef, 0xef));
  const P dark(QColor(0x30, 0x30, 0x30));
  for (const P& given : {light, dark}) {
    for (const bool wanted : {false, true}) {
      const bool isDark = wanted || given == dark;
      const P made = ui::wishedPalette(given, {wanted, true, false});
      EXPECT_EQ(made.color(P::Window).lightness() < 128, isDark);
      for (const auto& [text, ground] : pairs)
        EXPECT_GT(Contrast(made.color(text), made.color(ground)), 11) << text << " " << ground;
    }
  }
  const P made = ui::wishedPalette(light, {true, false, false});
  for (const auto& [text, ground] : pairs)
    EXPECT_GT(Contrast(made.color(text), made.color(ground)), 4.5) << text << " " << ground;
  EXPECT_EQ(ui::wishedPalette(dark, {true, false, false}), dark) << "dark as it was chosen";
}

TEST(DesktopWishes, NoticesAreReadableWhenTheyHaveChanged) {
  QWidget window;
  auto* banner = new ui::NoticeBanner({}, {}, {}, &window);
  window.show();
  for (const bool dark : {true, false}) {
    banner->hide();
    ui::setDesktopWishes({dark, false, false});
    banner->show();
    ASSERT_EQ(QApplication::palette().color(QPalette::Window).lightness() < 128, dark);
    const QColor text = QApplication::palette().color(QPalette::WindowText);
    EXPECT_GT(Contrast(text, banner->palette().color(QPalette::Window)), 4.5) << dark;
  }
}

TEST(DesktopWishes, WhatCanBeTickedStandsOutFromADarkGround) {
  const QPalette dark = ui::wishedPalette(QColor(0xef, 0xef, 0xef), {true, false, false});
  ui::EdgedStyle style(QStringLiteral("fusion"));
  QRadioButton round;
  QCheckBox square;
  for (QAbstractButton* button : std::initializer_list<QAbstractButton*>{&round, &square}) {
    button->setStyle(&style);
    button->setPalette(dark);
    const QImage picture = button->grab().toImage();
    double most = 1;
    for (int x = 0; x < picture.width(); ++x) {
      const QColor pixel = picture.pixelColor(x, picture.height() / 2);
      most = std::max(most, Contrast(pixel, dark.color(QPalette::Window)));
    }
    EXPECT_GT(most, 3) << button->metaObject()->className();
  }
}

}  // namespace
}  // namespace orb::tests
