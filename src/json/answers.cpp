#include "json/answers.h"

#include "json/names.h"
#include "json/rapid/output.h"
#include "json/rapid/situation_form.h"

#include "model/counts.h"
#include "orders/order_list.h"
#include "session/commands.h"
#include "session/queries.h"
#include "text/encoding.h"

#include <algorithm>

namespace orb::json {
namespace {

using exchange::ReadLine;
using orders::OrderOutcome;

/// A text that came from outside, in either encoding.
void WriteGiven(Output& out, std::string_view name, std::string_view text) {
  out.Key(name);
  if (text::IsUtf8(text)) {
    out.Utf8(text);
  } else {
    out.Text(text);
  }
}

void WriteHeading(Output& out, const Heading& heading) {
  WriteForm(out);
  if (!heading.Request.empty()) {
    out.Key("id");
    out.Raw(heading.Request);
  }
  if (!heading.Command.empty()) out.Member("command", heading.Command);
  if (!heading.Game.empty()) WriteGiven(out, "game", heading.Game);
}

/// An array of objects, of which `write` writes the members.
template <class Items, class Write>
void WriteObjects(Output& out, std::string_view name, const Items& items, const Write& write) {
  out.Key(name);
  out.Array(items, [&](const auto& item) { out.Object([&] { write(item); }); });
}

/// Lines of message boxes are parted as in all JSON.
std::string WithLineFeeds(std::string text) {
  std::ranges::replace(text, '\r', '\n');
  return text;
}

void WriteMessages(Output& out, const NotedMessages& messages) {
  if (messages.All().empty()) return;
  WriteObjects(out, "messages", messages.All(), [&](const Message& message) {
    out.Member("text", WithLineFeeds(message.Text));
    if (message.Answer) out.Member("answer", *message.Answer);
  });
}

void WriteRemarks(Output& out, const Remarks& remarks) {
  WriteMessages(out, remarks.Messages);
  if (remarks.LeftOut.empty()) return;
  WriteObjects(out, "leftOut", remarks.LeftOut, [&](const ReadLine& line) {
    WriteGiven(out, "text", line.Written);
    WriteGiven(out, "reason", session::LeftOutReason(line));
  });
}

void WriteReport(Output& out, const session::Situation& situation) {
  out.Key("report");
  std::size_t row = 0;
  out.Array(situation.Game.ReportLines, [&](const std::string& line) {
    out.Object([&] {
      out.Member("text", line);
      if (row < situation.Notes.size()) {
        const session::ReportNote& note = situation.Notes[row];
        out.MemberIfTrue("failed", note.Failed);
        out.MemberUnlessEmpty("reason", note.Reason);
        if (!note.Locations.empty()) out.Texts("locations", note.Locations);
        out.MemberUnlessEmpty("otherwise", note.Otherwise);
      }
      ++row;
    });
  });
}

void WriteResults(Output& out, const std::vector<OrderOutcome>& outcomes) {
  WriteObjects(out, "results", outcomes, [&](const OrderOutcome& order) {
    out.Member("power", order.Power);
    out.MemberUnlessEmpty("type", order.UnitType);
    out.MemberUnlessEmpty("location", order.Location);
    out.Member("order", NameOf(order.Kind));
    out.MemberUnlessEmpty("otherLocation", order.OtherLocation);
    out.MemberUnlessEmpty("destination", order.Destination);
    out.MemberIfTrue("viaConvoy", order.ViaConvoy);
    out.MemberIfTrue("unordered", order.Unordered);
    out.Member("outcome", NameOf(order.Outcome));
  });
}

void WriteDifferences(Output& out, const session::Differences& differences) {
  WriteObjects(out, "differences", differences, [&](const session::Difference& difference) {
    if (difference.Line != 0) out.Member("reportLine", difference.Line - 1);
    out.MemberUnlessEmpty("order", difference.Text);
    out.MemberUnlessEmpty("here", difference.Here);
    out.Member("there", difference.There);
  });
}

void WriteLines(Output& out, const Checked& checked) {
  out.Key("orders");
  std::size_t row = 0;
  out.Array(orders::StageList(checked.Situation.Game), [&](const std::string& line) {
    out.Object([&] {
      out.Member("text", line);
      if (const auto& problems = checked.Check.Lines[row]; !problems.empty())
        out.Texts("problems", problems);
      out.MemberUnlessEmpty("otherwise", checked.OtherReadings[row]);
      ++row;
    });
  });
}

void WriteAlternatives(Output& out, std::string_view name,
                       const std::vector<session::Alternative>& alternatives) {
  WriteObjects(out, name, alternatives, [&](const session::Alternative& alternative) {
    out.Member("power", alternative.Power);
    out.Texts("orders", alternative.Orders);
    out.Member("reason", alternative.Sentence);
    out.Member("otherChanges", alternative.OtherChanges);
  });
}

/// One answer, whose members are written by `fill` behind the heading.
template <class Fill>
std::string Answer(const Heading& heading, bool isDone, const Fill& fill) {
  Output out;
  out.Object([&] {
    WriteHeading(out, heading);
    out.Member("done", isDone);
    fill(out);
  });
  return out.Taken();
}

}  // namespace

std::string ResolvedText(const Heading& heading, const Remarks& remarks, const Resolved& resolved) {
  return Answer(heading, resolved.IsDone, [&](Output& out) {
    const session::Situation& after = resolved.After;
    out.Member("rules", session::NameOf(after.Rules));
    out.Member("stage", model::StageName(resolved.Stage));
    out.Texts("orders", resolved.Orders);
    WriteRemarks(out, remarks);
    if (after.Stopped) out.Member("stoppedAt", after.Stopped->Row);
    if (!resolved.IsDone) return;
    WriteReport(out, after);
    WriteResults(out, after.Outcomes);
    if (resolved.IsCompared) WriteDifferences(out, after.Differences);
    out.Key(SituationName);
    WriteSituation(out, after.Game);
  });
}

std::string CheckedText(const Heading& heading, const Remarks& remarks, const Checked& checked) {
  return Answer(heading, true, [&](Output& out) {
    out.Member("rules", session::NameOf(checked.Situation.Rules));
    out.Member("stage", StageText(checked.Situation.Game));
    WriteRemarks(out, remarks);
    WriteLines(out, checked);
    out.Texts("unordered", checked.Check.Unordered);
    WriteObjects(out, "powers", checked.Check.Powers, [&](const auto& power) {
      out.Member("power", power.Power);
      out.Member("problem", power.Text);
    });
  });
}

std::string ListedText(const Heading& heading, const Listed& listed) {
  return Answer(heading, true, [&](Output& out) {
    out.Member("stage", StageText(listed.Situation.Game));
    WriteObjects(out, "choices", listed.Choices, [&](const session::Choices& choices) {
      out.Member("power", choices.Power);
      if (choices.Unit.empty()) {
        out.Member("due", choices.Due);
      } else {
        out.Member("unit", choices.Unit);
      }
      out.Texts("orders", choices.Orders);
    });
  });
}

std::string SearchedText(const Heading& heading, const Remarks& remarks, const Searched& searched) {
  return Answer(heading, true, [&](Output& out) {
    out.Member("rules", session::NameOf(searched.Question.Before.Rules));
    WriteRemarks(out, remarks);
    out.Member("order", searched.Question.Order);
    out.Member("reason", searched.Question.Sentence);
    WriteAlternatives(out, "alternatives", searched.Singles);
    if (searched.Pairs != nullptr) WriteAlternatives(out, "pairs", *searched.Pairs);
  });
}

std::string ShownText(const Heading& heading, const NotedMessages& messages,
                      const model::GameState& game) {
  return Answer(heading, true, [&](Output& out) {
    WriteMessages(out, messages);
    WriteObjects(out, "powers", game.Countries, [&](const model::Country& country) {
      const model::PowerCount count = model::CountPower(game, country.Abbreviation);
      out.Member("power", country.Abbreviation);
      out.Member("name", country.Name);
      out.Member("centres", count.Centres);
      out.Member("units", count.Units);
    });
    out.Key(SituationName);
    WriteSituation(out, game);
  });
}

std::string DifferenceText(const Heading& heading, const NotedMessages& messages,
                           std::string_view other,
                           const std::vector<letters::Correction>& corrections) {
  return Answer(heading, true, [&](Output& out) {
    WriteGiven(out, "other", other);
    WriteMessages(out, messages);
    WriteObjects(out, "corrections", corrections, [&](const letters::Correction& correction) {
      out.Member("subject", letters::NameOf(correction.Subject));
      out.MemberUnlessEmpty("about", correction.About);
      out.MemberUnlessEmpty("before", correction.Before);
      out.MemberUnlessEmpty("after", correction.After);
      out.Member("sentence", correction.Sentence);
    });
  });
}

std::string DrawnText(const Heading& heading, std::string_view svg) {
  return Answer(heading, true, [&](Output& out) {
    out.Key("svg");
    out.Utf8(svg);
  });
}

std::string RefusedText(const Heading& heading, const NotedMessages& messages,
                        std::string_view sentence) {
  return Answer(heading, false, [&](Output& out) {
    WriteMessages(out, messages);
    // What a message has told already is not said again.
    out.Member("error", sentence.empty() && !messages.All().empty()
                            ? WithLineFeeds(messages.All().back().Text)
                            : std::string(sentence));
  });
}

}  // namespace orb::json
