// The system's own registry.

#include "shared/settings/RegistryHiveWindows.h"

#include "base/ThreadState.h"
#include "shared/settings/SettingsSession.h"
#include "support/QtPrinters.h"
#include <ORVTListview/SettingsStore.h>

#include <QtCore/QCoreApplication>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include <windows.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

class RegistryHiveTest : public testing::Test
{
protected:
    RegistryHiveTest()
    {
        RegDeleteTreeW(HKEY_CURRENT_USER, wide(path));
        threadPart<SettingsSession>().usePlace(std::make_unique<RegistrySettings>(user));
    }
    ~RegistryHiveTest() override { RegDeleteTreeW(HKEY_CURRENT_USER, wide(path)); }

    // As another program writes it.
    void put(DWORD type, const void *data, std::size_t bytes) const
    {
        ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, wide(path), L"Code", type, data,
                                  static_cast<DWORD>(bytes)),
                  ERROR_SUCCESS);
    }
    bool hasKey() const
    {
        HKEY key = nullptr;
        const bool isThere =
            RegOpenKeyExW(HKEY_CURRENT_USER, wide(path), 0, KEY_QUERY_VALUE, &key) == ERROR_SUCCESS;
        if (isThere)
            RegCloseKey(key);
        return isThere;
    }
    QString read() const { return ReadSetting(application, u"Code"_s); }
    void write(const QString &value) const { WriteSetting(application, u"Code"_s, value); }

    const QString application = u"Tests %1"_s.arg(QCoreApplication::applicationPid());
    const QString path = u"Software\\Morvane Systems Inc\\"_s + application;
    const std::shared_ptr<RegistryHive> user =
        std::make_shared<RegistryHive>(RegistryHive::Owner::User);
    ThreadState::Fresh fresh;
};

} // namespace

TEST_F(RegistryHiveTest, ReadingCreatesNothing)
{
    EXPECT_EQ(read(), QString());
    EXPECT_FALSE(hasKey());
}

TEST_F(RegistryHiveTest, WhatIsWrittenIsATextWithItsEnd)
{
    write(u"3"_s);
    EXPECT_EQ(read(), u"3"_s);
    wchar_t text[8] = {};
    DWORD bytes = sizeof text;
    DWORD type = 0;
    ASSERT_EQ(RegGetValueW(HKEY_CURRENT_USER, wide(path), L"Code", RRF_RT_ANY, &type, text, &bytes),
              ERROR_SUCCESS);
    EXPECT_EQ(type, DWORD(REG_SZ));
    EXPECT_EQ(bytes, 2 * sizeof(wchar_t));
}

TEST_F(RegistryHiveTest, TextsOfAnyLettersAndLengthComeBack)
{
    for (const QString &text : {u"Zuluft °C – 供気 \U0001F321"_s, QString(), QString(63, u'x'),
                                QString(64, u'y'), QString(100'000, u'ß')}) {
        write(text);
        EXPECT_EQ(read(), text);
    }
}

TEST_F(RegistryHiveTest, AValueWithoutItsEndIsReadWhole)
{
    put(REG_SZ, L"12", 2 * sizeof(wchar_t));
    EXPECT_EQ(read(), u"12"_s);
    put(REG_SZ, nullptr, 0);
    EXPECT_EQ(read(), QString());
}

TEST_F(RegistryHiveTest, HalfALetterAtTheEndIsDropped)
{
    put(REG_SZ, L"12", 2 * sizeof(wchar_t) + 1);
    EXPECT_EQ(read(), u"12"_s);
}

TEST_F(RegistryHiveTest, WhatIsNoTextIsNoneAndIsReplaced)
{
    const DWORD number = 0x00330033;
    for (const DWORD type : {DWORD(REG_DWORD), DWORD(REG_BINARY), DWORD(REG_MULTI_SZ)}) {
        put(type, &number, sizeof number);
        EXPECT_EQ(user->data(path, u"Code"_s), std::nullopt);
        EXPECT_EQ(read(), QString());
        write(u"4"_s);
        EXPECT_EQ(read(), u"4"_s);
    }
}

TEST_F(RegistryHiveTest, AKeyThatAnotherRemovesIsMadeAnew)
{
    write(u"3"_s);
    RegDeleteTreeW(HKEY_CURRENT_USER, wide(path));
    EXPECT_EQ(read(), QString());
    write(u"4"_s);
    EXPECT_EQ(read(), u"4"_s);
}

TEST_F(RegistryHiveTest, AValueIsRemovedOnce)
{
    write(u"3"_s);
    EXPECT_TRUE(user->remove(path, u"Code"_s));
    EXPECT_FALSE(user->remove(path, u"Code"_s));
    EXPECT_EQ(user->data(path, u"Code"_s), std::nullopt);
}

TEST_F(RegistryHiveTest, ATransactionThatEndsWithoutCommitLeavesNothing)
{
    {
        const SettingsTransaction transaction;
        write(u"3"_s);
        EXPECT_EQ(read(), u"3"_s);
        EXPECT_FALSE(hasKey());
    }
    EXPECT_FALSE(hasKey());
}

// Each value is whole at any time, however many write it.
TEST_F(RegistryHiveTest, TwoWhoWriteTearNoValue)
{
    const QStringList texts{QString(10, u'a'), QString(5000, u'b')};
    write(texts[0]);
    std::atomic<bool> isDone = false;
    std::thread other([&] {
        RegistryHive hive(RegistryHive::Owner::User);
        for (int i = 0; i < 500; ++i)
            hive.setData(path, u"Code"_s, texts[i % 2] + QChar(u'\0'));
        isDone = true;
    });
    while (!isDone)
        ASSERT_TRUE(texts.contains(read()));
    other.join();
}
