#include "editor/WordListTips.h"

#include "editor/view/HoverTips.h"
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ReportList.h>

#include <QtCore/QEvent>
#include <QtCore/QItemSelectionModel>
#include <QtCore/QTimer>

#include <chrono>

namespace ORVTListview {

using namespace std::chrono_literals;

WordListTips::WordListTips(ReportList &list, HoverTips &tips)
    : m_list(list)
    , m_tips(tips)
    , m_rest(new QTimer(&list))
{
    m_rest->setObjectName(QStringLiteral("ChoiceRest"));
    m_rest->setSingleShot(true);
    m_rest->setInterval(400ms);
    connect(m_rest, &QTimer::timeout, this, &WordListTips::tell);
    connect(m_list.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &WordListTips::noteChoice);
    m_list.installEventFilter(this);
}

// Else it is the host's table.
bool WordListTips::isOpen() const
{
    return m_list.isWindow() && m_list.isVisible();
}

void WordListTips::noteChoice()
{
    if (!isOpen())
        return;
    m_tips.hide();
    m_rest->start();
}

void WordListTips::tell()
{
    const ListItem *item = isOpen() ? m_list.SelectedItem() : nullptr;
    if (!item)
        return;
    const QRect row = m_list.visualRect(m_list.model()->index(item->Index() - 1, 0));
    if (!m_list.viewport()->rect().intersects(row))
        return;
    const QPoint top = m_list.viewport()->mapToGlobal(row.topLeft());
    m_tips.tellBeside({m_list.geometry().left(), top.y(), m_list.width(), row.height()},
                      item->Text());
}

bool WordListTips::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Move:
    case QEvent::Resize:
        noteChoice();
        break;
    case QEvent::Hide:
        if (m_list.isWindow()) {
            m_rest->stop();
            m_tips.hide();
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace ORVTListview
