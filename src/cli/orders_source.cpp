#include "cli/orders_source.h"

#include "letters/received.h"

#include "cli/command.h"
#include "model/country.h"
#include "model/files.h"
#include "orders/order_list.h"
#include "session/commands.h"
#include "session/incoming_text.h"
#include "text/strings.h"

#include <system_error>
#include <utility>

namespace orb::cli {

std::vector<std::string> OrderLines(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (end != std::string_view::npos && line.ends_with('\r')) line.remove_suffix(1);
    if (line.find_first_not_of(" \t") != std::string_view::npos) lines.emplace_back(line);
  }
  return lines;
}

std::string PowerOf(const CommandLine& line) {
  if (!line.Has(OptionId::Power)) return {};
  std::string power = text::UpperCase(*line.Value(OptionId::Power));
  if (model::FindCountry(power) == 0) {
    throw UsageError("\"" + *line.Value(OptionId::Power) +
                     "\" is not a power: --power takes ENG, FRA, GER, RUS, TUR, AUS or ITA.");
  }
  return power;
}

OrdersSource::OrdersSource(const CommandLine& line)
    : isLoose_(line.Has(OptionId::Loose)), isRegistered_(line.Has(OptionId::Register)) {
  if (isRegistered_ && !line.Has(OptionId::Orders)) {
    throw UsageError("--register is about orders files: --orders PATH is missing.");
  }
  if (isLoose_ && !line.Has(OptionId::Orders)) {
    throw UsageError("--loose reads orders files: --orders PATH is missing.");
  }
  // Only the repair table for loosely written orders is read from the data directory here.
  if (isLoose_) data_ = DataDirectory(line);
  if (line.Has(OptionId::AcceptDoubtful)) {
    if (!isLoose_) throw UsageError("--accept-doubtful goes with --loose.");
    doubtful_ = session::Doubtful::Accepted;
  }
  if (!line.Has(OptionId::Power)) return;
  if (!isLoose_) throw UsageError("--power goes with --loose.");
  power_ = PowerOf(line);
}

std::vector<exchange::ReadLine> OrdersSource::Take(session::Situation& situation,
                                                   const GamePaths& paths,
                                                   model::Messages& messages) {
  // Without an orders file the moves stage keeps the orders that came with the game file.
  if (paths.Orders.empty()) return {};
  text_ = TextOf(paths);
  if (!isLoose_) {
    session::ReplaceOrders(situation, OrderLines(text_));
    return {};
  }
  if (!repairs_) repairs_ = exchange::ReadTextRepairs(data_);
  session::IncomingText incoming = session::ReadIncomingText(text_, paths.Orders.string());
  text_ = std::move(incoming.Text);
  return session::ReplaceOrdersByText(situation, text_, {power_, *repairs_}, doubtful_, messages);
}

std::vector<exchange::ReadLine> OrdersSource::Take(GameAtWork& at, Console& console) {
  std::vector<exchange::ReadLine> leftOut = Take(at.Situation, at.Paths, at.Messages);
  if (!isRegistered_ || at.Paths.Orders.empty()) return leftOut;
  letters::Receipt receipt = letters::ReceiptOf(at.Situation.Game, leftOut, {});
  receipt.Filed = orders::StageList(at.Situation.Game);
  receipt.Power = power_;
  receipt.Source = at.Paths.Orders.string();
  receipt.Text = text_;
  Attempt(console, at.Paths.Game, [&] {
    letters::Register(at.Paths.Game, receipt);
    return true;
  });
  return leftOut;
}

void SayLeftOut(Console& console, const GamePaths& paths,
                const std::vector<exchange::ReadLine>& leftOut) {
  for (const exchange::ReadLine& left : leftOut)
    console.Say(paths.Game, left.Written + ": " + session::LeftOutReason(left));
}

std::string OrdersSource::TextOf(const GamePaths& paths) {
  // A file that cannot be looked at is not missing: reading it will say why.
  std::error_code ignored;
  const auto type = std::filesystem::symlink_status(paths.Orders, ignored).type();
  const bool isMissing = type == std::filesystem::file_type::not_found;
  if (isMissing && paths.OrdersMayLack) return {};
  return model::ReadFile(paths.Orders, model::Streams::Read);
}

}  // namespace orb::cli
