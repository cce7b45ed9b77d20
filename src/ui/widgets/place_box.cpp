#include "ui/widgets/place_box.h"

#include "text/qt/text_codec.h"
#include "text/strings.h"

#include <algorithm>
#include <vector>

namespace orb::ui {

void PlaceBox::offer(const model::Map& map,
                     const std::function<bool(std::string_view location)>& fits,
                     const QString& none) {
  std::vector<const model::Province*> places;
  for (const model::Province& place : map.Provinces) {
    if (fits(place.Name)) places.push_back(&place);
  }
  // Seas are written in capitals; the order is that of the letters alone.
  std::sort(places.begin(), places.end(), [](const auto* a, const auto* b) {
    return text::UpperCase(a->Name) < text::UpperCase(b->Name);
  });
  clear();
  if (!none.isEmpty()) addItem(none, QByteArray());
  for (const model::Province* place : places) {
    addItem(QStringLiteral("%1 \u2013 %2")
                .arg(text::ToQString(place->Name), text::ToQString(place->FullName)),
            QByteArray::fromStdString(place->Name));
  }
  setCurrentIndex(-1);
}

void PlaceBox::choose(const std::string& location) {
  const QByteArray wanted = QByteArray::fromStdString(location);
  // Shown without a full name, which the map does not know.
  if (findData(wanted) < 0 && !location.empty()) addItem(text::ToQString(location), wanted);
  setCurrentIndex(findData(wanted));
}

}  // namespace orb::ui
