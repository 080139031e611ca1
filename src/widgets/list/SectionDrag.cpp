#include "widgets/list/SectionDrag.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

SectionDrag::SectionDrag(QHeaderView &header, const SeenSections &seen, const Picture &picture)
    : m_header(header)
    , m_seen(seen)
    , m_makePicture(picture)
{
    constexpr int betweenSteps = 40;
    m_scrolling.setInterval(betweenSteps);
    connect(&m_scrolling, &QTimer::timeout, this, &SectionDrag::scroll);
    connect(&header, &QHeaderView::sectionCountChanged, this, &SectionDrag::cancel);
}

void SectionDrag::press(int x)
{
    cancel();
    if (!m_header.sectionsMovable() || m_seen.kept().isEmpty())
        return;
    m_column = m_seen.columnAt(x);
    if (m_header.visualIndex(m_column) == 0 && !m_header.isFirstSectionMovable())
        m_column = -1;
    m_pressedAt = x;
    m_grip = m_column < 0 ? 0 : x - m_seen.placeOf(m_column).left();
}

bool SectionDrag::follow(int x)
{
    m_at = x;
    if (m_column >= 0 && !m_picture &&
        std::abs(x - m_pressedAt) >= QApplication::startDragDistance())
        begin();
    if (m_picture)
        m_picture->move(x - m_grip, 0);
    if (m_picture && scrollStep() != 0 && !m_scrolling.isActive())
        m_scrolling.start();
    return m_column >= 0;
}

void SectionDrag::begin()
{
    const QPixmap picture = m_makePicture(m_column);
    m_picture = new QLabel(m_header.viewport());
    m_picture->setObjectName(u"DraggedSection"_s);
    m_picture->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_picture->setPixmap(picture);
    m_picture->resize(m_seen.placeOf(m_column).size());
    m_picture->show();
}

bool SectionDrag::drop()
{
    const bool isDragged = m_picture;
    const int from = m_header.visualIndex(m_column);
    const int to = isDragged ? target() : from;
    cancel();
    if (to != from)
        m_header.moveSection(from, to);
    return isDragged;
}

void SectionDrag::cancel()
{
    m_scrolling.stop();
    delete m_picture.data();
    m_column = -1;
}

// The place in the header that it gets: that of the section under the mouse, whose first half
// takes it before, its second behind.
int SectionDrag::target() const
{
    const int from = m_header.visualIndex(m_column);
    const int x = std::clamp(m_at, 0, std::max(0, m_header.viewport()->width() - 1));
    const int column = m_seen.columnAt(x);
    if (column < 0) // behind the last one
        return m_header.count() - 1;
    const int to = m_header.visualIndex(column);
    const int middle = m_seen.placeOf(column).center().x();
    const bool isBefore = inReadingOrder(x) < inReadingOrder(middle);
    const int place = to + (to < from && !isBefore ? 1 : 0) - (to > from && isBefore ? 1 : 0);
    return place == 0 && !m_header.isFirstSectionMovable() ? 1 : place;
}

int SectionDrag::inReadingOrder(int x) const
{
    return m_header.isRightToLeft() ? m_header.viewport()->width() - 1 - x : x;
}

// -1 towards the first column, 1 towards the last: near the edges of those that are scrolled.
int SectionDrag::scrollStep() const
{
    const int x = inReadingOrder(m_at);
    const int begin = m_seen.keptArea().width();
    if (x >= m_header.viewport()->width() - m_header.autoScrollMargin())
        return 1;
    return begin <= x && x < begin + m_header.autoScrollMargin() ? -1 : 0;
}

void SectionDrag::scroll()
{
    auto *view = qobject_cast<QAbstractScrollArea *>(m_header.parentWidget());
    const int step = m_picture && view ? scrollStep() : 0;
    if (step == 0) {
        m_scrolling.stop();
        return;
    }
    QScrollBar &bar = *view->horizontalScrollBar();
    bar.setValue(bar.value() + step * bar.singleStep());
}

} // namespace ORVTListview
