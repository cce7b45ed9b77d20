#pragma once

#include "ui/session/desk.h"

#include <QLabel>
#include <QListWidget>
#include <QWidget>

#include <string>
#include <vector>

namespace orb::ui {

/// The report of the season resolved last; a selected line says why it came out so.
class ReportPanel : public QWidget {
  Q_OBJECT

 public:
  explicit ReportPanel(const Desk& desk, QWidget* parent = nullptr);

  /// The user is about to read the report.
  void startReading();

 signals:
  /// The units at these locations had a part in the selected line; the first is the line's own.
  void unitsPicked(const std::vector<std::string>& locations);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void layOut();
  void addListActions();
  void showReport();
  void colourLines();
  void showReason();
  void copySelectedLines();

  const Desk& m_desk;
  QListWidget* m_lines;
  QLabel* m_reason;
};

}  // namespace orb::ui
