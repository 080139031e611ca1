// A host that knows names and numbers only, as a script does: every member is
// reached by its name, every event arrives by its number.

#include <ORVTListview/ORVTListview.h>

#include <QtWidgets/QApplication>

#include <cstdio>

using namespace ORVTListview;

namespace {

QVariant call(Component &component, const char *member, QVariantList arguments = {})
{
    QVariant result;
    if (component.Invoke(QString::fromLatin1(member), arguments, result) != CallSucceeded) {
        const Error error = component.LastError();
        std::printf("%s: %s (%d)\n", qPrintable(error.Source()), qPrintable(error.Description()),
                    error.Number());
    }
    return result;
}

// The published numbers of the table's events that this host answers.
constexpr qint32 beforeLabelEdit = 2;
constexpr qint32 queryAnalyze = 26;

struct Events : EventSink
{
    void Invoke(qint32 Number, QVariantList &Arguments) override
    {
        if (Number == beforeLabelEdit)
            Arguments[0] = 1; // Cancel
        else if (Number == queryAnalyze)
            std::printf("Analyse the program\n");
    }
};

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    ORVListView table;
    Events events;
    table.Advise(&events);
    call(table, "ListviewType", {QStringLiteral("dsVariable")});
    call(table, "ChangeListviewNumber", {3});
    call(table, "UpdateSubItems", {QStringLiteral("on"), QString(), 1});
    std::printf("%s\n", qPrintable(call(table, "Key").toString()));
    call(table, "StartLabelEdit"); // cancelled by the sink
    call(table, "Brightness", {100});
    table.show();
    return application.exec();
}
