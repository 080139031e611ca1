// A table of inputs that tells which row was clicked and fetches values on request.

#include <ORVTListview/ORVTListview.h>

#include <QtWidgets/QApplication>

#include <cstdio>

using namespace ORVTListview;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    ORVListView table;
    table.setListviewType(dsInput);
    table.ChangeListviewNumber(2);
    QObject::connect(&table, &ORVListView::ItemClick,
                     [](ListItem *item) { std::printf("%s\n", qPrintable(item->Text())); });
    QObject::connect(&table, &ORVListView::QueryRead, [&table](LwType &) {
        table.UpdateSubItems(QStringLiteral("21.5"), QString(), Sep_Input);
    });
    table.resize(640, 240);
    table.show();
    std::printf("%s: %d rows\n", qPrintable(table.Caption()), table.ListItems()->Count());
    return application.exec();
}
