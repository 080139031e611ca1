#pragma once

#include "support/AnyReceiver.h"
#include "support/PseudoTexts.h"
#include "support/RandomText.h"
#include "support/WidgetTest.h"
#include <ORVTListview/Component.h>
#include <ORVTListview/TextProvider.h>

#include <QtGui/QGuiApplication>
#include <QtGui/QPalette>
#include <QtGui/QScreen>
#include <QtWidgets/QWidget>

#include <memory>
#include <stdexcept>
#include <vector>

namespace ORVTListview {

// What happens to a form while somebody works with it, and changes nothing that it holds.
class Disturbances
{
public:
    explicit Disturbances(QWidget &form)
        : m_form(form)
    {
    }
    ~Disturbances() { setTextProvider(nullptr); }
    Q_DISABLE_COPY_MOVE(Disturbances) // one language

    // Does one of them; its name.
    QString next(RandomText &random)
    {
        switch (random.number(8)) {
        case 0:
            return resized(random);
        case 1:
            return recoloured();
        case 2:
            return spoken(random);
        case 3:
            return scaled(random);
        case 4:
            return mirrored();
        case 5:
            return disabledForAWhile();
        case 6:
            return movedToAnotherScreen();
        default:
            return hiddenForAWhile();
        }
    }

private:
    QString resized(RandomText &random)
    {
        m_form.resize(50 + random.number(700), 50 + random.number(500));
        return QStringLiteral("resize");
    }
    QString recoloured()
    {
        QPalette palette = m_form.palette();
        const bool isDark = palette.color(QPalette::Base).lightness() < 128;
        for (const QPalette::ColorRole role : {QPalette::Base, QPalette::Window})
            palette.setColor(role, isDark ? Qt::white : QColor(30, 30, 30));
        for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText})
            palette.setColor(role, isDark ? Qt::black : Qt::white);
        m_form.setPalette(palette);
        return QStringLiteral("palette");
    }
    QString spoken(RandomText &random)
    {
        setTextProvider(random.number(2) ? &m_texts : nullptr);
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&m_form, &change);
        for (auto *component : m_form.findChildren<Component *>())
            QMetaObject::invokeMethod(component, "ReInitializeStrings");
        return QStringLiteral("language");
    }
    QString scaled(RandomText &random)
    {
        QFont font = m_form.font();
        font.setPointSize(6 + random.number(20));
        m_form.setFont(font);
        return QStringLiteral("font");
    }
    QString mirrored()
    {
        const bool isUsual = m_form.layoutDirection() == Qt::LeftToRight;
        m_form.setLayoutDirection(isUsual ? Qt::RightToLeft : Qt::LeftToRight);
        return QStringLiteral("direction");
    }
    // Of another density, where the test has several (support/two_screens.json).
    QString movedToAnotherScreen()
    {
        const QList<QScreen *> screens = QGuiApplication::screens();
        const QScreen *other = screens[(screens.indexOf(m_form.screen()) + 1) % screens.size()];
        m_form.move(other->geometry().topLeft() + QPoint(10, 10));
        QCoreApplication::processEvents();
        if (m_form.isVisible() && m_form.devicePixelRatio() != other->devicePixelRatio())
            qFatal("the window has not changed its screen");
        return QStringLiteral("screen ") + other->name();
    }
    QString disabledForAWhile()
    {
        m_form.setEnabled(false);
        QCoreApplication::processEvents();
        m_form.setEnabled(true);
        return QStringLiteral("disabled");
    }
    QString hiddenForAWhile()
    {
        m_form.hide();
        QCoreApplication::processEvents();
        m_form.show();
        m_form.activateWindow();
        return QStringLiteral("hidden");
    }

    QWidget &m_form;
    PseudoTexts m_texts;
};

// A host that listens to every signal of an object and throws at each n-th.
class ThrowingHost
{
public:
    // Not in what the class inherits from this base, which is the toolkit's.
    explicit ThrowingHost(QObject &object, int every = 7,
                          const QMetaObject &base = QWidget::staticMetaObject)
        : m_every(every)
    {
        for (const QMetaMethod &signal : signalsOf(object, base)) {
            m_receivers.push_back(std::make_unique<AnyReceiver>(object, signal, [this] {
                if (++m_events % m_every == 0)
                    throwSomething();
            }));
        }
    }
    Q_DISABLE_COPY_MOVE(ThrowingHost) // its receivers know it

    int events() const { return m_events; }

private:
    void throwSomething() const
    {
        if (m_events % (2 * m_every) == 0)
            throw std::runtime_error("the host fails");
        throw 42;
    }

    int m_every;
    int m_events = 0;
    std::vector<std::unique_ptr<AnyReceiver>> m_receivers;
};

} // namespace ORVTListview

// A test whose host throws in handlers of events, which the log is told of.
class ThrowingHostTest : public WidgetTest
{
protected:
    void init() override
    {
        // A click beside all that takes clicks is told of, too.
        QTest::failOnWarning(QRegularExpression(
            QStringLiteral("^(?!This plugin does not support|An event handler failed|"
                           "Mouse event \"Mouse\\w+\" not accepted)")));
        renewState();
    }
};
