#include "project/Comparison.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// Such as "=A ~B|b +c -d ...".
std::string told(const QStringList &before, const QStringList &after)
{
    QStringList lines;
    for (const ComparedLine &line : compared(before.join(u"\r\n"_s), after.join(u"\r\n"_s))) {
        switch (line.kind) {
        case ComparedLine::Same:
            lines.append(u'=' + line.after);
            break;
        case ComparedLine::Changed:
            lines.append(u'~' + line.before + u'|' + line.after);
            break;
        case ComparedLine::Removed:
            lines.append(u'-' + line.before);
            break;
        case ComparedLine::Added:
            lines.append(u'+' + line.after);
            break;
        case ComparedLine::Gap:
            lines.append(u"..."_s);
            break;
        }
    }
    return lines.join(u' ').toStdString();
}

const QStringList ten = u"1 2 3 4 5 6 7 8 9 10"_s.split(u' ');

QStringList with(qsizetype line, const QString &text)
{
    QStringList lines = ten;
    lines[line - 1] = text;
    return lines;
}

} // namespace

TEST(Comparison, ShowsWhatDiffersWithLinesAround)
{
    EXPECT_EQ(told(ten, ten), "");
    EXPECT_EQ(told(ten, with(1, u"x"_s)), "~1|x =2 =3 =4 ...");
    EXPECT_EQ(told(ten, with(6, u"x"_s)), "... =3 =4 =5 ~6|x =7 =8 =9 ...");
    EXPECT_EQ(told(ten, ten + QStringList{u"x"_s}), "... =8 =9 =10 +x");
    EXPECT_EQ(told(ten, ten.sliced(2)), "-1 -2 =3 =4 =5 ...");
    EXPECT_EQ(told({u"a"_s, u"b"_s}, {u"b"_s, u"c"_s, u"d"_s}), "-a =b +c +d");
    EXPECT_EQ(told({u""_s}, {u"a"_s}), "~|a");
}

TEST(Comparison, NothingIsShownTwice)
{
    QStringList changed = with(2, u"x"_s);
    changed[4] = u"y"_s;
    EXPECT_EQ(told(ten, changed), "=1 ~2|x =3 =4 ~5|y =6 =7 =8 ...");
    changed[8] = u"z"_s;
    EXPECT_EQ(told(ten, changed), "=1 ~2|x =3 =4 ~5|y =6 =7 =8 ~9|z =10");
}
