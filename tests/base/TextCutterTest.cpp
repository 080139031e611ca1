#include "base/TextCutter.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QtCore/QStringList>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QStringList cutAt(QStringView text, QChar separator)
{
    TextCutter cutter(text);
    QStringList parts;
    for (qsizetype start = 0; start <= text.size();) {
        const qsizetype found = text.indexOf(separator, start);
        const qsizetype end = found < 0 ? text.size() : found;
        parts.append(cutter.cut(start, end - start));
        start = end + 1;
    }
    return parts;
}

// Words of all lengths, far more than a block holds.
QString manyWords()
{
    QString text;
    for (int i = 0; i < 2000; ++i)
        text += QString(i % 41, QChar(u'a' + i % 26)) + u'\t';
    for (int length = 200; length < 5000; length += 97)
        text += QString(length, u'x') + u'\t';
    return text + u"end"_s;
}

bool endsInZero(const QString &text)
{
    return text.constData()[text.size()] == QChar();
}

} // namespace

TEST(TextCutter, CutsWhatLiesThere)
{
    const QString text = manyWords();
    EXPECT_EQ(cutAt(text, u'\t'), text.split(u'\t'));
    EXPECT_EQ(cutAt(u"", u'\t'), QStringList{QString()});
    EXPECT_EQ(cutAt(u"\t\ta", u'\t'), (QStringList{QString(), QString(), u"a"_s}));
}

TEST(TextCutter, ItsStringsEndAsStringsDo)
{
    const QStringList parts = cutAt(manyWords(), u'\t');
    for (const QString &part : parts)
        ASSERT_TRUE(endsInZero(part)) << part.toStdString();
}

TEST(TextCutter, ItsStringsShareMemory)
{
    const QStringList parts = cutAt(u"one\ttwo\tthree", u'\t');
    EXPECT_EQ(parts.at(1).constData(), parts.at(0).constData() + 4);
    EXPECT_EQ(parts.at(2).constData(), parts.at(0).constData() + 8);
}

// However one that shares its block with others is changed, they stay.
TEST(TextCutter, ItsStringsChangeByThemselves)
{
    const QString text = u"one\ttwo\tthree"_s;
    QStringList parts = cutAt(text, u'\t');
    parts[0].append(u" and more than was there");
    parts[1][0] = u'T';
    parts[1].insert(0, u"<");
    parts[2].truncate(2);
    parts[2].squeeze();
    EXPECT_EQ(parts, (QStringList{u"one and more than was there"_s, u"<Two"_s, u"th"_s}));
    EXPECT_TRUE(endsInZero(parts.at(2)));
    EXPECT_EQ(text, u"one\ttwo\tthree"_s);
}

TEST(TextCutter, TheLastOfABlockGrowsAsAnyOther)
{
    QStringList parts = cutAt(u"one\ttwo\tthree", u'\t');
    QString last = std::exchange(parts, {}).at(1);
    last.reserve(100);
    last += u" and so on, and so on, and so on"_s;
    last.prepend(u"first ");
    EXPECT_EQ(last, u"first two and so on, and so on, and so on"_s);
    EXPECT_TRUE(endsInZero(last));
}

TEST(TextCutter, ItsStringsOutliveTheText)
{
    QStringList parts;
    {
        const QString text = manyWords();
        parts = cutAt(text, u'\t');
    }
    EXPECT_EQ(parts, manyWords().split(u'\t'));
}
