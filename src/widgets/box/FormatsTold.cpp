#include "widgets/box/FormatsTold.h"

#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCharFormat>
#include <QtGui/QTextDocument>

#include <algorithm>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

QString colourTold(const QColor &colour)
{
    return u"rgb(%1,%2,%3)"_s.arg(QString::number(colour.red()), QString::number(colour.green()),
                                  QString::number(colour.blue()));
}

// Signs that part the words are set off, as the protocol wants it.
QString quoted(QString name)
{
    for (const QChar sign : {u'\\', u':', u';', u',', u'='})
        name.replace(sign, QString(u'\\') + sign);
    return name;
}

QString attributesOf(const QTextCharFormat &format, const QFont &ofAll, const QColor &colour)
{
    const QFont font = format.font().resolve(ofAll);
    QString told;
    const auto tell = [&told](const QString &name, const QString &value) {
        told += name + u':' + value + u';';
    };
    tell(u"font-family"_s, u'"' + quoted(font.family()) + u'"');
    tell(u"font-size"_s, u"%1pt"_s.arg(QFontInfo(font).pointSizeF()));
    tell(u"font-weight"_s, font.bold() ? u"bold"_s : u"normal"_s);
    tell(u"font-style"_s, font.italic() ? u"italic"_s : u"normal"_s);
    if (font.underline())
        tell(u"text-underline-style"_s, u"solid"_s);
    if (font.strikeOut())
        tell(u"text-line-through-type"_s, u"single"_s);
    tell(u"color"_s, colourTold(colour));
    if (format.hasProperty(QTextFormat::BackgroundBrush))
        tell(u"background-color"_s, colourTold(format.background().color()));
    return told;
}

} // namespace

FormatTold formatTold(const QTextDocument &document, int position,
                      const std::function<QColor(const QTextCharFormat &format)> &colour)
{
    const auto told = [&](const QTextCharFormat &format) {
        return attributesOf(format, document.defaultFont(), colour(format));
    };
    const QTextBlock line = document.findBlock(position);
    for (auto it = line.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        if (fragment.contains(position))
            return {told(fragment.charFormat()), fragment.position(),
                    fragment.position() + fragment.length()};
    }
    const int end = std::min(position + 1, document.characterCount() - 1); // of the line end
    return {told(line.charFormat()), position, end};
}

} // namespace ORVTListview
