#include "ui/exchange/exchange_summary.h"

#include "adjudication/list_check.h"
#include "orders/exchange/order_files.h"
#include "text/qt/text_codec.h"
#include "ui/widgets/controls.h"

#include <algorithm>
#include <limits>
#include <map>

namespace orb::ui {
namespace {

using exchange::LineKind;
using exchange::ReadLine;

struct PowerNumbers {
  int sure = 0;
  int doubtful = 0;
  int unclear = 0;
  int waived = 0;
  QStringList unordered;  ///< units
};

/// By the row of the power; behind all powers the lines of nobody in particular.
using NumbersByPower = std::map<int, PowerNumbers>;
constexpr int Nobody = std::numeric_limits<int>::max();

int rowOf(std::string_view power) {
  const int row = model::FindCountry(power);
  return row == 0 ? Nobody : row;
}

/// Whose order a line is or, as long as it is unclear, may be.
int powerOf(const ReadLine& line) {
  if (line.Candidates.empty()) return rowOf(line.Power);
  const auto ofCandidate = [](const std::string& order) {
    return rowOf(std::string_view(order).substr(0, order.find(' ')));
  };
  const int first = ofCandidate(line.Candidates.front());
  const bool agree = std::ranges::all_of(
      line.Candidates, [&](const std::string& order) { return ofCandidate(order) == first; });
  return agree ? first : rowOf(line.Power);
}

NumbersByPower countLines(const std::vector<ReadLine>& lines) {
  NumbersByPower numbers;
  for (const ReadLine& line : lines) {
    switch (line.Kind) {
      case LineKind::Order:
        ++numbers[powerOf(line)].sure;
        break;
      case LineKind::Doubtful:
        ++numbers[powerOf(line)].doubtful;
        break;
      case LineKind::NotUnderstood:
      case LineKind::Ambiguous:
        ++numbers[powerOf(line)].unclear;
        break;
      case LineKind::Waive:
        ++numbers[powerOf(line)].waived;
        break;
      default:
        break;
    }
  }
  return numbers;
}

/// Adds the units that have no order when the taken lines are in the list: those of this power, or
/// if it is empty those of all powers of the text.
void countUnordered(model::GameState game, const std::vector<ReadLine>& taken,
                    const std::string& power, NumbersByPower& numbers) {
  exchange::FileOrders(game, taken);
  for (const std::string& unit : adjudication::CheckList(game).Unordered) {
    if (!unit.starts_with(power)) continue;
    const auto counted = numbers.find(rowOf(std::string_view(unit).substr(0, unit.find(' '))));
    if (counted != numbers.end()) counted->second.unordered << text::ToQString(unit);
  }
}

QString textOf(const QString& power, const PowerNumbers& numbers) {
  QStringList parts;
  const auto add = [&](qsizetype count, const QString& one, const QString& many) {
    if (count > 0) parts << QStringLiteral("%1 %2").arg(count).arg(count == 1 ? one : many);
  };
  add(numbers.sure, QObject::tr("sure"), QObject::tr("sure"));
  add(numbers.doubtful, QObject::tr("doubtful"), QObject::tr("doubtful"));
  add(numbers.unclear, QObject::tr("unclear"), QObject::tr("unclear"));
  add(numbers.waived, QObject::tr("waived"), QObject::tr("waived"));
  add(numbers.unordered.size(), QObject::tr("unit without an order"),
      QObject::tr("units without an order"));
  return QStringLiteral("%1: %2").arg(power, parts.join(QStringLiteral(", ")));
}

}  // namespace

ExchangeSummary::ExchangeSummary(QWidget* parent) : QWidget(parent), m_grid(new QGridLayout(this)) {
  setObjectName(QStringLiteral("panExchangeSummary"));
  setAccessibleName(tr("Orders of each power"));
  m_grid->setContentsMargins(0, 0, 0, 0);
  m_grid->setHorizontalSpacing(4 * fontMetrics().averageCharWidth());
  m_grid->setVerticalSpacing(0);
  // Two columns side by side; what room is left is behind them.
  m_grid->setColumnStretch(2, 1);
}

void ExchangeSummary::showLines(const model::GameState& game, const std::vector<ReadLine>& lines,
                                const std::vector<ReadLine>& taken, const std::string& power) {
  NumbersByPower powers = countLines(lines);
  countUnordered(game, taken, power, powers);
  QStringList texts;
  QStringList details;
  for (const auto& [row, numbers] : powers) {
    const QString name =
        row == Nobody ? tr("Power unknown") : text::ToQString(game.Countries[row].Abbreviation);
    texts << textOf(name, numbers);
    details << (QStringList(texts.last()) + numbers.unordered).join(QLatin1Char('\n'));
  }
  if (texts.isEmpty()) texts = details = QStringList(tr("No orders were found."));
  showTexts(texts, details);
}

void ExchangeSummary::showTexts(const QStringList& texts, const QStringList& details) {
  const auto count = static_cast<std::size_t>(texts.size());
  // Two columns, each read downwards: seven powers take little height.
  const std::size_t rows = (count + 1) / 2;
  if (m_labels.size() != count) {
    for (ElidedLabel* label : m_labels)
      delete label;
    m_labels.clear();
    for (std::size_t i = 0; i < count; ++i) {
      auto* label = m_labels.emplace_back(new ElidedLabel);
      label->setTextFormat(Qt::PlainText);
      m_grid->addWidget(label, static_cast<int>(i % rows), static_cast<int>(i / rows));
    }
  }
  for (std::size_t i = 0; i < count; ++i) {
    m_labels[i]->setText(texts[static_cast<qsizetype>(i)]);
    m_labels[i]->setToolTip(details[static_cast<qsizetype>(i)]);
  }
}

}  // namespace orb::ui
