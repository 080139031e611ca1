#pragma once

#include <QtCore/QStringView>
#include <QtGui/QTextCharFormat>
#include <QtGui/QTextCursor>

namespace ORVTListview {

// A document takes U+FDD0 and U+FDD1 for frame marks and would turn them into
// line ends. Text that holds them is stored with another character in their
// place, whose format says what it stands for. Many soft hyphens in a row, which some
// fonts take long to lay out, get a format without kerning.
namespace BoxMarks {

// Inserts text at the cursor's position, character for character but for NUL,
// which is dropped, and line ends, each of which starts a block. All of it gets
// the format.
void insert(QTextCursor &cursor, QStringView text, const QTextCharFormat &format);

// True when insert() stores the text as it is, one character for each, in the format.
bool isPlain(QStringView text);

// False when a document's text is as it was inserted, so that nothing is to be put
// back.
bool mayBeIn(QStringView text);

// What of a format is there for such characters, and none of its looks.
QTextCharFormat onlyMarks(const QTextCharFormat &format);

// Puts the characters stood for back into a block's text.
void restore(const QTextBlock &block, QString &text);

// As above, for text that is one fragment's, or a part of it.
void restore(const QTextCharFormat &format, QString &text);

} // namespace BoxMarks
} // namespace ORVTListview
