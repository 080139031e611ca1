// A host that knows names and numbers only, as a script does: every member is reached by
// its name, every event arrives by its number, and what a call hands out is called on.

#include <ORVTListview/ORVTListview.h>

#include <QtCore/QVariantMap>
#include <QtWidgets/QApplication>

#include <cstdio>

using namespace ORVTListview;

namespace {

// The member of whatever is in there: a component, a row, a collection, ...
QVariant call(QVariant object, const char *member, QVariantList arguments = {})
{
    QVariant result;
    if (const auto error = callLate(object, QString::fromLatin1(member), arguments, result))
        std::printf("%s: %s (%d)\n", qPrintable(error->Source()), qPrintable(error->Description()),
                    error->Number());
    return result;
}

// The numbers are published: share/orvtlistview/members.json lists them.
constexpr qint32 beforeLabelEdit = 2;
constexpr qint32 openingProgress = 1;

struct TableEvents : EventSink
{
    void Invoke(qint32 Number, QVariantList &Arguments) override
    {
        std::printf("Event %d of the table\n", Number);
        if (Number == beforeLabelEdit)
            Arguments[0] = 1; // Cancel
    }
};

struct EditorEvents : EventSink
{
    void Invoke(qint32 Number, QVariantList &Arguments) override
    {
        if (Number == openingProgress && Arguments.at(0) == 100)
            std::printf("The program is open\n");
    }
};

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    ORVListView control; // from here on it is a QVariant
    const QVariant table = QVariant::fromValue(&control);

    TableEvents tableEvents;
    advise(table, &tableEvents);
    call(table, "ListviewType", {QStringLiteral("dsVariable")});
    call(table, "ChangeListviewNumber", {3});
    const QVariant columns = call(table, "ColumnHerders");
    const QVariant value = call(columns, "Item", {QStringLiteral("Value")});
    const int place = call(value, "Index").toInt() - 1; // sub-items begin behind the first column
    call(table, "UpdateSubItems", {QStringLiteral("on"), QString(), place});
    const QVariant rows = call(table, "ListItems");
    const QVariant second = call(rows, "Item", {2});
    std::printf("%s, row %s: %s\n", qPrintable(call(table, "Key").toString()),
                qPrintable(call(second, "Text").toString()),
                qPrintable(call(second, "SubItem", {place}).toString()));
    control.show();
    call(table, "SelectedItem", {second});
    call(table, "StartLabelEdit"); // cancelled by the sink
    call(table, "Brightness", {100});
    call(second, "SubItem", {99});

    call(table, "ListviewType", {QStringLiteral("dsCode")});
    call(table, "Init_RichTextBox",
         {QVariantMap{{QStringLiteral("BackColor"), 0xFFFFFF},
                      {QStringLiteral("ReservedWordColor"), 0xA00000}}});
    const QVariant view = call(table, "codeView");
    EditorEvents editorEvents;
    advise(view, &editorEvents);
    call(view, "lineNumbersVisible", {true});
    call(view, "openProgram", {QStringLiteral("IF 1 = 1\nENDIF")});
    return application.exec();
}
