#include "shared/points/NumberFormat.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <limits>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct Sample
{
    qint32 value;
    QString format;
    QString expected;
};

void expectAll(const QList<Sample> &samples)
{
    for (const Sample &sample : samples)
        EXPECT_EQ(formatNumber(sample.value, sample.format), sample.expected)
            << sample.value << " as " << testing::PrintToString(sample.format);
}

constexpr qint32 lowest = std::numeric_limits<qint32>::min();
constexpr qint32 highest = std::numeric_limits<qint32>::max();

} // namespace

TEST(NumberFormat, EmptyIsThePlainNumber)
{
    expectAll({{0, u""_s, u"0"_s},
               {7, u""_s, u"7"_s},
               {-7, u""_s, u"-7"_s},
               {highest, u""_s, u"2147483647"_s},
               {lowest, u""_s, u"-2147483648"_s},
               {1234, QString(), u"1234"_s},
               {12, u"\"\""_s, u"12"_s}});
}

TEST(NumberFormat, ZeroPlacesPad)
{
    expectAll({{0, u"0"_s, u"0"_s},
               {3, u"0"_s, u"3"_s},
               {0, u"00"_s, u"00"_s},
               {3, u"00"_s, u"03"_s},
               {3, u"000"_s, u"003"_s},
               {16, u"000"_s, u"016"_s},
               {-3, u"00"_s, u"-03"_s},
               {lowest, u"000000000000"_s, u"-002147483648"_s}});
}

TEST(NumberFormat, NoDigitIsLost)
{
    expectAll({{123, u"0"_s, u"123"_s},
               {123, u"00"_s, u"123"_s},
               {123, u"#"_s, u"123"_s},
               {1000, u"00"_s, u"1000"_s},
               {highest, u"0"_s, u"2147483647"_s},
               {lowest, u"#"_s, u"-2147483648"_s}});
}

TEST(NumberFormat, HashPlacesShowOnlyDigitsThereAre)
{
    expectAll({{0, u"#"_s, u""_s},
               {0, u"###"_s, u""_s},
               {5, u"#"_s, u"5"_s},
               {5, u"###"_s, u"5"_s},
               {5, u"##00"_s, u"05"_s},
               {-5, u"##"_s, u"-5"_s},
               {0, u"#0"_s, u"0"_s},
               {5, u"0#"_s, u"05"_s}});
}

TEST(NumberFormat, TextStandsWhereItIsWritten)
{
    expectAll({{3, u"_00"_s, u"_03"_s},
               {3, u"(0)"_s, u"(3)"_s},
               {3, u"\"No. 0\"00"_s, u"No. 003"_s},
               {3, u"0\" # ;\""_s, u"3 # ;"_s},
               {3, u"\\0\\#0"_s, u"0#3"_s},
               {3, u"\\\\0"_s, u"\\3"_s},
               {12, u"0-0"_s, u"1-2"_s},
               {123, u"0-0"_s, u"12-3"_s},
               {3, u"x-#-#"_s, u"x--3"_s},
               {-3, u"Z0"_s, u"-Z3"_s},
               {3, u"é0€"_s, u"é3€"_s}});
}

TEST(NumberFormat, GroupsOfThree)
{
    expectAll({{1234567, u"#,##0"_s, u"1,234,567"_s},
               {999, u"#,##0"_s, u"999"_s},
               {1000, u"#,##0"_s, u"1,000"_s},
               {0, u"#,##0"_s, u"0"_s},
               {5, u"0,000"_s, u"0,005"_s},
               {-1234, u"#,#"_s, u"-1,234"_s},
               {123456, u"#,##0.0"_s, u"123,456.0"_s},
               {1234, u",0"_s, u",1234"_s},
               {1234, u"0,"_s, u"1234,"_s}});
}

TEST(NumberFormat, PlacesBehindThePoint)
{
    expectAll({{1, u"0.00"_s, u"1.00"_s},
               {1, u"0.##"_s, u"1."_s},
               {0, u"#.0"_s, u".0"_s},
               {12, u".0"_s, u"12.0"_s},
               {12, u"a.0"_s, u"12a.0"_s},
               {1, u"0.0.0"_s, u"1.0.0"_s},
               {0, u"."_s, u"."_s}});
}

TEST(NumberFormat, Percent)
{
    expectAll({{3, u"0%"_s, u"300%"_s},
               {0, u"0%"_s, u"0%"_s},
               {3, u"0\\%"_s, u"3%"_s},
               {3, u"0\"%\""_s, u"3%"_s},
               {lowest, u"0%"_s, u"-214748364800%"_s}});
}

TEST(NumberFormat, SectionsForNegativeAndZero)
{
    expectAll({{5, u"0;(0)"_s, u"5"_s},
               {-5, u"0;(0)"_s, u"(5)"_s},
               {0, u"0;(0)"_s, u"0"_s},
               {-5, u"0;-00"_s, u"-05"_s},
               {0, u"0;-0;none"_s, u"none"_s},
               {-5, u"0;"_s, u"-5"_s},
               {-5, u"00;;nil"_s, u"-05"_s},
               {0, u"00;;"_s, u"00"_s},
               {5, u";x"_s, u"5"_s},
               {-5, u";x0"_s, u"x5"_s},
               {5, u"0;1;2;3"_s, u"5"_s},
               {5, u"0\\;0"_s, u"0;5"_s},
               {lowest, u"0;0"_s, u"2147483648"_s}});
}

TEST(NumberFormat, NamedFormats)
{
    expectAll({{1234, u"General Number"_s, u"1234"_s},
               {1234, u"fixed"_s, u"1234.00"_s},
               {1234, u"STANDARD"_s, u"1,234.00"_s},
               {1, u"Percent"_s, u"100.00%"_s}});
}

TEST(NumberFormat, OddFormatsDoNotFail)
{
    expectAll({{5, u"abc"_s, u"abc"_s},
               {5, u" "_s, u" "_s},
               {5, u";"_s, u"5"_s},
               {5, u"\"open 0"_s, u"open 0"_s},
               {5, u"0\\"_s, u"5\\"_s},
               {5, u"0E+00"_s, u"0E+05"_s},
               {5, u"\""_s, u"5"_s}});
}
