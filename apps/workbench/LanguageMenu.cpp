#include "LanguageMenu.h"

#include "Languages.h"

#include <QtGui/QActionGroup>

namespace ORVTListview {
namespace {

QString captionOf(const QLocale &language)
{
    if (language.language() == QLocale::English)
        return QStringLiteral("&English"); // and not "American English"
    QString name = language.nativeLanguageName();
    if (name.contains(language.nativeTerritoryName()))
        name = name.section(u' ', 0, 0); // "español de España"; there is one of each
    name[0] = name[0].toUpper();
    return u'&' + name;
}

} // namespace

LanguageMenu::LanguageMenu(Languages &languages, QWidget *parent)
    : QMenu(tr("&Language"), parent)
{
    auto *choice = new QActionGroup(this);
    for (const QLocale &language : Languages::available()) {
        QAction *action = addAction(captionOf(language), &languages,
                                    [&languages, language] { languages.setLanguage(language); });
        action->setCheckable(true);
        action->setChecked(language == languages.language());
        choice->addAction(action);
    }
}

} // namespace ORVTListview
