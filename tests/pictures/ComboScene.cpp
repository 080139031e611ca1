// The data combo: closed for each type, opened, and filtered by what is typed.

#include "editor/rules/colouring/ColourTable.h"
#include "pictures/Scenes.h"
#include "shared/points/DisplayNames.h"
#include "widgets/combo/ImageCombo.h"
#include "workbench/Appearance.h"

#include <ORVTListview/ORVDataCombo.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ORVTreeview.h>

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QListView>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct Points
{
    Points()
    {
        for (int i = 1; i <= 40; ++i) {
            variables.Add(u"Demand%1"_s.arg(i));
            constants.Add(u"Limit%1"_s.arg(i));
            inputs.Add((i % 3 ? u"SupplyTemp%1"_s : u"RoomHumidity%1"_s).arg(i));
            outputs.Add(u"FanSpeed%1"_s.arg(i));
        }
        tree.SetCollectionRenamable(nullptr, &variables, &constants, &inputs, &outputs, nullptr);
        ORVListView editor;
        RichTextSettings settings = defaultColours();
        settings.BackColor = static_cast<qint32>(0x80000005); // the window's
        editor.Init_RichTextBox(legibleOn(QGuiApplication::palette(), settings));
    }

    PointList variables, constants, inputs, outputs;
    ORVTreeview tree;
};

void type(QWidget &receiver, const QString &text)
{
    for (const QChar c : text) {
        QKeyEvent press(QEvent::KeyPress, c.toUpper().unicode(), Qt::NoModifier, c);
        QApplication::sendEvent(&receiver, &press);
    }
}

} // namespace

void comboScene(Sheet &sheet)
{
    const Points points;
    ORVDataCombo combo;
    combo.resize(220, combo.sizeHint().height());
    combo.show();
    combo.activateWindow();
    auto &inner = *combo.findChild<ImageCombo *>(u"ImageCombo1"_s);
    QApplication::processEvents();
    inner.clearFocus(); // the focus shows the text selected
    QString error;
    sheet.add(u"Empty"_s, combo);
    const QList<std::pair<LwType, QString>> chosen{{dsVariable, u"Demand1"_s},
                                                   {dsConst, u"Limit1"_s},
                                                   {dsInput, u"SupplyTemp1"_s},
                                                   {dsOutput, u"FanSpeed1"_s}};
    for (const auto &[which, name] : chosen) {
        combo.FillDataListview(which, nullptr, error);
        combo.SetListIndex(name);
        sheet.add(displayName(which), combo);
    }
    combo.setEnabled(false);
    sheet.add(u"Disabled"_s, combo);
    combo.setEnabled(true);

    combo.FillDataListview(dsInput, nullptr, error);
    combo.setFocus();
    combo.SetListIndex(u"SupplyTemp7"_s);
    sheet.add(u"With the focus"_s, combo);
    inner.showPopup();
    sheet.add(u"Opened"_s, combo);
    sheet.add(u"Its list"_s, *inner.listView()->window());
    inner.hidePopup();
    inner.setText(QString());
    type(inner, u"mp1"_s);
    sheet.add(u"\"mp1\" typed"_s, combo);
    sheet.add(u"What matches"_s, *inner.listView()->window());
    inner.hidePopup();
    combo.setLayoutDirection(Qt::RightToLeft);
    combo.SetListIndex(u"SupplyTemp7"_s);
    sheet.add(u"From right to left"_s, combo);
}
