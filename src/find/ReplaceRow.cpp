#include "find/ReplaceRow.h"

#include "find/BarControls.h"
#include "find/HistoryField.h"
#include "find/rules/SearchHistory.h"
#include "shared/texts/TextTable.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QToolButton>

namespace ORVTListview {

using namespace BarControls;
using namespace Qt::StringLiterals;

ReplaceRow::ReplaceRow(QWidget &bar, SearchHistory &history)
    : QWidget(&bar)
    , m_history(history)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(BarControls::spacing);
    m_field = addField(u"FindBarReplacement"_s, *row);
    m_replace = addButton(u"FindBarReplace"_s, {}, *row);
    m_replaceAll = addButton(u"FindBarReplaceAll"_s, {}, *row);
    connect(m_replace, &QToolButton::clicked, this, &ReplaceRow::replaceAsked);
    connect(m_replaceAll, &QToolButton::clicked, this, &ReplaceRow::replaceAllAsked);
}

QList<QWidget *> ReplaceRow::controls() const
{
    return {m_field, m_replace, m_replaceAll};
}

void ReplaceRow::ask()
{
    const QString typed = text();
    HistoryField::list(*m_field, m_history);
    HistoryField::show(*m_field, typed);
    m_field->setFocus(Qt::OtherFocusReason);
}

QString ReplaceRow::text() const
{
    return m_field->currentText();
}

void ReplaceRow::remember()
{
    HistoryField::remember(*m_field, m_history);
}

void ReplaceRow::setMayReplace(bool mayReplace)
{
    m_replace->setEnabled(mayReplace);
    m_replaceAll->setEnabled(mayReplace);
}

void ReplaceRow::showTexts()
{
    nameField(*m_field, Localise(u"Replace With"_s));
    m_replace->setText(Localise(u"Replace"_s));
    m_replaceAll->setText(Localise(u"Replace All"_s));
    nameButton(*m_replace, m_replace->text(), {});
    nameButton(*m_replaceAll, m_replaceAll->text(), {});
}

} // namespace ORVTListview
