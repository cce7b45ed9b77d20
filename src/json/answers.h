#pragma once

#include "json/messages.h"
#include "letters/correction.h"

#include "adjudication/list_check.h"
#include "orders/exchange/read_orders.h"
#include "session/queries.h"
#include "session/situation.h"
#include "session/what_if.h"

#include <string>
#include <string_view>
#include <vector>

// What came of a command, as one object on one line, without its end. docs/json.md tells of each.

namespace orb::json {

/// What an answer begins with: what was done, and to which game.
struct Heading {
  std::string_view Command;
  std::string_view Game{};     ///< the path of a game's file, as it was given; empty: none
  std::string_view Request{};  ///< the id of a request, as JSON; empty: none
};

/// What was said meanwhile, and what was not read out of a text of orders.
struct Remarks {
  const NotedMessages& Messages;
  const std::vector<exchange::ReadLine>& LeftOut;
};

/// A stage that was resolved, or was not: then the situation is told nothing of.
struct Resolved {
  bool IsDone = false;
  model::Stage Stage = model::Stage::Other;  ///< which was resolved
  const std::vector<std::string>& Orders;    ///< its list
  const session::Situation& After;
  bool IsCompared = false;  ///< with the other rules
};

/// A list that was checked.
struct Checked {
  const session::Situation& Situation;
  const adjudication::ListCheck& Check;
  const std::vector<std::string>& OtherReadings;  ///< of its lines, by the other rules
};

/// The orders that are possible.
struct Listed {
  const session::Situation& Situation;
  const std::vector<session::Choices>& Choices;
};

/// What was asked about an order, and the changes that were found.
struct Searched {
  const session::Question& Question;
  const std::vector<session::Alternative>& Singles;
  const std::vector<session::Alternative>* Pairs = nullptr;  ///< none: not looked for
};

std::string ResolvedText(const Heading& heading, const Remarks& remarks, const Resolved& resolved);
std::string CheckedText(const Heading& heading, const Remarks& remarks, const Checked& checked);
std::string SearchedText(const Heading& heading, const Remarks& remarks, const Searched& searched);

std::string ListedText(const Heading& heading, const Listed& listed);

/// The situation, with what each power has.
std::string ShownText(const Heading& heading, const NotedMessages& messages,
                      const model::GameState& game);

/// What a situation has otherwise than another one, whose game's path is given.
std::string DifferenceText(const Heading& heading, const NotedMessages& messages,
                           std::string_view other,
                           const std::vector<letters::Correction>& corrections);

/// A map, as SVG in UTF-8.
std::string DrawnText(const Heading& heading, std::string_view svg);

/// Why nothing came of it.
std::string RefusedText(const Heading& heading, const NotedMessages& messages,
                        std::string_view sentence);

}  // namespace orb::json
