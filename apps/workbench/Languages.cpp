#include "Languages.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLibraryInfo>

namespace ORVTListview {

using namespace Qt::StringLiterals;

Languages::Languages(const QLocale &locale, QObject *parent)
    : QObject(parent)
    , m_libraryTexts(locale)
{
    setTextProvider(&m_libraryTexts);
    setLanguage(locale);
}

QString Languages::nameOf(const QLocale &language)
{
    if (language.language() == QLocale::English)
        return u"English"_s; // and not "American English"
    QString name = language.nativeLanguageName();
    if (name.contains(language.nativeTerritoryName()))
        name = name.section(u' ', 0, 0); // "español de España"; there is one of each
    name[0] = name[0].toUpper();
    return name;
}

QLocale Languages::shownFor(const QLocale &wanted)
{
    const QList<QLocale> all = available();
    for (const QString &name : wanted.uiLanguages()) {
        const QLocale::Language language = QLocale(name).language();
        for (const QLocale &locale : all) {
            if (locale.language() == language)
                return locale;
        }
    }
    return QLocale(QLocale::English);
}

Languages::~Languages()
{
    setTextProvider(nullptr);
}

QLocale Languages::locale() const
{
    const QLocale system;
    return system.language() == m_language.language() ? system : m_language;
}

void Languages::setLanguage(const QLocale &language)
{
    m_language = shownFor(language);
    m_libraryTexts.setLanguage(m_language);
    QCoreApplication::removeTranslator(&m_workbenchTexts);
    QCoreApplication::removeTranslator(&m_toolkitTexts);
    if (m_toolkitTexts.load(m_language, u"qtbase"_s, u"_"_s,
                            QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_toolkitTexts);
    if (m_workbenchTexts.load(m_language, u"workbench"_s, u"_"_s, u":/workbench/translations"_s))
        QCoreApplication::installTranslator(&m_workbenchTexts);
    Q_EMIT changed();
}

} // namespace ORVTListview
