// What is switched off again leaves nothing behind, and what is only shown changes nothing
// that a host sees: every key with every modifier, in one editor after the other.

#include "editor/AllOfTheView.h"
#include "editor/view/ViewFixture.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtCore/QBuffer>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

enum class View { Untouched, SwitchedOff, Shown };

const QList<int> everyKey{Qt::Key_Backspace, Qt::Key_Tab,      Qt::Key_Return, Qt::Key_Space,
                          Qt::Key_PageUp,    Qt::Key_PageDown, Qt::Key_End,    Qt::Key_Home,
                          Qt::Key_Left,      Qt::Key_Up,       Qt::Key_Right,  Qt::Key_Down,
                          Qt::Key_Insert,    Qt::Key_Delete,   Qt::Key_A,      Qt::Key_B,
                          Qt::Key_C,         Qt::Key_F,        Qt::Key_G,      Qt::Key_H,
                          Qt::Key_V,         Qt::Key_X,        Qt::Key_Y,      Qt::Key_Z,
                          Qt::Key_9,         Qt::Key_F1,       Qt::Key_F2,     Qt::Key_F6};

const QList<Qt::KeyboardModifiers> everyState{Qt::NoModifier, Qt::ShiftModifier,
                                              Qt::ControlModifier, Qt::AltModifier,
                                              Qt::ControlModifier | Qt::ShiftModifier};

// What a host hears, each event with its values.
class Events : public QObject
{
public:
    explicit Events(ORVListView &list)
    {
        const QMetaObject &meta = *list.metaObject();
        for (int i = QWidget::staticMetaObject.methodCount(); i < meta.methodCount(); ++i) {
            const QMetaMethod method = meta.method(i);
            const QByteArray signature = method.methodSignature();
            const bool isLate = signature.startsWith("StatusUpdate"); // by a timer
            if (method.methodType() != QMetaMethod::Signal || isLate)
                continue;
            if (!signature.contains('&') && !signature.contains('*'))
                m_spies.push_back(std::make_unique<QSignalSpy>(&list, method));
        }
        connect(&list, &ORVListView::KeyDown, this, [this](qint16 &key, qint16 &shift) {
            m_keys += u"KeyDown %1 %2 "_s.arg(key).arg(shift);
        });
    }

    QString take()
    {
        QString heard = std::exchange(m_keys, {});
        for (const auto &spy : m_spies) {
            for (const QList<QVariant> &values : std::as_const(*spy)) {
                heard += QString::fromLatin1(spy->signal());
                for (const QVariant &value : values)
                    heard += u' ' + value.toString();
                heard += u' ';
            }
            spy->clear();
        }
        return heard;
    }

private:
    std::vector<std::unique_ptr<QSignalSpy>> m_spies;
    QString m_keys;
};

// An editor, and what becomes of it by keys.
class Session
{
public:
    explicit Session(View view)
        : m_events(*m_host.list)
        , m_shows(view == View::Shown)
    {
        if (view == View::Untouched)
            return;
        switchView(m_host.view(), true, typingHelps);
        m_host.view().setZoom(100);
        if (view == View::Shown)
            return;
        switchView(m_host.view(), true);
        m_host.markLines();
        m_host.list->grab();
        switchView(m_host.view(), false);
        m_host.view().setZoom(0);
        m_host.view().setProblems({});
        m_host.view().toggleBookmark();
    }

    QStringList pressAll()
    {
        QStringList seen;
        for (const Qt::KeyboardModifiers modifiers : everyState) {
            for (const int key : everyKey) {
                seen << press(key, modifiers,
                              u"IF temp1 > 2\r\n\tfan|1 = ( x )\r\n  "
                              "endif\r\n    REM fan1\r\ny"_s);
                seen << press(key, modifiers, u"IF temp1\r\n  f|an1 =\r\n  e|ndif\r\ny"_s);
            }
        }
        return seen;
    }

    QImage picture() { return m_host.picture(*m_host.list); }
    QRect text() { return m_host.box().viewport()->geometry(); }

private:
    QString press(int key, Qt::KeyboardModifiers modifiers, const QString &program)
    {
        QGuiApplication::clipboard()->setText(u"if fan1"_s);
        m_host.setText(program);
        if (m_shows)
            m_host.markLines();
        m_host.type(u"z "_s);
        m_events.take();
        m_host.key(key, modifiers);
        const QString selected = m_host.marked();
        QString seen = u"%1+%2: %3 "_s.arg(int(modifiers)).arg(key).arg(m_host.ring().UndoNewest());
        seen += selected + m_events.take() + QGuiApplication::clipboard()->text();
        seen += m_host.wordList().isVisible() ? u" list "_s : QString();
        m_host.key(Qt::Key_Escape);
        m_host.box().setFocus();
        return seen + m_host.list->CodeTextRTF() + m_host.list->CodeText();
    }

    ThreadState::Fresh m_state;
    ViewHost m_host;
    Events m_events;
    const bool m_shows;
};

} // namespace

class SwitchedOffTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override
    {
        WidgetTest::init();
        QApplication::setCursorFlashTime(0);
        Session untouched(View::Untouched);
        m_keys = untouched.pressAll();
        m_picture = untouched.picture();
        m_text = untouched.text();
        QVERIFY(m_keys.size() > 200);
    }

    void leavesNothingBehind()
    {
        Session session(View::SwitchedOff);
        QCOMPARE(session.pressAll(), m_keys);
        QCOMPARE(session.picture(), m_picture);
        QCOMPARE(session.text(), m_text);
    }

    void whatIsShownIsNotHeardOrRead()
    {
        Session session(View::Shown);
        QCOMPARE(session.pressAll(), m_keys);
        QVERIFY(session.picture() != m_picture);
        QVERIFY(session.text() != m_text);
    }

private:
    QStringList m_keys;
    QImage m_picture;
    QRect m_text;
};

ORVT_TEST(SwitchedOffTest)
#include "SwitchedOffTest.moc"
