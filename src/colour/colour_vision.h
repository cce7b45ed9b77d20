#pragma once

#include "model/country.h"

#include <vector>

namespace orb::colour {

/// Whose eyes: everybody's, or those without the red, the green or the blue cone.
enum class Vision { Normal, NoRed, NoGreen, NoBlue };

/// A colour in CIE Lab (D65).
struct Lab {
  double L = 0, A = 0, B = 0;
};

/// A colour as somebody with this kind of colour vision sees it. The missing cone is simulated with
/// the matrices of Machado, Oliveira and Fernandes (2009), severity 1.
Lab Seen(model::Colour colour, Vision vision);

/// The colour difference CIEDE2000; about 1 is just noticeable side by side.
double Difference(const Lab& a, const Lab& b);

/// Two powers, rows 1..7, whose fill colours look alike.
struct AlikePowers {
  int First = 0;
  int Second = 0;            ///< after First
  std::vector<Vision> Eyes;  ///< whose eyes hardly tell them apart, at least one
};

/// The pairs of powers whose fill colours differ by less than 12 (CIEDE2000) for some eyes, in the
/// order of the table.
std::vector<AlikePowers> PowersAlike(const model::CountryTable& countries);

}  // namespace orb::colour
