#pragma once

#include "editor/EditorHost.h"
#include "find/FindDialog.h"
#include "find/fFind.h"
#include "find/rules/SearchHistory.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStatusBar>

// The find dialog beside an editor, used as users do it.
struct FindHost : EditorHost
{
    enum Mode { Find, Replace };

    ~FindHost() { ORVTListview::FindDialog::shared().hide(); }

    // "|" in the program as for setText.
    void open(const QString &program, Mode mode = Find)
    {
        setText(program);
        reopen(mode);
    }
    void reopen(Mode mode = Find)
    {
        form.activateWindow(); // from where users open it
        QTRY_VERIFY(form.isActiveWindow());
        list->showFind(mode == Replace);
        QTRY_VERIFY(dialog().isActiveWindow());
    }

    ORVTListview::fFind &dialog() { return ORVTListview::FindDialog::shared(); }
    template <typename Widget>
    Widget &control(const char *name)
    {
        auto *widget = dialog().findChild<Widget *>(QString::fromLatin1(name));
        if (!widget)
            qFatal("no control %s", name);
        return *widget;
    }
    QPushButton &button(int index)
    {
        return control<QPushButton>(qPrintable(QStringLiteral("Cmd%1").arg(index)));
    }
    QComboBox &combo(int index)
    {
        return control<QComboBox>(qPrintable(QStringLiteral("Cbo%1").arg(index)));
    }
    QCheckBox &option(int index)
    {
        return control<QCheckBox>(qPrintable(QStringLiteral("Chk%1").arg(index)));
    }
    QString status() { return control<QStatusBar>("StatusBar1").currentMessage(); }

    void click(QAbstractButton &clicked)
    {
        const QPoint place = qobject_cast<QCheckBox *>(&clicked) ? QPoint(8, clicked.height() / 2)
                                                                 : clicked.rect().center();
        QTest::mouseClick(&clicked, Qt::LeftButton, {}, place);
    }
    void findNext() { click(button(0)); }
    void replace() { click(button(2)); }
    void replaceAll() { click(button(3)); }

    // Types into a field, in place of what it holds.
    void enter(int index, const QString &text)
    {
        QLineEdit &field = *combo(index).lineEdit();
        QTest::mouseClick(&field, Qt::LeftButton);
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, text);
    }
    void enter(const QString &wanted, const QString &by)
    {
        enter(0, wanted);
        enter(1, by);
    }

    QStringList entries(int index)
    {
        QStringList texts;
        for (int i = 0; i < combo(index).count(); ++i)
            texts << combo(index).itemText(i);
        return texts;
    }
    ORVTListview::SearchHistories &histories()
    {
        return ORVTListview::threadPart<ORVTListview::SearchHistories>();
    }
};
