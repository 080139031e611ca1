// Values that the host gives for names, behind the lines that use them.

#include "editor/view/ViewFixture.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtCore/QTimer>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

using Values = QHash<QString, QString>;

class LiveValuesTest : public WidgetTest
{
    Q_OBJECT

private:
    std::unique_ptr<ViewHost> m_host;

    RichTextBox &box() { return m_host->box(); }
    CodeView &view() { return m_host->view(); }
    QTimer &pause() { return *box().findChild<QTimer *>(u"LiveValuesPause"_s); }
    QImage picture() { return m_host->picture(*box().viewport()); }

    // The part of a line that something is painted on, in pixels of the viewport; from,
    // to. -1 for a line that looks as its ground does.
    std::pair<int, int> painted(int line, const QImage &shown)
    {
        const QRect place = m_host->placeOf(line);
        int first = -1;
        int last = -1;
        for (int x = 0; x < shown.width(); ++x) {
            for (int y = place.top(); y < place.bottom(); ++y) {
                if (shown.pixelColor(x, y) == m_host->ground())
                    continue;
                first = first < 0 ? x : first;
                last = x;
            }
        }
        return {first, last};
    }
    int end(int line) { return painted(line, picture()).second; }
    int begin(int line) { return painted(line, picture()).first; }
    void show(const Values &values)
    {
        view().setLiveValuesShown(true);
        view().setLiveValues(values);
        if (pause().isActive())
            QTRY_VERIFY(!pause().isActive());
    }

private Q_SLOTS:
    void init() override
    {
        WidgetTest::init();
        QApplication::setCursorFlashTime(0);
        m_host = std::make_unique<ViewHost>();
        m_host->list->setCodeText(u"x = temp1 + 1\r\nrem Temp1 is cold\r\nif (TEMP1 > fan1)\r\n"
                                  "y = temp12\r\nendif\r\n\r\n"_s);
    }
    void cleanup() override
    {
        m_host.reset();
        WidgetTest::cleanup();
    }

    void standBehindTheLinesThatUseTheirNames()
    {
        const QImage before = picture();
        const int ends[] = {end(0), end(1), end(2), end(3), end(4)};
        show({{u"Temp1"_s, u"19.4 °C"_s}});
        const int letter = box().fontMetrics().averageCharWidth();
        QVERIFY(end(0) > ends[0] + 8 * letter);
        QCOMPARE(end(1), ends[1]); // a comment
        QVERIFY(end(2) > ends[2] + 8 * letter);
        QCOMPARE(end(3), ends[3]); // another name
        QCOMPARE(end(4), ends[4]);
        view().setLiveValuesShown(false);
        QCOMPARE(picture(), before);
    }

    void thoseOfTheCaretsLineAreToldToScreenReaders()
    {
        box().setAccessibleDescription(u"the host's"_s);
        show({{u"Temp1"_s, u"19.4 °C"_s}});
        QCOMPARE(box().accessibleDescription(), u"temp1 19.4 °C"_s);
        show({{u"Temp1"_s, u"19.5 °C"_s}});
        QCOMPARE(box().accessibleDescription(), u"temp1 19.5 °C"_s);
        m_host->key(Qt::Key_Down); // a comment
        QCOMPARE(box().accessibleDescription(), u"the host's"_s);
        m_host->key(Qt::Key_Down);
        view().setLineNumbersVisible(true);
        QCOMPARE(box().accessibleDescription(), u"the host's\nLine 3\nTEMP1 19.5 °C"_s);
        view().setLiveValuesShown(false);
        QCOMPARE(box().accessibleDescription(), u"the host's\nLine 3"_s);
        view().setLiveValuesShown(true);
        QCOMPARE(box().accessibleDescription(), u"the host's\nLine 3\nTEMP1 19.5 °C"_s);
        view().setLineNumbersVisible(false);
        view().setLiveValues({});
        QTRY_COMPARE(box().accessibleDescription(), u"the host's"_s);
    }

    void typingRepaintsItsLineOnly()
    {
        m_host->setLines(12);
        box().setSelStart(box().lineStart(8));
        m_host->type(u"long "_s.repeated(60)); // the view scrolls sideways
        box().setSelStart(box().lineStart(3) + 2);
        switchView(view(), true, {"wordListOpensItself"});
        show({{u"x4"_s, u"19.4 °C"_s}});
        m_host->markLines();
        m_host->type(u"7"_s); // its line is changed for the first time
        QCoreApplication::processEvents();
        Painted text;
        Painted beside;
        box().viewport()->installEventFilter(&text);
        m_host->margin().installEventFilter(&beside);
        m_host->type(u"7"_s);
        QCoreApplication::processEvents();
        QVERIFY(!text.region.isEmpty());
        QVERIFY(text.region.boundingRect().height() < 2 * m_host->placeOf(3).height());
        QVERIFY(beside.region.isEmpty());
    }

    void areFoundInAnyLetterCase()
    {
        show({{u"TEMP1"_s, u"1"_s}});
        const QImage large = picture();
        show({{u"temp1"_s, u"1"_s}});
        QCOMPARE(picture(), large);
        m_host->list->setCodeText(u"x = stra\u00dfe"_s);
        const int before = end(0);
        show({{u"STRASSE"_s, u"1"_s}});
        QVERIFY(end(0) > before);
    }

    void severalStandBesideEachOther()
    {
        show({{u"temp1"_s, u"1"_s}});
        const int one = end(2);
        show({{u"temp1"_s, u"1"_s}, {u"fan1"_s, u"2"_s}});
        QVERIFY(end(2) > one + 3 * box().fontMetrics().averageCharWidth());
    }

    void aNameStandsOncePerLine()
    {
        m_host->list->setCodeText(u"temp1 = temp1 + TEMP1\r\ntemp1 = fan1  + fan1 "_s);
        show({{u"temp1"_s, u"1"_s}});
        const int letter = box().fontMetrics().averageCharWidth();
        QVERIFY(std::abs(end(0) - end(1)) <= letter);
    }

    void followTheTextAtOnce()
    {
        show({{u"temp1"_s, u"1"_s}});
        const int before = end(0);
        box().setSelStart(0);
        m_host->type(u"abcd"_s);
        const int moved = end(0);
        QVERIFY(moved > before + 2 * box().fontMetrics().averageCharWidth());
        m_host->list->setCodeText(u"x = 1"_s);
        QVERIFY(end(0) < before);
    }

    void areTakenAfterAPause()
    {
        view().setLiveValuesShown(true);
        view().setLiveValues({{u"temp1"_s, u"1"_s}});
        const int first = end(0);
        QVERIFY(pause().isActive());
        QVERIFY(pause().interval() >= 100);
        pause().setInterval(3600 * 1000);
        view().setLiveValues({{u"temp1"_s, u"12345678"_s}});
        view().setLiveValues({{u"temp1"_s, u"1234567890123456"_s}});
        QCOMPARE(end(0), first);
        pause().setInterval(0);
        QTRY_VERIFY(end(0) > first);
        const int last = end(0);
        QVERIFY(last > first + 10 * box().fontMetrics().averageCharWidth());
        pause().stop();
        view().setLiveValues({});
        QVERIFY(end(0) < first); // all former ones are gone
    }

    void onlyLinesThatChangeArePainted()
    {
        show({{u"temp1"_s, u"1"_s}, {u"fan1"_s, u"2"_s}});
        const auto repainted = [this](const Values &values) {
            Painted watcher;
            QCoreApplication::processEvents();
            box().viewport()->installEventFilter(&watcher);
            pause().stop();
            view().setLiveValues(values);
            QCoreApplication::processEvents();
            return watcher.region;
        };
        QCOMPARE(repainted({{u"temp1"_s, u"1"_s}, {u"fan1"_s, u"2"_s}, {u"no"_s, u"7"_s}}),
                 QRegion());
        const QRegion one = repainted({{u"temp1"_s, u"1"_s}, {u"fan1"_s, u"3"_s}});
        QVERIFY(one.contains(m_host->placeOf(2).center()));
        QVERIFY(!one.contains(m_host->placeOf(0).center()));
    }

    void aKeyPaintsItsLineOnlyHoweverManyNamesThereAre()
    {
        Values values{{u"temp1"_s, u"1"_s}};
        for (int i = 0; i < 10000; ++i)
            values.insert(u"name"_s + QString::number(i), u"1"_s);
        show(values);
        box().setSelStart(1);
        QCoreApplication::processEvents();
        Painted watcher;
        box().viewport()->installEventFilter(&watcher);
        m_host->type(u"a"_s);
        QCoreApplication::processEvents();
        QVERIFY(watcher.region.contains(m_host->placeOf(0).center()));
        QVERIFY(!watcher.region.contains(m_host->placeOf(2).center()));
        QVERIFY(!pause().isActive()); // nor were the names read again
    }

    void linesOutOfSightAreNotLookedAt()
    {
        m_host->setLines(5000, u"x%1 = temp1"_s);
        show({{u"temp1"_s, u"1"_s}});
        picture();
        int laidOut = 0;
        for (QTextBlock line = box().document()->firstBlock(); line.isValid(); line = line.next())
            laidOut += line.layout()->lineCount() > 0;
        QVERIFY(laidOut < 200);
    }

    void whatDoesNotFitIsCut()
    {
        show({{u"temp1"_s, QString(200, u'm')}});
        const QImage cut = picture();
        QVERIFY(end(0) < cut.width());
        show({{u"temp1"_s, QString(300, u'm')}});
        QCOMPARE(picture(), cut);
        show({{u"temp1"_s, QString(1000 * 1000, u'm')}});
        QCOMPARE(picture(), cut);
        show({{u"temp1"_s, QString(20, u'm')}});
        QVERIFY(picture() != cut);
    }

    void aValueThatDoesNotFitBehindAnotherOneIsLeftOut()
    {
        const auto with = [this](const QString &second) {
            show({{u"temp1"_s, u"1"_s}, {u"fan1"_s, second}});
            return picture();
        };
        const QImage both = with(u"2"_s);
        const QImage cut = with(QString(200, u'm'));
        QVERIFY(cut != both);
        QCOMPARE(with(QString(200, u'n')), cut); // nothing of it is shown
        const int end = painted(2, cut).second;
        show({{u"temp1"_s, u"1"_s}});
        QVERIFY(end > painted(2, picture()).second); // but that there is one
    }

    void aLineThatFillsTheWindowHasNone()
    {
        m_host->list->setCodeText(QString(u"temp1 = "_s + QString(400, u'x')));
        const QImage before = picture();
        show({{u"temp1"_s, u"1"_s}});
        QCOMPARE(picture(), before);
    }

    void standBehindTheSignOfAFold()
    {
        view().setFoldingEnabled(true);
        view().foldAll();
        const QRect line = m_host->placeOf(2);
        const int signEnd = end(2);
        const QImage before = picture();
        show({{u"temp1"_s, u"1"_s}});
        const QImage after = picture();
        QVERIFY(end(2) > signEnd);
        const QRect upToSign(0, line.top(), signEnd + 1, line.height());
        QCOMPARE(after.copy(upToSign), before.copy(upToSign));
    }

    void standBesideTheTextWhateverIsReadFromRightToLeft()
    {
        m_host->list->setCodeText(u"x = temp1\r\n\u0645\u0627\u0621 = temp1"_s);
        const int letters = 8 * box().fontMetrics().averageCharWidth();
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            view().setLiveValuesShown(false);
            m_host->form.setLayoutDirection(direction);
            QCoreApplication::processEvents();
            const auto latin = painted(0, picture());
            const auto arabic = painted(1, picture());
            show({{u"temp1"_s, u"19.4 °C"_s}});
            const auto grows = [this, letters](int line, const std::pair<int, int> &before) {
                const auto after = painted(line, picture());
                const bool isBehind = after.second > before.second + letters;
                const bool isBefore = after.first < before.first - letters;
                return isBehind != isBefore;
            };
            QVERIFY(grows(0, latin));
            QVERIFY(grows(1, arabic));
        }
    }

    void standOnTheLeftOfTextAlignedToTheRight()
    {
        QTextOption option = box().document()->defaultTextOption();
        option.setAlignment(Qt::AlignRight);
        box().document()->setDefaultTextOption(option);
        m_host->list->setCodeText(u"x = temp1"_s);
        const auto before = painted(0, picture());
        QVERIFY(before.first > 100);
        show({{u"temp1"_s, u"19.4 °C"_s}});
        QVERIFY(begin(0) < before.first - 8 * box().fontMetrics().averageCharWidth());
        QCOMPARE(end(0), before.second);
        show({{u"temp1"_s, QString(300, u'm')}});
        QVERIFY(begin(0) >= 0);
    }

    void growWithTheText()
    {
        show({{u"temp1"_s, u"19.4 °C"_s}});
        const int before = end(0);
        view().setZoom(150);
        QVERIFY(end(0) > before * 5 / 4);
    }

    void areKeptWhileTheyAreNotShown()
    {
        const int before = end(0);
        view().setLiveValues({{u"temp1"_s, u"1"_s}});
        QCOMPARE(end(0), before);
        QVERIFY(!pause().isActive());
        view().setLiveValuesShown(true);
        const int shown = end(0);
        QVERIFY(shown > before);
        view().setLiveValuesShown(false);
        QCOMPARE(end(0), before);
        view().setLiveValuesShown(true);
        QCOMPARE(end(0), shown);
    }

    void tellThatTheyAreShown()
    {
        QSignalSpy changed(&view(), &CodeView::liveValuesShownChanged);
        QVERIFY(!view().property("liveValuesShown").toBool());
        view().setProperty("liveValuesShown", true);
        view().setLiveValuesShown(true);
        QCOMPARE(changed.count(), 1);
        QVERIFY(QMetaObject::invokeMethod(
            &view(), "setLiveValues",
            QArgument<Values>("QHash<QString,QString>", Values{{u"temp1"_s, u"1"_s}})));
        QVERIFY(pause().isActive());
    }

    void nothingOfItIsInTheText()
    {
        const QString rtf = m_host->list->CodeTextRTF();
        QSignalSpy changed(&box(), &RichTextBox::Change);
        show({{u"temp1"_s, u"1"_s}});
        QCOMPARE(m_host->list->CodeTextRTF(), rtf);
        QCOMPARE(changed.count(), 0);
        QTest::mouseClick(box().viewport(), Qt::LeftButton, {},
                          {end(0) - 2, m_host->placeOf(0).center().y()});
        QCOMPARE(box().textCursor().positionInBlock(), box().textCursor().block().length() - 1);
    }
};

ORVT_TEST(LiveValuesTest)
#include "LiveValuesTest.moc"
