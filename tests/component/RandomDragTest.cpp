// Somebody drags at random from one component to another, while the host throws, forbids,
// calls off, writes and destroys. Nothing is lost, and the events come in their order.

#include "component/DragOrder.h"
#include "component/DragScene.h"

#include "support/AnyReceiver.h"
#include "support/Disturbances.h"
#include "support/InTurn.h"
#include "support/RandomSession.h"
#include "support/RecordedMessages.h"
#include "support/TestFolder.h"
#include "support/TestProgram.h"
#include "widgets/nodes/NodeTree.h"
#include <ORVTListview/ReportList.h>

#include <QtCore/QRegularExpression>

#include <algorithm>
#include <array>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <vector>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

using Side = DragScene::Side;
using Texts = std::array<QString, 3>;

enum class Deed {
    Nothing,
    Throw,
    Forbid,
    Allow,
    Escape,
    CallOff,
    DestroySource,
    DestroyTarget,
    HideTarget,
    DisableTarget,
    LockSource,
    Write
};
constexpr const char *deedNames[] = {"",
                                     "throw",
                                     "forbid",
                                     "allow",
                                     "escape",
                                     "call off",
                                     "destroy the source",
                                     "destroy the target",
                                     "hide the target",
                                     "disable the target",
                                     "lock the source",
                                     "write into the source"};
constexpr int deedCount = static_cast<int>(std::size(deedNames));

const QString written = u"@"_s; // by the host; users never do

// Letters only, whatever their order and case: finished lines differ in blanks and case.
QString lettersOf(const QString &text)
{
    QString letters = text.toLower();
    letters.removeIf([](QChar c) { return c.isSpace() || c == written.front(); });
    std::sort(letters.begin(), letters.end());
    return letters;
}

QString inOneCase(const QString &text)
{
    QString plain = text.toLower();
    plain.removeIf([](QChar c) { return c.isSpace(); });
    return plain;
}

QString shown(QString text)
{
    return text.replace(u'\n', u"\\n"_s);
}

class DragSession final : public RandomSession
{
public:
    explicit DragSession(unsigned seed)
        : RandomSession(seed)
    {
        takeOver();
        make();
    }
    ~DragSession() override
    {
        takeOver();
        forget();
        threadPart<Messages>().install(nullptr);
    }

private:
    // What the thread has once; other sessions may have been meanwhile.
    void takeOver()
    {
        threadPart<Messages>().install(&m_messages);
        setSettingsFile(m_folder.path(u"settings.ini"_s));
    }

    void act() override
    {
        takeOver();
        if (!m_scene->isWhole())
            make();
        if (oneIn(10)) {
            note(Disturbances(m_scene->form).next(m_random));
            QCoreApplication::processEvents();
        }
        if (oneIn(4))
            changeSomething();
        drag();
    }
    QString whatIsWrong() override { return {}; }

    void make()
    {
        forget();
        m_scene = std::make_unique<DragScene>();
        m_acceptsDrops = false;
        for (const Side side : {DragScene::Field, DragScene::Box, DragScene::Editor})
            write(side);
        listen(*m_scene->table());
        listen(*m_scene->combo());
        listen(*m_scene->tree());
        connectHost(*m_scene->textOf(DragScene::Box),
                    {QMetaMethod::fromSignal(&RichTextBox::Change),
                     QMetaMethod::fromSignal(&RichTextBox::MouseDown)});
        connectHost(*static_cast<ORVListView *>(m_scene->component(DragScene::Editor)));
    }
    void forget()
    {
        m_receivers.clear();
        m_orders.clear();
        m_scene.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }

    void listen(InputComponent &component)
    {
        m_orders.push_back(std::make_unique<DragOrder>(component));
        auto *order = m_orders.back().get();
        QObject::connect(&component, &InputComponent::OLEStartDrag, order,
                         [this](DataObject *data, qint32 &) {
                             if (data->GetFormat(DataObject::Text))
                                 m_offered = data->GetData(DataObject::Text).toString();
                         });
        QObject::connect(&component, &InputComponent::OLEDragOver, order,
                         [this](DataObject *, qint32 &effect) { decide(effect); });
        QObject::connect(&component, &InputComponent::OLEDragDrop, order,
                         [this](DataObject *, qint32 &effect) { decide(effect); });
        connectHost(component);
    }
    void decide(qint32 &effect) const
    {
        if (m_deed == Deed::Forbid)
            effect = 0;
        else if (m_deed == Deed::Allow)
            effect = 1;
    }
    // A host that does what it has in mind in some event of the drag.
    void connectHost(QObject &component, const QList<QMetaMethod> &events)
    {
        for (const QMetaMethod &event : events) {
            m_receivers.push_back(std::make_unique<AnyReceiver>(component, event, [this] {
                if (m_dragging && ++m_events == m_deedAt)
                    doDeed();
            }));
        }
    }
    void connectHost(Component &component)
    {
        connectHost(component, signalsOf(component, QWidget::staticMetaObject));
    }

    void write(Side side)
    {
        static const QStringList words{u"temp1"_s, u"fan1"_s, u"x"_s, u"12"_s,  u"a b"_s,
                                       u"abc"_s,   u"\n"_s,   u" "_s, u"a\\b"_s};
        QString text;
        for (int count = 1 + number(8); count > 0; --count)
            text += oneOf(words) + (oneIn(2) ? u" "_s : QString());
        if (side == DragScene::Editor)
            text.remove(u'\\');
        note(u"%1: \"%2\""_s.arg(QLatin1String(DragScene::nameOf(side)), shown(text)));
        m_scene->setText(side, text);
    }
    void changeSomething()
    {
        const auto side = static_cast<Side>(number(3));
        if (oneIn(2)) {
            write(side);
        } else if (oneIn(2)) {
            const bool on = oneIn(3);
            note(u"%1 read-only %2"_s.arg(QLatin1String(DragScene::nameOf(side))).arg(on));
            m_scene->setReadOnly(side, on);
        } else {
            m_acceptsDrops = oneIn(2);
            note(u"others take drops %1"_s.arg(m_acceptsDrops));
            m_scene->table()->listView()->setAcceptDrops(m_acceptsDrops);
            m_scene->combo()->setAcceptDrops(m_acceptsDrops);
        }
    }

    Texts texts() const
    {
        return {m_scene->text(DragScene::Field), m_scene->text(DragScene::Box),
                m_scene->text(DragScene::Editor)};
    }

    void drag()
    {
        m_from = static_cast<Side>(number(DragScene::sources));
        m_to = static_cast<Side>(number(DragScene::targets));
        const auto held = m_scene->hold(m_from, number(100), number(12));
        const auto place = m_scene->over(m_to, number(101), number(101));
        if (!held || !place || (*place - held->at).manhattanLength() < 30)
            return;
        m_held = *held;
        m_before = texts();
        m_sourceWas = m_scene->mayChange(m_from);
        m_targetWas = m_scene->mayChange(m_to);
        chooseDeed();
        note(u"%1 \"%2\" to %3 %4"_s.arg(QLatin1String(DragScene::nameOf(m_from)),
                                         shown(m_held.text), QLatin1String(DragScene::nameOf(m_to)),
                                         QLatin1String(deedNames[static_cast<int>(m_deed)])));
        m_messages.messages.clear();
        for (const auto &order : m_orders)
            order->clear();
        m_offered.clear();
        moveMouse(*place);
        compare();
    }
    // In some event, or between two.
    void chooseDeed()
    {
        m_deed = oneIn(2) ? Deed::Nothing : static_cast<Deed>(1 + number(deedCount - 1));
        m_events = 0;
        m_deedAt = oneIn(2) ? 1 + number(8) : 0;
        m_deedStep = 1 + number(6);
    }

    void moveMouse(const QPoint &to)
    {
        QWindow *window = m_scene->form.windowHandle();
        const QPoint from = m_held.at;
        QList<InTurn::Step> steps;
        steps.append([=, this] {
            m_dragging = true;
            QTest::mousePress(window, Qt::LeftButton, {}, from);
        });
        const QPoint way = to - from;
        for (const QPoint &point : {from + way / 3, from + way * 2 / 3, to - QPoint(1, 0), to, to})
            steps.append([=] { QTest::mouseMove(window, point); });
        if (m_deedAt == 0)
            steps.insert(m_deedStep, [this] { doDeed(); });
        steps.append([=, this] {
            notePlace(to);
            QTest::mouseRelease(window, Qt::LeftButton, {}, to);
        });
        InTurn::take(std::move(steps), 1);
        m_dragging = false;
    }
    // As late as possible: a view scrolls while something is held at its edge.
    void notePlace(const QPoint &to)
    {
        m_place = -1;
        const QPlainTextEdit *edit = DragScene::isText(m_to) ? m_scene->textOf(m_to) : nullptr;
        if (edit)
            m_place =
                edit->cursorForPosition(edit->viewport()->mapFrom(&m_scene->form, to)).position();
    }

    void doDeed()
    {
        if (m_deed == Deed::Throw && m_deedAt > 0)
            throw std::runtime_error("the host fails");
        if (m_deed == Deed::CallOff && m_from == DragScene::Table)
            m_scene->table()->Drag(dcCancel);
        else if (m_deed == Deed::Escape && m_deedAt == 0) // no user is quicker than an event
            QTest::keyClick(m_scene->form.windowHandle(), Qt::Key_Escape);
        else if (m_deed == Deed::DestroySource)
            destroy(m_from);
        else if (m_deed == Deed::DestroyTarget)
            destroy(m_to);
        else if (m_deed == Deed::LockSource)
            m_scene->setReadOnly(m_from, true);
        else if (m_deed == Deed::HideTarget && m_scene->component(m_to))
            m_scene->component(m_to)->hide();
        else if (m_deed == Deed::DisableTarget && m_scene->component(m_to))
            m_scene->component(m_to)->setEnabled(false);
        else if (m_deed == Deed::Write)
            writeIntoSource();
    }
    // The toolkit goes on with the address of a field of its own, and that one's drag hangs.
    void destroy(Side side)
    {
        if (side != DragScene::Field && side != DragScene::Beside)
            delete m_scene->component(side);
    }
    void writeIntoSource()
    {
        auto *box = qobject_cast<RichTextBox *>(m_scene->textOf(m_from));
        m_isWritten = box;
        if (!box) // the toolkit's takes it along
            return;
        box->setSelStart(m_held.start + 1);
        box->setSelLength(0);
        box->setSelText(written);
    }

    void compare()
    {
        for (const auto &order : m_orders)
            expect(order->wrong().isEmpty(), order->wrong());
        expect(QGuiApplication::mouseButtons() == Qt::NoButton, u"a button is held"_s);
        if (m_deed == Deed::Nothing)
            compareWithModel();
        else
            seeThatNothingIsLost();
        tidyUp();
    }

    // What text the target gets; none when it can take nothing of the kind.
    QString given() const
    {
        if (m_from == DragScene::Table && m_to != DragScene::Editor)
            return m_offered;
        return m_to == DragScene::Editor ? m_held.name : m_held.text;
    }
    bool isAcceptedByHost() const
    {
        return m_acceptsDrops && (m_to == DragScene::Table || m_to == DragScene::Combo);
    }

    bool isRefusedByEditor() const { return m_to == DragScene::Editor && given().contains(u'\\'); }

    // What a user expects of a drag that nobody disturbs.
    Texts expectedTexts() const
    {
        Texts texts = m_before;
        const int length = static_cast<int>(m_held.text.size());
        const bool removes = DragScene::isText(m_from) && m_sourceWas;
        if (m_from == m_to && DragScene::isText(m_to)) {
            const bool isInside = m_place >= m_held.start && m_place <= m_held.start + length;
            if (isInside || !removes)
                return texts;
            texts[m_to].insert(m_place, m_held.text);
            texts[m_to].remove(m_held.start + (m_place < m_held.start ? length : 0), length);
            return texts;
        }
        const bool isTakenByText =
            DragScene::isText(m_to) && m_targetWas && !given().isEmpty() && !isRefusedByEditor();
        if (isTakenByText)
            texts[m_to].insert(m_place, given());
        if (removes && (isTakenByText || isAcceptedByHost()))
            texts[m_from].remove(m_held.start, length);
        return texts;
    }
    void compareWithModel()
    {
        const Texts expected = expectedTexts();
        const Texts now = texts();
        for (const Side side : {DragScene::Field, DragScene::Box, DragScene::Editor}) {
            expect(inOneCase(now[side]) == inOneCase(expected[side]),
                   u"%1 is \"%2\" instead of \"%3\", dropped at %4"_s
                       .arg(QLatin1String(DragScene::nameOf(side)), now[side], expected[side])
                       .arg(m_place));
        }
        expect(
            m_messages.messages.size() == (m_targetWas && isRefusedByEditor() ? 1 : 0),
            u"%1 messages, the last \"%2\""_s.arg(m_messages.messages.size())
                .arg(m_messages.messages.isEmpty() ? QString() : m_messages.messages.last().text));
        for (const auto &order : m_orders)
            expect(order->isOver(), u"a component believes that the drag goes on"_s);
        expect(!m_scene->tree()->findChild<NodeTree *>()->dropHighlight(), u"a node is marked"_s);
    }

    // A text has what it had, and what it was given or without what was taken; what is
    // taken has gone where somebody took it.
    void seeThatNothingIsLost()
    {
        const Texts now = texts();
        for (const Side side : {DragScene::Field, DragScene::Box, DragScene::Editor}) {
            if (!m_scene->component(side))
                continue;
            const QString had = m_before[side];
            const QString has = lettersOf(now[side]);
            const bool isSame = has == lettersOf(had);
            const bool hasMore = side == m_to && has == lettersOf(had + given());
            const bool hasLess =
                side == m_from &&
                has == lettersOf(QString(had).remove(m_held.start, m_held.text.size()));
            expect(isSame || hasMore || hasLess, whatIsLost(side, now[side]));
            if (hasLess && !isSame)
                expect(isTaken(now), whatIsLost(side, now[side]) + u" and nobody has it"_s);
        }
        const bool isThere = std::any_of(
            now.begin(), now.end(), [](const QString &text) { return text.contains(written); });
        expect(isThere || !m_isWritten, u"what the host wrote is lost"_s);
    }
    bool isTaken(const Texts &now) const
    {
        if (!DragScene::isText(m_to))
            return isAcceptedByHost();
        const auto to = static_cast<std::size_t>(m_to);
        return !m_scene->component(m_to) || lettersOf(now[to]) == lettersOf(m_before[to] + given());
    }
    static QString whatIsLost(Side side, const QString &text)
    {
        return u"%1 is \"%2\""_s.arg(QLatin1String(DragScene::nameOf(side)), text);
    }

    void tidyUp()
    {
        if (!m_scene->isWhole() || m_deed == Deed::HideTarget || m_deed == Deed::DisableTarget)
            make();
        if (m_isWritten)
            write(m_from);
        m_isWritten = false;
    }

    RecordedMessages m_messages;
    TestFolder m_folder;
    std::unique_ptr<DragScene> m_scene;
    std::vector<std::unique_ptr<AnyReceiver>> m_receivers;
    std::vector<std::unique_ptr<DragOrder>> m_orders;
    bool m_acceptsDrops = false;

    Side m_from = DragScene::Field;
    Side m_to = DragScene::Field;
    DragScene::Held m_held;
    Texts m_before;
    bool m_sourceWas = false; // to be changed by users
    bool m_targetWas = false;
    int m_place = -1; // in the target's text
    QString m_offered;
    Deed m_deed = Deed::Nothing;
    int m_deedAt = 0; // which event; none if it comes between two
    int m_deedStep = 0;
    int m_events = 0;
    bool m_dragging = false;
    bool m_isWritten = false;
};

} // namespace

class RandomDragTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override
    {
        // The toolkit tells of a drop onto what has just gone.
        QTest::failOnWarning(
            QRegularExpression(u"^(?!An event handler failed|QWidget.* : No drag target set|"
                               "Mouse event \"Mouse\\w+\" not accepted)"_s));
        renewState();
    }
    void initTestCase()
    {
        QVERIFY2(QGuiApplication::platformName() != u"offscreen"_s,
                 "needs a display that can drag");
    }
    void nothingIsLost() { runSessions<DragSession>(18, 1800); }
};

ORVT_TEST(RandomDragTest)
#include "RandomDragTest.moc"
