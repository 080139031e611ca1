// A workbench that is killed in the middle of typing, renaming and saving has lost nothing
// that was kept, and leaves a project that can be opened.

#include "project/Project.h"
#include "project/RecoveryFile.h"
#include "project/TextFile.h"
#include "support/RandomSeed.h"
#include "support/TestProgram.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <random>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class SessionKillTest : public QObject
{
    Q_OBJECT

private:
    struct State
    {
        int line = 0;
        int name = 0;

        friend auto operator<=>(const State &, const State &) = default;
    };

    QString path(const QString &name) const { return m_folder.filePath(name); }

    // The last that was told.
    static State told(const QByteArray &output)
    {
        const QList<QByteArray> lines = output.split('\n');
        const QList<QByteArray> words = lines.at(lines.size() - 2).split(' ');
        return {words.at(1).toInt(), words.at(2).toInt()};
    }

    static State stateOf(const QString &program, const ProjectTables &tables)
    {
        const QString name = tables.value(dsInput).at(0).name;
        static const QRegularExpression lines(u"x(\\d+)"_s);
        int last = 0;
        auto found = lines.globalMatch(program);
        while (found.hasNext()) {
            const int line = found.next().captured(1).toInt();
            if (line != ++last)
                return {-1, -1}; // one is missing
        }
        return {last, name.sliced(4).toInt()};
    }

    // The latest that somebody finds who opens the project now.
    State found(bool &isAgreed) const
    {
        const Project project(path(u"p.json"_s)); // it can be opened
        State state = stateOf(project.program(), project.tables());
        isAgreed = project.program().startsWith(u"IF "_s + project.rows(dsInput).at(0).name);
        const QDir folder(m_folder.path());
        for (const QString &name : folder.entryList({u"*.recovery*.txt"_s}, QDir::Files)) {
            const auto work = readRecovery(readFile(folder.filePath(name)));
            if (!work)
                return {-2, -2}; // half a file
            const ProjectTables tables =
                readContents(JsonPlace::parse(work->json, u"p.json"_s)).rows;
            const State kept = stateOf(work->programs.first(), tables);
            if (kept.line < state.line || (kept == state && isAgreed))
                continue;
            state = kept;
            isAgreed =
                work->programs.first().startsWith(u"IF "_s + tables.value(dsInput).at(0).name);
        }
        return state;
    }

    QTemporaryDir m_folder;

private Q_SLOTS:
    void nothingThatWasKeptIsLost()
    {
        qputenv("XDG_DATA_HOME", path(u"data"_s).toUtf8());
        qputenv("ORVT_SETTINGS_FILE", path(u"settings.ini"_s).toUtf8());
        writeFile(path(u"p.prog"_s), "IF Name0 > 3\r\nENDIF");
        writeFile(path(u"p.json"_s), R"({"format": 1, "name": "p", "program": "p.prog",
            "inputs": [{"name": "Name0"}], "logs": [{"data": "Name0"}]})");
        std::mt19937 random(randomSeed());
        const int kills = std::max(qEnvironmentVariableIntValue("ORVT_TEST_KILLS"), 6);
        qsizetype kept = 0;
        for (int kill = 0; kill < kills; ++kill) {
            QProcess session;
            session.start(QStringLiteral(ORVT_WORK_SESSION),
                          {path(u"p.json"_s), QString::number(random())});
            QByteArray output;
            for (auto lines = 1 + static_cast<qsizetype>(random() % 12);
                 output.count('\n') < lines;) {
                QVERIFY2(session.waitForReadyRead(60000),
                         session.readAllStandardError().constData());
                output += session.readAllStandardOutput();
            }
            QTest::qSleep(static_cast<int>(random() % 20)); // anywhere between two lines
            session.kill();
            QVERIFY(session.waitForFinished());
            output += session.readAllStandardOutput();
            const State last = told(output);
            bool isAgreed = false;
            const State now = found(isAgreed);
            QVERIFY2(now.line >= last.line && now.name >= last.name,
                     qPrintable(u"kill %1: told %2 %3, found %4 %5"_s.arg(kill)
                                    .arg(last.line)
                                    .arg(last.name)
                                    .arg(now.line)
                                    .arg(now.name)));
            QVERIFY2(isAgreed, "program and tables have different names");
            kept += output.count("kept");
        }
        QVERIFY(kept > kills); // they did work
    }
};

ORVT_TEST_WITHOUT_WIDGETS(SessionKillTest)
#include "SessionKillTest.moc"
