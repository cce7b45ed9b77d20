#pragma once

#include <QEvent>
#include <QString>
#include <QWidget>

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

}  // namespace orb::ui
