#pragma once

#include <QtCore/QLatin1StringView>
#include <QtCore/QStringList>

namespace ORVTListview {

inline constexpr QLatin1StringView englishLanguage{"en"};

// The names under which to look for a translation, best first, for a user who
// reads these languages (as QLocale::uiLanguages gives them): each language with
// all its names from narrow to wide ("pt-BR", "pt") before the next one. English,
// which is always there, ends the choice, as "en".
QStringList languageChoice(const QStringList &languages);

} // namespace ORVTListview
