#include "ui/widgets/plain_text.h"

namespace orb::ui {

QString captionText(QString text) {
  text.replace(QLatin1Char('&'), QLatin1String("&&"));
  return text.replace(QLatin1Char('\t'), QLatin1Char(' '));
}

QString titleText(QString text) {
  // Doubled, the place holder stands for itself.
  text.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
  return text + QLatin1String("[*]");
}

}  // namespace orb::ui
