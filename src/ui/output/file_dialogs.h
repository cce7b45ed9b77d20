#pragma once

#include "model/messages.h"
#include "ui/session/desk.h"

#include <QString>
#include <QWidget>

#include <filesystem>
#include <optional>
#include <vector>

class QMimeData;

namespace orb::ui {

struct OpenChoice {
  std::filesystem::path file;
  bool readOnly = false;
};

/// Asks for a game file to open; nothing when cancelled. Every dialog begins in the desk's folder.
std::optional<OpenChoice> askGameToOpen(QWidget* parent, const Desk& desk);

/// Asks which game file the game is to be compared with.
std::optional<std::filesystem::path> askGameToCompare(QWidget* parent, const Desk& desk);

/// Asks for a text file of orders; nothing when cancelled.
std::optional<std::filesystem::path> askOrdersToImport(QWidget* parent, const Desk& desk);

/// Asks for game files to animate; none when cancelled.
std::vector<std::filesystem::path> askGamesToAnimate(QWidget* parent, const Desk& desk);

/// Asks where to save the game and whether a file there may be replaced; nothing when cancelled.
std::optional<std::filesystem::path> askWhereToSave(QWidget* parent, const Desk& desk,
                                                    model::Messages& messages);

enum class ChangedFileChoice { Replace, SaveAs, Cancel };

/// Asks what becomes of a game whose file somebody else has changed since it was opened.
ChangedFileChoice askAboutChangedFile(QWidget* parent, const std::filesystem::path& file);

enum class ExportKind { Bitmap, Text, Orders, Animation, Page, Sheet };

/// Asks for the file to export to, whose name is taken as it stands, and whether one there may be
/// replaced; nothing when cancelled. The name that is proposed is that of a situation of the game.
std::optional<std::filesystem::path> askWhereToExport(QWidget* parent, ExportKind kind,
                                                      const Desk& desk,
                                                      const model::GameState& game,
                                                      model::Messages& messages);

/// Asks for a folder; nothing when cancelled.
std::optional<std::filesystem::path> askFolder(QWidget* parent, const QString& title,
                                               const Desk& desk);

/// A file name of the system for display.
QString displayPath(const std::string& file);

/// The same from the root of the system; empty for no name.
QString fullPath(const std::string& file);

/// The one local file that is dragged; empty when it is anything else.
QString draggedFile(const QMimeData& data);

}  // namespace orb::ui
