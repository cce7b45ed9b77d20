#include "pages/order_sheet.h"
#include "pages/season_page.h"

#include "model/errors.h"
#include "model/files.h"
#include "render/qt/qt_svg_material.h"
#include "session/files_beside.h"
#include "ui/output/export_commands.h"
#include "ui/output/file_dialogs.h"
#include "ui/output/file_proposals.h"
#include "ui/output/sheet_dialog.h"
#include "ui/session/attempt.h"

#include <algorithm>
#include <system_error>

namespace orb::ui {
namespace {

namespace fs = std::filesystem;

/// The map of a page is in the mode that is shown; counts stand beside it.
settings::MapOptions pageOptions(const View& view) {
  return {view.mapOptions.Mode, false, true, true};
}

}  // namespace

void ExportCommands::publish() {
  const auto file = askWhereToExport(m_window, ExportKind::Page, m_desk, m_desk.game(), m_messages);
  if (!file) return;
  attempt(m_messages, [&] {
    std::vector<pages::Source> sources;
    for (session::Situation& other : session::FilesBeside(m_desk.now()))
      sources.push_back({std::move(other)});
    const std::string count = std::to_string(sources.size());
    if (!sources.empty() && !m_messages.Warn("Beside this game lie " + count +
                                             " other files of it.\rPublish all its seasons?")) {
      sources.clear();
    }
    sources.push_back({m_desk.now()});
    render::QtSvgMaterial material(m_pictures);
    pages::Maps maps(material, pageOptions(m_desk.view()), m_desk.dataDirectory());
    model::ReplaceFile(*file, pages::SeasonPage(pages::SeasonsOf(std::move(sources)), maps));
    emit noted(tr("The page is in %1.").arg(displayPath(file->string())));
  });
}

void ExportCommands::makeOrderSheets() {
  SheetDialog dialog(m_window);
  if (dialog.exec() != QDialog::Accepted) return;
  if (!dialog.isForEach()) {
    const auto file =
        askWhereToExport(m_window, ExportKind::Sheet, m_desk, m_desk.game(), m_messages);
    if (file) attempt(m_messages, [&] { makeSheets({""}, dialog.address(), *file); });
    return;
  }
  const auto folder = askFolder(m_window, tr(" Order Sheets"), m_desk);
  if (!folder) return;
  std::vector<std::string> powers;
  for (const model::Country& country : m_desk.game().Countries)
    powers.push_back(country.Abbreviation);
  attempt(m_messages, [&] { makeSheets(powers, dialog.address(), *folder); });
}

void ExportCommands::makeSheets(const std::vector<std::string>& powers, const std::string& address,
                                const fs::path& path) {
  const auto fileOf = [&](const std::string& power) {
    return power.empty() ? path
                         : path / proposedExportFile(m_desk.game(), "_orders_" + power + ".html");
  };
  std::error_code ignored;
  const auto isTaken = [&](const std::string& power) {
    return !power.empty() && fs::exists(fileOf(power), ignored);
  };
  if (std::ranges::any_of(powers, isTaken) &&
      !m_messages.Warn("There are order sheets of this season in " + path.string() +
                       ".\rReplace them?")) {
    return;
  }
  render::QtSvgMaterial material(m_pictures);
  for (const std::string& power : powers) {
    pages::Maps maps(material, pageOptions(m_desk.view()), m_desk.dataDirectory());
    model::ReplaceFile(fileOf(power), pages::OrderSheet({m_desk.game(), power, address}, maps));
  }
  emit noted(powers.size() == 1
                 ? tr("The order sheet is in %1.").arg(displayPath(path.string()))
                 : tr("The order sheets are in %1.").arg(displayPath(path.string())));
}

}  // namespace orb::ui
