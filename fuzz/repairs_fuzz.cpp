#include "model/map.h"
#include "model/map_files.h"
#include "orders/exchange/read_orders.h"
#include "orders/exchange/text_repairs.h"
#include "support/fuzzing.h"

// The input is parted by NULs: a file of new names of places, one of repairs of texts, a text.

namespace orb::fuzz {
namespace {

void FixNames(std::string_view bytes, std::string_view text) {
  model::Map map;
  IsAccepted([&] { model::LoadNameFixes(bytes, "fixnames.dat", map); });
  Require(map.NameFixes.Count() <= model::NameFixBound, "too many names");
  const model::NameFixScan scan(map);
  const std::string before(text);
  std::string fixed = before;
  model::FixNames(map, fixed);
  Require(fixed.size() == before.size(), "a name of another length", fixed);
  Require(fixed == before || scan.Finds(before), "a name that is not found", fixed);
}

void RepairText(std::string_view bytes, std::string_view text) {
  std::vector<exchange::TextRepair> repairs;
  IsAccepted([&] { repairs = exchange::LoadTextRepairs(bytes, "fixpaste.dat"); });
  Require(repairs.size() <= exchange::TextRepairBound, "too many repairs");
  for (const exchange::TextRepair& repair : repairs)
    Require(!repair.From.empty(), "a repair of nothing", repair.To);
  std::vector<exchange::ReadLine> lines;
  IsAccepted([&] { lines = exchange::ReadOrders(StartingGame(), text, {"", repairs}); });
  for (const exchange::ReadLine& line : lines) {
    const std::size_t size = text.size();
    Require(line.Place.Offset <= size && line.Place.Length <= size - line.Place.Offset,
            "a line outside the text", line.Written);
  }
}

}  // namespace
}  // namespace orb::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto parts = orb::fuzz::Parts(orb::fuzz::Text(data, size), 3);
  orb::fuzz::FixNames(parts[0], parts[2]);
  orb::fuzz::RepairText(parts[1], parts[2]);
  return 0;
}
