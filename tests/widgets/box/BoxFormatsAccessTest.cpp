// What the toolkit makes of a document's formats, from its inner headers.

#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QTextDocument>
#include <QtGui/private/qtextdocument_p.h>
#include <QtGui/private/qtextformat_p.h>

#include <set>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class BoxFormatsAccessTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void fewFormatsHaveOneHash_data();
    void fewFormatsHaveOneHash();
    void aRepaintedWordHasTheFormatOfTheOthers();
};

namespace {

constexpr int count = 500;

// Text and highlight colours whose numbers all have the same sum.
QString coloursOfOneSum()
{
    QString table, letters;
    for (int i = 0; i < count; ++i) {
        table += u"\\red%1\\green%2\\blue0;"_s.arg(i % 256).arg(i / 256);
        table += u"\\red%1\\green%2\\blue0;"_s.arg(255 - i % 256).arg(255 - i / 256);
        letters += u"\\cf%1\\highlight%2 a"_s.arg(2 * i + 1).arg(2 * i + 2);
    }
    return u"{\\rtf1{\\colortbl ;%1}%2}"_s.arg(table, letters);
}

QString fontNames()
{
    QString table, letters;
    for (int i = 0; i < count; ++i) {
        table += u"{\\f%1 Font %1;}"_s.arg(i);
        letters += u"\\f%1 a"_s.arg(i);
    }
    return u"{\\rtf1{\\fonttbl%1}%2}"_s.arg(table, letters);
}

const QTextFormatCollection &formatsOf(const RichTextBox &box)
{
    return *QTextDocumentPrivate::get(box.document())->formatCollection();
}

} // namespace

void BoxFormatsAccessTest::fewFormatsHaveOneHash_data()
{
    QTest::addColumn<QString>("rtf");
    QTest::newRow("colours") << coloursOfOneSum();
    QTest::newRow("fonts") << fontNames();
}

void BoxFormatsAccessTest::fewFormatsHaveOneHash()
{
    QFETCH(QString, rtf);
    RichTextBox box;
    box.setTextRTF(rtf);
    QCOMPARE(box.TextLength(), count);
    const QTextFormatCollection &formats = formatsOf(box);
    QVERIFY(formats.formats.size() >= count);
    QCOMPARE_GE(formats.hashes.uniqueKeys().size(), count - 5);
}

void BoxFormatsAccessTest::aRepaintedWordHasTheFormatOfTheOthers()
{
    RichTextBox box;
    box.setTextRTF(
        u"{\\rtf1{\\fonttbl{\\f0 Font;}}{\\colortbl;\\red255\\green0\\blue0;\\red0\\green0\\blue9;}"
        "\\f0 a\\cf1 b\\highlight2 c\\cf0 d}"_s);
    for (const int colour : {0x0000ff, -1, 0x00ff00, 0x0000ff}) {
        box.selectAll();
        box.setSelColor(colour);
    }
    std::set<int> formats;
    for (auto it = box.document()->begin().begin(); !it.atEnd(); ++it)
        formats.insert(it.fragment().charFormatIndex());
    QCOMPARE(formats.size(), std::size_t{2}); // with and without highlight
}

ORVT_TEST(BoxFormatsAccessTest)
#include "BoxFormatsAccessTest.moc"
