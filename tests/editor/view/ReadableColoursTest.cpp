// Text in colours that are hard to read is shown so that it can be read.

#include "base/ThreadState.h"
#include "editor/view/ViewFixture.h"
#include "find/rules/SearchHistory.h"
#include "support/Pixels.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QClipboard>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class ReadableColoursTest : public WidgetTest
{
    Q_OBJECT

private:
    std::unique_ptr<ViewHost> m_host;

    RichTextBox &box() { return m_host->box(); }
    CodeView &view() { return m_host->view(); }

    // A word of each class, and one of none.
    const QStringList m_words{u"IF"_s,   u"Temp1"_s,   u"Fan1"_s,  u"Limit1"_s,
                              u"Var1"_s, u"NetTemp"_s, u"other"_s, u"REM"_s};
    const QString m_program =
        u"IF Temp1 Fan1 Limit1 Var1 NetTemp other\r\nREM of it\r\nENDIF\r\nx"_s;

    // Every word in the same colour.
    void show(qint32 words, qint32 ground)
    {
        RichTextSettings &settings = m_host->settings;
        settings.FontSize = 24; // strokes of more than a pixel
        settings.BackColor = ground;
        for (qint32 *colour :
             {&settings.ReservedWordColor, &settings.InputColor, &settings.OutputColor,
              &settings.ConstantColor, &settings.VariableColor, &settings.nviFPAColor,
              &settings.CommentColor})
            *colour = words;
        m_host->list->Init_RichTextBox(settings);
        m_host->list->openProgram(m_program);
        m_host->form.resize(1000, 500);
        box().setSelStart(box().TextLength());
        QCoreApplication::processEvents();
    }

    QRect placeOf(const QString &word)
    {
        QTextCursor cursor = box().document()->find(word);
        QTextCursor start = cursor;
        start.setPosition(cursor.selectionStart());
        return box().cursorRect(start).united(box().cursorRect(cursor)).adjusted(2, 4, -3, -4);
    }

    // The contrast of a word's strokes with what most of its place shows.
    double contrastOf(const QString &word)
    {
        const QImage shown = m_host->picture(*box().viewport()).copy(placeOf(word));
        QHash<QRgb, int> pixels;
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x)
                ++pixels[shown.pixel(x, y)];
        const QRgb ground = std::max_element(pixels.cbegin(), pixels.cend()).key();
        double most = 1;
        for (auto pixel = pixels.cbegin(); pixel != pixels.cend(); ++pixel)
            most = std::max(most, Pixels::contrast(pixel.key(), ground));
        return most;
    }

    double leastContrast()
    {
        double least = 21;
        for (const QString &word : m_words)
            least = std::min(least, contrastOf(word));
        return least;
    }

    bool hasStrokesOf(const QString &word, QRgb colour)
    {
        const QImage shown = m_host->picture(*box().viewport()).copy(placeOf(word));
        return Pixels::count(shown, [=](QRgb pixel) { return pixel == colour; }) > 0;
    }

    // With so many pixels to each of the layout's.
    QImage pictureAt(double ratio)
    {
        QCoreApplication::processEvents();
        QWidget &text = *box().viewport();
        QImage image(text.size() * ratio, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        text.render(&image);
        return image;
    }

    void useHighContrast()
    {
        QPalette palette;
        palette.setColor(QPalette::Window, Qt::black);
        palette.setColor(QPalette::Base, Qt::black);
        palette.setColor(QPalette::WindowText, Qt::white);
        palette.setColor(QPalette::Text, Qt::white);
        palette.setColor(QPalette::Highlight, Qt::yellow);
        palette.setColor(QPalette::HighlightedText, Qt::black);
        m_host->form.setPalette(palette);
    }

private Q_SLOTS:
    void init() override
    {
        WidgetTest::init();
        m_host = std::make_unique<ViewHost>();
    }
    void cleanup() override
    {
        m_host.reset();
        WidgetTest::cleanup();
    }

    void isOffAtFirst()
    {
        QVERIFY(!view().adaptsColours());
        show(0x000000, 0x000000);
        QVERIFY(leastContrast() < 1.5);
        const QImage before = m_host->picture(*box().viewport());
        QSignalSpy changed(&view(), &CodeView::adaptsColoursChanged);
        view().setAdaptsColours(true);
        QVERIFY(m_host->picture(*box().viewport()) != before);
        view().setAdaptsColours(true);
        view().setAdaptsColours(false);
        QCOMPARE(m_host->picture(*box().viewport()), before);
        QCOMPARE(changed.count(), 2);
    }

    void everyWordCanBeReadOnEveryGround_data()
    {
        QTest::addColumn<qint32>("ground");
        QTest::addColumn<bool>("isHighContrast");
        QTest::addRow("light") << qint32(0xffffff) << false;
        QTest::addRow("yellowish") << qint32(0xc0f0f0) << false;
        QTest::addRow("dark") << qint32(0x2b2b2b) << false;
        QTest::addRow("black") << qint32(0x000000) << false;
        QTest::addRow("high contrast") << qint32(-2147483643) << true;
    }
    void everyWordCanBeReadOnEveryGround()
    {
        QFETCH(qint32, ground);
        QFETCH(bool, isHighContrast);
        if (isHighContrast)
            useHighContrast();
        view().setAdaptsColours(true);
        view().setCurrentLineShown(true);
        view().setPairsShown(true);
        for (const qint32 words : {0x000000, 0xffffff, 0x808080, 0x0000ff, 0xff0000, 0x00ffff}) {
            show(words, ground);
            QVERIFY2(leastContrast() >= 4.5, qPrintable(QString::number(words, 16)));
            box().setSelStart(1); // the line, and the pair of the IF
            QVERIFY2(leastContrast() >= 4.5, qPrintable(QString::number(words, 16)));
            m_host->list->RTextSelectAll();
            QVERIFY2(leastContrast() >= 4.5, qPrintable(QString::number(words, 16)));
            box().setSelStart(0);
            threadPart<SearchHistories>().last = {u"e"_s, {}};
            view().showFindBar();
            QVERIFY2(leastContrast() >= 4.5, qPrintable(QString::number(words, 16)));
            box().setFocus();
            QTest::keyClick(box().findChild<QWidget *>(u"FindBarWanted"_s), Qt::Key_Escape);
        }
    }

    void noWordOfALineIsLeftOut()
    {
        view().setAdaptsColours(true);
        show(0x2b8f8f, 0x2b2b2b);
        const QString program = u"Temp1      = IF other AND Var1 NetTemp\r\n"
                                "Temp2  = IF other , NetTemp )\r\n"
                                "Limit1 = Fan1 Fan1\r\n    AND NetTemp\r\n"_s;
        m_host->list->openProgram(program.repeated(4));
        for (const qint32 zoom : {40, 45, 55, 65, 75, 100}) {
            view().setZoom(zoom);
            for (const double ratio : {1.0, 1.3, 2.0}) {
                const QImage shown = pictureAt(ratio);
                QVERIFY(Pixels::count(shown, [](QRgb pixel) { return pixel == 0xff8f8f2b; }) == 0);
            }
        }
    }

    void linesUnderWordsStay()
    {
        const auto painted = [this](const QString &style) {
            m_host->settings.FontStyle = style;
            show(0x000000, 0x000000);
            return Pixels::count(m_host->picture(*box().viewport()), [](QRgb pixel) {
                return Pixels::contrast(pixel, qRgb(0, 0, 0)) >= 4.5;
            });
        };
        view().setAdaptsColours(true);
        const int without = painted({});
        QVERIFY(painted(u"u1"_s) > without + 300);
    }

    void whatCanBeReadStaysAsItIs()
    {
        show(0x800000, 0xffffff);
        const QImage before = m_host->picture(*box().viewport());
        view().setAdaptsColours(true);
        QVERIFY(hasStrokesOf(u"Temp1"_s, qRgb(0, 0, 0x80)));
        QCOMPARE(m_host->picture(*box().viewport()), before);
        box().setSelStart(3);
        box().setSelLength(9);
        const QImage selected = m_host->picture(*box().viewport());
        QVERIFY(selected != before);
    }

    void theTextKeepsItsColours()
    {
        show(0x101010, 0x000000);
        const auto copied = [this] {
            m_host->list->RTextSelectAll();
            m_host->list->RTextCopy();
            return m_host->list->CodeTextRTF() + box().SelRTF() +
                   QGuiApplication::clipboard()->text();
        };
        const QString before = copied();
        QSignalSpy changes(&box(), &RichTextBox::Change);
        QSignalSpy documentChanges(box().document(), &QTextDocument::contentsChange);
        view().setAdaptsColours(true);
        QVERIFY(leastContrast() >= 4.5);
        QCOMPARE(copied(), before);
        QCOMPARE(m_host->colourOf(u"Temp1"_s), 0x101010);
        QCOMPARE(changes.count(), 0);
        QCOMPARE(documentChanges.count(), 0);
    }

    void followsTheGround()
    {
        view().setAdaptsColours(true);
        show(0x000000, 0xffffff);
        QVERIFY(hasStrokesOf(u"Temp1"_s, qRgb(0, 0, 0)));
        box().setBackColor(0x000000);
        QVERIFY(leastContrast() >= 4.5);
        box().setBackColor(0xffffff);
        QVERIFY(hasStrokesOf(u"Temp1"_s, qRgb(0, 0, 0)));
    }

    void aLongLineIsShownToItsEnd()
    {
        view().setAdaptsColours(true);
        show(0x000000, 0x000000);
        m_host->list->openProgram(u"Temp1 "_s.repeated(200) + u"Fan1"_s);
        QTest::keyClick(&box(), Qt::Key_End);
        QVERIFY(contrastOf(u"Fan1"_s) >= 4.5);
        const QImage with = m_host->picture(*box().viewport());
        m_host->key(Qt::Key_Backspace);
        QVERIFY(m_host->picture(*box().viewport()) != with);
    }
};

ORVT_TEST(ReadableColoursTest)
#include "ReadableColoursTest.moc"
