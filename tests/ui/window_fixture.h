#pragma once

#include "support/directories.h"
#include "ui/window/main_window.h"

#include <QAction>
#include <QImage>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace orb::tests {

/// A path as dialogs take it.
inline QString Shown(const std::filesystem::path& path) {
  return QString::fromStdString(path.string());
}

/// The whole window with a program directory and a configuration of its own.
class WindowTest : public testing::Test {
 protected:
  void SetUp() override { Open(); }

  /// Starts the program, again if it runs already.
  void Open(const std::filesystem::path& game = {});

  template <class Control>
  Control& Find(const char* name) const {
    auto* control = window_->findChild<Control*>(QLatin1String(name));
    if (control == nullptr) throw std::runtime_error(std::string("no control ") + name);
    return *control;
  }

  /// The texts of a list box.
  std::vector<std::string> Lines(const char* list) const;

  /// The panels that are shown of those of the four stages.
  std::string StagePanel() const;

  /// The map as it is drawn once every panel has its place.
  QImage Map() const;

  void Trigger(const char* action) const { Find<QAction>(action).trigger(); }

  static void Enter(const QString& order);

  /// Resolves the stage, and agrees to every warning after the one about this unit.
  static void Resolve(const QString& unordered = {});

  const std::filesystem::path examples_ = DataDirectory().parent_path() / "examples";
  TemporaryProgram program_;
  TemporaryDirectory directory_;
  std::unique_ptr<ui::MainWindow> window_;
};

}  // namespace orb::tests
