#include "ui/trial/what_if_panel.h"

#include "model/lookups.h"
#include "text/qt/text_codec.h"
#include "ui/session/attempt.h"
#include "ui/widgets/controls.h"
#include "ui/widgets/power_choice.h"

#include <QHBoxLayout>
#include <QShortcut>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <utility>

namespace orb::ui {
namespace {

using session::Changes;

// What an item of the list keeps: the index of its alternative, and whose pairs it belongs to.
constexpr int AlternativeRole = Qt::UserRole;
constexpr int PairsRole = Qt::UserRole + 1;

constexpr QSize HeadingIcon(64, 64);

std::string joined(const std::vector<std::string>& orders) {
  std::string text;
  for (const std::string& order : orders)
    text.append(text.empty() ? "" : ", ").append(order);
  return text;
}

QString otherChanges(int count) {
  if (count == 0) return {};
  return count == 1 ? QObject::tr(" 1 other order comes out otherwise.")
                    : QObject::tr(" %1 other orders come out otherwise.").arg(count);
}

QLabel* newText(const QString& name) {
  auto* label = new QLabel;
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

}  // namespace

WhatIfPanel::WhatIfPanel(Desk& desk, model::Messages& messages, QWidget* parent)
    : QWidget(parent),
      m_desk(desk),
      m_messages(messages),
      m_question(newText(QStringLiteral("lblWhatIf"))),
      m_list(new QListWidget),
      m_power(new QComboBox),
      m_search(newButton(QStringLiteral("butWhatIfPairs"), tr("Pai&rs of changes"))),
      m_progress(new QProgressBar),
      m_cancel(newButton(QStringLiteral("butWhatIfCancel"), tr("C&ancel"))),
      m_pairs(new PairSearch(this)) {
  setObjectName(QStringLiteral("fraWhatIf"));
  m_list->setObjectName(QStringLiteral("lstWhatIf"));
  m_list->setAccessibleName(tr("What would have changed this"));
  m_list->setWordWrap(true);
  m_list->setResizeMode(QListView::Adjust);
  m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  // Each answer has several lines.
  m_list->setSpacing(2);
  m_power->setObjectName(QStringLiteral("cboWhatIfPower"));
  m_power->setAccessibleName(tr("Power whose orders are changed"));
  m_search->setToolTip(
      tr("Looks for two changed orders of this power of which neither alone would "
         "have done"));
  layOut();
  hide();
  connect(m_list, &QListWidget::itemSelectionChanged, this, &WhatIfPanel::tryOutSelected);
  connect(m_search, &QPushButton::clicked, this, &WhatIfPanel::searchPairs);
  connect(m_cancel, &QPushButton::clicked, m_pairs, &PairSearch::cancel);
  connect(m_pairs, &PairSearch::progress, this, [this](int done, int all) {
    m_progress->setMaximum(all);
    m_progress->setValue(done);
  });
  connect(m_pairs, &PairSearch::found, this, &WhatIfPanel::showPairs);
  connect(m_pairs, &PairSearch::failed, this, [this](const QString& reason) {
    showSearching(false);
    m_messages.Show(reason.toStdString(), model::Icon::Stop);
  });
  auto* escape =
      new QShortcut(Qt::Key_Escape, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
  connect(escape, &QShortcut::activated, this, &WhatIfPanel::close);
  constexpr Changes Asked = Changes::Season | Changes::Position | Changes::Orders |
                            Changes::Report | Changes::Editing | Changes::Rules;
  m_desk.whenChanged(Asked, this, &WhatIfPanel::leave);
  connect(&m_desk, &Desk::trialChanged, this, [this] {
    if (!m_desk.trial()) leave();
  });
}

void WhatIfPanel::layOut() {
  auto* close = newButton(QStringLiteral("butWhatIfClose"), tr("Cl&ose"));
  close->setToolTip(tr("Shows what was shown before (Esc)"));
  connect(close, &QPushButton::clicked, this, &WhatIfPanel::close);
  auto* heading = new QHBoxLayout;
  heading->addWidget(newHeading(tr("What would have changed this?")), 1);
  heading->addWidget(close);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addLayout(heading);
  column->addWidget(m_question);
  column->addWidget(m_list, 1);
  column->addLayout(newPairsRow());
}

QLayout* WhatIfPanel::newPairsRow() {
  auto* help = newButton(QStringLiteral("butWhatIfHelp"), tr("Hel&p"));
  connect(help, &QPushButton::clicked, this, [this] { emit helpWanted(tr("Trying out")); });
  auto* row = new QHBoxLayout;
  row->addWidget(m_power);
  row->addWidget(m_search, 1);
  row->addWidget(m_progress, 1);
  row->addWidget(m_cancel);
  row->addWidget(help);
  showSearching(false);
  return row;
}

void WhatIfPanel::askAboutReport(const std::string& order) {
  if (m_desk.shown().BeforeMoves) ask(m_desk.shown().BeforeMoves, order);
}

void WhatIfPanel::askAboutList(const std::string& order) {
  ask(std::make_shared<session::Situation>(m_desk.now()), order);
}

void WhatIfPanel::ask(std::shared_ptr<const session::Situation> before, const std::string& order) {
  attempt(m_messages, [&] {
    const session::Question question = session::Ask(*before, order);
    const std::vector<session::Alternative> found = session::SingleChanges(question);
    m_pairs->giveUp();
    showSearching(false);
    if (!isOpen()) m_wasTrying = m_desk.trial().has_value();
    m_before = std::move(before);
    m_order = question.Order;
    m_question->setText(text::ToQString(question.Order + "\n" + question.Sentence));
    fillPowers(question.Power);
    showSingles(found);
    emit openChanged();
  });
}

void WhatIfPanel::close() {
  if (!isOpen()) return;
  const bool wasTrying = m_wasTrying;
  leave();
  wasTrying ? m_desk.tryOut() : m_desk.endTrial();
}

void WhatIfPanel::leave() {
  if (!isOpen()) return;
  m_pairs->giveUp();
  m_before.reset();
  emit openChanged();
}

void WhatIfPanel::startReading() {
  m_list->setFocus();
}

void WhatIfPanel::fillPowers(const std::string& own) {
  const model::CountryTable& countries = m_before->Game.Countries;
  m_power->clear();
  for (int row = 1; row <= countries.Count(); ++row) {
    m_power->addItem(powerIcon(countries, row), powerName(countries, row),
                     QByteArray::fromStdString(countries[row].Abbreviation));
  }
  m_power->setCurrentIndex(std::max(0, model::FindCountry(own) - 1));
}

std::string WhatIfPanel::chosenPower() const {
  return m_power->currentData().toByteArray().toStdString();
}

void WhatIfPanel::addHeading(const QIcon& icon, const QString& text, const std::string& pairsOf) {
  QIcon lasting;
  // The arrow keys pass a disabled item over; it is to be seen and read all the same.
  lasting.addPixmap(icon.pixmap(HeadingIcon), QIcon::Disabled);
  auto* item = new QListWidgetItem(lasting, text, m_list);
  item->setFlags(Qt::NoItemFlags);
  item->setForeground(m_list->palette().brush(QPalette::Active, QPalette::Text));
  QFont font = m_list->font();
  font.setBold(true);
  item->setFont(font);
  item->setData(PairsRole, QByteArray::fromStdString(pairsOf));
}

void WhatIfPanel::addAlternative(const session::Alternative& alternative,
                                 const std::string& pairsOf) {
  const QString orders = text::ToQString(joined(alternative.Orders));
  const QString sentence = text::ToQString(alternative.Sentence);
  auto* item = new QListWidgetItem(
      orders + QLatin1Char('\n') + sentence + otherChanges(alternative.OtherChanges), m_list);
  item->setData(AlternativeRole, static_cast<int>(m_alternatives.size()));
  item->setData(PairsRole, QByteArray::fromStdString(pairsOf));
  m_alternatives.push_back(alternative);
}

void WhatIfPanel::showSingles(const std::vector<session::Alternative>& found) {
  // A list that is emptied has no selection any more, which is no wish to see anything else.
  const QSignalBlocker blocker(m_list);
  m_list->clear();
  m_alternatives.clear();
  const model::CountryTable& countries = m_before->Game.Countries;
  if (found.empty()) addHeading({}, tr("No change of a single order would have changed this."));
  std::string power;
  for (const session::Alternative& alternative : found) {
    if (alternative.Power != power) {
      power = alternative.Power;
      const int row = model::FindCountry(power);
      addHeading(powerIcon(countries, row), powerName(countries, row));
    }
    addAlternative(alternative);
  }
}

void WhatIfPanel::removePairs(const std::string& power) {
  for (int row = m_list->count() - 1; row >= 0; --row) {
    const QByteArray pairsOf = m_list->item(row)->data(PairsRole).toByteArray();
    if (pairsOf.toStdString() == power) delete m_list->takeItem(row);
  }
}

void WhatIfPanel::showPairs(const std::vector<session::Alternative>& found, bool whole) {
  showSearching(false);
  const std::string power = chosenPower();
  const model::CountryTable& countries = m_before->Game.Countries;
  const int row = model::FindCountry(power);
  const QString name = powerName(countries, row);
  const int first = m_list->count();
  addHeading(powerIcon(countries, row),
             !whole          ? tr("%1: two orders, as far as looked at").arg(name)
             : found.empty() ? tr("%1: no two changed orders would have, either").arg(name)
                             : tr("%1: two orders").arg(name),
             power);
  for (const session::Alternative& alternative : found)
    addAlternative(alternative, power);
  m_list->scrollToItem(m_list->item(first), QAbstractItemView::PositionAtTop);
  m_list->setFocus();
}

void WhatIfPanel::showSearching(bool searching) {
  m_power->setEnabled(!searching);
  m_search->setVisible(!searching);
  m_progress->setVisible(searching);
  m_cancel->setVisible(searching);
}

void WhatIfPanel::searchPairs() {
  removePairs(chosenPower());
  m_progress->setRange(0, 0);
  showSearching(true);
  m_cancel->setFocus();
  m_pairs->start(m_before, m_order, chosenPower());
}

void WhatIfPanel::tryOutSelected() {
  const QList<QListWidgetItem*> selected = m_list->selectedItems();
  if (selected.isEmpty() || !isOpen()) return;
  const session::Alternative& alternative =
      m_alternatives.at(selected.first()->data(AlternativeRole).toUInt());
  session::Situation otherwise = *m_before;
  otherwise.Game.OrdersList = alternative.List;
  m_desk.tryOut(otherwise, joined(alternative.Orders));
}

}  // namespace orb::ui
