#include "ui/replay/animation_bar.h"

#include "ui/widgets/icons.h"

#include <QShortcut>
#include <QSignalBlocker>

namespace orb::ui {
namespace {

// Gap and width are in pixels.
constexpr int Gap = 4;
constexpr int SliderSteps = 1000;  ///< in a season
constexpr int SliderWidth = 60;
constexpr int SeasonStretch = 8;  ///< the slider gets the rest

QString tipWithKey(const QString& tip, int key) {
  return QStringLiteral("%1 (%2)").arg(tip, QKeySequence(key).toString(QKeySequence::NativeText));
}

void setTip(QPushButton& button, const QString& tip, int key) {
  button.setToolTip(tipWithKey(tip, key));
  button.setAccessibleName(tip);
}

}  // namespace

AnimationBar::AnimationBar(QWidget* parent) : QFrame(parent), m_row(new QHBoxLayout(this)) {
  setObjectName(QStringLiteral("fraAnimate"));
  setAccessibleName(tr("Animation"));
  // Taken when the animation begins, so that no key reaches a control of the game.
  setFocusPolicy(Qt::ClickFocus);
  m_row->setContentsMargins({});
  m_row->setSpacing(Gap);
  addButton(QStringLiteral("butAnimateFirst"), QStringLiteral("play-first"), tr("To the beginning"),
            Qt::Key_Home, &AnimationBar::first);
  addButton(QStringLiteral("butAnimateBack"), QStringLiteral("play-back"), tr("A season back"),
            Qt::Key_Left, &AnimationBar::back);
  m_play = addButton(QStringLiteral("butAnimatePlay"), QStringLiteral("play"), tr("Play"),
                     Qt::Key_Space, &AnimationBar::playOrStop);
  addButton(QStringLiteral("butAnimateForward"), QStringLiteral("play-forward"),
            tr("A season forward"), Qt::Key_Right, &AnimationBar::forward);
  addButton(QStringLiteral("butAnimateLast"), QStringLiteral("play-last"), tr("To the end"),
            Qt::Key_End, &AnimationBar::last);
  addSlider();
  addSpeeds();
  addTextButton(QStringLiteral("butAnimateExport"), tr("E&xport..."),
                tr("Saves the animation as a picture for mails and web pages"),
                &AnimationBar::exportWanted);
  addTextButton(QStringLiteral("butAnimateClose"), tr("&Close"),
                tipWithKey(tr("Back to the game"), Qt::Key_Escape), &AnimationBar::closed);
  auto* escape = new QShortcut(Qt::Key_Escape, this);
  connect(escape, &QShortcut::activated, this, &AnimationBar::closed);
}

/// The key does the same wherever the focus is in the window.
QPushButton* AnimationBar::addButton(const QString& name, const QString& icon, const QString& tip,
                                     int key, Command command) {
  QPushButton* button = newButton(name, {});
  button->setIcon(newIcon(icon));
  button->setFlat(true);
  const int side = fontMetrics().height() * 3 / 2;
  button->setIconSize({side, side});
  button->setFixedSize(side + 2 * Gap, side + 2 * Gap);
  button->setFocusPolicy(Qt::TabFocus);
  setTip(*button, tip, key);
  m_row->addWidget(button);
  auto* shortcut = new QShortcut(key, this);
  // A held space bar would start and stop in turn.
  shortcut->setAutoRepeat(key != Qt::Key_Space);
  connect(shortcut, &QShortcut::activated, this, command);
  connect(button, &QPushButton::clicked, this, command);
  return button;
}

void AnimationBar::addTextButton(const QString& name, const QString& caption, const QString& tip,
                                 Command command) {
  QPushButton* button = newButton(name, caption);
  button->setFocusPolicy(Qt::TabFocus);
  button->setToolTip(tip);
  m_row->addWidget(button);
  connect(button, &QPushButton::clicked, this, command);
}

void AnimationBar::addSlider() {
  m_slider = new QSlider(Qt::Horizontal);
  m_slider->setObjectName(QStringLiteral("sldAnimate"));
  m_slider->setAccessibleName(tr("Season"));
  m_slider->setTickPosition(QSlider::TicksBelow);
  m_slider->setTickInterval(SliderSteps);
  m_slider->setSingleStep(SliderSteps / 10);
  m_slider->setPageStep(SliderSteps);
  m_slider->setMinimumWidth(SliderWidth);
  m_slider->setFocusPolicy(Qt::TabFocus);
  connect(m_slider, &QSlider::valueChanged, this,
          [this](int value) { emit moved(static_cast<double>(value) / SliderSteps); });
  m_season = new ElidedLabel;
  m_season->setObjectName(QStringLiteral("lblAnimateSeason"));
  m_season->setTextFormat(Qt::PlainText);
  // As wide for every text, so that the slider stands still, but where there is no room for that
  // the window must not grow beyond its screen.
  m_season->setMinimumWidth(fontMetrics().horizontalAdvance(tr("Autumn 1901")));
  m_season->setMaximumWidth(
      fontMetrics().horizontalAdvance(tr("Autumn 1901, before adjustments ")));
  m_row->addSpacing(Gap);
  m_row->addWidget(m_slider, 1);
  m_row->addSpacing(Gap);
  m_row->addWidget(m_season, SeasonStretch);
}

void AnimationBar::addSpeeds() {
  m_speed = new QComboBox;
  m_speed->setObjectName(QStringLiteral("cboAnimateSpeed"));
  m_speed->setAccessibleName(tr("Speed"));
  m_speed->setToolTip(tr("How fast it plays"));
  m_speed->setFocusPolicy(Qt::TabFocus);
  // Multiples of the normal speed.
  for (const double speed : {0.5, 1.0, 2.0, 4.0})
    m_speed->addItem(QString::number(speed) + QChar(0x00D7), speed);
  m_speed->setCurrentIndex(1);
  m_row->addWidget(m_speed);
}

void AnimationBar::setSeasonCount(int count) {
  // Only the user's hand on the slider counts as a move.
  const QSignalBlocker quiet(m_slider);
  m_slider->setRange(0, count * SliderSteps);
}

void AnimationBar::showPosition(double position, const QString& season) {
  const QSignalBlocker quiet(m_slider);
  m_slider->setValue(qRound(position * SliderSteps));
  if (m_season->text() == season) return;
  m_season->setText(season);
  m_season->setToolTip(season);
  m_slider->setToolTip(season);
}

void AnimationBar::showPlaying(bool playing) {
  m_play->setIcon(newIcon(playing ? QStringLiteral("play-stop") : QStringLiteral("play")));
  setTip(*m_play, playing ? tr("Stop") : tr("Play"), Qt::Key_Space);
}

}  // namespace orb::ui
