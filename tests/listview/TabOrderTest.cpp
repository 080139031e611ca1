// Tab goes through the control in one order, however a host has put it on its form:
// table or editor, then the read button.

#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/ORVTListview.h>

#include <QtCore/QPointer>
#include <QtTest/QtTest>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

#include <memory>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// A form with a field before the control and one after it.
struct Form
{
    QWidget window;
    QPointer<QLineEdit> before;
    QPointer<ORVListView> list;
    QPointer<QLineEdit> after;
};

using Construction = void (*)(Form &);

void withParent(Form &form)
{
    form.before = new QLineEdit(&form.window);
    form.list = new ORVListView(&form.window);
    form.after = new QLineEdit(&form.window);
}

void laidOutLater(Form &form)
{
    form.before = new QLineEdit;
    form.list = new ORVListView;
    form.after = new QLineEdit;
    auto *layout = new QHBoxLayout(&form.window);
    layout->addWidget(form.before);
    layout->addWidget(form.list);
    layout->addWidget(form.after);
}

void laidOutAsTheTypeItIs(Form &form)
{
    form.before = new QLineEdit;
    form.list = new ORVListView;
    form.list->setListviewType(dsCode);
    form.list->setListviewType(dsTimer);
    form.after = new QLineEdit;
    auto *layout = new QHBoxLayout;
    layout->addWidget(form.before);
    layout->addWidget(form.list);
    layout->addWidget(form.after);
    form.window.setLayout(layout);
}

void inATabWidget(Form &form)
{
    auto *page = new QWidget;
    form.before = new QLineEdit(page);
    form.list = new ORVListView;
    form.after = new QLineEdit;
    auto *onPage = new QHBoxLayout(page);
    onPage->addWidget(form.list);
    onPage->addWidget(form.after);
    auto *tabs = new QTabWidget;
    tabs->addTab(page, u"Points"_s);
    (new QHBoxLayout(&form.window))->addWidget(tabs);
}

void asATab(Form &form)
{
    auto *tabs = new QTabWidget;
    form.before = new QLineEdit;
    form.list = new ORVListView;
    form.after = new QLineEdit;
    tabs->addTab(form.list, u"Points"_s);
    auto *layout = new QHBoxLayout(&form.window);
    layout->addWidget(form.before);
    layout->addWidget(tabs);
    layout->addWidget(form.after);
}

// What generated code does.
void withGivenTabStops(Form &form)
{
    form.after = new QLineEdit(&form.window);
    form.list = new ORVListView(&form.window);
    form.before = new QLineEdit(&form.window);
    QWidget::setTabOrder(form.before, form.list);
    QWidget::setTabOrder(form.list, form.after);
}

void withGivenTabStopsLaidOutLater(Form &form)
{
    laidOutLater(form);
    QWidget::setTabOrder(form.after, form.list);
    QWidget::setTabOrder(form.list, form.before);
    std::swap(form.before, form.after);
}

void movedFromAnotherForm(Form &form)
{
    QWidget other;
    auto *field = new QLineEdit(&other);
    form.list = new ORVListView(&other);
    new QLineEdit(&other);
    other.show();
    field->setFocus();
    form.list->setListviewType(dsCode);
    form.list->setListviewType(dsLog);
    form.before = new QLineEdit(&form.window);
    form.list->setParent(&form.window);
    form.after = new QLineEdit(&form.window);
}

void asAWindowBefore(Form &form)
{
    form.list = new ORVListView;
    form.list->show();
    form.list->hide();
    form.before = new QLineEdit(&form.window);
    form.list->setParent(&form.window);
    form.list->show();
    form.after = new QLineEdit(&form.window);
}

const QList<std::pair<const char *, Construction>> constructions{
    {"with a parent", withParent},
    {"laid out later", laidOutLater},
    {"laid out after changes of type", laidOutAsTheTypeItIs},
    {"in a tab widget", inATabWidget},
    {"as a tab", asATab},
    {"with given tab stops", withGivenTabStops},
    {"with given tab stops, laid out later", withGivenTabStopsLaidOutLater},
    {"moved from another form", movedFromAnotherForm},
    {"a window before", asAWindowBefore},
};

QWidget &face(const ORVListView &list)
{
    if (list.ListviewType() == dsCode)
        return *list.RTextBox();
    return *list.listView();
}

QWidget &button(const ORVListView &list)
{
    return *list.findChild<QWidget *>(u"ImgRead"_s);
}

// The name of what has the focus, and then of what each further Tab brings it to. In
// the editor, which types Tab, it is Ctrl+Tab.
QStringList stops(const Form &form, int count, Qt::KeyboardModifiers held)
{
    QStringList names;
    while (names.size() < count) {
        const QWidget *focus = QApplication::focusWidget();
        if (qobject_cast<const QTabBar *>(focus)) { // which has a stop of its own
            QTest::keyClick(form.window.windowHandle(), Qt::Key_Tab, held);
            continue;
        }
        if (form.list && focus == &face(*form.list))
            names << u"face"_s;
        else if (form.list && focus == &button(*form.list))
            names << u"button"_s;
        else if (focus == form.before)
            names << u"before"_s;
        else if (focus == form.after)
            names << u"after"_s;
        else
            names << (focus ? QString::fromLatin1(focus->metaObject()->className()) : u"none"_s);
        const bool isEditor = names.last() == u"face"_s && form.list->ListviewType() == dsCode;
        QTest::keyClick(form.window.windowHandle(), Qt::Key_Tab,
                        isEditor ? held | Qt::ControlModifier : held);
    }
    return names;
}

void showActive(QWidget &window)
{
    window.resize(600, 400);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

} // namespace

class TabOrderTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void theFaceComesBeforeTheButton_data();
    void theFaceComesBeforeTheButton();
    void aWindowOfItsOwnBeginsInItsFace_data();
    void aWindowOfItsOwnBeginsInItsFace();
    void theEditorGivesBackWhatTabStopsHad();
    void everyComponentTakesAGivenTabStop();
};

void TabOrderTest::theFaceComesBeforeTheButton_data()
{
    QTest::addColumn<int>("construction");
    QTest::addColumn<int>("type");
    for (int index = 0; index < constructions.size(); ++index) {
        for (const int type : {int{dsInput}, int{dsCode}})
            QTest::addRow("%s, %d", constructions.at(index).first, type) << index << type;
    }
}

void TabOrderTest::theFaceComesBeforeTheButton()
{
    QFETCH(int, construction);
    QFETCH(int, type);
    Form form;
    constructions.at(construction).second(form);
    if (type != dsInput) // which it is already
        form.list->setListviewType(static_cast<LwType>(type));
    showActive(form.window);
    const QStringList order{u"before"_s, u"face"_s, u"button"_s, u"after"_s};
    QStringList back{u"before"_s, u"after"_s, u"button"_s, u"face"_s};
    for (int round = 0; round < 3; ++round) {
        form.before->setFocus();
        QCOMPARE(stops(form, 8, Qt::NoModifier), order + order);
        form.before->setFocus();
        QCOMPARE(stops(form, 8, Qt::ShiftModifier), back + back);
        form.before->setFocus();
        form.list->setListviewType(type == dsCode ? dsTimer : dsCode); // there and back
        QCOMPARE(stops(form, 8, Qt::NoModifier), order + order);
        form.before->setFocus();
        form.list->setListviewType(static_cast<LwType>(type));
    }
}

void TabOrderTest::aWindowOfItsOwnBeginsInItsFace_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("table") << int{dsInput};
    QTest::newRow("editor") << int{dsCode};
}

void TabOrderTest::aWindowOfItsOwnBeginsInItsFace()
{
    QFETCH(int, type);
    ORVListView list;
    list.setListviewType(static_cast<LwType>(type));
    showActive(list);
    const auto next = [&](Qt::KeyboardModifiers held) {
        const bool isEditor = list.RTextBox()->hasFocus();
        QTest::keyClick(list.windowHandle(), Qt::Key_Tab,
                        isEditor ? held | Qt::ControlModifier : held);
    };
    QTRY_VERIFY(face(list).hasFocus());
    for (const auto held : {Qt::NoModifier, Qt::ShiftModifier, Qt::NoModifier}) {
        next(held);
        QVERIFY(button(list).hasFocus());
        next(held);
        QVERIFY(face(list).hasFocus());
    }
}

void TabOrderTest::theEditorGivesBackWhatTabStopsHad()
{
    Form form;
    laidOutLater(form);
    QSpinBox number(&form.window); // whose line leads to it
    form.list->setListviewType(dsCode);
    form.list->setFormParent(&form.window);
    const auto policies = [&] {
        QList<int> all;
        for (const QWidget *widget : form.window.findChildren<QWidget *>())
            all << int{widget->focusPolicy()};
        return all;
    };
    showActive(form.window);
    form.before->setFocus();
    const QList<int> before = policies();
    QVERIFY(form.list->RTextBox()->focusPolicy() & Qt::ClickFocus);
    for (int round = 0; round < 2; ++round) {
        form.list->setFocus();
        QVERIFY(!(form.after->focusPolicy() & Qt::TabFocus));
        form.before->setFocus();
        QCOMPARE(policies(), before);
    }
}

void TabOrderTest::everyComponentTakesAGivenTabStop()
{
    QWidget form;
    QLineEdit last(&form);
    ORVTreeview tree(&form);
    ORVDataCombo combo(&form);
    ORVListView list(&form);
    QLineEdit first(&form);
    QWidget::setTabOrder(&first, &list);
    QWidget::setTabOrder(&list, &combo);
    QWidget::setTabOrder(&combo, &tree);
    QWidget::setTabOrder(&tree, &last);
    showActive(form);
    first.setFocus();
    for (const QWidget *next :
         QList<const QWidget *>{list.listView(), &button(list), combo.focusProxy(),
                                tree.focusProxy(), &last, &first}) {
        QTest::keyClick(form.windowHandle(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), next);
    }
}

ORVT_TEST(TabOrderTest)
#include "TabOrderTest.moc"
