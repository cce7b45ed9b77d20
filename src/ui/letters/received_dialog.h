#pragma once

#include "letters/received.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>

#include <vector>

namespace orb::ui {

/// The register of what came in, the newest first, with a search in all of it.
class ReceivedDialog : public QDialog {
  Q_OBJECT

 public:
  ReceivedDialog(std::vector<letters::Receipt> receipts, const QString& file, QWidget* parent);

 private:
  void showFound();
  void showEntry();

  std::vector<letters::Receipt> m_receipts;
  QLineEdit* m_search;
  QListWidget* m_found;
  QPlainTextEdit* m_entry;
  QLabel* m_count;
};

}  // namespace orb::ui
