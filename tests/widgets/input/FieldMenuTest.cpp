// The context menus of fields speak the library's language, without a translator of
// the toolkit.

#include "base/ThreadState.h"
#include "find/fFind.h"
#include "find/rules/SearchHistory.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/combo/ImageCombo.h"
#include "widgets/nodes/NodeTree.h"
#include <ORVTListview/ListItems.h>
#include <ORVTListview/Nodes.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ReportList.h>
#include <ORVTListview/TextProvider.h>
#include <ORVTListview/TranslatedTexts.h>

#include <QtCore/QSet>
#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QMenu *openMenu(QWidget &at)
{
    const QPoint place = at.rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, at.mapToGlobal(place));
    QCoreApplication::sendEvent(&at, &event);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

QStringList captions(const QMenu &menu)
{
    QStringList captions;
    for (const QAction *action : menu.actions()) {
        if (!action->isSeparator())
            captions << action->text();
    }
    return captions;
}

// Opens the menu, chooses a command of it and closes it.
void choose(QWidget &at, const QString &caption)
{
    QMenu *menu = openMenu(at);
    QVERIFY(menu);
    for (QAction *action : menu->actions()) {
        if (QString(action->text()).remove(u'&') == caption) {
            QVERIFY2(action->isEnabled(), qPrintable(caption));
            menu->setActiveAction(action);
            QTest::keyClick(menu, Qt::Key_Return);
            return;
        }
    }
    QFAIL(qPrintable(caption));
}

// A field in use, and the widget that a right click on it reaches.
struct Place
{
    std::unique_ptr<QWidget> window;
    QPointer<QLineEdit> field;
    QPointer<QWidget> target;
};

Place shown(std::unique_ptr<QWidget> window)
{
    window->resize(400, 300);
    window->show();
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(window.get()))
        qFatal("the window does not become active");
    return {std::move(window), {}, {}};
}

Place ofDialog()
{
    Place place = shown(std::make_unique<fFind>(threadPart<SearchHistories>()));
    auto *combo = place.window->findChild<QComboBox *>(u"Cbo0"_s);
    place.field = combo->lineEdit();
    place.target = combo->lineEdit();
    return place;
}

Place ofCombo()
{
    auto combo = std::make_unique<ImageCombo>();
    ImageCombo *inner = combo.get();
    Place place = shown(std::move(combo));
    place.field = inner->lineEdit();
    place.target = inner->lineEdit();
    return place;
}

Place ofRow()
{
    auto list = std::make_unique<ORVListView>();
    ORVListView *table = list.get();
    Place place = shown(std::move(list));
    table->setLabelColumn(1);
    table->setSelectedItem(table->ListItems()->Item(1));
    table->StartLabelEdit();
    place.field = table->listView()->viewport()->findChild<QLineEdit *>();
    place.target = place.field;
    return place;
}

Place ofNode()
{
    auto view = std::make_unique<NodeTree>();
    NodeTree *tree = view.get();
    Place place = shown(std::move(view));
    tree->setSelectedItem(tree->Nodes()->Add(nullptr, NodeRelationship::First, u"a"_s, u"a"_s));
    tree->StartLabelEdit();
    place.field = tree->viewport()->findChild<QLineEdit *>();
    place.target = place.field;
    return place;
}

using MakePlace = Place (*)();

} // namespace

class FieldMenuTest : public WidgetTest
{
    Q_OBJECT

private:
    static void addPlaces()
    {
        QTest::addColumn<MakePlace>("make");
        QTest::newRow("find dialog") << &ofDialog;
        QTest::newRow("combo") << &ofCombo;
        QTest::newRow("label of a row") << &ofRow;
        QTest::newRow("label of a node") << &ofNode;
    }

private Q_SLOTS:
    void init() override
    {
        WidgetTest::init();
        QGuiApplication::clipboard()->clear();
    }

    void speaksTheLanguageInForce_data() { addPlaces(); }
    void speaksTheLanguageInForce()
    {
        QFETCH(const MakePlace, make);
        const Place place = make();
        QVERIFY(place.field);
        QPointer<QMenu> menu = openMenu(*place.target);
        QVERIFY(menu);
        QCOMPARE(captions(*menu), QStringList({u"&Undo"_s, u"&Redo"_s, u"Cu&t"_s, u"&Copy"_s,
                                               u"&Paste"_s, u"&Delete"_s, u"Select &All"_s}));
        menu->close();
        TranslatedTexts german(QLocale(QLocale::German));
        setTextProvider(&german);
        menu = openMenu(*place.target);
        QVERIFY(menu);
        const QStringList shown = captions(*menu);
        QCOMPARE(shown.join(u", "_s).remove(u'&'),
                 u"Rückgängig, Wiederherstellen, Ausschneiden, Kopieren, Einfügen, Löschen, "
                 "Alles auswählen"_s);
        QSet<QChar> keys;
        for (const QString &caption : shown)
            keys.insert(caption.at(caption.indexOf(u'&') + 1).toLower());
        QCOMPARE(keys.size(), shown.size());
        menu->close();
        setTextProvider(nullptr);
    }

    void doesWhatItSays_data() { addPlaces(); }
    void doesWhatItSays()
    {
        QFETCH(const MakePlace, make);
        const Place place = make();
        QVERIFY(place.field);
        QLineEdit &field = *place.field;
        field.selectAll();
        QTest::keyClicks(&field, u"one two"_s);
        choose(*place.target, u"Undo"_s);
        QVERIFY(place.field);
        QVERIFY(field.text() != u"one two"_s);
        choose(*place.target, u"Redo"_s);
        QCOMPARE(field.text(), u"one two"_s);
        choose(*place.target, u"Select All"_s);
        QCOMPARE(field.selectedText(), u"one two"_s);
        choose(*place.target, u"Copy"_s);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"one two"_s);
        choose(*place.target, u"Delete"_s);
        QCOMPARE(field.text(), QString());
        choose(*place.target, u"Paste"_s);
        QCOMPARE(field.text(), u"one two"_s);
        field.setSelection(0, 4);
        choose(*place.target, u"Cut"_s);
        QCOMPARE(field.text(), u"two"_s);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"one "_s);
        QVERIFY2(place.field, "a label stays open");
    }

    void offersWhatCanBeDone()
    {
        const Place place = ofCombo();
        const auto enabled = [&] {
            QMenu *menu = openMenu(*place.target);
            QString names;
            for (const QAction *action : menu->actions()) {
                if (action->isEnabled() && !action->isSeparator())
                    names += QString(action->text()).remove(u'&') + u' ';
            }
            menu->close();
            return names;
        };
        QCOMPARE(enabled(), QString());
        place.field->setText(u"a"_s);
        QCOMPARE(enabled(), u"Select All "_s);
        place.field->selectAll();
        QGuiApplication::clipboard()->setText(u"b"_s);
        QCOMPARE(enabled(), u"Cut Copy Paste Delete "_s);
        place.field->setReadOnly(true);
        QCOMPARE(enabled(), u"Copy "_s);
    }

    void leavesTheHostItsOwnPolicy()
    {
        const Place place = ofCombo();
        place.window->setContextMenuPolicy(Qt::CustomContextMenu);
        int wanted = 0;
        connect(place.window.get(), &QWidget::customContextMenuRequested, this, [&] { ++wanted; });
        QVERIFY(!openMenu(*place.target));
        QCOMPARE(wanted, 1);
        place.window->setContextMenuPolicy(Qt::DefaultContextMenu);
        QVERIFY(openMenu(*place.target));
    }

    void bearsTheEndOfTheFieldMeanwhile_data() { addPlaces(); }
    void bearsTheEndOfTheFieldMeanwhile()
    {
        QFETCH(const MakePlace, make);
        Place place = make();
        QVERIFY(openMenu(*place.target));
        place.window.reset();
        QVERIFY(!QApplication::activePopupWidget());
    }
};

ORVT_TEST(FieldMenuTest)
#include "FieldMenuTest.moc"
