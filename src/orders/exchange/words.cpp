#include "orders/exchange/words.h"

#include "text/strings.h"

#include <algorithm>
#include <array>

namespace orb::exchange {
namespace {

// Signs that only set off words, as mails and forums use them for bold, slanted and quoted text.
constexpr std::string_view Parting = " *_`|\"";
// Any run of these is one token: "-", "--", "->", "=>", "-->".
constexpr std::string_view DashSigns = "-=>";

bool IsLetterOrDigit(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

std::size_t WordEnd(std::string_view text, std::size_t at) {
  // "S:t Petersburg".
  constexpr std::string_view saint = "s:t ";
  if (text::LowerCase(text.substr(at, saint.size())) == saint) return at + saint.size() - 1;
  while (at < text.size() &&
         (IsLetterOrDigit(text[at]) ||
          (text[at] == '\'' && at + 1 < text.size() && IsLetterOrDigit(text[at + 1])))) {
    ++at;
  }
  return at;
}

std::string WordText(std::string_view written) {
  std::string word = text::LowerCase(written);
  if (word.ends_with("'s")) word.resize(word.size() - 2);
  // "un'armata", "dell'Albania".
  for (const std::string_view elided : {"un'", "dell'", "quell'"}) {
    if (word.starts_with(elided) && word.size() > elided.size() + 1) word.erase(0, elided.size());
  }
  // "l'armata", "d'Istanbul".
  if (word.size() > 3 && word[1] == '\'' && (word[0] == 'l' || word[0] == 'd')) word.erase(0, 2);
  std::erase(word, '\'');
  std::erase(word, ':');
  return word;
}

TokenKind KindOf(char c) {
  switch (c) {
    case '(':
    case '[':
    case '{':
      return TokenKind::Open;
    case ')':
    case ']':
    case '}':
      return TokenKind::Close;
    case '/':
    case '\\':
      return TokenKind::Slash;
    case '.':
    case '!':
      return TokenKind::Dot;
    case ':':
      return TokenKind::Colon;
    case ',':
      return TokenKind::Comma;
    case ';':
      return TokenKind::Semicolon;
    default:
      return TokenKind::Mark;
  }
}

std::size_t RunEnd(std::string_view text, std::size_t at, std::string_view signs) {
  return std::min(text.find_first_not_of(signs, at), text.size());
}

/// Behind a face, ":-)", ";)", "8-)", ":twisted:", that stands between blanks; else the same.
std::size_t PastFace(std::string_view text, std::size_t at) {
  constexpr std::string_view firstSigns = ":;8=^<xX\\";
  if (firstSigns.find(text[at]) == std::string_view::npos) return at;
  if (at > 0 && text[at - 1] != ' ') return at;
  const std::size_t blank = std::min(text.find(' ', at), text.size());
  const std::string_view word = text.substr(at, blank - at);
  constexpr std::array<std::string_view, 22> faces{
      ":)", ":-)", ";)", ";-)", ":D", ":-D", ";D",   ":P", ":-P", ":p",  ";P",
      "8)", "8-)", "=)", "^^",  "<3", "xD",  "\\o/", "XD", ":o)", ":))", ";-))"};
  if (std::ranges::find(faces, word) != faces.end()) return blank;
  const bool isNamed = word.size() > 2 && word.front() == ':' && word.back() == ':' &&
                       std::ranges::all_of(word.substr(1, word.size() - 2),
                                           [](char c) { return IsLetterOrDigit(c) || c == '_'; });
  return isNamed ? blank : at;
}

/// Behind an address of mail, "tom@games.example"; else the same.
std::size_t PastAddress(std::string_view text, std::size_t at) {
  constexpr std::size_t longest = 64;  // of what stands before the "@", RFC 5321
  const auto isOfAddress = [](char c) {
    return IsLetterOrDigit(c) || c == '.' || c == '-' || c == '_' || c == '+';
  };
  if (!IsLetterOrDigit(text[at])) return at;
  const auto pastRun = [&](std::size_t from, std::size_t bound) {
    const std::string_view rest = text.substr(from, bound);
    return from +
           static_cast<std::size_t>(std::ranges::find_if_not(rest, isOfAddress) - rest.begin());
  };
  const std::size_t sign = pastRun(at, longest);
  if (sign >= text.size() || text[sign] != '@') return at;
  std::size_t end = pastRun(sign + 1, std::string_view::npos);
  while (end > sign && !IsLetterOrDigit(text[end - 1]))
    --end;
  const auto dot = text.substr(sign, end - sign).find('.');
  return dot == std::string_view::npos ? at : end;
}

/// Whether dots lead from one column to the next, as a dash does; three are an ellipsis.
bool IsLeader(std::string_view text, std::size_t at) {
  return text.substr(at).starts_with("....");
}

/// The token that begins here; what parts tokens has been passed.
Token NextToken(std::string_view text, std::size_t at) {
  Token token;
  token.Begin = at;
  const char c = text[at];
  if (const std::size_t end = PastAddress(text, at); end != at) {
    // No word of an address says anything.
    token.Kind = TokenKind::Mark;
    token.Text = "@";
    token.End = end;
    return token;
  }
  if (IsLetterOrDigit(c)) {
    token.End = WordEnd(text, at);
    token.Capital = c >= 'A' && c <= 'Z';
    token.SetWord(WordText(text.substr(at, token.End - at)));
    return token;
  }
  const bool isWave =
      c == '~' && at + 1 < text.size() && (text[at + 1] == '>' || text[at + 1] == '-');
  if (isWave || DashSigns.find(c) != std::string_view::npos) {
    token.Kind = TokenKind::Dash;
    token.End = RunEnd(text, at + 1, DashSigns);
  } else if (IsLeader(text, at)) {
    token.Kind = TokenKind::Dash;
    token.End = RunEnd(text, at, ".");
  } else if (c == '<' && at + 1 < text.size() &&
             DashSigns.find(text[at + 1]) != std::string::npos) {
    token.Kind = TokenKind::Mark;
    token.End = RunEnd(text, at + 1, DashSigns);
  } else if (c == '&' ||
             (c == '+' && at > 1 && text[at - 1] == ' ' && text.find_first_not_of(' ') < at)) {
    token.End = at + 1;
    token.SetWord("and");
    return token;
  } else if (text.substr(at, 2) == "//") {
    token.Kind = TokenKind::Mark;
    token.End = RunEnd(text, at, "/");
  } else {
    token.Kind = KindOf(c);
    token.End = at + 1;
    // Characters without a plain form stay together, so that a quoted sign is whole.
    while (static_cast<unsigned char>(c) >= 0x80 && token.End < text.size() &&
           static_cast<unsigned char>(text[token.End]) >= 0x80) {
      ++token.End;
    }
  }
  token.Text = text.substr(at, token.End - at);
  return token;
}

}  // namespace

std::vector<Token> CutTokens(std::string_view plain) {
  std::vector<Token> tokens;
  std::size_t at = 0;
  while (at < plain.size()) {
    // An apostrophe that is no part of a word is a quotation mark.
    if (plain[at] == '\'' || Parting.find(plain[at]) != std::string_view::npos) {
      ++at;
      continue;
    }
    if (const std::size_t face = PastFace(plain, at); face != at) {
      at = face;
      continue;
    }
    Token token = NextToken(plain, at);
    token.Written = plain.substr(token.Begin, token.End - token.Begin);
    token.Glued = !tokens.empty() && tokens.back().End == token.Begin;
    at = token.End;
    tokens.push_back(std::move(token));
  }
  return tokens;
}

bool IsNumber(const Token& token) {
  return token.Kind == TokenKind::Word &&
         token.Text.find_first_not_of("0123456789") == std::string::npos;
}

std::string Quoted(Tokens tokens) {
  std::string quoted = "\"";
  if (!tokens.empty()) {
    const char* const begin = tokens.front().Written.data();
    const std::string_view last = tokens.back().Written;
    quoted.append(begin, last.data() + last.size());
  }
  for (char& c : quoted) {
    if (static_cast<unsigned char>(c) >= 0x80) c = '?';
  }
  return quoted + '"';
}

}  // namespace orb::exchange
