#include "ui/help/help_history.h"

namespace orb::ui {

void HelpHistory::visit(const HelpPlace& place) {
  // As in a browser: a new way forward replaces the old one.
  m_places.resize(m_here + 1);
  // Typing a word to be found leads through many topics that nobody wanted to go back to.
  if (here().topic < 0 || (place.found && here().found)) {
    here() = place;
  } else {
    m_places.push_back(place);
    ++m_here;
  }
}

}  // namespace orb::ui
