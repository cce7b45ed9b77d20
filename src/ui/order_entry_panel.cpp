#include "ui/order_entry_panel.h"

#include "ui/controls.h"
#include "ui/text_validator.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QVBoxLayout>

namespace orb::ui {

OrderEntryPanel::OrderEntryPanel(Desk& desk, Desk::OrderList list, const OrderEntryTexts& texts,
                                 QWidget* parent)
    : QWidget(parent),
      m_desk(desk),
      m_orders(list),
      m_list(new QListWidget),
      m_text(new QLineEdit),
      m_ok(newButton(texts.ok, tr("&OK"))),
      m_delete(newButton(texts.remove, tr("&Delete"))),
      m_resolve(newButton(texts.resolve, tr("&Resolve"))) {
  setObjectName(texts.panel);
  m_list->setObjectName(texts.list);
  m_list->setAccessibleName(texts.heading);
  m_text->setObjectName(texts.text);
  m_text->setAccessibleName(tr("Order"));
  m_text->setPlaceholderText(texts.example);
  m_text->setValidator(new TextValidator(m_text));
  layOut(texts);
  connectControls();
  showLines();
}

void OrderEntryPanel::layOut(const OrderEntryTexts& texts) {
  auto* entry = new QHBoxLayout;
  entry->addWidget(m_text, 1);
  entry->addWidget(m_ok);
  auto* commands = new QHBoxLayout;
  commands->addWidget(m_delete);
  commands->addStretch();
  commands->addWidget(m_resolve);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addWidget(newHeading(texts.heading));
  column->addWidget(m_list, 1);
  column->addLayout(entry);
  column->addLayout(commands);
}

void OrderEntryPanel::connectControls() {
  connect(m_ok, &QPushButton::clicked, this, &OrderEntryPanel::fileOrder);
  connect(m_text, &QLineEdit::returnPressed, this, &OrderEntryPanel::fileOrder);
  connect(m_delete, &QPushButton::clicked, this, &OrderEntryPanel::deleteOrder);
  connect(m_resolve, &QPushButton::clicked, &m_desk, &Desk::resolve);
  connect(m_list, &QListWidget::itemClicked, this, &OrderEntryPanel::editSelectedOrder);
  connect(m_list, &QListWidget::itemActivated, this, &OrderEntryPanel::editSelectedOrder);
  auto* deleteKey =
      new QShortcut(QKeySequence::Delete, m_list, nullptr, nullptr, Qt::WidgetShortcut);
  connect(deleteKey, &QShortcut::activated, this, &OrderEntryPanel::deleteOrder);
  connect(&m_desk, &Desk::changed, this, &OrderEntryPanel::showLines);
}

void OrderEntryPanel::startEntry() {
  m_text->setFocus();
  m_text->end(false);
}

void OrderEntryPanel::showLines() {
  showTexts(*m_list, m_desk.game().*m_orders);
}

void OrderEntryPanel::fileOrder() {
  if (m_desk.fileOrder(m_orders, bytesOf(*m_text))) {
    m_list->setCurrentRow(m_list->count() - 1);
    m_text->clear();
  }
  startEntry();
}

void OrderEntryPanel::deleteOrder() {
  if (m_list->selectedItems().isEmpty()) return;
  m_desk.deleteOrder(m_orders, m_list->currentRow());
  m_text->clear();
  startEntry();
}

void OrderEntryPanel::editSelectedOrder() {
  m_text->setText(m_list->currentItem()->text());
  startEntry();
}

}  // namespace orb::ui
