#include "ui/help/help_window.h"

#include "text/qt/text_codec.h"
#include "ui/help/help_page.h"
#include "ui/help/help_print.h"

#include <QEvent>
#include <QMenu>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTextDocument>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace orb::ui {
namespace {

// Gaps are in pixels; the window's size is given in letters and lines of text.
constexpr int Gap = 8;
constexpr int ItemGap = 3;
constexpr int FieldLetters = 30;
constexpr int PageLetters = 112;
constexpr int PageLines = 44;

QString topicOf(const help::HelpTopic& topic) {
  return text::ToQString(topic.Caption);
}

/// A button of the bar that shows an arrow, beside its text where it has one.
void setArrow(QToolBar& bar, QAction* command, Qt::ArrowType arrow, Qt::ToolButtonStyle style) {
  auto* button = qobject_cast<QToolButton*>(bar.widgetForAction(command));
  button->setArrowType(arrow);
  button->setToolButtonStyle(style);
  button->setAccessibleName(command->toolTip());
  button->setFocusPolicy(Qt::TabFocus);
}

}  // namespace

HelpWindow::HelpWindow(help::HelpTopics topics, QWidget* parent)
    : QWidget(parent, Qt::Window),
      m_topics(std::move(topics)),
      m_list(new QListWidget),
      m_page(new HelpPage),
      m_wanted(new QLineEdit),
      m_found(new QLabel),
      m_back(addCommand(QStringLiteral("mnuHelpBack"), tr("&Back"), {QKeySequence::Back},
                        &HelpWindow::goBack)),
      m_forward(addCommand(QStringLiteral("mnuHelpForward"), tr("&Forward"),
                           {QKeySequence::Forward}, &HelpWindow::goForward)),
      m_previous(addCommand(QStringLiteral("mnuHelpPrevious"), tr("Previous match"),
                            {QKeySequence(Qt::SHIFT | Qt::Key_F3)}, &HelpWindow::findPrevious)),
      m_next(addCommand(QStringLiteral("mnuHelpNext"), tr("Next match"), {QKeySequence(Qt::Key_F3)},
                        &HelpWindow::findNext)) {
  setObjectName(QStringLiteral("frmHelp"));
  setWindowTitle(tr("ORB Help"));
  for (const help::HelpTopic& topic : m_topics)
    m_list->addItem(topicOf(topic));
  layOut();
  connect(m_list, &QListWidget::currentRowChanged, this, [this](int row) { visit(row, false); });
  connect(m_page, &HelpPage::anchorClicked, this, &HelpWindow::followLink);
  connect(m_wanted, &QLineEdit::textChanged, this, &HelpWindow::search);
  connect(m_wanted, &QLineEdit::returnPressed, this, &HelpWindow::findNext);
  // These two keys have no button.
  new QShortcut(QKeySequence::Cancel, this, this, &QWidget::close);
  new QShortcut(QKeySequence::Find, this, this, &HelpWindow::startSearch);
  restyle();
}

QAction* HelpWindow::addCommand(const QString& name, const QString& text,
                                const QList<QKeySequence>& keys, void (HelpWindow::*slot)()) {
  auto* command = new QAction(text, this);
  command->setObjectName(name);
  command->setShortcuts(keys);
  command->setToolTip(QStringLiteral("%1 (%2)").arg(
      QString(text).remove(QLatin1Char('&')), keys.first().toString(QKeySequence::NativeText)));
  connect(command, &QAction::triggered, this, slot);
  addAction(command);
  return command;
}

QToolBar* HelpWindow::newBar() {
  auto* bar = new QToolBar;
  bar->setAccessibleName(tr("Help commands"));
  bar->addActions({m_back, m_forward});
  setArrow(*bar, m_back, Qt::LeftArrow, Qt::ToolButtonTextBesideIcon);
  setArrow(*bar, m_forward, Qt::RightArrow, Qt::ToolButtonTextBesideIcon);
  bar->addSeparator();
  addPrintMenu(*bar);
  auto* gap = new QWidget;
  // A toolbar has no stretch; an empty widget pushes the search to the right.
  gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  bar->addWidget(gap);
  addSearch(*bar);
  return bar;
}

void HelpWindow::addPrintMenu(QToolBar& bar) {
  QAction* topic = addCommand(QStringLiteral("mnuHelpPrint"), tr("&Print..."),
                              {QKeySequence::Print}, &HelpWindow::printTopic);
  auto* button = new QToolButton;
  button->setObjectName(QStringLiteral("butHelpPrint"));
  button->setAccessibleName(tr("Print"));
  button->setDefaultAction(topic);
  button->setFocusPolicy(Qt::TabFocus);
  button->setPopupMode(QToolButton::MenuButtonPopup);
  auto* menu = new QMenu(button);
  menu->addAction(tr("Print this &topic..."), this, &HelpWindow::printTopic);
  menu->addAction(tr("Print &all topics..."), this, &HelpWindow::printAllTopics);
  button->setMenu(menu);
  bar.addWidget(button);
}

void HelpWindow::addSearch(QToolBar& bar) {
  m_found->setObjectName(QStringLiteral("lblHelpFound"));
  m_found->setContentsMargins(0, 0, Gap, 0);
  m_found->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  // Wide enough for the longest text, so that the field does not move while one types.
  m_found->setMinimumWidth(fontMetrics().horizontalAdvance(tr("not found")) + 20);
  m_wanted->setObjectName(QStringLiteral("txtHelpFind"));
  m_wanted->setAccessibleName(tr("Find in all topics"));
  m_wanted->setPlaceholderText(tr("Find in all topics"));
  m_wanted->setClearButtonEnabled(true);
  m_wanted->setMaximumWidth(FieldLetters * fontMetrics().averageCharWidth());
  bar.addWidget(m_found);
  bar.addWidget(m_wanted);
  bar.addActions({m_previous, m_next});
  setArrow(bar, m_previous, Qt::UpArrow, Qt::ToolButtonIconOnly);
  setArrow(bar, m_next, Qt::DownArrow, Qt::ToolButtonIconOnly);
}

void HelpWindow::layOut() {
  m_list->setObjectName(QStringLiteral("lstHelpTopics"));
  m_list->setAccessibleName(tr("Topics"));
  m_list->setFrameShape(QFrame::NoFrame);
  m_list->setSpacing(ItemGap);
  m_page->setObjectName(QStringLiteral("txtHelpPage"));
  auto* halves = new QSplitter;
  halves->addWidget(m_list);
  halves->addWidget(m_page);
  halves->setStretchFactor(1, 1);
  halves->setChildrenCollapsible(false);
  const QFontMetrics letters = fontMetrics();
  // The number of matches is added to the captions later.
  const int listWidth =
      m_list->sizeHintForColumn(0) + letters.horizontalAdvance(tr(" (88)")) + 4 * ItemGap;
  const int pageWidth = PageLetters * letters.averageCharWidth();
  halves->setSizes({listWidth, pageWidth});
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->setSpacing(0);
  column->addWidget(newBar());
  column->addWidget(halves, 1);
  const QSize preferred(listWidth + pageWidth, PageLines * letters.lineSpacing());
  resize(preferred.boundedTo(screen()->availableSize()));
  // The arrow keys scroll the text at once.
  m_page->setFocus();
}

void HelpWindow::showTopic(const QString& caption) {
  for (int topic = 0; topic < topicCount(); ++topic) {
    if (topicOf(m_topics[static_cast<std::size_t>(topic)]) != caption) continue;
    visit(topic, false);
    break;
  }
  if (m_history.here().topic < 0 && topicCount() > 0) visit(0, false);
  // A window that was minimized or lies below others must be seen to answer.
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

void HelpWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  const auto type = event->type();
  if (type == QEvent::PaletteChange || type == QEvent::FontChange) restyle();
}

void HelpWindow::visit(int topic, bool found) {
  if (topic < 0 || topic == m_history.here().topic) return;
  // Going back leads to the line that was being read.
  m_history.here().scroll = m_page->verticalScrollBar()->value();
  m_history.visit({topic, 0, found});
  showHere();
}

void HelpWindow::goBack() {
  m_history.here().scroll = m_page->verticalScrollBar()->value();
  m_history.goBack();
  showHere();
}

void HelpWindow::goForward() {
  m_history.here().scroll = m_page->verticalScrollBar()->value();
  m_history.goForward();
  showHere();
}

void HelpWindow::followLink(const QUrl& link) {
  visit(link.path().toInt(), false);
}

void HelpWindow::showHere() {
  m_back->setEnabled(m_history.canGoBack());
  m_forward->setEnabled(m_history.canGoForward());
  const HelpPlace place = m_history.here();
  if (place.topic < 0) return;
  m_list->setCurrentRow(place.topic);
  const help::HelpTopic& topic = m_topics[static_cast<std::size_t>(place.topic)];
  m_page->setHtml(helpHtml(topic, m_topics, helpLook(palette(), m_page->font())));
  m_page->setAccessibleName(topicOf(topic));
  m_page->verticalScrollBar()->setValue(place.scroll);
  showMatches();
}

void HelpWindow::restyle() {
  m_history.here().scroll = m_page->verticalScrollBar()->value();
  m_texts.clear();
  for (const help::HelpTopic& topic : m_topics) {
    QTextDocument document;
    // The search needs the text as the page counts its characters, without markup.
    document.setHtml(helpHtml(topic, m_topics, helpLook(palette(), m_page->font())));
    m_texts.push_back(document.toPlainText());
  }
  showHere();
}

void HelpWindow::startSearch() {
  m_wanted->setFocus();
  m_wanted->selectAll();
}

void HelpWindow::search(const QString& wanted) {
  m_matches = findInHelp(m_texts, wanted);
  m_match = -1;
  showMatchCounts();
  // The first match is looked for from the topic being read, not from the first topic.
  const auto fromHere =
      std::find_if(m_matches.begin(), m_matches.end(),
                   [&](const HelpMatch& match) { return match.topic >= m_history.here().topic; });
  goToMatch(fromHere == m_matches.end() ? 0 : static_cast<int>(fromHere - m_matches.begin()));
}

void HelpWindow::goToMatch(int match) {
  const int count = static_cast<int>(m_matches.size());
  if (count == 0) return showMatches();
  m_match = (match + count) % count;
  const HelpMatch& goal = m_matches[static_cast<std::size_t>(m_match)];
  visit(goal.topic, true);
  QTextCursor cursor(m_page->document());
  cursor.setPosition(goal.start);
  m_page->setTextCursor(cursor);
  m_page->ensureCursorVisible();
  showMatches();
}

void HelpWindow::showMatches() {
  QList<QTextEdit::ExtraSelection> marks;
  for (std::size_t i = 0; i < m_matches.size(); ++i) {
    const HelpMatch& match = m_matches[i];
    if (match.topic != m_history.here().topic) continue;
    const bool current = static_cast<int>(i) == m_match;
    QTextEdit::ExtraSelection mark;
    mark.cursor = QTextCursor(m_page->document());
    mark.cursor.setPosition(match.start);
    mark.cursor.setPosition(match.start + match.length, QTextCursor::KeepAnchor);
    mark.format.setBackground(current ? QColor(0xff, 0xb3, 0x3c) : QColor(0xff, 0xe9, 0xa8));
    // The marker's yellow is light in every theme.
    mark.format.setForeground(Qt::black);
    marks << mark;
  }
  m_page->setExtraSelections(marks);
  m_previous->setEnabled(!m_matches.empty());
  m_next->setEnabled(!m_matches.empty());
  const bool asked = !m_wanted->text().trimmed().isEmpty();
  const QString none = asked ? tr("not found") : QString();
  m_found->setText(m_matches.empty() ? none
                                     : tr("%1 of %2").arg(m_match + 1).arg(m_matches.size()));
}

void HelpWindow::showMatchCounts() {
  for (int topic = 0; topic < topicCount(); ++topic) {
    const auto count = std::count_if(m_matches.begin(), m_matches.end(),
                                     [&](const HelpMatch& match) { return match.topic == topic; });
    const QString caption = topicOf(m_topics[static_cast<std::size_t>(topic)]);
    m_list->item(topic)->setText(count == 0 ? caption
                                            : QStringLiteral("%1 (%2)").arg(caption).arg(count));
    const bool without = count == 0 && !m_matches.empty();
    m_list->item(topic)->setForeground(without ? palette().brush(QPalette::PlaceholderText)
                                               : QBrush());
  }
}

void HelpWindow::printTopic() {
  const int here = m_history.here().topic;
  if (here >= 0) askToPrintHelp({m_topics[static_cast<std::size_t>(here)]}, m_topics, this);
}

void HelpWindow::printAllTopics() {
  askToPrintHelp(m_topics, m_topics, this);
}

}  // namespace orb::ui
