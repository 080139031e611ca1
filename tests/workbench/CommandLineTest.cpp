#include <QtCore/QProcess>
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

    Outcome run(const QStringList &arguments)
    {
        QProcess process;
        process.start(QStringLiteral(ORVT_WORKBENCH), arguments);
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
        QCOMPARE(light.size(), QSize(1000, 700));
        QVERIFY(light.pixelColor(900, 300).lightness() > 200);
        QCOMPARE(picture({}), light);
    }

    void drawsItDark()
    {
        const QImage dark = picture({u"--dark"_s});
        QVERIFY(dark.pixelColor(900, 300).lightness() < 60);
        QVERIFY(dark.pixelColor(900, 5).lightness() < 80); // the menu bar
    }

    void drawsItLarger()
    {
        QCOMPARE(picture({u"--scale"_s, u"2"_s}).size(), QSize(2000, 1400));
        QCOMPARE(picture({u"--scale=1.5"_s}).size(), QSize(1500, 1050));
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

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(CommandLineTest)
#include "CommandLineTest.moc"
