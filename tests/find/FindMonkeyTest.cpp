// A user at work with the find dialog beside an editor, at random, while the host's
// handlers throw. After each step the program and the selection are those of a simple
// model of the dialog.

#include "find/FindFixture.h"
#include "find/SimpleSearch.h"
#include "support/Disturbances.h"
#include "support/RandomSession.h"
#include "support/TestProgram.h"

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

class FindSession final : public RandomSession
{
public:
    explicit FindSession(unsigned seed)
        : RandomSession(seed)
    {
        newText();
        open();
    }

private:
    using Act = void (FindSession::*)();

    void act() override
    {
        static constexpr Act acts[] = {
            &FindSession::enterWanted, &FindSession::enterWanted, &FindSession::enterBy,
            &FindSession::toggle,      &FindSession::findNext,    &FindSession::findNext,
            &FindSession::findNext,    &FindSession::replace,     &FindSession::replace,
            &FindSession::replaceAll,  &FindSession::newText,     &FindSession::select,
            &FindSession::select,      &FindSession::type,        &FindSession::undo,
            &FindSession::open,        &FindSession::close,       &FindSession::forbidChanges,
            &FindSession::goElsewhere, &FindSession::disturb,     &FindSession::disturb};
        (this->*oneOf(acts))();
        if (oneIn(3))
            QCoreApplication::processEvents();
        if (!m_find.dialog().isVisible() && m_isOpen)
            m_isOpen = false; // with the window
    }

    RichTextBox &box() { return m_find.box(); }
    // Known words and brackets would be written anew.
    QString someText(int longest)
    {
        return RandomPrograms(static_cast<unsigned>(number(1 << 30))).text(longest).remove(u'(');
    }
    SimpleSearch search() const { return {m_text, m_wanted, m_how}; }
    void adoptSelection()
    {
        m_selection = box().SelStart();
        m_length = box().SelLength();
    }

    void newText()
    {
        note(u"new text"_s);
        m_text = someText(60);
        m_find.list->setCodeText(m_text);
        select();
    }
    void select()
    {
        note(u"select"_s);
        const QList<Character> characters = charactersOf(m_text);
        const auto place = [&] {
            const qsizetype at = number(static_cast<int>(characters.size()) + 1);
            return static_cast<qint32>(at < characters.size() ? characters[at].place
                                                              : m_text.size());
        };
        const auto [from, to] = std::minmax({place(), place()});
        m_selection = from;
        m_length = oneIn(2) ? to - from : 0;
        box().setSelStart(m_selection);
        box().setSelLength(m_length);
    }
    void type()
    {
        note(u"type"_s);
        if (!m_mayChange)
            return;
        box().setFocus();
        QTest::keyClick(&box(), Qt::Key_Q);
        m_text.replace(m_selection, m_length, u'q');
        ++m_selection;
        m_length = 0;
    }
    // Has a model in the editor's own test.
    void undo()
    {
        note(u"undo"_s);
        QString message;
        m_find.list->Undo(message);
        m_text = box().Text();
        adoptSelection();
    }

    void open()
    {
        const bool isReplace = oneIn(2);
        note(isReplace ? u"open to replace"_s : u"open"_s);
        m_find.list->showFind(isReplace);
        const QString selected = m_text.mid(m_selection, m_length);
        m_wanted = selected.contains(u'\n') ? QString() : selected;
        if (isReplace)
            m_by.clear();
        m_isReplace = isReplace;
        m_how = {};
        m_start = m_selection + 1;
        m_isOpen = m_find.dialog().isVisible();
        expect(m_isOpen, u"the dialog is not open"_s);
        expect(m_find.combo(0).currentText() == m_wanted, u"another text is searched"_s);
    }
    void close()
    {
        note(u"close"_s);
        if (m_isOpen)
            m_find.button(1).click();
        m_isOpen = false;
    }
    void enterWanted()
    {
        m_wanted = someText(2);
        note(u"want "_s + m_wanted);
        if (m_isOpen)
            m_find.combo(0).setEditText(m_wanted);
    }
    void enterBy()
    {
        m_by = someText(3);
        note(u"by "_s + m_by);
        if (m_isOpen)
            m_find.combo(1).setEditText(m_by);
    }
    void toggle()
    {
        note(u"option"_s);
        if (!m_isOpen)
            return;
        const int option = number(2);
        m_find.option(option).click();
        bool &isOn = option == 0 ? m_how.wholeWord : m_how.matchCase;
        isOn = !isOn;
    }

    void findNext()
    {
        if (!m_isOpen)
            return;
        note(u"find"_s);
        m_find.button(0).click();
        modelFindNext();
    }
    void modelFindNext()
    {
        if (m_wanted.isEmpty())
            return;
        const auto place = static_cast<qint32>(search().from(m_start));
        m_length = place < 0 ? 0 : static_cast<qint32>(m_wanted.size());
        m_selection = place < 0 ? m_selection : place;
        m_start = place < 0 ? 0 : place + m_length;
        const QString status = place < 0 ? u"Not found!"_s : u"Found in"_s;
        expect(hasSaid(status), u"the dialog says "_s + m_find.status());
    }
    // In one of its two languages.
    bool hasSaid(const QString &text)
    {
        return m_find.status().startsWith(text) ||
               m_find.status().startsWith(PseudoTexts::inBrackets(text));
    }
    void replace()
    {
        if (!m_isOpen)
            return;
        note(u"replace"_s);
        const bool isPossible = m_find.button(2).isEnabled();
        expect(isPossible == (m_mayChange || !m_isReplace), u"the button is wrong"_s);
        m_find.button(2).click();
        if (!isPossible)
            return;
        if (!m_isReplace) {
            m_isReplace = true;
            m_by.clear();
            return;
        }
        const QString selected = m_text.mid(m_selection, m_length);
        if (m_wanted.isEmpty())
            return;
        if (selected.compare(m_wanted, Qt::CaseInsensitive) == 0) {
            m_text.replace(m_selection, m_length, m_by);
            m_selection += static_cast<qint32>(m_by.size());
            m_length = 0;
            m_start = m_selection + 1;
        }
        modelFindNext();
    }
    void replaceAll()
    {
        if (!m_isOpen || !m_isReplace || !m_mayChange)
            return;
        note(u"replace all"_s);
        m_find.button(3).click();
        const Places places = search().all();
        for (qsizetype at = places.size() - 1; at >= 0; --at)
            m_text.replace(places[at], m_wanted.size(), m_by);
        expect(box().SelLength() == 0, u"something is selected"_s);
        adoptSelection();
    }

    void forbidChanges()
    {
        m_mayChange = !m_mayChange;
        note(m_mayChange ? u"allow"_s : u"forbid"_s);
        box().setReadOnly(!m_mayChange);
    }
    // The dialog goes to another editor, which goes.
    void goElsewhere()
    {
        note(u"elsewhere"_s);
        {
            ORVListView other;
            other.setListviewType(dsCode);
            other.setCodeText(u"a"_s);
            other.show();
            other.showFind(true);
            m_find.combo(0).setEditText(u"a"_s);
            m_find.button(2).click();
        }
        expect(!m_find.dialog().isVisible(), u"the dialog has outlived its editor"_s);
        m_isOpen = false;
    }
    void disturb() { note(m_disturbances.next(m_random)); }

    QString whatIsWrong() override
    {
        if (box().Text() != m_text)
            return u"the program is %1 instead of %2"_s.arg(box().Text(), m_text);
        if (box().SelStart() != m_selection || box().SelLength() != m_length)
            return u"%1,%2 is selected instead of %3,%4"_s.arg(box().SelStart())
                .arg(box().SelLength())
                .arg(m_selection)
                .arg(m_length);
        if (m_isOpen && m_find.dialog().isReplaceMode() != m_isReplace)
            return u"the dialog is in the other mode"_s;
        QStringList history = m_find.histories().searched.texts();
        for (QString &text : history)
            text = text.toUpper();
        return history.removeDuplicates() > 0 ? u"a text is twice in the history"_s : QString();
    }

    ThreadState::Fresh m_state;
    FindHost m_find;
    ThrowingHost m_host{*m_find.list};
    Disturbances m_disturbances{m_find.form};
    QString m_text;
    QString m_wanted;
    QString m_by;
    TextSearch m_how;
    qint32 m_selection = 0;
    qint32 m_length = 0;
    qint32 m_start = 0;
    bool m_isOpen = false;
    bool m_isReplace = false;
    bool m_mayChange = true;
};

} // namespace

class FindMonkeyTest : public ThrowingHostTest
{
    Q_OBJECT

private Q_SLOTS:
    void theDialogIsWhatTheModelIs() { runSessions<FindSession>(40, 8000); }
};

ORVT_TEST(FindMonkeyTest)
#include "FindMonkeyTest.moc"
