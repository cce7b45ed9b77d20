#include "ui/help/help_menu.h"

#include "model/errors.h"
#include "text/qt/text_codec.h"
#include "ui/help/help_window.h"
#include "ui/widgets/controls.h"
#include "ui/widgets/icons.h"
#include "ui/widgets/message_boxes.h"
#include "ui/widgets/plain_text.h"

#include <QStyle>

namespace orb::ui {
namespace {

/// The caption of the topic that helps with what is on the desk.
QString topicOf(const Desk& desk) {
  const session::Situation& situation = desk.now();
  if (desk.trial()) return QObject::tr("Trying out");
  if (situation.Editing != session::Editing::None) return QObject::tr("Editing");
  if (situation.Game.Stage == model::Stage::Retreats) return QObject::tr("Retreats");
  if (situation.Game.Stage == model::Stage::Adjustments) return QObject::tr("Adjustments");
  if (situation.Game.Stage == model::Stage::Finished) return QObject::tr("Reading the report");
  return QObject::tr("Entering orders");
}

/// The caption with its first letter that no entry before has taken as the entry's key.
QString withKey(const QString& caption, QString& taken) {
  for (qsizetype i = 0; i < caption.size(); ++i) {
    const QChar key = caption[i].toLower();
    if (!key.isLetter() || taken.contains(key)) continue;
    taken += key;
    return captionText(caption.left(i)) + QLatin1Char('&') + captionText(caption.mid(i));
  }
  return captionText(caption);
}

}  // namespace

HelpMenu::HelpMenu(const Desk& desk, model::Messages& messages, QWidget* window)
    : QMenu(tr("&Help"), window), m_desk(desk), m_messages(messages), m_window(window) {
  setObjectName(QStringLiteral("mnuHelp"));
  QString takenKeys;
  // Keys are given out in the order of the entries, so that the topics have the first choice.
  addTopics(takenKeys);
  addSeparator();
  QAction* about = newEntry(*this, QStringLiteral("mnuHelpAbout"), withKey(tr("About"), takenKeys));
  connect(about, &QAction::triggered, this, &HelpMenu::about);
  m_desk.whenChanged(session::Changes::Season | session::Changes::Editing, this,
                     &HelpMenu::showStage);
  connect(&m_desk, &Desk::trialChanged, this, &HelpMenu::showStage);
  showStage();
}

void HelpMenu::addTopics(QString& takenKeys) {
  try {
    m_topics = help::LoadHelpTopics(m_desk.dataDirectory());
  } catch (const model::FatalError& fault) {
    // A window without help is better than none. Whoever asks for a topic learns the reason.
    m_fault = fault.what();
  }
  if (m_topics.empty()) {
    if (m_fault.empty()) {
      m_fault = (m_desk.dataDirectory() / help::HelpFileName).string() +
                " has no topics: lines that begin with \"%\".";
    }
    QAction* missing = newEntry(*this, QStringLiteral("mnuHelpMissing"),
                                withKey(tr("Help"), takenKeys), Qt::Key_F1);
    connect(missing, &QAction::triggered, this, [this] { showTopic({}); });
  }
  for (const help::HelpTopic& topic : m_topics) {
    const QString caption = text::ToQString(topic.Caption);
    QAction* entry = newEntry(*this, QStringLiteral("mnuHelpTopic%1").arg(m_entries.size() + 1),
                              withKey(caption, takenKeys));
    connect(entry, &QAction::triggered, this, [this, caption] { showTopic(caption); });
    m_entries.push_back(entry);
  }
}

void HelpMenu::showTopic(const QString& caption) {
  if (m_topics.empty()) return m_messages.Show(m_fault, model::Icon::Exclamation);
  if (m_help == nullptr) {
    m_help = new HelpWindow(m_topics, m_window);
    m_help->setWindowFlag(Qt::Window);
  }
  m_help->showTopic(caption);
}

void HelpMenu::showTopicOver(const QString& caption, QWidget* dialog) {
  if (m_topics.empty()) return m_messages.Show(m_fault, model::Icon::Exclamation);
  // A modal dialog keeps all windows from the user but those over it.
  auto* help = dialog->findChild<HelpWindow*>();
  if (help == nullptr) {
    help = new HelpWindow(m_topics, dialog);
    help->setWindowFlag(Qt::Window);
  }
  help->showTopic(caption);
}

/// F1 opens the topic of the current stage.
void HelpMenu::showStage() {
  const QString wanted = topicOf(m_desk);
  for (std::size_t i = 0; i < m_entries.size(); ++i) {
    // The captions are data; when none fits, F1 does nothing.
    const bool here = text::ToQString(m_topics[i].Caption) == wanted;
    m_entries[i]->setShortcut(here ? QKeySequence(Qt::Key_F1) : QKeySequence());
  }
}

void HelpMenu::about() {
  MessageBox box(tr("<h3>%1</h3><p>Holds a game of seven powers, their armies and fleets, "
                    "draws its map and resolves its orders.</p>")
                     .arg(text::ToQString(model::ProgramName)),
                 QMessageBox::NoIcon, m_window);
  box.setTextFormat(Qt::RichText);
  const int side = box.style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
  box.setIconPixmap(programIcon().pixmap(side));
  box.setStandardButtons(QMessageBox::Ok);
  box.exec();
}

}  // namespace orb::ui
