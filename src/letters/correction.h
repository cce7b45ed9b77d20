#pragma once

#include "session/situation.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orb::letters {

/// What two situations can differ in.
enum class Subject : std::uint8_t { Title, Season, Player, Order, Unit, Owner, Retreat, Text };

/// Something that a situation has in place of what another one has.
struct Correction {
  letters::Subject Subject = Subject::Title;
  std::string About;     ///< "FRA A(Bur)", "Bel"; empty: the game as a whole
  std::string Before;    ///< in the first situation; empty: nothing
  std::string After;     ///< in the second one; empty: nothing
  std::string Sentence;  ///< all of it, for people

  bool operator==(const Correction&) const = default;
};

/// What the second situation has otherwise than the first: title, season and stage, players, how
/// the moves of one season came out where both know that, units and where they stand, who owns the
/// centres, where units may retreat to, the free text. Both are of one map. The orders that wait
/// for their stage are left out: they are secret.
std::vector<Correction> Corrections(const session::Situation& before,
                                    const session::Situation& after);

/// The sentences in lines that end in LF, under a heading; or that there is nothing to correct.
std::string CorrectionNotice(const session::Situation& before, const session::Situation& after);

/// The name of a subject for programs: "unit".
std::string_view NameOf(Subject subject);

}  // namespace orb::letters
