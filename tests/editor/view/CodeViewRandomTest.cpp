// A user at work in an editor that shows and does all that it can, at random. After
// each step its text, caret, bookmarks, problems and folds are those of a simple model.

#include "editor/AllOfTheView.h"
#include "editor/rules/structure/Folding.h"
#include "editor/view/ViewFixture.h"
#include "support/RandomSession.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <algorithm>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// The program as a list of lines, each with what is kept of it.
struct ModelLine
{
    ModelLine() = default;
    explicit ModelLine(const QString &line)
        : text(line)
    {
    }

    QString text;
    bool isMarked = false;
    bool isHidden = false;
    QList<Problem> problems; // whose line is the model's

    qsizetype indent() const
    {
        const auto isBlank = [](QChar c) { return c == u' '; };
        return std::find_if_not(text.begin(), text.end(), isBlank) - text.begin();
    }
    bool isPlain() const
    {
        const QString words = text.mid(indent());
        return !words.startsWith(u"IF"_s) && !words.startsWith(u"E"_s);
    }
};

using Model = QList<ModelLine>;

Model randomProgram(RandomText &random)
{
    Model lines;
    int depth = 0;
    for (int i = 0; i < 40; ++i) {
        const int kind = random.number(6);
        if (kind == 0 && depth < 4) {
            lines.append(ModelLine(QString(4 * depth++, u' ') + u"IF q%1"_s.arg(i)));
        } else if (kind == 1 && depth > 0) {
            lines.append(ModelLine(QString(4 * --depth, u' ') + u"ENDIF"_s));
        } else {
            lines.append(
                ModelLine(QString(4 * depth, u' ') + u"q%1 = %2"_s.arg(i).arg(random.number(9))));
        }
    }
    while (depth > 0)
        lines.append(ModelLine(QString(4 * --depth, u' ') + u"ENDIF"_s));
    return lines;
}

QString textOf(const Model &lines)
{
    QStringList texts;
    for (const ModelLine &line : lines)
        texts.append(line.text);
    return texts.join(u"\r\n"_s);
}

class Session final : public RandomSession
{
public:
    explicit Session(unsigned seed)
        : RandomSession(seed)
        , m_lines(randomProgram(m_random))
    {
        switchView(view(), true);
        view().setZoom(110);
        m_host.list->openProgram(textOf(m_lines));
    }

private:
    using Act = void (Session::*)();

    RichTextBox &box() { return m_host.box(); }
    CodeView &view() { return m_host.view(); }
    int count() const { return static_cast<int>(m_lines.size()); }

    void act() override
    {
        static constexpr Act acts[] = {
            &Session::typeAtEnd,   &Session::breakLine,     &Session::pressHome,
            &Session::toggleMark,  &Session::nextMark,      &Session::fold,
            &Session::clickFold,   &Session::moveLines,     &Session::duplicateLines,
            &Session::deleteLine,  &Session::joinAndUndo,   &Session::sortAndUndo,
            &Session::newProblems, &Session::zoomAndScroll, &Session::pressArrows,
            &Session::typeBefore,  &Session::moveAndUndo,   &Session::allMarks};
        (this->*oneOf(acts))();
        QCoreApplication::processEvents();
    }

    // Some line, from 0, where the caret then stands.
    int goSomewhere()
    {
        const int line = m_random.number(count());
        note(u"line %1"_s.arg(line + 1));
        view().goToLine(line + 1);
        noteCaret();
        expectCaret(line, 0);
        return line;
    }
    // A fold opens when the caret comes into it.
    void noteCaret()
    {
        int first = box().textCursor().blockNumber();
        if (!m_lines[first].isHidden)
            return;
        while (m_lines[first - 1].isHidden)
            --first;
        for (int i = first; m_lines[i].isHidden; ++i)
            m_lines[i].isHidden = false;
    }
    void unfoldAll()
    {
        view().unfoldAll();
        for (ModelLine &line : m_lines)
            line.isHidden = false;
    }
    void expectCaret(int line, qsizetype column)
    {
        const QTextCursor caret = box().textCursor();
        expect(caret.blockNumber() == line && caret.positionInBlock() == column,
               u"the caret is at %1:%2 instead of %3:%4"_s.arg(caret.blockNumber() + 1)
                   .arg(caret.positionInBlock())
                   .arg(line + 1)
                   .arg(column));
    }

    void typeAtEnd()
    {
        const int line = goSomewhere();
        if (!m_lines[line].isPlain())
            return;
        note(u"type"_s);
        m_host.key(Qt::Key_End);
        m_host.type(u"7"_s);
        m_lines[line].text += u"7"_s;
        expectCaret(line, m_lines[line].text.size());
    }
    void breakLine()
    {
        const int line = goSomewhere();
        if (!m_lines[line].isPlain() || count() > 120)
            return;
        note(u"Enter"_s);
        m_host.key(Qt::Key_End);
        m_host.key(Qt::Key_Return);
        m_host.type(u"r = 1"_s);
        const ModelLine added(QString(m_lines[line].indent(), u' ') + u"r = 1"_s);
        m_lines.insert(line + 1, added);
        expectCaret(line + 1, added.text.size());
    }
    void pressHome()
    {
        const int line = goSomewhere();
        note(u"Home"_s);
        m_host.key(Qt::Key_End);
        m_host.key(Qt::Key_Home);
        expectCaret(line, m_lines[line].indent());
    }
    void toggleMark()
    {
        const int line = goSomewhere();
        note(u"mark"_s);
        view().toggleBookmark();
        m_lines[line].isMarked = !m_lines[line].isMarked;
        showHostMarks();
    }
    // The host's own, where the bookmarks are, which they go with.
    void showHostMarks()
    {
        QList<MarginMark> marks;
        for (const QString &line : markedLines()) {
            marks.append(MarginMark());
            marks.last().line = line.toInt();
        }
        view().setMarks(marks);
    }
    QStringList markedLines() const
    {
        QStringList marked;
        for (int i = 0; i < count(); ++i) {
            if (m_lines[i].isMarked)
                marked.append(QString::number(i + 1));
        }
        return marked;
    }
    void nextMark()
    {
        const int line = goSomewhere();
        int marked = -1;
        for (int i = 1; i <= count() && marked < 0; ++i) {
            if (m_lines[(line + i) % count()].isMarked)
                marked = (line + i) % count();
        }
        note(u"next mark"_s);
        expect(view().nextBookmark() == (marked >= 0), u"a mark is there, or none"_s);
        noteCaret();
        const int now = box().textCursor().blockNumber();
        expect(now == (marked < 0 ? line : marked), u"the next mark is elsewhere"_s);
    }
    void allMarks()
    {
        note(u"all marks"_s);
        const QStringList expected = markedLines();
        readMarks();
        const QStringList shown = markedLines();
        expect(shown == expected,
               u"marks on lines "_s + shown.join(u' ') + u" instead of "_s + expected.join(u' '));
    }
    void fold()
    {
        const bool all = m_random.number(2) == 0;
        note(all ? u"fold all"_s : u"unfold all"_s);
        if (!all)
            return unfoldAll();
        view().foldAll();
        foldOutermost();
    }
    void foldOutermost()
    {
        for (int i = 0; i < count(); ++i) {
            const int end = endOf(i);
            if (end < 0)
                continue;
            for (int inside = i + 1; inside < end; ++inside)
                m_lines[inside].isHidden = true;
            i = end - 1;
        }
    }
    // The line with the ENDIF of an IF; -1 for a line without one.
    int endOf(int line) const
    {
        int depth = 0;
        for (int i = line; i < count(); ++i) {
            const QString words = m_lines[i].text.trimmed();
            depth += words.startsWith(u"IF"_s) ? 1 : words.startsWith(u"ENDIF"_s) ? -1 : 0;
            if (i == line && depth != 1)
                return -1;
            if (depth == 0)
                return i;
        }
        return -1;
    }
    void clickFold()
    {
        const int line = goSomewhere();
        note(u"click the sign"_s);
        QList<bool> former;
        for (int i = 0; i < count(); ++i)
            former.append(isHidden(i));
        QTest::mouseClick(&m_host.margin(), Qt::LeftButton, {},
                          {m_host.margin().width() - 5, m_host.inMargin(line).y()});
        // An IF is known to have no ENDIF only after a while, as it is to have one again.
        const int end = endOf(line);
        for (int i = 0; i < count(); ++i) {
            const bool isOfBlock = line < i && i < end;
            expect(isHidden(i) == former[i] || isOfBlock,
                   u"line %1 is hidden, or is not"_s.arg(i + 1));
            m_lines[i].isHidden = isHidden(i);
        }
        noteCaret();
    }
    void moveLines()
    {
        const int line = goSomewhere();
        const int by = m_random.number(7) - 3;
        note(u"unfold, move by %1"_s.arg(by));
        unfoldAll(); // a folded block counts as one line
        view().moveLines(by);
        const int to = std::clamp(line + by, 0, count() - 1);
        m_lines.move(line, to);
        expectCaret(to, 0);
    }
    void duplicateLines()
    {
        const int line = goSomewhere();
        if (count() > 120)
            return;
        note(u"unfold, duplicate"_s);
        unfoldAll();
        view().duplicateLines();
        m_lines.insert(line + 1, ModelLine(m_lines[line].text));
    }
    void deleteLine()
    {
        const int line = goSomewhere();
        if (count() < 5)
            return;
        note(u"unfold, delete"_s);
        unfoldAll();
        view().deleteLines();
        m_lines.removeAt(line);
    }
    // What becomes of marks on lines that become one is nobody's promise; that undo
    // gives the text back is.
    void joinAndUndo() { undoneAtOnce(u"join and undo"_s, &CodeView::joinLines); }
    void sortAndUndo()
    {
        note(u"select all"_s);
        m_host.key(Qt::Key_A, Qt::ControlModifier);
        undoneAtOnce(u"sort and undo"_s, &CodeView::sortLines);
    }
    void undoneAtOnce(const QString &name, void (CodeView::*command)())
    {
        note(name);
        (view().*command)();
        const bool isChanged = box().Text() != textOf(m_lines);
        if (isChanged)
            m_host.key(Qt::Key_Z, Qt::ControlModifier);
        readMarks();
        readProblems();
    }
    // What is kept comes back with the line, where it is known by its text.
    void moveAndUndo()
    {
        constexpr int farthest = 3;
        const int line = goSomewhere();
        const int to = std::clamp(line + m_random.number(7) - farthest, 0, count() - 1);
        note(u"unfold, move to %1 and undo"_s.arg(to + 1));
        unfoldAll();
        QStringList texts;
        for (int i = line - 2 * farthest; i <= line + 2 * farthest; ++i)
            texts.append(i >= 0 && i < count() ? m_lines[i].text : QString::number(i));
        if (to == line || texts.removeDuplicates() > 0 || count() < 20)
            return;
        view().moveLines(to - line);
        m_host.key(Qt::Key_Z, Qt::ControlModifier);
    }
    void readProblems()
    {
        for (ModelLine &line : m_lines)
            line.problems.clear();
        for (const Problem &problem : view().problems())
            m_lines[problem.line - 1].problems.append(problem);
    }
    void readMarks()
    {
        for (ModelLine &line : m_lines)
            line.isMarked = false;
        view().goToLine(count());
        while (view().nextBookmark()) {
            ModelLine &line = m_lines[box().textCursor().blockNumber()];
            if (std::exchange(line.isMarked, true))
                break;
        }
        for (int i = 0; i < count(); ++i)
            m_lines[i].isHidden = isHidden(i); // the caret has been at all marks
    }
    void newProblems()
    {
        note(u"problems"_s);
        QList<Problem> problems;
        for (int i = m_random.number(5); i > 0; --i) {
            Problem problem;
            problem.line = m_random.number(count()) + 1;
            problem.from = m_random.number(3);
            problem.length = 1 + m_random.number(2); // no line is as short
            problem.text = u"wrong"_s;
            problems.append(problem);
        }
        view().setProblems(problems);
        for (ModelLine &line : m_lines)
            line.problems.clear();
        for (const Problem &problem : std::as_const(problems))
            m_lines[problem.line - 1].problems.append(problem);
        expect(view().nextProblem() == !problems.isEmpty(), u"there is a problem, or none"_s);
        noteCaret();
    }
    void typeBefore()
    {
        const int line = goSomewhere();
        if (!m_lines[line].isPlain() || m_lines[line].indent() > 12)
            return;
        note(u"type before"_s);
        m_host.type(u" "_s);
        m_lines[line].text.prepend(u' ');
        for (Problem &problem : m_lines[line].problems)
            ++problem.from;
        expectCaret(line, 1);
    }
    void zoomAndScroll()
    {
        note(u"zoom and scroll"_s);
        view().setZoom(80 + m_random.number(100));
        box().verticalScrollBar()->setValue(m_random.number(count()));
        m_host.margin().grab();
        box().viewport()->grab();
    }
    void pressArrows()
    {
        static constexpr Qt::Key keys[] = {Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left,
                                           Qt::Key_Right, Qt::Key_PageUp, Qt::Key_PageDown};
        const Qt::Key key = keys[m_random.number(static_cast<int>(std::size(keys)))];
        note(QKeySequence(key).toString());
        for (int i = m_random.number(5); i >= 0; --i) {
            m_host.key(key);
            noteCaret();
        }
    }

    QString whatIsWrong() override
    {
        if (box().Text() != textOf(m_lines))
            return u"the text is another: "_s + box().Text() + u"\ninstead of: "_s +
                   textOf(m_lines);
        if (!box().textCursor().block().isVisible())
            return u"the caret is hidden"_s;
        for (int i = 0; i < count(); ++i) {
            if (isHidden(i) != m_lines[i].isHidden)
                return u"line %1 is hidden, or is not"_s.arg(i + 1);
            if (isHidden(i) && !isHidden(i - 1) && !BlockFold::begins(m_lines[i - 1].text))
                return u"line %1 is hidden below no IF"_s.arg(i + 1);
        }
        if (isHidden(count() - 1))
            return u"the last line is hidden"_s;
        QStringList marked;
        for (const MarginMark &mark : view().marks())
            marked.append(QString::number(mark.line));
        marked.removeDuplicates(); // lines may have been joined
        if (marked != markedLines())
            return u"the host's marks on lines "_s + marked.join(u' ');
        const QString shown = placesOf(view().problems());
        const QString expected = placesOf(modelProblems());
        return shown == expected ? QString()
                                 : u"problems at "_s + shown + u" instead of "_s + expected;
    }
    QList<Problem> modelProblems() const
    {
        QList<Problem> problems;
        for (int i = 0; i < count(); ++i) {
            for (Problem problem : m_lines[i].problems) {
                problem.line = i + 1;
                problems.append(problem);
            }
        }
        return problems;
    }
    static QString placesOf(const QList<Problem> &problems)
    {
        QStringList places;
        for (const Problem &each : problems)
            places << u"%1:%2+%3"_s.arg(each.line).arg(each.from).arg(each.length);
        places.sort();
        return places.join(u' ');
    }
    bool isHidden(int line)
    {
        return line >= 0 && !box().document()->findBlockByNumber(line).isVisible();
    }

    ThreadState::Fresh m_state;
    Model m_lines;
    ViewHost m_host;
};

} // namespace

class CodeViewRandomTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyStepIsThatOfTheModel()
    {
        const QString failure = failureIn<Session>(40, 20'000);
        QVERIFY2(failure.isEmpty(), qPrintable(failure));
    }
};

ORVT_TEST(CodeViewRandomTest)
#include "CodeViewRandomTest.moc"
