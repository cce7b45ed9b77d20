#include "ui/entry/whole_list.h"

#include "text/qt/text_codec.h"
#include "ui/widgets/controls.h"
#include "ui/widgets/hanging_delegate.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace orb::ui {

ListPart::ListPart(QScrollArea& area) : m_area(area) {
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  setWordWrap(true);
  setItemDelegate(new HangingDelegate(this));
}

void ListPart::continueIn(ListPart& next) {
  m_after = &next;
  next.m_before = this;
}

int ListPart::endRow(bool last) const {
  for (int i = 0; i < count(); ++i) {
    const int row = last ? count() - 1 - i : i;
    if (!isRowHidden(row)) return row;
  }
  return -1;
}

bool ListPart::enter(bool atLast) {
  const int row = endRow(atLast);
  if (row < 0) return false;
  setCurrentRow(row);
  setFocus();
  return true;
}

QSize ListPart::sizeHint() const {
  return {QListWidget::sizeHint().width(), endRow(false) < 0 ? 0 : contentsSize().height()};
}

void ListPart::updateGeometries() {
  QListWidget::updateGeometries();
  // A list without a line has no place for the keyboard to be seen in.
  setFocusPolicy(endRow(false) < 0 ? Qt::NoFocus : Qt::StrongFocus);
  if (height() != sizeHint().height()) updateGeometry();
}

/// The list itself has nothing to scroll.
void ListPart::scrollTo(const QModelIndex& /*index*/, ScrollHint /*hint*/) {
  // A line that was just added has its place only when everything is laid out.
  QTimer::singleShot(0, this, &ListPart::bringIntoView);
}

void ListPart::bringIntoView() {
  executeDelayedItemsLayout();
  QCoreApplication::sendPostedEvents(m_area.widget(), QEvent::LayoutRequest);
  QCoreApplication::sendPostedEvents(&m_area, QEvent::LayoutRequest);
  const QModelIndex index = currentIndex();
  if (!index.isValid() || isRowHidden(index.row())) return;
  const QRect line = visualRect(index);
  const QPoint middle = viewport()->mapTo(m_area.widget(), line.center());
  m_area.ensureVisible(0, middle.y(), 0, line.height());
}

void ListPart::keyPressEvent(QKeyEvent* event) {
  const bool up = event->key() == Qt::Key_Up && currentRow() == endRow(false);
  const bool down = event->key() == Qt::Key_Down && currentRow() == endRow(true);
  if (up && m_before != nullptr && m_before->enter(true)) return;
  if (down && m_after != nullptr && m_after->enter(false)) return;
  QListWidget::keyPressEvent(event);
}

void ListPart::focusOutEvent(QFocusEvent* event) {
  QListWidget::focusOutEvent(event);
  // Tab selects nothing where it leads.
  const auto leads = [](const ListPart* to) { return to != nullptr && to->hasFocus(); };
  if (leads(m_before) || leads(m_after)) clearSelection();
}

void ListPart::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  QListWidget::selectionChanged(selected, deselected);
  // Of the parts together only one line is selected, wherever the keyboard is.
  if (selected.isEmpty()) return;
  for (ListPart* other : {m_before, m_after})
    if (other != nullptr) other->clearSelection();
}

void ListPart::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

/// The colour of faint text has no disabled form.
void WholeList::changeEvent(QEvent* event) {
  QScrollArea::changeEvent(event);
  if (event->type() == QEvent::EnabledChange)
    m_caption->setForegroundRole(isEnabled() ? QPalette::PlaceholderText : QPalette::WindowText);
}

WholeList::WholeList(const QString& name, const QString& heading, QWidget* parent)
    : QScrollArea(parent),
      m_lines(new ListPart(*this)),
      m_caption(new QLabel(tr("Still open"))),
      m_open(new ListPart(*this)) {
  setWidgetResizable(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFocusPolicy(Qt::NoFocus);
  m_lines->setObjectName(name);
  m_lines->setAccessibleName(heading);
  m_open->setObjectName(name + QStringLiteral("Open"));
  m_open->setAccessibleName(tr("Still open"));
  m_lines->continueIn(*m_open);
  m_caption->setForegroundRole(QPalette::PlaceholderText);
  m_caption->setContentsMargins(4, 4, 4, 1);
  auto* page = new QWidget;
  page->setBackgroundRole(QPalette::Base);
  page->setAutoFillBackground(true);
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins({});
  column->setSpacing(0);
  column->addWidget(m_lines);
  column->addWidget(m_caption);
  column->addWidget(m_open);
  column->addStretch(1);
  setWidget(page);
  const auto choose = [this](const QListWidgetItem* item) {
    const auto row = static_cast<std::size_t>(m_open->row(item));
    // The one that tells of it may end with what it leads to.
    const session::OpenOrder open = m_standings.Open.at(row);
    emit openChosen(open);
  };
  connect(m_open, &QListWidget::itemClicked, this, choose);
  connect(m_open, &QListWidget::itemActivated, this, choose);
  connect(m_lines, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0 && m_lines->isRowHidden(row)) emit hiddenLineSelected();
  });
}

void WholeList::showStandings(session::Standings standings, model::Stage stage) {
  m_standings = std::move(standings);
  std::vector<std::string> texts;
  for (const session::OpenOrder& open : m_standings.Open)
    texts.push_back(TextOf(open, stage));
  showTexts(*m_open, texts);
  for (int row = 0; row < m_open->count(); ++row)
    m_open->item(row)->setData(OrderMarkRole, static_cast<int>(OrderMark::Missing));
  hideOthers();
}

void WholeList::showOnly(int power) {
  m_power = power;
  hideOthers();
  // What is not seen cannot be meant.
  if (m_lines->currentRow() >= 0 && m_lines->isRowHidden(m_lines->currentRow()))
    m_lines->setCurrentRow(-1);
}

void WholeList::hideOthers() {
  const auto isOther = [this](int power) { return m_power != 0 && power != m_power; };
  const std::size_t lines =
      std::min(m_standings.LinePowers.size(), static_cast<std::size_t>(m_lines->count()));
  for (std::size_t i = 0; i < lines; ++i)
    m_lines->setRowHidden(static_cast<int>(i), isOther(m_standings.LinePowers[i]));
  for (int row = 0; row < m_open->count(); ++row) {
    const session::OpenOrder& open = m_standings.Open.at(static_cast<std::size_t>(row));
    m_open->setRowHidden(row, isOther(open.Power));
  }
  m_caption->setVisible(m_open->endRow(false) >= 0);
}

void WholeList::scrollToTop() {
  verticalScrollBar()->setValue(0);
}

void WholeList::enter() {
  if (m_lines->selectedItems().isEmpty()) {
    if (!m_open->enter(true)) m_lines->enter(true);
  } else {
    m_lines->setFocus();
  }
}

}  // namespace orb::ui
