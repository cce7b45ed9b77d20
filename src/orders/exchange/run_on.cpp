#include "orders/exchange/run_on.h"

#include "orders/exchange/comments.h"
#include "orders/exchange/doubts.h"
#include "orders/exchange/power_names.h"
#include "orders/order_list.h"

#include <map>
#include <set>
#include <string>
#include <tuple>

namespace orb::exchange {
namespace {

/// Bounds on the tries: more starts than the orders of all powers in a season have, and more tokens
/// than the longest order.
constexpr std::size_t OrderBound = 48;
constexpr std::size_t LengthBound = 40;

/// Whether "2." or "2)" stands here, before an order of a list.
bool IsNumbered(Tokens tokens, std::size_t at) {
  return IsNumber(tokens[at]) && at + 2 < tokens.size() &&
         (IsA(tokens[at + 1], TokenKind::Dot) || IsA(tokens[at + 1], TokenKind::Close));
}

/// Short verbs do not start an order: the "b" or "d" could end the one before.
bool MayStart(Tokens tokens, std::size_t at) {
  if (IsNumbered(tokens, at)) return true;
  if (UnitTypeOf(tokens[at]) != 0 || PowerAt(tokens, at).Power != 0) return true;
  const Verb verb = VerbOf(tokens[at]);
  return tokens[at].Text.size() > 2 && (verb == Verb::Build || verb == Verb::Disband ||
                                        verb == Verb::Retreat || verb == Verb::Waive);
}

/// Where an order may begin or the last one ends; those in brackets are left out.
std::vector<std::size_t> Starts(Tokens tokens) {
  std::vector<std::size_t> starts{0};
  for (std::size_t at = 0; at < tokens.size(); ++at) {
    if (IsA(tokens[at], TokenKind::Open)) {
      const std::size_t close = ClosingBracket(tokens, at);
      if (close < tokens.size()) at = close;
    } else if (at > 0 && MayStart(tokens, at)) {
      starts.push_back(at);
    }
  }
  starts.push_back(tokens.size());
  return starts;
}

/// Finds every way to part tokens into orders.
class Parting {
 public:
  Parting(Tokens tokens, const KnownGame& known)
      : tokens_(tokens), known_(known), starts_(Starts(tokens)) {}

  bool IsWorthwhile() const { return starts_.size() > 2 && starts_.size() <= OrderBound; }

  /// How the tokens from a start on can be parted, the first part of one of the ways.
  struct Ways {
    int Count = 0;  ///< 0, 1, or 2 for several
    std::size_t Next = 0;
    Context Behind;
    PartRead Part;
  };

  const Ways& From(std::size_t start, const Context& context) {
    // What follows depends only on where it starts and what holds there, so each case is tried
    // once: the work stays quadratic although the ways multiply.
    const auto key = std::make_tuple(start, context.Power, context.Orders);
    if (const auto found = found_.find(key); found != found_.end()) return found->second;
    Ways ways;
    for (std::size_t next = start + 1; next < starts_.size() && ways.Count < 2; ++next) {
      const std::size_t length = starts_[next] - starts_[start];
      if (length > LengthBound) break;
      Context behind = context;
      PartRead part =
          ReadPart(tokens_.subspan(First(start), starts_[next] - First(start)), known_, behind);
      if (!IsUnderstood(part)) continue;
      const int further = next + 1 == starts_.size() ? 1 : From(next, behind).Count;
      if (further == 0) continue;
      ways.Count += further;
      ways.Next = next;
      ways.Behind = behind;
      ways.Part = std::move(part);
    }
    return found_[key] = std::move(ways);
  }

  PartsRead Only(Context& context) {
    PartsRead parts;
    if (From(0, context).Count != 1) return parts;
    for (std::size_t start = 0; start + 1 < starts_.size();) {
      const Ways& ways = From(start, context);
      parts.emplace_back(TokenRange{First(start), starts_[ways.Next]}, ways.Part);
      context = ways.Behind;
      start = ways.Next;
    }
    return parts;
  }

 private:
  /// The first token of an order, behind its number.
  std::size_t First(std::size_t start) const {
    return starts_[start] + (IsNumbered(tokens_, starts_[start]) ? 2 : 0);
  }

  Tokens tokens_;
  const KnownGame& known_;
  std::vector<std::size_t> starts_;
  std::map<std::tuple<std::size_t, int, Verb>, Ways> found_;
};

/// Pairs of places one after the other, "vie gal bud ser", each of which its unit can move along.
PartsRead ReadPairs(Tokens tokens, const KnownGame& known, const Context& context) {
  PartsRead parts;
  std::size_t at = 0;
  while (at < tokens.size()) {
    const auto unit = known.Names.At(tokens, at);
    const auto place = known.Names.At(tokens, unit.empty() ? tokens.size() : unit[0].Next);
    if (place.empty()) break;
    std::size_t end = place[0].Next;
    if (end < tokens.size() && CoastLetter(tokens[end].Text) != 0) ++end;
    Context tried = context;
    PartRead pair = ReadPart(tokens.subspan(at, end - at), known, tried);
    if (pair.Kind != LineKind::Order || !pair.IsBare) break;
    parts.emplace_back(TokenRange{at, end}, std::move(pair));
    at = end;
  }
  return parts.size() > 1 && IsHarmlessTail(tokens.subspan(at)) ? parts : PartsRead();
}

/// Whether two of the orders are for one unit: they may be meant as a choice.
bool RepeatsUnit(const PartsRead& parts) {
  std::set<std::string> units;
  for (const auto& [range, part] : parts) {
    if (part.Kind != LineKind::Order) continue;
    const std::string& order = part.Meant.All[0].Line;
    if (!units.insert(std::string(orders::UnitPart(order))).second) return true;
  }
  return false;
}

}  // namespace

PartsRead ReadRunOn(Tokens tokens, const KnownGame& known, Context& context) {
  if (PartsRead pairs = ReadPairs(tokens, known, context); !pairs.empty()) return pairs;
  Parting parting(tokens, known);
  if (!parting.IsWorthwhile()) return {};
  Context behind = context;
  PartsRead parts = parting.Only(behind);
  if (parts.empty() || RepeatsUnit(parts)) return {};
  context = behind;
  return parts;
}

}  // namespace orb::exchange
