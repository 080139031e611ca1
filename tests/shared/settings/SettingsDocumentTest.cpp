#include "shared/settings/SettingsDocument.h"
#include "support/QtPrinters.h"
#include "support/RandomText.h"

#include <gtest/gtest.h>

#include <map>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

SettingKey key(const QString &name)
{
    return {u"Quillbox"_s, name};
}

std::optional<SettingsDocument> documentOf(const QByteArray &bytes)
{
    return SettingsDocument::fromBytes(bytes);
}

// "none" tells an absent setting from an empty one.
QString valueIn(const QByteArray &bytes, const QString &name)
{
    const std::optional<SettingsDocument> document = documentOf(bytes);
    return document ? document->value(key(name)).value_or(u"none"_s) : u"damaged"_s;
}

QByteArray twoSettings()
{
    SettingsDocument document;
    document.apply({{key(u"Code"_s), u"12"_s}, {key(u"Größe"_s), u" \n"_s}});
    return document.toBytes();
}

} // namespace

TEST(SettingsDocument, IsReadableText)
{
    EXPECT_EQ(QString::fromUtf8(twoSettings()),
              u"; Settings. Without the line \"; end of settings\" this file counts as cut off.\n"
              u"[Software/Morvane Systems Inc/Quillbox]\n"
              u"Code=12\n"
              u"Größe=\" \\n\"\n"
              u"; end of settings\n"_s);
    EXPECT_EQ(valueIn(twoSettings(), u"Größe"_s), u" \n"_s);
}

TEST(SettingsDocument, AnEmptyFileHoldsNothing)
{
    EXPECT_EQ(valueIn({}, u"Code"_s), u"none"_s);
    EXPECT_EQ(valueIn("\n\n", u"Code"_s), u"none"_s);
    EXPECT_EQ(valueIn(SettingsDocument().toBytes(), u"Code"_s), u"none"_s);
}

TEST(SettingsDocument, ACutFileHoldsNothing)
{
    const QByteArray whole = twoSettings();
    for (qsizetype size = 0; size < whole.size() - 1; ++size) {
        const QString code = valueIn(whole.first(size), u"Code"_s);
        ASSERT_TRUE(code == u"damaged"_s || code == u"none"_s) << size;
        const bool isPastHead = size > whole.indexOf('\n');
        ASSERT_EQ(code == u"damaged"_s || !isPastHead, true) << size;
    }
    EXPECT_EQ(valueIn(whole.chopped(1), u"Code"_s), u"12"_s);
}

TEST(SettingsDocument, WhatIsNoTextIsDamaged)
{
    const QByteArray whole = twoSettings();
    for (const char byte : {'\0', '\x01', '\x1b', '\xff', '\xc3'}) {
        QByteArray spoilt = whole;
        spoilt[spoilt.indexOf("12")] = byte;
        EXPECT_FALSE(documentOf(spoilt)) << int{byte};
    }
    EXPECT_FALSE(documentOf(QByteArray(500, '\0')));
    EXPECT_FALSE(documentOf(whole + QByteArray(500, '\0')));
    EXPECT_FALSE(documentOf(whole + "\xe2\x82")); // begins a character that never ends
    EXPECT_FALSE(documentOf("a=\xed\xa0\x80\n")); // half of a pair
    EXPECT_FALSE(documentOf("\x7f"
                            "ELF\x02\x01\x01\0\0\0"));
}

TEST(SettingsDocument, AFileByHandNeedsNoMarks)
{
    const QByteArray section = "[Software/Morvane Systems Inc/Quillbox]\n";
    EXPECT_EQ(valueIn(section + "Code=3", u"Code"_s), u"3"_s);
    EXPECT_EQ(valueIn("\xef\xbb\xbf" + section + "Code=3\n", u"Code"_s), u"3"_s);
    for (const char *lineEnd : {"\n", "\r\n", "\r"}) {
        QByteArray lines = section + "Code=3\nLogs=4\n";
        EXPECT_EQ(valueIn(lines.replace("\n", lineEnd), u"Code"_s), u"3"_s);
        EXPECT_EQ(valueIn(lines, u"Logs"_s), u"4"_s);
    }
    EXPECT_EQ(valueIn("Code=3\n" + section, u"Code"_s), u"none"_s);
    EXPECT_EQ(valueIn("[Other]\nCode=3\n" + section, u"Code"_s), u"none"_s);
    EXPECT_EQ(valueIn(section + "code=3\n", u"Code"_s), u"none"_s);
    EXPECT_EQ(valueIn(twoSettings() + section + "Code=4\n", u"Code"_s), u"4"_s);
}

TEST(SettingsDocument, AByteOrderMarkInAValueIsACharacter)
{
    const QString value = u"\uFEFF1\uFEFF"_s;
    SettingsDocument document;
    document.apply({{key(value), value}});
    EXPECT_EQ(valueIn(document.toBytes(), value), value);
    EXPECT_EQ(valueIn("[Software/Morvane Systems Inc/Quillbox]\nCode=\xef\xbb\xbf"
                      "1\n",
                      u"Code"_s),
              u"\uFEFF1"_s);
}

// Else a later cut behind that line would go unnoticed.
TEST(SettingsDocument, AnEndLineInAFileByHandIsNotWrittenIntoItsMiddle)
{
    const auto document = documentOf("[Software/Other]\n; end of settings\nName=1\n");
    ASSERT_TRUE(document);
    EXPECT_EQ(document->toBytes().count("; end of settings\n"), 1);
}

TEST(SettingsDocument, WindowsLineEndsDoNotCutAFile)
{
    EXPECT_EQ(valueIn(twoSettings().replace("\n", "\r\n"), u"Code"_s), u"12"_s);
}

TEST(SettingsDocument, KeepsWhatPeopleWrote)
{
    const QByteArray byHand = "# mine\n"
                              "[Other]\n"
                              "x = 1\n"
                              "\n"
                              "[Software/Morvane Systems Inc/Quillbox]\n"
                              "; pages\n"
                              "Code = 3\n"
                              "a line of words\n"
                              "\n"
                              "[Last]\n"
                              "y=2\n";
    std::optional<SettingsDocument> document = documentOf(byHand);
    ASSERT_TRUE(document);
    EXPECT_TRUE(document->apply({{key(u"Logs"_s), u"5"_s}, {key(u"Code"_s), u"4"_s}}));
    QByteArray expected = byHand;
    expected.replace("Code = 3", "Code=4").replace("of words\n", "of words\nLogs=5\n");
    const QByteArray written = document->toBytes();
    EXPECT_EQ(QString::fromUtf8(written.sliced(written.indexOf('\n') + 1)),
              QString::fromUtf8(expected + "; end of settings\n"));
}

TEST(SettingsDocument, ANewSectionIsSetOff)
{
    std::optional<SettingsDocument> document = documentOf("[Other]\nx=1\n");
    document->apply({{key(u"Code"_s), u"1"_s}, {{u"a/b"_s, u"Code"_s}, u"2"_s}});
    const QString text = QString::fromUtf8(document->toBytes());
    EXPECT_TRUE(text.contains(u"x=1\n\n[Software/Morvane Systems Inc/Quillbox]\nCode=1\n\n"
                              u"[Software/Morvane Systems Inc/a/b]\nCode=2\n; end"_s))
        << testing::PrintToString(text);
}

TEST(SettingsDocument, OfEqualSettingsTheLastCounts)
{
    const QByteArray bytes = "[Software/Morvane Systems Inc/Quillbox]\nCode=1\nCode=2\n"
                             "[Other]\n[Software/Morvane Systems Inc/Quillbox]\nCode=3\n";
    std::optional<SettingsDocument> document = documentOf(bytes);
    EXPECT_EQ(document->value(key(u"Code"_s)), u"3"_s);
    document->apply({{key(u"Code"_s), u"4"_s}, {key(u"Logs"_s), u"5"_s}});
    EXPECT_EQ(valueIn(document->toBytes(), u"Code"_s), u"4"_s);
    EXPECT_EQ(valueIn(document->toBytes(), u"Logs"_s), u"5"_s);
    EXPECT_TRUE(document->apply({{key(u"Code"_s), std::nullopt}}));
    EXPECT_EQ(valueIn(document->toBytes(), u"Code"_s), u"none"_s);
}

TEST(SettingsDocument, TellsWhetherAnythingChanged)
{
    SettingsDocument document;
    EXPECT_FALSE(document.apply({}));
    EXPECT_FALSE(document.apply({{key(u"Code"_s), std::nullopt}}));
    EXPECT_TRUE(document.apply({{key(u"Code"_s), u""_s}}));
    EXPECT_FALSE(document.apply({{key(u"Code"_s), u""_s}}));
    EXPECT_TRUE(document.apply({{key(u"Code"_s), u"1"_s}, {key(u"Code"_s), u"2"_s}}));
    EXPECT_EQ(document.value(key(u"Code"_s)), u"2"_s);
    EXPECT_TRUE(document.apply({{key(u"Code"_s), std::nullopt}}));
    EXPECT_EQ(document.value(key(u"Code"_s)), std::nullopt);
}

// Random changes and a way through bytes now and then, against a plain map.
TEST(SettingsDocument, AgreesWithASimpleModel)
{
    RandomText random;
    SCOPED_TRACE(random.seed());
    QList<SettingKey> keys;
    for (int i = 0; i < 12; ++i)
        keys.append({random.text(3), random.text(3)});
    std::map<std::pair<QString, QString>, QString> model;
    SettingsDocument document;
    for (int step = 0; step < 5000; ++step) {
        const SettingKey &k = keys.at(random.number(12));
        if (random.number(4) == 0) {
            document.apply({{k, std::nullopt}});
            model.erase({k.application, k.name});
        } else {
            const QString value = random.text(10);
            document.apply({{k, value}});
            model[{k.application, k.name}] = value;
        }
        if (random.number(5) == 0) {
            std::optional<SettingsDocument> read = documentOf(document.toBytes());
            ASSERT_TRUE(read) << step;
            document = *read;
        }
        for (const SettingKey &each : keys) {
            const auto found = model.find({each.application, each.name});
            const std::optional<QString> value = document.value(each);
            ASSERT_EQ(value.has_value(), found != model.end()) << step;
            ASSERT_TRUE(!value || *value == found->second) << step;
        }
    }
}
