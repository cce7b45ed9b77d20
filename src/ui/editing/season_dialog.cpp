#include "ui/editing/season_dialog.h"

#include "text/qt/text_codec.h"
#include "ui/widgets/controls.h"
#include "ui/widgets/fixed_font.h"
#include "ui/widgets/spacing.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace orb::ui {
namespace {

// Gaps are in pixels, widths in letters of the font.
constexpr int ColumnGap = 24;
constexpr int TextColumns = 60;
constexpr int NameColumns = 24;

/// Where each power's name has its mnemonic.
constexpr std::array<int, model::CountryCount> Mnemonics = {0, 0, 0, 0, 3, 8, 0};

void addChoice(QComboBox& box, const QString& caption, const char* value) {
  box.addItem(caption, QString::fromLatin1(value));
}

/// A game file may hold any text here; one that is not among the choices becomes one of them.
void choose(QComboBox& box, std::string_view value) {
  const QString text = text::ToQString(value);
  if (box.findData(text) < 0) box.addItem(text, text);
  box.setCurrentIndex(box.findData(text));
}

std::string chosen(const QComboBox& box) {
  return text::ToBytes(box.currentData().toString()).value();
}

/// A label in a subdued colour; its text may come from a file and is never markup.
QLabel* newNote() {
  auto* note = new QLabel;
  note->setTextFormat(Qt::PlainText);
  note->setForegroundRole(QPalette::PlaceholderText);
  return note;
}

}  // namespace

SeasonDialog::SeasonDialog(const model::GameState& game, QWidget* parent)
    : QDialog(parent),
      m_game(game),
      m_title(new QLineEdit),
      m_season(new QComboBox),
      m_year(new QSpinBox),
      m_stage(new QComboBox),
      m_stageNote(newNote()),
      m_text(new FreeTextBox),
      m_lineCount(newNote()),
      m_hint(new QLabel),
      m_validator(new TextValidator(this)) {
  setWindowTitle(tr("Edit season"));
  std::generate(m_players.begin(), m_players.end(), [] { return new QLineEdit; });
  nameControls();
  QDialogButtonBox* buttons = newOkCancel(*this, tr("Editing"));

  auto* columns = new QHBoxLayout;
  columns->setSpacing(ColumnGap);
  auto* facts = new QVBoxLayout;
  facts->addLayout(newFactsColumn());
  facts->addStretch(1);
  columns->addLayout(facts);
  columns->addLayout(newTextColumn(), 1);
  auto* foot = new QHBoxLayout;
  foot->addWidget(m_hint, 1);
  foot->addWidget(buttons);
  auto* rows = new QVBoxLayout(this);
  rows->setSpacing(GroupGap);
  rows->addLayout(columns, 1);
  rows->addLayout(foot);
  showFacts();
  connectControls();
}

void SeasonDialog::nameControls() {
  setObjectName(QStringLiteral("frmSeason"));
  m_title->setObjectName(QStringLiteral("txtTitle"));
  m_season->setObjectName(QStringLiteral("cboSeason"));
  m_year->setObjectName(QStringLiteral("txtYear"));
  m_stage->setObjectName(QStringLiteral("cboStage"));
  m_stageNote->setObjectName(QStringLiteral("lblStageNote"));
  m_text->setObjectName(QStringLiteral("txtFreeText"));
  m_text->setAccessibleName(tr("Free text"));
  m_lineCount->setObjectName(QStringLiteral("lblLineCount"));
  m_hint->setObjectName(QStringLiteral("lblHint"));
  for (std::size_t i = 0; i < m_players.size(); ++i) {
    const model::Country& country = m_game.Countries[static_cast<int>(i) + 1];
    m_players[i]->setObjectName(QStringLiteral("txtPlayer") +
                                text::ToQString(country.Abbreviation));
  }
}

/// At the left everything short, in the order of the season's record; at the right the free text,
/// which takes whatever room there is.
QLayout* SeasonDialog::newFactsColumn() {
  m_title->setPlaceholderText(text::ToQString(model::DefaultTitle));
  m_title->setMinimumWidth(NameColumns * fontMetrics().averageCharWidth());
  addChoice(*m_season, tr("Spring"), "Spring");
  addChoice(*m_season, tr("Autumn"), "Autumn");
  addChoice(*m_stage, tr("Moves"), "moves");
  addChoice(*m_stage, tr("Retreats"), "retreats");
  addChoice(*m_stage, tr("Adjustments"), "adjustments");
  addChoice(*m_stage, tr("Finished"), "finished");
  // A game file keeps the year in 16 bits.
  m_year->setRange(std::numeric_limits<std::int16_t>::min(),
                   std::numeric_limits<std::int16_t>::max());

  auto* form = new QFormLayout;
  form->setVerticalSpacing(RowGap);
  form->setHorizontalSpacing(GroupGap);
  form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
  form->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  form->addRow(newHeading(tr("Game")));
  form->addRow(tr("&Title:"), m_title);
  form->addRow(tr("&Season:"), m_season);
  form->addRow(tr("&Year:"), m_year);
  form->addRow(tr("St&age:"), m_stage);
  form->addRow(QString(), m_stageNote);
  form->addRow(newHeading(tr("Players")));
  for (std::size_t i = 0; i < m_players.size(); ++i) {
    QString caption = text::ToQString(m_game.Countries[static_cast<int>(i) + 1].Name);
    form->addRow(caption.insert(Mnemonics[i], QLatin1Char('&')) + QLatin1Char(':'), m_players[i]);
  }
  return form;
}

QLayout* SeasonDialog::newTextColumn() {
  QLabel* heading = newHeading(tr("Free te&xt"));
  heading->setBuddy(m_text);
  // In a font of equal widths, as the report shows it, so that tables line up.
  m_text->setFont(fixedFont());
  // With large letters a small screen has no room for whole lines.
  m_text->setMinimumWidth(std::min(TextColumns * QFontMetrics(m_text->font()).averageCharWidth(),
                                   screen()->availableSize().width() / 2));
  auto* head = new QHBoxLayout;
  head->addWidget(heading);
  head->addStretch();
  head->addWidget(m_lineCount);
  auto* column = new QVBoxLayout;
  column->setSpacing(RowGap);
  column->addLayout(head);
  column->addWidget(m_text, 1);
  return column;
}

void SeasonDialog::showFacts() {
  const model::SeasonFacts facts = model::SeasonFactsOf(m_game);
  m_title->setText(text::ToQString(facts.Title));
  // A new title replaces the old one as it is typed.
  m_title->selectAll();
  choose(*m_season, facts.Season);
  m_year->setValue(facts.Year);
  choose(*m_stage, model::StageText(m_game));
  for (std::size_t i = 0; i < m_players.size(); ++i)
    m_players[i]->setText(text::ToQString(facts.PlayerNames[i]));
  m_text->setLines(facts.TextLines);
  tellStage();
  countLines();
}

void SeasonDialog::connectControls() {
  const auto clearHint = [this] { hint({}); };
  for (QLineEdit* box : findChildren<QLineEdit*>()) {
    // The spin box has a line edit of its own, with its own rules.
    if (box->parent() == m_year) continue;
    box->setValidator(m_validator);
    connect(box, &QLineEdit::textEdited, this, clearHint);
  }
  connect(m_text, &QPlainTextEdit::textChanged, this, clearHint);
  connect(m_text, &QPlainTextEdit::textChanged, this, &SeasonDialog::countLines);
  connect(m_validator, &TextValidator::refused, this, &SeasonDialog::hint);
  connect(m_text, &FreeTextBox::refused, this, &SeasonDialog::hint);
  connect(m_stage, &QComboBox::currentIndexChanged, this, &SeasonDialog::tellStage);
}

/// What the chosen stage means for the game as it stands.
void SeasonDialog::tellStage() {
  const model::Stage stage = model::StageOf(chosen(*m_stage));
  const auto dislodged =
      std::count_if(m_game.Units.begin(), m_game.Units.end(),
                    [](const model::Unit& unit) { return unit.Status == model::Dislodged; });
  QString note;
  if (stage == model::Stage::Retreats && dislodged == 0) {
    note = tr("No unit is dislodged.");
  } else if (stage != model::Stage::Retreats && dislodged > 0) {
    note = tr("Dislodged units stay: %1.").arg(dislodged);
  } else if (model::StageIsBefore(stage, m_game.Stage) && m_game.ReportLines.Count() > 0) {
    note = tr("The report will be emptied.");
  }
  m_stageNote->setText(note);
}

void SeasonDialog::countLines() {
  m_lineCount->setText(tr("%1 of %2 lines").arg(m_text->lineCount()).arg(model::TextLineBound));
}

void SeasonDialog::hint(const QString& text) {
  m_hint->setText(text);
}

model::SeasonFacts SeasonDialog::facts() const {
  model::SeasonFacts facts;
  facts.Title = bytesOf(*m_title);
  facts.Season = chosen(*m_season);
  facts.Year = static_cast<std::int16_t>(m_year->value());
  facts.Stage = model::StageOf(chosen(*m_stage));
  std::transform(m_players.begin(), m_players.end(), facts.PlayerNames.begin(),
                 [](const QLineEdit* box) { return bytesOf(*box); });
  facts.TextLines = m_text->lines();
  return facts;
}

void editSeason(Desk& desk, QWidget* parent) {
  SeasonDialog dialog(desk.game(), parent);
  if (dialog.exec() == QDialog::Accepted) desk.editSeason(dialog.facts());
}

}  // namespace orb::ui
