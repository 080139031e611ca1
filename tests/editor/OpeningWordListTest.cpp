// The list of known words that opens by itself.

#include "editor/EditorHost.h"
#include "editor/MatchModel.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>

#include <QtGui/QInputMethodEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QListView>

#include <functional>
#include <memory>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class OpeningWordListTest : public WidgetTest
{
    Q_OBJECT

private:
    std::unique_ptr<EditorHost> m_host;

    QListView *matches() { return m_host->list->findChild<QListView *>(u"WordMatches"_s); }
    bool isOpen() { return matches() && matches()->isVisible(); }
    QStringList rows()
    {
        QStringList texts;
        for (int i = 0; i < matches()->model()->rowCount(); ++i)
            texts.append(matches()->model()->index(i, 0).data().toString());
        return texts;
    }
    QString chosen() { return matches()->currentIndex().data().toString(); }
    QString told(const QString &word, int role)
    {
        return matches()->model()->index(int(rows().indexOf(word)), 0).data(role).toString();
    }
    QString typed(const QString &before, const QString &text)
    {
        m_host->setText(before);
        m_host->type(text);
        return m_host->marked();
    }

private Q_SLOTS:
    void init() override
    {
        WidgetTest::init();
        m_host = std::make_unique<EditorHost>();
        m_host->list->codeView()->setWordListOpensItself(true);
    }
    void cleanup() override
    {
        m_host.reset();
        WidgetTest::cleanup();
    }

    void isOffAtFirstAndTold()
    {
        ORVListView list;
        QSignalSpy told(list.codeView(), &CodeView::wordListOpensItselfChanged);
        QVERIFY(!list.codeView()->wordListOpensItself());
        list.codeView()->setWordListOpensItself(true);
        list.codeView()->setWordListOpensItself(true);
        QCOMPARE(told, QSignalSpy::QList<QVariantList>({{true}}));
    }

    void offItIsTheListOfAllWords()
    {
        m_host->list->codeView()->setWordListOpensItself(false);
        QCOMPARE(typed(u"|"_s, u"tem"_s), u"tem|"_s);
        QVERIFY(!isOpen());
        QVERIFY(!m_host->wordList().isVisible());
        m_host->list->TryToPopupList();
        QVERIFY(m_host->wordList().isVisible());
        QVERIFY(!isOpen());
    }

    void opensBehindThreeLetters()
    {
        const qint64 snapshots = m_host->ring().snapshotCount();
        typed(u"x = |"_s, u"te"_s);
        QVERIFY(!isOpen());
        m_host->type(u"m"_s);
        QVERIFY(isOpen());
        QCOMPARE(rows(), QStringList({u"Temp1"_s, u"Temp2"_s, u"NetTemp"_s}));
        QCOMPARE(chosen(), u"Temp1"_s);
        QVERIFY(m_host->box().hasFocus());
        QVERIFY(!m_host->wordList().isVisible());
        QCOMPARE(m_host->wordList().SelectedItem()->Text(), u"Temp1"_s);
        QCOMPARE(m_host->ring().snapshotCount(), snapshots);
    }

    void enterAndTabTakeTheWord_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Enter") << int(Qt::Key_Return);
        QTest::newRow("Tab") << int(Qt::Key_Tab);
    }
    void enterAndTabTakeTheWord()
    {
        QFETCH(const int, key);
        typed(u"x (|"_s, u"tem"_s);
        const qint64 snapshots = m_host->ring().snapshotCount();
        m_host->key(Qt::Key_Down);
        m_host->key(key);
        QVERIFY(!isOpen());
        QCOMPARE(m_host->marked(), u"x (Temp2|"_s);
        QCOMPARE(m_host->colourOf(u"Temp2"_s), 0x0000FF);
        QCOMPARE(m_host->ring().snapshotCount(), snapshots + 1);
        QString error;
        m_host->list->Undo(error);
        m_host->list->Redo(error);
        QVERIFY(!isOpen());
    }

    void typingGoesOn()
    {
        QCOMPARE(typed(u"|"_s, u"tem"_s), u"tem|"_s);
        m_host->type(u"p2"_s);
        QVERIFY(!isOpen()); // it is the word itself
        m_host->key(Qt::Key_Backspace);
        m_host->type(u"x"_s);
        QVERIFY(!isOpen());
        QCOMPARE(typed(u"|"_s, u"tem x fan "_s), u"tem x fan |"_s);
        QVERIFY(!isOpen());
    }

    void wordsThatOnlyHoldItAreNotChosen()
    {
        m_host->inputs.Add(u"Templar"_s);
        m_host->inputs.Add(u"AirTempera"_s);
        typed(u"|"_s, u"temp"_s);
        QVERIFY(rows().contains(u"AirTempera"_s));
        m_host->type(u"e"_s);
        QCOMPARE(rows(), QStringList{u"AirTempera"_s});
        QCOMPARE(chosen(), QString());
        m_host->key(Qt::Key_Return);
        QCOMPARE(m_host->marked(), u"tempe\r\n|"_s);
        typed(u"|"_s, u"tempe"_s);
        m_host->key(Qt::Key_Down);
        m_host->key(Qt::Key_Return);
        QCOMPARE(m_host->marked(), u"AirTempera|"_s);
    }

    void escShutsItForThisWord_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::newRow("Esc") << int(Qt::Key_Escape) << Qt::KeyboardModifiers();
        QTest::newRow("Ctrl+Space")
            << int(Qt::Key_Space) << Qt::KeyboardModifiers(Qt::ControlModifier);
    }
    void escShutsItForThisWord()
    {
        QFETCH(const int, key);
        QFETCH(const Qt::KeyboardModifiers, modifiers);
        typed(u"|"_s, u"tem"_s);
        m_host->key(key, modifiers);
        QVERIFY(!isOpen());
        m_host->type(u"p"_s);
        m_host->key(Qt::Key_Backspace);
        m_host->type(u"p"_s);
        QVERIFY(!isOpen());
        m_host->type(u" tem"_s);
        QVERIFY(isOpen());
        m_host->key(key, modifiers);
        for (int i = 0; i < 3; ++i)
            m_host->key(Qt::Key_Backspace);
        m_host->type(u"tem"_s); // another one
        QVERIFY(isOpen());
    }

    void aWholeWordLeavesEnterToTheEditor()
    {
        m_host->inputs.Add(u"Temp10"_s);
        typed(u"|"_s, u"temp1"_s);
        QVERIFY(isOpen());
        QCOMPARE(chosen(), u"Temp1"_s);
        m_host->key(Qt::Key_Return);
        QVERIFY(!isOpen());
        QCOMPARE(m_host->marked(), u"Temp1\r\n|"_s);
    }

    void staysShut_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("text");
        QTest::newRow("in a comment") << u"REM |"_s << u"tem"_s;
        QTest::newRow("inside a word") << u"te|x"_s << u"m"_s;
        QTest::newRow("unknown") << u"|"_s << u"nobody"_s;
        QTest::newRow("a part of a name only") << u"|"_s << u"emp"_s;
        QTest::newRow("a number") << u"|"_s << u"123"_s;
        QTest::newRow("the only word") << u"|"_s << u"fan1"_s;
    }
    void staysShut()
    {
        QFETCH(const QString, before);
        QFETCH(const QString, text);
        typed(before, text);
        QVERIFY(!isOpen());
    }

    void keysMoveInItAndInTheLine()
    {
        typed(u"x |\r\ny"_s, u"tem"_s);
        m_host->key(Qt::Key_Down);
        m_host->key(Qt::Key_Down);
        QCOMPARE(chosen(), u"NetTemp"_s);
        m_host->key(Qt::Key_Up);
        m_host->key(Qt::Key_PageDown);
        QCOMPARE(chosen(), u"NetTemp"_s);
        QCOMPARE(m_host->marked(), u"x tem|\r\ny"_s);
        m_host->key(Qt::Key_Home);
        QVERIFY(!isOpen());
        QCOMPARE(m_host->box().SelStart(), 0);
    }

    void itCloses_data()
    {
        QTest::addColumn<EditorAct>("act");
        const auto row = [](const char *name, const EditorAct &act) { QTest::newRow(name) << act; };
        row("Backspace", [](EditorHost &host) { host.key(Qt::Key_Backspace); });
        row("the caret leaves", [](EditorHost &host) { host.box().setSelStart(0); });
        row("a selection", [](EditorHost &host) { host.list->RTextSelectAll(); });
        row("another text", [](EditorHost &host) { host.list->setCodeText(u"x tem"_s); });
        row("undo", [](EditorHost &host) { host.key(Qt::Key_Z, Qt::ControlModifier); });
        row("read-only", [](EditorHost &host) { host.box().setReadOnly(true); });
        row("disabled", [](EditorHost &host) { host.list->setEnabled(false); });
        row("hidden", [](EditorHost &host) { host.list->hide(); });
        row("a table", [](EditorHost &host) { host.list->setListviewType(dsInput); });
        row("another control", [](EditorHost &host) { host.after->setFocus(); });
        row("switched off",
            [](EditorHost &host) { host.list->codeView()->setWordListOpensItself(false); });
        row("a click",
            [](EditorHost &host) { QTest::mouseClick(host.box().viewport(), Qt::LeftButton); });
        row("composing", [](EditorHost &host) {
            QInputMethodEvent composing(u"a"_s, {});
            QApplication::sendEvent(&host.box(), &composing);
        });
        row("new words", [](EditorHost &host) { host.list->RefillListviewWithWordList(); });
    }
    void itCloses()
    {
        QFETCH(const EditorAct, act);
        typed(u"x |"_s, u"y tem"_s); // undo goes back to the blank
        QVERIFY(isOpen());
        act(*m_host);
        QVERIFY(!isOpen());
    }

    void whatAnInputMethodCommitsIsTyped()
    {
        m_host->setText(u"|"_s);
        QInputMethodEvent commit;
        commit.setCommitString(u"tem"_s);
        QApplication::sendEvent(&m_host->box(), &commit);
        QVERIFY(isOpen());
        m_host->key(Qt::Key_Return);
        QCOMPARE(m_host->marked(), u"Temp1|"_s);
    }

    void nothingOpensForTheHost()
    {
        m_host->list->setCodeText(u"tem"_s);
        m_host->box().setSelStart(3);
        QString pasted = u"p"_s;
        m_host->list->RTextPaste(pasted);
        QVERIFY(!isOpen());
    }

    void askedForItShowsWhatHoldsTheWord()
    {
        m_host->setText(u"emp|"_s);
        m_host->list->TryToPopupList();
        QCOMPARE(rows(), QStringList({u"NetTemp"_s, u"Temp1"_s, u"Temp2"_s}));
        m_host->key(Qt::Key_Return);
        QCOMPARE(m_host->marked(), u"NetTemp|"_s);
        for (const QString &word : {u"|"_s, u"nobody|"_s}) {
            m_host->setText(word);
            m_host->list->TryToPopupList();
            QVERIFY(isOpen());
            QCOMPARE(rows().size(), m_host->wordList().ListItems()->Count());
            QCOMPARE(chosen(), QString());
            m_host->key(Qt::Key_End);
            QCOMPARE(chosen(), rows().last());
            m_host->key(Qt::Key_Escape);
        }
        m_host->setText(u"temp1|"_s); // as ever
        m_host->list->TryToPopupList();
        QVERIFY(!isOpen());
        QCOMPARE(m_host->colourAt(0), 0x0000FF);
        bool absolutely = true;
        m_host->list->TryToPopupList(absolutely);
        QCOMPARE(chosen(), u"Temp1"_s);
    }

    void kindAndDescriptionStandBesideTheWord()
    {
        m_host->list->codeView()->setWordDescriptions({{u"TEMP1"_s, u"Supply air"_s}});
        typed(u"|"_s, u"tem"_s);
        QCOMPARE(told(u"Temp1"_s, MatchModel::KindRole), u"Inputs"_s);
        QCOMPARE(told(u"Temp1"_s, MatchModel::DescriptionRole), u"Supply air"_s);
        QCOMPARE(told(u"NetTemp"_s, MatchModel::KindRole), u"Network Var Inputs"_s);
        QCOMPARE(told(u"Temp2"_s, MatchModel::DescriptionRole), QString());
        QCOMPARE(told(u"Temp1"_s, Qt::AccessibleTextRole), u"Temp1, Inputs, Supply air"_s);
        const int wide = matches()->width();
        m_host->key(Qt::Key_Escape);
        m_host->list->codeView()->setWordDescriptions({});
        m_host->list->TryToPopupList();
        QVERIFY(matches()->width() < wide);
        QCOMPARE(told(u"Temp1"_s, MatchModel::DescriptionRole), QString());
        m_host->key(Qt::Key_Escape);
        m_host->setText(u"|"_s);
        m_host->list->TryToPopupList();
        QCOMPARE(told(u"AVERAGE"_s, MatchModel::KindRole), u"Functions"_s);
        QCOMPARE(told(u"HOUR"_s, MatchModel::KindRole), u"Reserved Words"_s);
    }

    void rowsOfTheHostAreOffered()
    {
        m_host->wordList().Add(0, u"Own"_s, u"OwnWord"_s)->setTag(u"255"_s);
        m_host->setText(u"own|"_s);
        m_host->list->TryToPopupList();
        QCOMPARE(rows(), QStringList({u"OwnWord"_s}));
        m_host->wordList().Clear();
        QCOMPARE(rows(), QStringList());
        m_host->key(Qt::Key_Return); // what was chosen is gone
        QCOMPARE(m_host->marked(), u"own\r\n|"_s);
    }

    void aDoubleClickTakesTheWord()
    {
        typed(u"|"_s, u"tem"_s);
        const QPoint second = matches()->visualRect(matches()->model()->index(1, 0)).center();
        QTest::mouseClick(matches()->viewport(), Qt::LeftButton, {}, second);
        QVERIFY(isOpen());
        QCOMPARE(chosen(), u"Temp2"_s);
        QTest::mouseDClick(matches()->viewport(), Qt::LeftButton, {}, second);
        QTRY_COMPARE(m_host->marked(), u"Temp2|"_s);
        QVERIFY(!isOpen());
    }

    void theHostMayDestroyTheControl_data()
    {
        QTest::addColumn<EditorAct>("act");
        QTest::newRow("typing") << EditorAct([](EditorHost &host) { host.type(u"m"_s); });
        QTest::newRow("Enter") << EditorAct([](EditorHost &host) { host.key(Qt::Key_Return); });
        QTest::newRow("Backspace")
            << EditorAct([](EditorHost &host) { host.key(Qt::Key_Backspace); });
        QTest::newRow("a double click") << EditorAct([](EditorHost &host) {
            auto *matches = host.list->findChild<QListView *>(u"WordMatches"_s);
            const QPoint first = matches->visualRect(matches->model()->index(0, 0)).center();
            QTest::mouseClick(matches->viewport(), Qt::LeftButton, {}, first);
            QTest::mouseDClick(matches->viewport(), Qt::LeftButton, {}, first);
        });
    }
    void theHostMayDestroyTheControl()
    {
        QFETCH(const EditorAct, act);
        const bool opens = QByteArray(QTest::currentDataTag()) == "typing";
        typed(u"|"_s, opens ? u"te"_s : u"tem"_s);
        QCOMPARE(isOpen(), !opens);
        const QPointer<ORVListView> list(m_host->list);
        connect(&m_host->box(), &RichTextBox::Change, this, [list] { delete list.data(); });
        act(*m_host);
        QTRY_VERIFY(!list);
        QCoreApplication::processEvents();
    }

    void itStandsUnderTheWordAndIsAsHighAsItsRows()
    {
        typed(u"x = |"_s, u"tem"_s);
        const RichTextBox &box = m_host->box();
        const int under = box.viewport()->mapToGlobal(box.cursorRect().bottomLeft()).y();
        QVERIFY(matches()->geometry().top() > under);
        const int row = matches()->sizeHintForRow(0);
        QCOMPARE(matches()->viewport()->height(), 3 * row);
        m_host->inputs.Add(u"Temp21"_s);
        m_host->type(u"p2"_s);
        QVERIFY(isOpen());
        QCOMPARE(matches()->viewport()->height(), rows().size() * row);
    }
};

ORVT_TEST(OpeningWordListTest)
#include "OpeningWordListTest.moc"
