#include "workbench/views/ViewDock.h"

#include "workbench/views/DockTitle.h"

#include <ORVTListview/ORVListView.h>
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QAction>
#include <QtGui/QCloseEvent>

#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

ViewDock::ViewDock(const QString &name, QWidget *parent)
    : QDockWidget(parent)
    , m_view(new ORVListView(this))
    , m_title(new DockTitle(*this))
{
    setObjectName(name + u"Dock"_s);
    m_view->setObjectName(name);
    m_view->InitStrings();
    setAllowedAreas(Qt::TopDockWidgetArea); // one area, which splits as users want it
    setTitleBarWidget(m_title);
    // What is dropped beside others takes the least, or leaves it to them.
    m_view->setMinimumSize(fontMetrics().averageCharWidth() * 8, fontMetrics().height() * 6);
    setWidget(m_view);
    connect(this, &QDockWidget::visibilityChanged, this, [this](bool isSeen) {
        if (std::exchange(m_isSeen, isSeen) != isSeen)
            Q_EMIT seenChanged(isSeen);
    });
    connect(toggleViewAction(), &QAction::toggled, this, [this](bool isShown) {
        if (isShown)
            Q_EMIT opened();
        else if (isHidden()) // by itself, not with the window
            Q_EMIT closed();
    });
}

// Whoever closes the window of a program does not lose the way to it. Queued: the toolkit is
// at work on the window.
void ViewDock::closeEvent(QCloseEvent *event)
{
    if (features().testFlag(DockWidgetClosable)) {
        QDockWidget::closeEvent(event);
        return;
    }
    event->ignore();
    QMetaObject::invokeMethod(this, &ViewDock::backWanted, Qt::QueuedConnection);
}

// The toolkit's tabs take a single "&" for the mark of an access key.
void ViewDock::setTitle(const QString &title)
{
    setWindowTitle(QString(title).replace(u'&', u"&&"_s));
    m_view->setAccessibleName(title);
    m_view->RTextBox()->setAccessibleName(title);
}

} // namespace ORVTListview
