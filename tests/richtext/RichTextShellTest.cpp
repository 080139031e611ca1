// The shell accepts everything, answers nothing and raises no event.

#include "shared/texts/TextTable.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <ORVTListview/MemberTable.h>
#include <ORVTListview/ORVRichText.h>

#include <QtCore/QMetaMethod>
#include <QtCore/QMimeData>
#include <QtCore/QTimer>
#include <QtGui/QDropEvent>
#include <QtGui/QKeyEvent>

#include <array>
#include <vector>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const QMetaObject &shell = ORVRichText::staticMetaObject;

QList<QMetaMethod> members(QMetaMethod::MethodType type)
{
    QList<QMetaMethod> found;
    for (int i = Component::staticMetaObject.methodCount(); i < shell.methodCount(); ++i) {
        if (shell.method(i).methodType() == type)
            found.append(shell.method(i));
    }
    return found;
}

QByteArrayList signaturesOf(const QList<QMetaMethod> &methods)
{
    QByteArrayList signatures;
    for (const QMetaMethod &method : methods)
        signatures.append(method.methodSignature());
    return signatures;
}

// Calls a member by its place among all, as a binding to another language does.
class Call
{
public:
    Call(ORVRichText &object, const QMetaMethod &method, qint32 number)
    {
        m_numbers = {number, number};
        m_text = u"text"_s;
        m_object = &object;
        std::vector<void *> arguments{resultPlace(method)};
        std::size_t numbers = 0;
        for (const QByteArray &type : method.parameterTypes()) {
            if (type == "QString")
                arguments.push_back(&m_text);
            else if (type == "QObject*")
                arguments.push_back(&m_object);
            else if (type == "qint32&" && numbers < m_numbers.size())
                arguments.push_back(&m_numbers[numbers++]);
            else
                qFatal("no argument for %s", type.constData());
        }
        object.qt_metacall(QMetaObject::InvokeMetaMethod, method.methodIndex(), arguments.data());
    }

    bool answer = true;
    QString answered = QStringLiteral("not yet");
    std::array<qint32, 2> numbers() const { return m_numbers; }

private:
    void *resultPlace(const QMetaMethod &method)
    {
        if (method.returnMetaType() == QMetaType::fromType<bool>())
            return &answer;
        if (method.returnMetaType() == QMetaType::fromType<QString>())
            return &answered;
        return nullptr;
    }

    std::array<qint32, 2> m_numbers{};
    QString m_text;
    QObject *m_object = nullptr;
};

void sendKey(QWidget &to, int key, const QString &text)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&to, &event);
    }
}

void sendDrag(QWidget &to)
{
    QMimeData data;
    data.setText(u"dragged"_s);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&to, &enter);
    QDragMoveEvent move(QPoint(6, 6), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&to, &move);
    QDropEvent drop(QPointF(6, 6), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&to, &drop);
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(&to, &leave);
}

void useEverything(QWidget &control)
{
    for (int key = Qt::Key_Space; key <= Qt::Key_Z; ++key)
        sendKey(control, key, QChar(key));
    for (int key = Qt::Key_Escape; key <= Qt::Key_F12; ++key)
        sendKey(control, key, QString());
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        QTest::mouseClick(&control, button);
        QTest::mouseDClick(&control, button);
    }
    QTest::mouseMove(&control, QPoint(20, 20));
    sendDrag(control);
}

} // namespace

// Hears every event of a shell.
class Listener : public QObject
{
    Q_OBJECT

public:
    explicit Listener(const ORVRichText &heard)
    {
        const QMetaMethod slot = staticMetaObject.method(staticMetaObject.indexOfSlot("note()"));
        for (const QMetaMethod &event : members(QMetaMethod::Signal))
            m_events += connect(&heard, event, this, slot) ? 1 : 0;
    }

    int events() const { return m_events; }
    int heard() const { return m_heard; }

private Q_SLOTS:
    void note() { ++m_heard; }

private:
    int m_events = 0;
    int m_heard = 0;
};

class RichTextShellTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void hasItsMethodsInOrder()
    {
        QCOMPARE(signaturesOf(members(QMetaMethod::Method)),
                 QByteArrayList({"InitControl(QObject*)", "RichTextCut()", "RichTextCopy()",
                                 "RichTextSelectAll()", "ReinitializeWordCollection()",
                                 "IsWordFound(QString)", "Find(QString,qint32&,qint32&)",
                                 "ReplaceSpaceEquivalent(QString)", "Clear()", "GetData()",
                                 "ValidateTextColor()", "ReloadData(QString)", "InitStrings()",
                                 "ReInitializeStrings()"}));
    }

    void hasItsEventsInOrder()
    {
        const ORVRichText control;
        QByteArrayList names;
        for (const Member &member : control.Members().members()) {
            if (member.kind != MemberKind::Event)
                continue;
            QCOMPARE(shell.method(member.signalIndex).name(), member.name.toLatin1());
            names.append(member.name.toLatin1());
            QCOMPARE(member.number, names.size());
        }
        QCOMPARE(names, QByteArrayList(
                            {"Change",       "SelChange",         "Click",           "DblClick",
                             "KeyDown",      "KeyPress",          "KeyUp",           "MouseDown",
                             "MouseMove",    "MouseUp",           "OLECompleteDrag", "OLEDragDrop",
                             "OLEDragOver",  "OLEGiveFeedback",   "OLESetData",      "OLEStartDrag",
                             "MessageEvent", "StatusUpdate",      "UpdateUndoMenu",  "QueryAnalyze",
                             "QueryCompile", "MoveOutCursorEvent"}));
        QCOMPARE(members(QMetaMethod::Signal).size(), names.size());
    }

    void everyMemberAnswersNothing()
    {
        ORVRichText control;
        const Listener listener(control);
        QCOMPARE(listener.events(), 22);
        for (const QMetaMethod &method : members(QMetaMethod::Method)) {
            for (const qint32 number : {-1, 0, 1, 2147483647}) {
                const Call call(control, method, number);
                const QByteArray name = method.methodSignature();
                const bool isQuestion = method.returnMetaType() == QMetaType::fromType<bool>();
                const bool isText = method.returnMetaType() == QMetaType::fromType<QString>();
                QVERIFY2(!isQuestion || !call.answer, name.constData());
                QVERIFY2(!isText || call.answered.isEmpty(), name.constData());
                QCOMPARE(call.numbers(), (std::array<qint32, 2>{number, number}));
            }
        }
        QCoreApplication::processEvents();
        QCOMPARE(listener.heard(), 0);
        control.InitControl(nullptr);
    }

    void noInputRaisesAnEvent()
    {
        ORVRichText control;
        control.resize(200, 100);
        control.setFocusPolicy(Qt::StrongFocus);
        control.setMouseTracking(true);
        control.setAcceptDrops(true);
        control.show();
        QVERIFY(QTest::qWaitForWindowActive(&control));
        control.setFocus();
        const Listener listener(control);
        useEverything(control);
        for (auto *child : control.findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
            useEverything(*child);
        for (auto *timer : control.findChildren<QTimer *>()) {
            QTimerEvent tick(timer->timerId());
            QCoreApplication::sendEvent(timer, &tick);
        }
        QCoreApplication::processEvents();
        QCOMPARE(listener.heard(), 0);
    }

    void theListenerHears()
    {
        ORVRichText control;
        const Listener listener(control);
        Q_EMIT control.Change();
        Q_EMIT control.MoveOutCursorEvent();
        QCOMPARE(listener.heard(), 2);
    }

    void hasItsChildrenHiddenAndIdle()
    {
        ORVRichText control;
        control.show();
        for (const QString &name : {u"Toolbar1"_s, u"PictureBall"_s, u"PictureFuncDef"_s,
                                    u"Label1"_s, u"ComboList"_s, u"ComboSubList"_s, u"Combo2"_s}) {
            const auto *child = control.findChild<QWidget *>(name);
            QVERIFY2(child, qPrintable(name));
            QVERIFY2(child->isHidden(), qPrintable(name));
        }
        for (const QString &name : {u"TimerKeyDown"_s, u"TimerStatusEvent"_s, u"TimerShowText"_s,
                                    u"TimerSelStartEvent"_s, u"TimerSubList"_s}) {
            const auto *timer = control.findChild<QTimer *>(name);
            QVERIFY2(timer, qPrintable(name));
            QVERIFY2(!timer->isActive(), qPrintable(name));
        }
    }

    void reInitializeStringsFetchesTheTexts()
    {
        ORVRichText control;
        control.InitStrings();
        QVERIFY(!threadPart<TextTable>().loadTime().isValid());
        control.ReInitializeStrings();
        QVERIFY(threadPart<TextTable>().loadTime().isValid());
    }
};

ORVT_TEST(RichTextShellTest)
#include "RichTextShellTest.moc"
