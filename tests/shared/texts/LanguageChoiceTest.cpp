#include "shared/texts/LanguageChoice.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QString choice(const QString &languages)
{
    return languageChoice(languages.split(u' ', Qt::SkipEmptyParts)).join(u' ');
}

} // namespace

TEST(LanguageChoice, GoesFromNarrowToWide)
{
    EXPECT_EQ(choice(u"de-AT"_s), u"de-AT de"_s);
    EXPECT_EQ(choice(u"pt-Latn-BR pt-BR pt"_s), u"pt-Latn-BR pt-Latn pt-BR pt"_s);
    EXPECT_EQ(choice(u"zh-Hant-TW zh-TW"_s), u"zh-Hant-TW zh-Hant zh-TW zh"_s);
}

TEST(LanguageChoice, TakesALanguageWhollyBeforeTheNext)
{
    EXPECT_EQ(choice(u"nl-BE de-DE de"_s), u"nl-BE nl de-DE de"_s);
}

TEST(LanguageChoice, EndsAtEnglish)
{
    EXPECT_EQ(choice(u"en-US en-Latn-US en de"_s), u"en"_s);
    EXPECT_EQ(choice(u"nl en-GB de"_s), u"nl en"_s);
    EXPECT_EQ(choice(u"C"_s), u"en"_s);
}

TEST(LanguageChoice, OfNobodyIsEmpty)
{
    EXPECT_EQ(choice(QString()), QString());
}
