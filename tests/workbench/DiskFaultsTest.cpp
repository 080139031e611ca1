// A session on a disk that takes nothing more, and in a folder that may only be read: nothing
// that was typed is lost, and no file is left half written.

#include "WorkbenchTest.h"

#include "project/RecoveryFile.h"
#include "support/DiskLimits.h"
#include "support/TestProgram.h"
#include "support/WithoutRights.h"
#include "workbench/saving/RecoveryKeeper.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QScopeGuard>
#include <QtTest/QSignalSpy>

#include <chrono>

using namespace ORVTListview;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr QFile::Permissions toRead = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup |
                                      QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
constexpr QFile::Permissions toWrite = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;

constexpr auto written = "Fan1 = ON\nREM nobody touched this line\n";

// What an attempt to save came to.
struct Attempt
{
    bool isTold = false;
    QByteArray program;
    QByteArray project;
};

Attempt tryToSave(WorkbenchWindow &workbench)
{
    const NextMessage message(QMessageBox::Cancel);
    workbench.choose(u"Save"_s);
    return {message.wasThere(), workbench.saved(),
            readFile(workbench.folder.filePath(u"one.json"_s))};
}

} // namespace

class DiskFaultsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void aFullDiskLosesNothing()
    {
        WorkbenchWindow workbench(written);
        const QByteArray project = readFile(workbench.folder.filePath(u"one.json"_s));
        auto &keeper = *workbench.window.findChild<RecoveryKeeper *>();
        keeper.setInterval(1ms);
        const QSignalSpy failed(&keeper, &RecoveryKeeper::failed);
        const QSignalSpy recovered(&keeper, &RecoveryKeeper::recovered);
        Attempt attempt;
        QString told;
        {
            const DiskLimits::FileLimit almostNothing(8);
            workbench.type(u"REM typed "_s);
            for (int i = 0; i < 500 && failed.isEmpty(); ++i)
                QTest::qWait(10);
            told = workbench.window.statusBar()->currentMessage();
            attempt = tryToSave(workbench);
            // What is on its way would find no room beside the project and some elsewhere.
            QVERIFY(!keeper.keepNow());
        }
        QVERIFY(!failed.isEmpty());
        QVERIFY2(!told.isEmpty(), "the user knows");
        QVERIFY(attempt.isTold);
        QCOMPARE(attempt.program, written);
        QCOMPARE(attempt.project, project);
        QVERIFY(workbench.window.isWindowModified());
        QVERIFY(workbench.code().CodeText().startsWith(u"REM typed "_s));

        QTRY_VERIFY(!recovered.isEmpty()); // once there is room
        const auto kept =
            readRecovery(readFile(workbench.folder.filePath(u"one.json.recovery.txt"_s)));
        QVERIFY(kept);
        QCOMPARE(kept->programs, QStringList(workbench.code().CodeText()));
        workbench.choose(u"Save"_s);
        QVERIFY(!workbench.window.isWindowModified());
        QCOMPARE(workbench.saved(), "REM typed " + QByteArray(written));
    }

    void aFolderThatMayOnlyBeReadLosesNothing()
    {
        WorkbenchWindow workbench(written);
        const QString data = workbench.folder.filePath(u"data"_s);
        workbench.window.closeProject(); // and with it the lock beside it
        QVERIFY(QDir(data).removeRecursively() && QDir().mkpath(data));
        const QString folder = workbench.folder.path();
        QVERIFY(QFile::setPermissions(folder, toRead));
        const auto again =
            qScopeGuard([&folder] { QFile::setPermissions(folder, toRead | toWrite); });
        const WithoutRights rights(data);
        workbench.window.openProject(workbench.folder.filePath(u"one.json"_s));
        workbench.type(u"REM typed "_s);
        const Attempt attempt = tryToSave(workbench);
        QVERIFY(workbench.window.findChild<RecoveryKeeper *>()->keepNow());
        QVERIFY(attempt.isTold);
        QCOMPARE(attempt.program, written);
        QVERIFY(workbench.window.isWindowModified());
        QDirIterator files(data, {u"*.recovery.txt"_s}, QDir::Files, QDirIterator::Subdirectories);
        QVERIFY(files.hasNext());
        const auto kept = readRecovery(readFile(files.next()));
        QVERIFY(kept);
        QCOMPARE(kept->programs, QStringList(workbench.code().CodeText()));
    }
};

ORVT_TEST(DiskFaultsTest)
#include "DiskFaultsTest.moc"
