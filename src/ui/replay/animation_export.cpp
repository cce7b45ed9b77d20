#include "ui/replay/animation_export.h"

#include "render/qt/animated_picture.h"
#include "text/qt/text_codec.h"
#include "ui/output/file_dialogs.h"
#include "ui/session/attempt.h"

#include <QProgressDialog>

#include <algorithm>
#include <iterator>

namespace orb::ui {
namespace {

std::vector<history::Replay> replaysOf(const std::vector<history::ReplayPart>& parts) {
  std::vector<history::Replay> replays;
  std::transform(parts.begin(), parts.end(), std::back_inserter(replays),
                 [](const history::ReplayPart& part) { return part.Replay; });
  return replays;
}

void setUp(QProgressDialog& dialog) {
  dialog.setObjectName(QStringLiteral("frmAnimateExport"));
  dialog.setWindowTitle(text::ToQString(model::ProgramName));
  dialog.setLabelText(QObject::tr("Drawing the animation..."));
  dialog.setWindowModality(Qt::WindowModal);
  // At once, not only after some seconds as Qt would have it.
  dialog.setMinimumDuration(0);
  // Only the caller knows when it is over: after the last frame the file is still to be written.
  dialog.setAutoReset(false);
  dialog.setAutoClose(false);
  dialog.setValue(0);
}

}  // namespace

std::optional<std::filesystem::path> exportAnimation(std::vector<history::ReplayPart> parts,
                                                     const Desk& desk, model::Messages& messages,
                                                     QWidget* window) {
  const auto file =
      askWhereToExport(window, ExportKind::Animation, desk, parts.back().Replay.End, messages);
  if (!file) return std::nullopt;
  QProgressDialog dialog(window);
  setUp(dialog);
  const auto goesOn = [&dialog](int done, int all) {
    dialog.setMaximum(all);
    dialog.setValue(done);
    return !dialog.wasCanceled();
  };
  bool saved = false;
  const auto save = [&] {
    render::PictureCache pictures;
    // All frames alike, though the window below takes what comes while they are drawn.
    const settings::MapOptions options = desk.view().mapOptions;
    saved = render::SaveAnimation(replaysOf(parts), options, desk.dataDirectory(),
                                  render::AnimationWidth, pictures, *file, goesOn);
  };
  attempt(messages, save, [&] { dialog.reset(); });
  return saved ? file : std::nullopt;
}

}  // namespace orb::ui
