#include "model/errors.h"
#include "render/map_module.h"
#include "render/qt/animated_picture.h"
#include "render/qt/map_file.h"
#include "render/qt/qt_svg_material.h"

#include <QGuiApplication>

#include <array>
#include <exception>
#include <string>

namespace {

/// Drawing text needs an application object, of which there can be only one: that of the program,
/// where it has one, else one that stays, since whoever draws a map may draw another. It must not
/// ask for a display.
void ExpectApplication() {
  if (QCoreApplication::instance() != nullptr) return;
  // What the toolkit has to say about its surroundings is no message of this program.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static int argc = 1;
  static std::string name = "orbdraw";
  static std::array<char*, 2> argv{name.data(), nullptr};
  static const auto* const application = new QGuiApplication(argc, argv.data());
  static_cast<void>(application);
}

/// Makes a file's bytes with the toolkit at hand: false with a sentence for the user where it
/// throws.
template <class Work>
bool WithToolkit(std::string& result, Work work) {
  try {
    ExpectApplication();
    static auto& pictures = *new orb::render::PictureCache;
    result = work(pictures);
    return true;
  } catch (const std::exception& failure) {
    // No exception may leave the module: its types need not be those of the program.
    result = orb::model::SentenceOf(failure);
    return false;
  }
}

}  // namespace

extern "C" bool OrbDrawMap(const orb::render::MapRequest& request, std::string& result) {
  return WithToolkit(result, [&request](orb::render::PictureCache& pictures) {
    return orb::render::MapBytes(request.Game, request.Options, request.DataDirectory,
                                 request.PixelWidth, pictures, request.Format, request.Orders);
  });
}

extern "C" bool OrbDrawAnimation(const orb::render::AnimationRequest& request,
                                 std::string& result) {
  return WithToolkit(result, [&request](orb::render::PictureCache& pictures) {
    const int width = request.PixelWidth == 0 ? orb::render::AnimationWidth : request.PixelWidth;
    return orb::render::AnimationBytes(request.Replays, request.Options, request.DataDirectory,
                                       width, pictures, [](int, int) { return true; });
  });
}

extern "C" bool OrbWithSvgMaterial(const orb::render::SvgWork& work, std::string& result) {
  return WithToolkit(result, [&work](orb::render::PictureCache& pictures) {
    orb::render::QtSvgMaterial material(pictures);
    return work(material);
  });
}
