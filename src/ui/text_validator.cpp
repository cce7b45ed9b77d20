#include "ui/text_validator.h"

#include "render/qt/text_codec.h"

namespace orb::ui {

QValidator::State TextValidator::validate(QString& text, int& /*position*/) const {
  const bool storable = !text.contains(QLatin1Char('"')) && render::ToBytes(text).has_value();
  return storable ? Acceptable : Invalid;
}

std::string bytesOf(const QLineEdit& box) {
  return render::ToBytes(box.text()).value();
}

}  // namespace orb::ui
