#pragma once

#include "base/ColouredText.h"
#include "widgets/box/ColouredLines.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QTextCharFormat>

#include <chrono>
#include <functional>
#include <utility>

class QTextBlock;
class QTextCursor;
class QTextDocument;

namespace ORVTListview {

class BoxText;

// The lines of a box whose text is there and whose colours are still to come. They come
// while the program is idle, from the lines in view on, and at once where somebody asks
// for colours or is about to change a line: whoever goes through the box never meets a
// line that waits. Such a line is marked in the document, so that the mark goes where the
// line goes.
// Why it is so: docs/decisions/box.md.
class LateColours final : public QObject
{
    Q_OBJECT

public:
    using Time = std::chrono::steady_clock::time_point;

    // The box's thread goes back to its events after this time.
    static constexpr std::chrono::milliseconds slice{6};

    // A text below this length is given its colours at once.
    static constexpr qsizetype shortest = 0x10000;

    LateColours(QTextDocument &document, const BoxText &text);

    // Those of a box's document, for those who build on the box.
    static LateColours &of(const QTextDocument &document);

    // Former lines may have any formats, which go; of new ones what somebody has set since
    // stays beside the colours.
    enum class Lines { New, Former };

    // While one lives, the next setColoured of the box may give a long text its colours
    // late, and keep former lines whose text is the same. It takes the permission before it
    // tells anybody of anything: those have none.
    class Allowed
    {
    public:
        Allowed(LateColours &colours, Lines lines)
            : m_colours(&colours)
            , m_lines(lines)
        {
            colours.m_permission = this;
        }
        ~Allowed()
        {
            if (m_colours && m_colours->m_permission == this)
                m_colours->m_permission = nullptr;
        }
        Q_DISABLE_COPY_MOVE(Allowed) // known to the colours

        Lines lines() const { return m_lines; }

        // That of the colours which it has brought about; 0 when they came at once.
        int serial() const { return m_serial; }

    private:
        friend LateColours;
        QPointer<LateColours> m_colours;
        Lines m_lines;
        int m_serial = 0;
    };
    Allowed *takePermission() { return std::exchange(m_permission, nullptr); }

    // Whether the text has the same characters and lines in a document.
    static bool suits(QStringView text);

    // The document has just got the lines of a text that suits; all of them wait now.
    void begin(ColouredLines lines, Lines kind, Allowed &permission);

    // The lines that wait are left as they are.
    void stop();

    // Colours lines at once that have stood there, from one on, and takes from them what
    // else they have. Those that have another text stay as they are.
    void colourNow(int firstLine, const ColouredLines &lines);

    bool areWaiting() const { return m_isWaiting; }
    int percentDone() const;
    int linesLeft() const { return m_isWaiting ? m_left : 0; }

    // Grows with each begin.
    int serial() const { return m_serial; }

    // A part of the document.
    struct Range
    {
        int from = 0;
        int to = 0;
    };

    // Colour the lines that wait in parts of the document, or all.
    void give(const QList<Range> &ranges);
    void give(int from, int to) { give({{from, to}}); }
    void giveAll();

    // The lines that a change of selections, or beside a caret, may touch.
    void giveAround(const QList<Range> &selections);
    void giveAround(const QTextCursor &selection);

    // Tells where the idle work is to go on, and what time it is.
    void setFirstShown(const std::function<int()> &lineNumber) { m_firstShown = lineNumber; }
    void setClock(const std::function<Time()> &now) { m_now = now; }

Q_SIGNALS:
    // After each slice, and after the end, whatever brought it about.
    void progressed();

    // Lines that waited are left as they are.
    void stopped();

private:
    class Group;

    void markAll();
    void end();
    void beginRoundAt(int line);
    bool waits(const QTextBlock &block) const;
    void colour(QTextCursor &cursor, QTextBlock &block);
    void show(QTextCursor &cursor, const QTextBlock &block, const ColouredText &wanted,
              Lines lines);
    void colourPlain(QTextCursor &cursor, const QTextBlock &block,
                     const QList<ColouredText::Run> &runs);
    const QTextCharFormat &formatOf(Colour colour);
    bool giveUntil(const std::function<bool()> &isTimeUp);
    bool colourFrom(QTextBlock block, const std::function<bool()> &isTimeUp);
    bool passFrom(QTextBlock block, const std::function<bool()> &isTimeUp);
    void followDocument();
    void goOn();

    QTextDocument &m_document;
    const BoxText &m_boxText;
    ColouredLines m_lines;
    QHash<Colour, QTextCharFormat> m_formats;
    QTimer m_timer;
    std::function<int()> m_firstShown;
    std::function<Time()> m_now = std::chrono::steady_clock::now;
    Allowed *m_permission = nullptr;
    int m_serial = 0;
    bool m_isWaiting = false;
    Lines m_kind = Lines::New;
    int m_firstMark = 0;   // of the first line; the others' follow
    int m_lastCount = 0;   // of marks
    int m_left = 0;        // how many lines wait, or have gone
    int m_next = 0;        // the line that is looked at next
    int m_passed = 0;      // lines that did not wait, one after the other, up to there
    quint64 m_changes = 0; // of the document, when that began
    int m_view = -1;       // the first line shown then
};

} // namespace ORVTListview
