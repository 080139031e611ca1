// How ORVDataCombo is filled, and what is found in it.

#include "combo/DataComboHost.h"
#include "editor/rules/language/Vocabulary.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/Error.h>

#include <QtTest/QSignalSpy>

#include <limits>
#include <stdexcept>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

constexpr qint32 most = 40'000;

// As many points as it says, each made when it is asked for.
class ManyPoints final : public PointCollection
{
public:
    explicit ManyPoints(qint32 count)
        : m_count(count)
    {
    }

    qint32 Count() const override { return m_count; }
    std::optional<Point> Item(qint32 index) const override
    {
        if (index > most)
            return std::nullopt;
        return Point{u"Point%1"_s.arg(index), index};
    }
    std::optional<Point> Find(const QString &) const override { return std::nullopt; }

private:
    qint32 m_count;
};

class FailingPoints final : public PointCollection
{
public:
    explicit FailingPoints(bool raisesError)
        : m_raisesError(raisesError)
    {
    }

    qint32 Count() const override { return 3; }
    std::optional<Point> Item(qint32 index) const override
    {
        if (index < 3)
            return Point{u"Good%1"_s.arg(index), 0};
        if (m_raisesError)
            throw Error(InvalidCall, u"Host"_s, u"The points are away"_s);
        throw std::runtime_error("The database is away");
    }
    std::optional<Point> Find(const QString &) const override { return std::nullopt; }

private:
    bool m_raisesError;
};

// Holds what it was given in order, equal names included.
class AnyPoints final : public PointCollection
{
public:
    explicit AnyPoints(const QStringList &names)
        : m_names(names)
    {
    }

    qint32 Count() const override { return static_cast<qint32>(m_names.size()); }
    std::optional<Point> Item(qint32 index) const override
    {
        return Point{m_names.at(index - 1), index};
    }
    std::optional<Point> Find(const QString &) const override { return std::nullopt; }

private:
    QStringList m_names;
};

} // namespace

class DataComboTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void theInnerComboFillsTheControl();
    void fillsFromTheCollectionOfTheType_data();
    void fillsFromTheCollectionOfTheType();
    void otherTypesChangeNothing();
    void anUnsetOrDestroyedCollectionEmptiesTheList();
    void fillingReplacesEntriesAndSelection();
    void fillingShowsTheCollectionAsItIsThen();
    void fillingReadsNoFurtherThanTheCollectionGoes();
    void aFailingCollectionIsToldAndChangesNothing();
    void pointsOfOneNameAreAllShown();
    void setListIndexSelectsByTheExactName();
    void setListIndexOfNoPointChangesNothing();
    void itemDataIsTheDataValue();
    void countsSaturateBeyondSixteenBits();
    void clearLeavesNothing();
};

void DataComboTest::theInnerComboFillsTheControl()
{
    ORVDataCombo combo;
    const auto *inner = combo.findChild<QWidget *>(u"ImageCombo1"_s);
    QVERIFY(inner);
    combo.show();
    for (const QSize size : {QSize(200, 30), QSize(333, 51), QSize(60, 20)}) {
        combo.resize(size);
        QCOMPARE(inner->geometry(), QRect(QPoint(), size));
    }
    QCOMPARE(combo.focusProxy(), inner);
}

void DataComboTest::fillsFromTheCollectionOfTheType_data()
{
    QTest::addColumn<LwType>("type");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<int>("image");
    QTest::addColumn<int>("data");
    QTest::addColumn<QColor>("colour");
    QTest::addRow("variables") << dsVariable << QStringList{u"Var1"_s, u"Var2"_s} << 67 << 101
                               << QColor(0, 0, 255);
    QTest::addRow("constants") << dsConst << QStringList{u"Limit1"_s} << 66 << 7
                               << QColor(128, 0, 0);
    QTest::addRow("inputs") << dsInput << QStringList{u"Temp1"_s, u"Temp2"_s, u"Humidity"_s} << 68
                            << 11 << QColor(255, 0, 0);
    QTest::addRow("outputs") << dsOutput << QStringList{u"Fan1"_s} << 69 << 2147483647
                             << QColor(128, 0, 255);
}

void DataComboTest::fillsFromTheCollectionOfTheType()
{
    QFETCH(LwType, type);
    QFETCH(QStringList, names);
    QFETCH(int, image);
    DataComboHost host;
    host.giveColours();
    host.fill(type);
    QCOMPARE(host.texts(), names);
    QCOMPARE(int{host.combo->ListCount()}, names.size());
    QCOMPARE(host.combo->ListIndex(), qint16{-1});
    QCOMPARE(host.combo->Text(), QString());
    for (int row = 0; row < names.size(); ++row) {
        const ComboEntry &entry = host.inner().entry(row + 1);
        QCOMPARE(entry.key, names.at(row));
        QCOMPARE(entry.image, image);
        QCOMPARE(entry.selectedImage, image);
        QVERIFY(!host.inner().itemIcon(row).isNull());
    }
    QTEST(host.combo->ItemData(0), "data");
    host.combo->SetListIndex(names.first());
    QTEST(host.colour(), "colour");
}

void DataComboTest::otherTypesChangeNothing()
{
    DataComboHost host;
    host.fill(dsInput);
    host.combo->SetListIndex(u"Temp2"_s);
    for (int type = -2; type < 20; ++type) {
        if (type >= dsVariable && type <= dsOutput)
            continue;
        QString error = u"as it was"_s;
        host.combo->FillDataListview(static_cast<LwType>(type), &host.outputs, error);
        QCOMPARE(error, u"as it was"_s);
        QCOMPARE(host.combo->ListCount(), qint16{3});
        QCOMPARE(host.combo->ListIndex(), qint16{1});
    }
}

void DataComboTest::anUnsetOrDestroyedCollectionEmptiesTheList()
{
    DataComboHost host;
    host.fill(dsInput);
    host.tree.SetCollectionRenamable(nullptr, &host.variables, nullptr, nullptr, nullptr, nullptr);
    host.fill(dsInput);
    QCOMPARE(host.combo->ListCount(), qint16{0});

    host.fill(dsVariable);
    QCOMPARE(host.combo->ListCount(), qint16{2});
    {
        PointList gone;
        gone.Add(u"Gone"_s);
        host.tree.SetCollectionRenamable(nullptr, &gone, nullptr, nullptr, nullptr, nullptr);
    }
    QCOMPARE(host.combo->ListCount(), qint16{2});
    QCOMPARE(host.combo->ItemData(1), 102);
    host.fill(dsVariable);
    QCOMPARE(host.combo->ListCount(), qint16{0});

    ORVDataCombo alone;
    QString error;
    renewState(); // nothing was ever handed over
    alone.FillDataListview(dsOutput, nullptr, error);
    QCOMPARE(alone.ListCount(), qint16{0});
    QCOMPARE(error, QString());
}

void DataComboTest::fillingReplacesEntriesAndSelection()
{
    DataComboHost host;
    host.fill(dsInput);
    host.combo->SetListIndex(u"Temp2"_s);
    QSignalSpy changes(host.combo, &ORVDataCombo::Change);
    QSignalSpy clicks(host.combo, &ORVDataCombo::Click);
    host.fill(dsVariable);
    QCOMPARE(host.texts(), QStringList({u"Var1"_s, u"Var2"_s}));
    QCOMPARE(host.combo->ListIndex(), qint16{-1});
    QCOMPARE(host.combo->Text(), QString());
    host.combo->SetListIndex(u"Temp2"_s);
    QCOMPARE(host.combo->ListIndex(), qint16{-1});

    host.combo->setText(u"of the host"_s);
    changes.clear();
    host.fill(dsOutput);
    QCOMPARE(host.combo->Text(), u"of the host"_s);
    QCOMPARE(host.combo->ListIndex(), qint16{-1});
    QCOMPARE(changes.count() + clicks.count(), 0);
}

void DataComboTest::fillingShowsTheCollectionAsItIsThen()
{
    DataComboHost host;
    host.fill(dsInput);
    host.inputs.Add(u"Later"_s, 13);
    QCOMPARE(host.combo->ListCount(), qint16{3});
    host.fill(dsInput);
    QCOMPARE(host.combo->ListCount(), qint16{4});
    QCOMPARE(host.combo->ItemData(3), 13);
}

void DataComboTest::fillingReadsNoFurtherThanTheCollectionGoes()
{
    DataComboHost host;
    const ManyPoints boasting(std::numeric_limits<qint32>::max());
    const ManyPoints negative(-5);
    auto *points = const_cast<ManyPoints *>(&boasting);
    host.tree.SetCollectionRenamable(nullptr, points, nullptr, nullptr, nullptr, nullptr);
    host.fill(dsVariable);
    QCOMPARE(host.inner().count(), most);
    points = const_cast<ManyPoints *>(&negative);
    host.tree.SetCollectionRenamable(nullptr, points, nullptr, nullptr, nullptr, nullptr);
    host.fill(dsVariable);
    QCOMPARE(host.inner().count(), 0);
}

void DataComboTest::aFailingCollectionIsToldAndChangesNothing()
{
    DataComboHost host;
    host.fill(dsInput);
    host.combo->SetListIndex(u"Temp1"_s);
    FailingPoints raising(true);
    FailingPoints throwing(false);
    host.tree.SetCollectionRenamable(nullptr, &raising, &throwing, nullptr, nullptr, nullptr);
    QString error;
    host.combo->FillDataListview(dsVariable, nullptr, error);
    QCOMPARE(error, u"The points are away"_s);
    host.combo->FillDataListview(dsConst, nullptr, error);
    QCOMPARE(error, u"The database is away"_s);
    QCOMPARE(host.combo->ListCount(), qint16{3});
    QCOMPARE(host.combo->ListIndex(), qint16{0});
    QCOMPARE(host.combo->Text(), u"Temp1"_s);
}

void DataComboTest::pointsOfOneNameAreAllShown()
{
    DataComboHost host;
    AnyPoints points({u"Twin"_s, QString(), u"TWIN"_s, u"Twin"_s});
    host.tree.SetCollectionRenamable(nullptr, &points, nullptr, nullptr, nullptr, nullptr);
    host.fill(dsVariable);
    QCOMPARE(host.texts(), QStringList({u"Twin"_s, QString(), u"TWIN"_s, u"Twin"_s}));
    host.combo->SetListIndex(u"Twin"_s);
    QCOMPARE(host.combo->ListIndex(), qint16{0});
    host.combo->SetListIndex(u"TWIN"_s);
    QCOMPARE(host.combo->ListIndex(), qint16{2});
    QCOMPARE(host.combo->ItemData(3), 4);
}

void DataComboTest::setListIndexSelectsByTheExactName()
{
    DataComboHost host;
    host.fill(dsInput);
    QSignalSpy changes(host.combo, &ORVDataCombo::Change);
    QSignalSpy clicks(host.combo, &ORVDataCombo::Click);
    host.combo->SetListIndex(u"Humidity"_s);
    QCOMPARE(host.combo->ListIndex(), qint16{2});
    QCOMPARE(host.combo->Text(), u"Humidity"_s);
    host.combo->SetListIndex(u"Temp1"_s);
    QCOMPARE(host.combo->ListIndex(), qint16{0});
    QCOMPARE(host.combo->Text(), u"Temp1"_s);
    QCOMPARE(changes.count() + clicks.count(), 0);
}

void DataComboTest::setListIndexOfNoPointChangesNothing()
{
    DataComboHost host;
    host.giveColours();
    host.fill(dsInput);
    for (const QString &name : {QString(), u"TEMP2"_s, u"temp1"_s, u" Temp1"_s, u"Var1"_s}) {
        host.combo->SetListIndex(name);
        QCOMPARE(host.combo->ListIndex(), qint16{-1});
    }
    host.combo->SetListIndex(u"Temp2"_s);
    for (const QString &name : {QString(), u"TEMP1"_s, u"Temp"_s, u"Var1"_s}) {
        host.combo->SetListIndex(name);
        QCOMPARE(host.combo->ListIndex(), qint16{1});
        QCOMPARE(host.combo->Text(), u"Temp2"_s);
    }
}

void DataComboTest::itemDataIsTheDataValue()
{
    DataComboHost host;
    QCOMPARE(host.combo->ItemData(0), 0);
    host.fill(dsInput);
    QCOMPARE(host.combo->ItemData(0), 11);
    QCOMPARE(host.combo->ItemData(1), 12);
    QCOMPARE(host.combo->ItemData(2), std::numeric_limits<qint32>::min());
    for (const qint16 outside : {qint16{3}, qint16{32767}, qint16{-1}, qint16{-32768}})
        QCOMPARE(host.combo->ItemData(outside), 0);
    host.fill(dsOutput);
    QCOMPARE(host.combo->ItemData(0), std::numeric_limits<qint32>::max());
}

void DataComboTest::countsSaturateBeyondSixteenBits()
{
    DataComboHost host;
    ManyPoints points(most);
    host.tree.SetCollectionRenamable(nullptr, &points, nullptr, nullptr, nullptr, nullptr);
    host.fill(dsVariable);
    QCOMPARE(host.combo->ListCount(), qint16{32767});
    QCOMPARE(host.combo->ItemData(32766), 32767);
    QCOMPARE(host.combo->ItemData(32767), 0);
    host.combo->SetListIndex(u"Point32767"_s);
    QCOMPARE(host.combo->ListIndex(), qint16{32766});
    host.combo->SetListIndex(u"Point40000"_s);
    QCOMPARE(host.combo->ListIndex(), qint16{32767});
    QCOMPARE(host.combo->Text(), u"Point40000"_s);
}

void DataComboTest::clearLeavesNothing()
{
    DataComboHost host;
    host.fill(dsInput);
    host.combo->SetListIndex(u"Temp2"_s);
    host.combo->Clear();
    QCOMPARE(host.combo->ListCount(), qint16{0});
    QCOMPARE(host.combo->ListIndex(), qint16{-1});
    QCOMPARE(host.combo->Text(), QString());
    QCOMPARE(host.combo->ItemData(0), 0);
    host.combo->Clear();
    host.combo->SetListIndex(u"Temp2"_s);
    QCOMPARE(host.combo->ListIndex(), qint16{-1});
}

ORVT_TEST(DataComboTest)
#include "DataComboTest.moc"
