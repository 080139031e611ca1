// Random keys, pastes, undos, redos, list openings, word picks and calls of a host whose
// handlers throw, against a simple model of what the editor holds.

#include "editor/EditorClock.h"
#include "editor/EditorHost.h"
#include "editor/EditorModel.h"
#include "support/Disturbances.h"
#include "support/RandomSeed.h"
#include "support/TestProgram.h"
#include <ORVTListview/ListItem.h>

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>

#include <random>
#include <set>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class EditorMonkeyTest : public ThrowingHostTest
{
    Q_OBJECT

private:
    std::mt19937 m_random;
    EditorHost *m_host = nullptr;
    EditorModel m_model;
    QStringList m_log;
    qsizetype m_hostLines = 10;
    std::set<QString> m_irregular; // line texts that colouring changed the meaning of
    std::set<QString> m_judged;    // line texts of which that is known
    std::set<QString> m_foreign;   // line texts that the host gave

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
            m_model.removeSelection();
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
    // written them; such lines have the letters and colours that they were given
    // then.
    void noteIrregular(const QString &text)
    {
        const QStringList lines = withCrLf(text).split(u"\r\n"_s);
        for (const QString &line : lines) {
            if (!m_judged.insert(line).second)
                continue;
            const QString shown = shownAfterColouring(line);
            if (colouredText(threadColouring(), line, false, settings()).runs !=
                colouredText(threadColouring(), shown, false, settings()).runs)
                m_irregular.insert(shown);
        }
    }

    QString hostText()
    {
        const QList<QString> choices{u"if temp1 > 20"_s,  u"fan1 = on"_s,    u"rem the host's"_s,
                                     u"\tday ( limit1"_s, u"var1 = temp2"_s, {}};
        QStringList lines;
        for (qsizetype i = 0; i < m_hostLines; ++i)
            lines << oneOf(choices);
        m_foreign.insert(choices.begin(), choices.end());
        return lines.join(u"\r\n"_s);
    }

    void setSelection()
    {
        const QString text = oneOf(QList<QString>{u"fan1 "_s, u"if"_s, u"day\r\nday"_s});
        m_host->box().setSelText(text);
        const int first = m_model.lineOf(m_model.start);
        m_model.replaceSelection(text);
        m_model.edited = -1;
        for (int line = first; line <= m_model.lineOf(m_model.start); ++line)
            m_foreign.insert(m_model.lineText(line));
    }

    void changeAppearance()
    {
        m_host->list->Init_RichTextBox(m_host->settings);
        noteIrregular(m_model.text);
        m_model.recolour(shownAfterColouring(m_model.text));
    }

    void changePalette()
    {
        QPalette palette = m_host->form.palette();
        const bool isDark = palette.color(QPalette::Base).lightness() < 128;
        palette.setColor(QPalette::Base, isDark ? Qt::white : Qt::black);
        palette.setColor(QPalette::Text, isDark ? Qt::black : Qt::white);
        m_host->form.setPalette(palette);
        if (pick(2) == 0)
            changeAppearance();
    }

    void changeLanguage()
    {
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&m_host->form, &change);
        QCoreApplication::sendEvent(m_host->list, &change);
        m_host->list->ReInitializeStrings();
    }

    // Which takes the focus from the box for a while.
    void switchType()
    {
        m_host->list->setListviewType(pick(2) ? dsInput : dsOutput);
        m_model.finish(m_model.edited);
        m_host->list->setListviewType(dsCode);
    }

    void forbidChanges()
    {
        m_host->box().setReadOnly(true);
        QTest::keyClick(&m_host->box(), Qt::Key_X);
        m_host->box().setReadOnly(false);
        adoptCaret();
    }

    static constexpr unsigned hostCalls = 10;

    void callAsHost(unsigned which)
    {
        m_log << u"host %1"_s.arg(which);
        const bool setsText = which < 3;
        const QString text = setsText ? hostText() : QString();
        switch (which) {
        case 0:
            m_host->list->setCodeText(text);
            return m_model.setBase(text);
        case 1:
            m_host->box().setText(text);
            return m_model.set(text);
        case 2:
            m_host->list->setCodeTextRTF(m_host->list->GetColorText(text));
            noteIrregular(text);
            m_model.set(shownAfterColouring(text));
            m_model.forgetKept();
            m_model.start = static_cast<qint32>(m_model.text.size());
            return;
        case 3:
            m_host->list->Clear();
            return m_model.set({});
        case 4:
            return changeAppearance();
        case 5:
            return changePalette();
        case 6:
            return changeLanguage();
        case 7:
            return switchType();
        case 8:
            return forbidChanges();
        default:
            return setSelection();
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
        case 14:
            return callAsHost(pick(hostCalls));
        default:
            return typeSomething();
        }
    }

    bool hasItsColours(int line)
    {
        RichTextBox &box = m_host->box();
        const QString text = box.lineText(line);
        if (m_foreign.contains(text) || m_irregular.contains(text))
            return true;
        const ColouredText expected = finishedLine(threadColouring(), text, settings());
        const ColouredText shown =
            box.coloured(box.lineStart(line), static_cast<qint32>(text.size()));
        return expected.text == text && wordColours(expected) == wordColours(shown);
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
        // Of a long text those that a step reaches.
        constexpr int many = 150;
        const int first = std::max(0, caretLine() - many);
        const int last = std::min(box.lineCount() - 1, caretLine() + many);
        for (int line = first; why.isEmpty() && line <= last; ++line) {
            if (line != caretLine() && !hasItsColours(line))
                why = u"colours of line %1: %2"_s.arg(line).arg(box.lineText(line));
        }
        return why.isEmpty();
    }

    // What a report has room for.
    static QString shortened(const QString &text)
    {
        constexpr qsizetype most = 4000;
        return text.size() <= most ? text : text.first(most / 2) + u" ... "_s + text.last(most / 2);
    }

    QString report(const QString &why, const QString &before)
    {
        return u"%1\nbefore %2\nafter  %3\nmodel  %4 (%5,%6)\n%7"_s
            .arg(why, shortened(before), shortened(m_host->marked()), shortened(m_model.text))
            .arg(m_model.start)
            .arg(m_model.length)
            .arg(m_log.join(u", "_s))
            .replace(u"\r\n"_s, u"¶"_s);
    }

    void emptyWhatGrewTooLong()
    {
        if (m_model.text.size() < 1500 + 30 * m_hostLines)
            return;
        press('A', Qt::ControlModifier);
        adoptCaret();
        cut();
    }

    // While the last line is not finished.
    void callOnALongText(unsigned which)
    {
        callAsHost(0);
        press(Qt::Key_End, Qt::ControlModifier);
        adoptCaret();
        typeSomething();
        callAsHost(which);
    }

private Q_SLOTS:
    void theEditorIsWhatTheModelIs_data()
    {
        QTest::addColumn<int>("lines");
        QTest::addColumn<int>("steps");
        QTest::newRow("10 lines") << 10 << 50'000;
        QTest::newRow("2,000 lines") << 2000 << 1500;
        QTest::newRow("100,000 lines") << 100'000 << 5;
    }
    void theEditorIsWhatTheModelIs()
    {
        QFETCH(const int, lines);
        QFETCH(const int, steps);
        const unsigned seed = randomSeed(20261120);
        m_random.seed(seed);
        EditorHost host;
        const ThrowingHost throwing(*host.list);
        m_host = &host;
        threadPart<EditorClock>().now = [time = EditorClock::Time()] { return time; };
        m_model = {};
        m_hostLines = lines;
        host.list->setCodeText(QString());
        const int last = randomSteps(steps);
        constexpr auto calls = static_cast<int>(hostCalls);
        for (int i = -calls; i < last; ++i) {
            m_log.clear();
            const QString before = host.marked();
            if (i >= 0)
                step();
            else
                callOnALongText(static_cast<unsigned>(i + calls));
            QString why;
            if (!check(why))
                QFAIL(qPrintable(u"seed %1 step %2: "_s.arg(seed).arg(i) + report(why, before)));
            emptyWhatGrewTooLong();
        }
    }
};

ORVT_TEST(EditorMonkeyTest)
#include "EditorMonkeyTest.moc"
