#pragma once

#include "orders/exchange/asides.h"
#include "orders/exchange/concerns.h"
#include "orders/exchange/read_line.h"

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace orb::exchange {

/// Why orders may not be meant, and where that is said. Many lines may share one.
struct Misgiving {
  std::string Reason;
  Span At;
};

/// What stands around a line that was read.
struct Surroundings {
  bool IsOlder = false;      ///< in a part of the text that is quoted from an earlier one
  bool Corrects = false;     ///< its words say that it holds rather than what stands above
  bool Amends = false;       ///< second thoughts before it put it in the place of another order
  std::string Instead;       ///< the province that it says to be no longer the destination
  bool IsRevoked = false;    ///< words before the order take it back, wherever it stands
  bool IsTakenBack = false;  ///< and for another one of its unit in the same line
  bool IsSetAside = false;   ///< a heading or line says that it is not for now
  std::shared_ptr<const Misgiving> Doubt;           ///< about the orders here, or none
  std::shared_ptr<const Misgiving> SecondThoughts;  ///< right before the order, about those above
  Concern About;                                    ///< what is not understood in the line
};

/// Follows what the lines of a text say of the orders around them.
class SurroundingsOfLines {
 public:
  /// Words in the line of an order may be about these orders, too.
  void AddAbout(std::size_t row, const Concern& concern);

  void Reserve(std::size_t count) { rows_.reserve(count); }

  /// One more line was read.
  void Add(bool isOlder) {
    Surroundings& row = rows_.emplace_back();
    row.IsOlder = isOlder;
    row.IsSetAside = setAside_ != nullptr;
    row.Doubt = setAside_;
  }

  /// The last row is not understood and may be about these orders.
  void SetAbout(Concern concern) { rows_.back().About = std::move(concern); }

  /// The rows from `first` on are those of a line; `isEmpty`: nothing is written there. Orders that
  /// follow each other are a block.
  void EndLine(std::size_t first, bool holdsOrders, bool isEmpty,
               const std::vector<ReadLine>& lines);

  /// A line that asks or supposes leads to the block of orders below it.
  void LeadTo(const std::string& reason, Span at) {
    lead_ = {std::make_shared<Misgiving>(Misgiving{reason, at}), true, 0};
  }

  /// A title that is not understood stands above the block of orders below it; those of `power`
  /// are its own.
  void EntitleBlock(const std::string& reason, Span at, int power) {
    lead_ = {std::make_shared<Misgiving>(Misgiving{reason, at}), false, power};
  }

  /// A line behind the last block of orders makes a reservation about it.
  void DoubtBlock(const std::string& reason, Span at);

  /// Whether the line that was read last ended with orders.
  bool IsInBlock() const { return isInBlock_; }

  /// The lines from a row on correct what stands above them.
  void SetCorrects(std::size_t first);

  /// Before the order of a row the writer thinks better of what is above.
  void SetReconsiders(std::size_t row, const std::string& reason, Span at);

  /// The order of a row is what such thoughts come to: it holds rather than an earlier one of its
  /// unit.
  void SetAmends(std::size_t row, const std::string& reason, Span at);

  /// The order of a row takes the place of one to another province, "PIC".
  void SetInstead(std::size_t row, std::string province) {
    rows_[row].Instead = std::move(province);
  }

  /// The order of a row is taken back.
  void SetRevoked(std::size_t row) { rows_[row].IsRevoked = true; }

  /// The order of a row is taken back for another one in its line.
  void SetTakenBack(std::size_t row) {
    rows_[row].IsRevoked = true;
    rows_[row].IsTakenBack = true;
  }

  /// Something speaks against the orders from a row on; what was found first counts.
  void SetDoubtFrom(std::size_t first, const std::string& reason, Span at);

  /// Something speaks against the order of a row. `isSetAside`: it surely is none of the writer's.
  void SetDoubt(std::size_t row, const std::string& reason, Span at, bool isSetAside);

  /// The line at the end of those read sets orders aside: of the same part of the text if above,
  /// and from now on if below. `power`: whose orders stand there, 0: nobody's in particular.
  /// `about`: which of the orders above, if it names their units.
  void SetAside(AsideScope scope, const std::string& reason, Span at, int power,
                const Concern& about, const std::vector<ReadLine>& lines, std::size_t end);

  /// The line at the end of those read may be about the orders above it, of the same part of the
  /// text, or about those of the units that it names.
  void DoubtAbove(const std::string& reason, Span at, const Concern& about,
                  const std::vector<ReadLine>& lines, std::size_t end);

  /// A heading: "Final orders:" ends what is set aside, and so does that of another power where
  /// orders of the one before were set aside.
  /// `isOfOrders`: it names orders or a season, and so ends what is set aside above it.
  void TakeHeading(int power, bool corrects, bool isOfOrders, const std::vector<ReadLine>& lines);

  /// Another text begins: nothing is set aside there.
  void StartAnew() {
    setAside_.reset();
    lead_ = {};
    block_ = blockEnd_ = rows_.size();
  }

  const std::vector<Surroundings>& Rows() const { return rows_; }

 private:
  void Doubt(std::size_t first, std::size_t end, const std::shared_ptr<const Misgiving>& misgiving);
  bool SetAsideAbove(const std::shared_ptr<const Misgiving>& misgiving, const Concern& about,
                     const std::vector<ReadLine>& lines, std::size_t end);

  std::vector<Surroundings> rows_;
  /// The first row that no line below took back: of the answer, and of what is older.
  std::array<std::size_t, 2> notSetAside_{};
  std::array<std::size_t, 2> doubted_{};  ///< the same, that no line below doubted
  std::size_t block_ = 0;                 ///< the first row of the last block of orders
  std::size_t blockEnd_ = 0;              ///< the row behind it
  bool isInBlock_ = false;
  struct Lead {
    std::shared_ptr<const Misgiving> Doubt;  ///< about the orders of the next block, or none
    bool SetsAside = false;                  ///< they surely are none of the writer's
    int Power = 0;                           ///< whose orders are meant all the same
  };
  Lead lead_;
  std::shared_ptr<const Misgiving> setAside_;  ///< about the orders from now on, or none
  int power_ = 0;
  std::size_t below_ = 0;  ///< the first row below that may have an order
};

}  // namespace orb::exchange
