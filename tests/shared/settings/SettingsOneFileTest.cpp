#include "shared/settings/SettingsFile.h"

#include "shared/settings/OverlaidSettings.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

class NoFile final : public SettingsPlace
{
public:
    std::unique_ptr<const SettingsView> view() const override { return nullptr; }
    bool write(const SettingChanges &) override { return false; }
};

} // namespace

TEST(SettingsOneFile, IsKnownByEveryNameThatItHas)
{
    const TestFolder folder;
    folder.write(u"s"_s, "");
    folder.write(u"other/t"_s, "");
    ASSERT_TRUE(QFile::link(folder.path(u"s"_s), folder.path(u"link"_s)));
    const SettingsFile file(folder.path(u"s"_s));
    EXPECT_TRUE(file.isOneWith(SettingsFile(folder.path(u"s"_s))));
    EXPECT_TRUE(file.isOneWith(SettingsFile(folder.path(u"other/../s"_s))));
    EXPECT_TRUE(SettingsFile(folder.path(u"link"_s)).isOneWith(file));
}

TEST(SettingsOneFile, IsNoneOfAnotherPlace)
{
    const TestFolder folder;
    for (const QString &name : {u"s"_s, u"t"_s, u"other/s"_s})
        folder.write(name, "");
    const SettingsFile file(folder.path(u"s"_s));
    EXPECT_FALSE(file.isOneWith(SettingsFile(folder.path(u"t"_s))));
    EXPECT_FALSE(file.isOneWith(SettingsFile(folder.path(u"other/s"_s))));
    EXPECT_FALSE(file.isOneWith(SettingsFile(folder.path(u"missing/s"_s))));
    EXPECT_FALSE(file.isOneWith(NoFile()));
}

// Written to the one and taken from the other, it would be gone.
TEST(SettingsOneFile, ForMachineAndUserKeepsItsSettings)
{
    const TestFolder folder;
    const SettingKey key{u"Quillbox"_s, u"Code"_s};
    const auto file = [&folder](const QString &name) {
        return std::make_unique<SettingsFile>(folder.path(name));
    };
    OverlaidSettings one(file(u"s"_s), file(u"s"_s));
    EXPECT_TRUE(one.write({{key, u"3"_s}}));
    EXPECT_EQ(one.view()->value(key), u"3"_s);
    OverlaidSettings two(file(u"s"_s), file(u"t"_s));
    EXPECT_TRUE(SettingsFile(folder.path(u"t"_s)).write({{key, u"4"_s}}));
    EXPECT_EQ(two.view()->value(key), u"4"_s);
    EXPECT_TRUE(two.write({{key, u"5"_s}}));
    EXPECT_EQ(two.view()->value(key), u"5"_s);
    EXPECT_EQ(SettingsFile(folder.path(u"t"_s)).view()->value(key), std::nullopt);
}
