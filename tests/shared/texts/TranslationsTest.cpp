// The translations that are delivered: complete, sound and short enough.

#include "support/QtPrinters.h"
#include "support/TranslationFile.h"
#include <ORVTListview/LibraryTexts.h>

#include <QtCore/QDir>
#include <QtCore/QHash>
#include <QtCore/QRegularExpression>

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QStringList matches(const QString &pattern, const QString &text)
{
    QStringList found;
    auto match = QRegularExpression(pattern).globalMatch(text);
    while (match.hasNext())
        found << match.next().captured();
    found.sort();
    return found;
}

class Translations : public testing::TestWithParam<const char *>
{
protected:
    QString language() const { return QString::fromLatin1(GetParam()); }

    QHash<QString, QString> textsBySource() const
    {
        QHash<QString, QString> texts;
        for (const TranslationMessage &message : messages)
            texts.insert(message.source, message.translation);
        return texts;
    }

    const QList<TranslationMessage> messages = readTranslationFile(
        u"" ORVT_SOURCE_DIR "/translations/orvtlistview_"_s + language() + u".ts"_s);
};

// What is the same word in both languages.
const QHash<QString, QStringList> sameAsEnglish{
    {u"de"_s, {u"..."_s, u"Filter"_s, u"Format"_s, u"Name"_s}},
    {u"es"_s, {u"..."_s, u"No"_s, u"Variables"_s}},
    {u"fr"_s,
     {u"..."_s, u"Correction"_s, u"Description"_s, u"Format"_s, u"Mode"_s, u"Type"_s,
      u"Variables"_s}},
};

} // namespace

TEST_P(Translations, HoldEveryTextOfTheLibraryAndNoOther)
{
    QStringList translated;
    for (const TranslationMessage &message : messages) {
        EXPECT_EQ(message.context, u"ORVTListview"_s);
        translated << message.source;
    }
    QStringList library;
    for (const LibraryText &text : libraryTexts())
        library << QString::fromLatin1(text.english);
    translated.sort(); // lupdate appends what is new
    library.sort();
    EXPECT_EQ(translated, library);
}

TEST_P(Translations, AreFinished)
{
    for (const TranslationMessage &message : messages) {
        EXPECT_TRUE(message.isFinished) << message.source.toStdString();
        EXPECT_FALSE(message.translation.isEmpty()) << message.source.toStdString();
    }
}

TEST_P(Translations, DifferFromEnglishButForTheListed)
{
    QStringList same;
    for (const TranslationMessage &message : messages) {
        if (message.translation == message.source)
            same << message.source;
    }
    same.sort();
    EXPECT_EQ(same, sameAsEnglish.value(language()));
}

TEST_P(Translations, KeepPlaceholdersAndWhatIsNoWord)
{
    const QString kept = uR"(%\d|'\\'|\.\.\.|^, |RTF|PWM)"_s;
    for (const TranslationMessage &message : messages)
        EXPECT_EQ(matches(kept, message.translation), matches(kept, message.source));
}

TEST_P(Translations, HaveNoStrayBlanksNorMarks)
{
    for (const TranslationMessage &message : messages) {
        const QString &text = message.translation;
        EXPECT_EQ(text, text.trimmed()); // also no-break spaces
        EXPECT_FALSE(text.contains(u"  "_s)) << text.toStdString();
        // "&" marks access keys, which are assigned; "|" separates columns.
        EXPECT_EQ(matches(u"[&|\\t\\r\\n]"_s, text), QStringList());
    }
}

TEST_P(Translations, FitWhereTheyAreShown)
{
    const QHash<QString, QString> texts = textsBySource();
    for (const LibraryText &text : libraryTexts()) {
        const QString translation = texts.value(QString::fromLatin1(text.english));
        EXPECT_LE(translation.size(), longestText(text.place)) << translation.toStdString();
    }
}

TEST_P(Translations, NameTheSearchFieldInTheToolTipAsTheDialogDoes)
{
    const QHash<QString, QString> texts = textsBySource();
    const QString toolTip =
        texts.value(u"Finds all occurrences with the exact combination of uppercase and lowercase "
                    "letters specified in the Find What box."_s);
    EXPECT_TRUE(toolTip.contains(texts.value(u"Find What"_s))) << toolTip.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Delivered, Translations, testing::Values("de", "es", "fr"),
                         [](const auto &test) { return std::string(test.param); });

TEST(DeliveredTranslations, AreTheTestedOnes)
{
    const QStringList files =
        QDir(u"" ORVT_SOURCE_DIR "/translations"_s).entryList({u"orvtlistview_*.ts"_s});
    EXPECT_EQ(files, QStringList({u"orvtlistview_de.ts"_s, u"orvtlistview_es.ts"_s,
                                  u"orvtlistview_fr.ts"_s}));
}

// Of the library, the workbench and the forms. U+00A0 for all of them: the narrow one is in few
// fonts.
TEST(DeliveredTranslations, NoMarkStandsAloneOnALine)
{
    const QDir folder(u"" ORVT_SOURCE_DIR "/translations"_s);
    const QStringList files = folder.entryList({u"*.ts"_s});
    ASSERT_EQ(files.size(), 9);
    for (const QString &file : files) {
        const QString wrong = file.endsWith(u"_fr.ts"_s)
                                  ? u"[^\u00a0][!?:;»]|«[^\u00a0]|\u202f|'(?!\\\\)(?<!\\\\')"_s
                                  : u"\\s[!?:;»]|«\\s|\u202f"_s;
        for (const TranslationMessage &message : readTranslationFile(folder.filePath(file)))
            EXPECT_EQ(matches(wrong, message.translation), QStringList())
                << file.toStdString() << ": " << message.source.toStdString();
    }
}

TEST(DeliveredTranslations, SpanishOpensItsExclamations)
{
    for (const TranslationMessage &message :
         readTranslationFile(u"" ORVT_SOURCE_DIR "/translations/orvtlistview_es.ts"_s))
        EXPECT_EQ(message.translation.startsWith(u'¡'), message.translation.endsWith(u'!'))
            << message.translation.toStdString();
}
