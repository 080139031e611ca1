// What reads or writes meets a device that fails at some byte: at each in turn.

#include "project/Project.h"
#include "project/ProjectError.h"
#include "project/TextFile.h"
#include "shared/settings/SettingsFile.h"
#include "support/DiskLimits.h"
#include "support/QtPrinters.h"
#include "support/Raised.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QIODevice>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

using namespace ORVTListview;
using DiskLimits::FileLimit;
using namespace Qt::StringLiterals;

namespace {

// Gives its content in pieces, and fails where it is told to.
class FailingDevice final : public QIODevice
{
public:
    FailingDevice(const QByteArray &content, qsizetype failsAt, qsizetype piece)
        : m_content(content)
        , m_failsAt(failsAt)
        , m_piece(piece)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 most) override
    {
        if (m_at == m_failsAt) {
            setErrorString(u"torn out"_s);
            return -1;
        }
        const qsizetype end = std::min(m_content.size(), m_failsAt);
        const qsizetype count = std::min({end - m_at, m_piece, qsizetype(most)});
        std::memcpy(data, m_content.constData() + m_at, static_cast<std::size_t>(count));
        m_at += count;
        return count;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArray m_content;
    qsizetype m_failsAt;
    qsizetype m_piece;
    qsizetype m_at = 0;
};

TEST(DeviceFaults, AReadThatFailsAtAnyByteIsNoShorterText)
{
    const QByteArray content = QByteArray("IF Temp1 > 20\r\n").repeated(20);
    for (const qsizetype piece : {1, 7, 64, 100'000}) {
        for (qsizetype failsAt = 0; failsAt <= content.size(); ++failsAt) {
            FailingDevice device(content, failsAt, piece);
            const auto error = raisedBy([&] { readDevice(device, u"name"_s); });
            ASSERT_TRUE(error) << failsAt << " in pieces of " << piece;
            ASSERT_EQ(error->Number(), FileNotReadable);
            ASSERT_EQ(error->Description(), u"name: torn out"_s);
        }
        FailingDevice whole(content, content.size() + 1, piece);
        ASSERT_EQ(readDevice(whole, u"name"_s), content);
    }
}

class SavingFaults : public ::testing::Test
{
protected:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    QStringList names() const
    {
        return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden);
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(SavingFaults, AProgramThatStopsAtAnyByteIsTheOldOne)
{
    const QByteArray old = "old program";
    const QByteArray now = QByteArray("IF Temp1 > 20\r\n").repeated(8);
    writeFile(path(u"p"_s), old);
    for (qint64 room = 0; room < now.size(); ++room) {
        const auto error = [&] {
            const FileLimit limit(room);
            return raisedBy([&] { writeFile(path(u"p"_s), now); });
        }();
        ASSERT_TRUE(error && error->Number() == FileNotWritable) << room;
        ASSERT_EQ(readFile(path(u"p"_s)), old) << room;
        ASSERT_EQ(names(), QStringList(u"p"_s)) << room;
    }
    const FileLimit limit(now.size());
    writeFile(path(u"p"_s), now);
    EXPECT_EQ(readFile(path(u"p"_s)), now);
}

TEST_F(SavingFaults, SettingsThatStopAtAnyByteAreTheOldOnes)
{
    const SettingKey key{u"App"_s, u"Name"_s};
    SettingsFile file(path(u"s"_s));
    ASSERT_TRUE(file.write({{key, u"old"_s}}));
    const QByteArray old = readFile(path(u"s"_s));
    const SettingChanges changes{{key, u"another value"_s}, {{u"Other"_s, u"Key"_s}, u"v"_s}};
    qint64 room = 0;
    for (bool isWritten = false; !isWritten; ++room) {
        const FileLimit limit(room);
        isWritten = file.write(changes);
        ASSERT_EQ(file.view()->value(key), isWritten ? u"another value"_s : u"old"_s) << room;
        if (!isWritten) {
            ASSERT_EQ(readFile(path(u"s"_s)), old) << room;
        }
    }
    EXPECT_EQ(room - 1, QFile(path(u"s"_s)).size());
}

const QByteArray projectText = R"({
  "format": 1, "name": "P", "program": "p",
  "inputs": [ { "name": "T1" }, { "name": "T2" } ]
})";

TEST_F(SavingFaults, NamesThatStopAtAnyByteAreTheOldOnes)
{
    writeFile(path(u"j"_s), projectText);
    writeFile(path(u"p"_s), "x");
    Project project(path(u"j"_s));
    project.rename(dsInput, 1, u"Supply"_s);
    for (qint64 room = 0; room < projectText.size() + 4; ++room) {
        const FileLimit limit(room);
        const auto error = raisedBy([&] { project.saveTables(); });
        ASSERT_TRUE(error && error->Number() == FileNotWritable) << room;
        ASSERT_EQ(readFile(path(u"j"_s)), projectText) << room;
        ASSERT_TRUE(project.hasChangedTables()) << room;
    }
    project.saveTables();
    EXPECT_EQ(readFile(path(u"j"_s)), QByteArray(projectText).replace("T2", "Supply"));
    EXPECT_FALSE(project.hasChangedTables());
}

} // namespace
