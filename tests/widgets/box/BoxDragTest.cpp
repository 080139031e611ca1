#include "support/InTurn.h"
#include "support/TestProgram.h"
#include "support/TextDrag.h"
#include "widgets/box/PlainCommands.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QMimeData>
#include <QtCore/QRegularExpression>
#include <QtGui/QClipboard>
#include <QtWidgets/QApplication>
#include <QtWidgets/QVBoxLayout>

#include <functional>
#include <utility>

using namespace ORVTListview;
using namespace Qt::StringLiterals;
using TextDrag::inWindow;

namespace {

// Notes what reaches it; pastes only where it may.
class Recorder final : public PlainCommands
{
public:
    Recorder(RichTextBox &owner, QStringList &log, bool pastes)
        : PlainCommands(owner)
        , m_log(log)
        , m_pastes(pastes)
    {
    }

    Pasted paste(const QMimeData &data) override
    {
        m_log << u"paste "_s + data.text();
        return m_pastes ? PlainCommands::paste(data) : Pasted::Refused;
    }
    void remove() override
    {
        m_log << u"remove "_s + box().SelText();
        PlainCommands::remove();
    }

private:
    QStringList &m_log;
    bool m_pastes;
};

} // namespace

// Needs a display that can drag: the offscreen platform cannot.
class BoxDragTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_window.reset(); }

    void draggingMovesText();
    void draggingBackwardsMovesText();
    void draggingIntoTheSelectionDoesNothing();
    void aRefusedMoveLosesNothing();
    void draggingToAnotherBoxMovesText();
    void aMoveRemovesWhatWasDragged();
    void aBoxMadeReadOnlyMeanwhileKeepsItsText();
    void whatAHostWritesIntoDraggedTextStays_data();
    void whatAHostWritesIntoDraggedTextStays();
    void aReadOnlyBoxGivesCopies();
    void aBoxMayGoWhileItIsDraggedFrom();
    void aBoxMayGoWhileItIsDraggedOver();
    void aClickIntoTheSelectionDoesNotDrag();
    void aSelectionThatIsGoneIsNotDragged();
    void aMiddleClickEndsInPaste();

protected:
    // A host that does something while text is dragged.
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::DragMove && m_hostsDeed)
            std::exchange(m_hostsDeed, nullptr)();
        m_leaves += event->type() == QEvent::DragLeave ? 1 : 0;
        return false;
    }

private:
    void drag(const QPoint &from, const QPoint &to) { TextDrag::drag(*m_window, from, to); }
    void record(RichTextBox &box, bool pastes)
    {
        box.setCommands(std::make_unique<Recorder>(box, m_log, pastes));
    }

    std::unique_ptr<QWidget> m_window;
    RichTextBox *m_box = nullptr;
    RichTextBox *m_other = nullptr;
    QStringList m_log;
    std::function<void()> m_hostsDeed;
    int m_leaves = 0;
};

void BoxDragTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support)")));
    m_log.clear();
    m_hostsDeed = nullptr;
    m_leaves = 0;
    m_window = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(m_window.get());
    for (RichTextBox **box : {&m_box, &m_other}) {
        *box = new RichTextBox;
        layout->addWidget(*box);
        (*box)->setText(u"one two three"_s);
        record(**box, true);
    }
    m_window->resize(400, 300);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void BoxDragTest::draggingMovesText()
{
    m_box->setSelLength(4);
    drag(inWindow(*m_box, 1), inWindow(*m_box, 8));
    QCOMPARE(m_box->Text(), u"two one three"_s);
    QCOMPARE(m_log, QStringList(u"paste one "_s));
}

void BoxDragTest::draggingBackwardsMovesText()
{
    m_box->setSelStart(8);
    m_box->setSelLength(5);
    drag(inWindow(*m_box, 10), inWindow(*m_box, 0));
    QCOMPARE(m_box->Text(), u"threeone two "_s);
}

void BoxDragTest::draggingIntoTheSelectionDoesNothing()
{
    m_box->setSelLength(8);
    drag(inWindow(*m_box, 1), inWindow(*m_box, 5));
    QCOMPARE(m_box->Text(), u"one two three"_s);
    QCOMPARE(m_log, QStringList());
}

void BoxDragTest::aRefusedMoveLosesNothing()
{
    record(*m_box, false);
    record(*m_other, false);
    m_box->setSelLength(4);
    drag(inWindow(*m_box, 1), inWindow(*m_box, 8));
    m_box->setSelStart(0);
    m_box->setSelLength(4);
    drag(inWindow(*m_box, 1), inWindow(*m_other, 8));
    QCOMPARE(m_box->Text(), u"one two three"_s);
    QCOMPARE(m_other->Text(), u"one two three"_s);
    QCOMPARE(m_log, QStringList({u"paste one "_s, u"paste one "_s}));
}

void BoxDragTest::draggingToAnotherBoxMovesText()
{
    m_box->setSelLength(4);
    drag(inWindow(*m_box, 1), inWindow(*m_other, 8));
    QCOMPARE(m_other->Text(), u"one two one three"_s);
    QCOMPARE(m_box->Text(), u"two three"_s);
    QCOMPARE(m_log, QStringList({u"paste one "_s, u"remove one "_s}));
}

void BoxDragTest::aMoveRemovesWhatWasDragged()
{
    m_hostsDeed = [this] {
        m_box->setSelStart(4);
        m_box->setSelLength(3);
    };
    m_box->setSelLength(4);
    m_box->viewport()->installEventFilter(this);
    drag(inWindow(*m_box, 1), inWindow(*m_box, 13));
    QCOMPARE(m_box->Text(), u"two threeone "_s);
}

void BoxDragTest::aBoxMadeReadOnlyMeanwhileKeepsItsText()
{
    connect(m_other, &RichTextBox::Change, this, [this] { m_box->setReadOnly(true); });
    m_box->setSelLength(4);
    drag(inWindow(*m_box, 1), inWindow(*m_other, 8));
    QCOMPARE(m_other->Text(), u"one two one three"_s);
    QCOMPARE(m_box->Text(), u"one two three"_s);
}

void BoxDragTest::whatAHostWritesIntoDraggedTextStays_data()
{
    QTest::addColumn<bool>("isInside");
    QTest::addColumn<bool>("isAll");
    QTest::addColumn<QString>("left");
    QTest::newRow("a word, to another box") << false << false << u"oWORDne two three"_s;
    QTest::newRow("all, to another box") << false << true << u"all is new"_s;
    QTest::newRow("a word, inside") << true << false << u"oWORDne two threeone "_s;
}

void BoxDragTest::whatAHostWritesIntoDraggedTextStays()
{
    QFETCH(const bool, isInside);
    QFETCH(const bool, isAll);
    QFETCH(const QString, left);
    m_hostsDeed = [this, isAll] {
        if (isAll) {
            m_box->setText(u"all is new"_s);
            return;
        }
        m_box->setSelStart(1);
        m_box->setSelLength(0);
        m_box->setSelText(u"WORD"_s);
    };
    RichTextBox &target = isInside ? *m_box : *m_other;
    target.viewport()->installEventFilter(this);
    m_box->setSelLength(4);
    drag(inWindow(*m_box, 1), inWindow(target, 13) + QPoint(80, 0));
    QVERIFY(!m_hostsDeed);
    QCOMPARE(m_box->Text(), left);
    if (!isInside)
        QCOMPARE(m_other->Text(), u"one two threeone "_s);
}

void BoxDragTest::aReadOnlyBoxGivesCopies()
{
    m_box->setReadOnly(true);
    m_box->setSelLength(4);
    drag(inWindow(*m_box, 1), inWindow(*m_other, 8));
    QCOMPARE(m_other->Text(), u"one two one three"_s);
    QCOMPARE(m_box->Text(), u"one two three"_s);
}

void BoxDragTest::aBoxMayGoWhileItIsDraggedFrom()
{
    m_box->setSelLength(4);
    QWindow *window = m_window->windowHandle();
    const QPoint from = inWindow(*m_box, 1);
    const QPoint to = inWindow(*m_other, 8);
    QTest::mousePress(window, Qt::LeftButton, {}, from);
    QTimer::singleShot(0, window, [this] { delete std::exchange(m_box, nullptr); });
    QTimer::singleShot(20, window, [window, to] { // in a later turn of the drag's loop
        QTest::mouseMove(window, to - QPoint(1, 0));
        QTest::mouseMove(window, to);
        QTest::mouseRelease(window, Qt::LeftButton, {}, to);
    });
    QTest::mouseMove(window, from + QPoint(40, 0));
    QCoreApplication::processEvents();
    QVERIFY(m_other->Text().contains(u"one "_s)); // where the layout has put the place
    QCOMPARE(m_other->TextLength(), 17);
}

void BoxDragTest::aBoxMayGoWhileItIsDraggedOver()
{
    m_box->setSelLength(4);
    QWindow *window = m_window->windowHandle();
    const QPoint from = inWindow(*m_box, 1);
    const QPoint to = inWindow(*m_other, 8);
    const QPointer<QWidget> over = m_other->viewport();
    over->installEventFilter(this);
    InTurn::take({[=] { QTest::mousePress(window, Qt::LeftButton, {}, from); },
                  [=] { QTest::mouseMove(window, from + QPoint(40, 0)); },
                  [=] { QTest::mouseMove(window, to); }, [this] { delete m_other; },
                  [=] { QTest::mouseMove(window, to + QPoint(1, 0)); },
                  [=] { QTest::mouseMove(window, from + QPoint(80, 0)); },
                  [=] { QTest::mouseRelease(window, Qt::LeftButton, {}, from + QPoint(80, 0)); }});
    QVERIFY(!over);
    QCOMPARE(m_leaves, 1); // or the toolkit goes on with its address
    QCOMPARE(m_box->TextLength(), 13);
    QCOMPARE(m_log, QStringList(u"paste one "_s)); // a drag goes on
}

void BoxDragTest::aClickIntoTheSelectionDoesNotDrag()
{
    m_box->setSelLength(8);
    QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {}, inWindow(*m_box, 2));
    QCOMPARE(m_box->SelStart(), 2);
    QCOMPARE(m_box->SelLength(), 0);
    QTest::mouseMove(m_window->windowHandle(), inWindow(*m_other, 2));
    QCOMPARE(m_log, QStringList());
}

void BoxDragTest::aSelectionThatIsGoneIsNotDragged()
{
    QWindow *window = m_window->windowHandle();
    m_box->setSelLength(8);
    QTest::mousePress(window, Qt::LeftButton, {}, inWindow(*m_box, 2));
    m_box->setText(u"another text"_s);
    const QPoint to = inWindow(*m_other, 8);
    QTimer::singleShot(0, window, [=] { // ends a drag's loop
        QTest::mouseMove(window, to);
        QTest::mouseRelease(window, Qt::LeftButton, {}, to);
    });
    QTest::mouseMove(window, inWindow(*m_box, 6));
    QTest::mouseMove(window, to - QPoint(1, 0));
    QCoreApplication::processEvents();
    QCOMPARE(m_log, QStringList());
    QCOMPARE(m_box->Text(), u"another text"_s);
}

void BoxDragTest::aMiddleClickEndsInPaste()
{
    QVERIFY(QGuiApplication::clipboard()->supportsSelection());
    QGuiApplication::clipboard()->setText(u"x"_s, QClipboard::Selection);
    QTest::mouseClick(m_window->windowHandle(), Qt::MiddleButton, {}, inWindow(*m_box, 3));
    QCOMPARE(m_log, QStringList(u"paste x"_s));
    QCOMPARE(m_box->Text(), u"onex two three"_s);
}

ORVT_TEST(BoxDragTest)
#include "BoxDragTest.moc"
