#include "model/map.h"

namespace orb::model {
namespace {

std::size_t Hash(std::string_view name) {
  // FNV-1a, 32 bits.
  std::uint32_t hash = 2166136261U;
  for (const char c : name)
    hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
  return (hash ^ hash >> 16) & 0xFF;
}

}  // namespace

void NameIndex::Insert(const Table<Province, ProvinceBound>& provinces, int row) {
  if (Find(provinces, provinces[row].Name) != 0) return;
  std::size_t slot = Hash(provinces[row].Name);
  while (slots_[slot] != 0)
    slot = (slot + 1) & 0xFF;
  slots_[slot] = static_cast<std::uint8_t>(row);
}

int NameIndex::Find(const Table<Province, ProvinceBound>& provinces, std::string_view name) const {
  for (std::size_t slot = Hash(name); slots_[slot] != 0; slot = (slot + 1) & 0xFF) {
    if (provinces[slots_[slot]].Name == name) return slots_[slot];
  }
  return 0;
}

int FindProvince(const Map& map, std::string_view name) {
  return map.Names.Find(map.Provinces, name);
}

void FixNames(const Map& map, std::string& text) {
  for (const NameFix& fix : map.NameFixes) {
    const auto position = text.find(fix.From);
    if (position != std::string::npos) text.replace(position, 3, fix.To);
  }
}

}  // namespace orb::model
