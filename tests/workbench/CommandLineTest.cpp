#include "project/RecoverySlot.h"
#include "project/TextFile.h"
#include "support/TestProgram.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtTest/QTest>

using namespace Qt::StringLiterals;

// The program itself, off screen.
class CommandLineTest : public QObject
{
    Q_OBJECT

private:
    struct Outcome
    {
        int status;
        QString errors;
    };

    Outcome run(const QStringList &arguments) { return runProgram(m_workbench, arguments); }
    Outcome runProgram(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"ORVT_SETTINGS_FILE"_s, m_folder.filePath(u"settings.ini"_s));
        process.setProcessEnvironment(environment);
        process.start(program, arguments);
        if (!process.waitForFinished())
            qFatal("the workbench does not end");
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardError())};
    }
    QImage picture(const QStringList &options)
    {
        const QString file = m_folder.filePath(u"picture.png"_s);
        QFile::remove(file);
        const Outcome outcome = run(QStringList{u"--screenshot"_s, file} + options);
        if (outcome.status != 0)
            qFatal("%s", qPrintable(outcome.errors));
        return QImage(file);
    }

private Q_SLOTS:
    void drawsThePictureOfTheWindow()
    {
        const QImage light = picture({});
        QCOMPARE(light.size(), QSize(1100, 700));
        QVERIFY(light.pixelColor(900, 300).lightness() > 200);
        QCOMPARE(picture({}), light);
    }

    void everythingIsConnected()
    {
        const Outcome outcome = run({u"--screenshot"_s, m_folder.filePath(u"connected.png"_s)});
        QCOMPARE(outcome.status, 0);
        QVERIFY2(!outcome.errors.contains(u"QObject::"_s), qPrintable(outcome.errors));
    }

    void drawsItDark()
    {
        const QImage dark = picture({u"--dark"_s});
        QVERIFY(dark.pixelColor(900, 300).lightness() < 60);
        QVERIFY(dark.pixelColor(900, 5).lightness() < 80); // the menu bar
    }

    void drawsItLarger()
    {
        QCOMPARE(picture({u"--scale"_s, u"2"_s}).size(), QSize(2200, 1400));
        QCOMPARE(picture({u"--scale=1.5"_s}).size(), QSize(1650, 1050));
    }

    void speaksAnotherLanguageAndShowsACategory()
    {
        const QImage english = picture({});
        const QImage german = picture({u"--language"_s, u"de"_s});
        const QImage inputs = picture({u"--show"_s, u"Inputs"_s});
        QCOMPARE(picture({u"--language"_s, u"en"_s, u"--show"_s, u"Code"_s}), english);
        QVERIFY(german != english);
        QVERIFY(inputs != english);
    }

    // While another workbench has the project, too, and with what a former one left.
    void aPictureIsOfTheProjectAlone()
    {
        QVERIFY(QDir(m_folder.path()).mkdir(u"project"_s));
        const QString project = m_folder.filePath(u"project/p.json"_s);
        ORVTListview::writeFile(m_folder.filePath(u"project/p.prog"_s), "Fan1 = ON");
        ORVTListview::writeFile(project,
                                "{\"format\": 1, \"name\": \"P\", \"program\": \"p.prog\"}");
        const QImage alone = picture({project});
        QCOMPARE(picture({project}), alone);
        ORVTListview::writeFile(project + u".recovery.txt"_s, "left");
        const ORVTListview::RecoverySlots held = ORVTListview::RecoverySlot::slotsOf(project);
        QCOMPARE(held.left.size(), 1U);
        QVERIFY(held.own);
        QVERIFY(ORVTListview::RecoverySlot::slotsOf(project).isOpenElsewhere);
        QCOMPARE(picture({project}), alone);
    }

    void refusesWhatItDoesNotHave()
    {
        const Outcome language = run({u"--language"_s, u"xx"_s});
        QCOMPARE(language.status, 1);
        QVERIFY2(language.errors.contains(u" xx"_s), qPrintable(language.errors));
        const Outcome category = run({u"--show"_s, u"Eingänge"_s});
        QCOMPARE(category.status, 1);
        QVERIFY2(category.errors.contains(u"Eingänge"_s), qPrintable(category.errors));
    }

    void refusesAScaleThatIsNone()
    {
        for (const QString &scale : {u"x"_s, u"0"_s, u"0.4"_s, u"5"_s, u"nan"_s, u"-1"_s}) {
            const Outcome outcome = run({u"--scale="_s + scale});
            QCOMPARE(outcome.status, 1);
            QVERIFY2(outcome.errors.contains(u"0.5 to 4"_s), qPrintable(outcome.errors));
        }
    }

    void saysWhatIsWrongWithTheProject()
    {
        const Outcome outcome =
            run({u"--screenshot"_s, m_folder.filePath(u"p.png"_s), u"missing.json"_s});
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.errors.contains(u"missing.json: "_s), qPrintable(outcome.errors));
        QVERIFY(!QFile::exists(m_folder.filePath(u"p.png"_s)));
    }

    void saysWhereItCannotWrite()
    {
        const QString file = m_folder.filePath(u"missing/p.png"_s);
        const Outcome outcome = run({u"--screenshot"_s, file});
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.errors.contains(file), qPrintable(outcome.errors));
    }

    // A full disk, as far as one can be had: a limit on the size of files.
    void keepsThePictureThatItCannotReplace()
    {
        QFile file(m_folder.filePath(u"kept.png"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write("as it was"), 9);
        file.close();
        const QString script = u"trap '' XFSZ; ulimit -f 1; exec \"$0\" --screenshot \"$1\""_s;
        const Outcome outcome =
            runProgram(u"/bin/sh"_s, {u"-c"_s, script, m_workbench, file.fileName()});
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.errors.contains(file.fileName()), qPrintable(outcome.errors));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), "as it was");
    }

private:
    const QString m_workbench = QStringLiteral(ORVT_WORKBENCH);
    QTemporaryDir m_folder;
};

ORVT_TEST_WITHOUT_WIDGETS(CommandLineTest)
#include "CommandLineTest.moc"
