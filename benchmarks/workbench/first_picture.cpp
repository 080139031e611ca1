// Ends any program of the toolkit as soon as it has painted its first window: the toolkit
// loads this into a process that has QT_QPA_GENERIC_PLUGINS=firstpicture, or, for the first
// one with a text in it, firstpicture:text.

#include <QtGui/QGenericPlugin>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPlainTextEdit>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace {

class FirstPicture final : public QObject
{
    Q_OBJECT

public:
    explicit FirstPicture(bool wantsText)
        : m_wantsText(wantsText)
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && isWanted(watched->parent()) &&
            !std::exchange(m_isPainted,
                           true)) // it ends when that is on the screen, before all else
            QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
        return false;
    }

    void customEvent(QEvent *) override { end(); }

private:
    bool isWanted(QObject *painted) const
    {
        const auto *edit = qobject_cast<QPlainTextEdit *>(painted);
        return edit && !(m_wantsText && edit->document()->isEmpty());
    }

    // Nothing is taken down: that is no part of starting.
    void end()
    {
        const auto *shown = QApplication::activeWindow() ? QApplication::activeWindow()
                                                         : QApplication::topLevelWidgets().value(0);
        std::puts(shown ? shown->metaObject()->className() : "no window");
        std::fflush(stdout);
        std::_Exit(0);
    }

    const bool m_wantsText;
    bool m_isPainted = false;
};

class FirstPicturePlugin final : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "first_picture.json")

public:
    QObject *create(const QString &, const QString &specification) override
    {
        return new FirstPicture(specification == QLatin1String("text"));
    }
};

} // namespace

#include "first_picture.moc"
