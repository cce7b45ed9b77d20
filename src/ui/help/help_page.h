#pragma once

#include <QTextBrowser>

namespace orb::ui {

/// The text of a help topic, in lines that are never too long to be read with ease, however wide
/// the window is.
class HelpPage : public QTextBrowser {
  Q_OBJECT

 public:
  explicit HelpPage(QWidget* parent = nullptr);

 protected:
  void resizeEvent(QResizeEvent* event) override;
};

}  // namespace orb::ui
