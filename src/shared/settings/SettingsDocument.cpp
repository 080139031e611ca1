#include "shared/settings/SettingsDocument.h"

#include "shared/settings/SettingsLine.h"

#include <QtCore/QStringDecoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ORVTListview {
namespace {

// A file that begins with the first of these was written by the library and is
// whole only with the second. One without it was written by hand.
constexpr QStringView headLine =
    u"; Settings. Without the line \"; end of settings\" this file counts as cut off.";
constexpr QStringView endLine = u"; end of settings";

bool isText(const QString &text)
{
    return std::ranges::all_of(
        text, [](QChar c) { return c >= u' ' || c == u'\n' || c == u'\r' || c == u'\t'; });
}

// None for what is not UTF-8 or has characters that no text has.
std::optional<QStringList> linesOf(const QByteArray &bytes)
{
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decode(bytes);
    if (decode.hasError() || !isText(text))
        return std::nullopt;
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    if (text.endsWith(u'\n'))
        text.chop(1);
    return text.isEmpty() ? QStringList() : text.split(u'\n');
}

// Takes the lines off that tell a whole file from a cut one; false for a cut one. A file
// written by hand loses its end lines, too: written again, one would stand in its middle.
bool takeMarks(QStringList &lines)
{
    const bool isOwn = !lines.isEmpty() && lines.first().trimmed() == headLine;
    if (isOwn)
        lines.removeFirst();
    const qsizetype ends =
        lines.removeIf([](const QString &line) { return line.trimmed() == endLine; });
    return !isOwn || ends > 0;
}

// All of that name: an earlier one must not come to light.
void removeLines(QStringList &lines, const QString &name)
{
    for (QString &text : lines) {
        const SettingsLine line = readSettingsLine(text);
        if (line.kind == SettingsLine::Kind::Setting && line.name == name)
            text = QString();
    }
}

} // namespace

SettingsDocument::SettingsDocument()
    : m_sections{{}}
{
}

std::optional<SettingsDocument> SettingsDocument::fromBytes(const QByteArray &bytes)
{
    std::optional<QStringList> lines = linesOf(bytes);
    if (!lines || !takeMarks(*lines))
        return std::nullopt;
    SettingsDocument document;
    for (const QString &line : std::as_const(*lines))
        document.append(line);
    return document;
}

QByteArray SettingsDocument::toBytes() const
{
    QByteArray bytes = headLine.toUtf8() + '\n';
    for (const Section &section : m_sections) {
        for (const QString &line : section.lines) {
            if (!line.isNull())
                bytes += line.toUtf8() + '\n';
        }
    }
    return bytes + endLine.toUtf8() + '\n';
}

std::optional<QString> SettingsDocument::value(const SettingKey &key) const
{
    const auto found = m_settings.constFind(nameOf(key));
    if (found == m_settings.cend())
        return std::nullopt;
    return readSettingsLine(m_sections.at(found->section).lines.at(found->line)).value;
}

bool SettingsDocument::apply(const SettingChanges &changes)
{
    bool changed = false;
    for (const SettingChange &change : changes) {
        const Name name = nameOf(change.key);
        const bool differs = change.value ? set(name, *change.value) : remove(name);
        changed = changed || differs;
    }
    return changed;
}

SettingsDocument::Name SettingsDocument::nameOf(const SettingKey &key)
{
    return {u"Software/Morvane Systems Inc/"_s + key.application, key.name};
}

void SettingsDocument::append(const QString &text)
{
    const SettingsLine line = readSettingsLine(text);
    if (line.kind == SettingsLine::Kind::Section) {
        m_sectionPlaces.insert(line.name, m_sections.size());
        m_sections.append({line.name, {}});
    }
    Section &section = m_sections.last();
    if (line.kind == SettingsLine::Kind::Setting)
        m_settings.insert({section.name, line.name}, {m_sections.size() - 1, section.lines.size()});
    section.lines.append(text.isNull() ? u""_s : text);
}

bool SettingsDocument::set(const Name &name, const QString &value)
{
    const auto found = m_settings.constFind(name);
    if (found != m_settings.cend()) {
        QString &line = m_sections[found->section].lines[found->line];
        const bool differs = readSettingsLine(line).value != value;
        if (differs)
            line = settingText(name.second, value);
        return differs;
    }
    Section &section = sectionFor(name.first);
    // Before the blank lines that set the next section off.
    qsizetype line = section.lines.size();
    while (line > 0 && section.lines.at(line - 1).trimmed().isEmpty())
        --line;
    section.lines.insert(line, settingText(name.second, value));
    m_settings.insert(name, {m_sectionPlaces.value(name.first), line});
    return true;
}

bool SettingsDocument::remove(const Name &name)
{
    if (!m_settings.remove(name))
        return false;
    for (Section &section : m_sections) {
        if (section.name == name.first)
            removeLines(section.lines, name.second);
    }
    return true;
}

SettingsDocument::Section &SettingsDocument::sectionFor(const QString &name)
{
    if (!m_sectionPlaces.contains(name)) {
        if (!m_sections.last().lines.isEmpty())
            m_sections.last().lines.append(u""_s);
        m_sectionPlaces.insert(name, m_sections.size());
        m_sections.append({name, {sectionText(name)}});
    }
    return m_sections[m_sectionPlaces.value(name)];
}

} // namespace ORVTListview
