// What a host shows in the margin: its pictures, their tips, and their lines while the text
// is edited.

#include "editor/view/ViewFixture.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QHelpEvent>
#include <QtWidgets/QToolTip>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QIcon filled(const QColor &colour)
{
    QPixmap picture(64, 64);
    picture.fill(colour);
    return picture;
}

MarginMark mark(qint32 line, const QString &text = u"set by hand"_s,
                const QIcon &picture = filled(Qt::magenta))
{
    return {line, picture, text};
}

} // namespace

class HostMarksTest : public WidgetTest
{
    Q_OBJECT

private:
    std::unique_ptr<ViewHost> m_host;

    RichTextBox &box() { return m_host->box(); }
    CodeView &view() { return m_host->view(); }
    void caretTo(qint32 line) { box().setSelStart(box().lineStart(line - 1)); }

    // "line text" of each.
    QStringList shown()
    {
        QStringList texts;
        for (const MarginMark &each : view().marks())
            texts << u"%1 %2"_s.arg(each.line).arg(each.text);
        return texts;
    }
    QColor signOn(int line)
    {
        const QImage picture = m_host->picture(m_host->margin());
        return picture.pixelColor(std::max(12, box().fontMetrics().height() * 3 / 4) / 2,
                                  m_host->placeOf(line - 1).center().y() + 1);
    }
    QString tipOn(int line)
    {
        QToolTip::hideText();
        (void)QTest::qWaitFor([] { return !QToolTip::isVisible(); });
        const QPoint place(4, m_host->inMargin(line - 1).y());
        QHelpEvent event(QEvent::ToolTip, place, m_host->margin().mapToGlobal(place));
        QCoreApplication::sendEvent(&m_host->margin(), &event);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }

private Q_SLOTS:
    void init() override
    {
        WidgetTest::init();
        m_host = std::make_unique<ViewHost>();
        m_host->setLines(5);
    }
    void cleanup() override
    {
        m_host.reset();
        WidgetTest::cleanup();
    }

    void standInTheMargin()
    {
        QVERIFY(!m_host->margin().isVisible());
        view().setMarks({mark(4), mark(2, u"locked"_s, filled(Qt::cyan))});
        QVERIFY(m_host->margin().isVisible());
        QCOMPARE(signOn(1), m_host->ground());
        QCOMPARE(signOn(2), QColor(Qt::cyan));
        QCOMPARE(signOn(4), QColor(Qt::magenta));
        QCOMPARE(shown(), QStringList({u"2 locked"_s, u"4 set by hand"_s}));
        view().setMarks({});
        QVERIFY(!m_host->margin().isVisible());
    }

    void theirTextsAreTips()
    {
        view().setMarks({mark(2, u"<b>one</b>"_s), mark(2, u"two"_s, {}), mark(3, {})});
        QVERIFY(tipOn(2).contains(u"one"_s));
        QVERIFY(tipOn(2).contains(u"two"_s));
        QVERIFY(!tipOn(2).contains(u"<b>"_s)); // as it stands, not as a format
        QCOMPARE(tipOn(3), QString());
        view().setProblems({{2, 0, 2, ProblemSeverity::Error, u"bad"_s}});
        QVERIFY(tipOn(2).contains(u"bad"_s) && tipOn(2).contains(u"two"_s));
    }

    void aProblemIsSeenFirst()
    {
        view().setMarks({mark(2)});
        view().setProblems({{2, 0, 2, ProblemSeverity::Error, u"bad"_s}});
        QVERIFY(signOn(2) != QColor(Qt::magenta));
        view().setProblems({});
        QCOMPARE(signOn(2), QColor(Qt::magenta));
    }

    void linesOutsideCountAsTheNearestOnes()
    {
        view().setMarks({mark(99), mark(-3)});
        QCOMPARE(shown(), QStringList({u"1 set by hand"_s, u"5 set by hand"_s}));
    }

    void goWithTheirLines()
    {
        view().setMarks({mark(4, u"four"_s), mark(2, u"two"_s), mark(2, u"also two"_s)});
        caretTo(1);
        m_host->type(u"new\n"_s);
        QCOMPARE(shown(), QStringList({u"3 two"_s, u"3 also two"_s, u"5 four"_s}));
        QCOMPARE(signOn(3), QColor(Qt::magenta));
        QCOMPARE(signOn(2), m_host->ground());
        caretTo(5);
        view().moveLines(-1);
        QCOMPARE(shown(), QStringList({u"3 two"_s, u"3 also two"_s, u"4 four"_s}));
        caretTo(3);
        view().deleteLines();
        QCOMPARE(shown(), QStringList({u"3 four"_s}));
        m_host->list->setCodeText(u"another"_s);
        QCOMPARE(shown(), QStringList());
        QTRY_VERIFY(!m_host->margin().isVisible());
    }

    // Only the line that has none any more is painted.
    void areTakenAwayAgain()
    {
        view().setLineNumbersVisible(true);
        const QImage before = m_host->picture(m_host->margin());
        view().setMarks({mark(2)});
        QVERIFY(m_host->picture(m_host->margin()) != before);
        view().setMarks({});
        QCOMPARE(m_host->picture(m_host->margin()), before);
    }

    void screenReadersAreTold()
    {
        view().setMarks({mark(2, u"locked"_s)});
        caretTo(2);
        QCOMPARE(box().accessibleDescription(), u"locked"_s);
        caretTo(1);
        QCOMPARE(box().accessibleDescription(), QString());
    }

    void nothingOfItIsInTheText()
    {
        const QString rtf = m_host->list->CodeTextRTF();
        QSignalSpy changes(&box(), &RichTextBox::Change);
        view().setMarks({mark(1), mark(2)});
        QCOMPARE(changes.count(), 0);
        QCOMPARE(m_host->list->CodeTextRTF(), rtf);
    }
};

ORVT_TEST(HostMarksTest)
#include "HostMarksTest.moc"
