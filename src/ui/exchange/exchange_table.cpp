#include "ui/exchange/exchange_table.h"

#include "text/qt/text_codec.h"
#include "ui/widgets/order_marks.h"
#include "ui/widgets/plain_text.h"

#include <QComboBox>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>

namespace orb::ui {
namespace {

/// Edits a line, and shows after every key what it would mean.
class WrittenDelegate : public QStyledItemDelegate {
 public:
  WrittenDelegate(ExchangeModel& model, QObject* parent)
      : QStyledItemDelegate(parent), m_model(model) {}

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                        const QModelIndex& index) const override {
    auto* editor = new QLineEdit(parent);
    editor->setObjectName(QStringLiteral("txtExchangeLine"));
    editor->setAccessibleName(QObject::tr("The line"));
    // textEdited, unlike textChanged, does not come when the view fills the editor.
    const int row = index.row();
    connect(editor, &QLineEdit::textEdited, &m_model,
            [&model = m_model, row](const QString& text) { model.tryText(row, text); });
    // The view selects all of the text once it has opened the editor.
    if (IsUnclear(m_model.line(row))) {
      const auto [start, length] = m_model.fault(row);
      QTimer::singleShot(0, editor, [editor, start = start, length = length] {
        if (!editor->isModified()) editor->setSelection(start, length);
      });
    }
    return editor;
  }

  void destroyEditor(QWidget* editor, const QModelIndex& index) const override {
    m_model.endTrial();
    QStyledItemDelegate::destroyEditor(editor, index);
  }

 private:
  ExchangeModel& m_model;
};

/// Shows the order that was understood and offers those that a line can mean.
class UnderstoodDelegate : public OrderMarkDelegate {
 public:
  UnderstoodDelegate(ExchangeModel& model, QObject* parent)
      : OrderMarkDelegate(parent), m_model(model) {}

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                        const QModelIndex& index) const override {
    auto* box = new QComboBox(parent);
    box->setObjectName(QStringLiteral("cboExchangeMeaning"));
    box->setAccessibleName(QObject::tr("What the line means"));
    box->setPlaceholderText(QObject::tr("Choose what it means"));
    for (const std::string& order : m_model.line(index.row()).Candidates)
      box->addItem(text::ToQString(order));
    // Nothing is chosen beforehand: a guess would be too easily accepted.
    box->setCurrentIndex(-1);
    // The signals are those of a delegate that can change; Qt makes its editors in a const
    // function.
    auto* self = const_cast<UnderstoodDelegate*>(this);
    connect(box, &QComboBox::activated, self, [self, box] {
      emit self->commitData(box);
      emit self->closeEditor(box);
    });
    // The view places the box only after this function; its list comes up where the box is then.
    QTimer::singleShot(0, box, &QComboBox::showPopup);
    return box;
  }

  // Qt would choose the entry that equals the cell's text, which is the fault found in the line.
  void setEditorData(QWidget* /*editor*/, const QModelIndex& /*index*/) const override {}

  void setModelData(QWidget* editor, QAbstractItemModel* model,
                    const QModelIndex& index) const override {
    const auto* box = qobject_cast<const QComboBox*>(editor);
    if (box != nullptr && box->currentIndex() >= 0) model->setData(index, box->currentText());
  }

 private:
  ExchangeModel& m_model;
};

}  // namespace

ExchangeTable::ExchangeTable(ExchangeModel& model, QWidget* parent)
    : QTableView(parent), m_model(model) {
  setModel(&model);
  setItemDelegateForColumn(ExchangeModel::Written, new WrittenDelegate(model, this));
  setItemDelegateForColumn(ExchangeModel::Understood, new UnderstoodDelegate(model, this));
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setEditTriggers(DoubleClicked | EditKeyPressed);
  // The Tab key leaves the table; the arrow keys move in it.
  setTabKeyNavigation(false);
  setWordWrap(false);
  setShowGrid(false);
  setAlternatingRowColors(true);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  // Fixed: measuring every line would slow down long texts.
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
  verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
  horizontalHeader()->setSectionResizeMode(ExchangeModel::Take, QHeaderView::ResizeToContents);
  horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setStretchLastSection(true);
  connect(&model, &QAbstractItemModel::modelReset, this, &ExchangeTable::applyHiding);
  applyHiding();
}

void ExchangeTable::showNoOrders(bool shown) {
  m_noOrdersShown = shown;
  applyHiding();
}

void ExchangeTable::applyHiding() {
  clearSpans();
  bool anyBelow = false;
  for (int row = m_model.rowCount() - 1; row >= 0; --row) {
    const bool caption = m_model.isCaption(row);
    const bool hidden = caption ? !anyBelow : !m_noOrdersShown && m_model.isNoOrder(row);
    setRowHidden(row, hidden);
    anyBelow = !caption && (anyBelow || !hidden);
    if (caption) setSpan(row, 0, 1, ExchangeModel::ColumnCount);
  }
}

void ExchangeTable::selectFirst() {
  int first = 0;
  while (first < m_model.rowCount() && (isRowHidden(first) || m_model.isCaption(first)))
    ++first;
  if (first < m_model.rowCount()) {
    setCurrentIndex(m_model.index(first, ExchangeModel::Written));
    // The caption above it is not current and would stay out of sight.
    scrollToTop();
  }
}

/// An editor that loses the keyboard hands over its text.
void ExchangeTable::finishEditing() {
  if (state() == EditingState) setFocus();
}

void ExchangeTable::editWritten(int row) {
  const QModelIndex cell = m_model.index(row, ExchangeModel::Written);
  setCurrentIndex(cell);
  edit(cell);
}

void ExchangeTable::toggle(int row) {
  const QModelIndex box = m_model.index(row, ExchangeModel::Take);
  if (!box.flags().testFlag(Qt::ItemIsUserCheckable)) return;
  const bool taken = box.data(Qt::CheckStateRole).toInt() == Qt::Checked;
  m_model.setData(box, taken ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

QItemSelectionModel::SelectionFlags ExchangeTable::selectionCommand(const QModelIndex& index,
                                                                    const QEvent* /*event*/) const {
  if (!index.isValid()) return QItemSelectionModel::NoUpdate;
  return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
}

void ExchangeTable::keyPressEvent(QKeyEvent* event) {
  const QModelIndex current = currentIndex();
  if (current.isValid() && event->key() == Qt::Key_Space) return toggle(current.row());
  // Qt's own F2 edits only the current cell, and the row's line is meant wherever the current cell
  // is.
  if (current.isValid() && event->key() == Qt::Key_F2) {
    return current.flags().testFlag(Qt::ItemIsEditable) ? edit(current)
                                                        : editWritten(current.row());
  }
  QTableView::keyPressEvent(event);
}

void ExchangeTable::contextMenuEvent(QContextMenuEvent* event) {
  // The menu key has no place of its own on the screen: the menu comes up below the line.
  const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
  const QModelIndex at = byKey ? currentIndex() : indexAt(event->pos());
  if (!at.isValid() || m_model.isCaption(at.row())) return;
  const int row = at.row();
  const QRect cell = visualRect(m_model.index(row, ExchangeModel::Understood));
  QMenu menu(this);
  for (const std::string& order : m_model.line(row).Candidates) {
    const QString text = text::ToQString(order);
    connect(menu.addAction(captionText(text)), &QAction::triggered, this, [this, row, text] {
      m_model.setData(m_model.index(row, ExchangeModel::Understood), text, Qt::EditRole);
    });
  }
  if (!menu.isEmpty()) menu.addSeparator();
  connect(menu.addAction(tr("&Edit the line")), &QAction::triggered, this,
          [this, row] { editWritten(row); });
  QAction* take = menu.addAction(tr("&Take the order"));
  take->setCheckable(true);
  take->setEnabled(IsUnderstood(m_model.line(row)));
  const auto box = m_model.index(row, ExchangeModel::Take).data(Qt::CheckStateRole);
  take->setChecked(box.toInt() == Qt::Checked);
  connect(take, &QAction::triggered, this, [this, row] { toggle(row); });
  menu.exec(viewport()->mapToGlobal(byKey ? cell.bottomLeft() : event->pos()));
}

void ExchangeTable::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  // Otherwise columns that the user has set would jump when only the height changes.
  if (event->oldSize().width() == event->size().width()) return;
  const int rest = viewport()->width() - columnWidth(ExchangeModel::Take);
  setColumnWidth(ExchangeModel::Written, rest * 2 / 5);
}

}  // namespace orb::ui
