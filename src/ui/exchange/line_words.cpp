#include "ui/exchange/line_words.h"

#include "text/qt/text_codec.h"
#include "ui/widgets/message_boxes.h"

#include <QObject>

#include <algorithm>
#include <string>

namespace orb::ui {

using exchange::LineKind;
using exchange::ReadLine;

QString sentence(QString text) {
  if (!text.isEmpty()) text[0] = text[0].toUpper();
  return text;
}

OrderMark markOf(const ReadLine& line, bool hasObjection) {
  switch (line.Kind) {
    case LineKind::Order:
      return hasObjection ? OrderMark::Doubtful : OrderMark::Passes;
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

QString markText(OrderMark mark) {
  switch (mark) {
    case OrderMark::Passes:
      return QObject::tr("sure");
    case OrderMark::Doubtful:
      return QObject::tr("doubtful");
    case OrderMark::Stopped:
      return QObject::tr("unclear");
    case OrderMark::Otherwise:
    case OrderMark::Missing:
    case OrderMark::None:
      break;
  }
  return {};
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
      return sentence(displayText(line.Reason));
  }
}

std::pair<int, int> faultIn(std::string_view text, exchange::Span fault, std::size_t offset) {
  const std::size_t start = std::min(std::max(fault.Offset, offset) - offset, text.size());
  const auto length = [](std::string_view part) {
    return static_cast<int>(displayText(std::string(part)).size());
  };
  return {length(text.substr(0, start)), length(text.substr(start, fault.Length))};
}

}  // namespace orb::ui
