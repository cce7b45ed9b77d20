#include "ui/entry/order_entry_panel.h"

#include "orders/parser.h"
#include "text/qt/text_codec.h"
#include "ui/entry/line_checks.h"
#include "ui/entry/natural_line.h"
#include "ui/widgets/message_boxes.h"
#include "ui/widgets/text_validator.h"

#include <QEvent>
#include <QShortcut>

#include <algorithm>
#include <utility>

namespace orb::ui {
namespace {

using session::Changes;

// The grid below the list, from the top; the commands of a stage fill the second row.
constexpr int GridColumns = 4;
constexpr int TextRow = 0;
constexpr int CommandRow = 1;
constexpr int GapRow = 2;
constexpr int ListRow = 3;
constexpr int Gap = 2;

}  // namespace

OrderEntryPanel::OrderEntryPanel(Desk& desk, model::Stage stage, OrderList list,
                                 const OrderEntryTexts& texts, QWidget* parent)
    : QWidget(parent),
      m_desk(desk),
      m_stage(stage),
      m_orders(list),
      m_example(texts.example),
      m_writtenFor(game().Stage, desk.now().GameNumber),
      m_column(new QVBoxLayout(this)),
      m_grid(new QGridLayout),
      m_whole(new WholeList(texts.list, texts.heading)),
      m_list(&m_whole->lines()),
      m_missing(new ElidedLabel),
      m_text(new OrderBox),
      m_completion(new OrderCompletion(desk, *m_text)) {
  setObjectName(texts.panel);
  m_missing->setObjectName(texts.missing);
  m_text->setObjectName(texts.text);
  m_text->setAccessibleName(tr("Order"));
  m_text->setPlaceholderText(texts.example);
  // Only what a game file can hold gets into the box.
  m_text->setValidator(new TextValidator(m_text));
  layOut(texts);
  connectControls(texts.helpTopic);
  connectKeys();
  if (m_stage == model::Stage::Moves) addListMenu();
  showLines();
}

void OrderEntryPanel::layOut(const OrderEntryTexts& texts) {
  m_column->setContentsMargins({});
  m_column->addWidget(newHeading(texts.heading));
  m_column->addWidget(m_whole, 1);
  m_column->addWidget(m_missing);
  m_column->addLayout(m_grid);
  m_grid->addWidget(m_text, TextRow, 0, 1, GridColumns - 1);
  m_ok = addButton(texts.ok, tr("&OK"), tr("Puts the order into the list (Enter)"), TextRow,
                   GridColumns - 1);
  m_cancel = addButton(texts.cancel, tr("Ca&ncel"), tr("Empties the text box (Esc)"), ListRow, 0);
  m_delete =
      addButton(texts.remove, tr("&Delete"),
                tr("Removes the selected order from the list (Del in the list)"), ListRow, 1);
  m_help = addButton(texts.help, tr("Hel&p"), tr("Explains how to enter orders"), ListRow, 2);
  m_resolve = addButton(texts.resolve, tr("&Resolve"), texts.resolveTip, ListRow, 3);
  // Marked as the way on; in the box and in the list the Enter key does something else.
  m_resolve->setDefault(true);
  // Sets the last row apart from the commands: its buttons work on the list and the stage.
  m_grid->setRowMinimumHeight(GapRow, Gap);
  m_lastCommand = m_ok;
}

/// All as wide as the widest button.
void OrderEntryPanel::alignColumns() {
  int width = 0;
  for (const QPushButton* button : findChildren<QPushButton*>())
    width = std::max(width, button->sizeHint().width() + fontMetrics().averageCharWidth());
  for (int column = 0; column < GridColumns; ++column) {
    m_grid->setColumnStretch(column, 1);
    m_grid->setColumnMinimumWidth(column, width);
  }
}

QPushButton* OrderEntryPanel::addButton(const QString& name, const QString& caption,
                                        const QString& tip, int row, int column) {
  QPushButton* button = newButton(name, caption);
  button->setToolTip(tip);
  m_grid->addWidget(button, row, column);
  return button;
}

QPushButton* OrderEntryPanel::addCommand(const EntryCommand& command) {
  QPushButton* button = newButton(command.name, command.caption);
  button->setToolTip(command.tip);
  connect(button, &QPushButton::clicked, this, [this, words = command.words] { append(words); });
  addToCommands(button);
  return button;
}

void OrderEntryPanel::addToCommands(QWidget* control) {
  m_grid->addWidget(control, CommandRow, m_commandCount++);
  setTabOrder(m_lastCommand, control);
  m_lastCommand = control;
}

void OrderEntryPanel::addBelowHeading(QWidget* control) {
  m_column->insertWidget(1, control);
}

void OrderEntryPanel::connectControls(const QString& helpTopic) {
  connect(m_ok, &QPushButton::clicked, this, &OrderEntryPanel::fileOrder);
  connect(m_text, &QLineEdit::returnPressed, this, &OrderEntryPanel::fileOrder);
  connect(m_text, &QLineEdit::textChanged, this, [this](const QString& text) {
    // However it was emptied, a half clicked order is forgotten with its text.
    if (!text.isEmpty()) return;
    m_chosen = 0;
    beginLine();
  });
  connect(m_text, &OrderBox::severalLines, this, &OrderEntryPanel::ordersPasted);
  connect(m_cancel, &QPushButton::clicked, this, &OrderEntryPanel::cancelOrder);
  connect(m_delete, &QPushButton::clicked, this, &OrderEntryPanel::deleteOrder);
  connect(m_help, &QPushButton::clicked, this, [this, helpTopic] {
    // The keyboard is back where orders are written when the help is closed.
    focusText();
    emit helpWanted(helpTopic);
  });
  connect(m_resolve, &QPushButton::clicked, this, &OrderEntryPanel::resolve);
  // Clicked or chosen with the Enter key, a line comes into the box to be changed.
  connect(m_list, &QListWidget::itemClicked, this, &OrderEntryPanel::editSelectedOrder);
  connect(m_list, &QListWidget::itemActivated, this, &OrderEntryPanel::editSelectedOrder);
  connect(m_list, &QListWidget::itemSelectionChanged, this, &OrderEntryPanel::tellStatus);
  connect(m_whole, &WholeList::openChosen, this, [this](const session::OpenOrder& open) {
    m_text->clear();
    beginOrder(open);
  });
  connect(m_whole, &WholeList::hiddenLineSelected, this, &OrderEntryPanel::otherPowerSelected);
  m_desk.whenChanged(Changes::Season | Changes::Position | Changes::Orders | Changes::Rules, this,
                     &OrderEntryPanel::showLines);
  m_desk.whenChanged(Changes::Season | Changes::Game, this, &OrderEntryPanel::forgetLine);
  connect(&m_desk, &Desk::viewChanged, this, &OrderEntryPanel::showLines);
  connect(&m_desk, &Desk::stopped, this, &OrderEntryPanel::showStoppedLine);
}

void OrderEntryPanel::connectKeys() {
  const auto connectKey = [this](QWidget* control, Qt::Key key, auto command) {
    // These keys mean something else in every other control.
    auto* shortcut = new QShortcut(key, control, nullptr, nullptr, Qt::WidgetShortcut);
    connect(shortcut, &QShortcut::activated, this, command);
  };
  connectKey(m_text, Qt::Key_Escape, &OrderEntryPanel::goBack);
  connectKey(m_text, Qt::Key_Up, &OrderEntryPanel::focusList);
  connectKey(m_list, Qt::Key_Escape, &OrderEntryPanel::focusText);
  connectKey(m_list, Qt::Key_Delete, &OrderEntryPanel::deleteOrder);
}

void OrderEntryPanel::addListMenu() {
  auto* whatIf = new QAction(tr("&What would have changed this?"), m_list);
  whatIf->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_T);
  whatIf->setShortcutContext(Qt::WidgetShortcut);
  m_list->addAction(whatIf);
  m_list->setContextMenuPolicy(Qt::ActionsContextMenu);
  connect(whatIf, &QAction::triggered, this, [this] {
    if (m_list->selectedItems().isEmpty()) return;
    emit whatIfWanted((m_desk.game().*m_orders).at(static_cast<std::size_t>(m_list->currentRow())));
  });
}

void OrderEntryPanel::startEntry() {
  beginLine();
  focusText();
}

void OrderEntryPanel::showOnly(int power) {
  m_power = power;
  m_whole->showOnly(power);
  m_completion->offerOnly(power);
}

void OrderEntryPanel::tellLine() {
  if (!m_text->text().isEmpty()) emit statusText(m_text->text());
}

void OrderEntryPanel::focusText() {
  m_text->setFocus();
  m_text->end(false);
}

void OrderEntryPanel::focusList() {
  // Upwards from the box, the line that was filed last is next, or else the last one open.
  m_whole->enter();
}

std::string OrderEntryPanel::line() const {
  return bytesOf(*m_text);
}

void OrderEntryPanel::write(const std::string& line) {
  const QString text = text::ToQString(line);
  // A click mostly adds words. Inserted, they can be taken back one by one.
  if (text.startsWith(m_text->text())) return append(text.mid(m_text->text().size()));
  m_text->setText(text);
  focusText();
}

/// As if typed, so that it can be taken back.
void OrderEntryPanel::append(const QString& words) {
  m_text->end(false);
  m_text->insert(words);
  focusText();
}

void OrderEntryPanel::showLines() {
  // Each panel keeps its list up to date, but only the stage's own lines are checked.
  showTexts(*m_list, m_desk.game().*m_orders);
  if (m_desk.game().Stage == m_stage) markLines();
}

void OrderEntryPanel::forgetLine() {
  const std::pair now(game().Stage, m_desk.now().GameNumber);
  if (std::exchange(m_writtenFor, now) == now) return;
  m_text->clear();
  m_whole->scrollToTop();
}

void OrderEntryPanel::markLines() {
  const adjudication::ListCheck check = session::CheckOrders(m_desk.now());
  std::vector<std::string> otherReadings(check.Lines.size());
  if (m_desk.view().compare) otherReadings = session::OtherReadings(m_desk.now());
  showMarks(*m_list, check, otherReadings, m_desk.now().Stopped);
  showMissing(*m_missing, check, game());
  m_whole->showStandings(session::StandingsOf(m_desk.now()), m_stage);
  tellStatus();
}

void OrderEntryPanel::showStoppedLine() {
  // The line to be mended gets the keyboard, so that the Enter key brings it into the box.
  if (m_desk.game().Stage != m_stage || !m_desk.now().Stopped) return;
  m_list->setCurrentRow(m_desk.now().Stopped->Row);
  m_list->setFocus();
}

void OrderEntryPanel::tellStatus() {
  if (m_desk.game().Stage != m_stage) return;
  const QList<QListWidgetItem*> selected = m_list->selectedItems();
  // The status bar has one line.
  const QString reason = selected.isEmpty() ? QString() : selected.first()->toolTip();
  emit statusText(reason.split(QLatin1Char('\n')).join(QStringLiteral("; ")));
}

void OrderEntryPanel::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  alignColumns();
}

void OrderEntryPanel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  // How wide a caption is depends on both.
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) alignColumns();
}

void OrderEntryPanel::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  // Keeps the text, but not the steps that led to it.
  m_text->setText(m_text->text());
  emit statusText({});
}

bool OrderEntryPanel::fileOrder() {
  // A line in which no unit can be recognized is not filed, and stays in the box to be corrected.
  const bool filed = m_desk.fileOrder(naturalLine(game(), line(), m_power));
  const QString why = filed ? QString() : whyNotFiled();
  if (filed) {
    m_list->setCurrentRow(m_list->count() - 1);
    m_text->clear();
  }
  // Whoever walks the map by keys and files by Alt+O is to walk on.
  QWidget* keyboard = window()->focusWidget();
  startEntry();
  if (filed && keyboard != nullptr && !isAncestorOf(keyboard)) keyboard->setFocus();
  if (!filed) emit statusText(why);
  return filed;
}

QString OrderEntryPanel::whyNotFiled() const {
  if (m_text->text().trimmed().isEmpty()) return tr("Nothing to file: the box is empty.");
  if (isWaiver(game(), line(), m_power))
    return tr("Nothing to file: a power waives a build by leaving it open.");
  const std::string fault = naturalFault(game(), line(), m_power);
  if (!fault.empty()) return tr("Not filed: %1.").arg(text::ToQString(fault));
  const QString why = tr("Not filed: no unit with its place in brackets, as in %1.").arg(m_example);
  // Then lines may be written as people write.
  return m_power != 0 ? why : why + tr(" Or choose the power first, with Alt+1 to 7.");
}

void OrderEntryPanel::mapClicked(const MapSpot& at) {
  const bool plain = (at.modifiers & (Qt::ShiftModifier | Qt::ControlModifier)) == 0;
  const bool again = at.chosen != 0 && std::exchange(m_chosen, at.chosen) == at.chosen;
  if (!again || !plain || !isWhole()) return writeClick(at);
  const QString order = m_text->text().trimmed();
  if (!fileOrder()) return;
  // Whoever walks the map does not see the list, but is told what is wrong with the order.
  if (m_list->currentItem()->toolTip().isEmpty()) emit statusText(tr("Filed: %1").arg(order));
}

bool OrderEntryPanel::isWhole() const {
  return orders::IsWholeOrder(*game().Map, m_stage, naturalLine(game(), line(), m_power));
}

void OrderEntryPanel::resolve() {
  const QString text = m_text->text().trimmed();
  if (text.isEmpty()) return m_desk.resolve();
  if (isWhole()) {
    if (fileOrder()) m_desk.resolve();
    return;
  }
  MessageBox box(tr("The line in the box is no whole order:\n%1\nIt is not filed, and nothing is "
                    "resolved. Complete it, or empty the box.")
                     .arg(text),
                 QMessageBox::Warning, window());
  box.setStandardButtons(QMessageBox::Ok);
  box.exec();
  focusText();
}

void OrderEntryPanel::cancelOrder() {
  const bool givesUp = !m_text->text().isEmpty();
  m_text->clear();
  startEntry();
  // What the status bar says of a line that is given up is no longer true.
  if (givesUp) tellStatus();
}

void OrderEntryPanel::goBack() {
  const bool leavesTrial = m_text->text().isEmpty() && m_desk.trial();
  cancelOrder();
  if (leavesTrial) m_desk.endTrial();
}

void OrderEntryPanel::deleteOrder() {
  if (m_list->selectedItems().isEmpty()) return;
  m_desk.deleteOrder(m_list->currentRow());
  cancelOrder();
}

void OrderEntryPanel::editSelectedOrder() {
  m_chosen = 0;
  m_text->setText(m_list->currentItem()->text());
  startEntry();
}

std::string OrderEntryPanel::locationAt(const MapSpot& spot, std::string_view unitType) const {
  const int row = spot.locationFor(unitType);
  return row == 0 ? std::string() : game().Map->Provinces[row].Name;
}

}  // namespace orb::ui
