#include "ui/exchange/exchange_model.h"

#include "orders/exchange/contradictions.h"
#include "orders/exchange/order_files.h"
#include "orders/order_list.h"
#include "ui/exchange/line_words.h"
#include "ui/widgets/message_boxes.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <array>
#include <set>
#include <string_view>

namespace orb::ui {
namespace {

using exchange::LineKind;
using exchange::ReadLine;
using exchange::Span;

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
    Line& line = m_lines.emplace_back();
    line.written = line.original = displayText(read.Written);
    line.fault = faultIn(read.Written, read.ReasonPlace, read.Place.Offset);
    line.power = read.Power;
    line.subject = exchange::SubjectOf(read.Order, m_game.Stage);
    // What is doubtful, another power's orders in one power's mail too, waits for a person.
    line.isTaken = read.Kind == LineKind::Order;
    line.read = std::move(read);
  }
  takeAnew(before);
  arrangeRows();
  endResetModel();
}

/// Puts the rows in order: what needs a decision, then the rest.
void ExchangeModel::arrangeRows() {
  std::array<std::vector<int>, 3> groups;
  for (std::size_t i = 0; i < m_lines.size(); ++i) {
    const ReadLine& read = m_lines[i].read;
    const std::size_t group = IsUnclear(read) ? 0 : needsConsent(read) ? 1 : 2;
    groups[group].push_back(static_cast<int>(i));
  }
  m_rows = std::move(groups[0]);
  m_rows.insert(m_rows.end(), groups[1].begin(), groups[1].end());
  // Rows of one kind need no captions.
  if (!m_rows.empty() && !groups[2].empty()) {
    m_rows.insert(m_rows.begin(), CaptionRow);
    m_rows.push_back(CaptionRow);
  }
  m_rows.insert(m_rows.end(), groups[2].begin(), groups[2].end());
}

/// Repeats the corrections in the text that was read again, and leaves out what was unticked.
void ExchangeModel::takeAnew(const std::vector<Line>& before) {
  bool any = false;
  for (const Line& old : before) {
    const bool isCorrected = old.written != old.original;
    if (!isCorrected && !old.isLeftOut) continue;
    // Another power may change what a line means, but not where it stands in the text.
    const auto same = std::find_if(m_lines.begin(), m_lines.end(), [&](const Line& line) {
      return line.read.Place.Offset == old.read.Place.Offset;
    });
    if (same == m_lines.end()) continue;
    if (isCorrected) rewrite(*same, old.written);
    if (old.isLeftOut) same->isTaken = false;
    same->isLeftOut = old.isLeftOut;
    any = any || isCorrected;
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
  line.read.Place = line.read.ReasonPlace = place;
  line.written = text;
  line.subject = exchange::SubjectOf(line.read.Order, m_game.Stage);
  line.isTaken = line.isLeftOut = false;
  if (IsUnderstood(line.read) && !needsConsent(line.read)) take(line);
}

/// What a support can mean depends on the other lines.
void ExchangeModel::readUnclearAgain() {
  for (Line& line : m_lines) {
    if (IsUnclear(line.read)) rewrite(line, line.written);
  }
}

void ExchangeModel::take(Line& line) {
  line.isTaken = true;
  line.isLeftOut = false;
  // Both in the list would mean that the later one holds, whichever was meant.
  for (Line& other : m_lines) {
    if (other.subject == line.subject && other.read.Order != line.read.Order) other.isTaken = false;
  }
}

const ExchangeModel::Line* ExchangeModel::rivalOf(const Line& line) const {
  const auto rival = std::ranges::find_if(m_lines, [&](const Line& other) {
    return other.isTaken && other.subject == line.subject && other.read.Order != line.read.Order;
  });
  return rival == m_lines.end() ? nullptr : &*rival;
}

void ExchangeModel::tryText(int row, const QString& text) {
  m_trial.emplace(row, read(at(row), text));
  m_trial->second.ReasonPlace = m_trial->second.Place = at(row).read.Place;
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
  static const ReadLine caption;
  if (isCaption(row)) return caption;
  return m_trial && m_trial->first == row ? m_trial->second : at(row).read;
}

bool ExchangeModel::isNoOrder(int row) const {
  return at(row).read.Kind == LineKind::PassedOver && at(row).written == at(row).original;
}

std::string ExchangeModel::powerOfText() const {
  return exchange::PowerOf(lines());
}

ExchangeModel::Counts ExchangeModel::counts() const {
  Counts counts;
  std::set<std::string_view> replacing;
  for (const Line& line : m_lines) {
    counts.unclear += IsUnclear(line.read) ? 1 : 0;
    if (!IsUnderstood(line.read)) continue;
    const int doubtful = needsConsent(line.read) ? 1 : 0;
    ++counts.orders;
    counts.doubtful += doubtful;
    if (!line.isTaken) continue;
    ++counts.taken;
    counts.takenDoubtful += doubtful;
    if (isReplacing(line.read)) replacing.insert(orders::UnitPart(line.read.Order));
  }
  counts.replacing = static_cast<int>(replacing.size());
  return counts;
}

std::vector<ReadLine> ExchangeModel::lines() const {
  std::vector<ReadLine> lines;
  for (const Line& line : m_lines)
    lines.push_back(line.read);
  return lines;
}

std::vector<ReadLine> ExchangeModel::takenLines() const {
  std::vector<ReadLine> lines;
  for (const Line& line : m_lines) {
    if (IsUnderstood(line.read) && line.isTaken) lines.push_back(line.read);
  }
  // Whoever ticked a doubtful order has consented to it.
  exchange::AcceptDoubtful(lines);
  return lines;
}

bool ExchangeModel::isOfOther(const ReadLine& line) const {
  return IsUnderstood(line) && !m_power.empty() && line.Power != m_power;
}

bool ExchangeModel::needsConsent(const ReadLine& line) const {
  return IsDoubtful(line) || isOfOther(line);
}

bool ExchangeModel::isReplacing(const ReadLine& line) const {
  const auto& list = orders::StageList(m_game);
  return std::any_of(list.begin(), list.end(), [&](const std::string& filed) {
    return filed != line.Order && filed.starts_with(orders::UnitPart(line.Order));
  });
}

/// The reason, with the line that it speaks of if that is another one.
QString ExchangeModel::reasonOf(const ReadLine& line) const {
  const QString reason = displayText(line.Reason);
  int number = line.Number;
  for (const Line& other : m_lines) {
    if (other.read.Place.Offset <= line.ReasonPlace.Offset) number = other.read.Number;
  }
  return reason.isEmpty() || number == line.Number ? reason
                                                   : tr("%1, in line %2").arg(reason).arg(number);
}

/// Why an order that was understood may not be wanted; empty when nothing is known against it.
QString ExchangeModel::objection(int row) const {
  const ReadLine& shown = line(row);
  if (shown.Kind == LineKind::Replaced) return reasonOf(shown);
  if (!IsUnderstood(shown)) return {};
  QStringList objections;
  if (isOfOther(shown) && !IsDoubtful(shown)) objections << tr("of another power");
  if (!shown.Reason.empty()) objections << reasonOf(shown);
  // A doubtful order's reason says what the text orders otherwise; a trial would take over.
  const bool isOutdone =
      &shown == &at(row).read && shown.Kind == LineKind::Order && !at(row).isTaken;
  const Line* rival = isOutdone ? rivalOf(at(row)) : nullptr;
  if (rival != nullptr) objections << tr("line %1 is taken instead").arg(rival->read.Number);
  return objections.join(QStringLiteral("; "));
}

int ExchangeModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ExchangeModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(ColumnCount);
}

QVariant ExchangeModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const int row = index.row();
  if (isCaption(row)) return index.column() == 0 ? captionData(row, role) : QVariant();
  if (role == Qt::ForegroundRole) {
    const LineKind kind = line(row).Kind;
    // What is not to be filed is subdued, so that orders stand out.
    const bool aside =
        kind == LineKind::PassedOver || kind == LineKind::Heading || kind == LineKind::Replaced;
    return aside ? QVariant(QGuiApplication::palette().brush(QPalette::PlaceholderText))
                 : QVariant();
  }
  switch (index.column()) {
    case Take:
      return takeData(row, role);
    case Written:
      return writtenData(row, role);
    default:
      return understoodData(row, role);
  }
}

QVariant ExchangeModel::captionData(int row, int role) const {
  switch (role) {
    case Qt::DisplayRole:
      return row == 0 ? tr("To be decided") : tr("Clear");
    case Qt::ForegroundRole:
      return QGuiApplication::palette().brush(QPalette::ButtonText);
    case Qt::BackgroundRole:
      return QGuiApplication::palette().brush(QPalette::Button);
    case Qt::FontRole: {
      QFont font = QGuiApplication::font();
      font.setBold(true);
      return font;
    }
    default:
      return {};
  }
}

/// A box to tick where there is an order to take, and nothing elsewhere.
QVariant ExchangeModel::takeData(int row, int role) const {
  if (!IsUnderstood(line(row))) return {};
  if (role == Qt::CheckStateRole) return at(row).isTaken ? Qt::Checked : Qt::Unchecked;
  if (role == Qt::AccessibleTextRole) return at(row).isTaken ? tr("taken") : tr("left out");
  return {};
}

QVariant ExchangeModel::understoodData(int row, int role) const {
  const ReadLine& shown = line(row);
  const QString against = objection(row);
  const OrderMark mark = markOf(shown, !against.isEmpty());
  // A slip of the pen is told even where only one place can be meant.
  const QString note =
      against.isEmpty() && IsUnderstood(shown) ? displayText(shown.ReadAs) : against;
  switch (role) {
    case Qt::DisplayRole:
      return note.isEmpty() ? meaningOf(shown) : tr("%1  (%2)").arg(meaningOf(shown), note);
    case Qt::EditRole:
      return meaningOf(shown);
    case Qt::ToolTipRole:
      return sentence(note.isEmpty() ? displayText(shown.Reason) : note);
    case Qt::AccessibleDescriptionRole:
      return markText(mark);
    case OrderMarkRole:
      return static_cast<int>(mark);
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
  if (isCaption(index.row())) return false;
  Line& line = at(index.row());
  // What was tried is now either set or given up.
  m_trial.reset();
  if (index.column() == Take && role == Qt::CheckStateRole) {
    line.isTaken = value.toInt() == Qt::Checked;
    line.isLeftOut = !line.isTaken;
    if (line.isTaken) take(line);
  } else if (role == Qt::EditRole && value.toString() != line.written) {
    rewrite(line, value.toString());
    readUnclearAgain();
  }
  emit dataChanged(this->index(0, Take), this->index(rowCount() - 1, Understood));
  return true;
}

Qt::ItemFlags ExchangeModel::flags(const QModelIndex& index) const {
  // Keys and clicks pass over a caption.
  if (isCaption(index.row())) return Qt::NoItemFlags;
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
  if (orientation == Qt::Vertical)
    return isCaption(section) ? QVariant(QString()) : at(section).read.Number;
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
