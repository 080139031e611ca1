#include "widgets/box/ShownBoxTest.h"

#include "base/ColouredText.h"
#include "widgets/box/PlainCommands.h"

#include "support/TestProgram.h"

#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtGui/QDropEvent>
#include <QtGui/QInputMethodEvent>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// Notes what reaches it and does nothing else.
class Recorder final : public PlainCommands
{
public:
    Recorder(RichTextBox &owner, QStringList &log)
        : PlainCommands(owner)
        , m_log(log)
    {
    }

    void type(const QString &text) override { m_log << u"type "_s + text; }
    Pasted paste(const QMimeData &data) override
    {
        m_log << u"paste "_s + data.text();
        return Pasted::Refused;
    }
    void copy() override { m_log << u"copy"_s; }
    void cut() override { m_log << u"cut"_s; }
    void remove() override { m_log << u"remove"_s; }
    void removeBefore(Extent extent) override { m_log << u"before"_s + named(extent); }
    void removeAfter(Extent extent) override { m_log << u"after"_s + named(extent); }
    void selectAll() override { m_log << u"select all"_s; }
    void undo() override { m_log << u"undo"_s; }
    void redo() override { m_log << u"redo"_s; }
    void leave(bool forwards) override { m_log << (forwards ? u"on"_s : u"back"_s); }
    void fillMenu(QMenu &) override { m_log << u"menu"_s; }
    std::optional<bool> takesKey(const VirtualKey &key) const override
    {
        if (key.shift != ShiftBitCtrl)
            return {};
        if (key.keyCode == 'C')
            return false;
        if (key.keyCode == 'G')
            return true;
        return {};
    }

private:
    static QString named(Extent extent) { return extent == Extent::Word ? u" word"_s : QString(); }

    QStringList &m_log;
};

void commit(RichTextBox &box, const QString &text, int from = 0, int length = 0)
{
    QInputMethodEvent event;
    event.setCommitString(text, from, length);
    QCoreApplication::sendEvent(&box, &event);
}

void compose(RichTextBox &box, const QString &text)
{
    QInputMethodEvent event(text, {});
    QCoreApplication::sendEvent(&box, &event);
}

bool drop(RichTextBox &box, const QMimeData &data, QPoint place)
{
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(box.viewport(), &enter);
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(box.viewport(), &event);
    return event.isAccepted();
}

QPoint pointOf(RichTextBox &box, qint32 position)
{
    const qint32 start = box.SelStart();
    const qint32 length = box.SelLength();
    box.setSelStart(position);
    const QPoint point = box.cursorRect().center();
    box.setSelStart(start);
    box.setSelLength(length);
    return point;
}

} // namespace

class BoxInputTest : public ShownBoxTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() override;
    void keysEndInTheCommands_data();
    void keysEndInTheCommands();
    void aReadOnlyBoxChangesNothing();
    void thereIsNoUndoOfTheToolkit();
    void shortcutsAreTakenAsTheCommandsSay();
    void clipboardCommandsWork();
    void onlyPlainTextIsPasted();
    void theSelectionIsOfferedAsPlainText();
    void dropEndsInPaste();
    void aDropOfTextInsertsIt();
    void theMenuRunsTheCommands();
    void anEmptyMenuIsNotShown();
    void inputMethodEndsInType();
    void compositionLeavesTheTextAlone();
    void compositionOverASelectionRemovesItByCommand();
    void committedTextComesOutTheSame();

private:
    QStringList m_log;
    void record() { m_box->setCommands(std::make_unique<Recorder>(*m_box, m_log)); }
};

void BoxInputTest::cleanup()
{
    delete m_box;
    m_log.clear();
}

void BoxInputTest::keysEndInTheCommands_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QString>("command");
    const Qt::KeyboardModifiers none;
    const Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
    const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
    QTest::newRow("a") << int(Qt::Key_A) << none << u"type a"_s;
    QTest::newRow("tab") << int(Qt::Key_Tab) << none << u"type \t"_s;
    QTest::newRow("Enter") << int(Qt::Key_Return) << none << u"type \r\n"_s;
    QTest::newRow("Shift+Enter") << int(Qt::Key_Return) << shift << u"type \r\n"_s;
    QTest::newRow("Ctrl+C") << int(Qt::Key_C) << ctrl << u"copy"_s;
    QTest::newRow("Ctrl+Insert") << int(Qt::Key_Insert) << ctrl << u"copy"_s;
    QTest::newRow("Ctrl+X") << int(Qt::Key_X) << ctrl << u"cut"_s;
    QTest::newRow("Shift+Delete") << int(Qt::Key_Delete) << shift << u"cut"_s;
    QTest::newRow("Backspace") << int(Qt::Key_Backspace) << none << u"before"_s;
    QTest::newRow("Shift+Backspace") << int(Qt::Key_Backspace) << shift << u"before"_s;
    QTest::newRow("Ctrl+Backspace") << int(Qt::Key_Backspace) << ctrl << u"before word"_s;
    QTest::newRow("Delete") << int(Qt::Key_Delete) << none << u"after"_s;
    QTest::newRow("Ctrl+Delete") << int(Qt::Key_Delete) << ctrl << u"after word"_s;
    QTest::newRow("Ctrl+V") << int(Qt::Key_V) << ctrl << u"paste from elsewhere"_s;
    QTest::newRow("Shift+Insert") << int(Qt::Key_Insert) << shift << u"paste from elsewhere"_s;
    QTest::newRow("Ctrl+A") << int(Qt::Key_A) << ctrl << u"select all"_s;
    QTest::newRow("Ctrl+Z") << int(Qt::Key_Z) << ctrl << u"undo"_s;
    QTest::newRow("Ctrl+Shift+Z") << int(Qt::Key_Z) << (ctrl | shift) << u"redo"_s;
    QTest::newRow("Ctrl+Tab") << int(Qt::Key_Tab) << ctrl << u"on"_s;
    QTest::newRow("Ctrl+Shift+Tab") << int(Qt::Key_Backtab) << (ctrl | shift) << u"back"_s;
}

void BoxInputTest::keysEndInTheCommands()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QString, command);
    record();
    QGuiApplication::clipboard()->setText(u"from elsewhere"_s);
    m_box->setText(u"one two"_s);
    m_box->setSelLength(3);
    QTest::keyClick(m_box, Qt::Key(key), modifiers);
    QCOMPARE(m_log, QStringList(command));
    QCOMPARE(m_box->Text(), u"one two"_s);
    QCOMPARE(m_box->SelLength(), 3);
}

void BoxInputTest::aReadOnlyBoxChangesNothing()
{
    m_box->setText(u"one two"_s);
    m_box->setReadOnly(true);
    m_box->setSelLength(3);
    record();
    for (const auto key : {Qt::Key_A, Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Delete})
        QTest::keyClick(m_box, key);
    for (const auto key : {Qt::Key_X, Qt::Key_V, Qt::Key_Z})
        QTest::keyClick(m_box, key, Qt::ControlModifier);
    commit(*m_box, u"x"_s);
    compose(*m_box, u"y"_s);
    QMimeData text;
    text.setText(u"dropped"_s);
    QVERIFY(!drop(*m_box, text, QPoint(5, 5)));
    QCOMPARE(m_log, QStringList());
    QCOMPARE(m_box->Text(), u"one two"_s);
    QTest::keyClick(m_box, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(m_log, QStringList(u"copy"_s));
}

void BoxInputTest::thereIsNoUndoOfTheToolkit()
{
    QTest::keyClicks(m_box, u"abc"_s);
    QTest::keyClick(m_box, Qt::Key_Z, Qt::ControlModifier);
    m_box->document()->undo();
    QCOMPARE(m_box->Text(), u"abc"_s);
    QVERIFY(!m_box->document()->isUndoAvailable());
}

void BoxInputTest::shortcutsAreTakenAsTheCommandsSay()
{
    QVERIFY(takes(*m_box, Qt::Key_C, Qt::ControlModifier));
    QVERIFY(!takes(*m_box, Qt::Key_G, Qt::ControlModifier));
    record();
    QVERIFY(!takes(*m_box, Qt::Key_C, Qt::ControlModifier));
    QVERIFY(takes(*m_box, Qt::Key_G, Qt::ControlModifier));
    QVERIFY(takes(*m_box, Qt::Key_V, Qt::ControlModifier));
    QVERIFY(!takes(*m_box, Qt::Key_H, Qt::ControlModifier));
    m_box->setCommands(nullptr);
    QVERIFY(takes(*m_box, Qt::Key_C, Qt::ControlModifier));
}

void BoxInputTest::clipboardCommandsWork()
{
    QClipboard &clipboard = *QGuiApplication::clipboard();
    m_box->setText(u"one\r\ntwo"_s);
    clipboard.setText(u"before"_s);
    QTest::keyClick(m_box, Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(m_box, Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(clipboard.text(), u"before"_s);

    m_box->setSelStart(2);
    m_box->setSelLength(4);
    QTest::keyClick(m_box, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(clipboard.text(), u"e\nt"_s);
    QTest::keyClick(m_box, Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(m_box->Text(), u"onwo"_s);
    QTest::keyClick(m_box, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(m_box->SelLength(), 4);
    QTest::keyClick(m_box, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(m_box->Text(), u"e\r\nt"_s);
}

void BoxInputTest::onlyPlainTextIsPasted()
{
    auto *data = new QMimeData;
    data->setHtml(u"<b>bold</b>"_s);
    QGuiApplication::clipboard()->setMimeData(data);
    QTest::keyClick(m_box, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(m_box->Text(), QString());

    data = new QMimeData;
    data->setHtml(u"<b>bold</b>"_s);
    data->setText(u"plain"_s);
    data->setImageData(QImage(2, 2, QImage::Format_RGB32));
    QGuiApplication::clipboard()->setMimeData(data);
    QTest::keyClick(m_box, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(m_box->Text(), u"plain"_s);
    QVERIFY(m_box->textCursor().charFormat().properties().isEmpty());
}

void BoxInputTest::theSelectionIsOfferedAsPlainText()
{
    m_box->setColoured({u"one\r\ntwo"_s, {{8, 0xff}}});
    m_box->setSelStart(2);
    m_box->setSelLength(4);
    const std::unique_ptr<QMimeData> data(m_box->createMimeDataFromSelection());
    m_box->setSelStart(0);
    QCOMPARE(data->text(), u"e\nt"_s);
    QCOMPARE(data->formats(), QStringList(u"text/plain"_s));
    QVERIFY(!data->hasHtml());
    QCOMPARE(data->data(u"text/plain"_s), QByteArray("e\nt"));
    delete m_box;
    QCOMPARE(data->text(), QString());
}

void BoxInputTest::dropEndsInPaste()
{
    record();
    m_box->setText(u"one two"_s);
    QMimeData text;
    text.setText(u"dropped"_s);
    QVERIFY(!drop(*m_box, text, pointOf(*m_box, 3))); // the recorder refuses
    m_box->insertFromMimeData(&text);                 // as a middle click does
    QMimeData html;
    html.setHtml(u"<b>x</b>"_s);
    QVERIFY(!drop(*m_box, html, pointOf(*m_box, 3)));
    m_box->insertFromMimeData(&html);
    m_box->insertFromMimeData(nullptr);
    QCOMPARE(m_log, QStringList({u"paste dropped"_s, u"paste dropped"_s}));
    QCOMPARE(m_box->Text(), u"one two"_s);
}

void BoxInputTest::aDropOfTextInsertsIt()
{
    m_box->setText(u"one two"_s);
    m_box->setSelLength(3);
    QMimeData text;
    text.setText(u"XY"_s);
    QVERIFY(drop(*m_box, text, pointOf(*m_box, 5)));
    QCOMPARE(m_box->Text(), u"one tXYwo"_s);
    QCOMPARE(m_box->SelStart(), 7);
    QCOMPARE(m_box->SelLength(), 0);
}

void BoxInputTest::theMenuRunsTheCommands()
{
    m_box->setText(u"one"_s);
    m_box->setSelLength(3);
    QGuiApplication::clipboard()->setText(u"x"_s);
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5),
                            m_box->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(m_box->viewport(), &event);
    const auto menus = m_box->findChildren<QMenu *>();
    QCOMPARE(menus.size(), 1);
    QStringList texts;
    for (const QAction *action : menus.first()->actions()) {
        if (!action->isSeparator())
            texts << action->text().remove(u'&');
    }
    QCOMPARE(texts, QStringList({u"Cut"_s, u"Copy"_s, u"Paste"_s, u"Delete"_s, u"Select All"_s}));
    menus.first()->actions().at(0)->trigger();
    QCOMPARE(m_box->Text(), QString());
    QCOMPARE(QGuiApplication::clipboard()->text(), u"one"_s);
    menus.first()->actions().at(2)->trigger();
    QCOMPARE(m_box->Text(), u"one"_s);
    menus.first()->actions().last()->trigger();
    QCOMPARE(m_box->SelLength(), 3);
    menus.first()->actions().at(3)->trigger();
    QCOMPARE(m_box->Text(), QString());
    menus.first()->close();
}

void BoxInputTest::anEmptyMenuIsNotShown()
{
    record();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(5, 5));
    QCoreApplication::sendEvent(m_box->viewport(), &event);
    QCOMPARE(m_log, QStringList(u"menu"_s));
    QVERIFY(m_box->findChildren<QMenu *>().isEmpty());
}

void BoxInputTest::inputMethodEndsInType()
{
    record();
    m_box->setText(u"abcd"_s);
    m_box->setSelStart(3);
    commit(*m_box, u"\u4f60\u597d"_s);
    QCOMPARE(m_log, QStringList(u"type \u4f60\u597d"_s));
    m_box->setCommands(nullptr);
    commit(*m_box, u"XY"_s, -2, 2);
    QCOMPARE(m_box->Text(), u"aXYd"_s);
    QCOMPARE(m_box->SelStart(), 3);
    commit(*m_box, u"Z"_s, -100, 200);
    QCOMPARE(m_box->Text(), u"Z"_s);
}

void BoxInputTest::compositionLeavesTheTextAlone()
{
    m_box->setText(u"ab"_s);
    m_box->setSelStart(1);
    QSignalSpy changes(m_box, &RichTextBox::Change);
    QVERIFY(!m_box->isComposing());
    compose(*m_box, u"ni"_s);
    QVERIFY(m_box->isComposing());
    QCOMPARE(m_box->Text(), u"ab"_s);
    QCOMPARE(changes.count(), 0);
    commit(*m_box, u"\u4f60"_s);
    QVERIFY(!m_box->isComposing());
    QCOMPARE(m_box->Text(), u"a\u4f60b"_s);
    QCOMPARE(m_box->SelStart(), 2);
    compose(*m_box, u"x"_s);
    compose(*m_box, {});
    QVERIFY(!m_box->isComposing());
    QCOMPARE(m_box->Text(), u"a\u4f60b"_s);
}

void BoxInputTest::compositionOverASelectionRemovesItByCommand()
{
    m_box->setText(u"abc"_s);
    m_box->setSelLength(2);
    record();
    compose(*m_box, u"n"_s);
    QCOMPARE(m_log, QStringList(u"remove"_s));
    m_box->setCommands(nullptr);
    m_box->setText(u"abc"_s);
    m_box->setSelLength(2);
    compose(*m_box, u"n"_s);
    QCOMPARE(m_box->Text(), u"c"_s);
}

void BoxInputTest::committedTextComesOutTheSame()
{
    const QString text = u"\ufdd0\ufdefa\u2028\u00a0\U0001F600"_s;
    commit(*m_box, text);
    commit(*m_box, u"\ufdef"_s);
    QCOMPARE(m_box->Text(), text + u"\ufdef"_s);
}

ORVT_TEST(BoxInputTest)
#include "BoxInputTest.moc"
