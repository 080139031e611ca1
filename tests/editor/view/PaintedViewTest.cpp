// What is painted for a key: no more than the key changed, and all of that.

#include "editor/AllOfTheView.h"
#include "editor/view/ViewFixture.h"
#include "support/RandomSession.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/box/BoxLayers.h"

#include <QtCore/QTimer>
#include <QtGui/QScreen>
#include <QtGui/QTextCursor>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// Notes which lines are painted, and how much of each.
class WatchingLayer final : public BoxLayer
{
public:
    explicit WatchingLayer(BoxLayers &layers)
        : BoxLayer(layers, 1000)
    {
        setShown(true);
    }
    void paintBelow(QPainter &, const ShownLines &lines) override { painted += lines; }

    ShownLines painted;
};

// Types and does other things in a small window with all that the view shows. The picture
// on the screen is the one that painting anew makes.
class Session final : public RandomSession
{
public:
    explicit Session(unsigned seed)
        : RandomSession(seed)
    {
        m_host.list->openProgram(u"IF Temp1 > Limit1\r\n\tFan1 = ( 1 + Temp2 )\r\n"_s.repeated(4) +
                                 u"ENDIF\r\n"_s.repeated(4));
        switchView(m_host.view(), true, {"wordListOpensItself"});
        m_host.view().setLiveValues({{u"Temp1"_s, u"19.4 °C"_s}, {u"Fan1"_s, u"On"_s}});
        box().findChild<QTimer *>(u"LiveValuesPause"_s)->setInterval(0);
        m_host.markLines();
    }

private:
    RichTextBox &box() { return m_host.box(); }

    void act() override
    {
        static const QStringList values{u"19.5 °C"_s, u"ein"_s, u"g_|"_s, u"Ấ\u0302\u0302ậ"_s,
                                        u"Ω Ж"_s};
        static const QStringList letters{u"x"_s,  u"_"_s,  u"Temp1 "_s, u"\t"_s,
                                         u"g)"_s, u"(Ấ"_s, u"Å|"_s,     u"e\u0302\u0302\u0302"_s};
        const QString letter = oneOf(letters);
        switch (number(11)) {
        case 0:
            note(u"go"_s);
            box().setSelStart(number(box().TextLength() + 1));
            break;
        case 1:
            note(u"Backspace"_s);
            m_host.key(Qt::Key_Backspace);
            break;
        case 2:
            note(u"Enter"_s);
            if (box().lineCount() < (m_scrolls ? 60 : 15))
                m_host.key(Qt::Key_Return);
            break;
        case 3:
            note(u"values"_s);
            m_host.view().setLiveValues({{u"Temp1"_s, oneOf(values)}, {u"Temp2"_s, u"1"_s}});
            break;
        case 4:
            note(u"arrows"_s);
            m_host.key(oneIn(2) ? Qt::Key_Up : Qt::Key_Right);
            break;
        case 5:
            note(u"left"_s);
            m_host.key(Qt::Key_Left);
            break;
        case 6:
            note(u"scroll"_s);
            scroll(*box().verticalScrollBar());
            break;
        case 7:
            note(u"scroll sideways"_s);
            scroll(*box().horizontalScrollBar());
            break;
        default:
            note(u"put in "_s + letter);
            if (box().lineText(box().GetLineFromChar(box().SelStart())).size() <
                (m_scrolls ? 200 : 100))
                box().setSelText(letter);
        }
        QCoreApplication::processEvents();
    }

    void scroll(QScrollBar &bar)
    {
        if (m_scrolls)
            bar.setValue(number(bar.maximum() + 1));
    }

    QString whatIsWrong() override
    {
        for (int i = 0; i < 4; ++i) // values are taken later, and painting may ask for more
            QCoreApplication::processEvents();
        const QImage shown = m_host.form.screen()->grabWindow(m_host.form.winId()).toImage();
        const QImage anew = m_host.form.grab().toImage().convertToFormat(shown.format());
        for (int y = 0; y < anew.height() && shown != anew; ++y) {
            if (shown.copy(0, y, anew.width(), 1) != anew.copy(0, y, anew.width(), 1))
                return u"the screen differs in row %1"_s.arg(y);
        }
        return shown.size() == anew.size() ? QString() : u"there is no picture"_s;
    }

    ThreadState::Fresh m_state;
    ViewHost m_host;
    const bool m_scrolls = oneIn(2);
};

} // namespace

class PaintedViewTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setCursorFlashTime(0); }

    // Beside the caret the toolkit has a pixel of the lines around it painted.
    void aKeyPaintsItsLineAndLettersBesideTheCaret_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<bool>("isHigher");
        QTest::newRow("plain letters") << u"\tFan1 = ( Temp1 + 20 ) "_s << false;
        QTest::newRow("letters above their row") << u"Fan1 = Ấ\u0302\u0302 "_s << true;
    }
    void aKeyPaintsItsLineAndLettersBesideTheCaret()
    {
        QFETCH(const QString, line);
        QFETCH(const bool, isHigher);
        const ThreadState::Fresh state;
        ViewHost host;
        if (host.box().devicePixelRatioF() != 1)
            return; // the bound is one of pixels
        switchView(host.view(), true, typingHelps);
        host.view().setLiveValues({{u"Temp1"_s, u"19.4 °C"_s}});
        host.list->openProgram(QStringList(12, line).join(u"\r\n"_s));
        host.box().setSelStart(host.box().lineStart(5) - 2);
        host.type(u"x"_s);
        QCoreApplication::processEvents();
        WatchingLayer watching(BoxLayers::of(host.box()));
        QCoreApplication::processEvents();
        watching.painted.clear();
        host.type(u"x"_s);
        QCoreApplication::processEvents();
        QVERIFY(!watching.painted.isEmpty());
        const qreal narrow = 40;
        for (const ShownLine &painted : std::as_const(watching.painted)) {
            const bool isWhole = painted.area.width() > narrow;
            if (painted.block.blockNumber() == 4)
                QCOMPARE(painted.area.width(), qreal(host.box().viewport()->width()));
            else
                QCOMPARE(isWhole, isHigher);
        }
    }

    void aSelectionLeavesOtherLinesAsTheyAre()
    {
        const ThreadState::Fresh state;
        ViewHost host;
        switchView(host.view(), true, {"currentLineShown"});
        host.list->openProgram(u"IF Temp1 > 1\r\n\tFan1 = 2\r\nENDIF Fan1 Ấ\r\nTemp1\r\n"_s);
        host.box().setSelStart(host.box().lineStart(1));
        const QRect below = host.box().viewport()->rect().adjusted(0, host.placeOf(2).top(), 0, 0);
        const QImage plain = host.picture(*host.box().viewport()).copy(below);
        host.box().setSelLength(6);
        QCOMPARE(host.picture(*host.box().viewport()).copy(below), plain);
    }

    void guidesOfABlankLineFollowTheLineBelow()
    {
        const ThreadState::Fresh state;
        ViewHost host;
        host.view().setIndentGuidesShown(true);
        host.list->openProgram(u"\t\tTemp1\r\n\r\n\t\tFan1"_s);
        host.box().setSelStart(host.box().lineStart(2) + 2);
        QCoreApplication::processEvents();
        const auto onScreen = [&] {
            QCoreApplication::processEvents();
            return host.form.screen()->grabWindow(host.form.winId()).toImage();
        };
        const QImage before = onScreen();
        host.key(Qt::Key_Backspace);
        host.key(Qt::Key_Backspace);
        const QImage after = onScreen();
        const QRect blank(host.box().viewport()->mapTo(&host.form, host.placeOf(1).topLeft()),
                          QSize(200, host.placeOf(1).height()));
        QVERIFY(before.copy(blank) != after.copy(blank));
        QCOMPARE(after, host.form.grab().toImage().convertToFormat(after.format()));
    }

    void whatAValueLeavesBesideItsLineGoesWithIt()
    {
        const ThreadState::Fresh state;
        ViewHost host;
        host.view().setLiveValuesShown(true);
        host.view().setLiveValues({{u"Temp1"_s, u"g"_s + u"\u0323"_s.repeated(4)}});
        host.list->openProgram(u"\r\n"_s.repeated(9) + u"Temp1"_s + u"\r\n"_s.repeated(80));
        QScrollBar &bar = *host.box().verticalScrollBar();
        for (const int top : {0, 8, 9, 10, 11, 10, 9, 40, 10}) {
            bar.setValue(top);
            QCoreApplication::processEvents();
            const QImage shown = host.form.screen()->grabWindow(host.form.winId()).toImage();
            QCOMPARE(shown, host.form.grab().toImage().convertToFormat(shown.format()));
        }
    }

    void theScreenShowsWhatPaintingAnewShows() { runSessions<Session>(6, 300); }
};

ORVT_TEST(PaintedViewTest)
#include "PaintedViewTest.moc"
