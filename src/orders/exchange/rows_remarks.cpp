#include "orders/exchange/doubts.h"
#include "orders/exchange/harmless_words.h"
#include "orders/exchange/line_kinds.h"
#include "orders/exchange/replacements.h"
#include "orders/exchange/rows.h"
#include "orders/exchange/sayings.h"
#include "orders/exchange/second_thoughts.h"
#include "orders/order_list.h"
#include "text/strings.h"

#include <algorithm>
#include <array>
#include <string_view>

// What the words beside the orders of a line do to them.

namespace orb::exchange {
namespace {

/// How many words and signs a greeting before an order has at most: "Hi Tom, A Par - Bur".
constexpr std::size_t LongestGreeting = 6;

/// Whether words, perhaps in brackets, begin with a greeting.
bool GreetsAt(Tokens words) {
  const std::size_t first = IsA(words[0], TokenKind::Open) ? 1 : 0;
  return first < words.size() && HasUse(words[first], WordUse::Greeting);
}

/// Whether no more than commas stand between two places of a line.
bool IsNextTo(Tokens line, std::size_t end, std::size_t begin) {
  return end <= begin &&
         std::ranges::all_of(line.subspan(end, begin - end),
                             [](const Token& token) { return IsA(token, TokenKind::Comma); });
}

}  // namespace

void Rows::SetAsideExample(const SourceLine& line, TokenRange saying, std::size_t first) {
  const std::string reason = Quoted(line.Part(saying)) + " sets it aside";
  const Span at = line.Span(saying);
  for (std::size_t row = first; row < Lines.size(); ++row)
    Around.SetDoubt(row, reason, at, Lines[row].Place.Offset > at.Offset);
}

void Rows::DoubtRemarks(const SourceLine& line, std::size_t first) {
  // More orders than all powers have in a season: to hold each against each remark takes long.
  constexpr std::size_t most = 48;
  if (understood_.size() > most && !remarks_.empty()) {
    const TokenRange said = remarks_.front().At;
    return Around.SetDoubtFrom(first, Quoted(line.Part(said)) + " may change it", line.Span(said));
  }
  for (const Said& said : remarks_) {
    const Tokens remark = line.Part(said.At);
    const bool isGreeting = remark.size() <= LongestGreeting && GreetsAt(remark) &&
                            remark.back().Text != "?" && !NamesPlace(remark, known_.Names) &&
                            !ReadAside(remark, known_.Names).has_value();
    // "No A Par - Bur", but not "No, A Par - Bur".
    constexpr std::array<std::string_view, 8> answers{"no",  "non", "nao",  "nej",
                                                      "nei", "nie", "nein", "nee"};
    const bool isAnswer =
        !IsA(remark.back(), TokenKind::Word) &&
        std::ranges::any_of(remark, [&](const Token& token) { return IsOneOf(token, answers); });
    if (!isAnswer && FindSaying(remark, Saying::Excludes) && Exclude(line, said)) continue;
    int notTo = ExcludedPlace(remark, known_.Names);
    if (notTo == 0 && Corrects(line.All)) notTo = FormerPlace(remark, known_.Names);
    if (notTo != 0) Amend(line, said, notTo);
    const auto next = std::ranges::find_if(
        understood_, [&](const Understood& order) { return order.At.Begin >= said.At.End; });
    const bool excuses =
        next != understood_.end() && ExcusesSlip(line.Part({said.At.Begin, next->At.Begin}));
    if (excuses || (next != understood_.end() && IsSecondThought(remark))) {
      Around.SetAmends(next->Row, Quoted(remark) + " may change it", line.Span(said.At));
      continue;
    }
    if (next != understood_.end() && PutsRight(line, said, *next)) {
      Around.SetAmends(next->Row, Quoted(remark) + " may change it", line.Span(said.At));
      continue;
    }
    const bool isOwn =
        std::ranges::find(understood_, said.Sentence, &Understood::Sentence) != understood_.end();
    const bool isDoubted = !isGreeting && IsDoubted(line, said, isOwn);
    // Builds name no unit twice, so that any such words may take back those above.
    const bool isOfAbove =
        isDoubted && !IsReport(remark) && known_.Stage == model::Stage::Adjustments;
    if ((isOfAbove || Reconsiders(remark)) && next != understood_.end()) {
      Around.SetReconsiders(next->Row, Quoted(remark) + " may change it", line.Span(said.At));
    }
    const bool revokes = FindSaying(remark, Saying::Revokes).has_value();
    const bool isOfNext = next != understood_.end() && next->Sentence == said.Sentence;
    if (revokes && isOfNext) Around.SetRevoked(next->Row);
    if ((revokes || Replaces(remark)) && TakesBackNext(line, said)) continue;
    if (ReplacesNext(remark) && TakesBackBehind(line, said)) continue;
    if (EndsExclusion(line, said) || LeadsFromExcluded(line, said)) continue;
    if (!isDoubted) continue;
    // "(was Pic)" says what is no more, but not that this is.
    const bool isUnreal = isOwn && !IsA(remark[0], TokenKind::Open) && IsUnreal(remark) &&
                          !NamesPlace(remark, known_.Names);
    if (isUnreal && DoubtUnreal(line, said)) continue;
    AddAlternative(line, said);
    Concern about = ConcernOf(remark, known_.Names, *known_.Game.Map);
    about.MayBeAll = false;
    if (!understood_.empty()) Around.AddAbout(understood_.front().Row, about);
    const std::string reason = Quoted(line.Part(said.At)) + " may change it";
    const bool isReported = IsReport(remark);
    for (const Understood& order : understood_) {
      if (isOwn && !SpeaksOf(line, said, order)) continue;
      Around.SetDoubt(order.Row, reason, line.Span(said.At), isReported);
    }
    if (!isOwn) Around.SetDoubtFrom(first, reason, line.Span(said.At));
  }
}

/// "Vie - Gal?? no no, Vie holds": whether words between two orders of one unit put the second in
/// the place of the first.
bool Rows::PutsRight(const SourceLine& line, const Said& said, const Understood& next) const {
  constexpr std::size_t longest = 14;
  const auto before = std::find_if(understood_.rbegin(), understood_.rend(),
                                   [&](auto& order) { return order.At.End <= said.At.Begin; });
  if (before == understood_.rend() || Lines[before->Row].Kind != LineKind::Order ||
      Lines[next.Row].Kind != LineKind::Order) {
    return false;
  }
  const std::string& old = Lines[before->Row].Order;
  const std::string& now = Lines[next.Row].Order;
  if (old == now || orders::UnitPart(old) != orders::UnitPart(now)) return false;
  Tokens between = line.Part({before->At.End, next.At.Begin});
  if (between.size() > longest) return false;
  while (!between.empty() && !IsA(between[0], TokenKind::Word))
    between = between.subspan(1);
  // "Or", "if" and what somebody else says leave it open.
  const bool isOpen = std::ranges::any_of(between, [](const Token& token) {
    constexpr auto opening = static_cast<unsigned>(Signal::Says) |
                             static_cast<unsigned>(Signal::Chooses) |
                             static_cast<unsigned>(Signal::Leaves);
    const bool denies = (token.Means.Signals & static_cast<unsigned>(Signal::Denies)) != 0;
    return (token.Means.Signals & opening) != 0 || HasUse(token, WordUse::Reservation) ||
           (HasUse(token, WordUse::Condition) && !denies && !IsWord(token, "instead"));
  });
  // "Better not A Vie - Boh" excludes the second one.
  constexpr std::array<std::string_view, 14> denying{"not",   "never",  "nicht", "niemals", "pas",
                                                     "nunca", "mai",    "niet",  "nooit",   "ikke",
                                                     "aldri", "aldrig", "inte",  "nigdy"};
  const auto last = std::find_if(between.rbegin(), between.rend(), IsWordToken);
  const bool denies =
      last != between.rend() &&
      (std::ranges::find(denying, last->Text) != denying.end() ||
       std::ranges::any_of(between, [](const Token& token) { return IsWord(token, "will"); }));
  if (isOpen || denies || FindSaying(between, Saying::Revokes)) return false;
  const auto thinks = FindSaying(between, Saying::Reconsiders);
  return thinks && thinks->Begin < 2;
}

/// "A Par - Bur, not Pic" holds rather than an order to Picardy above.
void Rows::Amend(const SourceLine& line, const Said& said, int place) {
  constexpr std::size_t nameLength = 3;
  for (const Understood& order : understood_) {
    // "Instead of Burgundy, Paris goes to Picardy".
    const bool isNext = IsNextTo(line.All, order.At.End, said.At.Begin) ||
                        IsNextTo(line.All, said.At.End, order.At.Begin);
    if (!isNext) continue;
    Around.SetInstead(order.Row, text::UpperCase(known_.NameOf(place).substr(0, nameLength)));
  }
}

/// "A Bur - Par or Gas", "otherwise to Gas", "(I mean Gas)": the order of the same unit that such
/// words give.
void Rows::AddAlternative(const SourceLine& line, const Said& said) {
  constexpr std::array<std::string_view, 13> choosing{
      "or", "oder", "ou",    "otherwise", "else",   "o",      "eller",
      "of", "lub",  "sonst", "sinon",     "ellers", "instead"};
  constexpr std::array<std::string_view, 14> correcting{
      "mean", "meant", "meine", "meinte",    "voulais", "oops",  "ups",
      "dire", "decir", "dico",  "intendevo", "bedoel",  "mener", "menar"};
  constexpr std::size_t longest = 5;
  const auto before = std::find_if(understood_.rbegin(), understood_.rend(), [&](auto& order) {
    return order.At.End <= said.At.Begin && Lines[order.Row].Kind == LineKind::Order;
  });
  if (before == understood_.rend() || known_.Stage == model::Stage::Adjustments) return;
  const Tokens remark = line.Part(said.At);
  const auto isOneOf = [](const auto& words, const Token& token) {
    return std::ranges::find(words, token.Text) != words.end();
  };
  const auto choice = std::find_if(remark.rbegin(), remark.rend(), [&](const Token& token) {
    return isOneOf(choosing, token) || isOneOf(correcting, token) ||
           HasUse(token, WordUse::Correction);
  });
  if (choice == remark.rend()) return;
  auto at = static_cast<std::size_t>(remark.rend() - choice);
  while (at < remark.size() &&
         (IsA(remark[at], TokenKind::Colon) || IsA(remark[at], TokenKind::Comma)))
    ++at;
  const std::string order = Lines[before->Row].Order;
  const Context context{model::FindCountry(Lines[before->Row].Power), Verb::None};
  for (std::size_t length = std::min(longest, remark.size() - at); length > 0; --length) {
    std::string text(orders::UnitPart(order));
    text.append(VerbOf(remark[at]) == Verb::None ? " to " : " ");
    for (const Token& token : remark.subspan(at, length))
      text.append(token.Written).append(" ");
    const std::vector<Token> tokens = CutTokens(text);
    Context tried = context;
    const PartRead read = ReadPart(tokens, known_, tried);
    if (read.Kind != LineKind::Order || read.Meant.All[0].Line == order) continue;
    const std::size_t begin = said.At.Begin + at;
    AddOnly(line, {begin, begin + length}, read, context);
    understood_.pop_back();
    const std::string_view tells =
        isOneOf(choosing, *choice) ? " leaves the choice" : " may change it";
    Around.SetDoubtFrom(Lines.size() - 1, Quoted(remark).append(tells), line.Span(said.At));
    return;
  }
}

/// "I was going to play A Ven - Tri", "A Lvn - StP would block it": sets aside the orders right
/// behind such words, up to others; where there are none, those right before. False for none.
bool Rows::DoubtUnreal(const SourceLine& line, const Said& said) {
  const std::string reason = Quoted(line.Part(said.At)) + " may change it";
  const auto setAside = [&](std::size_t begin, std::size_t end) {
    bool any = false;
    for (const Understood& order : understood_) {
      const bool isHere = order.At.Begin >= begin && order.At.End <= end;
      if (order.Sentence != said.Sentence || !isHere) continue;
      Around.SetDoubt(order.Row, reason, line.Span(said.At), true);
      any = true;
    }
    return any;
  };
  std::size_t begin = 0;
  std::size_t end = line.All.size();
  for (const Said& other : remarks_) {
    if (other.At.Begin > said.At.Begin) end = std::min(end, other.At.Begin);
    if (other.At.End < said.At.End) begin = std::max(begin, other.At.End);
  }
  const bool isAttached = std::ranges::any_of(
      understood_, [&](const Understood& order) { return order.At.End == said.At.Begin; });
  return isAttached ? setAside(begin, said.At.Begin) : setAside(said.At.End, end);
}

/// Whether words are about an order of their sentence. Between two orders without a comma they are
/// about these two, in brackets about the one before; behind the last and before the first about
/// all.
bool Rows::SpeaksOf(const SourceLine& line, const Said& said, const Understood& order) const {
  if (order.Sentence != said.Sentence) return false;
  if (said.Row) return order.Row == *said.Row;
  const auto isBefore = [&](const Understood& other) { return other.At.End <= said.At.Begin; };
  const auto isBehind = [&](const Understood& other) { return other.At.Begin >= said.At.End; };
  const Understood* before = nullptr;
  const Understood* behind = nullptr;
  for (const Understood& other : understood_) {
    if (other.Sentence != said.Sentence) continue;
    if (isBefore(other)) before = &other;
    if (isBehind(other) && behind == nullptr) behind = &other;
  }
  // Of several sentences the one that asks has its sign behind the order that it asks about.
  const bool isSign = IsDoubtfulSign(line.All[said.At.Begin]) && said.At.End <= said.At.Begin + 3 &&
                      before != nullptr && behind == nullptr;
  if (isSign && understood_.back().At.Begin >= said.At.End) return order.Row == before->Row;
  const bool isAttached = before != nullptr && behind != nullptr &&
                          before->At.End == said.At.Begin &&
                          !IsA(line.All[said.At.Begin], TokenKind::Comma);
  if (!isAttached) return true;
  const bool isBracket = IsA(line.All[said.At.Begin], TokenKind::Open) &&
                         IsA(line.All[said.At.End - 1], TokenKind::Close);
  const bool isParted = IsA(line.All[said.At.End], TokenKind::Comma);
  return order.Row == before->Row || (order.Row == behind->Row && !isBracket && !isParted);
}

/// "Scrap Mun - Bur, make it A Mun - Ruh": whether words take back the order right behind them,
/// whose unit is ordered again in the line.
bool Rows::TakesBackNext(const SourceLine& line, const Said& said) {
  const auto next = std::ranges::find(understood_, said.At.End,
                                      [](const Understood& order) { return order.At.Begin; });
  const Tokens remark = line.Part(said.At);
  const bool asks = std::ranges::any_of(
      remark, [](const Token& token) { return IsWord(token, "favor"); });  // no place: "por favor"
  if (next == understood_.end() || (!asks && NamesPlace(remark, known_.Names))) return false;
  const std::string_view unit = orders::UnitPart(Lines[next->Row].Order);
  const bool isAgain = std::any_of(next + 1, understood_.end(), [&](const Understood& order) {
    return orders::UnitPart(Lines[order.Row].Order) == unit &&
           Lines[order.Row].Order != Lines[next->Row].Order;
  });
  if (!isAgain) return false;
  Around.SetDoubt(next->Row, Quoted(remark) + " excludes it", line.Span(said.At), true);
  Around.SetTakenBack(next->Row);
  return true;
}

/// "A Par - Pic replaces A Par - Bur": whether words between two orders of one unit take back the
/// second.
bool Rows::TakesBackBehind(const SourceLine& line, const Said& said) {
  const auto before = std::ranges::find(understood_, said.At.Begin,
                                        [](const Understood& order) { return order.At.End; });
  const auto behind = std::ranges::find(understood_, said.At.End,
                                        [](const Understood& order) { return order.At.Begin; });
  if (before == understood_.end() || behind == understood_.end() ||
      orders::UnitPart(Lines[before->Row].Order) != orders::UnitPart(Lines[behind->Row].Order)) {
    return false;
  }
  Around.SetDoubt(behind->Row, Quoted(line.Part(said.At)) + " excludes it", line.Span(said.At),
                  true);
  Around.SetTakenBack(behind->Row);
  return true;
}

/// "(not A Vie - Gal, I promised Russia)": whether words end a bracket in which an order is
/// excluded right before them.
bool Rows::EndsExclusion(const SourceLine& line, const Said& said) const {
  const Tokens remark = line.Part(said.At);
  const auto before = std::ranges::find(understood_, said.At.Begin,
                                        [](const Understood& order) { return order.At.End; });
  return before != understood_.end() && Around.Rows()[before->Row].IsRevoked &&
         IsA(remark.back(), TokenKind::Close) &&
         std::ranges::none_of(remark,
                              [](const Token& token) { return IsA(token, TokenKind::Open); });
}

/// "Change A Par - Bur into A Par - Pic", "strike Par - Bur, it is A Par - Pic": whether a few
/// words stand between an order that is taken back and another of its unit.
bool Rows::LeadsFromExcluded(const SourceLine& line, const Said& said) const {
  constexpr std::size_t few = 4;
  const auto before = std::ranges::find_if(understood_, [&](const Understood& order) {
    return IsNextTo(line.All, order.At.End, said.At.Begin);
  });
  const auto behind = std::ranges::find_if(understood_, [&](const Understood& order) {
    return IsNextTo(line.All, said.At.End, order.At.Begin);
  });
  if (before == understood_.end() || behind == understood_.end()) return false;
  const Tokens remark = line.Part(said.At);
  const bool isOpen = std::ranges::any_of(remark, [](const Token& token) {
    return HasUse(token, WordUse::Condition, WordUse::Reservation) || IsDoubtfulSign(token);
  });
  return Around.Rows()[before->Row].IsTakenBack && remark.size() <= few && !isOpen &&
         orders::UnitPart(Lines[before->Row].Order) == orders::UnitPart(Lines[behind->Row].Order);
}

/// The orders behind the words, up to other words, are those that are not meant: "(not F Kie -
/// Hol)".
/// False where there are none.
bool Rows::Exclude(const SourceLine& line, const Said& said) {
  bool excludes = false;
  const auto next = std::ranges::find(understood_, said.At.End,
                                      [](const Understood& order) { return order.At.Begin; });
  if (next == understood_.end()) return false;
  std::size_t end = line.All.size();
  for (const Said& other : remarks_) {
    // An "and" alone goes on.
    const bool goesOn = other.At.End - other.At.Begin == 1;
    if (other.At.Begin > said.At.End && !goesOn) end = std::min(end, other.At.Begin);
  }
  for (const Understood& order : understood_) {
    const bool isBehind = order.At.Begin >= said.At.End && order.At.Begin < end;
    if (order.Sentence != said.Sentence || !isBehind) continue;
    Around.SetDoubt(order.Row, Quoted(line.Part(said.At)) + " excludes it", line.Span(said.At),
                    true);
    Around.SetRevoked(order.Row);
    excludes = true;
  }
  return excludes;
}

}  // namespace orb::exchange
