#include "cli/draw_map.h"
#include "model/errors.h"
#include "render/qt/map_file.h"
#include "render/qt/qt_svg_material.h"

#include <QGuiApplication>

#include <exception>

namespace {

/// Makes a file's bytes with the toolkit at hand: false with a sentence for the user where it
/// throws.
template <class Work>
bool WithToolkit(std::string& result, Work work) {
  try {
    // What the toolkit has to say about its surroundings is no message of this program.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    // Drawing text needs an application object, and that one must not ask for a display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int argc = 1;
    char name[] = "orbctl";
    char* argv[] = {name, nullptr};
    const QGuiApplication application(argc, argv);
    orb::render::PictureCache pictures;
    result = work(pictures);
    return true;
  } catch (const std::exception& failure) {
    // No exception may leave the module: its types need not be those of the program.
    result = orb::model::SentenceOf(failure);
    return false;
  }
}

}  // namespace

extern "C" bool OrbDrawMap(const orb::cli::MapRequest& request, std::string& result) {
  return WithToolkit(result, [&request](orb::render::PictureCache& pictures) {
    return orb::render::MapBytes(request.Game, request.Options, request.DataDirectory,
                                 request.PixelWidth, pictures, request.Format, request.Orders);
  });
}

extern "C" bool OrbWithSvgMaterial(const orb::cli::SvgWork& work, std::string& result) {
  return WithToolkit(result, [&work](orb::render::PictureCache& pictures) {
    orb::render::QtSvgMaterial material(pictures);
    return work(material);
  });
}
