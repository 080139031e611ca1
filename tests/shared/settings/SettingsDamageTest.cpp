#include "shared/settings/SettingsFile.h"
#include "support/QtPrinters.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

// Moved onto the link, the damaged file would take the place that somebody means to use.
TEST(SettingsDamage, ALinkThatLeadsNowhereKeepsItsName)
{
    const TestFolder folder;
    const SettingKey key{u"Quillbox"_s, u"Code"_s};
    folder.write(u"s"_s, QByteArray("\0\0\0", 3));
    ASSERT_TRUE(QFile::link(folder.path(u"missing"_s), folder.path(u"s.damaged-1"_s)));
    ASSERT_TRUE(SettingsFile(folder.path(u"s"_s)).write({{key, u"3"_s}}));
    EXPECT_EQ(SettingsFile(folder.path(u"s"_s)).view()->value(key), u"3"_s);
    EXPECT_EQ(QFile::symLinkTarget(folder.path(u"s.damaged-1"_s)), folder.path(u"missing"_s));
    EXPECT_EQ(folder.content(u"s.damaged-2"_s), QByteArray("\0\0\0", 3));
}
