#include "listview/ListViewFaces.h"

#include "widgets/look/Pictures.h"

#include <QtGui/QIcon>
#include <QtWidgets/QApplication>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// Makes a widget a tab stop for a while: what is none has no place in the order, and an
// editor with the focus takes the tab stops of its form away.
class TabStop
{
public:
    explicit TabStop(QWidget &widget)
        : m_widget(widget)
        , m_policy(widget.focusPolicy())
    {
        m_widget.setFocusPolicy(Qt::StrongFocus);
    }
    ~TabStop() { m_widget.setFocusPolicy(m_policy); }
    Q_DISABLE_COPY_MOVE(TabStop)

private:
    QWidget &m_widget;
    Qt::FocusPolicy m_policy;
};

} // namespace

ListViewFaces::ListViewFaces(QWidget &owner)
    : control(owner)
    , list(new ReportList(&owner))
    , table(new PointTable(&owner, *list, images))
    , editor(new CodeEditor(&owner, *list))
{
    Pictures::fillInto(images);
    list->setObjectName(u"ListView1"_s);
    list->setPictureProvider([this](const QString &key) { return picture(key); });
    editor->setPictures([this](const QString &key) { return picture(key); });
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

QWidget &ListViewFaces::face() const
{
    return isCode() ? static_cast<QWidget &>(editor->box()) : *list;
}

void ListViewFaces::switchTo(LwType type)
{
    const QWidget *focus = QApplication::focusWidget();
    const bool hadFocus = focus && (focus == &face() || face().isAncestorOf(focus));
    PopupWordList &popup = editor->words().popup();
    if (type == dsCode)
        popup.takeList();
    else
        popup.giveListBack();
    table->switchTo(type);
    enterTabOrder();
    layOut();
    if (isCode())
        face().setEnabled(true); // whatever Enabled says
    face().show();
    if (hadFocus)
        face().setFocus();
    if (!isCode())
        editor->box().hide(); // with the focus it would keep tab stops from the others
}

// The face comes right behind the control, wherever a host has put that, and the button
// behind the face; the editor lies between also while it is hidden. A call that gives the
// control another place moves what leads to the button. The toolkit puts a control with a
// focus proxy before its lowest child, the caption.
void ListViewFaces::enterTabOrder()
{
    QList<QWidget *> order{&control, &table->captionLabel(), &editor->box()};
    if (!isCode()) // else the list is a window of its own
        order.append(list);
    order.append(&table->readButton());
    control.setFocusProxy(nullptr); // which stood for the control till now
    for (qsizetype place = 1; place < order.size(); ++place) {
        const TabStop before(*order.at(place - 1));
        const TabStop after(*order.at(place));
        QWidget::setTabOrder(order.at(place - 1), order.at(place));
    }
    control.setFocusProxy(&face());
}

bool ListViewFaces::isMultiSelect() const
{
    return isCode() ? editor->words().popup().tableManner().isMultiSelect : list->MultiSelect();
}

void ListViewFaces::setMultiSelect(bool on)
{
    if (isCode())
        editor->words().popup().tableManner().isMultiSelect = on;
    else
        list->setMultiSelect(on);
}

void ListViewFaces::layOut()
{
    const QRect body = table->layOut();
    editor->box().setGeometry(body);
    if (!isCode()) // else it is a window of its own
        list->setGeometry(body);
}

} // namespace ORVTListview
