#include "shared/texts/LanguageChoice.h"

#include <algorithm>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

QString baseOf(const QString &language)
{
    const QString base = language.section(u'-', 0, 0);
    return base == "C"_L1 ? QString(englishLanguage) : base;
}

// Names of one language, such as "pt-Latn-BR" and "pt-BR", with their wider ones,
// the narrowest first.
QStringList withWiderOnes(const QStringList &languages)
{
    QStringList names;
    for (QString name : languages) {
        for (; !name.isEmpty(); name.truncate(std::max<qsizetype>(name.lastIndexOf(u'-'), 0)))
            names << name;
    }
    names.removeDuplicates();
    std::stable_sort(names.begin(), names.end(), [](const QString &left, const QString &right) {
        return left.count(u'-') > right.count(u'-');
    });
    return names;
}

} // namespace

QStringList languageChoice(const QStringList &languages)
{
    QStringList names;
    for (auto from = languages.cbegin(); from != languages.cend();) {
        const QString base = baseOf(*from);
        if (base == englishLanguage)
            return names << base;
        const auto to = std::find_if(from, languages.cend(),
                                     [&](const QString &other) { return baseOf(other) != base; });
        names << withWiderOnes(QStringList(from, to));
        from = to;
    }
    return names;
}

} // namespace ORVTListview
