#include "shared/points/ProgramColours.h"

#include <QtCore/QHash>
#include <QtCore/QMetaProperty>
#include <QtCore/QStringList>

#include <optional>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// The record's fields of this kind are its colours.
QList<QMetaProperty> colourFields()
{
    const QMetaObject &record = RichTextSettings::staticMetaObject;
    QList<QMetaProperty> fields;
    for (int i = 0; i < record.propertyCount(); ++i) {
        if (record.property(i).metaType() == QMetaType::fromType<Colour>())
            fields.append(record.property(i));
    }
    return fields;
}

// Red first in the text, and last in the number.
quint32 swapped(quint32 colour)
{
    return (colour & 0xff) << 16 | (colour & 0xff00) | (colour >> 16 & 0xff);
}

QString colourText(Colour colour)
{
    return u'#' + u"%1"_s.arg(swapped(static_cast<quint32>(colour)), 6, 16, QChar(u'0'));
}

std::optional<Colour> colourOf(QStringView text)
{
    bool isNumber = false;
    const quint32 colour = text.size() == 7 ? text.sliced(1).toUInt(&isNumber, 16) : 0;
    if (!isNumber || text.front() != u'#' || !text.at(1).isLetterOrNumber())
        return std::nullopt;
    return static_cast<Colour>(swapped(colour));
}

QHash<QString, Colour> coloursOf(const QString &text)
{
    QHash<QString, Colour> colours;
    for (const QString &part : text.split(u';')) {
        const qsizetype colon = part.indexOf(u':');
        const std::optional<Colour> colour = colourOf(QStringView(part).sliced(colon + 1));
        if (colon > 0 && colour)
            colours.insert(part.first(colon).trimmed(), *colour);
    }
    return colours;
}

} // namespace

QString programColoursText(const RichTextSettings &settings)
{
    QStringList parts;
    for (const QMetaProperty &field : colourFields())
        parts << QString::fromLatin1(field.name()) + u':' +
                     colourText(field.readOnGadget(&settings).value<Colour>());
    return parts.join(u';');
}

bool takeProgramColours(RichTextSettings &settings, const QString &text)
{
    const QHash<QString, Colour> colours = coloursOf(text);
    RichTextSettings taken = settings;
    for (const QMetaProperty &field : colourFields()) {
        const auto found = colours.constFind(QString::fromLatin1(field.name()));
        if (found == colours.cend() || !field.writeOnGadget(&taken, *found))
            return false;
    }
    settings = taken;
    return true;
}

} // namespace ORVTListview
