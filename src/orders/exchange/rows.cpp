#include "orders/exchange/rows.h"

#include "orders/exchange/doubts.h"
#include "orders/exchange/harmless_words.h"
#include "orders/exchange/line_kinds.h"
#include "orders/exchange/power_names.h"
#include "orders/exchange/sayings.h"
#include "orders/exchange/second_thoughts.h"
#include "text/strings.h"

#include <algorithm>
#include <set>

namespace orb::exchange {
namespace {

/// Whether what is not understood in the line of an order may put that order right, "correction:
/// Pic", "to Pic", as it begins none of its own.
bool IsLoose(Tokens words, const PlaceNames& names) {
  constexpr std::ptrdiff_t few = 5;
  const auto isVerb = [](const Token& token) { return VerbOf(token) != Verb::None; };
  const auto verb = std::ranges::find_if(words, isVerb);
  return std::ranges::count(words, TokenKind::Word, &Token::Kind) <= few &&
         (verb == words.end() || verb == words.begin() || !NamesPlace(words, names)) &&
         std::ranges::none_of(words, [](const Token& token) {
           return UnitTypeOf(token) != 0 && (token.Capital || token.Text.size() > 1);
         });
}

}  // namespace

void Rows::BeginLine(Tokens line, bool isOlder, bool inSignature) {
  changes_ = changes_ || std::ranges::any_of(line, [](const Token& token) {
               return HasUse(token, WordUse::Correction) || token.Text.starts_with("chang");
             });
  isOlder_ = isOlder;
  inSignature_ = inSignature;
  understood_.clear();
  remarks_.clear();
}

ReadLine& Rows::Add(const SourceLine& line, Span place, LineKind kind, int power) {
  ReadLine& read = Lines.emplace_back();
  Around.Add(isOlder_);
  read.Number = line.Number;
  read.Place = place;
  read.Written = line.Bytes.substr(place.Offset - line.Offset, place.Length);
  read.Kind = kind;
  read.Power = PowerText(power);
  return read;
}

ReadLine& Rows::AddLine(const SourceLine& line, int power, LineKind kind) {
  return Add(line, {line.Offset, line.Bytes.size()}, kind, power);
}

void Rows::AddTooLong(const SourceLine& line, int power) {
  ReadLine& read = AddLine(line, power, LineKind::NotUnderstood);
  read.Reason = "the line is longer than " + std::to_string(LineBound) + " characters";
  read.ReasonPlace = read.Place;
}

void Rows::AddUnclear(const SourceLine& line, TokenRange range, int power,
                      const std::string& reason) {
  ReadLine& read = Add(line, line.Span(range), LineKind::NotUnderstood, power);
  read.Reason = reason;
  read.ReasonPlace = line.Span({range.Begin, range.Begin + 1});
}

void Rows::AddPart(const SourceLine& line, TokenRange range, const PartRead& part,
                   const Context& context) {
  if (part.IsRemark) return AddRemark(range, part.Sentence);
  const bool isNone = part.Kind == LineKind::NotUnderstood &&
                      IsNoOrder(line.Part(range), known_.Names, inSignature_);
  const Tokens words = line.Part(range);
  const bool isLoose = part.Kind == LineKind::NotUnderstood &&
                       (IsLoose(words, known_.Names) || Reconsiders(words) || SaysOfOrders(words));
  if (isLoose && !understood_.empty()) {
    remarks_.push_back({range, understood_.back().Sentence, understood_.back().Row});
  }
  if (!isNone) return AddOnly(line, range, part, context);
  Add(line, line.Span(range), LineKind::PassedOver, context.Power);
  AddRemark(range, part.Sentence);
}

void Rows::AddOnly(const SourceLine& line, TokenRange range, const PartRead& part,
                   const Context& context) {
  if (range.Begin == range.End) {
    AddLine(line, context.Power, LineKind::PassedOver);
    return;
  }
  ReadLine& read = Add(line, line.Span(range), part.Kind, context.Power);
  const std::vector<Meaning>& meant = part.Meant.All;
  read.ReasonPlace = read.Place;
  read.ReadAs = part.ReadAs;
  const std::size_t row = Lines.size() - 1;
  if (!part.Doubt.empty()) Around.SetDoubtFrom(row, part.Doubt, read.Place);
  if (part.IsInferred) inferred_.push_back(row);
  if (part.IsRest) rest_.push_back(row);
  if (part.IsBare && context.Power == 0) pairs_.push_back(row);
  if (part.NamesPower && IsOfOther(line, part)) {
    Around.SetDoubtFrom(row, "the line has orders of another power", read.Place);
  }
  if (IsUnderstood(part)) {
    const std::size_t end = std::min(range.Begin + part.End, range.End);
    understood_.push_back({{range.Begin, end}, part.Sentence, row});
    const bool isOrder = part.Kind != LineKind::Waive;
    if (isOrder && end < range.End) AddRemark({end, range.End}, part.Sentence);
  }
  if (part.Kind == LineKind::Order) {
    read.Order = meant[0].Line;
    read.Power = PowerText(meant[0].Power);
    read.Reason = meant[0].Objection;
  } else if (part.Kind == LineKind::Ambiguous) {
    read.Reason = AmbiguityText(part.Meant);
    for (const Meaning& meaning : meant)
      read.Candidates.push_back(meaning.Line);
  } else if (part.Kind == LineKind::NotUnderstood) {
    AddProblem(line, range, part.Problem, read);
  }
}

/// Whether an order before it in its line is one of another power.
bool Rows::IsOfOther(const SourceLine& line, const PartRead& part) const {
  if (part.Kind != LineKind::Order) return false;
  const std::string power = PowerText(part.Meant.All[0].Power);
  for (auto other = Lines.rbegin() + 1; other != Lines.rend(); ++other) {
    if (other->Number != line.Number) break;
    if (exchange::IsUnderstood(*other) && other->Power != power) return true;
  }
  return false;
}

void Rows::AddProblem(const SourceLine& line, TokenRange range, const Fault& problem,
                      ReadLine& read) {
  const Tokens tokens = line.Part(range);
  read.Reason = problem.Reason;
  // A line that names its own power counts for that.
  if (const int power = PowerAt(tokens, 0).Power; power != 0) read.Power = PowerText(power);
  Concern about = ConcernOf(tokens, known_.Names, *known_.Game.Map);
  // Whatever place such words name, as a unit's or as where one goes to, they may be about it.
  if (about.Provinces.empty() && !FindSaying(tokens, Saying::Chats) && PowerIn(tokens) == 0) {
    const Tokens said = understood_.empty() ? Tokens(line.All) : tokens;
    about.Provinces = PlacesIn(said, known_.Names, *known_.Game.Map);
    about.OfTargets = about.OnlyAbove = true;
  }
  Around.SetAbout(std::move(about));
  const std::size_t begin = range.Begin + problem.At.Begin;
  const std::size_t end = std::min(range.Begin + problem.At.End, range.End);
  read.ReasonPlace =
      begin < end ? line.Span({begin, end}) : Span{read.Place.Offset + read.Place.Length, 0};
}

void Rows::DoubtLoneOnes() {
  const auto& around = Around.Rows();
  const bool changes = changes_ || std::ranges::any_of(around, [](const Surroundings& row) {
                         return row.Corrects || row.Amends || row.IsOlder;
                       });
  for (const std::size_t row : rest_) {
    if (!changes) break;
    Around.SetDoubt(row, "it is not said what holds", Lines[row].Place, false);
  }
  std::set<std::string> removing;
  std::set<int> unclear;
  for (const ReadLine& line : Lines) {
    if (line.Order.find(" disband ") != std::string::npos) removing.insert(line.Power);
    if (line.Kind == LineKind::NotUnderstood) unclear.insert(line.Number);
  }
  for (const std::size_t row : inferred_) {
    const ReadLine& line = Lines[row];
    if (!removing.contains(line.Power) && !unclear.contains(line.Number)) continue;
    Around.SetDoubt(row, "it is not said what is to be done", line.Place, false);
  }
  const auto orders = std::ranges::count_if(
      Lines, [](const ReadLine& line) { return exchange::IsUnderstood(line); });
  if (pairs_.size() != 1 || orders > 1 || known_.Stage == model::Stage::Retreats) return;
  Around.SetDoubt(pairs_[0], "it is not said what the unit does", Lines[pairs_[0]].Place, false);
}

bool Rows::HoldsOrders(std::size_t first) const {
  // The last rows may still become orders; those further up are looked at once.
  constexpr std::size_t open = 16;
  const bool isOfAll = first <= withoutOrders_;
  for (std::size_t row = isOfAll ? withoutOrders_ : first; row < Lines.size(); ++row) {
    const LineKind kind = Lines[row].Kind;
    const bool isOrder = exchange::IsUnderstood(Lines[row]) || kind == LineKind::Ambiguous ||
                         kind == LineKind::Waive;
    if (isOrder) return true;
    if (isOfAll && row + open < Lines.size()) withoutOrders_ = row + 1;
  }
  return false;
}

void Rows::PassOver(std::size_t first) {
  for (std::size_t row = first; row < Lines.size(); ++row) {
    Lines[row].Kind = LineKind::PassedOver;
    Lines[row].Reason.clear();
  }
}

}  // namespace orb::exchange
