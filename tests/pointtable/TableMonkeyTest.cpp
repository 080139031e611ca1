// A user and a host at work on one point table, at random, while the host's handlers
// throw. After each step the rows are those of a simple model.

#include "pointtable/rules/ColumnLayouts.h"
#include "support/Disturbances.h"
#include "support/RandomSession.h"
#include "support/TestProgram.h"
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ReportList.h>

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QTest>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>

#include <memory>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

class TableSession final : public RandomSession
{
public:
    explicit TableSession(unsigned seed)
        : RandomSession(seed)
        , m_type(dsInput)
    {
        m_form.resize(420, 300);
        m_form.show();
        m_form.activateWindow();
        make();
    }
    ~TableSession() override
    {
        m_host.reset();
        delete m_pane;
        QCoreApplication::processEvents();
    }

private:
    using Act = void (TableSession::*)();
    using Row = QStringList; // its texts, the first column's included

    void act() override
    {
        static constexpr Act acts[] = {
            &TableSession::changeType, &TableSession::changeNumber,  &TableSession::changeOverrides,
            &TableSession::writeCell,  &TableSession::writeCell,     &TableSession::writeColumn,
            &TableSession::addRow,     &TableSession::removeRow,     &TableSession::clear,
            &TableSession::select,     &TableSession::changeManner,  &TableSession::click,
            &TableSession::click,      &TableSession::click,         &TableSession::pressKeys,
            &TableSession::pressKeys,  &TableSession::editLabel,     &TableSession::editLabel,
            &TableSession::beginLabel, &TableSession::queueAndReset, &TableSession::useHeader,
            &TableSession::fitWidths,  &TableSession::disturb,       &TableSession::disturb,
            &TableSession::makeAnew};
        (this->*oneOf(acts))();
        if (oneIn(3))
            QCoreApplication::processEvents();
    }

    ReportList &list() { return *m_table->listView(); }
    ListItems &items() { return *m_table->ListItems(); }
    int columns() const { return static_cast<int>(columnKeys(m_type, m_hasOverrides).size()); }
    int count() const { return static_cast<int>(m_rows.size()); }
    QString someText() { return u"text %1"_s.arg(number(50)); }

    void make()
    {
        m_pane = new QWidget(&m_form);
        m_table = new ORVListView(m_pane);
        m_table->setGeometry(10, 10, 400, 260);
        m_pane->resize(420, 300);
        m_pane->show();
        m_table->setFocus();
        m_host = std::make_unique<ThrowingHost>(*m_table);
        new QAbstractItemModelTester(
            list().model(), QAbstractItemModelTester::FailureReportingMode::Fatal, &list());
        m_type = dsInput;
        m_hasOverrides = false;
        m_labelled = nullptr;
        m_numbered = 12;
        m_table->setNumberItems(m_numbered);
        rebuild();
    }
    // Its parent goes, with events on their way to it.
    void makeAnew()
    {
        note(u"make anew"_s);
        queueSome();
        m_host.reset();
        delete m_pane;
        QCoreApplication::processEvents();
        make();
    }

    // The numbered rows of a type; a wider last cell is a blank.
    void rebuild()
    {
        m_columns = columns();
        m_rows.clear();
        fill(m_numbered);
    }
    void fill(int rows)
    {
        m_rows.clear();
        for (int i = 1; i <= rows; ++i) {
            Row row{u"%1"_s.arg(i, 2, 10, QChar(u'0'))};
            row.resize(m_columns);
            row.last() = m_columns > 1 ? u" "_s : row.last();
            m_rows.append(row);
        }
    }

    void changeType()
    {
        m_type = static_cast<LwType>(1 + number(12));
        note(u"type %1"_s.arg(m_type));
        if (oneIn(3)) { // by way of the program
            m_table->setListviewType(dsCode);
            QCoreApplication::processEvents();
        }
        m_table->setListviewType(m_type);
        m_numbered = defaultNumberItems(m_type);
        rebuild();
    }
    void changeNumber()
    {
        const auto rows = static_cast<qint16>(number(40));
        note(u"number %1"_s.arg(rows));
        if (oneIn(2)) {
            m_table->ChangeListviewNumber(rows);
            if (rows != m_rows.size())
                fill(rows);
            return;
        }
        m_table->setNumberItems(rows);
        m_numbered = rows;
        rebuild();
    }
    void changeOverrides()
    {
        m_hasOverrides = oneIn(2);
        note(u"overrides %1"_s.arg(m_hasOverrides));
        m_table->setIsHOASupported(m_hasOverrides);
        m_table->setListviewType(m_type);
        m_numbered = defaultNumberItems(m_type);
        rebuild();
    }
    void writeCell()
    {
        if (m_rows.isEmpty())
            return;
        const int row = number(count());
        const int column = number(m_columns);
        const QString text = someText();
        note(u"write %1 %2"_s.arg(row).arg(column));
        ListItem &item = *items().Item(row + 1);
        column == 0 ? item.setText(text) : item.setSubItem(column, text);
        m_rows[row][column] = text;
    }
    void writeColumn()
    {
        const int column = number(m_columns + 1);
        const QString text = someText();
        note(u"write column %1"_s.arg(column));
        m_table->UpdateSubItems(text, u"tag"_s, static_cast<qint16>(column));
        for (Row &row : m_rows) {
            if (column > 0 && column < m_columns)
                row[column] = text;
        }
    }
    void addRow()
    {
        const int place = number(count() + 2); // 0 is the end
        const QString text = someText();
        note(u"add at %1"_s.arg(place));
        m_table->Add(place, {}, text);
        Row row{text};
        row.resize(m_columns);
        m_rows.insert(place == 0 ? count() : place - 1, row);
    }
    void removeRow()
    {
        if (m_rows.isEmpty())
            return;
        const int place = number(count());
        note(u"remove %1"_s.arg(place));
        items().Remove(place + 1);
        m_rows.removeAt(place);
    }
    void clear()
    {
        note(u"clear"_s);
        m_table->Clear();
        m_rows.clear();
    }
    void select()
    {
        note(u"select"_s);
        const bool hasRow = count() > 0 && !oneIn(4);
        ListItem *item = hasRow ? items().Item(1 + number(count())) : nullptr;
        m_table->setSelectedItem(item);
        expect(m_table->SelectedItem() == item, u"another row is selected"_s);
    }
    void changeManner()
    {
        note(u"manner"_s);
        m_table->setMultiSelect(oneIn(2));
        list().setCheckBoxes(oneIn(2));
        m_table->setLabelColumn(static_cast<qint16>(number(m_columns)));
    }

    void click()
    {
        static constexpr Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::LeftButton,
                                                      Qt::RightButton, Qt::MiddleButton};
        static constexpr Qt::KeyboardModifiers held[] = {Qt::NoModifier, Qt::NoModifier,
                                                         Qt::ShiftModifier, Qt::ControlModifier};
        QWidget &port = *list().viewport();
        const QPoint place(number(std::max(1, port.width())), number(std::max(1, port.height())));
        note(u"click %1 %2"_s.arg(place.x()).arg(place.y()));
        if (oneIn(4))
            QTest::mouseDClick(&port, Qt::LeftButton, {}, place);
        else
            QTest::mouseClick(&port, oneOf(buttons), oneOf(held), place);
    }
    void pressKeys()
    {
        static constexpr Qt::Key keys[] = {Qt::Key_Up,     Qt::Key_Down, Qt::Key_Home,  Qt::Key_End,
                                           Qt::Key_PageUp, Qt::Key_Left, Qt::Key_Space, Qt::Key_0,
                                           Qt::Key_T,      Qt::Key_A,    Qt::Key_C,     Qt::Key_F5};
        static constexpr Qt::KeyboardModifiers held[] = {Qt::NoModifier, Qt::NoModifier,
                                                         Qt::ShiftModifier, Qt::ControlModifier};
        const Qt::Key key = oneOf(keys);
        note(QKeySequence(key).toString());
        QTest::keyClick(&list(), key, oneOf(held));
    }

    // One that was left may still be there for a while.
    QLineEdit *label()
    {
        for (QLineEdit *field : list().viewport()->findChildren<QLineEdit *>()) {
            if (field->isVisible())
                return field;
        }
        return nullptr;
    }

    // A label that is entered is the row's text, one that is left with Escape is not.
    void editLabel()
    {
        leaveLabel();
        const ListItem *item = m_table->SelectedItem();
        if (!item || oneIn(5))
            return;
        const int row = item->Index() - 1;
        const int column = m_table->labelColumn();
        beginLabel();
        QLineEdit *field = label();
        if (!field)
            return;
        const QString text = someText();
        const bool isEntered = !oneIn(3);
        note(u"label %1 %2"_s.arg(row).arg(isEntered));
        field->setText(text);
        QTest::keyClick(field, isEntered ? Qt::Key_Return : Qt::Key_Escape);
        QCoreApplication::processEvents();
        if (isEntered)
            m_rows[row][column] = text;
    }
    // Unfinished, whatever comes next.
    void beginLabel()
    {
        leaveLabel();
        note(u"begin a label"_s);
        m_labelled = m_table->SelectedItem();
        m_labelColumn = m_table->labelColumn();
        m_table->StartLabelEdit();
    }
    void leaveLabel()
    {
        if (QLineEdit *field = label())
            QTest::keyClick(field, Qt::Key_Escape);
        QCoreApplication::processEvents();
    }

    // What waits in the queue meets other rows.
    void queueAndReset()
    {
        note(u"queue and reset"_s);
        queueSome();
        changeType();
        QCoreApplication::processEvents();
    }
    void queueSome()
    {
        QWidget &port = *list().viewport();
        for (int i = 0; i < 3; ++i) {
            const QPoint place(number(200), number(100));
            for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                const bool isDown = type == QEvent::MouseButtonPress;
                QCoreApplication::postEvent(
                    &port, new QMouseEvent(type, place, port.mapToGlobal(place), Qt::LeftButton,
                                           isDown ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier));
            }
        }
        QCoreApplication::postEvent(&list(),
                                    new QKeyEvent(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier));
    }
    void useHeader()
    {
        note(u"header"_s);
        QHeaderView &header = *list().horizontalHeader();
        header.resizeSection(number(m_columns), number(200));
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, {number(300), 5});
    }
    void fitWidths()
    {
        note(u"fit"_s);
        QString message;
        m_table->UpdateListViewWidth(message);
        expect(message.isEmpty(), message);
    }
    void disturb() { note(m_disturbances.next(m_random)); }

    QString whatIsWrong() override
    {
        if (QLineEdit *field = label()) // may have been left with what was in it
            field->setText(textOfLabel());
        if (m_table->ColumnHerders()->Count() != m_columns)
            return u"%1 columns"_s.arg(m_table->ColumnHerders()->Count());
        if (items().Count() != m_rows.size())
            return u"%1 rows instead of %2"_s.arg(items().Count()).arg(m_rows.size());
        for (int row = 0; row < count(); ++row) {
            const QString wrong = wrongInRow(row);
            if (!wrong.isEmpty())
                return wrong;
        }
        return wrongSelection();
    }
    QString textOfLabel()
    {
        const bool isHere = m_labelled && m_labelled->isAlive() && m_labelColumn < m_columns;
        return isHere ? m_rows[m_labelled->Index() - 1][m_labelColumn] : QString();
    }
    QString wrongInRow(int row)
    {
        const ListItem &item = *items().Item(row + 1);
        for (int column = 0; column < m_columns; ++column) {
            const QString text = column == 0 ? item.Text() : item.SubItem(column);
            const QString shown =
                list().model()->index(row, column).data(Qt::DisplayRole).toString();
            if (text != m_rows[row][column] || shown != text)
                return u"row %1, column %2: %3, shown %4, instead of %5"_s.arg(row).arg(column).arg(
                    text, shown, m_rows[row][column]);
        }
        return {};
    }
    QString wrongSelection()
    {
        int selected = 0;
        for (int row = 1; row <= count(); ++row)
            selected += items().Item(row)->Selected() ? 1 : 0;
        if (selected > 1 && !m_table->MultiSelect())
            return u"%1 rows are selected"_s.arg(selected);
        const ListItem *item = m_table->SelectedItem();
        const bool isHere = !item || items().Item(item->Index()) == item;
        return isHere ? QString() : u"the selected row is not in the list"_s;
    }

    ThreadState::Fresh m_state;
    LwType m_type;
    QList<Row> m_rows;
    int m_columns = 0;
    qint16 m_numbered = 12;
    bool m_hasOverrides = false;
    const ListItem *m_labelled = nullptr;
    int m_labelColumn = 0;
    QWidget m_form;
    QWidget *m_pane = nullptr;
    ORVListView *m_table = nullptr;
    std::unique_ptr<ThrowingHost> m_host;
    Disturbances m_disturbances{m_form};
};

} // namespace

class TableMonkeyTest : public ThrowingHostTest
{
    Q_OBJECT

private Q_SLOTS:
    void theTableIsWhatTheModelIs() { runSessions<TableSession>(40, 8000); }
};

ORVT_TEST(TableMonkeyTest)
#include "TableMonkeyTest.moc"
