#pragma once

#include "model/country.h"

namespace orb::tests {

enum class Vision { Normal, NoRed, NoGreen, NoBlue };

struct Lab {
  double L = 0, A = 0, B = 0;
};

/// A colour as somebody with this kind of colour vision sees it, in CIE Lab (D65). The missing
/// cone is simulated with the matrices of Machado, Oliveira and Fernandes (2009), severity 1.
Lab Seen(model::Colour colour, Vision vision);

/// The colour difference CIEDE2000; about 1 is just noticeable side by side.
double Difference(const Lab& a, const Lab& b);

/// The contrast of two colours as defined for readable web pages, 1..21; texts want 4.5.
double Contrast(model::Colour a, model::Colour b);

}  // namespace orb::tests
