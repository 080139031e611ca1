#pragma once

#include <QtWidgets/QMenu>

namespace ORVTListview {

class Languages;

// One entry for each language, in that language, so that everybody finds theirs.
class LanguageMenu : public QMenu
{
    Q_OBJECT

public:
    LanguageMenu(Languages &languages, QWidget *parent);
};

} // namespace ORVTListview
