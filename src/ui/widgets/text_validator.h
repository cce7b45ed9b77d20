#pragma once

#include <QLineEdit>
#include <QStringView>
#include <QValidator>

#include <string>

namespace orb::ui {

/// What of a text a game file can hold: not the double quotes, and no character without 8-bit form.
QString storablePart(QStringView text);

/// Names the first character of a text that a game file cannot hold, in a sentence for the user;
/// empty when it can hold all.
QString storageFault(QStringView text);

/// Refuses what a game file cannot hold while it is being typed or pasted. Line ends become blanks,
/// so that a line copied with its end can be pasted.
class TextValidator : public QValidator {
  Q_OBJECT

 public:
  using QValidator::QValidator;

  State validate(QString& text, int& position) const override;

 signals:
  /// Something was refused; `why` is a sentence for the user.
  void refused(const QString& why) const;
};

/// The 8-bit text of a text box that has a TextValidator.
std::string bytesOf(const QLineEdit& box);

}  // namespace orb::ui
