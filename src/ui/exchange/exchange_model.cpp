#include "ui/exchange/exchange_model.h"

#include "orders/exchange/order_files.h"
#include "orders/order_list.h"
#include "text/qt/text_codec.h"
#include "ui/widgets/message_boxes.h"
#include "ui/widgets/order_marks.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <string_view>

namespace orb::ui {
namespace {

using exchange::LineKind;
using exchange::ReadLine;
using exchange::Span;

/// The beginning of the order line, by which filing recognizes an earlier order of the unit.
std::string_view unitOf(const ReadLine& line) {
  return std::string_view(line.Order).substr(0, line.Order.find(')') + 1);
}

/// The core's faults begin with a small letter, to follow a colon; here they are sentences.
QString sentence(const std::string& text) {
  QString shown = displayText(text);
  if (!shown.isEmpty()) shown[0] = shown[0].toUpper();
  return shown;
}

/// The place of a fault in a text that begins at the offset, in characters.
std::pair<int, int> faultIn(std::string_view text, Span fault, std::size_t offset) {
  const std::size_t start = std::min(std::max(fault.Offset, offset) - offset, text.size());
  const auto length = [](std::string_view part) {
    return static_cast<int>(displayText(std::string(part)).size());
  };
  return {length(text.substr(0, start)), length(text.substr(start, fault.Length))};
}

OrderMark markOf(const ReadLine& line, bool doubtful) {
  switch (line.Kind) {
    case LineKind::Order:
      return doubtful ? OrderMark::Doubtful : OrderMark::Passes;
    case LineKind::Doubtful:
      return OrderMark::Doubtful;
    case LineKind::Waive:
      return OrderMark::Passes;
    case LineKind::NotUnderstood:
    case LineKind::Ambiguous:
      return OrderMark::Stopped;
    default:
      return OrderMark::None;
  }
}

QString meaningOf(const ReadLine& line) {
  switch (line.Kind) {
    case LineKind::Order:
    case LineKind::Doubtful:
      return text::ToQString(line.Order);
    case LineKind::Replaced:
      return QObject::tr("replaced: %1").arg(text::ToQString(line.Order));
    case LineKind::Waive:
      return QObject::tr("waived, nothing to file");
    case LineKind::Heading:
      return line.Power.empty() ? QObject::tr("heading")
                                : QObject::tr("heading: %1").arg(text::ToQString(line.Power));
    case LineKind::PassedOver:
      return QObject::tr("no order");
    default:
      return sentence(line.Reason);
  }
}

}  // namespace

ExchangeModel::ExchangeModel(const model::GameState& game, std::string text,
                             std::vector<exchange::TextRepair> repairs, QObject* parent)
    : QAbstractTableModel(parent),
      m_game(game),
      m_text(std::move(text)),
      m_repairs(std::move(repairs)) {
  setPower({});
}

void ExchangeModel::setPower(const std::string& power) {
  beginResetModel();
  m_power = power;
  m_trial.reset();
  const std::vector<Line> before = std::exchange(m_lines, {});
  for (ReadLine& read : exchange::ReadOrders(m_game, m_text, {m_power, m_repairs})) {
    if (read.Written.empty()) continue;
    const QString written = displayText(read.Written);
    const auto fault = faultIn(read.Written, read.ReasonPlace, read.Place.Offset);
    const std::string context = read.Power;
    // What is doubtful, another power's orders in one power's mail too, waits for a person.
    const bool taken = read.Kind == LineKind::Order;
    m_lines.push_back({std::move(read), written, written, context, fault, taken});
  }
  takeAnew(before);
  endResetModel();
}

/// Repeats the corrections in the text that was read again.
void ExchangeModel::takeAnew(const std::vector<Line>& before) {
  bool any = false;
  for (const Line& old : before) {
    if (old.written == old.original) continue;
    // Another power may change what a line means, but not where it stands in the text.
    const auto same = std::find_if(m_lines.begin(), m_lines.end(), [&](const Line& line) {
      return line.read.Place.Offset == old.read.Place.Offset;
    });
    if (same == m_lines.end()) continue;
    rewrite(*same, old.written);
    any = true;
  }
  if (any) readUnclearAgain();
}

/// Reads a text in place of the line's own.
ReadLine ExchangeModel::read(const Line& line, const QString& text) const {
  std::vector<ReadLine> others;
  // Without the line itself, which would otherwise confirm its own meaning.
  for (const Line& other : m_lines) {
    if (&other != &line) others.push_back(other.read);
  }
  ReadLine read = exchange::ReadOrder(m_game, text.toStdString(), {line.power, m_repairs}, others);
  read.Number = line.read.Number;
  return read;
}

void ExchangeModel::rewrite(Line& line, const QString& text) {
  // The correction was read alone; in the text the line stands where it always stood.
  const Span place = line.read.Place;
  line.read = read(line, text);
  line.fault = faultIn(text.toStdString(), line.read.ReasonPlace, 0);
  line.read.Place = place;
  line.written = text;
  line.taken = line.read.Kind == LineKind::Order && !isOfOther(line.read);
}

/// What a support can mean depends on the other lines.
void ExchangeModel::readUnclearAgain() {
  for (Line& line : m_lines) {
    if (IsUnclear(line.read)) rewrite(line, line.written);
  }
}

void ExchangeModel::tryText(int row, const QString& text) {
  m_trial.emplace(row, read(at(row), text));
  emitMeaning(row);
}

void ExchangeModel::endTrial() {
  if (!m_trial) return;
  const int row = m_trial->first;
  m_trial.reset();
  if (row < rowCount()) emitMeaning(row);
}

/// The column of what is written is left out: a change there would make its editor start over.
void ExchangeModel::emitMeaning(int row) {
  emit dataChanged(index(row, Take), index(row, Take));
  emit dataChanged(index(row, Understood), index(row, Understood));
}

const ReadLine& ExchangeModel::line(int row) const {
  return m_trial && m_trial->first == row ? m_trial->second : at(row).read;
}

bool ExchangeModel::isNoOrder(int row) const {
  return at(row).read.Kind == LineKind::PassedOver && at(row).written == at(row).original;
}

std::string ExchangeModel::powerOfText() const {
  std::vector<ReadLine> lines;
  for (const Line& line : m_lines)
    lines.push_back(line.read);
  return exchange::PowerOf(lines);
}

ExchangeModel::Counts ExchangeModel::counts() const {
  Counts counts;
  for (int row = 0; row < rowCount(); ++row) {
    const Line& line = at(row);
    const bool order = IsUnderstood(line.read);
    counts.orders += order ? 1 : 0;
    counts.unclear += IsUnclear(line.read) ? 1 : 0;
    counts.ofOthers += isOfOther(line.read) ? 1 : 0;
    counts.taken += order && line.taken ? 1 : 0;
    // Of several orders of one unit only the last takes the place of the one in the list.
    const bool isLast = order && line.taken && !isRepeatedBelow(row);
    counts.replacing += isLast && isReplacing(line.read) ? 1 : 0;
  }
  return counts;
}

std::vector<ReadLine> ExchangeModel::takenLines() const {
  std::vector<ReadLine> lines;
  for (const Line& line : m_lines) {
    if (IsUnderstood(line.read) && line.taken) lines.push_back(line.read);
  }
  // Whoever ticked a doubtful order has consented to it.
  exchange::AcceptDoubtful(lines);
  return lines;
}

bool ExchangeModel::isOfOther(const ReadLine& line) const {
  return IsUnderstood(line) && !m_power.empty() && line.Power != m_power;
}

bool ExchangeModel::isRepeatedBelow(int row) const {
  const std::string_view unit = unitOf(line(row));
  return std::any_of(m_lines.begin() + row + 1, m_lines.end(), [&](const Line& below) {
    return IsUnderstood(below.read) && below.taken && unitOf(below.read) == unit;
  });
}

bool ExchangeModel::isReplacing(const ReadLine& line) const {
  const auto& list = orders::StageList(m_game);
  return std::any_of(list.begin(), list.end(), [&](const std::string& filed) {
    return filed != line.Order && filed.starts_with(unitOf(line));
  });
}

/// Why an order that was understood may not be wanted; empty when nothing is known against it.
QString ExchangeModel::doubt(int row, const ReadLine& line) const {
  if (!IsUnderstood(line)) return {};
  QStringList doubts;
  if (isOfOther(line) && !IsDoubtful(line)) doubts << tr("of another power");
  if (!line.Reason.empty()) doubts << displayText(line.Reason);
  if (isRepeatedBelow(row)) doubts << tr("ordered again below");
  return doubts.join(QStringLiteral("; "));
}

int ExchangeModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_lines.size());
}

int ExchangeModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(ColumnCount);
}

QVariant ExchangeModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const int row = index.row();
  if (role == Qt::ForegroundRole) {
    const LineKind kind = line(row).Kind;
    // Headings and remarks are subdued, so that orders stand out.
    const bool aside = kind == LineKind::PassedOver || kind == LineKind::Heading;
    return aside ? QVariant(QGuiApplication::palette().brush(QPalette::PlaceholderText))
                 : QVariant();
  }
  if (index.column() == Understood) return understoodData(row, role);
  if (index.column() == Written) return writtenData(row, role);
  // The first column has a box to tick where there is an order to take, and nothing elsewhere.
  if (!IsUnderstood(line(row))) return {};
  if (role == Qt::CheckStateRole) return at(row).taken ? Qt::Checked : Qt::Unchecked;
  if (role == Qt::AccessibleTextRole) return at(row).taken ? tr("taken") : tr("left out");
  return {};
}

QVariant ExchangeModel::understoodData(int row, int role) const {
  const ReadLine& shown = line(row);
  const QString against = doubt(row, shown);
  switch (role) {
    case Qt::DisplayRole:
      return against.isEmpty() ? meaningOf(shown) : tr("%1  (%2)").arg(meaningOf(shown), against);
    case Qt::EditRole:
      return meaningOf(shown);
    case Qt::ToolTipRole:
      return against.isEmpty() ? sentence(shown.Reason) : against;
    case OrderMarkRole:
      return static_cast<int>(markOf(shown, !against.isEmpty()));
    default:
      return {};
  }
}

QVariant ExchangeModel::writtenData(int row, int role) const {
  const Line& shown = at(row);
  const bool corrected = shown.written != shown.original;
  if (role == Qt::DisplayRole || role == Qt::EditRole) return shown.written;
  if (role == Qt::ToolTipRole && corrected) return tr("Was: %1").arg(shown.original);
  if (role == Qt::FontRole && corrected) {
    QFont font = QGuiApplication::font();
    font.setItalic(true);
    return font;
  }
  return {};
}

bool ExchangeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  Line& line = at(index.row());
  // What was tried is now either set or given up.
  m_trial.reset();
  if (index.column() == Take && role == Qt::CheckStateRole) {
    line.taken = value.toInt() == Qt::Checked;
  } else if (role == Qt::EditRole && value.toString() != line.written) {
    rewrite(line, value.toString());
    readUnclearAgain();
  }
  emit dataChanged(this->index(0, Take), this->index(rowCount() - 1, Understood));
  return true;
}

Qt::ItemFlags ExchangeModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags shown = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  const LineKind kind = line(index.row()).Kind;
  switch (index.column()) {
    case Take:
      return IsUnderstood(line(index.row())) ? shown | Qt::ItemIsUserCheckable : shown;
    case Written:
      return shown | Qt::ItemIsEditable;
    default:
      return kind == LineKind::Ambiguous ? shown | Qt::ItemIsEditable : shown;
  }
}

QVariant ExchangeModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole) return QAbstractTableModel::headerData(section, orientation, role);
  if (orientation == Qt::Vertical) return at(section).read.Number;
  switch (section) {
    case Take:
      return tr("Take");
    case Written:
      return tr("What is written");
    default:
      return tr("The order understood");
  }
}

}  // namespace orb::ui
