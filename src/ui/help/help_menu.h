#pragma once

#include "help/help_topics.h"
#include "ui/session/desk.h"

#include <QMenu>

#include <vector>

namespace orb::ui {

class HelpWindow;

/// The topics of the help text, and what the program is.
class HelpMenu : public QMenu {
  Q_OBJECT

 public:
  /// Without its file, which lies beside the program, the menu has no topics.
  HelpMenu(const Desk& desk, model::Messages& messages, QWidget* window);

  /// Opens the help window on a topic.
  void showTopic(const QString& caption);

  /// Opens one that can be used while the dialog is up, and closes with it.
  void showTopicOver(const QString& caption, QWidget* dialog);

 private:
  void addTopics(QString& takenKeys);
  void showStage();
  void about();

  const Desk& m_desk;
  model::Messages& m_messages;
  QWidget* m_window;
  std::string m_fault;  ///< why there are no topics
  help::HelpTopics m_topics;
  std::vector<QAction*> m_entries;  ///< one a topic
  HelpWindow* m_help = nullptr;
};

}  // namespace orb::ui
