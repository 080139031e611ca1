#include "widgets/box/BoxMarks.h"

#include <QtGui/QTextBlock>

#include <algorithm>

namespace ORVTListview {
namespace {

constexpr int markProperty = QTextFormat::UserProperty + 1;
constexpr char16_t standIn = u'\ufdef';

bool isMark(QChar character)
{
    return character == u'\ufdd0' || character == u'\ufdd1';
}

// A font that kerns soft hyphens looks behind each of them for all that follow. So
// many in a row go without.
constexpr qsizetype manyHyphens = 32;

QStringView hyphensAt(QStringView text)
{
    const auto isOther = [](QChar c) { return c != QChar::SoftHyphen; };
    return text.first(std::find_if(text.begin(), text.end(), isOther) - text.begin());
}

// Where the first of many stand; the length where none do.
qsizetype findManyHyphens(QStringView text)
{
    qsizetype at = 0;
    while ((at = text.indexOf(QChar(QChar::SoftHyphen), at)) >= 0) {
        const qsizetype length = hyphensAt(text.sliced(at)).size();
        if (length >= manyHyphens)
            return at;
        at += length;
    }
    return text.size();
}

bool needsCare(QStringView text)
{
    const auto isParticular = [](QChar c) { return c.isNull() || isMark(c); };
    return std::any_of(text.begin(), text.end(), isParticular) ||
           findManyHyphens(text) < text.size();
}

QTextCharFormat withMark(const QTextCharFormat &format, QChar mark)
{
    QTextCharFormat marked = format;
    marked.setProperty(markProperty, mark);
    return marked;
}

void insertUnmarked(QTextCursor &cursor, QStringView text, const QTextCharFormat &format)
{
    QTextCharFormat unkerned = format;
    unkerned.setFontKerning(false);
    while (!text.isEmpty()) {
        const qsizetype before = findManyHyphens(text);
        const qsizetype many = hyphensAt(text.sliced(before)).size();
        if (before > 0)
            cursor.insertText(text.first(before).toString(), format);
        if (many > 0)
            cursor.insertText(text.sliced(before, many).toString(), unkerned);
        text = text.sliced(before + many);
    }
}

void insertPieces(QTextCursor &cursor, QStringView text, const QTextCharFormat &format)
{
    while (!text.isEmpty()) {
        const bool marked = isMark(text.front());
        const auto same = [first = text.front(), marked](QChar c) {
            return marked ? c == first : !isMark(c);
        };
        const qsizetype length = std::find_if_not(text.begin(), text.end(), same) - text.begin();
        if (marked)
            cursor.insertText(QString(length, QChar(standIn)), withMark(format, text.front()));
        else
            insertUnmarked(cursor, text.first(length), format);
        text = text.sliced(length);
    }
}

} // namespace

void BoxMarks::insert(QTextCursor &cursor, QStringView text, const QTextCharFormat &format)
{
    QTextCharFormat plain = format;
    plain.clearProperty(markProperty);
    plain.clearProperty(QTextFormat::FontKerning);
    if (!needsCare(text)) {
        cursor.insertText(text.toString(), plain);
        return;
    }
    QString kept = text.toString();
    kept.remove(QChar(u'\0'));
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    insertPieces(cursor, kept, plain);
    cursor.endEditBlock();
}

bool BoxMarks::isPlain(QStringView text)
{
    // Most text holds nothing that would have to be looked at closely.
    const auto isOrdinary = [](QChar c) {
        return c >= u' ' && c != QChar::SoftHyphen && !isMark(c);
    };
    return std::all_of(text.begin(), text.end(), isOrdinary) ||
           (!text.contains(u'\r') && !needsCare(text));
}

bool BoxMarks::mayBeIn(QStringView text)
{
    return text.contains(QChar(standIn));
}

QTextCharFormat BoxMarks::onlyMarks(const QTextCharFormat &format)
{
    QTextCharFormat result;
    for (const int property : {markProperty, int{QTextFormat::FontKerning}}) {
        if (format.hasProperty(property))
            result.setProperty(property, format.property(property));
    }
    return result;
}

void BoxMarks::restore(const QTextBlock &block, QString &text)
{
    if (!mayBeIn(text))
        return;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        const QVariant mark = fragment.charFormat().property(markProperty);
        if (!mark.isValid())
            continue;
        const int start = fragment.position() - block.position();
        std::replace(text.begin() + start, text.begin() + start + fragment.length(), QChar(standIn),
                     mark.toChar());
    }
}

void BoxMarks::restore(const QTextCharFormat &format, QString &text)
{
    const QVariant mark = format.property(markProperty);
    if (mark.isValid())
        text.replace(QChar(standIn), mark.toChar());
}

} // namespace ORVTListview
