#pragma once

#include "ui/help/help_history.h"
#include "ui/help/help_text.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QToolBar>
#include <QUrl>
#include <QWidget>

#include <vector>

namespace orb::ui {

class HelpPage;

/// The help: the topics at the left, the text of one at the right, and above them the way back and
/// forward, printing, and the search through all topics. It stays open beside the window that it
/// belongs to.
class HelpWindow : public QWidget {
  Q_OBJECT

 public:
  explicit HelpWindow(help::HelpTopics topics, QWidget* parent = nullptr);

  /// Shows a topic, with the window in front of the others. For a caption that no topic has, the
  /// topic that was shown before stays, or the first is shown.
  void showTopic(const QString& caption);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  /// A command with its keys, which work everywhere in the window; the first key stands in its tip.
  QAction* addCommand(const QString& name, const QString& text, const QList<QKeySequence>& keys,
                      void (HelpWindow::*slot)());
  QToolBar* newBar();
  void addPrintMenu(QToolBar& bar);
  void addSearch(QToolBar& bar);
  void layOut();

  int topicCount() const { return static_cast<int>(m_topics.size()); }
  // Where the reader is. Every way to a topic leads through visit, which keeps the history.
  void visit(int topic, bool found);
  void goBack();
  void goForward();
  void followLink(const QUrl& link);
  void showHere();
  /// Renders all texts again, in the colours and the font now in force.
  void restyle();

  // The search runs at every letter typed, and marks all matches in the topic shown.
  void startSearch();
  void search(const QString& wanted);
  void findNext() { goToMatch(m_match + 1); }
  void findPrevious() { goToMatch(m_match - 1); }
  /// Beyond the last match comes the first, and the other way round.
  void goToMatch(int match);
  void showMatches();
  /// How many matches each topic has, after its name in the list.
  void showMatchCounts();

  void printTopic();
  void printAllTopics();

  help::HelpTopics m_topics;
  std::vector<QString> m_texts;  ///< of the topics, as shown; a match stands where it stands here
  HelpHistory m_history;
  std::vector<HelpMatch> m_matches;
  int m_match = -1;  ///< in m_matches; -1 for none

  QListWidget* m_list;
  HelpPage* m_page;
  QLineEdit* m_wanted;
  QLabel* m_found;
  QAction* m_back;
  QAction* m_forward;
  QAction* m_previous;
  QAction* m_next;
};

}  // namespace orb::ui
