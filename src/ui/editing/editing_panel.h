#pragma once

#include "ui/map/map_picture.h"
#include "ui/map/map_tool.h"
#include "ui/session/desk.h"

#include <QListWidget>
#include <QPushButton>
#include <QWidget>

#include <functional>
#include <string>
#include <vector>

namespace orb::ui {

/// How the panels for editing differ: in the names of their controls and in their texts.
struct EditingTexts {
  QString panel;
  QString list;
  QString heading;
  QString hint;  ///< what the mouse does
  QString undo;
  QString redo;
  QString done;
  QString help;
};

/// The common part of the two panels for editing: a list of what can be edited, so that everything
/// can be done without a mouse too, and buttons for the steps. The panel is also the tool of the
/// map next to it, and rings there what is selected in the list.
///
/// Every change is one step that can be taken back. The panel itself keeps no copy of the game: it
/// passes each step to the desk, and then shows what the desk holds.
class EditingPanel : public QWidget, public MapTool {
  Q_OBJECT

 public:
  /// Called when the panel has come up: the keyboard goes to the list.
  void startEditing();

 signals:
  /// For the status bar: why something was refused, or what a drag is about to do.
  void statusText(const QString& text);
  /// The caption of the help topic that is wanted.
  void helpWanted(const QString& topic);

 protected:
  /// An entry of the list. The key is 1 or more and no other entry's.
  struct Entry {
    int key;
    QString text;
    QIcon icon;
  };

  /// The desk and the map must outlive the panel.
  EditingPanel(Desk& desk, MapPicture& map, const EditingTexts& texts, QWidget* parent);

  Desk& desk() const { return m_desk; }
  const model::GameState& game() const { return m_desk.game(); }
  MapPicture& map() const { return m_map; }
  QListWidget& list() const { return *m_list; }

  /// Lays the panel out; the options may be null.
  void layOut(QWidget* options, const std::vector<QPushButton*>& commands);

  /// A key that does something wherever the keyboard goes to while the panel is shown.
  void addKey(const QKeySequence& key, const std::function<void()>& command);

  /// Takes a step; when it is refused it says so and returns false.
  bool edit(const std::function<std::string(model::GameState&)>& change);

  /// The key of the selected entry; 0: none is.
  int selected() const;
  void select(int key);

  /// Everything that can be edited, in the order of the list.
  virtual std::vector<Entry> entries() const = 0;
  /// Opens the dialog for the selected entry; does nothing when none is selected.
  virtual void openProperties() = 0;
  /// Called whenever another entry, or none, is selected, and after every change of the game.
  virtual void selectionChanged() = 0;

  /// Paints over the map while the panel is shown.
  virtual void paintOver(QPainter& painter, render::Surface& surface) = 0;

  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  // A hidden panel shows nothing; it catches up when it comes up.
  void showGame();
  void showEntries();
  /// The key of the entry in a row of the list, counted from 0.
  int keyOf(int row) const;

  Desk& m_desk;
  MapPicture& m_map;
  EditingTexts m_texts;
  QListWidget* m_list;
  QPushButton* m_undo;
  QPushButton* m_redo;
  QPushButton* m_done;
  QPushButton* m_help;
};

}  // namespace orb::ui
