#include "orders/exchange/segments.h"

#include "orders/exchange/asides.h"
#include "orders/exchange/bearing.h"
#include "orders/exchange/comments.h"
#include "orders/exchange/doubts.h"
#include "orders/exchange/embedded.h"
#include "orders/exchange/line_kinds.h"
#include "orders/exchange/other_matters.h"
#include "orders/exchange/power_names.h"
#include "orders/exchange/prose.h"
#include "orders/exchange/replacements.h"
#include "orders/exchange/rest_holds.h"
#include "orders/exchange/sayings.h"
#include "orders/exchange/second_thoughts.h"
#include "orders/exchange/sentences.h"
#include "orders/exchange/shared_words.h"
#include "orders/exchange/slips.h"
#include "orders/exchange/source_line.h"
#include "orders/exchange/vocabulary.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace orb::exchange {
namespace {

bool IsOrder(const std::pair<TokenRange, PartRead>& part) {
  return IsUnderstood(part.second);
}

PartsRead Moved(PartsRead parts, std::size_t begin) {
  for (auto& [range, part] : parts) {
    range.Begin += begin;
    range.End += begin;
  }
  return parts;
}

/// Whether a sentence tells what another power will not like or do: "Russia won't see it coming".
bool IsOfOthers(Tokens sentence, const PlaceNames& names, int power) {
  constexpr std::array<std::string_view, 12> soft{"not",    "wont",  "dont",  "doesnt",
                                                  "isnt",   "arent", "never", "no",
                                                  "should", "could", "might", "may"};
  const bool isHard = std::ranges::any_of(sentence, [&](const Token& token) {
    return IsDoubtfulSign(token) || HasUse(token, WordUse::Aside, WordUse::SetsAside) ||
           (HasUse(token, WordUse::Condition) && std::ranges::find(soft, token.Text) == soft.end());
  });
  constexpr std::size_t few = 4;
  // "Germany told me not to".
  const bool isOfWriter = std::ranges::any_of(sentence, [](const Token& token) {
    return IsWord(token, "me") || IsWord(token, "us") || IsWord(token, "i");
  });
  // "I told the Austrian that he could go there".
  const bool isTold =
      sentence.size() > few && NamesPlace(sentence, names) && HasUse(sentence[0], WordUse::Wish) &&
      (HasUse(sentence[1], WordUse::Report) || HasUse(sentence[2], WordUse::Report));
  const int named = isTold ? PowerIn(sentence) : PowerAt(sentence, 0).Power;
  return sentence.size() > few && named != 0 && named != power && !isHard &&
         (isTold || !isOfWriter) && !ReadAside(sentence, names);
}

/// Whether a sentence without orders says something that may concern others: what is passed over
/// silently does not.
bool Speaks(Tokens sentence, const PlaceNames& names, int power) {
  // More words than these are a thought of their own: "sorry, I was at football".
  constexpr std::size_t few = 4;
  const bool isBrief = sentence.size() <= few;
  const bool reconsiders = isBrief && Reconsiders(sentence) && !HoldsOrderWords(sentence, names);
  // "Rather Picardy", "or Picardy".
  const bool namesOther = Reconsiders(sentence) && NamesPlace(sentence, names);
  if (isBrief && (namesOther || IsOtherPlace(sentence, names))) return true;
  if (TellsOfNothing(sentence) && !BearsOnOrders(sentence)) return false;
  if (IsOfOthers(sentence, names, power) || SpeaksOfElse(sentence, names)) return false;
  const bool isOfUnit = HoldsOrderWords(sentence, names) && NamesPlace(sentence, names);
  if (!isOfUnit && BearsOnOrders(sentence)) return true;
  if (IsOffer(sentence) && !HoldsOrderWords(sentence, names) && !ReadAside(sentence, names))
    return false;
  // "Yesterday." alone speaks of the order, among others of something else.
  return ReadAside(sentence, names) || reconsiders ||
         std::ranges::any_of(sentence, [&](const Token& token) {
           return IsDoubtfulSign(token) ||
                  HasUse(token, WordUse::Condition, WordUse::Aside, WordUse::SetsAside) ||
                  (isBrief && HasUse(token, WordUse::Elsewhere));
         });
}

bool BeginsAsOrder(Tokens tokens, const PlaceNames& names) {
  return !names.At(tokens, UnitTypeOf(tokens[0]) != 0 ? 1 : 0).empty();
}

/// Reads the sentences of a segment.
class SegmentReader {
 public:
  SegmentReader(Tokens line, const KnownGame& known, const Context& context, bool inSignature)
      : line_(line), known_(known), start_(context), context_(context), inSignature_(inSignature) {}

  /// `isOnly`: there is no other sentence that it could be the heading of.
  void ReadSentence(TokenRange range, bool isOnly) {
    const std::size_t first = parts_.size();
    if (isOnly || !TakeHeading(range)) ReadAnySentence(range);
    for (std::size_t i = first; i < parts_.size(); ++i)
      parts_[i].second.Sentence = range.Begin;
  }

  bool HasOrder() const { return std::ranges::any_of(parts_, IsOrder); }
  const Context& Behind() const { return context_; }
  PartsRead Parts() { return std::move(parts_); }

 private:
  bool TakeHeading(TokenRange range) {
    const auto heading = ReadHeading(PartOf(range), known_.Names);
    if (!heading || heading->Power == 0 || !IsHeadingOf(known_.Stage, *heading)) return false;
    context_ = {heading->Power, heading->Orders};
    return true;
  }

  void ReadAnySentence(TokenRange range) {
    const Tokens tokens = PartOf(range);
    Context whole = context_;
    PartRead read = ReadPart(tokens, known_, whole);
    const bool isWhole = IsUnderstood(read) && !TellsHelpers(tokens);
    if (isWhole) return Take(range, std::move(read), whole);
    whole = context_;
    if (TakeAll(ReadReplacement(tokens, known_, whole), range.Begin, whole)) return;
    if (ReadClauses(range)) return;
    whole = context_;
    if (TakeAll(ReadRunOn(tokens, known_, whole), range.Begin, whole)) return;
    whole = context_;
    PartRead mended = ReadWithSlips(tokens, read, known_, whole);
    if (IsUnderstood(mended)) return Take(range, std::move(mended), whole);
    whole = context_;
    if (TakeAll(ReadEmbedded(tokens, known_, whole), range.Begin, whole)) return;
    // What a heading before it says holds all the same.
    ReadPart(tokens, known_, context_);
    if (Speaks(tokens, known_.Names, context_.Power) && !BeginsAsOrder(tokens, known_.Names)) {
      read = Remark();
    } else if (IsNoOrder(tokens, known_.Names, inSignature_)) {
      read.Kind = LineKind::PassedOver;
    }
    Take(range, std::move(read), context_);
  }

  Tokens PartOf(TokenRange range) const {
    return line_.subspan(range.Begin, range.End - range.Begin);
  }

  void Take(TokenRange range, PartRead read, const Context& behind) {
    parts_.emplace_back(range, std::move(read));
    context_ = behind;
  }

  /// False, and nothing is taken, for none.
  bool TakeAll(PartsRead parts, std::size_t begin, const Context& behind) {
    if (parts.empty()) return false;
    for (auto& part : Moved(std::move(parts), begin))
      parts_.push_back(std::move(part));
    context_ = behind;
    return true;
  }

  /// Reads what stands between commas; false, and nothing is taken, where none of it is an order.
  bool ReadClauses(TokenRange range) {
    const Context before = context_;
    const std::size_t first = parts_.size();
    plural_.reset();
    for (const TokenRange clause : Clauses(range))
      ReadClause(clause);
    PartsRead clauses(parts_.begin() + static_cast<std::ptrdiff_t>(first), parts_.end());
    parts_.resize(first);
    ShareVerbs(line_, known_, start_, clauses);
    if (std::ranges::none_of(clauses, IsOrder)) {
      context_ = before;
      return false;
    }
    return TakeAll(std::move(clauses), 0, context_);
  }

  /// What stands between commas; those before a colon part no orders, where there are none:
  /// "Turkey, with love: A Con - Bul".
  std::vector<TokenRange> Clauses(TokenRange range) const {
    const Tokens tokens = PartOf(range);
    const auto colon = std::ranges::find(tokens, TokenKind::Colon, &Token::Kind);
    const bool isTitle =
        colon != tokens.end() && std::none_of(tokens.begin(), colon, [](auto& word) {
          return IsA(word, TokenKind::Dash) || UnitTypeOf(word) != 0;
        });
    std::vector<TokenRange> clauses = Split(line_, range, Seam::Comma);
    if (!isTitle) return clauses;
    const std::size_t end = range.Begin + static_cast<std::size_t>(colon - tokens.begin());
    const auto last =
        std::ranges::find_if(clauses, [&](const TokenRange& clause) { return clause.End > end; });
    if (last == clauses.end()) return clauses;
    last->Begin = range.Begin;
    clauses.erase(clauses.begin(), last);
    return clauses;
  }

  void ReadClause(TokenRange range) {
    const Tokens tokens = PartOf(range);
    if (TellsOfRest(tokens)) return TakeRest(range);
    if (TellsOfNothing(tokens)) return TakeNone(range);
    // "FRA: +A Par +F Bre".
    if (IsA(tokens.back(), TokenKind::Colon) && TakeHeading(range)) return TakeNone(range);
    if (TellsHelpers(tokens) && TakeProse(range)) return;
    if (auto help = ReadSameHelp(line_, parts_, range, known_, context_)) {
      return Take(range, std::move(*help), context_);
    }
    const Context before = context_;
    parts_.emplace_back(range, ReadTyped(range));
    PartRead& part = parts_.back().second;
    if (IsUnderstood(part)) return DoubtChoice(range, part);
    if (auto again = ReadSameUnit(line_, parts_, range, known_, start_)) {
      part = std::move(*again);
      context_ = before;
      return;
    }
    if (IsTypedUnit(tokens)) return;
    PartRead plain = std::move(part);
    parts_.pop_back();
    if (TakeProse(range)) return;
    parts_.emplace_back(range, std::move(plain));
    ReadOddClause(range, before);
  }

  /// A type and its place alone: there is nothing else to be found in them.
  bool IsTypedUnit(Tokens clause) const {
    const auto places = known_.Names.At(clause, UnitTypeOf(clause[0]) != 0 ? 1 : clause.size());
    return !places.empty() && places[0].Next == clause.size();
  }

  /// "A Mun / F Kie" leaves the choice where it is not said what becomes of them.
  void DoubtChoice(TokenRange range, PartRead& part) const {
    const auto isSlash = [&](std::size_t at) {
      return at < line_.size() && IsA(line_[at], TokenKind::Slash);
    };
    const bool saysVerb = std::ranges::any_of(
        PartOf(range), [](const Token& token) { return VerbOf(token) != Verb::None; });
    const bool isChoice = isSlash(range.End) || (range.Begin > 0 && isSlash(range.Begin - 1));
    if (isChoice && !saysVerb) part.Doubt = "it is not said which is meant";
  }

  void TakeRest(TokenRange range) {
    if (TakeAll(HoldsOfRest(range, PartOf(range), known_, context_), 0, context_)) return;
    TakeNone(range);
  }

  /// What is no order, and says nothing of any.
  void TakeNone(TokenRange range) {
    PartRead none;
    none.Kind = LineKind::PassedOver;
    parts_.emplace_back(range, std::move(none));
  }

  /// A clause in the words of prose, all of which are understood.
  bool TakeProse(TokenRange range) {
    return TakeAll(ReadProse(line_, range, parts_, known_, context_), 0, context_);
  }

  /// A clause that is no order as it stands. `before`: the context where it begins.
  void ReadOddClause(TokenRange range, const Context& before) {
    const Tokens tokens = PartOf(range);
    if (const std::size_t thoughts = PastThoughts(tokens); thoughts < tokens.size()) {
      Context tried = before;
      PartRead read;
      if (thoughts > 0) read = ReadPart(tokens.subspan(thoughts), known_, tried);
      if (IsUnderstood(read)) {
        // "No A Mun" builds none.
        if (read.IsInferred) read.Doubt = "it is not said what is to be done";
        parts_.back() = {{range.Begin, range.Begin + thoughts}, Remark()};
        return Take({range.Begin + thoughts, range.End}, std::move(read), tried);
      }
    }
    if (ReadBehindThoughts(range, before)) return;
    PartRead& part = parts_.back().second;
    const Context behind = std::exchange(context_, before);
    if (TakeInstead(ReadRunOn(tokens, known_, context_), range)) return;
    PartRead mended = ReadWithSlips(tokens, part, known_, context_);
    if (IsUnderstood(mended)) {
      part = std::move(mended);
      return;
    }
    if (TakeInstead(ReadEmbedded(tokens, known_, context_), range)) return;
    // A heading before what was not understood holds all the same.
    context_ = behind;
    // What does not begin as an order of its own may concern the orders beside it.
    const bool speaks =
        Speaks(tokens, known_.Names, context_.Power) && !BeginsAsOrder(tokens, known_.Names);
    if (speaks || ExcludedPlace(tokens, known_.Names) != 0) part = Remark();
  }

  /// "Ion s ... no just ion hold": what was begun gives way to the order of the same unit.
  bool ReadBehindThoughts(TokenRange range, const Context& before) {
    const Tokens tokens = PartOf(range);
    const auto places = known_.Names.At(tokens, UnitTypeOf(tokens[0]) != 0 ? 1 : 0);
    if (places.empty()) return false;
    for (std::size_t at = places[0].Next; at + 1 < tokens.size(); ++at) {
      if (!MayBegin(tokens[at], Saying::Reconsiders)) continue;
      const std::size_t past = at + PastThoughts(tokens.subspan(at));
      if (past == at || past >= tokens.size()) continue;
      const auto again = known_.Names.At(tokens, past + (UnitTypeOf(tokens[past]) != 0 ? 1 : 0));
      if (again.empty() || again[0].Rows != places[0].Rows) return false;
      Context tried = before;
      Context begun = before;
      PartRead read = ReadPart(tokens.subspan(past), known_, tried);
      const bool isWhole = IsUnderstood(ReadPart(tokens.first(at), known_, begun, Rest::Anything));
      if (read.Kind != LineKind::Order || isWhole) return false;
      parts_.pop_back();
      TakeNone({range.Begin, range.Begin + past});
      Take({range.Begin + past, range.End}, std::move(read), tried);
      return true;
    }
    return false;
  }

  /// Takes orders in place of the clause that they were read from; false for none.
  bool TakeInstead(PartsRead parts, TokenRange range) {
    if (parts.empty()) return false;
    parts_.pop_back();
    return TakeAll(std::move(parts), range.Begin, context_);
  }

  /// Reads a part, with the type of units that it shares with the parts before it.
  PartRead ReadTyped(TokenRange range) {
    const Tokens tokens = PartOf(range);
    const std::vector<Token> typed = WithSharedType(tokens, plural_);
    if (typed.empty()) return ReadPart(tokens, known_, context_);
    PartRead read = ReadPart(typed, known_, context_);
    if (!IsUnderstood(read)) return ReadPart(tokens, known_, context_);
    // The type is not written here.
    read.End -= 1;
    return read;
  }

  Tokens line_;
  const KnownGame& known_;
  Context start_;
  Context context_;
  bool inSignature_;
  std::optional<Token> plural_;
  PartsRead parts_;
};

}  // namespace

PartsRead ReadSegment(Tokens line, TokenRange segment, const KnownGame& known, Context& context,
                      bool inSignature) {
  // As one order first: "A. Par. - Bur." has full stops and is one.
  Context whole = context;
  const Tokens all = line.subspan(segment.Begin, segment.End - segment.Begin);
  PartRead read = ReadPart(all, known, whole);
  if (IsUnderstood(read) && !TellsHelpers(all)) {
    context = whole;
    read.Sentence = segment.Begin;
    return {{segment, std::move(read)}};
  }
  auto sentences = Sentences(line, segment, known.Names);
  while (true) {
    SegmentReader reader(line, known, context, inSignature);
    for (const TokenRange sentence : sentences)
      reader.ReadSentence(sentence, sentences.size() == 1);
    const bool hasOrder = reader.HasOrder();
    if (hasOrder || sentences.size() == 1) {
      context = reader.Behind();
      return hasOrder ? reader.Parts() : PartsRead{{segment, std::move(read)}};
    }
    // They may have been no sentences.
    sentences = {segment};
  }
}

}  // namespace orb::exchange
