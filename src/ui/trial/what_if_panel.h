#pragma once

#include "ui/session/desk.h"
#include "ui/trial/pair_search.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QWidget>

#include <memory>
#include <string>
#include <vector>

namespace orb::ui {

/// The answer to "What would have changed this?" about an order of the moves: the other orders
/// after which it would have come out otherwise, by powers. Selecting one tries it out. The panel
/// closes when the game changes or what is tried out ends.
class WhatIfPanel : public QWidget {
  Q_OBJECT

 public:
  WhatIfPanel(Desk& desk, model::Messages& messages, QWidget* parent = nullptr);

  bool isOpen() const { return m_before != nullptr; }

  /// Asks about an order of the moves that the report tells of.
  void askAboutReport(const std::string& order);

  /// Asks about a line of the list, as if it were resolved now.
  void askAboutList(const std::string& order);

  /// The keyboard goes to the first answer.
  void startReading();

 signals:
  /// The panel has something to show, or no longer.
  void openChanged();

  /// The caption of the help topic that is wanted.
  void helpWanted(const QString& topic);

 private:
  void ask(std::shared_ptr<const session::Situation> before, const std::string& order);
  /// Back to what was shown before the question.
  void close();
  /// Nothing is tried out any more, or something else.
  void leave();
  void layOut();
  QLayout* newPairsRow();
  void fillPowers(const std::string& own);
  // The list: groups with a heading each, and below it the changes.
  void addHeading(const QIcon& icon, const QString& text, const std::string& pairsOf = {});
  void addAlternative(const session::Alternative& alternative, const std::string& pairsOf = {});
  void removePairs(const std::string& power);
  void showSingles(const std::vector<session::Alternative>& found);
  void showPairs(const std::vector<session::Alternative>& found, bool whole);
  void showSearching(bool searching);
  void tryOutSelected();
  void searchPairs();
  std::string chosenPower() const;

  Desk& m_desk;
  model::Messages& m_messages;
  std::shared_ptr<const session::Situation> m_before;  ///< what is asked about; nothing: closed
  std::string m_order;
  bool m_wasTrying = false;  ///< the stage was tried out before the question
  std::vector<session::Alternative> m_alternatives;
  QLabel* m_question;
  QListWidget* m_list;
  QComboBox* m_power;
  QPushButton* m_search;
  QProgressBar* m_progress;
  QPushButton* m_cancel;
  PairSearch* m_pairs;
};

}  // namespace orb::ui
