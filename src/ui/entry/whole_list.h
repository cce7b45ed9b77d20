#pragma once

#include "session/standing.h"

#include <QLabel>
#include <QListWidget>
#include <QScrollArea>

#include <vector>

namespace orb::ui {

/// A list that is as high as its lines and is scrolled as a part of something larger. The arrow
/// keys lead over its ends into the parts before and after it.
class ListPart : public QListWidget {
  Q_OBJECT

 public:
  explicit ListPart(QScrollArea& area);

  /// That part follows this one.
  void continueIn(ListPart& next);

  /// The first or last line that is not hidden, 0 or 1 past either end; -1 for none.
  int endRow(bool last) const;

  /// Takes the keyboard at its first or last line; false, nothing done, when it has none.
  bool enter(bool atLast);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
  void scrollTo(const QModelIndex& index, ScrollHint hint) override;

 protected:
  void updateGeometries() override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void bringIntoView();

  QScrollArea& m_area;
  ListPart* m_before = nullptr;
  ListPart* m_after = nullptr;
};

/// The lines of a stage and below them, fainter, what is still open: two lists that look and scroll
/// like one. The upper one holds the orders and nothing else.
class WholeList : public QScrollArea {
  Q_OBJECT

 public:
  /// `name` is that of the upper list; the lower one has "Open" behind it.
  WholeList(const QString& name, const QString& heading, QWidget* parent = nullptr);

  QListWidget& lines() { return *m_lines; }

  /// Shows what is open and hides what is of other powers than the chosen one. The upper list has
  /// the lines that the standings tell of.
  void showStandings(session::Standings standings, model::Stage stage);

  /// Only the lines of the power in this row are shown; 0: those of all.
  void showOnly(int power);

  /// Shows the first lines, for a list that has nothing in common with what it showed before.
  void scrollToTop();

  /// The keyboard goes to the lines, to the one selected or else to the last one.
  void enter();

 signals:
  /// It shall be ordered next.
  void openChosen(const orb::session::OpenOrder& open);

  /// A line was selected that is hidden: it is of another power.
  void hiddenLineSelected();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void hideOthers();

  ListPart* m_lines;
  QLabel* m_caption;
  ListPart* m_open;
  session::Standings m_standings;
  int m_power = 0;
};

}  // namespace orb::ui
