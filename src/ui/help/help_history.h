#pragma once

#include <cstddef>
#include <vector>

namespace orb::ui {

/// A place in the help: a topic, counted from 0 (-1: nowhere), and how far its page is scrolled, in
/// pixels.
struct HelpPlace {
  int topic = -1;
  int scroll = 0;
  bool found = false;  ///< reached by searching
};

/// The places a reader has visited, in order, and the one of them where the reader is now. At first
/// that is nowhere. Back and Forward move along the places without changing them.
class HelpHistory {
 public:
  HelpPlace& here() { return m_places[m_here]; }

  bool canGoBack() const { return m_here > 0; }
  bool canGoForward() const { return m_here + 1 < m_places.size(); }
  void goBack() { m_here -= canGoBack() ? 1 : 0; }
  void goForward() { m_here += canGoForward() ? 1 : 0; }

  /// A new place; those that lay forward are forgotten. Of a search that runs through the topics
  /// only the last place is kept.
  void visit(const HelpPlace& place);

 private:
  std::vector<HelpPlace> m_places = {HelpPlace()};
  std::size_t m_here = 0;
};

}  // namespace orb::ui
