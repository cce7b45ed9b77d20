#include "ui/facts/report_panel.h"

#include "text/qt/text_codec.h"
#include "ui/widgets/controls.h"
#include "ui/widgets/order_marks.h"

#include <QAction>
#include <QClipboard>
#include <QEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QScrollArea>
#include <QVBoxLayout>

namespace orb::ui {
namespace {

// How many lines of text the reason takes at the least and at the most.
constexpr int FewestReasonLines = 2;
constexpr int ReasonLines = 4;

}  // namespace

ReportPanel::ReportPanel(const Desk& desk, QWidget* parent)
    : QWidget(parent),
      m_desk(desk),
      m_differences(new QLabel),
      m_lines(new QListWidget),
      m_reason(new QLabel) {
  setObjectName(QStringLiteral("fraReport"));
  m_lines->setObjectName(QStringLiteral("lstReport"));
  m_lines->setAccessibleName(tr("Report"));
  // The report marks failed orders with brackets in columns, which need letters of equal widths.
  m_lines->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
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
  m_lines->setItemDelegate(new OrderMarkDelegate(m_lines));
  layOut();
  addListActions();
  connect(m_lines, &QListWidget::itemSelectionChanged, this, &ReportPanel::showReason);
  m_desk.whenChanged(session::Changes::Report, this, &ReportPanel::showReport);
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
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addWidget(m_differences);
  column->addWidget(m_lines, 1);
  column->addWidget(reason);
}

void ReportPanel::addListActions() {
  auto* copy = new QAction(tr("&Copy"), m_lines);
  copy->setShortcut(QKeySequence::Copy);
  auto* selectAll = new QAction(tr("Select &all"), m_lines);
  selectAll->setShortcut(QKeySequence::SelectAll);
  for (QAction* action : {copy, selectAll}) {
    // Elsewhere in the window the same keys copy the map.
    action->setShortcutContext(Qt::WidgetShortcut);
    m_lines->addAction(action);
  }
  m_lines->setContextMenuPolicy(Qt::ActionsContextMenu);
  connect(copy, &QAction::triggered, this, &ReportPanel::copySelectedLines);
  connect(selectAll, &QAction::triggered, m_lines, &QListWidget::selectAll);
}

void ReportPanel::startReading() {
  m_lines->setFocus();
  m_lines->setCurrentRow(0);
}

void ReportPanel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) colourLines();
}

void ReportPanel::showReport() {
  // A report that is the same stays as it is, with what is selected in it.
  const auto& report = m_desk.game().ReportLines;
  if (showTexts(*m_lines, {report.begin(), report.end()})) {
    colourLines();
    showReason();
  }
  showDifferences();
  setVisible(report.Count() > 0);
}

void ReportPanel::showDifferences() {
  const session::Situation& now = m_desk.now();
  // The number is all that is not fixed: nothing from outside becomes part of the markup.
  const std::string text =
      session::DifferencesText(static_cast<int>(now.Differences.size()), now.ResolvedBy);
  m_differences->setText(
      QStringLiteral("<a href=\"differences\">%1</a>").arg(text::ToQString(text)));
  m_differences->setVisible(!now.Differences.empty());
  for (int row = 0; row < m_lines->count(); ++row) {
    const std::string& otherwise = now.Notes.at(static_cast<std::size_t>(row)).Otherwise;
    const auto mark = otherwise.empty() ? OrderMark::None : OrderMark::Otherwise;
    QListWidgetItem& item = *m_lines->item(row);
    item.setData(OrderMarkRole, static_cast<int>(mark));
    item.setData(Qt::AccessibleDescriptionRole, text::ToQString(otherwise));
  }
}

void ReportPanel::colourLines() {
  const std::vector<session::ReportNote>& notes = m_desk.now().Notes;
  for (int row = 0; row < m_lines->count(); ++row) {
    const bool failed = notes.at(static_cast<std::size_t>(row)).Failed;
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
  if (!chosen) return emit unitsPicked({});
  const session::ReportNote& note =
      m_desk.now().Notes.at(static_cast<std::size_t>(m_lines->currentRow()));
  const QString reason = text::ToQString(note.Reason);
  m_reason->setText(note.Otherwise.empty()
                        ? reason
                        : reason + QLatin1Char('\n') + text::ToQString(note.Otherwise));
  emit unitsPicked(note.Locations);
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
