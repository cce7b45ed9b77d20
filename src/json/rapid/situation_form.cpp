#include "json/rapid/situation_form.h"

#include "model/map.h"
#include "model/record_file.h"
#include "model/unit_fields.h"

#include <algorithm>
#include <array>
#include <limits>

namespace orb::json {
namespace {

constexpr std::string_view Form = "orb";

using model::GameState;
using model::ProvinceState;
using model::Unit;

/// A text of a record and its name in JSON, for either way.
template <class Record>
struct TextMember {
  std::string_view Name;
  std::string Record::*Text;
};

constexpr std::array UnitTexts{
    TextMember<Unit>{"power", &Unit::Power},
    TextMember<Unit>{"type", &Unit::UnitType},
    TextMember<Unit>{"location", &Unit::Location},
    TextMember<Unit>{"status", &Unit::Status},
    TextMember<Unit>{"dislodgedFrom", &Unit::DislodgedFrom},
    TextMember<Unit>{"previousLocation", &Unit::PreviousLocation},
};

constexpr std::array ProvinceTexts{
    TextMember<ProvinceState>{"owner", &ProvinceState::Owner},
    TextMember<ProvinceState>{"previousOwner", &ProvinceState::PreviousOwner},
};
constexpr std::string_view Contested = "contested";

/// The names of a record's members: those of its texts, then any others.
template <class... Others>
constexpr auto NamesOf(const auto& texts, Others... others) {
  std::array<std::string_view, std::tuple_size_v<std::decay_t<decltype(texts)>> + sizeof...(others)>
      names{};
  auto next = names.begin();
  for (const auto& text : texts)
    *next++ = text.Name;
  ((*next++ = others), ...);
  return names;
}

enum class Member { Title = 1, Season, Year, Stage, Units, Provinces, Orders, Texts, Players };
constexpr std::array<std::string_view, 9> MemberNames{
    "title", "season", "year", "stage", "units", "provinces", "orders", "texts", "players"};

constexpr std::string_view NameOf(Member member) {
  return MemberNames[static_cast<std::size_t>(member) - 1];
}

template <class Record, std::size_t Count>
void WriteTexts(Output& out, const Record& record,
                const std::array<TextMember<Record>, Count>& texts) {
  for (const auto& member : texts)
    out.MemberUnlessEmpty(member.Name, record.*member.Text);
}

/// Locations about which there is nothing to say are left out.
void WriteProvinces(Output& out, const GameState& game) {
  for (int i = 1; i <= game.Map->Provinces.Count(); ++i) {
    const ProvinceState& province = game.Provinces[i];
    if (province.Owner.empty() && province.PreviousOwner.empty() && province.Uncontested) continue;
    out.Key(game.Map->Provinces[i].Name);
    out.Object([&] {
      WriteTexts(out, province, ProvinceTexts);
      out.MemberIfTrue(Contested, !province.Uncontested);
    });
  }
}

int CheckedLocation(const Node& node, const model::Map& map, std::string_view name) {
  const int row = model::FindProvince(map, name);
  if (row == 0) node.Refuse("a location of the map");
  return row;
}

void TakeUnit(const Node& node, const model::Map& map, Unit& unit) {
  static constexpr auto names = NamesOf(UnitTexts);
  unit = Unit();
  node.MembersOf(names, [&](int row, const Node& member) {
    std::string& text = unit.*UnitTexts[static_cast<std::size_t>(row) - 1].Text;
    TakeStorable(member, text);
    if (&text == &unit.Location) CheckedLocation(member, map, text);
    if (&text == &unit.Power && model::FindCountry(text) == 0)
      member.Refuse(model::ExpectedPower("a power"));
    if (&text == &unit.UnitType && text != "A" && text != "F") member.Refuse("\"A\" or \"F\"");
  });
  if (unit.Power.empty() || unit.UnitType.empty() || unit.Location.empty())
    node.Fail("lacks its power, its type or its location");
}

void TakeProvince(const Node& node, ProvinceState& province) {
  static constexpr auto names = NamesOf(ProvinceTexts, Contested);
  node.MembersOf(names, [&](int row, const Node& member) {
    const auto index = static_cast<std::size_t>(row) - 1;
    if (index == ProvinceTexts.size()) {
      province.Uncontested = !member.Flag();
    } else {
      TakeStorable(member, province.*ProvinceTexts[index].Text);
    }
  });
}

void TakeProvinces(const Node& node, GameState& game) {
  const auto rowOf = [&](const Node& member) {
    const int row = model::FindProvince(*game.Map, member.Name());
    if (row == 0) member.Fail("is no location of the map");
    return row;
  };
  node.Members(rowOf,
               [&](int row, const Node& member) { TakeProvince(member, game.Provinces[row]); });
}

void TakePlayers(const Node& node, GameState& game) {
  const auto rowOf = [](const Node& member) {
    const int row = model::FindCountry(member.Name());
    if (row == 0) member.Fail("is no power");
    return row;
  };
  node.Members(rowOf, [&](int row, const Node& member) {
    TakeStorable(member, game.Countries[row].PlayerName);
  });
}

/// Rows of a table, as far as there is room.
template <class Table, class Take>
void TakeRows(const Node& node, Table& table, const Take& take) {
  table.SetCount(node.Count(Table::Bound));
  auto row = table.begin();
  node.Items([&](const Node& item) { take(item, *row++); });
}

void TakeOrders(const Node& node, GameState& game) {
  // A game file has no more.
  game.OrdersList.resize(
      static_cast<std::size_t>(node.Count(std::numeric_limits<std::int16_t>::max())));
  auto line = game.OrdersList.begin();
  node.Items([&](const Node& item) { TakeStorable(item, *line++); });
}

void TakeStage(const Node& node, GameState& game) {
  TakeStorable(node, game.OtherStage);
  game.Stage = model::StageOf(game.OtherStage);
  if (game.Stage != model::Stage::Other) game.OtherStage.clear();
}

void TakeMember(Member which, const Node& node, GameState& game) {
  const auto takeLine = [](const Node& item, std::string& line) { TakeStorable(item, line); };
  using Year = std::numeric_limits<std::int16_t>;
  switch (which) {
    case Member::Title:
      return TakeStorable(node, game.Title);
    case Member::Season:
      return TakeStorable(node, game.Season);
    case Member::Year:
      game.Year = static_cast<std::int16_t>(node.Whole(Year::min(), Year::max()));
      return;
    case Member::Stage:
      return TakeStage(node, game);
    case Member::Units:
      return TakeRows(node, game.Units,
                      [&](const Node& item, Unit& unit) { TakeUnit(item, *game.Map, unit); });
    case Member::Provinces:
      return TakeProvinces(node, game);
    case Member::Orders:
      return TakeOrders(node, game);
    case Member::Texts:
      return TakeRows(node, game.TextLines, takeLine);
    case Member::Players:
      return TakePlayers(node, game);
  }
}

/// The situation that an empty object stands for.
void Clear(GameState& game) {
  game.Title.clear();
  game.Season.clear();
  game.Year = 0;
  game.Stage = model::Stage::Other;
  game.OtherStage.clear();
  game.Units.SetCount(0);
  for (ProvinceState& province : game.Provinces) {
    province.Owner.clear();
    province.PreviousOwner.clear();
    province.Uncontested = true;
  }
  for (model::Country& country : game.Countries)
    country.PlayerName.clear();
  game.TextLines.SetCount(0);
  game.OrdersList.clear();
  game.RetreatsList.clear();
  game.AdjustmentsList.clear();
  game.ReportLines.SetCount(0);
}

}  // namespace

void WriteForm(Output& out) {
  out.Member(FormatName, Form);
  out.Member(VersionName, FormVersion);
}

void TakeStorable(const Node& node, std::string& text) {
  node.TakeText(text);
  if (!std::ranges::all_of(text, model::IsStorable))
    node.Fail("has a double quote or a line end, which game files cannot hold");
}

void ExpectFormat(const Node& format) {
  if (format.Utf8() != Form) format.Refuse("\"orb\"");
}

void ExpectVersion(const Node& version) {
  version.Whole(FormVersion, FormVersion);
}

void WriteSituation(Output& out, const GameState& game) {
  out.Object([&] {
    out.Member(NameOf(Member::Title), game.Title);
    out.Member(NameOf(Member::Season), game.Season);
    out.Member(NameOf(Member::Year), game.Year);
    out.Member(NameOf(Member::Stage), StageText(game));
    out.Key(NameOf(Member::Units));
    out.Array(game.Units,
              [&](const Unit& unit) { out.Object([&] { WriteTexts(out, unit, UnitTexts); }); });
    out.Key(NameOf(Member::Provinces));
    out.Object([&] { WriteProvinces(out, game); });
    out.Texts(NameOf(Member::Orders), game.OrdersList);
    out.Texts(NameOf(Member::Texts), game.TextLines);
    out.Key(NameOf(Member::Players));
    out.Object([&] {
      for (const model::Country& country : game.Countries)
        out.MemberUnlessEmpty(country.Abbreviation, country.PlayerName);
    });
  });
}

void TakeSituation(const Node& situation, GameState& game) {
  Clear(game);
  int needed = 0;
  situation.MembersOf(MemberNames, [&](int row, const Node& member) {
    const auto which = static_cast<Member>(row);
    if (which <= Member::Units) ++needed;
    TakeMember(which, member, game);
  });
  if (needed < static_cast<int>(Member::Units))
    situation.Fail("lacks its title, season, year, stage or units");
}

}  // namespace orb::json
