// Ends any program of the toolkit as soon as it has painted its first window: the toolkit
// loads this into a process that has QT_QPA_GENERIC_PLUGINS=firstpicture.

#include <QtCore/QTimer>
#include <QtGui/QGenericPlugin>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPlainTextEdit>

#include <cstdio>

namespace {

class FirstPicture final : public QObject
{
    Q_OBJECT

public:
    FirstPicture() { QCoreApplication::instance()->installEventFilter(this); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && qobject_cast<QPlainTextEdit *>(watched->parent()) &&
            !std::exchange(m_isPainted, true))
            QTimer::singleShot(0, this, &FirstPicture::end); // when it is on the screen
        return false;
    }

private:
    // Nothing is taken down: that is no part of starting.
    void end()
    {
        const auto *shown = QApplication::activeWindow() ? QApplication::activeWindow()
                                                         : QApplication::topLevelWidgets().value(0);
        std::puts(shown ? shown->metaObject()->className() : "no window");
        std::fflush(stdout);
        std::_Exit(0);
    }

    bool m_isPainted = false;
};

class FirstPicturePlugin final : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "first_picture.json")

public:
    QObject *create(const QString &, const QString &) override { return new FirstPicture; }
};

} // namespace

#include "first_picture.moc"
