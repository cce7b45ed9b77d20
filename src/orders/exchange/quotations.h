#pragma once

#include "orders/exchange/place_names.h"

#include <string_view>

namespace orb::exchange {

// Which parts of a text are older: mails are answered above what they quote, below it and in
// between, and each mail program sets off the older part in its own way and language.

/// Whether a line belongs to the head of a mail, "Subject: Autumn", or tells whose words follow.
bool IsMailHead(Tokens tokens, const PlaceNames& names);

/// Whether a line of the head of a mail tells what the mail is about.
bool IsSubject(Tokens tokens);

/// Whether the line, in its plain form, tells that something older follows: "Tom wrote:", "Am
/// 1.2.2024 schrieb Tom:", "--- Original Message ---".
bool IsQuotationHead(std::string_view line, Tokens tokens);

/// Follows which lines of a text are quoted from an earlier one: those that begin with ">" or "|",
/// those in [quote] or <blockquote>, and all that follow a head whose lines are not marked so: of a
/// quotation, or of a whole mail below another text.
class Quotations {
 public:
  /// Takes the next line: as it was written, in its plain form and in words.
  void Take(std::string_view written, std::string_view plain, Tokens tokens);

  /// The writer's own orders begin: what somebody wrote to the writer has ended.
  void BeginOwn() { isInside_ = isInside_ && !isToWriter_; }

  /// Whether the line that was taken last is quoted.
  bool IsQuoted() const { return isMarked_ || isInside_ || depth_ > 0 || wasInBlock_; }

 private:
  void FollowBlocks(std::string_view written);
  void FollowHeads(std::string_view line, Tokens tokens);

  bool isMarked_ = false;
  bool isInside_ = false;
  bool isToWriter_ = false;  ///< the last head says that it was written to the writer
  bool follows_ = false;     ///< the line before was a head
  bool wasInBlock_ = false;  ///< a block began or ended in this line
  bool hasText_ = false;     ///< something stood above other than the head of a mail
  int labels_ = 0;           ///< lines like "From: Tom" that followed each other up to here
  int depth_ = 0;            ///< of blocks
};

/// Whether a line parts a letter from its writer's signature: "--", in forums "_____".
bool EndsLetter(std::string_view line);

/// Whether a line is a saying in quotation marks.
bool IsInQuotes(std::string_view line);

}  // namespace orb::exchange
