#pragma once

#include "orders/order_outcome.h"
#include "session/situation.h"

#include <string>
#include <string_view>
#include <vector>

namespace orb::letters {

/// What one power is told, and nothing that another power has ordered in a stage that is not
/// resolved yet.
struct Letter {
  std::string Power;                         ///< its abbreviation
  std::string Subject;                       ///< one line for a mail
  std::string Text;                          ///< in lines that end in LF
  std::vector<orders::OrderOutcome> Orders;  ///< the power's own, for its map
};

/// The letter to the power in row 1..7: what became of its orders, with the reasons where they are
/// known, and where its units stand, where only files tell of the season; then, in a stage with
/// orders, what was received, what is missing, what cannot be carried out and why, what matches
/// nothing and what depends on others.
Letter LetterTo(const session::Situation& situation, int power);

/// Those to all powers that have anything to be told.
std::vector<Letter> Letters(const session::Situation& situation);

/// "mailto:" with subject and text, which a mail program opens as a letter to be sent.
std::string MailLink(const Letter& letter, std::string_view address = {});

}  // namespace orb::letters
