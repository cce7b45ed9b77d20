#include "support/fuzzing.h"

#include "model/game_file.h"
#include "model/map_files.h"
#include "model/new_game.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <sys/mman.h>
#include <unistd.h>

namespace orb::fuzz {
namespace {

void DescribeLines(std::ostream& out, std::string_view name, const auto& lines) {
  out << name << ' ' << lines.end() - lines.begin() << '\n';
  for (const std::string& line : lines)
    out << line << '\n';
}

/// What reading a game does to the texts of one that was read before.
model::GameState WithNamesFixed(model::GameState game) {
  const auto fix = [&](std::string& text) { model::FixNames(*game.Map, text); };
  for (model::Unit& unit : game.Units) {
    fix(unit.Location);
    fix(unit.DislodgedFrom);
    fix(unit.PreviousLocation);
  }
  std::ranges::for_each(game.OrdersList, fix);
  std::for_each(game.TextLines.begin(), game.TextLines.end(), fix);
  game.RetreatsList.clear();
  game.AdjustmentsList.clear();
  game.ReportLines.SetCount(0);
  return game;
}

}  // namespace

void Require(bool holds, std::string_view what, std::string_view shown) {
  if (holds) return;
  std::cerr << "FINDING: " << what << '\n' << shown << '\n';
  std::abort();
}

std::vector<std::string_view> Parts(std::string_view input, std::size_t count) {
  std::vector<std::string_view> parts(count);
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t end = i + 1 < count ? input.find('\0') : std::string_view::npos;
    parts[i] = input.substr(0, end);
    input.remove_prefix(end < input.size() ? end + 1 : input.size());
  }
  return parts;
}

const std::shared_ptr<const model::Map>& RealMap() {
  static const std::shared_ptr<const model::Map> map = model::LoadMap(ORB_DATA_DIRECTORY);
  return map;
}

const model::GameState& StartingGame() {
  static const model::GameState start = [] {
    model::GameState game = model::EmptyGame(RealMap());
    model::NewGame(game, ORB_DATA_DIRECTORY);
    return game;
  }();
  return start;
}

std::string Described(const model::GameState& game) {
  std::ostringstream out;
  out << game.Title << '\n' << game.Season << '\n' << game.Year << '\n';
  out << static_cast<int>(game.Stage) << game.OtherStage << '\n' << game.FileName << '\n';
  for (const model::Unit& unit : game.Units) {
    out << unit.Power << ',' << unit.UnitType << ',' << unit.Location << ',' << unit.Status << ','
        << unit.DislodgedFrom << ',' << unit.PreviousLocation << '\n';
  }
  for (const model::ProvinceState& province : game.Provinces)
    out << province.Owner << ',' << province.Uncontested << ',' << province.PreviousOwner << '\n';
  for (const model::Country& country : game.Countries) {
    out << country.PlayerName << ',' << country.Colour << ',' << country.TextColour << '\n';
  }
  DescribeLines(out, "texts", game.TextLines);
  DescribeLines(out, "orders", game.OrdersList);
  DescribeLines(out, "retreats", game.RetreatsList);
  DescribeLines(out, "adjustments", game.AdjustmentsList);
  DescribeLines(out, "report", game.ReportLines);
  return std::move(out).str();
}

void CheckGame(const model::GameState& game) {
  Require(game.Units.Count() <= model::UnitBound, "too many units");
  Require(game.TextLines.Count() <= model::TextLineBound, "too many texts");
  Require(game.ReportLines.Count() <= model::ReportLineBound, "a report too long");
  Require(game.Provinces.Count() == game.Map->Provinces.Count(), "provinces not of the map");
  std::string bytes;
  Require(IsAccepted([&] { bytes = model::FormatGameFile(game); }), "cannot be written",
          Described(game));
  model::GameState again = model::EmptyGame(game.Map);
  again.FileName = game.FileName;
  for (int i = 1; i <= model::CountryCount; ++i) {
    again.Countries[i].Colour = game.Countries[i].Colour;
    again.Countries[i].TextColour = game.Countries[i].TextColour;
  }
  Require(IsAccepted([&] {
            Require(!model::ParseGameFile(bytes, "again", again), "an unknown place", bytes);
          }),
          "cannot be read again", bytes);
  const std::string expected = Described(WithNamesFixed(game));
  const std::string found = Described(again);
  Require(found == expected, "reads back otherwise", expected + "\n--- not\n" + found);
}

bool YesToAll::Warn(const std::string& text) {
  ++count_;
  last_ = text;
  return true;
}

model::Answer YesToAll::Ask(const std::string& text) {
  ++count_;
  last_ = text;
  return model::Answer::YesToAll;
}

void YesToAll::Show(const std::string& text, model::Icon /*icon*/) {
  ++count_;
  last_ = text;
}

MemoryFile::MemoryFile() : descriptor_(memfd_create("fuzz", 0)) {
  if (descriptor_ < 0) std::abort();
}

MemoryFile::~MemoryFile() {
  close(descriptor_);
}

void MemoryFile::Write(std::string_view bytes) const {
  const auto size = static_cast<ssize_t>(bytes.size());
  if (ftruncate(descriptor_, 0) != 0 || pwrite(descriptor_, bytes.data(), bytes.size(), 0) != size)
    std::abort();
}

std::filesystem::path MemoryFile::Path() const {
  return "/proc/self/fd/" + std::to_string(descriptor_);
}

}  // namespace orb::fuzz
