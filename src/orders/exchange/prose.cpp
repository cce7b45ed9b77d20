#include "orders/exchange/prose.h"

#include "orders/exchange/doubts.h"
#include "orders/exchange/exact_line.h"
#include "orders/exchange/power_names.h"
#include "orders/exchange/slips.h"
#include "orders/exchange/source_line.h"
#include "orders/exchange/turned_clauses.h"
#include "orders/order_list.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace orb::exchange {
namespace {

using Words = std::vector<Token>;
/// Longer clauses hold more than one thought.
constexpr std::size_t LengthBound = 40;
/// The end of an order behind which nothing is left.
constexpr std::size_t Whole = 10 * LengthBound;

bool IsHelp(const Token& token) {
  const Verb verb = VerbOf(token);
  return token.Text.size() > 2 && (verb == Verb::Support || verb == Verb::Convoy);
}

/// Who helps an order, at the end of a clause.
struct Tail {
  Verb Helps = Verb::None;
  std::size_t Begin = 0;   ///< of all the words about it
  TokenRange Destination;  ///< between them: "is convoyed TO NORWAY by"
  TokenRange Helpers;
};

Tail FindTail(Tokens clause) {
  for (std::size_t at = 0; at < clause.size(); ++at) {
    const Token& token = clause[at];
    if (HasUse(token, ProseUse::With)) {
      const auto help =
          std::find_if(clause.begin() + static_cast<std::ptrdiff_t>(at), clause.end(), IsHelp);
      if (help != clause.end()) return {VerbOf(*help), at, {}, {at + 1, clause.size()}};
    }
    const bool isCarried = HasUse(token, ProseUse::Carried);
    if (!isCarried && !HasUse(token, ProseUse::Helped)) continue;
    std::size_t agent = at + 1;
    while (agent < clause.size() && !HasUse(clause[agent], ProseUse::Agent))
      ++agent;
    if (agent + 1 >= clause.size()) continue;
    std::size_t begin = at;
    while (begin > 0 && HasUse(clause[begin - 1], ProseUse::Copula))
      --begin;
    return {isCarried ? Verb::Convoy : Verb::Support,
            begin,
            {at + 1, agent},
            {agent + 1, clause.size()}};
  }
  return {};
}

class ProseReader {
 public:
  ProseReader(const PartsRead& before, const KnownGame& known, Context& context)
      : before_(before), known_(known), context_(context) {}

  PartsRead Read(Tokens line, TokenRange range) {
    isPolite_ = std::ranges::any_of(
        line.first(range.End), [](const Token& token) { return HasUse(token, ProseUse::Please); });
    const Tokens clause = line.subspan(range.Begin, range.End - range.Begin);
    const Tail tail = FindTail(clause);
    PartsRead parts;
    if (tail.Helps == Verb::None) {
      if (auto main = ReadMain(clause, true)) parts.emplace_back(range, std::move(*main));
      return parts;
    }
    Words words(clause.begin(), clause.begin() + static_cast<std::ptrdiff_t>(tail.Begin));
    const Tokens to =
        clause.subspan(tail.Destination.Begin, tail.Destination.End - tail.Destination.Begin);
    words.insert(words.end(), to.begin(), to.end());
    TrimLead(words);
    // Who is only hoped for is ordered nothing.
    const bool isHoped = std::ranges::any_of(
        words, [](const Token& token) { return token.Text.starts_with("hope"); });
    if (isHoped) return {};
    std::string order = LastOrder(false);
    const bool isLast = words.size() == 1 && HasUse(words[0], ProseUse::Pronoun);
    if (!words.empty() && !isLast) {
      auto main = ReadMain(words, false);
      const auto unit = main ? std::nullopt : ReadWords(words, "hold");
      if (!main && !unit) return {};
      order = main ? main->Meant.All[0].Line : MoveOf(unit->Meant.All[0].Line);
      const TokenRange before{range.Begin, range.Begin + tail.Begin};
      if (main) parts.emplace_back(before, std::move(*main));
    }
    if (order.empty()) return {};
    const TokenRange helpers{range.Begin + tail.Helpers.Begin, range.Begin + tail.Helpers.End};
    for (const TokenRange helper : Split(line, helpers, Seam::Comma)) {
      auto help =
          ReadHelper(line.subspan(helper.Begin, helper.End - helper.Begin), tail.Helps, order);
      // What another power's unit is hoped to do is none of the writer's orders.
      if (!help || help->Meant.All[0].Line.substr(0, 4) != order.substr(0, 4)) return {};
      parts.emplace_back(
          TokenRange{parts.empty() ? range.Begin : parts.back().first.End, helper.End},
          std::move(*help));
    }
    return parts;
  }

 private:
  /// The last order; one to help another is helped by none.
  std::string LastOrder(bool mayHelp = true) const {
    const auto last = std::find_if(before_.rbegin(), before_.rend(), [&](const auto& part) {
      if (part.second.Kind != LineKind::Order) return false;
      const std::string& line = part.second.Meant.All[0].Line;
      return mayHelp ||
             (line.find(" S ") == std::string::npos && line.find(" C ") == std::string::npos);
    });
    return last == before_.rend() ? std::string() : last->second.Meant.All[0].Line;
  }

  bool FollowsMove() const {
    return std::ranges::any_of(before_, [](const auto& part) {
      return part.second.Kind == LineKind::Order &&
             part.second.Meant.All[0].Line.find(" - ") != std::string::npos;
    });
  }

  /// Reads words and what takes the place of others behind them.
  std::optional<PartRead> ReadWords(const Words& words, std::string_view more = {}) {
    if (words.empty() || words.size() > LengthBound) return std::nullopt;
    std::string text;
    for (const Token& token : words) {
      // "Mid-Atlantic" stays one name.
      const bool goesOn = !text.empty() && text.back() == '-';
      const bool isApart = !token.Glued || (IsA(token, TokenKind::Word) && !goesOn);
      text.append(isApart ? " " : "").append(token.Written);
    }
    text.append(" ").append(more);
    const Words all = CutTokens(text);
    Context tried = context_;
    PartRead read = ReadPart(all, known_, tried);
    if (!IsUnderstood(read)) {
      tried = context_;
      PartRead mended = ReadWithSlips(all, read, known_, tried);
      if (IsUnderstood(mended)) read = std::move(mended);
    }
    const bool isOrder = read.Kind == LineKind::Order && read.Doubt.empty() && !read.IsGuess;
    if (!isOrder) return std::nullopt;
    read.End = Whole;
    context_ = tried;
    return read;
  }

  /// The unit of the last order does what the pronoun's clause says.
  bool ReplaceSubject(Words& words) const {
    if (words.size() < 2 || VerbOf(words[1]) == Verb::None ||
        !HasUse(words[0], ProseUse::Pronoun)) {
      return true;
    }
    const std::string order = LastOrder();
    if (order.empty()) return false;
    unit_ = std::string(orders::UnitPart(order));
    Words unit = CutTokens(unit_);
    words.erase(words.begin());
    words.insert(words.begin(), unit.begin(), unit.end());
    return true;
  }

  /// "Supports it", "covers that move", "convoys it over": the order before.
  bool ReplaceObject(Words& words) const {
    const auto help = std::ranges::find_if(words, IsHelp);
    if (help == words.end()) return true;
    const bool isConvoy = VerbOf(*help) == Verb::Convoy;
    auto end = help + 1;
    while (end != words.end() && HasUse(*end, WordUse::Filler))
      ++end;
    // "Paris supports" leaves out what.
    const bool isBare = end == words.end();
    const bool isDeed = !isBare && HasUse(*end, ProseUse::Deed) && end + 1 == words.end();
    if (!isBare && !isDeed && !HasUse(help[1], ProseUse::Object)) return true;
    if (!isBare && !isDeed) end = help + 2;
    while (end != words.end() &&
           (HasUse(*end, ProseUse::Deed) || IsWord(*end, "up") || IsWord(*end, "over") ||
            IsWord(*end, "across") || IsWord(*end, "there") || IsA(*end, TokenKind::Dot))) {
      ++end;
    }
    order_ = LastOrder(false);
    if (end != words.end() || order_.empty()) return false;
    if (isConvoy && order_.find(" - ") == std::string::npos) return false;
    words.erase(help + 1, words.end());
    const Words order = CutTokens(order_);
    words.insert(words.end(), order.begin(), order.end());
    return true;
  }

  static void Replace(Token& token, std::string_view word) {
    token.SetWord(std::string(word));
    token.Written = word;
  }

  static void TrimLead(Words& words) {
    const auto lead = std::ranges::find_if_not(words, [](const Token& token) {
      return HasUse(token, ProseUse::Lead) || HasUse(token, WordUse::Filler) ||
             IsA(token, TokenKind::Comma);
    });
    // "My army" and "that goes" need their first word no more than these do.
    words.erase(words.begin(), lead);
  }

  static void DropIdioms(Words& words) {
    for (std::size_t at = 0; at < words.size(); ++at) {
      if (!HasUse(words[at], ProseUse::Idiom)) continue;
      for (const auto& idiom : IdiomsBeginningWith(words[at].Text)) {
        const auto begin = words.begin() + static_cast<std::ptrdiff_t>(at);
        const bool isHere = idiom.size() <= words.size() - at &&
                            std::equal(idiom.begin(), idiom.end(), begin,
                                       [](std::string_view word, const Token& token) {
                                         return IsWord(token, word);
                                       });
        if (!isHere) continue;
        words.erase(begin, begin + static_cast<std::ptrdiff_t>(idiom.size()));
        --at;
        break;
      }
    }
    std::erase_if(words, [](const Token& token) { return HasUse(token, ProseUse::Adverb); });
  }

  /// "The poor serbian army": what stands between an article and the unit adds nothing.
  void NameUnits(Words& words) const {
    for (Token& token : words) {
      if (HasUse(token, ProseUse::Troop)) Replace(token, "army");
      if (HasUse(token, ProseUse::Ship)) Replace(token, "fleet");
    }
    for (std::size_t at = 0; at + 1 < words.size(); ++at) {
      const bool isArticle = IsWord(words[at], "the") || IsWord(words[at], "my") ||
                             IsWord(words[at], "our") || IsWord(words[at], "a") ||
                             IsWord(words[at], "another") || IsWord(words[at], "one");
      const WordMeaning& next = words[at + 1].Means;
      const bool isPlain = words[at + 1].Kind == TokenKind::Word && next.Does == Verb::None &&
                           next.UnitType == 0 &&
                           ((next.Uses & ~Harmless) == 0 || IsWord(words[at + 1], "new"));
      const bool isBeforeUnit =
          at + 2 < words.size() &&
          (UnitTypeOf(words[at + 2]) != 0 ||
           (at + 3 < words.size() && UnitTypeOf(words[at + 3]) != 0 && IsPlaceAt(words, at + 2)));
      if (isArticle && isPlain && isBeforeUnit && !IsPlaceAt(words, at + 1) &&
          PowerAt(words, at + 1).Power == 0) {
        words.erase(words.begin() + static_cast<std::ptrdiff_t>(at) + 1);
      }
    }
  }

  bool IsPlaceAt(const Words& words, std::size_t at) const {
    return !known_.Names.At(words, at).empty();
  }

  /// "The fleet moves from Brest to MAO", "leaves Brest for MAO": the place goes before the verb.
  void PutOrigin(Words& words) const {
    const auto type =
        std::ranges::find_if(words, [](const Token& token) { return UnitTypeOf(token) != 0; });
    if (type == words.end() || words.end() - type < 4) return;
    // "The fleet stays put in Ankara".
    if (VerbOf(type[1]) == Verb::Hold) {
      const auto in = std::find_if(type + 2, words.end(), [](const Token& token) {
        return IsWord(token, "in") || IsWord(token, "at");
      });
      if (in == words.end() || in + 1 == words.end()) return;
      words.erase(type + 2, in + 1);
      std::rotate(type + 1, type + 2, words.end());
      return;
    }
    if (VerbOf(type[1]) != Verb::Move) return;
    if (!IsWord(type[2], "from") && !IsWord(type[2], "aus")) return;
    words.erase(type + 1, type + 3);
  }

  /// "Zieht nach Kiel nach", "naar Noordzee sturen": the rest of a verb that was begun before.
  static void DropParticle(Words& words) {
    constexpr std::array<std::string_view, 20> particles{
        "zuruck",   "zurueck",  "terug",   "aus",     "ab",       "vor",  "nach",
        "los",      "ein",      "tilbage", "tilbake", "tillbaka", "back", "sturen",
        "schicken", "verlegen", "gaan",    "gehen",   "ziehen",   "over"};
    while (!words.empty() && IsA(words.back(), TokenKind::Dot))
      words.pop_back();
    const bool isMoved =
        words.size() > 2 && std::any_of(words.begin(), words.end() - 1, [](const Token& token) {
          return VerbOf(token) == Verb::Move || VerbOf(token) == Verb::Retreat ||
                 IsWord(token, "ins");
        });
    if (isMoved && IsOneOf(words.back(), particles)) words.pop_back();
  }

  /// "Is to be disbanded" says no more than its last word.
  static void DropCopulas(Words& words) {
    for (std::size_t at = 0; at < words.size(); ++at) {
      if (VerbOf(words[at]) != Verb::Disband || words[at].Text.size() < 4) continue;
      while (at > 0 && HasUse(words[at - 1], ProseUse::Copula))
        words.erase(words.begin() + static_cast<std::ptrdiff_t>(--at));
    }
  }

  /// What the text orders the unit of an order to hold, that one where it orders no move.
  std::string MoveOf(const std::string& hold) const {
    known_.IsAsked = true;
    for (const PlainOrder& move : known_.Moves) {
      std::string line = FormatOrder(move, known_.Stage);
      if (orders::UnitPart(line) == orders::UnitPart(hold)) return line;
    }
    return hold;
  }

  /// `mustChange`: as it stands it was read before.
  std::optional<PartRead> ReadMain(Tokens clause, bool mustChange) {
    if (clause.size() > LengthBound) return std::nullopt;
    Words words(clause.begin(), clause.end());
    // "Could you please move A Par to Bur?" asks nothing.
    const bool isPolite = std::ranges::any_of(words, [](const Token& token) {
      return HasUse(token, ProseUse::Please) && HasUse(token, WordUse::Filler, WordUse::Wish);
    });
    const bool isWish = isPolite && HasUse(words[0], WordUse::Wish);
    if (isWish && words.back().Text == "?") words.pop_back();
    TrimLeadBeforePronoun(words);
    if (!ReplaceSubject(words)) return std::nullopt;
    DropIdioms(words);
    if (!ReplaceObject(words)) return std::nullopt;
    NameUnits(words);
    TrimLead(words);
    TurnClause(words, known_.Names, FollowsMove());
    PutOrigin(words);
    DropCopulas(words);
    DropParticle(words);
    const bool isSame = std::ranges::equal(words, clause, {}, &Token::Written, &Token::Written);
    return isSame && mustChange ? std::nullopt : ReadWords(words);
  }

  /// "And so it goes": the pronoun stays.
  static void TrimLeadBeforePronoun(Words& words) {
    while (words.size() > 2 && HasUse(words[0], ProseUse::Lead) &&
           !HasUse(words[0], ProseUse::Pronoun))
      words.erase(words.begin());
  }

  std::optional<PartRead> ReadHelper(Tokens helper, Verb helps, const std::string& order) {
    Words words;
    for (std::size_t at = 0; at < helper.size(); ++at) {
      const Token& token = helper[at];
      const bool isEnd = isPolite_ && at + 1 == helper.size();
      if (IsDoubtfulSign(token) && !isEnd) return std::nullopt;
      const bool isSaid = IsHelp(token) || HasUse(token, ProseUse::Object) ||
                          HasUse(token, ProseUse::Deed) ||
                          (HasUse(token, ProseUse::Of) && words.empty()) ||
                          (!IsA(token, TokenKind::Word) && !IsA(token, TokenKind::Dash));
      if (!isSaid) words.push_back(token);
    }
    DropIdioms(words);
    NameUnits(words);
    return ReadWords(words, (helps == Verb::Convoy ? "c " : "s ") + order);
  }

  static constexpr unsigned Harmless =
      static_cast<unsigned>(WordUse::Filler) | static_cast<unsigned>(WordUse::Mood) |
      static_cast<unsigned>(WordUse::Plain) | static_cast<unsigned>(WordUse::Purpose) |
      static_cast<unsigned>(WordUse::Greeting) | static_cast<unsigned>(WordUse::Everyday);

  const PartsRead& before_;
  const KnownGame& known_;
  Context& context_;
  bool isPolite_ = false;  ///< the line says "please", so that a question may be a wish
  // The texts that words were cut from outlive their being read.
  mutable std::string unit_;
  mutable std::string order_;
};

}  // namespace

bool TellsHelpers(Tokens clause) {
  return clause.size() <= 2 * LengthBound && FindTail(clause).Helps != Verb::None;
}

PartsRead ReadProse(Tokens line, TokenRange range, const PartsRead& before, const KnownGame& known,
                    Context& context) {
  Context tried = context;
  PartsRead parts = ProseReader(before, known, tried).Read(line, range);
  if (!parts.empty()) context = tried;
  return parts;
}

}  // namespace orb::exchange
