#include "ui/facts/report_panel.h"

#include "text/qt/text_codec.h"
#include "ui/widgets/controls.h"
#include "ui/widgets/fixed_font.h"
#include "ui/widgets/hanging_delegate.h"

#include <QAction>
#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace orb::ui {
namespace {

// How many lines of text the reason takes at the least and at the most.
constexpr int FewestReasonLines = 2;
constexpr int ReasonLines = 4;

/// Where a line keeps the order that it tells of, as bytes.
constexpr int OrderRole = OrderMarkRole + 1;

/// The row of the first line that the list shows otherwise or not at all.
template <class Report>
int firstOther(const QListWidget& list, const Report& report) {
  int row = 0;
  while (row < std::min(list.count(), report.Count()) &&
         list.item(row)->text() == text::ToQString(report[row + 1])) {
    ++row;
  }
  return row;
}

}  // namespace

ReportPanel::ReportPanel(const Desk& desk, QWidget* parent)
    : QWidget(parent),
      m_desk(desk),
      m_pages(new QStackedWidget),
      m_none(new QLabel),
      m_differences(new QLabel),
      m_lines(new QListWidget),
      m_reason(new QLabel),
      m_whatIf(new QAction(tr("&What would have changed this?"), this)) {
  setObjectName(QStringLiteral("fraReport"));
  m_lines->setObjectName(QStringLiteral("lstReport"));
  m_lines->setAccessibleName(tr("Report"));
  // The report marks failed orders with brackets in columns, which need letters of equal widths.
  m_lines->setFont(fixedFont());
  m_lines->setSelectionMode(QAbstractItemView::ExtendedSelection);
  // Long lines are wrapped rather than scrolled to.
  m_lines->setWordWrap(true);
  m_reason->setObjectName(QStringLiteral("lblReason"));
  m_reason->setWordWrap(true);
  m_reason->setTextFormat(Qt::PlainText);
  m_reason->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  // A game master quotes reasons in mails.
  m_reason->setTextInteractionFlags(Qt::TextSelectableByMouse);
  m_differences->setObjectName(QStringLiteral("lblDifferences"));
  m_differences->setTextFormat(Qt::RichText);
  m_differences->setWordWrap(true);
  m_differences->setTextInteractionFlags(Qt::LinksAccessibleByMouse |
                                         Qt::LinksAccessibleByKeyboard);
  connect(m_differences, &QLabel::linkActivated, this,
          [this] { emit helpWanted(tr("Differences from the usual rules")); });
  m_lines->setItemDelegate(new HangingDelegate(m_lines));
  layOut();
  addListActions();
  connect(m_lines, &QListWidget::itemSelectionChanged, this, &ReportPanel::showReason);
  m_desk.whenShownChanged(session::Changes::Report, this, &ReportPanel::showReport);
  showReport();
}

void ReportPanel::layOut() {
  // A long reason is scrolled to where the window is low.
  auto* reason = new QScrollArea;
  reason->setFrameShape(QFrame::NoFrame);
  reason->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  reason->setWidgetResizable(true);
  reason->setFocusPolicy(Qt::NoFocus);
  reason->setWidget(m_reason);
  reason->setMinimumHeight(FewestReasonLines * fontMetrics().lineSpacing());
  reason->setMaximumHeight(ReasonLines * fontMetrics().lineSpacing());
  auto* whatIf = newButton(QStringLiteral("butWhatIf"), m_whatIf->text());
  connect(whatIf, &QPushButton::clicked, m_whatIf, &QAction::trigger);
  connect(m_whatIf, &QAction::changed, whatIf, [this, whatIf] {
    whatIf->setEnabled(m_whatIf->isEnabled());
    whatIf->setToolTip(m_whatIf->toolTip());
  });
  m_none->setForegroundRole(QPalette::PlaceholderText);
  m_none->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  m_none->setMargin(fontMetrics().averageCharWidth());
  m_none->setWordWrap(true);
  auto* report = new QWidget;
  m_pages->addWidget(m_none);
  m_pages->addWidget(report);
  (new QVBoxLayout(this))->addWidget(m_pages);
  layout()->setContentsMargins({});
  auto* column = new QVBoxLayout(report);
  column->setContentsMargins({});
  column->addWidget(m_differences);
  column->addWidget(m_lines, 1);
  column->addWidget(reason);
  column->addWidget(whatIf, 0, Qt::AlignRight);
}

void ReportPanel::addListActions() {
  auto* copy = new QAction(tr("&Copy"), m_lines);
  copy->setShortcut(QKeySequence::Copy);
  auto* selectAll = new QAction(tr("Select &all"), m_lines);
  selectAll->setShortcut(QKeySequence::SelectAll);
  m_whatIf->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_T);
  for (QAction* action : {m_whatIf, copy, selectAll}) {
    // Elsewhere in the window the same keys copy the map.
    action->setShortcutContext(Qt::WidgetShortcut);
    m_lines->addAction(action);
  }
  m_lines->setContextMenuPolicy(Qt::ActionsContextMenu);
  connect(copy, &QAction::triggered, this, &ReportPanel::copySelectedLines);
  connect(m_whatIf, &QAction::triggered, this, [this] { emit whatIfWanted(currentOrder()); });
  connect(selectAll, &QAction::triggered, m_lines, &QListWidget::selectAll);
}

void ReportPanel::startReading() {
  m_lines->setFocus();
  m_lines->setCurrentRow(m_firstNew);
  scrollToNew();
}

void ReportPanel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::EnabledChange)
    colourLines();
}

void ReportPanel::showReport() {
  // A report that is the same stays as it is, with what is selected in it.
  const auto& report = m_desk.shown().Game.ReportLines;
  const std::string order = currentOrder();
  const int firstNew = firstOther(*m_lines, report);
  const bool isOther = showTexts(*m_lines, {report.begin(), report.end()});
  showDifferences();
  if (isOther) {
    m_firstNew = firstNew;
    select(order);
    // When the panel is in front and has its size.
    if (currentOrder().empty()) QTimer::singleShot(0, this, &ReportPanel::scrollToNew);
  }
  colourLines();
  showReason();
  const bool isLost = m_desk.past() && m_desk.shown().Game.Stage != model::Stage::Moves;
  m_none->setText(isLost ? tr("The report of this stage is not among the game's files: no file "
                              "holds the orders that led to it.")
                         : tr("No report yet."));
  m_pages->setCurrentIndex(report.Count() > 0 ? 1 : 0);
}

void ReportPanel::scrollToNew() {
  if (const QListWidgetItem* line = m_lines->item(m_firstNew))
    m_lines->scrollToItem(line, QAbstractItemView::PositionAtTop);
}

std::string ReportPanel::currentOrder() const {
  const QListWidgetItem* current = m_lines->currentItem();
  const bool chosen = current != nullptr && current->isSelected();
  return chosen ? current->data(OrderRole).toByteArray().toStdString() : std::string();
}

void ReportPanel::select(const std::string& order) {
  const std::vector<session::ReportNote>& notes = m_desk.shown().Notes;
  const auto line = std::ranges::find(notes, order, &session::ReportNote::Order);
  if (!order.empty() && line != notes.end())
    m_lines->setCurrentRow(static_cast<int>(line - notes.begin()));
}

void ReportPanel::showDifferences() {
  const session::Situation& shown = m_desk.shown();
  // The number is all that is not fixed: nothing from outside becomes part of the markup.
  const std::string text =
      session::DifferencesText(static_cast<int>(shown.Differences.size()), shown.ResolvedBy);
  m_differences->setText(
      QStringLiteral("<a href=\"differences\">%1</a>").arg(text::ToQString(text)));
  m_differences->setVisible(!shown.Differences.empty());
  for (int row = 0; row < m_lines->count(); ++row) {
    const session::ReportNote& note = shown.Notes.at(static_cast<std::size_t>(row));
    const auto mark = note.Otherwise.empty() ? OrderMark::None : OrderMark::Otherwise;
    QListWidgetItem& item = *m_lines->item(row);
    item.setData(OrderMarkRole, static_cast<int>(mark));
    item.setData(Qt::AccessibleDescriptionRole, text::ToQString(note.Otherwise));
    item.setData(OrderRole, QByteArray::fromStdString(note.Order));
  }
}

void ReportPanel::colourLines() {
  const std::vector<session::ReportNote>& notes = m_desk.shown().Notes;
  for (int row = 0; row < m_lines->count(); ++row) {
    // A colour of its own would have no disabled form.
    const bool failed = isEnabled() && notes.at(static_cast<std::size_t>(row)).Failed;
    const QColor background = palette().color(QPalette::Base);
    m_lines->item(row)->setForeground(failed ? failureColour(background) : QBrush());
  }
}

void ReportPanel::showReason() {
  const QListWidgetItem* current = m_lines->currentItem();
  // Of several selected lines the current one is explained.
  const bool chosen = current != nullptr && current->isSelected();
  m_reason->setForegroundRole(chosen ? QPalette::WindowText : QPalette::PlaceholderText);
  m_reason->setText(tr("Select a line to read why it came out so."));
  showWhatIf();
  if (!chosen) return emit unitsPicked({});
  const session::ReportNote& note =
      m_desk.shown().Notes.at(static_cast<std::size_t>(m_lines->currentRow()));
  const QString reason = text::ToQString(note.Reason);
  m_reason->setText(note.Otherwise.empty()
                        ? reason
                        : reason + QLatin1Char('\n') + text::ToQString(note.Otherwise));
  emit unitsPicked(note.Locations);
}

void ReportPanel::showWhatIf() {
  const bool isKnown = m_desk.shown().BeforeMoves != nullptr;
  m_whatIf->setEnabled(isKnown && !currentOrder().empty());
  m_whatIf->setToolTip(
      m_whatIf->isEnabled() ? tr("The other orders that would have made a difference to it")
      : isKnown             ? tr("Select a line that tells of an order of the moves.")
                            : tr("The moves were resolved before the game was opened: what led to "
                                             "them is not known."));
}

void ReportPanel::copySelectedLines() {
  QString text;
  for (int row = 0; row < m_lines->count(); ++row) {
    const QListWidgetItem* item = m_lines->item(row);
    if (item->isSelected()) text += item->text() + QLatin1Char('\n');
  }
  QGuiApplication::clipboard()->setText(text);
}

}  // namespace orb::ui
