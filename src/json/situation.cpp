#include "json/situation.h"

#include "json/rapid/situation_form.h"

#include <algorithm>
#include <array>

namespace orb::json {

std::string SituationText(const model::GameState& game) {
  Output out;
  out.Object([&] {
    WriteForm(out);
    out.Key(SituationName);
    WriteSituation(out, game);
  });
  return out.Taken();
}

void ReadSituation(std::string_view text, model::GameState& game) {
  const Document document(text);
  static constexpr std::array<std::string_view, 3> names{FormatName, VersionName, SituationName};
  // An answer has members besides, which say nothing about the situation.
  const auto rowOf = [](const Node& member) {
    const auto* const found = std::ranges::find(names, member.Name());
    return found == names.end() ? 0 : static_cast<int>(found - names.begin()) + 1;
  };
  bool isFound = false;
  document.Root().Members(rowOf, [&](int row, const Node& member) {
    if (row == 1) ExpectFormat(member);
    if (row == 2) ExpectVersion(member);
    if (row == 3) {
      TakeSituation(member, game);
      isFound = true;
    }
  });
  if (!isFound) document.Root().Fail("has no \"situation\"");
}

}  // namespace orb::json
