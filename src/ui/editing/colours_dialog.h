#pragma once

#include "ui/session/desk.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include <vector>

class QGridLayout;

namespace orb::ui {

class ColourSample;

/// Changes the two colours of every power: the fill of its units, and their outline and letters.
/// The map shows the choice at once, and a note warns of powers that are hard to tell apart, also
/// for colour-blind eyes.
class ColoursDialog : public QDialog {
  Q_OBJECT

 public:
  /// The desk must outlive the dialog.
  explicit ColoursDialog(Desk& desk, QWidget* parent = nullptr);

  /// Brings back the colours that were there when the dialog came up.
  void reject() override;

 private:
  /// One of a power's two colours.
  using Part = model::Colour model::Country::*;

  void layOut();
  void addPower(QGridLayout& grid, int power);
  QPushButton* newColourButton(int power, Part part, const QString& name, const QString& what);
  void chooseColour(int power, Part part, const QString& what);
  /// Gives the colours to the game, and shows what it has then: they may have been refused.
  void take(const model::CountryTable& colours);
  void showColours();

  /// A button and the colour that it shows and changes.
  struct ColourButton {
    QPushButton* button;
    int power;
    Part part;
  };

  Desk& m_desk;
  /// The colours to go back to when the dialog is cancelled.
  model::CountryTable m_before;
  model::CountryTable m_colours;
  std::vector<ColourSample*> m_samples;
  std::vector<ColourButton> m_buttons;
  QLabel* m_warning;
  QPushButton* m_defaults;
};

/// Lets the user change the powers' colours. Cancel changes nothing.
void editColours(Desk& desk, QWidget* parent);

}  // namespace orb::ui
