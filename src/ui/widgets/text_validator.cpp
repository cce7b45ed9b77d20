#include "ui/widgets/text_validator.h"

#include "model/record_file.h"
#include "text/qt/text_codec.h"

#include <algorithm>

namespace orb::ui {
namespace {

bool isLineEnd(QChar character) {
  return model::IsLineEnd(character.toLatin1());
}

/// Line ends are let through: the boxes make blanks of them, or lines of their own.
bool isStorable(QChar character) {
  const auto byte = text::ToBytes(QStringView(&character, 1));
  return byte && (model::IsStorable(byte->front()) || isLineEnd(character));
}

}  // namespace

QString storablePart(QStringView text) {
  QString part;
  std::copy_if(text.begin(), text.end(), std::back_inserter(part), isStorable);
  return part;
}

QString storageFault(QStringView text) {
  const auto* const fault = std::find_if_not(text.begin(), text.end(), isStorable);
  if (fault == text.end()) return {};
  if (*fault == QLatin1Char('"'))
    return TextValidator::tr("A game file cannot hold double quotes.");
  // A character beyond the basic plane takes two of Qt's.
  const auto length = fault->isHighSurrogate() && fault + 1 != text.end() ? 2 : 1;
  return TextValidator::tr("A game file cannot hold the character %1.")
      .arg(QStringView(fault, length));
}

QValidator::State TextValidator::validate(QString& text, int& /*position*/) const {
  std::replace_if(text.begin(), text.end(), isLineEnd, QChar(u' '));
  const QString fault = storageFault(text);
  if (fault.isEmpty()) return Acceptable;
  emit refused(fault);
  return Invalid;
}

std::string bytesOf(const QLineEdit& box) {
  return text::ToBytes(box.text()).value();
}

}  // namespace orb::ui
