#include "widgets/combo/ComboList.h"

#include "base/PopupPlace.h"
#include "widgets/combo/ComboEntries.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtGui/QAccessible>
#include <QtGui/QMouseEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QListView>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <utility>

namespace ORVTListview {
namespace {

// All rows have one height, with some room around the text.
class RowDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override
    {
        constexpr int room = 6;
        const int content = std::max(option.fontMetrics.height(), option.decorationSize.height());
        return {option.decorationSize.width(), content + room};
    }
};

// States nothing else, so that the rest follows the combo.
QPalette withFrameColour(const QColor &colour)
{
    QPalette palette;
    palette.setResolveMask(0);
    palette.setColor(QPalette::WindowText, colour);
    return palette;
}

} // namespace

ComboList::ComboList(QComboBox &combo, const ComboEntries &entries,
                     std::function<bool(QPoint)> pressesArrow)
    : QFrame(&combo, Qt::Popup)
    , m_combo(combo)
    , m_entries(entries)
    , m_pressesArrow(std::move(pressesArrow))
    , m_matches(entries)
    , m_view(new QListView(this))
    , m_surface(*this)
{
    setAttribute(Qt::WA_WindowPropagation);
    setFrameStyle(int{Box} | int{Plain});
    setFocusPolicy(Qt::NoFocus);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_view);
    setUpView();
    hide();
}

ComboList::~ComboList() = default;

void ComboList::setUpView()
{
    m_view->setModel(&m_matches);
    m_view->setItemDelegate(new RowDelegate(m_view));
    m_view->setUniformItemSizes(true);
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setFocusPolicy(Qt::NoFocus);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    m_view->viewport()->setMouseTracking(true);
    m_view->viewport()->installEventFilter(this);
}

void ComboList::letGo()
{
    hide();
    m_view->setModel(nullptr);
    m_surface.letGo();
}

void ComboList::open(const QString &filter, int row)
{
    if (!isVisible() || m_matches.filter() != filter)
        m_matches.setFilter(filter);
    if (m_matches.size() == 0) {
        hide();
        return;
    }
    followLook();
    place();
    setCurrent(row < 0 ? m_matches.bestPosition() : m_matches.positionOf(row));
    show();
}

void ComboList::followLook()
{
    setLayoutDirection(m_combo.layoutDirection());
    m_view->setIconSize(m_combo.iconSize());
    // A frame that is seen on light and on dark, and loud on neither.
    const QPalette &look = m_combo.palette();
    setPalette(withFrameColour(look.color(QPalette::PlaceholderText)));
    m_view->setPalette(withFrameColour(look.color(QPalette::WindowText)));
}

int ComboList::contentWidth() const
{
    constexpr int margins = 12;
    return m_view->fontMetrics().horizontalAdvance(m_entries.longestText()) +
           m_view->iconSize().width() + m_view->verticalScrollBar()->sizeHint().width() + margins +
           2 * frameWidth();
}

// As wide as it was while it is seen.
void ComboList::place()
{
    const QRect combo(m_combo.mapToGlobal(QPoint()), m_combo.size());
    const int rows = std::min(m_matches.size(), m_combo.maxVisibleItems());
    const QSize wanted(isVisible() ? width() : std::max(contentWidth(), combo.width()),
                       rows * m_view->sizeHintForRow(0) + 2 * frameWidth());
    setGeometry(popupPlace(combo, {.wanted = wanted, .isFromRight = m_combo.isRightToLeft()},
                           m_combo.screen()->availableGeometry()));
}

int ComboList::currentRow() const
{
    const QModelIndex current = m_view->currentIndex();
    return current.isValid() ? m_matches.rowAt(current.row()) : -1;
}

void ComboList::setCurrent(int position)
{
    m_view->setCurrentIndex(m_matches.index(position));
    if (position < 0)
        m_view->scrollToTop();
    announceCurrent();
}

void ComboList::moveBy(int steps)
{
    const qint64 target = qint64{m_view->currentIndex().row()} + steps;
    setCurrent(static_cast<int>(std::clamp<qint64>(target, 0, m_matches.size() - 1)));
}

int ComboList::pageSize() const
{
    return std::max(1, m_view->viewport()->height() / std::max(1, m_view->sizeHintForRow(0)) - 1);
}

// The view tells of a current row only while it has the focus.
void ComboList::announceCurrent()
{
    if (!QAccessible::isActive() || !m_view->currentIndex().isValid())
        return;
    QAccessibleEvent marked(m_view, QAccessible::Focus);
    marked.setChild(m_view->currentIndex().row());
    QAccessible::updateAccessibility(&marked);
}

bool ComboList::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
        return m_surface.deliver([this, event] {
            QCoreApplication::sendEvent(&m_combo, event);
            event->accept();
            return true;
        });
    case QEvent::Show:
    case QEvent::Hide:
        m_isPressed = false;
        QFrame::event(event);
        Q_EMIT toggled();
        return true;
    default:
        return QFrame::event(event);
    }
}

bool ComboList::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        return m_surface.deliver(
            [this, event] { return followMouse(*static_cast<QMouseEvent *>(event)); });
    default:
        return QFrame::eventFilter(watched, event);
    }
}

// The entry under the mouse is marked, and taken where the button is let go. One
// may also press on the arrow, move into the list and let go there.
bool ComboList::followMouse(const QMouseEvent &event)
{
    const QModelIndex under = m_view->indexAt(event.position().toPoint());
    if (event.type() == QEvent::MouseButtonRelease) {
        if (event.button() == Qt::LeftButton && std::exchange(m_isPressed, false) &&
            under.isValid())
            Q_EMIT chosen(m_matches.rowAt(under.row()));
        return true;
    }
    m_isPressed = event.buttons().testFlag(Qt::LeftButton);
    if (under.isValid() && under != m_view->currentIndex())
        setCurrent(under.row());
    return true;
}

void ComboList::mousePressEvent(QMouseEvent *event)
{
    // A press on the arrow shall close the list, not open it again.
    setAttribute(Qt::WA_NoMouseReplay, m_pressesArrow(event->globalPosition().toPoint()));
    QFrame::mousePressEvent(event);
}

} // namespace ORVTListview
