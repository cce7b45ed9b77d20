#pragma once

#include "json/messages.h"

#include "model/errors.h"
#include "session/commands.h"
#include "session/situation.h"
#include "session/what_if.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <pybind11/pybind11.h>
#include <string>
#include <vector>

namespace orb::python {

/// A situation that nobody changes any more: games, their copies and their results share it.
using Shared = std::shared_ptr<const session::Situation>;

/// A stage that was resolved.
struct Resolution {
  Shared After;
  model::Stage Stage = model::Stage::Other;  ///< which was resolved
  std::vector<json::Message> Messages;
};

/// A question was answered No.
class Abandoned : public model::FatalError {
 public:
  Abandoned(const std::string& question, std::optional<int> stoppedAt)
      : FatalError(question), StoppedAt(stoppedAt) {}

  std::optional<int> StoppedAt;  ///< the line of the list, from 0
};

/// How a map is drawn.
struct Drawing {
  std::string Mode;
  int Width = 0;
  bool ShowsOrders = false;
  bool CentreCount = false;
  bool Borders = false;
  bool CentreOwners = false;
};

/// One game in Python's hands. Every command works on a copy and takes it over whole.
class Game {
 public:
  static Game New(const std::optional<std::string>& title, bool isBlank);
  static Game Read(const std::filesystem::path& file);
  static Game FromBytes(const std::string& bytes);
  static Game FromJson(const std::string& text);

  const session::Situation& Now() const { return *now_; }
  const model::GameState& State() const { return now_->Game; }

  void Save(const std::filesystem::path& file);
  std::string ToBytes() const;

  std::vector<std::string> Orders() const;
  void SetOrders(std::vector<std::string> lines);
  void SetTitle(std::string title);

  Resolution Resolve(std::optional<std::vector<std::string>> orders, const std::string& rules,
                     bool yes, bool reasons, bool compare);
  void NextSeason();
  void UndoSeason();

  /// The situation with these orders and rules, to ask about.
  session::Situation Asked(std::optional<std::vector<std::string>> orders,
                           const std::string& rules) const;

  /// The bytes of a picture.
  std::string Draw(const Drawing& drawing, bool isSvg) const;

 private:
  explicit Game(Shared now) : now_(std::move(now)) {}

  template <class Command>
  void Change(const Command& command);

  Shared now_;
};

/// Where the data files and the module that draws maps lie.
void SetHome(const std::filesystem::path& home);

}  // namespace orb::python
