#include "ui/help/help_history.h"

namespace orb::ui {

void HelpHistory::visit(const HelpPlace& place) {
  m_places.resize(m_here + 1);
  if (here().topic < 0 || (place.found && here().found)) {
    here() = place;
  } else {
    m_places.push_back(place);
    ++m_here;
  }
}

}  // namespace orb::ui
