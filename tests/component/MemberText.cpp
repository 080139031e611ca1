#include "MemberText.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace MemberText {

namespace {

QString argumentText(const MemberArgument &argument)
{
    static const QStringList directions{QString(), u" out"_s, u" in/out"_s};
    const QString text = argument.name + u": "_s + typeName(argument.type) +
                         directions.at(static_cast<int>(argument.direction));
    return argument.isOptional ? u'[' + text + u']' : text;
}

QString argumentsText(const Member &member)
{
    QStringList texts;
    for (const MemberArgument &argument : member.arguments)
        texts.append(argumentText(argument));
    return member.name + u'(' + texts.join(u", "_s) + u')';
}

QString propertyText(const Member &member)
{
    return u"property"_s + (member.call ? u" get"_s : QString()) +
           (member.put ? u" put"_s : QString()) + u' ' + member.name + u": "_s +
           typeName(member.type);
}

} // namespace

QString typeName(QMetaType type)
{
    QString name = QString::fromLatin1(type.name());
    name.remove(u"ORVTListview::"_s);
    static const QRegularExpression shortWord(u"\\bshort\\b"_s);
    static const QRegularExpression intWord(u"\\bint\\b"_s);
    return name.replace(shortWord, u"qint16"_s).replace(intWord, u"qint32"_s);
}

QString line(const Member &member)
{
    switch (member.kind) {
    case MemberKind::Property:
        return propertyText(member);
    case MemberKind::Event:
        return u"event %1 "_s.arg(member.number) + argumentsText(member);
    case MemberKind::Method:
        break;
    }
    return u"method "_s + argumentsText(member) +
           (member.type.isValid() ? u": "_s + typeName(member.type) : QString());
}

QStringList ofTable(const MemberTable &table)
{
    QStringList lines;
    for (const Member &member : table.members())
        lines.append(line(member));
    lines.sort();
    return lines;
}

QStringList ofFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    QStringList lines;
    for (const QString &text : QString::fromUtf8(file.readAll()).split(u'\n')) {
        const QString simple = text.simplified();
        if (!simple.isEmpty() && !simple.startsWith(u'#'))
            lines.append(simple);
    }
    lines.sort();
    return lines;
}

} // namespace MemberText
