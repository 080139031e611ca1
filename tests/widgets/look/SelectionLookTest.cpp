#include "widgets/look/SelectionLook.h"

#include "support/Pixels.h"
#include "support/TestProgram.h"
#include "widgets/look/Pictures.h"
#include <ORVTListview/ImageList.h>

#include <QtGui/QStandardItemModel>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTreeView>

#include <memory>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// One selected row of a picture alone, as the view shows it.
struct SelectedRow
{
    explicit SelectedRow(QAbstractItemView &view, QStyle &style)
    {
        ImageList pictures;
        Pictures::fillInto(pictures);
        auto *item = new QStandardItem;
        item->setIcon(pictures.Picture(u"Device"_s));
        model.appendRow(item);
        view.setModel(&model);
        view.setStyle(&style);
        view.setIconSize({32, 32});
        view.resize(200, 100);
        view.setCurrentIndex(model.index(0, 0));
        view.show();
        row = view.visualRect(model.index(0, 0));
        shown = view.viewport()->grab(row).toImage();
    }

    QRect row;
    QImage shown;
    QStandardItemModel model;
};

} // namespace

class SelectionLookTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    static void aSelectedPictureIsSeenInEveryStyle_data()
    {
        QTest::addColumn<QString>("style");
        for (const QString &style : QStyleFactory::keys())
            QTest::newRow(style.toUtf8().constData()) << style;
    }

    static void aSelectedPictureIsSeenInEveryStyle()
    {
        QFETCH(QString, style);
        const std::unique_ptr<QStyle> made(QStyleFactory::create(style));
        QTreeView tree;
        tree.setHeaderHidden(true);
        tree.setRootIsDecorated(false);
        const SelectedRow row(tree, *made);
        const QImage picture = row.shown.copy(0, 0, 40, row.row.height());
        const QRgb ground = row.shown.pixel(row.row.width() - 8, row.row.height() / 2);
        const int seen = Pixels::count(
            picture, [ground](QRgb pixel) { return Pixels::contrast(pixel, ground) >= 2; });
        QVERIFY2(seen > 50, QByteArray::number(seen).constData());
    }

    static void tablesAreSelectedInTheColourOfSelectedText()
    {
        QTableView table;
        QTreeView tree;
        for (const QString &style : QStyleFactory::keys()) {
            const std::unique_ptr<QStyle> made(QStyleFactory::create(style));
            table.setStyle(made.get());
            tree.setStyle(made.get());
            QVERIFY(!isSelectionLight(&table));
            QCOMPARE(selectedTextRole(table.viewport()), QPalette::HighlightedText);
            QCOMPARE(isSelectionLight(tree.viewport()), isSelectionLight(&tree));
            QCOMPARE(isSelectionLight(&tree), style == "windowsvista"_L1);
        }
        QVERIFY(!isSelectionLight(nullptr));
    }

    // Which stands before the style, and has no name.
    static void aStyleSheetChangesNothing()
    {
        const QString usual = QApplication::style()->name();
        QTreeView tree;
        QTreeView styled;
        styled.setStyleSheet(u"QTreeView { padding: 1px }"_s);
        for (const QString &style : QStyleFactory::keys()) {
            const bool isLight = style == "windowsvista"_L1;
            QApplication::setStyle(style);
            QCOMPARE(isSelectionLight(&styled), isLight);
            qApp->setStyleSheet(u"QTreeView { padding: 1px }"_s);
            QCOMPARE(isSelectionLight(&tree), isLight);
            QCOMPARE(isSelectionLight(&styled), isLight);
            qApp->setStyleSheet({});
        }
        QApplication::setStyle(usual);
    }
};

ORVT_TEST(SelectionLookTest)
#include "SelectionLookTest.moc"
