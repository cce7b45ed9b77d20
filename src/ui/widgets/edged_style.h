#pragma once

#include <QProxyStyle>

namespace orb::ui {

/// The style of the program with edges on dark grounds around what can be ticked, where it has
/// none that could be seen.
class EdgedStyle : public QProxyStyle {
  Q_OBJECT

 public:
  using QProxyStyle::QProxyStyle;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace orb::ui
