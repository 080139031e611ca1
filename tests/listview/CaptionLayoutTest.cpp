// Where caption, read button and status picture above the table lie.

#include "listview/ShownListView.h"
#include "support/Pixels.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QHelpEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolTip>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// Twips of the off-screen platform's 96 dots to the inch.
QRect twips(const QWidget &widget)
{
    return {widget.x() * 15, widget.y() * 15, widget.width() * 15, widget.height() * 15};
}

void hover(QWidget &widget)
{
    QHelpEvent event(QEvent::ToolTip, widget.rect().center(),
                     widget.mapToGlobal(widget.rect().center()));
    QApplication::sendEvent(&widget, &event);
}

} // namespace

class CaptionLayoutTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() override
    {
        QToolTip::hideText();
        WidgetTest::cleanup();
    }

    void partsHaveTheirPlaces_data();
    void partsHaveTheirPlaces();
    void smallControlsHaveAnEmptyBody();
    void aResizeShowsAndEnablesNothing();
    void aResizeMovesTheFaceShown();
    void theCaptionKeepsClearOfThePictures();
    void aLongCaptionIsElidedAndShownAsToolTip();
    void captionsAreShownAsTheyStand();
};

void CaptionLayoutTest::partsHaveTheirPlaces_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QSize>("size");
    for (const LwType type : {dsInput, dsCode}) {
        for (const QSize size : {QSize(700, 400), QSize(60, 60), QSize(21, 300), QSize(2000, 37)})
            QTest::addRow("%d, %d x %d", type, size.width(), size.height()) << int{type} << size;
    }
}

void CaptionLayoutTest::partsHaveTheirPlaces()
{
    QFETCH(int, type);
    QFETCH(QSize, size);
    ORVListView list;
    list.setListviewType(static_cast<LwType>(type));
    list.resize(size);
    list.show();
    const auto part = [&](const QString &name) { return twips(*list.findChild<QWidget *>(name)); };
    const int W = size.width() * 15;
    const int H = size.height() * 15;
    const int Hc = part(u"LblCaption"_s).height();
    QCOMPARE(Hc, list.fontMetrics().height() * 15);
    QCOMPARE(part(u"LblCaption"_s), QRect(0, 0, W - 45, Hc));
    const int side = qMin(240, Hc - 15);
    QCOMPARE(part(u"ImgRead"_s), QRect(45, 30, side, side));
    QCOMPARE(part(u"ImgWrite"_s).topLeft(), QPoint(qRound((W - 325) / 15.0) * 15, 30));
    QCOMPARE(part(u"ImgWrite"_s).size(), QSize(side, side));
    const QString face = type == dsCode ? u"RichTextBox1"_s : u"ListView1"_s;
    const QRect body = part(face);
    QCOMPARE(body.topLeft(), QPoint(0, Hc + 15));
    QCOMPARE(body.width(), qMax(0, W - 30));
    QVERIFY(qAbs(body.height() - qMax(0, H - Hc - 40)) < 15);
    QVERIFY(part(u"ImgRead"_s).bottom() < body.top());
    QVERIFY(part(u"ImgWrite"_s).bottom() < body.top());
}

void CaptionLayoutTest::smallControlsHaveAnEmptyBody()
{
    for (const LwType type : {dsInput, dsCode}) {
        ORVListView list;
        list.setListviewType(type);
        QWidget &face =
            type == dsCode ? static_cast<QWidget &>(*list.RTextBox()) : *list.listView();
        list.show();
        list.resize(1, 200); // 15 twips
        QCOMPARE(face.width(), 0);
        QVERIFY(face.height() > 0);
        list.resize(200, 1);
        QCOMPARE(face.height(), 0);
        QVERIFY(face.width() > 0);
        list.resize(0, 0);
        QCOMPARE(face.size(), QSize(0, 0));
    }
}

void CaptionLayoutTest::aResizeShowsAndEnablesNothing()
{
    const ShownListView shown(dsCode);
    shown->setRichTextVisible(false);
    shown->setRichTexteNable(false);
    shown->resize(400, 200);
    QVERIFY(shown->RTextBox()->isHidden());
    QVERIFY(!shown->RTextBox()->isEnabled());
    QVERIFY(shown->listView()->isHidden());
    shown->setListviewType(dsLog);
    shown->resize(410, 200);
    QVERIFY(shown->RTextBox()->isHidden());
    QVERIFY(shown->listView()->isVisible());
    shown->setEnabled(false);
    shown->resize(420, 200);
    QVERIFY(!shown->listView()->isEnabled());
}

void CaptionLayoutTest::aResizeMovesTheFaceShown()
{
    const ShownListView shown(dsCode);
    shown->resize(400, 200);
    QCOMPARE(shown->RTextBox()->width(), 398);
    shown->setListviewType(dsLog);
    QCOMPARE(shown->listView()->width(), 398);
    shown->resize(300, 200);
    QCOMPARE(shown->listView()->width(), 298);
    shown->setListviewType(dsCode);
    QCOMPARE(shown->RTextBox()->width(), 298);
}

void CaptionLayoutTest::theCaptionKeepsClearOfThePictures()
{
    const ShownListView shown;
    shown->setCaption(QString(300, u'W'));
    for (const int width : {600, 200, 100, 60, 45, 30, 5}) {
        shown->resize(width, 200);
        const auto &caption = static_cast<QLabel &>(shown.part(u"LblCaption"_s));
        const QRect text = caption.contentsRect();
        if (text.isEmpty())
            continue;
        QVERIFY(width > 45);
        QVERIFY(text.left() > shown.part(u"ImgRead"_s).geometry().right());
        QVERIFY(text.right() < shown.part(u"ImgWrite"_s).geometry().left());
        QImage image(caption.size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        shown.part(u"LblCaption"_s).render(&image, {}, {}, QWidget::RenderFlags());
        int drawn = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const bool isDrawn = qGray(image.pixel(x, y)) < 128;
                drawn += isDrawn ? 1 : 0;
                QVERIFY(!isDrawn || text.contains(x, y));
            }
        }
        QVERIFY(drawn > 0 || text.width() < 20);
    }
}

void CaptionLayoutTest::aLongCaptionIsElidedAndShownAsToolTip()
{
    const ShownListView shown;
    QWidget &caption = shown.part(u"LblCaption"_s);
    hover(caption);
    QVERIFY(!QToolTip::isVisible());
    const QString text = u"Sensors of the <b>north</b> wing, second floor"_s.repeated(4);
    shown->setCaption(text);
    hover(caption);
    QVERIFY(QToolTip::isVisible());
    QVERIFY(QToolTip::text().contains(u"&lt;b&gt;"_s));
    QCOMPARE(shown->Caption(), text);
}

void CaptionLayoutTest::captionsAreShownAsTheyStand()
{
    const ShownListView shown;
    auto &caption = static_cast<QLabel &>(shown.part(u"LblCaption"_s));
    shown->setCaption(u"plain"_s);
    const QImage plain = caption.grab().toImage();
    shown->setCaption(u"<i>plain</i>"_s);
    QVERIFY(caption.grab().toImage() != plain);
    shown->setCaption(u"a & b\r\nc"_s);
    QCOMPARE(caption.text(), u"a & b\r\nc"_s);
    const QImage twoLines = caption.grab().toImage();
    shown->setCaption(u"a & b c"_s);
    QCOMPARE(caption.grab().toImage(), twoLines);
}

ORVT_TEST(CaptionLayoutTest)
#include "CaptionLayoutTest.moc"
