#pragma once

#include "base/ColouredText.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <algorithm>

// A rich-text box as a string and a list of colours, the slow and obvious way.
class BoxModel
{
public:
    static constexpr qint32 unknown = -2; // a colour that the model does not know

    QString text;
    QList<qint32> colours; // one for each unit of the text
    qsizetype anchor = 0;
    qsizetype position = 0;

    qsizetype selStart() const { return std::min(anchor, position); }
    qsizetype selEnd() const { return std::max(anchor, position); }

    static bool isPair(QChar first, QChar second)
    {
        return (first.isHighSurrogate() && second.isLowSurrogate()) ||
               (first == u'\r' && second == u'\n');
    }

    // What the box makes of text given to it.
    static QString normalised(QString given)
    {
        given.remove(QChar(u'\0'));
        given.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
        given.replace(u'\r', u'\n');
        given.replace(QChar(0x2029), u'\n');
        return given.replace(u'\n', QStringLiteral("\r\n"));
    }

    qsizetype whole(qint64 place) const
    {
        const auto clamped = static_cast<qsizetype>(std::clamp<qint64>(place, 0, text.size()));
        const bool inside =
            clamped > 0 && clamped < text.size() && isPair(text.at(clamped - 1), text.at(clamped));
        return inside ? clamped - 1 : clamped;
    }

    void select(qint64 from, qint64 to)
    {
        anchor = whole(from);
        position = whole(to);
    }

    void replaceSelection(const QString &given, qint32 colour = unknown)
    {
        const qsizetype start = selStart();
        text.replace(start, selEnd() - start, given);
        colours.remove(start, selEnd() - start);
        colours.insert(start, given.size(), colour);
        select(start + given.size(), start + given.size());
    }

    void backspace()
    {
        if (anchor == position)
            anchor = whole(position - 1);
        replaceSelection({});
    }

    void deleteNext()
    {
        if (anchor == position && position < text.size()) {
            const bool pair =
                position + 1 < text.size() && isPair(text.at(position), text.at(position + 1));
            anchor = position + (pair ? 2 : 1);
        }
        replaceSelection({});
    }

    qsizetype lineOf(qsizetype place) const
    {
        return QStringView(text).first(whole(place)).count(QStringLiteral("\r\n"));
    }

    QStringList lines() const { return text.split(QStringLiteral("\r\n")); }
};
