#include "support/SourceTexts.h"

#include <QtCore/QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

const QString literal = uR"re("(?:[^"\\\n]|\\.)*")re"_s;

// Where the text or character that begins at a quote ends.
qsizetype endOfQuoted(const QString &source, qsizetype quote)
{
    const QChar mark = source[quote];
    qsizetype i = quote + 1;
    while (i < source.size() && source[i] != mark && source[i] != u'\n')
        i += source[i] == u'\\' ? 2 : 1;
    return qMin(i + 1, source.size());
}

QString withoutComments(const QString &source)
{
    QString result;
    for (qsizetype i = 0; i < source.size();) {
        const QStringView rest = QStringView(source).sliced(i);
        qsizetype end = i + 1;
        if (rest.startsWith(u"//") || rest.startsWith(u"/*")) {
            const QString close = rest.startsWith(u"//") ? u"\n"_s : u"*/"_s;
            const qsizetype found = source.indexOf(close, i);
            i = found < 0 ? source.size() : found + (close == u"\n"_s ? 0 : 2);
            continue;
        }
        if (source[i] == u'"')
            end = endOfQuoted(source, i);
        result += source.sliced(i, end - i);
        i = end;
    }
    return result;
}

// From behind an opening bracket to its closing one.
QString bracketed(const QString &source, qsizetype from)
{
    int depth = 1;
    qsizetype i = from;
    while (i < source.size()) {
        if (source[i] == u'"') {
            i = endOfQuoted(source, i);
            continue;
        }
        if (u"({"_s.contains(source[i]))
            ++depth;
        if (u")}"_s.contains(source[i]) && --depth == 0)
            break;
        ++i;
    }
    return source.sliced(from, i - from);
}

// The arguments of every call that the pattern, which ends with the bracket, finds.
QStringList argumentsOf(const QString &calls, const QString &source)
{
    QStringList arguments;
    auto match = QRegularExpression(calls).globalMatch(source);
    while (match.hasNext())
        arguments << bracketed(source, match.next().capturedEnd());
    return arguments;
}

QString unescaped(QString text)
{
    text.replace(u"\\\""_s, u"\""_s).replace(u"\\r"_s, u"\r"_s).replace(u"\\n"_s, u"\n"_s);
    return text.replace(u"\\\\"_s, u"\\"_s);
}

QStringList textsIn(const QString &code)
{
    static const QRegularExpression neighbours(literal + u"(?:\\s*u?"_s + literal + u")*"_s);
    static const QRegularExpression single(literal);
    QStringList texts;
    auto match = neighbours.globalMatch(code);
    while (match.hasNext()) {
        QString text;
        auto part = single.globalMatch(match.next().captured());
        while (part.hasNext())
            text += unescaped(part.next().captured().sliced(1).chopped(1));
        texts << text;
    }
    return texts;
}

QString withoutLookups(QString code)
{
    static const QRegularExpression lookup(u"\\bLocalise\\("_s);
    for (auto match = lookup.match(code); match.hasMatch(); match = lookup.match(code)) {
        const qsizetype length = bracketed(code, match.capturedEnd()).size();
        code.remove(match.capturedStart(), match.capturedLength() + length);
    }
    return code;
}

} // namespace

QStringList lookedUpTexts(const QString &source)
{
    QStringList texts;
    for (const QString &argument : argumentsOf(u"\\bLocalise\\("_s, withoutComments(source)))
        texts << textsIn(argument);
    return texts;
}

QStringList textsShownAsTheyAre(const QString &source)
{
    static const QRegularExpression word(u"\\p{L}{2}"_s);
    const QString showing =
        u"(?:\\b(?:set(?:Text|ToolTip|WindowTitle|Title|StatusTip|WhatsThis|AccessibleName"
        "|AccessibleDescription|PlaceholderText|HeaderLabels|InformativeText)"
        "|show|showMessage|addAction|addMenu|addTab|tr)\\("
        "|\\b(?:Message|Q(?:Label|PushButton|ToolButton|CheckBox|RadioButton|GroupBox|Action"
        "|Menu))(?:\\s+\\w+)?[({])"_s;
    QStringList texts;
    for (const QString &argument : argumentsOf(showing, withoutComments(source)))
        texts << textsIn(withoutLookups(argument)).filter(word);
    texts.sort();
    texts.removeDuplicates(); // calls within calls
    return texts;
}

QStringList allTexts(const QString &source)
{
    return textsIn(withoutComments(source));
}

QStringList chainedArguments(const QString &commented)
{
    static const QRegularExpression call(u"\\.\\s*arg\\("_s);
    static const QRegularExpression member(u"^\\s*\\.\\s*(\\w+)\\("_s);
    const QString source = withoutComments(commented);
    QStringList chains;
    for (const QRegularExpressionMatch &first : call.globalMatch(source)) {
        qsizetype end = first.capturedEnd();
        QRegularExpressionMatch next;
        do {
            end += bracketed(source, end).size() + 1;
            next = member.match(source.sliced(qMin(end, source.size())));
            end += next.capturedLength();
        } while (next.hasMatch() && next.captured(1) != "arg"_L1);
        if (next.hasMatch())
            chains << source.sliced(first.capturedStart(), end - first.capturedStart());
    }
    return chains;
}
