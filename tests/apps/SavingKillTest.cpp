// A process that is killed while it saves a program leaves the old one or the new one,
// and so do several that save at once.

#include "apps/NumberedProgram.h"
#include "apps/ProjectFolder.h"
#include "project/TextFile.h"
#include "support/QtPrinters.h"
#include "support/RandomSeed.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QProcess>
#include <QtCore/QThread>

#include <random>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

class Saver
{
public:
    explicit Saver(const QString &file)
    {
        m_process.start(QStringLiteral(ORVT_SAVING_HELPER), {u"forever"_s, file});
    }

    bool waitForSave() { return m_process.waitForReadyRead(60000); }

    // Ends it at once; how many it said that it had saved.
    int kill()
    {
        m_process.kill();
        m_process.waitForFinished();
        const QList<QByteArray> told = m_process.readAllStandardOutput().split('\n');
        return told.size() > 1 ? told.at(told.size() - 2).toInt() : 0;
    }

private:
    QProcess m_process;
};

qint64 microsecondsToFirstSave(const QString &file)
{
    QElapsedTimer timer;
    timer.start();
    Saver saver(file);
    EXPECT_TRUE(saver.waitForSave());
    saver.kill();
    return timer.nsecsElapsed() / 1000;
}

} // namespace

TEST(SavingKill, AKillLeavesTheOldOrTheNewProgram)
{
    const ProjectFolder folder;
    const QString file = folder.path(u"p"_s);
    std::mt19937 random(randomSeed());
    const auto usual = static_cast<unsigned>(microsecondsToFirstSave(file));
    int before = numberOf(readFile(file));
    int saved = 0;
    const int kills = randomSteps(100);
    for (int kill = 0; kill < kills; ++kill) {
        Saver saver(file);
        QThread::usleep(usual / 2 + random() % (2 * usual));
        const int told = saver.kill();
        const int found = numberOf(readFile(file));
        ASSERT_TRUE(found == told + 1 || found == (told == 0 ? before : told))
            << found << " after " << told << ", kill " << kill;
        before = found;
        saved += told > 0 ? 1 : 0;
    }
    EXPECT_GT(saved, kills / 10) << "the kills came too early to meet a process that saves";
}

TEST(SavingKill, ManyThatSaveAtOnceLeaveAWholeProgram)
{
    const ProjectFolder folder;
    const QString file = folder.path(u"p"_s);
    for (int round = 0; round < 10; ++round) {
        Saver one(file);
        Saver two(file);
        ASSERT_TRUE(one.waitForSave() && two.waitForSave());
        for (int look = 0; look < 50; ++look)
            ASSERT_GT(numberOf(readFile(file)), 0);
        one.kill();
        ASSERT_GT(numberOf(readFile(file)), 0);
        two.kill();
        ASSERT_GT(numberOf(readFile(file)), 0);
    }
}
