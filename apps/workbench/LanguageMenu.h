#pragma once

#include <QtCore/QLocale>
#include <QtWidgets/QMenu>

namespace ORVTListview {

class Languages;

// One entry for each language, in that language, so that everybody finds theirs.
class LanguageMenu : public QMenu
{
    Q_OBJECT

public:
    LanguageMenu(const Languages &languages, QWidget *parent);

Q_SIGNALS:
    void chosen(const QLocale &language);
};

} // namespace ORVTListview
