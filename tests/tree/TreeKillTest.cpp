// A process that is killed while its project tree saves leaves the arrangement of
// before or the new one, whole.

#include "tree/ProjectTree.h"

#include "support/RandomSeed.h"
#include "support/RandomText.h"
#include "support/TestProgram.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QProcess>
#include <QtCore/QThread>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class TreeKillTest : public ProjectTreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void aKillLeavesTheOldOrTheNewArrangement();

private:
    static constexpr int pageCount = 10;

    // What the categories' pages have in common, -1 for a mixed arrangement.
    static int arrangement()
    {
        const ORVTreeview tree;
        const auto numberOf = [&](qint16 type) {
            const int page = tree.GetPageNumber(node(tree, tree.GetItemKey(type)));
            return (page + 2 * pageCount - type) % pageCount;
        };
        const int number = numberOf(0);
        for (qint16 type = 1; type <= tree.GetItemsBound(); ++type) {
            if (numberOf(type) != number)
                return -1;
        }
        return number;
    }

    int microsecondsToFirstSave() const
    {
        QElapsedTimer timer;
        timer.start();
        QProcess process;
        process.start(QStringLiteral(ORVT_TREE_HELPER), {settings()});
        if (!process.waitForReadyRead(60000))
            qFatal("the helper saves nothing");
        process.kill();
        process.waitForFinished();
        return static_cast<int>(timer.nsecsElapsed() / 1000);
    }
};

void TreeKillTest::aKillLeavesTheOldOrTheNewArrangement()
{
    RandomText random;
    const int usual = microsecondsToFirstSave();
    int before = arrangement();
    int saved = 0;
    const int kills = randomSteps(200);
    for (int kill = 0; kill < kills; ++kill) {
        QProcess process;
        process.start(QStringLiteral(ORVT_TREE_HELPER), {settings()});
        QThread::usleep(static_cast<unsigned long>(usual / 2 + random.number(usual)));
        process.kill();
        process.waitForFinished();
        const QList<QByteArray> told = process.readAllStandardOutput().split('\n');
        const int last = told.size() > 1 ? told.at(told.size() - 2).toInt() : 0;

        const int found = arrangement();
        const QString place =
            u"%1, kill %2, found %3, told %4"_s.arg(QString::fromStdString(random.seed()))
                .arg(kill)
                .arg(found)
                .arg(last);
        const int old = last == 0 ? before : last % pageCount;
        QVERIFY2(found == old || found == (last + 1) % pageCount, qPrintable(place));
        saved += last > 0 ? 1 : 0;
        before = found;
    }
    QVERIFY2(saved > kills / 10, "the kills came too early to meet a saving tree");
}

ORVT_TEST(TreeKillTest)
#include "TreeKillTest.moc"
