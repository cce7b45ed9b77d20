#include "render/surface.h"

namespace orb::render {

void Surface::Clear() {
  PaintWhite();
  CurrentX = 0;
  CurrentY = 0;
}

void Surface::Print(std::string_view text) {
  DrawText({CurrentX, CurrentY}, text);
  CurrentX += TextWidth(text);
}

void Surface::PrintLine(std::string_view text) {
  DrawText({CurrentX, CurrentY}, text);
  CurrentX = 0;
  CurrentY += TextHeight(text);
}

}  // namespace orb::render
