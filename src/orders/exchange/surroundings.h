#pragma once

#include "orders/exchange/asides.h"
#include "orders/exchange/concerns.h"
#include "orders/exchange/read_line.h"

#include <array>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace orb::exchange {

/// What stands around a line that was read.
struct Surroundings {
  bool IsOlder = false;     ///< in a part of the text that is quoted from an earlier one
  bool Corrects = false;    ///< its words say that it holds rather than what stands above
  bool IsSetAside = false;  ///< a heading or line says that it is not for now
  std::string Doubt;        ///< why the orders here may not be meant, or empty
  Span DoubtAt;
  std::string SecondThoughts;  ///< right before the order, about the one above; quoted, or empty
  Span SecondThoughtsAt;
  Concern About;  ///< what is not understood in the line
};

/// Follows what the lines of a text say of the orders around them.
class SurroundingsOfLines {
 public:
  /// Words in the line of an order may be about these orders, too.
  void AddAbout(std::size_t row, const Concern& concern);

  /// One more line was read.
  void Add(bool isOlder) {
    rows_.push_back({isOlder, false, !reason_.empty(), reason_, at_, {}, {}, {}});
  }

  /// The last row is not understood and may be about these orders.
  void SetAbout(Concern concern) { rows_.back().About = std::move(concern); }

  /// The rows from `first` on are those of a line; `isEmpty`: nothing is written there. Orders that
  /// follow each other are a block.
  void EndLine(std::size_t first, bool holdsOrders, bool isEmpty,
               const std::vector<ReadLine>& lines);

  /// A line that asks or supposes leads to the block of orders below it.
  void LeadTo(const std::string& reason, Span at) { lead_ = {reason, at, true, 0}; }

  /// A title that is not understood stands above the block of orders below it; those of `power`
  /// are its own.
  void EntitleBlock(const std::string& reason, Span at, int power) {
    lead_ = {reason, at, false, power};
  }

  /// A line behind the last block of orders makes a reservation about it.
  void DoubtBlock(const std::string& reason, Span at);

  /// Whether the line that was read last ended with orders.
  bool IsInBlock() const { return isInBlock_; }

  /// The lines from a row on correct what stands above them.
  void SetCorrects(std::size_t first);

  /// Before the order of a row the writer thinks better of what is above.
  void SetReconsiders(std::size_t row, std::string quoted, Span at);

  /// Something speaks against the orders from a row on; what was found first counts.
  void SetDoubtFrom(std::size_t first, const std::string& reason, Span at);

  /// Something speaks against the order of a row. `isSetAside`: it surely is none of the writer's.
  void SetDoubt(std::size_t row, const std::string& reason, Span at, bool isSetAside);

  /// The line at the end of those read sets orders aside: of the same part of the text if above,
  /// and from now on if below. `power`: whose orders stand there, 0: nobody's in particular.
  /// `about`: which of the orders above, if it names their units.
  void SetAside(AsideScope scope, const std::string& reason, Span at, int power,
                const Concern& about, const std::vector<ReadLine>& lines, std::size_t end);

  /// A heading: "Final orders:" ends what is set aside, and so does that of another power where
  /// orders of the one before were set aside.
  /// `isOfOrders`: it names orders or a season, and so ends what is set aside above it.
  void TakeHeading(int power, bool corrects, bool isOfOrders, const std::vector<ReadLine>& lines);

  /// Another text begins: nothing is set aside there.
  void StartAnew() {
    reason_.clear();
    lead_ = {};
    block_ = blockEnd_ = rows_.size();
  }

  const std::vector<Surroundings>& Rows() const { return rows_; }

 private:
  void Doubt(std::size_t first, std::size_t end, const std::string& reason, Span at);
  bool SetAsideAbove(const std::string& reason, Span at, const Concern& about,
                     const std::vector<ReadLine>& lines, std::size_t end);

  std::vector<Surroundings> rows_;
  /// The first row that no line below took back: of the answer, and of what is older.
  std::array<std::size_t, 2> notSetAside_{};
  std::size_t block_ = 0;     ///< the first row of the last block of orders
  std::size_t blockEnd_ = 0;  ///< the row behind it
  bool isInBlock_ = false;
  struct Lead {
    std::string Reason;  ///< why the orders of the next block may not be meant, or empty
    Span At;
    bool SetsAside = false;  ///< they surely are none of the writer's
    int Power = 0;           ///< whose orders are meant all the same
  };
  Lead lead_;
  std::string reason_;  ///< why the orders from now on are set aside, or empty
  Span at_;
  int power_ = 0;
  std::size_t below_ = 0;  ///< the first row below that may have an order
};

}  // namespace orb::exchange
