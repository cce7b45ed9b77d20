#include "orders/exchange/quotations.h"

#include "orders/exchange/line_kinds.h"
#include "orders/exchange/sentences.h"
#include "text/strings.h"

#include <algorithm>
#include <array>
#include <string>

namespace orb::exchange {
namespace {

// Languages: English, German, French, Spanish, Italian, Dutch, Portuguese, Danish and Norwegian,
// Swedish, Polish. Accents are gone from the plain form.

/// "Tom wrote:" and its like.
constexpr std::array<std::string_view, 19> QuotingWords{
    "wrote",   "writes",   "said",    "schrieb",   "schreibt", "ecrit", "escribio",
    "scritto", "scrive",   "schreef", "schrijft",  "escreveu", "skrev", "skriver",
    "napisal", "napisala", "pisze",   "kirjoitti", "quoting"};

/// What mail programs write above a mail that is answered or sent on, in small letters.
constexpr std::array<std::string_view, 21> OldMailTitles{
    "original message",      "forwarded message",       "begin forwarded message",
    "original mail",         "ursprungliche nachricht", "weitergeleitete nachricht",
    "ursprungliche mail",    "message d'origine",       "message original",
    "message transfere",     "mensaje original",        "mensaje reenviado",
    "messaggio originale",   "messaggio inoltrato",     "oorspronkelijk bericht",
    "doorgestuurd bericht",  "mensagem original",       "mensagem encaminhada",
    "oprindelig meddelelse", "ursprungligt meddelande", "oryginalna wiadomosc"};

// The labels in the head of a mail, in small letters.

/// Who from and to whom; "From: Par To: Bur" may also be an order.
constexpr std::array<std::string_view, 15> RoadLabels{"from", "von",  "de",  "da",   "van",
                                                      "fra",  "fran", "od",  "to",   "an",
                                                      "para", "aan",  "til", "till", "do"};

/// When, and of what.
constexpr std::array<std::string_view, 26> OtherLabels{
    "sent",    "gesendet",  "envoye",  "enviado", "inviato", "verzonden", "enviada",
    "sendt",   "skickat",   "wyslano", "subject", "betreff", "objet",     "asunto",
    "oggetto", "onderwerp", "assunto", "emne",    "amne",    "temat",     "date",
    "datum",   "fecha",     "cc",      "bcc",     "received"};

template <std::size_t Count>
bool IsOneOf(std::string_view word, const std::array<std::string_view, Count>& words) {
  return std::ranges::find(words, word) != words.end();
}

bool HasAddress(Tokens tokens) {
  return std::ranges::find(tokens, "@", &Token::Text) != tokens.end();
}

/// Whether a line is one of the head of a mail, in any of the languages: a label and its colon.
bool IsLabelled(Tokens tokens) {
  std::size_t at = 0;
  // Marks of bold are no tokens; "- " may stand before the labels of forwarded mails.
  while (at < tokens.size() && IsA(tokens[at], TokenKind::Dash))
    ++at;
  return at + 1 < tokens.size() && tokens[at].Kind == TokenKind::Word &&
         (IsOneOf(tokens[at].Text, RoadLabels) || IsOneOf(tokens[at].Text, OtherLabels)) &&
         IsA(tokens[at + 1], TokenKind::Colon);
}

/// Whether words say that somebody wrote to the writer: "he wrote me yesterday:".
bool IsToWriter(Tokens line) {
  constexpr std::array<std::string_view, 9> writer{"me",  "mir", "moi",  "mig", "meg",
                                                   "mij", "mi",  "mnie", "us"};
  return std::ranges::any_of(line, [&](const Token& token) { return IsOneOf(token.Text, writer); });
}

/// How often a text stands in another one.
int Count(std::string_view text, std::string_view part) {
  int count = 0;
  for (std::size_t at = text.find(part); at != std::string_view::npos;
       at = text.find(part, at + part.size())) {
    ++count;
  }
  return count;
}

}  // namespace

bool IsMailHead(Tokens tokens, const PlaceNames& names) {
  if (tokens.empty()) return false;
  const bool isReplyTo = IsWord(tokens[0], "reply") && tokens.size() > 3 && IsWord(tokens[2], "to");
  if (isReplyTo) return true;
  if (!IsLabelled(tokens)) return false;
  const auto label = std::ranges::find(tokens, TokenKind::Word, &Token::Kind);
  const auto rest = static_cast<std::size_t>(label - tokens.begin()) + 2;
  // The head of a mail has an address, or no words of orders.
  return IsOneOf(label->Text, OtherLabels) || HasAddress(tokens) ||
         !HoldsOrderWords(tokens.subspan(rest), names);
}

bool IsSubject(Tokens tokens) {
  constexpr std::array<std::string_view, 10> labels{"subject", "betreff",   "objet",   "asunto",
                                                    "oggetto", "onderwerp", "assunto", "emne",
                                                    "amne",    "temat"};
  return !tokens.empty() && IsOneOf(tokens[0].Text, labels);
}

bool IsQuotationHead(std::string_view line, Tokens tokens) {
  // "Forget what I wrote. My orders:" quotes nothing.
  const Tokens last = tokens.empty() ? tokens : LastSentence(tokens);
  const bool isQuoting =
      !tokens.empty() && IsA(tokens.back(), TokenKind::Colon) &&
      std::ranges::any_of(last, [](const Token& token) {
        return token.Kind == TokenKind::Word && IsOneOf(token.Text, QuotingWords);
      });
  if (isQuoting) return true;
  // Such a title stands alone but for dashes and the like: "--- Original Message ---".
  std::string title;
  for (const char c : text::LowerCase(line)) {
    const bool isTitle = (c >= 'a' && c <= 'z') || c == '\'' || c == ' ';
    if (isTitle) title += c;
  }
  return IsOneOf(text::Trim(title), OldMailTitles);
}

void Quotations::Take(std::string_view written, std::string_view plain, Tokens tokens) {
  FollowBlocks(written);
  if (plain.empty()) return;
  // A table has more than one bar in a line.
  const bool isBarred = plain.starts_with('|') && std::ranges::count(plain, '|') == 1;
  isMarked_ = plain.starts_with('>') || isBarred;
  isInside_ = isInside_ || (follows_ && !isMarked_);
  FollowHeads(plain, tokens);
}

/// [quote] in forums, <blockquote> in pages; orders in the line where one begins or ends are taken
/// as quoted, too.
void Quotations::FollowBlocks(std::string_view written) {
  const std::string text = text::LowerCase(written);
  const int opened = Count(text, "[quote") + Count(text, "<blockquote");
  const int closed = Count(text, "[/quote") + Count(text, "</blockquote");
  wasInBlock_ = opened + closed > 0;
  depth_ = std::max(depth_ + opened - closed, 0);
}

/// The head of a mail below some other text begins an older mail; at the very top it is the text's
/// own. Two labels make a head: one alone may be anything.
void Quotations::FollowHeads(std::string_view line, Tokens tokens) {
  const bool isHead = !isMarked_ && IsQuotationHead(line, tokens);
  if (isHead) isToWriter_ = IsToWriter(tokens);
  follows_ = isHead;
  if (isMarked_) return;
  labels_ = IsLabelled(tokens) ? labels_ + 1 : 0;
  if (labels_ >= 2 && hasText_) isInside_ = true;
  if (labels_ == 0 && !isHead && !tokens.empty()) hasText_ = true;
}

bool EndsLetter(std::string_view line) {
  constexpr std::size_t shortest = 3;
  return line == "--" ||
         (line.size() >= shortest && line.find_first_not_of('_') == std::string_view::npos);
}

bool IsInQuotes(std::string_view line) {
  return line.size() > 2 && line.front() == '"' && line.back() == '"';
}

}  // namespace orb::exchange
