#include "serve/request.h"

#include "json/rapid/situation_form.h"

#include "render/map_format.h"

#include <algorithm>
#include <array>

namespace orb::serve {
namespace {

using json::Node;

enum class Member : std::uint8_t {
  Format = 1,
  Version,
  Id,
  Command,
  Situation,
  Orders,
  Rules,
  Yes,
  Reasons,
  Compare,
  Blank,
  Title,
  Mode,
  CentreCount,
  Borders,
  CentreOwners,
  Width,
};
constexpr std::array<std::string_view, 17> MemberNames{json::FormatName,
                                                       json::VersionName,
                                                       "id",
                                                       "command",
                                                       json::SituationName,
                                                       "orders",
                                                       "rules",
                                                       "yes",
                                                       "reasons",
                                                       "compare",
                                                       "blank",
                                                       "title",
                                                       "mode",
                                                       "centreCount",
                                                       "borders",
                                                       "centreOwners",
                                                       "width"};

using Members = std::uint32_t;

constexpr Members Bit(int row) {
  return Members{1} << static_cast<unsigned>(row);
}

template <class... Some>
constexpr Members SetOf(Some... members) {
  return (Bit(static_cast<int>(members)) | ...);
}

/// A command and the members that it takes besides those that every request may have.
struct CommandRow {
  std::string_view Name;
  Members Takes;
};

constexpr Members Common = SetOf(Member::Format, Member::Version, Member::Id, Member::Command);

/// Rows as in the enumeration.
constexpr std::array Commands{
    CommandRow{"new", SetOf(Member::Blank, Member::Title)},
    CommandRow{"resolve", SetOf(Member::Situation, Member::Orders, Member::Rules, Member::Yes,
                                Member::Reasons, Member::Compare)},
    CommandRow{"next", SetOf(Member::Situation)},
    CommandRow{"possible", SetOf(Member::Situation)},
    CommandRow{"check", SetOf(Member::Situation, Member::Orders, Member::Rules)},
    CommandRow{"map", SetOf(Member::Situation, Member::Orders, Member::Mode, Member::CentreCount,
                            Member::Borders, Member::CentreOwners, Member::Width)},
};

const CommandRow& RowOf(Command command) {
  return Commands[static_cast<std::size_t>(command)];
}

Command CommandOf(const Node& node) {
  const auto* const found = std::ranges::find(Commands, node.Utf8(), &CommandRow::Name);
  if (found == Commands.end())
    node.Refuse("\"new\", \"resolve\", \"next\", \"possible\", \"check\" or \"map\"");
  return static_cast<Command>(found - Commands.begin());
}

session::Rules RulesOf(const Node& node) {
  if (const auto rules = session::RulesNamed(node.Utf8())) return *rules;
  node.Refuse("\"orb\" or \"usual\"");
}

settings::MapMode ModeOf(const Node& node) {
  if (const auto mode = settings::MapModeOf(node.Utf8())) return *mode;
  node.Refuse("\"colour3d\", \"colour\", \"grey\" or \"bw\"");
}

/// Order lines, any text: the checks of the stage say what is wrong with them.
std::vector<std::string> LinesOf(const Node& node) {
  std::vector<std::string> lines;
  node.Items([&](const Node& line) { lines.push_back(line.Text()); });
  return lines;
}

void TakeMember(Member which, const Node& node, Request& request) {
  switch (which) {
    case Member::Format:
      return json::ExpectFormat(node);
    case Member::Version:
      return json::ExpectVersion(node);
    case Member::Id:
      return;
    case Member::Command:
      request.Command = CommandOf(node);
      return;
    case Member::Situation:
      return json::TakeSituation(node, request.Situation.Game);
    case Member::Orders:
      request.Orders = LinesOf(node);
      return;
    case Member::Rules:
      request.Situation.Rules = RulesOf(node);
      return;
    case Member::Yes:
      request.Yes = node.Flag();
      return;
    case Member::Reasons:
      request.Reasons = node.Flag();
      return;
    case Member::Compare:
      request.Compare = node.Flag();
      return;
    case Member::Blank:
      request.IsBlank = node.Flag();
      return;
    case Member::Title:
      json::TakeStorable(node, request.Title.emplace());
      return;
    case Member::Mode:
      request.Map.Mode = ModeOf(node);
      return;
    case Member::CentreCount:
      request.Map.ShowCentreCount = node.Flag();
      return;
    case Member::Borders:
      request.Map.ColourBordersByOwner = node.Flag();
      return;
    case Member::CentreOwners:
      request.Map.ShowCentreOwners = node.Flag();
      return;
    case Member::Width:
      request.Width = static_cast<int>(node.Whole(1, render::MaxPixelWidth));
      return;
  }
}

/// "is not for the command": the first member that stands where it means nothing.
void ExpectNoOthers(const Node& node, const CommandRow& command) {
  node.MembersOf(MemberNames, [&](int row, const Node& member) {
    if ((Bit(row) & (Common | command.Takes)) == 0)
      member.Fail(std::string("means nothing to \"").append(command.Name).append("\""));
  });
}

}  // namespace

std::string_view NameOf(Command command) {
  return RowOf(command).Name;
}

std::string IdOf(const Node& request) {
  std::string id;
  request.WithMember("id", [&](const Node& node) {
    if (!node.IsText() && !node.IsWhole()) node.Refuse("a text or a whole number");
    id = node.Json();
  });
  return id;
}

void TakeRequest(const Node& node, Request& request) {
  Members taken = 0;
  node.MembersOf(MemberNames, [&](int row, const Node& member) {
    taken |= Bit(row);
    TakeMember(static_cast<Member>(row), member, request);
  });
  if ((taken & SetOf(Member::Command)) == 0) node.Fail("has no \"command\"");
  const CommandRow& command = RowOf(request.Command);
  if ((taken & ~(Common | command.Takes)) != 0) ExpectNoOthers(node, command);
  const Members needed = command.Takes & SetOf(Member::Situation);
  if ((taken & needed) != needed) node.Fail("has no \"situation\"");
}

}  // namespace orb::serve
