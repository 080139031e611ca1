#include "widgets/list/ReportHeader.h"

#include "base/EventGuard.h"
#include "widgets/list/ReportModel.h"
#include "widgets/look/CellText.h"
#include "widgets/look/PlainToolTip.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QHelpEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOption>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace ORVTListview {

ReportHeader::ReportHeader(QWidget *parent, const KeptColumns &kept)
    : QHeaderView(Qt::Horizontal, parent)
    , m_seen(*this, kept)
    , m_mouse(*this, m_seen, [this](int column) { return pictureOf(column); })
{
    setSectionsClickable(true);
    setHighlightSections(false);
    setMinimumSectionSize(0);
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(this, &QHeaderView::sectionDoubleClicked, this, [this] { m_isSecondClick = true; });
}

bool ReportHeader::isHeld() const
{
    return m_isHeld || m_mouse.isResizing();
}

void ReportHeader::mousePressEvent(QMouseEvent *event)
{
    m_isHeld = event->button() == Qt::LeftButton;
    QHeaderView::mousePressEvent(event);
}

// On a section, not on a divider, it is a second click, which is to be told as well.
void ReportHeader::mouseDoubleClickEvent(QMouseEvent *event)
{
    m_isHeld = event->button() == Qt::LeftButton;
    QHeaderView::mouseDoubleClickEvent(event);
    if (std::exchange(m_isSecondClick, false))
        QHeaderView::mousePressEvent(event);
}

void ReportHeader::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<ReportHeader> self(this);
    QHeaderView::mouseReleaseEvent(event);
    if (!self)
        return;
    m_isHeld = false;
    Q_EMIT released(event->modifiers()); // may destroy this header
}

bool ReportHeader::viewportEvent(QEvent *event)
{
    return EventGuard::run([this, event] {
        const bool isUp = !QGuiApplication::mouseButtons().testFlag(Qt::LeftButton);
        if (isUp && (event->type() == QEvent::MouseMove || event->type() == QEvent::Leave))
            m_isHeld = false; // its release went elsewhere
        const auto toToolkit = [this](QEvent &given) { return QHeaderView::viewportEvent(&given); };
        if (auto *mouse = dynamic_cast<QMouseEvent *>(event))
            return m_mouse.deliver(*mouse, toToolkit);
        if (event->type() != QEvent::ToolTip)
            return QHeaderView::viewportEvent(event);
        const auto *help = static_cast<QHelpEvent *>(event);
        const int column = m_seen.columnAt(help->pos().x());
        const QString text = column >= 0 && isElided(column)
                                 ? model()->headerData(column, Qt::Horizontal).toString()
                                 : QString();
        showPlainToolTip(*help, text, *viewport());
        return true;
    });
}

// As it is seen under the mouse while it is dragged.
QPixmap ReportHeader::pictureOf(int column) const
{
    constexpr QColor shade(0, 0, 0, 45);
    const QRect place(0, 0, sectionSize(column), viewport()->height());
    QPixmap picture(place.size() * devicePixelRatio());
    picture.setDevicePixelRatio(devicePixelRatio());
    picture.fill(shade);
    QPainter painter(&picture);
    painter.setOpacity(0.75);
    paintSection(&painter, place, column);
    return picture;
}

bool ReportHeader::isElided(int column) const
{
    const int width = sectionSize(column);
    return width > 0 && fontMetrics().horizontalAdvance(text(column)) >
                            roomForText(QRect(0, 0, width, height()), column).width();
}

QString ReportHeader::text(int column) const
{
    return cellText(model()->headerData(column, Qt::Horizontal).toString());
}

// As far from the edges as in a cell, and not under the arrow of a sorted column.
QRect ReportHeader::roomForText(const QRect &section, int column) const
{
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    QRect room = section.adjusted(margin, 0, -margin, 0);
    const bool hasArrow = isSortIndicatorShown() && sortIndicatorSection() == column;
    if (!hasArrow && rank(column) == 0)
        return room;
    QStyleOptionHeaderV2 option;
    initStyleOption(&option);
    initStyleOptionForIndex(&option, column);
    option.rect = section;
    return room & style()->subElementRect(QStyle::SE_HeaderLabel, &option, this);
}

// Those that stay in sight lie over the others.
void ReportHeader::paintEvent(QPaintEvent *event)
{
    QHeaderView::paintEvent(event);
    QPainter painter(viewport());
    for (const int column : m_seen.kept())
        paintSection(&painter, m_seen.placeOf(column), column);
}

// The style would cut the text, and begin it elsewhere than in the cells.
void ReportHeader::paintSection(QPainter *painter, const QRect &rect, int column) const
{
    painter->save();
    QHeaderView::paintSection(painter, rect, column);
    painter->restore();
    if (!rect.isValid())
        return;
    QStyleOptionHeaderV2 label;
    initStyleOption(&label);
    initStyleOptionForIndex(&label, column);
    // From right to left the toolkit draws sections a pixel beside their cells.
    const bool isBeside = rect.left() == sectionViewportPosition(column) + 1;
    label.rect = roomForText(rect.translated(isBeside ? -1 : 0, 0), column);
    label.textAlignment = QStyle::visualAlignment(label.direction, label.textAlignment);
    label.text =
        inOwnDirection(fontMetrics().elidedText(text(column), Qt::ElideRight, label.rect.width()),
                       label.direction);
    style()->drawControl(QStyle::CE_HeaderLabel, &label, painter, this);
    if (std::abs(rank(column)) > 1)
        paintRank(*painter, label, rect, std::abs(rank(column)));
}

int ReportHeader::rank(int column) const
{
    return model() ? model()->headerData(column, Qt::Horizontal, ReportModel::sortRankRole).toInt()
                   : 0;
}

// Over the arrow, of a column by which rows are sorted after others.
void ReportHeader::paintRank(QPainter &painter, QStyleOptionHeaderV2 option, const QRect &section,
                             int rank) const
{
    option.rect = section;
    const QRect arrow = style()->subElementRect(QStyle::SE_HeaderArrow, &option, this);
    QFont small = font();
    if (font().pixelSize() > 0)
        small.setPixelSize(std::max(1, font().pixelSize() * 7 / 10));
    else
        small.setPointSizeF(font().pointSizeF() * 0.7);
    painter.save();
    painter.setFont(small);
    painter.setPen(palette().color(QPalette::ButtonText));
    const QRect place = option.direction == Qt::RightToLeft ? arrow.translated(arrow.width(), 0)
                                                            : arrow.translated(-arrow.width(), 0);
    painter.drawText(place, Qt::AlignCenter | Qt::TextDontClip, QString::number(rank));
    painter.restore();
}

void ReportHeader::setRoom(int above, int below)
{
    m_above = above;
    m_below = below;
    updateGeometries();
    Q_EMIT geometriesChanged();
}

QSize ReportHeader::sizeHint() const
{
    return QHeaderView::sizeHint() + QSize(0, m_above + m_below);
}

void ReportHeader::updateGeometries()
{
    setViewportMargins(0, m_above, 0, m_below);
    QHeaderView::updateGeometries();
}

void ReportHeader::initStyleOptionForIndex(QStyleOptionHeader *option, int column) const
{
    QHeaderView::initStyleOptionForIndex(option, column);
    option->text.clear(); // see paintSection
    if (const int place = rank(column))
        option->sortIndicator =
            place > 0 ? QStyleOptionHeader::SortDown : QStyleOptionHeader::SortUp;
}

} // namespace ORVTListview
