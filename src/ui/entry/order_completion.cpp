#include "ui/entry/order_completion.h"

#include "session/completions.h"
#include "text/qt/text_codec.h"

#include <QAbstractItemView>
#include <QCompleter>

namespace orb::ui {

OrderCompletion::OrderCompletion(const Desk& desk, OrderBox& box)
    : QObject(&box), m_desk(desk), m_box(box), m_completer(new QCompleter(&m_offered, this)) {
  // What fits is found here: more is understood than what begins with the same letters.
  m_completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
  m_completer->popup()->setObjectName(QStringLiteral("lstCompletions"));
  m_completer->popup()->setAccessibleName(tr("Orders that fit"));
  box.setCompletions(m_completer);
  connect(&box, &QLineEdit::textEdited, this, &OrderCompletion::offer);
}

void OrderCompletion::offer(const QString& typed) {
  // Words that buttons and clicks append are none that are typed.
  if (!m_box.hasFocus()) return m_completer->popup()->hide();
  QStringList lines;
  const std::string line = text::ToBytes(typed).value_or(std::string());
  for (const std::string& completion : session::Completions(m_desk.now(), line, m_power))
    lines << text::ToQString(completion);
  m_offered.setStringList(lines);
  if (lines.isEmpty()) return m_completer->popup()->hide();
  m_completer->complete();
}

}  // namespace orb::ui
