// Whatever a user does: a text that stood in the editor for five seconds is found again
// by undoing, redoing and restoring, until 49 more snapshots have been taken.
// ORVT_REACH_SEED and ORVT_REACH_STEPS replay a run.

#include "base/TextPiece.h"
#include "editor/EditorClock.h"
#include "editor/EditorHost.h"
#include "editor/rules/colouring/ColourText.h"
#include "editor/rules/colouring/ThreadColouring.h"
#include "support/RandomSeed.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/box/BoxCommands.h"

#include <QtCore/QMimeData>
#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QDropEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QInputMethodEvent>
#include <QtWidgets/QMenu>

#include <map>
#include <random>
#include <set>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QString colouredOnce(const QString &text)
{
    return colouredText(threadColouring(), text, false, threadPart<EditorState>().EditorSettings)
        .text;
}

} // namespace

class EditorReachTest : public WidgetTest
{
    Q_OBJECT

private:
    std::mt19937 m_random;
    EditorHost *m_host = nullptr;
    EditorClock::Time m_time;
    QStringList m_log;
    std::map<QString, qint64> m_stood; // and how many snapshots there were then

    unsigned pick(unsigned count) { return static_cast<unsigned>(m_random() % count); }

    template <typename T>
    T oneOf(std::initializer_list<T> choices)
    {
        return choices.begin()[pick(static_cast<unsigned>(choices.size()))];
    }

    QString someText()
    {
        return oneOf<QString>({u"x"_s, u"if"_s, u" "_s, u"temp1 "_s, u"fan1 = 3"_s, u"a\r\nb\r\n"_s,
                               u"if ( temp1 )\r\n    fan1 = ON"_s, u"a\r\n%%%%%%\r\nb"_s, u"a\\b"_s,
                               u"{\\rtf1 day\\par 12}"_s, m_host->box().SelText(), QString()});
    }

    void note(const QString &what) { m_log << what; }

    void typeWord()
    {
        const QString word =
            oneOf<QString>({u"i"_s, u"x "_s, u"temp1 "_s, u"12"_s, u"fan1"_s, u"day "_s, u"z"_s});
        note(u"type "_s + word);
        m_host->type(word);
    }

    void pressAKey()
    {
        const int key = oneOf<int>({Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Tab,
                                    Qt::Key_Backtab, Qt::Key_Insert, Qt::Key_Escape, Qt::Key_Space,
                                    Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down,
                                    Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown,
                                    Qt::Key_F1, Qt::Key_F6, int(Qt::Key_A) + int(pick(26))});
        const auto modifiers =
            oneOf<Qt::KeyboardModifiers>({{},
                                          {},
                                          Qt::ShiftModifier,
                                          Qt::ShiftModifier,
                                          Qt::ControlModifier,
                                          Qt::ControlModifier | Qt::ShiftModifier,
                                          Qt::AltModifier});
        note(u"key %1 mod %2"_s.arg(key).arg(int(modifiers), 0, 16));
        m_host->key(key, modifiers);
    }

    void select()
    {
        const auto length = static_cast<unsigned>(m_host->box().TextLength());
        const auto start = static_cast<qint32>(pick(length + 1));
        const auto count = static_cast<qint32>(pick(3) == 0 ? length : pick(8));
        note(u"select %1 %2"_s.arg(start).arg(count));
        m_host->box().setSelStart(count > 8 ? 0 : start);
        m_host->box().setSelLength(count);
    }

    void useInputMethod()
    {
        const QString text = someText();
        note(u"commit "_s + text);
        if (pick(2) == 0) {
            QInputMethodEvent composing(u"comp"_s, {});
            QCoreApplication::sendEvent(&m_host->box(), &composing);
        }
        QInputMethodEvent commit;
        commit.setCommitString(text, -static_cast<int>(pick(3)), static_cast<int>(pick(3)));
        QCoreApplication::sendEvent(&m_host->box(), &commit);
    }

    void pasteByKey()
    {
        QGuiApplication::clipboard()->setText(someText());
        note(u"paste "_s + QGuiApplication::clipboard()->text());
        m_host->key('V', Qt::ControlModifier);
    }

    void drop()
    {
        QMimeData data;
        data.setText(someText());
        note(u"drop "_s + data.text());
        const QPoint place(static_cast<int>(pick(300)), static_cast<int>(pick(100)));
        QDropEvent dropped(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(m_host->box().viewport(), &dropped);
    }

    void useMenu()
    {
        QMenu menu;
        m_host->box().commands().fillMenu(menu);
        QAction *action = menu.actions()[static_cast<qsizetype>(
            pick(static_cast<unsigned>(menu.actions().size())))];
        note(u"menu "_s + action->text());
        action->trigger(); // does nothing while it is disabled
    }

    void call()
    {
        ORVListView &list = *m_host->list;
        const unsigned which = pick(9);
        note(u"call %1"_s.arg(which));
        QString text = someText();
        QString errMsg;
        switch (which) {
        case 0:
            return list.RTextCut();
        case 1:
            return list.RTextPaste(text);
        case 2:
            return list.ReplaceRichTextBox(u"temp1"_s, u"fan1"_s, errMsg);
        case 3:
            return list.Clear();
        case 4:
            return list.Init_RichTextBox(m_host->settings);
        case 5:
            return list.TryToPopupList();
        case 6:
            return m_host->box().commands().replace({{0, m_host->box().TextLength() / 2}}, u"y"_s);
        case 7:
            return m_host->box().setSelText(u"z"_s);
        default:
            return m_host->box().setText(u"day 12"_s);
        }
    }

    // Those of a host's menu.
    void command()
    {
        CodeView &view = *m_host->list->codeView();
        const unsigned which = pick(9);
        note(u"command %1"_s.arg(which));
        switch (which) {
        case 0:
            return view.moveLines(pick(2) == 0 ? 1 : -1);
        case 1:
            return view.duplicateLines();
        case 2:
            return view.deleteLines();
        case 3:
            return view.joinLines();
        case 4:
            return view.sortLines();
        case 5:
            return view.toggleComment();
        case 6:
            return view.upperCase();
        case 7:
            return view.lowerCase();
        default:
            return view.tidy();
        }
    }

    void goBackOrForward()
    {
        QString errMsg;
        const unsigned which = pick(3);
        note(u"go %1"_s.arg(which));
        if (which == 0)
            m_host->list->Undo(errMsg);
        else if (which == 1)
            m_host->list->Redo(errMsg);
        else
            m_host->list->restoreUnsavedText();
    }

    void click()
    {
        const QPoint place(static_cast<int>(pick(200)), static_cast<int>(pick(100)));
        note(u"click %1 %2"_s.arg(place.x()).arg(place.y()));
        if (pick(2) == 0)
            QTest::mouseDClick(m_host->box().viewport(), Qt::LeftButton, {}, place);
        else
            QTest::mouseClick(m_host->box().viewport(), Qt::LeftButton, {}, place);
    }

    void act()
    {
        using Act = void (EditorReachTest::*)();
        const Act chosen = oneOf<Act>(
            {&EditorReachTest::typeWord, &EditorReachTest::typeWord, &EditorReachTest::typeWord,
             &EditorReachTest::pressAKey, &EditorReachTest::pressAKey, &EditorReachTest::pressAKey,
             &EditorReachTest::select, &EditorReachTest::select, &EditorReachTest::useInputMethod,
             &EditorReachTest::pasteByKey, &EditorReachTest::drop, &EditorReachTest::useMenu,
             &EditorReachTest::call, &EditorReachTest::command, &EditorReachTest::goBackOrForward,
             &EditorReachTest::click});
        if (m_host->box().TextLength() > 400) {
            note(u"select all"_s);
            m_host->list->RTextSelectAll();
        }
        (this->*chosen)();
        note(u"    "_s + m_host->marked());
        m_host->box().setFocus();
    }

    void stand()
    {
        m_time += std::chrono::seconds(5);
        const QString text = m_host->box().Text();
        const QString shown = colouredOnce(text);
        note(u"stands: "_s + text);
        // A tab directly behind a word becomes a blank each time it is coloured.
        if (!text.isEmpty() && colouredOnce(shown) == shown)
            m_stood[text] = m_host->ring().snapshotCount();
    }

    // Steps of the ring give a text as colouring writes it, restoring as it was but for
    // the letter case of listed words.
    static bool isAmong(const std::set<QString> &found, const QString &text)
    {
        return found.contains(text.toLower()) || found.contains(colouredOnce(text).toLower());
    }

    std::set<QString> textsInReach()
    {
        std::set<QString> found;
        const auto add = [&] { found.insert(m_host->box().Text().toLower()); };
        QString errMsg;
        add();
        for (int i = 0; i < 60; ++i, add())
            m_host->list->Undo(errMsg);
        for (int i = 0; i < 60; ++i, add())
            m_host->list->Redo(errMsg);
        for (int ends = 0; ends < 2; add())
            ends += m_host->list->restoreUnsavedText() ? 0 : 1;
        return found;
    }

    void check(QString &lost)
    {
        std::erase_if(m_stood, [this](const auto &stood) {
            return m_host->ring().snapshotCount() - stood.second >= 49;
        });
        const std::set<QString> found = textsInReach();
        for (const auto &[text, snapshots] : m_stood) {
            if (!isAmong(found, text))
                lost = text;
        }
    }

private Q_SLOTS:
    void whatStoodStaysInReach_data()
    {
        QTest::addColumn<bool>("keepsText");
        QTest::newRow("as colouring writes it") << false;
        QTest::newRow("as it was typed") << true;
    }
    void whatStoodStaysInReach()
    {
        QFETCH(const bool, keepsText);
        const unsigned seed = randomSeed(20261121);
        const int steps = randomSteps(2000);
        m_random.seed(seed);
        EditorHost host;
        m_host = &host;
        m_stood.clear();
        host.list->codeView()->setKeepsText(keepsText);
        threadPart<EditorClock>().now = [this] { return m_time; };
        host.list->setCodeText(u"if temp1 = 12"_s);
        for (int i = 0; i < steps; ++i) {
            act();
            if (pick(4) == 0)
                stand();
            if (i % 40 != 39)
                continue;
            QString lost;
            check(lost);
            if (!lost.isEmpty()) {
                for (const QString &line : m_log) // since the last check
                    qInfo().noquote() << line;
            }
            QVERIFY2(lost.isEmpty(),
                     qPrintable(u"seed %1 step %2 lost: %3"_s.arg(seed).arg(i).arg(lost)));
            m_log.clear();
        }
    }
};

ORVT_TEST(EditorReachTest)
#include "EditorReachTest.moc"
