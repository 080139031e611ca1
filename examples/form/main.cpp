// A form made in Designer, with all components on it.

#include "ui_form.h"

#include <QtWidgets/QApplication>

#include <cstdio>

using namespace ORVTListview;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QWidget window;
    Ui::Form form;
    form.setupUi(&window);
    QObject::connect(form.treeview, &ORVTreeview::NodeClick, [&form](Node *node) {
        const auto type = static_cast<LwType>(node->Tag().toInt());
        form.listView->setListviewType(type); // ignored for what is no category
    });
    window.show();
    std::printf("%s, %s\n", qPrintable(form.listView->Caption()),
                qPrintable(form.dataCombo->Text()));
    return application.exec();
}
