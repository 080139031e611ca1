#include "editor/WordListTips.h"

#include "editor/PopupWordList.h"
#include "editor/view/HoverTips.h"
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ReportList.h>

#include <QtCore/QItemSelectionModel>
#include <QtCore/QTimer>

#include <chrono>

namespace ORVTListview {

using namespace std::chrono_literals;

WordListTips::WordListTips(ReportList &list, PopupWordList &words, HoverTips &tips)
    : m_list(list)
    , m_words(words)
    , m_tips(tips)
    , m_rest(new QTimer(&list))
{
    m_rest->setObjectName(QStringLiteral("ChoiceRest"));
    m_rest->setSingleShot(true);
    m_rest->setInterval(400ms);
    connect(m_rest, &QTimer::timeout, this, &WordListTips::tell);
    connect(m_list.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &WordListTips::noteChoice);
    connect(&m_words, &PopupWordList::placed, this, &WordListTips::noteChoice);
    connect(&m_words, &PopupWordList::closed, this, &WordListTips::noteClosed);
}

void WordListTips::noteChoice()
{
    if (!m_words.isShown())
        return;
    m_tips.hide();
    m_rest->start();
}

void WordListTips::noteClosed()
{
    m_rest->stop();
    m_tips.hide();
}

void WordListTips::tell()
{
    const ListItem *item = m_words.isShown() ? m_list.SelectedItem() : nullptr;
    const QRect entry = m_words.chosenOnScreen();
    if (item && !entry.isEmpty())
        m_tips.tellBeside(entry, item->Text());
}

} // namespace ORVTListview
