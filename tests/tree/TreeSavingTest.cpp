// What the project tree leaves in the settings, with real files.

#include "tree/ProjectTree.h"

#include "base/FileLock.h"
#include "shared/points/DisplayNames.h"

#include "support/DiskLimits.h"
#include "support/TestProgram.h"
#include "support/WithoutRights.h"

#include <QtCore/QThread>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class TreeSavingTest : public ProjectTreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void savesAllCategories();
    void comesBackSorted();
    void countsPagesAsTheyStand();
    void savesOnlyCategories();
    void aMissingCategoryKeepsItsSetting();
    void anEmptyTreeSavesNothing();
    void aDesignedTreeSavesNothing();
    void theLastOfTwoTreesWins();
    void savesWhateverTheFile_data();
    void savesWhateverTheFile();
    void aFileOfManyOthersLosesNone();
    void aReadOnlyFileStays();
    void aFolderInItsPlaceStays();
    void aFullDiskKeepsWhatWasSaved();
    void mayGoWithItsWindow();
    void waitsForWhoeverHoldsTheFile();
};

void TreeSavingTest::savesAllCategories()
{
    {
        const ORVTreeview tree;
        QVERIFY(folder().names().isEmpty()); // not before its end
    }
    for (qint32 type = lowestType; type <= highestType; ++type)
        QCOMPARE(stored(displayName(type)), u"0"_s);
}

void TreeSavingTest::comesBackSorted()
{
    {
        const ORVTreeview tree;
        Node *page = tree.Nodes()->Add(u"Device"_s, NodeRelationship::Child, u"Page1"_s);
        for (const QString &key : {u"Timers"_s, u"Code"_s, u"Inputs"_s})
            node(tree, key)->setParent(page);
        QCOMPARE(keysOn(tree, 1), QStringList({u"Timers"_s, u"Code"_s, u"Inputs"_s}));
    }
    const ORVTreeview again;
    QCOMPARE(keysOn(again, 1), QStringList({u"Code"_s, u"Inputs"_s, u"Timers"_s}));
    QCOMPARE(keysOn(again, 0).size(), 10);
}

void TreeSavingTest::countsPagesAsTheyStand()
{
    store(u"Inputs"_s, u"2"_s);
    {
        const ORVTreeview tree;
        tree.Nodes()->Remove(u"Page1"_s);                                 // empty
        QCOMPARE(tree.GetPageNumber(node(tree, u"Inputs"_s)), qint16{2}); // by its tag
    }
    QCOMPARE(stored(u"Inputs"_s), u"1"_s);
    {
        const ORVTreeview tree;
        node(tree, u"Page1"_s)->MoveTo(node(tree, u"Page0"_s), NodeRelationship::Previous);
    }
    QCOMPARE(stored(u"Inputs"_s), u"0"_s);
    QCOMPARE(stored(u"Code"_s), u"1"_s);
}

void TreeSavingTest::savesOnlyCategories()
{
    {
        const ORVTreeview tree;
        Nodes &nodes = *tree.Nodes();
        nodes.Add(u"Page0"_s, NodeRelationship::Child, u"Mine"_s);
        nodes.Add(u"Page0"_s, NodeRelationship::Child);
        nodes.Add(u"Inputs"_s, NodeRelationship::Child, u"Below"_s);
        node(tree, u"Logs"_s)->setText(u"Records"_s);
    }
    for (const QString &name : {u"Mine"_s, u""_s, u"Below"_s, u"Records"_s, u"Page0"_s})
        QCOMPARE(stored(name), QString());
    QCOMPARE(stored(u"Logs"_s), u"0"_s);
}

void TreeSavingTest::aMissingCategoryKeepsItsSetting()
{
    store(u"Logs"_s, u"3"_s);
    {
        const ORVTreeview tree;
        tree.Nodes()->Remove(u"Logs"_s);
        node(tree, u"Code"_s)->setParent(node(tree, u"Page3"_s));
    }
    QCOMPARE(stored(u"Logs"_s), u"3"_s);
    QCOMPARE(stored(u"Code"_s), u"3"_s);
}

void TreeSavingTest::anEmptyTreeSavesNothing()
{
    store(u"Logs"_s, u"3"_s);
    {
        const ORVTreeview tree;
        tree.Nodes()->Clear();
    }
    QCOMPARE(stored(u"Logs"_s), u"3"_s);
    QCOMPARE(stored(u"Code"_s), QString());
}

void TreeSavingTest::aDesignedTreeSavesNothing()
{
    {
        ORVTreeview tree;
        QVERIFY(!tree.isDesignMode());
        tree.setDesignMode(true);
        QVERIFY(tree.isDesignMode());
    }
    QVERIFY(folder().names().isEmpty());
}

void TreeSavingTest::theLastOfTwoTreesWins()
{
    store(u"Inputs"_s, u"1"_s);
    auto first = std::make_unique<ORVTreeview>();
    auto second = std::make_unique<ORVTreeview>();
    node(*first, u"Logs"_s)->setParent(node(*first, u"Page1"_s));
    second.reset();
    first.reset();
    QCOMPARE(stored(u"Logs"_s), u"1"_s);
}

void TreeSavingTest::savesWhateverTheFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("truncated") << QByteArray("; Settings. Without the line \"; end of settings\" "
                                             "this file counts as cut off.\n[Software/Mor");
    QTest::newRow("NULs") << QByteArray(700, '\0');
    QTest::newRow("binary") << QByteArray("\x7f\x45\x4c\x46\x02\xff\xfe\x00\x80", 9);
    QTest::newRow("10 MB") << QByteArray("[x]\n") + QByteArray(10 << 20, '\x80');
}

// Whatever is wrong with the file, the tree shows one page, and the next one what
// was saved.
void TreeSavingTest::savesWhateverTheFile()
{
    QFETCH(QByteArray, content);
    if (!content.isNull())
        folder().write(u"settings.ini"_s, content);
    {
        const ORVTreeview tree;
        QCOMPARE(keysOn(tree, 0).size(), 13);
        QCOMPARE(folder().content(u"settings.ini"_s), content);
        Node *page = tree.Nodes()->Add(u"Device"_s, NodeRelationship::Child, u"Page1"_s);
        node(tree, u"Logs"_s)->setParent(page);
    }
    const ORVTreeview again;
    QCOMPARE(keysOn(again, 1), QStringList{u"Logs"_s});
    if (!content.isEmpty())
        QCOMPARE(folder().content(u"settings.ini.damaged-1"_s), content);
}

void TreeSavingTest::aFileOfManyOthersLosesNone()
{
    QByteArray others = "[Software/Morvane Systems Inc/Other]\n";
    while (others.size() < 10 << 20)
        others += "setting " + QByteArray::number(others.size()) + " = a value\n";
    folder().write(u"settings.ini"_s, others);
    {
        const ORVTreeview tree;
    }
    QCOMPARE(stored(u"Code"_s), u"0"_s);
    QVERIFY(folder().content(u"settings.ini"_s).contains(others));
}

void TreeSavingTest::aReadOnlyFileStays()
{
    store(u"Inputs"_s, u"1"_s);
    QVERIFY(QFile::setPermissions(settings(), QFileDevice::ReadOwner | QFileDevice::ReadGroup |
                                                  QFileDevice::ReadOther));
    const QByteArray before = folder().content(u"settings.ini"_s);
    {
        const WithoutRights here(folder().path({}));
        QVERIFY(!QFileInfo(settings()).isWritable());
        const ORVTreeview tree;
        QCOMPARE(keysOn(tree, 1), QStringList{u"Inputs"_s});
        node(tree, u"Logs"_s)->setParent(node(tree, u"Page1"_s));
    }
    QCOMPARE(folder().content(u"settings.ini"_s), before);
}

void TreeSavingTest::aFolderInItsPlaceStays()
{
    folder().write(u"settings.ini/precious"_s, "x");
    {
        const ORVTreeview tree;
        QCOMPARE(keysOn(tree, 0).size(), 13);
    }
    QCOMPARE(folder().content(u"settings.ini/precious"_s), "x");
}

void TreeSavingTest::aFullDiskKeepsWhatWasSaved()
{
    store(u"Inputs"_s, u"1"_s);
    const QByteArray before = folder().content(u"settings.ini"_s);
    const QStringList names = folder().names();
    {
        const ORVTreeview tree;
        node(tree, u"Logs"_s)->setParent(node(tree, u"Page1"_s));
        DiskLimits::limitFiles(before.size());
    }
    DiskLimits::limitFiles(-1); // as much as there is
    QCOMPARE(folder().content(u"settings.ini"_s), before);
    QCOMPARE(folder().names(), names);
    {
        const ORVTreeview tree;
        QCOMPARE(keysOn(tree, 1), QStringList{u"Inputs"_s});
        node(tree, u"Logs"_s)->setParent(node(tree, u"Page1"_s));
    }
    QCOMPARE(stored(u"Logs"_s), u"1"_s);
}

void TreeSavingTest::mayGoWithItsWindow()
{
    {
        QWidget window;
        auto *tree = new ORVTreeview(&window);
        tree->Nodes()->Add(u"Device"_s, NodeRelationship::Child, u"Page1"_s);
        node(*tree, u"Logs"_s)->setParent(node(*tree, u"Page1"_s));
        window.show();
        node(*tree, u"Logs"_s)->setSelected(true);
    }
    QCOMPARE(stored(u"Logs"_s), u"1"_s);
}

// The lock is the one that other processes take.
void TreeSavingTest::waitsForWhoeverHoldsTheFile()
{
    auto lock = std::make_unique<FileLock>(settings() + u".lock"_s, std::chrono::milliseconds(0));
    auto *tree = new ORVTreeview;
    QThread *other = QThread::create([&lock] { lock.reset(); });
    other->start();
    delete tree;
    other->wait();
    delete other;
    QCOMPARE(stored(u"Code"_s), u"0"_s);
}

ORVT_TEST(TreeSavingTest)
#include "TreeSavingTest.moc"
