#pragma once

#include <ORVTListview/ORVTListview.h>

#include <QtGui/QGuiApplication>
#include <QtGui/QStyleHints>
#include <QtGui/QWindow>
#include <QtTest/QtTest>
#include <QtWidgets/QHeaderView>

// A shown ORVListView on a form, and a user who works with it through the window.
// Places are the form's.
class ShownListView
{
public:
    explicit ShownListView(ORVTListview::LwType type = ORVTListview::dsInput)
        : list(new ORVTListview::ORVListView(&form))
    {
        list->setListviewType(type);
        form.resize(640, 360);
        list->setGeometry(20, 20, 600, 320);
        form.show();
        form.activateWindow();
        if (!QTest::qWaitForWindowActive(&form))
            qFatal("the window does not become active");
        list->setFocus();
        window = form.windowHandle();
    }

    ORVTListview::ORVListView *operator->() const { return list; }
    ORVTListview::ReportList &table() const { return *list->listView(); }
    ORVTListview::ListItem *item(int index) const { return list->ListItems()->Item(index); }

    QWidget &part(const QString &name) const { return *list->findChild<QWidget *>(name); }
    QPoint middleOf(const QWidget &widget) const
    {
        return widget.mapTo(&form, widget.rect().center());
    }

    // Of a cell's middle, counted from 1.
    QPoint cell(int row, int column = 1) const
    {
        const QModelIndex index = table().model()->index(row - 1, column - 1);
        return table().viewport()->mapTo(&form, table().visualRect(index).center());
    }
    QPoint header(int column) const
    {
        const QHeaderView &view = *table().horizontalHeader();
        return view.viewport()->mapTo(&form, QPoint(view.sectionViewportPosition(column - 1) +
                                                        view.sectionSize(column - 1) / 2,
                                                    view.height() / 2));
    }

    void press(QPoint at, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers held = Qt::NoModifier) const
    {
        QTest::mousePress(window, button, held, at);
    }
    void release(QPoint at, Qt::MouseButton button = Qt::LeftButton,
                 Qt::KeyboardModifiers held = Qt::NoModifier) const
    {
        QTest::mouseRelease(window, button, held, at);
    }
    // With a pause before it, so that two clicks are no double click.
    void click(QPoint at, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers held = Qt::NoModifier) const
    {
        QTest::mouseClick(window, button, held, at,
                          1 + QGuiApplication::styleHints()->mouseDoubleClickInterval());
    }
    void move(QPoint to) const { QTest::mouseMove(window, to); }
    void key(Qt::Key which, Qt::KeyboardModifiers held = Qt::NoModifier) const
    {
        QTest::keyClick(window, which, held);
    }

    QWidget form;
    QPointer<ORVTListview::ORVListView> list;
    QWindow *window = nullptr;
};

// Every event of a control but mouse moves, as text, in order.
class ListViewEvents : public QObject
{
public:
    explicit ListViewEvents(ORVTListview::ORVListView *list)
        : m_list(*list)
    {
        connectRows();
        connectKeysAndMouse();
        connectDrags();
        connectRest();
    }

    QString take() { return std::exchange(log, {}).join(QStringLiteral(", ")); }

    QStringList log;

private:
    using Control = ORVTListview::ORVListView;

    void note(const QString &event) { log.append(event); }

    void connectRows()
    {
        using namespace ORVTListview;
        using namespace Qt::StringLiterals;
        connect(&m_list, &Control::AfterLabelEdit, this, [this](qint16 &cancel, QString &text) {
            note(u"AfterLabelEdit %1 %2"_s.arg(cancel).arg(text));
        });
        connect(&m_list, &Control::BeforeLabelEdit, this,
                [this](qint16 &cancel) { note(u"BeforeLabelEdit %1"_s.arg(cancel)); });
        connect(&m_list, &Control::Click, this, [this] { note(u"Click"_s); });
        connect(&m_list, &Control::ColumnClick, this,
                [this](ColumnHeader *header) { note(u"ColumnClick "_s + header->Key()); });
        connect(&m_list, &Control::DblClick, this, [this] { note(u"DblClick"_s); });
        connect(&m_list, &Control::ItemCheck, this,
                [this](ListItem *item) { note(u"ItemCheck "_s + item->Key()); });
        connect(&m_list, &Control::ItemClick, this,
                [this](ListItem *item) { note(u"ItemClick "_s + item->Key()); });
    }

    void connectKeysAndMouse()
    {
        using namespace Qt::StringLiterals;
        const auto key = [this](const QString &name) {
            return [this, name](qint16 &code, qint16 &shift) {
                note(u"%1 %2 %3"_s.arg(name).arg(code).arg(shift));
            };
        };
        connect(&m_list, &Control::KeyDown, this, key(u"KeyDown"_s));
        connect(&m_list, &Control::KeyUp, this, key(u"KeyUp"_s));
        connect(&m_list, &Control::KeyPress, this,
                [this](qint16 &code) { note(u"KeyPress %1"_s.arg(code)); });
        const auto mouse = [this](const QString &name) {
            return [this, name](qint16 button, qint16 shift, float, float) {
                note(u"%1 %2 %3"_s.arg(name).arg(button).arg(shift));
            };
        };
        connect(&m_list, &Control::MouseDown, this, mouse(u"MouseDown"_s));
        connect(&m_list, &Control::MouseUp, this, mouse(u"MouseUp"_s));
    }

    void connectDrags()
    {
        using namespace ORVTListview;
        using namespace Qt::StringLiterals;
        connect(&m_list, &Control::OLEStartDrag, this,
                [this](DataObject *, qint32 &effects) { note(u"OLEStartDrag %1"_s.arg(effects)); });
        connect(&m_list, &Control::OLESetData, this,
                [this](DataObject *, qint16 format) { note(u"OLESetData %1"_s.arg(format)); });
        connect(&m_list, &Control::OLEGiveFeedback, this, [this](qint32 effect, bool &cursors) {
            note(u"OLEGiveFeedback %1 %2"_s.arg(effect).arg(cursors));
        });
        connect(&m_list, &Control::OLECompleteDrag, this,
                [this](qint32 effect) { note(u"OLECompleteDrag %1"_s.arg(effect)); });
        connect(&m_list, &Control::OLEDragOver, this,
                [this](DataObject *, qint32 &effect, qint16 button, qint16 shift, float, float,
                       qint16 state) {
                    const QString event =
                        u"OLEDragOver %1 %2 %3 %4"_s.arg(effect).arg(button).arg(shift).arg(state);
                    if (log.isEmpty() || log.last() != event)
                        note(event);
                });
        connect(&m_list, &Control::OLEDragDrop, this,
                [this](DataObject *, qint32 &effect, qint16 button, qint16 shift, float, float) {
                    note(u"OLEDragDrop %1 %2 %3"_s.arg(effect).arg(button).arg(shift));
                });
    }

    void connectRest()
    {
        using namespace ORVTListview;
        using namespace Qt::StringLiterals;
        const auto type = [this](const QString &name) {
            return [this, name](LwType &value) { note(u"%1 %2"_s.arg(name).arg(int{value})); };
        };
        connect(&m_list, &Control::QueryRead, this, type(u"QueryRead"_s));
        connect(&m_list, &Control::QueryReload, this, type(u"QueryReload"_s));
        connect(&m_list, &Control::UpdateWordList, this, type(u"UpdateWordList"_s));
        connect(&m_list, &Control::QuerySetWord, this,
                [this](QString &word) { note(u"QuerySetWord "_s + word); });
        connect(&m_list, &Control::StatusUpdate, this,
                [this](QString &text) { note(u"StatusUpdate "_s + text); });
        connect(&m_list, &Control::UpdateUndoMenu, this, [this] { note(u"UpdateUndoMenu"_s); });
        connect(&m_list, &Control::QueryAnalyze, this, [this] { note(u"QueryAnalyze"_s); });
        connect(&m_list, &Control::QueryCompile, this, [this] { note(u"QueryCompile"_s); });
    }

    Control &m_list;
};
