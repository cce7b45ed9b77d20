#include "letters/letter.h"

#include "letters/own_view.h"

#include "history/journeys.h"
#include "history/unit_matching.h"
#include "model/country.h"
#include "model/lookups.h"
#include "orders/order_list.h"
#include "report/report_lines.h"
#include "report/wrapped_text.h"
#include "session/queries.h"
#include "session/standing.h"
#include "text/encoding.h"
#include "text/strings.h"

#include <algorithm>
#include <array>

namespace orb::letters {
namespace {

using model::GameState;
using model::Stage;
using session::Situation;

/// A titled part of a letter; without lines it is left out.
class Part {
 public:
  explicit Part(std::string_view title) : title_(title) {}

  void Add(std::string_view order, std::string_view remark = {}) {
    report::AddWrapped(std::string("  ").append(text::Trim(order)), 6, lines_);
    if (!remark.empty()) report::AddWrapped(std::string("      ").append(remark), 6, lines_);
  }

  void AddTo(std::string& text) const {
    if (lines_.empty()) return;
    text.append("\n").append(title_).append("\n").append(title_.size(), '-').append("\n");
    text.append(lines_);
  }

 private:
  std::string_view title_;
  std::string lines_;
};

/// The lines of the report about the power's orders, with their reasons.
Part Results(const Situation& situation, int power) {
  Part part("What became of your orders");
  const auto& lines = situation.Game.ReportLines;
  for (int i = 1; i <= lines.Count(); ++i) {
    if (report::TakeApart(lines[i]).Power != power) continue;
    const auto note = static_cast<std::size_t>(i - 1);
    part.Add(lines[i], note < situation.Notes.size() ? situation.Notes[note].Reason : "");
  }
  return part;
}

/// Where the power's units stand, and what brought them there as far as their rows tell: where
/// only files tell of a season, nothing else says what became of its retreats and builds.
Part Units(const Situation& situation, int power) {
  const GameState& game = situation.Game;
  Part part("Your units");
  const auto isKnown = [&](const model::Unit& unit) {
    return history::HasKnownStart(*game.Map, unit);
  };
  if (std::ranges::none_of(game.Units, isKnown)) return part;
  for (const model::Unit& unit : game.Units) {
    if (unit.Power != model::PowerName(power)) continue;
    std::string line = model::UnitText(unit);
    const bool isDislodged = unit.Status == model::Dislodged;
    if (isDislodged) line.append(", dislodged");
    if (isDislodged && !unit.DislodgedFrom.empty())
      line.append(" by an attack from ").append(unit.DislodgedFrom);
    if (!isDislodged && isKnown(unit) && unit.PreviousLocation != unit.Location) {
      line.append(unit.DislodgedFrom.empty() ? ", from " : ", retreated from ");
      line.append(unit.PreviousLocation);
    }
    if (unit.PreviousLocation.empty() && game.Stage == Stage::Finished) line.append(", new");
    part.Add(line);
  }
  for (const orders::OrderOutcome& order : situation.Outcomes) {
    const bool isLost = order.Power == model::PowerName(power) &&
                        order.Outcome != orders::Outcome::Void &&
                        history::IsMovesStageOrder(order) &&
                        std::ranges::none_of(game.Units, [&](const model::Unit& unit) {
                          return unit.Power == order.Power && unit.UnitType == order.UnitType &&
                                 unit.PreviousLocation == order.Location;
                        });
    if (!isLost) continue;
    part.Add(std::string(order.Power + " " + order.UnitType + "(" + order.Location)
                 .append("), no longer on the board"));
  }
  return part;
}

/// What becomes of a unit that stays without an order.
std::string_view Consequence(Stage stage) {
  if (stage == Stage::Moves) return "A unit without an order holds.";
  return stage == Stage::Retreats ? "A unit without an order is disbanded." : "";
}

/// How the orders of the stage stand: what the power itself can know of it.
class Received {
 public:
  Received(const Situation& view, int power)
      : view_(view), power_(power), standings_(session::StandingsOf(view)) {
    const std::vector<std::string>& list = orders::StageList(view.Game);
    const std::vector<Remark> remarks = RemarksOn(view);
    for (std::size_t row = 0; row < list.size(); ++row)
      Add(list[row], remarks[row]);
    for (const session::OpenOrder& open : standings_.Open) {
      if (open.Power == power) missing_.Add(session::TextOf(open, view.Game.Stage));
    }
    AddCounts();
  }

  void AddTo(std::string& text) const {
    session::PowerStanding standing = standings_.Powers[power_];
    // Help for others matches no order in the power's own list, and is no fault.
    standing.Doubtful = faults_;
    text.append("\n");
    report::AddWrapped(
        SentenceOf(view_.Game.Countries[power_].Name, standing, view_.Game.Stage).append("."), 0,
        text);
    for (const Part* part : {&received_, &faulty_, &unmatched_, &open_, &missing_})
      part->AddTo(text);
    const bool isOpen = std::ranges::any_of(
        standings_.Open, [&](const session::OpenOrder& open) { return open.Power == power_; });
    const std::string_view consequence = Consequence(view_.Game.Stage);
    if (isOpen && !consequence.empty()) text.append(consequence).append("\n");
  }

 private:
  void Add(const std::string& line, const Remark& remark) {
    received_.Add(line);
    for (const std::string& fault : remark.Faults)
      faulty_.Add(line, fault + ".");
    if (!remark.Unmatched.empty()) unmatched_.Add(line, remark.Unmatched);
    if (!remark.Open.empty()) open_.Add(line, remark.Open);
    if (!remark.Faults.empty() || !remark.Unmatched.empty()) ++faults_;
  }

  void AddCounts() {
    if (standings_.Powers[power_].Excess == 0) return;
    for (const adjudication::PowerProblem& problem : session::CheckOrders(view_).Powers) {
      if (problem.Power == model::PowerName(power_)) faulty_.Add(problem.Power, problem.Text + ".");
    }
  }

  const Situation& view_;
  int power_;
  session::Standings standings_;
  int faults_ = 0;
  Part received_{"Received, as understood"};
  Part faulty_{"Cannot be carried out"};
  Part unmatched_{"Matches none of your orders"};
  Part open_{"Depends on others"};
  Part missing_{"Still to be ordered"};
};

std::string Heading(const Situation& situation, int power) {
  const GameState& game = situation.Game;
  const model::Country& country = game.Countries[power];
  std::string text;
  report::AddWrapped(game.Title, 0, text);
  report::AddWrapped(SeasonText(game).append(", ").append(StageText(game)), 0, text);
  std::string to = "To " + country.Name;
  if (!country.PlayerName.empty()) to.append(" (").append(country.PlayerName).append(")");
  report::AddWrapped(to, 0, text);
  const std::string_view remark = session::RulesRemark(situation);
  if (!remark.empty()) report::AddWrapped(remark, 0, text);
  return text;
}

bool HasAnything(const Situation& situation, int power) {
  const std::string_view name = model::PowerName(power);
  const GameState& game = situation.Game;
  const bool reported = std::ranges::any_of(game.ReportLines, [&](const std::string& line) {
    return report::TakeApart(line).Power == power;
  });
  const auto owns = [&](const model::ProvinceState& place) { return place.Owner == name; };
  return reported || std::ranges::any_of(game.Provinces, owns) ||
         std::ranges::any_of(game.Units,
                             [&](const model::Unit& unit) { return unit.Power == name; }) ||
         !orders::StageList(OwnView(situation, power).Game).empty();
}

/// What a link may hold as it stands.
bool IsPlain(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
         std::string_view("-._~").find(c) != std::string_view::npos;
}

std::string Escaped(std::string_view text, std::string_view alsoPlain = {}) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string escaped;
  for (const char c : text::ToUtf8(text)) {
    const auto byte = static_cast<unsigned char>(c);
    if (IsPlain(c) || alsoPlain.find(c) != std::string_view::npos) {
      escaped += c;
    } else if (c == '\n') {
      escaped += "%0D%0A";
    } else {
      escaped += '%';
      escaped += digits[byte >> 4U];
      escaped += digits[byte & 15U];
    }
  }
  return escaped;
}

}  // namespace

Letter LetterTo(const Situation& situation, int power) {
  const Situation view = OwnView(situation, power);
  const GameState& game = view.Game;
  Letter letter;
  letter.Power = std::string(model::PowerName(power));
  letter.Subject = game.Title;
  letter.Subject.append(", ").append(SeasonText(game)).append(", ").append(StageText(game));
  letter.Subject.append(": ").append(game.Countries[power].Name);
  letter.Text = Heading(view, power);
  Results(view, power).AddTo(letter.Text);
  if (game.Stage != Stage::Moves && view.BeforeMoves == nullptr)
    Units(view, power).AddTo(letter.Text);
  if (session::TakesOrders(game)) Received(view, power).AddTo(letter.Text);
  letter.Orders = session::SeasonOrders(view);
  std::erase_if(letter.Orders,
                [&](const orders::OrderOutcome& order) { return order.Power != letter.Power; });
  return letter;
}

std::vector<Letter> Letters(const Situation& situation) {
  std::vector<Letter> letters;
  for (int power = 1; power <= model::CountryCount; ++power) {
    if (HasAnything(situation, power)) letters.push_back(LetterTo(situation, power));
  }
  return letters;
}

std::string MailLink(const Letter& letter, std::string_view address) {
  std::string link = "mailto:";
  link.append(Escaped(address, "@"));
  link.append("?subject=").append(Escaped(letter.Subject));
  return link.append("&body=").append(Escaped(letter.Text));
}

}  // namespace orb::letters
