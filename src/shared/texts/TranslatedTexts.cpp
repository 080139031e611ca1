#include <ORVTListview/TranslatedTexts.h>

#include "shared/texts/LanguageChoice.h"
#include <ORVTListview/LibraryTexts.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QTranslator>

#include <algorithm>
#include <optional>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView prefix{"orvtlistview_"};
constexpr QLatin1StringView suffix{".qm"};

// The file of the first language that has one; empty for English, none when
// there is neither.
std::optional<QString> fileFor(const QLocale &locale, const QString &folder)
{
    for (QString language : languageChoice(locale.uiLanguages())) {
        if (language == englishLanguage)
            return QString();
        const QString name = prefix + language.replace(u'-', u'_') + suffix;
        if (QFileInfo::exists(folder + u'/' + name))
            return folder + u'/' + name;
    }
    return std::nullopt;
}

TextCollection textsOf(const QTranslator &translator)
{
    TextCollection texts;
    for (const LibraryText &text : libraryTexts()) {
        const QString translation = translator.translate("ORVTListview", text.english);
        if (!translation.isEmpty())
            texts.insert(textKey(QString::fromLatin1(text.english)), translation);
    }
    return texts;
}

} // namespace

struct TranslatedTexts::Private
{
    explicit Private(const QString &readFrom)
        : folder(readFrom)
    {
    }

    const QString folder;
    QLocale language;
    DisplayFontSettings font;
    TextCollection texts;
    QDateTime changeTime;
    QDateTime fetchTime;

    void markChanged();
};

TranslatedTexts::TranslatedTexts(const QLocale &Language, const QString &Folder)
    : d(std::make_unique<Private>(Folder))
{
    setLanguage(Language);
}

TranslatedTexts::~TranslatedTexts() = default;

QString TranslatedTexts::builtInFolder()
{
    return u":/ORVTListview/translations"_s;
}

QList<QLocale> TranslatedTexts::availableLanguages(const QString &Folder)
{
    QList<QLocale> languages{QLocale(QLocale::English)};
    const QStringList files =
        QDir(Folder).entryList({prefix + u'*' + suffix}, QDir::Files, QDir::Name);
    for (const QString &file : files)
        languages << QLocale(file.sliced(prefix.size()).chopped(suffix.size()));
    return languages;
}

QLocale TranslatedTexts::Language() const
{
    return d->language;
}

bool TranslatedTexts::setLanguage(const QLocale &Language)
{
    d->language = Language;
    d->texts.clear();
    d->markChanged();

    const std::optional<QString> file = fileFor(Language, d->folder);
    if (!file || file->isEmpty())
        return file.has_value();
    QTranslator translator;
    if (!translator.load(*file))
        return false;
    d->texts = textsOf(translator);
    return true;
}

void TranslatedTexts::setDisplayFont(const DisplayFontSettings &Font)
{
    d->font = Font;
}

QDateTime TranslatedTexts::ChangeTime()
{
    return d->changeTime;
}

TextCollection TranslatedTexts::GetTexts(const QString &Component)
{
    d->fetchTime = QDateTime::currentDateTimeUtc();
    return Component == "ORVTListview"_L1 ? d->texts : TextCollection();
}

DisplayFontSettings TranslatedTexts::DisplayFont()
{
    return d->font;
}

// Later than the last fetch even within the same millisecond or when the clock
// was set back, so that no change is missed.
void TranslatedTexts::Private::markChanged()
{
    changeTime = QDateTime::currentDateTimeUtc();
    if (fetchTime.isValid())
        changeTime = std::max(changeTime, fetchTime.addMSecs(1));
}

} // namespace ORVTListview
