#include "model/map.h"

namespace orb::model {
namespace {

constexpr std::size_t ExactLength = 8;

/// A number that differs for every two names of the same length up to ExactLength.
inline std::uint64_t NameCode(std::string_view name) {
  std::uint64_t code = name.size();
  for (const char c : name)
    code = code << 8 | static_cast<unsigned char>(c);
  return code;
}

/// The slot where the search for a name begins: the upper bits of a product are the well mixed.
std::size_t FirstSlot(std::uint64_t code) {
  return static_cast<std::size_t>(code * 0x9E3779B97F4A7C15U >> 56);
}

std::size_t NextSlot(std::size_t slot) {
  return (slot + 1) & 0xFF;
}

}  // namespace

void NameIndex::Insert(const Table<Province, ProvinceBound>& provinces, int row) {
  const std::string& name = provinces[row].Name;
  if (Find(provinces, name) != 0) return;
  const std::uint64_t code = NameCode(name);
  std::size_t slot = FirstSlot(code);
  while (slots_[slot] != 0)
    slot = NextSlot(slot);
  slots_[slot] = static_cast<std::uint8_t>(row);
  codes_[slot] = code;
}

int NameIndex::Find(const Table<Province, ProvinceBound>& provinces, std::string_view name) const {
  const std::uint64_t code = NameCode(name);
  // At most 90 of the 256 slots are taken: a search ends at a free one.
  for (std::size_t slot = FirstSlot(code); slots_[slot] != 0; slot = NextSlot(slot)) {
    if (codes_[slot] != code) continue;
    const std::string& known = provinces[slots_[slot]].Name;
    const bool found = known.size() == name.size() && (name.size() <= ExactLength || known == name);
    if (found) return slots_[slot];
  }
  return 0;
}

int FindProvince(const Map& map, std::string_view name) {
  return map.Names.Find(map.Provinces, name);
}

int ProvinceOf(const Map& map, std::string_view location) {
  return FindProvince(map, ProvinceName(location));
}

int ProvinceOf(const Map& map, int row) {
  return row == 0 ? 0 : ProvinceOf(map, map.Provinces[row].Name);
}

const std::string& LocationName(const Map& map, int row) {
  static const std::string none;
  return row == 0 ? none : map.Provinces[row].Name;
}

void FixNames(const Map& map, std::string& text) {
  for (const NameFix& fix : map.NameFixes) {
    const auto position = text.find(fix.From);
    if (position != std::string::npos) text.replace(position, FixLength, fix.To);
  }
}

NameFixScan::NameFixScan(const Map& map) : fixes_(map.NameFixes) {
  for (const NameFix& fix : fixes_)
    starts_[static_cast<unsigned char>(fix.From.front())] = true;
}

bool NameFixScan::FindsAt(const char* place) const {
  for (const NameFix& fix : fixes_) {
    const char* const from = fix.From.data();
    if (place[0] == from[0] && place[1] == from[1] && place[2] == from[2]) return true;
  }
  return false;
}

}  // namespace orb::model
