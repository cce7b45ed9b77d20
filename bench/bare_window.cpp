// What the start of the window is held against: a window that decodes the map's bitmap and shows
// it, and nothing else.
#include "first_paint.h"

#include <QLabel>
#include <QPixmap>

int main(int argc, char* argv[]) {
  const QApplication application(argc, argv);
  QPixmap picture(QStringLiteral(ORB_SOURCE_DIR "/data/map.bmp"));
  picture.setDevicePixelRatio(2);
  QLabel window;
  window.setPixmap(picture);
  const orb::EndAfterFirstPaint end(window);
  window.show();
  return QApplication::exec();
}
