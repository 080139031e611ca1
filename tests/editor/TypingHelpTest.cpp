// What the editor does on its own for one who types.

#include "editor/view/ViewFixture.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class TypingHelpTest : public WidgetTest
{
    Q_OBJECT

private:
    std::unique_ptr<ViewHost> m_host;

    RichTextBox &box() { return m_host->box(); }
    CodeView &view() { return m_host->view(); }
    QString marked() { return m_host->marked().replace(u"\r\n"_s, u"\n"_s); }
    void setText(QString text) { m_host->setText(text.replace(u"\n"_s, u"\r\n"_s)); }

    QString typed(const QString &before, const QString &text)
    {
        setText(before);
        m_host->type(text);
        QCoreApplication::processEvents();
        return marked();
    }

private Q_SLOTS:
    void init() override
    {
        WidgetTest::init();
        m_host = std::make_unique<ViewHost>();
    }
    void cleanup() override
    {
        m_host.reset();
        WidgetTest::cleanup();
    }

    void areOffAtFirstAndTold()
    {
        for (const char *name : {"autoIndent", "smartHome", "trimsBlanks"}) {
            QCOMPARE(view().property(name).toBool(), false);
            const QByteArray signal = "2" + QByteArray(name) + "Changed(bool)";
            QSignalSpy told(&view(), signal.constData());
            QVERIFY(view().setProperty(name, true));
            QVERIFY(view().setProperty(name, true));
            QCOMPARE(told.size(), 1);
            QCOMPARE(view().property(name).toBool(), true);
        }
    }

    void withoutThemNothingChangesByItself()
    {
        QCOMPARE(typed(u"  |"_s, u"IF a \nENDIF \n"_s), u"  IF a \n  ENDIF \n  |"_s);
        m_host->key(Qt::Key_Up);
        QCoreApplication::processEvents();
        m_host->key(Qt::Key_Home);
        QCOMPARE(marked(), u"  IF a \n|  ENDIF \n  "_s);
    }

    void blocksAreIndented()
    {
        view().setAutoIndent(true);
        QCOMPARE(typed(u"|"_s, u"if a\nx\nelse\ny\nendif\nz"_s),
                 u"IF a\n    x\nELSE\n    y\nENDIF\nz|"_s);
        QCOMPARE(typed(u"|"_s, u"if a\nif b\nx\nendif\nendif\n"_s),
                 u"IF a\n    IF b\n        x\n    ENDIF\nENDIF\n|"_s);
        QCOMPARE(typed(u"|"_s, u"if a x endif\n"_s), u"IF a x ENDIF\n|"_s);
        QCOMPARE(typed(u"IF a| b"_s, u"\n"_s), u"IF a\n    | b"_s);
        QCOMPARE(typed(u"REM IF|"_s, u"\n"_s), u"REM IF\n|"_s);
    }

    void aFinishedCloserComesBelowItsIf()
    {
        view().setAutoIndent(true);
        QCOMPARE(typed(u"  IF a\n      |"_s, u"else "_s), u"  IF a\n  ELSE |"_s);
        setText(u"  IF a\n      |\nx"_s);
        m_host->type(u"endif"_s);
        m_host->key(Qt::Key_Down);
        QTRY_COMPARE(box().Text(), u"  IF a\r\n  ENDIF\r\nx"_s);
    }

    void onlyWhatWasTypedMoves()
    {
        view().setAutoIndent(true);
        view().setTrimsBlanks(true);
        const QString text = u"  IF a\n      ENDIF  \n    ENDIF\nx"_s;
        setText(QString(text).insert(12, u'|'));
        m_host->key(Qt::Key_Down);
        m_host->key(Qt::Key_Down);
        QCoreApplication::processEvents();
        QCOMPARE(box().Text().replace(u"\r\n"_s, u"\n"_s), text);
        setText(u"      ENDIF|"_s); // without an IF
        m_host->type(u" \n"_s);
        QCOMPARE(marked(), u"      ENDIF\n      |"_s);
        setText(u"IF a\n    ENDIF|"_s); // the user has not typed there
        m_host->type(u"\n"_s);
        QCOMPARE(marked(), u"IF a\n    ENDIF\n    |"_s);
    }

    void homeGoesToTheFirstWord()
    {
        view().setSmartHome(true);
        setText(u"  ab c|d"_s);
        m_host->key(Qt::Key_Home);
        QCOMPARE(marked(), u"  |ab cd"_s);
        m_host->key(Qt::Key_Home);
        QCOMPARE(marked(), u"|  ab cd"_s);
        m_host->key(Qt::Key_Home);
        QCOMPARE(marked(), u"  |ab cd"_s);
        setText(u"ab|"_s);
        m_host->key(Qt::Key_Home);
        QCOMPARE(marked(), u"|ab"_s);
        setText(u"x\n  ab|"_s);
        m_host->key(Qt::Key_Home, Qt::ShiftModifier); // the box's own, as ever
        QCOMPARE(marked(), u"x\n|  ab|"_s);
        m_host->key(Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(marked(), u"|x\n  ab"_s);
    }

    void blanksAtTheEndGoWithTheCaret()
    {
        view().setTrimsBlanks(true);
        QCOMPARE(typed(u"|"_s, u"a \t\n  \nb"_s), u"a\n\n  b|"_s);
        setText(u"a|\nb"_s);
        QSignalSpy change(&box(), &RichTextBox::Change);
        m_host->type(u"  "_s);
        m_host->key(Qt::Key_Right);
        QCOMPARE(marked(), u"a  \n|b"_s);
        QCoreApplication::processEvents();
        QCOMPARE(marked(), u"a\n|b"_s);
        QCOMPARE(change.size(), 3);
    }

    void nobodysBlanksGoWhereNobodyMayChange()
    {
        view().setTrimsBlanks(true);
        setText(u"a|\nb"_s);
        m_host->type(u"  "_s);
        box().setSelStart(0);
        box().setReadOnly(true);
        box().setSelStart(6);
        QCoreApplication::processEvents();
        QCOMPARE(marked(), u"a  \n|b"_s.replace(u"|b"_s, u"b|"_s));
    }

    void anotherTextIsNotTheUsers()
    {
        view().setTrimsBlanks(true);
        setText(u"a|\nb"_s);
        m_host->type(u" "_s);
        m_host->key(Qt::Key_Down);
        m_host->list->setCodeText(u"x  \r\ny"_s);
        QCoreApplication::processEvents();
        QCOMPARE(box().Text(), u"x  \r\ny"_s);
    }

    void takesNoSnapshotOfItsOwn()
    {
        view().setAutoIndent(true);
        view().setTrimsBlanks(true);
        setText(u"IF a\n    |\nx"_s);
        const qint64 snapshots = m_host->ring().snapshotCount();
        m_host->type(u"endif"_s);
        m_host->key(Qt::Key_Down);
        QTRY_COMPARE(box().Text(), u"IF a\r\nENDIF\r\nx"_s);
        QCOMPARE(m_host->ring().snapshotCount(), snapshots);
        setText(u"IF a\n    ENDI|"_s);
        m_host->type(u"f \n"_s); // the blank and Enter, as ever
        QCOMPARE(marked(), u"IF a\nENDIF\n|"_s);
        QCOMPARE(m_host->ring().snapshotCount(), snapshots + 2);
    }

    void aHostMayDestroyTheComponentInChange()
    {
        view().setTrimsBlanks(true);
        setText(u"a|\nb"_s);
        m_host->type(u" "_s);
        m_host->key(Qt::Key_Down);
        QPointer<ORVListView> list(m_host->list);
        connect(&box(), &RichTextBox::Change, this, [list] { delete list.data(); });
        QTRY_VERIFY(!list);
    }
};

ORVT_TEST(TypingHelpTest)
#include "TypingHelpTest.moc"
