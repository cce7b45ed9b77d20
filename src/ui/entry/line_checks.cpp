#include "ui/entry/line_checks.h"

#include "text/qt/text_codec.h"
#include "ui/widgets/order_marks.h"

namespace orb::ui {
namespace {

using adjudication::ListCheck;

QString lines(const std::vector<std::string>& texts) {
  QStringList shown;
  for (const std::string& text : texts)
    shown << text::ToQString(text);
  return shown.join(QLatin1Char('\n'));
}

void showMark(QListWidgetItem& item, OrderMark mark, const QString& reason) {
  item.setData(OrderMarkRole, static_cast<int>(mark));
  item.setToolTip(reason);
  // A screen reader cannot see the mark.
  item.setData(Qt::AccessibleDescriptionRole, reason);
}

QString countedUnits(std::size_t count, const QString& kind) {
  return QStringLiteral("%1 %2%3 without an order")
      .arg(count)
      .arg(kind, QLatin1String(count == 1 ? "" : "s"));
}

QString missingUnits(std::size_t count, bool dislodged, bool hasUnits) {
  if (!hasUnits) return QObject::tr("No units");
  const QString kind = dislodged ? QObject::tr("dislodged unit") : QObject::tr("unit");
  return count == 0 ? QObject::tr("Every %1 has an order").arg(kind) : countedUnits(count, kind);
}

QString unfitPowers(const std::vector<adjudication::PowerProblem>& problems) {
  if (problems.empty()) return QObject::tr("The numbers of all powers fit");
  QStringList powers;
  for (const adjudication::PowerProblem& problem : problems)
    powers << text::ToQString(problem.Power);
  return QObject::tr("Numbers that do not fit: %1").arg(powers.join(QStringLiteral(", ")));
}

}  // namespace

void showMarks(QListWidget& list, const ListCheck& check,
               const std::vector<std::string>& otherReadings,
               const std::optional<session::StoppedLine>& stopped) {
  for (int row = 0; row < list.count(); ++row) {
    std::vector<std::string> texts = check.Lines.at(static_cast<std::size_t>(row));
    const bool passes = texts.empty();
    const std::string& reading = otherReadings.at(static_cast<std::size_t>(row));
    if (!reading.empty()) texts.push_back(reading);
    const QString reason = lines(texts);
    if (stopped && stopped->Row == row) {
      // The check says the same and more.
      const QString why = reason.isEmpty() ? text::ToQString(ResultWord(stopped->Result)) : reason;
      showMark(*list.item(row), OrderMark::Stopped,
               QObject::tr("Resolving stopped here: %1").arg(why));
    } else {
      const OrderMark passing = reading.empty() ? OrderMark::Passes : OrderMark::Otherwise;
      showMark(*list.item(row), passes ? passing : OrderMark::Doubtful, reason);
    }
  }
}

void showMissing(QLabel& label, const ListCheck& check, const model::GameState& game) {
  const model::Stage stage = game.Stage;
  if (stage == model::Stage::Adjustments) {
    std::vector<std::string> powers;
    for (const adjudication::PowerProblem& problem : check.Powers)
      powers.push_back(problem.Power + ": " + problem.Text);
    label.setText(unfitPowers(check.Powers));
    label.setToolTip(lines(powers));
  } else {
    label.setText(missingUnits(check.Unordered.size(), stage == model::Stage::Retreats,
                               game.Units.Count() > 0));
    label.setToolTip(lines(check.Unordered));
  }
}

}  // namespace orb::ui
