#pragma once

#include "session/situation.h"

#include <string>
#include <vector>

// Where each power stands in the stage that the game is in: how many of its orders are there, which
// of them are in doubt, what is still open. A stage without orders leaves all of it empty.

namespace orb::session {

/// How a power's orders stand, in one word.
enum class Standing : std::uint8_t {
  Idle,      ///< it has nothing to order and nothing was written for it
  Missing,   ///< something is still to be ordered
  Doubtful,  ///< something would not pass the checks, whether anything is missing or not
  Complete,
};

/// How far the orders of a power are. In the adjustments builds count above 0, disbands below.
struct PowerStanding {
  int Due = 0;       ///< units that need an order, or the change that the power has to make
  int Ordered = 0;   ///< those that have one, or the change by the orders that would pass
  int Doubtful = 0;  ///< lines that would not pass
  int Excess = 0;    ///< builds or disbands beyond those that are due

  Standing InOneWord() const;
};

/// Something that is still to be ordered.
struct OpenOrder {
  int Power = 0;         ///< its row
  std::string Unit;      ///< "ENG A(Lvp)"; empty in the adjustments
  std::string Location;  ///< of the unit; empty in the adjustments
  int Change = 0;        ///< how many units are still to be built or, below 0, disbanded
  /// Where the unit may retreat to, or which home centres have room; in the order of the map.
  std::vector<std::string> Places;

  /// The beginning of a line that orders it: "ENG A(Lvp) ", "ENG build ".
  std::string Begin() const;
};

/// Where all powers stand.
struct Standings {
  model::Table<PowerStanding, model::CountryCount> Powers;
  std::vector<int> LinePowers;  ///< for each line of the stage's list its power's row; 0: none
  std::vector<OpenOrder> Open;
};

/// Of builds no more are due than the power's home centres have room for.
Standings StandingsOf(const Situation& situation);

/// "3/4", "+1/+2", and a dash where there is nothing to order.
std::string FigureOf(const PowerStanding& power, model::Stage stage);

/// "England: 3 of 4 orders, 1 doubtful"
std::string SentenceOf(const std::string& name, const PowerStanding& power, model::Stage stage);

/// "ENG A(Lvp)", with the places of a retreat; "ENG may build 1: Edi, Lon"
std::string TextOf(const OpenOrder& open, model::Stage stage);

}  // namespace orb::session
