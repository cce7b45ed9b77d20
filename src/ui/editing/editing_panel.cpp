#include "ui/editing/editing_panel.h"

#include "text/qt/text_codec.h"
#include "ui/widgets/controls.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace orb::ui {

EditingPanel::EditingPanel(Desk& desk, MapPicture& map, const EditingTexts& texts, QWidget* parent)
    : QWidget(parent),
      m_desk(desk),
      m_map(map),
      m_texts(texts),
      m_list(new QListWidget),
      m_undo(newButton(texts.undo, tr("&Undo"))),
      m_redo(newButton(texts.redo, tr("Re&do"))),
      m_done(newButton(texts.done, tr("D&one"))),
      m_help(newButton(texts.help, tr("Hel&p"))) {
  setObjectName(texts.panel);
  m_list->setObjectName(texts.list);
  m_list->setAccessibleName(texts.heading);
  // As high as the letters, whatever the font.
  m_list->setIconSize(QSize(1, 1) * m_list->fontMetrics().ascent());
  connect(m_list, &QListWidget::itemActivated, this, [this](QListWidgetItem* item) {
    // The Enter key activates the current entry even when it is not selected.
    item->setSelected(true);
    openProperties();
  });
  connect(m_list, &QListWidget::itemSelectionChanged, this, [this] {
    selectionChanged();
    m_map.update();
  });
  connect(m_undo, &QPushButton::clicked, &m_desk, &Desk::takeBack);
  connect(m_redo, &QPushButton::clicked, &m_desk, &Desk::doAgain);
  connect(m_done, &QPushButton::clicked, &m_desk,
          [this] { m_desk.setEditing(session::Editing::None); });
  connect(m_help, &QPushButton::clicked, this,
          [this] { emit helpWanted(QStringLiteral("Editing")); });
  using session::Changes;
  m_desk.whenChanged(Changes::Season | Changes::Position | Changes::Powers | Changes::Editing, this,
                     &EditingPanel::showGame);
}

void EditingPanel::layOut(QWidget* options, const std::vector<QPushButton*>& commands) {
  // From the top: heading, hint, options, list, commands on the entry, and the steps of editing.
  auto* hint = new QLabel(m_texts.hint);
  hint->setWordWrap(true);
  auto* commandRow = new QHBoxLayout;
  for (QPushButton* command : commands)
    commandRow->addWidget(command);
  commandRow->addStretch();
  auto* stepRow = new QHBoxLayout;
  stepRow->addWidget(m_undo);
  stepRow->addWidget(m_redo);
  stepRow->addWidget(m_help);
  stepRow->addStretch();
  stepRow->addWidget(m_done);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addWidget(newHeading(m_texts.heading));
  column->addWidget(hint);
  if (options != nullptr) column->addWidget(options);
  column->addWidget(m_list, 1);
  column->addLayout(commandRow);
  column->addLayout(stepRow);
}

void EditingPanel::addKey(const QKeySequence& key, const std::function<void()>& command) {
  connect(new QShortcut(key, this), &QShortcut::activated, this, command);
}

void EditingPanel::startEditing() {
  m_list->setFocus();
}

bool EditingPanel::edit(const std::function<std::string(model::GameState&)>& change) {
  const std::string refusal = m_desk.edit(change);
  if (!refusal.empty()) emit statusText(text::ToQString(refusal));
  return refusal.empty();
}

int EditingPanel::keyOf(int row) const {
  return m_list->item(row)->data(Qt::UserRole).toInt();
}

int EditingPanel::selected() const {
  // Qt keeps a current row when the selection is cleared.
  const bool any = !m_list->selectedItems().isEmpty();
  return any ? keyOf(m_list->currentRow()) : 0;
}

void EditingPanel::select(int key) {
  for (int row = 0; row < m_list->count(); ++row) {
    if (keyOf(row) == key) return m_list->setCurrentRow(row);
  }
  m_list->clearSelection();
}

void EditingPanel::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  showGame();
  m_map.setOverlay(
      [this](QPainter& painter, render::Surface& surface) { paintOver(painter, surface); });
}

void EditingPanel::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  m_map.setOverlay({});
}

void EditingPanel::showGame() {
  // The map's overlay and the list cost time, and nobody would see them.
  if (!isVisible()) return;
  m_undo->setEnabled(m_desk.canUndoEdit());
  m_redo->setEnabled(m_desk.canRedoEdit());
  showEntries();
  selectionChanged();
}

/// What was selected stays so: the entry with the same text, or with its key as long as nothing has
/// come or gone.
void EditingPanel::showEntries() {
  const std::vector<Entry> wanted = entries();
  const int key = selected();
  const QString text = key == 0 ? QString() : m_list->currentItem()->text();
  const bool asMany = static_cast<int>(wanted.size()) == m_list->count();
  // Emptying the list would report a selection that nobody has made.
  const QSignalBlocker silent(m_list);
  const int scrolled = m_list->verticalScrollBar()->value();
  m_list->clear();
  int kept = 0;
  for (const Entry& entry : wanted) {
    auto* item = new QListWidgetItem(entry.icon, entry.text, m_list);
    item->setData(Qt::UserRole, entry.key);
    if (key != 0 && entry.text == text) kept = entry.key;
  }
  m_list->verticalScrollBar()->setValue(scrolled);
  if (kept != 0 || asMany) select(kept != 0 ? kept : key);
}

}  // namespace orb::ui
