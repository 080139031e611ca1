// What the host answers about a word that the mouse rests on, or that is chosen in the word
// list, and which tip is shown when there are several.

#include "editor/view/ViewFixture.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/look/TipCard.h"
#include <ORVTListview/HoverAnswer.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>

#include <QtCore/QMetaMethod>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QHelpEvent>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolTip>

#include <algorithm>
#include <functional>
#include <stdexcept>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class HoverTest;
using Act = std::function<void(HoverTest &test)>;
Q_DECLARE_METATYPE(Act)

class HoverTest : public WidgetTest
{
    Q_OBJECT

private:
    std::unique_ptr<ViewHost> m_host;
    QStringList m_asked; // "word:line"

    RichTextBox &box() { return m_host->box(); }
    CodeView &view() { return m_host->view(); }
    QTimer &rest() { return *box().findChild<QTimer *>(u"MouseRest"_s); }
    TipCard *card() { return box().findChild<TipCard *>(); }
    bool isShown() { return card() && card()->isVisible(); }
    QStringList texts()
    {
        QStringList shown;
        for (const QLabel *label : card()->findChildren<QLabel *>()) {
            if (label->isVisible() && !label->text().isEmpty())
                shown.append(label->text());
        }
        return shown;
    }
    QString labelText(const QString &part)
    {
        const QStringList found = texts().filter(part);
        return found.value(0);
    }

    // Of a line, from 0, and a letter of it, in the viewport.
    QPoint letter(int line, int offset)
    {
        QTextCursor place(box().document()->findBlockByNumber(line));
        place.setPosition(place.position() + offset);
        const int half = box().fontMetrics().averageCharWidth() / 2;
        return box().cursorRect(place).center() + QPoint(half, 0);
    }
    void mouseTo(const QPoint &inViewport)
    {
        QWindow *window = m_host->form.windowHandle();
        QTest::mouseMove(window, box().viewport()->mapTo(&m_host->form, inViewport));
        QCoreApplication::processEvents();
    }
    void restAt(const QPoint &inViewport)
    {
        mouseTo(inViewport);
        if (!rest().isActive())
            return;
        const QPointer<QTimer> timer(&rest()); // the host may destroy it
        timer->start(0);
        QTRY_VERIFY(!timer || !timer->isActive());
        if (timer)
            timer->setInterval(400);
    }
    void answerWith(const std::function<void(HoverAnswer &answer)> &fill)
    {
        connect(&view(), &CodeView::hoverAsked, this,
                [this, fill](const QString &word, qint32 line, HoverAnswer *answer) {
                    m_asked << u"%1:%2"_s.arg(word).arg(line);
                    fill(*answer);
                });
    }
    void answerByCard()
    {
        answerWith([](HoverAnswer &answer) {
            answer.setName(u"Temp1"_s);
            answer.setKind(dsInput);
            answer.setValue(u"19.4"_s);
            answer.setUnit(u"°C"_s);
            answer.setDescription(u"Supply air <b>behind</b> the fan"_s);
        });
    }
    // What the toolkit asks for; whether it was answered.
    bool tip(const QPoint &inViewport)
    {
        QWidget &viewport = *box().viewport();
        QHelpEvent event(QEvent::ToolTip, inViewport, viewport.mapToGlobal(inViewport));
        return QCoreApplication::sendEvent(&viewport, &event);
    }
    QRect wordOnScreen(int line, int from, int length)
    {
        const QPoint start = letter(line, from);
        const QPoint end = letter(line, from + length - 1);
        const QRect row = m_host->placeOf(line);
        return {box().viewport()->mapToGlobal(QPoint(start.x(), row.top())),
                QSize(end.x() - start.x(), row.height())};
    }

private Q_SLOTS:
    void init() override
    {
        WidgetTest::init();
        m_asked.clear();
        m_host = std::make_unique<ViewHost>();
        m_host->list->setCodeText(u"x = ( temp1 + fan1 )\r\nrem temp1\r\nif x\r\n"
                                  "  y = 1\r\nendif\r\nz = temp2"_s);
        mouseTo({300, 200}); // beside the text
    }
    void cleanup() override
    {
        QToolTip::hideText();
        m_host.reset();
        WidgetTest::cleanup();
    }

    void nobodyFollowsTheMouseWhileNobodyAnswers()
    {
        mouseTo({-5, -5});
        mouseTo(letter(0, 8));
        QVERIFY(!rest().isActive());
        QVERIFY(!box().viewport()->hasMouseTracking());
    }

    void theHostIsAskedOnceTheMouseHasRested()
    {
        answerByCard();
        mouseTo({-5, -5});
        mouseTo(letter(0, 8));
        QCOMPARE(rest().interval(), 400);
        QVERIFY(rest().isActive());
        QCOMPARE(m_asked, QStringList());
        restAt(letter(0, 7));
        QCOMPARE(m_asked, QStringList{u"temp1:1"_s});
        restAt(letter(0, 9)); // the same word
        QCOMPARE(m_asked.size(), 1);
        restAt(letter(0, 15));
        QCOMPARE(m_asked.last(), u"fan1:1"_s);
        restAt(letter(5, 5));
        QCOMPARE(m_asked.last(), u"temp2:6"_s);
    }

    void aCommentAndTheGroundHaveNoWords()
    {
        answerByCard();
        mouseTo({-5, -5});
        restAt(letter(1, 6));
        restAt({300, 200});
        restAt(letter(0, 5)); // blank
        QCOMPARE(m_asked, QStringList());
        QVERIFY(!isShown());
    }

    void theCardStandsBesideTheWord()
    {
        answerByCard();
        mouseTo({-5, -5});
        restAt(letter(0, 8));
        QVERIFY(isShown());
        QVERIFY(texts().contains(u"Temp1"_s));
        QVERIFY(texts().contains(u"Inputs"_s));
        QVERIFY(texts().contains(u"19.4 °C"_s));
        QVERIFY(texts().contains(u"Supply air <b>behind</b> the fan"_s));
        QVERIFY(!card()->findChild<QLabel *>()->pixmap().isNull());
        const QRect word = wordOnScreen(0, 6, 5);
        QVERIFY(!card()->geometry().intersects(word));
        QVERIFY(card()->geometry().top() - word.bottom() < word.height());
        QVERIFY(box().hasFocus());
        QVERIFY(m_host->form.isActiveWindow());
    }

    void theCardStandsOverTheWordWhereTheScreenEnds()
    {
        answerByCard();
        const QRect screen = box().screen()->availableGeometry();
        m_host->form.move(screen.right() - 300, screen.bottom() - m_host->form.height() / 3);
        QCoreApplication::processEvents();
        mouseTo({-5, -5});
        restAt(letter(4, 1));
        QVERIFY(isShown());
        QVERIFY(card()->geometry().bottom() < wordOnScreen(4, 0, 5).top());
        QVERIFY(screen.contains(card()->geometry()));
    }

    void aTextStandsAlone()
    {
        answerWith([](HoverAnswer &answer) {
            answer.setName(u"unseen"_s);
            answer.setText(u"<h1>plain</h1>\nsecond"_s);
        });
        mouseTo({-5, -5});
        restAt(letter(0, 8));
        QCOMPARE(texts(), QStringList{u"<h1>plain</h1>\nsecond"_s});
    }

    void aMillionLettersAreCut()
    {
        const QString much(1000 * 1000, u'm');
        answerWith([&](HoverAnswer &answer) {
            answer.setName(much);
            answer.setKind(dsInput);
            answer.setValue(much);
            answer.setUnit(u"kWh"_s);
            answer.setDescription(much);
        });
        mouseTo({-5, -5});
        restAt(letter(0, 8));
        QVERIFY(isShown());
        QVERIFY(card()->width() <= box().screen()->availableSize().width());
        QVERIFY(card()->height() <= box().screen()->availableSize().height());
        QVERIFY(!labelText(u"kWh"_s).isEmpty());
        for (const QString &text : texts())
            QVERIFY(text.size() < 2000);
    }

    void anEmptyAnswerShowsNothing()
    {
        answerWith([](HoverAnswer &) {});
        mouseTo({-5, -5});
        restAt(letter(0, 8));
        restAt(letter(0, 9));
        QCOMPARE(m_asked.size(), 1);
        QVERIFY(!isShown());
        restAt(letter(0, 15));
        restAt(letter(0, 9));
        QCOMPARE(m_asked.size(), 3);
    }

    void itGoes_data()
    {
        QTest::addColumn<Act>("act");
        const auto row = [](const char *name, const Act &act) { QTest::newRow(name) << act; };
        row("to another word", [](HoverTest &test) { test.mouseTo(test.letter(0, 15)); });
        row("to the ground", [](HoverTest &test) { test.mouseTo({300, 200}); });
        row("out of the box", [](HoverTest &test) { test.mouseTo({-5, -5}); });
        row("key", [](HoverTest &test) { test.m_host->key(Qt::Key_Right); });
        row("press", [](HoverTest &test) {
            QTest::mousePress(test.box().viewport(), Qt::LeftButton, {}, test.letter(0, 8));
            QTest::mouseRelease(test.box().viewport(), Qt::LeftButton, {}, test.letter(0, 8));
        });
        row("wheel", [](HoverTest &test) {
            const QPoint place = test.letter(0, 8);
            QWheelEvent turn(place, test.box().viewport()->mapToGlobal(place), {}, {0, -120}, {},
                             {}, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(test.box().viewport(), &turn);
        });
        row("focus", [](HoverTest &test) { test.m_host->before->setFocus(); });
        row("another window", [](HoverTest &) {
            QWidget other;
            other.show();
            other.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&other));
        });
        row("scrolled", [](HoverTest &test) { test.box().verticalScrollBar()->setValue(3); });
        row("moved", [](HoverTest &test) { test.m_host->form.move(50, 60); });
        row("another text", [](HoverTest &test) { test.m_host->list->setCodeText(u"a = 2"_s); });
        row("hidden", [](HoverTest &test) { test.m_host->list->setListviewType(dsInput); });
        row("disabled window", [](HoverTest &test) { test.m_host->form.hide(); });
    }
    void itGoes()
    {
        QFETCH(const Act, act);
        m_host->setLines(100, u"x = ( temp1 + fan1 )"_s);
        answerByCard();
        mouseTo({-5, -5});
        restAt(letter(0, 8));
        QVERIFY(isShown());
        act(*this);
        QTRY_VERIFY(!isShown());
        QTest::qWait(0);
        QVERIFY(!isShown());
    }

    void itComesBackAfterAKey()
    {
        answerByCard();
        mouseTo({-5, -5});
        restAt(letter(0, 8));
        m_host->key(Qt::Key_Right);
        QVERIFY(!isShown());
        restAt(letter(0, 9));
        QVERIFY(isShown());
    }

    void whatIsWrongComesFirst()
    {
        answerByCard();
        view().setProblems({{1, 6, 5, ProblemSeverity::Error, u"bad"_s}});
        mouseTo({-5, -5});
        restAt(letter(0, 8));
        QCOMPARE(m_asked, QStringList());
        tip(letter(0, 8));
        QTRY_COMPARE(QToolTip::text(), u"bad"_s);
        restAt(letter(0, 15)); // and its tip goes when the other one comes
        QVERIFY(isShown());
        QTRY_VERIFY(!QToolTip::isVisible());
        mouseTo(letter(0, 8));
        QVERIFY(!isShown());
        tip(letter(0, 8));
        QTRY_VERIFY(QToolTip::isVisible());
        QVERIFY(!isShown());
    }

    void theBoxesOwnTipIsForWhatHasNoOther()
    {
        answerByCard();
        box().viewport()->setToolTip(u"own"_s);
        mouseTo({-5, -5});
        restAt(letter(0, 8));
        QVERIFY(isShown());
        QVERIFY(tip(letter(0, 8))); // taken
        QVERIFY(!QToolTip::isVisible());
        mouseTo({300, 200});
        tip({300, 200});
        QTRY_COMPARE(QToolTip::text(), u"own"_s);
    }

    void foldedZoomedAndFromRightToLeft()
    {
        answerByCard();
        view().setFoldingEnabled(true);
        view().foldAll();
        mouseTo({-5, -5});
        restAt(letter(5, 5)); // behind the fold
        QCOMPARE(m_asked.last(), u"temp2:6"_s);
        view().setZoom(200);
        m_host->form.setLayoutDirection(Qt::RightToLeft);
        QCoreApplication::processEvents();
        mouseTo({-5, -5});
        const int offset = box().fontMetrics().averageCharWidth() / 2;
        restAt(letter(0, 8) + QPoint(offset, 0));
        QCOMPARE(m_asked.last(), u"temp1:1"_s);
        QVERIFY(isShown());
        QVERIFY(card()->isRightToLeft());
        QVERIFY(!card()->geometry().contains(QCursor::pos()));
    }

    void namesAreEnoughForAHost()
    {
        const QMetaObject &names = *view().metaObject();
        const int number =
            names.indexOfSignal("hoverAsked(QString,qint32,ORVTListview::HoverAnswer*)");
        QVERIFY(number >= 0);
        QCOMPARE(names.method(number).parameterNames(), (QByteArrayList{"word", "line", "answer"}));
        QVERIFY(names.method(number).parameterMetaType(2).flags() & QMetaType::PointerToQObject);
        answerWith([](HoverAnswer &typed) {
            QObject &answer = typed;
            QVERIFY(answer.setProperty("name", u"Fan1"_s));
            QVERIFY(answer.setProperty("kind", 4));
            QVERIFY(answer.setProperty("value", 7));
            QVERIFY(answer.setProperty("unit", u"%"_s));
        });
        mouseTo({-5, -5});
        restAt(letter(0, 8));
        QCOMPARE(texts(), (QStringList{u"Fan1"_s, u"Outputs"_s, u"7 %"_s}));
    }

    void theHostMayDestroyTheControl()
    {
        answerWith([this](HoverAnswer &answer) {
            delete m_host->list;
            answer.setText(u"late"_s);
        });
        mouseTo({-5, -5});
        restAt(letter(0, 8));
        QCOMPARE(m_asked.size(), 1);
        QVERIFY(m_host->form.findChild<TipCard *>() == nullptr);
    }

    void theHostMayThrow()
    {
        answerWith([](HoverAnswer &) { throw std::runtime_error("no points"); });
        mouseTo({-5, -5});
        QTest::ignoreMessage(QtWarningMsg, "An event handler failed: no points");
        restAt(letter(0, 8));
        QVERIFY(!isShown());
        QTest::ignoreMessage(QtWarningMsg, "An event handler failed: no points");
        restAt(letter(0, 15));
        QCOMPARE(m_asked.size(), 2);
    }

    void theHostMayChangeTheText()
    {
        answerWith([this](HoverAnswer &answer) {
            answer.setText(u"told"_s);
            m_host->list->setCodeText(u"other = 1"_s);
        });
        mouseTo({-5, -5});
        restAt(letter(0, 8));
        QVERIFY(!isShown());
    }

    void theHostMayTakeItsTime()
    {
        answerWith([this](HoverAnswer &answer) {
            answer.setText(u"told"_s);
            mouseTo({-5, -5});
            rest().start(0);
            QCoreApplication::processEvents();
        });
        mouseTo({-5, -5});
        restAt(letter(0, 8));
        QCOMPARE(m_asked.size(), 1);
        QVERIFY(!isShown());
    }

    void theChosenEntryOfTheWordListIsAskedAbout()
    {
        answerByCard();
        m_host->list->setCodeText(u"a\r\nx = "_s);
        box().setSelStart(8);
        m_host->list->TryToPopupList();
        QVERIFY(m_host->wordList().isVisible());
        auto &choice = *m_host->wordList().findChild<QTimer *>(u"ChoiceRest"_s);
        m_host->key(Qt::Key_Down);
        m_host->key(Qt::Key_Down);
        QCOMPARE(m_asked, QStringList());
        QVERIFY(choice.isActive());
        choice.start(0);
        QTRY_VERIFY(isShown());
        QCOMPARE(m_asked, QStringList{m_host->wordList().SelectedItem()->Text() + u":2"_s});
        QVERIFY(!card()->geometry().intersects(m_host->wordList().geometry()));
        QVERIFY(card()->geometry().top() >= m_host->wordList().geometry().top());
        m_host->key(Qt::Key_Down);
        QVERIFY(!isShown());
        choice.start(0);
        QTRY_VERIFY(isShown());
        m_host->key(Qt::Key_Escape);
        QVERIFY(!isShown());
        QVERIFY(!choice.isActive());
        QVERIFY(box().hasFocus());
        m_host->list->TryToPopupList();
        m_host->key(Qt::Key_Down);
        QVERIFY(choice.isActive());
        m_host->key(Qt::Key_Escape);
        QVERIFY(!choice.isActive());
    }

    void newValuesAreAskedForAsLongAsTheCardIsShown()
    {
        QString value = u"1"_s;
        answerWith([&value](HoverAnswer &answer) {
            answer.setName(u"Temp"_s);
            answer.setValue(value);
        });
        m_host->list->TryToPopupList();
        m_host->key(Qt::Key_Down);
        m_host->wordList().findChild<QTimer *>(u"ChoiceRest"_s)->start(0);
        QTRY_VERIFY(isShown());
        const QRect place = card()->geometry();
        value = u"2"_s;
        view().setLiveValues({{u"Temp"_s, value}});
        QVERIFY(isShown());
        QCOMPARE(m_asked.size(), 2);
        QCOMPARE(card()->geometry(), place);
        const QList<QLabel *> parts = card()->findChildren<QLabel *>();
        QVERIFY(
            std::ranges::any_of(parts, [](const QLabel *part) { return part->text() == u"2"; }));
        m_host->key(Qt::Key_Escape);
        view().setLiveValues({{u"Temp"_s, u"3"_s}});
        QCOMPARE(m_asked.size(), 2);
    }

    void theChosenEntryOfAListThatOpensItselfIsAskedAbout()
    {
        answerByCard();
        view().setWordListOpensItself(true);
        m_host->list->setCodeText({});
        m_host->type(u"tem"_s);
        auto &choice = *m_host->wordList().findChild<QTimer *>(u"ChoiceRest"_s);
        QVERIFY(!m_host->wordList().isVisible());
        QVERIFY(choice.isActive());
        choice.start(0);
        QTRY_VERIFY(isShown());
        QCOMPARE(m_asked, QStringList{m_host->wordList().SelectedItem()->Text() + u":1"_s});
        m_host->key(Qt::Key_Down);
        QVERIFY(!isShown());
        choice.start(0);
        QTRY_VERIFY(isShown());
        m_host->key(Qt::Key_Escape);
        QVERIFY(!isShown());
        QVERIFY(!choice.isActive());
    }

    void theWordListMayGoWhileTheHostAnswers()
    {
        answerWith([this](HoverAnswer &answer) {
            answer.setText(u"told"_s);
            delete m_host->list;
        });
        m_host->list->TryToPopupList();
        m_host->key(Qt::Key_Down);
        m_host->wordList().findChild<QTimer *>(u"ChoiceRest"_s)->start(0);
        QTRY_COMPARE(m_asked.size(), 1);
    }

    void aTableAsksNobody()
    {
        answerByCard();
        m_host->list->setListviewType(dsInput);
        m_host->list->ListItems()->Item(1)->setSelected(true);
        QVERIFY(!m_host->wordList().findChild<QTimer *>(u"ChoiceRest"_s)->isActive());
    }
};

ORVT_TEST(HoverTest)
#include "HoverTest.moc"
