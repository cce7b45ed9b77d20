#pragma once

#include "orders/exchange/order_part.h"
#include "orders/exchange/source_line.h"
#include "orders/exchange/surroundings.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace orb::exchange {

/// What the lines of a text were read as, row by row, and what stands around each.
class Rows {
 public:
  explicit Rows(const KnownGame& known) : known_(known) {}

  /// There will be so many rows or more.
  void Reserve(std::size_t count) {
    Lines.reserve(count);
    Around.Reserve(count);
  }

  /// The rows that are added next are those of another line. `isOlder`: it is quoted from an
  /// earlier text; `inSignature`: places alone make no order there.
  void BeginLine(Tokens line, bool isOlder, bool inSignature);

  /// A row of a whole line. `power`: of the lines here, 0: none is named.
  ReadLine& AddLine(const SourceLine& line, int power, LineKind kind);
  void AddTooLong(const SourceLine& line, int power);

  /// Some tokens of a line that somebody must look at.
  void AddUnclear(const SourceLine& line, TokenRange range, int power, const std::string& reason);

  /// What some tokens of a line were read as.
  void AddPart(const SourceLine& line, TokenRange range, const PartRead& part,
               const Context& context);

  /// The same where they surely are meant as an order.
  void AddOnly(const SourceLine& line, TokenRange range, const PartRead& part,
               const Context& context);

  /// Words of the line beside its orders, in the sentence that begins at a token.
  void AddRemark(TokenRange range, std::size_t sentence) {
    remarks_.push_back({range, sentence, {}});
  }

  /// What the line says next to its orders may change each order of the same sentence; where that
  /// has none, each of the line, whose rows begin at `first`.
  void DoubtRemarks(const SourceLine& line, std::size_t first);

  /// "E.g. A Par - Bur": of the rows from `first` on, those of the line, what stands behind such
  /// words is surely none of the writer's orders.
  void SetAsideExample(const SourceLine& line, TokenRange saying, std::size_t first);

  /// Whether a line is a paragraph of its own and no more than an apology, as for being late.
  bool ApologizesApart(const SourceLine& line, std::size_t first) const;

  /// Whether second thoughts in a line without orders, whose rows begin at `first`, may be about
  /// orders above: `isBehindOrders`: right above.
  bool MayBeOfAbove(const SourceLine& line, std::size_t first, bool isBehindOrders) const;

  /// Two places alone are hardly meant as an order where nothing else in the text is written so;
  /// where a text changes others, "the rest holds" may say that those stay in force; and units of a
  /// list are not built where the text removes some, or says something else of them.
  void DoubtLoneOnes();

  /// Whether any row from one on holds an order.
  bool HoldsOrders(std::size_t first) const;

  /// The rows from one on surely are no orders.
  void PassOver(std::size_t first);

  /// So are those of a line that says nothing but what it sets aside by the words `at`: it is the
  /// orders set aside that are shown.
  void PassOverAside(const SourceLine& line, TokenRange at, std::size_t first, bool inSignature);

  std::vector<ReadLine> Lines;
  SurroundingsOfLines Around;

 private:
  /// An order in the line, without the remarks behind it.
  struct Understood {
    TokenRange At;
    std::size_t Sentence;
    std::size_t Row;
  };

  struct Said {
    TokenRange At;
    std::size_t Sentence;
    std::optional<std::size_t> Row;  ///< of the only order that it may be about
  };

  ReadLine& Add(const SourceLine& line, Span place, LineKind kind, int power);
  void AddProblem(const SourceLine& line, TokenRange range, const Fault& problem, ReadLine& read);
  bool IsOfOther(const SourceLine& line, const PartRead& part) const;
  bool IsOfAnotherMatter(const SourceLine& line, const Said& said) const;
  bool SpeaksOf(const SourceLine& line, const Said& said, const Understood& order) const;
  bool PutsRight(const SourceLine& line, const Said& said, const Understood& next) const;
  bool DoubtUnreal(const SourceLine& line, const Said& said);
  void AddAlternative(const SourceLine& line, const Said& said);
  void Amend(const SourceLine& line, const Said& said, int place);
  bool Exclude(const SourceLine& line, const Said& said);
  bool TakesBackNext(const SourceLine& line, const Said& said);
  bool LeadsFromExcluded(const SourceLine& line, const Said& said) const;
  bool TakesBackBehind(const SourceLine& line, const Said& said);
  bool EndsExclusion(const SourceLine& line, const Said& said) const;
  bool IsAddress(Tokens words, bool isFirst, int power) const;
  bool IsDoubted(const SourceLine& line, const Said& said, bool isOwn) const;

  const KnownGame& known_;
  std::vector<std::size_t> pairs_;     ///< rows of two places alone, of a power that nobody named
  bool changes_ = false;               ///< whether any line speaks of a change or correction
  std::vector<std::size_t> inferred_;  ///< rows of builds that no word says to be some
  std::vector<std::size_t> rest_;      ///< rows of "everything else holds"
  bool isOlder_ = false;
  bool inSignature_ = false;
  // Of the line that is being read.
  std::vector<Understood> understood_;
  mutable std::size_t withoutOrders_ = 0;  ///< so many of the first rows hold none
  std::vector<Said> remarks_;
};

}  // namespace orb::exchange
