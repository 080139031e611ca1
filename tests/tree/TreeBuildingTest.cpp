// The project tree as it is built from the settings, and what it tells of itself.

#include "tree/ProjectTree.h"

#include "shared/points/DisplayNames.h"
#include "shared/texts/TextTable.h"
#include "support/PseudoTexts.h"
#include "support/Raised.h"
#include "support/ShownTexts.h"
#include "support/TestProgram.h"
#include "tree/rules/PointCounts.h"
#include "widgets/look/Colours.h"

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QStringList allNames()
{
    QStringList names;
    for (qint32 type = lowestType; type <= highestType; ++type)
        names.append(displayName(type));
    return names;
}

template <typename Call>
qint32 errorOf(Call call)
{
    const auto error = raisedBy(call);
    return error ? error->Number() : 0;
}

} // namespace

class TreeBuildingTest : public ProjectTreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void withoutSettingsOnePageHoldsAll();
    void everyNodeHasItsIdentity();
    void pagesFollowTheSettings();
    void theLargestPageOpens();
    void everyNodeHasAPicture();
    void nodesAreExpanded();
    void childControlsHaveTheirNames();
    void coloursCategories();
    void coloursNothingForOtherTypes();
    void raisesForAMissingCategory();
    void selectsAndHits();
    void handsOutThePageSettings();
    void tellsPageNumbers();
    void pageNumbersGoByTheTags();
    void tellsTypes();
    void handsOutCollections();
    void keepsCountsForTheThread();
    void showsTextsOfItsLanguage();
    void followsALanguage();
    void initStringsFetchesNothing();
    void leavesTextsThatTheHostChanged();
    void leavesPagesBeyondTheNamed();
    void showsNothingThatWasNotLookedUp();
};

void TreeBuildingTest::withoutSettingsOnePageHoldsAll()
{
    const ORVTreeview tree;
    QCOMPARE(tree.Nodes()->Count(), 1 + 1 + 13);
    QCOMPARE(keysBelow(tree.Nodes()->Item(1)), QStringList{u"Page0"_s});
    QCOMPARE(node(tree, u"Page0"_s)->Text(), u"Basic Programming"_s);
    QCOMPARE(keysOn(tree, 0), allNames());
    QCOMPARE(keysOn(tree, 0).first(), u"Code"_s);
}

void TreeBuildingTest::everyNodeHasItsIdentity()
{
    store(u"Timers"_s, u"1"_s);
    const ORVTreeview tree;
    const Node *device = tree.Nodes()->Item(1);
    QCOMPARE(device->Key(), u"Device"_s);
    QCOMPARE(device->Text(), u"Device"_s);
    QCOMPARE(device->Image(), u"Device"_s);
    QCOMPARE(device->Tag().toInt(), -1);
    QCOMPARE(device->Parent(), nullptr);
    QCOMPARE(device->Next(), nullptr);
    for (int i = 0; i < 2; ++i) {
        const Node *page = node(tree, u"Page%1"_s.arg(i));
        QCOMPARE(page->Image(), u"Page"_s);
        QCOMPARE(page->Tag().toInt(), i + 13);
        QCOMPARE(page->Parent(), device);
    }
    for (qint32 type = lowestType; type <= highestType; ++type) {
        const Node *category = node(tree, displayName(type));
        QCOMPARE(category->Text(), displayName(type));
        QCOMPARE(category->Image(), displayName(type));
        QCOMPARE(category->Tag().toInt(), type);
        QCOMPARE(category->Parent(), node(tree, type == dsTimer ? u"Page1"_s : u"Page0"_s));
        QCOMPARE(category->ForeColor(), Colours::windowText);
    }
}

void TreeBuildingTest::pagesFollowTheSettings()
{
    store(u"Logs"_s, u"7"_s);
    store(u"Output Parameters"_s, u"2"_s);
    store(u"Inputs"_s, u"2"_s);
    store(u"Outputs"_s, u"1000"_s);
    store(u"Constants"_s, u"-1"_s);
    const ORVTreeview tree;
    QCOMPARE(node(tree, u"Device"_s)->Children(), 8);
    QCOMPARE(keysOn(tree, 2), QStringList({u"Inputs"_s, u"Output Parameters"_s}));
    QCOMPARE(keysOn(tree, 7), QStringList{u"Logs"_s});
    QVERIFY(keysOn(tree, 0).contains(u"Outputs"_s));
    QVERIFY(keysOn(tree, 0).contains(u"Constants"_s));
    const QStringList captions{u"Basic Programming"_s, u"Internal Points"_s,
                               u"Built-In Functions"_s, u"Network Variables"_s,
                               u"Hardware Configuration"_s};
    for (int page = 0; page < 8; ++page) {
        QCOMPARE(node(tree, u"Page%1"_s.arg(page))->Text(), captions.value(page));
        QCOMPARE(node(tree, u"Page%1"_s.arg(page))->Tag().toInt(), page + 13);
    }
    for (const int empty : {1, 3, 4, 5, 6})
        QCOMPARE(node(tree, u"Page%1"_s.arg(empty))->Children(), 0);
}

void TreeBuildingTest::theLargestPageOpens()
{
    store(u"Code"_s, u"999"_s);
    ORVTreeview tree;
    tree.show();
    QCOMPARE(tree.Nodes()->Count(), 1 + 1000 + 13);
    QCOMPARE(node(tree, u"Code"_s)->Parent(), node(tree, u"Page999"_s));
    node(tree, u"Code"_s)->EnsureVisible();
    QCOMPARE(tree.GetPageNumber(node(tree, u"Code"_s)), qint16{999});
}

void TreeBuildingTest::everyNodeHasAPicture()
{
    const ORVTreeview tree;
    const QAbstractItemModel &model = *inner(tree)->model();
    const QModelIndex device = model.index(0, 0);
    const QModelIndex page = model.index(0, 0, device);
    QList<QImage> pictures;
    const auto take = [&](const QModelIndex &index) {
        const QIcon icon = index.data(Qt::DecorationRole).value<QIcon>();
        QVERIFY2(!icon.isNull(), qPrintable(index.data().toString()));
        const QImage picture = icon.pixmap(16).toImage();
        QVERIFY2(!pictures.contains(picture), qPrintable(index.data().toString()));
        pictures.append(picture);
    };
    take(device);
    take(page);
    for (int row = 0; row < 13; ++row)
        take(model.index(row, 0, page));
}

void TreeBuildingTest::nodesAreExpanded()
{
    store(u"Code"_s, u"2"_s);
    const ORVTreeview tree;
    for (const QString &key : {u"Device"_s, u"Page0"_s, u"Page1"_s, u"Page2"_s})
        QVERIFY(node(tree, key)->Expanded());
    QVERIFY(!node(tree, u"Code"_s)->Expanded());
}

void TreeBuildingTest::childControlsHaveTheirNames()
{
    ORVTreeview tree;
    QVERIFY(inner(tree));
    tree.resize(333, 222);
    tree.show();
    QCOMPARE(inner(tree)->geometry(), tree.rect());
    QCOMPARE(tree.focusProxy(), inner(tree));
}

void TreeBuildingTest::coloursCategories()
{
    ORVTreeview tree;
    tree.SetNodeForeColor(dsOs, 0x00ff00);
    QCOMPARE(node(tree, u"Optimum Starts"_s)->ForeColor(), 0x00ff00);
    QCOMPARE(node(tree, u"Inputs"_s)->ForeColor(), Colours::windowText);
}

void TreeBuildingTest::coloursNothingForOtherTypes()
{
    ORVTreeview tree;
    tree.SetNodeForeColor(static_cast<LwType>(13), 255);
    tree.SetNodeForeColor(static_cast<LwType>(-1), 255);
    for (qint32 i = 1; i <= tree.Nodes()->Count(); ++i)
        QCOMPARE(tree.Nodes()->Item(i)->ForeColor(), Colours::windowText);
}

void TreeBuildingTest::raisesForAMissingCategory()
{
    ORVTreeview tree;
    tree.Nodes()->Remove(u"Logs"_s);
    QCOMPARE(errorOf([&] { tree.SetNodeForeColor(dsLog, 255); }), InvalidCall);
    QCOMPARE(errorOf([&] { tree.Nodes()->Item(u"Schedules"_s); }), InvalidCall);
}

void TreeBuildingTest::selectsAndHits()
{
    ORVTreeview tree;
    QCOMPARE(tree.SelectedItem(), nullptr);
    tree.setSelectedItem(node(tree, u"Logs"_s));
    QCOMPARE(tree.SelectedItem(), node(tree, u"Logs"_s));
    tree.setSelectedItem(nullptr);
    QCOMPARE(tree.SelectedItem(), nullptr);
    tree.resize(200, 400);
    tree.show();
    QCOMPARE(tree.HitTest(300.0F, 150.0F), node(tree, u"Device"_s));
    QCOMPARE(tree.HitTest(300.0F, 5990.0F), nullptr);
}

void TreeBuildingTest::handsOutThePageSettings()
{
    store(u"Inputs"_s, u"1"_s);
    const ORVTreeview tree;
    QList<Pages> pages = tree.GetPageSettings();
    QCOMPARE(pages.size(), 2);
    QCOMPARE(pages.at(1).Name, QString());
    QCOMPARE(pages.at(1).Index, QList<LwType>{dsInput});
    QCOMPARE(pages.at(1).Key, QStringList{u"Inputs"_s});
    QCOMPARE(pages.at(0).Index.size(), 12);

    pages.clear(); // a copy
    node(tree, u"Logs"_s)->setParent(node(tree, u"Page1"_s));
    QCOMPARE(tree.GetPageSettings().at(1).Key, QStringList{u"Inputs"_s});
}

void TreeBuildingTest::tellsPageNumbers()
{
    store(u"Inputs"_s, u"2"_s);
    const ORVTreeview tree;
    QCOMPARE(tree.GetPageNumber(node(tree, u"Device"_s)), qint16{-1});
    QCOMPARE(tree.GetPageNumber(node(tree, u"Page0"_s)), qint16{0});
    QCOMPARE(tree.GetPageNumber(node(tree, u"Page2"_s)), qint16{2});
    QCOMPARE(tree.GetPageNumber(node(tree, u"Inputs"_s)), qint16{2});
    QCOMPARE(tree.GetPageNumber(node(tree, u"Code"_s)), qint16{0});
    node(tree, u"Code"_s)->setParent(node(tree, u"Page1"_s));
    QCOMPARE(tree.GetPageNumber(node(tree, u"Code"_s)), qint16{1});
}

void TreeBuildingTest::pageNumbersGoByTheTags()
{
    const ORVTreeview tree;
    Node *own = tree.Nodes()->Add(node(tree, u"Page0"_s), NodeRelationship::Child);
    const auto numberFor = [&](const QVariant &tag) {
        own->setTag(tag);
        return tree.GetPageNumber(own);
    };
    QCOMPARE(numberFor(40), qint16{27});
    QCOMPARE(numberFor(u"14"_s), qint16{1});
    QCOMPARE(numberFor(-2), qint16{-15});
    QCOMPARE(numberFor(3), qint16{0}); // of its page
    QCOMPARE(numberFor(QVariant()), qint16{0});
    QCOMPARE(errorOf([&] { numberFor(u"x"_s); }), TypeMismatch);
    QCOMPARE(errorOf([&] { numberFor(40000); }), Overflow);
    QCOMPARE(errorOf([&] { numberFor(-32760); }), Overflow);
    QCOMPARE(errorOf([&] { tree.GetPageNumber(nullptr); }), ObjectNotSet);
    own->setTag(5);
    own->setParent(nullptr);
    QCOMPARE(errorOf([&] { tree.GetPageNumber(own); }), ObjectNotSet);
    tree.Nodes()->Remove(own->Index());
    QCOMPARE(errorOf([&] { tree.GetPageNumber(own); }), ObjectNotSet);
}

void TreeBuildingTest::tellsTypes()
{
    const ORVTreeview tree;
    QCOMPARE(tree.GetItemsBound(), qint16{12});
    for (qint16 type = 0; type <= 12; ++type)
        QCOMPARE(tree.GetItemKey(type), displayName(type));
    for (const int other : {-1, 13, -32768, 32767})
        QCOMPARE(tree.GetItemKey(static_cast<qint16>(other)), QString());
}

void TreeBuildingTest::handsOutCollections()
{
    const ORVTreeview tree;
    KeyedCollection<QString> names = tree.GetLWTypeKeyCollection();
    QCOMPARE(names.Item(u"Key0"_s), u"Code"_s);
    QCOMPARE(names.Item(1), u"Variables"_s);
    QCOMPARE(names.Item(13), u"Code"_s);
    names.Clear();
    QCOMPARE(tree.GetLWTypeKeyCollection().Count(), 13);
    QCOMPARE(tree.GetLWTypeIndexCollection().Item(u"Variables"_s), 1);
    QCOMPARE(tree.GetLWTypeIndexCollection().Item(5), 11);
}

void TreeBuildingTest::keepsCountsForTheThread()
{
    ORVTreeview tree;
    tree.Init_Values(1, 2, 3, 4, 5, 6, 7, 8, 9, 10);
    QCOMPARE(threadPart<PointCounts>(), (PointCounts{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    ORVTreeview other;
    other.Init_Values(-1, 0, 0, 0, 0, 0, 0, 0, 0, 32767);
    QCOMPARE(threadPart<PointCounts>(), (PointCounts{-1, 0, 0, 0, 0, 0, 0, 0, 0, 32767}));
}

void TreeBuildingTest::showsTextsOfItsLanguage()
{
    PseudoTexts texts;
    setTextProvider(&texts);
    const ORVTreeview tree;
    QCOMPARE(node(tree, u"Device"_s)->Text(), PseudoTexts::inBrackets(u"Device"_s));
    QCOMPARE(node(tree, u"Page0"_s)->Text(), PseudoTexts::inBrackets(u"Basic Programming"_s));
    QCOMPARE(node(tree, u"Optimum Starts"_s)->Text(), PseudoTexts::inBrackets(u"Optimum Starts"_s));
    QCOMPARE(node(tree, u"Optimum Starts"_s)->Image(), u"Optimum Starts"_s);
    setTextProvider(nullptr);
}

void TreeBuildingTest::followsALanguage()
{
    store(u"Inputs"_s, u"4"_s);
    ORVTreeview tree;
    PseudoTexts texts;
    setTextProvider(&texts);
    QCOMPARE(node(tree, u"Inputs"_s)->Text(), u"Inputs"_s); // until it is told
    tree.ReInitializeStrings();
    const QStringList captions{u"Basic Programming"_s, u"Internal Points"_s,
                               u"Built-In Functions"_s, u"Network Variables"_s,
                               u"Hardware Configuration"_s};
    for (int page = 0; page < 5; ++page)
        QCOMPARE(node(tree, u"Page%1"_s.arg(page))->Text(),
                 PseudoTexts::inBrackets(captions.at(page)));
    for (qint32 type = lowestType; type <= highestType; ++type)
        QCOMPARE(node(tree, displayName(type))->Text(), PseudoTexts::inBrackets(displayName(type)));
    setTextProvider(nullptr);
    tree.ReInitializeStrings();
    QCOMPARE(node(tree, u"Device"_s)->Text(), u"Device"_s);
    QCOMPARE(node(tree, u"Inputs"_s)->Text(), u"Inputs"_s);
}

void TreeBuildingTest::initStringsFetchesNothing()
{
    ORVTreeview tree;
    PseudoTexts texts;
    setTextProvider(&texts);
    threadPart<TextTable>().refresh();
    tree.InitStrings();
    QCOMPARE(node(tree, u"Inputs"_s)->Text(), PseudoTexts::inBrackets(u"Inputs"_s));
    setTextProvider(nullptr);
}

void TreeBuildingTest::leavesTextsThatTheHostChanged()
{
    ORVTreeview tree;
    node(tree, u"Device"_s)->setText(u"AHU-1"_s);
    node(tree, u"Inputs"_s)->setText(u"Sensors"_s);
    tree.Nodes()->Remove(u"Logs"_s);
    Node *own =
        tree.Nodes()->Add(node(tree, u"Page0"_s), NodeRelationship::Child, u"Logs"_s, u"My Logs"_s);
    PseudoTexts texts;
    setTextProvider(&texts);
    tree.ReInitializeStrings();
    QCOMPARE(node(tree, u"Device"_s)->Text(), u"AHU-1"_s);
    QCOMPARE(node(tree, u"Inputs"_s)->Text(), u"Sensors"_s);
    QCOMPARE(own->Text(), u"My Logs"_s);
    QCOMPARE(node(tree, u"Outputs"_s)->Text(), PseudoTexts::inBrackets(u"Outputs"_s));
    setTextProvider(nullptr);
}

void TreeBuildingTest::leavesPagesBeyondTheNamed()
{
    store(u"Inputs"_s, u"5"_s);
    ORVTreeview tree;
    PseudoTexts texts;
    setTextProvider(&texts);
    tree.ReInitializeStrings();
    QCOMPARE(node(tree, u"Page5"_s)->Text(), QString());
    node(tree, u"Page5"_s)->setText(u"Spare"_s);
    tree.ReInitializeStrings();
    QCOMPARE(node(tree, u"Page5"_s)->Text(), u"Spare"_s);
    setTextProvider(nullptr);
}

void TreeBuildingTest::showsNothingThatWasNotLookedUp()
{
    PseudoTexts texts;
    setTextProvider(&texts);
    const ORVTreeview tree;
    QCOMPARE(shownWithoutLookup(tree), QStringList());
    for (qint32 i = 1; i <= tree.Nodes()->Count(); ++i)
        QVERIFY(tree.Nodes()->Item(i)->Text().startsWith(u'\u27e6'));
    setTextProvider(nullptr);
}

ORVT_TEST(TreeBuildingTest)
#include "TreeBuildingTest.moc"
