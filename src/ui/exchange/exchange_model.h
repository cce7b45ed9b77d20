#pragma once

#include "model/game_state.h"
#include "orders/exchange/read_orders.h"

#include <QAbstractTableModel>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace orb::ui {

/// A text of orders line by line: what was written and the order that was understood. Every order
/// can be taken or left out, and every line can be corrected.
///
/// The lines that wait for a decision come first, those that are not understood before the doubtful
/// ones; the others follow under a caption of their own. The rows are put in order when the text is
/// read and then stay where they are, whatever becomes of them.
///
/// The lines are not independent: what a support means can depend on the other orders, so unclear
/// lines are read again after every correction. Orders that were clear stay as they are, but of
/// several different orders for a unit only one is taken: the one that the user took or wrote last.
class ExchangeModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { Take, Written, Understood, ColumnCount };

  struct Counts {
    // Numbers of lines, except the last.
    int orders = 0;         ///< understood, doubtful ones and those of other powers too
    int unclear = 0;        ///< not understood or ambiguous
    int doubtful = 0;       ///< orders that are filed only with consent
    int taken = 0;          ///< orders that are ticked
    int takenDoubtful = 0;  ///< those of them that are doubtful
    int replacing = 0;      ///< units whose orders in the list give way to those that are taken
  };

  /// The game must outlive the model. The text is UTF-8 or Windows-1252.
  ExchangeModel(const model::GameState& game, std::string text,
                std::vector<exchange::TextRepair> repairs, QObject* parent);

  /// The abbreviation of the power whose orders the text should hold; empty: those of all. The text
  /// is read again for it, and corrected lines keep their corrections.
  void setPower(const std::string& power);
  const std::string& power() const { return m_power; }

  /// Shows what a line would mean with another text, until it is set or the trial ends.
  void tryText(int row, const QString& text);

  /// Shows the line as it is again.
  void endTrial();

  /// The power that the text itself is for, as far as it says so; else empty.
  std::string powerOfText() const;

  /// Whether a row is the caption of the rows below it, and no line of the text.
  bool isCaption(int row) const { return m_rows[static_cast<std::size_t>(row)] == CaptionRow; }

  /// A line as it was understood; during a trial as it would be. A caption is a line without
  /// anything.
  const exchange::ReadLine& line(int row) const;
  /// Whether the line holds nothing of an order, as greetings do. A corrected line is never passed
  /// over: whoever wrote into it wants to see it.
  bool isNoOrder(int row) const;

  /// The part of the written text that made the line unclear: offset and length in characters.
  std::pair<int, int> fault(int row) const { return at(row).fault; }

  Counts counts() const;
  /// All lines, in the order of the text.
  std::vector<exchange::ReadLine> lines() const;
  /// The orders that are ticked, in the order of the text.
  std::vector<exchange::ReadLine> takenLines() const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  struct Line {
    exchange::ReadLine read;
    QString written;
    QString original;           ///< before it was corrected
    std::string power;          ///< that the lines there are for
    std::pair<int, int> fault;  ///< in the written text
    std::string subject;        ///< of its order: what different orders contradict each other about
    bool isTaken = false;
    bool isLeftOut = false;  ///< unticked by hand
  };
  static constexpr int CaptionRow = -1;

  exchange::ReadLine read(const Line& line, const QString& text) const;
  void rewrite(Line& line, const QString& text);
  // What setPower and setData are made of.
  void readUnclearAgain();
  void emitMeaning(int row);
  void takeAnew(const std::vector<Line>& before);
  void arrangeRows();
  void take(Line& line);
  /// A line that is taken though it orders something else for the line's unit; null: none.
  const Line* rivalOf(const Line& line) const;
  // What is doubtful about an order that was understood.
  bool isOfOther(const exchange::ReadLine& line) const;
  bool needsConsent(const exchange::ReadLine& line) const;
  bool isReplacing(const exchange::ReadLine& line) const;
  QString reasonOf(const exchange::ReadLine& line) const;
  QString objection(int row) const;
  QVariant captionData(int row, int role) const;
  QVariant takeData(int row, int role) const;
  QVariant understoodData(int row, int role) const;
  QVariant writtenData(int row, int role) const;
  const Line& at(int row) const {
    return m_lines[static_cast<std::size_t>(m_rows[static_cast<std::size_t>(row)])];
  }
  Line& at(int row) {
    return m_lines[static_cast<std::size_t>(m_rows[static_cast<std::size_t>(row)])];
  }

  const model::GameState& m_game;
  /// The whole text as it came in; every choice of a power reads it from the beginning.
  std::string m_text;
  std::vector<exchange::TextRepair> m_repairs;
  std::string m_power;
  std::vector<Line> m_lines;  ///< in the order of the text
  std::vector<int> m_rows;    ///< the line that each row shows, or CaptionRow
  std::optional<std::pair<int, exchange::ReadLine>> m_trial;
};

}  // namespace orb::ui
