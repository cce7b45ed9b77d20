#include "orders/exchange/stem_table.h"

#include "orders/exchange/vocabulary.h"

namespace orb::exchange {
namespace {

constexpr std::size_t KeyLength = 2;

}  // namespace

void StemTable::Add(std::string_view words, unsigned bits) {
  for (std::string_view word : Parts(words, ' ')) {
    if (!word.ends_with('*')) {
      words_[word] |= bits;
      continue;
    }
    word.remove_suffix(1);
    stems_[word.substr(0, KeyLength)].emplace_back(word, bits);
  }
}

unsigned StemTable::BitsOf(std::string_view word) const {
  const auto found = words_.find(word);
  unsigned bits = found == words_.end() ? 0 : found->second;
  const auto stems = stems_.find(word.substr(0, KeyLength));
  if (stems == stems_.end()) return bits;
  for (const auto& [stem, more] : stems->second) {
    if (word.starts_with(stem)) bits |= more;
  }
  return bits;
}

}  // namespace orb::exchange
