// The bar that finds as one types.

#include "base/ThreadState.h"
#include "editor/view/ViewFixture.h"
#include "find/rules/SearchHistory.h"
#include "support/ActiveAccessibility.h"
#include "support/Pixels.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <ORVTListview/TextProvider.h>
#include <ORVTListview/TranslatedTexts.h>

#include <QtCore/QLocale>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLayout>
#include <QtWidgets/QToolButton>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct BarHost : ViewHost
{
    QWidget *bar() { return box().findChild<QWidget *>(u"FindBar"_s); }
    bool isBarShown() { return bar() && bar()->isVisible(); }
    template <typename Control>
    Control &control(const char *name)
    {
        auto *found = bar()->findChild<Control *>(QString::fromLatin1(name));
        if (!found)
            qFatal("no control %s", name);
        return *found;
    }
    QComboBox &field() { return control<QComboBox>("FindBarWanted"); }
    QComboBox &replacement() { return control<QComboBox>("FindBarReplacement"); }
    QToolButton &button(const char *name) { return control<QToolButton>(name); }
    void click(const char *name) { QTest::mouseClick(&button(name), Qt::LeftButton); }
    QString told() { return control<QLabel>("FindBarResult").text(); }

    void ask()
    {
        view().showFindBar();
        QVERIFY(isBarShown());
        QVERIFY(field().hasFocus());
    }
    void open(const QString &program)
    {
        setText(program);
        ask();
    }
    void enter(const QString &text) { QTest::keyClicks(&field(), text); }
    void press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&field(), static_cast<Qt::Key>(key), modifiers);
    }
    SearchHistories &histories() { return threadPart<SearchHistories>(); }

    // Whether the ground under a character of the program is another one than the box's.
    bool isMarked(qint32 place)
    {
        QTextCursor cursor(box().document());
        cursor.setPosition(place);
        const QRect at = box().cursorRect(cursor);
        const QImage shown = picture(*box().viewport());
        return shown.pixelColor(at.center().x() + 3, at.bottom() - 2) != ground();
    }
};

// What a screen reader is told of the result.
class ToldResults
{
public:
    ToldResults()
    {
        told.clear();
        QAccessible::installUpdateHandler(&note);
    }
    ~ToldResults() { QAccessible::installUpdateHandler(nullptr); }

    static inline QStringList told;

private:
    ActiveAccessibility m_active;

    static void note(QAccessibleEvent *event)
    {
        if (event->type() == QAccessible::Alert && event->object() &&
            event->object()->objectName() == u"FindBarResult"_s)
            told << event->accessibleInterface()->text(QAccessible::Name);
    }
};

} // namespace

class FindBarTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void findsAsOneTypes()
    {
        BarHost host;
        host.open(u"x ab| T1 t1 T12 t12"_s);
        QCOMPARE(host.told(), QString());
        host.enter(u"t1"_s);
        QCOMPARE(host.marked(), u"x ab |T1| t1 T12 t12"_s);
        QCOMPARE(host.told(), u"1 of 4"_s);
        host.enter(u"2"_s);
        QCOMPARE(host.marked(), u"x ab T1 t1 |T12| t12"_s);
        QCOMPARE(host.told(), u"1 of 2"_s);
        host.press(Qt::Key_Backspace); // from where the user was
        QCOMPARE(host.marked(), u"x ab |T1| t1 T12 t12"_s);
        host.enter(u"9"_s);
        QCOMPARE(host.told(), u"Not found!"_s);
        QCOMPARE(host.marked(), u"x ab| T1 t1 T12 t12"_s);
        host.field().clearEditText();
        QCOMPARE(host.told(), QString());
        host.enter(u"x"_s); // round at the end
        QCOMPARE(host.marked(), u"|x| ab T1 t1 T12 t12"_s);
    }

    void aNarrowBarLeavesOutWhatMattersLeast()
    {
        BarHost host;
        host.open(u"ab ab"_s);
        host.enter(u"ab"_s);
        QList<QWidget *> parts = host.bar()->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
        int before = 0;
        for (const int width : {900, 420, 330, 260, 220, 900}) {
            host.bar()->resize(width, host.bar()->height());
            host.bar()->layout()->activate();
            int shown = 0;
            for (QWidget *part : std::as_const(parts)) {
                if (!part->isVisible())
                    continue;
                ++shown;
                QVERIFY2(host.bar()->rect().contains(part->geometry()),
                         qPrintable(part->objectName() + QString::number(width)));
                for (const QWidget *other : std::as_const(parts))
                    QVERIFY(other == part || !other->isVisible() ||
                            !other->geometry().intersects(part->geometry()));
            }
            QVERIFY2(host.field().width() >= host.button("FindBarClose").width() * 2,
                     qPrintable(QString::number(width)));
            QVERIFY(host.button("FindBarClose").isVisible());
            QVERIFY(before == 0 || width == 900 || shown <= before);
            before = shown;
        }
        QVERIFY(host.control<QLabel>("FindBarResult").isVisible());
    }

    void aShorterResultIsThereWhereALongerOneHadNoRoom()
    {
        BarHost host;
        host.setLines(20'000, u"ab = %1"_s);
        host.ask();
        host.enter(u"ab"_s);
        host.press(Qt::Key_Return, Qt::ShiftModifier);
        QTRY_COMPARE(host.told(), u"20000 of 20000"_s);
        const auto &result = host.control<QLabel>("FindBarResult");
        for (int width = 900; width > 200 && result.isVisible(); --width) {
            host.bar()->resize(width, host.bar()->height());
            host.bar()->layout()->activate();
        }
        QVERIFY(!result.isVisible());
        host.press(Qt::Key_Return);
        QTRY_COMPARE(host.told(), u"1 of 20000"_s);
        QVERIFY(result.isVisible());
        host.press(Qt::Key_Return, Qt::ShiftModifier);
        QTRY_COMPARE(host.told(), u"20000 of 20000"_s);
        QVERIFY(!result.isVisible());
    }

    void enterGoesOnAndShiftEnterBack()
    {
        BarHost host;
        host.open(u"|ab AB x ab"_s);
        host.enter(u"ab"_s);
        host.press(Qt::Key_Return);
        QCOMPARE(host.marked(), u"ab |AB| x ab"_s);
        QCOMPARE(host.told(), u"2 of 3"_s);
        host.press(Qt::Key_F3);
        QCOMPARE(host.told(), u"3 of 3"_s);
        host.press(Qt::Key_Enter);
        QCOMPARE(host.marked(), u"|ab| AB x ab"_s);
        host.press(Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(host.told(), u"3 of 3"_s);
        host.press(Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(host.told(), u"2 of 3"_s);
        host.click("FindBarNext");
        QCOMPARE(host.told(), u"3 of 3"_s);
        host.click("FindBarPrevious");
        QCOMPARE(host.told(), u"2 of 3"_s);
        QVERIFY(host.field().hasFocus());
        QCOMPARE(host.list->CodeText(), u"ab AB x ab"_s);
    }

    void escGivesTheFocusBack()
    {
        BarHost host;
        host.open(u"|ab AB x ab"_s);
        host.enter(u"ab"_s);
        host.press(Qt::Key_Return);
        QVERIFY(host.isMarked(0));
        QVERIFY(!host.isMarked(6));
        host.press(Qt::Key_Escape);
        QVERIFY(!host.isBarShown());
        QVERIFY(host.box().hasFocus());
        QVERIFY(!host.isMarked(0));
        QCOMPARE(host.marked(), u"ab |AB| x ab"_s);
        QCOMPARE(host.histories().searched.texts(), QStringList(u"ab"_s));
        QVERIFY(host.view().findNext()); // with what the bar searched for
        QCOMPARE(host.marked(), u"ab AB x |ab|"_s);
        host.box().setSelLength(0);
        host.ask(); // a second time
        QCOMPARE(host.field().currentText(), u"ab"_s);
        QVERIFY(host.isMarked(0));
    }

    void beginsWithTheSelection()
    {
        BarHost host;
        host.open(u"one |two| two\r\ntwo"_s);
        QCOMPARE(host.field().currentText(), u"two"_s);
        QCOMPARE(host.told(), u"1 of 3"_s);
        QCOMPARE(host.marked(), u"one |two| two\r\ntwo"_s);
        host.setText(u"one |two\r\nt|wo"_s);
        host.ask();
        QCOMPARE(host.field().currentText(), u"two"_s);
    }

    void optionsAreThoseOfTheLastSearch()
    {
        BarHost host;
        host.open(u"|t1 T1_A xT1 T1"_s);
        host.enter(u"T1"_s);
        QCOMPARE(host.told(), u"1 of 4"_s);
        host.click("FindBarWholeWord");
        QCOMPARE(host.told(), u"1 of 2"_s);
        host.click("FindBarMatchCase");
        QCOMPARE(host.told(), u"1 of 1"_s);
        QCOMPARE(host.marked(), u"t1 T1_A xT1 |T1|"_s);
        QVERIFY(host.histories().last.how.matchCase);
        QVERIFY(host.histories().last.how.wholeWord);
        host.press(Qt::Key_Escape);
        host.histories().last = {u"x"_s, {.matchCase = true}};
        host.box().setSelStart(0);
        host.ask();
        QCOMPARE(host.field().currentText(), u"x"_s);
        QVERIFY(host.button("FindBarMatchCase").isChecked());
        QVERIFY(!host.button("FindBarWholeWord").isChecked());
    }

    void editsKeepTheCount()
    {
        BarHost host;
        host.open(u"|ab ab\r\ncd"_s);
        host.enter(u"ab"_s);
        QCOMPARE(host.told(), u"1 of 2"_s);
        host.box().setFocus();
        host.box().setSelStart(8);
        host.type(u"ab "_s);
        QTRY_COMPARE(host.told(), u"3 found"_s);
        QVERIFY(host.isMarked(7));
        host.box().setSelStart(0);
        host.key(Qt::Key_Delete);
        QTRY_COMPARE(host.told(), u"2 found"_s);
        host.list->setCodeText(u"ab\r\nab\r\nab\r\nab"_s);
        QTRY_COMPARE(host.told(), u"4 found"_s);
        host.list->setCodeText({});
        QTRY_COMPARE(host.told(), u"Not found!"_s);
    }

    void aLargeProgramIsCountedWhileIdle()
    {
        BarHost host;
        host.setLines(60'000, u"ab = %1"_s);
        host.ask();
        host.enter(u"ab"_s);
        QVERIFY2(host.told().startsWith(u"1 of "_s) && host.told().endsWith(u'+'),
                 qPrintable(host.told()));
        QTRY_COMPARE(host.told(), u"1 of 60000"_s);
        host.press(Qt::Key_Return, Qt::ShiftModifier);
        QTRY_COMPARE(host.told(), u"60000 of 60000"_s);
        host.field().clearEditText();
        host.enter(u"= 59"_s); // is far from where the user was
        QTRY_COMPARE(host.marked().indexOf(u'|'), host.box().Text().indexOf(u"= 59"_s));
        QTRY_COMPARE(host.told(), u"1 of 1111"_s);
    }

    void keepsTheView()
    {
        BarHost host;
        host.setLines(200);
        QScrollBar &bar = *host.box().verticalScrollBar();
        bar.setValue(77);
        const QSize size = host.box().viewport()->size();
        host.ask();
        QCOMPARE(bar.value(), 77);
        QVERIFY(host.box().viewport()->height() < size.height());
        QCOMPARE(host.bar()->geometry().top(), host.box().viewport()->geometry().bottom() + 1);
        host.press(Qt::Key_Escape);
        QCOMPARE(bar.value(), 77);
        QCOMPARE(host.box().viewport()->size(), size);
        host.ask();
        host.form.resize(700, 500);
        QCoreApplication::processEvents();
        QCOMPARE(host.bar()->geometry().top(), host.box().viewport()->geometry().bottom() + 1);
        QCOMPARE(host.bar()->width(), host.box().viewport()->width());
    }

    void theScrollBarShowsWhere()
    {
        BarHost host;
        host.setLines(400);
        auto &marks = *host.box().findChild<QWidget *>(u"ScrollMarks"_s);
        QVERIFY(!marks.isVisible());
        host.ask();
        host.enter(u"x399"_s);
        QVERIFY(marks.isVisible());
        const QImage with = host.picture(*host.box().verticalScrollBar());
        host.enter(u"9"_s);
        QVERIFY(!marks.isVisible());
        const QImage without = host.picture(*host.box().verticalScrollBar());
        const auto differs = [&](int from, int to) {
            return with.copy(0, from, with.width(), to - from) !=
                   without.copy(0, from, with.width(), to - from);
        };
        QVERIFY(!differs(with.height() / 4, with.height() * 3 / 4));
        QVERIFY(differs(with.height() * 3 / 4, with.height()));
    }

    void replacesAsTheDialog()
    {
        BarHost host;
        host.open(u"|Temp1 x Temp1 x Temp1"_s);
        host.enter(u"temp1"_s);
        QVERIFY(!host.replacement().isVisible());
        host.click("FindBarMore");
        QVERIFY(host.replacement().hasFocus());
        QTest::keyClicks(&host.replacement(), u"fan1"_s);
        host.click("FindBarReplace");
        QCOMPARE(host.marked(), u"Fan1 x |Temp1| x Temp1"_s);
        QTRY_COMPARE(host.told(), u"1 of 2"_s);
        const qint16 before = host.ring().UndoNewest();
        host.click("FindBarReplaceAll");
        QCOMPARE(host.ring().UndoNewest(), before + 1);
        QCOMPARE(host.list->CodeText(), u"Fan1 x Fan1 x Fan1"_s);
        QCOMPARE(host.told(), u"2 replace(s)!"_s);
        QCOMPARE(host.histories().replacements.texts(), QStringList(u"fan1"_s));
        QString errMsg;
        host.list->Undo(errMsg);
        QTRY_COMPARE(host.told(), u"1 of 3"_s); // with its selection
    }

    void aReadOnlyProgramIsSearchedOnly()
    {
        BarHost host;
        host.setText(u"|ab ab"_s);
        host.box().setReadOnly(true);
        host.ask();
        host.enter(u"ab"_s);
        host.press(Qt::Key_Return);
        QCOMPARE(host.told(), u"2 of 2"_s);
        host.click("FindBarMore");
        QVERIFY(!host.button("FindBarReplace").isEnabled());
        QVERIFY(!host.button("FindBarReplaceAll").isEnabled());
        host.box().setReadOnly(false);
        QVERIFY(host.button("FindBarReplaceAll").isEnabled());
    }

    void closesWithItsEditor()
    {
        BarHost host;
        host.open(u"|ab ab"_s);
        host.list->setListviewType(dsInput);
        host.list->setListviewType(dsCode);
        QVERIFY(!host.isBarShown());
        host.list->setListviewType(dsInput);
        host.view().showFindBar();
        QVERIFY(!host.isBarShown());
        host.list->setListviewType(dsCode);
        host.ask();
        host.list->setEnabled(false);
        QVERIFY(!host.isBarShown());
        host.view().showFindBar();
        QVERIFY(!host.isBarShown());
    }

    void noKeyOrClickGetsToTheProgram()
    {
        BarHost host;
        host.open(u"ab| ab"_s);
        for (const int key : {int(Qt::Key_Delete), int(Qt::Key_PageDown), int(Qt::Key_F6),
                              int(Qt::Key_Tab), int(Qt::Key_Up)})
            host.press(key);
        QTest::mouseClick(host.bar(), Qt::LeftButton, {}, QPoint(1, 1));
        QCOMPARE(host.marked(), u"ab| ab"_s);
    }

    void aLineEndIsFound()
    {
        BarHost host;
        host.open(u"|a b\r\na\r\nb\r\na\r\nb"_s);
        host.field().setEditText(u"a\r\nb"_s);
        QCOMPARE(host.marked(), u"a b\r\n|a\r\nb|\r\na\r\nb"_s);
        QCOMPARE(host.told(), u"1 of 2"_s);
        host.box().setSelStart(0);
        QVERIFY(!host.isMarked(0));
        QVERIFY(host.isMarked(4));
        QVERIFY(host.isMarked(6));
    }

    void screenReadersAreTold()
    {
        BarHost host;
        const ToldResults events;
        host.open(u"|ab ab"_s);
        host.enter(u"ab"_s);
        QCOMPARE(ToldResults::told, QStringList({u"1 of 2"_s, u"1 of 2"_s}));
        ToldResults::told.clear();
        host.press(Qt::Key_Return);
        QCOMPARE(ToldResults::told, QStringList(u"2 of 2"_s));
        ToldResults::told.clear();
        host.enter(u"c"_s);
        QCOMPARE(ToldResults::told, QStringList(u"Not found!"_s));
        ToldResults::told.clear();
        host.press(Qt::Key_Return); // the same once more
        QCOMPARE(ToldResults::told, QStringList(u"Not found!"_s));
    }

    void speaksTheLanguageInForce()
    {
        BarHost host;
        host.open(u"|ab ab"_s);
        host.enter(u"ab"_s);
        TranslatedTexts texts(QLocale(QLocale::German));
        setTextProvider(&texts);
        host.list->ReInitializeStrings();
        QCOMPARE(host.told(), u"1 von 2"_s);
        QCOMPARE(host.button("FindBarPrevious").toolTip(), u"Rückwärts suchen"_s);
        QCOMPARE(host.field().currentText(), u"ab"_s);
        setTextProvider(nullptr);
    }

    void twoEditorsShareTheSearchOnly()
    {
        BarHost host;
        host.open(u"|ab ab"_s);
        host.enter(u"ab"_s);
        host.press(Qt::Key_Escape);
        ORVListView other;
        other.setListviewType(dsCode);
        other.setCodeText(u"ab ab ab"_s);
        other.show();
        QVERIFY(QTest::qWaitForWindowExposed(&other));
        other.codeView()->showFindBar(); // with the search of the first
        auto *result = other.RTextBox()->findChild<QLabel *>(u"FindBarResult"_s);
        QVERIFY(result);
        QCOMPARE(result->text(), u"3 found"_s);
        QVERIFY(!host.isBarShown());
    }

    void everyControlHasAName()
    {
        BarHost host;
        host.open(u"|ab"_s);
        host.click("FindBarMore");
        for (QWidget *control : host.bar()->findChildren<QWidget *>()) {
            const bool takesFocus = control->focusPolicy() != Qt::NoFocus;
            if (takesFocus &&
                (qobject_cast<QComboBox *>(control) || qobject_cast<QToolButton *>(control)))
                QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
        }
    }

    void hasTheColoursAroundTheBox()
    {
        BarHost host;
        host.box().setBackColor(0x102030);
        host.open(u"|ab ab"_s);
        const QPalette around = host.list->palette();
        QCOMPARE(host.field().palette().color(QPalette::Base), around.color(QPalette::Base));
        QCOMPARE(host.field().palette().color(QPalette::Text), around.color(QPalette::Text));
    }

    void aHostMayDestroyTheComponentAsItReplaces()
    {
        BarHost host;
        host.open(u"|ab ab"_s);
        host.enter(u"ab"_s);
        host.click("FindBarMore");
        QPointer<ORVListView> list(host.list);
        connect(&host.box(), &RichTextBox::Change, this, [&] { delete list; });
        host.button("FindBarReplace").click();
        QVERIFY(!list);
    }
};

ORVT_TEST(FindBarTest)
#include "FindBarTest.moc"
