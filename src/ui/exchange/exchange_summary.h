#pragma once

#include "model/game_state.h"
#include "orders/exchange/read_line.h"

#include <QGridLayout>
#include <QWidget>

#include <string>
#include <vector>

namespace orb::ui {

class ElidedLabel;

/// For each power that a text has orders of: how many are sure, doubtful and unclear, and how many
/// of its units would have no order.
class ExchangeSummary : public QWidget {
  Q_OBJECT

 public:
  explicit ExchangeSummary(QWidget* parent);

  /// Shows the numbers of these lines; the taken ones are filed into a copy of the game. Where the
  /// orders of one power are wanted, only its units are counted.
  void showLines(const model::GameState& game, const std::vector<exchange::ReadLine>& lines,
                 const std::vector<exchange::ReadLine>& taken, const std::string& power);

 private:
  void showTexts(const QStringList& texts, const QStringList& details);

  QGridLayout* m_grid;
  std::vector<ElidedLabel*> m_labels;
};

}  // namespace orb::ui
