#include "base/ColouredText.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QAccessible>
#include <QtGui/QFontInfo>
#include <QtWidgets/QApplication>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class BoxLookTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void fontPropertiesSetTheBoxesFont();
    void badFontsChangeNothing();
    void aFontInPixelsHasASizeInPoints();
    void backColorStartsAsTheWindowBackground();
    void backColorFillsTheBox_data();
    void backColorFillsTheBox();
    void aSystemBackColorFollowsThePalette();
    void textColourFollowsTheBackground();
    void backColorLeavesOtherColoursAlone();
    void aPaletteOfTheHostsStays();
    void propertiesAreKnownToTheMetaObject_data();
    void propertiesAreKnownToTheMetaObject();
    void methodsAreInvokable();
    void screenReadersSeeATextToEdit();

private:
    static QColor corner(QWidget &widget)
    {
        const QImage image = widget.grab().toImage();
        return image.pixelColor(image.width() - 8, image.height() - 8);
    }
};

void BoxLookTest::fontPropertiesSetTheBoxesFont()
{
    RichTextBox box;
    box.setFontName(u"Courier"_s);
    box.setFontSize(12.5F);
    box.setFontBold(true);
    box.setFontItalic(true);
    box.setFontUnderline(true);
    box.setFontStrikethrough(true);
    QCOMPARE(box.FontName(), u"Courier"_s);
    QCOMPARE(box.FontSize(), 12.5F);
    QVERIFY(box.FontBold() && box.FontItalic() && box.FontUnderline() && box.FontStrikethrough());
    QCOMPARE(box.document()->defaultFont().family(), u"Courier"_s);
    QVERIFY(box.document()->defaultFont().strikeOut());
    box.setFontBold(false);
    box.setFontItalic(false);
    box.setFontUnderline(false);
    box.setFontStrikethrough(false);
    QVERIFY(!box.FontBold() && !box.FontItalic() && !box.FontUnderline());
    QVERIFY(!box.FontStrikethrough());
    QCOMPARE(box.FontName(), u"Courier"_s);
}

void BoxLookTest::badFontsChangeNothing()
{
    RichTextBox box;
    box.setFontName(u"Courier"_s);
    box.setFontSize(12);
    box.setFontName({});
    for (const float size : {0.F, -3.F, std::numeric_limits<float>::quiet_NaN()})
        box.setFontSize(size);
    QCOMPARE(box.FontName(), u"Courier"_s);
    QCOMPARE(box.FontSize(), 12.F);
    box.setFontSize(1e9F);
    QVERIFY(box.FontSize() > 1000 && box.FontSize() < 10000);
}

void BoxLookTest::aFontInPixelsHasASizeInPoints()
{
    RichTextBox box;
    QFont font = box.font();
    font.setPixelSize(20);
    box.setFont(font);
    QCOMPARE(box.FontSize(), static_cast<float>(QFontInfo(font).pointSizeF()));
}

void BoxLookTest::backColorStartsAsTheWindowBackground()
{
    RichTextBox box;
    QCOMPARE(box.BackColor(), static_cast<qint32>(0x80000005));
    QCOMPARE(corner(box), QApplication::palette(&box).color(QPalette::Base));
}

void BoxLookTest::backColorFillsTheBox_data()
{
    QTest::addColumn<qint32>("back");
    QTest::addColumn<QColor>("shown");
    QTest::addColumn<QColor>("text");
    const QPalette palette = QApplication::palette("QPlainTextEdit");
    QTest::newRow("black") << qint32(0) << QColor(Qt::black) << QColor(Qt::white);
    QTest::newRow("light") << qint32(0x00c0ffee) << QColor(0xee, 0xff, 0xc0) << QColor(Qt::black);
    QTest::newRow("button") << static_cast<qint32>(0x8000000f) << palette.color(QPalette::Button)
                            << palette.color(QPalette::ButtonText);
    QTest::newRow("window background")
        << static_cast<qint32>(0x80000005) << palette.color(QPalette::Base)
        << palette.color(QPalette::Text);
}

void BoxLookTest::backColorFillsTheBox()
{
    QFETCH(qint32, back);
    QFETCH(QColor, shown);
    QFETCH(QColor, text);
    RichTextBox box;
    box.setBackColor(0x123456);
    box.setBackColor(back);
    QCOMPARE(box.BackColor(), back);
    QCOMPARE(corner(box), shown);
    QCOMPARE(box.palette().color(QPalette::Text), text);
}

void BoxLookTest::aSystemBackColorFollowsThePalette()
{
    QWidget parent;
    RichTextBox plain(&parent);
    RichTextBox button(&parent);
    RichTextBox fixed(&parent);
    button.setBackColor(static_cast<qint32>(0x8000000f));
    fixed.setBackColor(0x000000ff);
    QPalette dark = parent.palette();
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::yellow);
    dark.setColor(QPalette::Button, Qt::darkBlue);
    dark.setColor(QPalette::ButtonText, Qt::cyan);
    parent.setPalette(dark);
    QCOMPARE(plain.palette().color(QPalette::Base), QColor(Qt::black));
    QCOMPARE(plain.palette().color(QPalette::Text), QColor(Qt::yellow));
    QCOMPARE(button.palette().color(QPalette::Base), QColor(Qt::darkBlue));
    QCOMPARE(button.palette().color(QPalette::Text), QColor(Qt::cyan));
    dark.setColor(QPalette::Button, Qt::darkGreen);
    parent.setPalette(dark);
    QCOMPARE(button.palette().color(QPalette::Base), QColor(Qt::darkGreen));
    QCOMPARE(fixed.palette().color(QPalette::Base), QColor(Qt::red));
    QCOMPARE(fixed.palette().color(QPalette::Text), QColor(Qt::black));

    plain.setText(u"x"_s);
    plain.setSelLength(1);
    plain.setSelColor(static_cast<qint32>(0x80000008));
    QCOMPARE(plain.SelColor(), 0x0000ffff);
}

void BoxLookTest::textColourFollowsTheBackground()
{
    RichTextBox box;
    box.setFrameShape(QFrame::NoFrame);
    box.setFontSize(40);
    box.setText(u"\u2588\u2588"_s); // two full blocks
    const auto shown = [&box] {
        const QRect first = box.cursorRect();
        return box.viewport()->grab().toImage().pixelColor(first.x() + 8, first.center().y());
    };
    box.setBackColor(0);
    QCOMPARE(shown(), QColor(Qt::white));
    box.setBackColor(0xffffff);
    QCOMPARE(shown(), QColor(Qt::black));
    box.setColoured({u"\u2588\u2588"_s, {{2, 0xff}}});
    QCOMPARE(shown(), QColor(Qt::red));
}

void BoxLookTest::backColorLeavesOtherColoursAlone()
{
    RichTextBox box;
    const QColor highlight = box.palette().color(QPalette::Highlight);
    box.setBackColor(0x808080);
    QCOMPARE(box.palette().color(QPalette::Highlight), highlight);
    QPalette dark;
    QWidget parent;
    box.setParent(&parent);
    dark.setColor(QPalette::Highlight, Qt::magenta);
    parent.setPalette(dark);
    QCOMPARE(box.palette().color(QPalette::Highlight), QColor(Qt::magenta));
    box.setParent(nullptr);
}

void BoxLookTest::aPaletteOfTheHostsStays()
{
    RichTextBox box;
    QPalette own;
    own.setColor(QPalette::Base, Qt::darkYellow);
    box.setPalette(own);
    QCOMPARE(box.palette().color(QPalette::Base), QColor(Qt::darkYellow));
    box.setBackColor(0xff);
    QCOMPARE(box.palette().color(QPalette::Base), QColor(Qt::red));
}

void BoxLookTest::propertiesAreKnownToTheMetaObject_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("Text") << QByteArray("Text") << QVariant(u"a\r\nb"_s);
    QTest::newRow("BackColor") << QByteArray("BackColor") << QVariant(0x112233);
    QTest::newRow("FontName") << QByteArray("FontName") << QVariant(u"Courier"_s);
    QTest::newRow("FontSize") << QByteArray("FontSize") << QVariant(11.5F);
    for (const char *flag : {"FontBold", "FontItalic", "FontUnderline", "FontStrikethrough"})
        QTest::newRow(flag) << QByteArray(flag) << QVariant(true);
    QTest::newRow("SelStart") << QByteArray("SelStart") << QVariant(2);
    QTest::newRow("SelLength") << QByteArray("SelLength") << QVariant(2);
    QTest::newRow("SelColor") << QByteArray("SelColor") << QVariant(0x112233);
}

void BoxLookTest::propertiesAreKnownToTheMetaObject()
{
    QFETCH(QByteArray, name);
    QFETCH(QVariant, value);
    RichTextBox box;
    box.setText(u"text"_s);
    QVERIFY(box.setProperty(name.constData(), value));
    QCOMPARE(box.property(name.constData()), value);
    for (const char *text : {"TextRTF", "SelText", "SelRTF"})
        QVERIFY(box.property(text).isValid());
}

void BoxLookTest::methodsAreInvokable()
{
    RichTextBox box;
    box.setText(u"one\r\ntwo"_s);
    qint32 line = -1;
    QVERIFY(QMetaObject::invokeMethod(&box, "GetLineFromChar", Q_RETURN_ARG(qint32, line),
                                      Q_ARG(qint32, 6)));
    QCOMPARE(line, 1);
    qint32 place = -1;
    QVERIFY(QMetaObject::invokeMethod(&box, "Find", Q_RETURN_ARG(qint32, place),
                                      Q_ARG(QString, u"two"_s)));
    QCOMPARE(place, 5);
}

void BoxLookTest::screenReadersSeeATextToEdit()
{
    RichTextBox box;
    box.setText(u"one\r\ntwo"_s);
    box.setSelStart(5);
    QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(&box);
    QVERIFY(seen && seen->textInterface());
    QCOMPARE(seen->role(), QAccessible::EditableText);
    QCOMPARE(seen->textInterface()->text(0, 7), u"one\ntwo"_s);
    QCOMPARE(seen->textInterface()->cursorPosition(), 4);
}

ORVT_TEST(BoxLookTest)
#include "BoxLookTest.moc"
