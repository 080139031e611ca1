// One bit of what is kept turns over: each bit of undo slots and of a settings file.

#include "editor/rules/undo/UndoRecord.h"
#include "editor/rules/undo/UndoSlot.h"
#include "editor/rules/undo/UndoStore.h"
#include "shared/settings/SettingsDocument.h"
#include "support/QtPrinters.h"
#include <ORVTListview/Error.h>

#include <gtest/gtest.h>

#include <optional>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

std::optional<UndoRecord> recordOf(const QString &slot)
{
    try {
        UndoStore ring;
        ring.setUndoSlot(1, slot);
        return joinedUndoRecord(ring.FetchUndoSnapshot(1));
    } catch (const Error &) {
        return std::nullopt;
    }
}

template <typename Look>
void turnEachBit(const QString &slot, const Look &look)
{
    for (qsizetype at = 0; at < slot.size(); ++at) {
        for (int bit = 0; bit < 16; ++bit) {
            SCOPED_TRACE(testing::Message() << "character " << at << ", bit " << bit);
            QString turned = slot;
            turned[at] = QChar(static_cast<char16_t>(slot[at].unicode() ^ (1 << bit)));
            ASSERT_NO_FATAL_FAILURE(look(turned));
        }
    }
}

QString text(int lines)
{
    QString text;
    for (int i = 0; i < lines; ++i)
        text += u"IF TEMP%1 > %2 THEN FAN = ON\r\n"_s.arg(i).arg(i * i % 17);
    return text;
}

// A compressed slot has a checksum: what it gives is what was stored, or nothing.
TEST(BitFaults, ACompressedSlotGivesItsRecordOrNone)
{
    for (const int lines : {14, 40, 200}) {
        const UndoRecord record{text(lines), 17, 4};
        const QString slot = encodeUndoSlot(joinUndoRecord(record));
        ASSERT_TRUE(slot.startsWith(u'*'));
        int lost = 0;
        turnEachBit(slot, [&](const QString &turned) {
            const std::optional<UndoRecord> found = recordOf(turned);
            ASSERT_TRUE(!found || *found == record);
            lost += found ? 0 : 1;
        });
        EXPECT_GT(lost, slot.size());
    }
}

// A short slot has none: another letter is another text. It does no harm.
TEST(BitFaults, APlainSlotGivesSomeRecordOrNone)
{
    const UndoRecord record{text(3), 17, 4};
    const QString slot = encodeUndoSlot(joinUndoRecord(record));
    ASSERT_TRUE(slot.startsWith(u'%'));
    int kept = 0;
    turnEachBit(slot, [&](const QString &turned) {
        const std::optional<UndoRecord> found = recordOf(turned);
        ASSERT_TRUE(!found || found->text.size() <= slot.size());
        kept += found && found->text.size() == record.text.size() ? 1 : 0;
    });
    EXPECT_GT(kept, record.text.size());
}

const SettingKey first{u"Quillbox"_s, u"Inputs"_s};
const SettingKey second{u"Quillbox"_s, u"Variables"_s};
const SettingKey third{u"Other"_s, u"Page"_s};

QByteArray settings()
{
    SettingsDocument document;
    document.apply({{first, u"0123456789"_s}, {second, u"x \u00e9"_s}, {third, u" quoted "_s}});
    return document.toBytes();
}

// The bytes of the line that holds the setting.
std::pair<qsizetype, qsizetype> lineOf(const QByteArray &file, const SettingKey &key)
{
    const qsizetype start = file.indexOf('\n' + key.name.toUtf8() + '=') + 1;
    return {start, file.indexOf('\n', start)};
}

// Nothing but the line that is hit gives another value: it is the old one, or absent.
TEST(BitFaults, ASettingsFileGivesOldValuesOrNoneBesideTheLineThatIsHit)
{
    const QByteArray file = settings();
    const SettingsDocument whole = *SettingsDocument::fromBytes(file);
    int damaged = 0;
    for (qsizetype at = 0; at < file.size(); ++at) {
        for (int bit = 0; bit < 8; ++bit) {
            SCOPED_TRACE(testing::Message() << "byte " << at << ", bit " << bit);
            QByteArray turned = file;
            turned[at] = static_cast<char>(turned[at] ^ (1 << bit));
            auto document = SettingsDocument::fromBytes(turned);
            damaged += document ? 0 : 1;
            if (!document)
                continue;
            for (const SettingKey &key : {first, second, third}) {
                const auto [start, end] = lineOf(file, key);
                const bool isHit = at >= start - 1 && at <= end;
                const auto value = document->value(key);
                ASSERT_TRUE(isHit || !value || value == whole.value(key)) << qPrintable(*value);
            }
            document->apply({{first, u"new"_s}}); // it can be written on
            const auto again = SettingsDocument::fromBytes(document->toBytes());
            ASSERT_TRUE(again && again->value(first) == u"new"_s);
        }
    }
    EXPECT_GT(damaged, 0);
}

TEST(BitFaults, ASettingsFileThatIsCutAnywhereHoldsNothing)
{
    const QByteArray file = settings();
    const qsizetype head = file.indexOf('\n');
    for (qsizetype length = head; length < file.size() - 1; ++length)
        EXPECT_FALSE(SettingsDocument::fromBytes(file.first(length))) << length;
}

} // namespace
