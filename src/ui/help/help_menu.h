#pragma once

#include "help/help_topics.h"
#include "ui/session/desk.h"

#include <QMenu>

#include <vector>

namespace orb::ui {

class HelpWindow;

/// The topics of the help text, each an entry, and what the program is. The entry that suits the
/// present stage has the key F1.
class HelpMenu : public QMenu {
  Q_OBJECT

 public:
  /// Without its file, which lies next to the program, the menu has no topics.
  HelpMenu(const Desk& desk, model::Messages& messages, QWidget* window);

  /// Opens the help window on a topic.
  void showTopic(const QString& caption);

  /// Opens one that can be used while the dialog is up, and that closes with it.
  void showTopicOver(const QString& caption, QWidget* dialog);

 private:
  void addTopics(QString& takenKeys);
  /// Gives F1 to the topic of the stage.
  void showStage();
  void about();

  const Desk& m_desk;
  model::Messages& m_messages;
  QWidget* m_window;
  std::string m_fault;  ///< why there are no topics
  help::HelpTopics m_topics;
  std::vector<QAction*> m_entries;  ///< one per topic, in their order
  /// Made when help is first wanted, and kept with the reader's history.
  HelpWindow* m_help = nullptr;
};

}  // namespace orb::ui
