#include "cli/draw_map.h"
#include "model/errors.h"
#include "render/qt/map_file.h"

#include <QGuiApplication>

#include <exception>

extern "C" bool OrbDrawMap(const orb::cli::MapRequest& request, std::string& result) {
  using namespace orb;
  try {
    // What the toolkit has to say about its surroundings is no message of this program.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    // Drawing text needs an application object, and that one must not ask for a display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int argc = 1;
    char name[] = "orbctl";
    char* argv[] = {name, nullptr};
    const QGuiApplication application(argc, argv);
    render::PictureCache pictures;
    result = render::MapBytes(request.Game, request.Options, request.DataDirectory,
                              request.PixelWidth, pictures, request.Format, request.Orders);
    return true;
  } catch (const std::exception& failure) {
    // No exception may leave the module: its types need not be those of the program.
    result = model::SentenceOf(failure);
    return false;
  }
}
