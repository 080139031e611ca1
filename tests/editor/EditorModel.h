#pragma once

#include "base/TextRules.h"
#include "base/ThreadState.h"
#include "editor/rules/colouring/ColourText.h"
#include "editor/rules/colouring/EditorState.h"
#include "editor/rules/colouring/LineColouring.h"
#include "editor/rules/colouring/ThreadColouring.h"
#include "editor/rules/language/CodeText.h"

#include <QtCore/QList>

#include <array>
#include <optional>

namespace ORVTListview {

using namespace Qt::StringLiterals;

inline const RichTextSettings &settings()
{
    return threadPart<EditorState>().EditorSettings;
}

inline QString shownAfterColouring(const QString &text, bool firstLineIsComment = false)
{
    return colouredText(threadColouring(), text, firstLineIsComment, settings()).text;
}

// What the editor holds, and what its undo can bring back.
struct EditorModel
{
    struct Snapshot
    {
        QString text;
        qint32 start = 0;
        qint32 length = 0;
    };

    QString text;
    qint32 start = 0;
    qint32 length = 0;
    int edited = -1; // the line that is not finished
    bool isTyped = false;

    std::array<Snapshot, 50> ring;
    int oldest = 0;
    int newest = 0;
    int current = 0;
    bool isWrapped = false;

    struct Kept // beside the ring
    {
        Snapshot state;
        int depth = 0;
        int snapshots = 0;
    };
    QList<Kept> behind;
    QList<Kept> ahead;
    std::optional<Kept> keptShown;
    bool isSafe = false; // the text, in the ring or as a kept one
    int depth = 0;
    int snapshots = 0;

    int lineOf(qint32 position) const
    {
        return static_cast<int>(text.first(position).count(u"\r\n"_s));
    }
    qint32 lineStart(qint32 position) const { return LineBounds(text, position).LineStart - 1; }
    QString lineText(int line) const { return text.split(u"\r\n"_s).value(line); }

    void finish(int line)
    {
        QStringList lines = text.split(u"\r\n"_s);
        if (line >= 0 && line < lines.size())
            lines[line] = finishedLine(threadColouring(), lines[line], settings()).text;
        text = lines.join(u"\r\n"_s);
        if (edited == line)
            edited = -1;
    }

    void noteEdit()
    {
        edited = lineOf(start);
        ahead.clear();
        keptShown.reset();
        isSafe = false;
    }

    void leaveAt(QList<Kept> &place, bool isInRing)
    {
        if (keptShown)
            place.append({keptShown->state, depth, snapshots});
        else if (!isSafe && !isInRing)
            place.append({{text, start, length}, depth, snapshots});
        keptShown.reset();
        isSafe = true;
    }

    // The host's own text, which takes no colours.
    void set(const QString &by)
    {
        if (keptShown || (!isSafe && !text.isEmpty()))
            leaveAt(behind, false);
        text = by;
        start = length = 0;
        noteEdit();
        edited = -1;
    }

    // In another appearance.
    void recolour(const QString &by)
    {
        text = by;
        start = length = 0;
        edited = -1;
    }

    void forgetKept()
    {
        behind.clear();
        ahead.clear();
    }

    void setBase(const QString &by)
    {
        set(by);
        forgetKept();
        ring[0] = {text, 0, 0};
    }

    void replaceSelection(const QString &with, bool bySelection = true)
    {
        if (keptShown || (!isSafe && bySelection && length > 0))
            leaveAt(behind, false);
        text.replace(start, length, with);
        start += static_cast<qint32>(with.size());
        length = 0;
        noteEdit();
    }

    void push()
    {
        isTyped = false;
        if (text.isEmpty())
            return;
        current = (current + 1) % 50;
        isWrapped = isWrapped || current == 0;
        newest = current;
        if (isWrapped)
            oldest = (newest + 1) % 50;
        ring[static_cast<std::size_t>(current)] = {text, start, length};
        isSafe = true;
        ++depth;
        ++snapshots;
        const auto isOld = [this](const Kept &kept) { return snapshots - kept.snapshots > 49; };
        behind.removeIf(isOld);
        ahead.removeIf(isOld);
    }

    void type(QChar c)
    {
        if (c != u' ')
            isTyped = true;
        else if (isTyped)
            push();
        replaceSelection(c);
        if (c == u' ' || c == u'\t' || c == u')')
            finish(lineOf(start));
    }

    void breakLine()
    {
        push();
        const int line = lineOf(start);
        const QString indent = GetLineIndent(lineText(line));
        const qint32 offset = start - lineStart(start);
        replaceSelection(u"\r\n"_s + indent.first(std::min<qsizetype>(offset, indent.size())));
        finish(line);
        edited = lineOf(start);
    }

    // What is left of the line is finished.
    void removeSelection()
    {
        replaceSelection({});
        finish(lineOf(start));
    }

    void backspace()
    {
        push();
        if (length > 0) {
            removeSelection();
            return;
        }
        const qint32 offset = start - lineStart(start);
        const QString before = text.sliced(start - offset, offset);
        qint32 count = start > 0 ? 1 : 0;
        if (offset == 0 && start > 0) {
            count = 2; // CR LF
        } else if (offset > 0 && GetLineIndent(before) == before && !before.endsWith(u'\t')) {
            const qint32 step = offset % 4 == 0 ? 4 : offset % 4;
            while (count < step && before[offset - count - 1] == u' ')
                ++count;
        }
        erase(start - count, count);
    }

    void erase(qint32 from, qint32 count)
    {
        if (count == 0)
            return;
        start = from;
        length = count;
        replaceSelection({}, false);
    }

    void deleteForwards()
    {
        push();
        if (length > 0)
            removeSelection();
        else if (start < text.size())
            erase(start, text.sliced(start).startsWith(u"\r\n"_s) ? 2 : 1);
    }

    void paste(const QString &data)
    {
        if (data.isEmpty())
            return;
        if (withCrLf(data) != text.sliced(start, length))
            push();
        if (data.contains(u'\\'))
            return;
        const int first = lineOf(start);
        const bool isComment = IsCommentLine(lineText(first));
        replaceSelection(shownAfterColouring(withCrLf(data), isComment));
        const int last = lineOf(start);
        for (int line = first; line < last; ++line)
            finish(line);
        edited = last;
    }

    // The place, or the end of the text, or before a line end instead of inside it.
    qint32 whole(qint32 position) const
    {
        const qint32 at = std::min<qint32>(position, static_cast<qint32>(text.size()));
        const bool isInside = at > 0 && at < text.size() && text[at - 1] == u'\r';
        return isInside && text[at] == u'\n' ? at - 1 : at;
    }

    void show(const Snapshot &state, const QString &shown)
    {
        text = shown;
        start = whole(state.start);
        length = whole(start + state.length) - start;
        edited = -1;
    }

    void step(bool forwards)
    {
        const bool hasSteps = oldest != newest;
        const bool canStep = hasSteps && current != (forwards ? newest : oldest);
        const bool isInRing = hasSteps && ring[static_cast<std::size_t>(current)].text == text;
        if (!canStep) {
            showKept(forwards ? ahead : behind, forwards ? behind : ahead, isInRing);
            return;
        }
        leaveAt(ahead, isInRing);
        keptShown.reset();
        current = (current + (forwards ? 1 : 49)) % 50;
        depth += forwards ? 1 : -1;
        behind.removeIf([this](const Kept &kept) { return kept.depth >= depth; });
        const Snapshot &state = ring[static_cast<std::size_t>(current)];
        show(state, shownAfterColouring(state.text));
    }

    void showKept(QList<Kept> &from, QList<Kept> &to, bool isInRing)
    {
        if (from.isEmpty())
            return;
        const Kept kept = from.takeLast();
        leaveAt(to, isInRing);
        keptShown = kept;
        show(kept.state, kept.state.text);
    }
};

} // namespace ORVTListview
