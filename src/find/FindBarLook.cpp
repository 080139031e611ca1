// How the find bar looks: its controls and their texts.

#include "find/BarControls.h"
#include "find/FindBar.h"
#include "find/ReplaceRow.h"
#include "find/rules/SearchHistory.h"
#include "shared/texts/TextTable.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

#include <algorithm>
#include <initializer_list>

namespace ORVTListview {

using namespace BarControls;
using namespace Qt::StringLiterals;

QToolButton *FindBar::addButton(const QString &name, const QString &text, QBoxLayout &row)
{
    QToolButton *button = BarControls::addButton(name, text, row);
    watch(*button);
    return button;
}

QLayout *FindBar::makeSearchRow()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(BarControls::spacing);
    m_wanted = addField(u"FindBarWanted"_s, *row);
    watch(*m_wanted);
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
    m_replaceRow = new ReplaceRow(*this, m_histories.replacements);
    m_replaceRow->hide();
    for (QWidget *control : m_replaceRow->controls())
        watch(*control);
    return m_replaceRow;
}

void FindBar::resizeEvent(QResizeEvent *event)
{
    EditorBar::resizeEvent(event);
    showWhatFits();
}

// In a narrow editor what is searched for needs the room most: the count goes first, then the
// button for the second row, then how it is searched.
void FindBar::showWhatFits()
{
    int room = width() - layout()->contentsMargins().left() - layout()->contentsMargins().right() -
               2 * frameWidth() - m_wanted->minimumSizeHint().width();
    for (const QWidget *always : {m_previous, m_next, m_close})
        room -= always->sizeHint().width() + BarControls::spacing;
    bool fits = true;
    for (QWidget *part :
         std::initializer_list<QWidget *>{m_matchCase, m_wholeWord, m_more, m_result}) {
        const int wanted = std::max(part->sizeHint().width(), part->minimumWidth());
        room -= wanted + BarControls::spacing;
        fits = fits && room >= 0;
        part->setVisible(fits);
    }
}

void FindBar::showTexts()
{
    setAccessibleName(Localise(u"Find"_s));
    nameField(*m_wanted, Localise(u"Find What"_s));
    nameButton(*m_matchCase, Localise(u"Match Case"_s), {});
    nameButton(*m_wholeWord, Localise(u"Find Whole Word Only"_s),
               Localise(u"Searches for the full word by itself and not as part of a larger "
                        "word."_s));
    nameButton(*m_previous, Localise(u"Find Previous"_s), {});
    nameButton(*m_next, Localise(u"Find Next"_s), {});
    m_more->setText(Localise(u"..."_s));
    nameButton(*m_more, Localise(u"Find - Replace"_s), {});
    nameButton(*m_close, Localise(u"Close"_s), {});
    m_replaceRow->showTexts();
    m_result->setMinimumWidth(m_result->fontMetrics().horizontalAdvance(Localise(u"Not found!"_s)));
    showCount();
    showWhatFits();
}

} // namespace ORVTListview
