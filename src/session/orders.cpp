#include "orders/exchange/check_line.h"
#include "orders/exchange/order_files.h"
#include "orders/order_list.h"
#include "session/commands.h"

#include <algorithm>
#include <utility>

namespace orb::session {

bool FileOrder(Situation& situation, std::string_view text) {
  return orders::FileOrder(orders::StageList(situation.Game), text);
}

int FileOrders(Situation& situation, const std::vector<exchange::ReadLine>& lines) {
  return exchange::FileOrders(situation.Game, lines);
}

bool DeleteOrder(Situation& situation, int row) {
  return orders::DeleteOrder(orders::StageList(situation.Game), row);
}

void ReplaceOrders(Situation& situation, std::vector<std::string> lines) {
  orders::StageList(situation.Game) = std::move(lines);
}

std::vector<exchange::ReadLine> ReplaceOrdersByText(Situation& situation, std::string_view text,
                                                    const exchange::ReadingOptions& options,
                                                    Doubtful doubtful, model::Messages& messages) {
  for (const std::string& warning : exchange::SheetWarnings(situation.Game, text, options.Power)) {
    messages.Show(warning, model::Icon::Exclamation);
  }
  std::vector<exchange::ReadLine> lines = exchange::ReadOrders(situation.Game, text, options);
  if (doubtful == Doubtful::Accepted) exchange::AcceptDoubtful(lines);
  ReplaceOrders(situation, {});
  FileOrders(situation, lines);
  for (const exchange::ReadLine& line : lines) {
    const bool isFiled = line.Kind == exchange::LineKind::Order;
    if (isFiled && !line.ReadAs.empty()) {
      messages.Show(line.Written + ": " + line.ReadAs, model::Icon::Information);
    }
  }
  std::erase_if(
      lines, [](const exchange::ReadLine& line) { return !IsUnclear(line) && !IsDoubtful(line); });
  return lines;
}

std::string LeftOutReason(const exchange::ReadLine& line) {
  return IsDoubtful(line) ? "doubtful: " + line.Reason : line.Reason;
}

bool GoOnWithout(const std::vector<exchange::ReadLine>& leftOut, model::Messages& messages) {
  return std::ranges::all_of(leftOut, [&](const exchange::ReadLine& line) {
    return messages.Warn(model::WarningText(line.Written, LeftOutReason(line).append(".")));
  });
}

}  // namespace orb::session
