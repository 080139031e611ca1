#pragma once

#include "base/ColouredText.h"
#include "widgets/box/BoxFormats.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>

namespace ORVTListview {

// What has to be replaced in a document so that it shows a coloured text and nothing
// else: the lines between those at its front and its back that show the same already.
class BoxLines
{
public:
    // All of them, at first. Both texts outlive it.
    BoxLines(QTextDocument &document, BoxFormats &formats, const ColouredText &text);

    // Leaves the lines alone that are as they shall be. False, and all are to be
    // replaced, when these are few or the document better begins anew.
    bool keepUnchanged();

    // The same for lines whose text is as it shall be, whatever their colours. `shown` is
    // the document's text as BoxText has it.
    bool keepSameText(const QString &shown);

    // Where the replacement goes, a selection.
    QTextCursor toReplace() const;
    ColouredText replacement() const;

private:
    // A line of the new text, and the run in which it begins.
    struct Line
    {
        qsizetype start = 0;
        qsizetype length = 0;
        qsizetype run = 0;
        qsizetype runStart = 0; // in the text
    };

    bool mayKeep();
    bool keepsMany();
    void findLines();
    bool beginsPlain(const QTextBlock &block);
    bool isSame(const QTextBlock &block, const Line &line);
    bool hasColours(const QTextBlock &block, const Line &line);
    int formatOf(Colour colour);

    QTextDocument &m_document;
    BoxFormats &m_formats;
    const ColouredText &m_text;
    QList<Line> m_lines;
    QHash<Colour, int> m_known; // the document's number of a colour's format
    int m_front = 0;            // how many lines are kept
    int m_back = 0;
};

} // namespace ORVTListview
