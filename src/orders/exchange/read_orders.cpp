#include "orders/exchange/read_orders.h"

#include "model/errors.h"
#include "orders/exchange/asides.h"
#include "orders/exchange/bearing.h"
#include "orders/exchange/cells.h"
#include "orders/exchange/check_line.h"
#include "orders/exchange/comments.h"
#include "orders/exchange/concerns.h"
#include "orders/exchange/contradictions.h"
#include "orders/exchange/doubts.h"
#include "orders/exchange/exact_line.h"
#include "orders/exchange/learnt_moves.h"
#include "orders/exchange/line_kinds.h"
#include "orders/exchange/markup.h"
#include "orders/exchange/order_part.h"
#include "orders/exchange/other_matters.h"
#include "orders/exchange/paragraphs.h"
#include "orders/exchange/power_names.h"
#include "orders/exchange/quotations.h"
#include "orders/exchange/rows.h"
#include "orders/exchange/sayings.h"
#include "orders/exchange/second_thoughts.h"
#include "orders/exchange/segments.h"
#include "orders/exchange/sentences.h"
#include "orders/exchange/shared_words.h"
#include "orders/exchange/slips.h"
#include "orders/exchange/source_line.h"
#include "orders/exchange/speakers.h"
#include "orders/exchange/type_letters.h"
#include "text/strings.h"

#include <algorithm>
#include <deque>
#include <iterator>
#include <optional>

namespace orb::exchange {
namespace {

/// Reads a text line by line; what headings say is kept for the lines below. A line goes through
/// these steps: the exact form, then signs that it belongs to a mail, then headings, then comments
/// cut off its end, then its orders, separated by semicolons, commas, full stops or nothing at all.
/// The power that a title begins or ends with, or that its last sentence is about, or 0.
int HeadsPower(Tokens title) {
  constexpr std::size_t few = 8;
  const PowerName first = PowerAt(title, 0);
  const bool heads = first.Power != 0 && first.Next < title.size() &&
                     (title.size() <= few || !IsA(title[first.Next], TokenKind::Word) ||
                      HasUse(title[first.Next], WordUse::Orders, WordUse::Season));
  if (heads) return first.Power;
  const Tokens last = LastSentence(title);
  if (last.size() <= few) return PowerIn(last);
  return PowerIn(title.last(std::min(few, title.size())));
}

class TextReader {
 public:
  TextReader(const KnownGame& known, const ReadingOptions& options)
      : known_(known), options_(options), rows_(known) {
    context_.Power = model::FindCountry(options.Power);
    context_.IsChosen = context_.Power != 0;
  }

  std::vector<ReadLine> Read(std::deque<SourceLine>& text) {
    rows_.Reserve(text.size());
    LearnTypeLetters(text, known_);
    for (const SourceLine& line : text)
      speakers_.Take(line.All, PastLineStart(line.All), known_.Names);
    int tries = 0;
    for (std::size_t at = 0; at < text.size();) {
      if (text[at].Bytes == TextSeparator) StartAnew();
      SourceLine joined;
      const std::size_t count = JoinParagraph(text, at, known_, context_, tries, joined);
      Take(count > 1 ? joined : text[at]);
      for (std::size_t i = 1; i < count; ++i)
        rows_.AddLine(text[at + i], context_.Power, LineKind::PassedOver);
      at += count;
    }
    TakeThoughts(rows_.Lines.size(), false);
    rows_.DoubtLoneOnes();
    WeighOrders(rows_.Lines, rows_.Around.Rows(), known_.Stage,
                PowerText(model::FindCountry(options_.Power)));
    return std::move(rows_.Lines);
  }

  ReadLine ReadOne(std::string_view text) {
    SourceLine line;
    CutLine(line, text, 0, options_.Repairs, known_.Names);
    if (line.Bytes.empty()) {
      rows_.AddLine(line, context_.Power, LineKind::PassedOver);
    } else if (!ReadExact(line)) {
      const TokenRange body{PastLineStart(line.All), line.All.size()};
      Context context = context_;
      PartRead part = ReadPart(line.Part(body), known_, context);
      if (!IsUnderstood(part)) {
        PartRead mended = ReadWithSlips(line.Part(body), part, known_, context);
        if (IsUnderstood(mended)) part = std::move(mended);
      }
      line.IsTooLong ? rows_.AddTooLong(line, context_.Power)
                     : rows_.AddOnly(line, body, part, context);
      rows_.DoubtRemarks(line, 0);
      WeighOrders(rows_.Lines, rows_.Around.Rows(), known_.Stage, {});
    }
    return std::move(rows_.Lines.front());
  }

 private:
  void Take(SourceLine& line) {
    const std::size_t before = rows_.Lines.size();
    ReadLineOf(line);
    LookAround(line, before);
    if (before > 0 && before + 1 == rows_.Lines.size()) CheckGoesOn(rows_.Lines[before - 1], line);
  }

  void StartAnew() {
    context_ = {model::FindCountry(options_.Power), Verb::None};
    inSignature_ = inPress_ = inFooter_ = false;
    quotations_ = {};
    struck_ = {};
    rows_.Around.StartAnew();
  }

  /// A line like "- Bur" may be the rest of the order above. That order is then incomplete, though
  /// it may look whole: it becomes unclear.
  void CheckGoesOn(ReadLine& above, const SourceLine& line) {
    if (JoinBroken(above, rows_.Lines.back(), line, known_, context_)) return;
    const bool isRest = rows_.Lines.back().Kind == LineKind::NotUnderstood && !line.IsTooLong &&
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
    isMailHead_ = isTitle_ = false;
    quotations_.Take(line.Bytes, line.Plain.Text, tokens);
    rows_.BeginLine(tokens, quotations_.IsQuoted(), inSignature_);
    if (ReadExact(line)) return;
    if (line.IsTooLong) return rows_.AddTooLong(line, context_.Power);
    TokenRange body{speakers_.Past(tokens, PastLineStart(tokens), known_.Names), tokens.size()};
    const bool hasWord = std::ranges::any_of(
        tokens, [](const Token& token) { return token.Kind == TokenKind::Word; });
    if (!hasWord) {
      inSignature_ = inSignature_ || EndsLetter(line.Plain.Text);
      rows_.AddLine(line, context_.Power, LineKind::PassedOver);
      return;
    }
    if (IsMailHead(line.Part(body), known_.Names) || IsQuotationHead(line.Plain.Text, tokens)) {
      isMailHead_ = true;
      inPress_ = false;
      rows_.AddLine(line, context_.Power, LineKind::PassedOver);
      return;
    }
    const bool isPressTitle = IsPressTitle(line.Part(body));
    const auto heading = isPressTitle ? std::nullopt : ReadHeading(line.Part(body), known_.Names);
    if (heading && IsHeadingOf(known_.Stage, *heading) &&
        !IsOrderAlone(line.Part(body), *heading, known_.Stage)) {
      return AddHeading(line, *heading);
    }
    if (isPressTitle || IsPressLine(line.Part(body)) ||
        (inPress_ && !BeginsWithType(line.Part(body)))) {
      inPress_ = inPress_ || isPressTitle;
      rows_.AddLine(line, context_.Power, LineKind::PassedOver);
      return;
    }
    const TokenRange comment = CommentAtEnd(tokens, body);
    body.End = comment.Begin;
    ReadBody(line, body, comment);
  }

  void ReadBody(const SourceLine& line, TokenRange body, TokenRange comment) {
    const Tokens said = line.Part(comment);
    Context context = context_;
    const std::size_t before = rows_.Lines.size();
    PartsRead parts;
    const Context start = context;
    for (const TokenRange segment : Split(line.All, body, Seam::Semicolon)) {
      PartsRead read = ReadSegment(line.All, segment, known_, context, inSignature_);
      std::move(read.begin(), read.end(), std::back_inserter(parts));
    }
    if (auto row = ReadCells(line, body, parts, known_, start)) {
      rows_.AddPart(line, body, *row, start);
    } else {
      DropNamesOfUnits(line.All, parts, known_.Names);
      for (const auto& [range, part] : parts)
        rows_.AddPart(line, range, part, context);
    }
    if (said.size() > 1) rows_.AddRemark({comment.Begin + 1, comment.End}, comment.Begin);
    if (rows_.HoldsOrders(before)) inSignature_ = false;
    const bool isOrder =
        !said.empty() &&
        (body.Begin == body.End ? !IsNoOrder(said, known_.Names, inSignature_)
                                : IsUnderstood(ReadPart(said.subspan(1), known_, context)));
    if (isOrder) {
      rows_.AddUnclear(line, comment, context_.Power, "it stands in a comment");
    } else if (rows_.Lines.size() == before) {
      rows_.AddLine(line, context_.Power, LineKind::PassedOver);
    }
  }

  /// Notes what a line that was read, whose rows begin at `first`, says of the orders around it.
  void LookAround(const SourceLine& line, std::size_t first) {
    const bool holdsOrders = rows_.HoldsOrders(first);
    if (!line.IsTooLong && Corrects(line.All)) TakeCorrection(line, first, holdsOrders);
    if (struck_.Take(line.Plain.Text)) {
      rows_.Around.SetDoubtFrom(first, "it may be struck out", {line.Offset, line.Bytes.size()});
    }
    if (!line.Bytes.empty()) TakeThoughts(first, holdsOrders);
    const bool isBehindOrders = rows_.Around.IsInBlock();
    rows_.Around.EndLine(first, holdsOrders, line.Bytes.empty(), rows_.Lines);
    if (holdsOrders) {
      inFooter_ = false;
      if (const auto at = FindSaying(line.All, Saying::Gives))
        rows_.SetAsideExample(line, *at, first);
      return rows_.DoubtRemarks(line, first);
    }
    const bool isHeading = rows_.Lines.back().Kind == LineKind::Heading;
    if (isHeading || isMailHead_) inFooter_ = false;
    if (line.IsTooLong || line.All.empty() || isHeading) return;
    if (isMailHead_) return LookAtSubject(line, first);
    constexpr std::size_t shortest = 8;
    inFooter_ = inFooter_ || (IsFooter(line.All) && rows_.HoldsOrders(0));
    if ((inFooter_ && line.All.size() > shortest) ||
        (inSignature_ && IsInQuotes(line.Plain.Text))) {
      rows_.PassOver(first);
      return rows_.Around.SetAbout({});
    }
    if (!isBehindOrders && SpeaksOfElse(line.All, known_.Names)) return rows_.Around.SetAbout({});
    const auto aside = ReadAside(line.All, known_.Names);
    if (aside) return SetAside(line, *aside, first, isBehindOrders);
    if (const auto at = FindBearing(line.All, known_.Names)) {
      const Concern concern = ConcernOf(line.All, known_.Names, *known_.Game.Map);
      rows_.Around.DoubtAbove(Quoted(line.Part(*at)) + " may change it", line.Span(*at), concern,
                              rows_.Lines, first);
      if (LeadToIfAsked(line)) return;
      // "I have doubts about Brest" above the first orders.
      if (!rows_.HoldsOrders(0) && PowerIn(line.All) == 0 && NamesUnits(line.All, known_.Names)) {
        rows_.Around.SetAside(AsideScope::Below, Quoted(line.Part(*at)) + " may change it",
                              line.Span(*at), context_.Power, concern, rows_.Lines, first);
      }
    }
    const Tokens said =
        Tokens(line.All).subspan(speakers_.Past(line.All, PastLineStart(line.All), known_.Names));
    if (rows_.HoldsOrders(0) && IsSecondThought(said)) {
      thoughts_ = Misgiving{Quoted(said) + " may change it", {line.Offset, line.Bytes.size()}};
      isApology_ = rows_.ApologizesApart(line, first);
    } else if (rows_.MayBeOfAbove(line, first, isBehindOrders) && Reconsiders(said)) {
      rows_.Around.DoubtBlock(Quoted(said) + " may change it", {line.Offset, line.Bytes.size()});
    } else if (const auto at = ReadReservation(line.All, isBehindOrders)) {
      rows_.Around.DoubtBlock(Quoted(line.Part(*at)) + " may change it", line.Span(*at));
    } else if (IsSignOfDoubt(line.Plain.Text) || IsOtherPlace(said, known_.Names) ||
               (isBehindOrders && !IsA(line.All[0], TokenKind::Dash) &&
                IsPlaceAlone(said, known_.Names))) {
      rows_.Around.DoubtBlock(Quoted(line.All) + " may change it",
                              {line.Offset, line.Bytes.size()});
    } else if (!quotations_.IsQuoted() && (FindSaying(line.All, Saying::Gives) ||
                                           (!IsUnclear(rows_.Lines.back()) && LeadsOn(line.All)))) {
      rows_.Around.LeadTo(Quoted(line.All) + " leads to it", line.Span({0, line.All.size()}));
    } else if (!said.empty() && IsA(said.back(), TokenKind::Colon) && !isTitle_) {
      if (IsOwnTitle(said) || Corrects(said)) return TakeOwnTitle(said);
      rows_.Around.EntitleBlock(Quoted(said) + " is not understood",
                                {line.Offset, line.Bytes.size()}, HeadsPower(said));
    }
  }

  /// Builds name no unit twice: those of a correction may take the place of any above.
  void TakeCorrection(const SourceLine& line, std::size_t first, bool holdsOrders) {
    rows_.Around.SetCorrects(first);
    const bool isOfBuilds = holdsOrders && known_.Stage == model::Stage::Adjustments;
    if (!isOfBuilds || thoughts_) return;
    thoughts_ = Misgiving{Quoted(line.All) + " may change it", {line.Offset, line.Bytes.size()}};
  }

  /// Second thoughts that stood alone are about the order below them; where there is none, about
  /// all those above them.
  void TakeThoughts(std::size_t first, bool holdsOrders) {
    if (!thoughts_) return;
    const auto order =
        std::find_if(rows_.Lines.begin() + static_cast<std::ptrdiff_t>(first), rows_.Lines.end(),
                     [](const ReadLine& row) { return exchange::IsUnderstood(row); });
    if (holdsOrders && isHeading_) {
      isHeading_ = false;
    } else if (holdsOrders && order != rows_.Lines.end()) {
      rows_.Around.SetAmends(static_cast<std::size_t>(order - rows_.Lines.begin()),
                             thoughts_->Reason, thoughts_->At);
    } else if (!isApology_) {
      rows_.Around.DoubtBlock(thoughts_->Reason, thoughts_->At);
    }
    isApology_ = isHeading_ = false;
    thoughts_.reset();
  }

  /// "My orders for England:" ends what another title set aside.
  void TakeOwnTitle(Tokens title) {
    const bool isOfOrders = std::ranges::any_of(
        title, [](const Token& token) { return HasUse(token, WordUse::Orders); });
    const bool isOwn = std::ranges::any_of(
        title, [](const Token& token) { return HasUse(token, WordUse::Own, WordUse::Season); });
    if (!Corrects(title) && !(isOfOrders && isOwn)) return;
    quotations_.BeginOwn();
    rows_.Around.TakeHeading(PowerIn(title), Corrects(title), true, rows_.Lines);
  }

  void LookAtSubject(const SourceLine& line, std::size_t first) {
    const auto at = IsSubject(line.All) ? ReadDraftSubject(line.All) : std::nullopt;
    if (at) SetAside(line, {AsideScope::Below, *at}, first, false);
  }

  void SetAside(const SourceLine& line, const Aside& aside, std::size_t first,
                bool isBehindOrders) {
    const std::string power = context_.Power != 0 ? PowerText(context_.Power) : known_.OnlyPower();
    const std::size_t start = speakers_.Past(line.All, PastLineStart(line.All), known_.Names);
    if (IsUnclear(rows_.Lines.back()) &&
        BeginsWithUnit(Tokens(line.All).subspan(start), power, known_)) {
      return;
    }
    rows_.PassOverAside(line, aside.At, first, inSignature_);
    const Concern concern = ConcernOf(line.All, known_.Names, *known_.Game.Map);
    // "Ignore the fleet" above the first orders is said of those below it.
    const bool isAhead = aside.Scope == AsideScope::Above && !rows_.HoldsOrders(0) &&
                         NamesUnits(line.All, known_.Names);
    const AsideScope scope = isAhead ? AsideScope::Below : aside.Scope;
    rows_.Around.SetAside(scope, Quoted(line.Part(aside.At)) + " sets it aside",
                          line.Span(aside.At), context_.Power, concern, rows_.Lines, first);
    if (aside.Scope == AsideScope::Above) LeadToIfAsked(line);
    // "Next turn" right below orders may be of them, where it is no heading of others.
    const bool isOpen = aside.Scope == AsideScope::Below && !IsA(line.All.back(), TokenKind::Colon);
    if (!isOpen || !isBehindOrders) return;
    thoughts_ = Misgiving{Quoted(line.Part(aside.At)) + " may change it", line.Span(aside.At)};
    isHeading_ = true;
  }

  /// "What do you think of this?" above the first orders asks about those below it.
  bool LeadToIfAsked(const SourceLine& line) {
    if (rows_.HoldsOrders(0) || line.All.back().Text != "?") return false;
    rows_.Around.LeadTo(Quoted(line.All) + " leads to it", line.Span({0, line.All.size()}));
    return true;
  }

  bool ReadExact(const SourceLine& line) {
    const auto order = ReadExactLine(*known_.Game.Map, known_.Stage, line.Bytes);
    if (!order) return false;
    ReadLine& read = rows_.AddLine(line, context_.Power, LineKind::Order);
    read.Order = line.Bytes;
    read.Power = order->Power;
    read.Reason = known_.Objection(*order);
    read.ReasonPlace = read.Place;
    inSignature_ = false;
    return true;
  }

  void AddHeading(const SourceLine& line, const Heading& heading) {
    isTitle_ = true;
    inPress_ = false;
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
    rows_.Around.TakeHeading(heading.Power, Corrects(line.All), isOfOrders, rows_.Lines);
    rows_.AddLine(line, context_.Power, says ? LineKind::Heading : LineKind::PassedOver);
  }

  const KnownGame& known_;
  const ReadingOptions& options_;
  Context context_;
  Speakers speakers_;
  bool inSignature_ = false;
  bool inPress_ = false;
  bool inFooter_ = false;
  // Of the line that is being read.
  bool isMailHead_ = false;
  std::optional<Misgiving> thoughts_;  ///< second thoughts right above
  bool isApology_ = false;             ///< they may be no more than one for being late
  bool isHeading_ = false;             ///< they may be a heading as well
  bool isTitle_ = false;               ///< of words known to be those of headings
  Quotations quotations_;
  StruckLines struck_;
  Rows rows_;
};

}  // namespace

std::vector<ReadLine> ReadOrders(const model::GameState& game, std::string_view text,
                                 const ReadingOptions& options) {
  if (text.size() > TextBound) {
    throw model::FatalError("A text of orders has at most " + std::to_string(TextBound) +
                            " characters; this one has " + std::to_string(text.size()) + ".");
  }
  const PlaceNames& names = PlaceNamesOf(game.Map);
  const std::string orders = WithoutCheckLines(text);
  std::deque<SourceLine> cut = CutText(orders, options.Repairs, names);
  KnownGame known(game, names, game.Stage);
  std::vector<ReadLine> lines = TextReader(known, options).Read(cut);
  LearnMoves(lines, known);
  // What a support means may depend on moves that are written below it.
  known.IsLearnt = true;
  if (known.IsAsked) lines = TextReader(known, options).Read(cut);
  if (orders == text) return lines;
  // A check line in the midst of a line is blanked there, and yet written.
  for (ReadLine& line : lines)
    line.Written = text.substr(line.Place.Offset, line.Place.Length);
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
