// How the find bar looks: its controls and their texts.

#include "find/FindBar.h"
#include "find/HistoryField.h"
#include "shared/texts/TextTable.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolButton>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr int gap = 3; // pixels

QComboBox *makeField(const QString &name, QWidget &parent)
{
    auto *field = new QComboBox(&parent);
    field->setObjectName(name);
    HistoryField::make(*field);
    field->setMinimumContentsLength(6); // editors may be narrow
    return field;
}

} // namespace

QToolButton *FindBar::addButton(const QString &name, const QString &text, QLayout &row)
{
    auto *button = new QToolButton(this);
    button->setObjectName(name);
    button->setText(text);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    watch(*button);
    row.addWidget(button);
    return button;
}

QLayout *FindBar::makeSearchRow()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(gap);
    m_wanted = makeField(u"FindBarWanted"_s, *this);
    watch(*m_wanted);
    row->addWidget(m_wanted, 1);
    m_matchCase = addButton(u"FindBarMatchCase"_s, u"Aa"_s, *row);
    m_wholeWord = addButton(u"FindBarWholeWord"_s, u"|ab|"_s, *row);
    m_matchCase->setCheckable(true);
    m_wholeWord->setCheckable(true);
    m_previous = addButton(u"FindBarPrevious"_s, {}, *row);
    m_previous->setArrowType(Qt::UpArrow);
    m_next = addButton(u"FindBarNext"_s, {}, *row);
    m_next->setArrowType(Qt::DownArrow);
    m_result = new QLabel(this);
    m_result->setObjectName(u"FindBarResult"_s);
    m_result->setTextFormat(Qt::PlainText);
    row->addWidget(m_result);
    m_more = addButton(u"FindBarMore"_s, {}, *row);
    m_more->setCheckable(true);
    m_close = addButton(u"FindBarClose"_s, u"\u00d7"_s, *row);
    return row;
}

QWidget *FindBar::makeReplaceRow()
{
    m_replaceRow = new QWidget(this);
    auto *row = new QHBoxLayout(m_replaceRow);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(gap);
    m_replacement = makeField(u"FindBarReplacement"_s, *m_replaceRow);
    watch(*m_replacement);
    row->addWidget(m_replacement, 1);
    m_replace = addButton(u"FindBarReplace"_s, {}, *row);
    m_replaceAll = addButton(u"FindBarReplaceAll"_s, {}, *row);
    return m_replaceRow;
}

void FindBar::nameButton(QToolButton &button, const QString &name, const QString &toolTip)
{
    button.setAccessibleName(name);
    button.setToolTip(toolTip.isEmpty() ? name : toolTip);
}

void FindBar::showTexts()
{
    setAccessibleName(Localise(u"Find"_s));
    m_wanted->setAccessibleName(Localise(u"Find What"_s));
    m_wanted->lineEdit()->setPlaceholderText(Localise(u"Find What"_s));
    m_replacement->setAccessibleName(Localise(u"Replace With"_s));
    m_replacement->lineEdit()->setPlaceholderText(Localise(u"Replace With"_s));
    nameButton(*m_matchCase, Localise(u"Match Case"_s), {});
    nameButton(*m_wholeWord, Localise(u"Find Whole Word Only"_s),
               Localise(u"Searches for the full word by itself and not as part of a larger "
                        "word."_s));
    nameButton(*m_previous, Localise(u"Find Previous"_s), {});
    nameButton(*m_next, Localise(u"Find Next"_s), {});
    m_more->setText(Localise(u"..."_s));
    nameButton(*m_more, Localise(u"Find - Replace"_s), {});
    nameButton(*m_close, Localise(u"Close"_s), {});
    m_replace->setText(Localise(u"Replace"_s));
    m_replaceAll->setText(Localise(u"Replace All"_s));
    nameButton(*m_replace, Localise(u"Replace"_s), {});
    nameButton(*m_replaceAll, Localise(u"Replace All"_s), {});
    m_result->setMinimumWidth(m_result->fontMetrics().horizontalAdvance(Localise(u"Not found!"_s)));
    showCount();
}

} // namespace ORVTListview
