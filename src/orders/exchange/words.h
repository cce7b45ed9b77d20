#pragma once

#include "orders/exchange/vocabulary.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orb::exchange {

enum class TokenKind : std::uint8_t {
  Word,  ///< letters and digits; "&" and "+" are the word "and"
  Dash,  ///< dashes and arrows of any length
  Open,
  Close,
  Slash,
  Dot,  ///< also "!"
  Colon,
  Comma,
  Semicolon,
  Mark,  ///< anything else; "//" and "#" begin comments
};

struct Token {
  TokenKind Kind = TokenKind::Word;
  std::string Text;          ///< of a word: in small letters, without "'s"
  WordMeaning Means;         ///< of a word
  std::string_view Written;  ///< in the plain text
  std::size_t Begin = 0;     ///< in the plain text
  std::size_t End = 0;
  bool Glued = false;    ///< no blank before it
  bool Capital = false;  ///< begins with a capital letter

  /// Makes it another word, wherever it was written.
  void SetWord(std::string word) {
    Text = std::move(word);
    Means = MeaningOf(Text);
  }
};

using Tokens = std::span<const Token>;

/// Cuts a plain text into tokens. Blanks, quotation marks and the marks of bold, slanted and table
/// texts (* _ ` |) part tokens and are none. The text must outlive the tokens.
std::vector<Token> CutTokens(std::string_view plain);

/// Whether it is a word of digits alone.
bool IsNumber(const Token& token);

/// What was written from the first token to the last, in quotes; what is no ASCII as "?".
std::string Quoted(Tokens tokens);

inline bool IsA(const Token& token, TokenKind kind) {
  return token.Kind == kind;
}
inline bool IsWordToken(const Token& token) {
  return token.Kind == TokenKind::Word;
}
inline bool IsWord(const Token& token, std::string_view word) {
  return token.Kind == TokenKind::Word && token.Text == word;
}

/// Whether it is one of these words.
template <std::size_t Count>
bool IsOneOf(const Token& token, const std::array<std::string_view, Count>& words) {
  return token.Kind == TokenKind::Word && std::ranges::find(words, token.Text) != words.end();
}

/// The verb of a token: a dash or arrow moves; None when it is no verb.
inline Verb VerbOf(const Token& token) {
  return token.Kind == TokenKind::Dash ? Verb::Move : token.Means.Does;
}

/// 'A' or 'F' for a word that is a type of unit, else 0.
inline char UnitTypeOf(const Token& token) {
  return token.Means.UnitType;
}

/// Whether a word has one of these uses; false for what is no word.
template <class... Uses>
bool HasUse(const Token& token, Uses... uses) {
  return (token.Means.Has(uses) || ...);
}

}  // namespace orb::exchange
