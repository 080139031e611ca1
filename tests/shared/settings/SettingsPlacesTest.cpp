#include "shared/settings/SettingsProcess.h"
#include "support/QtPrinters.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

constexpr QFile::Permissions readOnly = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
constexpr QFile::Permissions searchable =
    readOnly | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
constexpr QFile::Permissions openToAll =
    searchable | QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;

// A process for which the system's folder is "etc" and the user's is "home". It
// has no rights but those of "others", even when the tests run as administrator.
class SettingsPlacesTest : public testing::Test
{
protected:
    SettingsPlacesTest()
    {
        QDir(folder.path({})).mkpath(u"etc"_s);
        QDir(folder.path({})).mkpath(u"home"_s);
        for (const QString &name : {u""_s, u"etc"_s, u"home"_s})
            allow(name, openToAll);
    }

    ~SettingsPlacesTest() override
    {
        allow(u"etc/Morvane Systems Inc"_s, openToAll);
        allow(u"home"_s, openToAll);
    }

    void allow(const QString &name, QFile::Permissions permissions) const
    {
        QFile::setPermissions(folder.path(name), permissions);
    }

    QStringList run(const QStringList &commands, QMap<QString, QString> environment = {}) const
    {
        environment.insert(u"XDG_CONFIG_DIRS"_s,
                           folder.path(u"etc/desktop"_s) + u':' + folder.path(u"etc"_s));
        if (!environment.contains(u"XDG_CONFIG_HOME"_s))
            environment.insert(u"XDG_CONFIG_HOME"_s, folder.path(u"home"_s));
        SettingsProcess process(QStringList(u"drop-rights"_s) + commands, environment);
        EXPECT_EQ(process.exitCode(), 0) << process.errors().toStdString();
        return process.lines();
    }

    // The machine's file, with two settings, that nobody here may write.
    void installReadOnly() const
    {
        run({u"write"_s, u"Quillbox"_s, u"Code"_s, u"1"_s, u"write"_s, u"Quillbox"_s, u"Logs"_s,
             u"1"_s});
        allow(machineFile, readOnly);
        allow(u"etc/Morvane Systems Inc"_s, searchable);
    }

    const QString machineFile = u"etc/Morvane Systems Inc/settings.ini"_s;
    const QString userFile = u"home/Morvane Systems Inc/settings.ini"_s;
    const QStringList writeCode{u"write"_s, u"Quillbox"_s, u"Code"_s, u"2"_s};
    const QStringList readBoth{u"read"_s, u"Quillbox"_s, u"Code"_s,
                               u"read"_s, u"Quillbox"_s, u"Logs"_s};
    TestFolder folder;
};

} // namespace

TEST_F(SettingsPlacesTest, StandInTheConfigurationFolders)
{
    EXPECT_EQ(run({u"where"_s}), QStringList({folder.path(machineFile), folder.path(userFile)}));
}

TEST_F(SettingsPlacesTest, TheMachinesFileIsUsedWhereItMayBeWritten)
{
    EXPECT_EQ(run(writeCode + readBoth), QStringList({u"2"_s, u""_s}));
    EXPECT_TRUE(folder.content(machineFile).contains("Code=2"));
    EXPECT_EQ(folder.names(u"home"_s), QStringList());
}

TEST_F(SettingsPlacesTest, ReadingCreatesNothing)
{
    EXPECT_EQ(run(readBoth), QStringList({u""_s, u""_s}));
    EXPECT_EQ(folder.names(u"etc"_s), QStringList());
    EXPECT_EQ(folder.names(u"home"_s), QStringList());
}

TEST_F(SettingsPlacesTest, AUserWithoutRightsGetsAFileOfTheirOwn)
{
    installReadOnly();
    const QByteArray before = folder.content(machineFile);
    EXPECT_EQ(run(writeCode), QStringList());
    EXPECT_EQ(run(readBoth), QStringList({u"2"_s, u"1"_s}));
    EXPECT_EQ(folder.content(machineFile), before);
    EXPECT_TRUE(
        folder.content(userFile).contains("[Software/Morvane Systems Inc/Quillbox]\nCode=2"));
}

TEST_F(SettingsPlacesTest, AReadOnlyFileIsNotReplacedThoughItsFolderWouldLetIt)
{
    installReadOnly();
    allow(u"etc/Morvane Systems Inc"_s, openToAll);
    const QByteArray before = folder.content(machineFile);
    EXPECT_EQ(run(writeCode + readBoth), QStringList({u"2"_s, u"1"_s}));
    EXPECT_EQ(folder.content(machineFile), before);
}

// Written to the one and taken from the other, it would be gone.
TEST_F(SettingsPlacesTest, OneFileForMachineAndUserKeepsItsSettings)
{
    const QMap<QString, QString> sameFolder{{u"XDG_CONFIG_HOME"_s, folder.path(u"etc"_s)}};
    EXPECT_EQ(run(writeCode + readBoth, sameFolder), QStringList({u"2"_s, u""_s}));
    EXPECT_EQ(run({u"arrange"_s, u"5"_s}, sameFolder), QStringList());
    EXPECT_EQ(run(readBoth, sameFolder), QStringList({u"5"_s, u"5"_s}));
}

TEST_F(SettingsPlacesTest, SoDoesOneThatALinkOfTheUsersLeadsTo)
{
    ASSERT_TRUE(QDir(folder.path({})).mkpath(u"home/Morvane Systems Inc"_s));
    ASSERT_TRUE(QFile::link(folder.path(machineFile), folder.path(userFile)));
    EXPECT_EQ(run(writeCode + readBoth), QStringList({u"2"_s, u""_s}));
    EXPECT_EQ(run(readBoth), QStringList({u"2"_s, u""_s}));
    EXPECT_TRUE(folder.content(machineFile).contains("Code=2"));
}

TEST_F(SettingsPlacesTest, SoDoesOneWhoseFoldersAreOne)
{
    ASSERT_TRUE(QDir(folder.path({})).rmdir(u"home"_s));
    ASSERT_TRUE(QFile::link(folder.path(u"etc"_s), folder.path(u"home"_s)));
    EXPECT_EQ(run(writeCode + readBoth), QStringList({u"2"_s, u""_s}));
    EXPECT_EQ(run({u"arrange"_s, u"5"_s}), QStringList());
    EXPECT_EQ(run(readBoth), QStringList({u"5"_s, u"5"_s}));
}

TEST_F(SettingsPlacesTest, SoDoesOneWithTwoNames)
{
    run(writeCode);
    ASSERT_TRUE(QDir(folder.path({})).mkpath(u"home/Morvane Systems Inc"_s));
    std::filesystem::create_hard_link(QFileInfo(folder.path(machineFile)).filesystemFilePath(),
                                      QFileInfo(folder.path(userFile)).filesystemFilePath());
    allow(u"home/Morvane Systems Inc"_s, openToAll);
    EXPECT_EQ(run(readBoth), QStringList({u"2"_s, u""_s}));
    run({u"arrange"_s, u"5"_s});
    EXPECT_EQ(run(readBoth), QStringList({u"5"_s, u"5"_s}));
}

TEST_F(SettingsPlacesTest, WithRightsAgainTheMachinesFileIsUsedAgain)
{
    installReadOnly();
    run({u"arrange"_s, u"5"_s});
    allow(u"etc/Morvane Systems Inc"_s, openToAll);
    allow(machineFile, openToAll);
    EXPECT_EQ(run(readBoth), QStringList({u"5"_s, u"5"_s}));
    EXPECT_EQ(run({u"arrange"_s, u"6"_s}), QStringList());
    EXPECT_EQ(run(readBoth), QStringList({u"6"_s, u"6"_s}));
    EXPECT_TRUE(folder.content(machineFile).contains("Code=6"));
    EXPECT_FALSE(folder.content(userFile).contains("Code="));
}

TEST_F(SettingsPlacesTest, WhatIsInForceAlreadyNeedsNoFileOfOnesOwn)
{
    installReadOnly();
    EXPECT_EQ(run({u"write"_s, u"Quillbox"_s, u"Code"_s, u"1"_s}), QStringList());
    EXPECT_EQ(folder.names(u"home"_s), QStringList());
}

TEST_F(SettingsPlacesTest, AnUnreadableFileOfOnesOwnIsKeptBeside)
{
    installReadOnly();
    const QString kept = userFile + u".damaged-1"_s;
    for (const QFile::Permissions unreadable :
         {QFile::Permissions(), QFile::Permissions(QFile::WriteOwner)}) {
        run(writeCode);
        const QByteArray before = folder.content(userFile);
        allow(userFile, unreadable);
        EXPECT_EQ(run(readBoth), QStringList({u"1"_s, u"1"_s}));
        EXPECT_EQ(run({u"write"_s, u"Quillbox"_s, u"Code"_s, u"3"_s}), QStringList());
        EXPECT_EQ(run(readBoth), QStringList({u"3"_s, u"1"_s}));
        allow(kept, openToAll);
        EXPECT_EQ(folder.content(kept), before);
        EXPECT_TRUE(QFile::remove(folder.path(kept)));
    }
}

TEST_F(SettingsPlacesTest, WhereNothingMayBeWrittenNothingHappens)
{
    installReadOnly();
    allow(u"home"_s, searchable);
    EXPECT_EQ(run(writeCode + readBoth), QStringList({u"1"_s, u"1"_s}));
    EXPECT_EQ(folder.names(u"home"_s), QStringList());
}

TEST_F(SettingsPlacesTest, AFolderInPlaceOfTheMachinesFileCostsNobodyAnything)
{
    ASSERT_TRUE(QDir(folder.path({})).mkpath(machineFile));
    allow(u"etc/Morvane Systems Inc"_s, openToAll);
    EXPECT_EQ(run(writeCode + readBoth), QStringList({u"2"_s, u""_s}));
    EXPECT_TRUE(folder.content(userFile).contains("Code=2"));
    EXPECT_EQ(folder.names(machineFile), QStringList());
}

TEST_F(SettingsPlacesTest, TheEnvironmentNamesOneFileInPlaceOfBoth)
{
    const QMap<QString, QString> environment{{u"ORVT_SETTINGS_FILE"_s, folder.path(u"named"_s)}};
    run({u"arrange"_s, u"5"_s});
    EXPECT_EQ(run(readBoth, environment), QStringList({u""_s, u""_s}));
    EXPECT_EQ(run(writeCode + readBoth, environment), QStringList({u"2"_s, u""_s}));
    EXPECT_TRUE(folder.content(u"named"_s).contains("Code=2"));
    EXPECT_TRUE(folder.content(machineFile).contains("Code=5"));
    EXPECT_EQ(folder.names(u"home"_s), QStringList());
}

TEST_F(SettingsPlacesTest, ANamedFileThatMayNotBeWrittenStays)
{
    folder.write(u"named"_s, "[Software/Morvane Systems Inc/Quillbox]\nCode=9\n");
    allow(u"named"_s, readOnly);
    const QMap<QString, QString> environment{{u"ORVT_SETTINGS_FILE"_s, folder.path(u"named"_s)}};
    EXPECT_EQ(run(writeCode + readBoth, environment), QStringList({u"9"_s, u""_s}));
    EXPECT_EQ(folder.names(u"home"_s), QStringList());
}

TEST_F(SettingsPlacesTest, ACallGoesBeforeTheEnvironment)
{
    const QMap<QString, QString> environment{{u"ORVT_SETTINGS_FILE"_s, folder.path(u"named"_s)}};
    EXPECT_EQ(
        run(QStringList({u"file"_s, folder.path(u"called"_s)}) + writeCode + readBoth, environment),
        QStringList({u"2"_s, u""_s}));
    EXPECT_TRUE(folder.content(u"called"_s).contains("Code=2"));
    EXPECT_EQ(folder.content(u"named"_s), "");
    EXPECT_EQ(run(QStringList({u"file"_s, folder.path(u"called"_s), u"file"_s, u""_s}) + readBoth,
                  environment),
              QStringList({u""_s, u""_s}));
}
