#include "render/qt/gif_writer.h"

#include "model/errors.h"

#include <algorithm>
#include <array>
#include <gif_lib.h>
#include <string_view>
#include <utility>

namespace orb::render {
namespace {

/// In hundredths of a second: the format has two bytes for it.
constexpr int LongestTime = 65535;
constexpr int ColourBits = 8;

/// The colour of pixels that stay as they are.
constexpr std::uint8_t StayingColour = GifWriter::MostColours;

/// What the GIF library calls to write: it collects the file in a text in memory.
int Append(GifFileType* file, const GifByteType* bytes, int count) {
  static_cast<std::string*>(file->UserData)
      ->append(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(count));
  return count;
}

using ColourMap = std::unique_ptr<ColorMapObject, decltype(&GifFreeMapObject)>;

/// The colour table, whose length the format wants to be a power of two; unused rows are black.
ColourMap MapOf(const std::vector<QRgb>& colours) {
  std::array<GifColorType, std::size_t{1} << ColourBits> table{};
  for (std::size_t i = 0; i < std::min(colours.size(), GifWriter::MostColours); ++i) {
    const QRgb colour = colours[i];
    table[i] = {static_cast<GifByteType>(qRed(colour)), static_cast<GifByteType>(qGreen(colour)),
                static_cast<GifByteType>(qBlue(colour))};
  }
  return {GifMakeMapObject(static_cast<int>(table.size()), table.data()), GifFreeMapObject};
}

const QRgb* RowOf(const QImage& picture, int y) {
  return reinterpret_cast<const QRgb*>(picture.constScanLine(y));
}

void Require(int status) {
  if (status != GIF_OK) throw model::FileError("The animation cannot be written as GIF.");
}

void WriteHeader(GifFileType* file, QSize size, const std::vector<QRgb>& colours) {
  EGifSetGifVersion(file, true);
  const ColourMap map = MapOf(colours);
  Require(EGifPutScreenDesc(file, size.width(), size.height(), ColourBits, 0, map.get()));
  // How browsers are told the number of repetitions, here 0 for no end.
  constexpr std::string_view name = "NETSCAPE2.0";
  constexpr std::array<GifByteType, 3> forEver = {1, 0, 0};
  Require(EGifPutExtensionLeader(file, APPLICATION_EXT_FUNC_CODE));
  Require(EGifPutExtensionBlock(file, static_cast<int>(name.size()), name.data()));
  Require(EGifPutExtensionBlock(file, static_cast<int>(forEver.size()), forEver.data()));
  Require(EGifPutExtensionTrailer(file));
}

}  // namespace

GifWriter::GifWriter(QSize size, Palette palette)
    : size_(size),
      palette_(std::move(palette)),
      indices_(static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height())),
      changes_(indices_.size()),
      pending_(indices_.size()) {
  constexpr int longestSide = 65535;
  Require(size.isEmpty() || std::max(size.width(), size.height()) > longestSide ? GIF_ERROR
                                                                                : GIF_OK);
  int error = 0;
  file_.reset(EGifOpen(bytes_.get(), Append, &error));
  Require(file_ == nullptr ? GIF_ERROR : GIF_OK);
  WriteHeader(file_.get(), size, palette_.Colours());
}

void GifWriter::Closing::operator()(GifFileType* file) const {
  EGifCloseFile(file, nullptr);
}

/// Fills the changes and returns the rectangle that holds them.
QRect GifWriter::FindChanges(const QImage& picture) {
  std::fill(changes_.begin(), changes_.end(), StayingColour);
  QRect part;
  for (int y = 0; y < size_.height(); ++y) {
    const QRgb* now = RowOf(picture, y);
    const QRgb* before = shown_.isNull() ? nullptr : RowOf(shown_, y);
    const auto row = static_cast<std::size_t>(y) * static_cast<std::size_t>(size_.width());
    for (int x = 0; x < size_.width(); ++x) {
      // Most pixels stay, so the palette is asked only about those that differ.
      if (before != nullptr && before[x] == now[x]) continue;
      const std::size_t at = row + static_cast<std::size_t>(x);
      const std::uint8_t index = palette_.IndexOf(now[x]);
      if (before != nullptr && indices_[at] == index) continue;
      indices_[at] = index;
      changes_[at] = index;
      part |= QRect(x, y, 1, 1);
    }
  }
  return part;
}

void GifWriter::Add(const QImage& picture, int hundredths) {
  // A background that was exchanged meanwhile changes the size of the map.
  Require(picture.size() == size_ ? GIF_OK : GIF_ERROR);
  const QRect part = FindChanges(picture);
  shown_ = picture;
  if (part.isEmpty()) {
    pendingTime_ += hundredths;
    return;
  }
  WritePending();
  pending_.swap(changes_);
  pendingPart_ = part;
  pendingTime_ = hundredths;
}

// A frame is written only when the next different one comes: until then its time may still grow.
void GifWriter::WritePending() {
  if (pendingPart_.isEmpty()) return;
  const GraphicsControlBlock control{DISPOSE_DO_NOT, false, std::min(pendingTime_, LongestTime),
                                     StayingColour};
  std::array<GifByteType, 4> block{};
  EGifGCBToExtension(&control, block.data());
  Require(EGifPutExtension(file_.get(), GRAPHICS_EXT_FUNC_CODE, static_cast<int>(block.size()),
                           block.data()));
  Require(EGifPutImageDesc(file_.get(), pendingPart_.left(), pendingPart_.top(),
                           pendingPart_.width(), pendingPart_.height(), false, nullptr));
  for (int y = pendingPart_.top(); y <= pendingPart_.bottom(); ++y) {
    const auto at = static_cast<std::size_t>(y) * static_cast<std::size_t>(size_.width()) +
                    static_cast<std::size_t>(pendingPart_.left());
    Require(EGifPutLine(file_.get(), &pending_[at], pendingPart_.width()));
  }
}

std::string GifWriter::Finish() {
  WritePending();
  Require(EGifCloseFile(file_.release(), nullptr));
  return std::move(*bytes_);
}

}  // namespace orb::render
