// Words of the field: the ones that engineers use, and one for each command, whether the
// workbench's menu or the editor's own shows it.

#include "support/QtPrinters.h"
#include "support/TranslationFile.h"

#include <QtCore/QDir>
#include <QtCore/QHash>

#include <gtest/gtest.h>

#include <tuple>

using namespace Qt::StringLiterals;

namespace {

using Texts = QHash<QString, QString>;

// By what is translated, without the marks of access keys.
Texts textsOf(const QString &file)
{
    Texts texts;
    const QDir folder(u"" ORVT_SOURCE_DIR "/translations"_s);
    for (const TranslationMessage &message : readTranslationFile(folder.filePath(file)))
        texts.insert(QString(message.source).remove(u'&'),
                     QString(message.translation).remove(u'&'));
    return texts;
}

struct Term
{
    const char16_t *english, *german, *spanish, *french;
};

// Said otherwise once, or said so of something else.
constexpr Term terms[] = {
    {u"Commissioned", u"In Betrieb genommen", u"Puesto en servicio", u"Mis en service"},
    {u"Max Starting Time", u"Max. Aufheizzeit", u"Tiempo arranque máx.", u"Durée démarrage max."},
    {u"Time", u"Intervall", u"Intervalo", u"Intervalle"}, // of a log
    {u"Data", u"Datenpunkt", u"Punto", u"Point"},
    {u"Bias", u"Arbeitspunkt", u"Desplazamiento", u"Décalage"},
    {u"The text is too large.", u"Der Text ist zu groß.", u"El texto es demasiado grande.",
     u"Le texte est trop long."},
};

class Terms : public testing::TestWithParam<std::tuple<const char *, const char16_t * Term::*>>
{
protected:
    QString file(const QString &of) const
    {
        return of + u'_' + QString::fromLatin1(std::get<0>(GetParam())) + u".ts"_s;
    }
};

} // namespace

TEST_P(Terms, AreThoseOfTheField)
{
    const Texts library = textsOf(file(u"orvtlistview"_s));
    for (const Term &term : terms)
        EXPECT_EQ(library.value(QStringView(term.english).toString()),
                  QStringView(term.*std::get<1>(GetParam())));
}

TEST_P(Terms, OfOtherFieldsAreNowhere)
{
    const QStringList others{u"Zeitwort"_s, u"Anlaufzeit"_s, u"Mot de temps"_s, u"Sesgo"_s,
                             u"de España"_s};
    for (const QString &of : {u"orvtlistview"_s, u"workbench"_s}) {
        const Texts texts = textsOf(file(of));
        EXPECT_FALSE(texts.isEmpty());
        for (const QString &text : texts) {
            for (const QString &other : others)
                EXPECT_FALSE(text.contains(other, Qt::CaseInsensitive)) << text.toStdString();
        }
    }
}

TEST_P(Terms, AreOneForOneCommand)
{
    const Texts library = textsOf(file(u"orvtlistview"_s));
    const Texts workbench = textsOf(file(u"workbench"_s));
    for (const QString &command :
         {u"Undo"_s, u"Redo"_s, u"Cut"_s, u"Copy"_s, u"Paste"_s, u"Select All"_s, u"Delete"_s}) {
        EXPECT_FALSE(workbench.value(command).isEmpty()) << command.toStdString();
        EXPECT_EQ(workbench.value(command), library.value(command));
    }
}

INSTANTIATE_TEST_SUITE_P(Delivered, Terms,
                         testing::Values(std::make_tuple("de", &Term::german),
                                         std::make_tuple("es", &Term::spanish),
                                         std::make_tuple("fr", &Term::french)),
                         [](const auto &test) { return std::string(std::get<0>(test.param)); });
