#pragma once

#include "editor/rules/colouring/ColourTable.h"
#include "widgets/combo/ImageCombo.h"

#include <ORVTListview/ORVDataCombo.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ORVTreeview.h>

#include <QtCore/QPointer>
#include <QtGui/QGuiApplication>
#include <QtGui/QStyleHints>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyleOptionComboBox>
#include <QtWidgets/QVBoxLayout>

#include <utility>

// A project's points, and a form with a data combo between two other controls.
struct DataComboHost
{
    DataComboHost()
    {
        using namespace ORVTListview;
        variables.Add(QStringLiteral("Var1"), 101);
        variables.Add(QStringLiteral("Var2"), 102);
        constants.Add(QStringLiteral("Limit1"), 7);
        inputs.Add(QStringLiteral("Temp1"), 11);
        inputs.Add(QStringLiteral("Temp2"), 12);
        inputs.Add(QStringLiteral("Humidity"), -2147483647 - 1);
        outputs.Add(QStringLiteral("Fan1"), 2147483647);
        tree.SetCollectionRenamable(nullptr, &variables, &constants, &inputs, &outputs, nullptr);

        auto *layout = new QVBoxLayout(&form);
        layout->addWidget(before = new QLineEdit);
        layout->addWidget(combo = new ORVDataCombo);
        layout->addWidget(after = new QLineEdit);
        before->setFocus();
    }

    // As an editor of the host's would.
    void giveColours(const ORVTListview::RichTextSettings &settings)
    {
        ORVTListview::ORVListView editor;
        editor.Init_RichTextBox(settings);
    }
    void giveColours()
    {
        ORVTListview::RichTextSettings settings;
        settings.VariableColor = 0x00ff0000;
        settings.ConstantColor = 0x00000080;
        settings.InputColor = 0x000000ff;
        settings.OutputColor = 0x00ff0080;
        giveColours(settings);
    }

    void fill(ORVTListview::LwType type)
    {
        QString error;
        combo->FillDataListview(type, nullptr, error);
        QCOMPARE(error, QString());
    }

    void show()
    {
        form.resize(300, 120);
        form.show();
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
    }
    void showFocused()
    {
        show();
        combo->setFocus();
        QVERIFY(inner().hasFocus());
    }

    ORVTListview::ImageCombo &inner() const
    {
        return *combo->findChild<ORVTListview::ImageCombo *>(QStringLiteral("ImageCombo1"));
    }
    QLineEdit &field() const { return *inner().lineEdit(); }
    QColor colour() const { return field().palette().color(QPalette::Active, QPalette::Text); }

    QStringList texts() const
    {
        QStringList all;
        for (int row = 0; row < inner().count(); ++row)
            all.append(inner().itemText(row));
        return all;
    }

    // What the user does.
    void key(Qt::Key which, Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        QTest::keyClick(form.windowHandle(), which, held);
    }
    void type(const QString &text)
    {
        for (const QChar c : text)
            QTest::keyClick(form.windowHandle(), c.toLatin1());
    }

    ORVTListview::PointList variables, constants, inputs, outputs;
    ORVTListview::ORVTreeview tree;
    QWidget form;
    QLineEdit *before = nullptr;
    QPointer<ORVTListview::ORVDataCombo> combo;
    QLineEdit *after = nullptr;
};
