#include "orders/exchange/segments.h"

#include "orders/exchange/comments.h"
#include "orders/exchange/line_kinds.h"
#include "orders/exchange/shared_words.h"
#include "orders/exchange/slips.h"
#include "orders/exchange/source_line.h"
#include "orders/exchange/vocabulary.h"

#include <algorithm>
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

/// The first word that makes a condition of orders behind it or sets them aside.
std::size_t FindSetAside(Tokens tokens) {
  const auto sets = [](const Token& token) {
    return HasUse(token, WordUse::Condition, WordUse::Aside);
  };
  return static_cast<std::size_t>(std::ranges::find_if(tokens, sets) - tokens.begin());
}

/// Reads the parts of a segment between seams of one kind.
class SegmentReader {
 public:
  SegmentReader(Tokens line, TokenRange segment, const KnownGame& known, const Context& context,
                bool inSignature)
      : line_(line),
        segment_(segment),
        known_(known),
        start_(context),
        context_(context),
        inSignature_(inSignature) {}

  /// Nothing when none of the parts is an order. As full stops also follow abbreviations, none may
  /// stay unclear between them.
  std::optional<SegmentRead> Read(Seam seam) {
    for (const TokenRange range : Split(line_, segment_, seam))
      ReadRange(range);
    ShareVerbs(line_, known_, start_, read_.Parts);
    if (std::ranges::none_of(read_.Parts, IsOrder)) return std::nullopt;
    if (seam == Seam::FullStop && !isClear_) return std::nullopt;
    if (read_.Condition) read_.Parts.clear();
    return std::move(read_);
  }

  const Context& Behind() const { return context_; }

 private:
  Tokens PartOf(TokenRange range) const {
    return line_.subspan(range.Begin, range.End - range.Begin);
  }

  void ReadRange(TokenRange range) {
    const Context before = context_;
    read_.Parts.emplace_back(range, ReadTyped(range));
    PartRead& part = read_.Parts.back().second;
    if (IsUnderstood(part)) return;
    if (auto again = ReadSameUnit(line_, read_.Parts, range, known_, start_)) {
      part = std::move(*again);
      context_ = before;
      return;
    }
    const Tokens tokens = PartOf(range);
    const Context behind = std::exchange(context_, before);
    if (const PartsRead runOn = ReadRunOn(tokens, known_, context_); !runOn.empty()) {
      read_.Parts.pop_back();
      for (auto& order : Moved(runOn, range.Begin))
        read_.Parts.push_back(std::move(order));
      return;
    }
    PartRead mended = ReadWithSlips(tokens, part, known_, context_);
    if (IsUnderstood(mended)) {
      part = std::move(mended);
      return;
    }
    // A heading before what was not understood holds all the same.
    context_ = behind;
    // Before the first order, "last turn" and the like set aside what follows; behind one they do
    // not.
    const bool isOrdered = std::ranges::any_of(read_.Parts, IsOrder);
    const std::size_t at = isOrdered ? FindCondition(tokens) : FindSetAside(tokens);
    if (at < tokens.size() && !read_.Condition) read_.Condition = range.Begin + at;
    isClear_ = isClear_ && IsNoOrder(tokens, known_.Names, inSignature_);
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
  TokenRange segment_;
  const KnownGame& known_;
  Context start_;
  Context context_;
  bool inSignature_;
  bool isClear_ = true;
  std::optional<Token> plural_;
  SegmentRead read_;
};

}  // namespace

SegmentRead ReadSegment(Tokens line, TokenRange segment, const KnownGame& known, Context& context,
                        bool inSignature) {
  const Tokens tokens = line.subspan(segment.Begin, segment.End - segment.Begin);
  // As one order first: "A Par, - Bur" has a comma and is one. Parting is tried only if that fails.
  Context whole = context;
  PartRead read = ReadPart(tokens, known, whole);
  if (!IsUnderstood(read)) {
    for (const Seam seam : {Seam::Comma, Seam::FullStop}) {
      SegmentReader reader(line, segment, known, context, inSignature);
      if (auto parts = reader.Read(seam)) {
        context = reader.Behind();
        return std::move(*parts);
      }
    }
    PartsRead runOn = ReadRunOn(tokens, known, context);
    if (!runOn.empty()) return {Moved(std::move(runOn), segment.Begin), std::nullopt};
    Context slipped = context;
    PartRead mended = ReadWithSlips(tokens, read, known, slipped);
    if (IsUnderstood(mended)) {
      read = std::move(mended);
      whole = slipped;
    }
  }
  context = whole;
  return {{{segment, std::move(read)}}, std::nullopt};
}

}  // namespace orb::exchange
