#include "cli/delivery.h"

#include "model/errors.h"
#include "model/files.h"
#include "model/game_file.h"
#include "session/commands.h"
#include "text/encoding.h"

#include <fstream>
#include <string>
#include <system_error>

namespace orb::cli {

void DeliverText(Console& console, const std::filesystem::path& path, std::string_view text,
                 model::Existing existing) {
  if (path == StandardOutput) return console.Print(text);
  if (path == StandardError) return console.PrintToErr(text);
  const std::string bytes = console.ForFile(text);
  if (!IsDevice(path)) return model::ReplaceFile(path, bytes, existing);
  // A device or pipe cannot be replaced by a new file. Appending keeps what other games wrote
  // there.
  std::ofstream stream(path, std::ios::binary | std::ios::app);
  if (!stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush()) {
    throw model::FileError("Cannot write " + text::NameInText(path.string()) + ".");
  }
}

void DeliverBytes(Console& console, const std::filesystem::path& path, std::string_view bytes,
                  model::Existing existing) {
  if (path != StandardOutput) return model::ReplaceFile(path, bytes, existing);
  console.PrintBytes(bytes);
  console.Deliver();
}

void DeliverGame(Console& console, session::Situation& situation, const GamePaths& paths) {
  if (paths.Output == StandardOutput || paths.Existing == model::Existing::Kept) {
    return DeliverBytes(console, paths.Output, model::FormatGameFile(situation.Game),
                        paths.Existing);
  }
  session::SaveGameAs(situation, paths.Output);
}

void ExpectNothingToKeep(const GamePaths& paths) {
  if (paths.Existing != model::Existing::Kept) return;
  for (const auto* path : {&paths.Output, &paths.Report, &paths.Reasons}) {
    std::error_code ignored;
    if (path->empty() || IsStream(*path) || IsDevice(*path)) continue;
    if (std::filesystem::exists(*path, ignored)) model::FailForExisting(*path);
  }
}

void PrintHeading(Console& console, const GamePaths& paths) {
  if (!paths.HasHeading) return;
  console.Print("== ");
  console.PrintPath(paths.Game);
  console.Print("\n");
}

void PrintUnderHeading(Console& console, const GamePaths& paths, std::string_view text) {
  PrintHeading(console, paths);
  console.Print(text);
}

}  // namespace orb::cli
