#include "shared/settings/RegistrySettings.h"

#include "base/ThreadState.h"
#include "shared/settings/OverlaidSettings.h"
#include "shared/settings/SettingsSession.h"
#include "support/QtPrinters.h"
#include <ORVTListview/SettingsStore.h>

#include <gtest/gtest.h>

#include <map>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// A hive in memory that holds data as it is given.
class FakeHive final : public Registry
{
public:
    using Name = std::pair<QString, QString>;

    std::optional<QString> data(const QString &path, const QString &name) const override
    {
        const auto found = values.find({path, name});
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }

    bool setData(const QString &path, const QString &name, const QString &data) override
    {
        const bool isTaken = isWritable && name != refused;
        if (isTaken)
            values[{path, name}] = data;
        return isTaken;
    }

    bool remove(const QString &path, const QString &name) override
    {
        return isWritable && values.erase({path, name}) > 0;
    }

    std::map<Name, QString> values;
    bool isWritable = true;
    QString refused; // the name of one value
};

QString terminated(const QString &text)
{
    return text + QChar(u'\0');
}

class RegistrySettingsTest : public testing::Test
{
protected:
    RegistrySettingsTest()
    {
        threadPart<SettingsSession>().usePlace(std::make_unique<OverlaidSettings>(
            std::make_unique<RegistrySettings>(machine), std::make_unique<RegistrySettings>(user)));
    }

    QString read() const { return ReadSetting(u"Quillbox"_s, u"Code"_s); }
    void write(const QString &value) { WriteSetting(u"Quillbox"_s, u"Code"_s, value); }

    const FakeHive::Name code{u"Software\\Morvane Systems Inc\\Quillbox"_s, u"Code"_s};
    const std::shared_ptr<FakeHive> machine = std::make_shared<FakeHive>();
    const std::shared_ptr<FakeHive> user = std::make_shared<FakeHive>();
    ThreadState::Fresh fresh;
};

} // namespace

TEST_F(RegistrySettingsTest, AMissingValueReadsAsEmpty)
{
    EXPECT_EQ(read(), u""_s);
}

TEST_F(RegistrySettingsTest, KeyNameAndEndAreAsOfOld)
{
    write(u"3"_s);
    EXPECT_EQ(machine->values, (std::map<FakeHive::Name, QString>{{code, terminated(u"3"_s)}}));
    EXPECT_EQ(read(), u"3"_s);
}

TEST_F(RegistrySettingsTest, EmptyTextIsOneNul)
{
    write(u""_s);
    EXPECT_EQ(machine->values[code], terminated(u""_s));
    EXPECT_EQ(read(), u""_s);
}

TEST_F(RegistrySettingsTest, ASingleBlankReadsAsEmpty)
{
    machine->values[code] = terminated(u" "_s);
    EXPECT_EQ(read(), u""_s);
}

TEST_F(RegistrySettingsTest, AValueWithoutItsEndIsReadWhole)
{
    machine->values[code] = u"12"_s;
    EXPECT_EQ(read(), u"12"_s);
    machine->values[code] = QString();
    EXPECT_EQ(read(), u""_s);
}

TEST_F(RegistrySettingsTest, ATransactionSetsAllItsValues)
{
    SettingsTransaction transaction;
    write(u"3"_s);
    WriteSetting(u"Quillbox"_s, u"Logs"_s, u"4"_s);
    EXPECT_TRUE(machine->values.empty());
    transaction.commit();
    EXPECT_EQ(machine->values.size(), 2U);
    EXPECT_EQ(read(), u"3"_s);
}

TEST_F(RegistrySettingsTest, WhatTheMachineRefusesTheUserKeepsAndReadsFirst)
{
    write(u"1"_s);
    machine->isWritable = false;
    write(u"2"_s);
    EXPECT_EQ(machine->values[code], terminated(u"1"_s));
    EXPECT_EQ(user->values[code], terminated(u"2"_s));
    EXPECT_EQ(read(), u"2"_s);

    machine->isWritable = true;
    write(u"3"_s);
    EXPECT_EQ(machine->values[code], terminated(u"3"_s));
    EXPECT_TRUE(user->values.empty());
    EXPECT_EQ(read(), u"3"_s);
}

TEST_F(RegistrySettingsTest, OfATransactionThatIsRefusedNothingStays)
{
    write(u"1"_s);
    machine->refused = u"Logs"_s;
    SettingsTransaction transaction;
    write(u"3"_s);
    WriteSetting(u"Quillbox"_s, u"New"_s, u"5"_s);
    WriteSetting(u"Quillbox"_s, u"Logs"_s, u"4"_s);
    transaction.commit();
    EXPECT_EQ(machine->values, (std::map<FakeHive::Name, QString>{{code, terminated(u"1"_s)}}));
    EXPECT_EQ(user->values.size(), 3U);
    EXPECT_EQ(read(), u"3"_s);
}

TEST_F(RegistrySettingsTest, WhereNobodyWritesNothingHappens)
{
    machine->isWritable = false;
    user->isWritable = false;
    write(u"2"_s);
    EXPECT_EQ(read(), u""_s);
}

TEST_F(RegistrySettingsTest, ChangesThatChangeNothingSucceedAnywhere)
{
    RegistrySettings settings(machine);
    const SettingKey key{u"Quillbox"_s, u"Code"_s};
    ASSERT_TRUE(settings.write({{key, u"1"_s}}));
    machine->isWritable = false;
    EXPECT_TRUE(settings.write({{key, u"1"_s}}));
    EXPECT_FALSE(settings.write({{key, u"2"_s}}));
    EXPECT_FALSE(settings.write({{key, std::nullopt}}));
    EXPECT_TRUE(settings.write({{{u"Quillbox"_s, u"Logs"_s}, std::nullopt}}));
    EXPECT_EQ(machine->values, (std::map<FakeHive::Name, QString>{{code, terminated(u"1"_s)}}));
}

TEST_F(RegistrySettingsTest, WhatIsTakenBackLeavesNoValueWhereThereWasNone)
{
    RegistrySettings settings(machine);
    machine->refused = u"Logs"_s;
    EXPECT_FALSE(settings.write({{{u"Quillbox"_s, u"Absent"_s}, std::nullopt},
                                 {{u"Quillbox"_s, u"New"_s}, u"5"_s},
                                 {{u"Quillbox"_s, u"Logs"_s}, u"4"_s}}));
    EXPECT_TRUE(machine->values.empty());
}
