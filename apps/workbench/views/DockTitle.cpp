#include "workbench/views/DockTitle.h"

#include <QtGui/QPainter>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolButton>

#include <algorithm>

namespace ORVTListview {
namespace {

constexpr int margin = 4;

// As it is to be read.
QString titleOf(const QDockWidget &dock)
{
    return dock.windowTitle().replace(QStringLiteral("&&"), QStringLiteral("&"));
}

} // namespace

DockTitle::DockTitle(QDockWidget &dock)
    : QWidget(&dock)
    , m_dock(dock)
    , m_float(addButton())
    , m_close(addButton())
{
    connect(m_float, &QToolButton::clicked, &dock,
            [&dock] { dock.setFloating(!dock.isFloating()); });
    connect(m_close, &QToolButton::clicked, &dock, &QDockWidget::close);
    connect(&dock, &QDockWidget::featuresChanged, this, &DockTitle::follow);
    connect(&dock, &QDockWidget::topLevelChanged, this, &DockTitle::retranslate);
    connect(&dock, &QWidget::windowTitleChanged, this, &DockTitle::retranslate);
    retranslate();
}

QToolButton *DockTitle::addButton()
{
    auto *button = new QToolButton(this);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus); // a click leaves the focus in the view
    return button;
}

void DockTitle::setNeeded(bool isNeeded)
{
    if (m_isNeeded == isNeeded)
        return;
    m_isNeeded = isNeeded;
    follow();
    updateGeometry();
}

void DockTitle::setCurrent(bool isCurrent)
{
    QFont bold = m_dock.font();
    bold.setBold(isCurrent);
    setFont(bold);
    update();
}

void DockTitle::retranslate()
{
    const QString title = titleOf(m_dock);
    setAccessibleName(title);
    m_float->setToolTip(m_dock.isFloating() ? tr("Put back into the window")
                                            : tr("Show in a window of its own"));
    m_float->setAccessibleName(m_float->toolTip());
    m_close->setToolTip(tr("Close"));
    m_close->setAccessibleName(tr("Close %1").arg(title));
    follow();
}

// The style's pictures change with the theme.
void DockTitle::follow()
{
    const QDockWidget::DockWidgetFeatures features = m_dock.features();
    m_float->setVisible(m_isNeeded && features.testFlag(QDockWidget::DockWidgetFloatable));
    m_close->setVisible(m_isNeeded && features.testFlag(QDockWidget::DockWidgetClosable));
    m_float->setIcon(style()->standardIcon(QStyle::SP_TitleBarNormalButton, nullptr, &m_dock));
    m_close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton, nullptr, &m_dock));
    update();
}

QSize DockTitle::sizeHint() const
{
    if (!m_isNeeded)
        return {0, 0};
    return {fontMetrics().averageCharWidth() * 12 + 2 * m_close->sizeHint().width(),
            std::max(m_close->sizeHint().height(), fontMetrics().height() + margin)};
}

QSize DockTitle::minimumSizeHint() const
{
    return m_isNeeded ? QSize(2 * m_close->sizeHint().width(), sizeHint().height()) : QSize(0, 0);
}

int DockTitle::buttonsLeft() const
{
    int left = width();
    for (const QToolButton *button : {m_close, m_float}) {
        if (!button->isHidden())
            left -= button->width();
    }
    return left;
}

void DockTitle::resizeEvent(QResizeEvent *event)
{
    int right = width();
    for (QToolButton *button : {m_close, m_float}) {
        const QSize size = button->sizeHint();
        if (!button->isHidden())
            right -= size.width();
        button->setGeometry(right, (height() - size.height()) / 2, size.width(), size.height());
    }
    QWidget::resizeEvent(event);
}

void DockTitle::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect room(margin, 0, buttonsLeft() - 2 * margin, height());
    const QString text = fontMetrics().elidedText(titleOf(m_dock), Qt::ElideRight, room.width());
    style()->drawItemText(&painter, room, Qt::AlignVCenter | Qt::AlignLeft, palette(), isEnabled(),
                          text, QPalette::WindowText);
}

} // namespace ORVTListview
