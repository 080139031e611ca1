#include "LanguageMenu.h"

#include "Languages.h"

#include <QtGui/QActionGroup>

namespace ORVTListview {

LanguageMenu::LanguageMenu(const Languages &languages, QWidget *parent)
    : QMenu(tr("&Language"), parent)
{
    auto *choice = new QActionGroup(this);
    for (const QLocale &language : Languages::available()) {
        QAction *action = addAction(u'&' + Languages::nameOf(language), this,
                                    [this, language] { Q_EMIT chosen(language); });
        action->setCheckable(true);
        action->setChecked(language == languages.language());
        choice->addAction(action);
    }
}

} // namespace ORVTListview
