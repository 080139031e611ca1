// Whatever is done while colours are to come, it ends as if they had been there.

#include "editor/OpeningHost.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtGui/QDropEvent>
#include <QtGui/QGuiApplication>

#include <functional>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct Case
{
    const char *name;
    EditorAct act;
};

// At the caret.
EditorAct drop(const QString &text)
{
    return [text](EditorHost &host) {
        QMimeData data;
        data.setText(text);
        host.box().ensureCursorVisible();
        const QPointF place = host.box().cursorRect().center();
        QWidget &viewport = *host.box().viewport();
        QDragEnterEvent enter(place.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&viewport, &enter);
        QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&viewport, &event);
    };
}

// What the user or the host does; all of it far from the lines in view.
QList<Case> acts()
{
    const auto at = [](int line, int column, auto act) {
        return [=](EditorHost &host) {
            putCaret(host, line, column);
            act(host);
        };
    };
    const auto keys = [](const QString &text) {
        return [=](EditorHost &host) { host.type(text); };
    };
    const auto press = [](int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        return [=](EditorHost &host) { host.key(key, modifiers); };
    };
    return {
        {"nothing", [](EditorHost &) {}},
        {"typing", at(3002, 4, keys(u" temp2 fan1"_s))},
        {"typing in a comment", at(3001, 5, keys(u"x y "_s))},
        {"a new line", at(3000, 10, keys(u"\n"_s))},
        {"joining by Backspace", at(3002, 0, press(Qt::Key_Backspace))},
        {"joining by Delete", at(2999, 5, press(Qt::Key_Delete))},
        {"a word removed backwards", at(3002, 0, press(Qt::Key_Backspace, Qt::ControlModifier))},
        {"up and down", at(3002, 2,
                           [](EditorHost &host) {
                               host.key(Qt::Key_Down);
                               host.key(Qt::Key_Up);
                           })},
        {"a selection typed over", at(2500, 3,
                                      [](EditorHost &host) {
                                          host.box().setSelLength(900);
                                          host.type(u"a"_s);
                                          host.key(Qt::Key_Down);
                                      })},
        {"a selection pasted over", at(2500, 3,
                                       [](EditorHost &host) {
                                           host.box().setSelLength(900);
                                           QGuiApplication::clipboard()->setText(
                                               u"if temp1\nfan1"_s);
                                           host.key(Qt::Key_V, Qt::ControlModifier);
                                       })},
        {"a cut", at(2500, 3,
                     [](EditorHost &host) {
                         host.box().setSelLength(50);
                         host.list->RTextCut();
                     })},
        {"all typed over",
         [](EditorHost &host) {
             host.list->RTextSelectAll();
             host.type(u"x y "_s);
         }},
        {"undo of typing", at(3000, 4,
                              [](EditorHost &host) {
                                  host.type(u"x y "_s);
                                  QString errMsg;
                                  host.list->Undo(errMsg);
                              })},
        {"undo and redo", at(3000, 4,
                             [](EditorHost &host) {
                                 host.type(u"x y z "_s);
                                 QString errMsg;
                                 host.list->Undo(errMsg);
                                 host.list->Undo(errMsg);
                                 host.list->Redo(errMsg);
                             })},
        {"undo and redo of a text that is kept as it is",
         at(3000, 4,
            [](EditorHost &host) {
                host.list->codeView()->setKeepsText(true);
                host.type(u"x temp1 z "_s);
                for (const int key : {Qt::Key_Z, Qt::Key_Z, Qt::Key_Y})
                    host.key(key, Qt::ControlModifier);
            })},
        {"names dropped", at(3000, 4, drop(u"temp1 fan1"_s))},
        {"text dropped in place of a selection", at(2990, 4,
                                                    [](EditorHost &host) {
                                                        host.box().setSelLength(200);
                                                        drop(u"if temp1\nfan1"_s)(host);
                                                    })},
        {"found far below",
         [](EditorHost &host) { QVERIFY(host.box().Find(u"var1 = 3900"_s) > 0); }},
        {"saved in the middle",
         [](EditorHost &host) { QVERIFY(host.list->CodeText().contains(u"Var1 = 3900"_s)); }},
        {"an indent", at(2600, 1,
                         [](EditorHost &host) {
                             host.box().setSelLength(500);
                             host.key(Qt::Key_Tab);
                         })},
        {"moved lines", at(2600, 1, [](EditorHost &host) { host.list->codeView()->moveLines(3); })},
        {"duplicated lines",
         at(2600, 1, [](EditorHost &host) { host.list->codeView()->duplicateLines(); })},
        {"sorted lines", at(2600, 1,
                            [](EditorHost &host) {
                                host.box().setSelLength(2000);
                                host.list->codeView()->sortLines();
                            })},
        {"joined lines", at(2600, 1, [](EditorHost &host) { host.list->codeView()->joinLines(); })},
        {"a comment",
         at(2600, 1, [](EditorHost &host) { host.list->codeView()->toggleComment(); })},
        {"tidied", [](EditorHost &host) { host.list->codeView()->tidy(); }},
        {"a word replaced throughout",
         [](EditorHost &host) {
             QString errMsg;
             host.list->ReplaceRichTextBox(u"temp1"_s, u"fan1"_s, errMsg, true);
         }},
        {"a word replaced in its colours",
         [](EditorHost &host) {
             QString errMsg;
             host.list->ReplaceRichTextBox(u"temp1"_s, u"longer name"_s, errMsg, false);
         }},
        {"the host's text",
         at(2600, 5, [](EditorHost &host) { host.box().setSelText(u"host\r\nline"_s); })},
        {"the host's RTF",
         at(2600, 5,
            [](EditorHost &host) {
                host.box().setSelRTF(
                    u"{\\rtf1{\\colortbl;\\red9\\green8\\blue7;}\\cf1 RTF\\par x}"_s);
            })},
        {"the host's colour", at(2600, 5,
                                 [](EditorHost &host) {
                                     host.box().setSelLength(300);
                                     host.box().setSelColor(0x123456);
                                 })},
        {"the host's colour for what comes", at(2600, 5,
                                                [](EditorHost &host) {
                                                    host.box().setSelColor(0x123456);
                                                    host.box().setSelText(u"abc"_s);
                                                })},
        {"the appearance",
         [](EditorHost &host) {
             host.settings.InputColor = 0x00ABCDEF;
             host.list->Init_RichTextBox(host.settings);
         }},
        {"the ground", [](EditorHost &host) { host.box().setBackColor(0); }},
        {"another font", [](EditorHost &host) { host.box().setFontSize(14); }},
        {"a table and back",
         [](EditorHost &host) {
             host.list->setListviewType(dsInput);
             QCoreApplication::processEvents();
             host.list->setListviewType(dsCode);
         }},
        {"new words",
         [](EditorHost &host) { host.list->UpdateWordListItem(u"Temp1"_s, u"Heat"_s, dsInput); }},
        {"another language",
         [](EditorHost &host) {
             QEvent change(QEvent::LanguageChange);
             QCoreApplication::sendEvent(host.list, &change);
         }},
        {"another palette", [](EditorHost &host) { host.form.setPalette(QPalette(Qt::black)); }},
        {"disabled", [](EditorHost &host) { host.list->setEnabled(false); }},
        {"typing where nothing may be typed", at(3002, 4,
                                                 [](EditorHost &host) {
                                                     host.box().setReadOnly(true);
                                                     host.type(u"x y "_s);
                                                 })},
        {"read-only", [](EditorHost &host) { host.box().setReadOnly(true); }},
        {"hidden", [](EditorHost &host) { host.form.hide(); }},
        {"another program",
         [](EditorHost &host) {
             host.list->openProgram(longProgram().replace(u"fan1"_s, u"temp2"_s));
         }},
        {"another text", [](EditorHost &host) { host.list->setCodeText(longProgram().toUpper()); }},
        {"nothing left", [](EditorHost &host) { host.list->Clear(); }},
        {"folded",
         [](EditorHost &host) {
             host.list->codeView()->setFoldingEnabled(true);
             host.list->codeView()->foldAll();
         }},
    };
}

} // namespace

class OpeningActsTest : public WidgetTest
{
    Q_OBJECT

private:
    struct Result
    {
        QStringList picture;
        QString text;
        QString rtf;
        int start = 0;
        int length = 0;
        QString base;
        bool canUndo = false;
        QString undone;
    };

    static Result resultOf(EditorHost &host)
    {
        Result result;
        result.picture = pictureOf(host.box());
        result.text = host.list->CodeText();
        result.rtf = host.box().TextRTF();
        result.start = host.box().SelStart();
        result.length = host.box().SelLength();
        result.base = host.ring().UndoSlots(0);
        result.canUndo = host.list->IsUndoAvailable();
        QString errMsg;
        host.list->Undo(errMsg);
        result.undone = host.list->CodeText();
        return result;
    }

    static void compare(const Result &late, const Result &atOnce)
    {
        QCOMPARE(late.text, atOnce.text);
        comparePictures(late.picture, atOnce.picture);
        QVERIFY(late.rtf == atOnce.rtf);
        QCOMPARE(late.start, atOnce.start);
        QCOMPARE(late.length, atOnce.length);
        QVERIFY(late.base == atOnce.base);
        QCOMPARE(late.canUndo, atOnce.canUndo);
        QCOMPARE(late.undone, atOnce.undone);
    }

private Q_SLOTS:
    void theEndIsThatOfOpeningInOneGo_data()
    {
        QTest::addColumn<EditorAct>("act");
        for (const Case &one : acts())
            QTest::newRow(one.name) << one.act;
    }

    void theEndIsThatOfOpeningInOneGo()
    {
        QFETCH(EditorAct, act);
        const auto run = [&](const EditorAct &open) {
            renewState();
            OpeningHost host;
            open(host);
            act(host);
            host.finish();
            return resultOf(host);
        };
        const Result atOnce = run([](EditorHost &host) { host.list->openProgram(longProgram()); });
        const Result late = run([](EditorHost &host) {
            host.list->codeView()->openProgram(longProgram());
            QVERIFY(host.list->codeView()->isOpening());
            QCoreApplication::processEvents();
        });
        compare(late, atOnce);
    }
};

ORVT_TEST(OpeningActsTest)
#include "OpeningActsTest.moc"
