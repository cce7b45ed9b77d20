#pragma once

#include <QColor>
#include <QImage>

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace orb::render {

/// The colours, at most `count`, that show the pictures best: what covers much of them keeps its
/// own colour, the rest is averaged. The pictures have 32 bits a pixel.
std::vector<QRgb> ChooseColours(const std::vector<QImage>& pictures, std::size_t count);

/// A fixed set of colours in which each colour finds its nearest one. Answers are remembered: a map
/// has few colours and many pixels.
class Palette {
 public:
  /// 1 to 256 colours.
  explicit Palette(std::vector<QRgb> colours) : colours_(std::move(colours)) {}

  const std::vector<QRgb>& Colours() const { return colours_; }

  /// The position of the nearest colour, counted from 0.
  std::uint8_t IndexOf(QRgb colour);

 private:
  std::vector<QRgb> colours_;
  std::unordered_map<QRgb, std::uint8_t> known_;
};

}  // namespace orb::render
