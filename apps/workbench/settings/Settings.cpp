#include "workbench/settings/Settings.h"

#include "widgets/look/Colours.h"

#include <QtCore/QSettings>
#include <QtGui/QColor>

#include <algorithm>
#include <array>

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;

constexpr std::array themes = {"system"_L1, "light"_L1, "dark"_L1};
constexpr std::array sets = {"project"_L1, "light"_L1, "dark"_L1, "high contrast"_L1, "own"_L1};
constexpr std::array classes = {"reservedWord"_L1,  "variable"_L1, "constant"_L1,
                                "input"_L1,         "output"_L1,   "networkInput"_L1,
                                "networkOutput"_L1, "comment"_L1};
constexpr int smallestFont = 4;
constexpr int largestFont = 72;

template <typename Choice, std::size_t Count>
Choice chosen(const std::array<QLatin1StringView, Count> &names, const QString &name, Choice former)
{
    const auto found = std::find(names.begin(), names.end(), name);
    return found == names.end() ? former : static_cast<Choice>(found - names.begin());
}

QString textOf(qint32 colour)
{
    return Colours::toColor(colour, {}).name();
}

void readColour(qint32 &colour, const QVariant &stored)
{
    const QColor read(stored.toString());
    if (read.isValid())
        colour = Colours::fromColor(read);
}

void readLook(EditorLook &look, const QSettings &store)
{
    look.colours = chosen(sets, store.value("editor/colours"_L1).toString(), look.colours);
    readColour(look.own.BackColor, store.value("editor/own/ground"_L1));
    for (std::size_t i = 0; i < classes.size(); ++i)
        readColour(look.own.*classColours[i],
                   store.value("editor/own/"_L1 + QString(classes.at(i))));
    look.fontName = store.value("editor/font"_L1, look.fontName).toString();
    const int size = store.value("editor/fontSize"_L1, look.fontSize).toInt();
    if (size == 0 || (size >= smallestFont && size <= largestFont))
        look.fontSize = static_cast<qint16>(size);
}

void writeLook(const EditorLook &look, QSettings &store)
{
    store.setValue("editor/colours"_L1, QString(sets.at(static_cast<std::size_t>(look.colours))));
    store.setValue("editor/own/ground"_L1, textOf(look.own.BackColor));
    for (std::size_t i = 0; i < classes.size(); ++i)
        store.setValue("editor/own/"_L1 + QString(classes.at(i)),
                       textOf(look.own.*classColours[i]));
    store.setValue("editor/font"_L1, look.fontName);
    store.setValue("editor/fontSize"_L1, look.fontSize);
}

} // namespace

RichTextSettings EditorLook::over(RichTextSettings project) const
{
    if (colours == ColourSet::Own)
        takeColours(project, own);
    else if (colours != ColourSet::Project)
        takeColours(project, readyColours(colours));
    if (!fontName.isEmpty())
        project.FontName = fontName;
    if (fontSize > 0)
        project.FontSize = fontSize;
    return project;
}

void Settings::read(const QSettings &store)
{
    theme = chosen(themes, store.value("theme"_L1).toString(), theme);
    const QString code = store.value("language"_L1).toString();
    if (!code.isEmpty() && QLocale(code).language() != QLocale::C)
        language = QLocale(code);
    readLook(look, store);
    reading.read(store);
}

void Settings::takeChanges(const Settings &former, const Settings &later)
{
    if (later.theme != former.theme)
        theme = later.theme;
    if (later.language != former.language)
        language = later.language;
    if (later.look != former.look)
        look = later.look;
    if (later.reading != former.reading)
        reading = later.reading;
}

void Settings::write(QSettings &store) const
{
    store.setValue("theme"_L1, QString(themes.at(static_cast<std::size_t>(theme))));
    store.setValue("language"_L1, language ? language->bcp47Name() : QString());
    writeLook(look, store);
    reading.write(store);
}

} // namespace ORVTListview
