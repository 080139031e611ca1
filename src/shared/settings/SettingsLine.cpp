#include "shared/settings/SettingsLine.h"

#include <QtCore/QHash>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace ORVTListview {
namespace {

bool isVisible(char32_t c)
{
    return c == U' ' || (QChar::isPrint(c) && !QChar::isSpace(c));
}

QString escaped(char16_t unit)
{
    return u"\\u%1"_s.arg(static_cast<uint>(unit), 4, 16, QLatin1Char('0'));
}

// A character of two units, or one unit, which may be half of a broken pair.
QStringView firstCharacter(QStringView text)
{
    const bool isPair =
        text.size() > 1 && text.at(0).isHighSurrogate() && text.at(1).isLowSurrogate();
    return text.first(isPair ? 2 : 1);
}

bool isVisible(QStringView character)
{
    return isVisible(character.size() == 2 ? QChar::surrogateToUcs4(character[0], character[1])
                                           : character[0].unicode());
}

QString quotedCharacter(QStringView character)
{
    if (character == u"\"" || character == u"\\")
        return u'\\' + character.toString();
    if (character == u"\n")
        return u"\\n"_s;
    if (character == u"\r")
        return u"\\r"_s;
    if (character == u"\t")
        return u"\\t"_s;
    if (isVisible(character))
        return character.toString();
    QString text;
    for (const QChar unit : character)
        text += escaped(unit.unicode());
    return text;
}

QString quoted(QStringView text)
{
    QString quoted = u"\""_s;
    while (!text.isEmpty()) {
        const QStringView character = firstCharacter(text);
        quoted += quotedCharacter(character);
        text = text.sliced(character.size());
    }
    return quoted + u'"';
}

bool isPlain(QStringView text)
{
    if (text.startsWith(u'"') || text.startsWith(u' ') || text.endsWith(u' '))
        return false;
    while (!text.isEmpty()) {
        const QStringView character = firstCharacter(text);
        if (!isVisible(character))
            return false;
        text = text.sliced(character.size());
    }
    return true;
}

bool isPlainName(QStringView name)
{
    return !name.isEmpty() && isPlain(name) && !name.contains(u'=') && !name.startsWith(u'[') &&
           !name.startsWith(u';') && !name.startsWith(u'#');
}

// What stands for the text behind a backslash; takes it off the front of rest.
std::optional<QChar> readEscape(QStringView &rest)
{
    if (rest.isEmpty())
        return std::nullopt;
    static const QHash<QChar, QChar> shortForms{
        {u'"', u'"'}, {u'\\', u'\\'}, {u'n', u'\n'}, {u'r', u'\r'}, {u't', u'\t'}};
    const QChar kind = rest.front();
    rest = rest.sliced(1);
    if (shortForms.contains(kind))
        return shortForms.value(kind);

    bool isNumber = false;
    const ushort unit = rest.first(std::min<qsizetype>(4, rest.size())).toUShort(&isNumber, 16);
    if (kind != u'u' || rest.size() < 4 || !isNumber)
        return std::nullopt;
    rest = rest.sliced(4);
    return QChar(unit);
}

// A quoted text at the front of rest, which it is taken off; none where rest
// begins otherwise or a quote or an escape is broken.
std::optional<QString> readQuoted(QStringView &rest)
{
    if (!rest.startsWith(u'"'))
        return std::nullopt;
    QStringView unread = rest.sliced(1);
    QString text;
    while (!unread.isEmpty()) {
        const QChar c = unread.front();
        unread = unread.sliced(1);
        if (c == u'"') {
            rest = unread;
            return text;
        }
        const std::optional<QChar> read = c == u'\\' ? readEscape(unread) : c;
        if (!read)
            return std::nullopt;
        text += *read;
    }
    return std::nullopt;
}

// A whole part of a line: quoted, or as it stands.
QString readPart(QStringView part)
{
    QStringView rest = part;
    const std::optional<QString> text = readQuoted(rest);
    return text && rest.isEmpty() ? *text : part.toString();
}

SettingsLine readSetting(QStringView text)
{
    QStringView rest = text;
    const std::optional<QString> quotedName = readQuoted(rest);
    rest = rest.trimmed();
    if (quotedName && rest.startsWith(u'='))
        return {SettingsLine::Kind::Setting, *quotedName, readPart(rest.sliced(1).trimmed())};

    const qsizetype equals = text.indexOf(u'=');
    if (equals < 0)
        return {};
    return {SettingsLine::Kind::Setting, text.first(equals).trimmed().toString(),
            readPart(text.sliced(equals + 1).trimmed())};
}

} // namespace

SettingsLine readSettingsLine(QStringView text)
{
    text = text.trimmed();
    if (text.startsWith(u';') || text.startsWith(u'#'))
        return {};
    if (text.startsWith(u'[') && text.endsWith(u']'))
        return {SettingsLine::Kind::Section, readPart(text.sliced(1).chopped(1).trimmed()), {}};
    return readSetting(text);
}

QString sectionText(const QString &name)
{
    return u'[' + (isPlain(name) ? name : quoted(name)) + u']';
}

QString settingText(const QString &name, const QString &value)
{
    return (isPlainName(name) ? name : quoted(name)) + u'=' +
           (isPlain(value) ? value : quoted(value));
}

} // namespace ORVTListview
