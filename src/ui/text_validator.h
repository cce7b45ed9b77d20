#pragma once

#include <QLineEdit>
#include <QValidator>

#include <string>

namespace orb::ui {

/// Refuses while it is typed what a game file cannot hold: characters without 8-bit form and
/// double quotes.
class TextValidator : public QValidator {
  Q_OBJECT

 public:
  using QValidator::QValidator;

  State validate(QString& text, int& position) const override;
};

/// The 8-bit text of a text box that has a TextValidator.
std::string bytesOf(const QLineEdit& box);

}  // namespace orb::ui
