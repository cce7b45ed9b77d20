#include "letters/received.h"

#include "model/appending.h"
#include "model/country.h"
#include "model/files.h"
#include "session/commands.h"
#include "text/encoding.h"
#include "text/strings.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <system_error>

namespace orb::letters {
namespace {

constexpr std::string_view Beginning = "== ";
constexpr std::string_view Stroke = "| ";

std::string Utf8(std::string_view text) {
  return text::IsUtf8(text) ? std::string(text) : text::ToUtf8(text);
}

/// A value that is sure to stay on its line.
std::string OnOneLine(std::string_view value) {
  std::string line = Utf8(value);
  std::ranges::replace_if(
      line, [](char c) { return c == '\n' || c == '\r' || c == '\f'; }, ' ');
  return line;
}

void AddField(std::string_view name, std::string_view value, std::string& entry) {
  if (value.empty()) return;
  entry.append(name).append(": ").append(OnOneLine(value)).append("\n");
}

/// The value of a line that begins with this name; false for another line.
bool TakeField(std::string_view line, std::string_view name, std::string& value) {
  const bool isNamed = line.starts_with(name) && line.substr(name.size()).starts_with(": ");
  if (isNamed) value = line.substr(name.size() + 2);
  return isNamed;
}

bool TakeListed(std::string_view line, std::string_view name, std::vector<std::string>& values) {
  std::string value;
  if (!TakeField(line, name, value)) return false;
  values.push_back(std::move(value));
  return true;
}

void TakeLine(std::string_view line, Receipt& receipt) {
  if (line.starts_with(Stroke)) {
    receipt.Text.append(line.substr(Stroke.size())).append("\n");
    return;
  }
  const bool isKnown =
      TakeField(line, "Stage", receipt.Stage) || TakeField(line, "Power", receipt.Power) ||
      TakeField(line, "Source", receipt.Source) || TakeListed(line, "Filed", receipt.Filed) ||
      TakeListed(line, "Not filed", receipt.NotFiled);
  // Somebody has written into the file: that is no reason to show nothing of it.
  static_cast<void>(isKnown);
}

/// The power that all of these orders are of; empty: several, or none.
std::string_view PowerOfAll(const std::vector<std::string>& orders) {
  if (orders.empty()) return {};
  const std::string_view power = std::string_view(orders.front()).substr(0, 3);
  const bool isOfAll =
      model::FindCountry(power) != 0 && std::ranges::all_of(orders, [&](const std::string& order) {
        return order.starts_with(power);
      });
  return isOfAll ? power : std::string_view();
}

/// The clock's time where the program runs.
std::string TimeNow() {
  const std::time_t now = std::time(nullptr);
  std::tm parts{};
  localtime_r(&now, &parts);
  std::array<char, 32> text{};
  const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &parts);
  return {text.data(), length};
}

bool IsFiled(const exchange::ReadLine& line, const std::vector<exchange::ReadLine>& filed) {
  return std::ranges::any_of(filed, [&](const exchange::ReadLine& other) {
    return other.Place.Offset == line.Place.Offset && other.Order == line.Order;
  });
}

std::string WhyNotFiled(const exchange::ReadLine& line) {
  const std::string reason = session::LeftOutReason(line);
  return reason.empty() ? "left out" : reason;
}

}  // namespace

Receipt ReceiptOf(const model::GameState& game, const std::vector<exchange::ReadLine>& lines,
                  const std::vector<exchange::ReadLine>& filed) {
  Receipt receipt;
  receipt.Time = TimeNow();
  receipt.Stage = SeasonText(game).append(", ");
  receipt.Stage.append(StageText(game));
  for (const exchange::ReadLine& line : filed)
    receipt.Filed.push_back(line.Order);
  for (const exchange::ReadLine& line : lines) {
    const bool isOrder = exchange::IsUnderstood(line) || exchange::IsUnclear(line);
    if (isOrder && !IsFiled(line, filed))
      receipt.NotFiled.push_back(line.Written + ": " + WhyNotFiled(line));
  }
  return receipt;
}

std::filesystem::path RegisterOf(const std::filesystem::path& game) {
  std::filesystem::path file = game;
  file.replace_extension();
  file += ".received.txt";
  return file;
}

std::string FormatReceipt(const Receipt& receipt) {
  std::string entry(Beginning);
  entry.append(OnOneLine(receipt.Time)).append("\n");
  AddField("Stage", receipt.Stage, entry);
  AddField("Power", receipt.Power.empty() ? PowerOfAll(receipt.Filed) : receipt.Power, entry);
  AddField("Source", receipt.Source, entry);
  for (const std::string& order : receipt.Filed)
    AddField("Filed", order, entry);
  for (const std::string& line : receipt.NotFiled)
    AddField("Not filed", line, entry);
  const std::string text = Utf8(receipt.Text);
  for (std::string_view rest = text; !rest.empty();)
    entry.append(Stroke).append(OnOneLine(text::NextLine(rest))).append("\n");
  return entry.append("\n");
}

void Register(const std::filesystem::path& game, const Receipt& receipt) {
  model::AppendToFile(RegisterOf(game), FormatReceipt(receipt));
}

std::vector<Receipt> ParseRegister(std::string_view text) {
  std::vector<Receipt> receipts;
  while (!text.empty()) {
    const std::string_view line = text::NextLine(text);
    if (line.starts_with(Beginning)) {
      receipts.emplace_back().Time = line.substr(Beginning.size());
    } else if (!receipts.empty()) {
      TakeLine(line, receipts.back());
    }
  }
  return receipts;
}

std::vector<Receipt> ReadRegister(const std::filesystem::path& game) {
  const std::filesystem::path file = RegisterOf(game);
  std::error_code ignored;
  if (!std::filesystem::exists(file, ignored)) return {};
  return ParseRegister(model::ReadFile(file));
}

bool Mentions(const Receipt& receipt, std::string_view words) {
  const std::string entry = text::LowerCase(FormatReceipt(receipt));
  const std::string lower = text::LowerCase(words);
  std::string_view rest = lower;
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find(' '), rest.size());
    if (entry.find(rest.substr(0, end)) == std::string::npos) return false;
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return true;
}

}  // namespace orb::letters
