#include "ui/editing/colours_dialog.h"

#include "colour/colour_vision.h"
#include "colour/qt/colours.h"
#include "settings/map_options.h"
#include "text/qt/text_codec.h"
#include "ui/editing/colour_sample.h"
#include "ui/widgets/controls.h"
#include "ui/widgets/help_request.h"
#include "ui/widgets/spacing.h"

#include <QColorDialog>
#include <QGridLayout>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace orb::ui {
namespace {

// In pixels at 96 dpi.
constexpr QSize Swatch(44, 16);
/// The room for the warning is fixed: the dialog must not jump while a colour is being chosen.
constexpr qsizetype WarningLines = 4;

/// A rectangle of the colour, drawn at the screen's own resolution and framed, so that white shows.
QIcon swatch(const QColor& colour, const QPalette& palette, qreal ratio) {
  QPixmap picture(Swatch * ratio);
  picture.setDevicePixelRatio(ratio);
  picture.fill(colour);
  QPainter painter(&picture);
  painter.setPen(palette.color(QPalette::Mid));
  painter.drawRect(QRectF(QPointF(0.5, 0.5), QSizeF(Swatch) - QSizeF(1, 1)));
  return picture;
}

QString nameOf(colour::Vision eyes) {
  switch (eyes) {
    case colour::Vision::NoRed:
      return ColoursDialog::tr("red-blind");
    case colour::Vision::NoGreen:
      return ColoursDialog::tr("green-blind");
    case colour::Vision::NoBlue:
      return ColoursDialog::tr("blue-blind");
    default:
      return {};
  }
}

/// "France and Italy: for red-blind, green-blind eyes".
QString sentenceOn(const colour::AlikePowers& pair, const model::CountryTable& countries) {
  QString eyes = ColoursDialog::tr("for everybody");
  if (pair.Eyes.front() != colour::Vision::Normal) {
    QStringList names;
    for (const colour::Vision vision : pair.Eyes)
      names << nameOf(vision);
    eyes = ColoursDialog::tr("for %1 eyes").arg(names.join(QStringLiteral(", ")));
  }
  return ColoursDialog::tr("%1 and %2: %3")
      .arg(text::ToQString(countries[pair.First].Name),
           text::ToQString(countries[pair.Second].Name), eyes);
}

/// At most some lines; the last one counts the pairs that have none.
QString warningOn(const model::CountryTable& countries) {
  QStringList lines;
  for (const colour::AlikePowers& pair : colour::PowersAlike(countries))
    lines << sentenceOn(pair, countries);
  if (lines.isEmpty()) return ColoursDialog::tr("Everybody can tell the powers apart.");
  const qsizetype more = lines.size() - WarningLines;
  if (more > 0) {
    lines = lines.mid(0, WarningLines - 1);
    lines << ColoursDialog::tr("and %1 more pairs").arg(more + 1);
  }
  return ColoursDialog::tr("Hard to tell apart:") + QLatin1Char('\n') +
         lines.join(QLatin1Char('\n'));
}

}  // namespace

ColoursDialog::ColoursDialog(Desk& desk, QWidget* parent)
    : QDialog(parent),
      m_desk(desk),
      m_before(desk.game().Countries),
      m_colours(m_before),
      m_warning(new QLabel),
      m_defaults(newButton(QStringLiteral("butColoursDefaults"), tr("&Defaults"))) {
  setObjectName(QStringLiteral("frmColours"));
  setWindowTitle(tr("Unit colours"));
  layOut();
  connect(m_defaults, &QPushButton::clicked, this, [this] { take(model::FixedCountries()); });
  showColours();
  m_buttons.front().button->setFocus();
}

void ColoursDialog::layOut() {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(GroupGap);
  grid->setVerticalSpacing(RowGap);
  grid->addWidget(newHeading(tr("Power")), 0, 0);
  grid->addWidget(newHeading(tr("Fill")), 0, 2);
  grid->addWidget(newHeading(tr("Outline")), 0, 3);
  for (int power = 1; power <= model::CountryCount; ++power)
    addPower(*grid, power);
  m_warning->setObjectName(QStringLiteral("lblAlike"));
  m_warning->setTextFormat(Qt::PlainText);
  m_warning->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  m_warning->setFixedHeight((static_cast<int>(WarningLines) + 1) *
                            m_warning->fontMetrics().lineSpacing());
  QDialogButtonBox* buttons = newOkCancel(*this, tr("Colours and settings"));
  buttons->addButton(m_defaults, QDialogButtonBox::ResetRole);
  auto* rows = new QVBoxLayout(this);
  rows->setSpacing(GroupGap);
  rows->addLayout(grid);
  if (!settings::InColour(m_desk.view().mapOptions.Mode))
    rows->addWidget(new QLabel(tr("The map is drawn without these colours now.")));
  rows->addWidget(m_warning);
  rows->addStretch();
  rows->addWidget(buttons);
}

void ColoursDialog::addPower(QGridLayout& grid, int power) {
  const model::Country& country = m_colours[power];
  const QString name = text::ToQString(country.Name);
  const QString key = text::ToQString(country.Abbreviation);
  auto* sample = new ColourSample(m_colours, power);
  sample->setObjectName(QStringLiteral("picSample") + key);
  m_samples.push_back(sample);
  grid.addWidget(new QLabel(name), power, 0);
  grid.addWidget(sample, power, 1);
  grid.addWidget(newColourButton(power, &model::Country::Colour, QStringLiteral("butFill") + key,
                                 tr("Fill colour of %1").arg(name)),
                 power, 2);
  grid.addWidget(
      newColourButton(power, &model::Country::TextColour, QStringLiteral("butOutline") + key,
                      tr("Outline colour of %1").arg(name)),
      power, 3);
}

QPushButton* ColoursDialog::newColourButton(int power, Part part, const QString& name,
                                            const QString& what) {
  QPushButton* button = newButton(name, {});
  button->setAccessibleName(what);
  button->setIconSize(Swatch);
  connect(button, &QPushButton::clicked, this, [=, this] { chooseColour(power, part, what); });
  m_buttons.push_back({button, power, part});
  return button;
}

void ColoursDialog::chooseColour(int power, Part part, const QString& what) {
  // Cancelling the choice takes back one colour, cancelling the dialog all of them.
  const model::CountryTable before = m_colours;
  QColorDialog chooser(colour::ToQColor(m_colours[power].*part), this);
  // Qt's own dialog reports every colour that is tried, so that the map can follow.
  chooser.setOption(QColorDialog::DontUseNativeDialog);
  chooser.setWindowTitle(what);
  offerHelp(chooser, tr("Colours and settings"));
  connect(&chooser, &QColorDialog::currentColorChanged, this, [=, this](const QColor& colour) {
    model::CountryTable colours = m_colours;
    colours[power].*part = colour::ToColour(colour);
    take(colours);
  });
  if (chooser.exec() != QDialog::Accepted) take(before);
}

void ColoursDialog::take(const model::CountryTable& colours) {
  m_desk.setColours(colours);
  m_colours = m_desk.game().Countries;
  showColours();
}

void ColoursDialog::showColours() {
  for (ColourSample* sample : m_samples)
    sample->update();
  for (const auto& [button, power, part] : m_buttons) {
    const QColor colour = colour::ToQColor(m_colours[power].*part);
    button->setIcon(swatch(colour, palette(), devicePixelRatioF()));
    button->setToolTip(button->accessibleName() + QStringLiteral(": ") + colour.name());
  }
  m_warning->setText(warningOn(m_colours));
}

void ColoursDialog::reject() {
  m_desk.setColours(m_before);
  QDialog::reject();
}

void editColours(Desk& desk, QWidget* parent) {
  ColoursDialog dialog(desk, parent);
  dialog.adjustSize();
  // Beside the map where there is room, so that the map is seen to follow.
  const QRect around = parent->frameGeometry() & parent->screen()->availableGeometry();
  dialog.move(around.right() - dialog.width() - GroupGap,
              around.top() + std::max(0, (around.height() - dialog.height()) / 2));
  dialog.exec();
}

}  // namespace orb::ui
