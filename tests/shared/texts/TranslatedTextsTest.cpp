#include <ORVTListview/TranslatedTexts.h>

#include "base/ThreadState.h"
#include "shared/texts/TextTable.h"
#include "support/QtPrinters.h"
#include <ORVTListview/LibraryTexts.h>

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QString setpointIn(TranslatedTexts &provider)
{
    return provider.GetTexts(u"ORVTListview"_s).value(u"SETPOINT"_s);
}

class TranslationFolder
{
public:
    TranslationFolder() { EXPECT_TRUE(m_folder.isValid()); }

    QString path() const { return m_folder.path(); }

    // A copy of a built-in translation under another language's name.
    void add(const QString &builtIn, const QString &language)
    {
        const QString source =
            TranslatedTexts::builtInFolder() + u"/orvtlistview_"_s + builtIn + u".qm"_s;
        EXPECT_TRUE(QFile::copy(source, file(language)));
    }

    void addBroken(const QString &language)
    {
        QFile broken(file(language));
        EXPECT_TRUE(broken.open(QIODevice::WriteOnly));
        broken.write("no translation");
    }

private:
    QString file(const QString &language) const
    {
        return m_folder.filePath(u"orvtlistview_"_s + language + u".qm"_s);
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST(TranslatedTexts, SpeakTheLanguagesThatAreBuiltIn)
{
    TranslatedTexts provider{QLocale(u"en"_s)};
    EXPECT_EQ(setpointIn(provider), QString());
    for (const auto &[language, setpoint] :
         {std::pair(u"de"_s, u"Sollwert"_s), std::pair(u"fr"_s, u"Consigne"_s),
          std::pair(u"es"_s, u"Consigna"_s)}) {
        EXPECT_TRUE(provider.setLanguage(QLocale(language)));
        EXPECT_EQ(provider.Language(), QLocale(language));
        EXPECT_EQ(setpointIn(provider), setpoint);
        EXPECT_EQ(provider.GetTexts(u"ORVTListview"_s).size(), qsizetype(libraryTexts().size()));
    }
}

TEST(TranslatedTexts, ACountryUsesItsLanguage)
{
    TranslatedTexts provider{QLocale(u"de_AT"_s)};
    EXPECT_EQ(setpointIn(provider), u"Sollwert"_s);
}

TEST(TranslatedTexts, ACountrysOwnFileComesFirst)
{
    TranslationFolder folder;
    folder.add(u"es"_s, u"pt"_s);
    folder.add(u"fr"_s, u"pt_BR"_s);
    TranslatedTexts provider(QLocale(u"pt_BR"_s), folder.path());
    EXPECT_EQ(setpointIn(provider), u"Consigne"_s);
    EXPECT_TRUE(provider.setLanguage(QLocale(u"pt_PT"_s)));
    EXPECT_EQ(setpointIn(provider), u"Consigna"_s);
}

TEST(TranslatedTexts, EnglishNeedsNoFile)
{
    TranslatedTexts provider{QLocale(u"de"_s)};
    for (const QLocale &english :
         {QLocale(u"en"_s), QLocale(u"en_GB"_s), QLocale(u"en_ZA"_s), QLocale::c()}) {
        EXPECT_TRUE(provider.setLanguage(english)) << english.name().toStdString();
        EXPECT_TRUE(provider.GetTexts(u"ORVTListview"_s).isEmpty());
    }
}

TEST(TranslatedTexts, ALanguageWithoutAFileIsEnglishAndSaysSo)
{
    TranslatedTexts provider{QLocale(u"de"_s)};
    EXPECT_FALSE(provider.setLanguage(QLocale(u"nl"_s)));
    EXPECT_EQ(provider.Language(), QLocale(u"nl"_s));
    EXPECT_TRUE(provider.GetTexts(u"ORVTListview"_s).isEmpty());
}

TEST(TranslatedTexts, AFileThatCannotBeReadIsEnglishAndSaysSo)
{
    TranslationFolder folder;
    folder.addBroken(u"de"_s);
    TranslatedTexts provider(QLocale(u"en"_s), folder.path());
    EXPECT_FALSE(provider.setLanguage(QLocale(u"de"_s)));
    EXPECT_TRUE(provider.GetTexts(u"ORVTListview"_s).isEmpty());
}

TEST(TranslatedTexts, AnotherFolderReplacesTheOnesBuiltIn)
{
    TranslationFolder folder;
    folder.add(u"fr"_s, u"nl"_s);
    TranslatedTexts provider(QLocale(u"nl"_s), folder.path());
    EXPECT_EQ(setpointIn(provider), u"Consigne"_s);
    EXPECT_FALSE(provider.setLanguage(QLocale(u"de"_s)));
}

TEST(TranslatedTexts, OnlyTheLibrarysTextsAreGiven)
{
    TranslatedTexts provider{QLocale(u"de"_s)};
    EXPECT_TRUE(provider.GetTexts(u"Another"_s).isEmpty());
}

TEST(TranslatedTexts, TellWhichLanguagesThereAre)
{
    const QList<QLocale> builtIn{QLocale(u"en"_s), QLocale(u"de"_s), QLocale(u"es"_s),
                                 QLocale(u"fr"_s)};
    EXPECT_EQ(TranslatedTexts::availableLanguages(), builtIn);

    TranslationFolder folder;
    folder.add(u"es"_s, u"pt_BR"_s);
    EXPECT_EQ(TranslatedTexts::availableLanguages(folder.path()),
              QList<QLocale>({QLocale(u"en"_s), QLocale(u"pt_BR"_s)}));
    EXPECT_EQ(TranslatedTexts::availableLanguages(u"/no/such/folder"_s),
              QList<QLocale>{QLocale(u"en"_s)});
}

TEST(TranslatedTexts, HaveTheFontTheyAreGiven)
{
    TranslatedTexts provider{QLocale(u"de"_s)};
    EXPECT_EQ(provider.DisplayFont(), DisplayFontSettings());
    provider.setDisplayFont({u"Noto Sans"_s, 11});
    EXPECT_EQ(provider.DisplayFont(), (DisplayFontSettings{u"Noto Sans"_s, 11}));
}

TEST(TranslatedTexts, EveryChangeIsSeenByTheNextRefreshHoweverFastTheyCome)
{
    TextTable table;
    TranslatedTexts provider{QLocale(u"de"_s)};
    table.setProvider(&provider);
    table.refresh();
    for (int i = 0; i < 500; ++i) {
        provider.setLanguage(QLocale(u"fr"_s));
        table.refresh();
        ASSERT_EQ(table.localise(u"Setpoint"_s), u"Consigne"_s) << i;
        provider.setLanguage(QLocale(u"de"_s));
        table.refresh();
        ASSERT_EQ(table.localise(u"Setpoint"_s), u"Sollwert"_s) << i;
    }
}

TEST(TranslatedTexts, AreShownThroughLocalise)
{
    const ThreadState::Fresh fresh;
    TranslatedTexts provider{QLocale(u"de"_s)};
    setTextProvider(&provider);
    EXPECT_EQ(Localise(u"Find Next"_s), u"Weitersuchen"_s);
    EXPECT_EQ(Localise(u", Col:"_s), u", Spalte"_s);
    EXPECT_EQ(Localise(u"#"_s), u"#"_s);
}
