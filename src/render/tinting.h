#pragma once

#include "model/game_state.h"
#include "settings/map_options.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <span>
#include <vector>

// The lands of a background picture in other tints than it has. Which pixels are a land's tells the
// hit-test picture, and which tints there are the background itself: a power's is the colour that
// covers most of its home.

namespace orb::render {

class HitMap;

/// A tint of the background: that of unowned land or of the power 1..7.
using Tint = std::int8_t;
constexpr Tint Paper = 0;
constexpr Tint NoTint = -1;  ///< of the seas and of what is out of play
constexpr std::size_t TintCount = model::CountryCount + 1;

/// The tints of all locations, by row - 1.
struct Tinting {
  std::filesystem::path HitPicture;
  std::vector<Tint> Printed;  ///< in the background
  std::vector<Tint> Shown;
  bool AsPatterns = false;  ///< where the background has no tints to tell apart

  bool operator==(const Tinting&) const = default;
};

/// Lands in the tints of their owners. A land without a centre has none, but where it is somebody's
/// home it goes with the owner of most centres that touch it, in doubt with its home power.
Tinting TintByOwner(const model::GameState& game, const std::filesystem::path& dataDirectory,
                    settings::MapMode mode);

/// A picture in memory, row by row, its pixels 0xffRRGGBB.
struct PixelPicture {
  std::span<std::uint32_t> Pixels;
  int Width = 0, Height = 0;
};

/// The colours of the tints, 0xffRRGGBB.
using TintColourTable = std::array<std::uint32_t, TintCount>;

/// The background's colours for the tints, each the one that covers most of its lands; white for
/// those that it has no land of. The picture may be of any size.
TintColourTable TintColours(const PixelPicture& background, const HitMap& hitMap,
                            const Tinting& tinting);

/// Gives the lands in a picture of the background the tints to be shown. Lines keep their darkness.
void ApplyTints(const PixelPicture& picture, const HitMap& hitMap, const Tinting& tinting,
                const TintColourTable& colours);

}  // namespace orb::render
