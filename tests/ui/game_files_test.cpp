#include "model/files.h"
#include "model/game_file.h"
#include "support/boards.h"
#include "support/directories.h"
#include "ui/modal_script.h"
#include "ui/window_fixture.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QUrl>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace orb::tests {
namespace {

using testing::HasSubstr;

TEST_F(WindowTest, AGameThatCannotBeDrawnIsNotOpened) {
  model::GameState game = EmptyBoard("Spring", "retreats");
  game.Units.Append({"XXX", "A", "Lon", {}, {}, {}});
  const auto file = directory_.Write("strange.orb", model::FormatGameFile(game));
  const QImage map = Map();
  {
    const ModalScript answers(
        {FileChosen(QString::fromStdString(file.string())), [](QDialog& box) { box.reject(); }});
    Trigger("mnuFileOpen");
  }
  EXPECT_EQ(StagePanel(), "fraOrders");
  EXPECT_EQ(Map(), map);
}

TEST_F(WindowTest, WhatIsNoGameFileIsRefusedInASentenceAtOnce) {
  const std::filesystem::path pipe = directory_.Path() / "pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  const auto huge = directory_.Write("huge", "x");
  // A gap that takes no room on the disk.
  std::filesystem::resize_file(huge, 1'000'000'000'000);
  const std::vector<std::pair<std::filesystem::path, const char*>> cases{
      {pipe, "no ordinary file"},
      {"/dev/zero", "no ordinary file"},
      {huge, "larger than 100 MB"},
      {directory_.Path(), "directory"},
      {directory_.Write("notes", "Hello\n"), "notes"}};
  const QImage map = Map();
  for (const auto& [file, sentence] : cases) {
    const QString name = QString::fromStdString(file.string());
    const auto refused = [&, told = sentence](QDialog& box) {
      EXPECT_THAT(dynamic_cast<QMessageBox&>(box).text().toStdString(), HasSubstr(told));
      box.reject();
    };
    QElapsedTimer clock;
    clock.start();
    QMimeData dragged;
    dragged.setUrls({QUrl::fromLocalFile(name)});
    {
      const ModalScript answers({refused});
      QDragEnterEvent enter({}, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(window_.get(), &enter);
      QDropEvent drop({}, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(window_.get(), &drop);
    }
    if (std::string_view(sentence) == "no ordinary file") {
      const ModalScript answers({FileChosen(name), refused});
      Trigger("mnuFileImportOrders");
    }
    EXPECT_LT(clock.elapsed(), 5000) << name.toStdString();
  }
  EXPECT_EQ(Map(), map);
}

TEST_F(WindowTest, OpenBeginsWithTheFilterOfTheLastFileAndMayBeForReadingOnly) {
  const std::string game = model::ReadFile(examples_ / "1902-1-spring-2-retreats.orb");
  const auto open = [&](const char* filter, const char* name, bool readOnly) {
    const auto file = directory_.Write(name, game);
    const ModalScript answers({[&](QDialog& dialog) {
      const auto& files = dynamic_cast<QFileDialog&>(dialog);
      EXPECT_EQ(files.windowTitle(), Titled(" Open"));
      EXPECT_EQ(files.fileMode(), QFileDialog::ExistingFile);
      EXPECT_EQ(files.findChild<QLineEdit*>()->text(), "");
      EXPECT_EQ(files.findChild<QComboBox*>("fileTypeCombo")->currentText(), filter);
      files.findChild<QCheckBox*>("chkReadOnly")->setChecked(readOnly);
      FileChosen(QString::fromStdString(file.string()))(dialog);
    }});
    Trigger("mnuFileOpen");
    EXPECT_EQ(Find<QLabel>("lblFileName").text().toStdString(), file.string());
    EXPECT_EQ(Find<QAction>("mnuFileSave").isEnabled(), !readOnly);
    EXPECT_EQ(Find<QLabel>("lblReadOnly").isVisible(), readOnly);
  };
  open("Concordat files: *.orb", "Old.DAT", true);
  open("Data files: *.dat", "game.txt", false);
  open("All files: *.*", "a.dat.ORB", true);
  open("Concordat files: *.orb", "game", false);
  const auto kept = directory_.Write("kept.orb", game);
  std::filesystem::permissions(kept, std::filesystem::perms::owner_read);
  Open(kept);
  EXPECT_EQ(Find<QLabel>("lblReadOnly").isVisible(), ::geteuid() != 0) << "root writes everywhere";
}

TEST_F(WindowTest, SaveAsksProposesAndLowersTheName) {
  const auto taken = directory_.Write("game.orb", "old");
  const QString path = QString::fromStdString((directory_.Path() / "GAME.ORB").string());
  const QString question = QString::fromStdString(taken.string()) + " already exists.\nReplace it?";
  {
    const ModalScript answers({[](QDialog& dialog) {
      auto* files = qobject_cast<QFileDialog*>(&dialog);
      ASSERT_NE(files, nullptr);
      EXPECT_EQ(files->windowTitle(), Titled(" Save As"));
      EXPECT_EQ(files->acceptMode(), QFileDialog::AcceptSave);
      EXPECT_EQ(files->findChild<QLineEdit*>()->text(), "con_s01.orb");
      EXPECT_EQ(files->findChild<QComboBox*>("fileTypeCombo")->currentText(),
                "Concordat files: *.orb");
      files->reject();
    }});
    Trigger("mnuFileSave");
  }
  {
    const ModalScript answers({FileChosen(path), Answered(question, Qt::Key_Return),
                               FileChosen(path), Answered(question, Qt::Key_Y, Qt::AltModifier)});
    Trigger("mnuFileSaveAs");
  }
  EXPECT_EQ(Find<QLabel>("lblStatus").text().toStdString(),
            "The game is in " + taken.string() + ".");
  EXPECT_EQ(Find<QLabel>("lblFileName").text().toStdString(), taken.string());
  EXPECT_TRUE(Find<QLabel>("lblFileName").isVisible());
  EXPECT_GT(std::filesystem::file_size(taken), 100U);
  EXPECT_EQ(directory_.EntryCount(), 1);

  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(directory_.Path());
  Open("game.orb");
  const auto beginThere = [&](const char* command) {
    const ModalScript answers({[&](QDialog& dialog) {
      const QDir shown = dynamic_cast<QFileDialog&>(dialog).directory();
      EXPECT_EQ(shown, QDir(QString::fromStdString(directory_.Path().string()))) << command;
      dialog.reject();
    }});
    Trigger(command);
  };
  beginThere("mnuFileSaveAs");
  Resolve("ENG F(Lon)");
  Press(Qt::Key_N, Qt::AltModifier);
  EXPECT_EQ(Find<QLabel>("lblFileName").text(), "");
  for (const char* command : {"mnuFileSave", "mnuFileExportBMP", "mnuFileExportText"})
    beginThere(command);
  std::filesystem::current_path(before);
  Open();
  for (const char* command :
       {"mnuFileOpen", "mnuFileSaveAs", "mnuFileImportOrders", "mnuFileAnimate"})
    beginThere(command);
}

TEST_F(WindowTest, SaveAsksBeforeItReplacesWhatSomebodyElseHasWritten) {
  const auto file = directory_.Path() / "game.orb";
  const auto other = directory_.Path() / "other.orb";
  std::filesystem::copy_file(examples_ / "1901-2-autumn-0-start.orb", file);
  Open(file);
  Enter("FRA A(Mar) hold");
  const std::string theirs = model::ReadFile(examples_ / "1902-1-spring-0-start.orb");
  const auto save = [&](std::deque<ModalScript::Step> steps) {
    directory_.Write("game.orb", theirs);
    const ModalScript answers(std::move(steps));
    Trigger("mnuFileSave");
    return model::ReadFile(file);
  };
  const QString question = QString::fromStdString(
      file.string() +
      " was changed by another program since it was opened.\nReplace it with this game?");
  EXPECT_EQ(save({Answered(question, Qt::Key_Return)}), theirs) << "nothing is lost unawares";
  EXPECT_THAT(save({Answered(question, Qt::Key_R, Qt::AltModifier)}), HasSubstr("FRA A(Mar) hold"));
  EXPECT_EQ(save({Answered(question, Qt::Key_A, Qt::AltModifier),
                  FileChosen(QString::fromStdString(other.string()))}),
            theirs);
  EXPECT_THAT(model::ReadFile(other), HasSubstr("FRA A(Mar) hold"));
  EXPECT_EQ(Find<QLabel>("lblFileName").text().toStdString(), other.string());
  std::filesystem::remove(other);
  EXPECT_EQ(save({}), theirs);
  EXPECT_THAT(model::ReadFile(other), HasSubstr("FRA A(Mar) hold")) << "written anew";
}

}  // namespace
}  // namespace orb::tests
