#include "orders/exchange/slips.h"

#include <vector>

namespace orb::exchange {
namespace {

/// More slips in one order are no slips.
constexpr int MostSlips = 2;

/// The word with another one in its place.
std::vector<Token> WithWord(Tokens tokens, std::size_t at, const std::string& word) {
  std::vector<Token> changed(tokens.begin(), tokens.end());
  changed[at].SetWord(word);
  return changed;
}

class SlipReader {
 public:
  explicit SlipReader(const KnownGame& known) : known_(known) {}

  PartRead Read(Tokens tokens, const PartRead& failed, Context& context, int slipsLeft) {
    PartRead found;
    const std::size_t at = failed.Problem.At.Begin;
    if (!failed.Problem.IsNoPlace || slipsLeft == 0 || at >= tokens.size()) return found;
    const auto& near = known_.Names.Near(tokens[at].Text);
    const Context before = context;
    int possible = 0;
    for (const PlaceNames::NearPlace& place : near) {
      Context tried = before;
      const std::vector<Token> changed = WithWord(tokens, at, place.Word);
      PartRead read = ReadPart(changed, known_, tried);
      if (!IsUnderstood(read)) {
        // Only what is read further than before is worth another try.
        if (read.Problem.At.Begin <= at) continue;
        read = Read(changed, read, tried, slipsLeft - 1);
      }
      if (read.Kind != LineKind::Order || !IsPossible(read.Meant.All[0], known_)) continue;
      if (++possible > 1) return {};
      if (read.IsGuess) read.Doubt = "it is not said what the unit does";
      Note(tokens[at], place.Province, near, read);
      found = std::move(read);
      context = tried;
    }
    return found;
  }

 private:
  void Note(const Token& word, int province, const std::vector<PlaceNames::NearPlace>& near,
            PartRead& read) const {
    const auto nameOf = [&](int row) { return known_.Game.Map->Provinces[row].FullName; };
    std::string note = Quoted({&word, 1}).append(" is read as ").append(nameOf(province));
    for (const PlaceNames::NearPlace& other : near) {
      if (other.Province == province || !read.Doubt.empty()) continue;
      read.Doubt = note + ", and might be " + nameOf(other.Province);
    }
    read.ReadAs = read.ReadAs.empty() ? std::move(note) : note.append("; ").append(read.ReadAs);
  }

  const KnownGame& known_;
};

}  // namespace

PartRead ReadWithSlips(Tokens tokens, const PartRead& failed, const KnownGame& known,
                       Context& context) {
  return SlipReader(known).Read(tokens, failed, context, MostSlips);
}

}  // namespace orb::exchange
