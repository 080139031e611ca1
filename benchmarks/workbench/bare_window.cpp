// The least that a workbench could be: a window of the toolkit with a text edit.

#include <QtWidgets/QApplication>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QPlainTextEdit>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.setCentralWidget(new QPlainTextEdit);
    window.resize(1100, 700);
    window.show();
    return QApplication::exec();
}
