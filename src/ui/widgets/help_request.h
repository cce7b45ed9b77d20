#pragma once

#include <QDialog>
#include <QEvent>
#include <QString>
#include <QWidget>

class QDialogButtonBox;

namespace orb::ui {

/// Asks the windows below a dialog for a help topic, until one of them accepts the request.
class HelpRequest : public QEvent {
 public:
  HelpRequest(QWidget& from, QString caption);

  static QEvent::Type kind();

  QWidget& dialog;  ///< over which the help is to open
  QString topic;    ///< the topic's caption
};

/// Sends such a request.
void askForHelp(QWidget& dialog, const QString& topic);

/// The button alone, in the dialog's box of buttons, which is given; null where it has none.
QDialogButtonBox* addHelpButton(const QDialog& dialog);

/// Gives one of Qt's own dialogs a Help button; the system's dialogs have no room for one.
void offerHelp(QDialog& dialog, const QString& topic);

}  // namespace orb::ui
