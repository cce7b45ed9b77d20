#pragma once

#include "ui/session/desk.h"

#include <QAction>
#include <QLabel>
#include <QListWidget>
#include <QStackedWidget>
#include <QWidget>

#include <string>
#include <vector>

namespace orb::ui {

/// The report of the season resolved last, line by line; failed orders are red, those that came out
/// otherwise than by the other rules are marked. Below it stands why the selected line came out as
/// it did, and what the other rules would have brought. As long as there is no report it says so.
class ReportPanel : public QWidget {
  Q_OBJECT

 public:
  explicit ReportPanel(const Desk& desk, QWidget* parent = nullptr);

  /// The keyboard goes to the first line that is new, so that the arrow keys lead through the
  /// reasons.
  void startReading();

 signals:
  /// The units at these locations had a part in the selected line; the first is the line's own.
  void unitsPicked(const std::vector<std::string>& locations);

  void helpWanted(const QString& topic);

  /// What would have changed this order of the moves?
  void whatIfWanted(const std::string& order);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void layOut();
  /// Copying and selecting everything, by key and in the list's own menu.
  void addListActions();
  void showReport();
  /// The order that the selected line tells of; empty for none.
  std::string currentOrder() const;
  void select(const std::string& order);
  /// Whether it can be told what would have changed the selected line, or why not.
  void showWhatIf();
  /// The first of the lines that were not there before comes to the top.
  void scrollToNew();
  /// Says above the lines how many orders came out otherwise than by the other rules.
  void showDifferences();
  /// Needed again when the theme changes from light to dark.
  void colourLines();
  /// Shows why the current line came out so, or how to find out while none is selected.
  void showReason();
  /// Copies them as they stand, one per line, so that they can be quoted in a mail.
  void copySelectedLines();

  const Desk& m_desk;
  QStackedWidget* m_pages;  ///< without a report, and with one
  QLabel* m_none;
  QLabel* m_differences;
  QListWidget* m_lines;
  QLabel* m_reason;
  QAction* m_whatIf;
  int m_firstNew = 0;  ///< row of the first line that the last change brought
};

}  // namespace orb::ui
