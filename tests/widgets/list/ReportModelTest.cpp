#include "support/RandomSeed.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include "widgets/list/ReportModel.h"
#include "widgets/list/RowSearch.h"
#include <ORVTListview/Error.h>

#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QtTest>

#include <functional>
#include <random>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

RowContent row(const QString &key, const QString &text, const QStringList &subItems = {})
{
    RowContent content;
    content.key = key;
    content.text = text;
    content.subItems = subItems;
    return content;
}

void addColumns(ReportModel &model, int count)
{
    for (int i = 0; i < count; ++i)
        model.addColumn(model.columns(), u"C%1"_s.arg(i), u"Header %1"_s.arg(i), Qt::AlignLeft);
}

// The whole model as text: a line for the headers, one for each row.
QString dump(const ReportModel &model)
{
    QStringList lines{QString()};
    for (int column = 0; column < model.columnCount(); ++column)
        lines.front() +=
            model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString() + u'|';
    for (int position = 0; position < model.rowCount(); ++position) {
        QString line;
        for (int column = 0; column < model.columnCount(); ++column)
            line += model.index(position, column).data().toString() + u'|';
        lines.append(line);
    }
    return lines.join(u'\n');
}

// Every notice of a model, as text.
class Notices : public QObject
{
public:
    explicit Notices(ReportModel &model)
    {
        connect(&model, &ReportModel::dataChanged, this,
                [this](const QModelIndex &first, const QModelIndex &last) {
                    log += u"changed %1,%2-%3,%4;"_s.arg(first.row())
                               .arg(first.column())
                               .arg(last.row())
                               .arg(last.column());
                });
        connect(&model, &ReportModel::modelReset, this, [this] { log += u"reset;"_s; });
        connect(&model, &ReportModel::rowsInserted, this,
                [this](const QModelIndex &, int first, int last) {
                    log += u"rows %1-%2;"_s.arg(first).arg(last);
                });
        connect(&model, &ReportModel::rowsRemoved, this,
                [this](const QModelIndex &, int first, int last) {
                    log += u"gone %1-%2;"_s.arg(first).arg(last);
                });
        connect(&model, &ReportModel::columnsInserted, this,
                [this](const QModelIndex &, int first, int last) {
                    log += u"columns %1-%2;"_s.arg(first).arg(last);
                });
        connect(&model, &ReportModel::columnsRemoved, this,
                [this](const QModelIndex &, int first, int last) {
                    log += u"columns gone %1-%2;"_s.arg(first).arg(last);
                });
        connect(&model, &ReportModel::headerDataChanged, this,
                [this](Qt::Orientation, int first, int last) {
                    log += u"header %1-%2;"_s.arg(first).arg(last);
                });
    }

    QString take() { return std::exchange(log, {}); }

private:
    QString log;
};

} // namespace

class ReportModelTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void showsRowsUnderColumns();
    void keepsSubItemsThatNoColumnShows();
    void tellsOneChangeOfManyRowsOnce();
    void tellsAChangeOfOneCellForThatCell();
    void saysNothingWhenNothingChanges();
    void refusesAKeyUsedTwice();
    void findsKeysAsWritten();
    void knowsPositionsAfterRowsCameAndWent();
    void searchesTextSubItemsAndTags();
    void givesViewsTheirRoles();
    void holdsUnderRandomOperations_data();
    void holdsUnderRandomOperations();
};

void ReportModelTest::showsRowsUnderColumns()
{
    ReportModel model;
    addColumns(model, 3);
    model.setRows(
        {row(u"a"_s, u"01"_s, {u"x"_s}), row(u"b"_s, u"02"_s, {u"y"_s, u"z"_s, u"more"_s})});
    QCOMPARE(dump(model), u"Header 0|Header 1|Header 2|\n01|x||\n02|y|z|"_s);
}

void ReportModelTest::keepsSubItemsThatNoColumnShows()
{
    ReportModel model;
    addColumns(model, 3);
    model.setRows({row(u"a"_s, u"01"_s, {u"x"_s, u"y"_s})});
    model.clearColumns();
    QCOMPARE(model.rowCount(), 1);
    addColumns(model, 2);
    QCOMPARE(dump(model), u"Header 0|Header 1|\n01|x|"_s);
    model.addColumn(0, u"new"_s, u"New"_s, Qt::AlignLeft);
    QCOMPARE(dump(model), u"New|Header 0|Header 1|\n01|x|y|"_s);
    model.deleteColumn(1);
    QCOMPARE(dump(model), u"New|Header 1|\n01|x|"_s);
}

void ReportModelTest::tellsOneChangeOfManyRowsOnce()
{
    ReportModel model;
    addColumns(model, 3);
    Notices notices(model);
    QList<RowContent> rows;
    for (int i = 0; i < 1000; ++i)
        rows.append(row(QString::number(i), QString::number(i)));
    model.setRows(rows);
    QCOMPARE(notices.take(), u"reset;"_s);
    model.setSubItemOfAll(2, u" "_s, u"tag"_s);
    QCOMPARE(notices.take(), u"changed 0,2-999,2;"_s);
    QCOMPARE(model.row(999).content.subItems, QStringList({QString(), u" "_s}));
    QCOMPARE(model.row(0).content.subItemTags, QStringList({QString(), u"tag"_s}));
    model.appendRows({row(u"x"_s, {}), row(u"y"_s, {})});
    QCOMPARE(notices.take(), u"rows 1000-1001;"_s);
    model.setRows({});
    QCOMPARE(notices.take(), u"reset;"_s);
    model.setSubItemOfAll(2, u" "_s, {});
    model.appendRows({});
    QCOMPARE(notices.take(), QString());
}

void ReportModelTest::tellsAChangeOfOneCellForThatCell()
{
    ReportModel model;
    addColumns(model, 3);
    model.setRows({row({}, u"1"_s), row({}, u"2"_s)});
    Notices notices(model);
    model.setText(model.row(1), u"new"_s);
    QCOMPARE(notices.take(), u"changed 1,0-1,0;"_s);
    model.setSubItem(model.row(1), 2, u"new"_s);
    QCOMPARE(notices.take(), u"changed 1,2-1,2;"_s);
    model.setForeground(model.row(0), Qt::red);
    QCOMPARE(notices.take(), u"changed 0,0-0,2;"_s);
    model.setText(model.column(1), u"new"_s);
    QCOMPARE(notices.take(), u"header 1-1;"_s);
    model.setColumnAlignment(model.column(1), Qt::AlignRight);
    QCOMPARE(notices.take(), u"header 1-1;changed 0,1-1,1;"_s);
    model.addColumn(1, QString(), QString(), Qt::AlignLeft);
    QCOMPARE(notices.take(), u"columns 1-1;changed 0,2-1,3;"_s);
    model.deleteColumn(1);
    QCOMPARE(notices.take(), u"columns gone 1-1;changed 0,1-1,2;"_s);
    model.deleteRow(0);
    QCOMPARE(notices.take(), u"gone 0-0;"_s);
}

void ReportModelTest::saysNothingWhenNothingChanges()
{
    ReportModel model;
    addColumns(model, 2);
    model.setRows({row({}, u"1"_s, {u"a"_s})});
    Notices notices(model);
    ReportRow &held = model.row(0);
    model.setText(held, u"1"_s);
    model.setSubItem(held, 1, u"a"_s);
    model.setSubItemTag(held, 1, u"tag"_s); // never shown
    model.setForeground(held, QColor());
    model.setChecked(held, false);
    model.setPicture(held, QString());
    model.setText(model.column(0), u"Header 0"_s);
    QCOMPARE(notices.take(), QString());
}

void ReportModelTest::refusesAKeyUsedTwice()
{
    ReportModel model;
    addColumns(model, 1);
    model.setRows({row(u"a"_s, u"1"_s), row({}, u"2"_s), row({}, u"3"_s)});
    const QString before = dump(model);
    Notices notices(model);
    QVERIFY_THROWS_EXCEPTION(Error, model.setRows({row(u"b"_s, {}), row(u"b"_s, {})}));
    QVERIFY_THROWS_EXCEPTION(Error, model.appendRows({row(u"c"_s, {}), row(u"a"_s, {})}));
    QCOMPARE(dump(model), before);
    QCOMPARE(notices.take(), QString());
    QVERIFY(!model.find(u"c"_s));
    model.setRows({row(u"a"_s, u"again"_s)});
    QCOMPARE(model.find(u"a"_s)->content.text, u"again"_s);
}

void ReportModelTest::findsKeysAsWritten()
{
    ReportModel model;
    addColumns(model, 1);
    model.setRows({row(u"Inputs1"_s, u"1"_s), row(u"inputs1"_s, u"2"_s), row({}, u"3"_s)});
    QCOMPARE(model.find(u"Inputs1"_s)->content.text, u"1"_s);
    QCOMPARE(model.find(u"inputs1"_s)->content.text, u"2"_s);
    QVERIFY(!model.find(u"INPUTS1"_s));
    QVERIFY(!model.find(QString()));
    model.setKey(model.row(0), u"other"_s);
    QVERIFY(!model.find(u"Inputs1"_s));
    QCOMPARE(model.find(u"other"_s), &model.row(0));
    model.deleteRow(0);
    QVERIFY(!model.find(u"other"_s));
}

void ReportModelTest::knowsPositionsAfterRowsCameAndWent()
{
    ReportModel model;
    addColumns(model, 1);
    for (int i = 0; i < 10; ++i)
        model.addRow(i, row(QString::number(i), {}));
    QCOMPARE(model.positionOf(*model.find(u"9"_s)), 9);
    model.deleteRow(4);
    QCOMPARE(model.positionOf(*model.find(u"9"_s)), 8);
    QCOMPARE(model.positionOf(*model.find(u"3"_s)), 3);
    model.addRow(0, row(u"new"_s, {}));
    QCOMPARE(model.positionOf(*model.find(u"new"_s)), 0);
    QCOMPARE(model.positionOf(*model.find(u"9"_s)), 9);
}

void ReportModelTest::searchesTextSubItemsAndTags()
{
    ReportModel model;
    addColumns(model, 3);
    RowContent tagged = row({}, u"Delta"_s);
    tagged.tag = u"Temperature"_s;
    model.setRows({row({}, u"Alpha"_s, {u"one"_s, u"Two"_s, u"beyond"_s}),
                   row({}, u"alphabet"_s, {u"ONE"_s}), tagged});
    using Field = RowSearch::Field;
    using Match = RowSearch::Match;
    const auto find = [&model](const QString &text, Field field, Match match, int start = 0) {
        return RowSearch{text, field, match}.find(model, start);
    };
    QCOMPARE(find(u"ALPHA"_s, Field::Text, Match::Whole), 0);
    QCOMPARE(find(u"ALPHA"_s, Field::Text, Match::Whole, 1), -1);
    QCOMPARE(find(u"ALPHA"_s, Field::Text, Match::Beginning, 1), 1);
    QCOMPARE(find(u"lpha"_s, Field::Text, Match::Beginning), -1);
    QCOMPARE(find(u"two"_s, Field::SubItem, Match::Whole), 0);
    QCOMPARE(find(u"one"_s, Field::SubItem, Match::Whole, 1), 1);
    QCOMPARE(find(u"beyond"_s, Field::SubItem, Match::Whole), -1);
    QCOMPARE(find(u"temp"_s, Field::Tag, Match::Beginning), 2);
    QCOMPARE(find(u"temp"_s, Field::Tag, Match::Whole), -1);
    QCOMPARE(find(u"Delta"_s, Field::Tag, Match::Whole), -1);
    QCOMPARE(find(u"Alpha"_s, Field::Text, Match::Whole, 99), -1);
}

void ReportModelTest::givesViewsTheirRoles()
{
    ReportModel model;
    addColumns(model, 2);
    model.setColumnAlignment(model.column(1), Qt::AlignRight);
    RowContent content = row({}, u"1"_s, {u"a"_s});
    content.picture = u"Inputs"_s;
    content.foreground = Qt::blue;
    model.setRows({content});
    const QModelIndex label = model.index(0, 0);
    const QModelIndex cell = model.index(0, 1);
    QVERIFY(!label.data(Qt::DecorationRole).isValid());
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    model.setPictureProvider(
        [&pixmap](const QString &key) { return key == u"Inputs"_s ? QIcon(pixmap) : QIcon(); });
    QVERIFY(label.data(Qt::DecorationRole).isValid());
    QVERIFY(!cell.data(Qt::DecorationRole).isValid());
    QVERIFY(!label.data(Qt::CheckStateRole).isValid());
    model.setCheckBoxes(true);
    QCOMPARE(label.data(Qt::CheckStateRole).toInt(), int{Qt::Unchecked});
    QVERIFY(!cell.data(Qt::CheckStateRole).isValid());
    QCOMPARE(cell.data(Qt::ForegroundRole).value<QColor>(), QColor(Qt::blue));
    QCOMPARE(cell.data(Qt::TextAlignmentRole).toInt(), int{Qt::AlignRight | Qt::AlignVCenter});
    QVERIFY(label.flags().testFlag(Qt::ItemIsEditable));
    QVERIFY(!cell.flags().testFlag(Qt::ItemIsEditable));
}

void ReportModelTest::holdsUnderRandomOperations_data()
{
    QTest::addColumn<unsigned>("seed");
    for (const unsigned seed : randomSeeds(20))
        QTest::addRow("seed %u", seed) << seed;
}

void ReportModelTest::holdsUnderRandomOperations()
{
    QFETCH(unsigned, seed);
    std::mt19937 random(seed);
    const auto below = [&random](int limit) {
        return std::uniform_int_distribution<int>(0, limit - 1)(random);
    };
    ReportModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    QList<QStringList> expected; // key, text, sub-items 1 to 4
    int columns = 0;
    int nextKey = 0;
    const auto fresh = [&] {
        return QStringList{
            QString::number(nextKey++), QString::number(below(1000)), {}, {}, {}, {}};
    };
    const auto content = [](const QStringList &held) { return row(held[0], held[1], held.mid(2)); };

    const std::function<void()> operations[] = {
        [&] {
            const int at = below(static_cast<int>(expected.size()) + 1);
            expected.insert(at, fresh());
            model.addRow(at, content(expected.at(at)));
        },
        [&] {
            if (expected.isEmpty())
                return;
            const int at = below(static_cast<int>(expected.size()));
            expected.removeAt(at);
            model.deleteRow(at);
        },
        [&] {
            if (columns < 5)
                model.addColumn(below(columns + 1), QString(), QString(), Qt::AlignLeft);
            columns = model.columns();
        },
        [&] {
            if (columns > 0)
                model.deleteColumn(below(columns));
            columns = model.columns();
        },
        [&] {
            if (expected.isEmpty() || columns < 2)
                return;
            const int at = below(static_cast<int>(expected.size()));
            const int column = 1 + below(columns - 1);
            expected[at][1 + column] = QString::number(below(100));
            model.setSubItem(model.row(at), column, expected.at(at).at(1 + column));
        },
        [&] {
            if (columns < 2)
                return;
            const int column = 1 + below(columns - 1);
            for (QStringList &held : expected)
                held[1 + column] = u"all"_s;
            model.setSubItemOfAll(column, u"all"_s, u"tag"_s);
        },
        [&] {
            const QList<QStringList> more{fresh(), fresh(), fresh()};
            expected += more;
            model.appendRows({content(more[0]), content(more[1]), content(more[2])});
        },
        [&] {
            if (below(20) != 0)
                return;
            expected = {fresh(), fresh()};
            model.setRows({content(expected[0]), content(expected[1])});
        },
        [&] {
            if (below(20) == 0)
                model.clearColumns();
            columns = model.columns();
        },
    };
    for (int step = 0; step < 400; ++step) {
        operations[below(static_cast<int>(std::size(operations)))]();
        QCOMPARE(model.rowCount(), expected.size());
        for (int at = 0; at < expected.size(); ++at) {
            QCOMPARE(model.positionOf(*model.find(expected.at(at).at(0))), at);
            for (int column = 0; column < columns; ++column)
                QCOMPARE(model.index(at, column).data().toString(), expected.at(at).at(1 + column));
        }
    }
}

ORVT_TEST(ReportModelTest)
#include "ReportModelTest.moc"
