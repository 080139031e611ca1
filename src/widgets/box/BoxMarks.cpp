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

bool needsCare(QChar character)
{
    return character.isNull() || isMark(character);
}

bool isHandledByInsert(QChar character)
{
    return needsCare(character) || character == u'\r';
}

QTextCharFormat withMark(const QTextCharFormat &format, QChar mark)
{
    QTextCharFormat marked = format;
    marked.setProperty(markProperty, mark);
    return marked;
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
            cursor.insertText(text.first(length).toString(), format);
        text = text.sliced(length);
    }
}

} // namespace

void BoxMarks::insert(QTextCursor &cursor, QStringView text, const QTextCharFormat &format)
{
    QTextCharFormat plain = format;
    plain.clearProperty(markProperty);
    if (std::none_of(text.begin(), text.end(), needsCare)) {
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
    return std::none_of(text.begin(), text.end(), isHandledByInsert);
}

bool BoxMarks::mayBeIn(QStringView text)
{
    return text.contains(QChar(standIn));
}

void BoxMarks::restore(const QTextBlock &block, QString &text)
{
    if (!mayBeIn(text))
        return;
    for (auto it = block.begin(); it != block.end(); ++it) {
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
