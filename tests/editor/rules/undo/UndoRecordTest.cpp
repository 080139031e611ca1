#include "editor/rules/undo/UndoRecord.h"

#include "support/EveryFieldCounts.h"
#include "support/QtPrinters.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <limits>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const QString separator = u"\r\n%%%%%%\r\n"_s;

QString fields(const QStringList &list)
{
    return list.join(separator);
}

void expectRefusal(const QString &record, qint32 number, const QString &description)
{
    const auto error = raisedBy([&] { splitUndoRecord(record); });
    ASSERT_TRUE(error) << record.toStdString();
    EXPECT_EQ(error->Number(), number) << record.toStdString();
    EXPECT_EQ(error->Source(), u"splitUndoRecord"_s);
    EXPECT_EQ(error->Description(), description);
}

} // namespace

TEST(UndoRecord, IsTextStartAndLengthBetweenSeparators)
{
    EXPECT_EQ(UndoRecordSeparator, separator);
    EXPECT_EQ(joinUndoRecord({u"A = 1\r\nB = 2"_s, 3, 12}),
              u"A = 1\r\nB = 2\r\n%%%%%%\r\n3\r\n%%%%%%\r\n12"_s);
    EXPECT_EQ(undoRecordTail({u"A"_s, -7, 200}), u"\r\n%%%%%%\r\n-7\r\n%%%%%%\r\n200"_s);
    EXPECT_EQ(joinUndoRecord({QString(), 0, 0}), u"\r\n%%%%%%\r\n0\r\n%%%%%%\r\n0"_s);
}

TEST(UndoRecord, ComesBackFromItsText)
{
    using Limits = std::numeric_limits<qint32>;
    for (const QString &text :
         {QString(), u"A"_s, u"A\r\nB\r\n"_s, u"%%%%%%\r\n"_s, u"\r\n%%%%%\r\n"_s, u"Ω😀"_s,
          u"\n%%%%%%\r\n"_s, QString(QChar(u'\0')), QString(100000, u'%')}) {
        for (const qint32 number : {0, 1, 99999, -1, Limits::max(), Limits::min()}) {
            const UndoRecord record{text, number, Limits::max() - qMax(number, 0)};
            EXPECT_EQ(splitUndoRecord(joinUndoRecord(record)), record);
        }
    }
}

TEST(UndoRecord, MissingFieldIsRefused)
{
    const QString description = u"The undo snapshot has fewer than three fields"_s;
    expectRefusal(QString(), 9, description);
    expectRefusal(u"A = 1"_s, 9, description);
    expectRefusal(fields({u"A = 1"_s, u"5"_s}), 9, description);
    expectRefusal(fields({u"A = 1"_s, u"x"_s}), 9, description);
    expectRefusal(u"A = 1\r\n%%%%%\r\n0\r\n%%%%%%\r\n0"_s, 9, description);
    expectRefusal(joinUndoRecord({u"A"_s, 0, 0}).chopped(2), 9, description);
}

TEST(UndoRecord, SeparatorInTheTextIsRefused)
{
    const QString description = u"The undo snapshot's text holds the separator of its fields"_s;
    expectRefusal(joinUndoRecord({u"A"_s + separator + u"B"_s, 0, 0}), 5, description);
    expectRefusal(joinUndoRecord({u"A"_s + separator + u"7"_s, 0, 0}), 5, description);
    expectRefusal(joinUndoRecord({separator, 0, 0}), 5, description);
    expectRefusal(joinUndoRecord({separator.repeated(1000), 0, 0}), 5, description);
}

TEST(UndoRecord, SeparatorThatTheTextBeginsIsRefused)
{
    // Its end runs into the first separator and takes that one's line end.
    expectRefusal(joinUndoRecord({u"A\r\n%%%%%%"_s, 0, 0}), 13,
                  u"The undo snapshot's selection is not a number"_s);
}

TEST(UndoRecord, SelectionThatIsNoNumberIsRefused)
{
    const QString description = u"The undo snapshot's selection is not a number"_s;
    for (const QString &field :
         {QString(), u"x"_s, u"1x"_s, u"1 2"_s, u"- 1"_s, u" "_s, u"1.5"_s, u"1e3"_s, u"-"_s,
          u"--1"_s, u"+-1"_s, u"1,000"_s, u"0x10"_s, u"٣"_s}) {
        expectRefusal(fields({u"A"_s, field, u"0"_s}), 13, description);
        expectRefusal(fields({u"A"_s, u"0"_s, field}), 13, description);
    }
}

TEST(UndoRecord, SelectionBeyond32BitsIsRefused)
{
    const QString description = u"The undo snapshot's selection is too large a number"_s;
    for (const QString &field :
         {u"2147483648"_s, u"-2147483649"_s, u"4294967296"_s, u"99999999999999999999"_s}) {
        expectRefusal(fields({u"A"_s, field, u"0"_s}), 6, description);
        expectRefusal(fields({u"A"_s, u"0"_s, field}), 6, description);
    }
}

TEST(UndoRecord, JoinedOneIsReadWhateverItsTextHolds)
{
    for (const QString &text : {u"a"_s, u""_s, separator, u"a"_s + separator + u"1"_s,
                                u"a\r\n%%%%%%"_s, separator + separator}) {
        const UndoRecord record{text, 3, 7};
        EXPECT_EQ(joinedUndoRecord(joinUndoRecord(record)), record);
    }
    EXPECT_THROW(joinedUndoRecord(u"a"_s + separator + u"1"_s), Error);
}

TEST(UndoRecord, BlanksAroundANumberArePassedOver)
{
    const UndoRecord expected{u"A"_s, 12, 3};
    EXPECT_EQ(splitUndoRecord(fields({u"A"_s, u" 12"_s, u"3 "_s})), expected);
    EXPECT_EQ(splitUndoRecord(fields({u"A"_s, u"+12"_s, u"  3    "_s})), expected);
}

TEST(UndoRecord, IsEqualInTextAndSelection)
{
    expectEveryFieldCounts(
        UndoRecord{u"A"_s, 12, 3}, [](UndoRecord &other) { other.text = u"a"_s; },
        [](UndoRecord &other) { other.selectionStart = 11; },
        [](UndoRecord &other) { other.selectionLength = 4; });
}
