#include "support/TranslationFile.h"

#include <QtCore/QFile>
#include <QtCore/QXmlStreamReader>

namespace {

TranslationMessage readMessage(QXmlStreamReader &xml, const QString &context)
{
    TranslationMessage message{context, {}, {}, false};
    while (xml.readNextStartElement()) {
        if (xml.name() == u"source") {
            message.source = xml.readElementText();
        } else if (xml.name() == u"translation") {
            message.isFinished = !xml.attributes().hasAttribute(QStringLiteral("type"));
            message.translation = xml.readElementText();
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

QList<TranslationMessage> readContext(QXmlStreamReader &xml)
{
    QList<TranslationMessage> messages;
    QString context;
    while (xml.readNextStartElement()) {
        if (xml.name() == u"name")
            context = xml.readElementText();
        else if (xml.name() == u"message")
            messages << readMessage(xml, context);
        else
            xml.skipCurrentElement();
    }
    return messages;
}

} // namespace

QList<TranslationMessage> readTranslationFile(const QString &path)
{
    QList<TranslationMessage> messages;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return messages;
    QXmlStreamReader xml(&file);
    xml.readNextStartElement();
    while (xml.readNextStartElement()) {
        if (xml.name() == u"context")
            messages << readContext(xml);
        else
            xml.skipCurrentElement();
    }
    return xml.hasError() ? QList<TranslationMessage>() : messages;
}
