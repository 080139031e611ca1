#include "rtf/LibreOffice.h"

#include "rtf/RtfDump.h"

#include <QtCore/QHash>
#include <QtCore/QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace ORVTListview::Testing {
namespace {

// The character settings of a style, by the names of the file format.
using Properties = QHash<QString, QString>;

qint32 colourOf(const QString &value)
{
    if (!value.startsWith(u'#'))
        return RtfFormat::automatic;
    const int rgb = value.sliced(1).toInt(nullptr, 16);
    return (rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16;
}

RtfFormat formatOf(const Properties &properties)
{
    const auto isOn = [&](const QString &name) {
        const QString value = properties.value(name);
        return !value.isEmpty() && value != u"none" && value != u"normal";
    };
    const bool isAutomatic = properties.value(u"use-window-font-color"_s) == u"true";
    const double points = properties.value(u"font-size"_s).chopped(2).toDouble();
    return {.fontName = properties.value(u"font-name"_s),
            .halfPoints = static_cast<qint32>(points * 2),
            .colour = isAutomatic ? RtfFormat::automatic : colourOf(properties.value(u"color"_s)),
            .backColour = colourOf(properties.value(u"background-color"_s)),
            .bold = isOn(u"font-weight"_s),
            .italic = isOn(u"font-style"_s),
            .underline = isOn(u"text-underline-style"_s),
            .strike = isOn(u"text-line-through-style"_s)};
}

// Walks through the document once: styles come before the text.
class FlatDocument
{
public:
    FlatDocument(const QString &xml, RtfSink &sink)
        : m_xml(xml)
        , m_sink(sink)
    {
    }

    void read()
    {
        while (!m_xml.atEnd()) {
            const auto token = m_xml.readNext();
            if (token == QXmlStreamReader::StartElement)
                start(m_xml.name());
            else if (token == QXmlStreamReader::EndElement)
                end(m_xml.name());
            else if (token == QXmlStreamReader::Characters && m_isInParagraph)
                m_sink.text(m_xml.text(), formatOf(m_properties.last()));
        }
    }

private:
    QString attribute(QStringView name) const
    {
        for (const QXmlStreamAttribute &each : m_xml.attributes()) {
            if (each.name() == name)
                return each.value().toString();
        }
        return {};
    }

    void start(QStringView element)
    {
        if (element == u"style")
            m_style = attribute(u"name");
        else if (element == u"text-properties")
            keepStyle();
        else if (element == u"p" || element == u"span")
            enter(element);
        else if (m_isInParagraph)
            addElement(element);
    }

    void keepStyle()
    {
        for (const QXmlStreamAttribute &each : m_xml.attributes())
            m_styles[m_style][each.name().toString()] = each.value().toString();
    }

    void enter(QStringView element)
    {
        if (element == u"p" && m_hasParagraph)
            m_sink.lineEnd();
        m_isInParagraph = true;
        m_hasParagraph = true;
        Properties properties = m_properties.isEmpty() ? Properties() : m_properties.last();
        properties.insert(m_styles.value(attribute(u"style-name")));
        m_properties.append(properties);
    }

    void addElement(QStringView element)
    {
        const RtfFormat format = formatOf(m_properties.last());
        if (element == u"s")
            m_sink.text(QString(std::max(attribute(u"c").toInt(), 1), u' '), format);
        else if (element == u"tab")
            m_sink.text(u"\t", format);
        else if (element == u"line-break")
            m_sink.lineEnd();
    }

    void end(QStringView element)
    {
        if (element != u"p" && element != u"span")
            return;
        m_properties.removeLast();
        m_isInParagraph = !m_properties.isEmpty();
    }

    QXmlStreamReader m_xml;
    RtfSink &m_sink;
    QString m_style;
    QHash<QString, Properties> m_styles;
    QList<Properties> m_properties; // of the paragraph and the spans in it
    bool m_isInParagraph = false;
    bool m_hasParagraph = false;
};

} // namespace

QString dumpOfFlatDocument(const QString &xml)
{
    RtfDump dump;
    RtfMerger merger(dump);
    FlatDocument(xml, merger).read();
    merger.flush();
    return dump.lines();
}

} // namespace ORVTListview::Testing
