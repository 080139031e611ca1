// Random keys, pastes, undos, redos, list openings and word picks, against a simple
// model of what the editor holds. ORVT_MONKEY_SEED and ORVT_MONKEY_STEPS replay a
// run.

#include "editor/CodeText.h"
#include "editor/ColourText.h"
#include "editor/EditorClock.h"
#include "editor/EditorHost.h"
#include "editor/LineColouring.h"
#include "editor/ThreadColouring.h"
#include "platform/ListItem.h"
#include "platform/TextRules.h"
#include "support/WidgetTest.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>

#include <array>
#include <optional>
#include <random>
#include <set>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const RichTextSettings &settings()
{
    return threadPart<EditorState>().EditorSettings;
}

QString shownAfterColouring(const QString &text, bool firstLineIsComment = false)
{
    return colouredText(threadColouring(), text, firstLineIsComment, settings()).text;
}

struct Model
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

    void backspace()
    {
        push();
        if (length > 0) {
            replaceSelection({});
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
            replaceSelection({});
        else if (start < text.size())
            erase(start, text.sliced(start).startsWith(u"\r\n"_s) ? 2 : 1);
    }

    void paste(const QString &data)
    {
        if (data.isEmpty())
            return;
        if (data != text.sliced(start, length))
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
        show(kept.state, finishedText(threadColouring(), kept.state.text, settings()).text);
    }
};

} // namespace

class EditorMonkeyTest : public WidgetTest
{
    Q_OBJECT

private:
    std::mt19937 m_random;
    EditorHost *m_host = nullptr;
    Model m_model;
    QStringList m_log;
    std::set<QString> m_irregular; // line texts that colouring changed the meaning of

    unsigned pick(unsigned count) { return static_cast<unsigned>(m_random() % count); }

    template <typename T>
    const T &oneOf(const QList<T> &choices)
    {
        return choices[static_cast<qsizetype>(pick(static_cast<unsigned>(choices.size())))];
    }

    void press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        m_log << u"key %1 mod %2"_s.arg(key).arg(int(modifiers), 0, 16);
        m_host->key(key, modifiers);
    }

    int caretLine() { return m_host->box().textCursor().blockNumber(); }

    // What moves the caret is the box's own; the model takes the place from it.
    void adoptCaret()
    {
        m_model.start = m_host->box().SelStart();
        m_model.length = m_host->box().SelLength();
        if (m_model.edited >= 0 && caretLine() != m_model.edited)
            m_model.finish(m_model.edited);
    }

    void typeSomething()
    {
        const QString word = oneOf(QList<QString>{
            u"if"_s, u"temp1"_s, u"Fan1"_s, u"x"_s, u"("_s, u")"_s, u" "_s, u" "_s, u"  "_s,
            u"rem "_s, u"day"_s, u"12"_s, u">="_s, u"nettemp"_s, u"limit1 "_s, u"{"_s, u"t"_s});
        for (const QChar c : word) {
            m_log << u"type "_s + c;
            QTest::keyClick(&m_host->box(), c.toLatin1());
            m_model.type(c);
        }
    }

    void edit()
    {
        if (pick(2) == 0) {
            press(Qt::Key_Return);
            m_model.breakLine();
        } else if (pick(3) == 0) {
            press(Qt::Key_Delete);
            m_model.deleteForwards();
        } else {
            press(Qt::Key_Backspace);
            m_model.backspace();
        }
    }

    void move()
    {
        const int key =
            oneOf(QList<int>{Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Home,
                             Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown});
        const auto modifiers =
            oneOf(QList<Qt::KeyboardModifiers>{{},
                                               {},
                                               Qt::ShiftModifier,
                                               Qt::ControlModifier,
                                               Qt::ControlModifier | Qt::ShiftModifier});
        const bool finishes = !modifiers && key != Qt::Key_Left && key != Qt::Key_Right;
        if (finishes)
            m_model.finish(caretLine());
        press(key, modifiers);
        adoptCaret();
    }

    void click()
    {
        const QPoint place(static_cast<int>(pick(300)), static_cast<int>(pick(200)));
        m_model.finish(caretLine());
        m_log << u"click %1 %2"_s.arg(place.x()).arg(place.y());
        QTest::mouseClick(m_host->box().viewport(), Qt::LeftButton, {}, place);
        adoptCaret();
    }

    void paste()
    {
        const QString data = oneOf(QList<QString>{
            u"if (temp1 > 2)\r\nfan1 = on\r\n"_s, u"x"_s, u"a\nb"_s, u"REM c\r\n\r\nlimit1 )"_s,
            u"a\\b"_s, u"temp2 ("_s, u"\tif\r\n\t\tday"_s, m_host->box().SelText()});
        QGuiApplication::clipboard()->setText(data);
        press('V', Qt::ControlModifier);
        m_model.paste(data);
        noteIrregular(data);
    }

    void cut()
    {
        press('X', Qt::ControlModifier);
        if (m_model.length > 0) {
            m_model.push();
            m_model.replaceSelection({});
        }
    }

    void undoOrRedo()
    {
        const bool redo = pick(3) == 0;
        press(redo ? 'Y' : 'Z', Qt::ControlModifier);
        const QString before = m_model.ring[static_cast<std::size_t>(m_model.current)].text;
        m_model.step(redo);
        noteIrregular(m_model.ring[static_cast<std::size_t>(m_model.current)].text);
        noteIrregular(before);
    }

    void tab()
    {
        if (m_model.length > 0) {
            press(Qt::Key_Escape); // block indent has tests of its own; drop the selection
            m_host->box().setSelLength(0);
            adoptCaret();
        }
        if (pick(2) == 0) {
            press(Qt::Key_Tab);
            m_model.type(u'\t');
            return;
        }
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        const QChar before = m_model.start > 0 ? m_model.text[m_model.start - 1] : QChar(u'x');
        if (before == u' ' || before == u'\t')
            m_model.erase(m_model.start - 1, 1);
    }

    void useWordList()
    {
        press(Qt::Key_Space, Qt::ControlModifier);
        if (!m_host->wordList().isVisible()) {
            m_model.edited = m_model.edited; // a known word or a number took its colour
            m_irregular.insert(m_host->box().lineText(caretLine()));
            adoptCaret();
            if (!IsCommentLine(m_model.lineText(caretLine())))
                m_model.edited = caretLine();
            return;
        }
        for (unsigned i = pick(4); i > 0; --i)
            press(oneOf(QList<int>{Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_End}));
        const ListItem *chosen = m_host->wordList().SelectedItem();
        const QString word = chosen ? chosen->Text() : QString();
        if (!chosen || pick(3) == 0) {
            press(Qt::Key_Escape);
            return;
        }
        press(pick(2) ? int(Qt::Key_Return) : int(Qt::Key_Tab));
        m_model.push();
        const WordAtCaret old = wordAtCaret(m_model.text, m_model.start);
        m_model.start = old.WordStart - 1;
        m_model.length = static_cast<qint32>(old.Word.size());
        if (old.Word != word)
            m_model.replaceSelection(word);
        m_model.start = old.WordStart - 1 + static_cast<qint32>(word.size());
        m_model.length = 0;
        m_model.edited = m_model.lineOf(m_model.start);
    }

    // A tab directly behind a word and "REM)" read differently once colouring has
    // written them; such lines have the colours that they were given then.
    void noteIrregular(const QString &text)
    {
        const QStringList lines = withCrLf(text).split(u"\r\n"_s);
        for (const QString &line : lines) {
            const QString shown = shownAfterColouring(line);
            if (colouredText(threadColouring(), line, false, settings()).runs !=
                colouredText(threadColouring(), shown, false, settings()).runs)
                m_irregular.insert(shown);
        }
    }

    void step()
    {
        switch (pick(24)) {
        case 0:
        case 1:
        case 2:
            return edit();
        case 3:
        case 4:
        case 5:
        case 6:
            return move();
        case 7:
            return click();
        case 8:
            return paste();
        case 9:
            return cut();
        case 10:
        case 11:
            return undoOrRedo();
        case 12:
            return tab();
        case 13:
            return useWordList();
        default:
            return typeSomething();
        }
    }

    bool hasItsColours(int line)
    {
        RichTextBox &box = m_host->box();
        const QString text = box.lineText(line);
        const ColouredText expected = finishedLine(threadColouring(), text, settings());
        const ColouredText shown =
            box.coloured(box.lineStart(line), static_cast<qint32>(text.size()));
        return expected.text == text &&
               (wordColours(expected) == wordColours(shown) || m_irregular.contains(text));
    }

    static QList<qint32> wordColours(const ColouredText &text)
    {
        QList<qint32> colours;
        qsizetype at = 0;
        for (const ColouredText::Run &run : text.runs) {
            for (qsizetype i = 0; i < run.length; ++i, ++at) {
                if (text.text[at] != u' ' && text.text[at] != u'\t')
                    colours.append(run.colour);
            }
        }
        return colours;
    }

    bool check(QString &why)
    {
        RichTextBox &box = m_host->box();
        const auto isInsideLineEnd = [&](qint32 position) {
            return position > 0 && position < m_model.text.size() &&
                   m_model.text[position - 1] == u'\r' && m_model.text[position] == u'\n';
        };
        if (box.Text() != m_model.text)
            why = u"text"_s;
        else if (box.SelStart() != m_model.start || box.SelLength() != m_model.length)
            why = u"selection"_s;
        else if (isInsideLineEnd(box.SelStart()) ||
                 isInsideLineEnd(box.SelStart() + box.SelLength()))
            why = u"caret inside a line end"_s;
        else if (!m_host->ring().isSound())
            why = m_host->ring().unsoundness();
        else if (m_host->ring().UndoCurrent() != m_model.current ||
                 m_host->ring().UndoNewest() != m_model.newest)
            why = u"ring"_s;
        for (int line = 0; why.isEmpty() && line < box.lineCount(); ++line) {
            if (line != caretLine() && !hasItsColours(line))
                why = u"colours of line %1: %2"_s.arg(line).arg(box.lineText(line));
        }
        return why.isEmpty();
    }

private Q_SLOTS:
    void theEditorIsWhatTheModelIs()
    {
        bool isGiven = false;
        unsigned seed = qEnvironmentVariable("ORVT_MONKEY_SEED").toUInt(&isGiven);
        if (!isGiven)
            seed = 20261120;
        const int givenSteps = qEnvironmentVariableIntValue("ORVT_MONKEY_STEPS");
        const int steps = givenSteps > 0 ? givenSteps : 50'000;
        m_random.seed(seed);
        EditorHost host;
        m_host = &host;
        threadPart<EditorClock>().now = [time = EditorClock::Time()] { return time; };
        host.list->setCodeText(QString());
        for (int i = 0; i < steps; ++i) {
            m_log.clear();
            const QString before = host.marked();
            step();
            QString why;
            if (!check(why)) {
                const QString model = m_model.text;
                QFAIL(qPrintable(
                    u"seed %1 step %2: %3\nbefore %4\nafter  %5\nmodel  %6 (%7,%8)\n%9"_s.arg(seed)
                        .arg(i)
                        .arg(why, before, host.marked(), model)
                        .arg(m_model.start)
                        .arg(m_model.length)
                        .arg(m_log.join(u", "_s))
                        .replace(u"\r\n"_s, u"¶"_s)));
            }
            if (m_model.text.size() > 1500) {
                press('A', Qt::ControlModifier);
                adoptCaret();
                cut();
            }
        }
    }
};

QTEST_MAIN(EditorMonkeyTest)
#include "EditorMonkeyTest.moc"
