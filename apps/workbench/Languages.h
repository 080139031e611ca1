#pragma once

#include <ORVTListview/TranslatedTexts.h>

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QTranslator>

namespace ORVTListview {

// The languages of the workbench: the library's texts by its own provider, the
// workbench's and the toolkit's by translators.
class Languages : public QObject
{
    Q_OBJECT

public:
    // Begins with the first of the locale's languages that there is.
    explicit Languages(const QLocale &locale = QLocale(), QObject *parent = nullptr);
    ~Languages() override;

    // English and those with a translation.
    static QList<QLocale> available() { return TranslatedTexts::availableLanguages(); }

    // The one of them that is shown for a language.
    static QLocale shownFor(const QLocale &wanted);

    // As its speakers write it.
    static QString nameOf(const QLocale &language);

    // What is shown.
    QLocale language() const { return m_language; }

    // How dates are written for those who read it: as the system does where it has the language.
    QLocale locale() const;
    void setLanguage(const QLocale &language);

Q_SIGNALS:
    // All texts are to be set anew.
    void changed();

private:
    TranslatedTexts m_libraryTexts;
    QTranslator m_workbenchTexts;
    QTranslator m_toolkitTexts;
    QLocale m_language;
};

} // namespace ORVTListview
