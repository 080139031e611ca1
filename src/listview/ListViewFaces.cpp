#include "listview/ListViewFaces.h"

#include "widgets/look/Pictures.h"

#include <QtGui/QIcon>

namespace ORVTListview {

using namespace Qt::StringLiterals;

ListViewFaces::ListViewFaces(QWidget &owner)
    : control(owner)
    , list(new ReportList(&owner))
    , table(new PointTable(&owner, *list, images))
    , editor(new CodeEditor(&owner, *list))
{
    Pictures::fillInto(images);
    list->setObjectName(u"ListView1"_s);
    list->setPictureProvider([this](const QString &key) { return picture(key); });
}

ListViewFaces::~ListViewFaces()
{
    delete editor; // before the widgets that it looks after
}

// A row names its picture by key or by index.
QIcon ListViewFaces::picture(const QString &key) const
{
    bool isIndex = false;
    const int index = key.toInt(&isIndex);
    return isIndex ? images.Picture(index) : images.Picture(key);
}

void ListViewFaces::switchTo(LwType type)
{
    RichTextBox &box = editor->box();
    const bool hadFocus = list->hasFocus() || box.hasFocus();
    const bool showsCode = type == dsCode;
    if (showsCode)
        editor->words().popup().takeList();
    else
        editor->words().popup().giveListBack();
    table->switchTo(type);
    QWidget &face = showsCode ? static_cast<QWidget &>(box) : *list;
    control.setFocusProxy(&face);
    layOut();
    if (showsCode)
        face.setEnabled(true); // whatever Enabled says
    face.show();
    if (hadFocus)
        face.setFocus();
    if (showsCode)
        return;
    box.hide(); // an editor with the focus keeps tab stops from the others
    table->enterTabOrder(box);
}

void ListViewFaces::layOut()
{
    const QRect body = table->layOut();
    editor->box().setGeometry(body);
    if (!isCode()) // else it is a window of its own
        list->setGeometry(body);
}

} // namespace ORVTListview
