#include "orders/exchange/line_kinds.h"

#include "orders/exchange/comments.h"
#include "orders/exchange/doubts.h"
#include "orders/exchange/power_names.h"
#include "orders/exchange/sayings.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace orb::exchange {
namespace {

std::ptrdiff_t CountWords(Tokens tokens) {
  return std::ranges::count_if(tokens, IsWordToken);
}

bool Is(Tokens tokens, std::size_t at, TokenKind kind) {
  return at < tokens.size() && IsA(tokens[at], kind);
}

/// "i" to "xxxix".
bool IsRoman(const Token& token) {
  constexpr std::size_t longest = 6;
  return token.Text.size() <= longest && token.Text.find_first_not_of("ivx") == std::string::npos;
}

/// Behind "1.", "1)", "1:", "(1)", "#1", "iv.", "a)"; the letters A and F only before a unit type.
std::size_t PastNumber(Tokens tokens, std::size_t at) {
  std::size_t next = at;
  constexpr std::size_t longest = 3;
  if (Is(tokens, next, TokenKind::Mark) && tokens[next].Text == "#") ++next;
  const bool isOpen = Is(tokens, next, TokenKind::Open);
  if (isOpen) ++next;
  if (!Is(tokens, next, TokenKind::Word)) return at;
  const Token& word = tokens[next++];
  const bool isMarked =
      Is(tokens, next, TokenKind::Close) ||
      (!isOpen && (Is(tokens, next, TokenKind::Dot) || Is(tokens, next, TokenKind::Colon)));
  if (IsNumber(word) && word.Text.size() <= longest && (isMarked || !isOpen)) {
    return next + (isMarked ? 1 : 0);
  }
  if (isMarked && IsRoman(word)) return next + 1;
  if (word.Text.size() != 1 || !Is(tokens, next, TokenKind::Close)) return at;
  const bool startsUnit = next + 1 < tokens.size() && (UnitTypeOf(tokens[next + 1]) != 0 ||
                                                       PowerAt(tokens, next + 1).Power != 0);
  return UnitTypeOf(word) == 0 || startsUnit ? next + 1 : at;
}

/// Behind "10:15" and "2024-03-01, 10:15:30 pm"; the same token when no time stands there.
std::size_t PastTime(Tokens tokens, std::size_t at) {
  bool isTime = false;
  std::size_t next = at;
  while (next < tokens.size()) {
    const Token& token = tokens[next];
    const bool isHalf = IsWord(token, "am") || IsWord(token, "pm");
    const bool isColon = token.Kind == TokenKind::Colon && token.Glued &&
                         Is(tokens, next + 1, TokenKind::Word) && tokens[next + 1].Glued &&
                         IsNumber(tokens[next + 1]);
    const bool isMark = token.Text == "-" || token.Kind == TokenKind::Slash ||
                        token.Kind == TokenKind::Dot || token.Kind == TokenKind::Comma;
    isTime = isTime || isColon;
    if (!isHalf && !isColon && !isMark && !IsNumber(token)) break;
    ++next;
  }
  return isTime ? next : at;
}

/// Behind "[10:15, 3/1/2024]", "10:15", "<name>" or "10:15 <name>".
std::size_t PastStamp(Tokens tokens, std::size_t at) {
  at = PastTime(tokens, at);
  if (Is(tokens, at, TokenKind::Mark) && tokens[at].Text == "<") {
    for (std::size_t next = at + 1; next < tokens.size(); ++next) {
      const bool isStruckOut = IsWord(tokens[next], "s") || IsWord(tokens[next], "del") ||
                               IsWord(tokens[next], "strike");
      if (isStruckOut) return at;
      if (Is(tokens, next, TokenKind::Dash) && tokens[next].Text == ">") return next + 1;
    }
    return at;
  }
  if (!Is(tokens, at, TokenKind::Open)) return at;
  const std::size_t close = ClosingBracket(tokens, at);
  bool hasColon = false;
  for (std::size_t next = at + 1; next < close; ++next) {
    hasColon = hasColon || Is(tokens, next, TokenKind::Colon);
    if (IsWordToken(tokens[next]) && !IsNumber(tokens[next]) && tokens[next].Text != "am" &&
        tokens[next].Text != "pm") {
      return at;
    }
  }
  return hasColon && close < tokens.size() ? close + 1 : at;
}

/// Whether a name stands here, in a log of a chat, and behind it a unit or a power.
bool IsNameBeforeUnit(Tokens tokens, std::size_t at) {
  if (!Is(tokens, at, TokenKind::Word) || at + 2 >= tokens.size()) return false;
  const Token& name = tokens[at];
  const bool isWord = VerbOf(name) != Verb::None || UnitTypeOf(name) != 0 ||
                      HasUse(name, WordUse::Filler, WordUse::Condition) ||
                      HasUse(name, WordUse::Aside) || PowerAt(tokens, at).Power != 0;
  return !isWord && (UnitTypeOf(tokens[at + 1]) != 0 || PowerAt(tokens, at + 1).Power != 0);
}

/// The power that a capital alone before a colon stands for, "E:"; 0: none. "I:" is a number.
int PowerOfInitial(const Token& token) {
  constexpr std::string_view initials = "efgrta";
  const bool isInitial = token.Kind == TokenKind::Word && token.Text.size() == 1 && token.Capital;
  const auto place = isInitial ? initials.find(token.Text) : std::string_view::npos;
  return place == std::string_view::npos ? 0 : static_cast<int>(place) + 1;
}

/// Evidence that is enough by itself; what is weaker counts 1 and needs company.
constexpr int Strong = 2;

bool IsSign(const Token& token) {
  return token.Kind == TokenKind::Dash || token.Kind == TokenKind::Open;
}

/// How much the verb at a token speaks for an order: 0 to 2.
int VerbEvidence(Tokens tokens, std::size_t at) {
  const Token& token = tokens[at];
  const Verb verb = VerbOf(token);
  if (verb == Verb::None) return 0;
  if (token.Kind == TokenKind::Dash) {
    // Arrows hardly ever stand in prose; a dash does, so it must stand inside the text and behind a
    // blank, or between just two words.
    if (token.Text.find('>') != std::string::npos) return Strong;
    const bool isInside = at > 0 && at + 1 < tokens.size();
    return isInside && (!token.Glued || CountWords(tokens) == 2) ? 1 : 0;
  }
  // "S", "C" and "H" are orders only as capitals and behind something: "c u" is none.
  if (token.Text.size() == 1) return token.Capital && at > 0 ? 1 : 0;
  return verb == Verb::Move ? 1 : Strong;
}

/// How much a place at a token speaks for an order. War, gas and bar are words as well, but hardly
/// so in a text of a few words.
int PlaceEvidence(Tokens tokens, std::size_t at, const PlaceNames& names, bool isBrief) {
  const auto matches = names.At(tokens, at);
  const std::string& word = tokens[at].Text;
  constexpr std::size_t shortName = 3;
  if (matches.empty()) return names.NearlyNamed(word).empty() ? 0 : Strong;
  if (word.size() <= shortName && matches.back().Next == at + 1) {
    return (tokens[at].Capital || isBrief) && matches.back().IsExact ? Strong : 1;
  }
  return Strong;
}

/// How much of a text speaks for an order.
struct Evidence {
  int Commands = 0;  ///< arrows, units and verbs that are hardly ever used elsewhere
  int Moves = 0;     ///< words that move; few words with one may well be an order
  int Places = 0;
};

Evidence Weigh(Tokens tokens, const PlaceNames& names) {
  constexpr std::ptrdiff_t few = 4;
  const std::ptrdiff_t words = CountWords(tokens);
  Evidence evidence;
  bool isFirst = true;
  for (std::size_t at = 0; at < tokens.size(); ++at) {
    const Token& token = tokens[at];
    const int verb = VerbEvidence(tokens, at);
    const bool moves = VerbOf(token) == Verb::Move && token.Kind == TokenKind::Word;
    (moves ? evidence.Moves : evidence.Commands) += verb != 0 && words <= few ? Strong : verb;
    if (!IsWordToken(token)) continue;
    evidence.Places += PlaceEvidence(tokens, at, names, words <= few);
    if (UnitTypeOf(token) != 0 && token.Text.size() > 1) evidence.Commands += Strong;
    if (isFirst && UnitTypeOf(token) != 0) {
      // "A" begins many sentences, but few that are short and not of words alone.
      const bool isShort = words > 1 && words <= few + 1;
      const bool isMarked = UnitTypeOf(token) == 'F' || std::ranges::any_of(tokens, IsSign);
      evidence.Moves += isShort && isMarked ? Strong : 1;
    }
    const PowerName power = isFirst ? PowerAt(tokens, at) : PowerName{};
    if (power.Power != 0 && words < few) evidence.Commands += Strong;
    // Behind the power's name the unit may still come first.
    isFirst = power.Power != 0;
  }
  return evidence;
}

/// The power of a line that is nothing but an address: "F:", "Russia, for what it is worth:"; 0: it
/// is more, or none.
int AddressedPower(Tokens tokens, const PlaceNames& names) {
  if (tokens.size() == 2 && Is(tokens, 1, TokenKind::Colon)) {
    if (const int power = PowerOfInitial(tokens[0]); power != 0) return power;
  }
  const PowerName addressed = PowerAt(tokens, 0);
  if (addressed.Power == 0 || !Is(tokens, addressed.Next, TokenKind::Comma)) return 0;
  const Tokens rest = tokens.subspan(addressed.Next + 1);
  const bool isAside = std::ranges::any_of(
      rest, [](const Token& token) { return HasUse(token, WordUse::Condition, WordUse::Aside); });
  return isAside || rest.empty() || HoldsOrderWords(rest, names) ? 0 : addressed.Power;
}

/// "Armies:", "Flotten:".
bool IsTypeOfMany(const Token& token) {
  constexpr std::array<std::string_view, 20> types{
      "armies", "fleets",   "armeen", "flotten",   "armees", "flottes", "ejercitos",
      "flotas", "eserciti", "flotte", "exercitos", "frotas", "legers",  "vloten",
      "haere",  "flader",   "haerer", "flater",    "armeer", "flottor"};
  return IsA(token, TokenKind::Word) && std::ranges::find(types, token.Text) != types.end();
}

/// "A Vie", in capitals.
bool NamesUnitShortly(Tokens tokens, const PlaceNames& names) {
  for (std::size_t at = 0; at + 1 < tokens.size(); ++at) {
    if (UnitTypeOf(tokens[at]) == 0 || !tokens[at].Capital || !tokens[at + 1].Capital) continue;
    const auto places = names.At(tokens, at + 1);
    if (!places.empty() && places[0].IsExact) return true;
  }
  return false;
}

bool IsPressWord(const Token& token) {
  constexpr std::array<std::string_view, 8> titles{"press",  "presse", "pers",     "prensa",
                                                   "stampa", "prasa",  "imprensa", "pressen"};
  return std::ranges::find(titles, token.Text) != titles.end();
}

bool IsColonToken(const Token& token) {
  return token.Kind == TokenKind::Colon;
}

}  // namespace

bool NamesPlace(Tokens tokens, const PlaceNames& names) {
  for (std::size_t at = 0; at < tokens.size(); ++at) {
    if (!names.At(tokens, at).empty()) return true;
  }
  return false;
}

bool HoldsOrderWords(Tokens tokens, const PlaceNames& names) {
  for (std::size_t at = 0; at < tokens.size(); ++at) {
    if (VerbOf(tokens[at]) != Verb::None || UnitTypeOf(tokens[at]) != 0) return true;
    if (IsWordToken(tokens[at]) && !names.At(tokens, at).empty()) return true;
  }
  return false;
}

std::optional<Heading> ReadHeading(Tokens tokens, const PlaceNames& names) {
  Heading heading;
  bool hasWord = false;
  heading.Power = AddressedPower(tokens, names);
  if (heading.Power != 0) return heading;
  // "Hi, Russia builds".
  const bool isGreeted =
      tokens.size() > 2 && HasUse(tokens[0], WordUse::Greeting) && Is(tokens, 1, TokenKind::Comma);
  for (std::size_t at = isGreeted ? 2 : 0; at < tokens.size();) {
    const Token& token = tokens[at];
    if (token.Kind == TokenKind::Open) {
      const std::size_t close = ClosingBracket(tokens, at);
      if (const PowerName name = PowerAt(tokens, at + 1);
          heading.Power == 0 && name.Power != 0 && name.Next == close) {
        heading.Power = name.Power;
        hasWord = true;
        at = close + 1;
        continue;
      }
      // Behind a power, brackets hold its player or the like: "France (Tom):".
      const bool isRemark = heading.Power != 0 && close < tokens.size();
      if (!isRemark || HoldsOrderWords(tokens.subspan(at, close - at), names)) return {};
      at = close + 1;
      continue;
    }
    const PowerName name = PowerAt(tokens, at);
    if (name.Power != 0) {
      if (heading.Power != 0 && heading.Power != name.Power) return {};
      heading.Power = name.Power;
      hasWord = true;
      at = name.Next;
      continue;
    }
    ++at;
    // Hearts and other such signs are decoration; "?" or "%" make it something else.
    const bool isSymbol = static_cast<unsigned char>(token.Text[0]) >= 0x80;
    if (token.Kind == TokenKind::Mark && token.Text != "#" && !isSymbol) return {};
    if (token.Kind != TokenKind::Word) continue;
    const Verb verb = VerbOf(token);
    const bool isKind = token.Text.size() > 2 &&
                        (verb == Verb::Build || verb == Verb::Disband || verb == Verb::Retreat);
    if (!isKind && !HasUse(token, WordUse::Heading) && !IsTypeOfMany(token)) return {};
    hasWord = true;
    if (isKind) heading.Orders = verb;
  }
  // "Hi, Russia" greets Russia.
  if (isGreeted && heading.Orders == Verb::None) return {};
  return hasWord ? std::optional(heading) : std::nullopt;
}

bool IsOrderAlone(Tokens tokens, const Heading& heading, model::Stage stage) {
  return stage == model::Stage::Retreats && heading.Orders == Verb::Disband &&
         VerbOf(tokens.back()) == Verb::Disband &&
         (tokens.size() == 1 || PowerAt(tokens, 0).Power != 0);
}

bool IsPressTitle(Tokens tokens) {
  return CountWords(tokens) == 1 && IsPressWord(*std::ranges::find_if(tokens, IsWordToken));
}

bool IsPressLine(Tokens tokens) {
  const auto first = std::ranges::find_if(tokens, IsWordToken);
  if (first == tokens.end()) return false;
  // '"The bear wakes hungry." - St Petersburg Gazette'.
  constexpr std::ptrdiff_t few = 3;
  const bool isQuote = first->Begin > 0 && *(first->Written.data() - 1) == '"';
  if (isQuote && CountWords(tokens) > few)
    return std::ranges::none_of(tokens, [](const Token& token) { return UnitTypeOf(token) != 0; });
  if (!IsPressWord(*first)) return false;
  const auto colon = std::find_if(first, tokens.end(), IsColonToken);
  const bool namesUnit = std::any_of(first, colon, [](const Token& token) {
    return UnitTypeOf(token) != 0 || HasUse(token, WordUse::Orders);
  });
  return colon != tokens.end() && colon + 1 != tokens.end() && !namesUnit;
}

std::size_t PastLineStart(Tokens tokens) {
  std::size_t at = 0;
  // "Order #3: A Par - Bur".
  const bool isCounted =
      !tokens.empty() && (IsWord(tokens[0], "order") || IsWord(tokens[0], "unit"));
  if (isCounted && PastNumber(tokens, 1) != 1) {
    return PastNumber(tokens, 1);
  }
  // Quotation marks ("> >>") and bullets, which may be any pictures but such as cross out.
  while (Is(tokens, at, TokenKind::Dash) || Is(tokens, at, TokenKind::Dot) ||
         (Is(tokens, at, TokenKind::Mark) &&
          (tokens[at].Text == "+" || IsDecoration(tokens[at].Text)))) {
    ++at;
  }
  if (const std::size_t past = PastStamp(tokens, at); past != at) {
    at = past;
    // In a log of a chat the name of who speaks follows the time.
    constexpr std::size_t longestName = 3;
    for (std::size_t next = at; next < std::min(tokens.size(), at + longestName); ++next) {
      const bool isInitial = next > at && Is(tokens, next, TokenKind::Dot);
      if (HasUse(tokens[next], WordUse::Condition)) break;
      if (!IsWordToken(tokens[next]) && !isInitial) break;
      const bool isPower = PowerAt(tokens, at).Power != 0;
      if (Is(tokens, next + 1, TokenKind::Colon) && !isPower) return next + 2;
    }
    if (IsNameBeforeUnit(tokens, at)) return at + 1;
  }
  // "Vasco [21:03] A Ven - Tri".
  const bool isNamed = Is(tokens, at, TokenKind::Word) && Is(tokens, at + 1, TokenKind::Open) &&
                       PowerAt(tokens, at).Power == 0 && UnitTypeOf(tokens[at]) == 0;
  if (isNamed && PastStamp(tokens, at + 1) != at + 1) return PastStamp(tokens, at + 1);
  const std::size_t behind = PastNumber(tokens, at);
  if (behind != at && Is(tokens, behind, TokenKind::Dash)) return behind + 1;
  if (behind == at && at + 1 < tokens.size() && IsWord(tokens[at], "o") && !tokens[at].Capital) {
    return at + 1;
  }
  return behind;
}

bool IsNoOrder(Tokens tokens, const PlaceNames& names, bool inSignature) {
  // The doubt always goes to the side of an order: showing a harmless line to somebody costs a
  // glance, while passing over an order loses it without anybody noticing.
  const Evidence evidence = Weigh(tokens, names);
  const auto first = std::ranges::find_if(tokens, IsWordToken);
  if (first == tokens.end()) return true;
  const int places = evidence.Places;
  const auto chat = FindSaying(tokens, Saying::Chats);
  if (chat && !HoldsOrderWords(tokens.first(chat->Begin), names) &&
      !HoldsOrderWords(tokens.subspan(chat->End), names)) {
    return true;
  }
  if (HasUse(*first, WordUse::Greeting) && evidence.Commands == 0 &&
      !NamesUnitShortly(tokens, names)) {
    return evidence.Moves == 0 ? places <= Strong : places == 0;
  }
  if (HasUse(*first, WordUse::Condition)) return false;
  const int orders = evidence.Commands + evidence.Moves;
  return orders + places < Strong || (inSignature && orders == 0);
}

bool IsPlaceAlone(Tokens line, const PlaceNames& names) {
  if (line.empty()) return false;
  const auto places = names.At(line, 0);
  // Several places have the name that some people have as well: "Noa".
  return !places.empty() && places[0].Next == line.size() && places[0].Rows.size() == 1;
}

bool IsOtherPlace(Tokens line, const PlaceNames& names) {
  constexpr std::array<std::string_view, 10> either{"or",  "oder",  "ou",  "o",    "of",
                                                    "czy", "eller", "lub", "albo", "tai"};
  while (!line.empty() && !IsWordToken(line.back()) && !IsColonToken(line.back()))
    line = line.first(line.size() - 1);
  return line.size() > 1 && IsOneOf(line[0], either) && IsPlaceAlone(line.subspan(1), names);
}

}  // namespace orb::exchange
