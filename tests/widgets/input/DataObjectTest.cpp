#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/input/DragData.h"
#include "widgets/input/RichTextNames.h"
#include "widgets/list/ReportListFixture.h"
#include <ORVTListview/DataObject.h>

#include <QtCore/QMimeData>
#include <QtGui/QImage>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class DataObjectTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void numbersFormats();
    void holdsTextFilesAndPictures();
    void findsRichTextUnderEachOfItsNames();
    void offersRichTextUnderAllOfItsNames();
    void holdsOtherFormatsAsBytes();
    void refusesWhatIsNotThere();
    void refusesValuesThatDoNotFit();
    void isReadOnlyForATarget();
    void readsAsEmptyOnceTheDataAreGone();
    void promisesFormats();
};

void DataObjectTest::numbersFormats()
{
    QCOMPARE(DataObject::FormatNumber(u"text/plain"_s), qint16{1});
    QCOMPARE(DataObject::FormatNumber(u"text/uri-list"_s), qint16{15});
    for (const QString &name : richTextNames())
        QCOMPARE(DataObject::FormatNumber(name), qint16{-16639});
    QCOMPARE(DataObject::MimeType(-16639), u"text/rtf"_s);
    const qint16 points = DataObject::FormatNumber(u"application/x-points"_s);
    const qint16 pages = DataObject::FormatNumber(u"application/x-pages"_s);
    QVERIFY(points != pages);
    QCOMPARE(DataObject::FormatNumber(u"application/x-points"_s), points);
    QCOMPARE(DataObject::MimeType(points), u"application/x-points"_s);
    QCOMPARE(DataObject::MimeType(1), u"text/plain"_s);
    for (const qint16 unknown : {qint16{0}, qint16{7}, qint16{-1}, qint16{-32768}})
        QCOMPARE(DataObject::MimeType(unknown), QString());
}

void DataObjectTest::holdsTextFilesAndPictures()
{
    QMimeData data;
    DataObject object(&data, DataObject::Side::Source);
    object.SetData(u"text"_s);
    object.SetData(QStringList{u"/tmp/a b"_s, u"/tmp/ü"_s}, DataObject::Files);
    object.SetData(u"{\\rtf1 x}"_s, DataObject::RichText);
    QImage image(2, 3, QImage::Format_RGB32);
    image.fill(Qt::red);
    object.SetData(image, DataObject::Bitmap);
    QCOMPARE(object.GetData(DataObject::Text).toString(), u"text"_s);
    QCOMPARE(object.GetData(DataObject::Files).toStringList(),
             QStringList({u"/tmp/a b"_s, u"/tmp/ü"_s}));
    QCOMPARE(object.GetData(DataObject::RichText).toString(), u"{\\rtf1 x}"_s);
    QCOMPARE(object.GetData(DataObject::Bitmap).value<QImage>(), image);
    QVERIFY(data.hasText() && data.hasUrls() && data.hasImage());
    object.Clear();
    QVERIFY(!object.GetFormat(DataObject::Text));
}

// Whatever name a program gave it, and with the marks behind its end.
void DataObjectTest::findsRichTextUnderEachOfItsNames()
{
    for (const QString &name : richTextNames()) {
        QMimeData data;
        data.setData(name, QByteArray("{\\rtf1 x}\0\0", 12));
        const DataObject object(&data, DataObject::Side::Target);
        QVERIFY(object.GetFormat(DataObject::RichText));
        QCOMPARE(object.GetData(DataObject::RichText).toString(), u"{\\rtf1 x}"_s);
    }
}

void DataObjectTest::offersRichTextUnderAllOfItsNames()
{
    DragData data;
    DataObject object(&data, DataObject::Side::Source);
    object.SetData({}, DataObject::RichText);
    for (const QString &name : richTextNames())
        QVERIFY2(data.hasFormat(name), qPrintable(name));
    object.SetData(u"{\\rtf1 x}"_s, DataObject::RichText);
    for (const QString &name : richTextNames())
        QCOMPARE(data.data(name), QByteArray("{\\rtf1 x}"));
}

void DataObjectTest::holdsOtherFormatsAsBytes()
{
    QMimeData data;
    DataObject object(&data, DataObject::Side::Source);
    const qint16 points = DataObject::FormatNumber(u"application/x-points"_s);
    QVERIFY(!object.GetFormat(points));
    object.SetData(QByteArray("\0\1", 2), points);
    QVERIFY(object.GetFormat(points));
    QCOMPARE(object.GetData(points).toByteArray(), QByteArray("\0\1", 2));
    QCOMPARE(data.data(u"application/x-points"_s), QByteArray("\0\1", 2));
}

void DataObjectTest::refusesWhatIsNotThere()
{
    QMimeData data;
    DataObject object(&data, DataObject::Side::Source);
    QCOMPARE(errorOf([&] { object.GetData(DataObject::Text); }), qint32{InvalidCall});
    QCOMPARE(errorOf([&] { object.GetData(0); }), qint32{InvalidCall});
    QCOMPARE(errorOf([&] { object.SetData(u"x"_s, 0); }), qint32{InvalidCall});
}

void DataObjectTest::refusesValuesThatDoNotFit()
{
    QMimeData data;
    DataObject object(&data, DataObject::Side::Source);
    const QVariant list = QVariantList{1, 2};
    QCOMPARE(errorOf([&] { object.SetData(u"x"_s, DataObject::Bitmap); }), qint32{TypeMismatch});
    QCOMPARE(errorOf([&] { object.SetData(QImage(), DataObject::Text); }), qint32{TypeMismatch});
    QCOMPARE(errorOf([&] { object.SetData(list, DataObject::Text); }), qint32{TypeMismatch});
    QVERIFY(data.formats().isEmpty());
}

void DataObjectTest::isReadOnlyForATarget()
{
    QMimeData data;
    data.setText(u"text"_s);
    DataObject object(&data, DataObject::Side::Target);
    QCOMPARE(object.GetData(1).toString(), u"text"_s);
    QCOMPARE(errorOf([&] { object.SetData(u"x"_s); }), qint32{InvalidCall});
    QCOMPARE(errorOf([&] { object.Clear(); }), qint32{InvalidCall});
    QCOMPARE(object.mimeData(), &data);
}

void DataObjectTest::readsAsEmptyOnceTheDataAreGone()
{
    auto data = std::make_unique<QMimeData>();
    data->setText(u"text"_s);
    DataObject object(data.get(), DataObject::Side::Source);
    data.reset();
    QVERIFY(!object.GetFormat(1));
    QVERIFY(!object.mimeData());
    QCOMPARE(errorOf([&] { object.GetData(1); }), qint32{InvalidCall});
    QCOMPARE(errorOf([&] { object.SetData(u"x"_s); }), qint32{InvalidCall});
}

void DataObjectTest::promisesFormats()
{
    DragData data;
    DataObject object(&data, DataObject::Side::Source);
    QStringList asked;
    data.setMaker([&](const QString &mimeType) {
        asked.append(mimeType);
        object.SetData(u"made"_s);
    });
    object.SetData();
    QVERIFY(object.GetFormat(DataObject::Text));
    QVERIFY(data.hasText());
    QCOMPARE(asked, QStringList());
    QCOMPARE(data.text(), u"made"_s);
    QCOMPARE(data.text(), u"made"_s);
    QCOMPARE(asked, QStringList{u"text/plain"_s});
    QCOMPARE(data.formats().count(u"text/plain"_s), 1);
    object.Clear();
    QVERIFY(!data.hasText());
    object.SetData();
    object.SetData(u"own"_s); // kept at once: nobody is asked
    QCOMPARE(data.text(), u"own"_s);
    QCOMPARE(asked.size(), 1);
}

ORVT_TEST(DataObjectTest)
#include "DataObjectTest.moc"
