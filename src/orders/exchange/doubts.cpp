#include "orders/exchange/doubts.h"

#include "orders/exchange/vocabulary.h"
#include "text/utf8.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace orb::exchange {
namespace {

using WordSet = std::unordered_set<std::string_view>;

// Words that change nothing next to an order, alone or together. Each must be harmless next to all
// others: a word missing here costs somebody a glance, one too many an order that nobody meant.

/// Thanks, greetings and moods. They may be addressed to a power.
const WordSet& MoodWords() {
  static const WordSet words{
      "thanks", "thank",   "thx",     "ty",       "cheers",    "regards", "greetings", "good",
      "luck",   "gl",      "hf",      "glhf",     "best",      "danke",   "bitte",     "merci",
      "dank",   "bedankt", "gracias", "grazie",   "lol",       "rofl",    "haha",      "hahaha",
      "hehe",   "heh",     "yay",     "wow",      "nice",      "great",   "cool",      "fun",
      "sorry",  "hi",      "hello",   "hey",      "friend",    "friends", "ally",      "allies",
      "buddy",  "mate",    "dear",    "everyone", "everybody", "guys",    "folks",     "gm"};
  return words;
}

/// What an order is for, or who helps. The places and powers that they speak of are no part of it.
const WordSet& PurposeWords() {
  static const WordSet words{
      "bounce",    "bounces",    "bouncing",  "standoff",     "selfbounce", "cover",     "covers",
      "covering",  "guard",      "guards",    "protect",      "protects",   "block",     "blocks",
      "blocking",  "defend",     "defends",   "defence",      "defense",    "defensive", "guarding",
      "defending", "protecting", "supported", "selfstandoff", "against"};
  return words;
}

/// Words around those, and that the order is as the writer wants it.
const WordSet& PlainWords() {
  static const WordSet words{
      "better",    "fine",       "ok",      "okay",       "yes",     "yep",       "yeah",
      "you",       "we",         "us",      "i",          "am",      "all",       "hope",
      "hopefully", "it",         "works",   "fingers",    "crossed", "of",        "course",
      "obviously", "naturally",  "fyi",     "btw",        "sure",    "surely",    "definitely",
      "certainly", "confirmed",  "confirm", "confirming", "final",   "agreed",    "as",
      "discussed", "promised",   "usual",   "again",      "still",   "unchanged", "same",
      "corrected", "correction", "revised", "updated",    "changed", "new",       "safe",
      "safety",    "self",       "order",   "orders",     "and",     "this",      "that",
      "here",      "in",         "at",      "from",       "for",     "with",      "by"};
  return words;
}

/// Words of a heading by which the orders below it are not for now.
bool IsSetAside(const Token& token) {
  static const WordSet words{
      "draft",      "drafts",      "example",      "examples",    "sample",     "samples",
      "tentative",  "provisional", "preliminary",  "result",      "results",    "outcome",
      "outcomes",   "report",      "adjudication", "history",     "idea",       "ideas",
      "thoughts",   "thinking",    "hypothetical", "version",     "previously", "yesterday",
      "yesterdays", "earlier",     "considering",  "possible",    "possibly",   "options",
      "scenario",   "proposals",   "suggestions",  "suggested",   "wrong",      "invalid",
      "superseded", "obsolete",    "outdated",     "discarded",   "dummy",      "fake",
      "test",       "tests",       "probably",     "unconfirmed", "pending",    "tbc",
      "tbd",        "withdrawn",   "void",         "vorige",      "letzte",     "entwurf",
      "beispiel",   "brouillon",   "exemple",      "concept",     "voorbeeld"};
  return token.Kind == TokenKind::Word &&
         (words.contains(token.Text) || IsCondition(token) || IsAside(token));
}

using Phrase = std::vector<std::string_view>;

/// What takes back the orders above.
const std::vector<Phrase>& Revocations() {
  static const std::vector<Phrase> phrases{
      {"kidding"},          {"joking"},          {"a", "joke"},       {"changed", "my", "mind"},
      {"ignore"},           {"disregard"},       {"cancel"},          {"cancelled"},
      {"canceled"},         {"scrap"},           {"scratch", "that"}, {"forget", "that"},
      {"forget", "these"},  {"forget", "those"}, {"forget", "the"},   {"forget", "my"},
      {"forget", "what"},   {"forget", "about"}, {"nevermind"},       {"never", "mind"},
      {"withdrawn"},        {"i", "withdraw"},   {"revoke"},          {"strike", "that"},
      {"were", "examples"}, {"was", "wrong"},    {"were", "wrong"}};
  return phrases;
}

/// What puts orders off, or leaves them open.
const std::vector<Phrase>& Postponements() {
  static const std::vector<Phrase> phrases{{"not", "process"},
                                           {"dont", "process"},
                                           {"not", "use"},
                                           {"dont", "use"},
                                           {"not", "enter"},
                                           {"dont", "enter"},
                                           {"not", "file"},
                                           {"dont", "file"},
                                           {"not", "submit"},
                                           {"dont", "submit"},
                                           {"not", "final"},
                                           {"arent", "final"},
                                           {"isnt", "final"},
                                           {"not", "yet"},
                                           {"not", "my", "final"},
                                           {"not", "the", "final"},
                                           {"wait", "for", "my"},
                                           {"wait", "for", "the", "final"},
                                           {"wait", "for", "final"},
                                           {"wait", "until"},
                                           {"hold", "off"},
                                           {"will", "follow"},
                                           {"orders", "to", "follow"},
                                           {"tentative"},
                                           {"tentatively"},
                                           {"provisional"},
                                           {"provisionally"},
                                           {"preliminary"},
                                           {"pending"},
                                           {"unconfirmed"},
                                           {"tbc"},
                                           {"tbd"},
                                           {"be", "confirmed"},
                                           {"may", "change"},
                                           {"might", "change"},
                                           {"could", "change"},
                                           {"still", "thinking"},
                                           {"a", "draft"},
                                           {"placeholder"},
                                           {"placeholders"},
                                           {"if", "you", "agree"},
                                           {"what", "do", "you", "think"},
                                           {"what", "you", "think"},
                                           {"an", "example"},
                                           {"just", "examples"}};
  return phrases;
}

/// Titles without a colon, which set aside what is below them.
const std::vector<Phrase>& Titles() {
  static const std::vector<Phrase> phrases{{"draft"},
                                           {"drafts"},
                                           {"example"},
                                           {"examples"},
                                           {"sample"},
                                           {"samples"},
                                           {"proposal"},
                                           {"proposals"},
                                           {"suggestion"},
                                           {"suggestions"},
                                           {"results"},
                                           {"last", "turn"},
                                           {"last", "season"},
                                           {"last", "year"},
                                           {"previous", "turn"},
                                           {"previous", "season"},
                                           {"previous", "orders"},
                                           {"old", "version"},
                                           {"old", "orders"},
                                           {"last", "moves"}};
  return phrases;
}

/// Where the first of the phrases stands, word by word.
std::optional<TokenRange> FindPhrase(Tokens tokens, const std::vector<Phrase>& phrases) {
  for (std::size_t at = 0; at < tokens.size(); ++at) {
    for (const Phrase& phrase : phrases) {
      if (phrase.size() > tokens.size() - at) continue;
      const bool isHere =
          std::equal(phrase.begin(), phrase.end(), tokens.begin() + static_cast<std::ptrdiff_t>(at),
                     [](std::string_view word, const Token& token) { return IsWord(token, word); });
      if (isHere) return TokenRange{at, at + phrase.size()};
    }
  }
  return std::nullopt;
}

/// Whether a sign only decorates: faces, hearts, stars, ticks, flags, good wishes. Others ask,
/// cross out or may mean anything.
bool IsDecoration(std::string_view sign) {
  constexpr std::u32string_view known =
      U"\u2713\u2714\u2705\u2764\u2665\u2605\u2606\u2B50\u263A\uFE0F\u200D\U0001F44D\U0001F389"
      U"\U0001F340\U0001F91E\U0001F91D\U0001F64F\U0001F942\U0001F37B\U0001F603";
  while (!sign.empty()) {
    const auto character = text::NextCharacter(sign);
    if (!character) return false;
    const bool isFace = *character >= 0x1F600 && *character <= 0x1F644;
    const bool isFlag = *character >= 0x1F1E6 && *character <= 0x1F1FF;
    const bool isHeart = *character >= 0x1F493 && *character <= 0x1F49F;
    if (!isFace && !isFlag && !isHeart && known.find(*character) == std::u32string_view::npos) {
      return false;
    }
  }
  return true;
}

bool IsDoubtfulSign(const Token& token) {
  if (token.Kind != TokenKind::Mark) return false;
  if (static_cast<unsigned char>(token.Text[0]) >= 0x80) return !IsDecoration(token.Text);
  return token.Text == "?" || token.Text == "<" || token.Text == "~";
}

/// How many tokens from here name a place; 0: none.
std::size_t LengthOfPlace(Tokens tokens, std::size_t at, const PlaceNames& names) {
  const auto places = names.At(tokens, at);
  return places.empty() ? 0 : places[0].Next - at;
}

/// What an order itself is made of.
class OwnWords {
 public:
  OwnWords(Tokens order, const PlaceNames& names) : names_(names) {
    for (std::size_t at = 0; at < order.size(); ++at) {
      if (order[at].Kind == TokenKind::Word) words_.insert(order[at].Text);
      if (const Verb verb = VerbOf(order[at]); verb != Verb::None) verbs_.push_back(verb);
      if (const int power = PowerAt(order, at).Power; power != 0) powers_.push_back(power);
      for (const PlaceMatch& place : names.At(order, at)) {
        if (place.IsExact || place.Rows.size() == 1) rows_.push_back(place.Rows);
      }
    }
  }

  /// How many tokens from here say again what the order says; 0: none.
  std::size_t Repeated(Tokens tokens, std::size_t at) const {
    for (const PlaceMatch& place : names_.At(tokens, at)) {
      if (std::ranges::find(rows_, place.Rows) != rows_.end()) return place.Next - at;
    }
    const PowerName power = PowerAt(tokens, at);
    if (std::ranges::find(powers_, power.Power) != powers_.end()) return power.Next - at;
    // A coast belongs to the place before it, whatever else stands on such a coast.
    if (CoastLetter(tokens[at].Text) != 0) return 0;
    if (words_.contains(tokens[at].Text) || UnitTypeOf(tokens[at]) != 0) return 1;
    const Verb verb = VerbOf(tokens[at]);
    return verb != Verb::None && std::ranges::find(verbs_, verb) != verbs_.end() ? 1 : 0;
  }

 private:
  const PlaceNames& names_;
  std::unordered_set<std::string_view> words_;
  std::vector<Verb> verbs_;
  std::vector<int> powers_;
  std::vector<std::vector<int>> rows_;
};

}  // namespace

std::optional<TokenRange> FindDoubt(Tokens remark, Tokens order, const PlaceNames& names) {
  const auto has = [&](const WordSet& words) {
    return std::ranges::any_of(remark,
                               [&](const Token& token) { return words.contains(token.Text); });
  };
  const bool isPurpose = has(PurposeWords());
  const bool maySpeakToPowers = isPurpose || has(MoodWords());
  std::optional<OwnWords> own;
  for (std::size_t at = 0; at < remark.size();) {
    const Token& token = remark[at];
    const bool isWord = token.Kind == TokenKind::Word;
    if (IsDoubtfulSign(token)) return TokenRange{at, at + 1};
    if (!isWord || IsNumber(token) || IsFiller(token)) {
      ++at;
      continue;
    }
    const bool isSmile = at > 0 && IsA(remark[at - 1], TokenKind::Colon) && token.Glued &&
                         (token.Text == "d" || token.Text == "p");
    if (isSmile) {
      ++at;
      continue;
    }
    if (!own) own.emplace(order, names);
    std::size_t length = own->Repeated(remark, at);
    if (length == 0 && isPurpose) length = LengthOfPlace(remark, at, names);
    if (length == 0 && maySpeakToPowers && PowerAt(remark, at).Power != 0) {
      length = PowerAt(remark, at).Next - at;
    }
    const bool isHarmless = MoodWords().contains(token.Text) ||
                            PurposeWords().contains(token.Text) ||
                            PlainWords().contains(token.Text) || (isPurpose && token.Text == "to");
    if (length == 0 && !isHarmless) return TokenRange{at, at + 1};
    at += std::max<std::size_t>(length, 1);
  }
  return std::nullopt;
}

bool IsHarmlessTail(Tokens tail) {
  return std::ranges::all_of(tail, [](const Token& token) {
    const bool isPunctuation = token.Kind == TokenKind::Comma || token.Kind == TokenKind::Dot;
    return isPunctuation || IsFiller(token) || MoodWords().contains(token.Text) ||
           PurposeWords().contains(token.Text) || PlainWords().contains(token.Text);
  });
}

std::optional<Aside> ReadAside(Tokens line) {
  const auto words = std::ranges::count(line, TokenKind::Word, &Token::Kind);
  if (words == 0) return std::nullopt;
  if (IsA(line.back(), TokenKind::Colon)) {
    const auto set = std::ranges::find_if(line, IsSetAside);
    if (set == line.end()) return std::nullopt;
    const auto at = static_cast<std::size_t>(set - line.begin());
    return Aside{AsideScope::Below, {at, at + 1}};
  }
  if (const auto at = FindPhrase(line, Revocations())) return Aside{AsideScope::Above, *at};
  if (const auto at = FindPhrase(line, Postponements()))
    return Aside{AsideScope::AboveElseBelow, *at};
  constexpr std::ptrdiff_t longestTitle = 4;
  const auto title = words <= longestTitle ? FindPhrase(line, Titles()) : std::nullopt;
  return title ? std::optional(Aside{AsideScope::Below, *title}) : std::nullopt;
}

bool Corrects(Tokens line) {
  static const WordSet words{
      "correction", "corrections", "corrected", "correct",   "instead",     "better",  "rather",
      "sorry",      "oops",        "actually",  "revised",   "revision",    "update",  "updated",
      "updates",    "replace",     "replaces",  "replacing", "replacement", "changed", "change",
      "changes",    "final",       "amended",   "amendment", "new"};
  static const std::vector<Phrase> phrases{{"i", "mean"}, {"i", "meant"}, {"make", "that"}};
  return FindPhrase(line, phrases).has_value() ||
         std::ranges::any_of(line, [&](const Token& token) {
           return token.Kind == TokenKind::Word && words.contains(token.Text);
         });
}

}  // namespace orb::exchange
