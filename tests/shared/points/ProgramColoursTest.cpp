#include "shared/points/ProgramColours.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

RichTextSettings colours()
{
    RichTextSettings settings;
    settings.BackColor = 0xFFFFFF;
    settings.VariableColor = 0xD06000; // blue first
    settings.CommentColor = 0x007A00;
    return settings;
}

const QString text =
    u"BackColor:#ffffff;VariableColor:#0060d0;ConstantColor:#000000;InputColor:#000000;"
    "OutputColor:#000000;ReservedWordColor:#000000;CommentColor:#007a00;nviFPAColor:#000000;"
    "nvoFPAColor:#000000"_s;

} // namespace

TEST(ProgramColours, AreATextWithRedFirst)
{
    EXPECT_EQ(programColoursText(colours()), text);
}

TEST(ProgramColours, AreTakenFromTheirTextAndTheFontStays)
{
    RichTextSettings settings;
    settings.FontName = u"Hack"_s;
    settings.FontSize = 11;
    settings.InputColor = 5;
    ASSERT_TRUE(takeProgramColours(settings, text));
    RichTextSettings expected = colours();
    expected.FontName = u"Hack"_s;
    expected.FontSize = 11;
    EXPECT_EQ(settings, expected);
}

TEST(ProgramColours, AreTakenInAnyOrderAndLetterCase)
{
    QStringList parts = text.toUpper().split(u';');
    const QStringList named = text.split(u';');
    for (qsizetype i = 0; i < parts.size(); ++i)
        parts[i] = named.at(i).section(u':', 0, 0) + u':' + parts.at(i).section(u':', 1);
    std::reverse(parts.begin(), parts.end());
    RichTextSettings settings;
    ASSERT_TRUE(takeProgramColours(settings, parts.join(u';')));
    EXPECT_EQ(settings, colours());
}

TEST(ProgramColours, OfWhichOneIsMissingAreNotTaken)
{
    const QString part = u"CommentColor:#007a00"_s;
    for (const QString &other :
         {u""_s, u"CommentColor"_s, u"CommentColor:"_s, u"CommentColor:007a00"_s,
          u"CommentColor:#07a0"_s, u"CommentColor:#+07a00"_s, u"CommentColor:#-07a00"_s,
          u"CommentColor:# 07a00"_s, u"CommentColor:#007a0g"_s, u"CommentColor:#007a000"_s,
          u"CommentColor:0007a00"_s}) {
        RichTextSettings settings;
        settings.BackColor = 7;
        const RichTextSettings before = settings;
        EXPECT_FALSE(takeProgramColours(settings, QString(text).replace(part, other)));
        EXPECT_EQ(settings, before);
    }
}
