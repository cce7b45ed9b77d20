#include "ui/widgets/notice_banner.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QPalette>

namespace orb::ui {

NoticeBanner::NoticeBanner(const QString& name, const QString& detailName, const QString& heading,
                           QWidget* window)
    : QFrame(window),
      m_heading(newHeading(heading)),
      m_detail(new ElidedLabel),
      m_row(new QHBoxLayout(this)) {
  setObjectName(name);
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  m_heading->setTextFormat(Qt::PlainText);
  m_detail->setObjectName(detailName);
  m_detail->setTextFormat(Qt::PlainText);
  m_row->setContentsMargins(m_row->contentsMargins().left(), 2, 2, 2);
  m_row->addWidget(m_heading);
  m_row->addWidget(m_detail, 1);
  window->installEventFilter(this);
  colour();
}

void NoticeBanner::setDetail(const QString& text) {
  m_detail->setText(text);
  m_detail->setToolTip(text);
}

QPushButton* NoticeBanner::addButton(const QString& name, const QString& caption,
                                     const QString& tip) {
  QPushButton* button = newButton(name, caption);
  button->setToolTip(tip);
  m_row->addWidget(button);
  return button;
}

void NoticeBanner::colour() {
  // Its own palette would hide a change of the theme.
  QPalette palette = QApplication::palette();
  palette.setColor(QPalette::Window, noticeColour(palette.color(QPalette::Window)));
  setPalette(palette);
}

void NoticeBanner::changeEvent(QEvent* event) {
  QFrame::changeEvent(event);
  if (event->type() == QEvent::ApplicationPaletteChange) colour();
}

void NoticeBanner::showEvent(QShowEvent* event) {
  QFrame::showEvent(event);
  // Before it is shown for the first time it does not hear of changes.
  colour();
}

/// What has the keyboard has had its chance before the key comes to the window.
bool NoticeBanner::eventFilter(QObject* watched, QEvent* event) {
  const bool escapes = event->type() == QEvent::KeyPress && !isHidden() &&
                       static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
  if (!escapes) return QFrame::eventFilter(watched, event);
  emit escaped();
  return true;
}

}  // namespace orb::ui
