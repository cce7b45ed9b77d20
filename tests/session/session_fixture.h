#pragma once

#include "model/position_edit.h"
#include "session/commands.h"
#include "session/session.h"
#include "support/boards.h"
#include "support/directories.h"
#include "support/scripted_messages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace orb::tests {

/// Files one order.
inline session::Command File(std::string order) {
  return [order](session::Situation& next) { return session::FileOrder(next, order); };
}

/// All that a command can change, as text.
inline std::string All(const session::Situation& situation) {
  std::string text = Describe(situation.Game);
  for (const session::ReportNote& note : situation.Notes)
    text += "\n" + note.Reason;
  return text + "\n" + std::to_string(situation.Outcomes.size()) +
         std::to_string(static_cast<int>(situation.Editing)) +
         (situation.ReadOnly ? " read only" : "") + (situation.Stopped ? " stopped" : "");
}

/// A new game, and the messages that its commands show.
class Session : public testing::Test {
 protected:
  Session() {
    session_.Run([](session::Situation& next) { session::NewGame(next, DataDirectory()); });
  }

  const session::Situation& Now() const { return session_.Now(); }
  const model::GameState& Game() const { return Now().Game; }

  session::Effect Resolve(std::vector<model::Answer> answers = {}) {
    messages_.emplace(std::move(answers));
    return session_.Run(
        [&](session::Situation& next) { return session::Resolve(next, *messages_); });
  }
  bool FileAll(const std::vector<std::string>& orders) {
    return std::ranges::all_of(
        orders, [&](const auto& order) { return session_.Run(File(order), {order}).Done; });
  }
  std::string Move(int unit, const char* to) {
    std::string refusal;
    const auto move = [&](session::Situation& next) {
      refusal = session::Edit(
          next, [&](model::GameState& game) { return model::MoveUnit(game, unit, to); });
      return refusal.empty();
    };
    session_.Run(move, {"move", session::StepKind::Edit});
    return refusal;
  }
  session::Effect Open(const std::filesystem::path& file, bool readOnly = true) {
    return session_.Run([&](session::Situation& next) {
      session::OpenGame(next, file, readOnly, DataDirectory(), *messages_);
    });
  }
  session::Effect SaveAs(const std::filesystem::path& file) {
    return session_.Run([&](session::Situation& next) { session::SaveGameAs(next, file); });
  }
  session::Effect Edit(session::Editing editing) {
    return session_.Run([&](session::Situation& next) { session::SetEditing(next, editing); });
  }
  session::Effect Undo() {
    return session_.Run(
        [&](session::Situation& next) { return session::UndoSeason(next, *messages_); });
  }

  session::Session session_{session::Situation{model::EmptyGame(RealMap())}};
  std::optional<ScriptedMessages> messages_{std::in_place};
  TemporaryDirectory directory_;
};

}  // namespace orb::tests
