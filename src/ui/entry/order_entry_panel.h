#pragma once

#include "ui/entry/order_completion.h"
#include "ui/entry/whole_list.h"
#include "ui/map/map_tool.h"
#include "ui/session/desk.h"
#include "ui/widgets/controls.h"

#include <QGridLayout>
#include <QVBoxLayout>
#include <QWidget>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orb::ui {

/// A button that appends words to the line. The words bring their own blanks, so that the line is
/// right whatever is clicked or typed next.
struct EntryCommand {
  QString name;
  QString caption;
  QString tip;
  QString words;
};

/// How the panels of the three stages differ: in the names of their controls and in their texts.
struct OrderEntryTexts {
  QString panel;
  QString list;
  QString missing;  ///< the label below the list
  QString text;
  QString ok;
  QString cancel;
  QString remove;
  QString help;
  QString resolve;
  QString heading;
  QString example;  ///< shown in the empty text box
  QString helpTopic;
  QString resolveTip;
};

/// The common part of the panels of three stages: a list of order lines, the box in which a line is
/// written by keyboard, by buttons or by clicks on the map, and the command that resolves them.
///
/// The list in the game is the only store of the orders; the panel shows it and hands each line to
/// the desk. Nothing is refused while it is entered: what is wrong with a line only marks it.
class OrderEntryPanel : public QWidget, public MapTool {
  Q_OBJECT

 public:
  /// Called when the panel has come up: the keyboard goes to the box, and a new line begins.
  void startEntry();

  /// The keyboard goes to the box, behind what stands there.
  void focusText();

  /// Only the lines of the power in this row are shown, and lines that name no power are for it; 0:
  /// all are shown.
  void showOnly(int power);

  /// Writes what the click means; chosen by keys a second time in a row, the place files the order
  /// that has come of it.
  void mapClicked(const MapSpot& at) final;

  /// Says in the status bar what is in the box, unless it is empty.
  void tellLine();

 signals:
  /// The caption of the help topic that is wanted.
  void helpWanted(const QString& topic);

  /// Several lines came into the box for one order.
  void ordersPasted(const QString& text);

  /// What is to be said about the selected line; empty for nothing.
  void statusText(const QString& text);

  /// What would have changed what comes of this order of the moves?
  void whatIfWanted(const std::string& order);
  /// A line was selected that is of another power than the one shown.
  void otherPowerSelected();

 protected:
  /// One of the lists of order lines in the game.
  using OrderList = std::vector<std::string> model::GameState::*;

  /// The stage is that of the list.
  OrderEntryPanel(Desk& desk, model::Stage stage, OrderList list, const OrderEntryTexts& texts,
                  QWidget* parent);

  const model::GameState& game() const { return m_desk.game(); }
  /// The line in the box, in the encoding of game files.
  std::string line() const;

  /// Puts into the box what a click made of its line, to be continued there.
  void write(const std::string& line);

  /// Abbreviation of the location at the spot as a unit of this type sees it; empty for none.
  std::string locationAt(const MapSpot& spot, std::string_view unitType) const;

  /// Adds a button for words that orders of the stage are made of.
  QPushButton* addCommand(const EntryCommand& command);

  /// Adds a control after the commands, in their row.
  void addToCommands(QWidget* control);

  /// Adds a control between the heading and the list.
  void addBelowHeading(QWidget* control);

  /// Writes into the box what a click on the map means.
  virtual void writeClick(const MapSpot& at) = 0;

  /// The next click on the map begins a line.
  virtual void beginLine() {}

  /// Writes the beginning of an order, as a click on its unit would.
  virtual void beginOrder(const session::OpenOrder& open) { write(open.Begin()); }

  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QPushButton* addButton(const QString& name, const QString& caption, const QString& tip, int row,
                         int column);
  void layOut(const OrderEntryTexts& texts);
  void alignColumns();
  void connectControls(const QString& helpTopic);
  void connectKeys();
  void addListMenu();
  /// Leaves the box, or what is tried out.
  void goBack();
  void focusList();
  void append(const QString& words);
  // What the list shows: its lines, their marks, and the row at which resolving stopped.
  void showLines();
  void markLines();
  /// Another stage or game has no use for the line in the box.
  void forgetLine();
  void showStoppedLine();
  void tellStatus();
  // What the buttons and keys do.
  /// False when nothing was filed; the status bar says why.
  bool fileOrder();
  /// Whether an order that lacks nothing is in the box.
  bool isWhole() const;
  QString whyNotFiled() const;
  /// Files a whole order that is still in the box first, and stops where it is none.
  void resolve();
  void cancelOrder();
  void deleteOrder();
  void editSelectedOrder();

  Desk& m_desk;
  model::Stage m_stage;
  OrderList m_orders;
  QString m_example;
  /// What the line in the box is written for: the stage, and the number of the game.
  std::pair<model::Stage, int> m_writtenFor;
  QVBoxLayout* m_column;
  QGridLayout* m_grid;
  WholeList* m_whole;
  QListWidget* m_list;  ///< of orders alone, in the whole one
  ElidedLabel* m_missing;
  OrderBox* m_text;
  OrderCompletion* m_completion;
  QPushButton* m_ok;
  QPushButton* m_cancel;
  QPushButton* m_delete;
  QPushButton* m_help;
  QPushButton* m_resolve;
  /// The last control of the row of commands, after which the Tab key goes to a further one.
  QWidget* m_lastCommand;
  int m_commandCount = 0;
  int m_power = 0;   ///< row of the one that is shown alone
  int m_chosen = 0;  ///< row of the location that keys chose last for the line in the box
};

}  // namespace orb::ui
