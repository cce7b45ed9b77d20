#pragma once

#include "adjudication/explanation.h"
#include "adjudication/resolution.h"
#include "model/game_state.h"

#include <string>
#include <string_view>

// The parts that the sentences about orders are put together from.

namespace orb::adjudication {

/// An explanation in the making, and whether it already tells how the unit was dislodged.
struct Account {
  Explanation Told;
  bool ToldDislodged = false;
};

/// Whether the unit of the order was dislodged, as recorded at the order itself.
bool WasDislodged(const Resolution& resolution, int order);

/// What cut a support, and that it dislodged the supporter too where it did.
Account ExplainCut(const Resolution& resolution, int order);

/// What came of an order to hold, also one that nobody wrote.
Account ExplainHold(const Resolution& resolution, int order);

/// The explanations of each stage, as ExplainOrder returns them.
Explanation ExplainMove(const Resolution& resolution, int order);
Explanation ExplainRetreat(const Resolution& resolution, int order);
Explanation ExplainAdjustment(const model::GameState& after, const Resolution& resolution,
                              int order);

/// The order's text in quotes.
std::string Quoted(const orders::OrderLine& order);

/// "ENG A(Lon)": the ordered unit.
std::string UnitName(const Resolution& resolution, const orders::OrderLine& order);

/// The abbreviation of the ordering power.
std::string PowerOf(const orders::OrderLine& order);

/// The abbreviation of the location in a row of the map; empty for row 0.
const std::string& NameOf(const Resolution& resolution, int location);

/// "army" or "fleet".
std::string_view TypeName(model::UnitType type);

/// "1 unit", "2 units".
std::string Counted(int number, std::string_view thing);

/// Which rule of the text form the order breaks.
Explanation NotUnderstood(const Resolution& resolution, const orders::OrderLine& order);

/// Who lacks the ordered unit, and which unit stands in the place instead.
Explanation NoSuchUnit(const Resolution& resolution, const orders::OrderLine& order);

/// Which unit stands in a place where the named one does not: "; its unit there is F(Stp.n)".
std::string UnitThere(const Resolution& resolution, int power, int place);

/// Why no unit of the order's type can stand in the location.
std::string CannotStandText(const model::Map& map, const orders::OrderLine& order, int location);

/// Why a move or retreat by land, or by sea, leads nowhere.
std::string NoWayText(const model::Map& map, const orders::OrderLine& order);

/// Why a move of the moves stage, which a convoy could have carried, is impossible.
Explanation ImpossibleMove(const model::Map& map, const orders::OrderLine& order);

/// Why a support or convoy found no order that it describes.
Explanation NotUsed(const Resolution& resolution, const orders::OrderLine& order);

/// Which fleet was lost, and to whom.
std::string BrokenConvoy(const Resolution& resolution, int fleet);

/// The supports for the order that came to nothing, each behind a "; ".
std::string LostSupportsOf(const Resolution& resolution, int order);

/// Why a move succeeded or failed: what its strength was measured against.
Explanation ExplainMovement(const Resolution& resolution, int order);

/// What follows "it held" about the attacks on the unit that failed; empty for none.
std::string HeldAgainst(const Resolution& resolution, int order);

/// "was dislodged by ...": the attack that dislodged the order's unit.
std::string DislodgedBy(const Resolution& resolution, int order);

/// The move that dislodged the order's unit, which is recorded at the last of the unit's orders; 0
/// for none.
int DislodgerOfUnit(const Resolution& resolution, int order);

/// "strength 2 (supported by X) beats its strength 1": how the order's unit was dislodged.
std::string DislodgingStrengths(const Resolution& resolution, int order);

/// The first adjustment for which there was no room on the board: neither it nor any after it was
/// carried out. One past the last order when there was room for all.
int FirstNotCarriedOut(const Resolution& resolution);

}  // namespace orb::adjudication
