#pragma once

#include "orders/exchange/asides.h"
#include "orders/exchange/read_line.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace orb::exchange {

/// What stands around a line that was read.
struct Surroundings {
  bool IsOlder = false;   ///< in a part of the text that is quoted from an earlier one
  bool Corrects = false;  ///< its words say that it holds rather than what stands above
  std::string Doubt;      ///< why the orders here are set aside, or empty
  Span DoubtAt;
};

/// Follows what the lines of a text say of the orders around them.
class SurroundingsOfLines {
 public:
  /// One more line was read.
  void Add(bool isOlder) { rows_.push_back({isOlder, false, reason_, at_}); }

  /// The lines from a row on correct what stands above them.
  void SetCorrects(std::size_t first);

  /// Something speaks against the orders from a row on; what was found first counts.
  void SetDoubt(std::size_t first, const std::string& reason, Span at);

  /// The line at the end of those read sets orders aside: of the same part of the text if above,
  /// and from now on if below. `power`: whose orders stand there, 0: nobody's in particular.
  void SetAside(AsideScope scope, const std::string& reason, Span at, int power,
                const std::vector<ReadLine>& lines, std::size_t end);

  /// A heading: "Final orders:" ends what is set aside, and so does that of another power where
  /// orders of the one before were set aside.
  void TakeHeading(int power, bool corrects, const std::vector<ReadLine>& lines);

  /// Another text begins: nothing is set aside there.
  void StartAnew() { reason_.clear(); }

  const std::vector<Surroundings>& Rows() const { return rows_; }

 private:
  bool SetAsideAbove(const std::string& reason, Span at, const std::vector<ReadLine>& lines,
                     std::size_t end);

  std::vector<Surroundings> rows_;
  /// The first row that no line below took back: of the answer, and of what is older.
  std::array<std::size_t, 2> notSetAside_{};
  std::string reason_;  ///< why the orders from now on are set aside, or empty
  Span at_;
  int power_ = 0;
  std::size_t below_ = 0;  ///< the first row below that may have an order
};

}  // namespace orb::exchange
