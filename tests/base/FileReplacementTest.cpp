#include "base/FileReplacement.h"
#include "support/QtPrinters.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

TEST(FileReplacement, PutsTheNewContentInPlace)
{
    const TestFolder folder;
    folder.write(u"a"_s, "old");
    FileReplacement replacement(folder.path(u"a"_s));
    ASSERT_TRUE(replacement.write("new content"));
    EXPECT_EQ(folder.content(u"a"_s), "old");
    ASSERT_TRUE(replacement.commit());
    EXPECT_EQ(folder.content(u"a"_s), "new content");
    EXPECT_EQ(folder.names(), QStringList(u"a"_s));
}

TEST(FileReplacement, CreatesAMissingFileAndWritesAnEmptyOne)
{
    const TestFolder folder;
    FileReplacement replacement(folder.path(u"a"_s));
    ASSERT_TRUE(replacement.write({}));
    ASSERT_TRUE(replacement.commit());
    EXPECT_EQ(folder.names(), QStringList(u"a"_s));
}

TEST(FileReplacement, WithoutCommitNothingHappens)
{
    const TestFolder folder;
    folder.write(u"a"_s, "old");
    {
        FileReplacement replacement(folder.path(u"a"_s));
        ASSERT_TRUE(replacement.write("new"));
    }
    EXPECT_EQ(folder.content(u"a"_s), "old");
    EXPECT_EQ(folder.names(), QStringList(u"a"_s));
    EXPECT_FALSE(FileReplacement(folder.path(u"a"_s)).commit());
}

TEST(FileReplacement, TakesTheRightsOver)
{
    const TestFolder folder;
    folder.write(u"a"_s, "old");
    const QFile::Permissions rights = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser |
                                      QFile::WriteUser | QFile::ReadGroup | QFile::WriteGroup;
    ASSERT_TRUE(QFile::setPermissions(folder.path(u"a"_s), rights));
    FileReplacement replacement(folder.path(u"a"_s));
    ASSERT_TRUE(replacement.write("new") && replacement.commit());
    EXPECT_EQ(QFile::permissions(folder.path(u"a"_s)), rights);
}

TEST(FileReplacement, ClearsWhatAKilledProcessLeft)
{
    const TestFolder folder;
    folder.write(u"a.new"_s, "half of someth");
    FileReplacement replacement(folder.path(u"a"_s), folder.path(u"a.new"_s));
    ASSERT_TRUE(replacement.write("new") && replacement.commit());
    EXPECT_EQ(folder.content(u"a"_s), "new");
    EXPECT_EQ(folder.names(), QStringList(u"a"_s));
}

TEST(FileReplacement, DoesNotWriteThroughALinkBesideTheFile)
{
    const TestFolder folder;
    folder.write(u"victim"_s, "precious");
    ASSERT_TRUE(QFile::link(folder.path(u"victim"_s), folder.path(u"a.new"_s)));
    FileReplacement replacement(folder.path(u"a"_s), folder.path(u"a.new"_s));
    ASSERT_TRUE(replacement.write("new") && replacement.commit());
    EXPECT_EQ(folder.content(u"victim"_s), "precious");
    EXPECT_EQ(folder.content(u"a"_s), "new");
}

TEST(FileReplacement, ReplacesTheFileBehindALink)
{
    const TestFolder folder;
    ASSERT_TRUE(QFile::link(folder.path(u"real"_s), folder.path(u"a"_s)));
    for (const QByteArray &content : {QByteArray("first"), QByteArray("second")}) {
        FileReplacement replacement(folder.path(u"a"_s));
        ASSERT_TRUE(replacement.write(content) && replacement.commit());
        EXPECT_EQ(folder.content(u"real"_s), content);
        EXPECT_TRUE(QFileInfo(folder.path(u"a"_s)).isSymLink());
    }
    EXPECT_EQ(folder.names(), QStringList({u"a"_s, u"real"_s}));
}

TEST(FileReplacement, TwoOfOneFileDoNotMeet)
{
    const TestFolder folder;
    FileReplacement first(folder.path(u"a"_s));
    FileReplacement second(folder.path(u"a"_s));
    ASSERT_TRUE(first.write("first") && second.write("second"));
    ASSERT_TRUE(first.commit());
    EXPECT_EQ(folder.content(u"a"_s), "first");
    ASSERT_TRUE(second.commit());
    EXPECT_EQ(folder.content(u"a"_s), "second");
    EXPECT_EQ(folder.names(), QStringList(u"a"_s));
}

TEST(FileReplacement, SaysWhyItCannotMakeAFile)
{
    const TestFolder folder;
    FileReplacement nowhere(folder.path(u"missing/a"_s));
    EXPECT_FALSE(nowhere.write("new"));
    EXPECT_EQ(nowhere.fault(), FileReplacement::Fault::FolderClosed);
    EXPECT_FALSE(nowhere.systemText().isEmpty());
    EXPECT_FALSE(nowhere.commit());

    ASSERT_TRUE(QDir(folder.path({})).mkpath(u"b.new/full"_s));
    FileReplacement taken(folder.path(u"b"_s), folder.path(u"b.new"_s));
    EXPECT_FALSE(taken.write("new"));
    EXPECT_EQ(taken.fault(), FileReplacement::Fault::FolderClosed);
}

TEST(FileReplacement, LeavesWhatIsNoFile)
{
    const TestFolder folder;
    ASSERT_TRUE(QDir(folder.path({})).mkpath(u"c/full"_s));
    FileReplacement ontoFolder(folder.path(u"c"_s));
    EXPECT_FALSE(ontoFolder.write("new"));
    EXPECT_EQ(ontoFolder.fault(), FileReplacement::Fault::NotAFile);
    EXPECT_EQ(folder.names(u"c"_s), QStringList(u"full"_s));

    FileReplacement meanwhile(folder.path(u"d"_s));
    ASSERT_TRUE(meanwhile.write("new"));
    ASSERT_TRUE(QDir(folder.path({})).mkdir(u"d"_s));
    EXPECT_FALSE(meanwhile.commit());
    EXPECT_EQ(meanwhile.fault(), FileReplacement::Fault::NotAFile);
}
