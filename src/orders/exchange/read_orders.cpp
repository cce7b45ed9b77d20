#include "orders/exchange/read_orders.h"

#include "model/errors.h"
#include "orders/exchange/asides.h"
#include "orders/exchange/comments.h"
#include "orders/exchange/contradictions.h"
#include "orders/exchange/doubts.h"
#include "orders/exchange/exact_line.h"
#include "orders/exchange/line_kinds.h"
#include "orders/exchange/order_part.h"
#include "orders/exchange/phrases.h"
#include "orders/exchange/power_names.h"
#include "orders/exchange/quotations.h"
#include "orders/exchange/run_on.h"
#include "orders/exchange/segments.h"
#include "orders/exchange/shared_words.h"
#include "orders/exchange/slips.h"
#include "orders/exchange/source_line.h"
#include "text/strings.h"

#include <algorithm>
#include <deque>
#include <optional>

namespace orb::exchange {
namespace {

/// How many words and signs a greeting before an order has at most: "Hi Tom, A Par - Bur".
constexpr std::size_t LongestGreeting = 4;

/// An order in a line, without the remarks behind it.
struct Understood {
  TokenRange At;
  std::size_t Sentence;
  std::size_t Row;
};

/// Words of a line beside its orders.
struct Remark {
  TokenRange At;
  std::size_t Sentence;
};

/// Reads a text line by line; what headings say is kept for the lines below. A line goes through
/// these steps: the exact form, then signs that it belongs to a mail, then headings, then comments
/// cut off its end, then its orders, separated by semicolons, commas, full stops or nothing at all.
class TextReader {
 public:
  TextReader(KnownGame& known, const ReadingOptions& options) : known_(known), options_(options) {
    context_.Power = model::FindCountry(options.Power);
  }

  std::vector<ReadLine> Read(std::deque<SourceLine>& text) {
    for (SourceLine& line : text) {
      if (line.Bytes == TextSeparator) StartAnew();
      const std::size_t before = lines_.size();
      ReadLineOf(line);
      LookAround(line, before);
      if (before > 0 && before + 1 == lines_.size()) CheckGoesOn(lines_[before - 1], line);
    }
    WeighOrders(lines_, around_.Rows(), known_.Stage,
                PowerText(model::FindCountry(options_.Power)));
    return std::move(lines_);
  }

  ReadLine ReadOne(std::string_view text) {
    isSingle_ = true;
    SourceLine line;
    CutLine(line, text, 0, options_.Repairs, known_.Names);
    if (line.Bytes.empty()) {
      AddLine(line, LineKind::PassedOver);
    } else if (!ReadExact(line)) {
      const TokenRange body{PastLineStart(line.All), line.All.size()};
      Context context = context_;
      PartRead part = ReadPart(PartOf(line, body), known_, context);
      if (!IsUnderstood(part)) {
        PartRead mended = ReadWithSlips(PartOf(line, body), part, known_, context);
        if (IsUnderstood(mended)) part = std::move(mended);
      }
      line.IsTooLong ? AddTooLong(line) : AddPart(line, body, part, context);
      DoubtRemarks(line, 0);
      WeighOrders(lines_, around_.Rows(), known_.Stage, {});
    }
    return std::move(lines_.front());
  }

 private:
  void StartAnew() {
    context_ = {model::FindCountry(options_.Power), Verb::None};
    inSignature_ = false;
    quotations_ = {};
    around_.StartAnew();
  }

  static Tokens PartOf(const SourceLine& line, TokenRange range) {
    return Tokens(line.All).subspan(range.Begin, range.End - range.Begin);
  }

  /// A line like "- Bur" may be the rest of the order above. That order is then incomplete, though
  /// it may look whole: it becomes unclear.
  void CheckGoesOn(ReadLine& above, const SourceLine& line) {
    if (JoinBroken(above, lines_.back(), line, known_, context_)) return;
    const bool isRest = lines_.back().Kind == LineKind::NotUnderstood && !line.IsTooLong &&
                        !line.All.empty() && VerbOf(line.All[0]) != Verb::None;
    if (!isRest || above.Kind != LineKind::Order || above.Number + 1 != line.Number) return;
    const std::string joined = ToPlain(above.Written, 0).Text + " " + line.Plain.Text;
    Context context{model::FindCountry(above.Power), Verb::None};
    if (!IsUnderstood(ReadPart(CutTokens(joined), known_, context))) return;
    above.Kind = LineKind::NotUnderstood;
    above.Order.clear();
    above.Reason = "it may go on in the line below";
    above.ReasonPlace = {above.Place.Offset + above.Place.Length, 0};
  }

  void ReadLineOf(SourceLine& line) {
    const Tokens tokens = line.All;
    understood_.clear();
    remarks_.clear();
    isMailHead_ = false;
    quotations_.Take(line.Bytes, line.Plain.Text, tokens);
    if (ReadExact(line)) return;
    if (line.IsTooLong) return AddTooLong(line);
    TokenRange body{PastLineStart(tokens), tokens.size()};
    const bool hasWord = std::ranges::any_of(
        tokens, [](const Token& token) { return token.Kind == TokenKind::Word; });
    if (!hasWord) {
      inSignature_ = inSignature_ || line.Plain.Text == "--";
      AddLine(line, LineKind::PassedOver);
      return;
    }
    if (IsMailHead(PartOf(line, body), known_.Names) || IsQuotationHead(line.Plain.Text, tokens)) {
      isMailHead_ = true;
      AddLine(line, LineKind::PassedOver);
      return;
    }
    const auto heading = ReadHeading(PartOf(line, body), known_.Names);
    if (heading && IsHeadingOf(known_.Stage, *heading) &&
        !IsOrderAlone(PartOf(line, body), *heading)) {
      return AddHeading(line, *heading);
    }
    const auto isSign = [](const Token& token) {
      return token.Kind == TokenKind::Mark &&
             (token.Text == "#" || token.Text.starts_with("//") || token.Text.starts_with("<-"));
    };
    const auto sign = std::ranges::find_if(PartOf(line, body), isSign);
    const TokenRange comment{
        body.Begin + static_cast<std::size_t>(sign - PartOf(line, body).begin()), body.End};
    body.End = comment.Begin;
    ReadBody(line, body, comment);
  }

  /// "France: disband" is meant for a dislodged unit, which it does not name.
  bool IsOrderAlone(Tokens tokens, const Heading& heading) const {
    return known_.Stage == model::Stage::Retreats && heading.Orders == Verb::Disband &&
           VerbOf(tokens.back()) == Verb::Disband &&
           (tokens.size() == 1 || PowerAt(tokens, 0).Power != 0);
  }

  void ReadBody(const SourceLine& line, TokenRange body, TokenRange comment) {
    const Tokens said = PartOf(line, comment);
    Context context = context_;
    const std::size_t before = lines_.size();
    for (const TokenRange segment : Split(line.All, body, Seam::Semicolon))
      AddParts(line, ReadSegment(line.All, segment, known_, context, inSignature_), context);
    if (said.size() > 1) remarks_.push_back({{comment.Begin + 1, comment.End}, comment.Begin});
    if (HoldsOrders(before)) inSignature_ = false;
    const bool isOrder =
        !said.empty() &&
        (body.Begin == body.End ? !IsNoOrder(said, known_.Names, inSignature_)
                                : IsUnderstood(ReadPart(said.subspan(1), known_, context)));
    if (isOrder) {
      AddUnclear(line, comment, {comment.Begin, comment.Begin + 1}, "it stands in a comment");
    } else if (lines_.size() == before) {
      AddLine(line, LineKind::PassedOver);
    }
  }

  /// Whether any line from a row on holds an order.
  bool HoldsOrders(std::size_t row) const {
    return std::any_of(lines_.begin() + static_cast<std::ptrdiff_t>(row), lines_.end(),
                       [](const ReadLine& line) {
                         return IsUnderstood(line) || line.Kind == LineKind::Ambiguous ||
                                line.Kind == LineKind::Waive;
                       });
  }

  /// Notes what a line that was read, whose rows begin at `first`, says of the orders around it.
  void LookAround(const SourceLine& line, std::size_t first) {
    if (!line.IsTooLong && Corrects(line.All)) around_.SetCorrects(first);
    const bool holdsOrders = HoldsOrders(first);
    const bool isBehindOrders = around_.IsInBlock();
    around_.EndLine(first, holdsOrders, line.Bytes.empty());
    if (holdsOrders) return DoubtRemarks(line, first);
    const bool isHeading = lines_.back().Kind == LineKind::Heading;
    if (line.IsTooLong || line.All.empty() || isHeading) return;
    if (isMailHead_) return LookAtSubject(line, first);
    if (const auto aside = ReadAside(line.All)) return SetAside(line, *aside, first);
    if (const auto at = ReadReservation(line.All, isBehindOrders)) {
      around_.DoubtBlock(Quoted(line, *at) + " may change it", Written(line, *at));
    } else if (LeadsOn(line.All)) {
      const TokenRange all{0, line.All.size()};
      around_.LeadTo(Quoted(line, all) + " leads to it", Written(line, all));
    }
  }

  void LookAtSubject(const SourceLine& line, std::size_t first) {
    const auto at = IsSubject(line.All) ? ReadDraftSubject(line.All) : std::nullopt;
    if (at) SetAside(line, {AsideScope::Below, *at}, first);
  }

  void SetAside(const SourceLine& line, const Aside& aside, std::size_t first) {
    // Its words alone are no reason to show it: the orders that it sets aside are shown.
    std::vector<Token> rest(line.All.begin(), line.All.end());
    rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(aside.At.Begin),
               rest.begin() + static_cast<std::ptrdiff_t>(aside.At.End));
    std::erase_if(rest, [](const Token& token) { return HasUse(token, WordUse::Condition); });
    const bool isTitle = IsA(line.All.back(), TokenKind::Colon) &&
                         std::ranges::find(rest, TokenKind::Dash, &Token::Kind) == rest.end();
    if (isTitle || IsNoOrder(rest, known_.Names, inSignature_)) PassOver(first);
    const Concern concern = ConcernOf(line.All, known_.Names, *known_.Game.Map);
    around_.SetAside(aside.Scope, Quoted(line, aside.At) + " sets it aside",
                     Written(line, aside.At), context_.Power, concern, lines_, first);
  }

  void PassOver(std::size_t first) {
    for (std::size_t row = first; row < lines_.size(); ++row) {
      lines_[row].Kind = LineKind::PassedOver;
      lines_[row].Reason.clear();
    }
  }

  static std::string Quoted(const SourceLine& line, TokenRange range) {
    return exchange::Quoted(PartOf(line, range));
  }

  /// What a line says next to its orders, in comments or between them, may change each order of the
  /// same sentence; where that has none, each of the line.
  void DoubtRemarks(const SourceLine& line, std::size_t first) {
    std::vector<Token> own;
    for (const Understood& order : understood_) {
      const Tokens words = PartOf(line, order.At);
      own.insert(own.end(), words.begin(), words.end());
    }
    for (const Remark& said : remarks_) {
      const Tokens remark = PartOf(line, said.At);
      const auto doubt = FindDoubt(remark, own, known_.Names);
      const bool isGreeting = remark.size() <= LongestGreeting &&
                              HasUse(remark[0], WordUse::Greeting) &&
                              !ReadAside(remark).has_value();
      if (!doubt || isGreeting) continue;
      const std::string reason = Quoted(line, said.At) + " may change it";
      const bool isOwn =
          std::ranges::find(understood_, said.Sentence, &Understood::Sentence) != understood_.end();
      const bool isReported = IsReport(remark);
      for (const Understood& order : understood_) {
        if (isOwn && order.Sentence != said.Sentence) continue;
        around_.SetDoubt(order.Row, reason, Written(line, said.At), isReported);
      }
      if (!isOwn) around_.SetDoubtFrom(first, reason, Written(line, said.At));
    }
  }

  void AddParts(const SourceLine& line, const PartsRead& parts, const Context& context) {
    for (const auto& [range, part] : parts)
      AddPart(line, range, part, context);
  }

  bool ReadExact(const SourceLine& line) {
    const auto order = ReadExactLine(*known_.Game.Map, known_.Stage, line.Bytes);
    if (!order) return false;
    ReadLine& read = AddLine(line, LineKind::Order);
    read.Order = line.Bytes;
    read.Power = order->Power;
    read.Reason = known_.Objection(*order);
    read.ReasonPlace = read.Place;
    inSignature_ = false;
    return true;
  }

  ReadLine& Add(const SourceLine& line, Span place, LineKind kind, int power) {
    ReadLine& read = lines_.emplace_back();
    around_.Add(quotations_.IsQuoted());
    read.Number = line.Number;
    read.Place = place;
    read.Written = line.Bytes.substr(place.Offset - line.Offset, place.Length);
    read.Kind = kind;
    read.Power = PowerText(power);
    return read;
  }

  ReadLine& AddLine(const SourceLine& line, LineKind kind) {
    return Add(line, {line.Offset, line.Bytes.size()}, kind, context_.Power);
  }

  void AddTooLong(const SourceLine& line) {
    ReadLine& read = AddLine(line, LineKind::NotUnderstood);
    read.Reason = "the line is longer than " + std::to_string(LineBound) + " characters";
    read.ReasonPlace = read.Place;
  }

  void AddHeading(const SourceLine& line, const Heading& heading) {
    const bool says = heading.Power != 0 || heading.Orders != Verb::None;
    // Another power's heading ends what the one before said of builds or disbands, and any
    // signature.
    if (heading.Power != 0) {
      context_ = {heading.Power, heading.Orders};
      inSignature_ = false;
    } else if (says) {
      context_.Orders = heading.Orders;
    }
    const bool isOfOrders = std::ranges::any_of(line.All, [](const Token& token) {
      return HasUse(token, WordUse::Orders, WordUse::Season);
    });
    around_.TakeHeading(heading.Power, Corrects(line.All), isOfOrders, lines_);
    AddLine(line, says ? LineKind::Heading : LineKind::PassedOver);
  }

  static Span Written(const SourceLine& line, TokenRange range) {
    return line.Plain.Written(line.All[range.Begin].Begin, line.All[range.End - 1].End);
  }

  void AddUnclear(const SourceLine& line, TokenRange range, TokenRange reasonAt,
                  const std::string& reason) {
    ReadLine& read = Add(line, Written(line, range), LineKind::NotUnderstood, context_.Power);
    read.Reason = reason;
    read.ReasonPlace = Written(line, reasonAt);
  }

  void AddPart(const SourceLine& line, TokenRange range, const PartRead& part,
               const Context& context) {
    const Tokens tokens = PartOf(line, range);
    if (part.IsRemark) return remarks_.push_back({range, part.Sentence});
    if (tokens.empty()) {
      AddLine(line, LineKind::PassedOver);
      return;
    }
    ReadLine& read = Add(line, Written(line, range), part.Kind, context.Power);
    const std::vector<Meaning>& meant = part.Meant.All;
    read.ReasonPlace = read.Place;
    read.ReadAs = part.ReadAs;
    if (!part.Doubt.empty()) around_.SetDoubtFrom(lines_.size() - 1, part.Doubt, read.Place);
    if (IsUnderstood(part)) {
      const std::size_t end = std::min(range.Begin + part.End, range.End);
      understood_.push_back({{range.Begin, end}, part.Sentence, lines_.size() - 1});
      const bool isOrder = part.Kind != LineKind::Waive;
      if (isOrder && end < range.End) remarks_.push_back({{end, range.End}, part.Sentence});
    }
    if (part.Kind == LineKind::Order) {
      read.Order = meant[0].Line;
      read.Power = PowerText(meant[0].Power);
      read.Reason = meant[0].Objection;
    } else if (part.Kind == LineKind::Ambiguous) {
      read.Reason = AmbiguityText(part.Meant);
      for (const Meaning& meaning : meant)
        read.Candidates.push_back(meaning.Line);
    } else if (part.Kind == LineKind::NotUnderstood) {
      AddProblem(line, range, part.Problem, part.Sentence, read);
    }
  }

  void AddProblem(const SourceLine& line, TokenRange range, const Fault& problem,
                  std::size_t sentence, ReadLine& read) {
    if (!isSingle_ && IsNoOrder(PartOf(line, range), known_.Names, inSignature_)) {
      read.Kind = LineKind::PassedOver;
      remarks_.push_back({range, sentence});
      return;
    }
    read.Reason = problem.Reason;
    if (const int power = PowerAt(PartOf(line, range), 0).Power; power != 0) {
      read.Power = PowerText(power);
    }
    around_.SetAbout(ConcernOf(PartOf(line, range), known_.Names, *known_.Game.Map));
    const std::size_t begin = range.Begin + problem.At.Begin;
    const std::size_t end = std::min(range.Begin + problem.At.End, range.End);
    read.ReasonPlace =
        begin < end ? Written(line, {begin, end}) : Span{read.Place.Offset + read.Place.Length, 0};
  }

  KnownGame& known_;
  const ReadingOptions& options_;
  Context context_;
  bool inSignature_ = false;
  bool isSingle_ = false;  ///< the text is an order, whatever it looks like
  Quotations quotations_;
  std::vector<ReadLine> lines_;
  SurroundingsOfLines around_;
  // Of the line that is being read: whether it heads a mail, its orders, and what it says next to
  // them.
  bool isMailHead_ = false;
  std::vector<Understood> understood_;  ///< of the line
  std::vector<Remark> remarks_;         ///< of the line
};

void LearnMoves(const std::vector<ReadLine>& lines, KnownGame& known) {
  if (known.Stage != model::Stage::Moves) return;
  for (const ReadLine& line : lines) {
    if (!IsUnderstood(line)) continue;
    const auto order = ReadExactLine(*known.Game.Map, known.Stage, line.Order);
    if (order) known.Learn(*order);
  }
}

}  // namespace

std::vector<ReadLine> ReadOrders(const model::GameState& game, std::string_view text,
                                 const ReadingOptions& options) {
  if (text.size() > TextBound) {
    throw model::FatalError("A text of orders has at most " + std::to_string(TextBound) +
                            " characters; this one has " + std::to_string(text.size()) + ".");
  }
  const PlaceNames& names = PlaceNamesOf(game.Map);
  std::deque<SourceLine> cut = CutText(text, options.Repairs, names);
  KnownGame known(game, names, game.Stage);
  std::vector<ReadLine> lines = TextReader(known, options).Read(cut);
  LearnMoves(lines, known);
  // What a support means may depend on moves that are written below it.
  if (!known.Moves.empty()) lines = TextReader(known, options).Read(cut);
  return lines;
}

ReadLine ReadOrder(const model::GameState& game, std::string_view text,
                   const ReadingOptions& options, const std::vector<ReadLine>& before) {
  const PlaceNames& names = PlaceNamesOf(game.Map);
  KnownGame known(game, names, game.Stage);
  LearnMoves(before, known);
  return TextReader(known, options).ReadOne(text);
}

}  // namespace orb::exchange
