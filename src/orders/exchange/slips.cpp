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
    const PlaceNames::NearPlace* first = nullptr;  // that can be meant
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
      const bool isSame = first != nullptr && read.Meant.All[0].Line == found.Meant.All[0].Line;
      if (isSame) continue;
      if (first != nullptr) {
        if (first->IsShort == place.IsShort) return {};
        // A slip might be meant as well, but the short form is no slip.
        found.Doubt = Quoted({&tokens[at], 1}) + " might be " + NameOf(place.Province);
        continue;
      }
      first = &place;
      if (read.IsGuess) read.Doubt = "it is not said what the unit does";
      Note(tokens[at], place, near, read);
      found = std::move(read);
      context = tried;
    }
    return found;
  }

 private:
  const std::string& NameOf(int province) const {
    return known_.Game.Map->Provinces[province].FullName;
  }

  void Note(const Token& word, const PlaceNames::NearPlace& place,
            const std::vector<PlaceNames::NearPlace>& near, PartRead& read) const {
    std::string note = Quoted({&word, 1}).append(" is read as ").append(NameOf(place.Province));
    for (const PlaceNames::NearPlace& other : near) {
      if (place.IsShort || other.Province == place.Province || !read.Doubt.empty()) continue;
      read.Doubt = note + ", and might be " + NameOf(other.Province);
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
