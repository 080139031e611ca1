#pragma once

#include <ORVTListview/CoreExport.h>
#include <ORVTListview/TextProvider.h>

#include <QtCore/QList>
#include <QtCore/QLocale>

#include <memory>

namespace ORVTListview {

// A ready provider on Qt's conventions: compiled translations (.qm) named
// orvtlistview_<language>.qm, such as orvtlistview_de.qm or orvtlistview_pt_BR.qm,
// that stand in one folder or are built into the library (German, French and
// Spanish). No translator is installed in the application.
class ORVT_CORE_EXPORT TranslatedTexts : public TextProvider
{
public:
    // Speaks the language given, from the translations built in or from Folder.
    explicit TranslatedTexts(const QLocale &Language = QLocale(),
                             const QString &Folder = builtInFolder());
    ~TranslatedTexts() override;

    // The translations that the library brings along.
    static QString builtInFolder();

    // English and the languages of the files in the folder, by name of the file.
    static QList<QLocale> availableLanguages(const QString &Folder = builtInFolder());

    // The one that was set, though texts may be in another.
    QLocale Language() const;

    // The first of the locale's languages that has a file is loaded; English ends
    // the search. False when the texts are English though the language is not:
    // there is no file, or it cannot be read. Components change at their next
    // ReInitializeStrings. To read a changed file again, set its language again.
    bool setLanguage(const QLocale &Language);

    // What DisplayFont gives; none by default.
    void setDisplayFont(const DisplayFontSettings &Font);

    QDateTime ChangeTime() override;
    TextCollection GetTexts(const QString &Component) override;
    DisplayFontSettings DisplayFont() override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace ORVTListview
