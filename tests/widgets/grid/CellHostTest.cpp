// A host that does something else while it is asked or told.

#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/grid/GridFixture.h"

#include <stdexcept>
#include <utility>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void failEditing()
{
    QTest::ignoreMessage(QtWarningMsg, "An event handler failed: host");
    throw std::runtime_error("host");
}

} // namespace

class CellHostTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    // A host that lets the user go on while it asks somebody.
    void whatIsEnteredWhileTheHostIsAskedComesAfterwards()
    {
        ShownGrid shown;
        shown.answer = [&shown, isFirst = true](QString &, QString &refusal) mutable {
            if (!std::exchange(isFirst, false))
                return;
            shown.goTo(3, 1);
            shown.type(u"Fan"_s);
            shown.key(Qt::Key_Return);
            QCoreApplication::processEvents();
            shown.goTo(4, 4);
            shown.key(Qt::Key_Space);
            refusal = u"Not this."_s;
            QVERIFY(!shown.grid->enterText(shown.item(5), 1, u"no"_s));
        };
        shown.goTo(1, 1);
        shown.type(u"Pump"_s);
        shown.key(Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(shown.typed(), u"Pump"_s);
        QCOMPARE(shown.note(), u"Not this."_s);
        QCOMPARE(shown.texts(1), u"||||"_s);
        shown.key(Qt::Key_Escape);
        QCoreApplication::processEvents();
        QCOMPARE(shown.texts(1), u"||Fan||"_s);
        QCOMPARE(shown.text(4, 4), u"Yes"_s);
    }

    void theHostMayDoAnything_data()
    {
        QTest::addColumn<QString>("event");
        QTest::addColumn<QString>("deed");
        for (const char *event : {"ask", "told", "refused"}) {
            for (const char *deed : {"destroy", "clear", "throw", "disable", "edit", "columns"})
                QTest::addRow("%s %s", event, deed) << event << deed;
        }
    }
    void theHostMayDoAnything()
    {
        QFETCH(const QString, event);
        QFETCH(const QString, deed);
        ShownGrid shown;
        const auto act = [&shown, deed] {
            if (deed == u"destroy"_s)
                delete shown.list.data();
            else if (deed == u"clear"_s)
                shown->Clear();
            else if (deed == u"throw"_s)
                failEditing();
            else if (deed == u"disable"_s)
                shown->setEnabled(false);
            else if (deed == u"edit"_s)
                shown.grid->enterText(shown.item(1), 1, u"again"_s);
            else
                shown->ColumnHeaders()->Clear();
        };
        connect(shown.grid, &ListGrid::cellEntering, this,
                [&](ListItem *, qint16, QString &text, QString &) {
                    if (event == u"ask"_s && text != u"again"_s)
                        act();
                });
        connect(shown.grid, &ListGrid::cellsChanged, this, [&](const QList<CellChange> &changes) {
            if (event == u"told"_s && changes.constFirst().text != u"again"_s)
                act();
        });
        connect(shown.grid, &ListGrid::cellsRefused, this, [&] {
            if (event == u"refused"_s)
                act();
        });
        shown.goTo(2, 2);
        shown.type(event == u"refused"_s ? u"x"_s : u"5"_s);
        shown.key(Qt::Key_Return);
        QCoreApplication::processEvents();
        if (shown.list && shown.list->isEnabled())
            shown.key(Qt::Key_Escape);
        if (shown.grid && shown->ListItems()->Count() > 0 && shown->ColumnHeaders()->Count() > 0) {
            const bool isTaken = shown.grid->enterText(shown.item(3), 2, u"6"_s);
            QCOMPARE(isTaken, shown.grid->rule(2).kind == CellRule::Number);
        }
    }
};

ORVT_TEST(CellHostTest)
#include "CellHostTest.moc"
